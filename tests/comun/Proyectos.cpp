#include "comun/Proyectos.h"

#include <gtest/gtest.h>

namespace texalon::prueba {

General EstadoAjeno()
{
    General g;
    g.GC = 1.7;
    g.GS = 1.3;
    g.GR = 1.25;
    g.FCK = 33.0;
    g.FYK = 410.0;
    g.NU = 0.3;
    g.ANCHO = 0.9;
    g.CANTO = 1.1;
    g.ANCHOALMA = 0.35;
    g.CANTOALA = 0.15;
    g.RECUB = 0.07;
    g.ASI = 12.5;
    g.ASS = 4.5;
    g.ANCHOR = 0.3;
    g.MCP = 15.0;
    g.MD = 250.0;
    g.EPS0 = 0.001;
    g.SECCION = 2;
    g.DIAM = 0.7;
    g.LADOMENOR = 0.6;
    g.INCR = 1.3;
    g.NCP = 800.0;
    return g;
}

void EsperaValoresFlexion(const General& g)
{
    EXPECT_EQ(g.ANCHO, 0.4);
    EXPECT_EQ(g.CANTO, 0.6);
    EXPECT_EQ(g.ANCHOALMA, 0.2);
    EXPECT_EQ(g.CANTOALA, 0.2);
    EXPECT_EQ(g.RECUB, 0.05);
    EXPECT_EQ(g.ASI, 10.0);
    EXPECT_EQ(g.ASS, 0.0);
    EXPECT_EQ(g.ANCHOR, 0.125);
    EXPECT_EQ(g.EPS0, 0.0);
    EXPECT_EQ(g.MD, 0.0);
    EXPECT_EQ(g.MCP, 0.0);
    EXPECT_EQ(g.GC, 1.5);
    EXPECT_EQ(g.GS, 1.15);
    EXPECT_EQ(g.GR, 1.4);
    EXPECT_EQ(g.FCK, 25.0);
    EXPECT_EQ(g.FYK, 500.0);
}

void EsperaValoresConfinamiento(const General& g)
{
    EXPECT_EQ(g.SECCION, 1);
    EXPECT_EQ(g.DIAM, 0.5);
    EXPECT_EQ(g.LADOMENOR, 0.4);
    EXPECT_EQ(g.INCR, 1.0);
    EXPECT_EQ(g.NCP, 0.0);
    EXPECT_EQ(g.GC, 1.5);
    EXPECT_EQ(g.GS, 1.15);
    EXPECT_EQ(g.GR, 1.4);
    EXPECT_EQ(g.FCK, 25.0);
}

}  // namespace texalon::prueba
