// Timings of the flexure report printed to a PDF file, run headless: from the printer's
// creation through the set-up, the two frames, the rows, the four diagrams and the end of the
// document to the file written on disk.
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "platform/qt/ImpresoraQt.h"
#include "reports/Informes.h"
#include "state/General.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace texalon;

namespace {

// The default rectangle with MD 250, calculated, and the texts of its cell (1, 1).
struct Proyecto {
    General g;
    ResultadosCeldaFlexion celda;
    Veredicto veredicto = Veredicto::Oculto;
};

Proyecto Calculado(char separador)
{
    Proyecto p;
    ValoresIniciales(p.g);
    p.g.MD = 250.0;
    p.veredicto = CalculaFlexion(p.g, SeccionFlexion::Rectangular, [](General&) {}).veredicto;
    p.celda = ResultadosFlexion(p.g, 1, 1, separador);
    return p;
}

void InformeFlexionEnPdf(benchmark::State& estado)
{
    constexpr char kSeparador = ',';
    const Proyecto proyecto = Calculado(kSeparador);
    if (proyecto.veredicto != Veredicto::Oculto) {
        estado.SkipWithError("el proyecto no tiene resultados que imprimir");
        return;
    }
    const QTemporaryDir carpeta;
    const QString pdf = QDir(carpeta.path()).filePath(QStringLiteral("informe_flexion.pdf"));
    for (auto _ : estado) {
        // The report reads the state and leaves the last diagram in the list: each run starts
        // from the same project and an empty list, as a Print does.
        General g = proyecto.g;
        GeneralDibujo d;
        const auto impresora = plataforma::ImpresoraQt::PdfEn(pdf);
        const Impresion impresion = InformeFlexion(*impresora, g, d, proyecto.celda, proyecto.veredicto, kSeparador);
        benchmark::DoNotOptimize(impresion);
    }
    const QFileInfo fichero(pdf);
    if (!fichero.exists() || fichero.size() == 0) estado.SkipWithError("no se escribió el PDF");
}
BENCHMARK(InformeFlexionEnPdf)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(10)->ReportAggregatesOnly();

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
