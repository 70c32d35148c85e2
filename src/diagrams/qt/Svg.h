// A display list written as an SVG file that looks as a screen's picture shows it.
#pragma once

#include "diagrams/qt/Dibujos.h"
#include "state/General.h"

#include <QString>

namespace texalon {

// Writes the list, fitted to a picture of `tamano` as the picture's first showing fits it, to
// the SVG file `fichero`. The drawing state is only read. Needs a QApplication (offscreen will
// do), which measures the texts as the screen does. False when the file cannot be written.
bool EscribeSvg(const GeneralDibujo& d, TamanoDibujo tamano, Entero isotropico, const QString& fichero);

}  // namespace texalon
