#include "platform/Plataforma.h"

#include "state/Formato.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace texalon::plataforma {

namespace {

Servicios& EnUso()
{
    static Servicios servicios;
    return servicios;
}

template <typename T>
T& Servicio(T* servicio)
{
    // Using a service before one is installed is a fault of the program, not of the user.
    if (servicio == nullptr) throw ErrorEjecucion(ErrorEjecucion::kArgumentoNoValido);
    return *servicio;
}

}  // namespace

Mensajes& ServicioMensajes() { return Servicio(EnUso().mensajes); }
Ficheros& ServicioFicheros() { return Servicio(EnUso().ficheros); }
Ventanas& ServicioVentanas() { return Servicio(EnUso().ventanas); }
Monitor& ServicioMonitor() { return Servicio(EnUso().monitor); }
Regional& ServicioRegional() { return Servicio(EnUso().regional); }
Proceso& ServicioProceso() { return Servicio(EnUso().proceso); }
Impresoras& ServicioImpresoras() { return Servicio(EnUso().impresoras); }
Ayuda& ServicioAyuda() { return Servicio(EnUso().ayuda); }
Escritorio& ServicioEscritorio() { return Servicio(EnUso().escritorio); }
Correo& ServicioCorreo() { return Servicio(EnUso().correo); }

Servicios Instala(const Servicios& servicios)
{
    Servicios anteriores = EnUso();
    EnUso() = servicios;
    return anteriores;
}

QString FormatoLocal(double valor, std::string_view patron)
{
    return QString::fromStdString(Formato(valor, patron, ServicioRegional().SeparadorDecimal()));
}

QString UbicaDatos(const QString& directorioPrograma)
{
    const QString instalados = QDir::cleanPath(directorioPrograma + QStringLiteral("/../share/texalon"));
    if (QFileInfo::exists(instalados + QStringLiteral("/ayuda/mapa.txt"))) return instalados;
    return QDir::cleanPath(directorioPrograma);
}

QString DirectorioDatos() { return UbicaDatos(QCoreApplication::applicationDirPath()); }

QString TextoErrorFatal(const ErrorEjecucion& error)
{
    return QStringLiteral("Se ha producido el error '%1' en tiempo de ejecución:\r\r%2")
        .arg(error.Numero())
        .arg(QString::fromStdString(error.Descripcion()));
}

}  // namespace texalon::plataforma
