// A picture drawn with Qt's painting only, no widget.
#pragma once
#include <QPainterPath>
#include "diagrams/Lista.h"
