// Timing of one whole Calculate of each kind: three sheet types, five layers, the moment
// without sheet, the maximum and the verdict.
#include "engine/Calcular.h"

#include <benchmark/benchmark.h>

namespace texalon {
namespace {

General ProyectoPorDefecto()
{
    General g;
    ValoresIniciales(g);
    return g;
}

void CalculoFlexionRectangular(benchmark::State& estado)
{
    General g = ProyectoPorDefecto();
    g.MCP = 50.0;
    for (auto _ : estado)
        benchmark::DoNotOptimize(CalculaFlexion(g, 1, nullptr));
}
BENCHMARK(CalculoFlexionRectangular);

void CalculoFlexionT(benchmark::State& estado)
{
    General g = ProyectoPorDefecto();
    g.CANTOALA = 0.05;
    g.MCP = 50.0;
    for (auto _ : estado)
        benchmark::DoNotOptimize(CalculaFlexion(g, 2, nullptr));
}
BENCHMARK(CalculoFlexionT);

void CalculoConfinamiento(benchmark::State& estado)
{
    General g = ProyectoPorDefecto();
    g.NCP = 1000.0;
    for (auto _ : estado)
        benchmark::DoNotOptimize(CalculaConfinamiento(g, 1, nullptr));
}
BENCHMARK(CalculoConfinamiento);

}  // namespace
}  // namespace texalon

BENCHMARK_MAIN();
