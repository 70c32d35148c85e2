#include "diagrams/Lista.h"

#include <algorithm>
#include <cmath>

namespace texalon {

namespace {

// The next element's number, counted before it is written.
int Siguiente(GeneralDibujo& d)
{
    ++d.NLISTA;
    return d.NLISTA;
}

// A field of an element; a list never allocated reads as empty, so that a picture that has
// had no diagram yet fits to a point instead of failing.
double Campo(const GeneralDibujo& d, int i, int c) { return d.LISTA.Existe() ? d.LISTA(i, c) : 0.0; }

}  // namespace

void NuevaLista(GeneralDibujo& d)
{
    d.LISTA.Redimensiona(GeneralDibujo::kElementos, GeneralDibujo::kCampos);
    d.TEXTOS.Redimensiona(GeneralDibujo::kElementos);
    d.NLISTA = 0;
}

int ClaseElemento(const GeneralDibujo& d, int i) { return static_cast<int>(std::lround(d.LISTA(i, campo::kClase))); }

void AnadeLinea(GeneralDibujo& d, double x1, double y1, double x2, double y2, Color color, int estilo, int ancho)
{
    const int i = Siguiente(d);
    d.LISTA(i, campo::kClase) = static_cast<double>(Clase::Linea);
    d.LISTA(i, campo::kX1) = x1;
    d.LISTA(i, campo::kY1) = y1;
    d.LISTA(i, campo::kX2) = x2;
    d.LISTA(i, campo::kY2) = y2;
    d.LISTA(i, campo::kColor) = color;
    d.LISTA(i, campo::kEstilo) = estilo;
    d.LISTA(i, campo::kAncho) = ancho;
}

void AnadePunto(GeneralDibujo& d, double x, double y, Color color)
{
    const int i = Siguiente(d);
    d.LISTA(i, campo::kClase) = static_cast<double>(Clase::Punto);
    d.LISTA(i, campo::kX1) = x;
    d.LISTA(i, campo::kY1) = y;
    d.LISTA(i, campo::kColor) = color;
}

void AnadeTexto(GeneralDibujo& d, Clase clase, double x, double y, Color color, double tamano, bool negrita,
                const std::string& texto)
{
    const int i = Siguiente(d);
    d.LISTA(i, campo::kClase) = static_cast<double>(clase);
    d.LISTA(i, campo::kX1) = x;
    d.LISTA(i, campo::kY1) = y;
    d.LISTA(i, campo::kColor) = color;
    d.LISTA(i, campo::kTamano) = tamano;
    d.LISTA(i, campo::kNegrita) = negrita ? 1.0 : 0.0;
    d.TEXTOS(i) = texto;
}

void AnadeForma(GeneralDibujo& d, Clase clase, double x1, double y1, double x2, double y2, Color relleno)
{
    const int i = Siguiente(d);
    d.LISTA(i, campo::kClase) = static_cast<double>(clase);
    d.LISTA(i, campo::kX1) = x1;
    d.LISTA(i, campo::kY1) = y1;
    d.LISTA(i, campo::kX2) = x2;
    d.LISTA(i, campo::kY2) = y2;
    d.LISTA(i, campo::kColor) = relleno;
}

void Eje(GeneralDibujo& d, double x1, double y1, double x2, double y2)
{
    AnadeLinea(d, x1, y1, x2, y2, kNegro, kContinua, 1);
}

void Curva(GeneralDibujo& d, double x1, double y1, double x2, double y2, Color color)
{
    AnadeLinea(d, x1, y1, x2, y2, color, kContinua, 2);
}

void LineaRejilla(GeneralDibujo& d, double x1, double y1, double x2, double y2)
{
    AnadeLinea(d, x1, y1, x2, y2, kNegro, kPunteada, 1);
}

void MarcaRequerida(GeneralDibujo& d, double x1, double y1, double x2, double y2)
{
    AnadeLinea(d, x1, y1, x2, y2, kCiruela, kPunteada, 3);
}

void EtiquetaHorizontal(GeneralDibujo& d, double x, double y, const std::string& texto)
{
    AnadeTexto(d, Clase::Texto, x, y, kNegro, 8, false, texto);
}

void EtiquetaVertical(GeneralDibujo& d, double x, double y, const std::string& texto)
{
    AnadeTexto(d, Clase::TextoIzquierda, x, y, kNegro, 8, false, texto);
}

void NombreEje(GeneralDibujo& d, double x, double y, const std::string& texto)
{
    AnadeTexto(d, Clase::Texto, x, y, kNegro, 8, false, texto);
}

void Titulo(GeneralDibujo& d, double x, double y, const std::string& texto)
{
    AnadeTexto(d, Clase::Texto, x, y, kNegro, 12, true, texto);
}

Encuadre Encuadra(const GeneralDibujo& d, double ancho, double alto, Entero isotropico, double margenIzquierdo,
                  double margenSuperior)
{
    Encuadre e;
    e.ancho = ancho;
    e.alto = alto;
    double xmax = Campo(d, 1, campo::kX1);
    double ymax = Campo(d, 1, campo::kY1);
    e.xmin = xmax;
    e.ymin = ymax;
    for (int i = 1; i <= d.NLISTA; ++i) {
        for (int c : {campo::kX1, campo::kX2}) {
            xmax = std::max(xmax, d.LISTA(i, c));
            e.xmin = std::min(e.xmin, d.LISTA(i, c));
        }
        for (int c : {campo::kY1, campo::kY2}) {
            ymax = std::max(ymax, d.LISTA(i, c));
            e.ymin = std::min(e.ymin, d.LISTA(i, c));
        }
    }
    const double dx = std::abs(xmax - e.xmin);
    const double dy = std::abs(ymax - e.ymin);
    e.escalaX = dx == 0.0 ? 0.0 : ancho * 0.8 / dx;
    e.escalaY = dy == 0.0 ? 0.0 : alto * 0.8 / dy;
    if (isotropico == kIsotropico) {
        if (e.escalaY > e.escalaX)
            e.escalaY = e.escalaX;
        else
            e.escalaX = e.escalaY;
    }
    e.ox = (ancho - dx * e.escalaX) / 2.0 + margenIzquierdo;
    e.oy = (alto + margenSuperior) - (alto - dy * e.escalaY) / 2.0;
    return e;
}

Encuadre Ajusta(GeneralDibujo& d, double ancho, double alto, Entero isotropico, double margenIzquierdo,
                double margenSuperior)
{
    const Encuadre e = Encuadra(d, ancho, alto, isotropico, margenIzquierdo, margenSuperior);
    d.ANCHOPIC = e.ancho;
    d.ALTOPIC = e.alto;
    d.ESCALAX = e.escalaX;
    d.ESCALAY = e.escalaY;
    return e;
}

Encuadre AjustaGuardado(GeneralDibujo& d, Entero isotropico) { return Ajusta(d, d.ANCHOPIC, d.ALTOPIC, isotropico); }

EsquinaTexto ColocaTexto(Clase clase, double x, double y, double ancho, double alto)
{
    const double arriba = y - alto / 2;
    switch (clase) {
    case Clase::TextoIzquierda: return {x - ancho * 4 / 3, arriba};
    case Clase::TextoDerecha: return {x + ancho / 3, arriba};
    default: return {x - ancho / 2, arriba};
    }
}

}  // namespace texalon
