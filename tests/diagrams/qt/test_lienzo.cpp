// The picture of a screen: its drawing area, the scene that works without a view, and display
// lists fitted to its pixels. The cases of the other behaviours stand in the files beside this
// one, test_lienzo_*.cpp, of the same test program.
#include "PruebaLienzo.h"

// ---- The picture

void PruebaLienzo::ElAreaDeDibujoEsElTamanoDeLaPantalla()
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

void PruebaLienzo::LaEscenaDibujaSinNingunaVista()
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

void PruebaLienzo::MuestraCuentaEnOtrosContadoresYNoAjustaElEstado()
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

void PruebaLienzo::UnTextoSoloEncuadraDesdeElOrigen()
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

void PruebaLienzo::SeccionCuadradaIsotropicaSigueCuadrada()
{
    Lienzo& lienzo = Abre(kPicFlexion);
    NuevaLista(D());
    AnadeForma(D(), Clase::Barra, 0, 1, 1, 0, kGris);
    lienzo.Escena().DibujaLista(D(), 1);
    CERCA(D().ESCALAX, 140.8);
    CERCA(D().ESCALAY, 140.8);
    ElementoPantalla barra = Uno(ClasePantalla::Barra);
    CercaCaja(barra, 149.6, 17.6, 140.8, 140.8);
    // Without the flag it is stretched to 80 % of each side.
    lienzo.Escena().DibujaLista(D(), 0);
    barra = Uno(ClasePantalla::Barra);
    CercaCaja(barra, 44, 17.6, 352, 140.8);
}

void PruebaLienzo::AnchoNuloIsotropicoCaeEnElCentro()
{
    Lienzo& lienzo = Abre(kPicFlexion);
    NuevaLista(D());
    Eje(D(), 2, 1, 2, 3);
    AnadeForma(D(), Clase::Barra, 2, 3, 2, 1, kRojo);
    lienzo.Escena().DibujaLista(D(), 1);
    QCOMPARE(D().ESCALAX, 0.0);
    QCOMPARE(D().ESCALAY, 0.0);
    const ElementoPantalla eje = Uno(ClasePantalla::Linea);
    CercaExtremos(eje, 220, 88, 220, 88);
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

void PruebaLienzo::LineaDeGrosorTresTieneTresPixeles()
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

void PruebaLienzo::LosLimitesDeUnaLineaCubrenSuTrazo()
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
                                    .arg(limites.left())
                                    .arg(limites.top())
                                    .arg(limites.right())
                                    .arg(limites.bottom())
                                    .arg(trazo.left())
                                    .arg(trazo.top())
                                    .arg(trazo.right())
                                    .arg(trazo.bottom())));
            QVERIFY(limites.width() <= trazo.width() + 2 * grosor);
            QVERIFY(limites.height() <= trazo.height() + 2 * grosor);
        }
    }
}

void PruebaLienzo::LineaPunteadaYContinua()
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

QTEST_MAIN(PruebaLienzo)
