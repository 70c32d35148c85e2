// The section in hand, to scale and dimensioned: the rectangular and T flexure sections with
// their steel and sheet, and the wrapped column.
//
// World units are metres, with the origin at the bottom left of the section. Every dimension
// offset of a flexure drawing follows one length u, the smaller size of the section, so that
// the marks keep their look whatever the section measures. The steel bars are as thick as
// their area says; the sheet has a fixed thickness of u / 60, its real one being far too thin
// to show.
#include "diagrams/Grafico.h"

#include "diagrams/Lista.h"
#include "state/Formato.h"

#include <string>

namespace texalon {

namespace {

// The ticks of a dimension run across its line from 1/20 to 1/6.66666 of the reference length.
constexpr double kMarcaCerca = 20.0;
constexpr double kMarcaLejos = 6.66666;

constexpr char kTitulo[] = "SECCION";
constexpr char kRadioMinimo[] = "Rmín 3 cm";  // the least corner radius of a wrapped column

// Thickness of a steel bar of area A cm² in the drawing: 0.625 mm for each cm².
double GruesoAcero(double area) { return area * 0.025 / 40.0; }

enum class Direccion { Horizontal, Vertical };

// A dimension mark: its line at `posicion` across the direction, from `desde` to `hasta` along
// it, and a cross tick at each end, running from `marcaDesde` to `marcaHasta` across.
void Cota(GeneralDibujo& d, Direccion direccion, double posicion, double desde, double hasta, double marcaDesde,
          double marcaHasta)
{
    if (direccion == Direccion::Horizontal) {
        Eje(d, desde, posicion, hasta, posicion);
        Eje(d, desde, marcaDesde, desde, marcaHasta);
        Eje(d, hasta, marcaDesde, hasta, marcaHasta);
    } else {
        Eje(d, posicion, desde, posicion, hasta);
        Eje(d, marcaDesde, desde, marcaHasta, desde);
        Eje(d, marcaDesde, hasta, marcaHasta, hasta);
    }
}

// ---- Flexure sections.

// The sizes of a flexure drawing. The rectangular section is a T whose web is the whole width.
struct MedidasFlexion {
    bool enT = false;
    double b = 0.0;  // width; flange width of a T
    double h = 0.0;  // depth
    double r = 0.0;  // cover
    double bw = 0.0;  // web width
    double hf = 0.0;  // flange depth
    double u = 0.0;  // the length of every dimension offset
    double xa = 0.0;  // sheet, from xa to xb, centred on the width
    double xb = 0.0;
    double xw = 0.0;  // web, from xw to xe, centred on the flange
    double xe = 0.0;
    double o = 0.0;  // shift of the depth's dimension, outside a web wider than the flange
};

MedidasFlexion MedidasDe(const General& g, bool enT)
{
    MedidasFlexion m;
    m.enT = enT;
    m.b = g.ANCHO;
    m.h = g.CANTO;
    m.r = g.RECUB;
    if (g.CANTO < g.ANCHO)
        m.u = g.CANTO;
    else if (enT && g.ANCHO <= g.ANCHOALMA)
        m.u = g.ANCHOALMA;
    else
        m.u = g.ANCHO;
    m.xa = (m.b - g.ANCHOR) / 2.0;
    m.xb = m.b - m.xa;
    if (enT) {
        m.bw = g.ANCHOALMA;
        m.hf = g.CANTOALA;
        m.xw = (m.b - m.bw) / 2.0;
        m.xe = m.b - m.xw;
        m.o = m.b < m.bw ? (m.bw - m.b) / 2.0 : 0.0;
    } else {
        m.xe = m.b;
    }
    return m;
}

void ContornoRectangular(GeneralDibujo& d, const MedidasFlexion& m)
{
    Eje(d, 0.0, 0.0, 0.0, m.h);
    Eje(d, 0.0, m.h, m.b, m.h);
    Eje(d, m.b, m.h, m.b, 0.0);
    Eje(d, m.b, 0.0, 0.0, 0.0);
}

// The flange from its left bottom corner clockwise, then down the web and back.
void ContornoT(GeneralDibujo& d, const MedidasFlexion& m)
{
    const double ala = m.h - m.hf;
    const double izquierda = m.xe - m.bw;
    Eje(d, 0.0, ala, 0.0, m.h);
    Eje(d, 0.0, m.h, m.b, m.h);
    Eje(d, m.b, m.h, m.b, ala);
    Eje(d, m.b, ala, m.xe, ala);
    Eje(d, m.xe, ala, m.xe, 0.0);
    Eje(d, m.xe, 0.0, izquierda, 0.0);
    Eje(d, izquierda, 0.0, izquierda, ala);
    Eje(d, izquierda, ala, 0.0, ala);
}

// The outline, the steel bars and the sheet bar.
void CuerpoFlexion(const General& g, GeneralDibujo& d, const MedidasFlexion& m)
{
    if (m.enT)
        ContornoT(d, m);
    else
        ContornoRectangular(d, m);
    const double u = m.u;
    // The bottom steel lies inside the web, the top steel spans the whole width.
    if (g.ASI > 0.0)
        AnadeForma(d, Clase::Barra, m.xw + u / 10.0, GruesoAcero(g.ASI) + m.r, m.xe - u / 10.0, m.r, kAzul);
    if (g.ASS > 0.0)
        AnadeForma(d, Clase::Barra, u / 10.0, m.h - m.r, m.b - u / 10.0, m.h - m.r - GruesoAcero(g.ASS), kAzul);
    AnadeForma(d, Clase::Barra, m.xa, 0.0, m.xb, -u / 60.0, kRojo);
}

// The dimensions of the depth at the left, the width above, in a T the flange depth at the
// right and the web width below, and the sheet under the section.
void CotasFlexion(GeneralDibujo& d, const MedidasFlexion& m)
{
    const double u = m.u;
    const double h = m.h;
    const double b = m.b;
    Cota(d, Direccion::Vertical, -u / 10.0 - m.o, 0.0, h, -u / kMarcaLejos - m.o, -u / kMarcaCerca - m.o);
    Cota(d, Direccion::Horizontal, u / 10.0 + h, 0.0, b, u / kMarcaCerca + h, u / kMarcaLejos + h);
    if (m.enT) {
        Cota(d, Direccion::Vertical, u / 10.0 + b, h - m.hf, h, u / kMarcaLejos + b, u / kMarcaCerca + b);
        Cota(d, Direccion::Horizontal, -u / 2.0, m.xw, m.xe, -u / 2.0 + u * 0.05, -u / 2.0 - u * 0.05);
    }
    Cota(d, Direccion::Horizontal, -u / 10.0, m.xa, m.xb, -u / kMarcaCerca, -u / kMarcaLejos);
}

std::string Area(double area, char separador) { return Formato(area, "0.00", separador) + " cm²"; }

void TextosFlexion(const General& g, GeneralDibujo& d, const MedidasFlexion& m, char separador)
{
    const double u = m.u;
    const double h = m.h;
    const double b = m.b;
    EtiquetaVertical(d, -u / 5.0 - m.o, h / 2.0, Formato(g.CANTO, "0.00", separador));
    EtiquetaHorizontal(d, b / 2.0, u / 5.0 + h, Formato(g.ANCHO, "0.00", separador));
    if (m.enT) {
        AnadeTexto(d, Clase::TextoDerecha, u / 5.0 + b, h - m.hf / 2.0, kNegro, 8, false,
                   Formato(g.CANTOALA, "0.00", separador));
        EtiquetaHorizontal(d, b / 2.0, -u / 2.0 - u * 0.1, Formato(g.ANCHOALMA, "0.00", separador));
    }
    EtiquetaHorizontal(d, b / 2.0, -u / 5.0, Formato(g.ANCHOR, "0.000", separador));
    if (g.ASI > 0.0) EtiquetaHorizontal(d, b / 2.0, u / 10.0 + m.r, Area(g.ASI, separador));
    if (g.ASS > 0.0) EtiquetaHorizontal(d, b / 2.0, h - m.r - u / 10.0, Area(g.ASS, separador));
    Titulo(d, b / 2.0, u / 2.0 + h, kTitulo);
}

// ---- Wrapped columns: the concrete in grey within the sheet in red, D = DIAM.

// The section of width D and height `alto` at a rim of 0.02 D inside the sheet. The grey one
// comes first, so that it stays in front of the red one where the shapes are filled.
void Envuelta(GeneralDibujo& d, Clase clase, double D, double alto)
{
    AnadeForma(d, clase, D * 0.02, D * 0.02 + alto, D * 0.02 + D, D * 0.02, kGris);
    AnadeForma(d, clase, 0.0, D * 0.04 + alto, D * 0.04 + D, 0.0, kRojo);
}

void CotaIzquierda(GeneralDibujo& d, double D, double alto)
{
    Cota(d, Direccion::Vertical, -D / 10.0, D * 0.02, D * 0.02 + alto, -D / kMarcaLejos, -D / kMarcaCerca);
}

void CotaInferior(GeneralDibujo& d, double D)
{
    Cota(d, Direccion::Horizontal, -D / 10.0, D * 0.02, D * 0.02 + D, -D / kMarcaCerca, -D / kMarcaLejos);
}

// The title a third of the section's height above it.
void TituloColumna(GeneralDibujo& d, double D, double alto) { Titulo(d, D / 2.0, alto / 3.0 + alto, kTitulo); }

void Circular(const General& g, GeneralDibujo& d, char separador)
{
    const double D = g.DIAM;
    Envuelta(d, Clase::Elipse, D, D);
    CotaInferior(d, D);
    EtiquetaHorizontal(d, D / 2.0, -D / 5.0, Formato(g.DIAM, "0.00", separador));
    TituloColumna(d, D, D);
}

// The square is the rectangle whose short side is DIAM too; only the order of its two size
// labels differs.
void Rectangular(const General& g, GeneralDibujo& d, char separador, bool cuadrada)
{
    const double D = g.DIAM;
    const double alto = cuadrada ? D : g.LADOMENOR;
    const std::string ancho = Formato(g.DIAM, "0.00", separador);
    Envuelta(d, Clase::RectanguloRedondeado, D, alto);
    CotaIzquierda(d, D, alto);
    CotaInferior(d, D);
    if (cuadrada) {
        EtiquetaHorizontal(d, D / 2.0, -D / 5.0, ancho);
        EtiquetaVertical(d, -D / 5.0, alto / 2.0, ancho);
    } else {
        EtiquetaVertical(d, -D / 5.0, alto / 2.0, Formato(g.LADOMENOR, "0.00", separador));
        EtiquetaHorizontal(d, D / 2.0, -D / 5.0, ancho);
    }
    EtiquetaVertical(d, -D / 10.0, alto, kRadioMinimo);
    TituloColumna(d, D, alto);
}

}  // namespace

void DibujaSeccionFlexion(const General& g, GeneralDibujo& d, SeccionFlexion seccion, char separador)
{
    NuevaLista(d);
    d.F_SECCION = true;
    d.F_PIVOTES = false;
    d.F_MOMENTOS = false;
    d.F_CAPAS = false;

    const MedidasFlexion m = MedidasDe(g, seccion == SeccionFlexion::T);
    CuerpoFlexion(g, d, m);
    CotasFlexion(d, m);
    TextosFlexion(g, d, m, separador);
}

void DibujaSeccion(const General& g, GeneralDibujo& d, char separador)
{
    DibujaSeccionFlexion(g, d, SeccionFlexion::Rectangular, separador);
}

void DibujaSeccionT(const General& g, GeneralDibujo& d, char separador)
{
    DibujaSeccionFlexion(g, d, SeccionFlexion::T, separador);
}

// A number that is no shape writes no element: the list is empty and the flag set all the
// same, as for any section drawing.
void DibujaSeccionConfina(const General& g, GeneralDibujo& d, char separador)
{
    NuevaLista(d);
    d.F_SECCION = true;
    switch (FormaDe(g)) {
    case FormaPilar::Circular: Circular(g, d, separador); break;
    case FormaPilar::Cuadrada: Rectangular(g, d, separador, true); break;
    case FormaPilar::Rectangular: Rectangular(g, d, separador, false); break;
    default: break;
    }
}

}  // namespace texalon
