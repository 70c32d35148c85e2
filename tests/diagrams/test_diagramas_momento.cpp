// The moment charts of the flexure screens, against sheet area and against layers, element by
// element, and their T twins.
#include "diagrams/Grafico.h"

#include "Elementos.h"
#include "comun/Tablas.h"
#include "engine/Calcular.h"
#include "state/Formato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

namespace texalon {
namespace {

using prueba::Elemento;
using prueba::EsperadoLinea;
using prueba::EsperadoTexto;
using prueba::Lee;

constexpr double kMarcaSinMejora = -999.0;
constexpr Color kCiruela64 = ColorRGB(128, 0, 64);
constexpr Color kNegro0 = 0;
// Area of one layer of each type with the start-up sheet width of 0.125 m, in mm²:
// 0.125 × thickness × 1000.
constexpr std::array<double, 3> kAreaCapa = {13.875, 20.875, 20.375};
const std::array<std::string, 3> kNombres = {"TEXALON L", "TEXALON H", "TEXALON X"};

using Procedimiento = std::function<void(const General&, GeneralDibujo&, char)>;

// The start-up rectangular project, calculated.
General ProyectoInicial()
{
    General g;
    ValoresIniciales(g);
    CalculaFlexion(g, SeccionFlexion::Rectangular, [](General&) {});
    return g;
}

using Tabla = std::array<std::array<double, 5>, 3>;

// A hand-made result table, with MUMAX its greatest moment as a Calculate finds it.
General EstadoMomentos(const Tabla& mu, double musr, double md)
{
    General g;
    ValoresIniciales(g);
    g.MU.Redimensiona(3, 5);
    g.MUMAX = 0.0;
    for (int i = 1; i <= 3; ++i) {
        for (int j = 1; j <= 5; ++j) {
            g.MU(i, j) = mu[static_cast<std::size_t>(i - 1)][static_cast<std::size_t>(j - 1)];
            if (g.MU(i, j) > g.MUMAX) g.MUMAX = g.MU(i, j);
        }
    }
    g.MUSR = musr;
    g.MD = md;
    return g;
}

// A table with every type and layer count in play.
const Tabla kCompleta = {{
    {240.0, 250.0, 260.0, 270.0, 280.0},
    {245.0, 258.0, 270.0, 282.0, 294.0},
    {238.0, 247.0, kMarcaSinMejora, kMarcaSinMejora, kMarcaSinMejora},
}};

General EstadoCompleto(double md) { return EstadoMomentos(kCompleta, 222.5, md); }

// ---- The expected lists, worked out from the charts' rules.

struct Rangos {
    double maxM = 0.0;
    double minM = 99999.0;
    double maxA = 0.0;
};

Rangos RangosDe(const General& g)
{
    Rangos r;
    for (int i = 1; i <= 3; ++i) {
        for (int j = 1; j <= 5; ++j) {
            const double mu = g.MU(i, j);
            if (mu == kMarcaSinMejora) continue;
            r.maxM = std::max({r.maxM, mu, g.MUSR});
            r.minM = std::min({r.minM, mu, g.MUSR});
            r.maxA = std::max(r.maxA, kAreaCapa[static_cast<std::size_t>(i - 1)] * j);
        }
    }
    return r;
}

std::string Alinea(const std::string& texto, std::size_t ancho)
{
    return std::string(texto.size() < ancho ? ancho - texto.size() : 0, ' ') + texto;
}

bool Marcado(const General& g, int i, int j) { return g.MU(i, j) == kMarcaSinMejora; }

// What both charts share after their curves: the moment ticks, name and title, the legend.
void EsperaPie(std::vector<Elemento>& e, const Rangos& r, double yTicks, double yTitulo, double yLeyenda,
               const std::string& nombreVertical, double yNombreVertical, char sep,
               const std::vector<Elemento>& ticksVerticales)
{
    const double R = (r.maxM - r.minM) * 1.1;
    for (int k = 1; k <= 9; ++k)
        e.push_back(EsperadoTexto(Clase::Texto, R * k / 10.0, yTicks, kNegro0, 8, false,
                                  Formato(R * k / 10.0 + r.minM, "0.0", sep)));
    e.insert(e.end(), ticksVerticales.begin(), ticksVerticales.end());
    e.push_back(EsperadoTexto(Clase::Texto, (r.maxM - r.minM) * 1.2, 0, kNegro0, 8, false, "Mu (mkN)"));
    e.push_back(EsperadoTexto(Clase::Texto, 0, yNombreVertical, kNegro0, 8, false, nombreVertical));
    e.push_back(
        EsperadoTexto(Clase::Texto, (r.maxM - r.minM) / 1.6, yTitulo, kNegro0, 12, true, "DIAGRAMA DE MOMENTOS ULTIMOS"));
    for (int i = 1; i <= 3; ++i) {
        const double s = R / 3.0;
        const double x0 = s * (i - 1);
        e.push_back(EsperadoLinea(x0, yLeyenda, x0 + 0.3 * s, yLeyenda, i == 1 ? ColorRGB(255, 0, 0)
                                                                      : i == 2 ? ColorRGB(0, 0, 0)
                                                                               : ColorRGB(214, 204, 31),
                                  1, 3));
        e.push_back(EsperadoTexto(Clase::Texto, x0 + 0.65 * s, yLeyenda, kNegro0, 8, false,
                                  kNombres[static_cast<std::size_t>(i - 1)]));
    }
}

std::vector<Elemento> EsperadoArea(const General& g, char sep)
{
    const Rangos r = RangosDe(g);
    const double R = (r.maxM - r.minM) * 1.1;
    const double A = 1.1 * r.maxA;
    std::vector<Elemento> e;
    e.push_back(EsperadoLinea(0, 0, R, 0, kNegro0, 1, 1));
    e.push_back(EsperadoLinea(0, 0, 0, A, kNegro0, 1, 1));
    for (int i = 1; i <= 3; ++i) {
        const double a = kAreaCapa[static_cast<std::size_t>(i - 1)];
        e.push_back(EsperadoLinea(g.MUSR - r.minM, 0, g.MU(i, 1) - r.minM, a, g.COLORES(i), 1, 2));
        for (int j = 1; j <= 4; ++j)
            if (!Marcado(g, i, j) && !Marcado(g, i, j + 1))
                e.push_back(EsperadoLinea(g.MU(i, j) - r.minM, a * j, g.MU(i, j + 1) - r.minM, a * (j + 1),
                                          g.COLORES(i), 1, 2));
    }
    for (int k = 1; k <= 10; ++k) e.push_back(EsperadoLinea(R * k / 10.0, 0, R * k / 10.0, A, kNegro0, 3, 1));
    for (int k = 1; k <= 10; ++k) e.push_back(EsperadoLinea(0, A * k / 10.0, R, A * k / 10.0, kNegro0, 3, 1));
    if (g.MD >= g.MUSR && g.MD <= g.MUMAX)
        e.push_back(EsperadoLinea(g.MD - r.minM, 0, g.MD - r.minM, A, kCiruela64, 3, 3));
    std::vector<Elemento> verticales;
    for (int k = 1; k <= 9; ++k)
        verticales.push_back(EsperadoTexto(Clase::TextoIzquierda, 0, A * k / 10.0, kNegro0, 8, false,
                                           Alinea(Formato(A * k / 10.0, "0", sep), 4)));
    EsperaPie(e, r, -r.maxA / 10.0, 1.35 * r.maxA, -r.maxA / 5.0, "Ar (mm²)", 1.2 * r.maxA, sep, verticales);
    return e;
}

std::vector<Elemento> EsperadoCapas(const General& g, char sep)
{
    const Rangos r = RangosDe(g);
    const double R = (r.maxM - r.minM) * 1.1;
    const double H = 6.0;
    std::vector<Elemento> e;
    e.push_back(EsperadoLinea(0, 0, R, 0, kNegro0, 1, 1));
    e.push_back(EsperadoLinea(0, 0, 0, H, kNegro0, 1, 1));
    for (int i = 1; i <= 3; ++i) {
        const double y0 = 0.1 * (i - 1);
        for (int j = 1; j <= 4; ++j) {
            if (Marcado(g, i, j) || Marcado(g, i, j + 1)) continue;
            const double x = g.MU(i, j) - r.minM;
            if (j == 1) e.push_back(EsperadoLinea(g.MUSR - r.minM, y0 + 1, x, y0 + 1, g.COLORES(i), 1, 2));
            e.push_back(EsperadoLinea(x, y0 + j, x, y0 + j + 1, g.COLORES(i), 1, 2));
            e.push_back(EsperadoLinea(x, y0 + j + 1, g.MU(i, j + 1) - r.minM, y0 + j + 1, g.COLORES(i), 1, 2));
        }
    }
    for (int k = 1; k <= 10; ++k) e.push_back(EsperadoLinea(R * k / 10.0, 0, R * k / 10.0, H, kNegro0, 3, 1));
    for (int k = 1; k <= 6; ++k) e.push_back(EsperadoLinea(0, k, R, k, kNegro0, 3, 1));
    if (g.MD >= g.MUSR && g.MD <= g.MUMAX)
        e.push_back(EsperadoLinea(g.MD - r.minM, 0, g.MD - r.minM, H, kCiruela64, 3, 3));
    std::vector<Elemento> verticales;
    for (int k = 1; k <= 5; ++k)
        verticales.push_back(
            EsperadoTexto(Clase::TextoIzquierda, 0, k, kNegro0, 8, false, " " + std::to_string(k)));
    EsperaPie(e, r, -0.6, 6.75, -1.2, "Nº capas", 6.25, sep, verticales);
    return e;
}

// The required-value markers of a list.
std::vector<Elemento> Marcas(const GeneralDibujo& d)
{
    std::vector<Elemento> marcas;
    for (int i = 1; i <= d.NLISTA; ++i)
        if (Lee(d, i).color == kCiruela64) marcas.push_back(Lee(d, i));
    return marcas;
}

// The curves (solid lines of width 2) of a list in the colour of a type.
std::vector<Elemento> CurvasDe(const GeneralDibujo& d, Color color)
{
    std::vector<Elemento> curvas;
    for (int i = 1; i <= d.NLISTA; ++i) {
        const Elemento e = Lee(d, i);
        if (e.clase == 1 && e.ancho == 2.0 && e.estilo == 1.0 && e.color == color) curvas.push_back(e);
    }
    return curvas;
}

struct Caso {
    const char* nombre;
    Procedimiento procedimiento;
    bool capas;
};

const std::array<Caso, 4> kCasos = {{
    {"DiagramaMomentoArea", DiagramaMomentoArea, false},
    {"DiagramaMomentoAreaT", DiagramaMomentoAreaT, false},
    {"DiagramaMomentoCapas", DiagramaMomentoCapas, true},
    {"DiagramaMomentoCapasT", DiagramaMomentoCapasT, true},
}};

// ---- Whole lists.

// The start-up project's whole list of each chart, with each decimal separator.
struct ListaInicial {
    const char* nombre;
    void (*diagrama)(const General&, GeneralDibujo&, char);
    std::vector<Elemento> (*esperado)(const General&, char);
    char sep;
    int elementos;
};

class ListaDelProyectoInicial : public ::testing::TestWithParam<ListaInicial> {};

TEST_P(ListaDelProyectoInicial, EsLaCompleta)
{
    const General g = ProyectoInicial();
    // The start-up project: X passes its peak at two layers, and MD of 0 has no marker.
    ASSERT_EQ(g.MU(3, 3), kMarcaSinMejora);
    ASSERT_NE(g.MU(3, 2), kMarcaSinMejora);
    GeneralDibujo d;
    GetParam().diagrama(g, d, GetParam().sep);
    EXPECT_EQ(d.NLISTA, GetParam().elementos);
    prueba::EsperaLista(d, GetParam().esperado(g, GetParam().sep));
}

// clang-format off
const ListaInicial kListasIniciales[] = {
    {"AreaConComa",   DiagramaMomentoArea,  EsperadoArea,  ',', 61},
    {"AreaConPunto",  DiagramaMomentoArea,  EsperadoArea,  '.', 61},
    {"CapasConComa",  DiagramaMomentoCapas, EsperadoCapas, ',', 62},
    {"CapasConPunto", DiagramaMomentoCapas, EsperadoCapas, '.', 62},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DiagramaMomento, ListaDelProyectoInicial, ::testing::ValuesIn(kListasIniciales),
                         prueba::NombreDeFila());

// A segment of the steps of a type: its abscissas to the last bits of a double, its layers
// exactly.
void EsperaEscalon(const Elemento& e, double x1, double y1, double x2, double y2)
{
    EXPECT_DOUBLE_EQ(e.x1, x1);
    EXPECT_EQ(e.y1, y1);
    EXPECT_DOUBLE_EQ(e.x2, x2);
    EXPECT_EQ(e.y2, y2);
}

// The chart of the hand-made table under 230 mkN, against the list that its rules give.
GeneralDibujo DeLaTablaHechaAMano(void (*diagrama)(const General&, GeneralDibujo&, char),
                                  std::vector<Elemento> (*esperado)(const General&, char), char sep)
{
    const General g = EstadoCompleto(230.0);
    GeneralDibujo d;
    diagrama(g, d, sep);
    prueba::EsperaLista(d, esperado(g, sep));
    return d;
}

TEST(DiagramaMomentoArea, TablaHechaAManoConSusValores)
{
    const GeneralDibujo d = DeLaTablaHechaAMano(DiagramaMomentoArea, EsperadoArea, ',');
    // minM 222.5, maxM 294: R = 78.65; maxA = 5 × 20.875 = 104.375.
    EXPECT_DOUBLE_EQ(Lee(d, 1).x2, 78.65);
    EXPECT_DOUBLE_EQ(Lee(d, 2).y2, 114.8125);
    // The first moment tick: 7.865 + 222.5 = 230.365.
    const int primerTick = 2 + 12 + 20 + 1 + 1;
    EXPECT_EQ(Lee(d, primerTick).texto, "230,4");
    EXPECT_DOUBLE_EQ(Lee(d, primerTick).y1, -10.4375);
    EXPECT_EQ(Lee(d, primerTick + 9).texto, "  11");  // 11.48125
    EXPECT_EQ(Lee(d, primerTick + 17).texto, " 103");  // 103.33125
}

TEST(DiagramaMomentoCapas, TablaHechaAManoConSusValores)
{
    const GeneralDibujo d = DeLaTablaHechaAMano(DiagramaMomentoCapas, EsperadoCapas, '.');
    EXPECT_DOUBLE_EQ(Lee(d, 1).x2, 78.65);
    EXPECT_EQ(Lee(d, 2).y2, 6.0);
    // Type L: the step from the unreinforced section at one layer, then riser and tread.
    EsperaEscalon(Lee(d, 3), 0.0, 1.0, 17.5, 1.0);  // the start
    EsperaEscalon(Lee(d, 4), 17.5, 1.0, 17.5, 2.0);  // the riser
    EsperaEscalon(Lee(d, 5), 17.5, 2.0, 27.5, 2.0);  // the tread
}

// ---- Edge cases.

TEST(DiagramasMomento, MdIgualAMusrOAMumaxMuestraLaMarca)
{
    for (const Caso& caso : kCasos) {
        for (double md : {222.5, 294.0}) {
            const General g = EstadoCompleto(md);
            GeneralDibujo d;
            caso.procedimiento(g, d, ',');
            const std::vector<Elemento> marcas = Marcas(d);
            ASSERT_EQ(marcas.size(), 1u) << caso.nombre << " " << md;
            EXPECT_EQ(marcas[0].clase, 1);
            EXPECT_EQ(marcas[0].estilo, 3.0);
            EXPECT_EQ(marcas[0].ancho, 3.0);
            EXPECT_DOUBLE_EQ(marcas[0].x1, md - 222.5);
            EXPECT_EQ(marcas[0].y1, 0.0);
            EXPECT_DOUBLE_EQ(marcas[0].x2, md - 222.5);
            EXPECT_DOUBLE_EQ(marcas[0].y2, caso.capas ? 6.0 : 114.8125);
        }
    }
}

TEST(DiagramasMomento, MdFueraDeMusrYMumaxNoMuestraMarca)
{
    for (const Caso& caso : kCasos) {
        for (double md : {222.49, 294.01, 0.0}) {
            const General g = EstadoCompleto(md);
            GeneralDibujo d;
            caso.procedimiento(g, d, ',');
            EXPECT_TRUE(Marcas(d).empty()) << caso.nombre << " " << md;
            EXPECT_EQ(d.NLISTA, caso.capas ? 62 : 61) << caso.nombre;
        }
    }
}

TEST(DiagramaMomentoArea, MarcasDesdeLaTerceraCapaCortanLaCurvaYNoEnsanchanElArea)
{
    Tabla mu = kCompleta;
    for (auto& fila : mu)
        for (std::size_t j = 2; j < 5; ++j) fila[j] = kMarcaSinMejora;
    const General g = EstadoMomentos(mu, 222.5, 0.0);
    GeneralDibujo d;
    DiagramaMomentoArea(g, d, ',');
    prueba::EsperaLista(d, EsperadoArea(g, ','));
    // maxA is two layers of H, not five.
    EXPECT_DOUBLE_EQ(Lee(d, 2).y2, 41.75 * 1.1);
    // Each type: the segment from the unreinforced section, and the one from 1 to 2 layers.
    for (int i = 1; i <= 3; ++i) {
        const std::vector<Elemento> curvas = CurvasDe(d, g.COLORES(i));
        ASSERT_EQ(curvas.size(), 2u) << i;
        const double a = kAreaCapa[static_cast<std::size_t>(i - 1)];
        EXPECT_DOUBLE_EQ(curvas[1].y1, a);
        EXPECT_DOUBLE_EQ(curvas[1].y2, 2.0 * a);
    }
}

TEST(DiagramasMomento, PrimerTramoHaciaUnaMarcaEnElAreaYNadaEnLasCapas)
{
    Tabla mu = kCompleta;
    mu[0].fill(kMarcaSinMejora);  // type L brings nothing from one layer
    const General g = EstadoMomentos(mu, 222.5, 0.0);
    const double minM = 222.5;

    GeneralDibujo area;
    DiagramaMomentoArea(g, area, ',');
    prueba::EsperaLista(area, EsperadoArea(g, ','));
    const std::vector<Elemento> curvas = CurvasDe(area, g.COLORES(1));
    ASSERT_EQ(curvas.size(), 1u);
    EXPECT_DOUBLE_EQ(curvas[0].x1, 0.0);
    EXPECT_EQ(curvas[0].y1, 0.0);
    EXPECT_DOUBLE_EQ(curvas[0].x2, -999.0 - minM);
    EXPECT_DOUBLE_EQ(curvas[0].y2, 13.875);
    // The fit's box reaches that far to the left.
    const Encuadre encuadre = Ajusta(area, 440.0, 176.0, 0);
    EXPECT_DOUBLE_EQ(encuadre.xmin, -999.0 - minM);

    GeneralDibujo capas;
    DiagramaMomentoCapas(g, capas, ',');
    prueba::EsperaLista(capas, EsperadoCapas(g, ','));
    EXPECT_TRUE(CurvasDe(capas, g.COLORES(1)).empty());
    EXPECT_GE(Ajusta(capas, 440.0, 176.0, 0).xmin, 0.0);
}

TEST(DiagramaMomentoCapas, TresTiposSeSeparanUnaYDosDecimas)
{
    Tabla mu = kCompleta;
    mu[2] = {238.0, 247.0, 255.0, kMarcaSinMejora, kMarcaSinMejora};
    const General g = EstadoMomentos(mu, 222.5, 0.0);
    GeneralDibujo d;
    DiagramaMomentoCapas(g, d, ',');
    prueba::EsperaLista(d, EsperadoCapas(g, ','));
    // The tread of 3 layers of each type: L at 3, H at 3.1, X at 3.2.
    const std::array<double, 3> alturas = {3.0, 3.1, 3.2};
    for (int i = 1; i <= 3; ++i) {
        const std::vector<Elemento> curvas = CurvasDe(d, g.COLORES(i));
        ASSERT_GE(curvas.size(), 5u) << i;
        const Elemento huella = curvas[4];  // start, riser, tread, riser, tread
        EXPECT_DOUBLE_EQ(huella.y1, alturas[static_cast<std::size_t>(i - 1)]) << i;
        EXPECT_DOUBLE_EQ(huella.y2, alturas[static_cast<std::size_t>(i - 1)]) << i;
        EXPECT_DOUBLE_EQ(huella.x2, mu[static_cast<std::size_t>(i - 1)][2] - 222.5) << i;
    }
    EXPECT_EQ(CurvasDe(d, g.COLORES(3)).size(), 5u);
}

TEST(DiagramaMomentoCapas, EtiquetasHastaMaxcapasYRejillaHastaUnaMas)
{
    const General g = EstadoCompleto(0.0);
    GeneralDibujo d;
    DiagramaMomentoCapas(g, d, ',');
    // 2 axes, 21 curves, 10 vertical grid lines, then the horizontal ones.
    const int primeraHorizontal = 2 + 21 + 10 + 1;
    for (int k = 1; k <= 6; ++k) {
        const Elemento linea = Lee(d, primeraHorizontal - 1 + k);
        EXPECT_EQ(linea.clase, 1);
        EXPECT_EQ(linea.estilo, 3.0);
        EXPECT_EQ(linea.y1, k);
        EXPECT_EQ(linea.y2, k);
    }
    int etiquetas = 0;
    for (int i = 1; i <= d.NLISTA; ++i) {
        const Elemento e = Lee(d, i);
        if (e.clase != 4) continue;
        ++etiquetas;
        EXPECT_EQ(e.texto, " " + std::to_string(etiquetas));
        EXPECT_EQ(e.y1, etiquetas);
        EXPECT_EQ(e.x1, 0.0);
    }
    EXPECT_EQ(etiquetas, 5);
}

TEST(DiagramaMomentoCapas, TipoConUnaSolaCapaValidaNoDibujaNada)
{
    Tabla mu = kCompleta;
    mu[2] = {238.0, kMarcaSinMejora, kMarcaSinMejora, kMarcaSinMejora, kMarcaSinMejora};
    const General g = EstadoMomentos(mu, 222.5, 0.0);
    GeneralDibujo d;
    DiagramaMomentoCapas(g, d, ',');
    EXPECT_TRUE(CurvasDe(d, g.COLORES(3)).empty());
    // In the area chart it keeps its first segment.
    DiagramaMomentoArea(g, d, ',');
    EXPECT_EQ(CurvasDe(d, g.COLORES(3)).size(), 1u);
}

TEST(DiagramasMomento, TodoMarcadoDejaUnaExtensionNegativaYSeDibujaIgual)
{
    Tabla mu;
    for (auto& fila : mu) fila.fill(kMarcaSinMejora);
    General g = EstadoMomentos(mu, 222.5, 0.0);
    g.MUMAX = 0.0;
    const double R = (0.0 - 99999.0) * 1.1;
    for (const Caso& caso : kCasos) {
        GeneralDibujo d;
        caso.procedimiento(g, d, ',');
        EXPECT_DOUBLE_EQ(Lee(d, 1).x2, R) << caso.nombre;
        EXPECT_LT(Lee(d, 1).x2, 0.0);
        prueba::EsperaLista(d, caso.capas ? EsperadoCapas(g, ',') : EsperadoArea(g, ','));
    }
    // The area chart: its vertical extent is 0, and the first segments run from MUSR - 99999.
    GeneralDibujo d;
    DiagramaMomentoArea(g, d, ',');
    EXPECT_EQ(Lee(d, 2).y2, 0.0);
    EXPECT_DOUBLE_EQ(Lee(d, 3).x1, 222.5 - 99999.0);
    EXPECT_DOUBLE_EQ(Lee(d, 3).x2, -999.0 - 99999.0);
    EXPECT_DOUBLE_EQ(Lee(d, 3).y2, 13.875);
    EXPECT_EQ(d.NLISTA, 2 + 3 + 20 + 9 + 9 + 2 + 1 + 6);
}

// ---- Flags, screens, twins, separators.

TEST(DiagramasMomento, ElAreaPoneMomentosYBorraLasOtrasTres)
{
    const General g = EstadoCompleto(230.0);
    for (const Caso& caso : kCasos) {
        for (bool antes : {false, true}) {
            GeneralDibujo d;
            d.F_PIVOTES = d.F_MOMENTOS = d.F_SECCION = d.F_CAPAS = antes;
            caso.procedimiento(g, d, ',');
            EXPECT_EQ(d.F_MOMENTOS, !caso.capas) << caso.nombre;
            EXPECT_EQ(d.F_CAPAS, caso.capas) << caso.nombre;
            EXPECT_FALSE(d.F_PIVOTES) << caso.nombre;
            EXPECT_FALSE(d.F_SECCION) << caso.nombre;
        }
    }
}

TEST(DiagramasMomento, SoloEscribenLaLista)
{
    const General g = EstadoCompleto(230.0);
    for (const Caso& caso : kCasos) {
        GeneralDibujo d = prueba::DibujoEnUso();
        caso.procedimiento(g, d, ',');
        EXPECT_EQ(d.NLISTA, caso.capas ? 63 : 62) << caso.nombre;
        prueba::EsperaSoloLaLista(d);
    }
}

TEST(DiagramasMomento, LasGemelasTDibujanLaMismaLista)
{
    const General g = EstadoCompleto(230.0);
    for (bool capas : {false, true}) {
        GeneralDibujo rectangular;
        GeneralDibujo t;
        if (capas) {
            DiagramaMomentoCapas(g, rectangular, ',');
            DiagramaMomentoCapasT(g, t, ',');
        } else {
            DiagramaMomentoArea(g, rectangular, ',');
            DiagramaMomentoAreaT(g, t, ',');
        }
        ASSERT_EQ(rectangular.NLISTA, t.NLISTA);
        for (int i = 1; i <= t.NLISTA; ++i) prueba::EsperaElemento(t, i, Lee(rectangular, i));
    }
}

TEST(DiagramasMomento, ElSeparadorSoloCambiaLosTextosDeLosMomentos)
{
    const General g = EstadoCompleto(230.0);
    for (const Caso& caso : kCasos) {
        GeneralDibujo coma;
        GeneralDibujo punto;
        caso.procedimiento(g, coma, ',');
        caso.procedimiento(g, punto, '.');
        ASSERT_EQ(coma.NLISTA, punto.NLISTA);
        int conComa = 0;
        for (int i = 1; i <= coma.NLISTA; ++i) {
            std::string texto = Lee(coma, i).texto;
            if (texto.find(',') != std::string::npos) ++conComa;
            for (char& c : texto)
                if (c == ',') c = '.';
            EXPECT_EQ(texto, Lee(punto, i).texto) << caso.nombre << " " << i;
        }
        EXPECT_EQ(conComa, 9) << caso.nombre;  // the nine moment ticks
    }
}

}  // namespace
}  // namespace texalon
