#include "diagrams/Lista.h"
