// The three fields of the safety coefficient dialog, FM_COEF, without the widgets.
#pragma once

#include "files/ReglasCampo.h"

#include <vector>

namespace texalon {

// TX_GC, TX_GS and TX_GR, top to bottom: their messages, their lower bound of 1 and the start
// value that Restablecer writes back. The dialog runs its own pattern on them, which touches
// no state before Aceptar; Calculate reads them here to refuse a coefficient that the dialog
// would refuse. No upper bound: any coefficient from 1 up is taken.
const std::vector<ReglaCampo>& ReglasCoeficientes();

}  // namespace texalon
