// What the tests of the main window share: a fresh process state, the platform doubles and the
// main window on the screen with its splash gone and the keyboard in it, as the user finds the
// program once the splash has been sent away.
#pragma once

#include "platform/dobles/PlataformaDoble.h"
#include "shell/MdiPrincipal.h"

#include <memory>

namespace texalon::prueba {

class PruebaDePrincipal : public QObject {
protected:
    // The doubles answer with the given decimal separator; the state and the diagrams' state
    // start anew. The window and the doubles of the test before go first.
    MdiPrincipal& Arranca(char separador);
    // The same with the machine's own separator.
    MdiPrincipal& Arranca();

    // The window goes while the doubles still answer for the platform.
    void Termina();

    std::unique_ptr<plataforma::PlataformaDoble> doble_;
    std::unique_ptr<MdiPrincipal> ventana_;
};

}  // namespace texalon::prueba
