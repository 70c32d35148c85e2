#include "files/ReglasFlexion.h"

#include "files/Limites.h"

namespace texalon {

namespace {

ReglaCampo Ancho(bool seccionT)
{
    ReglaCampo r{"TX_ANCHO",
                 &General::ANCHO,
                 "0.000",
                 0.4,
                 "Debe darse el ancho de la sección.",
                 "El ancho de la sección debe ser un número.",
                 std::nullopt,
                 Limite{limites::kLongitudMinima, "El ancho de la sección debe ser un número mayor que cero."},
                 std::nullopt,
                 {}};
    // On the rectangular screen only, a width below the sheet's sends the user to the sheet.
    if (!seccionT)
        r.propias.push_back(Blanda([](double v, const General& g) { return v < g.ANCHOR; },
                                   "El ancho del refuerzo no puede ser mayor que el ancho de la sección.",
                                   "CO_ANCHOR"));
    return r;
}

ReglaCampo AnchoAlma()
{
    // On purpose: a width below the bound resets the flange width, not the web's.
    return {"TX_ANCHOALMA",
            &General::ANCHOALMA,
            "0.000",
            0.2,
            "Debe darse el ancho del alma de la sección.",
            "El ancho del alma de la sección debe ser un número.",
            std::nullopt,
            Limite{limites::kLongitudMinima, "El ancho del alma de la sección debe ser un número mayor que cero."},
            &General::ANCHO,
            {Blanda([](double v, const General& g) { return v < g.ANCHOR; },
                    "El ancho del refuerzo no puede ser mayor que el ancho del alma de la sección.", "CO_ANCHOR")}};
}

ReglaCampo Canto(bool seccionT)
{
    ReglaCampo r{"TX_CANTO",
                 &General::CANTO,
                 "0.000",
                 0.6,
                 "Debe darse el canto de la sección.",
                 "El canto de la sección debe ser un número.",
                 std::nullopt,
                 Limite{limites::kLongitudMinima, "El canto de la sección debe ser un número mayor que cero."},
                 std::nullopt,
                 {}};
    if (seccionT)
        r.propias.push_back(Blanda([](double v, const General& g) { return v < g.CANTOALA; },
                                   "El canto del ala no puede ser mayor que el canto de la sección.", "TX_CANTOALA"));
    return r;
}

ReglaCampo CantoAla()
{
    // On purpose: a depth below the bound resets the total depth, not the flange's.
    return {"TX_CANTOALA",
            &General::CANTOALA,
            "0.000",
            0.2,
            "Debe darse el canto del ala de la sección.",
            "El canto del ala de la sección debe ser un número.",
            std::nullopt,
            Limite{limites::kLongitudMinima, "El canto del ala de la sección debe ser un número mayor que cero."},
            &General::CANTO,
            {Dura([](double v, const General& g) { return v > g.CANTO; },
                  "El canto del ala no puede ser mayor que el canto de la sección.")}};
}

// The fields that both screens share, to the letter.
std::vector<ReglaCampo> Comunes()
{
    PruebaPropia anchoRefuerzo =
        Dura([](double v, const General& g) { return v > g.ANCHO; },
             "El ancho del refuerzo a disponer en la sección debe ser menor que el ancho de la sección.");
    // A sheet wider than the section falls back to the section's width.
    anchoRefuerzo.valorReinicio = [](const General& g) { return g.ANCHO; };

    return {
        {"TX_RECUB",
         &General::RECUB,
         "0.000",
         0.05,
         "Debe darse el recubrimiento de la sección.",
         "El recubrimiento de la sección debe ser un número.",
         std::nullopt,
         Limite{limites::kLongitudMinima, "El recubrimiento de la sección debe ser mayor que cero."},
         std::nullopt,
         // On purpose: exactly half the depth passes, though the message says "menor".
         {Dura([](double v, const General& g) { return v > g.CANTO / 2.0; },
               "El recubrimiento de la sección debe ser menor que la mitad del canto.")}},
        {"TX_ASI",
         &General::ASI,
         "0.00",
         10.0,
         "Debe darse la armadura inferior de la sección.",
         "La armadura inferior de la sección debe ser un número.",
         std::nullopt,
         Limite{limites::kLongitudMinima, "La armadura inferior de la sección debe ser mayor que cero."},
         std::nullopt,
         {}},
        // On purpose: the reset of the top steel is 10, though its start value is 0.
        {"TX_ASS",
         &General::ASS,
         "0.00",
         10.0,
         "Debe darse la armadura superior de la sección.",
         "La armadura superior de la sección debe ser un número.",
         std::nullopt,
         std::nullopt,
         std::nullopt,
         {}},
        {"TX_MCP",
         &General::MCP,
         "0.00",
         0.0,
         "Debe darse el momento que actúa en la sección cuando se va a colocar el refuerzo.",
         "El momento que actúa en la sección cuando se va a colocar el refuerzo debe ser un número.",
         std::nullopt,
         std::nullopt,
         std::nullopt,
         {}},
        {"TX_MD",
         &General::MD,
         "0.00",
         0.0,
         "Debe darse el momento de cálculo.",
         "El momento de cálculo debe ser un número.",
         std::nullopt,
         std::nullopt,
         std::nullopt,
         {}},
        ReglaFck(),
        {"CO_FYK",
         &General::FYK,
         "0",
         500.0,
         "Debe darse la resistencia del acero de las armaduras de la sección.",
         "La resistencia del acero de las armaduras de la sección debe ser un número.",
         Limite{limites::kFykMaximo, "La resistencia del acero de las armaduras no puede ser mayor de 600 N/mm²."},
         Limite{limites::kFykMinimo, "La resistencia del acero de las armaduras no puede ser menor de 300 N/mm²."},
         std::nullopt,
         {}},
        {"CO_ANCHOR",
         &General::ANCHOR,
         "0.000",
         0.125,
         "Debe darse el ancho del refuerzo a disponer en la sección.",
         "El ancho del refuerzo a disponer en la sección debe ser un número.",
         std::nullopt,
         Limite{limites::kLongitudMinima, "El ancho del refuerzo a disponer en la sección debe ser mayor que cero."},
         std::nullopt,
         {anchoRefuerzo}},
    };
}

std::vector<ReglaCampo> Construye(bool seccionT)
{
    std::vector<ReglaCampo> reglas;
    reglas.push_back(Ancho(seccionT));
    if (seccionT) reglas.push_back(AnchoAlma());
    reglas.push_back(Canto(seccionT));
    if (seccionT) reglas.push_back(CantoAla());
    for (ReglaCampo& r : Comunes())
        reglas.push_back(std::move(r));
    return reglas;
}

}  // namespace

const std::vector<ReglaCampo>& ReglasFlexion(SeccionFlexion seccion)
{
    static const std::vector<ReglaCampo> rectangular = Construye(false);
    static const std::vector<ReglaCampo> t = Construye(true);
    return seccion == SeccionFlexion::T ? t : rectangular;
}

}  // namespace texalon
