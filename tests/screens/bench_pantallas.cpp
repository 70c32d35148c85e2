// Timings of the screens, widgets included, run headless: the load of each screen with its
// unload, a Calculate on each calculation screen from the click to the grid, the results and
// the chart painted, and one zoom of the chart painted.
#include "diagrams/qt/Lienzo.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/FmCarac.h"
#include "screens/FmConfina.h"
#include "screens/FmFlexion.h"
#include "shell/Aplicacion.h"
#include "state/General.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QTest>
#include <QPushButton>
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

// A click of the mouse, as the user gives it: the press takes the focus.
void Clic(QWidget* control, Qt::MouseButton boton, QPoint punto) { QTest::mouseClick(control, boton, {}, punto); }

// Whatever the click changed, painted now.
void Pinta(QWidget* pantalla)
{
    QApplication::processEvents();
    pantalla->repaint();
}

void Calcula(benchmark::State& estado, const std::function<FormularioCalculo*()>& fabrica)
{
    plataforma::PlataformaDoble doble;
    Prepara();
    std::unique_ptr<FormularioCalculo> pantalla(fabrica());
    pantalla->setAttribute(Qt::WA_DeleteOnClose, false);
    pantalla->show();
    pantalla->activateWindow();
    if (!QTest::qWaitForWindowActive(pantalla.get())) estado.SkipWithError("la pantalla no se ha activado");
    auto* calcular = qobject_cast<QPushButton*>(pantalla->Control(QStringLiteral("CM_CALCULAR")));
    for (auto _ : estado) {
        Clic(calcular, Qt::LeftButton, calcular->rect().center());
        Pinta(pantalla.get());
    }
    if (!Estado().F_CALCULADO) estado.SkipWithError("el clic no ha calculado");
    pantalla->close();
}

// Two clicks on the chart that a Calculate left, with the pointer's move between them, the zoom
// painted; a right click between two
// iterations fits the chart again, outside the timing.
void Amplia(benchmark::State& estado, const std::function<FormularioCalculo*()>& fabrica, const char* dibujo)
{
    plataforma::PlataformaDoble doble;
    Prepara();
    std::unique_ptr<FormularioCalculo> pantalla(fabrica());
    pantalla->setAttribute(Qt::WA_DeleteOnClose, false);
    pantalla->show();
    pantalla->Calcular();
    QWidget* superficie = qobject_cast<Lienzo*>(pantalla->Control(QString::fromLatin1(dibujo)))->viewport();
    for (auto _ : estado) {
        // The first corner, the band stretched by the pointer, the second corner.
        Clic(superficie, Qt::LeftButton, QPoint(100, 60));
        QTest::mouseMove(superficie, QPoint(210, 104));
        Clic(superficie, Qt::LeftButton, QPoint(210, 104));
        Pinta(pantalla.get());
        estado.PauseTiming();
        Clic(superficie, Qt::RightButton, QPoint(5, 5));
        Pinta(pantalla.get());
        estado.ResumeTiming();
    }
    if (EstadoDibujo().ZOOM != 4.0) estado.SkipWithError("los clics no han ampliado el dibujo");
    pantalla->close();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    benchmark::RegisterBenchmark("AbreYCierra/FM_FLEXION", AbreYCierra,
                                 [] { return new FmFlexion(SeccionFlexion::Rectangular); });
    benchmark::RegisterBenchmark("AbreYCierra/FM_FLEXIONT", AbreYCierra,
                                 [] { return new FmFlexion(SeccionFlexion::T); });
    benchmark::RegisterBenchmark("AbreYCierra/FM_CONFINA", AbreYCierra, [] { return new FmConfina; });
    benchmark::RegisterBenchmark("AbreYCierra/FM_CARAC", AbreYCierra, [] { return new FmCarac; });
    benchmark::RegisterBenchmark("Calcular/FM_FLEXION", Calcula,
                                 [] { return new FmFlexion(SeccionFlexion::Rectangular); });
    benchmark::RegisterBenchmark("Calcular/FM_FLEXIONT", Calcula, [] { return new FmFlexion(SeccionFlexion::T); });
    benchmark::RegisterBenchmark("Calcular/FM_CONFINA", Calcula, [] { return new FmConfina; });
    benchmark::RegisterBenchmark(
        "Zoom/FM_FLEXION", Amplia, [] { return new FmFlexion(SeccionFlexion::Rectangular); }, "PIC_FLEXION");
    benchmark::RegisterBenchmark("Zoom/FM_CONFINA", Amplia, [] { return new FmConfina; }, "PIC_CONFINA");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
