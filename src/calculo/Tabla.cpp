#include "calculo/Tabla.h"

#include "calculo/Texto.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace texalon::calculo {

namespace {

constexpr std::string_view kMarcaOrden = "\xEF\xBB\xBF";

// The code points of Windows-1252 from 0x80 to 0x9F; 0 where the code page has none. From 0xA0
// on it is Latin-1, the code point of the byte itself.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AnadeUtf8(std::string& texto, std::uint32_t codigo)
{
    if (codigo < 0x80) {
        texto += static_cast<char>(codigo);
    } else if (codigo < 0x800) {
        texto += static_cast<char>(0xC0 | (codigo >> 6));
        texto += static_cast<char>(0x80 | (codigo & 0x3F));
    } else {
        texto += static_cast<char>(0xE0 | (codigo >> 12));
        texto += static_cast<char>(0x80 | ((codigo >> 6) & 0x3F));
        texto += static_cast<char>(0x80 | (codigo & 0x3F));
    }
}

bool EsUtf8(std::string_view texto)
{
    bool valido = true;
    RecorreUtf8(texto, [&valido](std::string_view caracter) { valido = valido && !caracter.empty(); });
    return valido;
}

// The fields of one record, split at the separator outside quotes. A quoted field loses its
// quotes and its doubled quotes become one; what follows a closing quote up to the separator is
// kept, as spreadsheets keep it.
std::vector<std::string> Campos(std::string_view registro, char separador)
{
    std::vector<std::string> campos(1);
    bool entreComillas = false;
    bool alPrincipio = true;
    for (std::size_t i = 0; i < registro.size(); ++i) {
        const char c = registro[i];
        if (entreComillas) {
            if (c != '"') {
                campos.back() += c;
            } else if (i + 1 < registro.size() && registro[i + 1] == '"') {
                campos.back() += '"';
                ++i;
            } else {
                entreComillas = false;
            }
        } else if (c == separador) {
            campos.emplace_back();
            alPrincipio = true;
            continue;
        } else if (c == '"' && alPrincipio) {
            entreComillas = true;
        } else {
            campos.back() += c;
        }
        alPrincipio = false;
    }
    for (std::string& campo : campos)
        campo = TextoDeCelda(campo);
    return campos;
}

// Whether the quotes of the text so far leave a field open.
bool ComillasAbiertas(std::string_view texto)
{
    return std::count(texto.begin(), texto.end(), '"') % 2 != 0;
}

bool TodosVacios(const std::vector<std::string>& campos)
{
    return std::all_of(campos.begin(), campos.end(), [](const std::string& campo) { return campo.empty(); });
}

}  // namespace

std::string TextoDeCelda(std::string_view bytes)
{
    if (EsUtf8(bytes)) return std::string(bytes);
    std::string texto;
    texto.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        std::uint32_t codigo = byte;
        if (byte >= 0x80 && byte < 0xA0) codigo = kWindows1252[byte - 0x80U] != 0 ? kWindows1252[byte - 0x80U] : 0xFFFD;
        AnadeUtf8(texto, codigo);
    }
    return texto;
}

std::optional<double> NumeroDeCelda(std::string_view texto, std::string_view decimales)
{
    std::string_view numero = texto;
    while (!numero.empty() && (numero.front() == ' ' || numero.front() == '\t')) numero.remove_prefix(1);
    while (!numero.empty() && (numero.back() == ' ' || numero.back() == '\t')) numero.remove_suffix(1);
    if (numero.empty()) return std::nullopt;
    std::string llano;
    bool marca = false;
    for (std::size_t i = 0; i < numero.size(); ++i) {
        const char c = numero[i];
        const bool signo = (c == '+' || c == '-') && (i == 0 || numero[i - 1] == 'e' || numero[i - 1] == 'E');
        if (decimales.find(c) != std::string_view::npos) {
            if (marca) return std::nullopt;  // a second mark is a thousands separator
            marca = true;
            llano += '.';
        } else if ((c >= '0' && c <= '9') || c == 'e' || c == 'E' || signo) {
            // from_chars takes no leading '+'.
            if (!(c == '+' && i == 0)) llano += c;
        } else {
            return std::nullopt;
        }
    }
    double valor = 0.0;
    const char* fin = llano.data() + llano.size();
    const auto [resto, error] = std::from_chars(llano.data(), fin, valor);
    if (error != std::errc() || resto != fin || !std::isfinite(valor)) return std::nullopt;
    return valor;
}

std::string_view LectorTabla::Decimales() const
{
    if (separador_ == ';') return ",";
    if (separador_ == ',') return ".";
    return ",.";
}

bool LectorTabla::LeeLinea(std::string& linea)
{
    if (!std::getline(entrada_, linea)) return false;
    ++linea_;
    if (!linea.empty() && linea.back() == '\r') linea.pop_back();
    return true;
}

// ';' where the header has one, then the tab, then ','. Column names never hold any of them.
void LectorTabla::EligeSeparador(std::string_view cabecera)
{
    for (const char candidato : {';', '\t', ','})
        if (cabecera.find(candidato) != std::string_view::npos) {
            separador_ = candidato;
            return;
        }
    separador_ = ',';
}

std::optional<Registro> LectorTabla::Siguiente()
{
    std::string linea;
    while (LeeLinea(linea)) {
        Registro registro;
        registro.linea = linea_;
        if (primera_ && linea.compare(0, kMarcaOrden.size(), kMarcaOrden) == 0) linea.erase(0, kMarcaOrden.size());
        if (linea.empty()) continue;
        // A quoted field may hold line ends: the record goes on over the next lines.
        std::string texto = linea;
        while (ComillasAbiertas(texto)) {
            if (!LeeLinea(linea)) {
                error_ = "unas comillas abiertas en la línea " + TextoEntero(static_cast<int>(registro.linea)) +
                         " no se cierran.";
                return std::nullopt;
            }
            texto += '\n';
            texto += linea;
        }
        if (primera_) {
            EligeSeparador(texto);
            primera_ = false;
        }
        registro.campos = Campos(texto, separador_);
        if (TodosVacios(registro.campos)) continue;
        return registro;
    }
    return std::nullopt;
}

}  // namespace texalon::calculo
