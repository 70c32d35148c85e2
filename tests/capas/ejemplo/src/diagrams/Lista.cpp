#include "diagrams/Lista.h"
#  include "diagrams/qt/Escena.h"
#include <vector>
