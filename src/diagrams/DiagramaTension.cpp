// The stress-strain chart of the sheet: the straight lines of every sheet type
// up to rupture, the type in hand drawn in full with its design points for 1 to MAXCAPAS layers.
// Strains are plain ratios in the list and per mil on the labels; stresses are in N/mm².
#include "diagrams/Grafico.h"

#include "diagrams/Lista.h"
#include "state/Catalogo.h"
#include "state/Formato.h"

#include <cmath>

namespace texalon {

namespace {

// The stress of a design point above which its layer count is written, N/mm².
constexpr double kAlturaNumeroCapas = 125.0;
// The strain tick labels stand this far below the axis, N/mm².
constexpr double kBajoEjeDeformacion = -100.0;

double Epsu(const General& g, int tipo) { return g.CATALOGO(tipo, kEpsu); }
double Modulo(const General& g, int tipo) { return g.CATALOGO(tipo, kModulo); }

// Rounding to the nearest integer goes to the even neighbour at exactly .5.
double Redondea(double valor) { return std::nearbyint(valor); }

// The strain extent: the largest ultimate strain, taken up to the next even per mil unless it
// already rounds to an even one, in which case it stays as it is, a little off the tidy value.
double ExtensionDeformacion(const General& g)
{
    double maxE = 0.0;
    for (int i = 1; i <= g.NTIPOS; ++i)
        if (Epsu(g, i) > maxE) maxE = Epsu(g, i);
    if (std::fmod(Redondea(maxE * 1000.0), 2.0) == 0.0) return maxE;
    return (std::floor(maxE * 1000.0 / 2.0) * 2.0 + 2.0) / 1000.0;
}

// The stress extent: the largest rupture stress, taken up to the next multiple of 500 N/mm²
// unless it already rounds to one, in which case it stays as it is.
double ExtensionTension(const General& g)
{
    double maxS = 0.0;
    for (int i = 1; i <= g.NTIPOS; ++i)
        if (Epsu(g, i) * Modulo(g, i) > maxS) maxS = Epsu(g, i) * Modulo(g, i);
    if (std::fmod(Redondea(maxS), 500.0) == 0.0) return maxS;
    return std::floor(maxS / 500.0) * 500.0 + 500.0;
}

// The line of type i up to rupture: in full and named for the type in hand, dotted and thin
// for the others.
void LineaDelTipo(const General& g, GeneralDibujo& d, int i, Entero tipo, double EX, double SY)
{
    const double eu = Epsu(g, i);
    const double su = eu * Modulo(g, i);
    if (i == tipo) {
        Curva(d, 0.0, 0.0, eu, su, g.COLORES(i));
        AnadeTexto(d, Clase::Texto, EX / 20.0 + eu, su + SY / 20.0, kNegro, 8, false, g.TIPOS(i));
    } else {
        AnadeLinea(d, 0.0, 0.0, eu, su, g.COLORES(i), kPunteada, 1);
    }
}

// The dotted projections onto both axes of the design points of one layer and of MAXCAPAS
// layers of the type in hand.
void ProyeccionesDeCalculo(const General& g, GeneralDibujo& d, Entero tipo)
{
    const double Et = Modulo(g, tipo);
    for (int n : {1, static_cast<int>(g.MAXCAPAS)}) {
        const double e = g.EPSD(n);
        LineaRejilla(d, 0.0, e * Et, e, e * Et);
        LineaRejilla(d, e, 0.0, e, e * Et);
    }
}

// The design point of every layer count of type i, with the count written above it.
void PuntosDeCalculo(const General& g, GeneralDibujo& d, int i, char separador)
{
    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        const double e = g.EPSD(n);
        const double s = e * Modulo(g, i);
        AnadePunto(d, e, s, g.COLORES(i));
        AnadeTexto(d, Clase::Texto, e, s + kAlturaNumeroCapas, g.COLORES(i), 8, false,
                   Formato(n, "0", separador));
    }
}

// The inner nine ticks of both axes: strains per mil, stresses right-aligned.
void EtiquetasTension(GeneralDibujo& d, double EX, double SY, char separador)
{
    for (int k = 1; k <= 9; ++k)
        EtiquetaHorizontal(d, EX / 10.0 * k, kBajoEjeDeformacion, Formato(EX / 10.0 * k * 1000.0, "0.00", separador));
    for (int k = 1; k <= 9; ++k)
        EtiquetaVertical(d, 0.0, SY / 10.0 * k, FormatoTexto(Formato(SY / 10.0 * k, "0", separador), "@@@@"));
}

}  // namespace

void DiagramaTension(const General& g, GeneralDibujo& d, Entero tipo, char separador)
{
    NuevaLista(d);
    const double EX = ExtensionDeformacion(g);
    const double SY = ExtensionTension(g);

    Eje(d, 0.0, 0.0, EX, 0.0);
    Eje(d, 0.0, 0.0, 0.0, SY);
    // The projections of the type in hand repeat in every pass, at the same place.
    for (int i = 1; i <= g.NTIPOS; ++i) {
        LineaDelTipo(g, d, i, tipo, EX, SY);
        ProyeccionesDeCalculo(g, d, tipo);
        if (i == tipo) PuntosDeCalculo(g, d, i, separador);
    }
    EtiquetasTension(d, EX, SY, separador);
    NombreEje(d, EX / 20.0 + EX, 0.0, "Def (‰)");
    NombreEje(d, 0.0, SY / 20.0 + SY, "Tensión (N/mm²)");
    Titulo(d, EX / 1.75, SY * 1.25, "DIAGRAMA TENSION-DEFORMACION");
}

}  // namespace texalon
