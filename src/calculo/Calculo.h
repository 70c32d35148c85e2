// The batch calculation command, texalon-calculo: it reads project files, calculates each as
// the Calculate button of its screen does and prints the results. The whole run lives here,
// apart from the process around it, so that the tests call it just as main does.
#pragma once

#include "diagrams/qt/Dibujos.h"
#include "platform/Impresora.h"
#include "state/General.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace texalon::calculo {

// Exit status of the command.
constexpr int kSalidaCorrecta = 0;  // every file calculated, or the help shown
constexpr int kSalidaConFallos = 1;  // some file could not be read, calculated, drawn or written
constexpr int kSalidaErrorDeUso = 2;  // no file, or an option the command does not know or a bad value

// Writes a display list as the picture `dibujo` shows it to the SVG file `fichero`, and says
// whether it could. The writer belongs to the program around the command, which brings the
// windowing toolkit that measures the texts.
using EscritorSvg =
    std::function<bool(const GeneralDibujo& d, const Dibujo& dibujo, Entero isotropico, const std::string& fichero)>;

// Runs `imprime` on a printer that writes the PDF file `fichero` with no dialog; false when no
// such printer can be had.
using ImpresoraPdf =
    std::function<bool(const std::string& fichero, const std::function<void(plataforma::Impresora&)>& imprime)>;

// What the command draws and prints on: both belong to the program around it, which brings the
// windowing toolkit. Without them, SVG files and reports cannot be written.
struct Dispositivos {
    EscritorSvg svg;
    ImpresoraPdf pdf;
};

// The usage text of --help.
std::string TextoAyuda();

// Runs the command on its arguments, the program name left out, and returns the exit status.
// Results go to `salida` and messages to `errores`; `separador` is the decimal separator of
// the text results, of the diagrams' and of the reports' texts (the JSON numbers always carry
// the period). The diagrams of --svg and the reports of --informe go through `dispositivos`.
int Ejecuta(const std::vector<std::string>& argumentos, char separador, std::ostream& salida, std::ostream& errores,
            const Dispositivos& dispositivos = {});

// The decimal separator of the results from the machine's one: ',' for a comma and '.' for
// anything else, a missing one included.
char SeparadorDecimal(const char* separadorDelSistema);

}  // namespace texalon::calculo
