// The reader of a table of members: separators, decimal marks, quotes, line ends, blank lines,
// encodings, and the cells that are no numbers.
#include "calculo/Tabla.h"

#include "comun/Tablas.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace texalon::calculo {
namespace {

using Campos = std::vector<std::string>;

// Every record of the text, the header first.
std::vector<Registro> Registros(const std::string& texto, std::string* error = nullptr, char* separador = nullptr)
{
    std::istringstream entrada(texto);
    LectorTabla lector(entrada);
    std::vector<Registro> registros;
    while (std::optional<Registro> registro = lector.Siguiente())
        registros.push_back(*registro);
    if (error != nullptr) *error = lector.Error();
    if (separador != nullptr) *separador = lector.Separador();
    return registros;
}

// A table of a header and one member with the separator that it is guessed to have, each with its
// decimal mark: the header and the member read field by field.
struct TablaConSeparador {
    const char* nombre;
    const char* texto;
    char separador;
    const char* canto;
};

class SeparadorDeLaTabla : public ::testing::TestWithParam<TablaConSeparador> {};

TEST_P(SeparadorDeLaTabla, SeAdivinaYPartePorElLosCampos)
{
    char separador = 0;
    const auto registros = Registros(GetParam().texto, nullptr, &separador);
    EXPECT_EQ(separador, GetParam().separador);
    ASSERT_EQ(registros.size(), 2U);
    EXPECT_EQ(registros[0].campos, (Campos{"elemento", "tipo", "CANTO"}));
    EXPECT_EQ(registros[1].campos, (Campos{"V-1", "rectangular", GetParam().canto}));
    EXPECT_EQ(registros[1].linea, 2U);
}

// clang-format off
const TablaConSeparador kTablasConSeparador[] = {
    {"PuntoYComaConComaDecimal", "elemento;tipo;CANTO\r\nV-1;rectangular;0,6\r\n", ';', "0,6"},
    {"ComaConPuntoDecimal",      "elemento,tipo,CANTO\nV-1,rectangular,0.6\n",       ',', "0.6"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(LectorTabla, SeparadorDeLaTabla, ::testing::ValuesIn(kTablasConSeparador),
                         prueba::NombreDeFila());

TEST(LectorTabla, TabuladorConCualquierDecimal)
{
    std::istringstream entrada("elemento\ttipo\tCANTO\nV-1\trectangular\t0,6\nV-2\trectangular\t0.6\n");
    LectorTabla lector(entrada);
    ASSERT_TRUE(lector.Siguiente());
    EXPECT_EQ(lector.Separador(), '\t');
    EXPECT_EQ(lector.Decimales(), ",.");
    EXPECT_EQ(lector.Siguiente()->campos[2], "0,6");
    EXPECT_EQ(lector.Siguiente()->campos[2], "0.6");
}

TEST(LectorTabla, ComillasConElSeparadorLasComillasDobladasYUnFinDeLinea)
{
    const auto registros =
        Registros("elemento;tipo\r\n\"V;1\";\"rect\"\"angular\"\r\n\"Viga\r\nde dos líneas\";T\r\nV-3;\"\"\r\n");
    ASSERT_EQ(registros.size(), 4U);
    EXPECT_EQ(registros[1].campos, (Campos{"V;1", "rect\"angular"}));
    EXPECT_EQ(registros[2].campos, (Campos{"Viga\nde dos líneas", "T"}));
    EXPECT_EQ(registros[2].linea, 3U);
    // The record after the two lines starts on line 5.
    EXPECT_EQ(registros[3].campos, (Campos{"V-3", ""}));
    EXPECT_EQ(registros[3].linea, 5U);
}

TEST(LectorTabla, FinesDeLineaLfYCrLfEnLaMismaTabla)
{
    const auto registros = Registros("elemento;tipo\nV-1;T\r\nV-2;T\n");
    ASSERT_EQ(registros.size(), 3U);
    EXPECT_EQ(registros[1].campos, (Campos{"V-1", "T"}));
    EXPECT_EQ(registros[2].campos, (Campos{"V-2", "T"}));
}

TEST(LectorTabla, LasLineasEnBlancoYLasFilasVaciasSeSaltan)
{
    const auto registros = Registros("\r\nelemento;tipo\r\n\r\n;\r\nV-1;T\r\n\r\n");
    ASSERT_EQ(registros.size(), 2U);
    EXPECT_EQ(registros[0].campos, (Campos{"elemento", "tipo"}));
    EXPECT_EQ(registros[1].linea, 5U);
}

TEST(LectorTabla, LaMarcaDeOrdenDeBytesNoEsParteDeLaCabecera)
{
    const auto registros = Registros("\xEF\xBB\xBF" "elemento;tipo\r\nV-1;T\r\n");
    ASSERT_EQ(registros.size(), 2U);
    EXPECT_EQ(registros[0].campos[0], "elemento");
}

TEST(LectorTabla, Windows1252SeLeeComoTal)
{
    // "Viga Ñ", "€" and "–" as a Spanish Windows saves them.
    const auto registros = Registros("elemento;tipo\r\nViga \xD1;T\r\n\x80 \x96;T\r\n");
    ASSERT_EQ(registros.size(), 3U);
    EXPECT_EQ(registros[1].campos[0], "Viga Ñ");
    EXPECT_EQ(registros[2].campos[0], "€ –");
    // UTF-8 stays as it is.
    EXPECT_EQ(TextoDeCelda("Viga Ñ"), "Viga Ñ");
}

TEST(LectorTabla, UnasComillasSinCerrarSonUnError)
{
    std::string error;
    const auto registros = Registros("elemento;tipo\r\n\"V-1;T\r\nV-2;T\r\n", &error);
    EXPECT_EQ(registros.size(), 1U);
    EXPECT_EQ(error, "unas comillas abiertas en la línea 2 no se cierran.");
}

TEST(LectorTabla, UnaCeldaDeUnMegabyteYBytesNulos)
{
    const std::string grande(1 << 20, 'x');
    const auto registros = Registros("elemento;tipo\r\n" + grande + ";T\r\n" + std::string("V\0-2;T\r\n", 8));
    ASSERT_EQ(registros.size(), 3U);
    EXPECT_EQ(registros[1].campos[0].size(), grande.size());
    EXPECT_EQ(registros[2].campos[0], std::string("V\0-2", 4));
}

TEST(NumeroDeCelda, ConLaMarcaDecimalDeLaTabla)
{
    EXPECT_EQ(NumeroDeCelda("0,6", ","), 0.6);
    EXPECT_EQ(NumeroDeCelda(" 0.6 ", "."), 0.6);
    EXPECT_EQ(NumeroDeCelda("-12,5", ","), -12.5);
    EXPECT_EQ(NumeroDeCelda("+3", "."), 3.0);
    EXPECT_EQ(NumeroDeCelda("1e3", "."), 1000.0);
    EXPECT_EQ(NumeroDeCelda("2,5E-1", ","), 0.25);
    EXPECT_EQ(NumeroDeCelda("25", ",."), 25.0);
}

TEST(NumeroDeCelda, NingunOtroTextoEsUnNumero)
{
    for (const char* texto : {"", " ", "1.000,5", "1,000.5", "0.6", "25 N/mm²", "abc", "1e999", "-1e999", "NaN", "nan",
                              "inf", "0x10", "1,2,3", "--1", "1-", "e5"})
        EXPECT_FALSE(NumeroDeCelda(texto, ",")) << texto;
    EXPECT_FALSE(NumeroDeCelda("0,6", "."));
    EXPECT_FALSE(NumeroDeCelda(std::string_view("1\0" "2", 3), "."));
}

}  // namespace
}  // namespace texalon::calculo
