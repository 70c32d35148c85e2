#include "state/Decimales.h"

#include "comun/Tablas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <string_view>

namespace texalon {
namespace {

// --- Decimales ---------------------------------------------------------------

// A text and the value Decimales reads in it: each row is one case, named for what it shows.
struct Lectura {
    const char* nombre;
    std::string_view texto;
    double valor;
};

class LecturaDeDecimales : public ::testing::TestWithParam<Lectura> {};

TEST_P(LecturaDeDecimales, DaSuValor) { EXPECT_DOUBLE_EQ(Decimales(GetParam().texto), GetParam().valor); }

// clang-format off
const Lectura kLecturas[] = {
    {"ComaDecimalDaCeroVeinticinco",                  "0,25",   0.25},
    {"PuntoDecimalDaCeroVeinticinco",                 "0.25",   0.25},
    {"MilesConComaDaUnoComaDosTresCuatro",            "1.234,5", 1.234},
    {"ComaMilesYPuntoDecimalSeCortaEnElSegundoPunto", "1,234.5", 1.234},
    {"TextoSinNumeroDaCero",                          "abc",    0.0},
    {"PuntoInicialSinEntero",                         ".4",     0.4},
    {"ComaInicialSinEntero",                          ",4",     0.4},
    {"LetraFinalCortaLaLectura",                      "12a",    12.0},
    {"TextoVacioDaCero",                              "",       0.0},
    {"SoloBlancosDaCero",                             "   ",    0.0},
    {"ExponenteE",                                    "1e2",    100.0},
    {"ExponenteEMayusculaNegativo",                   "1E-3",   0.001},
    {"ExponenteD",                                    "1D2",    100.0},
    {"ExponenteDMinuscula",                           "2d3",    2000.0},
    {"ExponenteSinDigitosSeIgnora",                   "1e",     1.0},
    {"ExponenteConSignoSinDigitosSeIgnora",           "1e+",    1.0},
    {"ExponenteConComaDecimal",                       "1,5e2",  150.0},
    {"BlancoEntreDigitosSeSalta",                     "1 2",    12.0},
    {"TabuladorYSaltoDeLineaSeSaltan",                "1\t2\n3", 123.0},
    {"SignoMas",                                      "+4",     4.0},
    {"DobleSignoDaCero",                              "--3",    0.0},
    {"SegundoPuntoCortaLaLectura",                    "1.5.3",  1.5},
    {"PuntoTrasExponenteCortaLaLectura",              "1e2.5",  100.0},
    {"SoloPuntoDaCero",                               ".",      0.0},
    {"ExponenteSinMantisaDaCero",                     "e5",     0.0},
    {"BlancosFinalesNoCambianElValor",                "12  ",   12.0},
    {"CerosInicialesNoCuentan",                       "000,5",  0.5},
    {"ValorDemasiadoPequenoDaCero",                   "1e-999", 0.0},
    // Negative values.
    {"NegativoConComa",                               "-2,5",   -2.5},
    {"BlancoTrasElSignoSeSalta",                      "- 3",    -3.0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Decimales, LecturaDeDecimales, ::testing::ValuesIn(kLecturas), prueba::NombreDeFila());

// The cut keeps as many characters as the trimmed text has, counted from the
// start of the text as typed, so leading blanks push the last digits out.
TEST(Decimales, BlancosInicialesRecortanLasUltimasCifras)
{
    EXPECT_DOUBLE_EQ(Decimales(" 12 "), 1.0);
    EXPECT_DOUBLE_EQ(Decimales(" 0,25"), 0.2);
    EXPECT_DOUBLE_EQ(Decimales("  0,25"), 0.0);
}

TEST(Decimales, ConversionCorrectamenteRedondeada)
{
    EXPECT_EQ(Decimales("0,1"), 0.1);
    EXPECT_EQ(Decimales("2.675"), 2.675);
    EXPECT_EQ(Decimales("0.30000000000000004"), 0.30000000000000004);
    EXPECT_EQ(Decimales("123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_EQ(Decimales("0,000000000000000000001"), 1e-21);
}

TEST(Decimales, DesbordeDaInfinitoPositivo) { EXPECT_EQ(Decimales("1e999"), HUGE_VAL); }

TEST(Decimales, DesbordeNegativoDaInfinitoNegativo) { EXPECT_EQ(Decimales("-1e999"), -HUGE_VAL); }

TEST(Decimales, DesbordeConComaDaInfinito) { EXPECT_EQ(Decimales("1,5e400"), HUGE_VAL); }

TEST(Decimales, ExponenteConMuchasCifrasNoRompe)
{
    EXPECT_EQ(Decimales("1e99999999999999999999999"), HUGE_VAL);
    EXPECT_DOUBLE_EQ(Decimales("1e-99999999999999999999999"), 0.0);
    EXPECT_DOUBLE_EQ(Decimales("1e0000000000000000000002"), 100.0);
}

TEST(Decimales, SubnormalSeConserva) { EXPECT_EQ(Decimales("5e-324"), 5e-324); }

// --- EsNumerico --------------------------------------------------------------

// A text and whether EsNumerico lets it through.
struct Reconocimiento {
    const char* nombre;
    std::string_view texto;
    bool numerico;
};

class TextoNumerico : public ::testing::TestWithParam<Reconocimiento> {};

TEST_P(TextoNumerico, SeReconoce) { EXPECT_EQ(EsNumerico(GetParam().texto), GetParam().numerico); }

// clang-format off
const Reconocimiento kReconocimientos[] = {
    {"AceptaComaDecimal",           "0,25",     true},
    {"AceptaPuntoDecimal",          "0.25",     true},
    {"AceptaNegativo",              "-3",       true},
    {"AceptaExponente",             "1e2",      true},
    {"AceptaBlancosAlrededor",      " 12 ",     true},
    {"AceptaTabuladoresAlrededor",  "\t12\t",   true},
    {"AceptaPuntoYComaMezclados",   "1.234,5",  true},
    {"AceptaSignoMas",              "+4",       true},
    {"AceptaExponenteNegativo",     "1E-3",     true},
    {"AceptaExponenteD",            "2D3",      true},
    {"AceptaSeparadorFinal",        "5.",       true},
    {"AceptaValorMuyPequeno",       "1e-999",   true},
    {"AceptaSeparadorInicialPunto", ".5",       true},
    {"AceptaSeparadorInicialComa",  ",5",       true},
    {"RechazaLetras",               "abc",      false},
    {"RechazaLetraFinal",           "12a",      false},
    {"RechazaTextoVacio",           "",         false},
    {"RechazaSoloBlancos",          "   ",      false},
    {"RechazaDobleSigno",           "--3",      false},
    {"RechazaBlancoEntreDigitos",   "1 2",      false},
    {"RechazaExponenteSinMantisa",  "e5",       false},
    {"RechazaSoloSeparador",        ".",        false},
    {"RechazaSoloSigno",            "-",        false},
    {"RechazaDesbordeEntreBlancos", " 1e999 ",  false},
    {"RechazaExponenteSinDigitos",  "1e",       false},
    {"RechazaExponenteConSignoSinDigitos", "1e+",   false},
    {"RechazaSeparadoresJuntos",    "1..2",     false},
    {"RechazaComaYPuntoJuntos",     "1,.2",     false},
    {"RechazaDesborde",             "1e999",    false},
    {"RechazaDesbordeNegativo",     "-1e999",   false},
    {"RechazaDesbordeConComa",      "1,5e400",  false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(EsNumerico, TextoNumerico, ::testing::ValuesIn(kReconocimientos), prueba::NombreDeFila());

// Whatever EsNumerico lets through, Decimales turns into a finite value once
// the text is trimmed, as every caller trims it.
TEST(EsNumerico, TodoLoAceptadoDaValorFinito)
{
    for (std::string_view texto : {"0,25", " 12 ", "1.234,5", "2D3", "1e308", " 1e999", "1e-999"}) {
        const auto desde = texto.find_first_not_of(' ');
        const auto hasta = texto.find_last_not_of(' ');
        const std::string_view recortado = texto.substr(desde, hasta - desde + 1);
        EXPECT_EQ(EsNumerico(texto), std::isfinite(Decimales(recortado))) << texto;
    }
    EXPECT_TRUE(EsNumerico("1e308"));
}

}  // namespace
}  // namespace texalon
