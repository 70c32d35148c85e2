// What the tests of the main window share: a fresh process state, the platform doubles and the
// main window on the screen with its splash gone and the keyboard in it, as the user finds the
// program once the splash has been sent away.
#pragma once

#include "platform/dobles/PlataformaDoble.h"
#include "shell/MdiPrincipal.h"

#include <QString>
#include <QStringList>
#include <memory>

namespace texalon {
class Formulario;
}

namespace texalon::prueba {

// A message as the doubles recorded it, text and style together, so that a list of them
// compares in one go and shows both when it differs.
QString Mensaje(const QString& texto, plataforma::Estilo estilo);

class PruebaDePrincipal : public QObject {
protected:
    // The doubles answer with the given decimal separator; the state and the diagrams' state
    // start anew. The window and the doubles of the test before go first.
    MdiPrincipal& Arranca(char separador);
    // The same with the machine's own separator.
    MdiPrincipal& Arranca();

    // The window goes while the doubles still answer for the platform.
    void Termina();

    // A number of the screens, written with a comma in the test, as the machine in use writes it.
    QString Sep(const char* texto) const;

    // Runs a menu item as the user's choice would; tells whether it was available.
    bool Orden(const char* nombre);
    // A click on the toolbar button of that key; tells whether it was available.
    bool Boton(const char* clave);

    // The messages shown so far, each as Mensaje writes it.
    QStringList Mostrados() const;

    // The screen open now; the child windows that have closed are gone by then.
    Formulario* Abierta() const;

    std::unique_ptr<plataforma::PlataformaDoble> doble_;
    std::unique_ptr<MdiPrincipal> ventana_;
};

}  // namespace texalon::prueba
