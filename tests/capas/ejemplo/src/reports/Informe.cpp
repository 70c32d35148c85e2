// The plain reports: over the diagrams, without Qt.
#include "reports/Informe.h"
#include "shell/Principal.h"
#include "screens/Pantalla.h"
#include "diagrams/qt/Lienzo.h"
#include "reports/qt/Dialogo.h"
#include "engine/NoExiste.h"
#include <engine/Calculos.h>
#include "platform/Plataforma.h"
