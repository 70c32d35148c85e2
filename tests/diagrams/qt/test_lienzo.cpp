// The picture of a screen: display lists fitted to its pixels, element by element; the order
// of the elements; the zoom and the redrawing, driven with the mouse and the keyboard as the
// user does; the scene that works without a view; and the SVG file that looks like the picture.
#include "diagrams/Lista.h"
#include "diagrams/qt/ElementosLienzo.h"
#include "diagrams/qt/EscenaDibujo.h"
#include "diagrams/qt/Lienzo.h"
#include "diagrams/qt/Svg.h"
#include "platform/qt/Fuentes.h"
#include "state/General.h"

#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace texalon;

// Two doubles that should be the same number, worked out in another order.
#define CERCA(real, esperado)                                             \
    do {                                                                  \
        const double r_ = (real);                                         \
        const double e_ = (esperado);                                     \
        QVERIFY2(std::abs(r_ - e_) <= 1e-9 * std::max(1.0, std::abs(e_)), \
                 qPrintable(QStringLiteral("%1 es %2, se esperaba %3")    \
                                .arg(QStringLiteral(#real))               \
                                .arg(r_, 0, 'g', 17)                      \
                                .arg(e_, 0, 'g', 17)));                   \
    } while (false)

namespace {

GeneralDibujo& D() { return EstadoDibujo(); }

// Width and Height of a label: its text measured in Arial at the screen's resolution.
QSizeF Medida(const QString& texto, double tamano, bool negrita)
{
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPointSizeF(tamano);
    fuente.setBold(negrita);
    const QFontMetricsF metrica(plataforma::ConAnchoPropio(fuente));
    return {metrica.horizontalAdvance(texto), metrica.height()};
}

int Escala(double valor) { return static_cast<int>(std::lround(valor)); }

// The six counters of the drawing state, in the order of kClasesPantalla: NLINEA, NPUNTO,
// NTIT, NBARRA, NSECRECT, NSECCIR.
using Contadores = std::array<Entero, 6>;
Contadores ContadoresDelEstado()
{
    const GeneralDibujo& d = EstadoDibujo();
    return {d.NLINEA, d.NPUNTO, d.NTIT, d.NBARRA, d.NSECRECT, d.NSECCIR};
}

// The list on which the zoom is tried, on a picture of 400 by 300 pixels. Its box runs from
// (0, 0) to (10, 10): ESCALAX 32, ESCALAY 24, world (0, 10) at pixel (40, 30) and (10, 0) at
// (360, 270).
void ListaDeZoom(GeneralDibujo& d)
{
    NuevaLista(d);
    Eje(d, 0, 10, 10, 0);  // (40, 30)-(360, 270)
    EtiquetaHorizontal(d, 5, 5, "DIAGRAMA");  // anchored at (200, 150)
    AnadeForma(d, Clase::Barra, 0, 10, 2, 8, kRojo);  // Left 40, Top 30, 64 by 48
    AnadePunto(d, 10, 10, kAzul);  // centre (360, 30)
    AnadeForma(d, Clase::RectanguloRedondeado, 4, 6, 6, 4, kGris);  // Left 168, Top 126, 64 by 48
    AnadeForma(d, Clase::Elipse, 8, 2, 10, 0, kAzul);  // Left 296, Top 222, 64 by 48
}

constexpr TamanoDibujo k400x300{400, 300};

}  // namespace

class PruebaLienzo : public QObject {
    Q_OBJECT

    std::unique_ptr<Lienzo> lienzo_;

    // A picture on show and active, as on its screen.
    Lienzo& Abre(const Dibujo& dibujo, std::optional<TamanoDibujo> tamano = std::nullopt)
    {
        lienzo_.reset();
        lienzo_ = tamano ? std::make_unique<Lienzo>(dibujo, *tamano) : std::make_unique<Lienzo>(dibujo);
        lienzo_->show();
        lienzo_->activateWindow();
        [[maybe_unused]] const bool activo = QTest::qWaitForWindowActive(lienzo_.get());
        // The pointer comes in at a point that no test uses: a move to where the pointer is
        // already reaches no widget, and every picture opens at the same place.
        QTest::mouseMove(Area(), QPoint(2, 3));
        return *lienzo_;
    }

    QWidget* Area() const { return lienzo_->viewport(); }
    void Clic(int x, int y, Qt::MouseButton boton = Qt::LeftButton)
    {
        QTest::mouseClick(Area(), boton, {}, QPoint(x, y));
    }
    void Mueve(int x, int y) { QTest::mouseMove(Area(), QPoint(x, y)); }
    // (QTest takes the point (0, 0) for the widget's centre: the tests click from (1, 1).)
    // The user drags a zoom window from one corner to the other and clicks there.
    void Amplia(int x1, int y1, int x2, int y2)
    {
        Clic(x1, y1);
        Mueve(x2, y2);
        Clic(x2, y2);
    }

    std::vector<ElementoPantalla> De(ClasePantalla clase) const { return lienzo_->Escena().Elementos(clase); }
    ElementoPantalla Uno(ClasePantalla clase, std::size_t numero = 1) const { return De(clase).at(numero - 1); }

    QImage Imagen() const { return Area()->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    // The rows of column x that have some ink, or are black.
    static std::vector<int> FilasConTinta(const QImage& imagen, int x)
    {
        std::vector<int> filas;
        for (int y = 0; y < imagen.height(); ++y)
            if (imagen.pixel(x, y) != qRgb(255, 255, 255)) filas.push_back(y);
        return filas;
    }
    static std::vector<int> FilasNegras(const QImage& imagen, int x)
    {
        std::vector<int> filas;
        for (int y = 0; y < imagen.height(); ++y)
            if (imagen.pixel(x, y) == qRgb(0, 0, 0)) filas.push_back(y);
        return filas;
    }

    // Every element of the picture where the zoom list left it after DibujaLista.
    void ListaDeZoomSinAmpliar()
    {
        const ElementoPantalla eje = Uno(ClasePantalla::Linea);
        CERCA(eje.x1, 40);
        CERCA(eje.y1, 30);
        CERCA(eje.x2, 360);
        CERCA(eje.y2, 270);
        QVERIFY(eje.visible);
        const QSizeF medida = Medida(QStringLiteral("DIAGRAMA"), 8, false);
        const ElementoPantalla tit = Uno(ClasePantalla::Tit);
        CERCA(tit.tamano, 8);
        CERCA(tit.izquierda, 200 - medida.width() / 2);
        CERCA(tit.arriba, 150 - medida.height() / 2);
        CERCA(tit.ancho, medida.width());
        const ElementoPantalla barra = Uno(ClasePantalla::Barra);
        CERCA(barra.izquierda, 40);
        CERCA(barra.arriba, 30);
        CERCA(barra.ancho, 64);
        CERCA(barra.alto, 48);
        const ElementoPantalla punto = Uno(ClasePantalla::Punto);
        CERCA(punto.izquierda, 356.5);
        CERCA(punto.arriba, 26.5);
        CERCA(punto.ancho, 7);
        CERCA(punto.alto, 7);
        const ElementoPantalla redondeado = Uno(ClasePantalla::SecRect);
        CERCA(redondeado.izquierda, 168);
        CERCA(redondeado.arriba, 126);
        const ElementoPantalla elipse = Uno(ClasePantalla::SecCir);
        CERCA(elipse.izquierda, 296);
        CERCA(elipse.arriba, 222);
        CERCA(elipse.ancho, 64);
        CERCA(elipse.alto, 48);
    }

private slots:
    void init() { D() = GeneralDibujo{}; }
    void cleanup() { lienzo_.reset(); }

    // ---- The picture

    void ElAreaDeDibujoEsElTamanoDeLaPantalla()
    {
        for (const Dibujo* dibujo : {&kPicFlexion, &kPicConfina, &kPicCarac}) {
            const TamanoDibujo tamano = dibujo->tamano;
            Lienzo& lienzo = Abre(*dibujo);
            QCOMPARE(lienzo.objectName(), QString::fromLatin1(dibujo->nombre));
            QCOMPARE(lienzo.viewport()->size(), QSize(tamano.ancho, tamano.alto));
            QCOMPARE(lienzo.scene(), &lienzo.Escena());
            QCOMPARE(lienzo.scene()->sceneRect(), QRectF(0, 0, tamano.ancho, tamano.alto));
            QCOMPARE(lienzo.mapToScene(QPoint(0, 0)), QPointF(0, 0));
            QCOMPARE(lienzo.mapToScene(QPoint(tamano.ancho - 1, tamano.alto - 1)),
                     QPointF(tamano.ancho - 1, tamano.alto - 1));
            QCOMPARE(lienzo.frameWidth(), 1);
            QCOMPARE(lienzo.size(), QSize(tamano.ancho + 2, tamano.alto + 2));
            QCOMPARE(lienzo.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
            QCOMPARE(lienzo.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
            QCOMPARE(lienzo.focusPolicy(), Qt::ClickFocus);
            QVERIFY(lienzo.viewport()->hasMouseTracking());
            QVERIFY(lienzo.renderHints().testFlag(QPainter::Antialiasing));
            QVERIFY(lienzo.renderHints().testFlag(QPainter::TextAntialiasing));
            QCOMPARE(lienzo.Tamano().ancho, tamano.ancho);
            // White and empty, the zoom band hidden.
            const QImage imagen = Imagen();
            QCOMPARE(imagen.pixel(tamano.ancho / 2, tamano.alto / 2), qRgb(255, 255, 255));
            QCOMPARE(lienzo.scene()->items().size(), 0);
            QVERIFY(!lienzo.BandaVisible());
        }
    }

    void LaEscenaDibujaSinNingunaVista()
    {
        // The retained elements need no widget: a scene alone takes the list, fits it and
        // counts its elements into the drawing state.
        const auto widgets = QApplication::allWidgets().size();
        EscenaDibujo escena(k400x300);
        QCOMPARE(escena.sceneRect(), QRectF(0, 0, 400, 300));
        QCOMPARE(escena.Tamano().ancho, 400);
        ListaDeZoom(D());
        escena.DibujaLista(D(), kAnisotropico);
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        CERCA(D().ANCHOPIC, 400);
        CERCA(D().ESCALAX, 32);
        QCOMPARE(D().NLINEA, Entero{1});
        QCOMPARE(D().NSECCIR, Entero{1});
        QCOMPARE(escena.items().size(), 6);
        const ElementoPantalla eje = escena.Elementos(ClasePantalla::Linea).at(0);
        CERCA(eje.x1, 40);
        CERCA(eje.y2, 270);
    }

    void MuestraCuentaEnOtrosContadoresYNoAjustaElEstado()
    {
        // The showing of a list that a report or a file wants: the scene's elements replaced
        // and counted where the caller says, the fit in store left as it was.
        EscenaDibujo escena(k400x300);
        ListaDeZoom(D());
        D().ANCHOPIC = 17.0;
        D().ESCALAX = 1.25;
        D().NLINEA = 9;
        ContadoresDibujo propios;
        escena.Muestra(D(), Encuadra(D(), 400, 300, kAnisotropico), propios);
        QCOMPARE(propios.NLINEA, Entero{1});
        QCOMPARE(propios.NTIT, Entero{1});
        QCOMPARE(propios.NBARRA, Entero{1});
        QCOMPARE(D().NLINEA, Entero{9});
        QCOMPARE(D().ANCHOPIC, 17.0);
        QCOMPARE(D().ESCALAX, 1.25);
        CERCA(escena.Elementos(ClasePantalla::Linea).at(0).x1, 40);
        CERCA(escena.Elementos(ClasePantalla::Barra).at(0).ancho, 64);
    }

    // ---- The fit on the screen

    void UnTextoSoloEncuadraDesdeElOrigen()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        NuevaLista(D());
        EtiquetaHorizontal(D(), 5, 5, "DIAGRAMA");
        lienzo.Escena().DibujaLista(D(), 0);
        // The box runs from (0, 0) to (5, 5) on 440 by 176 pixels.
        CERCA(D().ANCHOPIC, 440);
        CERCA(D().ALTOPIC, 176);
        CERCA(D().ESCALAX, 70.4);
        CERCA(D().ESCALAY, 28.16);
        const QSizeF medida = Medida(QStringLiteral("DIAGRAMA"), 8, false);
        const ElementoPantalla tit = Uno(ClasePantalla::Tit);
        CERCA(tit.izquierda, 396 - medida.width() / 2);
        CERCA(tit.arriba, 17.6 - medida.height() / 2);
    }

    void SeccionCuadradaIsotropicaSigueCuadrada()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        NuevaLista(D());
        AnadeForma(D(), Clase::Barra, 0, 1, 1, 0, kGris);
        lienzo.Escena().DibujaLista(D(), 1);
        CERCA(D().ESCALAX, 140.8);
        CERCA(D().ESCALAY, 140.8);
        ElementoPantalla barra = Uno(ClasePantalla::Barra);
        CERCA(barra.izquierda, 149.6);
        CERCA(barra.arriba, 17.6);
        CERCA(barra.ancho, 140.8);
        CERCA(barra.alto, 140.8);
        // Without the flag it is stretched to 80 % of each side.
        lienzo.Escena().DibujaLista(D(), 0);
        barra = Uno(ClasePantalla::Barra);
        CERCA(barra.izquierda, 44);
        CERCA(barra.arriba, 17.6);
        CERCA(barra.ancho, 352);
        CERCA(barra.alto, 140.8);
    }

    void AnchoNuloIsotropicoCaeEnElCentro()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        NuevaLista(D());
        Eje(D(), 2, 1, 2, 3);
        AnadeForma(D(), Clase::Barra, 2, 3, 2, 1, kRojo);
        lienzo.Escena().DibujaLista(D(), 1);
        QCOMPARE(D().ESCALAX, 0.0);
        QCOMPARE(D().ESCALAY, 0.0);
        const ElementoPantalla eje = Uno(ClasePantalla::Linea);
        CERCA(eje.x1, 220);
        CERCA(eje.y1, 88);
        CERCA(eje.x2, 220);
        CERCA(eje.y2, 88);
        const ElementoPantalla barra = Uno(ClasePantalla::Barra);
        CERCA(barra.izquierda, 220);
        CERCA(barra.arriba, 88);
        QCOMPARE(barra.ancho, 0.0);
        QCOMPARE(barra.alto, 0.0);
        // With a scale of its own each way, the height is drawn.
        lienzo.Escena().DibujaLista(D(), 0);
        CERCA(Uno(ClasePantalla::Linea).x1, 220);
        CERCA(Uno(ClasePantalla::Linea).y1, 158.4);
        CERCA(Uno(ClasePantalla::Linea).y2, 17.6);
    }

    void LineaDeGrosorTresTieneTresPixeles()
    {
        // 301 pixels high: a horizontal line falls on y = 150.5, between two rows.
        Abre(kPicFlexion, TamanoDibujo{400, 301});
        for (int grosor : {1, 2, 3}) {
            NuevaLista(D());
            AnadeLinea(D(), 0, 0, 10, 0, kNegro, kContinua, grosor);
            lienzo_->Escena().DibujaLista(D(), 0);
            const ElementoPantalla linea = Uno(ClasePantalla::Linea);
            CERCA(linea.y1, 150.5);
            CERCA(linea.x1, 40);
            CERCA(linea.x2, 360);
            QCOMPARE(linea.grosor, grosor);
            QCOMPARE(linea.estilo, 1);
            const QImage imagen = Imagen();
            const std::vector<int> tinta = FilasConTinta(imagen, 200);
            const std::vector<int> negras = FilasNegras(imagen, 200);
            if (grosor == 1) {
                QCOMPARE(tinta, (std::vector<int>{150}));
                QCOMPARE(negras, (std::vector<int>{150}));
            }
            if (grosor == 2) {  // from 149.5 to 151.5: one row and two halves
                QCOMPARE(tinta, (std::vector<int>{149, 150, 151}));
                QCOMPARE(negras, (std::vector<int>{150}));
            }
            if (grosor == 3) {
                QCOMPARE(tinta, (std::vector<int>{149, 150, 151}));
                QCOMPARE(negras, (std::vector<int>{149, 150, 151}));
            }
        }
        // The width stays in pixels when the zoom enlarges the line.
        lienzo_->setFocus();
        Amplia(100, 100, 110, 110);
        QCOMPARE(Uno(ClasePantalla::Linea).grosor, 3);
    }

    void LosLimitesDeUnaLineaCubrenSuTrazo()
    {
        // The scene repaints and finds its lines by their bounds: they hold the outline that Qt
        // strokes for the line and its pen, for every width, style and direction, and little more.
        EscenaDibujo escena(k400x300);
        for (int grosor : {1, 2, 3}) {
            NuevaLista(D());
            AnadeLinea(D(), 0, 0, 10, 0, kNegro, kContinua, grosor);
            AnadeLinea(D(), 0, 0, 10, 10, kRojo, kContinua, grosor);
            AnadeLinea(D(), 3, 0, 3, 10, kAzul, kPunteada, grosor);
            escena.DibujaLista(D(), kAnisotropico);
            QCOMPARE(escena.items().size(), 3);
            for (QGraphicsItem* item : escena.items()) {
                const auto* linea = static_cast<QGraphicsLineItem*>(item);
                QGraphicsLineItem referencia(linea->line());
                referencia.setPen(linea->pen());
                const QRectF trazo = referencia.boundingRect();
                const QRectF limites = linea->boundingRect();
                QVERIFY2(limites.adjusted(-1e-9, -1e-9, 1e-9, 1e-9).contains(trazo),
                         qPrintable(QStringLiteral("grosor %1: %2 %3 %4 %5 frente a %6 %7 %8 %9")
                                        .arg(grosor)
                                        .arg(limites.left()).arg(limites.top()).arg(limites.right()).arg(limites.bottom())
                                        .arg(trazo.left()).arg(trazo.top()).arg(trazo.right()).arg(trazo.bottom())));
                QVERIFY(limites.width() <= trazo.width() + 2 * grosor);
                QVERIFY(limites.height() <= trazo.height() + 2 * grosor);
            }
        }
    }

    void LineaPunteadaYContinua()
    {
        Abre(kPicFlexion, TamanoDibujo{400, 301});
        for (int estilo : {kContinua, kPunteada}) {
            NuevaLista(D());
            AnadeLinea(D(), 0, 0, 10, 0, kNegro, estilo, 1);
            lienzo_->Escena().DibujaLista(D(), 0);
            QCOMPARE(Uno(ClasePantalla::Linea).estilo, estilo);
            const QImage imagen = Imagen();
            int blancos = 0;
            int negros = 0;
            for (int x = 100; x < 300; ++x) {
                if (imagen.pixel(x, 150) == qRgb(255, 255, 255)) ++blancos;
                if (imagen.pixel(x, 150) == qRgb(0, 0, 0)) ++negros;
            }
            QVERIFY(negros > 0);
            if (estilo == kContinua) QCOMPARE(blancos, 0);
            if (estilo == kPunteada) QVERIFY(blancos > 50);
        }
    }

    // ---- The elements and their properties

    void ColoresDeLosEnterosRGB()
    {
        Abre(kPicFlexion);
        NuevaLista(D());
        AnadeLinea(D(), 0, 0, 10, 10, ColorRGB(12, 34, 56), kContinua, 1);
        AnadePunto(D(), 5, 5, ColorRGB(200, 100, 50));
        AnadeTexto(D(), Clase::Texto, 2, 8, ColorRGB(1, 2, 3), 8, false, "A");
        AnadeForma(D(), Clase::Barra, 6, 4, 9, 1, kCiruela);
        AnadeForma(D(), Clase::Elipse, 6, 9, 9, 6, kAzul);
        AnadeForma(D(), Clase::RectanguloRedondeado, 1, 4, 4, 1, kRojo);
        // A colour held in the double with a fraction is rounded: 255.6 is 256, green 1.
        AnadeLinea(D(), 0, 10, 10, 0, 0, kContinua, 1);
        D().LISTA(D().NLISTA, campo::kColor) = 255.6;
        lienzo_->Escena().DibujaLista(D(), 0);
        QCOMPARE(Uno(ClasePantalla::Linea, 1).color, QColor(12, 34, 56));
        QCOMPARE(Uno(ClasePantalla::Linea, 2).color, QColor(0, 1, 0));
        QCOMPARE(Uno(ClasePantalla::Punto).color, QColor(200, 100, 50));
        QCOMPARE(Uno(ClasePantalla::Tit).color, QColor(1, 2, 3));
        QCOMPARE(Uno(ClasePantalla::Barra).color, QColor(128, 0, 64));
        QCOMPARE(Uno(ClasePantalla::SecCir).color, QColor(0, 0, 255));
        QCOMPARE(Uno(ClasePantalla::SecRect).color, QColor(255, 0, 0));
        // The fill shows on the screen: the middle of the bar, world (7.5, 2.5).
        const double x = 7.5 * D().ESCALAX + 44;
        const double y = 158.4 - 2.5 * D().ESCALAY;
        QCOMPARE(Imagen().pixel(Escala(x), Escala(y)), qRgb(128, 0, 64));
    }

    void TextosArialAnclados()
    {
        Abre(kPicFlexion);
        NuevaLista(D());
        AnadeTexto(D(), Clase::Texto, 0, 0, kNegro, 8, false, "0.00");
        AnadeTexto(D(), Clase::TextoIzquierda, 10, 5, kRojo, 12, true, "  25");
        AnadeTexto(D(), Clase::TextoDerecha, 10, 10, kAzul, 10, false, "DEFORMACIÓN");
        lienzo_->Escena().DibujaLista(D(), 0);
        QCOMPARE(D().NTIT, Entero{3});
        // X(0) = 44, X(10) = 396; Y(0) = 158.4, Y(5) = 88, Y(10) = 17.6.
        const std::vector<ElementoPantalla> tits = De(ClasePantalla::Tit);
        QCOMPARE(tits.size(), std::size_t{3});
        const QSizeF centrado = Medida(QStringLiteral("0.00"), 8, false);
        const QSizeF izquierda = Medida(QStringLiteral("  25"), 12, true);
        const QSizeF derecha = Medida(QStringLiteral("DEFORMACIÓN"), 10, false);
        QVERIFY(centrado.width() > 0 && centrado.height() > 0);
        QVERIFY(izquierda.width() > Medida(QStringLiteral("25"), 12, true).width());  // the blanks count

        QCOMPARE(tits[0].texto, QStringLiteral("0.00"));
        QCOMPARE(tits[0].fuente, QStringLiteral("Arial"));
        QCOMPARE(tits[0].tamano, 8.0);
        QCOMPARE(tits[0].negrita, false);
        CERCA(tits[0].ancho, centrado.width());
        CERCA(tits[0].alto, centrado.height());
        CERCA(tits[0].izquierda, 44 - centrado.width() / 2);
        CERCA(tits[0].arriba, 158.4 - centrado.height() / 2);

        QCOMPARE(tits[1].texto, QStringLiteral("  25"));
        QCOMPARE(tits[1].fuente, QStringLiteral("Arial"));
        QCOMPARE(tits[1].tamano, 12.0);
        QCOMPARE(tits[1].negrita, true);
        QCOMPARE(tits[1].color, QColor(255, 0, 0));
        CERCA(tits[1].ancho, izquierda.width());
        CERCA(tits[1].izquierda, 396 - izquierda.width() * 4 / 3);
        CERCA(tits[1].arriba, 88 - izquierda.height() / 2);

        QCOMPARE(tits[2].texto, QStringLiteral("DEFORMACIÓN"));
        QCOMPARE(tits[2].tamano, 10.0);
        QCOMPARE(tits[2].negrita, false);
        CERCA(tits[2].izquierda, 396 + derecha.width() / 3);
        CERCA(tits[2].arriba, 17.6 - derecha.height() / 2);
        for (const ElementoPantalla& tit : tits)
            QVERIFY(tit.visible);
    }

    void FormasDesdeSuPrimeraEsquina()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        NuevaLista(D());
        AnadeForma(D(), Clase::Barra, 0, 10, 10, 0, kGris);
        AnadeForma(D(), Clase::RectanguloRedondeado, 2, 8, 4, 6, kRojo);
        AnadeForma(D(), Clase::Elipse, 6, 8, 8, 6, kAzul);
        // A bar whose first corner lies below the second hangs below it.
        AnadeForma(D(), Clase::Barra, 6, 2, 8, 6, kRojo);
        lienzo.Escena().DibujaLista(D(), 0);
        // ESCALAX 35.2, ESCALAY 14.08, X(0) = 44, Y(0) = 158.4.
        const ElementoPantalla barra = Uno(ClasePantalla::Barra, 1);
        CERCA(barra.izquierda, 44);
        CERCA(barra.arriba, 17.6);
        CERCA(barra.ancho, 352);
        CERCA(barra.alto, 140.8);
        const ElementoPantalla redondeado = Uno(ClasePantalla::SecRect);
        CERCA(redondeado.izquierda, 114.4);
        CERCA(redondeado.arriba, 45.76);
        CERCA(redondeado.ancho, 70.4);
        CERCA(redondeado.alto, 28.16);
        const ElementoPantalla elipse = Uno(ClasePantalla::SecCir);
        CERCA(elipse.izquierda, 255.2);
        CERCA(elipse.arriba, 45.76);
        CERCA(elipse.ancho, 70.4);
        CERCA(elipse.alto, 28.16);
        const ElementoPantalla colgada = Uno(ClasePantalla::Barra, 2);
        CERCA(colgada.izquierda, 255.2);
        CERCA(colgada.arriba, 130.24);
        CERCA(colgada.alto, 56.32);

        // The items: a rectangle, a rounded rectangle whose corner is cut, an ellipse.
        int rectangulos = 0;
        int elipses = 0;
        int redondeados = 0;
        for (QGraphicsItem* item : lienzo.scene()->items()) {
            if (!item->isVisible()) continue;
            if (qgraphicsitem_cast<QGraphicsRectItem*>(item) != nullptr) ++rectangulos;
            if (qgraphicsitem_cast<QGraphicsEllipseItem*>(item) != nullptr) ++elipses;
            if (auto* r = qgraphicsitem_cast<RectanguloRedondeado*>(item)) {
                ++redondeados;
                QVERIFY(r->path().contains(QPointF(115.4, 55)));
                QVERIFY(!r->path().contains(QPointF(114.6, 45.96)));
                QCOMPARE(r->brush().color(), QColor(255, 0, 0));
                QCOMPARE(r->pen().color(), QColor(0, 0, 0));
            }
        }
        QCOMPARE(rectangulos, 2);
        QCOMPARE(elipses, 1);
        QCOMPARE(redondeados, 1);
    }

    void PuntoHuecoDeSietePixeles()
    {
        Abre(kPicFlexion);
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 10);
        AnadePunto(D(), 5, 2, kRojo);
        lienzo_->Escena().DibujaLista(D(), 0);
        // X(5) = 220, Y(2) = 130.24.
        const ElementoPantalla punto = Uno(ClasePantalla::Punto);
        CERCA(punto.izquierda, 216.5);
        CERCA(punto.arriba, 126.74);
        QCOMPARE(punto.ancho, 7.0);
        QCOMPARE(punto.alto, 7.0);
        QCOMPARE(punto.color, QColor(255, 0, 0));
        const QImage imagen = Imagen();
        QCOMPARE(imagen.pixel(220, 130), qRgb(255, 255, 255));  // hollow
        QVERIFY(qRed(imagen.pixel(216, 130)) > qGreen(imagen.pixel(216, 130)));  // its red rim
    }

    // ---- Order and numbers

    void ElElementoAnteriorQuedaDelante()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        // The two bars overlap around world (5, 5), pixel (220, 88).
        for (bool rojaPrimero : {true, false}) {
            NuevaLista(D());
            AnadeForma(D(), Clase::Barra, 0, 10, 6, 4, rojaPrimero ? kRojo : kAzul);
            AnadeForma(D(), Clase::Barra, 4, 6, 10, 0, rojaPrimero ? kAzul : kRojo);
            lienzo.Escena().DibujaLista(D(), 0);
            QCOMPARE(Imagen().pixel(220, 88), rojaPrimero ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
        }
        // Across kinds too: a bar written before a line covers it, a text written before a bar
        // lies over the bar.
        NuevaLista(D());
        AnadeTexto(D(), Clase::Texto, 5, 5, kNegro, 8, false, "X");
        AnadeForma(D(), Clase::Barra, 0, 10, 10, 0, kRojo);
        AnadeLinea(D(), 0, 5, 10, 5, kAzul, kContinua, 3);
        lienzo.Escena().DibujaLista(D(), 0);
        const QList<QGraphicsItem*> encima = lienzo.scene()->items(QPointF(220, 88));
        QCOMPARE(encima.size(), 3);
        QVERIFY(dynamic_cast<Rotulo*>(encima[0]) != nullptr);
        QVERIFY(qgraphicsitem_cast<QGraphicsRectItem*>(encima[1]) != nullptr);
        QVERIFY(qgraphicsitem_cast<QGraphicsLineItem*>(encima[2]) != nullptr);
        QCOMPARE(Imagen().pixel(60, 88), qRgb(255, 0, 0));  // the blue line lies under the bar
    }

    void ContadoresTrasDibujaLista()
    {
        Lienzo& lienzo = Abre(kPicConfina);
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 0);
        Eje(D(), 0, 0, 0, 10);
        AnadePunto(D(), 3, 3, kRojo);
        EtiquetaHorizontal(D(), 5, -1, "5");
        EtiquetaVertical(D(), 0, 5, "5");
        AnadeTexto(D(), Clase::TextoDerecha, 10, 5, kNegro, 8, false, "TEXALON L");
        AnadeForma(D(), Clase::Barra, 1, 4, 2, 0, kRojo);
        AnadeForma(D(), Clase::RectanguloRedondeado, 3, 4, 4, 0, kRojo);
        AnadeForma(D(), Clase::Elipse, 5, 4, 6, 0, kRojo);
        AnadeForma(D(), Clase::Elipse, 7, 4, 8, 0, kRojo);
        // An element of no known kind is passed by.
        ++D().NLISTA;
        D().LISTA(D().NLISTA, campo::kClase) = 9;
        lienzo.Escena().DibujaLista(D(), 0);
        QCOMPARE(ContadoresDelEstado(), (Contadores{2, 1, 3, 1, 1, 2}));
        QCOMPARE(De(ClasePantalla::Linea).size(), std::size_t{2});
        QCOMPARE(De(ClasePantalla::Tit).size(), std::size_t{3});
        QCOMPARE(De(ClasePantalla::SecCir).size(), std::size_t{2});
        QCOMPARE(lienzo.scene()->items().size(), 10);  // the ten elements
        // The elements are numbered in the order of the list within their kind.
        QCOMPARE(Uno(ClasePantalla::Tit, 1).texto, QStringLiteral("5"));
        QCOMPARE(Uno(ClasePantalla::Tit, 3).texto, QStringLiteral("TEXALON L"));
        QVERIFY(Uno(ClasePantalla::SecCir, 1).izquierda < Uno(ClasePantalla::SecCir, 2).izquierda);
    }

    void OtroDibujaListaDestruyeLosElementosAnteriores()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        NuevaLista(D());
        for (int i = 0; i < 5; ++i)
            Eje(D(), i, 0, i, 10);
        EtiquetaHorizontal(D(), 1, 1, "A");
        EtiquetaHorizontal(D(), 2, 2, "B");
        lienzo.Escena().DibujaLista(D(), 0);
        QCOMPARE(lienzo.scene()->items().size(), 7);
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 10);
        AnadeForma(D(), Clase::Barra, 0, 10, 10, 0, kRojo);
        lienzo.Escena().DibujaLista(D(), 0);
        QCOMPARE(D().NLINEA, Entero{1});
        QCOMPARE(D().NTIT, Entero{0});
        QCOMPARE(D().NBARRA, Entero{1});
        QCOMPARE(lienzo.scene()->items().size(), 2);
        QCOMPARE(De(ClasePantalla::Linea).size(), std::size_t{1});
        QCOMPARE(De(ClasePantalla::Tit).size(), std::size_t{0});
        CERCA(Uno(ClasePantalla::Linea).x1, 44);
        CERCA(Uno(ClasePantalla::Linea).y2, 17.6);
    }

    void TrasCerrarLaPantallaNoQuedanRestos()
    {
        Lienzo& lienzo = Abre(kPicFlexion);
        NuevaLista(D());
        for (int i = 0; i < 3; ++i)
            Eje(D(), i, 0, i, 10);
        lienzo.Escena().DibujaLista(D(), 0);
        BorraDibujo(D());  // as a closing screen does
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 10);
        lienzo.Escena().DibujaLista(D(), 0);
        QCOMPARE(D().NLINEA, Entero{1});
        QCOMPARE(lienzo.scene()->items().size(), 1);
    }

    void RedibujaListaNiCreaNiDestruye()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        const QList<QGraphicsItem*> antes = lienzo.scene()->items();
        lienzo.setFocus();
        Amplia(40, 30, 50, 40);
        CERCA(Uno(ClasePantalla::Linea).x2, 9600);
        lienzo.Escena().RedibujaLista(D(), 0);
        const QList<QGraphicsItem*> despues = lienzo.scene()->items();
        QCOMPARE(QSet<QGraphicsItem*>(despues.begin(), despues.end()),
                 QSet<QGraphicsItem*>(antes.begin(), antes.end()));
        ListaDeZoomSinAmpliar();
        QCOMPARE(ContadoresDelEstado(), (Contadores{1, 1, 1, 1, 1, 1}));
        CERCA(D().ESCALAX, 32);
        CERCA(D().ESCALAY, 24);
    }

    void RedibujaListaEnUnDibujoSinElementosNoCreaNada()
    {
        // A picture that has shown no list, with a list and its size in store.
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        D().ANCHOPIC = 400;
        D().ALTOPIC = 300;
        lienzo.Escena().RedibujaLista(D(), 0);
        QVERIFY(lienzo.scene()->items().isEmpty());
        QCOMPARE(ContadoresDelEstado(), (Contadores{0, 0, 0, 0, 0, 0}));
    }

    void RedibujaListaMasLargaQueLoDibujadoSoloAjustaLoQueExiste()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        const QList<QGraphicsItem*> antes = lienzo.scene()->items();
        // The list grew without being drawn: the redraw fits the elements there are, and the
        // counters name only those.
        Eje(D(), 0, 0, 10, 10);
        Eje(D(), 0, 5, 10, 5);
        lienzo.Escena().RedibujaLista(D(), 0);
        const QList<QGraphicsItem*> despues = lienzo.scene()->items();
        QCOMPARE(QSet<QGraphicsItem*>(despues.begin(), despues.end()),
                 QSet<QGraphicsItem*>(antes.begin(), antes.end()));
        QCOMPARE(D().NLINEA, Entero{1});
        QCOMPARE(D().NSECCIR, Entero{1});
        const std::vector<ElementoPantalla> lineas = De(ClasePantalla::Linea);
        QCOMPARE(lineas.size(), std::size_t{1});
        QVERIFY(lineas[0].visible);
    }

    void ContadoresQueNombranDeMasNoRompenNada()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        D().NLINEA = 40;
        D().NTIT = 9;
        D().NSECCIR = 3;
        // The zoom moves what exists, and the redrawing counts it again.
        Amplia(40, 30, 50, 40);
        CERCA(Uno(ClasePantalla::Linea).x2, 9600);
        CERCA(Uno(ClasePantalla::SecCir).izquierda, 7680);
        QCOMPARE(De(ClasePantalla::Linea).size(), std::size_t{1});
        Clic(100, 100, Qt::RightButton);
        QCOMPARE(D().NLINEA, Entero{1});
        QCOMPARE(D().NTIT, Entero{1});
        QCOMPARE(D().NSECCIR, Entero{1});
        ListaDeZoomSinAmpliar();
        QCOMPARE(lienzo.scene()->items().size(), 6);
    }

    // ---- The zoom

    void EscapeSinBandaNoHaceNada()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        lienzo.setFocus();
        QTest::keyClick(&lienzo, Qt::Key_Escape);
        QVERIFY(!D().F_ZOOM);
        QVERIFY(!lienzo.BandaVisible());
        QCOMPARE(D().ZOOMX1, 0.0);
        ListaDeZoomSinAmpliar();
        // The next click is a first corner.
        Clic(40, 30);
        QVERIFY(D().F_ZOOM);
        ListaDeZoomSinAmpliar();
    }

    void EscapeDuranteLaBandaLaEsconde()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        Clic(40, 30);
        QCOMPARE(QApplication::focusWidget(), &lienzo);  // the click gave the picture the keys
        Mueve(100, 80);
        QVERIFY(lienzo.BandaVisible());
        QCOMPARE(lienzo.Banda(), QRectF(40, 30, 60, 50));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!D().F_ZOOM);
        QVERIFY(!lienzo.BandaVisible());
        Mueve(120, 90);
        QVERIFY(!lienzo.BandaVisible());
        // The next left click starts anew: a first corner, no zoom.
        Clic(200, 150);
        QVERIFY(D().F_ZOOM);
        QCOMPARE(D().ZOOMX1, 200.0);
        QCOMPARE(D().ZOOMY1, 150.0);
        ListaDeZoomSinAmpliar();
    }

    void LaBandaSeEstiraEnCualquierDireccion()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        Clic(200, 150);
        QVERIFY(!lienzo.BandaVisible());
        Mueve(150, 100);
        QCOMPARE(lienzo.Banda(), QRectF(150, 100, 50, 50));
        QCOMPARE(D().ZOOMX2, 150.0);
        QCOMPARE(D().ZOOMY2, 100.0);
        Mueve(250, 90);
        QCOMPARE(lienzo.Banda(), QRectF(200, 90, 50, 60));
        Mueve(120, 210);
        QCOMPARE(lienzo.Banda(), QRectF(120, 150, 80, 60));
        QVERIFY(lienzo.BandaVisible());
        // The band's look: a hollow rectangle of one pixel in dark red, drawn by the view over
        // the scene, which holds no item for it.
        QCOMPARE(lienzo.scene()->items().size(), 0);
        const QImage imagen = Imagen();
        auto rojizo = [&imagen](int x, int y) {
            const QRgb p = imagen.pixel(x, y);
            return qRed(p) - qGreen(p) > 40 && qGreen(p) == qBlue(p);
        };
        QVERIFY(rojizo(160, 150) || rojizo(160, 149));  // the top side
        QVERIFY(rojizo(160, 210) || rojizo(160, 209));  // the bottom side
        QVERIFY(rojizo(120, 180) || rojizo(119, 180));  // the left side
        QCOMPARE(imagen.pixel(160, 180), qRgb(255, 255, 255));  // hollow
        QCOMPARE(imagen.pixel(160, 140), qRgb(255, 255, 255));
    }

    void ZoomDeDiezPorDiezEnCuatrocientosPorTrescientos()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        Clic(40, 30);
        QVERIFY(D().F_ZOOM);
        QCOMPARE(D().ZOOMX1, 40.0);
        QCOMPARE(D().ZOOMY1, 30.0);
        Mueve(50, 40);
        QCOMPARE(lienzo.Banda(), QRectF(40, 30, 10, 10));
        Clic(50, 40);
        QVERIFY(!D().F_ZOOM);
        CERCA(D().ESCALAX, 40);
        CERCA(D().ESCALAY, 30);
        CERCA(D().ZOOM, 30);
        // The rectangle's top-left corner lands at the picture's top-left corner.
        const ElementoPantalla eje = Uno(ClasePantalla::Linea);
        CERCA(eje.x1, 0);
        CERCA(eje.y1, 0);
        CERCA(eje.x2, 9600);
        CERCA(eje.y2, 7200);
        QVERIFY(eje.visible);
        // The text grows with the zoom.
        const QSizeF medida = Medida(QStringLiteral("DIAGRAMA"), 8, false);
        const ElementoPantalla tit = Uno(ClasePantalla::Tit);
        CERCA(tit.tamano, 240);
        CERCA(tit.izquierda, (200 - medida.width() / 2 - 40) * 30);
        CERCA(tit.arriba, (150 - medida.height() / 2 - 30) * 30);
        QVERIFY(tit.ancho > medida.width() * 25);
        const ElementoPantalla barra = Uno(ClasePantalla::Barra);
        CERCA(barra.izquierda, 0);
        CERCA(barra.arriba, 0);
        CERCA(barra.ancho, 1920);
        CERCA(barra.alto, 1440);
        const ElementoPantalla punto = Uno(ClasePantalla::Punto);
        CERCA(punto.izquierda, 9495);
        CERCA(punto.arriba, -105);
        CERCA(punto.ancho, 210);
        CERCA(punto.alto, 210);
        const ElementoPantalla redondeado = Uno(ClasePantalla::SecRect);
        CERCA(redondeado.izquierda, 3840);
        CERCA(redondeado.arriba, 2880);
        CERCA(redondeado.ancho, 1920);
        const ElementoPantalla elipse = Uno(ClasePantalla::SecCir);
        CERCA(elipse.izquierda, 7680);
        CERCA(elipse.arriba, 5760);
        CERCA(elipse.alto, 1440);
        // The red bar now fills the picture.
        QCOMPARE(Imagen().pixel(300, 100), qRgb(255, 0, 0));
        // The band stays on show until the pointer moves.
        QVERIFY(lienzo.BandaVisible());
        Mueve(60, 60);
        QVERIFY(!lienzo.BandaVisible());
    }

    void ZoomDosVecesMultiplicaYElClicDerechoDeshaceAmbos()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        Amplia(40, 30, 50, 40);
        Amplia(1, 1, 11, 11);
        CERCA(D().ZOOM, 30);
        const ElementoPantalla eje = Uno(ClasePantalla::Linea);
        CERCA(eje.x1, -30);
        CERCA(eje.y1, -30);
        CERCA(eje.x2, 287970);
        CERCA(eje.y2, 215970);
        CERCA(Uno(ClasePantalla::Tit).tamano, 7200);
        CERCA(Uno(ClasePantalla::Barra).ancho, 57600);
        CERCA(Uno(ClasePantalla::Punto).ancho, 6300);
        Clic(200, 200, Qt::RightButton);
        ListaDeZoomSinAmpliar();
        CERCA(D().ESCALAX, 32);
        CERCA(D().ESCALAY, 24);
        QVERIFY(!D().F_ZOOM);
    }

    void ClicDerechoDuranteLaBandaRedibujaYSigueArmada()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        Amplia(40, 30, 50, 40);
        Clic(10, 10);
        Mueve(20, 25);
        Clic(300, 200, Qt::RightButton);
        ListaDeZoomSinAmpliar();
        QVERIFY(D().F_ZOOM);
        QVERIFY(lienzo.BandaVisible());
        QCOMPARE(lienzo.Banda(), QRectF(10, 10, 10, 15));
        QCOMPARE(D().ZOOMX1, 10.0);
        QCOMPARE(D().ZOOMY1, 10.0);
        // The next left click zooms with the old first corner and the pointer's last place.
        Clic(20, 25);
        QVERIFY(!D().F_ZOOM);
        CERCA(D().ESCALAX, 40);
        CERCA(D().ESCALAY, 20);
        CERCA(D().ZOOM, 20);
        CERCA(Uno(ClasePantalla::Linea).x1, 600);
        CERCA(Uno(ClasePantalla::Linea).y1, 400);
    }

    void ClicDerechoIsotropicoSoloEnSecciones()
    {
        for (const Dibujo* dibujo : {&kPicFlexion, &kPicConfina, &kPicCarac}) {
            Lienzo& lienzo = Abre(*dibujo);
            const TamanoDibujo tamano = dibujo->tamano;
            NuevaLista(D());
            AnadeForma(D(), Clase::Barra, 0, 1, 1, 0, kGris);
            lienzo.Escena().DibujaLista(D(), 0);
            D().F_SECCION = true;
            Clic(10, 10, Qt::RightButton);
            const ElementoPantalla barra = Uno(ClasePantalla::Barra);
            const double lado = std::min(tamano.ancho, tamano.alto) * 0.8;
            QCOMPARE(lienzo.IsotropicoDeLaLista(), dibujo->muestraSecciones ? kIsotropico : kAnisotropico);
            if (dibujo == &kPicCarac) {
                // The characteristics screen always redraws with a scale of its own each way.
                CERCA(barra.ancho, tamano.ancho * 0.8);
                CERCA(barra.alto, tamano.alto * 0.8);
            } else {
                CERCA(barra.ancho, lado);
                CERCA(barra.alto, lado);
            }
            D().F_SECCION = false;
            Clic(10, 10, Qt::RightButton);
            CERCA(Uno(ClasePantalla::Barra).ancho, tamano.ancho * 0.8);
        }
    }

    void DobleClicSinMoverAmpliaPorElTamanoDelDibujo()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        // The first click, the pointer reported where it was, and the second click of the
        // double click.
        Clic(40, 30);
        Mueve(45, 35);
        Mueve(40, 30);
        QTest::mouseDClick(Area(), Qt::LeftButton, {}, QPoint(40, 30));
        QVERIFY(!D().F_ZOOM);
        QCOMPARE(D().ZOOMX2, 41.0);
        QCOMPARE(D().ZOOMY2, 31.0);
        CERCA(D().ESCALAX, 400);
        CERCA(D().ESCALAY, 300);
        CERCA(D().ZOOM, 300);
        CERCA(Uno(ClasePantalla::Linea).x1, 0);
        CERCA(Uno(ClasePantalla::Linea).y1, 0);
        CERCA(Uno(ClasePantalla::Linea).x2, 96000);
    }

    void LasEsquinasIgualesSeCorrigenTrasTomarLaMenor()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        // The second corner left of and equal in height to the first.
        D().ZOOMX1 = 50;
        D().ZOOMX2 = 40;
        D().ZOOMY1 = 30;
        D().ZOOMY2 = 30;
        lienzo.Escena().AmpliaVentana(D());
        QCOMPARE(D().ZOOMY2, 31.0);
        CERCA(D().ESCALAX, 40);
        CERCA(D().ESCALAY, 300);
        CERCA(D().ZOOM, 40);
        CERCA(Uno(ClasePantalla::Linea).x1, 0);
        CERCA(Uno(ClasePantalla::Linea).y1, 0);
        CERCA(Uno(ClasePantalla::Linea).y2, 9600);
    }

    void TrasUnInformeElClicDerechoEncajaEnCentimetros()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        // A report left the page's area in centimetres.
        D().ANCHOPIC = 17.0;
        D().ALTOPIC = 25.7;
        Clic(300, 250, Qt::RightButton);
        CERCA(D().ESCALAX, 1.36);
        CERCA(D().ESCALAY, 2.056);
        // A small drawing in the corner: (0, 10)-(10, 0) at (1.7, 2.57)-(15.3, 23.13).
        ElementoPantalla eje = Uno(ClasePantalla::Linea);
        CERCA(eje.x1, 1.7);
        CERCA(eje.y1, 2.57);
        CERCA(eje.x2, 15.3);
        CERCA(eje.y2, 23.13);
        CERCA(Uno(ClasePantalla::Barra).ancho, 2.72);
        CERCA(Uno(ClasePantalla::Tit).tamano, 8);
        // And a zoom shrinks what is on show.
        Amplia(1, 1, 101, 101);
        CERCA(D().ESCALAX, 0.17);
        CERCA(D().ESCALAY, 0.257);
        CERCA(D().ZOOM, 0.17);
        eje = Uno(ClasePantalla::Linea);
        CERCA(eje.x1, 0.119);
        CERCA(eje.y1, 0.2669);
        CERCA(eje.x2, 2.431);
        CERCA(eje.y2, 3.7621);
        CERCA(Uno(ClasePantalla::Tit).tamano, 8 * 0.17);
    }

    void ElLimiteDeCienMillonesDetieneElZoom()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        NuevaLista(D());
        Eje(D(), 0, 10, 0.0001, 9.9999);  // (40, 30)-(40.0032, 30.0024)
        Eje(D(), 0, 10, 10, 0);  // (40, 30)-(360, 270)
        Eje(D(), 0, 10, 0.0001, 9.9999);
        EtiquetaHorizontal(D(), 5, 5, "DIAGRAMA");
        lienzo.Escena().DibujaLista(D(), 0);
        // Two zooms of one pixel, by 300 each: (40, 30) goes to (0, 0), then (1, 1) to (0, 0).
        Amplia(40, 30, 41, 31);
        CERCA(Uno(ClasePantalla::Linea, 1).x2, 0.96);
        CERCA(Uno(ClasePantalla::Linea, 1).y2, 0.72);
        Amplia(1, 1, 2, 2);
        CERCA(Uno(ClasePantalla::Linea, 1).x1, -300);
        CERCA(Uno(ClasePantalla::Linea, 1).x2, -12);
        CERCA(Uno(ClasePantalla::Linea, 1).y2, -84);
        CERCA(Uno(ClasePantalla::Linea, 2).x2, 28799700);
        CERCA(Uno(ClasePantalla::Linea, 2).y2, 21599700);
        const ElementoPantalla titAntes = Uno(ClasePantalla::Tit);
        CERCA(titAntes.tamano, 720000);
        // The third would take line 2 beyond 100000000: from that line on nothing moves.
        Amplia(1, 1, 2, 2);
        CERCA(D().ESCALAX, 400);
        CERCA(D().ESCALAY, 300);
        QCOMPARE(D().ZOOM, 1.0);
        CERCA(Uno(ClasePantalla::Linea, 1).x1, -90300);
        CERCA(Uno(ClasePantalla::Linea, 1).y1, -90300);
        CERCA(Uno(ClasePantalla::Linea, 1).x2, -3900);
        CERCA(Uno(ClasePantalla::Linea, 1).y2, -25500);
        CERCA(Uno(ClasePantalla::Linea, 2).x2, 28799700);
        CERCA(Uno(ClasePantalla::Linea, 2).y2, 21599700);
        CERCA(Uno(ClasePantalla::Linea, 3).x1, -300);
        CERCA(Uno(ClasePantalla::Linea, 3).x2, -12);
        CERCA(Uno(ClasePantalla::Linea, 3).y2, -84);
        const ElementoPantalla tit = Uno(ClasePantalla::Tit);
        CERCA(tit.tamano, 720000);
        CERCA(tit.izquierda, titAntes.izquierda);
        CERCA(tit.arriba, titAntes.arriba);
        for (const ElementoPantalla& linea : De(ClasePantalla::Linea))
            QVERIFY(linea.visible);
        // The picture still paints.
        QVERIFY(!Imagen().isNull());
        // And the right click brings everything back.
        Clic(5, 5, Qt::RightButton);
        CERCA(Uno(ClasePantalla::Linea, 2).x2, 360);
        CERCA(Uno(ClasePantalla::Tit).tamano, 8);
    }

    void SinDiagramaSoloSeFijanLasEsquinas()
    {
        Lienzo& lienzo = Abre(kPicConfina);
        Clic(10, 20);
        QVERIFY(D().F_ZOOM);
        Mueve(30, 50);
        Clic(30, 50);
        QVERIFY(!D().F_ZOOM);
        QCOMPARE(D().ZOOMX1, 10.0);
        QCOMPARE(D().ZOOMY1, 20.0);
        QCOMPARE(D().ZOOMX2, 30.0);
        QCOMPARE(D().ZOOMY2, 50.0);
        QCOMPARE(D().ANCHOPIC, 0.0);
        QCOMPARE(D().ESCALAX, 0.0);
        QCOMPARE(D().ESCALAY, 0.0);
        QCOMPARE(D().ZOOM, 0.0);
        QCOMPARE(D().NLINEA, Entero{0});
        QCOMPARE(D().NTIT, Entero{0});
        QCOMPARE(lienzo.scene()->items().size(), 0);
        // A right click has no list to fit either.
        Clic(30, 50, Qt::RightButton);
        QCOMPARE(lienzo.scene()->items().size(), 0);
    }

    // ---- The SVG file

    void ElFicheroSvgEsElDibujo()
    {
        QTemporaryDir carpeta;
        QVERIFY(carpeta.isValid());
        const QString fichero = carpeta.filePath(QStringLiteral("diagrama.svg"));
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 0);
        AnadeForma(D(), Clase::Barra, 1, 5, 3, 0, kCiruela);
        Titulo(D(), 5, 11, "DIAGRAMA MOMENTO - ÁREA");
        EtiquetaVertical(D(), 0, 5, "  50");
        D().NLINEA = 7;  // the screen's picture holds seven lines
        const auto widgets = QApplication::allWidgets().size();
        QVERIFY(EscribeSvg(D(), kPicFlexion.tamano, 0, fichero));
        // No widget is made for the file, and the drawing state is only read.
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(D().NLINEA, Entero{7});
        QCOMPARE(D().NBARRA, Entero{0});
        QCOMPARE(D().ANCHOPIC, 0.0);
        QCOMPARE(D().ESCALAX, 0.0);

        QFile leido(fichero);
        QVERIFY(leido.open(QIODevice::ReadOnly));
        const QByteArray bytes = leido.readAll();
        const QString texto = QString::fromUtf8(bytes);
        QVERIFY(texto.contains(QStringLiteral("DIAGRAMA MOMENTO - ÁREA")));
        QVERIFY(texto.contains(QStringLiteral("50")));
        QVERIFY(texto.contains(QStringLiteral("Arial")));
        QVERIFY(texto.contains(QStringLiteral("#800040")));  // the bar's fill
        QXmlStreamReader xml(bytes);
        bool raiz = false;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement && !raiz) {
                raiz = true;
                QCOMPARE(xml.name().toString(), QStringLiteral("svg"));
                QCOMPARE(xml.attributes().value(QStringLiteral("viewBox")).toString(), QStringLiteral("0 0 440 176"));
            }
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QVERIFY(raiz);
    }

    void ElFicheroSvgNoTocaElDibujoDeLaPantalla()
    {
        Lienzo& lienzo = Abre(kPicCarac);
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 10);
        Eje(D(), 0, 10, 10, 0);
        lienzo.Escena().DibujaLista(D(), 0);
        QTemporaryDir carpeta;
        NuevaLista(D());
        Eje(D(), 0, 0, 5, 5);
        QVERIFY(EscribeSvg(D(), kPicCarac.tamano, 0, carpeta.filePath(QStringLiteral("c.svg"))));
        QCOMPARE(D().NLINEA, Entero{2});
        QCOMPARE(De(ClasePantalla::Linea).size(), std::size_t{2});
        CERCA(D().ANCHOPIC, 734);
    }

    void ElFicheroSvgEnUnaRutaImposibleDaFalso()
    {
        QTemporaryDir carpeta;
        const QString fichero = carpeta.filePath(QStringLiteral("no/existe/diagrama.svg"));
        NuevaLista(D());
        Eje(D(), 0, 0, 10, 0);
        QVERIFY(!EscribeSvg(D(), kPicConfina.tamano, 0, fichero));
        QVERIFY(!QFile::exists(fichero));
        QVERIFY(!EscribeSvg(D(), kPicConfina.tamano, 0, carpeta.path()));  // a folder
    }
};

QTEST_MAIN(PruebaLienzo)

#include "test_lienzo.moc"
