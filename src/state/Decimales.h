// Reading numbers typed in the fields. The user may write the decimal
// separator as a period or a comma whatever the machine's regional settings.
#pragma once

#include <string_view>

namespace texalon {

// The text without the blanks (spaces, tabs) before and after it: every caller of Decimales
// passes the text so.
std::string_view Recortado(std::string_view texto);

// Value of a field's text. The text is cut to the length it has once its
// leading and trailing blanks are trimmed, each comma becomes a period and the result is read as a
// plain number: blanks are skipped anywhere, an optional sign, digits with at
// most one period, an optional exponent E/e/D/d; reading stops at the first
// character that cannot belong to the number, and text without a number
// reads 0. A value too large for a double gives +/-HUGE_VAL; callers test the
// text with EsNumerico first, which refuses such text. Underflow gives 0.
// On purpose: the cut to the trimmed length is taken from the untrimmed text.
double Decimales(std::string_view texto);

// The plain number reading that Decimales ends with, with the period as the
// only decimal separator: the project files read their values with it.
double LecturaSimple(std::string_view texto);

// True when the text is a number written with '.' or ',' as decimal separator:
// optional blanks (space, tab) around it, an optional sign, digits and
// separators (at least one digit, never two separators together), and an
// optional exponent [eEdD][+-]digits. Text whose Decimales value would not be
// finite (e.g. "1e999") is refused too.
bool EsNumerico(std::string_view texto);

}  // namespace texalon
