// The confinement screen, FM_CONFINA: a column section and the strength increase wanted, and
// what wrapping it gives for every sheet type and number of layers.
#pragma once

#include "screens/FormularioCalculo.h"

class QComboBox;

namespace texalon {

class FmConfina : public FormularioCalculo {
    Q_OBJECT
public:
    // Load: the open flag, the saved and new flags from F_ABIERTO, the section kind with its
    // change steps, then the fields from the state.
    explicit FmConfina(QWidget* padre = nullptr);

    // ResultadosConfina: the results of one cell in the results panel.
    void ResultadosConfina(int tipo, int capas);

    void CopiaAlEstado() override;
    bool PideFichero(General& g) const override;
    void Graba(General& g) const override;
    bool Imprime(plataforma::Impresora& impresora) override;

protected:
    void Aceptado(const ReglaCampo& regla) override;
    ResultadoCalculo Calcula() override;
    std::optional<CampoRechazado> CampoQueRechazaAlCalcular() const override;
    CeldaResultado Celda(int tipo, int capas) const override;
    void MuestraCelda(int tipo, int capas) override;
    void BajaBandera(General& g) override;
    // DiagramaConfina on the picture: the chart of a Calculate and of CM_CONFINA.
    void GraficoDelCalculo() override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QWidget* CreaDatos();
    QWidget* CreaValoresAdoptados();
    // The steps of a change of section. On purpose: a click also greys the diagram button, a
    // key does not.
    void CambioSeccion(bool porClic);
    void ActivaLadoMenor(bool activo);
    void EscribeCoeficienteForma();
    // The shape that Calculate takes: the one of the row of CO_SECCION.
    FormaPilar Forma() const;
    // The fields read into `g` as Calculate reads them.
    void LeeCampos(General& g) const;

    QComboBox* seccion_ = nullptr;  // CO_SECCION
    // The texts of the cell that the result fields show: the report reads them.
    ResultadosCeldaConfina celdaMostrada_;
    // Set while a key is at work on CO_SECCION: the row it picks is a key's change, not a click.
    bool teclaEnCurso_ = false;
};

}  // namespace texalon
