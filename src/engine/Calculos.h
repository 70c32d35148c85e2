// The calculations of the program: initial strain, ultimate analysis of rectangular and T
// sections with 1 to MAXCAPAS layers of sheet, the moment without sheet, confinement of
// columns and anchorage length.
//
// Each procedure takes the project state it reads and writes, then its own arguments in the
// program's order, writes its results to the state and reports nothing. Lengths in m, steel
// areas in cm², strengths in N/mm², moments in mkN, axial loads in kN.
#pragma once

#include "state/General.h"
#include "state/TiposSeccion.h"

namespace texalon {

// Ultimate strains of the failure diagram and the modulus of the steel.
constexpr double kDeformacionHormigon = 0.0035;  // pivot "B"
constexpr double kDeformacionAcero = 0.01;  // pivot "A"
constexpr double kModuloAcero = 200000.0;  // N/mm²
// Every bisection and fixed-point loop ends at this tolerance, with no iteration limit.
constexpr double kTolerancia = 0.00001;
// MU holds this mark where a layer count, and all above it, brings no gain.
constexpr double kSinMejora = -999.0;

// EPS0 of a flexure section under MCP; any number that is no kind leaves EPS0.
void Predeformacion(General& g, SeccionFlexion seccion);

// Fills the flexure result arrays of one sheet type for 1 to MAXCAPAS layers. MD is passed and
// not used. The arrays must exist.
void RoturaRectangular(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double ANCHOR,
                       double FCK, double FYK, double EPS0, double MD, Entero tipo);
// The same for a T section; the web width and flange depth come from the state.
void RoturaT(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double ANCHOR, double FCK,
             double FYK, double EPS0, double MD, Entero tipo);

// The two above for the section of the project: what both twins do, the section picked by its
// kind.
void RoturaDeSeccion(General& g, SeccionFlexion seccion, double ANCHO, double CANTO, double RECUB, double ASI,
                     double ASS, double ANCHOR, double FCK, double FYK, double EPS0, Entero tipo);

// MUSR, the ultimate moment of the section without sheet. When the search needs no step,
// MUSR keeps the value of the previous Calculate.
void MomentoSinRefuerzo(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double FCK,
                        double FYK);
void MomentoSinRefuerzoT(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double FCK,
                         double FYK);
// The two above for the section of the project.
void MomentoSinRefuerzoDeSeccion(General& g, SeccionFlexion seccion, double ANCHO, double CANTO, double RECUB,
                                 double ASI, double ASS, double FCK, double FYK);

// EPS0 of a column under the axial load NCP.
void PredeformacionConfina(General& g);

// ALFAN, the shape coefficient of a column: 1 circular, 1 - 2/3 square, 1 - (2/3) D / L
// rectangular. Any number that is no shape is the run-time error 9.
double CoeficienteForma(FormaPilar forma, double DIAM, double LADOMENOR);

// Fills the confinement results of one sheet type for 1 to MAXCAPAS layers. The arrays must
// exist.
void CalculoConfina(General& g, FormaPilar forma, double DIAM, double LADOMENOR, double FCK, Entero tipo);

// LANC, the net anchorage length of every type and layer count.
void LongitudAnclaje(General& g);

}  // namespace texalon
