// --svg through the library: which file each diagram goes to, with which picture and fit, and
// what a file that cannot be written does. The writer here records its calls; the real one,
// with Qt, is the program's and is run by the command's own tests.
#include "Json.h"
#include "Prueba.h"

#include "comun/Tablas.h"

#include "calculo/Calculo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace texalon::prueba {
namespace {

struct Llamada {
    std::string dibujo;  // the picture's name
    Entero isotropico;
    std::string fichero;
    Entero NLISTA;
    std::vector<std::string> textos;
};

// Records each call and writes a token file, or refuses when told.
class EscritorDePrueba {
public:
    explicit EscritorDePrueba(bool escribe = true) : escribe_(escribe) {}

    // The command's devices with this writer of SVG files and no printer.
    calculo::Dispositivos Dispositivos()
    {
        calculo::Dispositivos dispositivos;
        dispositivos.svg = [this](const GeneralDibujo& d, const Dibujo& dibujo, Entero isotropico,
                                  const std::string& fichero) {
            Llamada llamada{dibujo.nombre, isotropico, fichero, d.NLISTA, {}};
            for (int i = 1; i <= d.NLISTA; ++i)
                llamada.textos.push_back(d.TEXTOS(i));
            llamadas.push_back(llamada);
            if (!escribe_) return false;
            std::ofstream(fichero) << "<svg/>";
            return true;
        };
        return dispositivos;
    }

    std::vector<Llamada> llamadas;

private:
    bool escribe_;
};

TEST(SvgCalculo, CadaFicheroASuNombreConElDelDiagrama)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::string vigaT = directorio.Escribe("viga_t.VMF", kFlexionT);
    const std::string carpeta = directorio.Fichero("dibujos");
    EscritorDePrueba escritor;
    const Ejecucion ejecucion =
        EjecutaCalculo({"--diagrama", "capas", "--svg", carpeta, viga, vigaT}, ',', escritor.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
    EXPECT_EQ(ejecucion.errores, "");
    ASSERT_EQ(escritor.llamadas.size(), 2U);
    EXPECT_EQ(escritor.llamadas[0].fichero, carpeta + "/viga-capas.svg");
    EXPECT_EQ(escritor.llamadas[0].dibujo, "PIC_FLEXION");
    EXPECT_EQ(escritor.llamadas[0].isotropico, 0);
    EXPECT_EQ(escritor.llamadas[1].fichero, carpeta + "/viga_t-capas.svg");
    EXPECT_EQ(escritor.llamadas[1].dibujo, "PIC_FLEXION");
    // The folder was made, and the files are there.
    EXPECT_TRUE(std::filesystem::exists(escritor.llamadas[0].fichero));
    EXPECT_TRUE(std::filesystem::exists(escritor.llamadas[1].fichero));
}

TEST(SvgCalculo, LasSeccionesConservanSusProporciones)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::string vigaT = directorio.Escribe("viga_t.vmf", kFlexionT);
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    EscritorDePrueba escritor;
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--diagrama", "seccion", "--svg", directorio.Ruta(), viga, vigaT, pilar}, ',', escritor.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
    ASSERT_EQ(escritor.llamadas.size(), 3U);
    EXPECT_EQ(escritor.llamadas[0].dibujo, "PIC_FLEXION");
    EXPECT_EQ(escritor.llamadas[1].dibujo, "PIC_FLEXION");
    EXPECT_EQ(escritor.llamadas[2].dibujo, "PIC_CONFINA");
    for (const Llamada& llamada : escritor.llamadas)
        EXPECT_EQ(llamada.isotropico, 1) << llamada.fichero;
    EXPECT_EQ(std::filesystem::path(escritor.llamadas[2].fichero).filename(), "pilar-seccion.svg");
}

// One diagram of one project file, and the picture that draws it: the characteristics', the
// confinement's or the flexure's, none of them isotropic.
struct DiagramaEnSuDibujo {
    const char* nombre;
    const char* fichero;
    std::string_view contenido;
    const char* diagrama;
    const char* dibujo;
};

class UnDiagrama : public ConUnFichero<DiagramaEnSuDibujo> {};

TEST_P(UnDiagrama, VaEnSuDibujo)
{
    const DiagramaEnSuDibujo& caso = GetParam();
    EscritorDePrueba escritor;
    const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", caso.diagrama, "--svg", directorio.Ruta(), fichero}, ',',
                                               escritor.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
    ASSERT_EQ(escritor.llamadas.size(), 1U);
    EXPECT_EQ(escritor.llamadas[0].dibujo, caso.dibujo);
    EXPECT_EQ(escritor.llamadas[0].isotropico, 0);
}

// clang-format off
const DiagramaEnSuDibujo kDiagramasEnSuDibujo[] = {
    {"TensionEnElDeCaracteristicas", "pilar.vmc", kConfinamiento,      "tension",       "PIC_CARAC"},
    {"ConfinamientoEnElSuyo",        "pilar.vmc", kConfinamiento,      "confinamiento", "PIC_CONFINA"},
    {"PivotesEnElDeFlexion",         "viga.vmf",  kFlexionRectangular, "pivotes",       "PIC_FLEXION"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(SvgCalculo, UnDiagrama, ::testing::ValuesIn(kDiagramasEnSuDibujo), NombreDeFila());

TEST(SvgCalculo, ElNombreEsElDelFicheroSinSuExtension)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("mi.viga.VMF", kFlexionRectangular);
    EscritorDePrueba escritor;
    EjecutaCalculo({"--diagrama", "area", "--svg", directorio.Ruta(), viga}, ',', escritor.Dispositivos());
    ASSERT_EQ(escritor.llamadas.size(), 1U);
    EXPECT_EQ(escritor.llamadas[0].fichero, directorio.Fichero("mi.viga-area.svg"));
}

TEST(SvgCalculo, ElSvgRecibeLaListaDelJson)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    EscritorDePrueba escritor;
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--json", "--diagrama", "area", "--svg", directorio.Ruta(), viga}, '.', escritor.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 0);
    ASSERT_EQ(escritor.llamadas.size(), 1U);
    const ValorJson lista = LeeJson(ejecucion.salida)["lista"];
    EXPECT_EQ(lista["NLISTA"].numero, escritor.llamadas[0].NLISTA);
    std::vector<std::string> textos;
    for (const ValorJson& texto : lista["TEXTOS"].lista)
        textos.push_back(texto.cadena);
    EXPECT_EQ(textos, escritor.llamadas[0].textos);
}

TEST(SvgCalculo, SinSvgNoSeEscribeNada)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    EscritorDePrueba escritor;
    EXPECT_EQ(EjecutaCalculo({"--json", "--diagrama", "area", viga}, ',', escritor.Dispositivos()).estado, 0);
    EXPECT_TRUE(escritor.llamadas.empty());
}

TEST(SvgCalculo, UnFicheroQueFallaNoSeEscribe)
{
    DirectorioTemporal directorio;
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    EscritorDePrueba escritor;
    const Ejecucion ejecucion =
        EjecutaCalculo({"--diagrama", "area", "--svg", directorio.Ruta(), pilar, "ausente.vmf", viga}, ',',
                       escritor.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 1);
    ASSERT_EQ(escritor.llamadas.size(), 1U);
    EXPECT_EQ(escritor.llamadas[0].fichero, directorio.Fichero("viga-area.svg"));
}

TEST(SvgCalculo, UnSvgQueNoSePuedeEscribirEsUnFallo)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::string vigaT = directorio.Escribe("viga_t.vmf", kFlexionT);
    EscritorDePrueba escritor(false);
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--json", "--diagrama", "capas", "--svg", directorio.Ruta(), viga, vigaT}, ',', escritor.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 1);
    // Both files were tried: the first failure stops nothing.
    ASSERT_EQ(escritor.llamadas.size(), 2U);
    const std::string destino = directorio.Fichero("viga-capas.svg");
    const std::string mensaje = "no se ha podido escribir el diagrama en «" + destino + "».";
    EXPECT_EQ(Lineas(ejecucion.errores),
              (std::vector<std::string>{viga + ": " + mensaje, vigaT + ": no se ha podido escribir el diagrama en «" +
                                                                   directorio.Fichero("viga_t-capas.svg") + "»."}));
    EXPECT_EQ(Lineas(ejecucion.salida)[0],
              "{\"fichero\":\"" + viga + "\",\"tipo\":\"rectangular\",\"error\":\"" + mensaje + "\"}");
}

TEST(SvgCalculo, SinEscritorNoSePuedeEscribir)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", "capas", "--svg", directorio.Ruta(), viga});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores,
              viga + ": no se ha podido escribir el diagrama en «" + directorio.Fichero("viga-capas.svg") + "».\n");
    EXPECT_EQ(ejecucion.salida, "");
}

}  // namespace
}  // namespace texalon::prueba
