#include "shell/Ayuda.h"

#include "platform/Plataforma.h"
#include "state/General.h"

namespace texalon {

using plataforma::Estilo;
using plataforma::MsgBox;

QString DireccionWebVelmora() { return QStringLiteral(TEXALON_WEB); }

QString BuzonVelmora() { return QStringLiteral(TEXALON_CORREO); }

QString FicheroAyuda() { return plataforma::DirectorioDatos() + QStringLiteral("/ayuda"); }

QString FicheroGuia() { return plataforma::DirectorioDatos() + QStringLiteral("/guia_texalon.pdf"); }

void AbrePDF(const QString& fichero)
{
    // One way out on failure, whatever the cause: the user is told no reader was found.
    if (!plataforma::ServicioEscritorio().AbreFichero(fichero))
        MsgBox(QStringLiteral("No se ha encontrado ningún lector de ficheros PDF. En el CD de instalación está "
                              "disponible el Adobe Acrobat Reader."),
               Estilo::Parada);
}

void AbreWeb(const QString& direccion)
{
    if (!plataforma::ServicioEscritorio().AbreDireccion(direccion))
        MsgBox(QStringLiteral("No se ha encontrado ningún navegador asociado en su ordenador."), Estilo::Parada);
}

void Correo()
{
    // The session, once signed on, serves every mail of the run.
    General& g = Estado();
    plataforma::Correo& correo = plataforma::ServicioCorreo();
    bool compuesto = false;
    if (!g.F_MAPI && correo.IniciaSesion()) g.F_MAPI = true;
    if (g.F_MAPI) compuesto = correo.Redacta(kAsuntoCorreo, BuzonVelmora());
    if (!compuesto) MsgBox(QStringLiteral("No se ha podido establecer la aplicación de correo electrónico."), Estilo::Parada);
}

void CierraCorreo()
{
    General& g = Estado();
    if (!g.F_MAPI) return;
    plataforma::ServicioCorreo().CierraSesion();
    g.F_MAPI = false;
}

}  // namespace texalon
