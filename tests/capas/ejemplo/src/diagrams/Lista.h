#pragma once
#include "engine/Calculos.h"
#include "platform/Impresora.h"
