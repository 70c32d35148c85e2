// The command line: options, help, usage errors and the decimal separator.
#include "Prueba.h"

#include "calculo/Calculo.h"

#include <gtest/gtest.h>

namespace texalon::prueba {
namespace {

TEST(OrdenCalculo, AyudaLarga)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--help"});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.salida, calculo::TextoAyuda());
    EXPECT_EQ(ejecucion.errores, "");
    EXPECT_EQ(ejecucion.salida.rfind("Uso: texalon-calculo [--json] FICHERO...\n", 0), 0U);
}

TEST(OrdenCalculo, AyudaCortaAunqueHayaFicheros)
{
    const Ejecucion ejecucion = EjecutaCalculo({"viga.vmf", "-h"});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.salida, calculo::TextoAyuda());
}

TEST(OrdenCalculo, LaAyudaDiceComoSaleElJson)
{
    EXPECT_TRUE(Contiene(calculo::TextoAyuda(), "un objeto JSON por fichero, cada uno en una sola línea,"));
}

TEST(OrdenCalculo, SinArgumentosEsErrorDeUso)
{
    const Ejecucion ejecucion = EjecutaCalculo({});
    EXPECT_EQ(ejecucion.estado, 2);
    EXPECT_EQ(ejecucion.salida, "");
    EXPECT_EQ(ejecucion.errores,
              "texalon-calculo: falta el nombre de algún fichero.\n"
              "Pruebe «texalon-calculo --help» para más información.\n");
}

TEST(OrdenCalculo, SoloJsonEsErrorDeUso) { EXPECT_EQ(EjecutaCalculo({"--json"}).estado, 2); }

TEST(OrdenCalculo, OpcionDesconocidaEsErrorDeUso)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--xml", "viga.vmf"});
    EXPECT_EQ(ejecucion.estado, 2);
    EXPECT_EQ(ejecucion.salida, "");
    EXPECT_TRUE(Contiene(ejecucion.errores, "texalon-calculo: opción no reconocida «--xml».\n"));
}

TEST(OrdenCalculo, TrasDosGuionesTodoSonNombres)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--", "--json"});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, "--json: no es un fichero de proyecto TEXALON (.vmf o .vmc).\n");
}

TEST(OrdenCalculo, LasOpcionesPuedenIrTrasLosNombres)
{
    const Ejecucion ejecucion = EjecutaCalculo({"notas.txt", "--json"});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida.front(), '{');
}

TEST(OrdenCalculo, SeparadorDecimalDelSistema)
{
    EXPECT_EQ(calculo::SeparadorDecimal(","), ',');
    EXPECT_EQ(calculo::SeparadorDecimal("."), '.');
    EXPECT_EQ(calculo::SeparadorDecimal(nullptr), '.');
    EXPECT_EQ(calculo::SeparadorDecimal(""), '.');
    EXPECT_EQ(calculo::SeparadorDecimal("٫"), '.');
}

TEST(OrdenCalculo, ElTextoUsaElSeparadorDado)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::vector<std::string> coma = Lineas(EjecutaCalculo({fichero}, ',').salida);
    const std::vector<std::string> punto = Lineas(EjecutaCalculo({fichero}, '.').salida);
    ASSERT_GE(coma.size(), 4U);
    ASSERT_GE(punto.size(), 4U);
    // Line 4 is the row of one layer.
    EXPECT_TRUE(Contiene(coma[3], "238,5"));
    EXPECT_TRUE(Contiene(punto[3], "238.5"));
}

TEST(OrdenCalculo, ElJsonNoDependeDelSeparador)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    EXPECT_EQ(EjecutaCalculo({"--json", fichero}, ',').salida, EjecutaCalculo({"--json", fichero}, '.').salida);
}

}  // namespace
}  // namespace texalon::prueba
