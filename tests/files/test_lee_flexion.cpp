// The flexure file reader: the reading rules of the values, the checks, the defaults it loads.
#include "Auxiliares.h"

#include "files/Ficheros.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace texalon {
namespace {

using prueba::ConFinDeLinea;
using prueba::DirectorioTemporal;
using prueba::LineasFlexionRectangular;
using prueba::LineasFlexionT;

constexpr Entero kTipoSinLeer = -7;

// What a reading leaves behind: the state, the section kind and the messages shown.
struct Lectura {
    General g;
    Entero tipo = kTipoSinLeer;
    std::vector<std::string> avisos;
};

// Reads a hand-made file over a state whose values all differ from the defaults.
Lectura LeeTexto(const std::string& bytes, General inicial = prueba::EstadoAjeno())
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("proyecto.vmf"), bytes);
    Lectura lectura;
    lectura.g = inicial;
    prueba::Avisos avisos;
    LeeFlexion(lectura.g, dir.Fichero("proyecto.vmf"), lectura.tipo, avisos.Funcion());
    lectura.avisos = avisos.Textos();
    return lectura;
}

Lectura LeeLineas(const std::vector<std::string>& lineas) { return LeeTexto(ConFinDeLinea(lineas)); }

// The rectangular start file with one line changed (line numbers from 1, as in the file).
std::vector<std::string> RectangularCon(std::size_t linea, const std::string& texto)
{
    auto lineas = LineasFlexionRectangular();
    lineas.at(linea - 1) = texto;
    return lineas;
}

std::vector<std::string> TCon(std::size_t linea, const std::string& texto)
{
    auto lineas = LineasFlexionT();
    lineas.at(linea - 1) = texto;
    return lineas;
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
        LeeLineas({"1", "0.3", "0.7", "0.04", "12", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "80"});
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 1);
    EXPECT_EQ(l.g.ANCHO, 0.3);
    EXPECT_EQ(l.g.CANTO, 0.7);
    EXPECT_EQ(l.g.RECUB, 0.04);
    EXPECT_EQ(l.g.ASI, 12.0);
    EXPECT_EQ(l.g.ASS, 3.0);
    EXPECT_EQ(l.g.FCK, 30.0);
    EXPECT_EQ(l.g.FYK, 400.0);
    EXPECT_EQ(l.g.GC, 1.6);
    EXPECT_EQ(l.g.GS, 1.2);
    EXPECT_EQ(l.g.GR, 1.3);
    EXPECT_EQ(l.g.ANCHOR, 0.2);
    EXPECT_EQ(l.g.MCP, 5.0);
    EXPECT_EQ(l.g.MD, 80.0);
}

TEST(LeeFlexion, RectangularDejaAlmaAlaYEps0ComoEstaban)
{
    const Lectura l = LeeLineas(LineasFlexionRectangular());
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ANCHOALMA, 0.35);
    EXPECT_EQ(l.g.CANTOALA, 0.15);
    EXPECT_EQ(l.g.EPS0, 0.001);
    EXPECT_EQ(l.g.ANCHO, 0.4);
}

TEST(LeeFlexion, SeccionTGuardaAlmaYAla)
{
    const Lectura l = LeeLineas(
        {"2", "0.8", "0.9", "0.25", "0.12", "0.04", "12", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "80"});
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 2);
    EXPECT_EQ(l.g.ANCHO, 0.8);
    EXPECT_EQ(l.g.CANTO, 0.9);
    EXPECT_EQ(l.g.ANCHOALMA, 0.25);
    EXPECT_EQ(l.g.CANTOALA, 0.12);
    EXPECT_EQ(l.g.RECUB, 0.04);
    EXPECT_EQ(l.g.ASI, 12.0);
    EXPECT_EQ(l.g.ASS, 3.0);
    EXPECT_EQ(l.g.FCK, 30.0);
    EXPECT_EQ(l.g.FYK, 400.0);
    EXPECT_EQ(l.g.GC, 1.6);
    EXPECT_EQ(l.g.GS, 1.2);
    EXPECT_EQ(l.g.GR, 1.3);
    EXPECT_EQ(l.g.ANCHOR, 0.2);
    EXPECT_EQ(l.g.MCP, 5.0);
    EXPECT_EQ(l.g.MD, 80.0);
    EXPECT_EQ(l.g.EPS0, 0.001);
}

TEST(LeeFlexion, AssMcpYMdCeroSonBuenos)
{
    const Lectura l = LeeLineas(RectangularCon(12, "0.2"));  // ANCHOR, so that not all is default
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ASS, 0.0);
    EXPECT_EQ(l.g.MCP, 0.0);
    EXPECT_EQ(l.g.MD, 0.0);
    EXPECT_EQ(l.g.ANCHOR, 0.2);
}

TEST(LeeFlexion, CoeficientesCeroAbren)
{
    auto lineas = LineasFlexionRectangular();
    lineas[8] = "0";
    lineas[9] = "0";
    lineas[10] = "0";
    const Lectura l = LeeLineas(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.GC, 0.0);
    EXPECT_EQ(l.g.GS, 0.0);
    EXPECT_EQ(l.g.GR, 0.0);
}

TEST(LeeFlexion, AnchoYAnchorNegativosPasanYSeGuardanPositivos)
{
    const Lectura l = LeeLineas(RectangularCon(2, "-0.4") /* ANCHO */);
    // ANCHOR 0.125 > ANCHO -0.4: refused; the pair below passes.
    EsperaRechazo(l);
    auto lineas = RectangularCon(2, "-0.4");
    lineas[11] = "-0.5";  // ANCHOR
    const Lectura par = LeeLineas(lineas);
    EsperaAceptado(par);
    EXPECT_EQ(par.g.ANCHO, 0.4);
    EXPECT_EQ(par.g.ANCHOR, 0.5);
}

TEST(LeeFlexion, NegativosSinReglaSeGuardanPositivos)
{
    auto lineas = LineasFlexionRectangular();
    lineas[5] = "-3";  // ASS
    lineas[8] = "-1.6";  // GC
    lineas[12] = "-7.5";  // MCP
    lineas[13] = "-90";  // MD
    const Lectura l = LeeLineas(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ASS, 3.0);
    EXPECT_EQ(l.g.GC, 1.6);
    EXPECT_EQ(l.g.MCP, 7.5);
    EXPECT_EQ(l.g.MD, 90.0);
}

TEST(LeeFlexion, CantoNegativoFallaPorElRecubrimiento)
{
    // CANTO / 2 >= RECUB runs on the raw values.
    EsperaRechazo(LeeLineas(RectangularCon(3, "-0.6")));
}

// --- Section kind ------------------------------------------------------------------------------

TEST(LeeFlexion, TipoTresSeLeeComoRectangularYSeRechaza)
{
    const Lectura l = LeeLineas(RectangularCon(1, "3"));
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 3);
}

TEST(LeeFlexion, TipoTresConLineasDeTSeLeeComoRectangularYSeRechaza)
{
    auto lineas = LineasFlexionT();
    lineas[0] = "3";
    const Lectura l = LeeLineas(lineas);
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 3);
}

TEST(LeeFlexion, TipoTresCortoDaPrimeroFinDeArchivo)
{
    auto lineas = LineasFlexionRectangular();
    lineas[0] = "3";
    lineas.resize(10);
    const Lectura l = LeeLineas(lineas);
    EsperaError(l, kFinDeArchivo);
    EXPECT_EQ(l.tipo, 3);
}

TEST(LeeFlexion, TiposCeroYNegativoSeRechazan)
{
    const std::vector<std::pair<std::string, Entero>> casos = {
        {"0", 0}, {"-1", -1}, {"-2", -2}, {"32767", 32767}, {"-32768", -32768}};
    for (const auto& [texto, tipo] : casos) {
        SCOPED_TRACE(texto);
        const Lectura l = LeeLineas(RectangularCon(1, texto));
        EsperaRechazo(l);
        EXPECT_EQ(l.tipo, tipo);
    }
}

TEST(LeeFlexion, TipoSeRedondeaAlParMasCercano)
{
    // The classic integer conversion: half-way cases go to the even neighbour.
    EXPECT_EQ(LeeLineas(RectangularCon(1, "1.4")).tipo, 1);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "0.6")).tipo, 1);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "0.5")).tipo, 0);
    EXPECT_EQ(LeeLineas(TCon(1, "1.5")).tipo, 2);
    EXPECT_EQ(LeeLineas(TCon(1, "2.5")).tipo, 2);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "3.5")).tipo, 4);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "-0.5")).tipo, 0);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "-1.5")).tipo, -2);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "2.5000001")).tipo, 3);
}

TEST(LeeFlexion, TipoUnoYMedioAbreComoT)
{
    const Lectura l = LeeLineas(TCon(1, "1.5"));
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 2);
    EXPECT_EQ(l.g.ANCHOALMA, 0.2);
    EXPECT_EQ(l.g.CANTOALA, 0.2);
}

TEST(LeeFlexion, TipoFueraDeDieciseisBitsDaDesbordamiento)
{
    for (const char* tipo : {"40000", "32768", "32767.5", "-32769", "-32768.6", "1e999"}) {
        SCOPED_TRACE(tipo);
        const Lectura l = LeeLineas(RectangularCon(1, tipo));
        EsperaError(l, kDesbordamiento);
        EXPECT_EQ(l.tipo, kTipoSinLeer);
    }
}

TEST(LeeFlexion, TipoEnLimitesDeDieciseisBitsNoDesborda)
{
    EXPECT_EQ(LeeLineas(RectangularCon(1, "32767.4")).tipo, 32767);
    EXPECT_EQ(LeeLineas(RectangularCon(1, "-32768.5")).tipo, -32768);
}

// --- Checks ------------------------------------------------------------------------------------

TEST(LeeFlexion, AsiCeroSeRechaza) { EsperaRechazo(LeeLineas(RectangularCon(5, "0"))); }

TEST(LeeFlexion, CadaCampoQueNoPuedeSerCeroSeRechazaRectangular)
{
    // ANCHO, CANTO, RECUB, ASI, ANCHOR; ANCHOR first so that ANCHO 0 fails on ANCHOR too.
    for (std::size_t linea : {2u, 3u, 4u, 5u, 12u}) {
        SCOPED_TRACE(linea);
        EsperaRechazo(LeeLineas(RectangularCon(linea, "0")));
    }
}

TEST(LeeFlexion, CadaCampoQueNoPuedeSerCeroSeRechazaEnT)
{
    // ANCHO, CANTO, ANCHOALMA, CANTOALA, RECUB, ASI, ANCHOR.
    for (std::size_t linea : {2u, 3u, 4u, 5u, 6u, 7u, 14u}) {
        SCOPED_TRACE(linea);
        const Lectura l = LeeLineas(TCon(linea, "0"));
        EsperaRechazo(l);
        EXPECT_EQ(l.tipo, 2);
    }
}

TEST(LeeFlexion, AnchoCeroEnTConAnchorBajoElAlmaSeRechazaIgual)
{
    // ANCHOR is measured against the web, so only the not-zero check catches ANCHO 0 here.
    EsperaRechazo(LeeLineas(TCon(2, "0")));
}

TEST(LeeFlexion, LimitesDeFckSeAceptan)
{
    const Lectura quince = LeeLineas(RectangularCon(7, "15"));
    EsperaAceptado(quince);
    EXPECT_EQ(quince.g.FCK, 15.0);
    const Lectura cincuenta = LeeLineas(RectangularCon(7, "50"));
    EsperaAceptado(cincuenta);
    EXPECT_EQ(cincuenta.g.FCK, 50.0);
}

TEST(LeeFlexion, FckJustoFueraSeRechaza)
{
    for (const char* fck : {"14.999999", "50.000001", "-25"}) {
        SCOPED_TRACE(fck);
        EsperaRechazo(LeeLineas(RectangularCon(7, fck)));
    }
}

TEST(LeeFlexion, LimitesDeFykSeAceptan)
{
    const Lectura trescientos = LeeLineas(RectangularCon(8, "300"));
    EsperaAceptado(trescientos);
    EXPECT_EQ(trescientos.g.FYK, 300.0);
    const Lectura seiscientos = LeeLineas(RectangularCon(8, "600"));
    EsperaAceptado(seiscientos);
    EXPECT_EQ(seiscientos.g.FYK, 600.0);
}

TEST(LeeFlexion, FykJustoFueraSeRechaza)
{
    for (const char* fyk : {"299.9999", "600.0001", "-500"}) {
        SCOPED_TRACE(fyk);
        EsperaRechazo(LeeLineas(RectangularCon(8, fyk)));
    }
}

TEST(LeeFlexion, AnchorIgualAlAnchoSeAcepta)
{
    const Lectura l = LeeLineas(RectangularCon(12, "0.4"));
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ANCHOR, 0.4);
}

TEST(LeeFlexion, AnchorMayorQueElAnchoSeRechaza) { EsperaRechazo(LeeLineas(RectangularCon(12, "0.4000001"))); }

TEST(LeeFlexion, EnTAnchorSeMideContraElAlma)
{
    EsperaAceptado(LeeLineas(TCon(14, "0.2")));
    EsperaRechazo(LeeLineas(TCon(14, "0.2000001")));
    // An ANCHOR wider than the flange but not than the web passes.
    auto lineas = TCon(4, "0.5");  // ANCHOALMA above ANCHO 0.4
    lineas[13] = "0.45";  // ANCHOR
    const Lectura l = LeeLineas(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ANCHOR, 0.45);
    EXPECT_EQ(l.g.ANCHOALMA, 0.5);
}

TEST(LeeFlexion, RecubrimientoIgualAMedioCantoSeAcepta)
{
    const Lectura l = LeeLineas(RectangularCon(4, "0.3"));
    EsperaAceptado(l);
    EXPECT_EQ(l.g.RECUB, 0.3);
}

TEST(LeeFlexion, RecubrimientoMayorQueMedioCantoSeRechaza) { EsperaRechazo(LeeLineas(RectangularCon(4, "0.3000001"))); }

TEST(LeeFlexion, CantoAlaIgualAlCantoSeAcepta)
{
    const Lectura l = LeeLineas(TCon(5, "0.6"));
    EsperaAceptado(l);
    EXPECT_EQ(l.g.CANTOALA, 0.6);
}

TEST(LeeFlexion, CantoAlaMayorQueElCantoSeRechaza) { EsperaRechazo(LeeLineas(TCon(5, "0.6000001"))); }

TEST(LeeFlexion, FicheroQueFallaDosComprobacionesSeRechazaIgual)
{
    auto lineas = RectangularCon(5, "0");  // ASI
    lineas[6] = "70";  // FCK
    lineas[3] = "0.9";  // RECUB
    EsperaRechazo(LeeLineas(lineas));
}

TEST(LeeFlexion, FicheroRechazadoCambiaElEstadoPorLosValoresDeArranque)
{
    General inicial = prueba::EstadoAjeno();
    const Lectura l = LeeTexto(ConFinDeLinea(RectangularCon(7, "10")), inicial);
    EsperaRechazo(l);
    EXPECT_EQ(l.g.EPS0, 0.0);
    // Confinement fields are no business of the flexure reader.
    EXPECT_EQ(l.g.DIAM, 0.7);
    EXPECT_EQ(l.g.NU, 0.3);
}

TEST(LeeFlexion, NuncaBorraLaBanderaDeError)
{
    General inicial = prueba::EstadoAjeno();
    inicial.F_ERROR = true;
    const Lectura l = LeeTexto(ConFinDeLinea(RectangularCon(2, "0.5")), inicial);
    EXPECT_TRUE(l.g.F_ERROR);
    EXPECT_TRUE(l.avisos.empty());
    EXPECT_EQ(l.tipo, 1);
    EXPECT_EQ(l.g.ANCHO, 0.5);
}

// --- Reading rules -----------------------------------------------------------------------------

TEST(LeeFlexion, LetraEnLugarDeNumeroLeeCero)
{
    const Lectura ass = LeeLineas(RectangularCon(6, "x"));
    EsperaAceptado(ass);
    EXPECT_EQ(ass.g.ASS, 0.0);
    EsperaRechazo(LeeLineas(RectangularCon(5, "abc")));  // ASI
}

TEST(LeeFlexion, TextoTrasElNumeroSeIgnora)
{
    const Lectura l = LeeLineas(RectangularCon(5, "12abc"));
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ASI, 12.0);
}

TEST(LeeFlexion, LetraEnElTipoLeeCeroYSeRechaza)
{
    const Lectura l = LeeLineas(RectangularCon(1, "R"));
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 0);
}

TEST(LeeFlexion, ComaDecimalDesplazaLosValoresYSeRechaza)
{
    // 0,4 is read as 0 and 4: ANCHO 0, CANTO 4, RECUB 0, ... and ANCHOR 1 > ANCHO 0.
    const Lectura l =
        LeeTexto("1\r\n0,4\r\n0,6\r\n0,05\r\n10\r\n0\r\n25\r\n500\r\n1,5\r\n1,15\r\n1,4\r\n0,125\r\n0\r\n0\r\n");
    EsperaRechazo(l);
    EXPECT_EQ(l.tipo, 1);
}

TEST(LeeFlexion, ComaDecimalEnUnCoeficienteDesplazaLoQueSigue)
{
    // GC 1,5 becomes GC 1 and GS 5; everything behind moves by one and the last line is left
    // unread. The section is made wide enough for the shifted sheet width to pass.
    auto lineas = RectangularCon(9, "1,5");
    lineas[1] = "2";  // ANCHO
    const Lectura l = LeeLineas(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.GC, 1.0);
    EXPECT_EQ(l.g.GS, 5.0);
    EXPECT_EQ(l.g.GR, 1.15);
    EXPECT_EQ(l.g.ANCHOR, 1.4);
    EXPECT_EQ(l.g.MCP, 0.125);
    EXPECT_EQ(l.g.MD, 0.0);
    EXPECT_EQ(l.g.ANCHO, 2.0);
}

TEST(LeeFlexion, AnchorDesplazadoPorComaSeRechaza)
{
    // The same shift with the real sheet width 0,125 behind: ANCHOR becomes 1.4 > 0.4.
    EsperaRechazo(LeeLineas(RectangularCon(9, "1,5")));
}

TEST(LeeFlexion, VariosValoresPorLineaSeparadosPorComasLeenIgual)
{
    const Lectura una =
        LeeLineas({"1", "0.3", "0.7", "0.04", "12", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "80"});
    const Lectura varias = LeeTexto("1,0.3,0.7\r\n0.04, 12 ,3\r\n30,\t400,1.6,1.2\r\n1.3,0.2\r\n5\r\n80\r\n");
    EsperaAceptado(varias);
    EXPECT_EQ(varias.tipo, 1);
    prueba::EsperaMismosValoresFlexion(una.g, varias.g);
}

TEST(LeeFlexion, NumeroSinCeroDelanteSignoYExponente)
{
    auto lineas = LineasFlexionRectangular();
    lineas[0] = "+1";
    lineas[1] = ".4";  // ANCHO
    lineas[2] = "6e-1";  // CANTO
    lineas[3] = "+.05";  // RECUB
    lineas[4] = "1e1";  // ASI
    lineas[5] = "2.5D1";  // ASS
    lineas[6] = "2.5E+1";  // FCK
    lineas[7] = "5000e-1";  // FYK
    lineas[12] = "-1.25e2";  // MCP
    const Lectura l = LeeLineas(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 1);
    EXPECT_EQ(l.g.ANCHO, 0.4);
    EXPECT_EQ(l.g.CANTO, 0.6);
    EXPECT_EQ(l.g.RECUB, 0.05);
    EXPECT_EQ(l.g.ASI, 10.0);
    EXPECT_EQ(l.g.ASS, 25.0);
    EXPECT_EQ(l.g.FCK, 25.0);
    EXPECT_EQ(l.g.FYK, 500.0);
    EXPECT_EQ(l.g.MCP, 125.0);
}

TEST(LeeFlexion, BlancosDelanteDeLosValoresSeSaltan)
{
    const Lectura l = LeeTexto(ConFinDeLinea(
        {"   1", "\t0.3", " \t 0.7", "0.04", "  12  ", "3", "30", "400", "1.6", "1.2", "1.3", "0.2", "5", "\t80"}));
    EsperaAceptado(l);
    EXPECT_EQ(l.tipo, 1);
    EXPECT_EQ(l.g.ANCHO, 0.3);
    EXPECT_EQ(l.g.CANTO, 0.7);
    EXPECT_EQ(l.g.ASI, 12.0);
    EXPECT_EQ(l.g.MD, 80.0);
}

TEST(LeeFlexion, LineaVaciaLeeCero)
{
    const Lectura l = LeeLineas(RectangularCon(6, ""));  // ASS
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ASS, 0.0);
    EsperaRechazo(LeeLineas(RectangularCon(5, "   ")));  // ASI of blanks only
}

TEST(LeeFlexion, FinesDeLineaCrLfLfYCrSolos)
{
    const auto lineas = std::vector<std::string>{"1",   "0.3", "0.7", "0.04", "12",  "3", "30",
                                                 "400", "1.6", "1.2", "1.3",  "0.2", "5", "80"};
    const Lectura crlf = LeeTexto(ConFinDeLinea(lineas, "\r\n"));
    EsperaAceptado(crlf);
    for (const char* fin : {"\n", "\r"}) {
        SCOPED_TRACE(fin[0] == '\n' ? "LF" : "CR");
        const Lectura l = LeeTexto(ConFinDeLinea(lineas, fin));
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
    const Lectura l = LeeTexto(texto);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.MD, 7.0);
}

TEST(LeeFlexion, LfCrSonDosFinesDeLinea)
{
    // LF then CR is not one line end: an empty value (0) stands between them.
    const Lectura l = LeeTexto("1\n\r0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n");
    EsperaRechazo(l);  // ANCHO 0
}

TEST(LeeFlexion, LoQueSigueAlUltimoValorSeIgnora)
{
    auto lineas = LineasFlexionRectangular();
    lineas.push_back("basura");
    lineas.push_back("1e999");
    const Lectura l = LeeLineas(lineas);
    EsperaAceptado(l);
    EXPECT_EQ(l.g.ANCHO, 0.4);
}

// --- Run-time errors -----------------------------------------------------------------------------

TEST(LeeFlexion, FicheroVacioDaFinDeArchivo)
{
    const Lectura l = LeeTexto("");
    EsperaError(l, kFinDeArchivo);
    EXPECT_EQ(l.tipo, kTipoSinLeer);
}

TEST(LeeFlexion, FicheroCortoDaFinDeArchivoYGuardaElTipoLeido)
{
    auto lineas = LineasFlexionT();
    lineas.resize(15);
    const Lectura l = LeeLineas(lineas);
    EsperaError(l, kFinDeArchivo);
    EXPECT_EQ(l.tipo, 2);
}

TEST(LeeFlexion, ComaFinalSinMasValoresDaFinDeArchivo)
{
    std::string texto = ConFinDeLinea(LineasFlexionRectangular());
    texto.erase(texto.size() - 5);  // keeps MCP's 0 without its line end, drops MD
    texto += ",";
    EsperaError(LeeTexto(texto), kFinDeArchivo);
}

TEST(LeeFlexion, SoloBlancosAlFinalDaFinDeArchivo)
{
    auto lineas = LineasFlexionRectangular();
    lineas.pop_back();
    EsperaError(LeeTexto(ConFinDeLinea(lineas) + "   \t"), kFinDeArchivo);
}

TEST(LeeFlexion, DobleDemasiadoGrandeDaDesbordamiento)
{
    for (const std::string& valor : {std::string("1e999"), std::string("-1e999"), "1" + std::string(400, '0')}) {
        SCOPED_TRACE(valor);
        EsperaError(LeeLineas(RectangularCon(6, valor)), kDesbordamiento);
    }
}

TEST(LeeFlexion, DesbordamientoEnCampoSinLeerEnRectangularNoCuenta)
{
    // Line 15 of a rectangular file is never read.
    auto lineas = LineasFlexionRectangular();
    lineas.push_back("1e999");
    EsperaAceptado(LeeLineas(lineas));
}

}  // namespace
}  // namespace texalon
