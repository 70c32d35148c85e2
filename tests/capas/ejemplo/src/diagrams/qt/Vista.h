// A view that brings the scene's widgets one header further down.
#pragma once
#include "diagrams/qt/Escena.h"
#include <QPainter>
