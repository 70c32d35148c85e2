// The batch command's library: a picture drawn with Qt's painting, no widget.
#pragma once
#include "diagrams/qt/Lienzo.h"
#include "state/Otro.h"
