// The file dialogs of a project and the messages of the file procedures, as the screens and
// the commands use them.
#pragma once

#include "files/Ficheros.h"
#include "state/General.h"

namespace texalon {

// The save dialog of a flexure project ("flexion.vmf") or a confinement project
// ("confina.vmc"): stores FICHERO and DIRECTORIO. False when the user cancels.
bool PideFicheroFlexion(General& g);
bool PideFicheroConfina(General& g);

// The file procedures tell their faults in a message box with the exclamation icon.
Aviso AvisoFichero();

}  // namespace texalon
