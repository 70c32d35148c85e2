#include "files/ReglasCampo.h"

#include "files/Limites.h"
#include "state/Decimales.h"
#include "state/Formato.h"

#include <cmath>
#include <map>

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

PruebaPropia Blanda(std::function<bool(double, const General&)> falla, std::string mensaje, std::string companero)
{
    return {std::move(falla), std::move(mensaje), std::move(companero), std::nullopt, nullptr, false};
}

PruebaPropia Dura(std::function<bool(double, const General&)> falla, std::string mensaje)
{
    return {std::move(falla), std::move(mensaje), {}, std::nullopt, nullptr, false};
}

ReglaCampo ReglaFck()
{
    return {"CO_FCK",
            &General::FCK,
            "0",
            25.0,
            "Debe darse la resistencia del hormigón de la sección.",
            "La resistencia del hormigón de la sección debe ser un número.",
            Limite{limites::kFckMaximo, "La resistencia del hormigón de la sección no puede ser mayor de 50 N/mm²."},
            Limite{limites::kFckMinimo, "La resistencia del hormigón de la sección no puede ser menor de 15 N/mm²."},
            std::nullopt,
            {}};
}

const std::vector<double>& FilasLista(const std::string& control)
{
    static const std::map<std::string, std::vector<double>> filas = {
        {"CO_FCK", {25.0, 30.0, 35.0, 40.0, 45.0, 50.0}},
        {"CO_FYK", {400.0, 500.0}},
        {"CO_ANCHOR", {0.125, 0.165, 0.25, 0.33, 0.5}},
    };
    static const std::vector<double> ninguna;
    const auto it = filas.find(control);
    return it == filas.end() ? ninguna : it->second;
}

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
