#include "screens/Pantalla.h"
