// The text and JSON outputs beyond the expected files: the layout of the grid and the rules
// of JSON strings and numbers.
#include "Prueba.h"

#include "calculo/SalidaJson.h"

#include <gtest/gtest.h>

namespace texalon::prueba {
namespace {

using calculo::CadenaJson;

// The text of the default rectangular project, line by line.
std::vector<std::string> TextoRectangular()
{
    DirectorioTemporal directorio;
    return Lineas(EjecutaCalculo({directorio.Escribe("viga.vmf", kFlexionRectangular)}, ',').salida);
}

TEST(SalidaTextoCalculo, LaTablaTieneUnaColumnaPorTipoYUnaFilaPorCapas)
{
    const std::vector<std::string> lineas = TextoRectangular();
    ASSERT_EQ(lineas.size(), 11U);
    EXPECT_EQ(lineas[1], "Momento último de la sección reforzada (mkN)");
    EXPECT_EQ(lineas[2], "Nº capas    TEXALON L    TEXALON H    TEXALON X");
    EXPECT_EQ(lineas[3].substr(0, 8 + 13), "       1        238,5");
}

TEST(SalidaTextoCalculo, LasCapasSinMejoraSeMarcan)
{
    const std::vector<std::string> lineas = TextoRectangular();
    ASSERT_EQ(lineas.size(), 11U);
    for (std::size_t fila = 5; fila <= 7; ++fila) {
        EXPECT_EQ(lineas[fila].substr(lineas[fila].size() - 13), "          ---") << fila;
    }
}

TEST(SalidaTextoCalculo, VeredictoYValoresDeLaSeccion)
{
    const std::vector<std::string> lineas = TextoRectangular();
    ASSERT_EQ(lineas.size(), 11U);
    EXPECT_EQ(lineas[8], "NO ES NECESARIO REFORZAR LA SECCION");
    EXPECT_EQ(lineas[9], "MUSR = 222,5 mkN");
    EXPECT_EQ(lineas[10], "EPS0 = 0,00 ‰");
}

TEST(SalidaTextoCalculo, UnVeredictoOcultoNoDaLinea)
{
    DirectorioTemporal directorio;
    const std::vector<std::string> lineas =
        Lineas(EjecutaCalculo({directorio.Escribe("pilar.vmc", kConfinamiento)}, ',').salida);
    ASSERT_EQ(lineas.size(), 10U);
    EXPECT_EQ(lineas[8], "EPS0  = 0,00 ‰");
    EXPECT_EQ(lineas[9], "ALFAN = 1,000");
}

TEST(SalidaJsonCalculo, CadenasEscapadas)
{
    EXPECT_EQ(CadenaJson("a\"b\\c"), "\"a\\\"b\\\\c\"");
    EXPECT_EQ(CadenaJson("l1\nl2\r\t"), "\"l1\\nl2\\r\\t\"");
    EXPECT_EQ(CadenaJson(std::string_view("\x01\x1f", 2)), "\"\\u0001\\u001f\"");
    EXPECT_EQ(CadenaJson(std::string_view("\0", 1)), "\"\\u0000\"");
}

TEST(SalidaJsonCalculo, ElUtf8PasaTalCual)
{
    EXPECT_EQ(CadenaJson("Nº capas, predeformación, ‰, 𝜀"), "\"Nº capas, predeformación, ‰, 𝜀\"");
}

TEST(SalidaJsonCalculo, LosBytesQueNoSonUtf8SeSustituyen)
{
    EXPECT_EQ(CadenaJson("a\xff"
                         "b"),
              "\"a\\ufffdb\"");
    // An overlong slash, a surrogate and a cut sequence.
    EXPECT_EQ(CadenaJson("\xc0\xaf"), "\"\\ufffd\\ufffd\"");
    EXPECT_EQ(CadenaJson("\xed\xa0\x80"), "\"\\ufffd\\ufffd\\ufffd\"");
    EXPECT_EQ(CadenaJson("\xe2\x80"), "\"\\ufffd\\ufffd\"");
}

TEST(SalidaJsonCalculo, ElNombreDelFicheroVaEscapado)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "dir \"año\"\\nota\n.txt"});
    EXPECT_EQ(ejecucion.salida,
              "{\"fichero\":\"dir \\\"año\\\"\\\\nota\\n.txt\",\"error\":\"no es un fichero de "
              "proyecto TEXALON (.vmf o .vmc).\"}\n");
}

TEST(SalidaJsonCalculo, NumerosConDiecisieteCifrasYPunto)
{
    DirectorioTemporal directorio;
    const Ejecucion ejecucion = EjecutaCalculo({"--json", directorio.Escribe("viga.vmf", kFlexionRectangular)});
    EXPECT_TRUE(Contiene(ejecucion.salida, "\"FCK\":25,"));
    EXPECT_TRUE(Contiene(ejecucion.salida, "\"GS\":1.1499999999999999,"));
    EXPECT_TRUE(Contiene(ejecucion.salida, "\"PIVOTE\":[[\""));
    EXPECT_TRUE(Contiene(ejecucion.salida, "\"veredicto\":\" NO ES NECESARIO REFORZAR LA SECCION \"}"));
    // A rectangular section has no web and no flange.
    EXPECT_FALSE(Contiene(ejecucion.salida, "ANCHOALMA"));
}

TEST(SalidaJsonCalculo, UnObjetoPorLinea)
{
    DirectorioTemporal directorio;
    const Ejecucion ejecucion =
        EjecutaCalculo({"--json", directorio.Escribe("a.vmf", kFlexionT), directorio.Escribe("b.vmc", kConfinamiento)});
    const std::vector<std::string> objetos = Lineas(ejecucion.salida);
    ASSERT_EQ(objetos.size(), 2U);
    for (const std::string& objeto : objetos) {
        EXPECT_EQ(objeto.front(), '{');
        EXPECT_EQ(objeto.back(), '}');
    }
    EXPECT_TRUE(Contiene(objetos[0],
                         "\"tipo\":\"T\",\"ANCHO\":0.40000000000000002,\"CANTO\":0.59999999999999998,"
                         "\"ANCHOALMA\":0.20000000000000001,\"CANTOALA\":0.20000000000000001,"));
    EXPECT_TRUE(Contiene(objetos[1], "\"tipo\":\"confinamiento\",\"SECCION\":1,"));
    EXPECT_TRUE(Contiene(objetos[1], "\"veredicto\":null}"));
}

}  // namespace
}  // namespace texalon::prueba
