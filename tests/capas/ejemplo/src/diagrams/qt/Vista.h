#pragma once
#include "diagrams/qt/Escena.h"
#include <QGraphicsView>
