// The picture of a screen, element by element: colours, texts, shapes and points; the order of
// the elements and the counters of each kind.
#include "PruebaLienzo.h"

// ---- The elements and their properties

void PruebaLienzo::ColoresDeLosEnterosRGB()
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

void PruebaLienzo::TextosArialAnclados()
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

void PruebaLienzo::FormasDesdeSuPrimeraEsquina()
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
    CercaCaja(barra, 44, 17.6, 352, 140.8);
    const ElementoPantalla redondeado = Uno(ClasePantalla::SecRect);
    CercaCaja(redondeado, 114.4, 45.76, 70.4, 28.16);
    const ElementoPantalla elipse = Uno(ClasePantalla::SecCir);
    CercaCaja(elipse, 255.2, 45.76, 70.4, 28.16);
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

void PruebaLienzo::PuntoHuecoDeSietePixeles()
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

void PruebaLienzo::ElElementoAnteriorQuedaDelante()
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

void PruebaLienzo::ContadoresTrasDibujaLista()
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

void PruebaLienzo::OtroDibujaListaDestruyeLosElementosAnteriores()
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

void PruebaLienzo::TrasCerrarLaPantallaNoQuedanRestos()
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

void PruebaLienzo::RedibujaListaNiCreaNiDestruye()
{
    Lienzo& lienzo = AbreListaDeZoom();
    const QList<QGraphicsItem*> antes = lienzo.scene()->items();
    lienzo.setFocus();
    Amplia(40, 30, 50, 40);
    CERCA(Uno(ClasePantalla::Linea).x2, 9600);
    lienzo.Escena().RedibujaLista(D(), 0);
    const QList<QGraphicsItem*> despues = lienzo.scene()->items();
    QCOMPARE(QSet<QGraphicsItem*>(despues.begin(), despues.end()), QSet<QGraphicsItem*>(antes.begin(), antes.end()));
    ListaDeZoomSinAmpliar();
    QCOMPARE(ContadoresDelEstado(), (Contadores{1, 1, 1, 1, 1, 1}));
    CERCA(D().ESCALAX, 32);
    CERCA(D().ESCALAY, 24);
}

void PruebaLienzo::RedibujaListaEnUnDibujoSinElementosNoCreaNada()
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

void PruebaLienzo::RedibujaListaMasLargaQueLoDibujadoSoloAjustaLoQueExiste()
{
    Lienzo& lienzo = AbreListaDeZoom();
    const QList<QGraphicsItem*> antes = lienzo.scene()->items();
    // The list grew without being drawn: the redraw fits the elements there are, and the
    // counters name only those.
    Eje(D(), 0, 0, 10, 10);
    Eje(D(), 0, 5, 10, 5);
    lienzo.Escena().RedibujaLista(D(), 0);
    const QList<QGraphicsItem*> despues = lienzo.scene()->items();
    QCOMPARE(QSet<QGraphicsItem*>(despues.begin(), despues.end()), QSet<QGraphicsItem*>(antes.begin(), antes.end()));
    QCOMPARE(D().NLINEA, Entero{1});
    QCOMPARE(D().NSECCIR, Entero{1});
    const std::vector<ElementoPantalla> lineas = De(ClasePantalla::Linea);
    QCOMPARE(lineas.size(), std::size_t{1});
    QVERIFY(lineas[0].visible);
}

void PruebaLienzo::ContadoresQueNombranDeMasNoRompenNada()
{
    Lienzo& lienzo = AbreListaDeZoom();
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
