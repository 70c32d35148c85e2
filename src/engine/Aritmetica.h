// Arithmetic faults of a calculation as run-time errors.
//
// A division by zero or an overflow inside a calculation is a run-time error of the program, as
// it always was: error 11 for a division by zero, error 6 for an overflow or an undefined
// result (0 / 0, the root of a negative number). The hardware records such faults in its
// floating-point status flags without stopping; the calculation runs with the flags cleared,
// and a fault that it raised is thrown afterwards as the error, before anybody reads results.
#pragma once

#include "state/ErrorEjecucion.h"

#include <cfenv>

namespace texalon {

template <typename Calculo>
auto ConAritmeticaVigilada(Calculo calculo)
{
    std::feclearexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
    auto resultado = calculo();
    if (std::fetestexcept(FE_DIVBYZERO)) throw ErrorEjecucion(ErrorEjecucion::kDivisionPorCero);
    if (std::fetestexcept(FE_OVERFLOW | FE_INVALID)) throw ErrorEjecucion(ErrorEjecucion::kDesbordamiento);
    return resultado;
}

}  // namespace texalon
