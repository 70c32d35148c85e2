#include "Auxiliares.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

namespace texalon::prueba {

namespace {

int contador_directorios = 0;

}  // namespace

// A name of its own: the process, a count, and the test's name, whose '/' (a parameterised
// test's) would nest the directory.
std::filesystem::path RutaNueva()
{
    const auto* prueba = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string nombre =
        "texalon_ficheros_" + std::to_string(::getpid()) + "_" + std::to_string(++contador_directorios);
    if (prueba != nullptr) nombre += std::string("_") + prueba->name();
    std::replace(nombre.begin(), nombre.end(), '/', '_');
    return std::filesystem::temp_directory_path() / nombre;
}

DirectorioTemporal::DirectorioTemporal() : CarpetaTemporal(RutaNueva()) {}

std::string DirectorioTemporal::Fichero(const std::string& nombre) const { return (Ruta() / nombre).string(); }

Aviso Avisos::Funcion()
{
    return [this](const std::string& texto) { textos_.push_back(texto); };
}

std::string ConFinDeLinea(const std::vector<std::string>& lineas, const std::string& fin)
{
    std::string texto;
    for (const auto& linea : lineas)
        texto += linea + fin;
    return texto;
}

void EscribeBytes(const std::string& fichero, const std::string& bytes)
{
    std::ofstream salida(fichero, std::ios::binary | std::ios::trunc);
    salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(salida.good()) << fichero;
}

std::string LeeBytes(const std::string& fichero)
{
    // Read in one block: GCC 12 warns of a null dereference inside istreambuf_iterator at -O2.
    std::error_code sin_excepcion;
    const auto tamano = std::filesystem::file_size(fichero, sin_excepcion);
    if (sin_excepcion) return {};
    std::string bytes(tamano, '\0');
    std::ifstream entrada(fichero, std::ios::binary);
    entrada.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

std::vector<std::string> LineasFlexionRectangular()
{
    return {"1", "0.4", "0.6", "0.05", "10", "0", "25", "500", "1.5", "1.15", "1.4", "0.125", "0", "0"};
}

std::vector<std::string> LineasFlexionT()
{
    return {"2", "0.4", "0.6", "0.2", "0.2", "0.05", "10", "0", "25", "500", "1.5", "1.15", "1.4", "0.125", "0", "0"};
}

std::vector<std::string> LineasConfinaRectangular()
{
    return {"3", "0.5", "0.4", "25", "1.5", "1.15", "1.4", "1200", "1"};
}

std::vector<std::string> ConLinea(std::vector<std::string> lineas, std::size_t linea, const std::string& texto)
{
    lineas.at(linea - 1) = texto;
    return lineas;
}

std::vector<std::string> ConLineas(std::vector<std::string> lineas,
                                   std::initializer_list<std::pair<std::size_t, std::string>> cambios)
{
    for (const auto& [linea, texto] : cambios)
        lineas.at(linea - 1) = texto;
    return lineas;
}

Lectura LeeFicheroFlexion(const std::string& fichero, General inicial)
{
    Lectura lectura;
    lectura.g = std::move(inicial);
    Avisos avisos;
    // The number of line 1 as it was read, a section kind or not.
    auto seccion = static_cast<SeccionFlexion>(lectura.tipo);
    LeeFlexion(lectura.g, fichero, seccion, avisos.Funcion());
    lectura.tipo = static_cast<Entero>(seccion);
    lectura.avisos = avisos.Textos();
    return lectura;
}

Lectura LeeFicheroConfina(const std::string& fichero, General inicial)
{
    Lectura lectura;
    lectura.g = std::move(inicial);
    Avisos avisos;
    LeeConfina(lectura.g, fichero, avisos.Funcion());
    lectura.avisos = avisos.Textos();
    return lectura;
}

Lectura LeeFlexionDe(const std::string& bytes, General inicial)
{
    const DirectorioTemporal dir;
    EscribeBytes(dir.Fichero("proyecto.vmf"), bytes);
    return LeeFicheroFlexion(dir.Fichero("proyecto.vmf"), std::move(inicial));
}

Lectura LeeConfinaDe(const std::string& bytes, General inicial)
{
    const DirectorioTemporal dir;
    EscribeBytes(dir.Fichero("proyecto.vmc"), bytes);
    return LeeFicheroConfina(dir.Fichero("proyecto.vmc"), std::move(inicial));
}

Lectura LeeLineasFlexion(const std::vector<std::string>& lineas) { return LeeFlexionDe(ConFinDeLinea(lineas)); }

Lectura LeeLineasConfina(const std::vector<std::string>& lineas) { return LeeConfinaDe(ConFinDeLinea(lineas)); }

void EsperaMismosValoresFlexion(const General& esperado, const General& g)
{
    EsperaMismosCampos(g, esperado,
                       {"ANCHO", "CANTO", "ANCHOALMA", "CANTOALA", "RECUB", "ASI", "ASS", "FCK", "FYK", "GC", "GS",
                        "GR", "ANCHOR", "MCP", "MD", "EPS0"});
}

void EsperaMismosValoresConfinamiento(const General& esperado, const General& g)
{
    EsperaMismosCampos(g, esperado,
                       {"SECCION", "DIAM", "LADOMENOR", "FCK", "GC", "GS", "GR", "NCP", "INCR", "NU", "FYK"});
}

}  // namespace texalon::prueba
