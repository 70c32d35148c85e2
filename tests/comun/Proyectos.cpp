#include "comun/Proyectos.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace texalon::prueba {

namespace {

// The fields that New writes for a flexure project, and those it writes for a confinement
// one, each set as one tuple: two states compare in a single expectation that prints them all.
auto CamposDeFlexion(const General& g)
{
    return std::tuple(g.ANCHO, g.CANTO, g.ANCHOALMA, g.CANTOALA, g.RECUB, g.ASI, g.ASS, g.ANCHOR, g.EPS0, g.MD, g.MCP,
                      g.GC, g.GS, g.GR, g.FCK, g.FYK);
}
auto CamposDeConfinamiento(const General& g)
{
    return std::tuple(g.SECCION, g.DIAM, g.LADOMENOR, g.INCR, g.NCP, g.GC, g.GS, g.GR, g.FCK);
}

// The project fields that a value of type double holds, by name.
struct CampoDoble {
    std::string_view nombre;
    double General::*miembro;
};
// clang-format off
constexpr CampoDoble kCamposDobles[] = {
    {"GC", &General::GC},
    {"GS", &General::GS},
    {"GR", &General::GR},
    {"FCK", &General::FCK},
    {"FYK", &General::FYK},
    {"NU", &General::NU},
    {"ANCHO", &General::ANCHO},
    {"CANTO", &General::CANTO},
    {"ANCHOALMA", &General::ANCHOALMA},
    {"CANTOALA", &General::CANTOALA},
    {"RECUB", &General::RECUB},
    {"ASI", &General::ASI},
    {"ASS", &General::ASS},
    {"ANCHOR", &General::ANCHOR},
    {"MCP", &General::MCP},
    {"MD", &General::MD},
    {"EPS0", &General::EPS0},
    {"DIAM", &General::DIAM},
    {"LADOMENOR", &General::LADOMENOR},
    {"INCR", &General::INCR},
    {"NCP", &General::NCP},
};
// clang-format on

}  // namespace

double Campo(const General& g, std::string_view nombre)
{
    if (nombre == "SECCION") return static_cast<double>(g.SECCION);
    for (const CampoDoble& campo : kCamposDobles)
        if (campo.nombre == nombre) return g.*campo.miembro;
    ADD_FAILURE() << "no hay ningún campo " << nombre;
    return 0.0;
}

void EsperaCampos(const General& g, std::initializer_list<std::pair<std::string_view, double>> valores)
{
    for (const auto& [nombre, valor] : valores)
        EXPECT_EQ(Campo(g, nombre), valor) << nombre;
}

void EsperaMismosCampos(const General& g, const General& otro, std::initializer_list<std::string_view> campos)
{
    for (std::string_view nombre : campos)
        EXPECT_EQ(Campo(g, nombre), Campo(otro, nombre)) << nombre;
}

General EstadoAjeno()
{
    General g;
    // A row for the coefficients and materials, two for the flexure section, one for the column.
    // clang-format off
    g.GC = 1.7;     g.GS = 1.3;     g.GR = 1.25;        g.FCK = 33.0;       g.FYK = 410.0;    g.NU = 0.3;
    g.ANCHO = 0.9;  g.CANTO = 1.1;  g.ANCHOALMA = 0.35; g.CANTOALA = 0.15;  g.RECUB = 0.07;
    g.ASI = 12.5;   g.ASS = 4.5;    g.ANCHOR = 0.3;     g.MCP = 15.0;       g.MD = 250.0;     g.EPS0 = 0.001;
    g.SECCION = 2;  g.DIAM = 0.7;   g.LADOMENOR = 0.6;  g.INCR = 1.3;       g.NCP = 800.0;
    // clang-format on
    return g;
}

void EsperaValoresFlexion(const General& g)
{
    General esperado;
    // clang-format off
    esperado.GC = 1.5;     esperado.GS = 1.15;    esperado.GR = 1.4;         esperado.FCK = 25.0;
    esperado.FYK = 500.0;
    esperado.ANCHO = 0.4;  esperado.CANTO = 0.6;  esperado.ANCHOALMA = 0.2;  esperado.CANTOALA = 0.2;
    esperado.RECUB = 0.05;
    esperado.ASI = 10.0;   esperado.ASS = 0.0;    esperado.ANCHOR = 0.125;   esperado.MCP = 0.0;
    esperado.MD = 0.0;     esperado.EPS0 = 0.0;
    // clang-format on
    EXPECT_EQ(CamposDeFlexion(g), CamposDeFlexion(esperado));
}

void EsperaValoresConfinamiento(const General& g)
{
    General esperado;
    // clang-format off
    esperado.GC = 1.5;       esperado.GS = 1.15;    esperado.GR = 1.4;          esperado.FCK = 25.0;
    esperado.SECCION = 1;    esperado.DIAM = 0.5;   esperado.LADOMENOR = 0.4;   esperado.INCR = 1.0;
    esperado.NCP = 0.0;
    // clang-format on
    EXPECT_EQ(CamposDeConfinamiento(g), CamposDeConfinamiento(esperado));
}

}  // namespace texalon::prueba
