// The picture of a screen (PIC_FLEXION, PIC_CONFINA, PIC_CARAC): a white view of a fixed size
// that shows the scene of its retained elements (EscenaDibujo) and lets the user zoom into it.
//
// The view takes the mouse and the keys of the picture: two left clicks zoom into the
// rectangle between them, with the rubber band Window_zoom drawn over the scene from the first
// click to the pointer; Escape drops a started band; a right click fits the elements again.
// The drawing state holds the zoom's corners and flag, as every picture shares them.
#pragma once

#include "diagrams/qt/Dibujos.h"
#include "diagrams/qt/EscenaDibujo.h"
#include "state/General.h"

#include <QGraphicsView>
#include <QRectF>

namespace texalon {

class Lienzo : public QGraphicsView {
    Q_OBJECT
public:
    // The picture `dibujo`, of its size.
    explicit Lienzo(const Dibujo& dibujo, QWidget* padre = nullptr);
    // The same picture with a drawing area of another size, in pixels.
    Lienzo(const Dibujo& dibujo, TamanoDibujo tamano, QWidget* padre = nullptr);

    Lienzo(const Lienzo&) = delete;
    Lienzo& operator=(const Lienzo&) = delete;

    // The retained elements on show.
    EscenaDibujo& Escena() { return *escena_; }
    const EscenaDibujo& Escena() const { return *escena_; }

    // The drawing area in pixels: ScaleWidth and ScaleHeight of the picture, the viewport's
    // size and the scene's rectangle.
    TamanoDibujo Tamano() const { return escena_->Tamano(); }

    // The isotropic setting with which this picture fits the list in store again: one scale
    // when the list is a section drawing (F_SECCION) and the picture shows sections.
    Entero IsotropicoDeLaLista() const;

    // The rubber band Window_zoom: shown or not, and its rectangle in pixels.
    bool BandaVisible() const { return bandaVisible_; }
    QRectF Banda() const { return banda_; }

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    // The second click of a double click is a mouse down like the first.
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    // The band, over every element.
    void drawForeground(QPainter* pintor, const QRectF& area) override;

private:
    // A mouse button goes down at `punto`, in pixels of the picture.
    void Pulsa(Qt::MouseButton boton, const QPointF& punto);
    void MuestraBanda(const QRectF& banda);
    void EscondeBanda();

    const Dibujo& dibujo_;
    EscenaDibujo* escena_;
    QRectF banda_;
    bool bandaVisible_ = false;
};

}  // namespace texalon
