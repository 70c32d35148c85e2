// Timing of a building's members through the batch command, as its main runs it, to --csv on
// an output that keeps nothing: 100,000 flexure members from one table, and the same members as
// 100,000 project files (the route before tables); a million rows from one table, with the
// resident size the process reached. Run build/tests/calculo/bench_tabla by hand; the tables
// and files are written once, in a temporary folder, before the timings.
#include "calculo/Calculo.h"

#include <benchmark/benchmark.h>

#ifndef _WIN32
#include <sys/resource.h>
#endif

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <random>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

namespace texalon {
namespace {

// An output that counts what it is given and keeps none of it.
class Nulo : public std::streambuf {
protected:
    std::streamsize xsputn(const char*, std::streamsize n) override { return n; }
    int overflow(int c) override { return c; }
};

std::filesystem::path Carpeta()
{
    static const std::filesystem::path carpeta = [] {
        auto ruta = std::filesystem::temp_directory_path() / "texalon_bench_tabla";
        std::filesystem::create_directories(ruta);
        return ruta;
    }();
    return carpeta;
}

// The values of member i, the same in the table and in its file: sections and loads drawn at
// random within what an engineer meets, with a fixed seed.
struct Miembro {
    double ancho, canto, asi, md;
};

Miembro Sorteado(std::mt19937& azar)
{
    std::uniform_real_distribution<double> b(0.25, 0.5), h(0.4, 0.8), a(6.0, 20.0), m(100.0, 400.0);
    return {std::round(b(azar) * 100.0) / 100.0, std::round(h(azar) * 100.0) / 100.0, std::round(a(azar) * 10.0) / 10.0,
            std::round(m(azar))};
}

std::string Tabla(int filas)
{
    const auto ruta = Carpeta() / ("tabla_" + std::to_string(filas) + ".csv");
    if (std::filesystem::exists(ruta)) return ruta.string();
    std::ofstream salida(ruta, std::ios::binary);
    salida << "elemento,tipo,ANCHO,CANTO,RECUB,ASI,ASS,FCK,FYK,ANCHOR,MCP,MD\r\n";
    std::mt19937 azar(2026);
    for (int i = 0; i < filas; ++i) {
        const Miembro m = Sorteado(azar);
        salida << "V-" << i << ",rectangular," << m.ancho << ',' << m.canto << ",0.05," << m.asi << ",0,25,500,0.125,0,"
               << m.md << "\r\n";
    }
    return ruta.string();
}

std::vector<std::string> Ficheros(int cuantos)
{
    const auto carpeta = Carpeta() / ("ficheros_" + std::to_string(cuantos));
    std::vector<std::string> nombres;
    const bool hechos = std::filesystem::exists(carpeta);
    std::filesystem::create_directories(carpeta);
    std::mt19937 azar(2026);
    for (int i = 0; i < cuantos; ++i) {
        const Miembro m = Sorteado(azar);
        const auto ruta = carpeta / ("V-" + std::to_string(i) + ".vmf");
        nombres.push_back(ruta.string());
        if (hechos) continue;
        std::ofstream salida(ruta, std::ios::binary);
        salida << "1\r\n" << m.ancho << "\r\n" << m.canto << "\r\n0.05\r\n" << m.asi << "\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n"
               << m.md << "\r\n";
    }
    return nombres;
}

void Ejecuta(benchmark::State& estado, const std::vector<std::string>& argumentos, int miembros)
{
    Nulo nulo;
    std::ostream salida(&nulo);
    for (auto _ : estado)
        benchmark::DoNotOptimize(calculo::Ejecuta(argumentos, '.', salida, salida));
    estado.SetItemsProcessed(estado.iterations() * miembros);
#ifndef _WIN32
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    estado.counters["RSS_MB"] = static_cast<double>(uso.ru_maxrss) / 1024.0;
#endif
}

void CienMilDeUnaTabla(benchmark::State& estado) { Ejecuta(estado, {"--tabla", "--csv", Tabla(100000)}, 100000); }
BENCHMARK(CienMilDeUnaTabla)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void CienMilFicheros(benchmark::State& estado)
{
    std::vector<std::string> argumentos{"--csv"};
    for (std::string& fichero : Ficheros(100000))
        argumentos.push_back(std::move(fichero));
    Ejecuta(estado, argumentos, 100000);
}
BENCHMARK(CienMilFicheros)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// Last, so that the resident size it reports is its own peak over the others'.
void UnMillonDeUnaTabla(benchmark::State& estado) { Ejecuta(estado, {"--tabla", "--csv", Tabla(1000000)}, 1000000); }
BENCHMARK(UnMillonDeUnaTabla)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

}  // namespace
}  // namespace texalon

BENCHMARK_MAIN();
