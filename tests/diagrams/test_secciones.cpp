// The section drawings: the rectangular and T flexure sections and the wrapped column,
// element by element.
#include "Elementos.h"
#include "diagrams/Grafico.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace texalon {
namespace {

using prueba::Elemento;
using prueba::Lee;

constexpr Color kAcero = 65536 * 255;  // RGB(0, 0, 255)
constexpr Color kLamina = 255;  // RGB(255, 0, 0)
constexpr Color kHormigon = 192 + 256 * 192 + 65536 * 192;  // RGB(192, 192, 192)

// ---- What an element must hold.

// A black solid line of width 1: outlines, dimension lines and their ticks.
void EsperaLinea(const GeneralDibujo& d, int i, double x1, double y1, double x2, double y2)
{
    prueba::EsperaElemento(d, i, prueba::EsperadoLinea(x1, y1, x2, y2, 0, 1, 1));
}

void EsperaForma(const GeneralDibujo& d, int i, Clase clase, double x1, double y1, double x2, double y2, Color color)
{
    prueba::EsperaElemento(d, i, prueba::EsperadoForma(clase, x1, y1, x2, y2, color));
}

// A black text: size 8 and plain, or the title at 12 and bold.
void EsperaTexto(const GeneralDibujo& d, int i, Clase clase, double x, double y, const std::string& texto,
                 double tamano = 8, bool negrita = false)
{
    prueba::EsperaElemento(d, i, prueba::EsperadoTexto(clase, x, y, 0, tamano, negrita, texto));
}

void EsperaTitulo(const GeneralDibujo& d, int i, double x, double y)
{
    EsperaTexto(d, i, Clase::Texto, x, y, "SECCION", 12, true);
}

// The column of width D and height m (elements 1 and 2): its concrete, then the sheet around it,
// 2 % of D out on every side.
void EsperaHormigonYLamina(const GeneralDibujo& d, Clase forma, double D, double m)
{
    EsperaForma(d, 1, forma, D * 0.02, D * 0.02 + m, D * 0.02 + D, D * 0.02, kHormigon);
    EsperaForma(d, 2, forma, 0, D * 0.04 + m, D * 0.04 + D, 0, kLamina);
}

// The last four elements of the default section, from i: the sheet's width under it, the areas
// of the bottom and the top steel inside it, and the title.
void EsperaTextosFinales(const GeneralDibujo& d, int i, double b, double h, double r, double u)
{
    EsperaTexto(d, i, Clase::Texto, b / 2, -u / 5, "0,125");
    EsperaTexto(d, i + 1, Clase::Texto, b / 2, u / 10 + r, "10,00 cm²");
    EsperaTexto(d, i + 2, Clase::Texto, b / 2, h - r - u / 10, "5,00 cm²");
    EsperaTitulo(d, i + 3, b / 2, u / 2 + h);
}

// A horizontal dimension at height y from xa to xb, its ticks from y1 to y2 (elements i to
// i + 2), and a vertical one at x from ya to yb, its ticks from x1 to x2.
void EsperaCotaHorizontal(const GeneralDibujo& d, int i, double y, double xa, double xb, double y1, double y2)
{
    EsperaLinea(d, i, xa, y, xb, y);
    EsperaLinea(d, i + 1, xa, y1, xa, y2);
    EsperaLinea(d, i + 2, xb, y1, xb, y2);
}

void EsperaCotaVertical(const GeneralDibujo& d, int i, double x, double ya, double yb, double x1, double x2)
{
    EsperaLinea(d, i, x, ya, x, yb);
    EsperaLinea(d, i + 1, x1, ya, x2, ya);
    EsperaLinea(d, i + 2, x1, yb, x2, yb);
}

// Thickness of a steel bar in the drawing, from its area in cm².
double Grueso(double area) { return area * 0.025 / 40; }

// ---- States.

// The default flexure section, 0.40 × 0.60 with 10 cm² at the bottom, and 5 cm² at the top.
General SeccionFlexion()
{
    General g;
    ValoresIniciales(g);
    g.ASS = 5.0;
    return g;
}

General Columna(Entero seccion)
{
    General g;
    ValoresIniciales(g);
    g.SECCION = seccion;
    return g;
}

// The drawing that `dibuja` makes of the state, with the fields that `cambia` changes.
template <class Cambio>
GeneralDibujo Dibujada(void (*dibuja)(const General&, GeneralDibujo&, char), char sep, General g, Cambio cambia)
{
    cambia(g);
    GeneralDibujo d;
    dibuja(g, d, sep);
    return d;
}

GeneralDibujo Dibujada(void (*dibuja)(const General&, GeneralDibujo&, char), char sep, const General& g)
{
    return Dibujada(dibuja, sep, g, [](General&) {});
}

// ---- The rectangular section.

TEST(DibujaSeccion, SeccionPorDefectoConAmbosAcerosEscribeVeintidosElementos)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion());

    // u: deeper than wide: the width
    const double b = 0.4, h = 0.6, r = 0.05, u = 0.4, xa = (0.4 - 0.125) / 2, xb = 0.4 - xa;
    ASSERT_EQ(d.NLISTA, 22);
    EsperaLinea(d, 1, 0, 0, 0, h);
    EsperaLinea(d, 2, 0, h, b, h);
    EsperaLinea(d, 3, b, h, b, 0);
    EsperaLinea(d, 4, b, 0, 0, 0);
    EsperaForma(d, 5, Clase::Barra, u / 10, Grueso(10) + r, b - u / 10, r, kAcero);
    EsperaForma(d, 6, Clase::Barra, u / 10, h - r, b - u / 10, h - r - Grueso(5), kAcero);
    EsperaForma(d, 7, Clase::Barra, xa, 0, xb, -u / 60, kLamina);
    EsperaCotaVertical(d, 8, -u / 10, 0, h, -u / 6.66666, -u / 20);
    EsperaCotaHorizontal(d, 11, u / 10 + h, 0, b, u / 20 + h, u / 6.66666 + h);
    EsperaCotaHorizontal(d, 14, -u / 10, xa, xb, -u / 20, -u / 6.66666);
    EsperaTexto(d, 17, Clase::TextoIzquierda, -u / 5, h / 2, "0,60");
    EsperaTexto(d, 18, Clase::Texto, b / 2, u / 5 + h, "0,40");
    EsperaTextosFinales(d, 19, b, h, r, u);

    // The numbers at hand: 0.625 mm of drawing per cm².
    EXPECT_DOUBLE_EQ(Lee(d, 5).y1, 0.05625);
    EXPECT_DOUBLE_EQ(Lee(d, 6).y2, 0.546875);
    // The ticks reach out to u / 6.66666 exactly, not to 3/20 of u.
    EXPECT_NEAR(Lee(d, 9).x1, -0.0600000600, 1e-10);
}

TEST(DibujaSeccion, ConPuntoDecimalLosTextosLoUsan)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, '.', SeccionFlexion());
    ASSERT_EQ(d.NLISTA, 22);
    EXPECT_EQ(Lee(d, 17).texto, "0.60");
    EXPECT_EQ(Lee(d, 18).texto, "0.40");
    EXPECT_EQ(Lee(d, 19).texto, "0.125");
    EXPECT_EQ(Lee(d, 20).texto, "10.00 cm²");
    EXPECT_EQ(Lee(d, 21).texto, "5.00 cm²");
}

TEST(DibujaSeccion, SinAceroInferiorNoHayBarraNiTextoYLaNumeracionSeCierra)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion(), [](General& g) { g.ASI = 0.0; });
    const double b = 0.4, h = 0.6, r = 0.05, u = 0.4, xa = (0.4 - 0.125) / 2;
    ASSERT_EQ(d.NLISTA, 20);
    EsperaForma(d, 5, Clase::Barra, u / 10, h - r, b - u / 10, h - r - Grueso(5), kAcero);
    EsperaForma(d, 6, Clase::Barra, xa, 0, b - xa, -u / 60, kLamina);
    EsperaCotaVertical(d, 7, -u / 10, 0, h, -u / 6.66666, -u / 20);
    EsperaTexto(d, 16, Clase::TextoIzquierda, -u / 5, h / 2, "0,60");
    EsperaTexto(d, 18, Clase::Texto, b / 2, -u / 5, "0,125");
    EsperaTexto(d, 19, Clase::Texto, b / 2, h - r - u / 10, "5,00 cm²");
    EsperaTitulo(d, 20, b / 2, u / 2 + h);
}

TEST(DibujaSeccion, SinAceroSuperiorNoHayBarraNiTextoYLaNumeracionSeCierra)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion(), [](General& g) { g.ASS = 0.0; });
    const double b = 0.4, h = 0.6, r = 0.05, u = 0.4, xa = (0.4 - 0.125) / 2;
    ASSERT_EQ(d.NLISTA, 20);
    EsperaForma(d, 5, Clase::Barra, u / 10, Grueso(10) + r, b - u / 10, r, kAcero);
    EsperaForma(d, 6, Clase::Barra, xa, 0, b - xa, -u / 60, kLamina);
    EsperaCotaHorizontal(d, 13, -u / 10, xa, b - xa, -u / 20, -u / 6.66666);
    EsperaTexto(d, 18, Clase::Texto, b / 2, -u / 5, "0,125");
    EsperaTexto(d, 19, Clase::Texto, b / 2, u / 10 + r, "10,00 cm²");
    EsperaTitulo(d, 20, b / 2, u / 2 + h);
}

TEST(DibujaSeccion, SinNingunAceroQuedanDieciochoElementos)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion(), [](General& g) {
        g.ASI = 0.0;
        g.ASS = 0.0;
    });
    ASSERT_EQ(d.NLISTA, 18);
    EXPECT_EQ(Lee(d, 5).color, kLamina);
    EXPECT_EQ(Lee(d, 17).texto, "0,125");
    EsperaTitulo(d, 18, 0.2, 0.4 / 2 + 0.6);
    for (int i = 1; i <= 18; ++i)
        EXPECT_NE(Lee(d, i).color, kAcero) << "elemento " << i;
}

TEST(DibujaSeccion, RectanguloMasAnchoQueProfundoTomaElCantoComoReferencia)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 1.2;
        g.CANTO = 0.3;
        g.ANCHOR = 0.6;
    });
    const double b = 1.2, h = 0.3, r = 0.05, u = 0.3, xa = (1.2 - 0.6) / 2;
    ASSERT_EQ(d.NLISTA, 22);
    EsperaForma(d, 5, Clase::Barra, u / 10, Grueso(10) + r, b - u / 10, r, kAcero);
    EsperaForma(d, 7, Clase::Barra, xa, 0, b - xa, -u / 60, kLamina);
    EsperaCotaVertical(d, 8, -u / 10, 0, h, -u / 6.66666, -u / 20);
    EsperaCotaHorizontal(d, 11, u / 10 + h, 0, b, u / 20 + h, u / 6.66666 + h);
    EsperaCotaHorizontal(d, 14, -u / 10, xa, b - xa, -u / 20, -u / 6.66666);
    EsperaTexto(d, 17, Clase::TextoIzquierda, -u / 5, h / 2, "0,30");
    EsperaTexto(d, 18, Clase::Texto, b / 2, u / 5 + h, "1,20");
    EsperaTexto(d, 19, Clase::Texto, b / 2, -u / 5, "0,600");
    EsperaTitulo(d, 22, b / 2, u / 2 + h);
    EXPECT_DOUBLE_EQ(Lee(d, 7).y2, -0.005);
    EXPECT_DOUBLE_EQ(Lee(d, 8).x1, -0.03);
}

TEST(DibujaSeccion, LaminaMasAnchaQueLaSeccionSobresaleAAmbosLados)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion(), [](General& g) { g.ANCHOR = 0.5; });
    const double u = 0.4, xa = (0.4 - 0.5) / 2, xb = 0.4 - xa;
    EXPECT_DOUBLE_EQ(xa, -0.05);
    EXPECT_DOUBLE_EQ(xb, 0.45);
    EsperaForma(d, 7, Clase::Barra, xa, 0, xb, -u / 60, kLamina);
    EsperaCotaHorizontal(d, 14, -u / 10, xa, xb, -u / 20, -u / 6.66666);
    EsperaTexto(d, 19, Clase::Texto, 0.2, -u / 5, "0,500");
    EXPECT_LT(Lee(d, 7).x1, 0.0);
    EXPECT_GT(Lee(d, 7).x2, 0.4);
}

TEST(DibujaSeccion, ElTituloEstaMediaReferenciaPorEncima)
{
    const GeneralDibujo d = Dibujada(DibujaSeccion, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 0.9;
        g.CANTO = 0.45;
    });
    const Elemento titulo = Lee(d, d.NLISTA);
    EXPECT_EQ(titulo.texto, "SECCION");
    EXPECT_DOUBLE_EQ(titulo.y1 - 0.45, 0.45 / 2);
    EXPECT_DOUBLE_EQ(titulo.x1, 0.45);
}

TEST(DibujaSeccion, EnciendeSoloLaBanderaDeSeccionYSoloEscribeLaLista)
{
    const General g = SeccionFlexion();
    GeneralDibujo d = prueba::DibujoEnUso();
    NuevaLista(d);
    for (int i = 0; i < 30; ++i)
        AnadePunto(d, 1.0, 1.0, 7);
    d.F_SECCION = false;
    d.F_PIVOTES = d.F_MOMENTOS = d.F_CAPAS = true;
    DibujaSeccion(g, d, ',');
    // Pivots, moments, section and layers.
    EXPECT_EQ(prueba::Banderas(d), std::tuple(false, false, true, false));
    EXPECT_EQ(d.LISTA(23, campo::kClase), 0.0);
    EXPECT_EQ(d.LISTA(30, campo::kX1), 0.0);
    EXPECT_EQ(d.NLISTA, 22);
    prueba::EsperaSoloLaLista(d);
}

// ---- The T section.

TEST(DibujaSeccionT, SeccionPorDefectoConAmbosAcerosEscribeTreintaYCuatroElementos)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion());

    const double b = 0.4, h = 0.6, r = 0.05, bw = 0.2, hf = 0.2, u = 0.4, xw = (b - bw) / 2, xe = b - xw,
                 xa = (b - 0.125) / 2, xb = b - xa;
    ASSERT_EQ(d.NLISTA, 34);
    EsperaLinea(d, 1, 0, h - hf, 0, h);
    EsperaLinea(d, 2, 0, h, b, h);
    EsperaLinea(d, 3, b, h, b, h - hf);
    EsperaLinea(d, 4, b, h - hf, xe, h - hf);
    EsperaLinea(d, 5, xe, h - hf, xe, 0);
    EsperaLinea(d, 6, xe, 0, xe - bw, 0);
    EsperaLinea(d, 7, xe - bw, 0, xe - bw, h - hf);
    EsperaLinea(d, 8, xe - bw, h - hf, 0, h - hf);
    EsperaForma(d, 9, Clase::Barra, xw + u / 10, Grueso(10) + r, xe - u / 10, r, kAcero);
    EsperaForma(d, 10, Clase::Barra, u / 10, h - r, b - u / 10, h - r - Grueso(5), kAcero);
    EsperaForma(d, 11, Clase::Barra, xa, 0, xb, -u / 60, kLamina);
    EsperaCotaVertical(d, 12, -u / 10, 0, h, -u / 6.66666, -u / 20);
    EsperaCotaHorizontal(d, 15, u / 10 + h, 0, b, u / 20 + h, u / 6.66666 + h);
    EsperaCotaVertical(d, 18, u / 10 + b, h - hf, h, u / 6.66666 + b, u / 20 + b);
    EsperaCotaHorizontal(d, 21, -u / 2, xw, xe, -u / 2 + u * 0.05, -u / 2 - u * 0.05);
    EsperaCotaHorizontal(d, 24, -u / 10, xa, xb, -u / 20, -u / 6.66666);
    EsperaTexto(d, 27, Clase::TextoIzquierda, -u / 5, h / 2, "0,60");
    EsperaTexto(d, 28, Clase::Texto, b / 2, u / 5 + h, "0,40");
    EsperaTexto(d, 29, Clase::TextoDerecha, u / 5 + b, h - hf / 2, "0,20");
    EsperaTexto(d, 30, Clase::Texto, b / 2, -u / 2 - u * 0.1, "0,20");
    EsperaTextosFinales(d, 31, b, h, r, u);

    // The web from 0.1 to 0.3, its steel 0.04 inside it.
    EXPECT_DOUBLE_EQ(Lee(d, 9).x1, 0.14);
    EXPECT_DOUBLE_EQ(Lee(d, 9).x2, 0.26);
}

TEST(DibujaSeccionT, LaMismaBanderaYSoloLaLista)
{
    const General g = SeccionFlexion();
    GeneralDibujo d = prueba::DibujoEnUso();
    d.F_PIVOTES = d.F_MOMENTOS = d.F_CAPAS = true;
    DibujaSeccionT(g, d, '.');
    // Pivots, moments, section and layers.
    EXPECT_EQ(prueba::Banderas(d), std::tuple(false, false, true, false));
    EXPECT_EQ(d.NLISTA, 34);
    prueba::EsperaSoloLaLista(d);
    EXPECT_EQ(Lee(d, 29).texto, "0.20");
    EXPECT_EQ(Lee(d, 32).texto, "10.00 cm²");
}

TEST(DibujaSeccionT, AlmaMasAnchaQueElAlaSobresaleYDesplazaLaCotaDelCanto)
{
    // clang-format off
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 0.3; g.ANCHOALMA = 0.5; g.CANTO = 0.6; g.CANTOALA = 0.15; g.ANCHOR = 0.2; });
    // clang-format on

    // u: the web, since the flange is not wider than it
    const double b = 0.3, h = 0.6, bw = 0.5, hf = 0.15, r = 0.05, u = 0.5, xw = (b - bw) / 2, xe = b - xw,
                 o = (bw - b) / 2;
    EXPECT_DOUBLE_EQ(xw, -0.1);
    EXPECT_DOUBLE_EQ(o, 0.1);
    ASSERT_EQ(d.NLISTA, 34);
    EsperaLinea(d, 5, xe, h - hf, xe, 0);
    EsperaLinea(d, 6, xe, 0, xe - bw, 0);
    EsperaLinea(d, 7, xe - bw, 0, xe - bw, h - hf);
    EXPECT_LT(Lee(d, 7).x1, 0.0);
    EXPECT_GT(Lee(d, 5).x1, b);
    EsperaForma(d, 9, Clase::Barra, xw + u / 10, Grueso(10) + r, xe - u / 10, r, kAcero);
    EsperaCotaVertical(d, 12, -u / 10 - o, 0, h, -u / 6.66666 - o, -u / 20 - o);
    EXPECT_DOUBLE_EQ(Lee(d, 12).x1, -0.15);
    // The top dimension still spans the flange alone.
    EsperaCotaHorizontal(d, 15, u / 10 + h, 0, b, u / 20 + h, u / 6.66666 + h);
    EsperaCotaVertical(d, 18, u / 10 + b, h - hf, h, u / 6.66666 + b, u / 20 + b);
    EsperaCotaHorizontal(d, 21, -u / 2, xw, xe, -u / 2 + u * 0.05, -u / 2 - u * 0.05);
    EsperaTexto(d, 27, Clase::TextoIzquierda, -u / 5 - o, h / 2, "0,60");
    EXPECT_DOUBLE_EQ(Lee(d, 27).x1, -0.2);
    EsperaTexto(d, 28, Clase::Texto, b / 2, u / 5 + h, "0,30");
    EsperaTexto(d, 29, Clase::TextoDerecha, u / 5 + b, h - hf / 2, "0,15");
    EsperaTexto(d, 30, Clase::Texto, b / 2, -u / 2 - u * 0.1, "0,50");
    EsperaTitulo(d, 34, b / 2, u / 2 + h);
}

TEST(DibujaSeccionT, AlaIgualAlAlmaNoDesplazaLaCotaDelCanto)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 0.3;
        g.ANCHOALMA = 0.3;
        g.CANTO = 0.5;
    });
    const double u = 0.3;
    EsperaCotaVertical(d, 12, -u / 10, 0, 0.5, -u / 6.66666, -u / 20);
    EsperaForma(d, 9, Clase::Barra, 0.0 + u / 10, Grueso(10) + 0.05, 0.3 - u / 10, 0.05, kAcero);
}

TEST(DibujaSeccionT, AlaMasAnchaQueProfundaTomaElCantoComoReferencia)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 1.0;
        g.CANTO = 0.5;
        g.ANCHOALMA = 0.3;
    });
    const double u = 0.5;
    EsperaCotaVertical(d, 12, -u / 10, 0, 0.5, -u / 6.66666, -u / 20);
    EsperaForma(d, 11, Clase::Barra, (1.0 - 0.125) / 2, 0, 1.0 - (1.0 - 0.125) / 2, -u / 60, kLamina);
    EsperaTitulo(d, 34, 0.5, u / 2 + 0.5);
}

TEST(DibujaSeccionT, SeccionMenosProfundaQueAnchaTomaElCantoAunqueElAlmaSeaMasAncha)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 1.0;
        g.CANTO = 0.5;
        g.ANCHOALMA = 1.2;
    });
    const double u = 0.5;
    const double o = (1.2 - 1.0) / 2;
    EsperaCotaVertical(d, 12, -u / 10 - o, 0, 0.5, -u / 6.66666 - o, -u / 20 - o);
    EsperaTexto(d, 27, Clase::TextoIzquierda, -u / 5 - o, 0.5 / 2, "0,50");
    EsperaTitulo(d, 34, 0.5, u / 2 + 0.5);
}

TEST(DibujaSeccionT, LaLaminaQuedaCentradaBajoElAlma)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion(), [](General& g) {
        g.ANCHO = 0.6;
        g.ANCHOALMA = 0.2;
        g.ANCHOR = 0.1;
    });
    const Elemento lamina = Lee(d, 11);
    const Elemento alma = Lee(d, 21);  // the web width's dimension line
    ASSERT_EQ(lamina.color, kLamina);
    EXPECT_DOUBLE_EQ(lamina.x1, 0.25);
    EXPECT_DOUBLE_EQ(lamina.x2, 0.35);
    EXPECT_DOUBLE_EQ(alma.x1, 0.2);
    EXPECT_DOUBLE_EQ(alma.x2, 0.4);
    EXPECT_DOUBLE_EQ((lamina.x1 + lamina.x2) / 2, (alma.x1 + alma.x2) / 2);
    EXPECT_GE(lamina.x1, alma.x1);
    EXPECT_LE(lamina.x2, alma.x2);
}

TEST(DibujaSeccionT, SinAcerosLaNumeracionSeCierra)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionT, ',', SeccionFlexion(), [](General& g) {
        g.ASI = 0.0;
        g.ASS = 0.0;
    });
    ASSERT_EQ(d.NLISTA, 30);
    EsperaForma(d, 9, Clase::Barra, (0.4 - 0.125) / 2, 0, 0.4 - (0.4 - 0.125) / 2, -0.4 / 60, kLamina);
    EXPECT_EQ(Lee(d, 25).texto, "0,60");
    EXPECT_EQ(Lee(d, 26).texto, "0,40");
    EXPECT_EQ(Lee(d, 27).texto, "0,20");
    EXPECT_EQ(Lee(d, 27).clase, 8);
    EXPECT_EQ(Lee(d, 28).texto, "0,20");
    EXPECT_EQ(Lee(d, 29).texto, "0,125");
    EsperaTitulo(d, 30, 0.2, 0.4 / 2 + 0.6);
}

// ---- The wrapped column.

TEST(DibujaSeccionConfina, CirculoEscribeSieteElementos)
{
    const double D = 0.5;  // the default diameter
    const GeneralDibujo d = Dibujada(DibujaSeccionConfina, ',', Columna(1));
    ASSERT_EQ(d.NLISTA, 7);
    EsperaHormigonYLamina(d, Clase::Elipse, D, D);
    EsperaCotaHorizontal(d, 3, -D / 10, D * 0.02, D * 0.02 + D, -D / 20, -D / 6.66666);
    EsperaTexto(d, 6, Clase::Texto, D / 2, -D / 5, "0,50");
    EsperaTitulo(d, 7, D / 2, D / 3 + D);
    EXPECT_DOUBLE_EQ(Lee(d, 1).x1, 0.01);
    EXPECT_DOUBLE_EQ(Lee(d, 2).y1, 0.52);
}

TEST(DibujaSeccionConfina, CirculoNoLlevaRadioMinimo)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionConfina, '.', Columna(1), [](General& g) { g.DIAM = 0.8; });
    ASSERT_EQ(d.NLISTA, 7);
    for (int i = 1; i <= d.NLISTA; ++i)
        EXPECT_EQ(Lee(d, i).texto.find("Rmín"), std::string::npos) << "elemento " << i;
    EXPECT_EQ(Lee(d, 6).texto, "0.80");
}

TEST(DibujaSeccionConfina, CuadradoEscribeDoceElementosConDosVecesElLado)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionConfina, ',', Columna(2));
    const double D = 0.5;
    ASSERT_EQ(d.NLISTA, 12);
    EsperaHormigonYLamina(d, Clase::RectanguloRedondeado, D, D);
    EsperaCotaVertical(d, 3, -D / 10, D * 0.02, D * 0.02 + D, -D / 6.66666, -D / 20);
    EsperaCotaHorizontal(d, 6, -D / 10, D * 0.02, D * 0.02 + D, -D / 20, -D / 6.66666);
    EsperaTexto(d, 9, Clase::Texto, D / 2, -D / 5, "0,50");
    EsperaTexto(d, 10, Clase::TextoIzquierda, -D / 5, D / 2, "0,50");
    EsperaTexto(d, 11, Clase::TextoIzquierda, -D / 10, D, "Rmín 3 cm");
    EsperaTitulo(d, 12, D / 2, D / 3 + D);
    EXPECT_EQ(Lee(d, 9).texto, Lee(d, 10).texto);
}

TEST(DibujaSeccionConfina, RectanguloMuestraElLadoMenorAlLadoYElMayorDebajo)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionConfina, ',', Columna(3));
    const double D = 0.5, m = 0.4;
    ASSERT_EQ(d.NLISTA, 12);
    EsperaHormigonYLamina(d, Clase::RectanguloRedondeado, D, m);
    EsperaCotaVertical(d, 3, -D / 10, D * 0.02, D * 0.02 + m, -D / 6.66666, -D / 20);
    EsperaCotaHorizontal(d, 6, -D / 10, D * 0.02, D * 0.02 + D, -D / 20, -D / 6.66666);
    EsperaTexto(d, 9, Clase::TextoIzquierda, -D / 5, m / 2, "0,40");
    EsperaTexto(d, 10, Clase::Texto, D / 2, -D / 5, "0,50");
    EsperaTexto(d, 11, Clase::TextoIzquierda, -D / 10, m, "Rmín 3 cm");
    EsperaTitulo(d, 12, D / 2, m / 3 + m);
}

TEST(DibujaSeccionConfina, ElTituloEstaUnTercioDeLaAlturaPorEncima)
{
    const GeneralDibujo d = Dibujada(DibujaSeccionConfina, '.', Columna(3), [](General& g) {
        g.DIAM = 0.9;
        g.LADOMENOR = 0.3;
    });
    ASSERT_EQ(d.NLISTA, 12);
    const Elemento titulo = Lee(d, 12);
    EXPECT_DOUBLE_EQ(titulo.y1 - 0.3, 0.3 / 3);
    EXPECT_DOUBLE_EQ(titulo.x1, 0.45);
    EXPECT_EQ(Lee(d, 9).texto, "0.30");
    EXPECT_EQ(Lee(d, 10).texto, "0.90");
}

TEST(DibujaSeccionConfina, EnciendeLaBanderaDeSeccionSinTocarLasDemas)
{
    const General g = Columna(2);
    GeneralDibujo d = prueba::DibujoEnUso();
    d.F_PIVOTES = true;
    d.F_MOMENTOS = false;
    d.F_CAPAS = true;
    DibujaSeccionConfina(g, d, ',');
    // Pivots, moments, section and layers.
    EXPECT_EQ(prueba::Banderas(d), std::tuple(true, false, true, true));
    EXPECT_EQ(d.NLISTA, 12);
    prueba::EsperaSoloLaLista(d);
}

// A shape the program does not know writes no element; the list is still allocated anew and
// the flag set, as for any section drawing.
TEST(DibujaSeccionConfina, FormaDesconocidaNoEscribeNadaPeroDejaLaListaVacia)
{
    for (Entero seccion : {Entero{0}, Entero{4}}) {
        SCOPED_TRACE("SECCION " + std::to_string(seccion));
        const General g = Columna(seccion);
        GeneralDibujo d = prueba::DibujoEnUso();
        NuevaLista(d);
        AnadePunto(d, 3.0, 4.0, 7);
        d.F_SECCION = false;
        d.F_MOMENTOS = true;
        DibujaSeccionConfina(g, d, ',');
        EXPECT_EQ(d.NLISTA, 0);
        EXPECT_EQ(d.LISTA(1, campo::kClase), 0.0);
        EXPECT_EQ(d.LISTA(1, campo::kX1), 0.0);
        EXPECT_TRUE(d.F_SECCION);
        EXPECT_TRUE(d.F_MOMENTOS);
        prueba::EsperaSoloLaLista(d);
    }
}

}  // namespace
}  // namespace texalon
