// Projects and expectations that the tests of the state and of the project files share.
#pragma once

#include "state/General.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace texalon::prueba {

// A state whose project values all differ from the defaults, to see what a procedure changes.
General EstadoAjeno();

// The flexure start values: those of New and of a refused or failed flexure file.
void EsperaValoresFlexion(const General& g);
// The confinement defaults of a refused confinement file.
void EsperaValoresConfinamiento(const General& g);

// The value of a field of the state of a project, named as in the code: "GC", "ANCHO",
// "SECCION"... A name that is not a field is a failure of the test.
double Campo(const General& g, std::string_view nombre);
// Each named field of g with the value that goes with it, a failure named by its field.
void EsperaCampos(const General& g, std::initializer_list<std::pair<std::string_view, double>> valores);
// Each named field of g as it is in `otro`: what a procedure must leave alone, or copy.
void EsperaMismosCampos(const General& g, const General& otro, std::initializer_list<std::string_view> campos);

}  // namespace texalon::prueba
