#include "state/Formato.h"

#include "state/Decimales.h"
#include "state/ErrorEjecucion.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <system_error>

namespace texalon {

namespace {

[[noreturn]] void NoEsNumero() { throw ErrorEjecucion(ErrorEjecucion::kTiposNoCoinciden); }


// Significant digits a value keeps before it is rounded for display.
constexpr int kDigitosSignificativos = 15;

// Number of decimals asked by "0" or "0.00...0".
std::size_t DecimalesDelPatron(std::string_view patron)
{
    if (patron == "0") return 0;
    const bool valido =
        patron.size() > 2 && patron.substr(0, 2) == "0." && patron.find_first_not_of('0', 2) == std::string_view::npos;
    if (!valido) throw std::invalid_argument("Formato numérico no reconocido: " + std::string(patron));
    return patron.size() - 2;
}

// A value split into its 15 significant digits and the place of the point:
// value = 0.<digitos> x 10^punto.
struct Descompuesto {
    bool negativo = false;
    std::string digitos;
    long long punto = 0;
};

// to_chars gives the correctly rounded 15 digits without touching the locale.
Descompuesto Descomponer(double valor)
{
    char texto[40];
    const auto escrito =
        std::to_chars(texto, texto + sizeof texto, valor, std::chars_format::scientific, kDigitosSignificativos - 1);
    const std::string_view cifra(texto, static_cast<std::size_t>(escrito.ptr - texto));

    Descompuesto d;
    std::size_t i = 0;
    if (cifra[i] == '-') {
        d.negativo = true;
        ++i;
    }
    for (; cifra[i] != 'e'; ++i) {
        if (cifra[i] != '.') d.digitos.push_back(cifra[i]);
    }
    ++i;  // past 'e'
    if (cifra[i] == '+') ++i;
    int exponente = 0;
    std::from_chars(cifra.data() + i, cifra.data() + cifra.size(), exponente);
    d.punto = exponente + 1;
    return d;
}

// Adds one to a string of decimal digits.
void SumarUno(std::string& digitos)
{
    for (auto it = digitos.rbegin(); it != digitos.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digitos.insert(digitos.begin(), '1');
}

// The value times 10^decimales, rounded half away from zero, as digits.
std::string Escalado(const Descompuesto& d, std::size_t decimales)
{
    const long long guardar = d.punto + static_cast<long long>(decimales);
    if (guardar < 0) return "0";
    const auto n = static_cast<std::size_t>(guardar);
    if (n >= d.digitos.size()) return d.digitos + std::string(n - d.digitos.size(), '0');

    std::string escalado = n == 0 ? std::string("0") : d.digitos.substr(0, n);
    if (d.digitos[n] >= '5') SumarUno(escalado);
    return escalado;
}

}  // namespace

std::string Formato(double valor, std::string_view patron, char separador)
{
    const std::size_t decimales = DecimalesDelPatron(patron);
    if (std::isnan(valor)) return "nan";
    if (std::isinf(valor)) return valor < 0 ? "-inf" : "inf";

    const Descompuesto d = Descomponer(valor);
    std::string cifras = Escalado(d, decimales);

    // Drop leading zeros, then keep at least one integer digit.
    cifras.erase(0, std::min(cifras.find_first_not_of('0'), cifras.size()));
    const bool es_cero = cifras.empty();
    if (cifras.size() < decimales + 1) cifras.insert(0, decimales + 1 - cifras.size(), '0');

    if (decimales > 0) cifras.insert(cifras.size() - decimales, 1, separador);
    // A value that rounds to zero shows no sign.
    if (d.negativo && !es_cero) cifras.insert(0, 1, '-');
    return cifras;
}

std::string FormatoTexto(std::string_view texto, std::string_view patron)
{
    const auto lugares = static_cast<std::size_t>(std::count(patron.begin(), patron.end(), '@'));
    // UTF-8 continuation bytes (10xxxxxx) do not start a character.
    const auto caracteres = static_cast<std::size_t>(std::count_if(
        texto.begin(), texto.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
    std::string resultado;
    if (caracteres < lugares) resultado.assign(lugares - caracteres, ' ');
    resultado.append(texto);
    return resultado;
}

double ValorDeTexto(std::string_view texto, char separador)
{
    std::string numero(Recortado(texto));
    const bool negativo = !numero.empty() && numero.front() == '-';
    if (!numero.empty() && (numero.front() == '-' || numero.front() == '+')) numero.erase(0, 1);
    bool haySeparador = false;
    bool hayDigito = false;
    for (char& c : numero) {
        if (c >= '0' && c <= '9') {
            hayDigito = true;
        } else if (c == separador && !haySeparador) {
            haySeparador = true;
            c = '.';
        } else {
            NoEsNumero();
        }
    }
    if (!hayDigito) NoEsNumero();
    double valor = 0.0;
    const char* fin = numero.data() + numero.size();
    const auto [resto, error] = std::from_chars(numero.data(), fin, valor);
    if (error != std::errc() || resto != fin) NoEsNumero();
    return negativo ? -valor : valor;
}

}  // namespace texalon
