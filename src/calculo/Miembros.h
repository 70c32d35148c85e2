// A building's members from one table: each row a rectangular or T beam or a column, with the
// inputs of its project by the names that --json uses. A row is checked as a project file that
// the program writes and then reads must be, and as its screen's fields and the coefficients'
// dialog check what is typed, so that an accepted row opens on its screen with the same values;
// then it is calculated as the Calculate button of its screen does.
#pragma once

#include "calculo/Proyecto.h"
#include "calculo/Tabla.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace texalon::calculo {

// The columns of the table found in its header row: the position of each known column. A
// header that cannot be used gives its reason in `error`.
struct CabeceraTabla {
    std::vector<std::string> columnas;  // the canonical name of each field of a row, in order
    std::string error;
};

// Reads the header row: names in any order, case and surrounding blanks ignored. Refused: an
// unknown name, a name given twice, a missing "elemento" or "tipo".
CabeceraTabla LeeCabecera(const Registro& cabecera);

// One row of the table made a project and calculated; a refused row carries its messages, each
// naming the column and the value as written.
CalculoFichero CalculaFila(const std::string& tabla, const CabeceraTabla& cabecera, const Registro& fila,
                           std::string_view decimales);

// A member's name made a file name that every system takes: the characters that Windows or a
// Unix system refuses in a name ('/', '\\', ':', '*', '?', '"', '<', '>', '|' and the control
// characters) become '_', as do the blanks and dots that Windows drops at its end; a name that
// Windows keeps for a device (CON, NUL, COM1...) gets a '_' before it; an empty name is "_".
std::string NombreDeFichero(std::string_view elemento);

// The table that --plantilla writes: the header of that kind and one row of a new project's
// values, with ';' and the decimal comma or ',' and the decimal point as `separadorDecimal`
// says; CR LF line ends and the UTF-8 byte-order mark, as the command's CSV output. Nothing for
// a kind that is not one of the three.
std::optional<std::string> Plantilla(std::string_view tipo, char separadorDecimal);

}  // namespace texalon::calculo
