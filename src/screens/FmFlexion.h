// The flexure screens: FM_FLEXION for a rectangular section and FM_FLEXIONT for a T section.
//
// The T screen is the rectangular screen with its differences: two fields more, the tests of
// the widths and depths, and the T procedures of the engine. One class serves both.
#pragma once

#include "files/Copias.h"
#include "screens/FormularioCalculo.h"

namespace texalon {

class FmFlexion : public FormularioCalculo {
    Q_OBJECT
public:
    // Load: the open flag, the saved and new flags from F_ABIERTO, the fields from the state.
    FmFlexion(SeccionFlexion seccion, QWidget* padre = nullptr);

    // ResultadosFlexion or ResultadosFlexionT: the results of one cell in the results panel.
    void ResultadosFlexion(int tipo, int capas);

    void CopiaAlEstado() override;
    bool PideFichero(General& g) const override;
    void Graba(General& g) const override;
    // InformeFlexion or InformeFlexionT; a cell refused by the calculation gets the message
    // and nothing is printed.
    bool Imprime(plataforma::Impresora& impresora) override;

protected:
    void Aceptado(const ReglaCampo& regla) override;
    ResultadoCalculo Calcula() override;
    std::optional<CampoRechazado> CampoQueRechazaAlCalcular() const override;
    CeldaResultado Celda(int tipo, int capas) const override;
    void MuestraCelda(int tipo, int capas) override;
    void CeldaElegida(int tipo, int capas) override;
    void GraficoDelCalculo() override;
    void BajaBandera(General& g) override;

private:
    QWidget* CreaDatos();
    void EscribeFilasAnchoRefuerzo();
    TextosFlexion Textos() const;
    // The fields read into `g` as Calculate reads them.
    void LeeCampos(General& g) const;

    bool EsT() const { return seccion_ == SeccionFlexion::T; }

    // The diagrams of the screen on its picture, each the body of the rectangular and T twins,
    // shown with the procedure's isotropic setting.
    void DiagramaPivotes();
    void DiagramaMomentoCapas();
    void DiagramaMomentoArea();
    void DibujaSeccion();

    SeccionFlexion seccion_;
    // The texts of the cell that the result fields show: the strain diagram reads them.
    ResultadosCeldaFlexion celdaMostrada_;
};

}  // namespace texalon
