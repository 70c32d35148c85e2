// Timings of the screens, widgets included, run headless: the load of each screen with its
// unload, and a Calculate on each calculation screen with its table and results shown.
#include "platform/dobles/PlataformaDoble.h"
#include "screens/FmCarac.h"
#include "screens/FmConfina.h"
#include "screens/FmFlexion.h"
#include "shell/Aplicacion.h"
#include "state/General.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <functional>
#include <memory>

using namespace texalon;

namespace {

using Fabrica = std::function<Formulario*()>;

void Prepara()
{
    Estado() = General{};
    ValoresIniciales(Estado());
}

// Load, show and unload, the close prompt answered No by the doubles.
void AbreYCierra(benchmark::State& estado, const Fabrica& fabrica)
{
    plataforma::PlataformaDoble doble;
    for (auto _ : estado) {
        Prepara();
        std::unique_ptr<Formulario> pantalla(fabrica());
        pantalla->setAttribute(Qt::WA_DeleteOnClose, false);
        pantalla->show();
        pantalla->close();
    }
}

void Calcula(benchmark::State& estado, const std::function<FormularioCalculo*()>& fabrica)
{
    plataforma::PlataformaDoble doble;
    Prepara();
    std::unique_ptr<FormularioCalculo> pantalla(fabrica());
    pantalla->setAttribute(Qt::WA_DeleteOnClose, false);
    pantalla->show();
    for (auto _ : estado)
        pantalla->Calcular();
    pantalla->close();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    benchmark::RegisterBenchmark("AbreYCierra/FM_FLEXION", AbreYCierra, [] { return new FmFlexion(false); });
    benchmark::RegisterBenchmark("AbreYCierra/FM_FLEXIONT", AbreYCierra, [] { return new FmFlexion(true); });
    benchmark::RegisterBenchmark("AbreYCierra/FM_CONFINA", AbreYCierra, [] { return new FmConfina; });
    benchmark::RegisterBenchmark("AbreYCierra/FM_CARAC", AbreYCierra, [] { return new FmCarac; });
    benchmark::RegisterBenchmark("Calcular/FM_FLEXION", Calcula, [] { return new FmFlexion(false); });
    benchmark::RegisterBenchmark("Calcular/FM_FLEXIONT", Calcula, [] { return new FmFlexion(true); });
    benchmark::RegisterBenchmark("Calcular/FM_CONFINA", Calcula, [] { return new FmConfina; });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
