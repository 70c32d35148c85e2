#include "Prueba.h"

#include "calculo/Calculo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>

namespace texalon::prueba {

namespace {

// Tests run in parallel: each directory takes the test's name and a random tail.
std::filesystem::path RutaNueva()
{
    const ::testing::TestInfo* prueba = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string nombre = "texalon_calculo";
    if (prueba != nullptr) nombre += std::string("_") + prueba->test_suite_name() + "_" + prueba->name();
    // A parameterised test has '/' in its name, which would nest the directory.
    std::replace(nombre.begin(), nombre.end(), '/', '_');
    std::random_device azar;
    constexpr std::string_view kHex = "0123456789abcdef";
    nombre += '_';
    for (int i = 0; i < 12; ++i)
        nombre += kHex[azar() % kHex.size()];
    return std::filesystem::temp_directory_path() / nombre;
}

std::string LeeFichero(const std::filesystem::path& ruta)
{
    std::string texto(static_cast<std::size_t>(std::filesystem::file_size(ruta)), '\0');
    std::ifstream entrada(ruta, std::ios::binary);
    entrada.read(texto.data(), static_cast<std::streamsize>(texto.size()));
    return texto;
}

}  // namespace

std::string Contenido(const std::string& fichero) { return LeeFichero(std::filesystem::path(fichero)); }

DirectorioTemporal::DirectorioTemporal() : CarpetaTemporal(RutaNueva()) {}

std::string DirectorioTemporal::Escribe(const std::string& nombre, std::string_view bytes) const
{
    const std::string fichero = Fichero(nombre);
    std::ofstream salida(fichero, std::ios::binary);
    salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return fichero;
}

std::string DirectorioTemporal::Fichero(const std::string& nombre) const
{
    return (Camino() / nombre).generic_string();
}

Ejecucion EjecutaCalculo(const std::vector<std::string>& argumentos, char separador,
                         const calculo::Dispositivos& dispositivos)
{
    std::ostringstream salida;
    std::ostringstream errores;
    Ejecucion ejecucion;
    ejecucion.estado = calculo::Ejecuta(argumentos, separador, salida, errores, dispositivos);
    ejecucion.salida = salida.str();
    ejecucion.errores = errores.str();
    return ejecucion;
}

std::string Sustituye(std::string texto, std::string_view buscado, std::string_view nuevo)
{
    for (std::size_t i = texto.find(buscado); i != std::string::npos; i = texto.find(buscado, i + nuevo.size()))
        texto.replace(i, buscado.size(), nuevo);
    return texto;
}

void ComparaConEsperado(const std::string& texto, const std::string& esperado)
{
    const std::filesystem::path ruta = std::filesystem::path(TEXALON_ESPERADO) / esperado;
    if (std::getenv("TEXALON_ACTUALIZA_ESPERADO") != nullptr) {
        std::ofstream salida(ruta, std::ios::binary);
        salida << texto;
        return;
    }
    ASSERT_TRUE(std::filesystem::exists(ruta)) << ruta;
    EXPECT_EQ(texto, LeeFichero(ruta)) << "comparado con " << ruta;
}

::testing::AssertionResult Contiene(const std::string& texto, std::string_view parte)
{
    if (texto.find(parte) != std::string::npos) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "«" << parte << "» no está en «" << texto << "»";
}

std::vector<std::string> Lineas(const std::string& texto)
{
    std::vector<std::string> lineas;
    for (std::size_t inicio = 0; inicio < texto.size();) {
        const std::size_t fin = std::min(texto.find('\n', inicio), texto.size());
        lineas.push_back(texto.substr(inicio, fin - inicio));
        inicio = fin + 1;
    }
    return lineas;
}

}  // namespace texalon::prueba
