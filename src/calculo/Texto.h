// Small text helpers of the batch command, free of the machine's settings.
#pragma once

#include <charconv>
#include <string>
#include <string_view>

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

}  // namespace texalon::calculo
