// Print: what a report leaves on the screen, and a second report after the first.
#include "PruebaImpresion.h"

// ---- What a report leaves on the screen.

// The picture of the open screen shows the last diagram that the report built, fitted to
// the picture's pixels, while the fit in store is the page's, in centimetres: a zoom or a
// right click then works with those small numbers.
void PruebaImpresion::elDibujoQuedaConElUltimoDiagramaYElAjusteDelPapel_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("dibujo");
    QTest::addColumn<int>("isotropico");
    QTest::newRow("FM_FLEXION") << QStringLiteral("mnuCalcularFlexion") << QStringLiteral("PIC_FLEXION") << 0;
    QTest::newRow("FM_FLEXIONT") << QStringLiteral("mnuCalcularFlexionT") << QStringLiteral("PIC_FLEXION") << 0;
    QTest::newRow("FM_CONFINA") << QStringLiteral("mnuCalcularConfina") << QStringLiteral("PIC_CONFINA") << 1;
    QTest::newRow("FM_CARAC") << QStringLiteral("mnuCalcularCarac") << QStringLiteral("PIC_CARAC") << 0;
}

void PruebaImpresion::elDibujoQuedaConElUltimoDiagramaYElAjusteDelPapel()
{
    QFETCH(QString, orden);
    QFETCH(QString, dibujo);
    QFETCH(int, isotropico);
    Arranca();
    if (orden == QLatin1String("mnuCalcularFlexion") || orden == QLatin1String("mnuCalcularFlexionT"))
        FlexionCalculada(orden.endsWith(QLatin1Char('T')), "250");
    else if (orden == QLatin1String("mnuCalcularConfina"))
        ConfinamientoCalculado();
    else
        QVERIFY(Orden(qPrintable(orden)));
    auto* lienzo = qobject_cast<Lienzo*>(C(qPrintable(dibujo)));
    // A zoom on the picture before the report.
    QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
    QTest::mouseMove(lienzo->viewport(), QPoint(150, 90));
    QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));

    QVERIFY(Imprime(QStringLiteral("menú")));
    const GeneralDibujo& d = EstadoDibujo();
    // The last ImprimeLista's area, within a page of 20 × 28.7 cm less its margins.
    QVERIFY(d.ANCHOPIC > 1.0 && d.ANCHOPIC < 20.0);
    QVERIFY(d.ALTOPIC > 1.0 && d.ALTOPIC < 28.7);
    const Encuadre papel = Encuadra(d, d.ANCHOPIC, d.ALTOPIC, Entero(isotropico));
    QCOMPARE(d.ESCALAX, papel.escalaX);
    QCOMPARE(d.ESCALAY, papel.escalaY);
    // On the screen the same list, fitted to the picture and no longer zoomed, counted by
    // the state's counters.
    const QString diferencia = prueba::DiferenciaConLaLista(*lienzo, d, Entero(isotropico));
    QVERIFY2(diferencia.isEmpty(), qPrintable(diferencia));
}

// The chart of a calculated flexure stays in the state as its list when the confinement
// screen opens: a right click on the new, empty picture fits only what that picture has,
// which is nothing.
void PruebaImpresion::unClicDerechoEnElDibujoVacioDeLaPantallaSiguienteNoDibujaNada()
{
    Arranca();
    FlexionCalculada(false, "250");
    QVERIFY(!qobject_cast<Lienzo*>(C("PIC_FLEXION"))->scene()->items().isEmpty());
    QVERIFY(EstadoDibujo().NLISTA > 0);
    doble_->mensajes.respuestas = {Respuesta::No};
    QVERIFY(Orden("mnuCalcularConfina"));
    auto* lienzo = qobject_cast<Lienzo*>(C("PIC_CONFINA"));
    QVERIFY(lienzo->scene()->items().isEmpty());
    QTest::mouseClick(lienzo->viewport(), Qt::RightButton, {}, QPoint(120, 80));
    QVERIFY(lienzo->scene()->items().isEmpty());
    const GeneralDibujo& d = EstadoDibujo();
    QCOMPARE(d.NLINEA + d.NTIT + d.NBARRA + d.NPUNTO + d.NSECRECT + d.NSECCIR, Entero{0});
    // Its own diagram, once calculated, zoomed and fitted again by a right click as ever.
    prueba::Pulsa(C("CM_CALCULAR"));
    const int elementos = static_cast<int>(lienzo->scene()->items().size());
    QVERIFY(elementos > 0);
    QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
    QTest::mouseMove(lienzo->viewport(), QPoint(150, 90));
    QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));
    QTest::mouseClick(lienzo->viewport(), Qt::RightButton, {}, QPoint(120, 80));
    QCOMPARE(static_cast<int>(lienzo->scene()->items().size()), elementos);
    const QString diferencia = prueba::DiferenciaConLaLista(*lienzo, d, 0);
    QVERIFY2(diferencia.isEmpty(), qPrintable(diferencia));
}

// A report with the verdict in place of the results builds no diagram: the picture keeps
// what it showed, zoom and all.
void PruebaImpresion::conElVeredictoElDibujoSeQuedaComoEstaba()
{
    Arranca();
    FlexionCalculada(false);
    QVERIFY(C("LB_INFO")->isVisible());
    auto* lienzo = qobject_cast<Lienzo*>(C("PIC_FLEXION"));
    QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
    QTest::mouseMove(lienzo->viewport(), QPoint(150, 90));
    QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));
    const ElementoPantalla ampliada = lienzo->Escena().Elementos(ClasePantalla::Linea).front();
    const double anchoPic = EstadoDibujo().ANCHOPIC;
    QCOMPARE(anchoPic, double(kPicFlexion.tamano.ancho));
    QVERIFY(Imprime(QStringLiteral("barra")));
    QCOMPARE(Cuenta("ScaleMode"), 1);
    const ElementoPantalla despues = lienzo->Escena().Elementos(ClasePantalla::Linea).front();
    QCOMPARE(despues.x1, ampliada.x1);
    QCOMPARE(despues.y1, ampliada.y1);
    QCOMPARE(despues.x2, ampliada.x2);
    QCOMPARE(EstadoDibujo().ANCHOPIC, anchoPic);
}

// ---- Again and again.

void PruebaImpresion::unaSegundaImpresionEmpiezaEnLaPaginaUno()
{
    Arranca();
    FlexionCalculada(false, "250");
    QVERIFY(Imprime(QStringLiteral("menú")));
    const std::size_t primera = Operaciones().size();
    QVERIFY(Imprime(QStringLiteral("barra")));
    QVERIFY(Mostrados().isEmpty());
    QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 2);
    QCOMPARE(Cuenta("NewPage"), 2);
    // The second document has its own set-up and counts its pages from 1.
    QCOMPARE(Operaciones()[primera], (Operacion{"PaperSize", {9.0}, ""}));
    QStringList paginas;
    for (const QString& texto : Impresos(primera))
        if (texto.startsWith(QStringLiteral("Página "))) paginas << texto;
    QCOMPARE(paginas, QStringList({QStringLiteral("Página 1"), QStringLiteral("Página 2")}));
    // Both documents are the same report.
    QCOMPARE(Impresos(primera), Impresos(0, primera));
}

void PruebaImpresion::unaSegundaImpresionDeCaracteristicasEmpiezaEnLaPaginaUno()
{
    Arranca();
    QVERIFY(Orden("mnuCalcularCarac"));
    QVERIFY(Imprime(QStringLiteral("barra")));
    const std::size_t primera = Operaciones().size();
    QVERIFY(Imprime(QStringLiteral("menú")));
    QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 2);
    QCOMPARE(Impresos().count(QStringLiteral("Página 1")), 2);
    QVERIFY(!Impresos().contains(QStringLiteral("Página 2")));
    QCOMPARE(Impresos(primera), Impresos(0, primera));
}
