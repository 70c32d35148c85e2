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

// One whole Calculate of a project, over and over.
template <class Calcula>
void Calculo(benchmark::State& estado, General g, Calcula calcula)
{
    for (auto _ : estado)
        benchmark::DoNotOptimize(calcula(g));
}

const auto kFlexionRectangular = [](General& g) { return CalculaFlexion(g, SeccionFlexion::Rectangular, nullptr); };
const auto kFlexionT = [](General& g) { return CalculaFlexion(g, SeccionFlexion::T, nullptr); };
const auto kConfinamiento = [](General& g) { return CalculaConfinamiento(g, FormaPilar::Circular, nullptr); };

BENCHMARK_CAPTURE(Calculo, FlexionRectangular, ProyectoCon([](General& g) { g.MCP = 50.0; }), kFlexionRectangular);
BENCHMARK_CAPTURE(Calculo, FlexionT, ProyectoCon([](General& g) {
                      g.CANTOALA = 0.05;
                      g.MCP = 50.0;
                  }),
                  kFlexionT);
BENCHMARK_CAPTURE(Calculo, Confinamiento, ProyectoCon([](General& g) { g.NCP = 1000.0; }), kConfinamiento);

}  // namespace
}  // namespace texalon

BENCHMARK_MAIN();
