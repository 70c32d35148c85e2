// What the tests of the picture of a screen share: the test class, whose cases stand in the
// files of this folder by behaviour, and the helpers that they use.
#pragma once

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
#include <QTest>
#include <QXmlStreamReader>

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

inline GeneralDibujo& D() { return EstadoDibujo(); }

// Width and Height of a label: its text measured in Arial at the screen's resolution.
inline QSizeF Medida(const QString& texto, double tamano, bool negrita)
{
    QFont fuente(QStringLiteral("Arial"));
    fuente.setPointSizeF(tamano);
    fuente.setBold(negrita);
    const QFontMetricsF metrica(plataforma::ConAnchoPropio(fuente));
    return {metrica.horizontalAdvance(texto), metrica.height()};
}

inline int Escala(double valor) { return static_cast<int>(std::lround(valor)); }

// The six counters of the drawing state, in the order of kClasesPantalla: NLINEA, NPUNTO,
// NTIT, NBARRA, NSECRECT, NSECCIR.
using Contadores = std::array<Entero, 6>;
inline Contadores ContadoresDelEstado()
{
    const GeneralDibujo& d = EstadoDibujo();
    return {d.NLINEA, d.NPUNTO, d.NTIT, d.NBARRA, d.NSECRECT, d.NSECCIR};
}

// The list on which the zoom is tried, on a picture of 400 by 300 pixels. Its box runs from
// (0, 0) to (10, 10): ESCALAX 32, ESCALAY 24, world (0, 10) at pixel (40, 30) and (10, 0) at
// (360, 270).
inline void ListaDeZoom(GeneralDibujo& d)
{
    NuevaLista(d);
    Eje(d, 0, 10, 10, 0);  // (40, 30)-(360, 270)
    EtiquetaHorizontal(d, 5, 5, "DIAGRAMA");  // anchored at (200, 150)
    AnadeForma(d, Clase::Barra, 0, 10, 2, 8, kRojo);  // Left 40, Top 30, 64 by 48
    AnadePunto(d, 10, 10, kAzul);  // centre (360, 30)
    AnadeForma(d, Clase::RectanguloRedondeado, 4, 6, 6, 4, kGris);  // Left 168, Top 126, 64 by 48
    AnadeForma(d, Clase::Elipse, 8, 2, 10, 0, kAzul);  // Left 296, Top 222, 64 by 48
}

inline constexpr TamanoDibujo k400x300{400, 300};

// The two ends of a line, each coordinate as expected.
inline void CercaExtremos(const ElementoPantalla& e, double x1, double y1, double x2, double y2)
{
    CERCA(e.x1, x1);
    CERCA(e.y1, y1);
    CERCA(e.x2, x2);
    CERCA(e.y2, y2);
}

// The box of a shape, a point or a text: its left, top, width and height.
inline void CercaCaja(const ElementoPantalla& e, double izquierda, double arriba, double ancho, double alto)
{
    CERCA(e.izquierda, izquierda);
    CERCA(e.arriba, arriba);
    CERCA(e.ancho, ancho);
    CERCA(e.alto, alto);
}

// The size of a text and its top-left corner.
inline void CercaTexto(const ElementoPantalla& e, double tamano, double izquierda, double arriba)
{
    CERCA(e.tamano, tamano);
    CERCA(e.izquierda, izquierda);
    CERCA(e.arriba, arriba);
}

// The scales of the drawing state and its zoom.
inline void CercaEscalas(double escalax, double escalay, double zoom)
{
    CERCA(D().ESCALAX, escalax);
    CERCA(D().ESCALAY, escalay);
    CERCA(D().ZOOM, zoom);
}

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

    // The zoom list drawn on a flexure picture of 400 by 300 pixels.
    Lienzo& AbreListaDeZoom()
    {
        Lienzo& lienzo = Abre(kPicFlexion, k400x300);
        ListaDeZoom(D());
        lienzo.Escena().DibujaLista(D(), 0);
        return lienzo;
    }

    // The axis of the picture on show between these ends.
    void EjeVisibleEntre(double x1, double y1, double x2, double y2) const
    {
        const ElementoPantalla eje = Uno(ClasePantalla::Linea);
        CercaExtremos(eje, x1, y1, x2, y2);
        QVERIFY(eje.visible);
    }

    // The axis of the picture starts at its top-left corner.
    void EjeDesdeLaEsquina() const
    {
        CERCA(Uno(ClasePantalla::Linea).x1, 0);
        CERCA(Uno(ClasePantalla::Linea).y1, 0);
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
        EjeVisibleEntre(40, 30, 360, 270);
        const QSizeF medida = Medida(QStringLiteral("DIAGRAMA"), 8, false);
        const ElementoPantalla tit = Uno(ClasePantalla::Tit);
        CercaTexto(tit, 8, 200 - medida.width() / 2, 150 - medida.height() / 2);
        CERCA(tit.ancho, medida.width());
        const ElementoPantalla barra = Uno(ClasePantalla::Barra);
        CercaCaja(barra, 40, 30, 64, 48);
        const ElementoPantalla punto = Uno(ClasePantalla::Punto);
        CercaCaja(punto, 356.5, 26.5, 7, 7);
        const ElementoPantalla redondeado = Uno(ClasePantalla::SecRect);
        CERCA(redondeado.izquierda, 168);
        CERCA(redondeado.arriba, 126);
        const ElementoPantalla elipse = Uno(ClasePantalla::SecCir);
        CercaCaja(elipse, 296, 222, 64, 48);
    }

private slots:
    void init() { D() = GeneralDibujo{}; }
    void cleanup() { lienzo_.reset(); }

    // ---- The picture
    void ElAreaDeDibujoEsElTamanoDeLaPantalla();
    void LaEscenaDibujaSinNingunaVista();
    void MuestraCuentaEnOtrosContadoresYNoAjustaElEstado();

    // ---- The fit on the screen
    void UnTextoSoloEncuadraDesdeElOrigen();
    void SeccionCuadradaIsotropicaSigueCuadrada();
    void AnchoNuloIsotropicoCaeEnElCentro();
    void LineaDeGrosorTresTieneTresPixeles();
    void LosLimitesDeUnaLineaCubrenSuTrazo();
    void LineaPunteadaYContinua();

    // ---- The elements and their properties
    void ColoresDeLosEnterosRGB();
    void TextosArialAnclados();
    void FormasDesdeSuPrimeraEsquina();
    void PuntoHuecoDeSietePixeles();

    // ---- Order and numbers
    void ElElementoAnteriorQuedaDelante();
    void ContadoresTrasDibujaLista();
    void OtroDibujaListaDestruyeLosElementosAnteriores();
    void TrasCerrarLaPantallaNoQuedanRestos();
    void RedibujaListaNiCreaNiDestruye();
    void RedibujaListaEnUnDibujoSinElementosNoCreaNada();
    void RedibujaListaMasLargaQueLoDibujadoSoloAjustaLoQueExiste();
    void ContadoresQueNombranDeMasNoRompenNada();

    // ---- The zoom
    void EscapeSinBandaNoHaceNada();
    void EscapeDuranteLaBandaLaEsconde();
    void LaBandaSeEstiraEnCualquierDireccion();
    void ZoomDeDiezPorDiezEnCuatrocientosPorTrescientos();
    void ZoomDosVecesMultiplicaYElClicDerechoDeshaceAmbos();
    void ClicDerechoDuranteLaBandaRedibujaYSigueArmada();
    void ClicDerechoIsotropicoSoloEnSecciones();
    void DobleClicSinMoverAmpliaPorElTamanoDelDibujo();
    void LasEsquinasIgualesSeCorrigenTrasTomarLaMenor();
    void TrasUnInformeElClicDerechoEncajaEnCentimetros();
    void ElLimiteDeCienMillonesDetieneElZoom();
    void SinDiagramaSoloSeFijanLasEsquinas();

    // ---- The SVG file
    void ElFicheroSvgEsElDibujo();
    void ElFicheroSvgNoTocaElDibujoDeLaPantalla();
    void ElFicheroSvgEnUnaRutaImposibleDaFalso();
};
