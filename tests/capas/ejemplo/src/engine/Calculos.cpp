#include "engine/Calculos.h"
#include "state/Estado.h"
#include "platform/qt/Ventana.h"
#include <QString>
