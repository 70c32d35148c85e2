// The display list: what every chart and section drawing is made of before it meets a screen
// or a page.
//
// A diagram procedure writes elements in the world units of its diagram (per mil, mkN, metres)
// into LISTA and TEXTOS of the drawing state; a renderer fits the list to its target and draws
// it. The writers below keep the field layout of an element in one place, and the fit is
// written once for the picture, the page and the SVG file alike.
#pragma once

#include "state/General.h"

#include <string>

namespace texalon {

// Field 1 of an element: its kind.
enum class Clase : int {
    Linea = 1,
    Punto = 2,
    Texto = 3,  // centred on its anchor
    TextoIzquierda = 4,  // ends left of its anchor
    Barra = 5,
    RectanguloRedondeado = 6,
    Elipse = 7,
    TextoDerecha = 8,  // starts right of its anchor
};

// Fields of an element, as LISTA(i, field) numbers them. Field 6 is never used.
namespace campo {
constexpr int kClase = 1;
constexpr int kX1 = 2;
constexpr int kY1 = 3;
constexpr int kX2 = 4;
constexpr int kY2 = 5;
constexpr int kColor = 7;
constexpr int kEstilo = 8;  // line: 1 solid, 3 dotted
constexpr int kAncho = 9;  // line: width; text: font size in points
constexpr int kTamano = 9;
constexpr int kNegrita = 10;  // text: 0 plain, else bold
}  // namespace campo

// Line styles of field 8.
constexpr int kContinua = 1;
constexpr int kPunteada = 3;

// A few colours of the diagrams.
constexpr Color kNegro = 0;
constexpr Color kRojo = ColorRGB(255, 0, 0);
constexpr Color kAzul = ColorRGB(0, 0, 255);
constexpr Color kGris = ColorRGB(192, 192, 192);
constexpr Color kCiruela = ColorRGB(128, 0, 64);  // the marker of a required value

// Allocates LISTA (1..1000, 1..10) and TEXTOS (1..1000) anew, every field 0.0 and every text
// "", and sets NLISTA to 0: the list of the previous diagram is gone.
void NuevaLista(GeneralDibujo& d);

// The kind of element i, as written in field 1 (rounded, as the renderers read it).
int ClaseElemento(const GeneralDibujo& d, int i);

// ---- Writers of one element each. NLISTA is raised by one ahead of the element.

void AnadeLinea(GeneralDibujo& d, double x1, double y1, double x2, double y2, Color color, int estilo, int ancho);
void AnadePunto(GeneralDibujo& d, double x, double y, Color color);
void AnadeTexto(GeneralDibujo& d, Clase clase, double x, double y, Color color, double tamano, bool negrita,
                const std::string& texto);
// A bar, rounded rectangle or ellipse between the corner of least x and greatest y and the
// opposite one, filled with `relleno`.
void AnadeForma(GeneralDibujo& d, Clase clase, double x1, double y1, double x2, double y2, Color relleno);

// ---- The element forms that the charts share.

void Eje(GeneralDibujo& d, double x1, double y1, double x2, double y2);  // black, solid, 1
void Curva(GeneralDibujo& d, double x1, double y1, double x2, double y2, Color color);  // solid, 2
void LineaRejilla(GeneralDibujo& d, double x1, double y1, double x2, double y2);  // black, dotted, 1
void MarcaRequerida(GeneralDibujo& d, double x1, double y1, double x2, double y2);  // plum, dotted, 3
void EtiquetaHorizontal(GeneralDibujo& d, double x, double y, const std::string& texto);  // kind 3, 8
void EtiquetaVertical(GeneralDibujo& d, double x, double y, const std::string& texto);  // kind 4, 8
void NombreEje(GeneralDibujo& d, double x, double y, const std::string& texto);  // kind 3, 8
void Titulo(GeneralDibujo& d, double x, double y, const std::string& texto);  // kind 3, 12, bold

// ---- The fit, common to every renderer.

// The isotropic setting of a fit: one scale in both directions for the section drawings, a
// scale of its own in each direction for the charts. Any value other than 1 counts as 0.
constexpr Entero kIsotropico = 1;
constexpr Entero kAnisotropico = 0;

// How world units map to a target area of `ancho` × `alto`: X(x) = (x - xmin) × ESCALAX + ox,
// Y(y) = oy - (y - ymin) × ESCALAY. World y grows upward, target y downward.
struct Encuadre {
    double ancho = 0.0;
    double alto = 0.0;
    double xmin = 0.0;
    double ymin = 0.0;
    double escalaX = 0.0;
    double escalaY = 0.0;
    double ox = 0.0;
    double oy = 0.0;

    double X(double x) const { return (x - xmin) * escalaX + ox; }
    double Y(double y) const { return oy - (y - ymin) * escalaY; }
};

// The fit of the list into an area of `ancho` × `alto` (pixels on screen, centimetres on
// paper). The box starts at element 1 and takes fields 2 to 5 of every element whatever its
// kind, so that texts and points reach to the origin and the origin always lies inside it. The
// box fills 80 % of the area, centred; `isotropico` 1 keeps one scale for both directions, any
// other value lets each have its own. On paper the margins shift the box on the page. Nothing
// is stored: a picture drawn for a file leaves the drawing state as it is.
Encuadre Encuadra(const GeneralDibujo& d, double ancho, double alto, Entero isotropico, double margenIzquierdo = 0.0,
                  double margenSuperior = 0.0);

// The same fit, stored as the renderers of the screen and the paper leave it: the area in
// ANCHOPIC and ALTOPIC, the factors in ESCALAX and ESCALAY.
Encuadre Ajusta(GeneralDibujo& d, double ancho, double alto, Entero isotropico, double margenIzquierdo = 0.0,
                double margenSuperior = 0.0);

// The same fit with the ANCHOPIC and ALTOPIC in store, as the redrawing after a zoom does.
Encuadre AjustaGuardado(GeneralDibujo& d, Entero isotropico);

// ---- Texts on a target.

// The top-left corner of a text `ancho` × `alto` anchored at (x, y) by its kind: vertically
// centred; centred on the anchor (kind 3), ending a third of its width left of it (kind 4) or
// starting a third of its width right of it (kind 8). The picture and the paper both place
// their texts so.
struct EsquinaTexto {
    double izquierda;
    double arriba;
};
EsquinaTexto ColocaTexto(Clase clase, double x, double y, double ancho, double alto);

}  // namespace texalon
