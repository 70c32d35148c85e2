#include "state/General.h"

#include "comun/Proyectos.h"
#include "comun/Tablas.h"

#include <gtest/gtest.h>

#include <string>

namespace texalon {
namespace {

// A field that start-up writes, and its value: zeros exactly where the program counts on a
// zero, and the defaults of the screens.
struct ValorDeArranque {
    const char* nombre;
    double General::*campo;
    double valor;
};

class Arranque : public ::testing::TestWithParam<ValorDeArranque> {};

TEST_P(Arranque, DejaSuValor)
{
    General g;
    ValoresIniciales(g);
    EXPECT_EQ(g.*GetParam().campo, GetParam().valor);
}

// clang-format off
const ValorDeArranque kValoresDeArranque[] = {
    // Exact zeros.
    {"ASS",       &General::ASS,       0.0},
    {"MCP",       &General::MCP,       0.0},
    {"MD",        &General::MD,        0.0},
    {"NCP",       &General::NCP,       0.0},
    {"EPS0",      &General::EPS0,      0.0},
    // The defaults.
    {"INCR",      &General::INCR,      1.0},
    {"ANCHOR",    &General::ANCHOR,    0.125},
    {"GC",        &General::GC,        1.5},
    {"GS",        &General::GS,        1.15},
    {"GR",        &General::GR,        1.4},
    {"FCK",       &General::FCK,       25.0},
    {"FYK",       &General::FYK,       500.0},
    {"NU",        &General::NU,        0.5},
    {"ANCHO",     &General::ANCHO,     0.4},
    {"CANTO",     &General::CANTO,     0.6},
    {"ANCHOALMA", &General::ANCHOALMA, 0.2},
    {"CANTOALA",  &General::CANTOALA,  0.2},
    {"RECUB",     &General::RECUB,     0.05},
    {"ASI",       &General::ASI,       10.0},
    {"DIAM",      &General::DIAM,      0.5},
    {"LADOMENOR", &General::LADOMENOR, 0.4},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(General, Arranque, ::testing::ValuesIn(kValoresDeArranque), prueba::NombreDeFila());

TEST(General, ArranqueDaLaSeccionYLosTamanosPorDefecto)
{
    General g;
    ValoresIniciales(g);
    EXPECT_EQ(g.SECCION, 1);
    EXPECT_EQ(g.NTIPOS, 3);
    EXPECT_EQ(g.MAXCAPAS, 5);
}

TEST(General, ArranqueNoCreaNingunArregloDeResultados)
{
    General g;
    ValoresIniciales(g);
    for (const Arreglo<double>* arreglo :
         {&g.MU, &g.FN, &g.MRB, &g.XRB,   &g.MLIMSR, &g.MLIMCR,   &g.XLIM, &g.EPSC, &g.EPSSI, &g.EPSSS, &g.EPSR,
          &g.WR, &g.WC, &g.WWD, &g.EPSRC, &g.SIGMAR, &g.TENSCONF, &g.RESU, &g.LANC, &g.KM,    &g.EPSD})
        EXPECT_FALSE(arreglo->Existe());
    EXPECT_FALSE(g.PIVOTE.Existe());
    EXPECT_THROW(g.MU(1, 1), ErrorEjecucion);
}

TEST(General, BanderasDeArranque)
{
    const General g;
    for (bool bandera : {g.F_ERROR, g.F_PRESENTACION, g.F_ABIERTO, g.F_CALCULADO, g.F_GRABADO, g.F_MODIFICADO,
                         g.F_CALCULANDO, g.F_MAPI, g.F_FLEXION, g.F_CONFINA, g.F_CARAC, g.F_FLEXIONT})
        EXPECT_FALSE(bandera);
    EXPECT_TRUE(g.F_NUEVO);
    EXPECT_EQ(g.FICHERO, "");
    EXPECT_EQ(g.DIRECTORIO, "");
}

TEST(General, ArranqueNoTocaLasBanderas)
{
    General g;
    g.F_PRESENTACION = true;
    g.F_NUEVO = false;
    ValoresIniciales(g);
    EXPECT_TRUE(g.F_PRESENTACION);
    EXPECT_FALSE(g.F_NUEVO);
}

TEST(General, NuevaFlexionEscribeSusValoresDeInicio)
{
    General g = prueba::EstadoAjeno();
    ValoresFlexion(g);
    prueba::EsperaValoresFlexion(g);
}

TEST(General, NuevaFlexionNoTocaLosCamposDeConfinamiento)
{
    const General ajeno = prueba::EstadoAjeno();
    General g = ajeno;
    ValoresFlexion(g);
    prueba::EsperaMismosCampos(g, ajeno, {"SECCION", "DIAM", "LADOMENOR", "NU", "INCR", "NCP"});
}

TEST(General, NuevoConfinamientoEscribeSusValoresDeInicio)
{
    General g = prueba::EstadoAjeno();
    ValoresNuevoConfinamiento(g);
    prueba::EsperaValoresConfinamiento(g);
    EXPECT_EQ(g.NU, 0.5);
    EXPECT_EQ(g.FYK, 500.0);
}

TEST(General, NuevoConfinamientoNoTocaLosCamposDeFlexion)
{
    const General ajeno = prueba::EstadoAjeno();
    General g = ajeno;
    ValoresNuevoConfinamiento(g);
    prueba::EsperaMismosCampos(g, ajeno, {"ANCHO", "ASI", "CANTO", "MD"});
}

TEST(General, ValoresDeConfinamientoDelLectorNoIncluyenNuNiFyk)
{
    const General ajeno = prueba::EstadoAjeno();
    General g = ajeno;
    ValoresConfinamiento(g);
    prueba::EsperaValoresConfinamiento(g);
    prueba::EsperaMismosCampos(g, ajeno, {"NU", "FYK"});
}

TEST(General, ElEstadoDelProcesoEsUnoSolo)
{
    EXPECT_EQ(&Estado(), &Estado());
    EXPECT_EQ(&EstadoDibujo(), &EstadoDibujo());
}

TEST(General, BorraDibujoPoneLosSeisContadoresACero)
{
    GeneralDibujo d;
    static_cast<ContadoresDibujo&>(d) = {.NLINEA = 4, .NTIT = 3, .NBARRA = 2, .NPUNTO = 1, .NSECRECT = 5, .NSECCIR = 6};
    BorraDibujo(d);
    EXPECT_EQ(d.NLINEA + d.NTIT + d.NBARRA + d.NPUNTO + d.NSECRECT + d.NSECCIR, 0);
}

}  // namespace
}  // namespace texalon

namespace texalon {
namespace {

TEST(Componentes, DeshaceElColorDeLasTresComponentes)
{
    const ComponentesRGB c = Componentes(ColorRGB(128, 0, 64));
    EXPECT_EQ(c.rojo, 128);
    EXPECT_EQ(c.verde, 0);
    EXPECT_EQ(c.azul, 64);
    const ComponentesRGB gris = Componentes(ColorRGB(192, 192, 192));
    EXPECT_EQ(gris.rojo + gris.verde + gris.azul, 3 * 192);
    EXPECT_EQ(Componentes(0).azul, 0);
}

}  // namespace
}  // namespace texalon
