// A small reader of JSON text for the tests: it reads back what the command writes, so that
// the tests compare values and not the spelling of the numbers.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace texalon::prueba {

struct ValorJson {
    enum class Clase { Nulo, Logico, Numero, Cadena, Lista, Objeto };

    Clase clase = Clase::Nulo;
    bool logico = false;
    double numero = 0.0;
    std::string cadena;
    std::vector<ValorJson> lista;
    std::vector<std::pair<std::string, ValorJson>> miembros;  // in the order written

    bool Tiene(std::string_view nombre) const;
    // The member of that name; throws std::out_of_range when there is none.
    const ValorJson& operator[](std::string_view nombre) const;
    // The names of the members, in order.
    std::vector<std::string> Nombres() const;
};

// Reads one JSON value that fills the whole text, blanks around it aside; throws
// std::runtime_error on anything that is not well-formed JSON.
ValorJson LeeJson(std::string_view texto);

}  // namespace texalon::prueba
