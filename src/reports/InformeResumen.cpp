#include "reports/Imprimir.h"
#include "reports/Informes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

namespace texalon {

namespace {

constexpr char kTitulo[] = "RESUMEN DE LOS ELEMENTOS";
constexpr double kTamanoTabla = 6.0;  // points: eight columns across the width of A4
constexpr double kAltoFila = 0.45;  // cm, a row of one line
constexpr double kAltoLinea = 0.3;  // cm, each further line of a row
constexpr double kTamanoTexto = 10.0;  // points, the reports' own size, back after the table
constexpr double kHolgura = 0.08;  // cm between a cell's rule and its text
// The widths of the columns, cm, but the last: the verdict, or the reason why a member has no
// report, takes what the others leave of the page between its margins.
constexpr std::array<double, 9> kAnchos = {1.9, 1.7, 1.3, 1.5, 1.45, 1.45, 1.45, 0.0, 0.0};
constexpr Color kColorReglas = 0;  // black

std::array<double, 9> Anchos(std::size_t columnas, double anchoTabla)
{
    std::array<double, 9> anchos = kAnchos;
    const double usados = std::accumulate(anchos.begin(), anchos.end(), 0.0);
    // The last column takes the rest, whatever the number of columns.
    if (columnas > 0 && columnas <= anchos.size()) anchos[columnas - 1] = anchoTabla - usados;
    return anchos;
}

// The text cut to the width, with "…" where it was cut, character by character of UTF-8.
std::string Ajustado(const Impresora& impresora, const std::string& texto, double ancho)
{
    if (impresora.TextWidth(texto) <= ancho) return texto;
    std::string corto = texto;
    while (!corto.empty() && impresora.TextWidth(corto + "…") > ancho) {
        corto.pop_back();
        while (!corto.empty() && (static_cast<unsigned char>(corto.back()) & 0xC0U) == 0x80U) corto.pop_back();
        if (!corto.empty() && static_cast<unsigned char>(corto.back()) >= 0xC0U) corto.pop_back();
    }
    return corto + "…";
}

// The text in lines no wider than the width, broken between words; a word wider than the
// width alone is cut.
std::vector<std::string> Lineas(const Impresora& impresora, const std::string& texto, double ancho)
{
    std::vector<std::string> lineas;
    std::string linea;
    std::size_t inicio = 0;
    while (inicio <= texto.size()) {
        const std::size_t fin = std::min(texto.find(' ', inicio), texto.size());
        const std::string palabra = texto.substr(inicio, fin - inicio);
        const std::string junta = linea.empty() ? palabra : linea + " " + palabra;
        if (!linea.empty() && impresora.TextWidth(junta) > ancho) {
            lineas.push_back(linea);
            linea = palabra;
        } else {
            linea = junta;
        }
        inicio = fin + 1;
    }
    lineas.push_back(linea);
    for (std::string& l : lineas)
        l = Ajustado(impresora, l, ancho);
    return lineas;
}

using Celdas = std::vector<std::vector<std::string>>;

// The lines of each cell of a row.
Celdas LineasDeFila(const Impresora& impresora, const std::vector<std::string>& celdas,
                    const std::array<double, 9>& anchos)
{
    Celdas lineas;
    for (std::size_t i = 0; i < celdas.size() && i < anchos.size(); ++i)
        lineas.push_back(Lineas(impresora, celdas[i], anchos[i] - 2 * kHolgura));
    return lineas;
}

double AltoDeFila(const Celdas& lineas)
{
    std::size_t mas = 1;
    for (const auto& celda : lineas)
        mas = std::max(mas, celda.size());
    return kAltoFila + static_cast<double>(mas - 1) * kAltoLinea;
}

// Writes a row at y with its rules around it.
void FilaDeTabla(Impresora& impresora, double y, const Celdas& lineas, const std::array<double, 9>& anchos, double x0)
{
    const double alto = AltoDeFila(lineas);
    double x = x0;
    impresora.Line(x, y, x, y + alto, kColorReglas);
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        for (std::size_t l = 0; l < lineas[i].size(); ++l)
            Escribe(impresora, x + kHolgura, y + kHolgura + static_cast<double>(l) * kAltoLinea, lineas[i][l]);
        x += anchos[i];
        impresora.Line(x, y, x, y + alto, kColorReglas);
    }
    impresora.Line(x0, y, x, y, kColorReglas);
    impresora.Line(x0, y + alto, x, y + alto, kColorReglas);
}

}  // namespace

void InformeResumen(Impresora& impresora, const std::vector<std::string>& cabecera,
                    const std::vector<std::vector<std::string>>& filas)
{
    const Pagina pagina = PreparaInforme(impresora, kDocumentoElementos);
    const std::array<double, 9> anchos =
        Anchos(cabecera.size(), pagina.ancho - pagina.margenIzquierdo - pagina.margenDerecho);
    const double x0 = pagina.margenIzquierdo;
    // The table ends two lines above the footer's rule.
    const double abajo = pagina.alto - pagina.margenInferior - 1.5;
    std::size_t hecha = 0;
    do {
        if (hecha > 0) impresora.NewPage();
        MarcoPagina(impresora, pagina, kTitulo, kLogoFlexion);
        impresora.FontSize(kTamanoTabla);
        impresora.FontBold(true);
        const Celdas titulos = LineasDeFila(impresora, cabecera, anchos);
        FilaDeTabla(impresora, kYCabecera, titulos, anchos, x0);
        impresora.FontBold(false);
        double y = kYCabecera + AltoDeFila(titulos);
        // At least one row a page, however tall.
        for (bool primera = true; hecha < filas.size(); primera = false) {
            const Celdas lineas = LineasDeFila(impresora, filas[hecha], anchos);
            if (!primera && y + AltoDeFila(lineas) > abajo) break;
            FilaDeTabla(impresora, y, lineas, anchos, x0);
            y += AltoDeFila(lineas);
            ++hecha;
        }
        impresora.FontSize(kTamanoTexto);
    } while (hecha < filas.size());
}

}  // namespace texalon
