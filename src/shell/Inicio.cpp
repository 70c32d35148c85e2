// Entry of the program: the application, the platform services and the main window.
#include "platform/qt/PlataformaQt.h"
#include "shell/Aplicacion.h"
#include "shell/MdiPrincipal.h"

namespace texalon {

// Creates the main window and shows it without waiting; its load does the rest. A project
// named on the command line (a double click in the file manager) opens at once, as Open would.
void Main()
{
    auto* principal = new MdiPrincipal;
    principal->setAttribute(Qt::WA_DeleteOnClose);
    principal->show();
    const QStringList argumentos = QCoreApplication::arguments();
    if (principal->Cargada() && argumentos.size() > 1) principal->AbrirFichero(argumentos.at(1));
}

}  // namespace texalon

int main(int argc, char** argv)
{
    texalon::AplicacionTexalon aplicacion(argc, argv);
    texalon::plataforma::InstalaQt();
    texalon::PreparaAplicacion(aplicacion);
    texalon::Main();
    return texalon::AplicacionTexalon::exec();
}
