// The Help, Guide, Web and Mail commands of the main window. The menu and the toolbar do the
// same for each.
#include "shell/Ayuda.h"
#include "shell/MdiPrincipal.h"

namespace texalon {

namespace {

// The help topic of the open screen, its flag tested in the help's turn; 0 with no screen open.
int ContextoDeAyuda()
{
    const FilaPantalla* fila = PantallaPorTurno(Estado(), &FilaPantalla::turnoAyuda);
    return fila == nullptr ? 0 : fila->contextoAyuda;
}

}  // namespace

void MdiPrincipal::AyudaPrograma()
{
    const int contexto = ContextoDeAyuda();
    if (contexto != 0)
        plataforma::ServicioAyuda().MuestraTema(FicheroAyuda(), contexto);
    else
        plataforma::ServicioAyuda().MuestraContenido(FicheroAyuda());
}

void MdiPrincipal::Guia() { AbrePDF(FicheroGuia()); }

void MdiPrincipal::Web() { AbreWeb(DireccionWebVelmora()); }

void MdiPrincipal::Contactar() { Correo(); }

}  // namespace texalon
