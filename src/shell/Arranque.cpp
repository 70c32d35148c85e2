#include "shell/Arranque.h"

#include "shell/MdiPrincipal.h"

namespace texalon {

MdiPrincipal* Arranca(const QStringList& argumentos)
{
    auto* principal = new MdiPrincipal;
    principal->setAttribute(Qt::WA_DeleteOnClose);
    principal->show();
    if (principal->Cargada() && argumentos.size() > 1) principal->AbrirFichero(argumentos.at(1));
    return principal;
}

}  // namespace texalon
