// Projects and expectations that the tests of the state and of the project files share.
#pragma once

#include "state/General.h"

namespace texalon::prueba {

// A state whose project values all differ from the defaults, to see what a procedure changes.
General EstadoAjeno();

// The flexure start values: those of New and of a refused or failed flexure file.
void EsperaValoresFlexion(const General& g);
// The confinement defaults of a refused confinement file.
void EsperaValoresConfinamiento(const General& g);

}  // namespace texalon::prueba
