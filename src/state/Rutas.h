// The system's paths from the program's texts, which are UTF-8. Windows takes its paths in
// UTF-16, where a plain std::string would be read in the ANSI code page and a name with an
// accent or an "ñ" would name another file; Linux takes the same bytes as they are.
#pragma once

#include <filesystem>
#include <string>

namespace texalon {

inline std::filesystem::path RutaUtf8(const std::string& texto)
{
    return std::filesystem::path(std::u8string(texto.begin(), texto.end()));
}

// The path as a text, its folders joined by '/' on every system, as the messages name it.
inline std::string TextoUtf8(const std::filesystem::path& ruta)
{
    const std::u8string texto = ruta.generic_u8string();
    return std::string(texto.begin(), texto.end());
}

}  // namespace texalon
