// What every screen of the program has: its controls known by name, its panels and drawing
// surface in one visual language, the order in which Tab goes through it, and the signal of
// its unload for the main window.
#pragma once

#include "diagrams/Dibujante.h"

#include <QString>
#include <QWidget>
#include <map>
#include <vector>

class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;

namespace texalon {
class Lienzo;
}

namespace texalon {

class Formulario : public QWidget {
    Q_OBJECT
public:
    // A control of the screen by its name ("TX_ANCHO", "CM_CALCULAR", "FG_FLEXION"...).
    QWidget* Control(const QString& nombre) const;

signals:
    // The screen has gone through its unload; the main window greys its commands.
    void Descargada();

protected:
    // Sizes shared by the screens, in pixels.
    static constexpr int kAltoControl = 20;
    static constexpr int kAnchoCampo = 58;
    static constexpr int kAnchoLista = kAnchoCampo + 18;

    Formulario(const QString& nombre, const QString& titulo, QWidget* padre);

    // Keeps a control under its name, for Control(); the name is given here or already set.
    template <typename Control>
    Control* Registra(Control* control, const char* nombre = nullptr)
    {
        if (nombre != nullptr) control->setObjectName(QString::fromLatin1(nombre));
        Q_ASSERT(!control->objectName().isEmpty());
        controles_[control->objectName()] = control;
        return control;
    }

    // The grid that holds the screen's panels, and the grid of the rows of one panel, with the
    // margins and spacings of every screen.
    QGridLayout* CreaDisposicion();
    static QGridLayout* CreaFilas(QWidget* marco);

    // A panel with its caption, named as the screen's frames are ("Frame2").
    QGroupBox* CreaMarco(const char* nombre, const QString& titulo);

    // A label of the data panel; its text may carry subscripts ("f<sub>ck</sub>").
    QLabel* CreaEtiqueta(const QString& texto, QWidget* padre, const char* nombre = nullptr);

    // The labels of one row of a panel: the caption and the unit.
    struct Rotulos {
        QLabel* etiqueta;
        QLabel* unidad;
    };
    // One row of a panel: the caption, the control, its unit, and at most one more control
    // with its unit beside them (the web width of a T, a coefficient button). The control's
    // accessible name is its caption, as plain text.
    Rotulos AnadeFila(QGridLayout* filas, const QString& etiqueta, QWidget* control, const QString& unidad,
                      QWidget* otro = nullptr, const QString& otraUnidad = {});

    // The white picture of the screen's diagrams (PIC_FLEXION...), the one the diagram
    // procedures of `pantalla` draw on while the screen lives.
    Lienzo* CreaDibujo(const char* nombre, Pantalla pantalla);

    // Tab goes through the controls in this order, the reading order of the screen: down the
    // data panel row by row, left to right within a row, then the buttons, then the grid,
    // and round again; Shift+Tab goes back. Disabled controls are passed by. The first one
    // takes the focus when the screen opens, so that the user can type at once.
    void OrdenaTabulacion(const std::vector<const char*>& nombres);
    bool focusNextPrevChild(bool siguiente) override;

    std::map<QString, QWidget*> controles_;

private:
    // The control of the reading order that holds the focus now, a list's edit box counting as
    // its list; -1 when the focus is elsewhere.
    int PosicionDelFoco() const;

    std::vector<QWidget*> ordenTabulacion_;
};

}  // namespace texalon
