#include "calculo/Calculo.h"
#include "diagrams/qt/Escena.h"
#include "diagrams/qt/Vista.h"
#include <QApplication>
#include <QLabel>
