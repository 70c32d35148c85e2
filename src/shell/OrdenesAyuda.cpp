// The Help, Guide, Web and Mail commands of the main window. The menu and the toolbar do the
// same for each.
#include "shell/Ayuda.h"
#include "shell/MdiPrincipal.h"

namespace texalon {

namespace {

// The help topic of the open screen, tested in the order the program has always tested the
// flags; 0 with no screen open.
int ContextoDeAyuda()
{
    const General& g = Estado();
    if (g.F_FLEXION) return 32;
    if (g.F_CARAC) return 31;
    if (g.F_CONFINA) return 33;
    if (g.F_FLEXIONT) return 34;
    return 0;
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
