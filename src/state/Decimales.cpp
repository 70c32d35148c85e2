#include "state/Decimales.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <string>
#include <system_error>

namespace texalon {

namespace {

bool EsDigito(char c) { return c >= '0' && c <= '9'; }

// Blanks that may surround a field's text.
bool EsBlancoBorde(char c) { return c == ' ' || c == '\t'; }

// Blanks the plain number reading skips wherever they appear.
bool EsBlancoLectura(char c) { return c == ' ' || c == '\t' || c == '\n'; }

bool EsExponente(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }

// Length of the text once leading and trailing blanks are trimmed.
std::size_t LargoRecortado(std::string_view texto) { return Recortado(texto).size(); }

// Walks a text skipping the blanks the plain reading ignores.
class Lector {
public:
    explicit Lector(std::string_view texto) : texto_(texto) {}

    // Next meaningful character, or '\0' at the end.
    char Mira()
    {
        while (pos_ < texto_.size() && EsBlancoLectura(texto_[pos_]))
            ++pos_;
        return pos_ < texto_.size() ? texto_[pos_] : '\0';
    }
    void Avanza() { ++pos_; }

private:
    std::string_view texto_;
    std::size_t pos_ = 0;
};

// Exponents are kept below this bound so that absurdly long exponent digits
// cannot overflow; any double is far inside it.
constexpr long long kTopeExponente = 1000000000LL;

}  // namespace

// The classic plain number reading (BASIC Val) with the period as the only
// decimal separator. The digits found are gathered into a clean text and
// converted with from_chars, so the result is correctly rounded.
double LecturaSimple(std::string_view texto)
{
    Lector lector(texto);
    bool negativo = false;
    if (lector.Mira() == '+' || lector.Mira() == '-') {
        negativo = lector.Mira() == '-';
        lector.Avanza();
    }

    std::string mantisa;  // digits only, the point is tracked apart
    long long enteros = 0;  // digits before the point
    bool hay_punto = false;
    for (char c = lector.Mira(); EsDigito(c) || (c == '.' && !hay_punto); c = lector.Mira()) {
        if (c == '.') {
            hay_punto = true;
        } else {
            mantisa.push_back(c);
            if (!hay_punto) ++enteros;
        }
        lector.Avanza();
    }
    if (mantisa.empty()) return 0.0;

    long long exponente = 0;
    if (EsExponente(lector.Mira())) {
        lector.Avanza();
        bool exp_negativo = false;
        if (lector.Mira() == '+' || lector.Mira() == '-') {
            exp_negativo = lector.Mira() == '-';
            lector.Avanza();
        }
        for (char c = lector.Mira(); EsDigito(c); c = lector.Mira()) {
            if (exponente < kTopeExponente) exponente = exponente * 10 + (c - '0');
            lector.Avanza();
        }
        if (exp_negativo) exponente = -exponente;
    }

    // Leading zeros say nothing; without other digits the value is zero.
    const std::size_t primero = mantisa.find_first_not_of('0');
    if (primero == std::string::npos) return 0.0;

    // Value = 0.<significativos> x 10^escala
    const std::string significativos = mantisa.substr(primero);
    const long long escala = exponente + enteros - static_cast<long long>(primero);

    char escala_txt[24];
    const auto escrito = std::to_chars(escala_txt, escala_txt + sizeof escala_txt, escala);
    const std::string limpio = "0." + significativos + "e" + std::string(escala_txt, escrito.ptr);
    double valor = 0.0;
    const auto [fin, error] = std::from_chars(limpio.data(), limpio.data() + limpio.size(), valor);
    (void)fin;
    if (error == std::errc::result_out_of_range) {
        // A positive scale means the number is too large; otherwise too small.
        valor = escala > 0 ? HUGE_VAL : 0.0;
    }
    return negativo ? -valor : valor;
}

std::string_view Recortado(std::string_view texto)
{
    std::size_t ini = 0;
    std::size_t fin = texto.size();
    while (ini < fin && EsBlancoBorde(texto[ini]))
        ++ini;
    while (fin > ini && EsBlancoBorde(texto[fin - 1]))
        --fin;
    return texto.substr(ini, fin - ini);
}

double Decimales(std::string_view texto)
{
    const std::string_view cortado = texto.substr(0, LargoRecortado(texto));
    std::string con_punto(cortado);
    for (char& c : con_punto) {
        if (c == ',') c = '.';
    }
    return LecturaSimple(con_punto);
}

bool EsNumerico(std::string_view texto)
{
    std::size_t i = 0;
    std::size_t fin = texto.size();
    while (i < fin && EsBlancoBorde(texto[i]))
        ++i;
    while (fin > i && EsBlancoBorde(texto[fin - 1]))
        --fin;

    if (i < fin && (texto[i] == '+' || texto[i] == '-')) ++i;

    // Mantissa: digits and separators, never two separators together.
    bool hay_digito = false;
    bool previo_separador = false;
    for (; i < fin; ++i) {
        const char c = texto[i];
        if (EsDigito(c)) {
            hay_digito = true;
            previo_separador = false;
        } else if (c == '.' || c == ',') {
            if (previo_separador) return false;
            previo_separador = true;
        } else {
            break;
        }
    }
    if (!hay_digito) return false;

    if (i < fin && EsExponente(texto[i])) {
        ++i;
        if (i < fin && (texto[i] == '+' || texto[i] == '-')) ++i;
        const std::size_t inicio_digitos = i;
        while (i < fin && EsDigito(texto[i]))
            ++i;
        if (i == inicio_digitos) return false;
    }
    if (i != fin) return false;

    // A number the field cannot hold is refused here rather than later. The
    // callers convert the trimmed text, so that is the value tested.
    std::size_t desde = 0;
    while (desde < texto.size() && EsBlancoBorde(texto[desde]))
        ++desde;
    return std::isfinite(Decimales(texto.substr(desde, fin - desde)));
}

}  // namespace texalon
