#include "calculo/SalidaCsv.h"

#include "calculo/Texto.h"

#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "state/Formato.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace texalon::calculo {

namespace {

constexpr std::string_view kFinDeFila = "\r\n";
constexpr std::string_view kMarcaOrden = "\xEF\xBB\xBF";  // U+FEFF in UTF-8

// The columns, in their order.
enum Columna : std::size_t {
    kFichero,
    kTipo,
    kRefuerzo,
    kCapas,
    kResultado,
    kAlcanza,
    kError,
    kElemento,
    kSolicitado,
    kSinRefuerzo,
    kVeredicto,
    kColumnas
};
using Fila = std::array<std::string, kColumnas>;

constexpr std::array<std::string_view, kColumnas> kCabecera = {
    "fichero", "tipo", "refuerzo", "capas", "resultado", "alcanza", "error", "elemento", "solicitado", "sin_refuerzo",
    "veredicto"};

template <typename Campos>
std::string Linea(const Campos& campos, char separadorCampos)
{
    std::string linea;
    for (std::size_t i = 0; i < campos.size(); ++i) {
        if (i > 0) linea += separadorCampos;
        linea += CampoCsv(campos[i], separadorCampos);
    }
    return linea.append(kFinDeFila);
}

// The cell (type, layers) of the file's grid, the same as its screen builds it.
CeldaResultado Celda(const CalculoFichero& calculo, int tipo, int capas, char separadorDecimal)
{
    if (calculo.clase == ClaseFichero::Flexion) return CeldaFlexion(calculo.g, tipo, capas, separadorDecimal);
    return CeldaConfina(calculo.g, tipo, capas, separadorDecimal);
}

// The kind of the file as far as it is known: the extension tells a confinement file, but a
// flexure file tells rectangular or T only once it has been read whole; a member's row tells it
// in its column "tipo".
std::optional<std::string_view> Tipo(const CalculoFichero& calculo)
{
    if (calculo.clase == ClaseFichero::Flexion && !calculo.leido && calculo.fila == 0) return std::nullopt;
    return NombreTipo(calculo);
}

// What the member must reach, as its screen's field shows it (the design moment or the increase
// of strength), the moment of the section without the sheet as TX_MUSR shows it, and the
// verdict's text: what a row needs to read on its own.
void DatosDeLaSeccion(const CalculoFichero& calculo, char separadorDecimal, Fila& fila)
{
    const General& g = calculo.g;
    if (calculo.clase == ClaseFichero::Flexion) {
        fila[kSolicitado] = Formato(g.MD, "0.00", separadorDecimal);
        fila[kSinRefuerzo] = ResultadosFlexion(g, 1, 1, separadorDecimal).MUSR;
    } else {
        fila[kSolicitado] = Formato(g.INCR, "0.00", separadorDecimal);
    }
    if (calculo.veredicto != Veredicto::Oculto) fila[kVeredicto] = std::string(Recorta(TextoVeredicto(calculo.veredicto)));
}

}  // namespace

char SeparadorCsv(char separadorDecimal) { return separadorDecimal == ',' ? ';' : ','; }

std::string CampoCsv(std::string_view texto, char separadorCampos)
{
    const std::string valido = Utf8Valido(texto);
    const bool cita = std::any_of(valido.begin(), valido.end(), [separadorCampos](char c) {
        return c == separadorCampos || c == '"' || c == '\r' || c == '\n';
    });
    if (!cita) return valido;
    std::string campo = "\"";
    for (const char c : valido) {
        if (c == '"') campo += '"';
        campo += c;
    }
    return campo + '"';
}

std::string CabeceraCsv(char separadorDecimal)
{
    return std::string(kMarcaOrden) + Linea(kCabecera, SeparadorCsv(separadorDecimal));
}

std::string FilasCsv(const CalculoFichero& calculo, char separadorDecimal)
{
    const char separadorCampos = SeparadorCsv(separadorDecimal);
    Fila fila;
    fila[kFichero] = calculo.fichero;
    fila[kElemento] = calculo.elemento;
    if (const auto tipo = Tipo(calculo)) fila[kTipo] = *tipo;
    if (!calculo.Correcto()) {
        fila[kError] = Unidos(calculo.errores);
        return Linea(fila, separadorCampos);
    }
    const General& g = calculo.g;
    DatosDeLaSeccion(calculo, separadorDecimal, fila);
    std::string filas;
    for (int t = 1; t <= g.NTIPOS; ++t) {
        fila[kRefuerzo] = g.TIPOS(t);
        for (int n = 1; n <= g.MAXCAPAS; ++n) {
            const CeldaResultado celda = Celda(calculo, t, n, separadorDecimal);
            fila[kCapas] = TextoEntero(n);
            fila[kResultado] = celda.texto;
            fila[kAlcanza] = celda.cumple ? "sí" : "no";
            filas += Linea(fila, separadorCampos);
        }
    }
    return filas;
}

std::string CabeceraResumen(char separadorDecimal)
{
    General g;
    ValoresIniciales(g);
    std::vector<std::string> cabecera = {"elemento", "tipo", "solicitado", "sin_refuerzo"};
    for (int t = 1; t <= g.NTIPOS; ++t)
        cabecera.push_back(g.TIPOS(t));
    cabecera.insert(cabecera.end(), {"veredicto", "error"});
    return std::string(kMarcaOrden) + Linea(cabecera, SeparadorCsv(separadorDecimal));
}

std::string FilaResumen(const CalculoFichero& calculo, char separadorDecimal)
{
    return Linea(CeldasResumen(calculo, separadorDecimal), SeparadorCsv(separadorDecimal));
}

std::vector<std::string> CeldasResumen(const CalculoFichero& calculo, char separadorDecimal)
{
    Fila datos;
    if (calculo.Correcto()) DatosDeLaSeccion(calculo, separadorDecimal, datos);
    const General& g = calculo.g;
    std::vector<std::string> fila = {calculo.fila != 0 ? calculo.elemento : calculo.fichero,
                                     std::string(Tipo(calculo).value_or("")), datos[kSolicitado], datos[kSinRefuerzo]};
    for (int t = 1; t <= g.NTIPOS; ++t) {
        std::string capas;
        for (int n = 1; calculo.Correcto() && n <= g.MAXCAPAS && capas.empty(); ++n)
            if (Celda(calculo, t, n, separadorDecimal).cumple) capas = TextoEntero(n);
        fila.push_back(capas);
    }
    fila.insert(fila.end(), {datos[kVeredicto], Unidos(calculo.errores)});
    return fila;
}

}  // namespace texalon::calculo
