// The worked examples of the guide: each example project calculated by the program's engine
// and written as rich text, its data, its result grid and the results of one cell, in the
// texts and formats the program shows.
#pragma once

#include <string>

namespace texalon::guia {

// The chapter of examples for the project files of a folder, in the order of their names.
// The decimal separator is the comma, as the guide is written for a Spanish reader.
std::string CapituloEjemplos(const std::string& carpeta);

}  // namespace texalon::guia
