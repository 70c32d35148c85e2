// The results of a calculated file as the screen shows them, in plain text.
#pragma once

#include "calculo/Proyecto.h"

#include <string>

namespace texalon::calculo {

// The file and its section kind, the result grid (one column per sheet type, one row per
// number of layers) in the screen's formats with `separador` as decimal separator, the verdict
// and the values of the section. Every line ends in '\n'. Only for a file that succeeded.
std::string TextoResultados(const CalculoFichero& calculo, char separador);

}  // namespace texalon::calculo
