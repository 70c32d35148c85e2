#include "screens/Imagenes.h"

#include <QGuiApplication>

namespace texalon {

QPixmap Imagen(const QString& recurso, QSize tamano)
{
    const qreal escala = qGuiApp == nullptr ? 1.0 : qGuiApp->devicePixelRatio();
    QPixmap imagen = QIcon(recurso).pixmap(tamano, escala);
    return imagen;
}

}  // namespace texalon
