// Reading and calculating one file: the results that the default projects are known to give.
#include "Prueba.h"

#include "calculo/Proyecto.h"
#include "engine/Calculos.h"
#include "state/Formato.h"

#include <gtest/gtest.h>

namespace texalon::calculo {
namespace {

using prueba::DirectorioTemporal;

std::string Redondeado(double valor, std::string_view patron = "0.00") { return Formato(valor, patron, '.'); }

TEST(CalculaFichero, RectangularPorDefecto)
{
    DirectorioTemporal directorio;
    const CalculoFichero calculo = CalculaFichero(directorio.Escribe("viga.vmf", prueba::kFlexionRectangular));
    ASSERT_TRUE(calculo.Correcto());
    EXPECT_EQ(calculo.clase, ClaseFichero::Flexion);
    EXPECT_EQ(calculo.seccion, SeccionFlexion::Rectangular);
    EXPECT_EQ(NombreTipo(calculo), "rectangular");
    EXPECT_EQ(calculo.veredicto, Veredicto::NoEsNecesario);
    const General& g = calculo.g;
    EXPECT_EQ(Redondeado(g.MU(1, 1)), "238.47");
    for (int n = 3; n <= 5; ++n)
        EXPECT_EQ(g.MU(3, n), kSinMejora) << n;
    EXPECT_EQ(Redondeado(g.MUSR), "222.45");
    EXPECT_EQ(Redondeado(g.MUMAX), "294.87");
    // The anchorage lengths are there, as the screen's button would show them.
    ASSERT_TRUE(g.LANC.Existe());
    EXPECT_GT(g.LANC(1, 1), 0.0);
}

TEST(CalculaFichero, SeccionTPorDefecto)
{
    DirectorioTemporal directorio;
    const CalculoFichero calculo = CalculaFichero(directorio.Escribe("viga.VMF", prueba::kFlexionT));
    ASSERT_TRUE(calculo.Correcto());
    EXPECT_EQ(calculo.seccion, SeccionFlexion::T);
    EXPECT_EQ(NombreTipo(calculo), "T");
    EXPECT_TRUE(calculo.g.MU.Existe());
    EXPECT_TRUE(calculo.g.LANC.Existe());
}

TEST(CalculaFichero, ConfinamientoPorDefecto)
{
    DirectorioTemporal directorio;
    const CalculoFichero calculo = CalculaFichero(directorio.Escribe("pilar.vmc", prueba::kConfinamiento));
    ASSERT_TRUE(calculo.Correcto());
    EXPECT_EQ(calculo.clase, ClaseFichero::Confinamiento);
    EXPECT_EQ(NombreTipo(calculo), "confinamiento");
    EXPECT_EQ(calculo.veredicto, Veredicto::Oculto);
    EXPECT_EQ(Redondeado(calculo.g.RESU(1, 1), "0.00000"), "1.03267");
    EXPECT_EQ(Redondeado(calculo.g.RESUMAX, "0.00000"), "1.37721");
    // Anchorage belongs to flexure only.
    EXPECT_FALSE(calculo.g.LANC.Existe());
}

TEST(CalculaFichero, UnFicheroDeOtraExtensionNoSeLee)
{
    const CalculoFichero calculo = CalculaFichero("/no/existe/notas.txt");
    EXPECT_EQ(calculo.clase, ClaseFichero::Ninguna);
    EXPECT_EQ(NombreTipo(calculo), std::nullopt);
    EXPECT_EQ(calculo.errores, std::vector<std::string>{std::string(kMensajeNoEsProyecto)});
}

}  // namespace
}  // namespace texalon::calculo
