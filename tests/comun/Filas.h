// Data rows that several widget tests share.
#pragma once

#include <QTest>
#include <array>
#include <cstddef>

namespace texalon::prueba {

// The columns of a table, their types in the order of their names:
// Columnas<QString, double>({"control", "reinicio"}).
template <class... Tipos>
void Columnas(const std::array<const char*, sizeof...(Tipos)>& nombres)
{
    std::size_t columna = 0;
    (QTest::addColumn<Tipos>(nombres[columna++]), ...);
}

// A row of a bool column: its name and its value.
struct Fila {
    const char* nombre;
    bool valor;
};

// A bool column `columna` of two rows, in this order: the two ways of doing a thing, as
// DosFilas("porRaton", {"raton", true}, {"teclado", false}).
void DosFilas(const char* columna, Fila primera, Fila segunda);

}  // namespace texalon::prueba
