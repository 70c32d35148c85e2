// The entry rules of the fields applied to the values as they stand, before a calculation: a
// project file holds values that no field would take (a rectangular column whose sides' ratio
// is 3), and the calculation's searches end only on values within the fields' bounds.
#pragma once

#include "files/ReglasCampo.h"
#include "state/General.h"
#include "state/TiposSeccion.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace texalon {

// The field that refuses its value, with that field's own message.
struct CampoRechazado {
    std::string control;  // "TX_LADOMENOR"
    std::string mensaje;
    bool coeficiente = false;  // a field of the safety coefficient dialog, FM_COEF
    CampoEstado campo = nullptr;  // the state field it feeds, &General::LADOMENOR
};

// The first field, in the screen's order, whose value its field would refuse on acceptance: its
// upper and lower bounds and its hard tests against the other values. A soft test keeps the
// value on the screen too, and is not a refusal; nor is a test that only the field's own
// acceptance runs.
// `enPantalla` leaves out the fields that the screen does not show for these values.
std::optional<CampoRechazado> CampoQueRechaza(const std::vector<ReglaCampo>& reglas, const General& g,
                                              const std::function<bool(const ReglaCampo&)>& enPantalla = nullptr);

// What a field refuses, or sends the user on from, as its value is typed: every test of the
// field, the soft ones and those that Calculate lets pass included. A value that passes them all
// passes the file checks too, so that a project made of such values opens as it was written.
std::optional<CampoRechazado> CampoQueRechazaAlEscribir(const std::vector<ReglaCampo>& reglas, const General& g,
                                                         const std::function<bool(const ReglaCampo&)>& enPantalla);

// What Calculate refuses on the flexure screen of that section kind: its fields in the screen's
// order, then the three coefficients of FM_COEF.
std::optional<CampoRechazado> CampoQueRechazaLaFlexion(const General& g, SeccionFlexion seccion);
// The same on the confinement screen, for the section of `g.SECCION`: "Lado menor" only for a
// rectangular column. A DIAM below LADOMENOR is no refusal: no field tests it, and Calculate
// goes ahead with it.
std::optional<CampoRechazado> CampoQueRechazaElConfinamiento(const General& g);

// The same with every test of every field, as if each value had been typed on the screen: what
// a project made from outside the screens (a table of members) must pass.
std::optional<CampoRechazado> CampoQueRechazaLaFlexionAlEscribir(const General& g, SeccionFlexion seccion);
std::optional<CampoRechazado> CampoQueRechazaElConfinamientoAlEscribir(const General& g);

}  // namespace texalon
