#include "diagrams/qt/Lienzo.h"

#include "diagrams/qt/ElementosLienzo.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace texalon {

Lienzo::Lienzo(const Dibujo& dibujo, QWidget* padre) : Lienzo(dibujo, dibujo.tamano, padre) {}

Lienzo::Lienzo(const Dibujo& dibujo, TamanoDibujo tamano, QWidget* padre)
    : QGraphicsView(padre), dibujo_(dibujo), escena_(new EscenaDibujo(tamano, this))
{
    setObjectName(QString::fromLatin1(dibujo.nombre));
    // The scene is the drawing area, so that a pointer position in the viewport is a position
    // in pixels of the picture, and nothing ever scrolls.
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
}

Entero Lienzo::IsotropicoDeLaLista() const
{
    return EstadoDibujo().F_SECCION && dibujo_.muestraSecciones ? kIsotropico : kAnisotropico;
}

// ---- The band

void Lienzo::MuestraBanda(const QRectF& banda)
{
    banda_ = banda;
    bandaVisible_ = true;
    viewport()->update();
}

void Lienzo::EscondeBanda()
{
    if (!bandaVisible_) return;
    bandaVisible_ = false;
    viewport()->update();
}

void Lienzo::drawForeground(QPainter* pintor, const QRectF& /*area*/)
{
    if (!bandaVisible_) return;
    pintor->setPen(BordeFino(QColor(128, 0, 0)));
    pintor->setBrush(Qt::NoBrush);
    pintor->drawRect(banda_);
}

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
            escena_->AmpliaVentana(d);
        }
    } else if (boton == Qt::RightButton) {
        escena_->RedibujaLista(d, IsotropicoDeLaLista());
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
        MuestraBanda(QRectF(std::min(d.ZOOMX1, punto.x()), std::min(d.ZOOMY1, punto.y()),
                            std::abs(punto.x() - d.ZOOMX1), std::abs(punto.y() - d.ZOOMY1)));
        d.ZOOMX2 = punto.x();
        d.ZOOMY2 = punto.y();
    } else {
        EscondeBanda();
    }
    evento->accept();
}

void Lienzo::keyPressEvent(QKeyEvent* evento)
{
    GeneralDibujo& d = EstadoDibujo();
    if (evento->key() == Qt::Key_Escape && d.F_ZOOM) {
        d.F_ZOOM = false;
        EscondeBanda();
        evento->accept();
        return;
    }
    QGraphicsView::keyPressEvent(evento);
}

}  // namespace texalon
