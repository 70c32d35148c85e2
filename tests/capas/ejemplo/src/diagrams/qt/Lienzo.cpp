#include "diagrams/qt/Lienzo.h"
#include "platform/qt/Ventana.h"
#include "reports/Informe.h"
#include "../../screens/Pantalla.h"
