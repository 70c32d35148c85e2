// The confinement chart, element by element.
#include "diagrams/Grafico.h"

#include "Elementos.h"
#include "engine/Calcular.h"
#include "state/Formato.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace texalon {
namespace {

using prueba::Elemento;
using prueba::EsperadoForma;
using prueba::EsperadoLinea;
using prueba::EsperadoTexto;
using prueba::Lee;

constexpr Color kCiruela64 = ColorRGB(128, 0, 64);

// The start-up project, calculated as the screen's Calculate leaves it.
General ProyectoInicial()
{
    General g;
    ValoresIniciales(g);
    CalculaConfinamiento(g, FormaDe(g), [](General&) {});
    return g;
}

// A hand-made result table: every cell at `resu`, RESUMAX its greatest value.
General EstadoConfina(double resu, double incr)
{
    General g;
    ValoresIniciales(g);
    g.RESU.Redimensiona(3, 5);
    for (int i = 1; i <= 3; ++i)
        for (int j = 1; j <= 5; ++j) g.RESU(i, j) = resu;
    g.RESUMAX = resu;
    g.INCR = incr;
    return g;
}

// Where the elements of each step begin with three types and five layers, the marker drawn.
constexpr int kPrimeraBarra = 3;  // 15 bars
constexpr int kPrimeraRejilla = 18;  // 5 vertical, 10 horizontal
constexpr int kMarca = 33;
constexpr int kPrimeraEtiquetaCapas = 34;  // 5
constexpr int kPrimeraEtiquetaVertical = 39;  // 9
constexpr int kNombreCapas = 48;
constexpr int kNombreIncremento = 49;
constexpr int kTitulo = 50;
constexpr int kPrimeraLeyenda = 51;  // swatch and name of each type

// A bar of the chart: its first corner and the far side to the last bits of a double, its foot
// exactly on the axis.
void EsperaBarra(const Elemento& barra, double x1, double y1, double x2)
{
    EXPECT_DOUBLE_EQ(barra.x1, x1);
    EXPECT_DOUBLE_EQ(barra.y1, y1);
    EXPECT_DOUBLE_EQ(barra.x2, x2);
    EXPECT_EQ(barra.y2, 0.0);
}

// The list that the chart must write, worked out from its rules.
std::vector<Elemento> EsperadoConfina(const General& g, char sep)
{
    double top = 0.0;
    for (int i = 1; i <= 3; ++i)
        for (int j = 1; j <= 5; ++j)
            if (g.RESU(i, j) - 1.0 > top) top = g.RESU(i, j) - 1.0;
    if (top == 0.0) top = 0.1;
    const double T = top * 1.1;
    const Color negro = 0;
    std::vector<Elemento> e;
    e.push_back(EsperadoLinea(0, 0, 5, 0, negro, 1, 1));
    e.push_back(EsperadoLinea(0, 0, 0, T, negro, 1, 1));
    for (int i = 1; i <= 3; ++i)
        for (int j = 1; j <= 5; ++j)
            e.push_back(EsperadoForma(Clase::Barra, i * 0.25 + (j - 1) - 0.125, g.RESU(i, j) - 1.0,
                                      (i + 1) * 0.25 + (j - 1) - 0.125, 0, g.COLORES(i)));
    for (int k = 1; k <= 5; ++k) e.push_back(EsperadoLinea(k, 0, k, T, negro, 3, 1));
    for (int k = 1; k <= 10; ++k) e.push_back(EsperadoLinea(0, T * k / 10.0, 5, T * k / 10.0, negro, 3, 1));
    if (g.INCR <= g.RESUMAX) e.push_back(EsperadoLinea(0, g.INCR - 1.0, 5, g.INCR - 1.0, kCiruela64, 3, 3));
    for (int k = 1; k <= 5; ++k)
        e.push_back(EsperadoTexto(Clase::Texto, k - 0.5, -T / 10.0, negro, 8, false, std::to_string(k)));
    for (int k = 1; k <= 9; ++k) {
        const std::string texto = Formato(1.0 + T * k / 10.0, "0.00", sep);
        e.push_back(EsperadoTexto(Clase::TextoIzquierda, 0, T * k / 10.0, negro, 8, false,
                                  std::string(texto.size() < 4 ? 4 - texto.size() : 0, ' ') + texto));
    }
    e.push_back(EsperadoTexto(Clase::Texto, 5.5, 0, negro, 8, false, "Nº capas"));
    e.push_back(EsperadoTexto(Clase::Texto, 0, top * 1.2, negro, 8, false, "Incr. resistencia"));
    e.push_back(EsperadoTexto(Clase::Texto, 2.5, top * 1.3, negro, 12, true, "DIAGRAMA DE CONFINAMIENTO"));
    const std::vector<std::string> nombres = {"TEXALON L", "TEXALON H", "TEXALON X"};
    for (int i = 1; i <= 3; ++i) {
        const double x0 = 5.0 * (i - 1) / 3.0;
        e.push_back(EsperadoForma(Clase::Barra, x0, -T / 6.0, x0 + 0.2, -T / 4.5, g.COLORES(i)));
        e.push_back(EsperadoTexto(Clase::Texto, x0 + 0.9, -T / 5.0, negro, 8, false,
                                  nombres[static_cast<std::size_t>(i - 1)]));
    }
    return e;
}

TEST(DiagramaConfina, ProyectoInicialDaLaListaCompletaConComa)
{
    const General g = ProyectoInicial();
    ASSERT_GT(g.RESUMAX, 1.0);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    EXPECT_EQ(d.NLISTA, 56);
    prueba::EsperaLista(d, EsperadoConfina(g, ','));
    EXPECT_NE(Lee(d, kPrimeraEtiquetaVertical).texto.find(','), std::string::npos);
}

TEST(DiagramaConfina, ProyectoInicialDaLaListaCompletaConPunto)
{
    const General g = ProyectoInicial();
    GeneralDibujo d;
    DiagramaConfina(g, d, '.');
    prueba::EsperaLista(d, EsperadoConfina(g, '.'));
    EXPECT_NE(Lee(d, kPrimeraEtiquetaVertical).texto.find('.'), std::string::npos);
}

TEST(DiagramaConfina, ListaHechaAManoConSusValores)
{
    General g = EstadoConfina(1.5, 1.2);
    g.RESU(2, 4) = 1.6;
    g.RESUMAX = 1.6;
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    prueba::EsperaLista(d, EsperadoConfina(g, ','));
    // top 0.6, T 0.66: the ticks read 1.07, 1.13, ... 1.59.
    EXPECT_DOUBLE_EQ(Lee(d, 2).y2, 0.66);
    EXPECT_EQ(Lee(d, kPrimeraEtiquetaVertical).texto, "1,07");
    EXPECT_EQ(Lee(d, kPrimeraEtiquetaVertical + 8).texto, "1,59");
    EXPECT_DOUBLE_EQ(Lee(d, kNombreIncremento).y1, 0.72);
    EXPECT_DOUBLE_EQ(Lee(d, kTitulo).y1, 0.78);
    // The cell (2, 4) is the ninth bar.
    EsperaBarra(Lee(d, kPrimeraBarra + 5 + 3), 3.375, 0.6, 3.625);
}

TEST(DiagramaConfina, TodoPorDebajoDeUnoDaEscalaDeUnaDecima)
{
    General g = EstadoConfina(1.0, 1.0);
    g.RESU(1, 1) = 0.95;
    g.RESU(3, 5) = 0.8;
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    ASSERT_EQ(d.NLISTA, 56);
    EXPECT_DOUBLE_EQ(Lee(d, 2).y2, 0.11);
    const std::vector<std::string> esperadas = {"1,01", "1,02", "1,03", "1,04", "1,06", "1,07", "1,08", "1,09", "1,10"};
    for (int k = 1; k <= 9; ++k) {
        const Elemento e = Lee(d, kPrimeraEtiquetaVertical - 1 + k);
        EXPECT_EQ(e.clase, 4);
        EXPECT_EQ(e.texto, esperadas[static_cast<std::size_t>(k - 1)]) << k;
        EXPECT_DOUBLE_EQ(e.y1, 0.011 * k);
    }
    EXPECT_DOUBLE_EQ(Lee(d, kNombreIncremento).y1, 0.12);
    EXPECT_DOUBLE_EQ(Lee(d, kTitulo).y1, 0.13);
}

TEST(DiagramaConfina, BarraPorDebajoDeUnoTieneLaPrimeraEsquinaBajoLaSegunda)
{
    General g = EstadoConfina(1.5, 1.2);
    g.RESU(2, 3) = 0.9;
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    const Elemento barra = Lee(d, kPrimeraBarra + 5 + 2);
    EXPECT_EQ(barra.clase, 5);
    EXPECT_EQ(barra.color, g.COLORES(2));
    EsperaBarra(barra, 2.375, -0.1, 2.625);
    EXPECT_LT(barra.y1, barra.y2);
}

TEST(DiagramaConfina, IncrIgualAResumaxMuestraLaMarca)
{
    General g = EstadoConfina(1.5, 1.5);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    ASSERT_EQ(d.NLISTA, 56);
    const Elemento marca = Lee(d, kMarca);
    // A dotted plum line of width 3 across the whole chart, exactly from 0 to 5, at the height of INCR.
    EXPECT_EQ(std::tuple(marca.clase, marca.color, marca.estilo, marca.ancho, marca.x1, marca.x2),
              std::tuple(1, kCiruela64, 3.0, 3.0, 0.0, 5.0));
    EXPECT_DOUBLE_EQ(marca.y1, 0.5);
    EXPECT_DOUBLE_EQ(marca.y2, 0.5);
}

TEST(DiagramaConfina, IncrMayorQueResumaxNoMuestraMarca)
{
    General g = EstadoConfina(1.5, 1.5000001);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    ASSERT_EQ(d.NLISTA, 55);
    for (int i = 1; i <= d.NLISTA; ++i) EXPECT_NE(Lee(d, i).color, kCiruela64) << i;
    EXPECT_EQ(Lee(d, kMarca).clase, 3);  // the first group label comes forward
}

TEST(DiagramaConfina, IncrDeUnoPoneLaMarcaSobreElEje)
{
    General g = EstadoConfina(1.5, 1.0);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    const Elemento marca = Lee(d, kMarca);
    EXPECT_EQ(marca.color, kCiruela64);
    EXPECT_EQ(marca.y1, 0.0);
    EXPECT_EQ(marca.y2, 0.0);
    // No lower test: an increase below 1 still has its marker, under the axis.
    g.INCR = 0.5;
    DiagramaConfina(g, d, ',');
    EXPECT_EQ(Lee(d, kMarca).color, kCiruela64);
    EXPECT_DOUBLE_EQ(Lee(d, kMarca).y1, -0.5);
}

TEST(DiagramaConfina, EtiquetasCentradasEnSusGruposYRejillaEntreEllos)
{
    General g = EstadoConfina(1.5, 1.2);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    for (int k = 1; k <= 5; ++k) {
        const Elemento rejilla = Lee(d, kPrimeraRejilla - 1 + k);
        EXPECT_EQ(rejilla.x1, k);
        EXPECT_EQ(rejilla.x2, k);
        EXPECT_EQ(rejilla.estilo, 3.0);
        const Elemento etiqueta = Lee(d, kPrimeraEtiquetaCapas - 1 + k);
        EXPECT_EQ(etiqueta.clase, 3);
        EXPECT_EQ(etiqueta.x1, k - 0.5);
        EXPECT_DOUBLE_EQ(etiqueta.y1, -0.055);
        EXPECT_EQ(etiqueta.texto, std::to_string(k));
    }
}

TEST(DiagramaConfina, TresTiposOcupanDe0125A0875DeCadaGrupo)
{
    General g = EstadoConfina(1.5, 1.2);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    for (int j = 1; j <= 5; ++j) {
        EXPECT_DOUBLE_EQ(Lee(d, kPrimeraBarra + j - 1).x1, j - 1 + 0.125);  // type 1
        EXPECT_DOUBLE_EQ(Lee(d, kPrimeraBarra + 10 + j - 1).x2, j - 1 + 0.875);  // type 3
    }
}

TEST(DiagramaConfina, LaLeyendaTieneMuestrasQueSonBarrasNoLineas)
{
    General g = EstadoConfina(1.5, 1.2);
    GeneralDibujo d;
    DiagramaConfina(g, d, ',');
    ASSERT_EQ(d.NLISTA, 56);
    for (int i = 1; i <= 3; ++i) {
        const Elemento muestra = Lee(d, kPrimeraLeyenda + 2 * (i - 1));
        const Elemento nombre = Lee(d, kPrimeraLeyenda + 2 * (i - 1) + 1);
        const double x0 = 5.0 / 3.0 * (i - 1);
        EXPECT_EQ(muestra.clase, 5);
        EXPECT_EQ(muestra.color, g.COLORES(i));
        EXPECT_DOUBLE_EQ(muestra.x1, x0);
        EXPECT_DOUBLE_EQ(muestra.y1, -0.55 / 6.0);
        EXPECT_DOUBLE_EQ(muestra.x2, x0 + 0.2);
        EXPECT_DOUBLE_EQ(muestra.y2, -0.55 / 4.5);
        EXPECT_EQ(nombre.clase, 3);
        EXPECT_EQ(nombre.color, 0);
        EXPECT_EQ(nombre.ancho, 8.0);
        EXPECT_DOUBLE_EQ(nombre.x1, x0 + 0.9);
        EXPECT_DOUBLE_EQ(nombre.y1, -0.11);
        EXPECT_EQ(nombre.texto, g.TIPOS(i));
    }
}

TEST(DiagramaConfina, SoloBorraLaBanderaDeSeccion)
{
    const General g = EstadoConfina(1.5, 1.2);
    GeneralDibujo d;
    for (bool antes : {true, false}) {
        SCOPED_TRACE(antes);
        d.F_PIVOTES = d.F_MOMENTOS = d.F_SECCION = d.F_CAPAS = antes;
        DiagramaConfina(g, d, ',');
        // Pivots, moments and layers as they were; the section's down.
        EXPECT_EQ(prueba::Banderas(d), std::tuple(antes, antes, false, antes));
    }
}

TEST(DiagramaConfina, SoloEscribeLaLista)
{
    const General g = ProyectoInicial();
    GeneralDibujo d = prueba::DibujoEnUso();
    DiagramaConfina(g, d, ',');
    EXPECT_EQ(d.NLISTA, 56);
    prueba::EsperaSoloLaLista(d);
}

}  // namespace
}  // namespace texalon
