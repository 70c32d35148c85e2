// Faults of the file itself: names, paths, permissions, a full disk, and the messages they give.
#include "Auxiliares.h"

#include "files/Ficheros.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <system_error>
#include <vector>

namespace texalon {
namespace {

using prueba::Avisos;
using prueba::DirectorioTemporal;

const std::string kArchivoNoEncontrado = "Error 53: No se ha encontrado el archivo";
const std::string kRutaNoEncontrada = "Error 76: No se ha encontrado la ruta de acceso";
const std::string kNombreIncorrecto = "Error 52: Nombre o número de archivo incorrecto";
const std::string kErrorDeAccesoRuta = "Error 75: Error de acceso a la ruta o al archivo";
const std::string kPermisoDenegado = "Error 70: Permiso denegado";

// Whether the file still opens in that mode once its permission is taken away: for the
// administrator, who reads and writes any file (and so under Wine as root, where the read-only
// attribute of Windows is the Unix file's write bit), and on Windows, which has no permission to
// take reading away.
bool SeAbreAunAsi(const std::string& fichero, const char* modo)
{
    std::FILE* abierto = std::fopen(fichero.c_str(), modo);
    if (abierto == nullptr) return false;
    std::fclose(abierto);
    return true;
}

// --- Messages --------------------------------------------------------------------------------------

TEST(MensajeErrorFichero, MemoriaYDiscoLlenoTienenTextoPropio)
{
    EXPECT_EQ(MensajeErrorFichero(7), "Memoria insuficiente.");
    EXPECT_EQ(MensajeErrorFichero(61), "Espacio en disco insuficiente.");
}

TEST(MensajeErrorFichero, LosDemasDicenNumeroYDescripcion)
{
    EXPECT_EQ(MensajeErrorFichero(53), "Error 53: No se ha encontrado el archivo");
    EXPECT_EQ(MensajeErrorFichero(62), "Error 62: La entrada sobrepasa el final del archivo");
    EXPECT_EQ(MensajeErrorFichero(6), "Error 6: Desbordamiento");
    EXPECT_EQ(MensajeErrorFichero(70), "Error 70: Permiso denegado");
    EXPECT_EQ(MensajeErrorFichero(76), "Error 76: No se ha encontrado la ruta de acceso");
    EXPECT_EQ(MensajeErrorFichero(57), "Error 57: Error de E/S en el dispositivo");
    EXPECT_EQ(MensajeErrorFichero(1234), "Error 1234: Error definido por la aplicación o por el objeto");
}

// --- Readers -------------------------------------------------------------------------------------

TEST(LeeFlexion, FicheroQueNoExisteDaError53YValoresDeArranque)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Entero tipo = -7;
    Avisos avisos;
    LeeFlexion(g, dir.Fichero("no_existe.vmf"), tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kArchivoNoEncontrado);
    EXPECT_EQ(tipo, -7);
    prueba::EsperaValoresFlexion(g);
}

TEST(LeeConfina, FicheroQueNoExisteDaError53YLaListaLarga)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    LeeConfina(g, dir.Fichero("no_existe.vmc"), avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kArchivoNoEncontrado);
    prueba::EsperaValoresConfinamiento(g);
    EXPECT_EQ(g.NU, 0.5);
    EXPECT_EQ(g.FYK, 500.0);
}

TEST(LeeFlexion, DirectorioQueNoExisteDaError76)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Entero tipo = 0;
    Avisos avisos;
    LeeFlexion(g, dir.Fichero("falta/proyecto.vmf"), tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kRutaNoEncontrada);
    prueba::EsperaValoresFlexion(g);
}

TEST(LeeConfina, DirectorioQueNoExisteDaError76)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    LeeConfina(g, dir.Fichero("falta/otro/proyecto.vmc"), avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kRutaNoEncontrada);
}

TEST(LeeFlexion, FicheroUsadoComoDirectorioDaError76)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("fichero"), "1\r\n");
    General g = prueba::EstadoAjeno();
    Entero tipo = 0;
    Avisos avisos;
    LeeFlexion(g, dir.Fichero("fichero/proyecto.vmf"), tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kRutaNoEncontrada);
}

TEST(LeeFlexion, DirectorioEnLugarDeFicheroDaErrorYValoresDeArranque)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Entero tipo = -7;
    Avisos avisos;
    LeeFlexion(g, dir.Ruta().string(), tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kErrorDeAccesoRuta);
    EXPECT_EQ(tipo, -7);
    prueba::EsperaValoresFlexion(g);
}

TEST(LeeConfina, DirectorioEnLugarDeFicheroDaError)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    LeeConfina(g, dir.Ruta().string(), avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kErrorDeAccesoRuta);
    EXPECT_EQ(g.NU, 0.5);
}

TEST(LeeFlexion, NombreVacioDaError52)
{
    General g = prueba::EstadoAjeno();
    Entero tipo = 0;
    Avisos avisos;
    LeeFlexion(g, "", tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kNombreIncorrecto);
    prueba::EsperaValoresFlexion(g);
}

TEST(LeeConfina, NombreVacioDaError52)
{
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    LeeConfina(g, "", avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kNombreIncorrecto);
}

TEST(LeeFlexion, NombreConNuloDentroDaError52)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("a"), "1\r\n");
    General g = prueba::EstadoAjeno();
    Entero tipo = 0;
    Avisos avisos;
    LeeFlexion(g, dir.Fichero("a") + std::string(1, '\0') + "b", tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kNombreIncorrecto);
}

TEST(LeeFlexion, SinPermisoDeLecturaDaError70)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("p.vmf"), prueba::ConFinDeLinea(prueba::LineasFlexionRectangular()));
    std::filesystem::permissions(dir.Fichero("p.vmf"), std::filesystem::perms::none);
    if (SeAbreAunAsi(dir.Fichero("p.vmf"), "rb"))
        GTEST_SKIP() << "el administrador, y Windows, leen un fichero sin permiso de lectura";
    General g = prueba::EstadoAjeno();
    Entero tipo = 0;
    Avisos avisos;
    LeeFlexion(g, dir.Fichero("p.vmf"), tipo, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kPermisoDenegado);
}

TEST(LeeFlexion, SinFuncionDeAvisoNoFalla)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Entero tipo = 0;
    LeeFlexion(g, dir.Fichero("no_existe.vmf"), tipo, Aviso());
    EXPECT_TRUE(g.F_ERROR);
    prueba::EsperaValoresFlexion(g);
}

// The files this process holds open, by the entries of /proc/self/fd; -1 where there is none.
// On Windows there is none: under Wine, Linux's /proc shows through drive Z:, but it lists the
// descriptors that Wine itself opens and closes as it goes, and so does not count the program's.
int DescriptoresAbiertos()
{
#ifdef _WIN32
    return -1;
#else
    std::error_code error;
    if (!std::filesystem::is_directory("/proc/self/fd", error)) return -1;
    int cuenta = 0;
    for (auto it = std::filesystem::directory_iterator("/proc/self/fd", error);
         !error && it != std::filesystem::directory_iterator(); it.increment(error))
        ++cuenta;
    return cuenta;
#endif
}

// Writes the lines as a file cut short and reads it fifty times with `lee`, each read failing
// at its end: the count of open files must be the same afterwards.
void CincuentaLecturasFallidas(const std::vector<std::string>& lineas, const std::string& nombre,
                               const std::function<void(const std::string&, General&, Avisos&)>& lee)
{
    if (DescriptoresAbiertos() < 0) GTEST_SKIP() << "no hay /proc/self/fd";
    DirectorioTemporal dir;
    const std::string fichero = dir.Fichero(nombre);
    prueba::EscribeBytes(fichero, prueba::ConFinDeLinea(lineas));
    const int antes = DescriptoresAbiertos();
    for (int vez = 0; vez < 50; ++vez) {
        General g = prueba::EstadoAjeno();
        Avisos avisos;
        lee(fichero, g, avisos);
        ASSERT_TRUE(g.F_ERROR);
        ASSERT_EQ(avisos.Textos().size(), 1u);
        ASSERT_EQ(avisos.Textos()[0], "Error 62: La entrada sobrepasa el final del archivo");
    }
    EXPECT_EQ(DescriptoresAbiertos(), antes);
}

TEST(LeeFlexion, CincuentaLecturasDeUnFicheroCortoNoDejanFicherosAbiertos)
{
    auto lineas = prueba::LineasFlexionT();
    lineas.resize(15);  // the file ends before MD
    CincuentaLecturasFallidas(lineas, "corto.vmf", [](const std::string& fichero, General& g, Avisos& avisos) {
        Entero tipo = 0;
        LeeFlexion(g, fichero, tipo, avisos.Funcion());
    });
}

TEST(LeeConfina, CincuentaLecturasDeUnFicheroCortoNoDejanFicherosAbiertos)
{
    auto lineas = prueba::LineasConfinaRectangular();
    lineas.resize(8);  // the file ends before INCR
    CincuentaLecturasFallidas(lineas, "corto.vmc", [](const std::string& fichero, General& g, Avisos& avisos) {
        LeeConfina(g, fichero, avisos.Funcion());
    });
}

// --- Writers ---------------------------------------------------------------------------------------

TEST(GrabaFlexion, DirectorioQueNoExisteDaError76YNoTocaElEstado)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    const General antes = g;
    Avisos avisos;
    GrabaFlexion(g, dir.Fichero("falta/flexion.vmf"), 1, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kRutaNoEncontrada);
    prueba::EsperaMismosValoresFlexion(antes, g);
    EXPECT_FALSE(std::filesystem::exists(dir.Ruta() / "falta"));
}

TEST(GrabaConfina, DirectorioQueNoExisteDaError76YNoTocaElEstado)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    const General antes = g;
    Avisos avisos;
    GrabaConfina(g, dir.Fichero("falta/confina.vmc"), avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kRutaNoEncontrada);
    prueba::EsperaMismosValoresConfinamiento(antes, g);
}

TEST(GrabaFlexion, DirectorioComoFicheroDaError75)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    GrabaFlexion(g, dir.Ruta().string(), 2, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kErrorDeAccesoRuta);
    EXPECT_TRUE(std::filesystem::is_directory(dir.Ruta()));
}

TEST(GrabaConfina, NombreVacioDaError52)
{
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    GrabaConfina(g, "", avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kNombreIncorrecto);
}

TEST(GrabaFlexion, NombreVacioDaError52)
{
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    GrabaFlexion(g, "", 1, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kNombreIncorrecto);
}

TEST(GrabaFlexion, DiscoLlenoDaEspacioInsuficiente)
{
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no hay /dev/full";
    General g = prueba::EstadoAjeno();
    const General antes = g;
    Avisos avisos;
    GrabaFlexion(g, "/dev/full", 2, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], "Espacio en disco insuficiente.");
    prueba::EsperaMismosValoresFlexion(antes, g);
}

TEST(GrabaConfina, DiscoLlenoDaEspacioInsuficiente)
{
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no hay /dev/full";
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    GrabaConfina(g, "/dev/full", avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], "Espacio en disco insuficiente.");
}

TEST(GrabaFlexion, FicheroDeSoloLecturaDaError70)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("f.vmf"), "viejo");
    std::filesystem::permissions(dir.Fichero("f.vmf"), std::filesystem::perms::owner_read);
    if (SeAbreAunAsi(dir.Fichero("f.vmf"), "ab")) GTEST_SKIP() << "el administrador escribe en cualquier fichero";
    General g = prueba::EstadoAjeno();
    Avisos avisos;
    GrabaFlexion(g, dir.Fichero("f.vmf"), 1, avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.Textos().size(), 1u);
    EXPECT_EQ(avisos.Textos()[0], kPermisoDenegado);
    EXPECT_EQ(prueba::LeeBytes(dir.Fichero("f.vmf")), "viejo");
}

TEST(GrabaFlexion, BuenaEscrituraNoBorraLaBanderaDeError)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    g.F_ERROR = true;
    Avisos avisos;
    GrabaFlexion(g, dir.Fichero("f.vmf"), 1, avisos.Funcion());
    GrabaConfina(g, dir.Fichero("c.vmc"), avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    EXPECT_TRUE(avisos.Textos().empty());
    EXPECT_TRUE(std::filesystem::exists(dir.Fichero("f.vmf")));
    EXPECT_TRUE(std::filesystem::exists(dir.Fichero("c.vmc")));
}

}  // namespace
}  // namespace texalon
