// Timings of the diagram procedures on the default projects, calculated: the list alone, with
// no picture to draw on. Run build/tests/diagrams/bench_diagramas by hand.
#include "diagrams/Grafico.h"
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "state/General.h"

#include <benchmark/benchmark.h>

namespace texalon {
namespace {

General Calculado(bool confinamiento)
{
    General g;
    ValoresIniciales(g);
    g.MD = 250.0;
    const LeeCampos nada = [](General&) {};
    if (confinamiento)
        CalculaConfinamiento(g, FormaDe(g), nada);
    else
        CalculaFlexion(g, SeccionFlexion::Rectangular, nada);
    return g;
}

template <typename Procedimiento>
void Mide(benchmark::State& estado, bool confinamiento, Procedimiento procedimiento)
{
    General g = Calculado(confinamiento);
    GeneralDibujo d;
    for (auto _ : estado) {
        procedimiento(g, d);
        benchmark::DoNotOptimize(d.NLISTA);
    }
}

void BM_DiagramaTension(benchmark::State& e)
{
    Mide(e, false, [](General& g, GeneralDibujo& d) {
        CargaCaracteristicas(g, 1);
        DiagramaTension(g, d, 1, ',');
    });
}
void BM_DiagramaConfina(benchmark::State& e)
{
    Mide(e, true, [](General& g, GeneralDibujo& d) { DiagramaConfina(g, d, ','); });
}
void BM_DiagramaMomentoArea(benchmark::State& e)
{
    Mide(e, false, [](General& g, GeneralDibujo& d) { DiagramaMomentoArea(g, d, ','); });
}
void BM_DiagramaMomentoCapas(benchmark::State& e)
{
    Mide(e, false, [](General& g, GeneralDibujo& d) { DiagramaMomentoCapas(g, d, ','); });
}
void BM_DiagramaPivotes(benchmark::State& e)
{
    Mide(e, false, [](General& g, GeneralDibujo& d) {
        DiagramaPivotes(g, d, ResultadosFlexion(g, 1, 1, ','), ',');
    });
}
void BM_DibujaSeccionT(benchmark::State& e)
{
    Mide(e, false, [](General& g, GeneralDibujo& d) { DibujaSeccionT(g, d, ','); });
}
void BM_DibujaSeccionConfina(benchmark::State& e)
{
    Mide(e, true, [](General& g, GeneralDibujo& d) { DibujaSeccionConfina(g, d, ','); });
}

BENCHMARK(BM_DiagramaTension);
BENCHMARK(BM_DiagramaConfina);
BENCHMARK(BM_DiagramaMomentoArea);
BENCHMARK(BM_DiagramaMomentoCapas);
BENCHMARK(BM_DiagramaPivotes);
BENCHMARK(BM_DibujaSeccionT);
BENCHMARK(BM_DibujaSeccionConfina);

}  // namespace
}  // namespace texalon

BENCHMARK_MAIN();
