// The plain diagrams: below the reports, above the engine, without Qt.
#include "diagrams/Lista.h"
#  include "diagrams/qt/Escena.h"
#include <vector>
#include "reports/Informe.h"
#include "screens/Pantalla.h"
#include "qt/Lienzo.h"
#include "files/Ficheros.h"
