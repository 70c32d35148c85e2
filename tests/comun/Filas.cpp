#include "Filas.h"

#include <QTest>

namespace texalon::prueba {

void DosFilas(const char* columna, Fila primera, Fila segunda)
{
    QTest::addColumn<bool>(columna);
    for (const Fila& fila : {primera, segunda})
        QTest::newRow(fila.nombre) << fila.valor;
}

}  // namespace texalon::prueba
