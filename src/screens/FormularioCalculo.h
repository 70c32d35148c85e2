// The three calculation screens, FM_FLEXION, FM_FLEXIONT and FM_CONFINA: what they share.
//
// Each has a data panel whose fields follow the entry pattern, a Calculate button, result
// buttons that an accepted field greys, a result grid by sheet type and number of layers, the
// results of the chosen cell, a verdict over its drawing surface, a coefficient dialog and a
// close prompt that offers to save the project. What differs, the fields, the engine's flow,
// the texts of a cell and the file, each screen tells.
#pragma once

#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "screens/Formulario.h"
#include "files/ReglasAntesDeCalcular.h"
#include "files/ReglasCampo.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QPushButton;

namespace texalon {

class CampoResultado;
class RejillaResultados;

class FormularioCalculo : public Formulario {
    Q_OBJECT
public:
    // CM_CALCULAR: the whole calculation, the verdict, the table and the cell (1, 1).
    void Calcular();

    // CopiaFlexion, CopiaFlexionT or CopiaConfina on the texts of the fields: all tested at
    // once, in silence, the verdict in F_ERROR. The fields' texts as typed reach the state.
    virtual void CopiaAlEstado() = 0;
    // The save dialog of the screen's kind of project: stores FICHERO and DIRECTORIO. False
    // when the user cancels.
    virtual bool PideFichero(General& g) const = 0;
    // Writes the project of the state to FICHERO.
    virtual void Graba(General& g) const = 0;

protected:
    // What tells the calculation screens apart in their common parts.
    struct Forma {
        QString nombre;  // "FM_CONFINA"
        QString titulo;  // the caption
        std::vector<const char*> botonesResultado;  // disabled by an accepted field
        // The flexure grids ignore their selection changes while F_CALCULANDO is set, as their
        // Calculate moves the selection itself. On purpose: the confinement grid has no such
        // guard.
        bool seleccionGuardada;
    };
    FormularioCalculo(const Forma& forma, QWidget* padre);

    // ---- Building the screen.

    // A field of the data panel, a text box (TX_) or an editable list (CO_), checked each time
    // it loses the focus.
    QWidget* CreaCampo(const ReglaCampo& regla, QWidget* marco);
    // A result field of the results panel, with its tooltip.
    CampoResultado* CreaResultado(const char* nombre, const char* consejo, QWidget* marco);
    // A button of the buttons' column, with its picture drawn for the program and its tooltip.
    QPushButton* CreaBoton(const char* nombre, const char* consejo, const char* dibujo, QWidget* padre);
    // A coefficient button with its Greek gamma: FM_COEF, then the result buttons go grey.
    QPushButton* CreaGamma(const char* nombre, QWidget* padre);
    // The panel of the result grid, the grid empty and inactive in it.
    QGroupBox* CreaMarcoRejilla(const char* nombreRejilla, const QString& titulo);
    // The results panel: LB_TIPO over columns of result fields.
    struct Resultado {
        const char* nombre;
        const char* etiqueta;
        const char* unidad;
        const char* consejo;
    };
    QGroupBox* CreaMarcoResultados(const char* nombre, const QString& titulo,
                                   const std::vector<std::vector<Resultado>>& columnas);
    // The picture with the verdict label LB_INFO on it, hidden.
    Lienzo* CreaDibujoConVeredicto(const Dibujo& dibujo, const QString& textoVeredicto);
    // The column of buttons: CM_CALCULAR, set apart, then the diagram buttons.
    struct Boton {
        const char* nombre;
        const char* consejo;
        const char* dibujo;
    };
    QWidget* CreaBotones(const char* consejoCalcular, const std::vector<Boton>& botones);

    // ---- The fields.

    // Writes the fields from the state in their formats; a list gets its rows and the row of
    // the value, or the next row when none shows it.
    void CargaCampo(const ReglaCampo& regla);
    // The entry pattern of a field that has lost the focus.
    void Comprueba(const ReglaCampo& regla);
    // What an accepted field changes beyond the pattern.
    virtual void Aceptado(const ReglaCampo& regla);
    // Reads a field's text into the state with the regional conversion and no test, as
    // Calculate does: every field has been through its own test when the focus left it.
    void LeeCampo(General& g, const ReglaCampo& regla) const;
    void ActivaResultados(bool activos);

    // ---- The calculation and its results.

    // The engine's flow of the screen's Calculate, its fields read on the way.
    virtual ResultadoCalculo Calcula() = 0;
    // The first field whose value, as Calculate would read it, its field would refuse: a value
    // loaded from a file that the user never typed, or a coefficient out of FM_COEF's rules.
    // The state is not touched.
    virtual std::optional<CampoRechazado> CampoQueRechazaAlCalcular() const = 0;
    // The text and the colour of a grid cell.
    virtual CeldaResultado Celda(int tipo, int capas) const = 0;
    // The results of one cell in the results panel.
    virtual void MuestraCelda(int tipo, int capas) = 0;
    // What a click on a cell changes beyond its results.
    virtual void CeldaElegida(int tipo, int capas);
    // The chart that a Calculate leaves on the picture, its last step.
    virtual void GraficoDelCalculo() = 0;
    // A diagram button: the procedure runs under the fatal-error trap, as every command does.
    void ConectaDiagrama(const char* boton, std::function<void()> diagrama);
    // Writes each text to its result field.
    void Muestra(const std::vector<std::pair<const char*, const std::string*>>& textos);
    void MuestraTipo(const std::string& texto);
    // The verdict on show over the picture, Oculto when the label is hidden.
    Veredicto VeredictoMostrado() const { return veredicto_; }

    // ---- The unload.

    // The open flag of the screen, cleared by its unload.
    virtual void BajaBandera(General& g) = 0;
    void closeEvent(QCloseEvent* evento) override;

    RejillaResultados* rejilla_ = nullptr;

private:
    bool RechazaAntesDeCalcular();
    void TablaResultados();
    void MuestraVeredicto(Veredicto veredicto);
    void ClicEnRejilla(int fila, int columna);
    void Coeficientes();
    void GrabaAlCerrar();

    Forma forma_;
    Veredicto veredicto_ = Veredicto::Oculto;
    QLabel* tipo_ = nullptr;  // LB_TIPO
    QLabel* info_ = nullptr;  // LB_INFO
    // From the unload on, no field is checked: the focus that leaves a closing screen is no
    // user's leaving a field.
    bool descargando_ = false;
};

// The platform's regional conversion: the text is in the machine's own format, as a field's
// test has rewritten it. A text that does not convert is the run-time type error.
double ValorRegional(const QString& texto);

}  // namespace texalon
