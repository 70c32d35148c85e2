#include "Auxiliares.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <fstream>
#include <system_error>

namespace texalon::prueba {

namespace {

int contador_directorios = 0;

}  // namespace

DirectorioTemporal::DirectorioTemporal()
{
    const auto* prueba = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string nombre =
        "texalon_ficheros_" + std::to_string(::getpid()) + "_" + std::to_string(++contador_directorios);
    if (prueba != nullptr) nombre += std::string("_") + prueba->name();
    ruta_ = std::filesystem::temp_directory_path() / nombre;
    std::filesystem::remove_all(ruta_);
    std::filesystem::create_directories(ruta_);
}

DirectorioTemporal::~DirectorioTemporal()
{
    std::error_code sin_excepcion;
    std::filesystem::remove_all(ruta_, sin_excepcion);
}

std::string DirectorioTemporal::Fichero(const std::string& nombre) const { return (ruta_ / nombre).string(); }

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

void EsperaMismosValoresFlexion(const General& esperado, const General& g)
{
    EXPECT_EQ(g.ANCHO, esperado.ANCHO);
    EXPECT_EQ(g.CANTO, esperado.CANTO);
    EXPECT_EQ(g.ANCHOALMA, esperado.ANCHOALMA);
    EXPECT_EQ(g.CANTOALA, esperado.CANTOALA);
    EXPECT_EQ(g.RECUB, esperado.RECUB);
    EXPECT_EQ(g.ASI, esperado.ASI);
    EXPECT_EQ(g.ASS, esperado.ASS);
    EXPECT_EQ(g.FCK, esperado.FCK);
    EXPECT_EQ(g.FYK, esperado.FYK);
    EXPECT_EQ(g.GC, esperado.GC);
    EXPECT_EQ(g.GS, esperado.GS);
    EXPECT_EQ(g.GR, esperado.GR);
    EXPECT_EQ(g.ANCHOR, esperado.ANCHOR);
    EXPECT_EQ(g.MCP, esperado.MCP);
    EXPECT_EQ(g.MD, esperado.MD);
    EXPECT_EQ(g.EPS0, esperado.EPS0);
}

void EsperaMismosValoresConfinamiento(const General& esperado, const General& g)
{
    EXPECT_EQ(g.SECCION, esperado.SECCION);
    EXPECT_EQ(g.DIAM, esperado.DIAM);
    EXPECT_EQ(g.LADOMENOR, esperado.LADOMENOR);
    EXPECT_EQ(g.FCK, esperado.FCK);
    EXPECT_EQ(g.GC, esperado.GC);
    EXPECT_EQ(g.GS, esperado.GS);
    EXPECT_EQ(g.GR, esperado.GR);
    EXPECT_EQ(g.NCP, esperado.NCP);
    EXPECT_EQ(g.INCR, esperado.INCR);
    EXPECT_EQ(g.NU, esperado.NU);
    EXPECT_EQ(g.FYK, esperado.FYK);
}

}  // namespace texalon::prueba
