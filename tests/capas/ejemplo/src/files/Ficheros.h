// Files may include the engine beside them.
#pragma once
#include "engine/Calculos.h"
