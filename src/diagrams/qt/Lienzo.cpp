#include "diagrams/qt/Lienzo.h"

#include "diagrams/qt/ElementosLienzo.h"

#include <QFile>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

namespace texalon {

namespace {

// The template point: a hollow circle 105 twips across.
constexpr double kPunto = 7.0;
// The zoom band lies above every element, whose depths are the negated list numbers.
constexpr double kProfundidadBanda = 1.0;

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

// The counter of DIBUJO that belongs to a kind of screen element.
template <typename Dibujo>
auto& Contador(Dibujo& d, ClasePantalla clase)
{
    switch (clase) {
    case ClasePantalla::Linea: return d.NLINEA;
    case ClasePantalla::Punto: return d.NPUNTO;
    case ClasePantalla::Tit: return d.NTIT;
    case ClasePantalla::Barra: return d.NBARRA;
    case ClasePantalla::SecRect: return d.NSECRECT;
    case ClasePantalla::SecCir: break;
    }
    return d.NSECCIR;
}

// A one-pixel border, as the shapes of the screen have whatever the zoom.
QPen Borde(const QColor& color)
{
    QPen pluma(color);
    pluma.setCosmetic(true);
    pluma.setWidth(1);
    return pluma;
}

template <typename Forma>
Forma* Rellena(Forma* forma)
{
    forma->setPen(Borde(Qt::black));  // the default window-text colour
    forma->setBrush(Qt::black);
    return forma;
}

// A new element as the template of its control array looks.
QGraphicsItem* Plantilla(ClasePantalla clase)
{
    switch (clase) {
    case ClasePantalla::Linea: {
        auto* linea = new QGraphicsLineItem;
        FijaBorde(linea, Qt::black, kContinua, 1);
        return linea;
    }
    case ClasePantalla::Punto: {
        auto* punto = new QGraphicsEllipseItem(0.0, 0.0, kPunto, kPunto);
        punto->setPen(Borde(Qt::black));
        return punto;
    }
    case ClasePantalla::Tit: return new Rotulo;
    case ClasePantalla::Barra: return Rellena(new QGraphicsRectItem);
    case ClasePantalla::SecRect: return Rellena(new RectanguloRedondeado);
    case ClasePantalla::SecCir: break;
    }
    return Rellena(new QGraphicsEllipseItem);
}

// Left of a label `ancho` wide anchored at x: centred, ending a third of its width left of the
// anchor, or starting a third of its width right of it.
double IzquierdaRotulo(Clase clase, double x, double ancho)
{
    switch (clase) {
    case Clase::TextoIzquierda: return x - ancho * 4.0 / 3.0;
    case Clase::TextoDerecha: return x + ancho / 3.0;
    default: return x - ancho / 2.0;
    }
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
        static_cast<QAbstractGraphicsShapeItem*>(control)->setPen(Borde(color));
        return;
    case Clase::Texto:
    case Clase::TextoIzquierda:
    case Clase::TextoDerecha: {
        auto* rotulo = static_cast<Rotulo*>(control);
        rotulo->FijaFuente(f(campo::kTamano), f(campo::kNegrita) != 0.0);
        rotulo->FijaTexto(QString::fromStdString(d.TEXTOS(i)));
        const QSizeF medida = rotulo->Medida();
        rotulo->setPos(IzquierdaRotulo(clase, e.X(f(campo::kX1)), medida.width()),
                       e.Y(f(campo::kY1)) - medida.height() / 2.0);
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

}  // namespace

Lienzo::Lienzo(Pantalla pantalla, QWidget* padre, bool registrado)
    : Lienzo(pantalla, TamanoDe(pantalla), padre, registrado)
{
}

Lienzo::Lienzo(Pantalla pantalla, TamanoDibujo tamano, QWidget* padre, bool registrado)
    : QGraphicsView(padre),
      pantalla_(pantalla),
      tamano_(tamano),
      registrado_(registrado),
      escena_(new QGraphicsScene(this)),
      banda_(new QGraphicsRectItem)
{
    // The scene is the drawing area, so that a pointer position in the viewport is a position
    // in pixels of the picture, and nothing ever scrolls.
    escena_->setSceneRect(0.0, 0.0, tamano.ancho, tamano.alto);
    escena_->setItemIndexMethod(QGraphicsScene::NoIndex);  // the zoom moves everything at once
    escena_->setBackgroundBrush(Qt::white);
    setScene(escena_);
    setBackgroundBrush(Qt::white);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // A thin sunken border around the drawing area, as a picture box has.
    setFrameStyle(QFrame::Panel | QFrame::Sunken);
    setLineWidth(1);
    setFixedSize(tamano.ancho + 2 * frameWidth(), tamano.alto + 2 * frameWidth());
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);

    banda_->setPen(Borde(QColor(128, 0, 0)));
    banda_->setZValue(kProfundidadBanda);
    banda_->hide();
    escena_->addItem(banda_);

    if (registrado_) RegistraDibujante(pantalla_, this);
}

Lienzo::~Lienzo()
{
    if (registrado_ && DibujanteDe(pantalla_) == this) RegistraDibujante(pantalla_, nullptr);
}

// ---- The control arrays

QGraphicsItem* Lienzo::Crea(ClasePantalla clase)
{
    QGraphicsItem* control = Plantilla(clase);
    control->hide();
    escena_->addItem(control);
    controles_[Indice(clase)].push_back(control);
    return control;
}

QGraphicsItem* Lienzo::Control(ClasePantalla clase, int numero)
{
    std::vector<QGraphicsItem*>& arreglo = controles_[Indice(clase)];
    while (static_cast<int>(arreglo.size()) < numero)
        Crea(clase);
    return arreglo[static_cast<std::size_t>(numero - 1)];
}

void Lienzo::DestruyeTodos(ClasePantalla clase)
{
    std::vector<QGraphicsItem*>& arreglo = controles_[Indice(clase)];
    for (QGraphicsItem* control : arreglo)
        delete control;  // leaves the scene as it goes
    arreglo.clear();
}

int Lienzo::Cuantos(const GeneralDibujo& d, ClasePantalla clase) const
{
    const int existen = static_cast<int>(controles_[Indice(clase)].size());
    return std::clamp(static_cast<int>(Contador(d, clase)), 0, existen);
}

// ---- The renderers

void Lienzo::Numera(GeneralDibujo& d, const Encuadre& e)
{
    BorraDibujo(d);
    for (int i = 1; i <= d.NLISTA; ++i) {
        const std::optional<ClasePantalla> clase = ClaseEnPantalla(ClaseElemento(d, i));
        if (!clase) continue;
        Entero& contador = Contador(d, *clase);
        ++contador;
        QGraphicsItem* control = Control(*clase, contador);
        Coloca(control, d, i, e);
        control->setZValue(-i);  // of two overlapping elements, the earlier one in front
        control->show();
    }
}

void Lienzo::DibujaLista(GeneralDibujo& d, Entero isotropico)
{
    const Encuadre e = Ajusta(d, tamano_.ancho, tamano_.alto, isotropico);
    // Every element of the picture goes, even one that the counters no longer name (a screen
    // that closes sets them to 0), so that nothing of an earlier diagram stays on show.
    for (ClasePantalla clase : kClasesPantalla)
        DestruyeTodos(clase);
    Numera(d, e);
}

void Lienzo::RedibujaLista(GeneralDibujo& d, Entero isotropico)
{
    const int lineas = Cuantos(d, ClasePantalla::Linea);
    for (int n = 1; n <= lineas; ++n)
        Control(ClasePantalla::Linea, n)->hide();
    const Encuadre e = AjustaGuardado(d, isotropico);
    // The elements that the list numbers and that do not exist (a picture that has shown no
    // list yet) are created, so that the counters never name more than exist.
    Numera(d, e);
}

void Lienzo::AmpliaVentana(GeneralDibujo& d)
{
    const int lineas = Cuantos(d, ClasePantalla::Linea);
    for (int n = 1; n <= lineas; ++n)
        Control(ClasePantalla::Linea, n)->hide();

    double izquierda = std::min(d.ZOOMX1, d.ZOOMX2);
    double arriba = std::min(d.ZOOMY1, d.ZOOMY2);
    if (d.ZOOMX2 == d.ZOOMX1) d.ZOOMX2 = d.ZOOMX1 + 1.0;
    if (d.ZOOMY2 == d.ZOOMY1) d.ZOOMY2 = d.ZOOMY1 + 1.0;
    d.ESCALAX = d.ANCHOPIC / std::abs(d.ZOOMX2 - d.ZOOMX1);
    d.ESCALAY = d.ALTOPIC / std::abs(d.ZOOMY2 - d.ZOOMY1);
    d.ZOOM = std::min(d.ESCALAX, d.ESCALAY);  // the whole rectangle fits, the aspect is kept

    auto amplia = [&](double valor, double origen) { return (valor - origen) * d.ZOOM; };
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

namespace {

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

std::vector<ElementoPantalla> Lienzo::Elementos(ClasePantalla clase) const
{
    std::vector<ElementoPantalla> elementos;
    for (const QGraphicsItem* control : controles_[Indice(clase)])
        elementos.push_back(Lee(clase, control));
    return elementos;
}

bool Lienzo::BandaVisible() const { return banda_->isVisible(); }

QRectF Lienzo::Banda() const { return banda_->rect(); }

// ---- Mouse and keys

void Lienzo::Pulsa(Qt::MouseButton boton, const QPointF& punto)
{
    GeneralDibujo& d = EstadoDibujo();
    if (boton == Qt::LeftButton) {
        if (!d.F_ZOOM) {
            // The first corner of the zoom.
            d.F_ZOOM = true;
            d.ZOOMX1 = punto.x();
            d.ZOOMY1 = punto.y();
        } else {
            d.F_ZOOM = false;
            AmpliaVentana(d);
        }
    } else if (boton == Qt::RightButton) {
        // The section drawings keep their aspect; the picture of the characteristics screen
        // never shows one.
        const bool isotropico = d.F_SECCION && pantalla_ != Pantalla::Carac;
        RedibujaLista(d, isotropico ? 1 : 0);
    }
}

void Lienzo::mousePressEvent(QMouseEvent* evento)
{
    Pulsa(evento->button(), evento->position());
    evento->accept();
}

void Lienzo::mouseDoubleClickEvent(QMouseEvent* evento)
{
    Pulsa(evento->button(), evento->position());
    evento->accept();
}

void Lienzo::mouseMoveEvent(QMouseEvent* evento)
{
    GeneralDibujo& d = EstadoDibujo();
    if (d.F_ZOOM) {
        const QPointF punto = evento->position();
        banda_->setRect(std::min(d.ZOOMX1, punto.x()), std::min(d.ZOOMY1, punto.y()), std::abs(punto.x() - d.ZOOMX1),
                        std::abs(punto.y() - d.ZOOMY1));
        banda_->show();
        d.ZOOMX2 = punto.x();
        d.ZOOMY2 = punto.y();
    } else {
        banda_->hide();
    }
    evento->accept();
}

void Lienzo::keyPressEvent(QKeyEvent* evento)
{
    GeneralDibujo& d = EstadoDibujo();
    if (evento->key() == Qt::Key_Escape && d.F_ZOOM) {
        d.F_ZOOM = false;
        banda_->hide();
        evento->accept();
        return;
    }
    QGraphicsView::keyPressEvent(evento);
}

// ---- SVG

bool EscribeSvg(GeneralDibujo& d, Pantalla pantalla, Entero isotropico, const QString& fichero)
{
    QFile salida(fichero);
    if (!salida.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;

    // The picture of the file is gone when the file is written: the counters keep naming the
    // elements of the screen's picture, if there is one.
    std::array<Entero, kClasesPantalla.size()> contadores{};
    for (ClasePantalla clase : kClasesPantalla)
        contadores[Indice(clase)] = Contador(d, clase);
    Lienzo lienzo(pantalla, nullptr, false);
    lienzo.DibujaLista(d, isotropico);
    for (ClasePantalla clase : kClasesPantalla)
        Contador(d, clase) = contadores[Indice(clase)];

    const TamanoDibujo tamano = lienzo.Tamano();
    const QRectF area(0.0, 0.0, tamano.ancho, tamano.alto);
    QSvgGenerator svg;
    svg.setOutputDevice(&salida);
    svg.setSize(QSize(tamano.ancho, tamano.alto));
    svg.setViewBox(area);
    svg.setResolution(static_cast<int>(DpiPantalla()));
    svg.setTitle(QStringLiteral("TEXALON"));
    svg.setDescription(QStringLiteral("Diagrama de TEXALON, como se ve en la pantalla"));
    QPainter pintor;
    if (!pintor.begin(&svg)) return false;
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    lienzo.scene()->render(&pintor, area, area);  // the white background, then the elements
    pintor.end();
    salida.close();
    return salida.error() == QFileDevice::NoError;
}

}  // namespace texalon
