// The writers: the exact bytes of the worked examples, the number forms, and what a reader gives
// back of what a writer wrote.
#include "Auxiliares.h"

#include "comun/Tablas.h"

#include "files/Ficheros.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <string>

namespace texalon {
namespace {

using prueba::Avisos;
using prueba::ConFinDeLinea;
using prueba::DirectorioTemporal;
using prueba::LeeBytes;

General EstadoDeArranque()
{
    General g;
    ValoresIniciales(g);
    return g;
}

// The start values written as each kind of flexure file, byte by byte: one row a case.
struct FlexionDeArranque {
    const char* nombre;
    SeccionFlexion tipo;
    const char* bytes;
};

class GrabaFlexionDeArranque : public ::testing::TestWithParam<FlexionDeArranque> {};

TEST_P(GrabaFlexionDeArranque, SaleByteAByte)
{
    DirectorioTemporal dir;
    General g = EstadoDeArranque();
    Avisos avisos;
    GrabaFlexion(g, dir.Fichero("flexion.vmf"), GetParam().tipo, avisos.Funcion());
    EXPECT_FALSE(g.F_ERROR);
    EXPECT_TRUE(avisos.Textos().empty());
    EXPECT_EQ(LeeBytes(dir.Fichero("flexion.vmf")), GetParam().bytes);
}

// clang-format off
const FlexionDeArranque kFlexionesDeArranque[] = {
    {"Rectangular", SeccionFlexion::Rectangular, "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n"},
    {"SeccionT",    SeccionFlexion::T, "2\r\n0.4\r\n0.6\r\n0.2\r\n0.2\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n"},
    // A type other than 2 does not write the lines of the T.
    {"TipoDistintoDeDosSinLasLineasDeT", static_cast<SeccionFlexion>(3),
     "3\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(GrabaFlexion, GrabaFlexionDeArranque, ::testing::ValuesIn(kFlexionesDeArranque),
                         prueba::NombreDeFila());

TEST(GrabaConfina, PilarRectangularSaleByteAByte)
{
    DirectorioTemporal dir;
    General g = EstadoDeArranque();
    g.SECCION = 3;
    g.DIAM = 0.5;
    g.LADOMENOR = 0.4;
    g.NCP = 1200.0;
    Avisos avisos;
    GrabaConfina(g, dir.Fichero("confina.vmc"), avisos.Funcion());
    EXPECT_FALSE(g.F_ERROR);
    EXPECT_TRUE(avisos.Textos().empty());
    EXPECT_EQ(LeeBytes(dir.Fichero("confina.vmc")), "3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n1200\r\n1\r\n");
}

TEST(GrabaFlexion, OrdenDeLineasDistintoDelDePantalla)
{
    DirectorioTemporal dir;
    // Each field numbered in the order of the screen; EPS0 is never written.
    General g;
    // clang-format off
    g.ANCHO = 1;   g.CANTO = 2;   g.ANCHOALMA = 3;   g.CANTOALA = 4;   g.RECUB = 5;   g.ASI = 6;   g.ASS = 7;
    g.FCK = 8;     g.FYK = 9;     g.GC = 10;         g.GS = 11;        g.GR = 12;
    g.ANCHOR = 13; g.MCP = 14;    g.MD = 15;         g.EPS0 = 16;
    // clang-format on
    GrabaFlexion(g, dir.Fichero("t.vmf"), SeccionFlexion::T, Aviso());
    EXPECT_EQ(LeeBytes(dir.Fichero("t.vmf")),
              ConFinDeLinea({"2", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15"}));
    GrabaFlexion(g, dir.Fichero("r.vmf"), SeccionFlexion::Rectangular, Aviso());
    EXPECT_EQ(LeeBytes(dir.Fichero("r.vmf")),
              ConFinDeLinea({"1", "1", "2", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15"}));
}

TEST(GrabaConfina, OrdenDeLineasYSinFykNiNu)
{
    DirectorioTemporal dir;
    // Each field numbered in the order of the file; FYK and NU are not written.
    General g;
    // clang-format off
    g.SECCION = 2;  g.DIAM = 1;  g.LADOMENOR = 2;  g.FCK = 3;  g.GC = 4;  g.GS = 5;  g.GR = 6;  g.NCP = 7;  g.INCR = 8;
    g.FYK = 99;     g.NU = 98;
    // clang-format on
    GrabaConfina(g, dir.Fichero("c.vmc"), Aviso());
    EXPECT_EQ(LeeBytes(dir.Fichero("c.vmc")), ConFinDeLinea({"2", "1", "2", "3", "4", "5", "6", "7", "8"}));
}

// The start values with a few fields changed, and the rectangular file written from them.
struct FlexionCambiada {
    const char* nombre;
    void (*cambia)(General&);
    const char* bytes;
};

class GrabaFlexionCambiada : public ::testing::TestWithParam<FlexionCambiada> {};

TEST_P(GrabaFlexionCambiada, SaleByteAByte)
{
    DirectorioTemporal dir;
    General g = EstadoDeArranque();
    GetParam().cambia(g);
    GrabaFlexion(g, dir.Fichero("f.vmf"), SeccionFlexion::Rectangular, Aviso());
    EXPECT_FALSE(g.F_ERROR);
    EXPECT_EQ(LeeBytes(dir.Fichero("f.vmf")), GetParam().bytes);
}

// clang-format off
const FlexionCambiada kFlexionesCambiadas[] = {
    {"NoCompruebaLosValores",
     [](General& g) { g.ASI = 0.0; g.FCK = 99.0; g.ANCHOR = 5.0; },
     "1\r\n0.4\r\n0.6\r\n0.05\r\n0\r\n0\r\n99\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n5\r\n0\r\n0\r\n"},
    {"CeroNegativoSeEscribeComoCeroYNegativosConSigno",
     [](General& g) { g.ASS = -0.0; g.MCP = -12.5; g.MD = -0.0; },
     "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n-12.5\r\n0\r\n"},
    {"NumerosEnDecimalLlanoSinExponente",
     [](General& g) { g.ANCHO = 1e-7; g.CANTO = 123456.789; g.RECUB = 1e20; },
     "1\r\n0.0000001\r\n123456.789\r\n100000000000000000000\r\n10\r\n0\r\n25\r\n"
     "500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(GrabaFlexion, GrabaFlexionCambiada, ::testing::ValuesIn(kFlexionesCambiadas),
                         prueba::NombreDeFila());

TEST(GrabaFlexion, ConfiguracionRegionalEspanolaSigueEscribiendoPuntos)
{
    const char* anterior = std::setlocale(LC_ALL, nullptr);
    const std::string guardada = anterior != nullptr ? anterior : "C";
    // Its names on Linux, then on Windows.
    bool espanola = false;
    for (const char* nombre : {"es_ES.UTF-8", "es_ES.utf8", "es-ES", "Spanish_Spain.1252"})
        if (!espanola) espanola = std::setlocale(LC_ALL, nombre) != nullptr;
    if (!espanola) GTEST_SKIP() << "no hay configuración regional española en esta máquina";
    ASSERT_EQ(std::localeconv()->decimal_point, std::string(","));
    DirectorioTemporal dir;
    General g = EstadoDeArranque();
    GrabaFlexion(g, dir.Fichero("f.vmf"), SeccionFlexion::Rectangular, Aviso());
    const std::string escrito = LeeBytes(dir.Fichero("f.vmf"));
    SeccionFlexion tipo{};
    g.ANCHO = 7.0;
    LeeFlexion(g, dir.Fichero("f.vmf"), tipo, Aviso());
    std::setlocale(LC_ALL, guardada.c_str());
    EXPECT_EQ(escrito, "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n");
    EXPECT_FALSE(g.F_ERROR);
    EXPECT_EQ(g.ANCHO, 0.4);
}

TEST(GrabaConfina, ReemplazaEnteroUnFicheroMasLargo)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("f.vmf"), std::string(5000, 'x'));
    General g = EstadoDeArranque();
    GrabaConfina(g, dir.Fichero("f.vmf"), Aviso());
    EXPECT_EQ(LeeBytes(dir.Fichero("f.vmf")), "1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n");
}

// --- Ida y vuelta ------------------------------------------------------------------------------

TEST(GrabaFlexion, IdaYVueltaDevuelveCadaValorExactoEnSeccionT)
{
    DirectorioTemporal dir;
    General escrito;
    ValoresIniciales(escrito);
    escrito.ANCHO = 0.4;
    escrito.CANTO = 1e5 + 0.1;
    escrito.ANCHOALMA = 1.0 / 3.0;
    escrito.CANTOALA = 0.1 + 0.2;
    escrito.RECUB = 2.0 / 3.0 * 1e-3;
    escrito.ASI = 1e300;
    escrito.ASS = std::numeric_limits<double>::denorm_min();
    escrito.FCK = 15.000000000000002;
    escrito.FYK = 599.9999999999999;
    escrito.GC = 0.1;
    escrito.GS = 1.0 / 7.0;
    escrito.GR = std::numeric_limits<double>::max();
    escrito.ANCHOR = 0.30000000000000004 / 3.0;
    escrito.MCP = 9007199254740993.0;
    escrito.MD = 1e-7;
    GrabaFlexion(escrito, dir.Fichero("f.vmf"), SeccionFlexion::T, Aviso());
    ASSERT_FALSE(escrito.F_ERROR);

    General leido = prueba::EstadoAjeno();
    leido.EPS0 = escrito.EPS0;
    SeccionFlexion tipo{};
    Avisos avisos;
    LeeFlexion(leido, dir.Fichero("f.vmf"), tipo, avisos.Funcion());
    EXPECT_FALSE(leido.F_ERROR);
    EXPECT_TRUE(avisos.Textos().empty());
    EXPECT_EQ(tipo, SeccionFlexion::T);
    prueba::EsperaMismosValoresFlexion(escrito, leido);
}

TEST(GrabaFlexion, IdaYVueltaDevuelveCadaValorExactoEnRectangular)
{
    DirectorioTemporal dir;
    General escrito;
    ValoresIniciales(escrito);
    escrito.ANCHO = 0.1 + 0.2;
    escrito.CANTO = 123456.789;
    escrito.RECUB = 1.0 / 3.0;
    escrito.ASI = 1e-7;
    escrito.ASS = 1e300;
    escrito.FCK = 49.99999999999999;
    escrito.FYK = 300.00000000000006;
    escrito.GC = 0.1;
    escrito.GS = 1.0 / 7.0;
    escrito.GR = std::numeric_limits<double>::max();
    escrito.ANCHOR = 0.1 + 0.2;
    escrito.MCP = std::numeric_limits<double>::min();
    escrito.MD = 9007199254740993.0;
    GrabaFlexion(escrito, dir.Fichero("f.vmf"), SeccionFlexion::Rectangular, Aviso());

    General leido = prueba::EstadoAjeno();
    const General antes = leido;
    SeccionFlexion tipo{};
    LeeFlexion(leido, dir.Fichero("f.vmf"), tipo, Aviso());
    EXPECT_FALSE(leido.F_ERROR);
    EXPECT_EQ(tipo, SeccionFlexion::Rectangular);
    escrito.ANCHOALMA = antes.ANCHOALMA;
    escrito.CANTOALA = antes.CANTOALA;
    escrito.EPS0 = antes.EPS0;
    prueba::EsperaMismosValoresFlexion(escrito, leido);
}

TEST(GrabaConfina, IdaYVueltaDevuelveCadaValorExacto)
{
    DirectorioTemporal dir;
    General escrito;
    ValoresIniciales(escrito);
    escrito.SECCION = 3;
    escrito.DIAM = 1.0 / 3.0;
    escrito.LADOMENOR = 0.1 + 0.2;
    escrito.FCK = 15.000000000000002;
    escrito.GC = 1e-7;
    escrito.GS = 123456.789;
    escrito.GR = 1e300;
    escrito.NCP = std::numeric_limits<double>::min();
    escrito.INCR = 1.0000000000000002;
    GrabaConfina(escrito, dir.Fichero("c.vmc"), Aviso());

    General leido = prueba::EstadoAjeno();
    Avisos avisos;
    LeeConfina(leido, dir.Fichero("c.vmc"), avisos.Funcion());
    EXPECT_FALSE(leido.F_ERROR);
    EXPECT_TRUE(avisos.Textos().empty());
    // Neither NU nor FYK are in the file: they stay as the reader found them.
    escrito.NU = leido.NU;
    escrito.FYK = leido.FYK;
    EXPECT_EQ(leido.NU, 0.3);
    EXPECT_EQ(leido.FYK, 410.0);
    prueba::EsperaMismosValoresConfinamiento(escrito, leido);
}

TEST(GrabaFlexion, EstadoDeArranqueVuelveIgualPorAmbosTipos)
{
    DirectorioTemporal dir;
    for (SeccionFlexion tipo : {SeccionFlexion::Rectangular, SeccionFlexion::T}) {
        General escrito = EstadoDeArranque();
        GrabaFlexion(escrito, dir.Fichero("f.vmf"), tipo, Aviso());
        General leido = prueba::EstadoAjeno();
        leido.ANCHOALMA = 0.2;
        leido.CANTOALA = 0.2;
        leido.EPS0 = 0.0;
        SeccionFlexion leido_tipo{};
        LeeFlexion(leido, dir.Fichero("f.vmf"), leido_tipo, Aviso());
        EXPECT_FALSE(leido.F_ERROR);
        EXPECT_EQ(leido_tipo, tipo);
        prueba::EsperaMismosValoresFlexion(escrito, leido);
    }
}

}  // namespace
}  // namespace texalon
