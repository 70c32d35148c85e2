#include "platform/qt/Ventana.h"
#include <QtWidgets/QLabel>
#include "platform/dobles/Doble.h"
