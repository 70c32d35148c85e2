#include "engine/Calcular.h"

#include "engine/Aritmetica.h"
#include "engine/Calculos.h"
#include "state/Catalogo.h"

namespace texalon {

namespace {

// The result arrays of one kind of calculation, allocated anew and cleared.
void Asigna(General& g, std::initializer_list<Arreglo<double>*> arreglos)
{
    for (Arreglo<double>* arreglo : arreglos)
        arreglo->Redimensiona(g.NTIPOS, g.MAXCAPAS);
}

// The largest value of a result array; the mark -999.0 never wins over the start at 0.
double Maximo(const General& g, const Arreglo<double>& valores)
{
    double maximo = 0.0;
    for (int t = 1; t <= g.NTIPOS; ++t)
        for (int n = 1; n <= g.MAXCAPAS; ++n)
            if (valores(t, n) > maximo) maximo = valores(t, n);
    return maximo;
}

ResultadoCalculo Flexion(General& g, SeccionFlexion seccion, const LeeCampos& leeCampos);
ResultadoCalculo Confinamiento(General& g, FormaPilar forma, const LeeCampos& leeCampos);

}  // namespace

std::string_view TextoVeredicto(Veredicto veredicto)
{
    switch (veredicto) {
    case Veredicto::NoEsNecesario: return " NO ES NECESARIO REFORZAR LA SECCION ";
    case Veredicto::NoSePuede: return " NO SE PUEDE REFORZAR LA SECCION ";
    case Veredicto::Oculto: break;
    }
    return "";
}

Veredicto VeredictoFlexion(double MD, double MUSR, double MUMAX)
{
    // On purpose: the first test wins, so an MD below MUSR is green even if it also lies above
    // MUMAX.
    if (MD < MUSR) return Veredicto::NoEsNecesario;
    if (MD > MUMAX) return Veredicto::NoSePuede;
    return Veredicto::Oculto;
}

Veredicto VeredictoConfina(double INCR, double RESUMAX)
{
    return INCR <= RESUMAX ? Veredicto::Oculto : Veredicto::NoSePuede;
}

ResultadoCalculo CalculaFlexion(General& g, SeccionFlexion seccion, const LeeCampos& leeCampos)
{
    return ConAritmeticaVigilada([&] { return Flexion(g, seccion, leeCampos); });
}

ResultadoCalculo CalculaConfinamiento(General& g, FormaPilar forma, const LeeCampos& leeCampos)
{
    return ConAritmeticaVigilada([&] { return Confinamiento(g, forma, leeCampos); });
}

namespace {

ResultadoCalculo Flexion(General& g, SeccionFlexion seccion, const LeeCampos& leeCampos)
{
    Asigna(g, {&g.MU, &g.FN, &g.MRB, &g.XRB, &g.MLIMSR, &g.MLIMCR, &g.XLIM, &g.EPSC, &g.EPSSI, &g.EPSSS, &g.EPSR});
    g.PIVOTE.Redimensiona(g.NTIPOS, g.MAXCAPAS);
    g.F_CALCULANDO = true;
    if (leeCampos) leeCampos(g);

    ResultadoCalculo resultado;
    Predeformacion(g, seccion);
    // Over the limit the calculation stops; F_CALCULANDO stays True so that the grid's
    // selection handler stays idle over the cleared arrays.
    if (g.EPS0 > kPredeformacionMaxima) {
        resultado.predeformacionExcesiva = true;
        return resultado;
    }

    for (Entero t = 1; t <= g.NTIPOS; ++t)
        RoturaDeSeccion(g, seccion, g.ANCHO, g.CANTO, g.RECUB, g.ASI, g.ASS, g.ANCHOR, g.FCK, g.FYK, g.EPS0, t);
    MomentoSinRefuerzoDeSeccion(g, seccion, g.ANCHO, g.CANTO, g.RECUB, g.ASI, g.ASS, g.FCK, g.FYK);

    g.MUMAX = Maximo(g, g.MU);
    resultado.veredicto = VeredictoFlexion(g.MD, g.MUSR, g.MUMAX);
    g.F_CALCULADO = true;
    return resultado;
}

ResultadoCalculo Confinamiento(General& g, FormaPilar forma, const LeeCampos& leeCampos)
{
    Asigna(g, {&g.WR, &g.WWD, &g.EPSRC, &g.SIGMAR, &g.TENSCONF, &g.RESU});
    g.WC.Redimensiona(g.NTIPOS);
    if (leeCampos) leeCampos(g);

    ResultadoCalculo resultado;
    PredeformacionConfina(g);
    if (g.EPS0 > kPredeformacionMaxima) {
        resultado.predeformacionExcesiva = true;
        return resultado;
    }

    // The three types of the catalogue, always.
    for (Entero t = 1; t <= kNumeroTipos; ++t)
        CalculoConfina(g, forma, g.DIAM, g.LADOMENOR, g.FCK, t);

    g.RESUMAX = Maximo(g, g.RESU);
    resultado.veredicto = VeredictoConfina(g.INCR, g.RESUMAX);
    g.F_CALCULADO = true;
    return resultado;
}

}  // namespace

}  // namespace texalon
