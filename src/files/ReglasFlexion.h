// The input fields of the two flexure screens, in the order in which they are filled at load,
// each with its tests and messages.
#pragma once

#include "files/ReglasCampo.h"
#include "state/TiposSeccion.h"

namespace texalon {

// The fields of FM_FLEXION (rectangular) or FM_FLEXIONT (T). The T screen has two fields more
// and differs in the tests of the widths and depths.
const std::vector<ReglaCampo>& ReglasFlexion(SeccionFlexion seccion);

}  // namespace texalon
