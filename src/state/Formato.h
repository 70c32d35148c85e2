// Number and text formats used when results are shown or written to reports.
#pragma once

#include <string>
#include <string_view>

namespace texalon {

// Writes a value with the pattern "0" or "0." followed by k zeros: at least
// one integer digit, exactly k decimals, no thousands separator, and
// `separador` as decimal separator. The value is first taken to 15 significant
// digits and then rounded half away from zero in decimal, so 2.675 with "0.00"
// gives 2.68. A negative value that rounds to zero prints without a sign.
// Non-finite values give "inf", "-inf" or "nan" (they never reach a format in
// the program). Any other pattern throws std::invalid_argument.
std::string Formato(double valor, std::string_view patron, char separador);

// Right-aligns a text in as many places as the pattern has '@', padding with
// blanks on the left; a longer text is returned whole. Characters are counted
// as UTF-8 code points.
std::string FormatoTexto(std::string_view texto, std::string_view patron);

// The number that a text in one of those formats shows, written with `separador` as its decimal
// separator: blanks around it, an optional sign, digits and at most one separator. Anything
// else ("---" on a cell without a value) is the run-time type error. So the diagrams and the
// reports read the numbers of the result fields from the texts the screen shows.
double ValorDeTexto(std::string_view texto, char separador);

}  // namespace texalon
