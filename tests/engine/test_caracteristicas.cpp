// The texts of the result tables and of one cell's results, as every screen, diagram, report
// and the batch command show them.
#include "engine/Caracteristicas.h"

#include "engine/Calcular.h"
#include "engine/Calculos.h"
#include "state/Catalogo.h"
#include "state/Formato.h"

#include <gtest/gtest.h>

#include <tuple>

namespace texalon {
namespace {

General Proyecto()
{
    General g;
    ValoresIniciales(g);
    return g;
}

// The texts of a flexure cell in one tuple, in the order of its fields: a cell compares with the
// expected one in a single expectation that prints every text.
auto TextosDeCelda(const ResultadosCeldaFlexion& c)
{
    return std::tie(c.tipo, c.MUSR, c.EPS0, c.MRB, c.MLIMCR, c.PIVOTE, c.FN, c.EPSC, c.EPSSI, c.EPSSS, c.EPSR, c.MU);
}

General FlexionCalculada(double md = 0.0)
{
    General g = Proyecto();
    g.MD = md;
    CalculaFlexion(g, SeccionFlexion::Rectangular, nullptr);
    return g;
}

General ConfinamientoCalculado(double incr = 1.0, double ncp = 0.0)
{
    General g = Proyecto();
    g.INCR = incr;
    g.NCP = ncp;
    CalculaConfinamiento(g, FormaDe(g), nullptr);
    return g;
}

TEST(CeldaFlexion, MomentoEnSuFormatoConElSeparadorDeLaMaquina)
{
    const General g = FlexionCalculada();
    EXPECT_EQ(CeldaFlexion(g, 1, 1, ',').texto, "238,5");
    EXPECT_EQ(CeldaFlexion(g, 1, 1, '.').texto, "238.5");
    EXPECT_EQ(CeldaFlexion(g, 2, 5, ',').texto, "294,9");
    EXPECT_TRUE(CeldaFlexion(g, 1, 1, ',').cumple);
}

TEST(CeldaFlexion, MarcaSinMejoraEsTresGuionesYNuncaAmarilla)
{
    const General g = FlexionCalculada();
    for (int n = 3; n <= 5; ++n) {
        EXPECT_EQ(CeldaFlexion(g, 3, n, ',').texto, "---");
        EXPECT_FALSE(CeldaFlexion(g, 3, n, ',').cumple);
    }
}

TEST(CeldaFlexion, AmarillaCuandoAlcanzaElMomentoDeCalculo)
{
    const General g = FlexionCalculada(230.0);
    for (int n = 1; n <= 5; ++n) {
        EXPECT_TRUE(CeldaFlexion(g, 1, n, ',').cumple);
        EXPECT_TRUE(CeldaFlexion(g, 2, n, ',').cumple);
        EXPECT_EQ(CeldaFlexion(g, 3, n, ',').cumple, n <= 2) << n;
    }
}

TEST(CeldaFlexion, MomentoIgualAlAlcanzadoEsAmarilloYElLetreroQuedaOculto)
{
    // MD is set to the moment of one cell to the last bit: MD plays no part in the moments, so
    // a second Calculate gives the same ones.
    const double mu = FlexionCalculada().MU(1, 1);
    General g = Proyecto();
    g.MD = mu;
    const ResultadoCalculo r = CalculaFlexion(g, SeccionFlexion::Rectangular, nullptr);
    ASSERT_EQ(g.MU(1, 1), g.MD);
    EXPECT_TRUE(CeldaFlexion(g, 1, 1, ',').cumple);
    // Type X with one layer carries a little less (237.72 against 238.47): white.
    ASSERT_LT(g.MU(3, 1), g.MD);
    EXPECT_FALSE(CeldaFlexion(g, 3, 1, ',').cumple);
    // MUSR < MD <= MUMAX: neither verdict.
    EXPECT_LT(g.MUSR, g.MD);
    EXPECT_EQ(r.veredicto, Veredicto::Oculto);

    // At the largest moment, reached by type H with five layers, only that cell is yellow, and
    // the section can still be strengthened.
    g.MD = g.MUMAX;
    const ResultadoCalculo r2 = CalculaFlexion(g, SeccionFlexion::Rectangular, nullptr);
    ASSERT_EQ(g.MU(2, 5), g.MD);
    EXPECT_EQ(r2.veredicto, Veredicto::Oculto);
    for (int t = 1; t <= 3; ++t)
        for (int n = 1; n <= 5; ++n)
            EXPECT_EQ(CeldaFlexion(g, t, n, ',').cumple, t == 2 && n == 5) << t << " " << n;
}

TEST(ResultadosFlexion, CeldaTipoUnoUnaCapa)
{
    const General g = FlexionCalculada();
    const ResultadosCeldaFlexion r = ResultadosFlexion(g, 1, 1, ',');
    // clang-format off
    const ResultadosCeldaFlexion esperada{
        .tipo = "Refuerzo tipo TEXALON L - Núm. capas: 1", .MUSR = "222,5", .EPS0 = "0,00",
        .MRB = "366,6", .MLIMCR = "692,4", .PIVOTE = "R", .FN = "0,103",
        .EPSC = "1,99", .EPSSI = "8,67", .EPSSS = "1,02", .EPSR = "9,64", .MU = "238,5"};
    // clang-format on
    EXPECT_EQ(TextosDeCelda(r), TextosDeCelda(esperada));
}

TEST(ResultadosFlexion, CeldaSinMejoraDaTresGuionesSalvoLosDeLaSeccion)
{
    const General g = FlexionCalculada();
    const ResultadosCeldaFlexion r = ResultadosFlexion(g, 3, 4, '.');
    EXPECT_EQ(std::tie(r.tipo, r.MUSR, r.EPS0), std::tuple("Refuerzo tipo TEXALON X - Núm. capas: 4", "222.5", "0.00"));
    for (const std::string* campo : {&r.MRB, &r.MLIMCR, &r.PIVOTE, &r.FN, &r.EPSC, &r.EPSSI, &r.EPSSS, &r.EPSR, &r.MU})
        EXPECT_EQ(*campo, "---");
}

TEST(ResultadosFlexion, ArmaduraSuperiorSinSigno)
{
    General g = FlexionCalculada();
    g.EPSSS(1, 1) = -0.00123;
    EXPECT_EQ(ResultadosFlexion(g, 1, 1, ',').EPSSS, "1,23");
}

TEST(CeldaConfina, IncrementoEnDosDecimalesYAmarilloSiAlcanzaElPedido)
{
    const General g = ConfinamientoCalculado();
    EXPECT_EQ(CeldaConfina(g, 1, 1, ',').texto, "1,03");
    EXPECT_EQ(CeldaConfina(g, 3, 5, '.').texto, "1.38");
    for (int t = 1; t <= 3; ++t)
        for (int n = 1; n <= 5; ++n)
            EXPECT_TRUE(CeldaConfina(g, t, n, ',').cumple);
}

TEST(CeldaConfina, IncrementoDosConLaColumnaPorDefectoTodasBlancas)
{
    const General g = ConfinamientoCalculado(2.0);
    for (int t = 1; t <= 3; ++t)
        for (int n = 1; n <= 5; ++n)
            EXPECT_FALSE(CeldaConfina(g, t, n, ',').cumple);
}

TEST(CeldaConfina, IncrementoIgualAlAlcanzadoEsAmarillo)
{
    General g = ConfinamientoCalculado();
    g.INCR = g.RESU(2, 3);
    EXPECT_TRUE(CeldaConfina(g, 2, 3, ',').cumple);
    EXPECT_FALSE(CeldaConfina(g, 2, 2, ',').cumple);
}

TEST(ResultadosConfina, CadaCampoEnSuFormato)
{
    const General g = ConfinamientoCalculado(1.0, 1000.0);
    const ResultadosCeldaConfina r = ResultadosConfina(g, 1, 1, ',');
    EXPECT_EQ(r.tipo, "Refuerzo tipo TEXALON L - Núm. capas: 1");
    // EPS0 0.00018148 in thousandths.
    EXPECT_EQ(r.EPS0, "0,18");
    EXPECT_EQ(std::tie(r.WC, r.WR), std::tuple("0,196350", "0,000174"));
    EXPECT_EQ(r.WWD, Formato(g.WWD(1, 1), "0.000000", ','));
    EXPECT_EQ(r.WWD.substr(0, 6), "0,0118");
    EXPECT_EQ(r.EPSR, Formato(g.EPSRC(1, 1) * 1000.0, "0.00", ','));
    EXPECT_EQ(r.SIGMAR, Formato(g.SIGMAR(1, 1), "0.0", ','));
    EXPECT_EQ(r.TENSCONF, Formato(g.TENSCONF(1, 1), "0.000", ','));
    EXPECT_EQ(r.RESU, Formato(g.RESU(1, 1), "0.00", ','));
}

TEST(ResultadosConfina, ElTipoYLasCapasDeLaCelda)
{
    const General g = ConfinamientoCalculado();
    const ResultadosCeldaConfina r = ResultadosConfina(g, 3, 5, '.');
    EXPECT_EQ(std::tie(r.tipo, r.RESU, r.EPS0), std::tuple("Refuerzo tipo TEXALON X - Núm. capas: 5", "1.38", "0.00"));
}

TEST(CargaCaracteristicas, TipoUnoConLosCoeficientesPorDefecto)
{
    General g = Proyecto();
    CargaCaracteristicas(g, 1);
    const TextosCaracteristicas t = Caracteristicas(g, ',');
    EXPECT_EQ(t.ESPESOR, "0,111");
    EXPECT_EQ(t.E, "230000");
    EXPECT_EQ(t.EPSU, "15,00");
    EXPECT_EQ(t.cabecera, (std::vector<std::string>{"Capas", "Km", "Def. cálculo", "FR (N/mm²)"}));
    ASSERT_EQ(t.filas.size(), 5u);
    EXPECT_EQ(t.filas[0], (std::vector<std::string>{"1", "0,900", "9,64", "2217,9"}));
    EXPECT_EQ(t.filas[1][1], "0,881");
    EXPECT_EQ(t.filas[1][2], "9,44");
    EXPECT_EQ(t.filas[4], (std::vector<std::string>{"5", "0,702", "7,52", Formato(230000.0 * g.EPSD(5), "0.0", ',')}));
}

TEST(CargaCaracteristicas, LaTablaDeCadaTipo)
{
    General g = Proyecto();
    CargaCaracteristicas(g, 2);
    TextosCaracteristicas t = Caracteristicas(g, '.');
    EXPECT_EQ(t.ESPESOR, "0.167");
    EXPECT_EQ(t.filas[2][1], "0.731");
    EXPECT_EQ(t.filas[2][2], "7.83");
    CargaCaracteristicas(g, 3);
    t = Caracteristicas(g, '.');
    EXPECT_EQ(t.ESPESOR, "0.163");
    EXPECT_EQ(t.E, "440000");
    EXPECT_EQ(t.EPSU, "5.50");
    EXPECT_EQ(t.filas[0][1], "0.832");
    EXPECT_EQ(t.filas[0][2], "3.27");
    EXPECT_EQ(t.filas[4][2], "1.17");
}

TEST(CargaCaracteristicas, ElCoeficienteDelRefuerzoCambiaLaDeformacionNoElFactor)
{
    General g = Proyecto();
    g.GR = 1.0;
    CargaCaracteristicas(g, 3);
    const TextosCaracteristicas t = Caracteristicas(g, ',');
    EXPECT_EQ(t.filas[0][1], "0,832");
    EXPECT_EQ(t.filas[0][2], Formato(0.0055 * g.KM(1) * 1000.0, "0.00", ','));
    EXPECT_EQ(t.filas[0][2], "4,58");
}

}  // namespace
}  // namespace texalon
