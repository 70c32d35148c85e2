#pragma once
#include "platform/Impresora.h"
#include <windows.h>
