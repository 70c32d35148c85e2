#include "screens/Proyecto.h"

#include "platform/Plataforma.h"

namespace texalon {

namespace {

bool PideFichero(General& g, const QString& filtro, const QString& nombre)
{
    const auto elegido = plataforma::ServicioFicheros().Guardar({filtro, 1, nombre});
    if (!elegido) return false;
    g.FICHERO = elegido->fichero.toStdString();
    g.DIRECTORIO = elegido->directorio.toStdString();
    return true;
}

}  // namespace

bool PideFicheroFlexion(General& g)
{
    return PideFichero(g, QStringLiteral("Archivos TEXALON - Flexión|*.VMF"), QStringLiteral("flexion.vmf"));
}

bool PideFicheroConfina(General& g)
{
    return PideFichero(g, QStringLiteral("Archivos TEXALON - Confinamiento|*.VMC"), QStringLiteral("confina.vmc"));
}

Aviso AvisoFichero()
{
    return [](const std::string& texto) {
        plataforma::MsgBox(QString::fromStdString(texto), plataforma::Estilo::Exclamacion);
    };
}

}  // namespace texalon
