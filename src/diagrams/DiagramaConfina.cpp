// The confinement chart: grouped bars of the increase of strength reached, one group per
// number of layers and one bar per sheet type within it, and the marker of the increase that
// the project requires.
//
// The vertical axis is the increase less 1, so that a factor of 1 stands on the axis; the tick
// labels add the 1 back. The group of j layers fills the unit from j - 1 to j.
#include "diagrams/Grafico.h"

#include "diagrams/Lista.h"
#include "state/Formato.h"

namespace texalon {

namespace {

// The greatest increase less 1 over all cells, or a tenth when no cell rises above 1, so that
// the chart keeps a scale.
double IncrementoMayor(const General& g)
{
    double top = 0.0;
    for (int i = 1; i <= g.NTIPOS; ++i)
        for (int j = 1; j <= g.MAXCAPAS; ++j)
            if (g.RESU(i, j) - 1.0 > top) top = g.RESU(i, j) - 1.0;
    return top == 0.0 ? 0.1 : top;
}

// One bar per cell, 1 / N wide with N = NTIPOS + 1, the bars of a group centred in its unit.
void Barras(const General& g, GeneralDibujo& d)
{
    const double N = g.NTIPOS + 1;
    for (int i = 1; i <= g.NTIPOS; ++i) {
        for (int j = 1; j <= g.MAXCAPAS; ++j) {
            const double x1 = i / N + (j - 1) - 1.0 / (2.0 * N);
            const double x2 = (i + 1) / N + (j - 1) - 1.0 / (2.0 * N);
            AnadeForma(d, Clase::Barra, x1, g.RESU(i, j) - 1.0, x2, 0.0, g.COLORES(i));
        }
    }
}

// Vertical lines between the groups, and ten steps of the vertical extent T.
void RejillaConfina(const General& g, GeneralDibujo& d, double T)
{
    for (int k = 1; k <= g.MAXCAPAS; ++k) LineaRejilla(d, k, 0.0, k, T);
    for (int k = 1; k <= 10; ++k) LineaRejilla(d, 0.0, T / 10.0 * k, g.MAXCAPAS, T / 10.0 * k);
}

// The layer counts centred under their groups, and the inner nine increases of the vertical
// axis, right-aligned, with the 1 added back.
void EtiquetasConfina(const General& g, GeneralDibujo& d, double T, char separador)
{
    for (int k = 1; k <= g.MAXCAPAS; ++k) EtiquetaHorizontal(d, k - 0.5, -T / 10.0, Formato(k, "0", separador));
    for (int k = 1; k <= 9; ++k)
        EtiquetaVertical(d, 0.0, T / 10.0 * k, FormatoTexto(Formato(T / 10.0 * k + 1.0, "0.00", separador), "@@@@"));
}

// A swatch in the colour of each type and its name, below the chart.
void LeyendaConfina(const General& g, GeneralDibujo& d, double T)
{
    for (int i = 1; i <= g.NTIPOS; ++i) {
        const double x0 = static_cast<double>(g.MAXCAPAS) / g.NTIPOS * (i - 1);
        AnadeForma(d, Clase::Barra, x0, -T / 6.0, x0 + 0.2, -T / 4.5, g.COLORES(i));
        AnadeTexto(d, Clase::Texto, x0 + 0.9, -T / 5.0, kNegro, 8, false, g.TIPOS(i));
    }
}

}  // namespace

void DiagramaConfina(const General& g, GeneralDibujo& d, char separador)
{
    NuevaLista(d);
    d.F_SECCION = false;

    const double top = IncrementoMayor(g);
    const double T = top * 1.1;

    Eje(d, 0.0, 0.0, g.MAXCAPAS, 0.0);
    Eje(d, 0.0, 0.0, 0.0, T);
    Barras(g, d);
    RejillaConfina(g, d, T);
    // Only an increase beyond reach goes without its marker; there is no lower test.
    if (!(g.INCR > g.RESUMAX)) MarcaRequerida(d, 0.0, g.INCR - 1.0, g.MAXCAPAS, g.INCR - 1.0);
    EtiquetasConfina(g, d, T, separador);
    NombreEje(d, g.MAXCAPAS + 0.5, 0.0, "Nº capas");
    NombreEje(d, 0.0, top * 1.2, "Incr. resistencia");
    Titulo(d, g.MAXCAPAS / 2.0, top * 1.3, "DIAGRAMA DE CONFINAMIENTO");
    LeyendaConfina(g, d, T);
}

}  // namespace texalon
