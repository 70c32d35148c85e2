// The main of a widget test program: the program's own application object, prepared as the
// program prepares it, running the test class.
#pragma once

#include "shell/Aplicacion.h"

#include <QTest>

namespace texalon::prueba {

template <class Prueba>
int Ejecuta(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    Prueba prueba;
    return QTest::qExec(&prueba, argc, argv);
}

}  // namespace texalon::prueba
