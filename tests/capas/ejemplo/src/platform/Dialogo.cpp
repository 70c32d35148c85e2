#include "screens/Pantalla.h"
#include <QDialog>
