// The flexure screens: FM_FLEXION for a rectangular section and FM_FLEXIONT for a T section.
//
// The T screen is the rectangular screen with its differences: two fields more, the tests of
// the widths and depths, and the T procedures of the engine. One class serves both.
#pragma once

#include "files/Copias.h"
#include "screens/ReglasCampo.h"

#include <QWidget>
#include <map>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

namespace texalon {

class RejillaResultados;

class FmFlexion : public QWidget {
    Q_OBJECT
public:
    // Load: the open flag, the saved and new flags from F_ABIERTO, the fields from the state.
    FmFlexion(bool seccionT, QWidget* padre = nullptr);

    bool SeccionT() const { return seccionT_; }
    // A control of the screen by its name ("TX_ANCHO", "CM_CALCULAR", "FG_FLEXION"...).
    QWidget* Control(const QString& nombre) const;

    // CM_CALCULAR: the whole calculation, the verdict, the table and the cell (1, 1).
    void Calcular();
    // Shows the results of one cell of the grid in the results panel.
    void ResultadosFlexion(int tipo, int capas);
    // CopiaFlexion or CopiaFlexionT on the texts of the fields: all tested at once, in silence,
    // the verdict in F_ERROR.
    void CopiaAlEstado();

signals:
    // The screen has gone through its unload; the main window greys its commands.
    void Descargada();

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    QWidget* CreaDatos();
    QWidget* CreaResultados();
    QWidget* CreaDibujo();
    QWidget* CreaBotones();
    QLineEdit* CampoResultado(const char* nombre, const char* consejo);
    void CargaCampos();
    void CargaLista(QComboBox* lista, const ReglaCampo& regla);
    void EscribeFilasAnchoRefuerzo();
    void Comprueba(const ReglaCampo& regla);
    void LeeCampos(General& g) const;
    void TablaFlexion();
    void MuestraVeredicto(int veredicto);
    void ActivaResultados(bool activos);
    void ClicEnRejilla(int fila, int columna);
    void Coeficientes();
    void Anclaje();
    void GrabaAlCerrar();
    TextosFlexion Textos() const;

    bool seccionT_;
    std::map<QString, QWidget*> controles_;
    RejillaResultados* rejilla_ = nullptr;
    QLabel* tipo_ = nullptr;  // LB_TIPO
    QLabel* info_ = nullptr;  // LB_INFO
};

}  // namespace texalon
