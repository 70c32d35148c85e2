#include "calculo/SalidaTexto.h"

#include "calculo/Texto.h"

#include "engine/Calculos.h"
#include "engine/Caracteristicas.h"
#include "state/Formato.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace texalon::calculo {

namespace {

// Widths of the grid's columns in characters: the layer column is as wide as its heading, a
// type column holds a type name of nine letters and the gap that parts it from its neighbour.
constexpr std::size_t kAnchoCapas = 8;
constexpr std::size_t kAnchoTipo = 13;

std::string Alineado(std::string_view texto, std::size_t ancho) { return FormatoTexto(texto, std::string(ancho, '@')); }

// The text of the grid cell (type, layers).
using Celda = std::function<std::string(int tipo, int capas)>;

// The result grid as the screen lays it out: row 0 the heading of the layer column and the
// type names, row n the number n and the values for n layers.
std::string Tabla(const General& g, std::string_view titulo, const Celda& celda)
{
    std::string texto = std::string(titulo) + '\n' + Alineado(kCabeceraCapas, kAnchoCapas);
    for (int t = 1; t <= g.NTIPOS; ++t)
        texto += Alineado(g.TIPOS(t), kAnchoTipo);
    texto += '\n';
    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        texto += Alineado(TextoEntero(n), kAnchoCapas);
        for (int t = 1; t <= g.NTIPOS; ++t)
            texto += Alineado(celda(t, n), kAnchoTipo);
        texto += '\n';
    }
    return texto;
}

// The label LB_INFO on a line of its own; a hidden label gives no line.
std::string LineaVeredicto(Veredicto veredicto)
{
    const std::string texto(Recorta(TextoVeredicto(veredicto)));
    return texto.empty() ? texto : texto + '\n';
}

struct Dato {
    std::string_view nombre;  // the state field, in ASCII
    std::string valor;
    std::string_view unidad;
};

// "NOMBRE = valor unidad", one a line, the signs '=' one under the other.
std::string Datos(const std::vector<Dato>& datos)
{
    std::size_t ancho = 0;
    for (const Dato& dato : datos)
        ancho = std::max(ancho, dato.nombre.size());
    std::string texto;
    for (const Dato& dato : datos) {
        texto += std::string(dato.nombre) + std::string(ancho - dato.nombre.size(), ' ') + " = " + dato.valor;
        if (!dato.unidad.empty()) texto += ' ' + std::string(dato.unidad);
        texto += '\n';
    }
    return texto;
}

std::string DescripcionSeccion(const CalculoFichero& calculo)
{
    if (calculo.clase == ClaseFichero::Flexion)
        return calculo.seccion == SeccionFlexion::T ? "Flexión, sección en T" : "Flexión, sección rectangular";
    const std::string_view forma = NombreForma(FormaDe(calculo.g));
    if (forma.empty()) return "Confinamiento";
    return "Confinamiento, sección " + std::string(forma);
}

std::string TextoFlexion(const CalculoFichero& calculo, char separador)
{
    const General& g = calculo.g;
    const Celda momento = [&g, separador](int t, int n) { return CeldaFlexion(g, t, n, separador).texto; };
    // MUSR and EPS0 as the results panel shows them, the same for every cell.
    const ResultadosCeldaFlexion seccion = ResultadosFlexion(g, 1, 1, separador);
    return Tabla(g, "Momento último de la sección reforzada (mkN)", momento) + LineaVeredicto(calculo.veredicto) +
           Datos({{"MUSR", seccion.MUSR, "mkN"}, {"EPS0", seccion.EPS0, "‰"}});
}

std::string TextoConfinamiento(const CalculoFichero& calculo, char separador)
{
    const General& g = calculo.g;
    const Celda incremento = [&g, separador](int t, int n) { return CeldaConfina(g, t, n, separador).texto; };
    return Tabla(g, "Incremento de resistencia debido al confinamiento", incremento) +
           LineaVeredicto(calculo.veredicto) +
           Datos({{"EPS0", ResultadosConfina(g, 1, 1, separador).EPS0, "‰"},
                  {"ALFAN", Formato(g.ALFAN, "0.000", separador), ""}});
}

}  // namespace

std::string TextoResultados(const CalculoFichero& calculo, char separador)
{
    const std::string cabecera = Procedencia(calculo) + ": " + DescripcionSeccion(calculo) + '\n';
    if (calculo.clase == ClaseFichero::Flexion) return cabecera + TextoFlexion(calculo, separador);
    return cabecera + TextoConfinamiento(calculo, separador);
}

}  // namespace texalon::calculo
