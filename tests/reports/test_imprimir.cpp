// The pieces that the reports share, against the recording printer: the set-up, the page frame,
// the rows, the ruled grid and the display list on paper.
//
// The double's metrics: at size 10 a line is 0.5 cm high and a character 0.2 cm wide; the page
// is 19.0 × 27.7 cm.
#include "reports/Imprimir.h"

#include "Operaciones.h"
#include "comun/Tablas.h"
#include "diagrams/Lista.h"
#include "platform/dobles/ImpresoraDoble.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

namespace texalon {
namespace {

using plataforma::ImpresoraDoble;
using plataforma::Operacion;
using prueba::EsperaOperaciones;
// What the printer records to print a text at a place, and runs of operations one after another.
using prueba::ImpresoEn, prueba::Seguidas;

constexpr Color kRojo255 = ColorRGB(255, 0, 0);
constexpr Color kVerde = ColorRGB(0, 128, 0);

// The operations recorded from the one numbered `desde` on.
std::vector<Operacion> Desde(const ImpresoraDoble& impresora, std::size_t desde)
{
    return {impresora.operaciones.begin() + static_cast<std::ptrdiff_t>(desde), impresora.operaciones.end()};
}

// The frame of a page of 19.0 × 27.7 with the four margins of 2.0, the title "TITULO" (1.2 cm)
// and the page number given, worked out by hand: the line is 0.5 high, so the rule under the
// title is at 0.5 + 2 + 0.15, the footer at 27.7 - 0.5 - 2 and its rule at 27.7 - 2 - 0.5 - 0.15.
std::vector<Operacion> MarcoEsperado(const std::string& textoPagina, double xPagina)
{
    return {
        {"FontBold", {0}, ""},
        {"DrawStyle", {0}, ""},
        {"DrawWidth", {1}, ""},
        {"FontName", {}, "arial"},
        {"FontSize", {10}, ""},
        {"CurrentX", {2.0}, ""},
        {"CurrentY", {2.0}, ""},
        {"Print", {2.0, 2.0}, "TITULO"},
        {"PaintPicture", {15.0, 1.5, 2.0, 1.0}, "logo.svg"},
        {"Line", {2.0, 2.65, 17.0, 2.65, 0}, ""},
        {"CurrentX", {2.0}, ""},
        {"CurrentY", {25.2}, ""},
        {"Print", {2.0, 25.2}, "SISTEMA DE REFUERZO TEXALON®"},
        {"Line", {2.0, 25.05, 17.0, 25.05, 0}, ""},
        {"CurrentX", {xPagina}, ""},
        {"CurrentY", {25.2}, ""},
        {"Print", {xPagina, 25.2}, textoPagina},
    };
}

Pagina PaginaA4()
{
    Pagina p;
    p.ancho = 19.0;
    p.alto = 27.7;
    return p;
}

// ---- Set-up.

TEST(ImprimirPreparacion, FijaA4CentimetrosArialDiezYElNombreYLeeLaPagina)
{
    ImpresoraDoble impresora;
    impresora.anchoPagina = 19.5;
    impresora.altoPagina = 28.1;
    const Pagina p = PreparaInforme(impresora, "informe_prueba");
    EsperaOperaciones(impresora.operaciones, {
                                                 {"PaperSize", {9}, ""},
                                                 {"ScaleMode", {7}, ""},
                                                 {"FontName", {}, "arial"},
                                                 {"FontSize", {10}, ""},
                                                 {"NombreDocumento", {}, "informe_prueba"},
                                             });
    EXPECT_DOUBLE_EQ(p.ancho, 19.5);
    EXPECT_DOUBLE_EQ(p.alto, 28.1);
    EXPECT_DOUBLE_EQ(p.margenIzquierdo, 2.0);
    EXPECT_DOUBLE_EQ(p.margenDerecho, 2.0);
    EXPECT_DOUBLE_EQ(p.margenSuperior, 2.0);
    EXPECT_DOUBLE_EQ(p.margenInferior, 2.0);
}

// ---- The frame.

TEST(ImprimirMarco, TituloLogoReglasPieYNumeroDePaginaEnSusSitios)
{
    ImpresoraDoble impresora;
    MarcoPagina(impresora, PaginaA4(), "TITULO", "logo.svg");
    // "Página 1" is 8 characters, 1.6 cm: it ends at 19 - 2.
    EsperaOperaciones(impresora.operaciones, MarcoEsperado("Página 1", 15.4));
}

TEST(ImprimirMarco, ElNumeroDePaginaTerminaEnElMargenDerechoAunqueCrezca)
{
    ImpresoraDoble impresora;
    for (int i = 1; i < 10; ++i)
        impresora.NewPage();
    const std::size_t antes = impresora.operaciones.size();
    MarcoPagina(impresora, PaginaA4(), "TITULO", "logo.svg");
    // "Página 10" is 9 characters, 1.8 cm.
    EsperaOperaciones(Desde(impresora, antes), MarcoEsperado("Página 10", 15.2));
}

TEST(ImprimirMarco, LaPaginaYLosMargenesDeLaPaginaColocanElMarco)
{
    ImpresoraDoble impresora;
    Pagina p;
    p.ancho = 20.0;
    p.alto = 28.0;
    p.margenIzquierdo = 1.0;
    p.margenDerecho = 3.0;
    p.margenSuperior = 1.5;
    p.margenInferior = 2.5;
    MarcoPagina(impresora, p, "T", "logo.svg");
    const auto& op = impresora.operaciones;
    ASSERT_EQ(op.size(), 17u);
    EsperaOperaciones({op[7], op[8], op[9], op[12], op[13], op[16]},
                      {
                          {"Print", {1.0, 1.5}, "T"},
                          {"PaintPicture", {15.0, 1.0, 2.0, 1.0}, "logo.svg"},
                          {"Line", {1.0, 2.15, 17.0, 2.15, 0}, ""},
                          {"Print", {1.0, 25.0}, "SISTEMA DE REFUERZO TEXALON®"},
                          {"Line", {1.0, 24.85, 17.0, 24.85, 0}, ""},
                          {"Print", {15.4, 25.0}, "Página 1"},
                      });
}

TEST(ImprimirMarco, DeshaceLoQueDejoUnDiagramaMenosElColorDelTexto)
{
    ImpresoraDoble impresora;
    impresora.FontSize(12);
    impresora.FontBold(true);
    impresora.DrawWidth(6);
    impresora.DrawStyle(2);
    impresora.ForeColor(kRojo255);
    const std::size_t antes = impresora.operaciones.size();
    MarcoPagina(impresora, PaginaA4(), "TITULO", "logo.svg");
    // The positions are those of a line of size 10, whatever the size left before.
    EsperaOperaciones(Desde(impresora, antes), MarcoEsperado("Página 1", 15.4));
    EXPECT_EQ(impresora.tamano, 10.0);
    EXPECT_FALSE(impresora.negrita);
    EXPECT_EQ(impresora.ancho, 1);
    EXPECT_EQ(impresora.estilo, 0);
    EXPECT_EQ(impresora.fuente, "arial");
    EXPECT_EQ(impresora.color, kRojo255);
}

TEST(ImprimirMarco, UnSegundoInformeEmpiezaConSuPreparacionYLaPaginaUno)
{
    ImpresoraDoble impresora;
    Pagina p = PreparaInforme(impresora, "primero");
    MarcoPagina(impresora, p, "TITULO", "logo.svg");
    impresora.NewPage();
    MarcoPagina(impresora, p, "TITULO", "logo.svg");
    EXPECT_EQ(impresora.operaciones.back().texto, "Página 2");
    impresora.EndDoc();

    const std::size_t antes = impresora.operaciones.size();
    p = PreparaInforme(impresora, "segundo");
    MarcoPagina(impresora, p, "TITULO", "logo.svg");
    auto esperadas = MarcoEsperado("Página 1", 15.4);
    esperadas.insert(esperadas.begin(), {
                                            {"PaperSize", {9}, ""},
                                            {"ScaleMode", {7}, ""},
                                            {"FontName", {}, "arial"},
                                            {"FontSize", {10}, ""},
                                            {"NombreDocumento", {}, "segundo"},
                                        });
    EsperaOperaciones(Desde(impresora, antes), esperadas);
    EXPECT_EQ(impresora.documentosTerminados, 1);
}

// ---- Headings and rows.

TEST(ImprimirFilas, LaCabeceraVaEnNegritaYLaQuitaDespues)
{
    ImpresoraDoble impresora;
    Cabecera(impresora, 2.0, 4.0, "DATOS GENERALES");
    EsperaOperaciones(
        impresora.operaciones,
        Seguidas({{{"FontBold", {1}, ""}}, ImpresoEn(2.0, 4.0, "DATOS GENERALES"), {{"FontBold", {0}, ""}}}));
}

TEST(ImprimirFilas, EtiquetaYValorEnSusColumnasYUnaLineaNaturalMasAbajo)
{
    ImpresoraDoble impresora;
    double y = 5.0;
    Fila(impresora, 2.0, y, "Espesor:", "0,111 mm");
    Fila(impresora, 2.0, y, "Módulo de Young:", "230000 N/mm²");
    // Each row: the label, then its value.
    EsperaOperaciones(impresora.operaciones,
                      Seguidas({ImpresoEn(2.0, 5.0, "Espesor:"), ImpresoEn(6.5, 5.0, "0,111 mm"),
                                ImpresoEn(2.0, 5.5, "Módulo de Young:"), ImpresoEn(6.5, 5.5, "230000 N/mm²")}));
    EXPECT_DOUBLE_EQ(y, 6.0);
}

TEST(ImprimirFilas, ElBloqueDerechoTieneSuValorCuatroYMedioMasAllaYLaAlturaEsLaDeLaFuente)
{
    ImpresoraDoble impresora;
    impresora.FontSize(12);
    double y = 6.0;
    Fila(impresora, 10.5, y, "Pivote:", "B");
    EXPECT_EQ(impresora.operaciones.back(), (Operacion{"Print", {15.0, 6.0}, "B"}));
    EXPECT_DOUBLE_EQ(y, 6.6);  // a line of size 12
}

TEST(ImprimirFilas, ElSubindiceBajaCincoCentesimasYLosDosPuntosVanTrasElTextoMedido)
{
    ImpresoraDoble impresora;
    double y = 7.0;
    FilaConSubindice(impresora, 2.0, y, "f", "ck", "fck", "25,00 N/mm²");
    // The letter, its subscript, the colon and the value.
    EsperaOperaciones(impresora.operaciones, Seguidas({ImpresoEn(2.0, 7.0, "f"), ImpresoEn(2.2, 7.05, "ck"),
                                                       ImpresoEn(2.6, 7.0, ":"), ImpresoEn(6.5, 7.0, "25,00 N/mm²")}));
    EXPECT_DOUBLE_EQ(y, 7.5);
}

TEST(ImprimirFilas, LosDosPuntosDeMLimSeColocanPorElAnchoDeMRB)
{
    ImpresoraDoble impresora;
    double y = 8.0;
    FilaConSubindice(impresora, 10.5, y, "M", "lím", "MRB", "120,0 mkN");
    const auto& op = impresora.operaciones;
    ASSERT_EQ(op.size(), 12u);
    // "MRB" is 0.6 wide; "Mlím" would have put the colon at 0.8.
    EsperaOperaciones({op[2], op[5], op[8], op[11]}, {
                                                         {"Print", {10.5, 8.0}, "M"},
                                                         {"Print", {10.7, 8.05}, "lím"},
                                                         {"Print", {11.1, 8.0}, ":"},
                                                         {"Print", {15.0, 8.0}, "120,0 mkN"},
                                                     });
    EXPECT_DOUBLE_EQ(y, 8.5);
}

// ---- The ruled grid.

TEST(ImprimirTabla, SeisFilasPorCuatroColumnasSonSieteHorizontalesYCincoVerticales)
{
    ImpresoraDoble impresora;
    ImprimeTabla(impresora, 2.0, 10.0, 6.0, 4.0, 0.8, 3.5);
    std::vector<Operacion> esperadas{{"DrawStyle", {0}, ""}};
    for (double y : {10.0, 10.8, 11.6, 12.4, 13.2, 14.0, 14.8})
        esperadas.push_back({"Line", {2.0, y, 16.0, y, 0}, ""});
    for (double x : {2.0, 5.5, 9.0, 12.5, 16.0})
        esperadas.push_back({"Line", {x, 10.0, x, 14.8, 0}, ""});
    EsperaOperaciones(impresora.operaciones, esperadas);
}

TEST(ImprimirTabla, UnaCeldaSonDosHorizontalesYDosVerticalesNegras)
{
    ImpresoraDoble impresora;
    impresora.ForeColor(kRojo255);
    impresora.operaciones.clear();
    ImprimeTabla(impresora, 1.0, 2.0, 1.0, 1.0, 0.5, 3.0);
    EsperaOperaciones(impresora.operaciones, {
                                                 {"DrawStyle", {0}, ""},
                                                 {"Line", {1.0, 2.0, 4.0, 2.0, 0}, ""},
                                                 {"Line", {1.0, 2.5, 4.0, 2.5, 0}, ""},
                                                 {"Line", {1.0, 2.0, 1.0, 2.5, 0}, ""},
                                                 {"Line", {4.0, 2.0, 4.0, 2.5, 0}, ""},
                                             });
}

// ---- The display list on paper.
//
// Most lists below start with a line from (0, 0) to (10, 5) that fixes the box, and are printed
// with right 1, left 3, top 4, bottom 2.7: the area is 15 × 21 cm, ESCALAX = 15 × 0.8 / 10 =
// 1.2, ESCALAY = 21 × 0.8 / 5 = 3.36, ox = (15 - 12) / 2 + 3 = 4.5, oy = (21 + 4) - (21 -
// 16.8) / 2 = 22.9. So X(x) = 4.5 + 1.2 x and Y(y) = 22.9 - 3.36 y.

GeneralDibujo ListaConMarco()
{
    GeneralDibujo d;
    NuevaLista(d);
    AnadeLinea(d, 0, 0, 10, 5, kVerde, kContinua, 1);
    return d;
}

// ImprimeLista with the margins above; the operations after those of the frame line.
std::vector<Operacion> ImprimeConMarco(GeneralDibujo& d, ImpresoraDoble& impresora, Entero isotropico = 0)
{
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, isotropico);
    return Desde(impresora, 5);
}

const std::vector<Operacion> kLineaMarco = {
    {"ScaleMode", {7}, ""},
    {"DrawStyle", {0}, ""},
    {"DrawWidth", {1}, ""},
    {"DrawStyle", {0}, ""},
    {"Line", {4.5, 22.9, 16.5, 6.1, double(kVerde)}, ""},
};

TEST(ImprimirLista, FijaCentimetrosAntesDeNadaYLosMargenesColocanElArea)
{
    GeneralDibujo d = ListaConMarco();
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, 0);
    // The box is centred in the area: its middle is 3 + 15 / 2 across and 4 + 21 / 2 down.
    EsperaOperaciones(impresora.operaciones, kLineaMarco);
}

TEST(ImprimirLista, UnTextoSoloLlegaHastaElOrigen)
{
    GeneralDibujo d;
    NuevaLista(d);
    AnadeTexto(d, Clase::Texto, 5, 5, 0, 10, false, "A");
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, 0);
    // The box is (0, 0) to (5, 5): ESCALAX = 12 / 5, ESCALAY = 16.8 / 5, and the text's anchor
    // falls on the box's far corner, (4.5 + 12, 22.9 - 16.8).
    EXPECT_NEAR(d.ESCALAX, 2.4, 1e-9);
    EXPECT_NEAR(d.ESCALAY, 3.36, 1e-9);
    EsperaOperaciones(Desde(impresora, 4), {
                                               {"CurrentX", {16.5 - 0.1}, ""},
                                               {"CurrentY", {6.1 - 0.25}, ""},
                                               {"ForeColor", {0}, ""},
                                               {"Print", {16.4, 5.85}, "A"},
                                           });
}

// A list of one thin solid black line from (0, 0) to (x, y), printed into the framed list's
// area: the operations after the set-up.
std::vector<Operacion> UnaLineaEnPapel(GeneralDibujo& d, double x, double y, Entero isotropico)
{
    NuevaLista(d);
    AnadeLinea(d, 0, 0, x, y, 0, kContinua, 1);
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, isotropico);
    return Desde(impresora, 4);
}

TEST(ImprimirLista, IsotropicoSinAnchoTodoCaeEnElCentro)
{
    GeneralDibujo d;
    const std::vector<Operacion> ops = UnaLineaEnPapel(d, 0, 4, 1);
    EXPECT_EQ(std::tie(d.ESCALAX, d.ESCALAY), std::tuple(0.0, 0.0));
    // The centre of the area: 3 + 15 / 2 across, 4 + 21 / 2 down.
    EsperaOperaciones(ops, {{"Line", {10.5, 14.5, 10.5, 14.5, 0}, ""}});
}

TEST(ImprimirLista, ElMargenDerechoEsElPrimerArgumento)
{
    GeneralDibujo d = ListaConMarco();
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 3.0, 1.0, 4.0, 2.7, 0);
    // The same area, 2 cm further left: ox = 1.5 + 1.
    EXPECT_EQ(impresora.operaciones.back().nombre, "Line");
    EXPECT_NEAR(impresora.operaciones.back().numeros[0], 2.5, 1e-9);
    EXPECT_NEAR(impresora.operaciones.back().numeros[2], 14.5, 1e-9);
}

TEST(ImprimirLista, DejaElRectanguloDeLaPaginaEnCentimetrosYSusEscalas)
{
    GeneralDibujo d = ListaConMarco();
    d.ANCHOPIC = 480;
    d.ALTOPIC = 360;
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, 0);
    EXPECT_NEAR(d.ANCHOPIC, 15.0, 1e-9);
    EXPECT_NEAR(d.ALTOPIC, 21.0, 1e-9);
    EXPECT_NEAR(d.ESCALAX, 1.2, 1e-9);
    EXPECT_NEAR(d.ESCALAY, 3.36, 1e-9);
    // The list stays for the next reader.
    EXPECT_EQ(d.NLISTA, 1);
}

TEST(ImprimirLista, IsotropicoUnCuadradoEsCuadradoEnElPapel)
{
    GeneralDibujo d;
    // ESCALAX = 15 × 0.8 / 4 = 3 is the smaller, and both take it: ox = (15 - 12) / 2 + 3,
    // oy = 25 - (21 - 12) / 2.
    EsperaOperaciones(UnaLineaEnPapel(d, 4, 4, 1), {{"Line", {4.5, 20.5, 16.5, 8.5, 0}, ""}});
    EXPECT_NEAR(d.ESCALAX, 3.0, 1e-9);
    EXPECT_NEAR(d.ESCALAY, 3.0, 1e-9);
}

TEST(ImprimirLista, NoIsotropicoElCuadradoSeEstiraAlOchentaPorCiento)
{
    GeneralDibujo d;
    // 80 % of 15 across and 80 % of 21 down.
    EsperaOperaciones(UnaLineaEnPapel(d, 4, 4, 0), {{"Line", {4.5, 22.9, 16.5, 6.1, 0}, ""}});
}

// The four operations of a line on paper: the solid style, its width, its own style, the line.
std::vector<Operacion> LineaEnPapel(double ancho, double estilo, const std::vector<double>& linea)
{
    return {{"DrawStyle", {0}, ""}, {"DrawWidth", {ancho}, ""}, {"DrawStyle", {estilo}, ""}, {"Line", linea, ""}};
}

TEST(ImprimirLista, LasLineasGruesasDoblanSuAnchoEnElPapel)
{
    GeneralDibujo d = ListaConMarco();
    AnadeLinea(d, 0, 0, 10, 0, 0, kContinua, 3);
    AnadeLinea(d, 0, 0, 10, 0, 0, kContinua, 2);
    AnadeLinea(d, 0, 0, 10, 0, 0, kContinua, 1);
    ImpresoraDoble impresora;
    EsperaOperaciones(ImprimeConMarco(d, impresora), Seguidas({LineaEnPapel(6, 0, {4.5, 22.9, 16.5, 22.9, 0}),
                                                               LineaEnPapel(4, 0, {4.5, 22.9, 16.5, 22.9, 0}),
                                                               LineaEnPapel(1, 0, {4.5, 22.9, 16.5, 22.9, 0})}));
}

TEST(ImprimirLista, ElEstiloTresEsPunteadoYElUnoContinuo)
{
    GeneralDibujo d = ListaConMarco();
    AnadeLinea(d, 0, 5, 10, 5, kCiruela, kPunteada, 3);
    AnadeLinea(d, 0, 5, 10, 5, 0, kContinua, 1);
    ImpresoraDoble impresora;
    // Dotted is the printer's style 2.
    EsperaOperaciones(ImprimeConMarco(d, impresora),
                      Seguidas({LineaEnPapel(6, 2, {4.5, 6.1, 16.5, 6.1, double(kCiruela)}),
                                LineaEnPapel(1, 0, {4.5, 6.1, 16.5, 6.1, 0})}));
    EXPECT_EQ(impresora.estilo, 0);
}

// One element added to the framed list, and the operation that draws it on paper, after the
// solid style and the width of one.
struct ElementoEnPapel {
    const char* nombre;
    void (*anade)(GeneralDibujo&);
    Operacion dibujo;
};

class UnElementoEnPapel : public ::testing::TestWithParam<ElementoEnPapel> {};

TEST_P(UnElementoEnPapel, SeDibujaAsi)
{
    GeneralDibujo d = ListaConMarco();
    GetParam().anade(d);
    ImpresoraDoble impresora;
    EsperaOperaciones(ImprimeConMarco(d, impresora),
                      {{"DrawStyle", {0}, ""}, {"DrawWidth", {1}, ""}, GetParam().dibujo});
}

// clang-format off
const ElementoEnPapel kElementosEnPapel[] = {
    {"UnPuntoEsUnCirculoDeUnMilimetro",
     [](GeneralDibujo& d) { AnadePunto(d, 5, 2.5, kRojo255); },
     {"Circle", {10.5, 14.5, 0.1, double(kRojo255)}, ""}},
    {"UnaBarraEsUnaCajaDeAnchoUno",
     [](GeneralDibujo& d) { AnadeForma(d, Clase::Barra, 2, 4, 7, 1, kRojo255); },
     {"Box", {6.9, 9.46, 12.9, 19.54, double(kRojo255)}, ""}},
    // 6 wide and 10.08 high on paper: the radius is half the width.
    {"LaElipseEsUnCirculoDeSuAnchoAunqueElAltoDifiera",
     [](GeneralDibujo& d) { AnadeForma(d, Clase::Elipse, 2, 4, 7, 1, kVerde); },
     {"Circle", {9.9, 14.5, 3.0, double(kVerde)}, ""}},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(ImprimirLista, UnElementoEnPapel, ::testing::ValuesIn(kElementosEnPapel),
                         prueba::NombreDeFila());

TEST(ImprimirLista, LosTresTextosSeAnclanPorSuAnchoYSuAlto)
{
    GeneralDibujo d = ListaConMarco();
    // Four characters of size 8: 0.64 wide and 0.4 high.
    AnadeTexto(d, Clase::Texto, 5, 2.5, kRojo255, 8, false, "ABCD");
    AnadeTexto(d, Clase::TextoIzquierda, 5, 2.5, 0, 8, false, "ABCD");
    AnadeTexto(d, Clase::TextoDerecha, 5, 2.5, kVerde, 8, true, "ABCD");
    ImpresoraDoble impresora;
    EsperaOperaciones(ImprimeConMarco(d, impresora), {
                                                         {"DrawStyle", {0}, ""},
                                                         {"FontSize", {8}, ""},
                                                         {"FontBold", {0}, ""},
                                                         {"CurrentX", {10.5 - 0.32}, ""},
                                                         {"CurrentY", {14.3}, ""},
                                                         {"ForeColor", {double(kRojo255)}, ""},
                                                         {"Print", {10.18, 14.3}, "ABCD"},
                                                         {"DrawStyle", {0}, ""},
                                                         {"FontSize", {8}, ""},
                                                         {"FontBold", {0}, ""},
                                                         {"CurrentX", {10.5 - 0.64 * 4 / 3}, ""},
                                                         {"CurrentY", {14.3}, ""},
                                                         {"ForeColor", {0}, ""},
                                                         {"Print", {10.5 - 0.64 * 4 / 3, 14.3}, "ABCD"},
                                                         {"DrawStyle", {0}, ""},
                                                         {"FontSize", {8}, ""},
                                                         {"FontBold", {1}, ""},
                                                         {"CurrentX", {10.5 + 0.64 / 3}, ""},
                                                         {"CurrentY", {14.3}, ""},
                                                         {"ForeColor", {double(kVerde)}, ""},
                                                         {"Print", {10.5 + 0.64 / 3, 14.3}, "ABCD"},
                                                     });
}

TEST(ImprimirLista, ElRectanguloRedondeadoSonCuatroLineasYCuatroArcos)
{
    GeneralDibujo d = ListaConMarco();
    // (6.9, 9.46) to (12.9, 19.54): 6 × 10.08, so r = 0.6 from the smaller side.
    AnadeForma(d, Clase::RectanguloRedondeado, 2, 4, 7, 1, kRojo255);
    ImpresoraDoble impresora;
    const double c = kRojo255;
    EsperaOperaciones(ImprimeConMarco(d, impresora), {
                                                         {"DrawStyle", {0}, ""},
                                                         {"DrawWidth", {1}, ""},
                                                         {"Line", {6.9, 10.06, 6.9, 18.94, c}, ""},
                                                         {"Line", {12.9, 10.06, 12.9, 18.94, c}, ""},
                                                         {"Line", {7.5, 9.46, 12.3, 9.46, c}, ""},
                                                         {"Line", {7.5, 19.54, 12.3, 19.54, c}, ""},
                                                         {"Arc", {7.5, 10.06, 0.6, c, 1.570796, 3.141592}, ""},
                                                         {"Arc", {12.3, 10.06, 0.6, c, 0.0, 1.570796}, ""},
                                                         {"Arc", {7.5, 18.94, 0.6, c, 3.141592, 4.712388}, ""},
                                                         {"Arc", {12.3, 18.94, 0.6, c, 4.712388, 6.283184}, ""},
                                                     });
    // The angles are the program's own literals, to the last bit.
    const auto& op = impresora.operaciones;
    EXPECT_DOUBLE_EQ(op[op.size() - 4].numeros[4], 3.141592 / 2);
    EXPECT_DOUBLE_EQ(op[op.size() - 4].numeros[5], 3.141592);
    EXPECT_DOUBLE_EQ(op[op.size() - 2].numeros[5], 9.424776 / 2);
    EXPECT_DOUBLE_EQ(op[op.size() - 1].numeros[5], 6.283184);
}

TEST(ImprimirLista, ElRadioDelRedondeoSaleDelLadoMenor)
{
    GeneralDibujo d = ListaConMarco();
    // (5.7, 16.18) to (15.3, 19.54): 9.6 × 3.36, so r = 0.336.
    AnadeForma(d, Clase::RectanguloRedondeado, 1, 2, 9, 1, 0);
    ImpresoraDoble impresora;
    const auto op = ImprimeConMarco(d, impresora);
    ASSERT_EQ(op.size(), 10u);
    for (std::size_t i = 6; i < 10; ++i)
        EXPECT_NEAR(op[i].numeros[2], 0.336, 1e-9);
    EXPECT_NEAR(op[2].numeros[1], 16.18 + 0.336, 1e-9);
    EXPECT_NEAR(op[4].numeros[0], 5.7 + 0.336, 1e-9);
}

TEST(ImprimirLista, UnElementoDeOtraClaseNoSeDibujaPeroEntraEnLaCaja)
{
    GeneralDibujo d = ListaConMarco();
    ++d.NLISTA;
    d.LISTA(2, campo::kClase) = 9;
    d.LISTA(2, campo::kX1) = 20;
    d.LISTA(2, campo::kY1) = 5;
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, 0);
    // The box now goes to x = 20: ESCALAX = 0.6, ox = 3 + 1.5, and the element itself only has
    // its solid style set.
    EsperaOperaciones(Desde(impresora, 4), {
                                               {"Line", {4.5, 22.9, 10.5, 6.1, double(kVerde)}, ""},
                                               {"DrawStyle", {0}, ""},
                                           });
}

TEST(ImprimirLista, LosColoresSeRedondeanAEntero)
{
    GeneralDibujo d = ListaConMarco();
    d.LISTA(1, campo::kColor) = 65280.4;
    AnadePunto(d, 0, 0, 0);
    d.LISTA(2, campo::kColor) = 254.6;
    ImpresoraDoble impresora;
    const auto op = ImprimeConMarco(d, impresora);
    ASSERT_EQ(op.size(), 3u);
    EXPECT_EQ(impresora.operaciones[4].numeros[4], 65280.0);
    EXPECT_EQ(op[2].numeros[3], 255.0);
}

TEST(ImprimirLista, NoRestauraNadaDeLoQueDejaElUltimoElemento)
{
    GeneralDibujo d = ListaConMarco();
    AnadeLinea(d, 0, 0, 10, 0, 0, kPunteada, 2);
    AnadeTexto(d, Clase::Texto, 5, 5, kRojo255, 12, true, "TITULO");
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 1.0, 3.0, 4.0, 2.7, 0);
    EXPECT_EQ(impresora.operaciones.back().nombre, "Print");
    EXPECT_EQ(impresora.tamano, 12.0);
    EXPECT_TRUE(impresora.negrita);
    EXPECT_EQ(impresora.color, kRojo255);
    EXPECT_EQ(impresora.ancho, 4);
    EXPECT_EQ(impresora.estilo, 0);
    // The position is where the printed title left it: one line of size 12 below its top.
    EXPECT_NEAR(impresora.CurrentY(), 6.1 - 0.3 + 0.6, 1e-9);
    EXPECT_EQ(impresora.CurrentX(), 0.0);
}

TEST(ImprimirLista, UnaListaVaciaSoloFijaLaEscala)
{
    GeneralDibujo d;
    NuevaLista(d);
    ImpresoraDoble impresora;
    ImprimeLista(impresora, d, 2.0, 2.0, 2.0, 2.0, 0);
    EsperaOperaciones(impresora.operaciones, {{"ScaleMode", {7}, ""}});
    EXPECT_NEAR(d.ANCHOPIC, 15.0, 1e-9);
    EXPECT_NEAR(d.ALTOPIC, 23.7, 1e-9);
    EXPECT_EQ(d.ESCALAX, 0.0);
    EXPECT_EQ(d.ESCALAY, 0.0);
}

}  // namespace
}  // namespace texalon
