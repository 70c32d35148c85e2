// The retained elements of a picture: the control arrays Linea, Punto, Tit, Barra, Sec_rect
// and Sec_cir of a screen's picture, as items of a QGraphicsScene whose units are the
// picture's pixels.
//
// DibujaLista fits the list to the scene's size and replaces the elements with one per list
// element; RedibujaLista fits the existing elements again; AmpliaVentana zooms them in place,
// so that zooms compound. Of two overlapping elements the earlier one of the list lies in
// front. The elements are data that can be read back.
//
// A scene shows itself on the picture of a screen (Lienzo) or in an SVG file (Svg.h); it builds
// no widget, and it counts its elements into the drawing state's counters or into a set of
// its own.
#pragma once

#include "diagrams/Lista.h"
#include "diagrams/qt/Dibujos.h"
#include "state/General.h"

#include <QColor>
#include <QGraphicsScene>
#include <QString>

#include <array>
#include <vector>

class QGraphicsItem;

namespace texalon {

// The screen element kinds, the control arrays of the picture, in the order in which they are
// destroyed.
enum class ClasePantalla { Linea, Punto, Tit, Barra, SecRect, SecCir };
constexpr std::array<ClasePantalla, 6> kClasesPantalla = {ClasePantalla::Linea,   ClasePantalla::Punto,
                                                          ClasePantalla::Tit,     ClasePantalla::Barra,
                                                          ClasePantalla::SecRect, ClasePantalla::SecCir};

// What a retained element shows, read back from the scene.
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

class EscenaDibujo : public QGraphicsScene {
    Q_OBJECT
public:
    // An empty white scene of the picture's size: a point of the picture in pixels is the same
    // point of the scene.
    explicit EscenaDibujo(TamanoDibujo tamano, QObject* padre = nullptr);
    ~EscenaDibujo() override;

    EscenaDibujo(const EscenaDibujo&) = delete;
    EscenaDibujo& operator=(const EscenaDibujo&) = delete;

    TamanoDibujo Tamano() const { return tamano_; }

    // The first showing of the list: the fit at the scene's size, stored in the drawing state;
    // every existing element destroyed and one created per list element, counted into the
    // state's counters.
    void DibujaLista(GeneralDibujo& d, Entero isotropico);
    // The list with the fit `e`, every element replaced as DibujaLista does, counted into
    // `contadores`; the rest of the drawing state stays as it is.
    void Muestra(const GeneralDibujo& d, const Encuadre& e, ContadoresDibujo& contadores);
    // The fit again over the existing elements, with the ANCHOPIC and ALTOPIC in store.
    void RedibujaLista(GeneralDibujo& d, Entero isotropico);
    // The zoom into the rectangle of ZOOMX1, ZOOMY1, ZOOMX2, ZOOMY2.
    void AmpliaVentana(GeneralDibujo& d);

    // The elements of one kind that exist, in the order of their numbers (1 to the counter).
    std::vector<ElementoPantalla> Elementos(ClasePantalla clase) const;

private:
    // Element `numero` of a control array, created from the template when it does not exist
    // yet; numbers follow one another from 1.
    QGraphicsItem* Control(ClasePantalla clase, int numero);
    // Element `numero` of a control array, or none when it does not exist.
    QGraphicsItem* Existente(ClasePantalla clase, int numero) const;
    QGraphicsItem* Crea(ClasePantalla clase);
    void DestruyeTodos();
    // How many of the elements of a kind the counter names and exist.
    int Cuantos(const ContadoresDibujo& contadores, ClasePantalla clase) const;
    void EscondeLineas(const ContadoresDibujo& contadores);

    // Whether the numbering makes the elements that the list names and that do not exist.
    enum class Faltantes { SeCrean, SeOmiten };
    // Numbers the elements after the list, as the counters rise, and sets on each the
    // properties of its list element with the fit `e`. An element left out is not counted.
    void Numera(const GeneralDibujo& d, const Encuadre& e, ContadoresDibujo& contadores, Faltantes faltantes);

    TamanoDibujo tamano_;
    // The control arrays: element n of a kind at position n - 1. The scene owns the items.
    std::array<std::vector<QGraphicsItem*>, kClasesPantalla.size()> controles_;
};

}  // namespace texalon
