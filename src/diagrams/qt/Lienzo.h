// The picture of a screen (PIC_FLEXION, PIC_CONFINA, PIC_CARAC): a white retained canvas that
// shows display lists and lets the user zoom into them.
//
// DibujaLista creates one retained element per list element (Linea, Punto, Tit, Barra,
// Sec_rect, Sec_cir), fitted to the picture's size in pixels; RedibujaLista fits the existing
// elements again; AmpliaVentana zooms them in place, so that zooms compound. The earlier
// element of the list lies in front. The elements are data that can be read back.
#pragma once

#include "diagrams/Dibujante.h"
#include "diagrams/Lista.h"
#include "state/General.h"

#include <QColor>
#include <QGraphicsView>
#include <QRectF>
#include <QString>

#include <array>
#include <vector>

class QGraphicsItem;
class QGraphicsRectItem;
class QGraphicsScene;

namespace texalon {

// The screen element kinds, the control arrays of the picture, in the order in which they are
// destroyed.
enum class ClasePantalla { Linea, Punto, Tit, Barra, SecRect, SecCir };
constexpr std::array<ClasePantalla, 6> kClasesPantalla = {ClasePantalla::Linea,   ClasePantalla::Punto,
                                                          ClasePantalla::Tit,     ClasePantalla::Barra,
                                                          ClasePantalla::SecRect, ClasePantalla::SecCir};

// What a retained element shows, read back from the picture.
struct ElementoPantalla {
    ClasePantalla clase;
    bool visible = false;
    // Linea: x1, y1, x2, y2 in pixels; the others: Left, Top, Width, Height.
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double izquierda = 0, arriba = 0, ancho = 0, alto = 0;
    QColor color;  // BorderColor of lines and points, FillColor of shapes, ForeColor of texts
    int estilo = 1;  // BorderStyle of a line: 1 solid, 3 dotted
    int grosor = 1;  // BorderWidth of a line
    QString texto;  // Caption of a Tit
    QString fuente;  // Font.Name of a Tit
    double tamano = 0;  // Font.Size of a Tit, points
    bool negrita = false;  // Font.Bold of a Tit
};

class Lienzo : public QGraphicsView, public Dibujante {
    Q_OBJECT
public:
    // A picture of the given screen, of that screen's size. A registered one is the screen's
    // picture while it lives (the diagram procedures draw on it); the one that writes an SVG
    // file is not.
    Lienzo(Pantalla pantalla, QWidget* padre = nullptr, bool registrado = true);
    // The same picture with a drawing area of another size, in pixels.
    Lienzo(Pantalla pantalla, TamanoDibujo tamano, QWidget* padre = nullptr, bool registrado = true);
    ~Lienzo() override;

    Lienzo(const Lienzo&) = delete;
    Lienzo& operator=(const Lienzo&) = delete;

    // The drawing area in pixels: ScaleWidth and ScaleHeight of the picture, the viewport's
    // size and the scene's rectangle.
    TamanoDibujo Tamano() const { return tamano_; }

    // The first showing of the list: the fit at the picture's size, the existing elements
    // destroyed, one element created per list element, the counters of DIBUJO set.
    void DibujaLista(GeneralDibujo& d, Entero isotropico) override;
    // The fit again over the existing elements, with the ANCHOPIC and ALTOPIC in store.
    void RedibujaLista(GeneralDibujo& d, Entero isotropico);
    // The zoom into the rectangle of ZOOMX1, ZOOMY1, ZOOMX2, ZOOMY2.
    void AmpliaVentana(GeneralDibujo& d);

    // ---- Read back.
    // The elements of one kind that exist, in the order of their numbers (1 to the counter).
    std::vector<ElementoPantalla> Elementos(ClasePantalla clase) const;
    // The rubber band Window_zoom: shown or not, and its rectangle in pixels.
    bool BandaVisible() const;
    QRectF Banda() const;

protected:
    void mousePressEvent(QMouseEvent* evento) override;
    // The second click of a double click is a mouse down like the first.
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    // A mouse button goes down at `punto`, in pixels of the picture.
    void Pulsa(Qt::MouseButton boton, const QPointF& punto);

    // Element `numero` of a control array, created from the template when it does not exist
    // yet; numbers follow one another from 1.
    QGraphicsItem* Control(ClasePantalla clase, int numero);
    QGraphicsItem* Crea(ClasePantalla clase);
    void DestruyeTodos(ClasePantalla clase);
    // How many of the elements of a kind the counter names and exist.
    int Cuantos(const GeneralDibujo& d, ClasePantalla clase) const;

    // Numbers the screen elements after the list, as the counters rise, and sets on each the
    // properties of its list element with the fit `e`.
    void Numera(GeneralDibujo& d, const Encuadre& e);

    Pantalla pantalla_;
    TamanoDibujo tamano_;
    bool registrado_;
    QGraphicsScene* escena_;
    QGraphicsRectItem* banda_;  // Window_zoom
    // The control arrays: element n of a kind at position n - 1. The scene owns the items.
    std::array<std::vector<QGraphicsItem*>, kClasesPantalla.size()> controles_;
};

// Writes the list as the picture of `pantalla` would show it, fitted to that picture's size,
// to an SVG file. Needs a QApplication (offscreen will do). False when the file cannot be
// written.
bool EscribeSvg(GeneralDibujo& d, Pantalla pantalla, Entero isotropico, const QString& fichero);

}  // namespace texalon
