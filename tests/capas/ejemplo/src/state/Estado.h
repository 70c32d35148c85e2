// State reaching up into the engine.
#pragma once
#include <string>
#include "state/Otro.h"
#include "engine/Calculos.h"
