// The retained elements of a picture as scene items, with the look of the screen's templates:
// lines with a border colour, style and width; hollow points; text labels that take the size
// of their text; filled bars, rounded rectangles and ellipses with a black border.
//
// Positions and sizes are pixels of the picture, which are the scene's units.
#pragma once

#include <QColor>
#include <QFont>
#include <QGraphicsItem>
#include <QGraphicsLineItem>
#include <QGraphicsPathItem>
#include <QPen>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace texalon {

// The colour of a list element: red + 256 × green + 65536 × blue, rounded to an integer.
QColor ColorDeLista(double color);

// A one-pixel border, as the shapes of the picture and its zoom band have whatever the zoom.
QPen BordeFino(const QColor& color);

// A line of the picture (Linea). Its pen is cosmetic, a width in pixels whatever the zoom, and
// its bounds are the line's box grown by that width: what the scene asks of every item on every
// painting, worked out without stroking the line's outline as a line item does.
class Linea : public QGraphicsLineItem {
public:
    QRectF boundingRect() const override;
};

// The pen of a line: BorderColor, BorderStyle (0 none, 1 solid, 2 dashed, 3 dotted, 4 dash-dot,
// 5 dash-dot-dot, 6 solid inside) and BorderWidth in pixels, whatever the zoom.
void FijaBorde(QGraphicsLineItem* linea, const QColor& color, int estilo, int grosor);
int EstiloDe(const QGraphicsLineItem* linea);
int GrosorDe(const QGraphicsLineItem* linea);

// The logical dots per inch of the screen, at which the labels take their size.
double DpiPantalla();

// A label of the picture (Tit): its caption in Arial at a size in points, plain or bold, with no
// background. The label takes the size of its text at once when its caption or its font
// changes; its position is its top-left corner.
class Rotulo : public QGraphicsItem {
public:
    static constexpr const char* kFuente = "Arial";
    // The template's size, points.
    static constexpr double kTamanoInicial = 8.25;

    Rotulo();

    void FijaTexto(const QString& texto);
    void FijaFuente(double tamano, bool negrita);
    // Caption and font at once, measured once.
    void Fija(const QString& texto, double tamano, bool negrita);
    void FijaColor(const QColor& color);

    const QString& Texto() const { return texto_; }
    double Tamano() const { return tamano_; }
    bool Negrita() const { return negrita_; }
    const QColor& ColorTexto() const { return color_; }
    // Width and Height of the label: the advance and the height of its text.
    QSizeF Medida() const { return medida_; }
    // The font of the caption, as set.
    QFont Fuente() const;

    QRectF boundingRect() const override;
    void paint(QPainter* pintor, const QStyleOptionGraphicsItem* opcion, QWidget* widget) override;

private:
    // Measures the text again; the label's size follows.
    void Mide();

    QString texto_;
    double tamano_ = kTamanoInicial;
    bool negrita_ = false;
    QColor color_ = Qt::black;
    QSizeF medida_;
    QFont fuente_;  // at the size measured, the screen's resolution
    double ascenso_ = 0.0;  // of that font
};

// A rounded rectangle (Sec_rect), placed as the other shapes by its Left, Top, Width and
// Height; the corners are rounded by a tenth of the smaller side.
class RectanguloRedondeado : public QGraphicsPathItem {
public:
    enum { Type = UserType + 1 };

    explicit RectanguloRedondeado(const QRectF& marco = {});

    QRectF rect() const { return marco_; }
    void setRect(const QRectF& marco);

    int type() const override { return Type; }

private:
    QRectF marco_;
};

// Left, Top, Width and Height of a shape (Punto, Barra, Sec_rect, Sec_cir).
QRectF MarcoDe(const QGraphicsItem* forma);
void FijaMarco(QGraphicsItem* forma, const QRectF& marco);

}  // namespace texalon
