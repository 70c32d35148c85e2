#include "files/ReglasAntesDeCalcular.h"

#include "engine/Calculos.h"
#include "files/ReglasCoeficientes.h"
#include "files/ReglasConfina.h"
#include "files/ReglasFlexion.h"

#include <cmath>

namespace texalon {

namespace {

enum class Pruebas { AlCalcular, Todas };

std::optional<CampoRechazado> Rechazo(const std::vector<ReglaCampo>& reglas, const General& g,
                                      const std::function<bool(const ReglaCampo&)>& enPantalla, Pruebas pruebas)
{
    for (const ReglaCampo& regla : reglas) {
        if (enPantalla && !enPantalla(regla)) continue;
        // The field takes the value without its sign, as it does from the keyboard.
        const double valor = std::fabs(g.*regla.campo);
        if (regla.maximo && valor > regla.maximo->valor) return CampoRechazado{regla.control, regla.maximo->mensaje, false, regla.campo};
        if (regla.minimo && valor < regla.minimo->valor) return CampoRechazado{regla.control, regla.minimo->mensaje, false, regla.campo};
        for (const PruebaPropia& prueba : regla.propias) {
            const bool cuenta =
                pruebas == Pruebas::Todas || (prueba.companeroBlando.empty() && !prueba.soloAlAceptar);
            if (cuenta && prueba.falla(valor, g)) return CampoRechazado{regla.control, prueba.mensaje, false, regla.campo};
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<CampoRechazado> CampoQueRechaza(const std::vector<ReglaCampo>& reglas, const General& g,
                                              const std::function<bool(const ReglaCampo&)>& enPantalla)
{
    return Rechazo(reglas, g, enPantalla, Pruebas::AlCalcular);
}

std::optional<CampoRechazado> CampoQueRechazaAlEscribir(const std::vector<ReglaCampo>& reglas, const General& g,
                                                         const std::function<bool(const ReglaCampo&)>& enPantalla)
{
    return Rechazo(reglas, g, enPantalla, Pruebas::Todas);
}

namespace {

// The screen's own fields first, as Calculate meets them, then the dialog's.
std::optional<CampoRechazado> ConCoeficientes(std::optional<CampoRechazado> rechazo, const General& g)
{
    if (rechazo) return rechazo;
    rechazo = CampoQueRechaza(ReglasCoeficientes(), g);
    if (rechazo) rechazo->coeficiente = true;
    return rechazo;
}

}  // namespace

std::optional<CampoRechazado> CampoQueRechazaLaFlexion(const General& g, SeccionFlexion seccion)
{
    return ConCoeficientes(CampoQueRechaza(ReglasFlexion(seccion), g), g);
}

std::optional<CampoRechazado> CampoQueRechazaElConfinamiento(const General& g)
{
    return ConCoeficientes(
        CampoQueRechaza(ReglasConfina(), g, [&g](const ReglaCampo& regla) { return CampoConfinaEnPantalla(regla, g); }),
        g);
}

std::optional<CampoRechazado> CampoQueRechazaLaFlexionAlEscribir(const General& g, SeccionFlexion seccion)
{
    return ConCoeficientes(CampoQueRechazaAlEscribir(ReglasFlexion(seccion), g, nullptr), g);
}

std::optional<CampoRechazado> CampoQueRechazaElConfinamientoAlEscribir(const General& g)
{
    return ConCoeficientes(
        CampoQueRechazaAlEscribir(ReglasConfina(), g,
                                  [&g](const ReglaCampo& regla) { return CampoConfinaEnPantalla(regla, g); }),
        g);
}

}  // namespace texalon
