// The diagram procedures: every chart and section drawing of the program, written as a display
// list (Lista.h).
//
// Each procedure allocates the list anew, sets its diagram flags and writes its elements in the
// order axes, curves or bars, grid, marker, tick labels, axis names, title, legend. That is all
// it does: whoever called it shows the list, on a screen's picture, on paper or in a file, with
// the isotropic setting given below for each (kIsotropico for the section drawings). They read
// the project state and write the list and the flags of the drawing state; `separador` is the
// machine's decimal separator of the texts. The rectangular and T twins keep their names and
// share one body, which a caller that knows the section's kind calls itself.
#pragma once

#include "engine/Caracteristicas.h"
#include "state/General.h"
#include "state/TiposSeccion.h"

namespace texalon {

// The stress-strain lines of every sheet type, the type `tipo` in full with its design points
// (EPSD must hold that type's design strains). Isotropic 0; no flag is touched.
void DiagramaTension(const General& g, GeneralDibujo& d, Entero tipo, char separador);

// Grouped bars of the increase of strength reached, by layers and type, and the marker of
// INCR. Isotropic 0; clears F_SECCION.
void DiagramaConfina(const General& g, GeneralDibujo& d, char separador);

// Ultimate moment against sheet area (F_MOMENTOS) and against layers (F_CAPAS), with the
// marker of MD. Isotropic 0.
void DiagramaMomentoArea(const General& g, GeneralDibujo& d, char separador);
void DiagramaMomentoAreaT(const General& g, GeneralDibujo& d, char separador);
void DiagramaMomentoCapas(const General& g, GeneralDibujo& d, char separador);
void DiagramaMomentoCapasT(const General& g, GeneralDibujo& d, char separador);
// The body of each pair of twins above: the charts are the same for both sections.
void DiagramaMomentoAreaFlexion(const General& g, GeneralDibujo& d, char separador);
void DiagramaMomentoCapasFlexion(const General& g, GeneralDibujo& d, char separador);

// The strain plane of the cell that `celda` shows, its numbers read from the texts of the
// result fields (with `separador`), and the pivots A, B and R (F_PIVOTES). Copies the cell's
// type to ESPESOR, E, EPSU and works out its KM and EPSD. A text that is no number ("---") is
// the run-time type error, a caption that names no type the subscript error.
void DiagramaPivotes(General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda, char separador);
void DiagramaPivotesT(General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda, char separador);
// The body of both: the plane is the same for both sections.
void DiagramaPivotesFlexion(General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda, char separador);

// The section in hand to scale and dimensioned (F_SECCION), isotropic 1.
void DibujaSeccion(const General& g, GeneralDibujo& d, char separador);
void DibujaSeccionT(const General& g, GeneralDibujo& d, char separador);
// The body of both, for the section's kind.
void DibujaSeccionFlexion(const General& g, GeneralDibujo& d, SeccionFlexion seccion, char separador);
void DibujaSeccionConfina(const General& g, GeneralDibujo& d, char separador);

}  // namespace texalon
