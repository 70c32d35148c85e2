// The zoom of the picture of a screen and its redrawing, driven with the mouse and the keyboard as
// the user does.
#include "PruebaLienzo.h"

// ---- The zoom

void PruebaLienzo::EscapeSinBandaNoHaceNada()
{
    Lienzo& lienzo = AbreListaDeZoom();
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

void PruebaLienzo::EscapeDuranteLaBandaLaEsconde()
{
    Lienzo& lienzo = AbreListaDeZoom();
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

void PruebaLienzo::LaBandaSeEstiraEnCualquierDireccion()
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

void PruebaLienzo::ZoomDeDiezPorDiezEnCuatrocientosPorTrescientos()
{
    Lienzo& lienzo = AbreListaDeZoom();
    Clic(40, 30);
    QVERIFY(D().F_ZOOM);
    QCOMPARE(D().ZOOMX1, 40.0);
    QCOMPARE(D().ZOOMY1, 30.0);
    Mueve(50, 40);
    QCOMPARE(lienzo.Banda(), QRectF(40, 30, 10, 10));
    Clic(50, 40);
    QVERIFY(!D().F_ZOOM);
    CercaEscalas(40, 30, 30);
    // The rectangle's top-left corner lands at the picture's top-left corner.
    EjeVisibleEntre(0, 0, 9600, 7200);
    // The text grows with the zoom.
    const QSizeF medida = Medida(QStringLiteral("DIAGRAMA"), 8, false);
    const ElementoPantalla tit = Uno(ClasePantalla::Tit);
    CercaTexto(tit, 240, (200 - medida.width() / 2 - 40) * 30, (150 - medida.height() / 2 - 30) * 30);
    QVERIFY(tit.ancho > medida.width() * 25);
    const ElementoPantalla barra = Uno(ClasePantalla::Barra);
    CercaCaja(barra, 0, 0, 1920, 1440);
    const ElementoPantalla punto = Uno(ClasePantalla::Punto);
    CercaCaja(punto, 9495, -105, 210, 210);
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

void PruebaLienzo::ZoomDosVecesMultiplicaYElClicDerechoDeshaceAmbos()
{
    AbreListaDeZoom();
    Amplia(40, 30, 50, 40);
    Amplia(1, 1, 11, 11);
    CERCA(D().ZOOM, 30);
    const ElementoPantalla eje = Uno(ClasePantalla::Linea);
    CercaExtremos(eje, -30, -30, 287970, 215970);
    CERCA(Uno(ClasePantalla::Tit).tamano, 7200);
    CERCA(Uno(ClasePantalla::Barra).ancho, 57600);
    CERCA(Uno(ClasePantalla::Punto).ancho, 6300);
    Clic(200, 200, Qt::RightButton);
    ListaDeZoomSinAmpliar();
    CERCA(D().ESCALAX, 32);
    CERCA(D().ESCALAY, 24);
    QVERIFY(!D().F_ZOOM);
}

void PruebaLienzo::ClicDerechoDuranteLaBandaRedibujaYSigueArmada()
{
    Lienzo& lienzo = AbreListaDeZoom();
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
    CercaEscalas(40, 20, 20);
    CERCA(Uno(ClasePantalla::Linea).x1, 600);
    CERCA(Uno(ClasePantalla::Linea).y1, 400);
}

void PruebaLienzo::ClicDerechoIsotropicoSoloEnSecciones()
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

void PruebaLienzo::DobleClicSinMoverAmpliaPorElTamanoDelDibujo()
{
    AbreListaDeZoom();
    // The first click, the pointer reported where it was, and the second click of the
    // double click.
    Clic(40, 30);
    Mueve(45, 35);
    Mueve(40, 30);
    QTest::mouseDClick(Area(), Qt::LeftButton, {}, QPoint(40, 30));
    QVERIFY(!D().F_ZOOM);
    QCOMPARE(D().ZOOMX2, 41.0);
    QCOMPARE(D().ZOOMY2, 31.0);
    CercaEscalas(400, 300, 300);
    EjeDesdeLaEsquina();
    CERCA(Uno(ClasePantalla::Linea).x2, 96000);
}

void PruebaLienzo::LasEsquinasIgualesSeCorrigenTrasTomarLaMenor()
{
    Lienzo& lienzo = AbreListaDeZoom();
    // The second corner left of and equal in height to the first.
    D().ZOOMX1 = 50;
    D().ZOOMX2 = 40;
    D().ZOOMY1 = 30;
    D().ZOOMY2 = 30;
    lienzo.Escena().AmpliaVentana(D());
    QCOMPARE(D().ZOOMY2, 31.0);
    CercaEscalas(40, 300, 40);
    EjeDesdeLaEsquina();
    CERCA(Uno(ClasePantalla::Linea).y2, 9600);
}

void PruebaLienzo::TrasUnInformeElClicDerechoEncajaEnCentimetros()
{
    AbreListaDeZoom();
    // A report left the page's area in centimetres.
    D().ANCHOPIC = 17.0;
    D().ALTOPIC = 25.7;
    Clic(300, 250, Qt::RightButton);
    CERCA(D().ESCALAX, 1.36);
    CERCA(D().ESCALAY, 2.056);
    // A small drawing in the corner: (0, 10)-(10, 0) at (1.7, 2.57)-(15.3, 23.13).
    ElementoPantalla eje = Uno(ClasePantalla::Linea);
    CercaExtremos(eje, 1.7, 2.57, 15.3, 23.13);
    CERCA(Uno(ClasePantalla::Barra).ancho, 2.72);
    CERCA(Uno(ClasePantalla::Tit).tamano, 8);
    // And a zoom shrinks what is on show.
    Amplia(1, 1, 101, 101);
    CercaEscalas(0.17, 0.257, 0.17);
    eje = Uno(ClasePantalla::Linea);
    CercaExtremos(eje, 0.119, 0.2669, 2.431, 3.7621);
    CERCA(Uno(ClasePantalla::Tit).tamano, 8 * 0.17);
}

void PruebaLienzo::ElLimiteDeCienMillonesDetieneElZoom()
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
    CercaExtremos(Uno(ClasePantalla::Linea, 1), -90300, -90300, -3900, -25500);
    CERCA(Uno(ClasePantalla::Linea, 2).x2, 28799700);
    CERCA(Uno(ClasePantalla::Linea, 2).y2, 21599700);
    CERCA(Uno(ClasePantalla::Linea, 3).x1, -300);
    CERCA(Uno(ClasePantalla::Linea, 3).x2, -12);
    CERCA(Uno(ClasePantalla::Linea, 3).y2, -84);
    const ElementoPantalla tit = Uno(ClasePantalla::Tit);
    CercaTexto(tit, 720000, titAntes.izquierda, titAntes.arriba);
    for (const ElementoPantalla& linea : De(ClasePantalla::Linea))
        QVERIFY(linea.visible);
    // The picture still paints.
    QVERIFY(!Imagen().isNull());
    // And the right click brings everything back.
    Clic(5, 5, Qt::RightButton);
    CERCA(Uno(ClasePantalla::Linea, 2).x2, 360);
    CERCA(Uno(ClasePantalla::Tit).tamano, 8);
}

void PruebaLienzo::SinDiagramaSoloSeFijanLasEsquinas()
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
