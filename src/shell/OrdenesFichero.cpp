// Open, Save and Save As: the project between the state and its file.
#include "files/Ficheros.h"
#include "platform/Plataforma.h"
#include "screens/FormularioCalculo.h"
#include "screens/Proyecto.h"
#include "shell/MdiPrincipal.h"

#include <QFileInfo>

namespace texalon {

namespace {

const QString kFiltroAbrir = QStringLiteral(
    "Archivos TEXALON - Flexión|*.VMF|Archivos TEXALON - Confinamiento|*.VMC|Archivos TEXALON|*.VMC;*.VMF");
// Open starts on the filter that shows both kinds of project.
constexpr int kFiltroAmbos = 3;

}  // namespace

void MdiPrincipal::OrdenDeFichero(Via via, const std::function<Fin()>& orden)
{
    try {
        if (orden() == Fin::Cancelada && via == Via::Menu) Estado().F_ABIERTO = false;
    } catch (const ErrorEjecucion&) {
        // Any other error ends the command there, and nothing is shown.
    }
}

void MdiPrincipal::Abrir(Via via)
{
    OrdenDeFichero(via, [this] { return AbreProyecto(); });
}

void MdiPrincipal::Guardar(Via via)
{
    OrdenDeFichero(via, [this] { return GuardaProyecto(false); });
}

void MdiPrincipal::GuardarComo()
{
    OrdenDeFichero(Via::Menu, [this] { return GuardaProyecto(true); });
}

MdiPrincipal::Fin MdiPrincipal::AbreProyecto()
{
    // The open screen goes before the dialog: cancelling Open leaves no screen open.
    CierraPantallaAbierta();
    Estado().F_ERROR = false;
    const auto elegido = plataforma::ServicioFicheros().Abrir({kFiltroAbrir, kFiltroAmbos, QString()});
    if (!elegido) return Fin::Cancelada;
    LeeProyecto(*elegido);
    return Fin::Completa;
}

void MdiPrincipal::AbrirFichero(const QString& fichero)
{
    // As Open after its dialog: the splash and the open screen go first.
    CierraPresentacion();
    OrdenDeFichero(Via::Barra, [this, fichero] {
        CierraPantallaAbierta();
        Estado().F_ERROR = false;
        const QFileInfo elegido(fichero);
        LeeProyecto({elegido.absoluteFilePath(), elegido.absolutePath()});
        return Fin::Completa;
    });
}

void MdiPrincipal::LeeProyecto(const plataforma::FicheroElegido& elegido)
{
    General& g = Estado();
    g.FICHERO = elegido.fichero.toStdString();
    g.DIRECTORIO = elegido.directorio.toStdString();

    // The extension decides the reader, not the contents; any other name is ignored in silence.
    const ClaseFichero clase = ClaseDe(g.FICHERO);
    SeccionFlexion seccion = SeccionFlexion::Rectangular;
    switch (clase) {
    case ClaseFichero::Flexion: LeeFlexion(g, g.FICHERO, seccion, AvisoFichero()); break;
    case ClaseFichero::Confinamiento: LeeConfina(g, g.FICHERO, AvisoFichero()); break;
    case ClaseFichero::Ninguna: return;
    }
    if (!g.F_ERROR) {
        g.F_ABIERTO = true;
        // The table of screens tells which one shows the project.
        if (const FilaPantalla* fila = FilaDeProyecto(clase, seccion)) MuestraPantalla(fila->pantalla);
    }
    // The reader has loaded its defaults already; no screen opens.
    if (g.F_ERROR)
        plataforma::MsgBox(QStringLiteral("Los datos almacenados no son correctos."), plataforma::Estilo::Parada);
}

MdiPrincipal::Fin MdiPrincipal::GuardaProyecto(bool preguntaSiempre)
{
    General& g = Estado();
    g.F_ERROR = false;
    FormularioCalculo* pantalla = PantallaDeCalculo(PrimeraAbierta(g, true));
    if (pantalla == nullptr) return Fin::Completa;
    pantalla->CopiaAlEstado();
    if (g.F_ERROR) {
        plataforma::MsgBox(QStringLiteral("Los datos introducidos no son correctos."), plataforma::Estilo::Parada);
        return Fin::Completa;
    }
    // Save asks for a name only for a project never saved; Save As always asks.
    if ((preguntaSiempre || g.F_NUEVO) && !pantalla->PideFichero(g)) return Fin::Cancelada;
    pantalla->Graba(g);
    // Save As counts a failed write as saved all the same; Save does not.
    if (preguntaSiempre || !g.F_ERROR) {
        g.F_GRABADO = true;
        g.F_MODIFICADO = false;
        g.F_NUEVO = false;
    }
    return Fin::Completa;
}

}  // namespace texalon
