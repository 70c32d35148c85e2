// A test double builds on the Qt implementation.
#pragma once
#include "platform/qt/Ventana.h"
