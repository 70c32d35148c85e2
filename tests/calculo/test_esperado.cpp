// The whole output of the command for the default projects, against the expected files. The
// scratch directory of each run reads "TMP" in them.
#include "Prueba.h"

#include <gtest/gtest.h>

namespace texalon::prueba {
namespace {

struct Caso {
    std::string_view nombre;  // of the file, and of the expected outputs with .txt and .json
    std::string_view extension;
    std::string_view contenido;
};

const Caso kCasos[] = {
    {"rectangular", ".vmf", kFlexionRectangular},
    {"seccion_t", ".vmf", kFlexionT},
    {"confinamiento", ".vmc", kConfinamiento},
};

// Runs the command on the project written as a file and compares what it prints.
void ComparaSalida(const Caso& caso, bool json)
{
    DirectorioTemporal directorio;
    const std::string fichero =
        directorio.Escribe(std::string(caso.nombre) + std::string(caso.extension), caso.contenido);
    const std::vector<std::string> argumentos =
        json ? std::vector<std::string>{"--json", fichero} : std::vector<std::string>{fichero};

    const Ejecucion ejecucion = EjecutaCalculo(argumentos, ',');
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
    const std::string salida = Sustituye(ejecucion.salida, directorio.Ruta().string(), "TMP");
    ComparaConEsperado(salida, std::string(caso.nombre) + (json ? ".json" : ".txt"));
}

class Esperado : public ::testing::TestWithParam<Caso> {};

TEST_P(Esperado, Texto) { ComparaSalida(GetParam(), false); }

TEST_P(Esperado, Json) { ComparaSalida(GetParam(), true); }

INSTANTIATE_TEST_SUITE_P(Calculo, Esperado, ::testing::ValuesIn(kCasos),
                         [](const ::testing::TestParamInfo<Caso>& caso) { return std::string(caso.param.nombre); });

// The JSON with a diagram's list, its texts with the comma of a Spanish machine.
struct CasoDiagrama {
    Caso proyecto;
    std::vector<std::string> opciones;
    std::string_view esperado;  // the expected output, with .json
};

const CasoDiagrama kCasosDiagrama[] = {
    {kCasos[0], {"--diagrama", "capas"}, "rectangular-capas"},
    {kCasos[1], {"--diagrama", "pivotes", "--tipo", "2", "--capas", "2"}, "seccion_t-pivotes"},
    {kCasos[2], {"--diagrama", "confinamiento"}, "confinamiento-confinamiento"},
    {kCasos[2], {"--diagrama", "seccion"}, "confinamiento-seccion"},
};

void PrintTo(const CasoDiagrama& caso, std::ostream* salida) { *salida << caso.esperado; }

class EsperadoDiagrama : public ::testing::TestWithParam<CasoDiagrama> {};

TEST_P(EsperadoDiagrama, Json)
{
    const CasoDiagrama& caso = GetParam();
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(
        std::string(caso.proyecto.nombre) + std::string(caso.proyecto.extension), caso.proyecto.contenido);
    std::vector<std::string> argumentos = {"--json"};
    argumentos.insert(argumentos.end(), caso.opciones.begin(), caso.opciones.end());
    argumentos.push_back(fichero);

    const Ejecucion ejecucion = EjecutaCalculo(argumentos, ',');
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
    const std::string salida = Sustituye(ejecucion.salida, directorio.Ruta().string(), "TMP");
    ComparaConEsperado(salida, std::string(caso.esperado) + ".json");
}

INSTANTIATE_TEST_SUITE_P(Calculo, EsperadoDiagrama, ::testing::ValuesIn(kCasosDiagrama),
                         [](const ::testing::TestParamInfo<CasoDiagrama>& caso) {
                             return Sustituye(std::string(caso.param.esperado), "-", "_");
                         });

}  // namespace
}  // namespace texalon::prueba
