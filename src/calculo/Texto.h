// Small text helpers of the batch command, free of the machine's settings.
#pragma once

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace texalon::calculo {

// The text without the spaces around it, as the classic Trim leaves it.
inline std::string_view Recorta(std::string_view texto)
{
    const std::size_t inicio = texto.find_first_not_of(' ');
    if (inicio == std::string_view::npos) return {};
    return texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
}

// A whole number in plain decimal digits.
inline std::string TextoEntero(int numero)
{
    char cifras[16];
    const auto escrito = std::to_chars(cifras, cifras + sizeof cifras, numero);
    return std::string(cifras, escrito.ptr);
}

// The messages of a failure as one text, parted by line ends.
std::string Unidos(const std::vector<std::string>& mensajes);

// The length of the well-formed UTF-8 character at the start of the text, 0 if there is none:
// overlong forms, surrogates and code points above U+10FFFF are not well formed.
std::size_t CaracterUtf8(std::string_view texto);

// Calls `caracter` with each well-formed UTF-8 character of the text in turn, and with an empty
// view for each byte that is no part of one.
template <typename Funcion>
void RecorreUtf8(std::string_view texto, Funcion caracter)
{
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t largo = CaracterUtf8(texto.substr(i));
        caracter(texto.substr(i, largo));
        i += largo == 0 ? 1 : largo;
    }
}

// The text with each byte that is no part of a well-formed UTF-8 character replaced by U+FFFD,
// so that what the command writes as UTF-8 is UTF-8 whatever the names it was given.
std::string Utf8Valido(std::string_view texto);

}  // namespace texalon::calculo
