// The catalogue of TEXALON sheets and the rule for their design strain.
#pragma once

#include "state/General.h"

#include <string_view>

namespace texalon {

// Columns of a CATALOGO row.
constexpr int kEspesor = 1;  // thickness of one layer, mm
constexpr int kModulo = 2;  // Young's modulus, N/mm²
constexpr int kEpsu = 3;  // ultimate strain

// The catalogue size: three sheet types, one to five layers.
constexpr Entero kNumeroTipos = 3;
constexpr Entero kMaximoCapas = 5;

// The short label of a type in the charts: "L", "H" or "X".
std::string_view EtiquetaTipo(int tipo);

// Fixes NTIPOS and MAXCAPAS and allocates and fills TIPOS, CATALOGO and COLORES.
void CargaCatalogo(General& g);

// Copies the catalogue row of a type to ESPESOR, E and EPSU.
void CopiaTipo(General& g, int tipo);

// Fills KM and EPSD (1..MAXCAPAS) for the type in hand (ESPESOR, E, EPSU) and GR: the more
// layers, the stiffer the bonded package and the earlier it debonds, so the usable strain falls.
void DeformacionCalculo(General& g);

}  // namespace texalon
