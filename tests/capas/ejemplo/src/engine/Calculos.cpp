// The engine: plain C++ over the state only.
#include "engine/Calculos.h"
#include "state/Estado.h"
#include "files/Ficheros.h"
#include "calculo/Calculo.h"
#include "platform/qt/Ventana.h"
#include <QString>
#include <cmath>
