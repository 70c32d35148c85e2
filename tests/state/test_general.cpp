#include "state/General.h"

#include "comun/Proyectos.h"

#include <gtest/gtest.h>

#include <string>

namespace texalon {
namespace {

TEST(General, ArranqueDejaCerosExactosYValoresPorDefecto)
{
    General g;
    ValoresIniciales(g);
    EXPECT_EQ(g.ASS, 0.0);
    EXPECT_EQ(g.MCP, 0.0);
    EXPECT_EQ(g.MD, 0.0);
    EXPECT_EQ(g.NCP, 0.0);
    EXPECT_EQ(g.INCR, 1.0);
    EXPECT_EQ(g.ANCHOR, 0.125);
}

TEST(General, ArranqueDaTodosLosValoresPorDefecto)
{
    General g;
    ValoresIniciales(g);
    EXPECT_EQ(g.GC, 1.5);
    EXPECT_EQ(g.GS, 1.15);
    EXPECT_EQ(g.GR, 1.4);
    EXPECT_EQ(g.FCK, 25.0);
    EXPECT_EQ(g.FYK, 500.0);
    EXPECT_EQ(g.NU, 0.5);
    EXPECT_EQ(g.ANCHO, 0.4);
    EXPECT_EQ(g.CANTO, 0.6);
    EXPECT_EQ(g.ANCHOALMA, 0.2);
    EXPECT_EQ(g.CANTOALA, 0.2);
    EXPECT_EQ(g.RECUB, 0.05);
    EXPECT_EQ(g.ASI, 10.0);
    EXPECT_EQ(g.EPS0, 0.0);
    EXPECT_EQ(g.SECCION, 1);
    EXPECT_EQ(g.DIAM, 0.5);
    EXPECT_EQ(g.LADOMENOR, 0.4);
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
    EXPECT_EQ(g.SECCION, ajeno.SECCION);
    EXPECT_EQ(g.DIAM, ajeno.DIAM);
    EXPECT_EQ(g.LADOMENOR, ajeno.LADOMENOR);
    EXPECT_EQ(g.NU, ajeno.NU);
    EXPECT_EQ(g.INCR, ajeno.INCR);
    EXPECT_EQ(g.NCP, ajeno.NCP);
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
    EXPECT_EQ(g.ANCHO, ajeno.ANCHO);
    EXPECT_EQ(g.ASI, ajeno.ASI);
    EXPECT_EQ(g.CANTO, ajeno.CANTO);
    EXPECT_EQ(g.MD, ajeno.MD);
}

TEST(General, ValoresDeConfinamientoDelLectorNoIncluyenNuNiFyk)
{
    const General ajeno = prueba::EstadoAjeno();
    General g = ajeno;
    ValoresConfinamiento(g);
    prueba::EsperaValoresConfinamiento(g);
    EXPECT_EQ(g.NU, ajeno.NU);
    EXPECT_EQ(g.FYK, ajeno.FYK);
}

TEST(General, ElEstadoDelProcesoEsUnoSolo)
{
    EXPECT_EQ(&Estado(), &Estado());
    EXPECT_EQ(&EstadoDibujo(), &EstadoDibujo());
}

TEST(General, BorraDibujoPoneLosSeisContadoresACero)
{
    GeneralDibujo d;
    d.NLINEA = 4;
    d.NTIT = 3;
    d.NBARRA = 2;
    d.NPUNTO = 1;
    d.NSECRECT = 5;
    d.NSECCIR = 6;
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
