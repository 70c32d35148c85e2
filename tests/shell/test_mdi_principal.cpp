#include "comun/Filas.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/Formulario.h"
#include "shell/Aplicacion.h"
#include "shell/FmPresentacion.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <memory>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

const QString kMensajeResolucion = QStringLiteral(
    "La resolución mínima requerida por la aplicación es 800x600.\r"
    "Cambie la resolución de su ordenador y vuelva a ejecutar el programa.");

// Runs the timer's tick as its own expiry would, without the 15-second wait.
void VenceTemporizador(QTimer* temporizador)
{
    QTimerEvent vencimiento(temporizador->timerId());
    QCoreApplication::sendEvent(temporizador, &vencimiento);
}

}  // namespace

class PruebaPrincipal : public QObject {
    Q_OBJECT

    std::unique_ptr<PlataformaDoble> doble_;
    std::unique_ptr<MdiPrincipal> ventana_;

    // A fresh process state and a main window loaded on a screen of the given size.
    MdiPrincipal& Arranca(QSizeF pantalla = {1024.0, 768.0})
    {
        ventana_.reset();
        Estado() = General{};
        doble_ = std::make_unique<PlataformaDoble>();
        doble_->monitor.tamano = pantalla;
        ventana_ = std::make_unique<MdiPrincipal>();
        return *ventana_;
    }

    FmPresentacion* Presentacion() { return ventana_->findChild<FmPresentacion*>(QStringLiteral("FM_PRESENTACION")); }

    QWidget* ControlDePresentacion(const char* nombre)
    {
        return Presentacion()->findChild<QWidget*>(QString::fromLatin1(nombre));
    }

    // An open calculation screen stands in the area as a child window of that name.
    QMdiSubWindow* PantallaAbierta(MdiPrincipal& w, const QString& nombre)
    {
        auto* pantalla = new QWidget;
        pantalla->setObjectName(nombre);
        auto* campo = new QLineEdit(pantalla);
        campo->setObjectName(QStringLiteral("TX_CAMPO"));
        QMdiSubWindow* ventana = w.Area()->addSubWindow(pantalla);
        ventana->setAttribute(Qt::WA_DeleteOnClose);
        ventana->show();
        return ventana;
    }

private slots:
    void cleanup()
    {
        ventana_.reset();
        doble_.reset();
    }

    void tituloYTamanoFijo()
    {
        MdiPrincipal& w = Arranca();
        QCOMPARE(w.windowTitle(), QStringLiteral("VELMORA - Programa para el cálculo del refuerzo TEXALON®"));
        QCOMPARE(w.objectName(), QStringLiteral("MDI_PRINCIPAL"));
        QCOMPARE(w.size(), QSize(800, 600));
        QVERIFY(w.Area()->subWindowList().isEmpty());
    }

    void cargaPoneLasBanderasYLosValoresIniciales()
    {
        Estado().F_MODIFICADO = true;
        MdiPrincipal& w = Arranca();
        QVERIFY(w.Cargada());
        const General& g = Estado();
        QVERIFY(!g.F_ERROR && !g.F_ABIERTO && !g.F_CALCULADO && !g.F_GRABADO && !g.F_MODIFICADO && !g.F_MAPI);
        QVERIFY(!g.F_FLEXION && !g.F_FLEXIONT && !g.F_CONFINA && !g.F_CARAC);
        QVERIFY(g.F_NUEVO);
        QVERIFY(g.F_PRESENTACION);
        QCOMPARE(g.NTIPOS, Entero{3});
        QCOMPARE(g.TIPOS(2), std::string("TEXALON H"));
        const std::pair<double General::*, double> inicio[] = {{&General::ASS, 0.0},  {&General::MCP, 0.0},
                                                               {&General::MD, 0.0},   {&General::NCP, 0.0},
                                                               {&General::INCR, 1.0}, {&General::ANCHOR, 0.125}};
        for (const auto& [campo, valor] : inicio)
            QCOMPARE(g.*campo, valor);
        QVERIFY(doble_->mensajes.mostrados.empty());
        QVERIFY(doble_->proceso.terminaciones.empty());
    }

    void pantallaDe800Por599Pasa()
    {
        QVERIFY(Arranca({800.0, 599.0}).Cargada());
        QVERIFY(doble_->mensajes.mostrados.empty());
        QVERIFY(Presentacion() != nullptr);
    }

    void pantallaDe799Por599SeRechazaConSuMensaje()
    {
        MdiPrincipal& w = Arranca({799.0, 599.0});
        QVERIFY(!w.Cargada());
        QCOMPARE(doble_->mensajes.mostrados.size(), std::size_t{1});
        QCOMPARE(doble_->mensajes.mostrados[0].texto, kMensajeResolucion);
        QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{1});
        // Neither the splash nor the state: the process ends first.
        QVERIFY(Presentacion() == nullptr);
        QVERIFY(!Estado().F_PRESENTACION);
        QCOMPARE(Estado().NTIPOS, Entero{0});
    }

    void pantallaDe799Por600Pasa()
    {
        QVERIFY(Arranca({799.0, 600.0}).Cargada());
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void pantallaDe1024Por500PasaPorqueLaPruebaEsUnY()
    {
        QVERIFY(Arranca({1024.0, 500.0}).Cargada());
        QVERIFY(doble_->proceso.terminaciones.empty());
    }

    void menuConTitulosAtajosYEstadoInicial_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QString>("titulo");
        QTest::addColumn<QKeySequence>("atajo");
        QTest::addColumn<bool>("activo");
        const auto fila = [](const char* nombre, const char* titulo, const char* atajo, bool activo) {
            QTest::newRow(nombre) << QString::fromLatin1(nombre) << QString::fromUtf8(titulo)
                                  << QKeySequence(QString::fromLatin1(atajo)) << activo;
        };
        fila("mnuPrincipalAbrir", "&Abrir datos", "Ctrl+A", true);
        fila("mnuPrincipalGuardar", "&Guardar datos", "Ctrl+S", false);
        fila("mnuPrincipalGuardarcomo", "G&uardar datos como...", "", false);
        fila("mnuPrincipalImprimir", "&Imprimir", "Ctrl+I", false);
        fila("mnuPrincipalConfigurar", "&Configurar impresora", "", true);
        fila("mnuPrincipalSalir", "&Salir", "F7", true);
        fila("mnuCalcularFlexion", "Refuerzo a &flexión. Sección rectangular", "Ctrl+R", true);
        fila("mnuCalcularFlexionT", "Refuerzo a fle&xión. Sección en T", "Ctrl+T", true);
        fila("mnuCalcularConfina", "Refuerzo a con&finamiento", "Ctrl+C", true);
        fila("mnuCalcularCarac", "Ca&racterísticas mecánicas del refuerzo", "", true);
        fila("mnuAyudaPrograma", "Ayuda del programa", "F1", true);
        fila("mnuAyudaManual", "Manual de referencia", "", true);
        fila("mnuAyudaWeb", "Velmora en la web", "", true);
        fila("mnuAyudaContactar", "Contactar con Velmora", "", true);
        fila("mnuAyudaAcerca", "Acerca de...", "", true);
    }

    void menuConTitulosAtajosYEstadoInicial()
    {
        QFETCH(QString, nombre);
        QFETCH(QString, titulo);
        QFETCH(QKeySequence, atajo);
        QFETCH(bool, activo);
        MdiPrincipal& w = Arranca();
        QAction* accion = w.ElementoMenu(nombre);
        QVERIFY(accion != nullptr);
        QCOMPARE(accion->text(), titulo);
        QCOMPARE(accion->shortcut(), atajo);
        QCOMPARE(accion->isEnabled(), activo);
    }

    void menusPrincipalesYSeparadoresEnSuOrden()
    {
        MdiPrincipal& w = Arranca();
        const QList<QAction*> menus = w.menuBar()->actions();
        QCOMPARE(menus.size(), 3);
        QCOMPARE(menus[0]->text(), QStringLiteral("&Principal"));
        QCOMPARE(menus[1]->text(), QStringLiteral("&Calcular"));
        QCOMPARE(menus[2]->text(), QStringLiteral("&Ayuda"));
        const auto nombres = [](QMenu* menu) {
            QStringList lista;
            for (QAction* a : menu->actions())
                lista << a->objectName();
            return lista;
        };
        QCOMPARE(
            nombres(menus[0]->menu()),
            QStringList({"mnuPrincipalAbrir", "mnuPrincipalGuardar", "mnuPrincipalGuardarcomo", "mnuPrincipalNada1",
                         "mnuPrincipalImprimir", "mnuPrincipalConfigurar", "mnuPrincipalNada2", "mnuPrincipalSalir"}));
        QCOMPARE(nombres(menus[1]->menu()),
                 QStringList({"mnuCalcularFlexion", "mnuCalcularFlexionT", "mnuCalcularConfina", "mnuCalcularNada1",
                              "mnuCalcularCarac"}));
        QCOMPARE(nombres(menus[2]->menu()),
                 QStringList({"mnuAyudaPrograma", "mnuAyudaManual", "mnuAyudaNada1", "mnuAyudaWeb", "mnuAyudaContactar",
                              "mnuAyudaNada2", "mnuAyudaAcerca"}));
        for (const char* separador :
             {"mnuPrincipalNada1", "mnuPrincipalNada2", "mnuCalcularNada1", "mnuAyudaNada1", "mnuAyudaNada2"})
            QVERIFY(w.ElementoMenu(QString::fromLatin1(separador))->isSeparator());
    }

    void barraConSeparadorInicialYDoceBotones()
    {
        MdiPrincipal& w = Arranca();
        QCOMPARE(w.Barra()->objectName(), QStringLiteral("TB_BARRA"));
        QVERIFY(w.Boton(1)->isSeparator());
        const QStringList claves = {"Abrir",   "Guardar", "Imprimir", "Carac", "FlexionR", "FlexionT",
                                    "Confina", "Ayuda",   "Guia",     "Web",   "Mail",     "Info"};
        const QStringList consejos = {"Abrir",
                                      "Guardar",
                                      "Imprimir",
                                      "Características mecánicas",
                                      "Refuerzo a flexión. Sección rectangular",
                                      "Refuerzo a flexión. Sección en T",
                                      "Refuerzo de confinamiento",
                                      "Ayuda del programa",
                                      "Manual de referencia",
                                      "Velmora en la web",
                                      "Contactar con Velmora",
                                      "Acerca de..."};
        QCOMPARE(w.Barra()->actions().size(), 13);
        for (int i = 0; i < 12; ++i) {
            QAction* boton = w.Boton(i + 2);
            QCOMPARE(boton->data().toString(), claves[i]);
            QCOMPARE(boton->toolTip(), consejos[i]);
            QVERIFY2(!boton->icon().pixmap(24, 24).isNull(), qPrintable(claves[i]));
        }
        QCOMPARE(w.Boton(3)->data().toString(), QStringLiteral("Guardar"));
        QCOMPARE(w.Boton(4)->data().toString(), QStringLiteral("Imprimir"));
        QVERIFY(!w.Boton(3)->isEnabled());
        QVERIFY(!w.Boton(4)->isEnabled());
        for (int i = 5; i <= 13; ++i)
            QVERIFY(w.Boton(i)->isEnabled());
        QVERIFY(w.Boton(2)->isEnabled());
    }

    void presentacionConSusTextosYSuTemporizador()
    {
        Arranca();
        FmPresentacion* p = Presentacion();
        QVERIFY(p != nullptr);
        QVERIFY(p->isVisible());
        QCOMPARE(qobject_cast<QLabel*>(ControlDePresentacion("LB_NOMBRE"))->text(), QStringLiteral("Texalon"));
        QCOMPARE(qobject_cast<QLabel*>(ControlDePresentacion("LB_VERSION"))->text(), QStringLiteral("Versión 1.0"));
        QCOMPARE(qobject_cast<QLabel*>(ControlDePresentacion("LB_COMENTARIOS"))->text(),
                 QStringLiteral("Programa de cálculo del refuerzo de secciones mediante fibra de carbono TEXALON®."));
        QVERIFY(qobject_cast<QLabel*>(ControlDePresentacion("LB_AUTOR"))->text().contains(QStringLiteral("VELMORA")));
        QVERIFY(!qobject_cast<QLabel*>(ControlDePresentacion("Image1"))->pixmap().isNull());
        auto* tm = p->findChild<QTimer*>(QStringLiteral("TM"));
        QVERIFY(tm != nullptr);
        QCOMPARE(tm->interval(), 15000);
        QVERIFY(tm->isActive());
    }

    void laPresentacionSeCierra_data()
    {
        prueba::DosFilas("sola", {"sola a los quince segundos", true}, {"con un clic en la versión", false});
    }

    void laPresentacionSeCierra()
    {
        QFETCH(bool, sola);
        Arranca();
        QPointer<FmPresentacion> p = Presentacion();
        if (sola)
            VenceTemporizador(p->findChild<QTimer*>(QStringLiteral("TM")));
        else
            QTest::mouseClick(ControlDePresentacion("LB_VERSION"), Qt::LeftButton);
        QTRY_VERIFY(p.isNull());
        QVERIFY(!Estado().F_PRESENTACION);
    }

    void clicEnElLogoYEnElNombreNoCierraLaPresentacion()
    {
        Arranca();
        QPointer<FmPresentacion> p = Presentacion();
        QTest::mouseClick(ControlDePresentacion("Image1"), Qt::LeftButton);
        QTest::mouseClick(ControlDePresentacion("LB_NOMBRE"), Qt::LeftButton);
        QCoreApplication::processEvents();
        QVERIFY(!p.isNull());
        QVERIFY(p->isVisible());
        QVERIFY(Estado().F_PRESENTACION);
    }

    void clicEnMarcoAutorComentariosOVentanaCierraLaPresentacion_data()
    {
        QTest::addColumn<QString>("control");
        for (const char* nombre : {"Frame1", "LB_AUTOR", "LB_COMENTARIOS", "FM_PRESENTACION"})
            QTest::newRow(nombre) << QString::fromLatin1(nombre);
    }

    void clicEnMarcoAutorComentariosOVentanaCierraLaPresentacion()
    {
        QFETCH(QString, control);
        Arranca();
        QPointer<FmPresentacion> p = Presentacion();
        QWidget* destino = control == QLatin1String("FM_PRESENTACION") ? p.data() : p->findChild<QWidget*>(control);
        QVERIFY(destino != nullptr);
        QTest::mouseClick(destino, Qt::LeftButton, {}, QPoint(2, 2));
        QTRY_VERIFY(p.isNull());
    }

    void teclaEnLaPresentacionLaCierra()
    {
        Arranca();
        QPointer<FmPresentacion> p = Presentacion();
        QTest::keyClick(p.data(), Qt::Key_Space);
        QTRY_VERIFY(p.isNull());
    }

    void clicEnElFondoDeLaVentanaPrincipalCierraLaPresentacion()
    {
        MdiPrincipal& w = Arranca();
        QPointer<FmPresentacion> p = Presentacion();
        QTest::mouseClick(w.Area()->viewport(), Qt::LeftButton);
        QTRY_VERIFY(p.isNull());
    }

    void abrirUnMenuPrincipalCierraLaPresentacion_data()
    {
        QTest::addColumn<int>("menu");
        QTest::newRow("mnuPrincipal") << 0;
        QTest::newRow("mnuCalcular") << 1;
        QTest::newRow("mnuAyuda") << 2;
    }

    void abrirUnMenuPrincipalCierraLaPresentacion()
    {
        QFETCH(int, menu);
        MdiPrincipal& w = Arranca();
        QPointer<FmPresentacion> p = Presentacion();
        QMenu* desplegable = w.menuBar()->actions().at(menu)->menu();
        desplegable->popup(w.mapToGlobal(QPoint(10, 10)));
        QTRY_VERIFY(p.isNull());
        desplegable->close();
        QVERIFY(!Estado().F_PRESENTACION);
    }

    void activarLaVentanaPrincipalDaElFocoALaPresentacion()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        w.activateWindow();
        QTRY_VERIFY(Presentacion()->isActiveWindow());
    }

    void botonDeLaBarraConPresentacionLaCierraYLuegoEjecutaSuOrden()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        QPointer<FmPresentacion> p = Presentacion();
        Estado().NCP = 1200.0;
        Estado().F_ABIERTO = true;
        auto* boton = qobject_cast<QToolButton*>(w.Barra()->widgetForAction(w.Boton(8)));
        QVERIFY(boton != nullptr);
        QCOMPARE(w.Boton(8)->data().toString(), QStringLiteral("Confina"));
        QTest::mouseClick(boton, Qt::LeftButton);
        QTRY_VERIFY(p.isNull());
        QCOMPARE(Estado().NCP, 0.0);
        QVERIFY(!Estado().F_ABIERTO);
    }

    void arrastrarElBordeDevuelveLaVentanaA800Por600()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        QCOMPARE(w.size(), QSize(800, 600));
        const QPoint donde = w.geometry().topLeft();
        w.resize(1000, 700);
        QCOMPARE(w.size(), QSize(800, 600));
        w.resize(640, 480);
        QCOMPARE(w.size(), QSize(800, 600));
        // The left border dragged: the window stays where it stood.
        w.setGeometry(QRect(donde - QPoint(150, 0), QSize(950, 600)));
        QCOMPARE(w.geometry(), QRect(donde, QSize(800, 600)));
    }

    void maximizarVuelveAlTamanoNormal()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        const QPoint donde = w.geometry().topLeft();
        w.showMaximized();
        QTRY_VERIFY(!w.isMaximized());
        QCOMPARE(w.geometry(), QRect(donde, QSize(800, 600)));
    }

    void minimizarDejaLaVentanaMinimizada()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        w.showMinimized();
        QCoreApplication::processEvents();
        QVERIFY(w.isMinimized());
    }

    void ctrlCIniciaUnConfinamientoNuevoTengaQuienTengaElFoco()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Presentacion()->close();
        QMdiSubWindow* pantalla = PantallaAbierta(w, QStringLiteral("FM_OTRA"));
        auto* campo = pantalla->findChild<QLineEdit*>(QStringLiteral("TX_CAMPO"));
        campo->setText(QStringLiteral("0,25"));
        campo->selectAll();
        w.activateWindow();
        campo->setFocus();
        QTRY_VERIFY(campo->hasFocus());
        Estado().NCP = 800.0;
        Estado().SECCION = 3;
        QTest::keyClick(campo, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Estado().NCP, 0.0);
        QCOMPARE(Estado().SECCION, Entero{1});
    }

    void atajosDeLasOrdenesNuevas_data()
    {
        QTest::addColumn<int>("tecla");
        QTest::addColumn<bool>("confinamiento");
        QTest::newRow("Ctrl+R") << int(Qt::Key_R) << false;
        QTest::newRow("Ctrl+T") << int(Qt::Key_T) << false;
        QTest::newRow("Ctrl+C") << int(Qt::Key_C) << true;
    }

    void atajosDeLasOrdenesNuevas()
    {
        QFETCH(int, tecla);
        QFETCH(bool, confinamiento);
        MdiPrincipal& w = Arranca();
        w.show();
        Presentacion()->close();
        w.activateWindow();
        QTRY_VERIFY(w.isActiveWindow());
        Estado().ANCHO = 0.3;
        Estado().DIAM = 0.7;
        QTest::keyClick(&w, static_cast<Qt::Key>(tecla), Qt::ControlModifier);
        QCOMPARE(Estado().ANCHO, confinamiento ? 0.3 : 0.4);
        QCOMPARE(Estado().DIAM, confinamiento ? 0.5 : 0.7);
    }

    void f7Sale()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        Presentacion()->close();
        w.activateWindow();
        QTRY_VERIFY(w.isActiveWindow());
        QTest::keyClick(&w, Qt::Key_F7);
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{0});
    }

    void salirCierraLaPantallaAbiertaYTerminaElProceso()
    {
        MdiPrincipal& w = Arranca();
        QPointer<QMdiSubWindow> pantalla = PantallaAbierta(w, QStringLiteral("FM_FLEXION"));
        Estado().F_FLEXION = true;
        w.ElementoMenu(QStringLiteral("mnuPrincipalSalir"))->trigger();
        QTRY_VERIFY(pantalla.isNull());
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{0});
    }

    void nuevaFlexionCierraLaPantallaAbiertaYEscribeLosValoresDeInicio()
    {
        MdiPrincipal& w = Arranca();
        QPointer<QMdiSubWindow> confina = PantallaAbierta(w, QStringLiteral("FM_CONFINA"));
        Estado().F_CONFINA = true;
        Estado().F_ABIERTO = true;
        Estado().ASI = 20.0;
        Estado().SECCION = 2;
        w.ElementoMenu(QStringLiteral("mnuCalcularFlexion"))->trigger();
        QTRY_VERIFY(confina.isNull());
        QVERIFY(!Estado().F_ABIERTO);
        QCOMPARE(Estado().ASI, 10.0);
        QCOMPARE(Estado().SECCION, Entero{2});
    }

    void soloSeCierraLaPantallaQueSuBanderaDaPorAbierta()
    {
        MdiPrincipal& w = Arranca();
        QPointer<QMdiSubWindow> carac = PantallaAbierta(w, QStringLiteral("FM_CARAC"));
        w.NuevaFlexionT();
        QCoreApplication::processEvents();
        QVERIFY(!carac.isNull());
        Estado().F_CARAC = true;
        w.NuevaFlexionT();
        QTRY_VERIFY(carac.isNull());
    }

    void nuevaConUnaPantallaAbiertaPreguntaAntesYAbreLaNueva_data()
    {
        prueba::DosFilas("respuestaSi", {"No", false}, {"Si", true});
    }

    void nuevaConUnaPantallaAbiertaPreguntaAntesYAbreLaNueva()
    {
        QFETCH(bool, respuestaSi);
        MdiPrincipal& w = Arranca();
        w.NuevaFlexion();
        QVERIFY(Estado().F_FLEXION);
        QCOMPARE(w.Area()->subWindowList().size(), 1);
        doble_->mensajes.respuestas = {respuestaSi ? Respuesta::Si : Respuesta::No};
        bool nuevaYaAbierta = true;
        doble_->mensajes.alMostrar = [&](const MensajeMostrado&) { nuevaYaAbierta = Estado().F_FLEXIONT; };
        w.NuevaFlexionT();
        QCOMPARE(doble_->mensajes.mostrados.size(), std::size_t{1});
        QCOMPARE(doble_->mensajes.mostrados[0].texto,
                 QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"));
        QVERIFY(!nuevaYaAbierta);
        QVERIFY(!Estado().F_FLEXION);
        QVERIFY(Estado().F_FLEXIONT);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(w.Area()->subWindowList().size(), 1);
        QCOMPARE(w.Area()->subWindowList().at(0)->widget()->objectName(), QStringLiteral("FM_FLEXIONT"));
    }

    void unaPantallaDeFlexionActivaGuardarEImprimirYSuCierreLosApaga()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        w.NuevaFlexion();
        QTRY_VERIFY(w.ElementoMenu(QStringLiteral("mnuPrincipalGuardar"))->isEnabled());
        QVERIFY(w.ElementoMenu(QStringLiteral("mnuPrincipalGuardarcomo"))->isEnabled());
        QVERIFY(w.ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled());
        QVERIFY(w.Boton(3)->isEnabled() && w.Boton(4)->isEnabled());
        w.CierraPantallaAbierta();
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalGuardar"))->isEnabled());
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled());
        QVERIFY(!w.Boton(3)->isEnabled() && !w.Boton(4)->isEnabled());
        QVERIFY(!Estado().F_FLEXION);
    }

    void cadaPantallaCabeEnLaVentanaPrincipal()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        Presentacion()->close();
        for (auto orden : {&MdiPrincipal::NuevaFlexion, &MdiPrincipal::NuevaFlexionT, &MdiPrincipal::NuevoConfinamiento,
                           &MdiPrincipal::Caracteristicas}) {
            (w.*orden)();
            QMdiSubWindow* ventana = w.Area()->subWindowList().constLast();
            QVERIFY2(w.Area()->viewport()->rect().contains(ventana->geometry()),
                     qPrintable(QStringLiteral("%1: %2x%3 en %4x%5")
                                    .arg(ventana->widget()->objectName())
                                    .arg(ventana->width())
                                    .arg(ventana->height())
                                    .arg(w.Area()->viewport()->width())
                                    .arg(w.Area()->viewport()->height())));
        }
    }

    void nuevoConfinamientoYCaracteristicasAbrenSusPantallasPorMenuYBarra_data()
    {
        prueba::DosFilas("porBarra", {"menu", false}, {"barra", true});
    }

    void nuevoConfinamientoYCaracteristicasAbrenSusPantallasPorMenuYBarra()
    {
        QFETCH(bool, porBarra);
        MdiPrincipal& w = Arranca();
        Estado().DIAM = 0.7;
        if (porBarra)
            w.TB_BARRA_ButtonClick(QStringLiteral("Confina"));
        else
            w.ElementoMenu(QStringLiteral("mnuCalcularConfina"))->trigger();
        QCOMPARE(w.PantallaAbierta()->objectName(), QStringLiteral("FM_CONFINA"));
        QVERIFY(Estado().F_CONFINA);
        QCOMPARE(Estado().DIAM, 0.5);
        // The new confinement screen prompts on its way out; the characteristics screen comes
        // up whatever is answered, and leaves the state as it is.
        doble_->mensajes.respuestas = {Respuesta::No};
        Estado().DIAM = 0.7;
        if (porBarra)
            w.TB_BARRA_ButtonClick(QStringLiteral("Carac"));
        else
            w.ElementoMenu(QStringLiteral("mnuCalcularCarac"))->trigger();
        QCOMPARE(doble_->mensajes.mostrados.size(), std::size_t{1});
        QCOMPARE(doble_->mensajes.mostrados[0].texto,
                 QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"));
        QVERIFY(!Estado().F_CONFINA);
        QVERIFY(Estado().F_CARAC);
        QCOMPARE(Estado().DIAM, 0.7);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(w.Area()->subWindowList().size(), 1);
        QCOMPARE(w.PantallaAbierta()->objectName(), QStringLiteral("FM_CARAC"));
        // Leaving the characteristics asks nothing.
        w.NuevaFlexion();
        QCOMPARE(doble_->mensajes.mostrados.size(), std::size_t{1});
        QVERIFY(!Estado().F_CARAC);
    }

    void alAbrirCadaPantallaElFocoEstaEnSuPrimerCampo_data()
    {
        QTest::addColumn<int>("pantalla");
        QTest::addColumn<QString>("primero");
        QTest::newRow("FM_FLEXION") << int(Pantalla::Flexion) << "TX_ANCHO";
        QTest::newRow("FM_FLEXIONT") << int(Pantalla::FlexionT) << "TX_ANCHO";
        QTest::newRow("FM_CONFINA") << int(Pantalla::Confina) << "CO_SECCION";
        QTest::newRow("FM_CARAC") << int(Pantalla::Carac) << "OP_TL";
    }

    void alAbrirCadaPantallaElFocoEstaEnSuPrimerCampo()
    {
        QFETCH(int, pantalla);
        QFETCH(QString, primero);
        MdiPrincipal& w = Arranca();
        w.show();
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        Presentacion()->close();
        w.activateWindow();
        QTRY_VERIFY(w.isActiveWindow());
        const auto orden = std::array{&MdiPrincipal::NuevaFlexion, &MdiPrincipal::NuevaFlexionT,
                                      &MdiPrincipal::NuevoConfinamiento, &MdiPrincipal::Caracteristicas};
        Estado().F_MODIFICADO = false;
        (w.*orden[static_cast<std::size_t>(pantalla)])();
        QTRY_VERIFY(QApplication::focusWidget() != nullptr);
        QCOMPARE(QApplication::focusWidget(), w.PantallaAbierta()->Control(primero));
        // The focus alone changes no flag: only the confinement screen's own load does.
        QCOMPARE(Estado().F_MODIFICADO, pantalla == int(Pantalla::Confina));
    }

    void unCambioDeGcSePierdeConLaSiguienteOrdenNueva()
    {
        MdiPrincipal& w = Arranca();
        Estado().GC = 1.6;
        Estado().GR = 1.2;
        w.TB_BARRA_ButtonClick(QStringLiteral("FlexionR"));
        QCOMPARE(Estado().GC, 1.5);
        QCOMPARE(Estado().GR, 1.4);
        Estado().GC = 1.6;
        w.TB_BARRA_ButtonClick(QStringLiteral("Confina"));
        QCOMPARE(Estado().GC, 1.5);
    }

    void nuevaFlexionNoTocaElConfinamientoNiNuevoConfinamientoLaFlexion()
    {
        MdiPrincipal& w = Arranca();
        General& g = Estado();
        g.SECCION = 3;
        const std::pair<double General::*, double> confinamiento[] = {{&General::DIAM, 0.6},
                                                                      {&General::LADOMENOR, 0.3},
                                                                      {&General::NU, 0.3},
                                                                      {&General::INCR, 1.4},
                                                                      {&General::NCP, 1200.0}};
        for (const auto& [campo, valor] : confinamiento)
            g.*campo = valor;
        w.NuevaFlexion();
        QCOMPARE(g.SECCION, Entero{3});
        for (const auto& [campo, valor] : confinamiento)
            QCOMPARE(g.*campo, valor);
        g.ANCHO = 0.3;
        g.ASI = 12.0;
        w.NuevoConfinamiento();
        QCOMPARE(g.ANCHO, 0.3);
        QCOMPARE(g.ASI, 12.0);
    }

    void caracteristicasDejaLosValoresDelEstado()
    {
        MdiPrincipal& w = Arranca();
        General& g = Estado();
        g.ANCHO = 0.3;
        g.GC = 1.7;
        g.NCP = 500.0;
        g.F_ABIERTO = true;
        w.ElementoMenu(QStringLiteral("mnuCalcularCarac"))->trigger();
        QCOMPARE(g.ANCHO, 0.3);
        QCOMPARE(g.GC, 1.7);
        QCOMPARE(g.NCP, 500.0);
        QVERIFY(g.F_ABIERTO);
    }

    void menuYBarraSiguenALaPantallaActiva()
    {
        MdiPrincipal& w = Arranca();
        const auto activo = [&w](const char* nombre) {
            return w.ElementoMenu(QString::fromLatin1(nombre))->isEnabled();
        };
        for (Pantalla p : {Pantalla::Flexion, Pantalla::FlexionT, Pantalla::Confina}) {
            w.PantallaActivada(p);
            QVERIFY(activo("mnuPrincipalGuardar") && activo("mnuPrincipalGuardarcomo") &&
                    activo("mnuPrincipalImprimir"));
            QVERIFY(w.Boton(3)->isEnabled() && w.Boton(4)->isEnabled());
            w.PantallaDescargada();
            QVERIFY(!activo("mnuPrincipalGuardar") && !activo("mnuPrincipalGuardarcomo") &&
                    !activo("mnuPrincipalImprimir"));
            QVERIFY(!w.Boton(3)->isEnabled() && !w.Boton(4)->isEnabled());
        }
    }

    void conCaracteristicasImprimirActivoYGuardarNo()
    {
        MdiPrincipal& w = Arranca();
        w.PantallaActivada(Pantalla::Flexion);
        w.PantallaDescargada();
        w.PantallaActivada(Pantalla::Carac);
        QVERIFY(w.ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled());
        QVERIFY(w.Boton(4)->isEnabled());
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalGuardar"))->isEnabled());
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalGuardarcomo"))->isEnabled());
        QVERIFY(!w.Boton(3)->isEnabled());
    }

    void acercaDeMuestraSuCajaConSusTextos()
    {
        MdiPrincipal& w = Arranca();
        Estado().F_ERROR = true;
        QStringList textos;
        QString titulo;
        doble_->ventanas.alMostrar = [&](QDialog& caja) {
            titulo = caja.windowTitle();
            for (const char* nombre : {"lblTitle", "lblVersion", "Label1", "Label2", "Label3"})
                textos << caja.findChild<QLabel*>(QString::fromLatin1(nombre))->text();
            QVERIFY(!caja.findChild<QLabel*>(QStringLiteral("Image1"))->pixmap().isNull());
            QVERIFY(!caja.findChild<QLabel*>(QStringLiteral("Image2"))->pixmap().isNull());
            auto* aceptar = caja.findChild<QPushButton*>(QStringLiteral("cmdOK"));
            QCOMPARE(aceptar->text(), QStringLiteral("Aceptar"));
            aceptar->click();
            QVERIFY(!caja.isVisible());
        };
        w.ElementoMenu(QStringLiteral("mnuAyudaAcerca"))->trigger();
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_ACERCADE")});
        QCOMPARE(titulo, QStringLiteral("Acerca de TEXALON®"));
        QCOMPARE(textos, QStringList({"VELMORA - TEXALON®", "Versión 1.0", "Programa realizado por ", "Orventa",
                                      "ingeniería"}));
        QVERIFY(!Estado().F_ERROR);
        w.TB_BARRA_ButtonClick(QStringLiteral("Info"));
        QCOMPARE(doble_->ventanas.mostradas.size(), 2);
    }

    void acercaDeCopiaLaPantallaYNoSeAbreConDatosMalos()
    {
        MdiPrincipal& w = Arranca();
        w.NuevaFlexion();
        QMdiSubWindow* ventana = w.Area()->subWindowList().constFirst();
        auto* md = ventana->widget()->findChild<QLineEdit*>(QStringLiteral("TX_MD"));
        // A text typed and never checked reaches the state.
        md->setText(QStringLiteral("123"));
        w.AcercaDe();
        QCOMPARE(Estado().MD, 123.0);
        QCOMPARE(doble_->ventanas.mostradas.size(), 1);
        md->setText(QStringLiteral("abc"));
        w.AcercaDe();
        QVERIFY(Estado().F_ERROR);
        QCOMPARE(doble_->ventanas.mostradas.size(), 1);
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void cerrarLaVentanaPrincipalCierraAntesLaPantalla()
    {
        MdiPrincipal& w = Arranca();
        w.show();
        QPointer<QMdiSubWindow> pantalla = PantallaAbierta(w, QStringLiteral("FM_FLEXION"));
        w.close();
        QTRY_VERIFY(pantalla.isNull());
    }

    void errorDeEjecucionSinTratarTerminaElProcesoConSuMensaje()
    {
        Arranca();
        struct Fallo : QObject {
            bool event(QEvent* e) override
            {
                if (e->type() == QEvent::User) throw ErrorEjecucion(ErrorEjecucion::kDivisionPorCero);
                return QObject::event(e);
            }
        } fallo;
        QEvent evento(QEvent::User);
        QCoreApplication::sendEvent(&fallo, &evento);
        QCOMPARE(doble_->proceso.erroresFatales.size(), std::size_t{1});
        QCOMPARE(doble_->proceso.erroresFatales[0].texto,
                 QStringLiteral("Se ha producido el error '11' en tiempo de ejecución:\r\rDivisión por cero"));
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{1});
    }

    void textosDeQtEnEspanolYArialResuelta()
    {
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "&Yes"), QStringLiteral("&Sí"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancelar"));
        const QFontInfo letra(QApplication::font());
        QVERIFY2(letra.family() == QLatin1String("Arial") || letra.family() == QLatin1String("Liberation Sans"),
                 qPrintable(letra.family()));
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaPrincipal prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_mdi_principal.moc"
