// Entry of the program: the application, the platform services and the main window.
#include "platform/qt/PlataformaQt.h"
#include "shell/Aplicacion.h"
#include "shell/MdiPrincipal.h"

namespace texalon {

// Creates the main window and shows it without waiting; its load does the rest.
void Main()
{
    auto* principal = new MdiPrincipal;
    principal->setAttribute(Qt::WA_DeleteOnClose);
    principal->show();
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
