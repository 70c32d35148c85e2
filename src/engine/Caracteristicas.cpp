#include "engine/Caracteristicas.h"

#include "engine/Calculos.h"
#include "state/Catalogo.h"
#include "state/Formato.h"

#include <cmath>

namespace texalon {

namespace {

// The screens show strains in thousandths.
std::string Milesimas(double deformacion, char separador) { return Formato(deformacion * 1000.0, "0.00", separador); }

}  // namespace

CeldaResultado CeldaFlexion(const General& g, int tipo, int capas, char separador)
{
    const double mu = g.MU(tipo, capas);
    return {mu == kSinMejora ? std::string("---") : Formato(mu, "0.0", separador), mu >= g.MD};
}

CeldaResultado CeldaConfina(const General& g, int tipo, int capas, char separador)
{
    const double resu = g.RESU(tipo, capas);
    return {Formato(resu, "0.00", separador), resu >= g.INCR};
}

std::string TituloCelda(const General& g, int tipo, int capas)
{
    return "Refuerzo tipo " + g.TIPOS(tipo) + " - Núm. capas: " + std::to_string(capas);
}

ResultadosCeldaFlexion ResultadosFlexion(const General& g, int tipo, int capas, char separador)
{
    ResultadosCeldaFlexion r;
    r.tipo = TituloCelda(g, tipo, capas);
    r.MUSR = Formato(g.MUSR, "0.0", separador);
    r.EPS0 = Milesimas(g.EPS0, separador);
    if (g.MU(tipo, capas) == kSinMejora) {
        for (std::string* campo : {&r.MRB, &r.MLIMCR, &r.PIVOTE, &r.FN, &r.EPSC, &r.EPSSI, &r.EPSSS, &r.EPSR, &r.MU})
            *campo = "---";
        return r;
    }
    r.MRB = Formato(g.MRB(tipo, capas), "0.0", separador);
    r.MLIMCR = Formato(g.MLIMCR(tipo, capas), "0.0", separador);
    r.PIVOTE = g.PIVOTE(tipo, capas);
    r.FN = Formato(g.FN(tipo, capas), "0.000", separador);
    r.EPSC = Milesimas(g.EPSC(tipo, capas), separador);
    r.EPSSI = Milesimas(g.EPSSI(tipo, capas), separador);
    // The top steel is shown without its sign, in tension or in compression.
    r.EPSSS = Milesimas(std::fabs(g.EPSSS(tipo, capas)), separador);
    r.EPSR = Milesimas(g.EPSR(tipo, capas), separador);
    r.MU = Formato(g.MU(tipo, capas), "0.0", separador);
    return r;
}

ResultadosCeldaConfina ResultadosConfina(const General& g, int tipo, int capas, char separador)
{
    ResultadosCeldaConfina r;
    r.tipo = TituloCelda(g, tipo, capas);
    r.WC = Formato(g.WC(tipo), "0.000000", separador);
    r.WR = Formato(g.WR(tipo, capas), "0.000000", separador);
    r.WWD = Formato(g.WWD(tipo, capas), "0.000000", separador);
    r.EPS0 = Milesimas(g.EPS0, separador);
    r.EPSR = Milesimas(g.EPSRC(tipo, capas), separador);
    r.SIGMAR = Formato(g.SIGMAR(tipo, capas), "0.0", separador);
    r.TENSCONF = Formato(g.TENSCONF(tipo, capas), "0.000", separador);
    r.RESU = Formato(g.RESU(tipo, capas), "0.00", separador);
    return r;
}

void CargaCaracteristicas(General& g, int tipo)
{
    CopiaTipo(g, tipo);
    DeformacionCalculo(g);
}

TextosCaracteristicas Caracteristicas(const General& g, char separador)
{
    TextosCaracteristicas t;
    t.ESPESOR = Formato(g.ESPESOR, "0.000", separador);
    t.E = Formato(g.E, "0", separador);
    t.EPSU = Milesimas(g.EPSU, separador);
    t.cabecera = {"Capas", "Km", "Def. cálculo", "FR (N/mm²)"};
    for (int n = 1; n <= g.MAXCAPAS; ++n)
        t.filas.push_back({std::to_string(n), Formato(g.KM(n), "0.000", separador), Milesimas(g.EPSD(n), separador),
                           Formato(g.E * g.EPSD(n), "0.0", separador)});
    return t;
}

}  // namespace texalon
