// The stress-strain chart of the characteristics screen, element by element.
#include "diagrams/Grafico.h"

#include "Elementos.h"
#include "comun/Tablas.h"
#include "engine/Caracteristicas.h"
#include "state/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace texalon {
namespace {

using prueba::Elemento;
using prueba::EsperadoLinea;
using prueba::EsperadoPunto;
using prueba::EsperadoTexto;
using prueba::Lee;

constexpr Color kRojo255 = ColorRGB(255, 0, 0);
constexpr Color kAmarilloX = ColorRGB(214, 204, 31);

// The start-up state with the design strains of the type in hand, as the screen leaves them.
General EstadoCaracteristicas(int tipo)
{
    General g;
    ValoresIniciales(g);
    CargaCaracteristicas(g, tipo);
    return g;
}

// A catalogue of our own: ultimate strain and modulus of each type.
void FijaTipo(General& g, int tipo, double epsu, double modulo)
{
    g.CATALOGO(tipo, 3) = epsu;
    g.CATALOGO(tipo, 2) = modulo;
}

// Where the strain axis ends and where the stress axis ends.
double FinDeformacion(const GeneralDibujo& d) { return Lee(d, 1).x2; }
double FinTension(const GeneralDibujo& d) { return Lee(d, 2).y2; }

// The ultimate strain and the modulus of a sheet type.
struct Lamina {
    double epsu;
    double modulo;
};

// The chart of type 1 once the three types have these sheets.
GeneralDibujo TensionConLaminas(const Lamina& l, const Lamina& h, const Lamina& x)
{
    General g = EstadoCaracteristicas(1);
    FijaTipo(g, 1, l.epsu, l.modulo);
    FijaTipo(g, 2, h.epsu, h.modulo);
    FijaTipo(g, 3, x.epsu, x.modulo);
    GeneralDibujo d;
    DiagramaTension(g, d, 1, ',');
    return d;
}

// The full list of the start-up project with the type TEXALON L in hand. The extents worked
// out by hand: the greatest ultimate strain is 15 per mil, odd, so the axis goes to 16 per mil;
// the greatest rupture stress is 0.015 × 230000 = 3450, no multiple of 500, so the axis goes
// to 3500.
std::vector<Elemento> EsperadoTipoL(const General& g, char sep)
{
    const double EX = 0.016;
    const double SY = 3500.0;
    const Color negro = 0;
    std::vector<Elemento> e;
    e.push_back(EsperadoLinea(0, 0, EX, 0, negro, 1, 1));
    e.push_back(EsperadoLinea(0, 0, 0, SY, negro, 1, 1));
    const auto proyecciones = [&] {
        for (double d : {g.EPSD(1), g.EPSD(5)}) {
            e.push_back(EsperadoLinea(0, d * 230000.0, d, d * 230000.0, negro, 3, 1));
            e.push_back(EsperadoLinea(d, 0, d, d * 230000.0, negro, 3, 1));
        }
    };
    // TEXALON L, in full, named, with its design points.
    e.push_back(EsperadoLinea(0, 0, 0.015, 3450.0, kRojo255, 1, 2));
    e.push_back(EsperadoTexto(Clase::Texto, 0.0008 + 0.015, 3450.0 + 175.0, negro, 8, false, "TEXALON L"));
    proyecciones();
    for (int n = 1; n <= 5; ++n) {
        e.push_back(EsperadoPunto(g.EPSD(n), g.EPSD(n) * 230000.0, kRojo255));
        e.push_back(
            EsperadoTexto(Clase::Texto, g.EPSD(n), g.EPSD(n) * 230000.0 + 125.0, kRojo255, 8, false, std::to_string(n)));
    }
    // TEXALON H and TEXALON X, dotted and thin.
    e.push_back(EsperadoLinea(0, 0, 0.015, 3450.0, negro, 3, 1));
    proyecciones();
    e.push_back(EsperadoLinea(0, 0, 0.0055, 2420.0, kAmarilloX, 3, 1));
    proyecciones();
    const std::vector<std::string> deformaciones = {"1,60", "3,20", "4,80", "6,40", "8,00",
                                                    "9,60", "11,20", "12,80", "14,40"};
    for (int k = 1; k <= 9; ++k) {
        std::string texto = deformaciones[static_cast<std::size_t>(k - 1)];
        if (sep == '.') texto[texto.find(',')] = '.';
        e.push_back(EsperadoTexto(Clase::Texto, 0.0016 * k, -100.0, negro, 8, false, texto));
    }
    const std::vector<std::string> tensiones = {" 350", " 700", "1050", "1400", "1750", "2100", "2450", "2800", "3150"};
    for (int k = 1; k <= 9; ++k)
        e.push_back(EsperadoTexto(Clase::TextoIzquierda, 0, 350.0 * k, negro, 8, false,
                                  tensiones[static_cast<std::size_t>(k - 1)]));
    e.push_back(EsperadoTexto(Clase::Texto, 0.0168, 0, negro, 8, false, "Def (‰)"));
    e.push_back(EsperadoTexto(Clase::Texto, 0, 3675.0, negro, 8, false, "Tensión (N/mm²)"));
    e.push_back(EsperadoTexto(Clase::Texto, 0.016 / 1.75, 4375.0, negro, 12, true, "DIAGRAMA TENSION-DEFORMACION"));
    return e;
}

TEST(DiagramaTension, ProyectoInicialTipoLDaLaListaCompletaConComa)
{
    const General g = EstadoCaracteristicas(1);
    GeneralDibujo d;
    DiagramaTension(g, d, 1, ',');
    EXPECT_EQ(d.NLISTA, 49);
    prueba::EsperaLista(d, EsperadoTipoL(g, ','));
}

TEST(DiagramaTension, ProyectoInicialTipoLDaLaListaCompletaConPunto)
{
    const General g = EstadoCaracteristicas(1);
    GeneralDibujo d;
    DiagramaTension(g, d, 1, '.');
    prueba::EsperaLista(d, EsperadoTipoL(g, '.'));
}

TEST(DiagramaTension, CadaTipoDaCuarentaYNueveElementos)
{
    for (Entero tipo = 1; tipo <= 3; ++tipo) {
        const General g = EstadoCaracteristicas(tipo);
        GeneralDibujo d;
        DiagramaTension(g, d, tipo, ',');
        EXPECT_EQ(d.NLISTA, 49) << "tipo " << tipo;
    }
}

TEST(DiagramaTension, EmpiezaConUnaListaNueva)
{
    const General g = EstadoCaracteristicas(1);
    GeneralDibujo d;
    NuevaLista(d);
    d.NLISTA = 900;
    d.LISTA(900, 2) = 7.0;
    d.TEXTOS(900) = "viejo";
    DiagramaTension(g, d, 1, ',');
    EXPECT_EQ(d.NLISTA, 49);
    EXPECT_EQ(d.LISTA(900, 2), 0.0);
    EXPECT_EQ(d.TEXTOS(900), "");
}

TEST(DiagramaTension, LosOtrosTiposPunteadosFinosSinNombreNiPuntosYLasEscalasNoCambian)
{
    const General g = EstadoCaracteristicas(2);
    GeneralDibujo d;
    DiagramaTension(g, d, 2, ',');
    // Type L: its dotted thin line, then straight to the projections, no name.
    const Elemento l = Lee(d, 3);
    EXPECT_EQ(l.clase, 1);
    EXPECT_EQ(l.color, kRojo255);
    EXPECT_EQ(l.estilo, 3.0);
    EXPECT_EQ(l.ancho, 1.0);
    EXPECT_EQ(Lee(d, 4).clase, 1);
    EXPECT_EQ(Lee(d, 4).estilo, 3.0);
    EXPECT_EQ(Lee(d, 4).color, 0);
    // Type H in full, named.
    const Elemento h = Lee(d, 8);
    EXPECT_EQ(h.estilo, 1.0);
    EXPECT_EQ(h.ancho, 2.0);
    EXPECT_EQ(Lee(d, 9).texto, "TEXALON H");
    // Type X after the ten points and numbers of H: dotted, thin, then its projections.
    const Elemento x = Lee(d, 24);
    EXPECT_EQ(x.color, kAmarilloX);
    EXPECT_EQ(x.estilo, 3.0);
    EXPECT_EQ(x.ancho, 1.0);
    EXPECT_DOUBLE_EQ(x.x2, 0.0055);
    // Points and names belong to H alone.
    int puntos = 0;
    int nombres = 0;
    for (int i = 1; i <= d.NLISTA; ++i) {
        const Elemento e = Lee(d, i);
        if (e.clase == 2) {
            ++puntos;
            EXPECT_EQ(e.color, 0);  // the colour of TEXALON H
        }
        if (e.texto.rfind("TEXALON", 0) == 0) ++nombres;
    }
    EXPECT_EQ(puntos, 5);
    EXPECT_EQ(nombres, 1);
    // The scales come from all types, whichever is in hand.
    for (Entero tipo = 1; tipo <= 3; ++tipo) {
        const General otro = EstadoCaracteristicas(tipo);
        GeneralDibujo e;
        DiagramaTension(otro, e, tipo, ',');
        EXPECT_DOUBLE_EQ(FinDeformacion(e), 0.016);
        EXPECT_DOUBLE_EQ(FinTension(e), 3500.0);
    }
}

TEST(DiagramaTension, LasProyeccionesSonDelTipoEnManoYSeRepitenEnCadaPasada)
{
    const General g = EstadoCaracteristicas(3);
    GeneralDibujo d;
    DiagramaTension(g, d, 3, ',');
    const double d1 = g.EPSD(1);
    const double d5 = g.EPSD(5);
    // Passes of L (3..7) and H (8..12): a line, then the four projections of X.
    for (int inicio : {4, 9, 15}) {
        EXPECT_DOUBLE_EQ(Lee(d, inicio).y1, d1 * 440000.0);
        EXPECT_DOUBLE_EQ(Lee(d, inicio).x2, d1);
        EXPECT_DOUBLE_EQ(Lee(d, inicio + 1).x1, d1);
        EXPECT_DOUBLE_EQ(Lee(d, inicio + 1).y2, d1 * 440000.0);
        EXPECT_DOUBLE_EQ(Lee(d, inicio + 2).y1, d5 * 440000.0);
        EXPECT_DOUBLE_EQ(Lee(d, inicio + 3).x1, d5);
    }
}

TEST(DiagramaTension, NumerosDeCapas125PorEncimaEnElColorDeLaLineaYSolapadosSiEpsdCoincide)
{
    General g = EstadoCaracteristicas(3);
    GeneralDibujo d;
    DiagramaTension(g, d, 3, ',');
    // X is in hand: its line at 13, name at 14, projections 15..18, points and numbers 19..28.
    for (int n = 1; n <= 5; ++n) {
        const Elemento punto = Lee(d, 17 + 2 * n);
        const Elemento numero = Lee(d, 18 + 2 * n);
        EXPECT_EQ(punto.clase, 2);
        EXPECT_EQ(punto.color, kAmarilloX);
        EXPECT_EQ(numero.clase, 3);
        EXPECT_EQ(numero.color, kAmarilloX);
        EXPECT_EQ(numero.ancho, 8.0);
        EXPECT_FALSE(numero.negrita);
        EXPECT_EQ(numero.texto, std::to_string(n));
        EXPECT_DOUBLE_EQ(numero.x1, punto.x1);
        EXPECT_DOUBLE_EQ(numero.y1, punto.y1 + 125.0);
    }
    // Alike design strains put the numbers on one another.
    for (int n = 1; n <= 5; ++n) g.EPSD(n) = 0.002;
    DiagramaTension(g, d, 3, ',');
    for (int n = 1; n <= 5; ++n) {
        EXPECT_DOUBLE_EQ(Lee(d, 18 + 2 * n).x1, 0.002);
        EXPECT_DOUBLE_EQ(Lee(d, 18 + 2 * n).y1, 0.002 * 440000.0 + 125.0);
    }
}

TEST(DiagramaTension, TensionMaximaQueRedondeaAMultiploDe500SeQuedaComoEsta)
{
    // Type L up to 2500.4 N/mm².
    const GeneralDibujo d = TensionConLaminas({0.01, 250040.0}, {0.01, 100000.0}, {0.01, 100000.0});
    EXPECT_DOUBLE_EQ(FinTension(d), 2500.4);
    EXPECT_EQ(FinTension(d), 0.01 * 250040.0);
    // The ticks are tenths of the untidy extent: 250.04 shows as 250.
    EXPECT_EQ(Lee(d, 38).texto, " 250");
    EXPECT_DOUBLE_EQ(Lee(d, 38).y1, 250.04);
}

// The sheets of the three types, and where the scales end: the strain's end and the stress's,
// each exactly, where the case looks at it.
struct FinDeEscala {
    const char* nombre;
    Lamina l, h, x;
    std::optional<double> deformacion;
    std::optional<double> tension;
};

class FinDeLasEscalas : public ::testing::TestWithParam<FinDeEscala> {};

TEST_P(FinDeLasEscalas, EsElQueTocaALasLaminas)
{
    const FinDeEscala& caso = GetParam();
    const GeneralDibujo d = TensionConLaminas(caso.l, caso.h, caso.x);
    if (caso.deformacion) {
        EXPECT_EQ(FinDeformacion(d), *caso.deformacion);
    }
    if (caso.tension) {
        EXPECT_EQ(FinTension(d), *caso.tension);
    }
}

// clang-format off
const FinDeEscala kFinesDeEscala[] = {
    // Type L up to 2501 N/mm².
    {"TensionMaximaDe2501SubeA3000", {0.01, 250100.0}, {0.01, 100000.0}, {0.01, 100000.0}, {}, 3000.0},
    // Type L up to 2500.5 N/mm²: to the even 2500, a multiple.
    {"TensionEnElMedioRedondeaAlParYSeQueda", {0.5, 5001.0}, {0.01, 100000.0}, {0.01, 100000.0}, {}, 2500.5},
    // Type X to 20 per mil, 4000 N/mm².
    {"ElUltimoTipoFijaLasEscalasSiEsElMasLargoYElMasFuerte",
     {0.01, 100000.0}, {0.01, 100000.0}, {0.02, 200000.0}, 0.02, 4000.0},
    // Type L to 12.5 per mil, which goes to 12, even.
    {"DeformacionEnElMedioRedondeaAlParYSeQueda", {0.0125, 200000.0}, {0.01, 200000.0}, {0.005, 200000.0}, 0.0125, {}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(DiagramaTension, FinDeLasEscalas, ::testing::ValuesIn(kFinesDeEscala), prueba::NombreDeFila());

TEST(DiagramaTension, DeformacionQueRedondeaAParSeQuedaYLasEtiquetasNoSonRedondas)
{
    const GeneralDibujo d = TensionConLaminas({0.0121, 200000.0}, {0.01, 200000.0}, {0.005, 200000.0});
    EXPECT_EQ(FinDeformacion(d), 0.0121);
    // 1.21, 2.42, ... per mil.
    const std::vector<std::string> esperadas = {"1,21", "2,42", "3,63", "4,84", "6,05",
                                                "7,26", "8,47", "9,68", "10,89"};
    for (int k = 1; k <= 9; ++k) {
        const Elemento e = Lee(d, 28 + k);
        EXPECT_EQ(e.texto, esperadas[static_cast<std::size_t>(k - 1)]) << k;
        EXPECT_DOUBLE_EQ(e.x1, 0.00121 * k);
        EXPECT_EQ(e.y1, -100.0);
    }
}

TEST(DiagramaTension, DeformacionDe13PorMilSubeA14)
{
    const GeneralDibujo d = TensionConLaminas({0.0131, 200000.0}, {0.01, 200000.0}, {0.005, 200000.0});
    EXPECT_DOUBLE_EQ(FinDeformacion(d), 0.014);
}

TEST(DiagramaTension, DeformacionPar18PorMilSeQueda)
{
    General g = EstadoCaracteristicas(1);
    FijaTipo(g, 1, 0.018, 100000.0);
    GeneralDibujo d;
    DiagramaTension(g, d, 1, ',');
    EXPECT_EQ(FinDeformacion(d), 0.018);
    FijaTipo(g, 1, 0.017, 100000.0);
    DiagramaTension(g, d, 1, ',');
    EXPECT_DOUBLE_EQ(FinDeformacion(d), 0.018);
}

TEST(DiagramaTension, TipoFueraDeIntervaloDejaTodoPunteadoYFallaEnLaRejilla)
{
    const General g = EstadoCaracteristicas(1);
    for (Entero tipo : {Entero{0}, Entero{4}}) {
        GeneralDibujo d;
        try {
            DiagramaTension(g, d, tipo, ',');
            ADD_FAILURE() << "tipo " << tipo << " no falla";
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.Numero(), 9);
        }
        // The axes and the dotted line of the first type were written before the failure.
        ASSERT_EQ(d.NLISTA, 3);
        EXPECT_EQ(Lee(d, 3).estilo, 3.0);
        EXPECT_EQ(Lee(d, 3).ancho, 1.0);
    }
}

TEST(DiagramaTension, NoTocaNingunaBandera)
{
    const General g = EstadoCaracteristicas(1);
    for (bool valor : {false, true}) {
        GeneralDibujo d;
        d.F_PIVOTES = valor;
        d.F_MOMENTOS = !valor;
        d.F_SECCION = valor;
        d.F_CAPAS = !valor;
        DiagramaTension(g, d, 1, ',');
        // Pivots, moments, section and layers.
        EXPECT_EQ(prueba::Banderas(d), std::tuple(valor, !valor, valor, !valor));
    }
}

TEST(DiagramaTension, SoloEscribeLaLista)
{
    const General g = EstadoCaracteristicas(1);
    GeneralDibujo d = prueba::DibujoEnUso();
    DiagramaTension(g, d, 1, ',');
    EXPECT_EQ(d.NLISTA, 49);
    prueba::EsperaSoloLaLista(d);
}

}  // namespace
}  // namespace texalon
