// The kinds of section that the projects hold, one vocabulary from the files to the reports.
#pragma once

#include "state/General.h"

namespace texalon {

// The section of a flexure project, numbered as line 1 of its file numbers it. The engine's
// initial strain leaves EPS0 as it was for any other number that reaches it.
enum class SeccionFlexion : Entero {
    Rectangular = 1,
    T = 2,
};

// The shape of a column to confine, numbered as SECCION numbers it in the state and the file.
enum class FormaPilar : Entero {
    Circular = 1,
    Cuadrada = 2,
    Rectangular = 3,
};

// The shape of the project in the state.
constexpr FormaPilar FormaDe(const General& g) { return static_cast<FormaPilar>(g.SECCION); }
constexpr Entero NumeroDe(FormaPilar forma) { return static_cast<Entero>(forma); }

// The confinement screen's list CO_SECCION holds the shapes in their order, from row 0. No row
// picked (-1) gives a number that is no shape.
constexpr int FilaDeLista(FormaPilar forma) { return static_cast<int>(forma) - 1; }
constexpr FormaPilar FormaDeFila(int fila) { return static_cast<FormaPilar>(fila + 1); }

}  // namespace texalon
