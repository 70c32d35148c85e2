#include "files/ReglasCoeficientes.h"

#include "files/Limites.h"

namespace texalon {

namespace {

ReglaCampo Coeficiente(const char* control, CampoEstado campo, double inicial, const char* vacio,
                       const char* noNumero, const char* menorQueUno)
{
    const Limite minimo{limites::kCoeficienteMinimo, menorQueUno};
    return {control, campo, "0.00", inicial, vacio, noNumero, std::nullopt, minimo, std::nullopt, {}};
}

}  // namespace

// On purpose: the messages are worded as the users have always read them, "de ser un número"
// and the steel's "menor de 1" included.
const std::vector<ReglaCampo>& ReglasCoeficientes()
{
    static const std::vector<ReglaCampo> reglas = {
        Coeficiente("TX_GC", &General::GC, defecto::GC, "Debe darse el coeficiente de seguridad del hormigón.",
                    "El coeficiente de seguridad del hormigón de ser un número.",
                    "El coeficiente de seguridad del hormigón no puede ser menor que 1."),
        Coeficiente("TX_GS", &General::GS, defecto::GS, "Debe darse el coeficiente de seguridad del acero.",
                    "El coeficiente de seguridad del acero de ser un número.",
                    "El coeficiente de seguridad del acero no puede ser menor de 1."),
        Coeficiente("TX_GR", &General::GR, defecto::GR, "Debe darse el coeficiente de seguridad del refuerzo TEXALON®.",
                    "El coeficiente de seguridad del refuerzo TEXALON® de ser un número.",
                    "El coeficiente de seguridad del refuerzo TEXALON® no puede ser menor que 1."),
    };
    return reglas;
}

}  // namespace texalon
