// The start of the desktop program, after the application and its services are in place.
#pragma once

#include <QStringList>

namespace texalon {

class MdiPrincipal;

// Creates the main window and shows it without waiting; its load does the rest. A project
// named as the first argument after the program's (a double click in the file manager) opens
// at once, as Open would open it. The window goes when it is closed.
MdiPrincipal* Arranca(const QStringList& argumentos);

}  // namespace texalon
