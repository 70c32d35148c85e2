// Timings of the help window, headless: a topic asked for until its page is laid out and
// painted, first in a new window and then in the window already open.
#include "platform/qt/VentanaAyuda.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QTextBrowser>

using namespace texalon::plataforma;

namespace {

const QString kAyuda = QStringLiteral(TEXALON_AYUDA_FUENTE);

void TemaEnVentanaNueva(benchmark::State& estado)
{
    for (auto _ : estado) {
        VentanaAyuda ventana;
        ventana.Muestra(kAyuda, 32);
        ventana.show();
        benchmark::DoNotOptimize(ventana.grab());
    }
}
BENCHMARK(TemaEnVentanaNueva)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly();

void TemaEnVentanaAbierta(benchmark::State& estado)
{
    VentanaAyuda ventana;
    ventana.show();
    int contexto = 31;
    for (auto _ : estado) {
        ventana.Muestra(kAyuda, contexto);
        contexto = contexto == 34 ? 31 : contexto + 1;
        benchmark::DoNotOptimize(ventana.grab());
    }
}
BENCHMARK(TemaEnVentanaAbierta)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly();

}  // namespace

int main(int argc, char** argv)
{
    QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
