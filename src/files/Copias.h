// The copies of a calculation screen's fields into the project state, run before a project is
// saved and when a screen closes with unsaved data.
//
// A copy takes the texts of the fields as the user left them, so that it stays free of the
// widgets: the screen passes its controls' texts. Every text must be a number, then the values,
// taken without their signs, must pass the screen's checks; only then are they stored. A refusal
// leaves the state untouched and sets F_ERROR. A copy never clears F_ERROR (that is the caller's
// work), shows no message and raises no error: the caller tells the user.
#pragma once

#include "state/General.h"
#include "state/TiposSeccion.h"

#include <string>

namespace texalon {

// The texts of the flexure screens' fields, as typed: TX_ANCHO, TX_CANTO, TX_ANCHOALMA,
// TX_CANTOALA, TX_RECUB, TX_ASI, TX_ASS, CO_FCK, CO_FYK, CO_ANCHOR, TX_MCP, TX_MD.
struct TextosFlexion {
    std::string ANCHO, CANTO, ANCHOALMA, CANTOALA, RECUB, ASI, ASS, FCK, FYK, ANCHOR, MCP, MD;
};

// FM_FLEXION, the rectangular section: ten fields; ANCHOALMA and CANTOALA are not looked at and
// the state keeps its own. GC, GS and GR are never touched: the coefficient dialog owns them.
void CopiaFlexion(General& g, const TextosFlexion& campos);

// FM_FLEXIONT, the T section: all twelve fields.
void CopiaFlexionT(General& g, const TextosFlexion& campos);

// The one of the two above for the section's kind.
void CopiaFlexionDeSeccion(General& g, const TextosFlexion& campos, SeccionFlexion seccion);

// The texts of the confinement screen's fields: TX_DIAM, TX_LADOMENOR, CO_FCK, TX_NCP, TX_INCR.
struct TextosConfina {
    std::string DIAM, LADOMENOR, FCK, NCP, INCR;
};

// FM_CONFINA. `indice_seccion` is the list index of CO_SECCION: 0 circular, 1 square,
// 2 rectangular. SECCION itself is not copied: the list keeps it up to date on its own.
void CopiaConfina(General& g, const TextosConfina& campos, int indice_seccion);

}  // namespace texalon
