// The small beam full of steel that both the full calculation's tests and the hand-worked
// ultimate analysis use: 0.2 × 0.2 m, 40 cm² of bottom steel, concrete of 25, a sheet 0.05 m
// wide and 80 mkN on the section when the sheet goes on. The concrete governs (pivot B) and
// sheet type L, one layer, gives the greatest moment.
#pragma once

#include "state/General.h"

#include <tuple>

namespace texalon {

inline void HazVigaPequenaLlenaDeAcero(General& g)
{
    std::tie(g.ANCHO, g.CANTO, g.ASI, g.FCK, g.ANCHOR, g.MCP) = std::tuple(0.2, 0.2, 40.0, 25.0, 0.05, 80.0);
}

}  // namespace texalon
