#pragma once
#include <QGraphicsScene>
#include "diagrams/Lista.h"
