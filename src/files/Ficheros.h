// The project files: the flexure file (VMF) and the confinement file (VMC).
//
// Plain text, one value a line, CR LF line ends, the period as decimal separator whatever the
// machine's settings. A file is open only inside one procedure. The procedures report their
// verdict through F_ERROR, which they only ever set; a fault of the file itself (not found, no
// permission, past the end, overflow) is also told to the user through `aviso`, as the
// exclamation message box of the screens or the error output of the batch command.
#pragma once

#include "state/General.h"
#include "state/TiposSeccion.h"

#include <functional>
#include <string>
#include <string_view>

namespace texalon {

// Shows a message about a fault of a file: "Memoria insuficiente.", "Espacio en disco
// insuficiente." or "Error N: description".
using Aviso = std::function<void(const std::string& texto)>;

// Reads a VMF file into the state. `seccion` receives the number of line 1, a section kind when
// the file is good.
void LeeFlexion(General& g, const std::string& fichero, SeccionFlexion& seccion, const Aviso& aviso);
// Reads a VMC file into the state.
void LeeConfina(General& g, const std::string& fichero, const Aviso& aviso);
// Writes the state to a VMF file of the section's kind. Takes the state writable only to set
// F_ERROR when the file cannot be written; no project value changes.
void GrabaFlexion(General& g, const std::string& fichero, SeccionFlexion seccion, const Aviso& aviso);
// Writes the state to a VMC file.
void GrabaConfina(General& g, const std::string& fichero, const Aviso& aviso);

// The kind of project a file holds, as Open and the batch command tell it: by the last three
// characters of the name with its spaces trimmed, in any letter case. The contents play no part.
enum class ClaseFichero {
    Ninguna,  // not a project file
    Flexion,  // VMF
    Confinamiento,  // VMC
};
ClaseFichero ClaseDe(std::string_view fichero);

// The text that tells a run-time error of a file procedure.
std::string MensajeErrorFichero(int numero);

}  // namespace texalon
