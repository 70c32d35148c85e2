// Entry of the program: the application, the platform services and the main window.
#include "platform/qt/PlataformaQt.h"
#include "shell/Aplicacion.h"
#include "shell/Arranque.h"

int main(int argc, char** argv)
{
    texalon::AplicacionTexalon aplicacion(argc, argv);
    texalon::plataforma::InstalaQt();
    texalon::PreparaAplicacion(aplicacion);
    texalon::Arranca(QCoreApplication::arguments());
    return texalon::AplicacionTexalon::exec();
}
