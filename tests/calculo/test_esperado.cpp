// The whole output of the command for the default projects, against the expected files. The
// scratch directory of each run reads "TMP" in them.
#include "Prueba.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

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
    const std::string salida = Sustituye(ejecucion.salida, directorio.Ruta(), "TMP");
    ComparaConEsperado(salida, std::string(caso.nombre) + (json ? ".json" : ".txt"));
}

class Esperado : public ::testing::TestWithParam<Caso> {};

TEST_P(Esperado, Texto) { ComparaSalida(GetParam(), false); }

TEST_P(Esperado, Json) { ComparaSalida(GetParam(), true); }

INSTANTIATE_TEST_SUITE_P(Calculo, Esperado, ::testing::ValuesIn(kCasos),
                         [](const ::testing::TestParamInfo<Caso>& caso) { return std::string(caso.param.nombre); });

// The JSON with the list of every diagram of the default projects, the rectangular one with a
// design moment of 250 mkN so that its charts have the marker, under both decimal settings.
const Caso kVigaMd250 = {"viga", ".vmf", kFlexionRectangularMd250};

struct CasoDiagrama {
    Caso proyecto;
    std::string_view diagrama;
    char separador;

    // The name of the expected output, without its .json: "viga-capas-coma".
    std::string Esperado() const
    {
        return std::string(proyecto.nombre) + "-" + std::string(diagrama) + (separador == ',' ? "-coma" : "-punto");
    }
};

std::vector<CasoDiagrama> CasosDiagrama()
{
    const std::pair<Caso, std::vector<std::string_view>> proyectos[] = {
        {kVigaMd250, {"tension", "area", "capas", "pivotes", "seccion"}},
        {kCasos[1], {"tension", "area", "capas", "pivotes", "seccion"}},
        {kCasos[2], {"tension", "confinamiento", "seccion"}},
    };
    std::vector<CasoDiagrama> casos;
    for (const auto& [proyecto, diagramas] : proyectos)
        for (std::string_view diagrama : diagramas)
            for (char separador : {',', '.'})
                casos.push_back({proyecto, diagrama, separador});
    return casos;
}

void PrintTo(const CasoDiagrama& caso, std::ostream* salida) { *salida << caso.Esperado(); }

class EsperadoDiagrama : public ::testing::TestWithParam<CasoDiagrama> {};

TEST_P(EsperadoDiagrama, Json)
{
    const CasoDiagrama& caso = GetParam();
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(
        std::string(caso.proyecto.nombre) + std::string(caso.proyecto.extension), caso.proyecto.contenido);
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "--diagrama", std::string(caso.diagrama), fichero}, caso.separador);
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
    const std::string salida = Sustituye(ejecucion.salida, directorio.Ruta(), "TMP");
    ComparaConEsperado(salida, caso.Esperado() + ".json");
}

INSTANTIATE_TEST_SUITE_P(Calculo, EsperadoDiagrama, ::testing::ValuesIn(CasosDiagrama()),
                         [](const ::testing::TestParamInfo<CasoDiagrama>& caso) {
                             return Sustituye(caso.param.Esperado(), "-", "_");
                         });

}  // namespace
}  // namespace texalon::prueba
