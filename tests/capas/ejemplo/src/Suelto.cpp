// A source outside any folder of src/.
#include "state/Otro.h"
