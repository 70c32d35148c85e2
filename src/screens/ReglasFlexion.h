// The input fields of the two flexure screens, in the order in which they are filled at load,
// each with its tests and messages.
#pragma once

#include "screens/ReglasCampo.h"

namespace texalon {

// The fields of FM_FLEXION (rectangular) or FM_FLEXIONT (T). The T screen has two fields more
// and differs in the tests of the widths and depths.
const std::vector<ReglaCampo>& ReglasFlexion(bool seccionT);

// The rows of the three lists, as text in the field's format: rows 0 to 5 of CO_FCK, 0 and 1
// of CO_FYK, 0 to 4 of CO_ANCHOR. The next row is left for another value.
const std::vector<double>& FilasLista(const std::string& control);

}  // namespace texalon
