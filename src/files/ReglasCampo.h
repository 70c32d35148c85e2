// The entry pattern of the numeric fields, without the widgets.
//
// Each field has its own handler in the program's eyes: its own messages, bounds and reset
// value, and sometimes a test against another field. Here a field is described as data, in the
// order of its tests, and one procedure runs the pattern on it: the empty test, the numeric
// test, the value taken absolute, the bounds, the field's own tests; then the acceptance, a
// failure with its reset, or a soft failure that keeps the value and sends the user on.
#pragma once

#include "state/General.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace texalon {

using CampoEstado = double General::*;

// A test of the field's value against the state; it fails when `falla` says so.
struct PruebaPropia {
    std::function<bool(double valor, const General& g)> falla;
    std::string mensaje;
    // A soft test keeps the failing value and sends the focus to this control.
    std::string companeroBlando;
    // A hard test may reset another field, or reset to a value taken from the state.
    std::optional<CampoEstado> campoReinicio;
    std::function<double(const General& g)> valorReinicio;
    // A test of the field alone: Calculate goes ahead with values that fail it.
    bool soloAlAceptar = false;
};

struct Limite {
    double valor;
    std::string mensaje;
};

struct ReglaCampo {
    std::string control;  // "TX_RECUB"
    CampoEstado campo;  // &General::RECUB
    std::string formato;  // "0.000"
    double reinicio;  // what the state field receives when a test fails
    std::string mensajeVacio;
    std::string mensajeNoNumero;
    std::optional<Limite> maximo;  // a range's upper bound, tested first
    std::optional<Limite> minimo;  // a value below it fails
    // The reset of the lower bound's failure, where it goes to another field.
    std::optional<CampoEstado> campoReinicioMinimo;
    std::vector<PruebaPropia> propias;
};

enum class Desenlace { Aceptado, Rechazado, Blando };

struct ResultadoCampo {
    Desenlace desenlace = Desenlace::Aceptado;
    std::string mensaje;  // the message to show, "" on acceptance
    std::string textoNuevo;  // the control's new text, when it is rewritten
    std::string companero;  // where a soft failure sends the focus
};

// A test whose failure keeps the value and sends the user to the partner control.
PruebaPropia Blanda(std::function<bool(double, const General&)> falla, std::string mensaje, std::string companero);
// A test whose failure resets the field.
PruebaPropia Dura(std::function<bool(double, const General&)> falla, std::string mensaje);

// CO_FCK, the concrete strength, the same on the flexure and the confinement screens.
ReglaCampo ReglaFck();

// The rows of a list as values, shown in the field's format: rows 0 to 5 of CO_FCK, 0 and 1 of
// CO_FYK, 0 to 4 of CO_ANCHOR. The next row is left for another value.
const std::vector<double>& FilasLista(const std::string& control);

// Runs the pattern on the text of a field: changes the state as the pattern says (the value
// stored, or the reset value on a failure, and the flags on an acceptance or a soft failure)
// and tells the screen what to show. `separador` is the machine's decimal separator.
ResultadoCampo CompruebaCampo(const ReglaCampo& regla, std::string_view texto, General& g, char separador);

}  // namespace texalon
