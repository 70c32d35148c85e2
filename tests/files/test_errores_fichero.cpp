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
#include <utility>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

namespace texalon {
namespace {

using prueba::Avisos;
using prueba::DirectorioTemporal;
using prueba::Lectura;
using prueba::LeeFicheroConfina;
using prueba::LeeFicheroFlexion;

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

// A file that fails: F_ERROR and the one message.
void EsperaFallo(const General& g, const std::vector<std::string>& avisos, const std::string& mensaje)
{
    EXPECT_TRUE(g.F_ERROR);
    ASSERT_EQ(avisos.size(), 1u);
    EXPECT_EQ(avisos[0], mensaje);
}

void EsperaFallo(const Lectura& l, const std::string& mensaje) { EsperaFallo(l.g, l.avisos, mensaje); }

TEST(LeeFlexion, FicheroQueNoExisteDaError53YValoresDeArranque)
{
    DirectorioTemporal dir;
    const Lectura l = LeeFicheroFlexion(dir.Fichero("no_existe.vmf"));
    EsperaFallo(l, kArchivoNoEncontrado);
    EXPECT_EQ(l.tipo, prueba::kTipoSinLeer);
    prueba::EsperaValoresFlexion(l.g);
}

TEST(LeeConfina, FicheroQueNoExisteDaError53YLaListaLarga)
{
    DirectorioTemporal dir;
    const Lectura l = LeeFicheroConfina(dir.Fichero("no_existe.vmc"));
    EsperaFallo(l, kArchivoNoEncontrado);
    prueba::EsperaValoresConfinamiento(l.g);
    prueba::EsperaCampos(l.g, {{"NU", 0.5}, {"FYK", 500.0}});
}

TEST(LeeFlexion, DirectorioQueNoExisteDaError76)
{
    DirectorioTemporal dir;
    const Lectura l = LeeFicheroFlexion(dir.Fichero("falta/proyecto.vmf"));
    EsperaFallo(l, kRutaNoEncontrada);
    prueba::EsperaValoresFlexion(l.g);
}

TEST(LeeConfina, DirectorioQueNoExisteDaError76)
{
    DirectorioTemporal dir;
    EsperaFallo(LeeFicheroConfina(dir.Fichero("falta/otro/proyecto.vmc")), kRutaNoEncontrada);
}

TEST(LeeFlexion, FicheroUsadoComoDirectorioDaError76)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("fichero"), "1\r\n");
    EsperaFallo(LeeFicheroFlexion(dir.Fichero("fichero/proyecto.vmf")), kRutaNoEncontrada);
}

TEST(LeeFlexion, DirectorioEnLugarDeFicheroDaErrorYValoresDeArranque)
{
    DirectorioTemporal dir;
    const Lectura l = LeeFicheroFlexion(dir.Ruta().string());
    EsperaFallo(l, kErrorDeAccesoRuta);
    EXPECT_EQ(l.tipo, prueba::kTipoSinLeer);
    prueba::EsperaValoresFlexion(l.g);
}

TEST(LeeConfina, DirectorioEnLugarDeFicheroDaError)
{
    DirectorioTemporal dir;
    const Lectura l = LeeFicheroConfina(dir.Ruta().string());
    EsperaFallo(l, kErrorDeAccesoRuta);
    EXPECT_EQ(l.g.NU, 0.5);
}

TEST(LeeFlexion, NombreVacioDaError52)
{
    const Lectura l = LeeFicheroFlexion("");
    EsperaFallo(l, kNombreIncorrecto);
    prueba::EsperaValoresFlexion(l.g);
}

TEST(LeeConfina, NombreVacioDaError52) { EsperaFallo(LeeFicheroConfina(""), kNombreIncorrecto); }

TEST(LeeFlexion, NombreConNuloDentroDaError52)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("a"), "1\r\n");
    EsperaFallo(LeeFicheroFlexion(dir.Fichero("a") + std::string(1, '\0') + "b"), kNombreIncorrecto);
}

TEST(LeeFlexion, SinPermisoDeLecturaDaError70)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("p.vmf"), prueba::ConFinDeLinea(prueba::LineasFlexionRectangular()));
    std::filesystem::permissions(dir.Fichero("p.vmf"), std::filesystem::perms::none);
    if (SeAbreAunAsi(dir.Fichero("p.vmf"), "rb"))
        GTEST_SKIP() << "el administrador, y Windows, leen un fichero sin permiso de lectura";
    EsperaFallo(LeeFicheroFlexion(dir.Fichero("p.vmf")), kPermisoDenegado);
}

TEST(LeeFlexion, SinFuncionDeAvisoNoFalla)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    SeccionFlexion tipo{};
    LeeFlexion(g, dir.Fichero("no_existe.vmf"), tipo, Aviso());
    EXPECT_TRUE(g.F_ERROR);
    prueba::EsperaValoresFlexion(g);
}

// Whether something left a file open. On Linux, by the entries of /proc/self/fd, counted when
// the watch starts and when it is asked. Windows has no such list (under Wine, Linux's /proc
// shows through drive Z:, but it lists the descriptors that Wine itself opens and closes as it
// goes); there a file opens with no sharing at all only while no handle to it is open.
class TestigoDeAbiertos {
public:
    explicit TestigoDeAbiertos(std::string fichero) : fichero_(std::move(fichero)), antes_(Descriptores()) {}

    bool HayUnoMasAbierto() const
    {
#ifdef _WIN32
        const HANDLE exclusivo = ::CreateFileW(std::filesystem::path(fichero_).c_str(), GENERIC_READ, 0, nullptr,
                                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (exclusivo == INVALID_HANDLE_VALUE) return true;
        ::CloseHandle(exclusivo);
        return false;
#else
        return Descriptores() != antes_;
#endif
    }

private:
    static int Descriptores()
    {
#ifdef _WIN32
        return 0;
#else
        int cuenta = 0;
        for (const auto& entrada : std::filesystem::directory_iterator("/proc/self/fd")) {
            static_cast<void>(entrada);
            ++cuenta;
        }
        return cuenta;
#endif
    }

    std::string fichero_;
    int antes_;
};

// The watch itself sees a file left open, and no longer once it is closed.
TEST(TestigoDeAbiertos, VeUnFicheroQueQuedaAbierto)
{
    DirectorioTemporal dir;
    const std::string fichero = dir.Fichero("abierto.vmf");
    prueba::EscribeBytes(fichero, "1\r\n");
    const TestigoDeAbiertos testigo(fichero);
    EXPECT_FALSE(testigo.HayUnoMasAbierto());
    std::FILE* abierto = std::fopen(fichero.c_str(), "rb");
    ASSERT_NE(abierto, nullptr);
    EXPECT_TRUE(testigo.HayUnoMasAbierto());
    std::fclose(abierto);
    EXPECT_FALSE(testigo.HayUnoMasAbierto());
}

// Writes the lines as a file cut short and reads it fifty times with `lee`, each read failing
// at its end: no file may be left open afterwards.
void CincuentaLecturasFallidas(const std::vector<std::string>& lineas, const std::string& nombre,
                               const std::function<void(const std::string&, General&, Avisos&)>& lee)
{
    DirectorioTemporal dir;
    const std::string fichero = dir.Fichero(nombre);
    prueba::EscribeBytes(fichero, prueba::ConFinDeLinea(lineas));
    const TestigoDeAbiertos testigo(fichero);
    for (int vez = 0; vez < 50; ++vez) {
        General g = prueba::EstadoAjeno();
        Avisos avisos;
        lee(fichero, g, avisos);
        ASSERT_TRUE(g.F_ERROR);
        ASSERT_EQ(avisos.Textos().size(), 1u);
        ASSERT_EQ(avisos.Textos()[0], "Error 62: La entrada sobrepasa el final del archivo");
    }
    EXPECT_FALSE(testigo.HayUnoMasAbierto());
}

TEST(LeeFlexion, CincuentaLecturasDeUnFicheroCortoNoDejanFicherosAbiertos)
{
    auto lineas = prueba::LineasFlexionT();
    lineas.resize(15);  // the file ends before MD
    CincuentaLecturasFallidas(lineas, "corto.vmf", [](const std::string& fichero, General& g, Avisos& avisos) {
        SeccionFlexion tipo{};
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

// Writes g as a flexure file of that kind, or as a confinement file, and gives the messages.
std::vector<std::string> AvisosDeGrabaFlexion(General& g, const std::string& fichero, SeccionFlexion tipo)
{
    Avisos avisos;
    GrabaFlexion(g, fichero, tipo, avisos.Funcion());
    return avisos.Textos();
}

std::vector<std::string> AvisosDeGrabaConfina(General& g, const std::string& fichero)
{
    Avisos avisos;
    GrabaConfina(g, fichero, avisos.Funcion());
    return avisos.Textos();
}

TEST(GrabaFlexion, DirectorioQueNoExisteDaError76YNoTocaElEstado)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    const General antes = g;
    EsperaFallo(g, AvisosDeGrabaFlexion(g, dir.Fichero("falta/flexion.vmf"), SeccionFlexion::Rectangular),
                kRutaNoEncontrada);
    prueba::EsperaMismosValoresFlexion(antes, g);
    EXPECT_FALSE(std::filesystem::exists(dir.Ruta() / "falta"));
}

TEST(GrabaConfina, DirectorioQueNoExisteDaError76YNoTocaElEstado)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    const General antes = g;
    EsperaFallo(g, AvisosDeGrabaConfina(g, dir.Fichero("falta/confina.vmc")), kRutaNoEncontrada);
    prueba::EsperaMismosValoresConfinamiento(antes, g);
}

TEST(GrabaFlexion, DirectorioComoFicheroDaError75)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    EsperaFallo(g, AvisosDeGrabaFlexion(g, dir.Ruta().string(), SeccionFlexion::T), kErrorDeAccesoRuta);
    EXPECT_TRUE(std::filesystem::is_directory(dir.Ruta()));
}

TEST(GrabaConfina, NombreVacioDaError52)
{
    General g = prueba::EstadoAjeno();
    EsperaFallo(g, AvisosDeGrabaConfina(g, ""), kNombreIncorrecto);
}

TEST(GrabaFlexion, NombreVacioDaError52)
{
    General g = prueba::EstadoAjeno();
    EsperaFallo(g, AvisosDeGrabaFlexion(g, "", SeccionFlexion::Rectangular), kNombreIncorrecto);
}

TEST(GrabaFlexion, DiscoLlenoDaEspacioInsuficiente)
{
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no hay /dev/full";
    General g = prueba::EstadoAjeno();
    const General antes = g;
    EsperaFallo(g, AvisosDeGrabaFlexion(g, "/dev/full", SeccionFlexion::T), "Espacio en disco insuficiente.");
    prueba::EsperaMismosValoresFlexion(antes, g);
}

TEST(GrabaConfina, DiscoLlenoDaEspacioInsuficiente)
{
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no hay /dev/full";
    General g = prueba::EstadoAjeno();
    EsperaFallo(g, AvisosDeGrabaConfina(g, "/dev/full"), "Espacio en disco insuficiente.");
}

TEST(GrabaFlexion, FicheroDeSoloLecturaDaError70)
{
    DirectorioTemporal dir;
    prueba::EscribeBytes(dir.Fichero("f.vmf"), "viejo");
    std::filesystem::permissions(dir.Fichero("f.vmf"), std::filesystem::perms::owner_read);
    if (SeAbreAunAsi(dir.Fichero("f.vmf"), "ab")) GTEST_SKIP() << "el administrador escribe en cualquier fichero";
    General g = prueba::EstadoAjeno();
    EsperaFallo(g, AvisosDeGrabaFlexion(g, dir.Fichero("f.vmf"), SeccionFlexion::Rectangular), kPermisoDenegado);
    EXPECT_EQ(prueba::LeeBytes(dir.Fichero("f.vmf")), "viejo");
}

TEST(GrabaFlexion, BuenaEscrituraNoBorraLaBanderaDeError)
{
    DirectorioTemporal dir;
    General g = prueba::EstadoAjeno();
    g.F_ERROR = true;
    Avisos avisos;
    GrabaFlexion(g, dir.Fichero("f.vmf"), SeccionFlexion::Rectangular, avisos.Funcion());
    GrabaConfina(g, dir.Fichero("c.vmc"), avisos.Funcion());
    EXPECT_TRUE(g.F_ERROR);
    EXPECT_TRUE(avisos.Textos().empty());
    EXPECT_TRUE(std::filesystem::exists(dir.Fichero("f.vmf")));
    EXPECT_TRUE(std::filesystem::exists(dir.Fichero("c.vmc")));
}

}  // namespace
}  // namespace texalon
