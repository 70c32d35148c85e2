#include "reports/qt/Dialogo.h"
#include "diagrams/qt/Lienzo.h"
#include "screens/Pantalla.h"
