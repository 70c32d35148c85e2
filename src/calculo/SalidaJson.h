// The data and results of a file as one JSON object, for other programs to read.
#pragma once

#include "calculo/Diagrama.h"
#include "calculo/Proyecto.h"

#include <string>
#include <string_view>

namespace texalon::calculo {

// The object of one file, on one line without its line end: "fichero", "tipo" when known, then
// either "error" (the messages joined by line ends) or every input and result of the state that
// applies to the file's kind by its field name, and "veredicto" as the label shows it. The
// result arrays are lists by type of lists by number of layers. Numbers carry 17 significant
// digits and the period, whatever the machine's settings; a value that is not finite is null.
// A diagram drawn for the file adds "lista": the procedure's name as "diagrama", then NLISTA,
// LISTA (one list of the 10 fields for each element) and TEXTOS, as the procedure left them.
std::string ObjetoJson(const CalculoFichero& calculo, const ListaDiagrama* lista = nullptr);

// A JSON string with its quotes. UTF-8 text passes as it is; a byte that is no part of a
// well-formed UTF-8 character becomes U+FFFD, so that the output is always valid JSON.
std::string CadenaJson(std::string_view texto);

}  // namespace texalon::calculo
