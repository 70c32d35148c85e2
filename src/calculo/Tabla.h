// A table of members as a spreadsheet saves it, read one record at a time: the header row tells
// the field separator (';' with a decimal comma, ',' with a decimal point, or a tab), fields may
// be quoted as RFC 4180 says, lines end in LF or CR LF, blank lines are skipped, and the text is
// UTF-8 (with or without its byte-order mark) or, where its bytes are not UTF-8, Windows-1252,
// as a spreadsheet on a Spanish Windows saves "CSV". The reader keeps one record in memory.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace texalon::calculo {

// One record of the table: its fields as UTF-8 text, and the line of the file it starts on.
struct Registro {
    std::size_t linea = 0;
    std::vector<std::string> campos;
};

class LectorTabla {
public:
    // Reads from `entrada`, which must outlive the reader.
    explicit LectorTabla(std::istream& entrada) : entrada_(entrada) {}

    // The next record that is not a blank line, or nothing at the end of the table. The first
    // record read is the header: its fields tell the separator. `error` is set, and nothing
    // returned, for a record that no spreadsheet would write (a quote left open at the end).
    std::optional<Registro> Siguiente();

    // The field separator found in the header row; 0 before it is read.
    char Separador() const { return separador_; }
    // The decimal marks that the numbers of this table may carry: "," for ';', "." for ',',
    // either for a tab.
    std::string_view Decimales() const;
    const std::string& Error() const { return error_; }

private:
    bool LeeLinea(std::string& linea);
    void EligeSeparador(std::string_view cabecera);

    std::istream& entrada_;
    std::size_t linea_ = 0;
    bool primera_ = true;
    char separador_ = 0;
    std::string error_;
};

// A field of a cell as text in UTF-8: valid UTF-8 stays as it is; any other byte string is
// read as Windows-1252.
std::string TextoDeCelda(std::string_view bytes);

// The number that a cell writes with the decimal mark given: an optional sign, digits, one
// decimal mark and an exponent, surrounding blanks allowed. Anything else (a thousands
// separator, a unit, a word, an empty cell) is no number, and nor is a value beyond a double.
std::optional<double> NumeroDeCelda(std::string_view texto, std::string_view decimales);

}  // namespace texalon::calculo
