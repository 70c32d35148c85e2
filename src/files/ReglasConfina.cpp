#include "files/ReglasConfina.h"

#include "engine/Calculos.h"
#include "files/Limites.h"

#include <cmath>

namespace texalon {

namespace {

constexpr char kMensajeLadoMenor[] = "El lado menor debe ser un número más pequeño que el lado mayor.";
constexpr char kMensajeRelacion[] = "La relación entre lados del elemento a confinar debe ser menor de 1,5.";

// On purpose: the short side above the long one is refused as the short side is typed, but a
// long side typed below the short one passes its own field, and Calculate goes ahead with the
// two.
PruebaPropia SoloAlAceptar(PruebaPropia prueba)
{
    prueba.soloAlAceptar = true;
    return prueba;
}

std::vector<ReglaCampo> Construye()
{
    return {
        {"TX_DIAM",
         &General::DIAM,
         "0.000",
         0.5,
         "Debe darse el diámetro o lado del elemento a confinar.",
         "El diámetro o lado debe ser un número.",
         std::nullopt,
         Limite{limites::kLongitudMinima, "El diámetro o lado debe ser mayor que cero."},
         std::nullopt,
         // Only a rectangle has a ratio of sides; no test compares the side with LADOMENOR.
         {Dura(
             [](double v, const General& g) {
                 return FormaDe(g) == FormaPilar::Rectangular &&
                        RelacionLados(v, g.LADOMENOR) >= limites::kRelacionLadosMaxima;
             },
             kMensajeRelacion)}},
        {"TX_LADOMENOR",
         &General::LADOMENOR,
         "0.000",
         0.4,
         "Debe darse el lado menor del elemento a confinar.",
         "El lado menor debe ser un número.",
         std::nullopt,
         Limite{limites::kLongitudMinima, "El lado menor debe ser mayor que cero."},
         std::nullopt,
         {SoloAlAceptar(Dura([](double v, const General& g) { return v > g.DIAM; }, kMensajeLadoMenor)),
          Dura([](double v, const General& g) { return RelacionLados(g.DIAM, v) >= limites::kRelacionLadosMaxima; },
               kMensajeRelacion)}},
        // On purpose: exactly 1 passes, though the message asks for more than 1.
        {"TX_INCR",
         &General::INCR,
         "0.00",
         1.0,
         "Debe darse el incremento de resistencia necesario.",
         "El incremento de resistencia necesario debe ser un número.",
         std::nullopt,
         Limite{limites::kIncrMinimo, "El incremento de resistencia necesario debe ser mayor que 1."},
         std::nullopt,
         {}},
        {"TX_NCP",
         &General::NCP,
         "0.00",
         0.0,
         "Debe darse el axil que actúa en el momento de colocar el refuerzo.",
         "El axil que actúa en el momento de colocar el refuerzo debe ser un número.",
         std::nullopt,
         std::nullopt,
         std::nullopt,
         {}},
        ReglaFck(),
    };
}

}  // namespace

const std::vector<ReglaCampo>& ReglasConfina()
{
    static const std::vector<ReglaCampo> reglas = Construye();
    return reglas;
}

const std::vector<std::string>& FilasSeccion()
{
    static const std::vector<std::string> filas = {"CIRCULAR", "CUADRADA", "RECTANGULAR"};
    return filas;
}

bool CampoConfinaEnPantalla(const ReglaCampo& regla, const General& g)
{
    return regla.campo != &General::LADOMENOR || FormaDe(g) == FormaPilar::Rectangular;
}

double RelacionLados(double mayor, double menor)
{
    constexpr double kEscala = 1e9;
    return std::round(mayor / menor * kEscala) / kEscala;
}

std::optional<double> CoeficienteFormaDeFila(int fila, const General& g)
{
    if (fila < 0 || fila >= static_cast<int>(FilasSeccion().size())) return std::nullopt;
    return CoeficienteForma(FormaDeFila(fila), g.DIAM, g.LADOMENOR);
}

CambioDeForma CambiaSeccion(General& g, int fila)
{
    g.SECCION = NumeroDe(FormaDeFila(fila));
    if (const auto alfan = CoeficienteFormaDeFila(fila, g)) g.ALFAN = *alfan;
    CambioDeForma cambio;
    if (FormaDeFila(fila) == FormaPilar::Rectangular) {
        cambio.ladoMenorActivo = true;
        if (g.DIAM < g.LADOMENOR) cambio.mensaje = kMensajeLadoMenor;
        // Exactly 1.5 passes here, where the fields refuse it.
        if (RelacionLados(g.DIAM, g.LADOMENOR) > limites::kRelacionLadosMaxima) cambio.mensaje = kMensajeRelacion;
    }
    g.F_MODIFICADO = true;
    g.F_CALCULADO = false;
    return cambio;
}

}  // namespace texalon
