// The platform: only the state below it, and Qt.
#include "platform/Plataforma.h"
#include <QDialog>
#include "screens/Pantalla.h"
#include "shell/Principal.h"
#include "diagrams/Lista.h"
#include "reports/Informe.h"
#include "platform/qt/Ventana.h"
#include "engine/Calculos.h"
