// The bounds of the inputs, written once: the screens' entry rules, the project files' checks
// and the batch command's table of members all read them. The messages that tell a bound keep
// its figure in their own words.
#pragma once

namespace texalon::limites {

// The concrete's characteristic strength, N/mm².
constexpr double kFckMinimo = 15.0;
constexpr double kFckMaximo = 50.0;
// The steel's characteristic strength, N/mm².
constexpr double kFykMinimo = 300.0;
constexpr double kFykMaximo = 600.0;
// The strength increase that a confinement is asked for: at least none.
constexpr double kIncrMinimo = 1.0;
// The safety coefficients of concrete, steel and sheet: below 1 the design strengths would be
// larger than the characteristic ones.
constexpr double kCoeficienteMinimo = 1.0;
// Every length, steel area and sheet width: 0.01 whatever the unit. On purpose: the messages
// say "mayor que cero".
constexpr double kLongitudMinima = 0.01;
// The greatest ratio of the sides of a rectangular column. On purpose: the field tests refuse
// it and above, the change of section refuses only above it.
constexpr double kRelacionLadosMaxima = 1.5;

}  // namespace texalon::limites
