#pragma once
#include "diagrams/Lista.h"
#include "platform/Impresora.h"
