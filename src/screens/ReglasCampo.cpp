#include "screens/ReglasCampo.h"

#include "state/Decimales.h"
#include "state/Formato.h"

#include <cmath>

namespace texalon {

namespace {

ResultadoCampo Rechazo(General& g, CampoEstado campo, double reinicio, std::string mensaje)
{
    // The control keeps its wrong text; the state holds the reset until the field is mended.
    g.*campo = reinicio;
    return {Desenlace::Rechazado, std::move(mensaje), {}, {}};
}

// Every change of a field makes the project on disk and the results on screen stale.
void MarcaCambio(General& g)
{
    g.F_MODIFICADO = true;
    g.F_CALCULADO = false;
}

}  // namespace

ResultadoCampo CompruebaCampo(const ReglaCampo& regla, std::string_view texto, General& g, char separador)
{
    // A text of blanks is not empty: it fails the numeric test.
    if (texto.empty()) return Rechazo(g, regla.campo, regla.reinicio, regla.mensajeVacio);
    if (!EsNumerico(texto)) return Rechazo(g, regla.campo, regla.reinicio, regla.mensajeNoNumero);

    // The sign is dropped here and never reported.
    const double valor = std::fabs(Decimales(Recortado(texto)));
    if (regla.maximo && valor > regla.maximo->valor)
        return Rechazo(g, regla.campo, regla.reinicio, regla.maximo->mensaje);
    if (regla.minimo && valor < regla.minimo->valor)
        return Rechazo(g, regla.campoReinicioMinimo.value_or(regla.campo), regla.reinicio, regla.minimo->mensaje);

    const std::string textoNuevo = Formato(valor, regla.formato, separador);
    for (const PruebaPropia& prueba : regla.propias) {
        if (!prueba.falla(valor, g)) continue;
        if (!prueba.companeroBlando.empty()) {
            // The partner may be the one at fault: the value stays, the user goes there.
            g.*regla.campo = valor;
            MarcaCambio(g);
            return {Desenlace::Blando, prueba.mensaje, textoNuevo, prueba.companeroBlando};
        }
        const double reinicio = prueba.valorReinicio ? prueba.valorReinicio(g) : regla.reinicio;
        return Rechazo(g, prueba.campoReinicio.value_or(regla.campo), reinicio, prueba.mensaje);
    }

    g.*regla.campo = valor;
    MarcaCambio(g);
    return {Desenlace::Aceptado, {}, textoNuevo, {}};
}

}  // namespace texalon
