// What the tables of cases share: each row of a parameterized suite carries its name, and the
// case that runs it is named for it.
#pragma once

#include <string>

namespace texalon::prueba {

// The name of a row's case: its field `nombre`, which must be a valid name for GoogleTest
// (letters, digits and underscores).
struct NombreDeFila {
    template <class Informacion>
    std::string operator()(const Informacion& informacion) const
    {
        return std::string(informacion.param.nombre);
    }
};

}  // namespace texalon::prueba
