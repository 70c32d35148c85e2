// Files: plain C++ over the engine and the state.
#include "files/Ficheros.h"
#include "engine/Calculos.h"
#include "reports/qt/Dialogo.h"
#include "platform/Impresora.h"
#include "Ficheros.h"
#include "./Ficheros.h"
