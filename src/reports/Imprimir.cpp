#include "reports/Imprimir.h"

#include "state/Formato.h"

#include "diagrams/Lista.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace texalon {

namespace {

using plataforma::kEscalaCentimetros;
using plataforma::kPapelA4;
using plataforma::kTrazoContinuo;

constexpr char kFuente[] = "arial";
constexpr double kTamanoFuente = 10.0;
constexpr char kPie[] = "SISTEMA DE REFUERZO TEXALON®";
constexpr Color kColorReglas = 0;

// The logo of the frame: 2 × 1 cm, standing on the rule under the title.
constexpr double kAnchoLogo = 2.0;
constexpr double kAltoLogo = 1.0;
// The gap between a line of text and its rule.
constexpr double kSeparacionRegla = 0.15;
// How much a subscript is lowered, in the same font and size.
constexpr double kBajadaSubindice = 0.05;

// The radius of a point on paper, cm.
constexpr double kRadioPunto = 0.1;
// The angles of the rounded corners, radians, with the program's own value of pi.
constexpr double kPi = 3.141592;
constexpr double kNorte = kPi / 2;
constexpr double kOeste = kPi;
constexpr double kSur = 9.424776 / 2;
constexpr double kVueltaEntera = 6.283184;

// The height of a line in the current font; a printer's line height does not depend on the
// text, the title is only what it is measured on.
double AlturaLinea(const Impresora& impresora, const std::string& titulo) { return impresora.TextHeight(titulo); }

// A field of element i as the integer the printer takes (colours, widths, styles).
int Entera(const GeneralDibujo& d, int i, int c) { return static_cast<int>(std::lround(d.LISTA(i, c))); }

Color ColorDe(const GeneralDibujo& d, int i) { return static_cast<Color>(std::lround(d.LISTA(i, campo::kColor))); }

// A line of the list: thick lines doubled on paper, style 1 solid and 3 dotted become the
// printer's 0 and 2.
void ImprimeLinea(Impresora& impresora, const GeneralDibujo& d, const Encuadre& e, int i)
{
    const double ancho = d.LISTA(i, campo::kAncho);
    impresora.DrawWidth(static_cast<int>(std::lround(ancho > 1.0 ? ancho * 2.0 : ancho)));
    impresora.DrawStyle(Entera(d, i, campo::kEstilo) - 1);
    impresora.Line(e.X(d.LISTA(i, campo::kX1)), e.Y(d.LISTA(i, campo::kY1)), e.X(d.LISTA(i, campo::kX2)),
                   e.Y(d.LISTA(i, campo::kY2)), ColorDe(d, i));
}

// A text of the list, placed by its kind as on the screen's picture, at the printer's measure of
// it in the element's font.
void ImprimeTexto(Impresora& impresora, const GeneralDibujo& d, const Encuadre& e, int i, Clase clase)
{
    const std::string& texto = d.TEXTOS(i);
    impresora.FontSize(d.LISTA(i, campo::kTamano));
    impresora.FontBold(d.LISTA(i, campo::kNegrita) != 0.0);
    const EsquinaTexto esquina = ColocaTexto(clase, e.X(d.LISTA(i, campo::kX1)), e.Y(d.LISTA(i, campo::kY1)),
                                             impresora.TextWidth(texto), impresora.TextHeight(texto));
    impresora.CurrentX(esquina.izquierda);
    impresora.CurrentY(esquina.arriba);
    impresora.ForeColor(ColorDe(d, i));
    impresora.Print(texto);
}

// The rounded rectangle's outline: four sides shortened by the radius and four quarter arcs,
// the radius a tenth of the smaller side.
void ImprimeRectanguloRedondeado(Impresora& impresora, double xa, double ya, double xb, double yb, Color color)
{
    const double r = 0.1 * std::min(std::abs(xb - xa), std::abs(yb - ya));
    impresora.Line(xa, ya + r, xa, yb - r, color);
    impresora.Line(xb, ya + r, xb, yb - r, color);
    impresora.Line(xa + r, ya, xb - r, ya, color);
    impresora.Line(xa + r, yb, xb - r, yb, color);
    impresora.Arc(xa + r, ya + r, r, color, kNorte, kOeste);
    impresora.Arc(xb - r, ya + r, r, color, 0, kNorte);
    impresora.Arc(xa + r, yb - r, r, color, kOeste, kSur);
    impresora.Arc(xb - r, yb - r, r, color, kSur, kVueltaEntera);
}

// A bar, rounded rectangle or ellipse: outlines only, the paper has no fill of its own. The
// ellipse is drawn as the circle of its width.
void ImprimeForma(Impresora& impresora, const GeneralDibujo& d, const Encuadre& e, int i, int clase)
{
    const double xa = e.X(d.LISTA(i, campo::kX1));
    const double ya = e.Y(d.LISTA(i, campo::kY1));
    const double xb = e.X(d.LISTA(i, campo::kX2));
    const double yb = e.Y(d.LISTA(i, campo::kY2));
    const Color color = ColorDe(d, i);
    impresora.DrawWidth(1);
    if (clase == static_cast<int>(Clase::Barra))
        impresora.Box(xa, ya, xb, yb, color);
    else if (clase == static_cast<int>(Clase::RectanguloRedondeado))
        ImprimeRectanguloRedondeado(impresora, xa, ya, xb, yb, color);
    else
        impresora.Circle((xa + xb) / 2, (ya + yb) / 2, (xb - xa) / 2, color);
}

}  // namespace

Pagina PreparaInforme(Impresora& impresora, const std::string& nombreDocumento)
{
    impresora.PaperSize(kPapelA4);
    impresora.ScaleMode(kEscalaCentimetros);
    impresora.FontName(kFuente);
    impresora.FontSize(kTamanoFuente);
    impresora.NombreDocumento(nombreDocumento);
    Pagina pagina;
    pagina.ancho = impresora.ScaleWidth();
    pagina.alto = impresora.ScaleHeight();
    return pagina;
}

void Escribe(Impresora& impresora, double x, double y, const std::string& texto)
{
    impresora.CurrentX(x);
    impresora.CurrentY(y);
    impresora.Print(texto);
}

std::string Valor(const std::string& texto, std::string_view patron, char separador)
{
    return Formato(ValorDeTexto(texto, separador), patron, separador);
}

void MarcoPagina(Impresora& impresora, const Pagina& pagina, const std::string& titulo, const std::string& logo)
{
    // What a diagram on the page may have left, but its text colour.
    impresora.FontBold(false);
    impresora.DrawStyle(kTrazoContinuo);
    impresora.DrawWidth(1);
    impresora.FontName(kFuente);
    impresora.FontSize(kTamanoFuente);

    const double linea = AlturaLinea(impresora, titulo);
    const double derecha = pagina.ancho - pagina.margenDerecho;
    Escribe(impresora, pagina.margenIzquierdo, pagina.margenSuperior, titulo);
    impresora.PaintPicture(logo, derecha - kAnchoLogo, linea + pagina.margenSuperior - kAltoLogo, kAnchoLogo,
                           kAltoLogo);
    const double yRegla = linea + pagina.margenSuperior + kSeparacionRegla;
    impresora.Line(pagina.margenIzquierdo, yRegla, derecha, yRegla, kColorReglas);

    const std::string textoPagina = "Página " + std::to_string(impresora.Page());
    const double yPie = pagina.alto - linea - pagina.margenInferior;
    Escribe(impresora, pagina.margenIzquierdo, yPie, kPie);
    const double yReglaPie = pagina.alto - pagina.margenInferior - linea - kSeparacionRegla;
    impresora.Line(pagina.margenIzquierdo, yReglaPie, derecha, yReglaPie, kColorReglas);
    Escribe(impresora, derecha - impresora.TextWidth(textoPagina), yPie, textoPagina);
}

void Cabecera(Impresora& impresora, double x, double y, const std::string& texto)
{
    impresora.FontBold(true);
    Escribe(impresora, x, y, texto);
    impresora.FontBold(false);
}

void Fila(Impresora& impresora, double columna, double& y, const std::string& etiqueta, const std::string& valor)
{
    Escribe(impresora, columna, y, etiqueta);
    Escribe(impresora, columna + kColumnaValor, y, valor);
    y = impresora.CurrentY();
}

void FilaConSubindice(Impresora& impresora, double columna, double& y, const std::string& principal,
                      const std::string& subindice, const std::string& anteDosPuntos, const std::string& valor)
{
    Escribe(impresora, columna, y, principal);
    Escribe(impresora, columna + impresora.TextWidth(principal), y + kBajadaSubindice, subindice);
    Escribe(impresora, columna + impresora.TextWidth(anteDosPuntos), y, ":");
    Escribe(impresora, columna + kColumnaValor, y, valor);
    y = impresora.CurrentY();
}

void ImprimeTabla(Impresora& impresora, double x0, double y0, double filas, double columnas, double altoFila,
                  double anchoColumna)
{
    impresora.DrawStyle(kTrazoContinuo);
    const double x1 = x0 + columnas * anchoColumna;
    const double y1 = y0 + filas * altoFila;
    for (int i = 1; i <= filas + 1; ++i) {
        const double y = y0 + (i - 1) * altoFila;
        impresora.Line(x0, y, x1, y, kColorReglas);
    }
    for (int j = 1; j <= columnas + 1; ++j) {
        const double x = x0 + (j - 1) * anchoColumna;
        impresora.Line(x, y0, x, y1, kColorReglas);
    }
}

void ImprimeLista(Impresora& impresora, GeneralDibujo& d, double margenDerecho, double margenIzquierdo,
                  double margenSuperior, double margenInferior, Entero isotropico)
{
    impresora.ScaleMode(kEscalaCentimetros);
    const double ancho = impresora.ScaleWidth() - margenIzquierdo - margenDerecho;
    const double alto = impresora.ScaleHeight() - margenSuperior - margenInferior;
    const Encuadre e = Ajusta(d, ancho, alto, isotropico, margenIzquierdo, margenSuperior);
    for (int i = 1; i <= d.NLISTA; ++i) {
        impresora.DrawStyle(kTrazoContinuo);
        const int clase = ClaseElemento(d, i);
        switch (static_cast<Clase>(clase)) {
        case Clase::Linea: ImprimeLinea(impresora, d, e, i); break;
        case Clase::Punto:
            impresora.DrawWidth(1);
            impresora.Circle(e.X(d.LISTA(i, campo::kX1)), e.Y(d.LISTA(i, campo::kY1)), kRadioPunto, ColorDe(d, i));
            break;
        case Clase::Texto:
        case Clase::TextoIzquierda:
        case Clase::TextoDerecha: ImprimeTexto(impresora, d, e, i, static_cast<Clase>(clase)); break;
        case Clase::Barra:
        case Clase::RectanguloRedondeado:
        case Clase::Elipse: ImprimeForma(impresora, d, e, i, clase); break;
        default: break;  // an element of another kind is not drawn
        }
    }
}

}  // namespace texalon
