// The Calculate commands of the flexure and confinement screens, without the screens: the
// screens and the batch command run these same steps, and add reading their fields and
// showing the results.
#pragma once

#include "state/General.h"
#include "state/TiposSeccion.h"

#include <functional>
#include <string_view>

namespace texalon {

// The verdict that the label LB_INFO shows after a Calculate.
enum class Veredicto {
    Oculto,  // the label is hidden
    NoEsNecesario,  // green: the section carries MD by itself
    NoSePuede,  // light red: no sheet reaches the requirement
};

// The text of a verdict as the label shows it, blanks included; "" for a hidden label.
std::string_view TextoVeredicto(Veredicto veredicto);

// The verdict of a flexure Calculate: a decision about MD alone, against what the section
// carries by itself (MUSR) and what the best sheet reaches (MUMAX), the tests in this order.
Veredicto VeredictoFlexion(double MD, double MUSR, double MUMAX);

// The verdict of a confinement Calculate: red when no sheet reaches INCR; there is no green.
Veredicto VeredictoConfina(double INCR, double RESUMAX);

// The message of a Calculate stopped by the initial strain.
inline constexpr std::string_view kMensajePredeformacion =
    "La predeformación de la estructura es superior al 2 por mil.";
// The largest initial strain a Calculate accepts; exactly 0.002 passes.
constexpr double kPredeformacionMaxima = 0.002;

struct ResultadoCalculo {
    // The initial strain was over the limit: the arrays are allocated but empty, and
    // F_CALCULADO and F_CALCULANDO are as the stop left them.
    bool predeformacionExcesiva = false;
    Veredicto veredicto = Veredicto::Oculto;
};

// Reads the fields of a screen into the state; the batch command, whose state comes from a
// file, reads nothing.
using LeeCampos = std::function<void(General&)>;

// CM_CALCULAR of a flexure screen, section kind 1 or 2: allocates the twelve result arrays,
// sets F_CALCULANDO, reads the fields, works out EPS0 and stops over 0.002; else every type,
// MUSR, MUMAX, the verdict and F_CALCULADO. F_CALCULANDO stays True: the screen clears it when
// its table is built.
ResultadoCalculo CalculaFlexion(General& g, SeccionFlexion seccion, const LeeCampos& leeCampos);

// CM_CALCULAR of the confinement screen: allocates the seven result arrays, reads the fields,
// works out EPS0 and stops over 0.002; else every type with the given shape, RESUMAX, the
// verdict and F_CALCULADO.
ResultadoCalculo CalculaConfinamiento(General& g, FormaPilar forma, const LeeCampos& leeCampos);

}  // namespace texalon
