// The help window with the program's own pages, the place of the help and the guide in an
// installation and in the build tree, and the addresses handed to the browser and the mail
// program.
#include "platform/qt/PlataformaQt.h"
#include "platform/qt/VentanaAyuda.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QToolButton>
#include <QTest>

using namespace texalon::plataforma;

namespace {

const QString kAyuda = QStringLiteral(TEXALON_AYUDA_FUENTE);

QString Pagina(const char* nombre) { return QDir::cleanPath(kAyuda + QLatin1Char('/') + QString::fromLatin1(nombre)); }

void Crea(const QString& fichero)
{
    QDir().mkpath(QFileInfo(fichero).absolutePath());
    QFile salida(fichero);
    if (!salida.open(QIODevice::WriteOnly)) qFatal("no se puede crear %s", qPrintable(fichero));
    salida.write("31 caracteristicas.html\n");
}

}  // namespace

class PruebaAyudaQt : public QObject {
    Q_OBJECT

private slots:
    void elMapaDaUnaPaginaQueExisteACadaContexto()
    {
        const QMap<int, QString> mapa = LeeMapaAyuda(kAyuda);
        QCOMPARE(mapa.keys(), (QList<int>{31, 32, 33, 34}));
        QCOMPARE(mapa.value(31), QStringLiteral("caracteristicas.html"));
        QCOMPARE(mapa.value(32), QStringLiteral("flexion.html"));
        QCOMPARE(mapa.value(33), QStringLiteral("confinamiento.html"));
        QCOMPARE(mapa.value(34), QStringLiteral("flexion_t.html"));
        for (const QString& pagina : mapa)
            QVERIFY2(QFileInfo::exists(kAyuda + QLatin1Char('/') + pagina), qPrintable(pagina));
    }

    void unMapaQueNoSePuedeLeerEstaVacio() { QVERIFY(LeeMapaAyuda(QStringLiteral("/no/existe")).isEmpty()); }

    void cadaTemaMuestraSuPagina_data()
    {
        QTest::addColumn<int>("contexto");
        QTest::addColumn<QString>("pagina");
        QTest::addColumn<QString>("titulo");
        QTest::newRow("31") << 31 << Pagina("caracteristicas.html") << QStringLiteral("Características");
        QTest::newRow("32") << 32 << Pagina("flexion.html") << QStringLiteral("rectangular");
        QTest::newRow("33") << 33 << Pagina("confinamiento.html") << QStringLiteral("confinamiento");
        QTest::newRow("34") << 34 << Pagina("flexion_t.html") << QStringLiteral("en T");
        QTest::newRow("contenido") << 0 << Pagina("contenido.html") << QStringLiteral("Ayuda de TEXALON");
    }

    void cadaTemaMuestraSuPagina()
    {
        QFETCH(int, contexto);
        QFETCH(QString, pagina);
        QFETCH(QString, titulo);
        VentanaAyuda ventana;
        ventana.Muestra(kAyuda, contexto);
        QCOMPARE(ventana.PaginaMostrada(), pagina);
        QVERIFY2(ventana.Visor()->documentTitle().contains(titulo), qPrintable(ventana.Visor()->documentTitle()));
        QVERIFY(ventana.Visor()->toPlainText().size() > 500);
    }

    void unEnlaceLlevaAOtroTemaYAtrasVuelve()
    {
        VentanaAyuda ventana;
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        ventana.Muestra(kAyuda, 0);
        auto* atras = ventana.findChildren<QToolButton*>().at(1);
        QVERIFY(!atras->isEnabled());
        // Tab to the first link of the contents, Enter follows it.
        QTextBrowser* visor = ventana.Visor();
        visor->setFocus();
        QTRY_VERIFY(visor->hasFocus());
        QTest::keyClick(visor, Qt::Key_Tab);
        QTest::keyClick(visor, Qt::Key_Return);
        QTRY_VERIFY(ventana.PaginaMostrada() != Pagina("contenido.html"));
        QVERIFY(QFileInfo::exists(ventana.PaginaMostrada()));
        QVERIFY(atras->isEnabled());
        QTest::mouseClick(atras, Qt::LeftButton);
        QCOMPARE(ventana.PaginaMostrada(), Pagina("contenido.html"));
    }

    void elBotonContenidoVuelveAlContenido()
    {
        VentanaAyuda ventana;
        ventana.show();
        ventana.Muestra(kAyuda, 33);
        auto* contenido = ventana.findChildren<QToolButton*>().at(0);
        QCOMPARE(contenido->text(), QStringLiteral("&Contenido"));
        QTest::mouseClick(contenido, Qt::LeftButton);
        QCOMPARE(ventana.PaginaMostrada(), Pagina("contenido.html"));
    }

    void sinArchivoDeAyudaLaVentanaLoDice()
    {
        VentanaAyuda ventana;
        ventana.Muestra(QStringLiteral("/no/existe/ayuda"), 32);
        QCOMPARE(ventana.PaginaMostrada(), QString());
        QCOMPARE(ventana.Visor()->toPlainText(), QStringLiteral("No se encuentra el archivo de ayuda /no/existe/ayuda."));
        ventana.Muestra(QStringLiteral("/no/existe/ayuda"), 0);
        QCOMPARE(ventana.Visor()->toPlainText(),
                 QStringLiteral("No se encuentra el archivo de ayuda /no/existe/ayuda/contenido.html."));
    }

    void unTemaQueElMapaNoTieneLoDice()
    {
        VentanaAyuda ventana;
        ventana.Muestra(kAyuda, 99);
        QCOMPARE(ventana.Visor()->toPlainText(), QStringLiteral("No existe el tema de ayuda 99 en %1.").arg(kAyuda));
    }

    void laAyudaDelEscritorioUsaUnaSolaVentana()
    {
        AyudaQt ayuda;
        ayuda.MuestraTema(kAyuda, 32);
        QPointer<VentanaAyuda> primera = ayuda.Ventana();
        QVERIFY(primera != nullptr);
        QVERIFY(primera->isVisible());
        ayuda.MuestraContenido(kAyuda);
        QCOMPARE(ayuda.Ventana(), primera.data());
        QCOMPARE(primera->PaginaMostrada(), Pagina("contenido.html"));
        primera->close();
        QTRY_VERIFY(primera.isNull());
    }

    void escapeCierraLaVentanaDeAyuda()
    {
        AyudaQt ayuda;
        ayuda.MuestraTema(kAyuda, 33);
        QPointer<VentanaAyuda> ventana = ayuda.Ventana();
        QVERIFY(ventana != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(ventana.data()));
        ventana->activateWindow();
        ventana->Visor()->setFocus();
        QTest::keyClick(ventana->Visor(), Qt::Key_Escape);
        QTRY_VERIFY(ventana.isNull());
    }

    // The main window of 800 x 600 inside a frame of 1, 20, 1 and 5 pixels, in the middle of a
    // screen of 1280 x 1024: the help of 720 x 560 goes over it, a title bar in, wholly on the screen.
    void enUnaPantallaDe1280Por1024LaAyudaQuedaDentroSobreLaPrincipal()
    {
        const QRect pantalla(0, 0, 1280, 1024);
        const QMargins marco(1, 20, 1, 5);
        const QRect principal(239, 192, 802, 625);
        const QRect lugar = LugarDeLaAyuda(pantalla, principal, QSize(720, 560), marco);
        QCOMPARE(lugar, QRect(260, 232, 720, 560));
        QVERIFY(pantalla.contains(lugar.marginsAdded(marco)));
    }

    void conSitioAlLadoLaAyudaVaALaDerechaYSiNoALaIzquierda()
    {
        const QMargins marco(1, 20, 1, 5);
        const QRect pantalla(0, 0, 1920, 1080);
        QCOMPARE(LugarDeLaAyuda(pantalla, QRect(100, 50, 802, 625), QSize(720, 560), marco), QRect(903, 70, 720, 560));
        QCOMPARE(LugarDeLaAyuda(pantalla, QRect(1100, 50, 802, 625), QSize(720, 560), marco), QRect(379, 70, 720, 560));
    }

    void laAyudaNoSaleDeLaZonaLibreNiPorAbajo()
    {
        // A panel takes the top 30 pixels; the main window sits so low that its bottom is off the screen.
        const QMargins marco(1, 20, 1, 5);
        const QRect libre(0, 30, 1280, 994);
        const QRect lugar = LugarDeLaAyuda(libre, QRect(239, 420, 802, 625), QSize(720, 560), marco);
        QVERIFY(libre.contains(lugar.marginsAdded(marco)));
        QCOMPARE(lugar.bottom() + marco.bottom(), libre.bottom());
        // A screen smaller than the window: the window is made smaller and fills it.
        const QRect pequena(0, 0, 640, 480);
        QCOMPARE(LugarDeLaAyuda(pequena, QRect(), QSize(720, 560), marco), QRect(1, 20, 638, 455));
        // No main window: centred.
        QCOMPARE(LugarDeLaAyuda(QRect(0, 0, 1280, 1024), QRect(), QSize(720, 560), marco), QRect(280, 239, 720, 560));
    }

    void instaladoLosDatosEstanEnShareTexalon()
    {
        QTemporaryDir raiz;
        QDir().mkpath(raiz.filePath(QStringLiteral("usr/bin")));
        Crea(raiz.filePath(QStringLiteral("usr/share/texalon/ayuda/mapa.txt")));
        QCOMPARE(UbicaDatos(raiz.filePath(QStringLiteral("usr/bin"))), raiz.filePath(QStringLiteral("usr/share/texalon")));
    }

    void sinInstalarLosDatosEstanJuntoAlPrograma()
    {
        QTemporaryDir raiz;
        QDir().mkpath(raiz.filePath(QStringLiteral("build/src/shell")));
        Crea(raiz.filePath(QStringLiteral("build/src/shell/ayuda/mapa.txt")));
        QCOMPARE(UbicaDatos(raiz.filePath(QStringLiteral("build/src/shell"))), raiz.filePath(QStringLiteral("build/src/shell")));
    }

    void elCorreoLlevaElAsuntoCodificadoParaElProgramaDeCorreo()
    {
        const QUrl url = DireccionCorreo(QStringLiteral("INFORMACION SOBRE EL SISTEMA DE REFUERZO TEXALON®"),
                                         QStringLiteral("texalon@velmora.example"));
        QCOMPARE(url.toString(QUrl::FullyEncoded),
                 QStringLiteral("mailto:texalon@velmora.example?subject=INFORMACION%20SOBRE%20EL%20SISTEMA%20DE%20"
                                "REFUERZO%20TEXALON%C2%AE"));
    }

    void laDireccionWebSinEsquemaVaPorHttps()
    {
        QCOMPARE(DireccionWeb(QStringLiteral("www.velmora.example")).toString(),
                 QStringLiteral("https://www.velmora.example"));
        QCOMPARE(DireccionWeb(QStringLiteral("http://www.velmora.example/texalon")).toString(),
                 QStringLiteral("http://www.velmora.example/texalon"));
    }

    void unFicheroQueNoExisteNoTieneVisor()
    {
        EscritorioQt escritorio;
        QVERIFY(!escritorio.AbreFichero(QStringLiteral("/no/existe/guia_texalon.pdf")));
    }
};

QTEST_MAIN(PruebaAyudaQt)
#include "test_ayuda_qt.moc"
