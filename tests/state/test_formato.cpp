#include "state/Formato.h"

#include "state/Decimales.h"
#include "state/ErrorEjecucion.h"

#include "comun/Tablas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

namespace texalon {
namespace {

// --- Formato, decimal comma and decimal period ----------------------------------

// A value, a pattern and the text Formato writes with each separator: one row a case.
struct Redondeado {
    const char* nombre;
    double valor;
    const char* patron;
    const char* conComa;
    const char* conPunto;
};

class Redondeo : public ::testing::TestWithParam<Redondeado> {};

TEST_P(Redondeo, ConComa) { EXPECT_EQ(Formato(GetParam().valor, GetParam().patron, ','), GetParam().conComa); }

TEST_P(Redondeo, ConPunto) { EXPECT_EQ(Formato(GetParam().valor, GetParam().patron, '.'), GetParam().conPunto); }

// clang-format off
const Redondeado kRedondeos[] = {
    {"MitadDeCentesimaSubeLejosDelCero",   0.125,        "0.00",     "0,13",        "0.13"},
    {"MitadSinDecimalesSube",              2.5,          "0",        "3",           "3"},
    {"DosSeisSieteCincoRedondeaEnDecimal", 2.675,        "0.00",     "2,68",        "2.68"},
    {"UnoCeroCeroCincoRedondeaEnDecimal",  1.005,        "0.00",     "1,01",        "1.01"},
    {"CompletaConCeros",                   0.4,          "0.000",    "0,400",       "0.400"},
    {"AcarreoAgregaCifraEntera",           9.995,        "0.00",     "10,00",       "10.00"},
    {"MitadDeMilesimaSube",                0.0005,       "0.000",    "0,001",       "0.001"},
    {"CeroSinDecimales",                   0.0,          "0",        "0",           "0"},
    {"CeroConUnDecimal",                   0.0,          "0.0",      "0,0",         "0.0"},
    {"CeroConDosDecimales",                0.0,          "0.00",     "0,00",        "0.00"},
    {"CeroConTresDecimales",               0.0,          "0.000",    "0,000",       "0.000"},
    {"CeroConSeisDecimales",               0.0,          "0.000000", "0,000000",    "0.000000"},
    {"ValorGrandeSinSeparadorDeMiles",     1234567.891,  "0.00",     "1234567,89",  "1234567.89"},
    {"ValorEnormeMuestraTodasLasCifras",   1e20,         "0",        "100000000000000000000", "100000000000000000000"},
    {"SeisDecimales",                      3.14159265,   "0.000000", "3,141593",    "3.141593"},
    // Negative values.
    {"MitadNegativaSinDecimalesBaja",      -2.5,         "0",        "-3",          "-3"},
    {"NegativoQueRedondeaACeroSinSigno",   -0.001,       "0.00",     "0,00",        "0.00"},
    {"CeroNegativoSinSigno",               -0.0,         "0.0",      "0,0",         "0.0"},
    {"UnDecimalNegativo",                  -12.34,       "0.0",      "-12,3",       "-12.3"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Formato, Redondeo, ::testing::ValuesIn(kRedondeos), prueba::NombreDeFila());

// --- Formato, general ---------------------------------------------------------

TEST(Formato, MenosDeMediaUnidadDaCero)
{
    EXPECT_EQ(Formato(0.4, "0", '.'), "0");
    EXPECT_EQ(Formato(0.00049, "0.000", ','), "0,000");
    EXPECT_EQ(Formato(1e-300, "0.00", ','), "0,00");
}

TEST(Formato, NegativoQueSubeAUnaUnidad) { EXPECT_EQ(Formato(-0.0005, "0.000", ','), "-0,001"); }

TEST(Formato, QuinceDecimales)
{
    EXPECT_EQ(Formato(0.1, "0.000000000000000", '.'), "0.100000000000000");
    EXPECT_EQ(Formato(1.0 / 3.0, "0.000000000000000", ','), "0,333333333333333");
}

TEST(Formato, RuidoBinarioMasAllaDeQuinceCifrasNoCuenta)
{
    // 0.1 + 0.2 is 0.30000000000000004 in binary; 15 digits make it 0.3.
    EXPECT_EQ(Formato(0.1 + 0.2, "0.000000000000000", '.'), "0.300000000000000");
}

TEST(Formato, NoFinitosDanTextoFijo)
{
    EXPECT_EQ(Formato(std::numeric_limits<double>::infinity(), "0.00", ','), "inf");
    EXPECT_EQ(Formato(-std::numeric_limits<double>::infinity(), "0.00", ','), "-inf");
    EXPECT_EQ(Formato(std::numeric_limits<double>::quiet_NaN(), "0.00", ','), "nan");
}

TEST(Formato, PatronDesconocidoLanzaExcepcion)
{
    EXPECT_THROW(Formato(1.0, "#,##0", '.'), std::invalid_argument);
    EXPECT_THROW(Formato(1.0, "0.", '.'), std::invalid_argument);
    EXPECT_THROW(Formato(1.0, "", '.'), std::invalid_argument);
}

// --- FormatoTexto -------------------------------------------------------------

TEST(FormatoTexto, RellenaConBlancosALaIzquierda) { EXPECT_EQ(FormatoTexto("12", "@@@@"), "  12"); }

TEST(FormatoTexto, UnCaracterEnDosLugares) { EXPECT_EQ(FormatoTexto("3", "@@"), " 3"); }

TEST(FormatoTexto, TextoMasLargoSeDevuelveEntero) { EXPECT_EQ(FormatoTexto("12345", "@@@@"), "12345"); }

TEST(FormatoTexto, TextoDelMismoLargoQuedaIgual) { EXPECT_EQ(FormatoTexto("1234", "@@@@"), "1234"); }

TEST(FormatoTexto, TextoVacioDaSoloBlancos) { EXPECT_EQ(FormatoTexto("", "@@@"), "   "); }

TEST(FormatoTexto, CuentaCaracteresNoBytes)
{
    EXPECT_EQ(FormatoTexto("−5", "@@@@"), "  −5");
    EXPECT_EQ(FormatoTexto("ángulo", "@@@@@@@@"), "  ángulo");
}

}  // namespace
}  // namespace texalon

namespace texalon {
namespace {

// A field reads its text with Decimales, keeps the absolute value and writes it back.
TEST(Formato, MenosDosComaCincoSeReescribeComoDosComaQuinientos)
{
    EXPECT_EQ(Formato(std::fabs(Decimales("-2,5")), "0.000", ','), "2,500");
    EXPECT_EQ(Formato(std::fabs(Decimales("-2,5")), "0.000", '.'), "2.500");
    EXPECT_EQ(Formato(Decimales("0,05"), "0.000", ','), "0,050");
}

}  // namespace
}  // namespace texalon

namespace texalon {
namespace {

TEST(ValorDeTexto, LeeLosNumerosDeLosCamposConSuSeparador)
{
    EXPECT_EQ(ValorDeTexto("238,5", ','), 238.5);
    EXPECT_EQ(ValorDeTexto(" -9.64 ", '.'), -9.64);
    EXPECT_EQ(ValorDeTexto("0,103", ','), 0.103);
    EXPECT_EQ(ValorDeTexto("+12", ','), 12.0);
}

TEST(ValorDeTexto, LoQueNoEsUnNumeroEsElErrorDeTipos)
{
    for (const char* texto : {"---", "", "1.5", "1,2,3", "-", "R"}) {
        try {
            ValorDeTexto(texto, ',');
            ADD_FAILURE() << texto;
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.Numero(), ErrorEjecucion::kTiposNoCoinciden) << texto;
        }
    }
}

}  // namespace
}  // namespace texalon
