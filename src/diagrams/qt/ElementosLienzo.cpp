#include "diagrams/qt/ElementosLienzo.h"

#include "platform/qt/Fuentes.h"
#include "state/General.h"

#include <QFontMetricsF>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace texalon {

namespace {

// Where a line keeps its BorderStyle, which a pen cannot tell apart (1 and 6 are both solid).
constexpr int kDatoEstilo = 0;

// The largest font size that a label is drawn at. The font engine fails on sizes much larger
// than this, and a zoom easily asks for them; a larger label is measured and drawn at this size
// and scaled, which for a scalable font is the same.
constexpr double kTamanoMaximo = 2160.0;

Qt::PenStyle EstiloQt(int estilo)
{
    switch (estilo) {
    case 0: return Qt::NoPen;
    case 2: return Qt::DashLine;
    case 3: return Qt::DotLine;
    case 4: return Qt::DashDotLine;
    case 5: return Qt::DashDotDotLine;
    default: return Qt::SolidLine;  // 1, and 6, solid inside the shape, which a line does not have
    }
}

QFont FuenteA(double tamano, bool negrita)
{
    QFont fuente(QString::fromLatin1(Rotulo::kFuente));
    fuente.setPointSizeF(tamano);
    fuente.setBold(negrita);
    return plataforma::ConAnchoPropio(fuente);
}

}  // namespace

QColor ColorDeLista(double color)
{
    const ComponentesRGB c = Componentes(static_cast<Color>(std::llround(color)));
    return {c.rojo, c.verde, c.azul};
}

QPen BordeFino(const QColor& color)
{
    QPen pluma(color);
    pluma.setCosmetic(true);
    pluma.setWidth(1);
    return pluma;
}

QRectF Linea::boundingRect() const
{
    // The stroke reaches half the pen's width from the line, its round caps as far at the ends;
    // the whole width all round holds the outline Qt strokes for it in any direction.
    const double margen = std::max(pen().widthF(), 1.0);
    return QRectF(line().p1(), line().p2()).normalized().adjusted(-margen, -margen, margen, margen);
}

void FijaBorde(QGraphicsLineItem* linea, const QColor& color, int estilo, int grosor)
{
    QPen pluma(color);
    pluma.setCosmetic(true);
    pluma.setWidth(std::max(grosor, 1));
    pluma.setStyle(EstiloQt(estilo));
    // Round ends join the segments of a curve smoothly; a dotted line keeps its dots apart.
    pluma.setCapStyle(pluma.style() == Qt::SolidLine ? Qt::RoundCap : Qt::FlatCap);
    linea->setPen(pluma);
    linea->setData(kDatoEstilo, estilo);
}

int EstiloDe(const QGraphicsLineItem* linea) { return linea->data(kDatoEstilo).toInt(); }

int GrosorDe(const QGraphicsLineItem* linea) { return linea->pen().width(); }

double DpiPantalla()
{
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    return pantalla != nullptr ? std::round(pantalla->logicalDotsPerInchY()) : 96.0;
}

// ---- Rotulo

Rotulo::Rotulo() { Mide(); }

void Rotulo::FijaTexto(const QString& texto)
{
    texto_ = texto;
    Mide();
}

void Rotulo::FijaFuente(double tamano, bool negrita)
{
    tamano_ = tamano;
    negrita_ = negrita;
    Mide();
}

void Rotulo::Fija(const QString& texto, double tamano, bool negrita)
{
    texto_ = texto;
    tamano_ = tamano;
    negrita_ = negrita;
    Mide();
}

void Rotulo::FijaColor(const QColor& color)
{
    color_ = color;
    update();
}

QFont Rotulo::Fuente() const { return FuenteA(tamano_, negrita_); }

void Rotulo::Mide()
{
    prepareGeometryChange();
    if (tamano_ <= 0.0) {
        medida_ = {};
        return;
    }
    const double medido = std::min(tamano_, kTamanoMaximo);
    const double escala = tamano_ / medido;
    // The font and its ascent are kept for the painting, which happens far more often.
    fuente_ = FuenteA(medido, negrita_);
    const QFontMetricsF metrica(fuente_);
    ascenso_ = metrica.ascent();
    medida_ = {metrica.horizontalAdvance(texto_) * escala, metrica.height() * escala};
}

QRectF Rotulo::boundingRect() const
{
    // Bold glyphs may reach a little beyond the advance of the text.
    const double margen = medida_.height() / 4.0;
    return QRectF(QPointF(0.0, 0.0), medida_).adjusted(-margen, -margen, margen, margen);
}

void Rotulo::paint(QPainter* pintor, const QStyleOptionGraphicsItem* /*opcion*/, QWidget* /*widget*/)
{
    if (texto_.isEmpty() || tamano_ <= 0.0) return;
    const double dibujado = std::min(tamano_, kTamanoMaximo);
    const double escala = tamano_ / dibujado;
    // The label was measured at the screen's resolution. On a device of another one (an image,
    // an SVG file) the font is resized so that the text keeps its size in pixels.
    const QPaintDevice* dispositivo = pintor->device();
    const double dpi = dispositivo != nullptr ? dispositivo->logicalDpiY() : DpiPantalla();
    const double pintado = dibujado * DpiPantalla() / dpi;
    pintor->save();
    pintor->scale(escala, escala);
    pintor->setFont(pintado == dibujado ? fuente_ : FuenteA(pintado, negrita_));
    pintor->setPen(color_);
    pintor->drawText(QPointF(0.0, ascenso_), texto_);
    pintor->restore();
}

// ---- RectanguloRedondeado

RectanguloRedondeado::RectanguloRedondeado(const QRectF& marco) { setRect(marco); }

void RectanguloRedondeado::setRect(const QRectF& marco)
{
    marco_ = marco;
    const double radio = 0.1 * std::min(std::abs(marco.width()), std::abs(marco.height()));
    QPainterPath camino;
    camino.addRoundedRect(marco, radio, radio);
    setPath(camino);
}

// ---- Shapes

QRectF MarcoDe(const QGraphicsItem* forma)
{
    if (const auto* rectangulo = qgraphicsitem_cast<const QGraphicsRectItem*>(forma)) return rectangulo->rect();
    if (const auto* elipse = qgraphicsitem_cast<const QGraphicsEllipseItem*>(forma)) return elipse->rect();
    if (const auto* redondeado = qgraphicsitem_cast<const RectanguloRedondeado*>(forma)) return redondeado->rect();
    return {};
}

void FijaMarco(QGraphicsItem* forma, const QRectF& marco)
{
    if (auto* rectangulo = qgraphicsitem_cast<QGraphicsRectItem*>(forma))
        rectangulo->setRect(marco);
    else if (auto* elipse = qgraphicsitem_cast<QGraphicsEllipseItem*>(forma))
        elipse->setRect(marco);
    else if (auto* redondeado = qgraphicsitem_cast<RectanguloRedondeado*>(forma))
        redondeado->setRect(marco);
}

}  // namespace texalon
