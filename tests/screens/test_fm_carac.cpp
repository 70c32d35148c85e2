#include "comun/Pantallas.h"
#include "comun/Usuario.h"
#include "diagrams/qt/Lienzo.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/FmCarac.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "state/General.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <memory>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

class PruebaCarac : public prueba::PruebaDePantalla {
    Q_OBJECT

    QPointer<FmCarac> pantalla_;

    Formulario* EnPrueba() const override { return pantalla_; }

    FmCarac& Abre(char separador = ',', double gr = 1.4)
    {
        delete pantalla_;
        Estado() = General{};
        ValoresIniciales(Estado());
        Estado().GR = gr;
        NuevosDobles(separador);
        pantalla_ = new FmCarac;
        MuestraActiva(pantalla_);
        return *pantalla_;
    }

    QRadioButton* Opcion(const char* nombre) { return qobject_cast<QRadioButton*>(C(nombre)); }
    RejillaResultados* Rejilla() { return qobject_cast<RejillaResultados*>(C("FG_EPSD")); }
    QStringList Fila(int fila)
    {
        QStringList textos;
        for (int columna = 0; columna < 4; ++columna)
            textos << Rejilla()->Texto(fila, columna);
        return textos;
    }

    // Where the design points of the picture stand.
    static std::vector<QRectF> Puntos(const Lienzo& dibujo)
    {
        std::vector<QRectF> puntos;
        for (const ElementoPantalla& e : dibujo.Escena().Elementos(ClasePantalla::Punto))
            puntos.emplace_back(e.izquierda, e.arriba, e.ancho, e.alto);
        return puntos;
    }

private slots:
    void cleanup() { CierraPantalla(); }

    void alAbrirMuestraElTipoUno_data() { prueba::FilasSeparador(); }

    void alAbrirMuestraElTipoUno()
    {
        QFETCH(char, separador);
        const FmCarac& p = Abre(separador);
        QCOMPARE(QStringList({p.objectName(), p.windowTitle()}),
                 QStringList({"FM_CARAC", "Características mecánicas del refuerzo"}));
        QVERIFY(Estado().F_CARAC);
        QCOMPARE(p.findChild<QGroupBox*>(QStringLiteral("FR_TEXALON"))->title(),
                 QStringLiteral("Características del refuerzo TEXALON"));
        QCOMPARE(Opcion("OP_TL")->text(), QStringLiteral("TIPO L"));
        QCOMPARE(Opcion("OP_TH")->text(), QStringLiteral("TIPO H"));
        QCOMPARE(Opcion("OP_TX")->text(), QStringLiteral("TIPO X"));
        QVERIFY(Opcion("OP_TL")->isChecked());
        QCOMPARE(p.TipoElegido(), 1);
        QCOMPARE(Campo("TX_ESPESOR")->text(), Sep("0,111"));
        QCOMPARE(Campo("TX_E")->text(), QStringLiteral("230000"));
        QCOMPARE(Campo("TX_EPSU")->text(), Sep("15,00"));
        QCOMPARE(Estado().ESPESOR, 0.111);
        QCOMPARE(Estado().E, 230000.0);
        QCOMPARE(Estado().EPSU, 0.015);
        QCOMPARE(Fila(0), QStringList({"Capas", "Km", "Def. cálculo", "FR (N/mm²)"}));
        QCOMPARE(Fila(1), QStringList({"1", Sep("0,900"), Sep("9,64"), Sep("2217,9")}));
        QCOMPARE(Fila(2), QStringList({"2", Sep("0,881"), Sep("9,44"), Sep("2170,3")}));
        QCOMPARE(Fila(3), QStringList({"3", Sep("0,821"), Sep("8,80"), Sep("2023,3")}));
        QCOMPARE(Fila(4), QStringList({"4", Sep("0,761"), Sep("8,16"), Sep("1876,3")}));
        QCOMPARE(Fila(5), QStringList({"5", Sep("0,702"), Sep("7,52"), Sep("1729,3")}));
    }

    void laRejillaConSusMedidasYSuRotulo()
    {
        Abre();
        RejillaResultados* r = Rejilla();
        QCOMPARE(r->rowCount(), 6);
        QCOMPARE(r->columnCount(), 4);
        // 525 and 915 twips at 15 twips a pixel; every row 300 twips.
        QCOMPARE(r->columnWidth(0), 35);
        for (int columna = 1; columna < 4; ++columna)
            QCOMPARE(r->columnWidth(columna), 61);
        for (int fila = 0; fila < 6; ++fila)
            QCOMPARE(r->rowHeight(fila), 20);
        for (int fila = 0; fila < 6; ++fila)
            for (int columna = 0; columna < 4; ++columna)
                QCOMPARE(r->item(fila, columna)->textAlignment(), int(Qt::AlignCenter));
        // Every text in sight within its column's width; the numbers keep the screen's letters.
        for (int fila = 0; fila < 6; ++fila)
            for (int columna = 0; columna < 4; ++columna) {
                const QFontMetrics medidas(r->item(fila, columna)->font());
                QVERIFY2(medidas.horizontalAdvance(r->Texto(fila, columna)) <= r->columnWidth(columna) - 8,
                         qPrintable(r->Texto(fila, columna)));
                if (fila > 0) QCOMPARE(r->item(fila, columna)->font().pointSizeF(), r->font().pointSizeF());
            }
        auto* rotulo = qobject_cast<QLabel*>(C("LB_EPSD"));
        QCOMPARE(rotulo->text(), QStringLiteral("Deformación de cálculo en función del número de  capas dispuetas"));
        QStringList leyenda;
        for (QLabel* etiqueta : pantalla_->findChildren<QLabel*>())
            leyenda << etiqueta->text();
        for (const char* texto : {"Km", "Factor reductor de la deformación máxima ", "Def. cálculo",
                                  "Deformación de cálculo del refuerzo", "FR", "Tensión máxima de cálculo del refuerzo",
                                  "Espesor", "mm", "Módulo de Young", "N/mm²", "Deformación última", "‰"})
            QVERIFY2(leyenda.contains(QString::fromUtf8(texto)), texto);
    }

    void cadaOpcionMuestraSuTipo()
    {
        FmCarac& p = Abre();
        prueba::Pulsa(Opcion("OP_TX"));
        QCOMPARE(p.TipoElegido(), 3);
        QCOMPARE(Campo("TX_ESPESOR")->text(), QStringLiteral("0,163"));
        QCOMPARE(Campo("TX_E")->text(), QStringLiteral("440000"));
        QCOMPARE(Campo("TX_EPSU")->text(), QStringLiteral("5,50"));
        QCOMPARE(Fila(1).mid(1, 2), QStringList({"0,832", "3,27"}));
        QCOMPARE(Fila(5).mid(1, 2), QStringList({"0,298", "1,17"}));
        prueba::Pulsa(Opcion("OP_TH"));
        QCOMPARE(p.TipoElegido(), 2);
        QCOMPARE(Campo("TX_ESPESOR")->text(), QStringLiteral("0,167"));
        QCOMPARE(Fila(2).mid(1, 2), QStringList({"0,821", "8,79"}));
        QCOMPARE(Fila(3).mid(1, 2), QStringList({"0,731", "7,83"}));
    }

    void unClicEnLaOpcionElegidaRepiteLosPasos()
    {
        Abre();
        QCOMPARE(Fila(1)[2], QStringLiteral("9,64"));
        auto* dibujo = qobject_cast<Lienzo*>(C("PIC_CARAC"));
        const std::vector<QRectF> conGr14 = Puntos(*dibujo);
        // A zoom, so that the picture drawn again shows.
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
        QTest::mouseMove(dibujo->viewport(), QPoint(150, 90));
        QTest::mouseClick(dibujo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));
        QVERIFY(Puntos(*dibujo) != conGr14);
        // The steps read GR again: a change since the load shows in the repeated table.
        Estado().GR = 1.0;
        prueba::Pulsa(Opcion("OP_TL"));
        QVERIFY(Opcion("OP_TL")->isChecked());
        QCOMPARE(Fila(1)[2], QStringLiteral("13,50"));
        QCOMPARE(Fila(1)[1], QStringLiteral("0,900"));
        // And the picture: the stress-strain diagram of type L drawn anew, fitted, with the
        // design points of GR 1, as a screen opened with GR 1 shows it.
        const QString diferencia = prueba::DiferenciaConLaLista(*dibujo, EstadoDibujo(), 0);
        QVERIFY2(diferencia.isEmpty(), qPrintable(diferencia));
        const std::vector<QRectF> repetidos = Puntos(*dibujo);
        QVERIFY(!repetidos.empty());
        QVERIFY(repetidos != conGr14);
        Abre(',', 1.0);
        QCOMPARE(Puntos(*qobject_cast<Lienzo*>(C("PIC_CARAC"))), repetidos);
    }

    void elCoeficienteDelEstadoActuaSobreLaTabla()
    {
        Abre(',', 1.0);
        prueba::Pulsa(Opcion("OP_TX"));
        // GR = 1 and type 3: EPSD(1) = 0.0055 × 0.83243.
        QCOMPARE(Fila(1), QStringList({"1", "0,832", "4,58", "2014,5"}));
    }

    void teclearEnElEspesorNoCambiaNada()
    {
        Abre();
        QTest::keyClicks(Campo("TX_ESPESOR"), QStringLiteral("9"));
        QCOMPARE(Campo("TX_ESPESOR")->text(), QStringLiteral("0,111"));
        QCOMPARE(Estado().ESPESOR, 0.111);
        QVERIFY(Campo("TX_ESPESOR")->isReadOnly());
        QVERIFY(!Estado().F_MODIFICADO);
    }

    void elTecladoEligeLasOpciones()
    {
        FmCarac& p = Abre();
        QCOMPARE(QApplication::focusWidget(), C("OP_TL"));
        QTest::keyClick(C("OP_TL"), Qt::Key_Right);
        QCOMPARE(p.TipoElegido(), 2);
        QCOMPARE(Campo("TX_ESPESOR")->text(), QStringLiteral("0,167"));
        // The options are one stop of Tab: the focus stays on the selected one.
        QCOMPARE(prueba::RecorridoTab(2), QStringList({"OP_TH", "OP_TH"}));
    }

    void alCerrarNoPreguntaYApagaSusBanderas()
    {
        Abre();
        QSignalSpy descarga(pantalla_.data(), &Formulario::Descargada);
        Estado().F_CALCULADO = true;
        Estado().F_MODIFICADO = true;
        EstadoDibujo().NTIT = 3;
        pantalla_->close();
        QVERIFY(doble_->mensajes.mostrados.empty());
        QVERIFY(doble_->ficheros.guardados.empty());
        QVERIFY(!Estado().F_CARAC);
        QVERIFY(!Estado().F_CALCULADO);
        QCOMPARE(EstadoDibujo().NTIT, Entero{0});
        QCOMPARE(descarga.count(), 1);
    }

    void cadaCargaEmpiezaEnElTipoUno()
    {
        Abre();
        prueba::Pulsa(Opcion("OP_TX"));
        pantalla_->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        pantalla_ = new FmCarac;
        pantalla_->show();
        QVERIFY(Opcion("OP_TL")->isChecked());
        QCOMPARE(Campo("TX_ESPESOR")->text(), QStringLiteral("0,111"));
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaCarac prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_fm_carac.moc"
