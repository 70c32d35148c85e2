// A sweep over the inputs that the screens accept, from the smallest sections to very large
// ones: every bisection and fixed-point search of the engine must end, with finite results.
// The loops have no iteration limit by design, so a search that did not end would hang this
// test, and CTest's time-out would fail it.
#include "engine/Calcular.h"
#include "engine/Calculos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <tuple>

namespace texalon {
namespace {

// Every flexure result of a finished Calculate is a finite number.
void CompruebaFlexion(const General& g)
{
    for (int t = 1; t <= g.NTIPOS; ++t)
        for (int n = 1; n <= g.MAXCAPAS; ++n)
            for (const Arreglo<double>* a : {&g.MU, &g.FN, &g.MRB, &g.MLIMCR, &g.EPSC, &g.EPSSI, &g.EPSSS, &g.EPSR})
                ASSERT_TRUE(std::isfinite((*a)(t, n))) << "ANCHO " << g.ANCHO << " CANTO " << g.CANTO << " RECUB "
                                                       << g.RECUB << " ASI " << g.ASI << " ASS " << g.ASS;
    ASSERT_TRUE(std::isfinite(g.MUSR));
}

TEST(Barrido, TodasLasBusquedasDeFlexionTerminan)
{
    General g;
    ValoresIniciales(g);
    int calculos = 0;
    for (SeccionFlexion seccion : {SeccionFlexion::Rectangular, SeccionFlexion::T})
        for (double ancho : {0.01, 0.15, 0.4, 1.0, 4.0, 10.0})
            for (double canto : {0.02, 0.25, 0.6, 1.5, 10.0})
                for (double recub : {0.01, canto / 4.0, canto / 2.0})
                    for (double asi : {0.01, 3.0, 10.0, 60.0, 500.0})
                        for (double ass : {0.0, 8.0, 200.0})
                            for (double fck : {15.0, 50.0})
                                for (double fyk : {300.0, 600.0}) {
                                    ValoresFlexion(g);
                                    std::tie(g.ANCHO, g.CANTO, g.RECUB, g.ASI, g.ASS, g.FCK, g.FYK) =
                                        std::tuple(ancho, canto, recub, asi, ass, fck, fyk);
                                    g.ANCHOR = ancho / 2.0 < 0.01 ? 0.01 : ancho / 2.0;
                                    g.ANCHOALMA = ancho / 2.0 < 0.01 ? 0.01 : ancho / 2.0;
                                    g.CANTOALA = canto / 5.0 < 0.01 ? 0.01 : canto / 5.0;
                                    g.MCP = 10.0;
                                    g.MD = 100.0;
                                    if (!CalculaFlexion(g, seccion, nullptr).predeformacionExcesiva) {
                                        CompruebaFlexion(g);
                                        ++calculos;
                                    }
                                }
    EXPECT_GT(calculos, 5000);
}

TEST(Barrido, CoeficientesYMomentosExtremos)
{
    General g;
    ValoresIniciales(g);
    for (double coeficiente : {1.0, 1.5, 3.0, 10.0})
        for (double mcp : {-500.0, 0.0, 20.0, 60.0})
            for (double anchor : {0.01, 0.125, 0.4})
                for (SeccionFlexion seccion : {SeccionFlexion::Rectangular, SeccionFlexion::T}) {
                    ValoresFlexion(g);
                    g.GC = g.GS = g.GR = coeficiente;
                    g.MCP = mcp;
                    g.ANCHOR = anchor;
                    if (!CalculaFlexion(g, seccion, nullptr).predeformacionExcesiva) CompruebaFlexion(g);
                }
}

TEST(Barrido, PredeformacionMuyNegativaNoCuelgaLaBusqueda)
{
    // A negative MCP passes the limit; so negative that the sheet of type X starts in
    // compression, the bracket of the search holds no root and the halving runs out of doubles.
    General g;
    ValoresIniciales(g);
    g.GR = 1.0;
    g.MCP = -500.0;
    const ResultadoCalculo r = CalculaFlexion(g, SeccionFlexion::Rectangular, nullptr);
    EXPECT_FALSE(r.predeformacionExcesiva);
    EXPECT_LT(g.EPS0 + g.EPSD(1), 0.0);
    EXPECT_TRUE(g.F_CALCULADO);
    CompruebaFlexion(g);
}

TEST(Barrido, SeccionesEnormesTerminan)
{
    General g;
    ValoresIniciales(g);
    for (double lado : {100.0, 1.0e4, 1.0e6})
        for (SeccionFlexion seccion : {SeccionFlexion::Rectangular, SeccionFlexion::T}) {
            ValoresFlexion(g);
            g.ANCHO = lado;
            g.CANTO = lado;
            g.ANCHOALMA = lado / 2.0;
            g.CANTOALA = lado / 5.0;
            g.RECUB = lado / 10.0;
            g.ASI = lado;
            g.ANCHOR = lado / 2.0;
            if (!CalculaFlexion(g, seccion, nullptr).predeformacionExcesiva) CompruebaFlexion(g);
        }
}

TEST(Barrido, TodasLasIteracionesDeConfinamientoTerminan)
{
    General g;
    ValoresIniciales(g);
    int calculos = 0;
    for (Entero forma = 1; forma <= 3; ++forma)
        for (double diam : {0.01, 0.1, 0.5, 2.0, 10.0})
            for (double relacion : {1.0, 0.8, 0.67})
                for (double fck : {15.0, 25.0, 50.0})
                    for (double ncp : {-1000.0, 0.0, 500.0, 5000.0})
                        for (double coeficiente : {1.0, 1.5, 5.0}) {
                            ValoresNuevoConfinamiento(g);
                            g.SECCION = forma;
                            g.DIAM = diam;
                            g.LADOMENOR = diam * relacion;
                            g.FCK = fck;
                            g.NCP = ncp;
                            g.GC = coeficiente;
                            g.GR = coeficiente;
                            if (CalculaConfinamiento(g, FormaDe(g), nullptr).predeformacionExcesiva) continue;
                            ++calculos;
                            for (int t = 1; t <= 3; ++t)
                                for (int n = 1; n <= 5; ++n) {
                                    ASSERT_TRUE(std::isfinite(g.RESU(t, n)));
                                    ASSERT_GE(g.RESU(t, n), 1.0);
                                }
                        }
    EXPECT_GT(calculos, 500);
}

}  // namespace
}  // namespace texalon
