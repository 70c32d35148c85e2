// Pictures of the program, drawn as SVG and kept in the resources.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace texalon {

// The picture at the given size in device-independent pixels, sharp on any screen.
QPixmap Imagen(const QString& recurso, QSize tamano);

}  // namespace texalon
