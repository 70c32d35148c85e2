#include "platform/dobles/PlataformaDoble.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "state/ErrorEjecucion.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

// The layout of the flexure and confinement grids: 6 rows of 300 twips, 4 columns of 1595
// twips, column 0 of 1000.
constexpr int kFilas = 6;
constexpr int kColumnas = 4;

// A grid laid out as the result grids are, inside a window with a second control that can
// take the focus from it.
struct Ventana {
    Ventana()
    {
        auto* disposicion = new QVBoxLayout(&ventana);
        disposicion->addWidget(otro);
        disposicion->addWidget(rejilla);
        rejilla->Dimensiona(kFilas, kColumnas, 300, 1595, 1000);
    }

    void MuestraActiva()
    {
        ventana.show();
        ventana.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&ventana));
    }

    QWidget ventana;
    QLineEdit* otro = new QLineEdit(&ventana);
    RejillaResultados* rejilla = new RejillaResultados(&ventana);
};

QPoint Centro(const RejillaResultados& rejilla, int fila, int columna)
{
    return rejilla.visualRect(rejilla.model()->index(fila, columna)).center();
}

// The colour on screen of one pixel of a cell, `dx` and `dy` from its top left corner.
QColor ColorEnPantalla(RejillaResultados& rejilla, int fila, int columna, int dx, int dy)
{
    const QRect celda = rejilla.visualRect(rejilla.model()->index(fila, columna));
    const QImage imagen = rejilla.viewport()->grab().toImage();
    return imagen.pixelColor(celda.topLeft() + QPoint(dx, dy));
}

}  // namespace

class PruebaRejilla : public QObject {
    Q_OBJECT

    // The doubles, and a grid of its own laid out as the result grids are.
    RejillaResultados& Dimensionada()
    {
        doble_ = std::make_unique<PlataformaDoble>();
        sola_ = std::make_unique<RejillaResultados>();
        sola_->Dimensiona(kFilas, kColumnas, 300, 1595, 1000);
        return *sola_;
    }

    std::unique_ptr<PlataformaDoble> doble_;
    std::unique_ptr<Ventana> ventana_;
    std::unique_ptr<RejillaResultados> sola_;

    // The doubles, and the grid in its window on the screen, active.
    RejillaResultados& Muestra()
    {
        doble_ = std::make_unique<PlataformaDoble>();
        ventana_ = std::make_unique<Ventana>();
        ventana_->MuestraActiva();
        return *ventana_->rejilla;
    }

private slots:
    void cleanup()
    {
        ventana_.reset();
        sola_.reset();
        doble_.reset();
    }

    void twipsAPixelesRedondeaAlMasCercano()
    {
        // 15 twips a pixel, to the nearest pixel: 1595 / 15 = 106.33 gives 106, 1600 / 15 =
        // 106.67 gives 107, 1000 / 15 = 66.67 gives 67.
        QCOMPARE(PixelesDeTwips(300), 20);
        QCOMPARE(PixelesDeTwips(1595), 106);
        QCOMPARE(PixelesDeTwips(1600), 107);
        QCOMPARE(PixelesDeTwips(1000), 67);
        QCOMPARE(PixelesDeTwips(525), 35);
        QCOMPARE(PixelesDeTwips(915), 61);
    }

    void dimensionaConTamanosDeTwips()
    {
        RejillaResultados& rejilla = Dimensionada();
        QCOMPARE(rejilla.rowCount(), kFilas);
        QCOMPARE(rejilla.columnCount(), kColumnas);
        for (int fila = 0; fila < kFilas; ++fila)
            QCOMPARE(rejilla.rowHeight(fila), 20);
        QCOMPARE(rejilla.columnWidth(0), 67);
        for (int columna = 1; columna < kColumnas; ++columna)
            QCOMPARE(rejilla.columnWidth(columna), 106);
        QVERIFY(rejilla.horizontalHeader()->isHidden());
        QVERIFY(rejilla.verticalHeader()->isHidden());
        QVERIFY(rejilla.showGrid());
    }

    void elTamanoPreferidoAjustaLaTablaSinBarras()
    {
        RejillaResultados& rejilla = Dimensionada();
        const int marco = 2 * rejilla.frameWidth();
        QCOMPARE(rejilla.sizeHint(), QSize(67 + 3 * 106 + marco, 6 * 20 + marco));
        rejilla.resize(rejilla.sizeHint());
        rejilla.show();
        QVERIFY(QTest::qWaitForWindowExposed(&rejilla));
        QVERIFY(!rejilla.horizontalScrollBar()->isVisible());
        QVERIFY(!rejilla.verticalScrollBar()->isVisible());
        // The last cell ends at the viewport's edge: the whole table is on show.
        const QRect ultima = rejilla.visualRect(rejilla.model()->index(kFilas - 1, kColumnas - 1));
        QCOMPARE(ultima.right() + 2, rejilla.viewport()->width());
        QCOMPARE(ultima.bottom() + 2, rejilla.viewport()->height());
    }

    void filaYColumnaFijasSonGrisesYNoSeleccionables()
    {
        RejillaResultados& rejilla = Dimensionada();
        const QColor gris(212, 208, 200);
        for (int columna = 0; columna < kColumnas; ++columna) {
            QCOMPARE(rejilla.Color(0, columna), gris);
            QVERIFY(!(rejilla.item(0, columna)->flags() & Qt::ItemIsSelectable));
        }
        for (int fila = 0; fila < kFilas; ++fila) {
            QCOMPARE(rejilla.Color(fila, 0), gris);
            QVERIFY(!(rejilla.item(fila, 0)->flags() & Qt::ItemIsSelectable));
        }
        QCOMPARE(rejilla.Color(1, 1), QColor(255, 255, 255));
        QVERIFY(rejilla.item(1, 1)->flags() & Qt::ItemIsSelectable);
        QVERIFY(!(rejilla.item(1, 1)->flags() & Qt::ItemIsEditable));
        QCOMPARE(rejilla.editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(rejilla.selectionMode(), QAbstractItemView::SingleSelection);
    }

    void todasLasCeldasCentradas()
    {
        RejillaResultados& rejilla = Dimensionada();
        rejilla.EscribeCelda(2, 3, QStringLiteral("12.5"));
        for (int fila = 0; fila < kFilas; ++fila) {
            for (int columna = 0; columna < kColumnas; ++columna)
                QCOMPARE(rejilla.item(fila, columna)->textAlignment(), static_cast<int>(Qt::AlignCenter));
        }
    }

    void textosYColoresSeLeenDeVuelta()
    {
        RejillaResultados& rejilla = Dimensionada();
        rejilla.EscribeCelda(0, 0, QStringLiteral("Nº capas"));
        rejilla.EscribeCelda(0, 2, QStringLiteral("TEXALON H"));
        rejilla.EscribeCelda(3, 2, QStringLiteral("---"));
        rejilla.ColoreaCelda(3, 2, RejillaResultados::kAmarillo);
        QCOMPARE(rejilla.Texto(0, 0), QStringLiteral("Nº capas"));
        QCOMPARE(rejilla.Texto(0, 2), QStringLiteral("TEXALON H"));
        QCOMPARE(rejilla.Texto(3, 2), QStringLiteral("---"));
        QCOMPARE(rejilla.Texto(3, 3), QString());
        QCOMPARE(rejilla.Color(3, 2), QColor(255, 255, 0));
        rejilla.ColoreaCelda(3, 2, RejillaResultados::kBlanco);
        QCOMPARE(rejilla.Color(3, 2), QColor(255, 255, 255));
    }

    void unaCeldaFueraDeLaRejillaEsElError9()
    {
        RejillaResultados& rejilla = Dimensionada();
        try {
            rejilla.EscribeCelda(kFilas, 1, QStringLiteral("x"));
            QFAIL("a row past the last one was written");
        } catch (const ErrorEjecucion& error) {
            QCOMPARE(error.Numero(), ErrorEjecucion::kSubindiceFueraDeIntervalo);
        }
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, rejilla.Texto(1, kColumnas));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, rejilla.CeldaActual(-1, 1));
    }

    void dimensionarDeNuevoVaciaLaRejilla()
    {
        RejillaResultados& rejilla = Dimensionada();
        rejilla.EscribeCelda(2, 2, QStringLiteral("9.9"));
        rejilla.ColoreaCelda(2, 2, RejillaResultados::kAmarillo);
        rejilla.CeldaActual(2, 2);
        rejilla.Dimensiona(kFilas, kColumnas, 300, 1595, 1000);
        QCOMPARE(rejilla.Texto(2, 2), QString());
        QCOMPARE(rejilla.Color(2, 2), QColor(255, 255, 255));
        QCOMPARE(rejilla.Fila(), -1);
        QCOMPARE(rejilla.Columna(), -1);
    }

    void laCeldaActualLaFijaElPrograma()
    {
        RejillaResultados& rejilla = Dimensionada();
        QSignalSpy seleccion(&rejilla, &RejillaResultados::SeleccionCambiada);
        rejilla.CeldaActual(1, 1);
        QCOMPARE(rejilla.Fila(), 1);
        QCOMPARE(rejilla.Columna(), 1);
        rejilla.CeldaActual(4, 3);
        QCOMPARE(rejilla.Fila(), 4);
        QCOMPARE(rejilla.Columna(), 3);
        QCOMPARE(seleccion.count(), 2);
        QCOMPARE(seleccion.at(0), (QList<QVariant>{1, 1}));
        QCOMPARE(seleccion.at(1), (QList<QVariant>{4, 3}));
    }

    void unClicEnUnaCeldaLaHaceActualYAvisa()
    {
        RejillaResultados& rejilla = Muestra();
        QSignalSpy clic(&rejilla, &RejillaResultados::Clic);
        QSignalSpy seleccion(&rejilla, &RejillaResultados::SeleccionCambiada);
        QTest::mouseClick(rejilla.viewport(), Qt::LeftButton, {}, Centro(rejilla, 3, 2));
        QCOMPARE(rejilla.Fila(), 3);
        QCOMPARE(rejilla.Columna(), 2);
        QCOMPARE(seleccion.count(), 1);
        QCOMPARE(seleccion.at(0), (QList<QVariant>{3, 2}));
        QCOMPARE(clic.count(), 1);
        QCOMPARE(clic.at(0), (QList<QVariant>{3, 2}));
        QVERIFY(rejilla.hasFocus());
    }

    void unClicEnUnaCeldaFijaAvisaSinMoverLaCeldaActual()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.CeldaActual(2, 2);
        QSignalSpy clic(&rejilla, &RejillaResultados::Clic);
        QSignalSpy seleccion(&rejilla, &RejillaResultados::SeleccionCambiada);
        QTest::mouseClick(rejilla.viewport(), Qt::LeftButton, {}, Centro(rejilla, 0, 3));
        QTest::mouseClick(rejilla.viewport(), Qt::LeftButton, {}, Centro(rejilla, 4, 0));
        QCOMPARE(clic.count(), 2);
        QCOMPARE(clic.at(0), (QList<QVariant>{0, 3}));
        QCOMPARE(clic.at(1), (QList<QVariant>{4, 0}));
        QCOMPARE(seleccion.count(), 0);
        QCOMPARE(rejilla.Fila(), 2);
        QCOMPARE(rejilla.Columna(), 2);
        for (QTableWidgetItem* celda : rejilla.selectedItems())
            QVERIFY(celda->row() != 0 && celda->column() != 0);
    }

    void unDobleClicEsUnSoloClic()
    {
        RejillaResultados& rejilla = Muestra();
        QSignalSpy clic(&rejilla, &RejillaResultados::Clic);
        for (const QPoint punto : {Centro(rejilla, 2, 3), Centro(rejilla, 0, 1)}) {
            QTest::mousePress(rejilla.viewport(), Qt::LeftButton, {}, punto);
            QTest::mouseRelease(rejilla.viewport(), Qt::LeftButton, {}, punto);
            QTest::mouseDClick(rejilla.viewport(), Qt::LeftButton, {}, punto);
            QTest::mouseRelease(rejilla.viewport(), Qt::LeftButton, {}, punto);
        }
        QCOMPARE(clic.count(), 2);
        QCOMPARE(clic.at(0), (QList<QVariant>{2, 3}));
        QCOMPARE(clic.at(1), (QList<QVariant>{0, 1}));
    }

    void lasTeclasNoLlevanALaFilaNiALaColumnaFijas()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.setFocus();
        rejilla.CeldaActual(1, 1);
        QSignalSpy seleccion(&rejilla, &RejillaResultados::SeleccionCambiada);
        QTest::keyClick(&rejilla, Qt::Key_Up);
        QTest::keyClick(&rejilla, Qt::Key_Left);
        QCOMPARE(rejilla.Fila(), 1);
        QCOMPARE(rejilla.Columna(), 1);
        QTest::keyClick(&rejilla, Qt::Key_Down);
        QTest::keyClick(&rejilla, Qt::Key_Right);
        QCOMPARE(rejilla.Fila(), 2);
        QCOMPARE(rejilla.Columna(), 2);
        QCOMPARE(seleccion.count(), 2);
    }

    void unaCeldaAmarillaSeVeAmarillaSiendoLaActual()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.EscribeCelda(2, 1, QStringLiteral("230.0"));
        rejilla.ColoreaCelda(2, 1, RejillaResultados::kAmarillo);
        rejilla.setFocus();
        rejilla.CeldaActual(2, 1);
        QVERIFY(rejilla.selectedItems().contains(rejilla.item(2, 1)));
        // Inside the cell, clear of its text and of its frame, the background stays yellow...
        QCOMPARE(ColorEnPantalla(rejilla, 2, 1, 5, 4), QColor(255, 255, 0));
        // ...and the frame of the current cell runs along its edge.
        QVERIFY(ColorEnPantalla(rejilla, 2, 1, 0, 10) != QColor(255, 255, 0));
        // Another yellow cell has no frame.
        rejilla.ColoreaCelda(3, 1, RejillaResultados::kAmarillo);
        QCOMPARE(ColorEnPantalla(rejilla, 3, 1, 0, 10), QColor(255, 255, 0));
    }

    void unaCeldaQueCambiaSePintaConLoNuevo()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.EscribeCelda(2, 2, QStringLiteral("246.5"));
        rejilla.EscribeCelda(4, 2, QStringLiteral("246.5"));
        const QRect celda = rejilla.visualRect(rejilla.model()->index(2, 2));
        const QRect gemela = rejilla.visualRect(rejilla.model()->index(4, 2));
        QImage antes = rejilla.viewport()->grab().toImage();
        // Two cells of the same text and colour look the same.
        QCOMPARE(antes.copy(celda), antes.copy(gemela));
        QCOMPARE(antes.pixelColor(celda.topLeft() + QPoint(5, 4)), QColor(255, 255, 255));
        // A new colour and text show at once; the twin stays as it was.
        rejilla.ColoreaCelda(2, 2, RejillaResultados::kAmarillo);
        rejilla.EscribeCelda(2, 2, QStringLiteral("---"));
        const QImage despues = rejilla.viewport()->grab().toImage();
        QCOMPARE(despues.pixelColor(celda.topLeft() + QPoint(5, 4)), QColor(255, 255, 0));
        QVERIFY(despues.copy(celda) != antes.copy(celda));
        QCOMPARE(despues.copy(gemela), antes.copy(gemela));
        // And back: the first picture again.
        rejilla.ColoreaCelda(2, 2, RejillaResultados::kBlanco);
        rejilla.EscribeCelda(2, 2, QStringLiteral("246.5"));
        QCOMPARE(rejilla.viewport()->grab().toImage().copy(celda), antes.copy(celda));
    }

    void dimensionarConLasMismasMedidasNoMueveNada()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.EscribeCelda(1, 1, QStringLiteral("238.5"));
        rejilla.CeldaActual(1, 1);
        const QRect marco = rejilla.geometry();
        const QRect vista = rejilla.viewport()->geometry();
        QSignalSpy cambio(&rejilla, &QTableWidget::currentCellChanged);
        // A new Calculate lays the same table out again: the cells are emptied, the current one
        // goes, and neither the grid nor its cells move.
        rejilla.Dimensiona(kFilas, kColumnas, 300, 1595, 1000);
        QCOMPARE(rejilla.Texto(1, 1), QString());
        QCOMPARE(rejilla.Fila(), -1);
        QCOMPARE(cambio.count(), 1);
        QCoreApplication::processEvents();
        QCOMPARE(rejilla.geometry(), marco);
        QCOMPARE(rejilla.viewport()->geometry(), vista);
        QCOMPARE(rejilla.columnWidth(0), 67);
        QCOMPARE(rejilla.rowHeight(5), 20);
        // Other measures lay it out anew.
        rejilla.Dimensiona(3, 2, 300, 1595, 1000);
        QCOMPARE(rejilla.rowCount(), 3);
        QCOMPARE(rejilla.columnCount(), 2);
        QCOMPARE(rejilla.Color(0, 1), QColor(212, 208, 200));
    }

    void inactivaNoTomaElFocoNiMuestraCeldaActual()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.ColoreaCelda(1, 1, RejillaResultados::kAmarillo);
        rejilla.setFocus();
        rejilla.CeldaActual(1, 1);
        QVERIFY(rejilla.hasFocus());
        QSignalSpy seleccion(&rejilla, &RejillaResultados::SeleccionCambiada);

        rejilla.Activa(false);
        QVERIFY(!rejilla.EstaActiva());
        QVERIFY(!rejilla.isEnabled());
        QVERIFY(!rejilla.hasFocus());
        QCOMPARE(rejilla.Fila(), -1);
        QCOMPARE(rejilla.Columna(), -1);
        QVERIFY(rejilla.selectedItems().isEmpty());
        QCOMPARE(ColorEnPantalla(rejilla, 1, 1, 0, 10), QColor(255, 255, 0));
        QCOMPARE(seleccion.count(), 0);

        rejilla.setFocus();
        QVERIFY(!rejilla.hasFocus());
        QTest::mouseClick(rejilla.viewport(), Qt::LeftButton, {}, Centro(rejilla, 2, 2));
        QVERIFY(!rejilla.hasFocus());
        QCOMPARE(rejilla.Fila(), -1);
        QCOMPARE(seleccion.count(), 0);
    }

    void activaDeNuevoTomaElFoco()
    {
        RejillaResultados& rejilla = Muestra();
        rejilla.Activa(false);
        ventana_->otro->setFocus();

        rejilla.Activa(true);
        QVERIFY(rejilla.EstaActiva());
        QVERIFY(rejilla.isEnabled());
        rejilla.setFocus();
        QVERIFY(rejilla.hasFocus());
        rejilla.CeldaActual(1, 1);
        QCOMPARE(rejilla.Fila(), 1);
        QCOMPARE(rejilla.Columna(), 1);
        QTest::mouseClick(rejilla.viewport(), Qt::LeftButton, {}, Centro(rejilla, 5, 3));
        QCOMPARE(rejilla.Fila(), 5);
        QCOMPARE(rejilla.Columna(), 3);
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaRejilla prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_rejilla.moc"
