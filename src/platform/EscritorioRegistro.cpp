#include "platform/EscritorioRegistro.h"

namespace texalon::plataforma {

// The registry and the command line speak the machine's ANSI code page.
bool EscritorioRegistro::AbreFichero(const QString& fichero)
{
    return AbrePdfPorRegistro(api_, arrancador_, fichero.toLocal8Bit().toStdString());
}

bool EscritorioRegistro::AbreDireccion(const QString& direccion)
{
    return AbreWebPorRegistro(api_, arrancador_, direccion.toLocal8Bit().toStdString());
}

}  // namespace texalon::plataforma
