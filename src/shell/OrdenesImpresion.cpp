// Print and the choice of printer: the report of the open screen on the current printer.
#include "platform/Impresora.h"
#include "platform/Plataforma.h"
#include "reports/qt/FmConfigImpr.h"
#include "screens/Formulario.h"
#include "shell/MdiPrincipal.h"

namespace texalon {

namespace {

const QString kResultadosSinCalcular = QStringLiteral(
    "No se han calculado los resultados o los datos han sido modificados y no se ha procedido a realizar un nuevo "
    "cálculo.");

}  // namespace

void MdiPrincipal::Imprimir()
{
    setCursor(Qt::WaitCursor);
    plataforma::AtrapaErrorFatal([this] {
        const FilaPantalla* fila = PantallaParaImprimir(Estado());
        Formulario* pantalla = PantallaDe(fila);
        if (pantalla == nullptr) return;
        if (fila->conProyecto && !Estado().F_CALCULADO) {
            plataforma::MsgBox(kResultadosSinCalcular, plataforma::Estilo::Informacion);
            return;
        }
        // The report builds its diagrams on the list and prints each; the last of them is
        // then what the screen's picture shows.
        if (pantalla->Imprime(plataforma::ServicioImpresoras().EnUso())) pantalla->MuestraDiagramaDelInforme();
    });
    setCursor(Qt::ArrowCursor);
}

void MdiPrincipal::ConfigurarImpresora() { FmConfigImpr::Muestra(this); }

}  // namespace texalon
