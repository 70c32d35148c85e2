// The checks that a flexure or confinement project must pass before it reaches the state:
// the same for a file being read and for a screen's fields being copied.
#pragma once

#include "state/General.h"
#include "state/TiposSeccion.h"

namespace texalon {

// The values of a flexure project as a file or a screen holds them. A rectangular section
// leaves the web width and the flange depth aside; a screen leaves the coefficients aside.
struct DatosFlexion {
    double ANCHO = 0.0;
    double CANTO = 0.0;
    double ANCHOALMA = 0.0;
    double CANTOALA = 0.0;
    double RECUB = 0.0;
    double ASI = 0.0;
    double ASS = 0.0;
    double FCK = 0.0;
    double FYK = 0.0;
    double GC = 0.0;
    double GS = 0.0;
    double GR = 0.0;
    double ANCHOR = 0.0;
    double MCP = 0.0;
    double MD = 0.0;
};

// The values of a confinement project.
struct DatosConfina {
    Entero SECCION = 0;
    double DIAM = 0.0;
    double LADOMENOR = 0.0;
    double FCK = 0.0;
    double GC = 0.0;
    double GS = 0.0;
    double GR = 0.0;
    double NCP = 0.0;
    double INCR = 0.0;
};

// The sheet no wider than the section (the web of a T), no zero length or bottom steel, the
// flange within the depth, FCK 15 to 50, FYK 300 to 600, the cover within half the depth.
// Both ends of a range pass.
bool FlexionValida(const DatosFlexion& d, SeccionFlexion seccion);

// No zero side, the short side of a rectangle within the long one, FCK 15 to 50, INCR at
// least 1.
bool ConfinaValida(const DatosConfina& d, FormaPilar forma);

}  // namespace texalon
