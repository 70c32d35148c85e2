#include "comun/Ejecuta.h"
#include "comun/Filas.h"
#include "comun/Pantallas.h"
#include "engine/Calculos.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/FmAnclaje.h"
#include "screens/RejillaResultados.h"
#include "state/General.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

RejillaResultados& Tabla(const FmAnclaje& ventana)
{
    auto* rejilla = ventana.findChild<RejillaResultados*>(QStringLiteral("FG_ANCLAJE"));
    if (rejilla == nullptr) qFatal("FM_ANCLAJE has no FG_ANCLAJE");
    return *rejilla;
}

// Every text of the table, row by row.
QStringList Textos(const RejillaResultados& rejilla)
{
    QStringList textos;
    for (int fila = 0; fila < rejilla.rowCount(); ++fila) {
        for (int columna = 0; columna < rejilla.columnCount(); ++columna)
            textos << rejilla.Texto(fila, columna);
    }
    return textos;
}

// The start-up project, FCK 25 and GR 1.4, with its anchorage lengths worked out.
void ProyectoInicial()
{
    ValoresIniciales(Estado());
    QCOMPARE(Estado().FCK, 25.0);
    QCOMPARE(Estado().GR, 1.4);
    LongitudAnclaje(Estado());
}

}  // namespace

class PruebaFmAnclaje : public QObject {
    Q_OBJECT

private slots:
    void init() { ProyectoInicial(); }

    void ventanaModalConSuTitulo()
    {
        PlataformaDoble doble;
        FmAnclaje ventana;
        QCOMPARE(ventana.objectName(), QStringLiteral("FM_ANCLAJE"));
        QCOMPARE(ventana.windowTitle(), QStringLiteral("Longitud  neta de anclaje (Lb)"));
        QVERIFY(ventana.isModal());
        auto* salir = ventana.findChild<QPushButton*>(QStringLiteral("CM_SALIR"));
        QVERIFY(salir != nullptr);
        QCOMPARE(salir->text(), QStringLiteral("Salir"));
        auto* dibujo = ventana.findChild<QLabel*>(QStringLiteral("Image1"));
        QVERIFY(dibujo != nullptr);
        QVERIFY(!dibujo->pixmap().isNull());
    }

    void tamanoFijoConTodaLaTablaALaVista()
    {
        PlataformaDoble doble;
        FmAnclaje ventana;
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        QCOMPARE(ventana.minimumSize(), ventana.maximumSize());
        const RejillaResultados& rejilla = Tabla(ventana);
        QCOMPARE(rejilla.size(), rejilla.sizeHint());
    }

    void tablaConSusTamanosEnTwips()
    {
        PlataformaDoble doble;
        FmAnclaje ventana;
        const RejillaResultados& rejilla = Tabla(ventana);
        QCOMPARE(rejilla.rowCount(), 6);
        QCOMPARE(rejilla.columnCount(), 4);
        for (int fila = 0; fila < 6; ++fila)
            QCOMPARE(rejilla.rowHeight(fila), 20);
        QCOMPARE(rejilla.columnWidth(0), 67);  // 1000 twips
        for (int columna = 1; columna < 4; ++columna)
            QCOMPARE(rejilla.columnWidth(columna), 107);  // 1600 twips
    }

    void filaCeroConLosTiposYColumnaCeroConLasCapas()
    {
        PlataformaDoble doble;
        FmAnclaje ventana;
        const RejillaResultados& rejilla = Tabla(ventana);
        QCOMPARE(rejilla.Texto(0, 0), QStringLiteral("Nº capas"));
        QCOMPARE(rejilla.Texto(0, 1), QStringLiteral("TEXALON L"));
        QCOMPARE(rejilla.Texto(0, 2), QStringLiteral("TEXALON H"));
        QCOMPARE(rejilla.Texto(0, 3), QStringLiteral("TEXALON X"));
        for (int capas = 1; capas <= 5; ++capas)
            QCOMPARE(rejilla.Texto(capas, 0), QString::number(capas));
    }

    void longitudesConElSeparadorDeLaMaquina_data()
    {
        prueba::Columnas<char, QStringList>({"separador", "celdas"});
        QTest::newRow("coma") << ',' << QStringList({"0,14 m", "0,23 m"});
        QTest::newRow("punto") << '.' << QStringList({"0.14 m", "0.23 m"});
    }

    // One layer of type L, and five of type X:
    // 0.111 × 0.001 × 230000 × 0.00964286 / 1.79547 = 0.13711
    // 5 × 0.163 × 0.001 × 440000 × 0.00117222 / 1.79547 = 0.23412
    void longitudesConElSeparadorDeLaMaquina()
    {
        QFETCH(char, separador);
        QFETCH(QStringList, celdas);
        PlataformaDoble doble;
        doble.regional.separador = separador;
        FmAnclaje ventana;
        const RejillaResultados& rejilla = Tabla(ventana);
        QCOMPARE(QStringList({rejilla.Texto(1, 1), rejilla.Texto(5, 3)}), celdas);
    }

    void cadaCeldaEsLaLongitudDelEstado()
    {
        PlataformaDoble doble;
        doble.regional.separador = ',';
        FmAnclaje ventana;
        const RejillaResultados& rejilla = Tabla(ventana);
        const General& g = Estado();
        for (int capas = 1; capas <= g.MAXCAPAS; ++capas) {
            for (int tipo = 1; tipo <= g.NTIPOS; ++tipo)
                QCOMPARE(rejilla.Texto(capas, tipo), FormatoLocal(g.LANC(tipo, capas), "0.00") + QStringLiteral(" m"));
        }
    }

    void sinColoresYTodoCentrado()
    {
        PlataformaDoble doble;
        FmAnclaje ventana;
        const RejillaResultados& rejilla = Tabla(ventana);
        for (int fila = 0; fila < rejilla.rowCount(); ++fila) {
            for (int columna = 0; columna < rejilla.columnCount(); ++columna) {
                const bool fija = fila == 0 || columna == 0;
                QCOMPARE(rejilla.Color(fila, columna), fija ? QColor(212, 208, 200) : QColor(255, 255, 255));
                QCOMPARE(rejilla.item(fila, columna)->textAlignment(), static_cast<int>(Qt::AlignCenter));
            }
        }
    }

    void salirCierraLaVentana()
    {
        PlataformaDoble doble;
        FmAnclaje ventana;
        ventana.show();
        QVERIFY(QTest::qWaitForWindowExposed(&ventana));
        QTest::mouseClick(ventana.findChild<QPushButton*>(QStringLiteral("CM_SALIR")), Qt::LeftButton);
        QVERIFY(!ventana.isVisible());
    }

    void ordenAnclajeCalculaYMuestraLaVentana()
    {
        PlataformaDoble doble;
        doble.regional.separador = ',';
        Estado().LANC.Borra();
        QString celda;
        bool visible = false;
        doble.ventanas.alMostrar = [&](QDialog& ventana) {
            visible = ventana.isVisible() && ventana.isModal();
            celda = Tabla(static_cast<FmAnclaje&>(ventana)).Texto(1, 1);
            QTest::mouseClick(ventana.findChild<QPushButton*>(QStringLiteral("CM_SALIR")), Qt::LeftButton);
        };
        QWidget pantalla;
        OrdenAnclaje(&pantalla);
        QCOMPARE(doble.ventanas.mostradas, QStringList{QStringLiteral("FM_ANCLAJE")});
        QVERIFY(visible);
        QCOMPARE(celda, QStringLiteral("0,14 m"));
        QVERIFY(Estado().LANC.Existe());
        // The window is gone with the command.
        QVERIFY(pantalla.findChild<FmAnclaje*>() == nullptr);
    }

    void ordenAnclajeTomaLaFckDelMomento()
    {
        PlataformaDoble doble;
        doble.regional.separador = ',';
        Estado().FCK = 30.0;
        QString celda;
        doble.ventanas.alMostrar = [&](QDialog& ventana) {
            celda = Tabla(static_cast<FmAnclaje&>(ventana)).Texto(1, 1);
        };
        OrdenAnclaje(nullptr);
        // 0.13711 × (25 / 30)^(2/3) = 0.1214
        QCOMPARE(celda, QStringLiteral("0,12 m"));
    }

    void dosSeccionesConLaMismaFckDanLaMismaTabla()
    {
        PlataformaDoble doble;
        General& g = Estado();
        prueba::EscribeValores(g, QStringLiteral("ANCHO=0.3;CANTO=0.5;ASI=8;ANCHOR=0.1"));
        LongitudAnclaje(g);
        const QStringList primera = Textos(Tabla(FmAnclaje()));
        prueba::EscribeValores(g, QStringLiteral("ANCHO=1.2;CANTO=0.9;ASI=30;ANCHOR=0.3;ANCHOALMA=0.35"));
        LongitudAnclaje(g);
        const QStringList segunda = Textos(Tabla(FmAnclaje()));
        QCOMPARE(segunda, primera);
    }
};

int main(int argc, char** argv) { return prueba::Ejecuta<PruebaFmAnclaje>(argc, argv); }

#include "test_fm_anclaje.moc"
