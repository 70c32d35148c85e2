// Arrays of the project state, indexed from 1 in one or two dimensions.
//
// The result arrays run (1..NTIPOS, 1..MAXCAPAS), the catalogue (1..NTIPOS, 1..3) and the
// display list (1..1000, 1..10): the engine, the screens and the reports all count from 1, so
// the array does too, and nobody writes "- 1" when reading a type or a number of layers.
// An array that was never dimensioned has no elements, and reading outside the bounds is the
// run-time error 9, as it would be for any array of the program.
#pragma once

#include "state/ErrorEjecucion.h"

#include <cstddef>
#include <vector>

namespace texalon {

template <typename T>
class Arreglo {
public:
    Arreglo() = default;

    // Allocates the array anew, every element cleared (0, 0.0 or the empty text).
    void Redimensiona(int filas) { Redimensiona(filas, 1, 1); }
    void Redimensiona(int filas, int columnas) { Redimensiona(filas, columnas, 2); }

    // Frees the array, as before the first allocation.
    void Borra()
    {
        elementos_.clear();
        filas_ = 0;
        columnas_ = 0;
        dimensiones_ = 0;
    }

    bool Existe() const { return dimensiones_ != 0; }
    int Filas() const { return filas_; }
    int Columnas() const { return columnas_; }

    T& operator()(int i) { return elementos_[Posicion(i, 1, 1)]; }
    const T& operator()(int i) const { return elementos_[Posicion(i, 1, 1)]; }
    T& operator()(int i, int j) { return elementos_[Posicion(i, j, 2)]; }
    const T& operator()(int i, int j) const { return elementos_[Posicion(i, j, 2)]; }

private:
    void Redimensiona(int filas, int columnas, int dimensiones)
    {
        if (filas < 0 || columnas < 0) throw ErrorEjecucion(ErrorEjecucion::kSubindiceFueraDeIntervalo);
        elementos_.assign(static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas), T{});
        filas_ = filas;
        columnas_ = columnas;
        dimensiones_ = dimensiones;
    }

    std::size_t Posicion(int i, int j, int dimensiones) const
    {
        if (dimensiones != dimensiones_ || i < 1 || i > filas_ || j < 1 || j > columnas_)
            throw ErrorEjecucion(ErrorEjecucion::kSubindiceFueraDeIntervalo);
        return static_cast<std::size_t>(i - 1) * static_cast<std::size_t>(columnas_) + static_cast<std::size_t>(j - 1);
    }

    std::vector<T> elementos_;
    int filas_ = 0;
    int columnas_ = 0;
    int dimensiones_ = 0;
};

}  // namespace texalon
