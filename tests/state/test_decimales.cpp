#include "state/Decimales.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string_view>

namespace texalon {
namespace {

// --- Decimales ---------------------------------------------------------------

TEST(Decimales, ComaDecimalDaCeroVeinticinco) { EXPECT_DOUBLE_EQ(Decimales("0,25"), 0.25); }

TEST(Decimales, PuntoDecimalDaCeroVeinticinco) { EXPECT_DOUBLE_EQ(Decimales("0.25"), 0.25); }

TEST(Decimales, MilesConComaDaUnoComaDosTresCuatro) { EXPECT_DOUBLE_EQ(Decimales("1.234,5"), 1.234); }

TEST(Decimales, ComaMilesYPuntoDecimalSeCortaEnElSegundoPunto) { EXPECT_DOUBLE_EQ(Decimales("1,234.5"), 1.234); }

TEST(Decimales, TextoSinNumeroDaCero) { EXPECT_DOUBLE_EQ(Decimales("abc"), 0.0); }

TEST(Decimales, NegativoConComa) { EXPECT_DOUBLE_EQ(Decimales("-2,5"), -2.5); }

TEST(Decimales, PuntoInicialSinEntero) { EXPECT_DOUBLE_EQ(Decimales(".4"), 0.4); }

TEST(Decimales, ComaInicialSinEntero) { EXPECT_DOUBLE_EQ(Decimales(",4"), 0.4); }

TEST(Decimales, LetraFinalCortaLaLectura) { EXPECT_DOUBLE_EQ(Decimales("12a"), 12.0); }

TEST(Decimales, TextoVacioDaCero) { EXPECT_DOUBLE_EQ(Decimales(""), 0.0); }

TEST(Decimales, SoloBlancosDaCero) { EXPECT_DOUBLE_EQ(Decimales("   "), 0.0); }

TEST(Decimales, ExponenteE) { EXPECT_DOUBLE_EQ(Decimales("1e2"), 100.0); }

TEST(Decimales, ExponenteEMayusculaNegativo) { EXPECT_DOUBLE_EQ(Decimales("1E-3"), 0.001); }

TEST(Decimales, ExponenteD) { EXPECT_DOUBLE_EQ(Decimales("1D2"), 100.0); }

TEST(Decimales, ExponenteDMinuscula) { EXPECT_DOUBLE_EQ(Decimales("2d3"), 2000.0); }

TEST(Decimales, ExponenteSinDigitosSeIgnora) { EXPECT_DOUBLE_EQ(Decimales("1e"), 1.0); }

TEST(Decimales, ExponenteConSignoSinDigitosSeIgnora) { EXPECT_DOUBLE_EQ(Decimales("1e+"), 1.0); }

TEST(Decimales, ExponenteConComaDecimal) { EXPECT_DOUBLE_EQ(Decimales("1,5e2"), 150.0); }

TEST(Decimales, BlancoEntreDigitosSeSalta) { EXPECT_DOUBLE_EQ(Decimales("1 2"), 12.0); }

TEST(Decimales, BlancoTrasElSignoSeSalta) { EXPECT_DOUBLE_EQ(Decimales("- 3"), -3.0); }

TEST(Decimales, TabuladorYSaltoDeLineaSeSaltan) { EXPECT_DOUBLE_EQ(Decimales("1\t2\n3"), 123.0); }

TEST(Decimales, SignoMas) { EXPECT_DOUBLE_EQ(Decimales("+4"), 4.0); }

TEST(Decimales, DobleSignoDaCero) { EXPECT_DOUBLE_EQ(Decimales("--3"), 0.0); }

TEST(Decimales, SegundoPuntoCortaLaLectura) { EXPECT_DOUBLE_EQ(Decimales("1.5.3"), 1.5); }

TEST(Decimales, PuntoTrasExponenteCortaLaLectura) { EXPECT_DOUBLE_EQ(Decimales("1e2.5"), 100.0); }

TEST(Decimales, SoloPuntoDaCero) { EXPECT_DOUBLE_EQ(Decimales("."), 0.0); }

TEST(Decimales, ExponenteSinMantisaDaCero) { EXPECT_DOUBLE_EQ(Decimales("e5"), 0.0); }

TEST(Decimales, BlancosFinalesNoCambianElValor) { EXPECT_DOUBLE_EQ(Decimales("12  "), 12.0); }

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

TEST(Decimales, CerosInicialesNoCuentan) { EXPECT_DOUBLE_EQ(Decimales("000,5"), 0.5); }

TEST(Decimales, DesbordeDaInfinitoPositivo) { EXPECT_EQ(Decimales("1e999"), HUGE_VAL); }

TEST(Decimales, DesbordeNegativoDaInfinitoNegativo) { EXPECT_EQ(Decimales("-1e999"), -HUGE_VAL); }

TEST(Decimales, DesbordeConComaDaInfinito) { EXPECT_EQ(Decimales("1,5e400"), HUGE_VAL); }

TEST(Decimales, ValorDemasiadoPequenoDaCero) { EXPECT_DOUBLE_EQ(Decimales("1e-999"), 0.0); }

TEST(Decimales, ExponenteConMuchasCifrasNoRompe)
{
    EXPECT_EQ(Decimales("1e99999999999999999999999"), HUGE_VAL);
    EXPECT_DOUBLE_EQ(Decimales("1e-99999999999999999999999"), 0.0);
    EXPECT_DOUBLE_EQ(Decimales("1e0000000000000000000002"), 100.0);
}

TEST(Decimales, SubnormalSeConserva) { EXPECT_EQ(Decimales("5e-324"), 5e-324); }

// --- EsNumerico --------------------------------------------------------------

TEST(EsNumerico, AceptaComaDecimal) { EXPECT_TRUE(EsNumerico("0,25")); }

TEST(EsNumerico, AceptaPuntoDecimal) { EXPECT_TRUE(EsNumerico("0.25")); }

TEST(EsNumerico, AceptaNegativo) { EXPECT_TRUE(EsNumerico("-3")); }

TEST(EsNumerico, AceptaExponente) { EXPECT_TRUE(EsNumerico("1e2")); }

TEST(EsNumerico, AceptaBlancosAlrededor) { EXPECT_TRUE(EsNumerico(" 12 ")); }

TEST(EsNumerico, AceptaTabuladoresAlrededor) { EXPECT_TRUE(EsNumerico("\t12\t")); }

TEST(EsNumerico, AceptaPuntoYComaMezclados) { EXPECT_TRUE(EsNumerico("1.234,5")); }

TEST(EsNumerico, AceptaSignoMas) { EXPECT_TRUE(EsNumerico("+4")); }

TEST(EsNumerico, AceptaExponenteNegativo) { EXPECT_TRUE(EsNumerico("1E-3")); }

TEST(EsNumerico, AceptaExponenteD) { EXPECT_TRUE(EsNumerico("2D3")); }

TEST(EsNumerico, AceptaSeparadorInicial)
{
    EXPECT_TRUE(EsNumerico(".5"));
    EXPECT_TRUE(EsNumerico(",5"));
}

TEST(EsNumerico, AceptaSeparadorFinal) { EXPECT_TRUE(EsNumerico("5.")); }

TEST(EsNumerico, AceptaValorMuyPequeno) { EXPECT_TRUE(EsNumerico("1e-999")); }

TEST(EsNumerico, RechazaLetras) { EXPECT_FALSE(EsNumerico("abc")); }

TEST(EsNumerico, RechazaLetraFinal) { EXPECT_FALSE(EsNumerico("12a")); }

TEST(EsNumerico, RechazaTextoVacio) { EXPECT_FALSE(EsNumerico("")); }

TEST(EsNumerico, RechazaSoloBlancos) { EXPECT_FALSE(EsNumerico("   ")); }

TEST(EsNumerico, RechazaExponenteSinDigitos)
{
    EXPECT_FALSE(EsNumerico("1e"));
    EXPECT_FALSE(EsNumerico("1e+"));
}

TEST(EsNumerico, RechazaDobleSigno) { EXPECT_FALSE(EsNumerico("--3")); }

TEST(EsNumerico, RechazaSeparadoresJuntos)
{
    EXPECT_FALSE(EsNumerico("1..2"));
    EXPECT_FALSE(EsNumerico("1,.2"));
}

TEST(EsNumerico, RechazaBlancoEntreDigitos) { EXPECT_FALSE(EsNumerico("1 2")); }

TEST(EsNumerico, RechazaExponenteSinMantisa) { EXPECT_FALSE(EsNumerico("e5")); }

TEST(EsNumerico, RechazaSoloSeparador) { EXPECT_FALSE(EsNumerico(".")); }

TEST(EsNumerico, RechazaSoloSigno) { EXPECT_FALSE(EsNumerico("-")); }

TEST(EsNumerico, RechazaDesborde)
{
    EXPECT_FALSE(EsNumerico("1e999"));
    EXPECT_FALSE(EsNumerico("-1e999"));
    EXPECT_FALSE(EsNumerico("1,5e400"));
}

TEST(EsNumerico, RechazaDesbordeEntreBlancos) { EXPECT_FALSE(EsNumerico(" 1e999 ")); }

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
