// The SVG file that looks like the picture of a screen.
#include "PruebaLienzo.h"

// ---- The SVG file

void PruebaLienzo::ElFicheroSvgEsElDibujo()
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

void PruebaLienzo::ElFicheroSvgNoTocaElDibujoDeLaPantalla()
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

void PruebaLienzo::ElFicheroSvgEnUnaRutaImposibleDaFalso()
{
    QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath(QStringLiteral("no/existe/diagrama.svg"));
    NuevaLista(D());
    Eje(D(), 0, 0, 10, 0);
    QVERIFY(!EscribeSvg(D(), kPicConfina.tamano, 0, fichero));
    QVERIFY(!QFile::exists(fichero));
    QVERIFY(!EscribeSvg(D(), kPicConfina.tamano, 0, carpeta.path()));  // a folder
}
