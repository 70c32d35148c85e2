// The four reports of the program, each printed on the printer given, from the project state
// and the texts that the screen shows (the plain records of a cell's results), so that Print
// and the batch command print the same. `separador` is the machine's decimal separator.
#pragma once

#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "platform/Impresora.h"
#include "state/General.h"
#include "state/TiposSeccion.h"

#include <string>
#include <vector>

namespace texalon {

using plataforma::Impresora;

// The pictures of the frame: the logo of each screen, 2 × 1.
inline constexpr char kLogoCarac[] = ":/imagenes/logo_caracteristicas.svg";
inline constexpr char kLogoFlexion[] = ":/imagenes/logo_flexion.svg";
inline constexpr char kLogoFlexionT[] = ":/imagenes/logo_flexion_t.svg";
inline constexpr char kLogoConfina[] = ":/imagenes/logo_confinamiento.svg";

// The names offered for the document by a printer that writes files.
inline constexpr char kDocumentoCarac[] = "caracteristicas";
inline constexpr char kDocumentoFlexion[] = "informe_flexion";
inline constexpr char kDocumentoFlexionT[] = "informe_flexion_t";
inline constexpr char kDocumentoConfina[] = "informe_confinamiento";
inline constexpr char kDocumentoElementos[] = "informe_elementos";

// The message of a flexure report for a cell that the calculation refused ("---").
inline constexpr char kMensajeCeldaRechazada[] =
    "El tipo de refuerzo y número de capas elegidas no cumple con los requisitos impuestos por el fabricante.";

// The characteristics of the sheet type chosen on the screen (`tipoElegido` 1 to 3, or 0 when
// no option is set), whose data and design strains are in the state; the stress-strain diagram
// is the list that the caller has just built.
void InformeCarac(Impresora& impresora, const General& g, GeneralDibujo& d, int tipoElegido, char separador);

// What a flexure report did. The diagrams of a report are built on the display list, each then
// printed; the list holds the last of them when the report ends.
enum class Impresion {
    ConDiagramas,  // printed, the results with their diagrams
    SoloVeredicto,  // printed, the verdict in place of the results: no diagram was built
    CeldaRechazada,  // a cell without a result: the caller shows kMensajeCeldaRechazada, and
                     // nothing reached the printer
};

// The flexure reports of the cell whose texts `celda` holds; `veredicto` is the verdict on
// show (Oculto when the label is hidden).
Impresion InformeFlexion(Impresora& impresora, General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda,
                         Veredicto veredicto, char separador);
Impresion InformeFlexionT(Impresora& impresora, General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda,
                          Veredicto veredicto, char separador);
// The body of both, for the section's kind.
Impresion InformeFlexionDeSeccion(Impresora& impresora, General& g, GeneralDibujo& d, SeccionFlexion seccion,
                                  const ResultadosCeldaFlexion& celda, Veredicto veredicto, char separador);

// The confinement report of the cell whose texts `celda` holds. `forma` is the shape that the
// screen's section list shows, which names the shape and its size on paper (a number that is no
// shape, with no row picked, names none); whether the smaller side is printed goes by SECCION.
void InformeConfina(Impresora& impresora, General& g, GeneralDibujo& d, const ResultadosCeldaConfina& celda,
                    FormaPilar forma, char separador);

// The summary of a building's members, the first pages of their joint report: a ruled table
// with the header row `cabecera` and one row of `filas` a member, in the page frame of every
// report under "RESUMEN DE LOS ELEMENTOS", on as many pages as it needs, the header repeated on
// each. A text too wide for its column is cut with "…". The document stays open: the members'
// reports follow on the same printer.
void InformeResumen(Impresora& impresora, const std::vector<std::string>& cabecera,
                    const std::vector<std::vector<std::string>>& filas);

}  // namespace texalon
