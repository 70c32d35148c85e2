// The input fields of the confinement screen, FM_CONFINA, and the change of its section kind,
// without the widgets.
#pragma once

#include "files/ReglasCampo.h"

#include <optional>
#include <string>
#include <vector>

namespace texalon {

// The numeric fields in the order of the screen: TX_DIAM, TX_LADOMENOR, TX_INCR, TX_NCP, CO_FCK.
const std::vector<ReglaCampo>& ReglasConfina();

// Whether the field is on the screen for the section of the state: "Lado menor" only for a
// rectangular column.
bool CampoConfinaEnPantalla(const ReglaCampo& regla, const General& g);

// The rows of CO_SECCION, one a shape in the order of FormaPilar.
const std::vector<std::string>& FilasSeccion();

// The ratio of the long side to the short one as the user reckons it from the sides typed:
// their binary quotient may fall a hair short (0.6 / 0.4 gives 1.4999999999999998), so it is
// taken to nine decimals, and 0.6 by 0.4 is a ratio of 1.5.
double RelacionLados(double mayor, double menor);

// ALFAN for a row of CO_SECCION: 1 circular, 1 - 2/3 square, 1 - (2/3) DIAM / LADOMENOR
// rectangular, with the sides of the state. With no row selected (-1) ALFAN keeps its value.
std::optional<double> CoeficienteFormaDeFila(int fila, const General& g);

// What a change of section asks of the screen.
struct CambioDeForma {
    bool ladoMenorActivo = false;  // the "Lado menor" row is available (rectangular only)
    std::string mensaje;  // a refusal of the sides to show, the focus then to TX_LADOMENOR; "" none
};

// The steps of a change of section that act on the state: SECCION and ALFAN from the row, the
// sides of a rectangle tested (a refusal resets nothing and the section stays rectangular),
// and the project marked as changed.
CambioDeForma CambiaSeccion(General& g, int fila);

}  // namespace texalon
