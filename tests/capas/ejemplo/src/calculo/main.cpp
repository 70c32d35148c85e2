// The batch command's program starts QApplication by a kept exception.
#include "calculo/Calculo.h"
#include <QApplication>
#include <QString>
