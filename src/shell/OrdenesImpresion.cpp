// Print and the choice of printer: the report of the open screen on the current printer.
#include "platform/Impresora.h"
#include "platform/Plataforma.h"
#include "reports/qt/FmConfigImpr.h"
#include "screens/FmCarac.h"
#include "screens/FormularioCalculo.h"
#include "shell/MdiPrincipal.h"

#include <QMdiSubWindow>

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
        plataforma::Impresora& impresora = plataforma::ServicioImpresoras().EnUso();
        if (Estado().F_CARAC) {
            // The characteristics have nothing to calculate.
            if (QMdiSubWindow* ventana = Ventana(Pantalla::Carac))
                if (auto* carac = qobject_cast<FmCarac*>(ventana->widget())) carac->Imprime(impresora);
        } else if (FormularioCalculo* pantalla =
                       PantallaDeCalculo({Pantalla::Flexion, Pantalla::Confina, Pantalla::FlexionT})) {
            if (Estado().F_CALCULADO)
                pantalla->Imprime(impresora);
            else
                plataforma::MsgBox(kResultadosSinCalcular, plataforma::Estilo::Informacion);
        }
    });
    setCursor(Qt::ArrowCursor);
}

void MdiPrincipal::ConfigurarImpresora() { FmConfigImpr::Muestra(this); }

}  // namespace texalon
