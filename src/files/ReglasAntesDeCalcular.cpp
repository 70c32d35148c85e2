#include "files/ReglasAntesDeCalcular.h"

#include <cmath>

namespace texalon {

std::optional<CampoRechazado> CampoQueRechaza(const std::vector<ReglaCampo>& reglas, const General& g,
                                              const std::function<bool(const ReglaCampo&)>& enPantalla)
{
    for (const ReglaCampo& regla : reglas) {
        if (enPantalla && !enPantalla(regla)) continue;
        // The field takes the value without its sign, as it does from the keyboard.
        const double valor = std::fabs(g.*regla.campo);
        if (regla.maximo && valor > regla.maximo->valor) return CampoRechazado{regla.control, regla.maximo->mensaje};
        if (regla.minimo && valor < regla.minimo->valor) return CampoRechazado{regla.control, regla.minimo->mensaje};
        for (const PruebaPropia& prueba : regla.propias) {
            if (prueba.companeroBlando.empty() && prueba.falla(valor, g))
                return CampoRechazado{regla.control, prueba.mensaje};
        }
    }
    return std::nullopt;
}

}  // namespace texalon
