// What the widget tests of the screens share: the platform doubles, the decimal setting under
// which a test runs, and the controls of the screen in test by their names.
#pragma once

#include "platform/dobles/PlataformaDoble.h"
#include "state/General.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <string>

class QComboBox;
class QDialog;
class QLineEdit;
class QWidget;

namespace texalon {
class Formulario;
class Lienzo;
}

namespace texalon::prueba {

// The two decimal settings, as the data rows "coma" and "punto" of a column "separador".
void FilasSeparador();

// How the picture differs from the list of the drawing state fitted to the picture's pixels
// with `isotropico`: the lines and texts against the counters, the first line against its
// fitted place. Empty when the picture shows the list so.
QString DiferenciaConLaLista(const Lienzo& lienzo, const GeneralDibujo& d, Entero isotropico);

class PruebaDePantalla : public QObject {
protected:
    // The screen the test is working on.
    virtual Formulario* EnPrueba() const = 0;

    QWidget* C(const char* nombre) const;
    QLineEdit* Campo(const char* nombre) const;
    QComboBox* Lista(const char* nombre) const;

    // Fresh doubles answering with this decimal separator; the ones before go first, since a
    // double going puts back what was there before it.
    void NuevosDobles(char separador);

    // A number of the test data, written with a comma, as the machine in use writes it.
    QString Sep(const char* texto) const;

    // The texts of the messages shown so far.
    QStringList Mensajes() const;

    // Whether the control has the focus with its whole text selected, as a refusal leaves it.
    bool FocoYSeleccion(const char* nombre) const;

    // Values written into the state as a project file leaves them, "ANCHO=0.005;ASI=0.004":
    // values that no field has taken.
    static void EscribeValores(General& g, const QString& valores);

    // The user in FM_COEF as Calculate opens it on a refused coefficient: notes whether the
    // control had the focus with its whole text selected, types the new value over it, leaves
    // it with Tab and accepts.
    static std::function<void(QDialog&)> CorrigeCoeficiente(const char* control, const QString& nuevo, bool& enfocado);

    // The end of a test: the screen closed, its prompt answered No, the doubles gone.
    void CierraPantalla();

    // A file's bytes, as the program wrote them.
    static std::string Contenido(const QString& fichero);

    std::unique_ptr<plataforma::PlataformaDoble> doble_;
    char separador_ = ',';
};

}  // namespace texalon::prueba
