#include "shell/Principal.h"
#include "screens/Pantalla.h"
#include "platform/qt/Ventana.h"
#include "nueva/Nuevo.h"
