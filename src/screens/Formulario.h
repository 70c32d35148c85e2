// What every screen of the program has: its controls known by name, its panels and picture in
// one visual language, the diagrams shown on its picture, its report, the order in which Tab
// goes through it, and the signal of its unload for the main window.
#pragma once

#include "diagrams/qt/Dibujos.h"
#include "platform/Impresora.h"
#include "state/General.h"

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

    // The screen's report on the printer, from the state and the results the screen shows; the
    // caller has made sure that they answer for the data where the screen calculates. True
    // when the report built diagrams: the list then holds the last of them.
    virtual bool Imprime(plataforma::Impresora& impresora) = 0;
    // What a report leaves on the screen: the picture shows the last diagram that the report
    // built, fitted to the picture, while the fit in store stays the page's (ANCHOPIC and
    // ALTOPIC in centimetres), as a zoom or a right click then finds it.
    void MuestraDiagramaDelInforme();

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

    // The white picture of the screen's diagrams (PIC_FLEXION...).
    Lienzo* CreaDibujo(const Dibujo& dibujo);
    // The list that a diagram procedure has just built, shown on the screen's picture with
    // the procedure's isotropic setting (DibujaLista).
    void MuestraDiagrama(Entero isotropico);

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
    Lienzo* dibujo_ = nullptr;
};

}  // namespace texalon
