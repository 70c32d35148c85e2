// The flexure file reader: the reading rules of the values, the checks, the defaults it loads.
#include "Auxiliares.h"

#include "comun/Tablas.h"

#include "files/Ficheros.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace texalon {
namespace {

using prueba::ConFinDeLinea;
using prueba::LineasFlexionRectangular;
using prueba::LineasFlexionT;

// What a reading leaves, and the readings of bytes and of lines.
using prueba::kTipoSinLeer, prueba::Lectura, prueba::LeeFlexionDe, prueba::LeeLineasFlexion;

// The rectangular start file, or the T one, with one line changed.
std::vector<std::string> RectangularCon(std::size_t linea, const std::string& texto)
{
    return prueba::ConLinea(LineasFlexionRectangular(), linea, texto);
}
std::vector<std::string> TCon(std::size_t linea, const std::string& texto)
{
    return prueba::ConLinea(LineasFlexionT(), linea, texto);
}

// A refusal by the checks: no message, F_ERROR, the defaults.
void EsperaRechazo(const Lectura& lectura)
{
    EXPECT_TRUE(lectura.g.F_ERROR);
    EXPECT_TRUE(lectura.avisos.empty());
    prueba::EsperaValoresFlexion(lectura.g);
}

void EsperaAceptado(const Lectura& lectura)
{
    EXPECT_FALSE(lectura.g.F_ERROR);
    EXPECT_TRUE(lectura.avisos.empty());
}

// A run-time error: the one message, F_ERROR, the defaults.
void EsperaError(const Lectura& lectura, const std::string& mensaje)
{
    EXPECT_TRUE(lectura.g.F_ERROR);
    ASSERT_EQ(lectura.avisos.size(), 1u);
    EXPECT_EQ(lectura.avisos[0], mensaje);
    prueba::EsperaValoresFlexion(lectura.g);
}

const std::string kFinDeArchivo = "Error 62: La entrada sobrepasa el final del archivo";
const std::string kDesbordamiento = "Error 6: Desbordamiento";

// --- Good files ----------------------------------------------------------------------------------

TEST(LeeFlexion, RectangularGuardaCadaValorEnSuCampo)
{
    const Lectura l =
        LeeLineasFlexion({"1", "0.3", "0.7", "0.04", "12", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "80"});
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 1);
    prueba::EsperaCampos(l.g, {{"ANCHO", 0.3}, {"CANTO", 0.7}, {"RECUB", 0.04}, {"ASI", 12.0}, {"ASS", 3.0},
                               {"FCK", 30.0}, {"FYK", 400.0}, {"GC", 1.6}, {"GS", 1.2}, {"GR", 1.3}, {"ANCHOR", 0.2},
                               {"MCP", 5.0}, {"MD", 80.0}});
}

TEST(LeeFlexion, RectangularDejaAlmaAlaYEps0ComoEstaban)
{
    const Lectura l = LeeLineasFlexion(LineasFlexionRectangular());
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"ANCHOALMA", 0.35}, {"CANTOALA", 0.15}, {"EPS0", 0.001}, {"ANCHO", 0.4}});
}

TEST(LeeFlexion, SeccionTGuardaAlmaYAla)
{
    const Lectura l = LeeLineasFlexion(
        {"2", "0.8", "0.9", "0.25", "0.12", "0.04", "12", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "80"});
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 2);
    prueba::EsperaCampos(l.g, {{"ANCHO", 0.8}, {"CANTO", 0.9}, {"ANCHOALMA", 0.25}, {"CANTOALA", 0.12}, {"RECUB", 0.04},
                               {"ASI", 12.0}, {"ASS", 3.0}, {"FCK", 30.0}, {"FYK", 400.0}, {"GC", 1.6}, {"GS", 1.2},
                               {"GR", 1.3}, {"ANCHOR", 0.2}, {"MCP", 5.0}, {"MD", 80.0}, {"EPS0", 0.001}});
}

TEST(LeeFlexion, AssMcpYMdCeroSonBuenos)
{
    const Lectura l = LeeLineasFlexion(RectangularCon(12, "0.2"));  // ANCHOR, so that not all is default
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"ASS", 0.0}, {"MCP", 0.0}, {"MD", 0.0}, {"ANCHOR", 0.2}});
}

TEST(LeeFlexion, CoeficientesCeroAbren)
{
    // GC, GS and GR.
    const Lectura l = LeeLineasFlexion(prueba::ConLineas(LineasFlexionRectangular(), {{9, "0"}, {10, "0"}, {11, "0"}}));
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"GC", 0.0}, {"GS", 0.0}, {"GR", 0.0}});
}

TEST(LeeFlexion, AnchoYAnchorNegativosPasanYSeGuardanPositivos)
{
    const Lectura l = LeeLineasFlexion(RectangularCon(2, "-0.4") /* ANCHO */);
    // ANCHOR 0.125 > ANCHO -0.4: refused; the pair below passes.
    EsperaRechazo(l);
    auto lineas = RectangularCon(2, "-0.4");
    lineas[11] = "-0.5";  // ANCHOR
    const Lectura par = LeeLineasFlexion(lineas);
    EsperaAceptado(par);
    prueba::EsperaCampos(par.g, {{"ANCHO", 0.4}, {"ANCHOR", 0.5}});
}

TEST(LeeFlexion, NegativosSinReglaSeGuardanPositivos)
{
    // ASS, GC, MCP and MD.
    const Lectura l = LeeLineasFlexion(
        prueba::ConLineas(LineasFlexionRectangular(), {{6, "-3"}, {9, "-1.6"}, {13, "-7.5"}, {14, "-90"}}));
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"ASS", 3.0}, {"GC", 1.6}, {"MCP", 7.5}, {"MD", 90.0}});
}

// --- Section kind ------------------------------------------------------------------------------

TEST(LeeFlexion, TipoTresSeLeeComoRectangularYSeRechaza)
{
    const Lectura l = LeeLineasFlexion(RectangularCon(1, "3"));
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 3);
}

TEST(LeeFlexion, TipoTresConLineasDeTSeLeeComoRectangularYSeRechaza)
{
    auto lineas = LineasFlexionT();
    lineas[0] = "3";
    const Lectura l = LeeLineasFlexion(lineas);
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 3);
}

TEST(LeeFlexion, TipoTresCortoDaPrimeroFinDeArchivo)
{
    auto lineas = LineasFlexionRectangular();
    lineas[0] = "3";
    lineas.resize(10);
    const Lectura l = LeeLineasFlexion(lineas);
    EsperaError(l, kFinDeArchivo);
    EXPECT_EQ(l.tipo, 3);
}

TEST(LeeFlexion, TiposCeroYNegativoSeRechazan)
{
    const std::vector<std::pair<std::string, Entero>> casos = {
        {"0", 0}, {"-1", -1}, {"-2", -2}, {"32767", 32767}, {"-32768", -32768}};
    for (const auto& [texto, tipo] : casos) {
        SCOPED_TRACE(texto);
        const Lectura l = LeeLineasFlexion(RectangularCon(1, texto));
        EsperaRechazo(l);
        EXPECT_EQ(l.tipo, tipo);
    }
}

TEST(LeeFlexion, TipoSeRedondeaAlParMasCercano)
{
    // The classic integer conversion: half-way cases go to the even neighbour.
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "1.4")).tipo, 1);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "0.6")).tipo, 1);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "0.5")).tipo, 0);
    EXPECT_EQ(LeeLineasFlexion(TCon(1, "1.5")).tipo, 2);
    EXPECT_EQ(LeeLineasFlexion(TCon(1, "2.5")).tipo, 2);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "3.5")).tipo, 4);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "-0.5")).tipo, 0);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "-1.5")).tipo, -2);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "2.5000001")).tipo, 3);
}

TEST(LeeFlexion, TipoUnoYMedioAbreComoT)
{
    const Lectura l = LeeLineasFlexion(TCon(1, "1.5"));
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 2);
    prueba::EsperaCampos(l.g, {{"ANCHOALMA", 0.2}, {"CANTOALA", 0.2}});
}

TEST(LeeFlexion, TipoFueraDeDieciseisBitsDaDesbordamiento)
{
    for (const char* tipo : {"40000", "32768", "32767.5", "-32769", "-32768.6", "1e999"}) {
        SCOPED_TRACE(tipo);
        const Lectura l = LeeLineasFlexion(RectangularCon(1, tipo));
        EsperaError(l, kDesbordamiento);
        EXPECT_EQ(l.tipo, kTipoSinLeer);
    }
}

TEST(LeeFlexion, TipoEnLimitesDeDieciseisBitsNoDesborda)
{
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "32767.4")).tipo, 32767);
    EXPECT_EQ(LeeLineasFlexion(RectangularCon(1, "-32768.5")).tipo, -32768);
}

// --- Checks ------------------------------------------------------------------------------------

TEST(LeeFlexion, CadaCampoQueNoPuedeSerCeroSeRechazaRectangular)
{
    // ANCHO, CANTO, RECUB, ASI, ANCHOR; ANCHOR first so that ANCHO 0 fails on ANCHOR too.
    for (std::size_t linea : {2u, 3u, 4u, 5u, 12u}) {
        SCOPED_TRACE(linea);
        EsperaRechazo(LeeLineasFlexion(RectangularCon(linea, "0")));
    }
}

TEST(LeeFlexion, CadaCampoQueNoPuedeSerCeroSeRechazaEnT)
{
    // ANCHO, CANTO, ANCHOALMA, CANTOALA, RECUB, ASI, ANCHOR.
    for (std::size_t linea : {2u, 3u, 4u, 5u, 6u, 7u, 14u}) {
        SCOPED_TRACE(linea);
        const Lectura l = LeeLineasFlexion(TCon(linea, "0"));
        EsperaRechazo(l);
        EXPECT_EQ(l.tipo, 2);
    }
}

TEST(LeeFlexion, EnTAnchorSeMideContraElAlma)
{
    EsperaAceptado(LeeLineasFlexion(TCon(14, "0.2")));
    EsperaRechazo(LeeLineasFlexion(TCon(14, "0.2000001")));
    // An ANCHOR wider than the flange but not than the web passes.
    auto lineas = TCon(4, "0.5");  // ANCHOALMA above ANCHO 0.4
    lineas[13] = "0.45";  // ANCHOR
    const Lectura l = LeeLineasFlexion(lineas);
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"ANCHOR", 0.45}, {"ANCHOALMA", 0.5}});
}

TEST(LeeFlexion, FicheroQueFallaDosComprobacionesSeRechazaIgual)
{
    auto lineas = RectangularCon(5, "0");  // ASI
    lineas[6] = "70";  // FCK
    lineas[3] = "0.9";  // RECUB
    EsperaRechazo(LeeLineasFlexion(lineas));
}

TEST(LeeFlexion, FicheroRechazadoCambiaElEstadoPorLosValoresDeArranque)
{
    General inicial = prueba::EstadoAjeno();
    const Lectura l = LeeFlexionDe(ConFinDeLinea(RectangularCon(7, "10")), inicial);
    EsperaRechazo(l);
    EXPECT_EQ(l.g.EPS0, 0.0);
    // Confinement fields are no business of the flexure reader.
    prueba::EsperaCampos(l.g, {{"DIAM", 0.7}, {"NU", 0.3}});
}

TEST(LeeFlexion, NuncaBorraLaBanderaDeError)
{
    General inicial = prueba::EstadoAjeno();
    inicial.F_ERROR = true;
    const Lectura l = LeeFlexionDe(ConFinDeLinea(RectangularCon(2, "0.5")), inicial);
    EXPECT_TRUE(l.g.F_ERROR);
    EXPECT_TRUE(l.avisos.empty());
    EXPECT_EQ(l.tipo, 1);
    EXPECT_EQ(l.g.ANCHO, 0.5);
}

// --- Reading rules -----------------------------------------------------------------------------

TEST(LeeFlexion, LetraEnElTipoLeeCeroYSeRechaza)
{
    const Lectura l = LeeLineasFlexion(RectangularCon(1, "R"));
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 0);
}

TEST(LeeFlexion, ComaDecimalDesplazaLosValoresYSeRechaza)
{
    // 0,4 is read as 0 and 4: ANCHO 0, CANTO 4, RECUB 0, ... and ANCHOR 1 > ANCHO 0.
    const Lectura l =
        LeeFlexionDe("1\r\n0,4\r\n0,6\r\n0,05\r\n10\r\n0\r\n25\r\n500\r\n1,5\r\n1,15\r\n1,4\r\n0,125\r\n0\r\n0\r\n");
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 1);
}

TEST(LeeFlexion, ComaDecimalEnUnCoeficienteDesplazaLoQueSigue)
{
    // GC 1,5 becomes GC 1 and GS 5; everything behind moves by one and the last line is left
    // unread. The section is made wide enough for the shifted sheet width to pass.
    auto lineas = RectangularCon(9, "1,5");
    lineas[1] = "2";  // ANCHO
    const Lectura l = LeeLineasFlexion(lineas);
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"GC", 1.0}, {"GS", 5.0}, {"GR", 1.15}, {"ANCHOR", 1.4}, {"MCP", 0.125}, {"MD", 0.0},
                               {"ANCHO", 2.0}});
}

TEST(LeeFlexion, VariosValoresPorLineaSeparadosPorComasLeenIgual)
{
    const Lectura una =
        LeeLineasFlexion({"1", "0.3", "0.7", "0.04", "12", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "80"});
    const Lectura varias = LeeFlexionDe("1,0.3,0.7\r\n0.04, 12 ,3\r\n30,\t400,1.6,1.2\r\n1.3,0.2\r\n5\r\n80\r\n");
    EsperaAceptado(varias);
    EXPECT_EQ(varias.tipo, 1);
    prueba::EsperaMismosValoresFlexion(una.g, varias.g);
}

TEST(LeeFlexion, NumeroSinCeroDelanteSignoYExponente)
{
    // The kind, ANCHO, CANTO, RECUB, ASI, ASS, FCK, FYK and MCP.
    const Lectura l = LeeLineasFlexion(prueba::ConLineas(LineasFlexionRectangular(),
                                                         {{1, "+1"},
                                                          {2, ".4"},
                                                          {3, "6e-1"},
                                                          {4, "+.05"},
                                                          {5, "1e1"},
                                                          {6, "2.5D1"},
                                                          {7, "2.5E+1"},
                                                          {8, "5000e-1"},
                                                          {13, "-1.25e2"}}));
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 1);
    prueba::EsperaCampos(l.g, {{"ANCHO", 0.4}, {"CANTO", 0.6}, {"RECUB", 0.05}, {"ASI", 10.0}, {"ASS", 25.0},
                               {"FCK", 25.0}, {"FYK", 500.0}, {"MCP", 125.0}});
}

TEST(LeeFlexion, BlancosDelanteDeLosValoresSeSaltan)
{
    const Lectura l = LeeFlexionDe(ConFinDeLinea(
        {"   1", "\t0.3", " \t 0.7", "0.04", "  12  ", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "\t80"}));
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 1);
    prueba::EsperaCampos(l.g, {{"ANCHO", 0.3}, {"CANTO", 0.7}, {"ASI", 12.0}, {"MD", 80.0}});
}

TEST(LeeFlexion, FinesDeLineaCrLfLfYCrSolos)
{
    const auto lineas = std::vector<std::string>{"1",   "0.3", "0.7", "0.04", "12",  "3", "30",
                                                 "400", "1.6", "1.2", "1.3",  "0.2", "5", "80"};
    const Lectura crlf = LeeFlexionDe(ConFinDeLinea(lineas, "\r\n"));
    EsperaAceptado(crlf);
    for (const char* fin : {"\n", "\r"}) {
        SCOPED_TRACE(fin[0] == '\n' ? "LF" : "CR");
        const Lectura l = LeeFlexionDe(ConFinDeLinea(lineas, fin));
        EsperaAceptado(l);
        EXPECT_EQ(l.tipo, 1);
        prueba::EsperaMismosValoresFlexion(crlf.g, l.g);
    }
}

TEST(LeeFlexion, UltimaLineaSinFinDeLineaSeLee)
{
    std::string texto = ConFinDeLinea(LineasFlexionRectangular());
    texto.erase(texto.size() - 2);
    texto.back() = '7';  // MD
    const Lectura l = LeeFlexionDe(texto);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.MD, 7.0);
}

TEST(LeeFlexion, LfCrSonDosFinesDeLinea)
{
    // LF then CR is not one line end: an empty value (0) stands between them.
    const Lectura l =
        LeeFlexionDe("1\n\r0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n");
    EsperaRechazo(l);  // ANCHO 0
}

TEST(LeeFlexion, LoQueSigueAlUltimoValorSeIgnora)
{
    auto lineas = LineasFlexionRectangular();
    lineas.push_back("basura");
    lineas.push_back("1e999");
    const Lectura l = LeeLineasFlexion(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ANCHO, 0.4);
}

// --- One line of a start file changed ---------------------------------------------------------

// The start file that a case changes: the rectangular or the T one.
enum class Inicio { Rectangular, T };

std::vector<std::string> InicioCon(Inicio inicio, std::size_t linea, const std::string& texto)
{
    return inicio == Inicio::T ? TCon(linea, texto) : RectangularCon(linea, texto);
}

// A line changed that the checks let through, and the value that its field then holds.
struct LineaAceptada {
    const char* nombre;
    Inicio inicio;
    std::size_t linea;  // from 1, as in the file
    const char* texto;
    const char* campo;
    double valor;
};

class FlexionAceptada : public ::testing::TestWithParam<LineaAceptada> {};

TEST_P(FlexionAceptada, GuardaElValor)
{
    const LineaAceptada& caso = GetParam();
    const Lectura l = LeeLineasFlexion(InicioCon(caso.inicio, caso.linea, caso.texto));
    EsperaAceptado(l);
    EXPECT_EQ(prueba::Campo(l.g, caso.campo), caso.valor);
}

// clang-format off
const LineaAceptada kLineasAceptadas[] = {
    // The bounds of the checks themselves.
    {"FckQuinceSeAcepta",                      Inicio::Rectangular, 7,  "15",    "FCK",      15.0},
    {"FckCincuentaSeAcepta",                   Inicio::Rectangular, 7,  "50",    "FCK",      50.0},
    {"FykTrescientosSeAcepta",                 Inicio::Rectangular, 8,  "300",   "FYK",      300.0},
    {"FykSeiscientosSeAcepta",                 Inicio::Rectangular, 8,  "600",   "FYK",      600.0},
    {"AnchorIgualAlAnchoSeAcepta",             Inicio::Rectangular, 12, "0.4",   "ANCHOR",   0.4},
    {"RecubrimientoIgualAMedioCantoSeAcepta",  Inicio::Rectangular, 4,  "0.3",   "RECUB",    0.3},
    {"CantoAlaIgualAlCantoSeAcepta",           Inicio::T,           5,  "0.6",   "CANTOALA", 0.6},
    // The reading rules of a value.
    {"LetraEnLugarDeNumeroLeeCero",            Inicio::Rectangular, 6,  "x",     "ASS",      0.0},
    {"TextoTrasElNumeroSeIgnora",              Inicio::Rectangular, 5,  "12abc", "ASI",      12.0},
    {"LineaVaciaLeeCero",                      Inicio::Rectangular, 6,  "",      "ASS",      0.0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(LeeFlexion, FlexionAceptada, ::testing::ValuesIn(kLineasAceptadas), prueba::NombreDeFila());

// A line changed that the checks refuse: no message, F_ERROR, the defaults.
struct LineaRechazada {
    const char* nombre;
    Inicio inicio;
    std::size_t linea;
    const char* texto;
};

class FlexionRechazada : public ::testing::TestWithParam<LineaRechazada> {};

TEST_P(FlexionRechazada, CargaLosValoresDeArranque)
{
    const LineaRechazada& caso = GetParam();
    EsperaRechazo(LeeLineasFlexion(InicioCon(caso.inicio, caso.linea, caso.texto)));
}

// clang-format off
const LineaRechazada kLineasRechazadas[] = {
    {"AsiCeroSeRechaza",                         Inicio::Rectangular, 5,  "0"},
    // CANTO / 2 >= RECUB runs on the raw values.
    {"CantoNegativoFallaPorElRecubrimiento",     Inicio::Rectangular, 3,  "-0.6"},
    // ANCHOR is measured against the web, so only the not-zero check catches ANCHO 0 here.
    {"AnchoCeroEnTConAnchorBajoElAlmaSeRechazaIgual", Inicio::T,      2,  "0"},
    {"FckJustoBajoQuinceSeRechaza",              Inicio::Rectangular, 7,  "14.999999"},
    {"FckJustoSobreCincuentaSeRechaza",          Inicio::Rectangular, 7,  "50.000001"},
    {"FckNegativoSeRechaza",                     Inicio::Rectangular, 7,  "-25"},
    {"FykJustoBajoTrescientosSeRechaza",         Inicio::Rectangular, 8,  "299.9999"},
    {"FykJustoSobreSeiscientosSeRechaza",        Inicio::Rectangular, 8,  "600.0001"},
    {"FykNegativoSeRechaza",                     Inicio::Rectangular, 8,  "-500"},
    {"AnchorMayorQueElAnchoSeRechaza",           Inicio::Rectangular, 12, "0.4000001"},
    {"RecubrimientoMayorQueMedioCantoSeRechaza", Inicio::Rectangular, 4,  "0.3000001"},
    {"CantoAlaMayorQueElCantoSeRechaza",         Inicio::T,           5,  "0.6000001"},
    {"LetraEnAsiLeeCeroYSeRechaza",              Inicio::Rectangular, 5,  "abc"},
    {"AsiDeSoloBlancosLeeCeroYSeRechaza",        Inicio::Rectangular, 5,  "   "},
    // GC 1,5 shifts the real sheet width 0,125 behind into ANCHOR: 1.4 > 0.4.
    {"AnchorDesplazadoPorComaSeRechaza",         Inicio::Rectangular, 9,  "1,5"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(LeeFlexion, FlexionRechazada, ::testing::ValuesIn(kLineasRechazadas), prueba::NombreDeFila());

// --- Run-time errors -----------------------------------------------------------------------------

TEST(LeeFlexion, FicheroVacioDaFinDeArchivo)
{
    const Lectura l = LeeFlexionDe("");
    EsperaError(l, kFinDeArchivo);
    EXPECT_EQ(l.tipo, kTipoSinLeer);
}

TEST(LeeFlexion, FicheroCortoDaFinDeArchivoYGuardaElTipoLeido)
{
    auto lineas = LineasFlexionT();
    lineas.resize(15);
    const Lectura l = LeeLineasFlexion(lineas);
    EsperaError(l, kFinDeArchivo);
    EXPECT_EQ(l.tipo, 2);
}

TEST(LeeFlexion, ComaFinalSinMasValoresDaFinDeArchivo)
{
    std::string texto = ConFinDeLinea(LineasFlexionRectangular());
    texto.erase(texto.size() - 5);  // keeps MCP's 0 without its line end, drops MD
    texto += ",";
    EsperaError(LeeFlexionDe(texto), kFinDeArchivo);
}

TEST(LeeFlexion, SoloBlancosAlFinalDaFinDeArchivo)
{
    auto lineas = LineasFlexionRectangular();
    lineas.pop_back();
    EsperaError(LeeFlexionDe(ConFinDeLinea(lineas) + "   \t"), kFinDeArchivo);
}

TEST(LeeFlexion, DobleDemasiadoGrandeDaDesbordamiento)
{
    for (const std::string& valor : {std::string("1e999"), std::string("-1e999"), "1" + std::string(400, '0')}) {
        SCOPED_TRACE(valor);
        EsperaError(LeeLineasFlexion(RectangularCon(6, valor)), kDesbordamiento);
    }
}

TEST(LeeFlexion, DesbordamientoEnCampoSinLeerEnRectangularNoCuenta)
{
    // Line 15 of a rectangular file is never read.
    auto lineas = LineasFlexionRectangular();
    lineas.push_back("1e999");
    EsperaAceptado(LeeLineasFlexion(lineas));
}

}  // namespace
}  // namespace texalon
