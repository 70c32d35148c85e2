// The two charts of a flexure project: the ultimate moment against the area of sheet, and
// against the number of layers, one curve per sheet type, with the marker of the design moment.
//
// The horizontal axis of both is the moment less the least moment in play (nearly always the
// unreinforced MUSR), and its tick labels add that least moment back. Moments are in mkN, areas
// in mm². The T section's twins draw the very same lists: the section's shape is already in
// the moments.
#include "diagrams/Grafico.h"

#include "diagrams/Lista.h"
#include "engine/Calculos.h"
#include "state/Catalogo.h"
#include "state/Formato.h"

namespace texalon {

namespace {

// The extents of the moments and areas in play.
struct Rango {
    double maxM = 0.0;
    double minM = 99999.0;
    double maxA = 0.0;  // the area chart's only

    // Horizontal extent: the moments in play and a tenth more.
    double R() const { return (maxM - minM) * 1.1; }
};

// Area of one layer of type i, mm².
double AreaCapa(const General& g, int i) { return g.ANCHOR * g.CATALOGO(i, kEspesor) * 1000.0; }

bool SinMejora(const General& g, int i, int j) { return g.MU(i, j) == kSinMejora; }

// The range pass over every cell that brings a gain. MUSR counts only alongside such a cell,
// and so a table of marks alone leaves the start values, and a negative extent.
Rango RangoMomentos(const General& g, bool conArea)
{
    Rango r;
    for (int i = 1; i <= g.NTIPOS; ++i) {
        for (int j = 1; j <= g.MAXCAPAS; ++j) {
            if (SinMejora(g, i, j)) continue;
            if (g.MU(i, j) > r.maxM) r.maxM = g.MU(i, j);
            if (g.MU(i, j) < r.minM) r.minM = g.MU(i, j);
            if (g.MUSR > r.maxM) r.maxM = g.MUSR;
            if (g.MUSR < r.minM) r.minM = g.MUSR;
            if (conArea && AreaCapa(g, i) * j > r.maxA) r.maxA = AreaCapa(g, i) * j;
        }
    }
    return r;
}

// The marker of MD over the height `alto`, when MD lies between the unreinforced moment and the
// best that a sheet reaches, both ends included.
void MarcaMomento(const General& g, GeneralDibujo& d, const Rango& r, double alto)
{
    if (g.MD >= g.MUSR && g.MD <= g.MUMAX) MarcaRequerida(d, g.MD - r.minM, 0.0, g.MD - r.minM, alto);
}

// Ten vertical grid lines over the moment axis, up to the height `alto`.
void RejillaMomentos(GeneralDibujo& d, const Rango& r, double alto)
{
    for (int k = 1; k <= 10; ++k) LineaRejilla(d, r.R() / 10.0 * k, 0.0, r.R() / 10.0 * k, alto);
}

// The inner nine moments of the horizontal axis, at `y` below it.
void EtiquetasMomento(GeneralDibujo& d, const Rango& r, double y, char separador)
{
    for (int k = 1; k <= 9; ++k)
        EtiquetaHorizontal(d, r.R() / 10.0 * k, y, Formato(r.R() / 10.0 * k + r.minM, "0.0", separador));
}

void NombreMomento(GeneralDibujo& d, const Rango& r) { NombreEje(d, (r.maxM - r.minM) * 1.2, 0.0, "Mu (mkN)"); }

void TituloMomentos(GeneralDibujo& d, const Rango& r, double y)
{
    Titulo(d, (r.maxM - r.minM) / 1.6, y, "DIAGRAMA DE MOMENTOS ULTIMOS");
}

// The width R cut into one slot per type: a thick line in the type's colour and its name, at
// the height `y` below the chart.
void LeyendaMomentos(const General& g, GeneralDibujo& d, const Rango& r, double y)
{
    const double s = r.R() / g.NTIPOS;
    for (int i = 1; i <= g.NTIPOS; ++i) {
        const double x0 = s * (i - 1);
        AnadeLinea(d, x0, y, x0 + s * 0.3, y, g.COLORES(i), kContinua, 3);
        AnadeTexto(d, Clase::Texto, x0 + s * 0.65, y, kNegro, 8, false, g.TIPOS(i));
    }
}

}  // namespace

// Moment against area. The first segment of a type, from the unreinforced section to one
// layer, is drawn without looking for the mark, and so runs far to the left when one layer
// already brings nothing.
void DiagramaMomentoAreaFlexion(const General& g, GeneralDibujo& d, char separador)
{
    NuevaLista(d);
    d.F_MOMENTOS = true;
    d.F_PIVOTES = false;
    d.F_SECCION = false;
    d.F_CAPAS = false;

    const Rango r = RangoMomentos(g, true);
    const double R = r.R();
    const double A = r.maxA * 1.1;  // vertical extent

    Eje(d, 0.0, 0.0, R, 0.0);
    Eje(d, 0.0, 0.0, 0.0, A);
    for (int i = 1; i <= g.NTIPOS; ++i) {
        const double a = AreaCapa(g, i);
        Curva(d, g.MUSR - r.minM, 0.0, g.MU(i, 1) - r.minM, a, g.COLORES(i));
        for (int j = 1; j <= g.MAXCAPAS - 1; ++j) {
            if (SinMejora(g, i, j) || SinMejora(g, i, j + 1)) continue;
            Curva(d, g.MU(i, j) - r.minM, a * j, g.MU(i, j + 1) - r.minM, a * (j + 1), g.COLORES(i));
        }
    }
    RejillaMomentos(d, r, A);
    for (int k = 1; k <= 10; ++k) LineaRejilla(d, 0.0, A / 10.0 * k, R, A / 10.0 * k);
    MarcaMomento(g, d, r, A);
    EtiquetasMomento(d, r, -r.maxA / 10.0, separador);
    for (int k = 1; k <= 9; ++k)
        EtiquetaVertical(d, 0.0, A / 10.0 * k, FormatoTexto(Formato(A / 10.0 * k, "0", separador), "@@@@"));
    NombreMomento(d, r);
    NombreEje(d, 0.0, r.maxA * 1.2, "Ar (mm²)");
    TituloMomentos(d, r, r.maxA * 1.35);
    LeyendaMomentos(g, d, r, -r.maxA / 5.0);
}

// Moment against layers, a stepped curve per type. Each type is raised by a tenth of a layer
// over the one before, to keep the curves apart where they run together. A pair of layer
// counts with a mark draws nothing, the step from the unreinforced section included.
void DiagramaMomentoCapasFlexion(const General& g, GeneralDibujo& d, char separador)
{
    NuevaLista(d);
    d.F_CAPAS = true;
    d.F_PIVOTES = false;
    d.F_MOMENTOS = false;
    d.F_SECCION = false;

    const Rango r = RangoMomentos(g, false);
    const double R = r.R();
    const int H = g.MAXCAPAS + 1;  // vertical extent, in layers

    Eje(d, 0.0, 0.0, R, 0.0);
    Eje(d, 0.0, 0.0, 0.0, H);
    for (int i = 1; i <= g.NTIPOS; ++i) {
        const double y0 = (i - 1) / 10.0;
        for (int j = 1; j <= g.MAXCAPAS - 1; ++j) {
            if (SinMejora(g, i, j) || SinMejora(g, i, j + 1)) continue;
            const double x = g.MU(i, j) - r.minM;
            if (j == 1) Curva(d, g.MUSR - r.minM, y0 + 1, x, y0 + 1, g.COLORES(i));
            Curva(d, x, y0 + j, x, y0 + j + 1, g.COLORES(i));
            Curva(d, x, y0 + j + 1, g.MU(i, j + 1) - r.minM, y0 + j + 1, g.COLORES(i));
        }
    }
    RejillaMomentos(d, r, H);
    for (int k = 1; k <= g.MAXCAPAS + 1; ++k) LineaRejilla(d, 0.0, k, R, k);
    MarcaMomento(g, d, r, H);
    EtiquetasMomento(d, r, -H / 10.0, separador);
    // On purpose: the layer counts are labelled up to MAXCAPAS only, though the grid reaches
    // one more.
    for (int k = 1; k <= g.MAXCAPAS; ++k) EtiquetaVertical(d, 0.0, k, FormatoTexto(Formato(k, "0", separador), "@@"));
    NombreMomento(d, r);
    NombreEje(d, 0.0, g.MAXCAPAS * 1.25, "Nº capas");
    TituloMomentos(d, r, g.MAXCAPAS * 1.35);
    LeyendaMomentos(g, d, r, -H / 5.0);
}

void DiagramaMomentoArea(const General& g, GeneralDibujo& d, char separador)
{
    DiagramaMomentoAreaFlexion(g, d, separador);
}

void DiagramaMomentoAreaT(const General& g, GeneralDibujo& d, char separador)
{
    DiagramaMomentoAreaFlexion(g, d, separador);
}

void DiagramaMomentoCapas(const General& g, GeneralDibujo& d, char separador)
{
    DiagramaMomentoCapasFlexion(g, d, separador);
}

void DiagramaMomentoCapasT(const General& g, GeneralDibujo& d, char separador)
{
    DiagramaMomentoCapasFlexion(g, d, separador);
}

}  // namespace texalon
