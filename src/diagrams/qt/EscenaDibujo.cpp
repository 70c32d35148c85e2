#include "diagrams/qt/EscenaDibujo.h"

#include "diagrams/qt/ElementosLienzo.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace texalon {

namespace {

// The template point: a hollow circle 105 twips across.
constexpr double kPunto = 7.0;

std::size_t Indice(ClasePantalla clase) { return static_cast<std::size_t>(clase); }

int Redondea(double valor) { return static_cast<int>(std::lround(valor)); }

// The screen element that shows a list element of kind `clase`; none for an unknown kind,
// which every renderer skips.
std::optional<ClasePantalla> ClaseEnPantalla(int clase)
{
    switch (static_cast<Clase>(clase)) {
    case Clase::Linea: return ClasePantalla::Linea;
    case Clase::Punto: return ClasePantalla::Punto;
    case Clase::Texto:
    case Clase::TextoIzquierda:
    case Clase::TextoDerecha: return ClasePantalla::Tit;
    case Clase::Barra: return ClasePantalla::Barra;
    case Clase::RectanguloRedondeado: return ClasePantalla::SecRect;
    case Clase::Elipse: return ClasePantalla::SecCir;
    }
    return std::nullopt;
}

// The element counter (ContadoresDibujo) that belongs to a kind of screen element.
template <typename Contadores>
auto& Contador(Contadores& c, ClasePantalla clase)
{
    switch (clase) {
    case ClasePantalla::Linea: return c.NLINEA;
    case ClasePantalla::Punto: return c.NPUNTO;
    case ClasePantalla::Tit: return c.NTIT;
    case ClasePantalla::Barra: return c.NBARRA;
    case ClasePantalla::SecRect: return c.NSECRECT;
    case ClasePantalla::SecCir: break;
    }
    return c.NSECCIR;
}

template <typename Forma>
Forma* Rellena(Forma* forma)
{
    forma->setPen(BordeFino(Qt::black));  // the default window-text colour
    forma->setBrush(Qt::black);
    return forma;
}

// A new element as the template of its control array looks.
QGraphicsItem* Plantilla(ClasePantalla clase)
{
    switch (clase) {
    case ClasePantalla::Linea: {
        auto* linea = new Linea;
        FijaBorde(linea, Qt::black, kContinua, 1);
        return linea;
    }
    case ClasePantalla::Punto: {
        auto* punto = new QGraphicsEllipseItem(0.0, 0.0, kPunto, kPunto);
        punto->setPen(BordeFino(Qt::black));
        return punto;
    }
    case ClasePantalla::Tit: return new Rotulo;
    case ClasePantalla::Barra: return Rellena(new QGraphicsRectItem);
    case ClasePantalla::SecRect: return Rellena(new RectanguloRedondeado);
    case ClasePantalla::SecCir: break;
    }
    return Rellena(new QGraphicsEllipseItem);
}

// Sets on a screen element the properties of list element i, with the fit `e`.
void Coloca(QGraphicsItem* control, const GeneralDibujo& d, int i, const Encuadre& e)
{
    auto f = [&d, i](int c) { return d.LISTA(i, c); };
    const QColor color = ColorDeLista(f(campo::kColor));
    const auto clase = static_cast<Clase>(ClaseElemento(d, i));
    switch (clase) {
    case Clase::Linea: {
        auto* linea = static_cast<QGraphicsLineItem*>(control);
        linea->setLine(e.X(f(campo::kX1)), e.Y(f(campo::kY1)), e.X(f(campo::kX2)), e.Y(f(campo::kY2)));
        FijaBorde(linea, color, Redondea(f(campo::kEstilo)), Redondea(f(campo::kAncho)));
        return;
    }
    case Clase::Punto:
        // The point keeps the template's size.
        FijaMarco(control,
                  QRectF(e.X(f(campo::kX1)) - kPunto / 2.0, e.Y(f(campo::kY1)) - kPunto / 2.0, kPunto, kPunto));
        static_cast<QAbstractGraphicsShapeItem*>(control)->setPen(BordeFino(color));
        return;
    case Clase::Texto:
    case Clase::TextoIzquierda:
    case Clase::TextoDerecha: {
        auto* rotulo = static_cast<Rotulo*>(control);
        rotulo->Fija(QString::fromStdString(d.TEXTOS(i)), f(campo::kTamano), f(campo::kNegrita) != 0.0);
        const QSizeF medida = rotulo->Medida();
        const EsquinaTexto esquina =
            ColocaTexto(clase, e.X(f(campo::kX1)), e.Y(f(campo::kY1)), medida.width(), medida.height());
        rotulo->setPos(esquina.izquierda, esquina.arriba);
        rotulo->FijaColor(color);
        return;
    }
    case Clase::Barra:
    case Clase::RectanguloRedondeado:
    case Clase::Elipse:
        // From the first corner, whichever way the second lies.
        FijaMarco(control,
                  QRectF(e.X(f(campo::kX1)), e.Y(f(campo::kY1)), std::abs(f(campo::kX2) - f(campo::kX1)) * e.escalaX,
                         std::abs(f(campo::kY2) - f(campo::kY1)) * e.escalaY));
        static_cast<QAbstractGraphicsShapeItem*>(control)->setBrush(color);
        return;
    }
}

// A line of the zoom reaches beyond 100000000 pixels when zoomed from (izquierda, arriba).
bool FueraDeAlcance(const QLineF& linea, double izquierda, double arriba, const GeneralDibujo& d)
{
    constexpr double kAlcance = 100000000.0;
    return std::abs((linea.x1() - izquierda) * d.ESCALAX) > kAlcance ||
           std::abs((linea.y1() - arriba) * d.ESCALAY) > kAlcance ||
           std::abs((linea.x2() - izquierda) * d.ESCALAX) > kAlcance ||
           std::abs((linea.y2() - arriba) * d.ESCALAY) > kAlcance;
}

// What a screen element of kind `clase` shows.
ElementoPantalla Lee(ClasePantalla clase, const QGraphicsItem* control)
{
    ElementoPantalla elemento;
    elemento.clase = clase;
    elemento.visible = control->isVisible();
    switch (clase) {
    case ClasePantalla::Linea: {
        const auto* linea = static_cast<const QGraphicsLineItem*>(control);
        const QLineF l = linea->line();
        elemento.x1 = l.x1();
        elemento.y1 = l.y1();
        elemento.x2 = l.x2();
        elemento.y2 = l.y2();
        elemento.color = linea->pen().color();
        elemento.estilo = EstiloDe(linea);
        elemento.grosor = GrosorDe(linea);
        return elemento;
    }
    case ClasePantalla::Tit: {
        const auto* rotulo = static_cast<const Rotulo*>(control);
        elemento.izquierda = rotulo->x();
        elemento.arriba = rotulo->y();
        elemento.ancho = rotulo->Medida().width();
        elemento.alto = rotulo->Medida().height();
        elemento.color = rotulo->ColorTexto();
        elemento.texto = rotulo->Texto();
        elemento.fuente = rotulo->Fuente().family();
        elemento.tamano = rotulo->Tamano();
        elemento.negrita = rotulo->Negrita();
        return elemento;
    }
    case ClasePantalla::Punto:
    case ClasePantalla::Barra:
    case ClasePantalla::SecRect:
    case ClasePantalla::SecCir: break;
    }
    const QRectF marco = MarcoDe(control);
    elemento.izquierda = marco.left();
    elemento.arriba = marco.top();
    elemento.ancho = marco.width();
    elemento.alto = marco.height();
    const auto* forma = static_cast<const QAbstractGraphicsShapeItem*>(control);
    elemento.color = clase == ClasePantalla::Punto ? forma->pen().color() : forma->brush().color();
    return elemento;
}

}  // namespace

EscenaDibujo::EscenaDibujo(TamanoDibujo tamano, QObject* padre) : QGraphicsScene(padre), tamano_(tamano)
{
    setSceneRect(0.0, 0.0, tamano.ancho, tamano.alto);
    setItemIndexMethod(QGraphicsScene::NoIndex);  // the zoom moves everything at once
    setBackgroundBrush(Qt::white);
}

// The items go with the scene; the arrays only name them.
EscenaDibujo::~EscenaDibujo() = default;

// ---- The control arrays

QGraphicsItem* EscenaDibujo::Crea(ClasePantalla clase)
{
    QGraphicsItem* control = Plantilla(clase);
    control->hide();
    addItem(control);
    controles_[Indice(clase)].push_back(control);
    return control;
}

QGraphicsItem* EscenaDibujo::Control(ClasePantalla clase, int numero)
{
    std::vector<QGraphicsItem*>& arreglo = controles_[Indice(clase)];
    while (static_cast<int>(arreglo.size()) < numero)
        Crea(clase);
    return arreglo[static_cast<std::size_t>(numero - 1)];
}

QGraphicsItem* EscenaDibujo::Existente(ClasePantalla clase, int numero) const
{
    const std::vector<QGraphicsItem*>& arreglo = controles_[Indice(clase)];
    if (numero < 1 || numero > static_cast<int>(arreglo.size())) return nullptr;
    return arreglo[static_cast<std::size_t>(numero - 1)];
}

void EscenaDibujo::DestruyeTodos()
{
    for (ClasePantalla clase : kClasesPantalla) {
        std::vector<QGraphicsItem*>& arreglo = controles_[Indice(clase)];
        for (QGraphicsItem* control : arreglo)
            delete control;  // leaves the scene as it goes
        arreglo.clear();
    }
}

int EscenaDibujo::Cuantos(const ContadoresDibujo& contadores, ClasePantalla clase) const
{
    const int existen = static_cast<int>(controles_[Indice(clase)].size());
    return std::clamp(static_cast<int>(Contador(contadores, clase)), 0, existen);
}

void EscenaDibujo::EscondeLineas(const ContadoresDibujo& contadores)
{
    const int lineas = Cuantos(contadores, ClasePantalla::Linea);
    for (int n = 1; n <= lineas; ++n)
        Control(ClasePantalla::Linea, n)->hide();
}

// ---- The renderers

void EscenaDibujo::Numera(const GeneralDibujo& d, const Encuadre& e, ContadoresDibujo& contadores,
                          Faltantes faltantes)
{
    BorraDibujo(contadores);
    for (int i = 1; i <= d.NLISTA; ++i) {
        const std::optional<ClasePantalla> clase = ClaseEnPantalla(ClaseElemento(d, i));
        if (!clase) continue;
        Entero& contador = Contador(contadores, *clase);
        QGraphicsItem* control = faltantes == Faltantes::SeCrean ? Control(*clase, contador + 1)
                                                                 : Existente(*clase, contador + 1);
        if (control == nullptr) continue;
        ++contador;
        Coloca(control, d, i, e);
        control->setZValue(-i);  // of two overlapping elements, the earlier one in front
        control->show();
    }
}

void EscenaDibujo::Muestra(const GeneralDibujo& d, const Encuadre& e, ContadoresDibujo& contadores)
{
    // Every element of the scene goes, even one that the counters no longer name (a screen
    // that closes sets them to 0), so that nothing of an earlier diagram stays on show.
    DestruyeTodos();
    Numera(d, e, contadores, Faltantes::SeCrean);
}

void EscenaDibujo::DibujaLista(GeneralDibujo& d, Entero isotropico)
{
    Muestra(d, Ajusta(d, tamano_.ancho, tamano_.alto, isotropico), d);
}

void EscenaDibujo::RedibujaLista(GeneralDibujo& d, Entero isotropico)
{
    EscondeLineas(d);
    const Encuadre e = AjustaGuardado(d, isotropico);
    // Nothing is created: a picture that has shown no list (while the state keeps the list of
    // another screen's picture) stays empty, and the counters name only what exists.
    Numera(d, e, d, Faltantes::SeOmiten);
}

void EscenaDibujo::AmpliaVentana(GeneralDibujo& d)
{
    EscondeLineas(d);

    double izquierda = std::min(d.ZOOMX1, d.ZOOMX2);
    double arriba = std::min(d.ZOOMY1, d.ZOOMY2);
    if (d.ZOOMX2 == d.ZOOMX1) d.ZOOMX2 = d.ZOOMX1 + 1.0;
    if (d.ZOOMY2 == d.ZOOMY1) d.ZOOMY2 = d.ZOOMY1 + 1.0;
    d.ESCALAX = d.ANCHOPIC / std::abs(d.ZOOMX2 - d.ZOOMX1);
    d.ESCALAY = d.ALTOPIC / std::abs(d.ZOOMY2 - d.ZOOMY1);
    d.ZOOM = std::min(d.ESCALAX, d.ESCALAY);  // the whole rectangle fits, the aspect is kept

    auto amplia = [&](double valor, double origen) { return (valor - origen) * d.ZOOM; };
    const int lineas = Cuantos(d, ClasePantalla::Linea);
    for (int n = 1; n <= lineas; ++n) {
        auto* linea = static_cast<QGraphicsLineItem*>(Control(ClasePantalla::Linea, n));
        const QLineF l = linea->line();
        if (FueraDeAlcance(l, izquierda, arriba, d)) {
            // The zoom is given up from this line on; what it has moved stays moved.
            izquierda = 0.0;
            arriba = 0.0;
            d.ZOOM = 1.0;
        }
        linea->setLine(amplia(l.x1(), izquierda), amplia(l.y1(), arriba), amplia(l.x2(), izquierda),
                       amplia(l.y2(), arriba));
        linea->show();
    }

    const int titulos = Cuantos(d, ClasePantalla::Tit);
    for (int n = 1; n <= titulos; ++n) {
        auto* rotulo = static_cast<Rotulo*>(Control(ClasePantalla::Tit, n));
        rotulo->setPos(amplia(rotulo->x(), izquierda), amplia(rotulo->y(), arriba));
        rotulo->FijaFuente(rotulo->Tamano() * d.ZOOM, rotulo->Negrita());  // the texts grow too
        rotulo->show();
    }

    for (ClasePantalla clase :
         {ClasePantalla::Barra, ClasePantalla::Punto, ClasePantalla::SecRect, ClasePantalla::SecCir}) {
        const int formas = Cuantos(d, clase);
        for (int n = 1; n <= formas; ++n) {
            QGraphicsItem* forma = Control(clase, n);
            const QRectF marco = MarcoDe(forma);
            FijaMarco(forma, QRectF(amplia(marco.left(), izquierda), amplia(marco.top(), arriba),
                                    marco.width() * d.ZOOM, marco.height() * d.ZOOM));
            forma->show();
        }
    }
}

// ---- Read back

std::vector<ElementoPantalla> EscenaDibujo::Elementos(ClasePantalla clase) const
{
    std::vector<ElementoPantalla> elementos;
    for (const QGraphicsItem* control : controles_[Indice(clase)])
        elementos.push_back(Lee(clase, control));
    return elementos;
}

}  // namespace texalon
