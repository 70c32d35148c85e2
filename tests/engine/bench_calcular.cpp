// Timing of one whole Calculate of each kind: three sheet types, five layers, the moment
// without sheet, the maximum and the verdict.
#include "engine/Calcular.h"

#include <benchmark/benchmark.h>

namespace texalon {
namespace {

// The start values with a few fields changed.
template <class Cambio>
General ProyectoCon(Cambio cambia)
{
    General g;
    ValoresIniciales(g);
    cambia(g);
    return g;
}

// One whole Calculate of a project of that kind (1 rectangular, 2 T, or the column's form),
// over and over.
void Calculo(benchmark::State& estado, General g, bool flexion, Entero clase)
{
    for (auto _ : estado)
        benchmark::DoNotOptimize(flexion ? CalculaFlexion(g, clase, nullptr) : CalculaConfinamiento(g, clase, nullptr));
}

BENCHMARK_CAPTURE(Calculo, FlexionRectangular, ProyectoCon([](General& g) { g.MCP = 50.0; }), true, 1);
BENCHMARK_CAPTURE(Calculo, FlexionT, ProyectoCon([](General& g) { g.CANTOALA = 0.05; g.MCP = 50.0; }), true, 2);
BENCHMARK_CAPTURE(Calculo, Confinamiento, ProyectoCon([](General& g) { g.NCP = 1000.0; }), false, 1);

}  // namespace
}  // namespace texalon

BENCHMARK_MAIN();
