// Every program that links the platform on Windows, the tests among them, draws with the fonts
// that the program carries from the moment its application object exists.
#include "platform/qt/Fuentes.h"

#include <QCoreApplication>
#include <QGuiApplication>

namespace {

void CargaAlArrancar()
{
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        texalon::plataforma::CargaFuentesPropias(texalon::plataforma::CarpetaFuentesPropias());
    }
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(CargaAlArrancar)
