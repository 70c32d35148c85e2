// The results of many files as one table for a spreadsheet: one row for each file, sheet type
// and number of layers, with the cell of the result grid as the screen shows it.
#pragma once

#include "calculo/Proyecto.h"

#include <string>
#include <string_view>
#include <vector>

namespace texalon::calculo {

// The field separator that a spreadsheet expects on a machine with the decimal separator
// given: ';' beside a decimal comma, ',' beside a decimal period.
char SeparadorCsv(char separadorDecimal);

// One field as RFC 4180 writes it: within double quotes, its own doubled, when it holds the
// field separator, a double quote, CR or LF; as it stands otherwise. A byte that is no part of a
// well-formed UTF-8 character becomes U+FFFD.
std::string CampoCsv(std::string_view texto, char separadorCampos);

// The start of the table: the UTF-8 byte-order mark, so that a spreadsheet reads the accents,
// and the header row fichero, tipo, refuerzo, capas, resultado, alcanza, error, elemento,
// solicitado, sin_refuerzo, veredicto.
std::string CabeceraCsv(char separadorDecimal);

// The rows of one file, each ended by CR LF. A calculated file has one row for each sheet type
// and number of layers, in the grid's order (type 1 with 1 to MAXCAPAS layers first): the
// type's name, the number of layers, the cell's text as the screen shows it with the decimal
// separator given, and "sí" or "no" as the cell is yellow or not; then the member's name (for a
// row of a table), what the section must reach (MD or INCR as its field shows it), the moment
// without the sheet as TX_MUSR shows it (flexure only) and the verdict's text (empty when none
// shows), so that each row reads on its own. A file that failed has one row: its name, its kind
// when known (a flexure file's only once read whole), its messages joined by line ends and, for
// a member, its name.
std::string FilasCsv(const CalculoFichero& calculo, char separadorDecimal);

// The header of --resumen: the UTF-8 byte-order mark, then elemento, tipo, solicitado,
// sin_refuerzo, one column for each sheet type by its name, veredicto and error.
std::string CabeceraResumen(char separadorDecimal);

// One calculation in a row of --resumen: the member (or the file's name), its kind, what it
// must reach and the moment without the sheet as in --csv, for each sheet type the fewest
// layers whose cell reaches the requirement (the first yellow cell of its column on the screen)
// or nothing, the verdict's text and, for a failure, its messages.
std::string FilaResumen(const CalculoFichero& calculo, char separadorDecimal);

// The fields of that row, before they are joined.
std::vector<std::string> CeldasResumen(const CalculoFichero& calculo, char separadorDecimal);

}  // namespace texalon::calculo
