#include "engine/Calculos.h"
#include "platform/Dialogos.h"
#include "platform/dobles/PlataformaDoble.h"
#include "platform/qt/PlataformaQt.h"
#include "screens/FmAnclaje.h"
#include "screens/FmCoef.h"
#include "shell/FmAcercaDe.h"
#include "state/General.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QVBoxLayout>
#include <QTest>

using namespace texalon;
using namespace texalon::plataforma;

class PruebaPlataforma : public QObject {
    Q_OBJECT
private slots:
    void filtroDeAbrirDaTresFiltrosEnAmbasCajas()
    {
        const QStringList filtros = FiltrosQt(QStringLiteral(
            "Archivos TEXALON - Flexión|*.VMF|Archivos TEXALON - Confinamiento|*.VMC|Archivos TEXALON|*.VMC;*.VMF"));
        QCOMPARE(filtros, QStringList({QStringLiteral("Archivos TEXALON - Flexión (*.VMF *.vmf)"),
                                       QStringLiteral("Archivos TEXALON - Confinamiento (*.VMC *.vmc)"),
                                       QStringLiteral("Archivos TEXALON (*.VMC *.vmc *.VMF *.vmf)")}));
    }

    void retornoDeCarroSoloPartelaLinea()
    {
        QCOMPARE(TextoParaMostrar(QStringLiteral("uno\rdos\r\ntres")), QStringLiteral("uno\ndos\ntres"));
    }

    void separadorDecimalSigueLaConfiguracionDeLaMaquina()
    {
        // The suite runs once under a Spanish and once under an English setting.
        const QByteArray ajuste = qgetenv("LC_ALL");
        const char esperado = ajuste.startsWith("es") ? ','
                              : ajuste.startsWith("en")
                                  ? '.'
                                  : (QLocale::system().decimalPoint() == QStringLiteral(",") ? ',' : '.');
        QCOMPARE(RegionalQt().SeparadorDecimal(), esperado);
        QCOMPARE(RegionalDoble().separador, esperado);
    }

    void formatoLocalUsaElSeparadorDeLaPlataforma()
    {
        PlataformaDoble doble;
        doble.regional.separador = ',';
        QCOMPARE(FormatoLocal(0.125, "0.00"), QStringLiteral("0,13"));
        QCOMPARE(FormatoLocal(0.4, "0.000"), QStringLiteral("0,400"));
        QCOMPARE(FormatoLocal(2.5, "0"), QStringLiteral("3"));
        doble.regional.separador = '.';
        QCOMPARE(FormatoLocal(0.125, "0.00"), QStringLiteral("0.13"));
        QCOMPARE(FormatoLocal(0.4, "0.000"), QStringLiteral("0.400"));
        QCOMPARE(FormatoLocal(1.23456789, "0.000000"), QStringLiteral("1.234568"));
    }

    void dobleDeMensajesRegistraYRespondeDelGuion()
    {
        PlataformaDoble doble;
        doble.mensajes.respuestas = {Respuesta::Si};
        QCOMPARE(MsgBox(QStringLiteral("¿Desea guardar?"), Estilo::PreguntaSiNo), Respuesta::Si);
        QCOMPARE(MsgBox(QStringLiteral("¿Otra vez?"), Estilo::PreguntaSiNo), Respuesta::No);
        QCOMPARE(MsgBox(QStringLiteral("Aviso"), Estilo::Parada), Respuesta::Aceptar);
        QCOMPARE(doble.mensajes.mostrados.size(), std::size_t{3});
        QCOMPARE(doble.mensajes.mostrados[0].texto, QStringLiteral("¿Desea guardar?"));
        QCOMPARE(doble.mensajes.mostrados[2].estilo, Estilo::Parada);
        QCOMPARE(static_cast<int>(Estilo::PreguntaSiNo), 36);
        QCOMPARE(kTituloMensajes, QStringLiteral("VELMORA - TEXALON®"));
    }

    void dobleSeInstalaYDevuelveLoAnterior()
    {
        PlataformaDoble fuera;
        {
            PlataformaDoble dentro;
            QCOMPARE(&ServicioMensajes(), static_cast<Mensajes*>(&dentro.mensajes));
        }
        QCOMPARE(&ServicioMensajes(), static_cast<Mensajes*>(&fuera.mensajes));
        QCOMPARE(&ServicioProceso(), static_cast<Proceso*>(&fuera.proceso));
    }

    void dobleDeFicherosSinGuionEsCancelar()
    {
        PlataformaDoble doble;
        doble.ficheros.respuestas.push_back(FicheroElegido{QStringLiteral("/tmp/viga.vmf"), QStringLiteral("/tmp")});
        const auto elegido = ServicioFicheros().Guardar(
            {QStringLiteral("Archivos TEXALON - Flexión|*.VMF"), 1, QStringLiteral("flexion.vmf")});
        QVERIFY(elegido.has_value());
        QCOMPARE(elegido->fichero, QStringLiteral("/tmp/viga.vmf"));
        QVERIFY(!ServicioFicheros().Abrir({}).has_value());
        QCOMPARE(doble.ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble.ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
        QCOMPARE(doble.ficheros.abiertos.size(), std::size_t{1});
    }

    void dobleDeVentanasNoBloqueaYCierraLoQueQuedeAbierto()
    {
        PlataformaDoble doble;
        QDialog dialogo;
        dialogo.setObjectName(QStringLiteral("FM_PRUEBA"));
        QCOMPARE(ServicioVentanas().MuestraModal(dialogo), int(QDialog::Rejected));
        QVERIFY(!dialogo.isVisible());
        doble.ventanas.alMostrar = [](QDialog& d) { d.accept(); };
        QCOMPARE(ServicioVentanas().MuestraModal(dialogo), int(QDialog::Accepted));
        QCOMPARE(doble.ventanas.mostradas, QStringList({QStringLiteral("FM_PRUEBA"), QStringLiteral("FM_PRUEBA")}));
    }

    void errorFatalNombraElErrorYTerminaElProceso()
    {
        PlataformaDoble doble;
        ServicioProceso().ErrorFatal(ErrorEjecucion(ErrorEjecucion::kDesbordamiento));
        QCOMPARE(doble.proceso.erroresFatales.size(), std::size_t{1});
        QCOMPARE(doble.proceso.erroresFatales[0].texto,
                 QStringLiteral("Se ha producido el error '6' en tiempo de ejecución:\r\rDesbordamiento"));
        QCOMPARE(doble.proceso.terminaciones, std::vector<int>{1});
    }

    void losDialogosSonFijosConSoloElBotonDeCerrar()
    {
        PlataformaDoble doble;
        Estado() = General{};
        ValoresIniciales(Estado());
        LongitudAnclaje(Estado());
        FmCoef coeficientes(nullptr);
        FmAnclaje anclaje(nullptr);
        FmAcercaDe acerca(nullptr);
        const std::unique_ptr<QMessageBox> caja = CajaDeMensaje(
            QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"), Estilo::PreguntaSiNo, nullptr);
        const std::unique_ptr<QMessageBox> parada =
            CajaDeMensaje(QStringLiteral("Los datos introducidos no son correctos."), Estilo::Parada, nullptr);
        const std::unique_ptr<QMessageBox> error6 = CajaDeMensaje(QStringLiteral("Error 6"), Estilo::Parada, nullptr);
        for (QDialog* dialogo : std::initializer_list<QDialog*>{&coeficientes, &anclaje, &acerca, caja.get(),
                                                                parada.get(), error6.get()}) {
            const QString nombre = dialogo->objectName() + QLatin1Char(' ') + dialogo->windowTitle();
            const Qt::WindowFlags marco = dialogo->windowFlags();
            QVERIFY2(marco.testFlag(Qt::WindowCloseButtonHint), qPrintable(nombre));
            QVERIFY2(!marco.testFlag(Qt::WindowMinimizeButtonHint), qPrintable(nombre));
            QVERIFY2(!marco.testFlag(Qt::WindowMaximizeButtonHint), qPrintable(nombre));
            QVERIFY2(marco.testFlag(Qt::CustomizeWindowHint), qPrintable(nombre));
            QCOMPARE(dialogo->windowType(), Qt::Dialog);
            QCOMPARE(dialogo->minimumSize(), dialogo->maximumSize());
            QVERIFY2(dialogo->width() >= AnchoParaTitulo(*dialogo), qPrintable(nombre));
            // A message box works out its size again as it comes up: shown, it keeps the room.
            dialogo->show();
            QVERIFY(QTest::qWaitForWindowExposed(dialogo));
            QVERIFY2(dialogo->width() >= AnchoParaTitulo(*dialogo), qPrintable(nombre));
            QCOMPARE(dialogo->minimumSize(), dialogo->maximumSize());
            dialogo->close();
        }
        QCOMPARE(coeficientes.windowTitle(), QStringLiteral("Coeficientes de seguridad de los materiales"));
        QCOMPARE(caja->windowTitle(), QStringLiteral("VELMORA - TEXALON®"));
        QCOMPARE(caja->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(caja->icon(), QMessageBox::Question);
        QCOMPARE(parada->icon(), QMessageBox::Critical);
        QCOMPARE(parada->standardButtons(), QMessageBox::Ok);
    }

    void elAnchoDelTituloCreceConElTitulo()
    {
        QDialog corto;
        corto.setWindowTitle(QStringLiteral("Ab"));
        QDialog largo;
        largo.setWindowTitle(QStringLiteral("Coeficientes de seguridad de los materiales"));
        QVERIFY(AnchoParaTitulo(largo) > AnchoParaTitulo(corto) + 200);
        // A dialog smaller than its caption is widened to it; its contents then fill the width.
        auto* disposicion = new QVBoxLayout(&largo);
        disposicion->addWidget(new QLabel(QStringLiteral("x"), &largo));
        PreparaDialogo(largo);
        QCOMPARE(largo.width(), AnchoParaTitulo(largo));
    }

    void unDialogoMinimizadoVuelve()
    {
        QDialog dialogo;
        dialogo.setWindowTitle(QStringLiteral("Prueba"));
        PreparaDialogo(dialogo);
        dialogo.show();
        dialogo.setWindowState(Qt::WindowMinimized);
        QVERIFY(dialogo.isMinimized());
        QTRY_VERIFY(!dialogo.isMinimized());
    }

    void laGrabacionAnadeLaExtensionDelFiltro()
    {
        QCOMPARE(ExtensionPorDefecto(QStringLiteral("Archivos TEXALON - Flexión|*.VMF")), QStringLiteral("vmf"));
        QCOMPARE(ExtensionPorDefecto(QStringLiteral("Archivos TEXALON - Confinamiento|*.VMC")), QStringLiteral("vmc"));
        QCOMPARE(ExtensionPorDefecto(QStringLiteral("Archivos TEXALON|*.VMC;*.VMF")), QStringLiteral("vmc"));
        QCOMPARE(ExtensionPorDefecto(QString()), QString());
    }

    void pantallaRealTieneTamano()
    {
        const QSizeF tamano = MonitorQt().Tamano();
        QVERIFY(tamano.width() > 0.0);
        QVERIFY(tamano.height() > 0.0);
    }
};

QTEST_MAIN(PruebaPlataforma)
#include "test_plataforma.moc"
