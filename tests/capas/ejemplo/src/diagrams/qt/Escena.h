// A scene of Qt's widgets.
#pragma once
#include <QGraphicsScene>
#include "diagrams/Lista.h"
