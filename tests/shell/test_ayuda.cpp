// Help, guide, web and mail as the user reaches them: F1, the Ayuda menu and the toolbar, with
// each screen open and with none; the messages when the desktop has no reader, browser or mail
// program; one mail session a run, signed off when the program ends.
#include "comun/Filas.h"
#include "comun/Principal.h"
#include "comun/Usuario.h"
#include "platform/dobles/PlataformaDoble.h"
#include "shell/Ayuda.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <memory>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

const QString kSinCorreo = QStringLiteral("No se ha podido establecer la aplicación de correo electrónico.");

}  // namespace

// How the user gives a command: the menu with the mouse, or the toolbar.
enum class Via { Menu, Barra };
Q_DECLARE_METATYPE(Via)

class PruebaAyuda : public prueba::PruebaDePrincipal {
    Q_OBJECT

    // A command of the Ayuda menu, chosen with the mouse in the menu or on the toolbar button
    // of that key.
    void Pide(Via via, const char* entrada, const char* clave)
    {
        MdiPrincipal& w = *ventana_;
        if (via == Via::Menu) {
            auto* menu = w.menuBar()->findChild<QMenu*>(QStringLiteral("mnuAyuda"));
            QVERIFY(prueba::EligeDelMenu(w.menuBar(), menu, w.ElementoMenu(QString::fromLatin1(entrada))));
        } else {
            QVERIFY(Boton(clave));
        }
    }

    QStringList Mensajes() const
    {
        QStringList textos;
        for (const MensajeMostrado& mensaje : doble_->mensajes.mostrados) {
            if (mensaje.estilo != Estilo::Parada) textos << QStringLiteral("(estilo %1)").arg(int(mensaje.estilo));
            textos << mensaje.texto;
        }
        return textos;
    }

private slots:
    void cleanup() { Termina(); }

    void elFicheroDeAyudaYLaGuiaEstanEnLaCarpetaDeDatosDelPrograma()
    {
        QCOMPARE(FicheroAyuda(), DirectorioDatos() + QStringLiteral("/ayuda"));
        QCOMPARE(FicheroGuia(), DirectorioDatos() + QStringLiteral("/guia_texalon.pdf"));
    }

    void f1SinPantallaAbiertaMuestraElContenido()
    {
        Arranca();
        QTest::keyClick(ventana_.get(), Qt::Key_F1);
        QCOMPARE(doble_->ayuda.peticiones.size(), std::size_t{1});
        QCOMPARE(doble_->ayuda.peticiones[0].fichero, FicheroAyuda());
        QCOMPARE(doble_->ayuda.peticiones[0].contexto, 0);
    }

    void ayudaPorMenuYBarraSinPantallaMuestraElContenido_data()
    {
        QTest::addColumn<Via>("via");
        QTest::newRow("menú") << Via::Menu;
        QTest::newRow("barra") << Via::Barra;
    }

    void ayudaPorMenuYBarraSinPantallaMuestraElContenido()
    {
        QFETCH(Via, via);
        Arranca();
        Pide(via, "mnuAyudaPrograma", "Ayuda");
        QCOMPARE(doble_->ayuda.peticiones.size(), std::size_t{1});
        QCOMPARE(doble_->ayuda.peticiones[0].contexto, 0);
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void ayudaConCadaPantallaMuestraSuTema_data()
    {
        QTest::addColumn<QString>("botonPantalla");
        QTest::addColumn<Via>("via");
        QTest::addColumn<int>("contexto");
        const std::pair<const char*, std::pair<const char*, int>> pantallas[] = {
            {"FM_CARAC", {"Carac", 31}},
            {"FM_FLEXION", {"FlexionR", 32}},
            {"FM_CONFINA", {"Confina", 33}},
            {"FM_FLEXIONT", {"FlexionT", 34}},
        };
        for (const auto& [nombre, datos] : pantallas) {
            QTest::addRow("%s F1", nombre) << QString::fromLatin1(datos.first) << Via::Menu << datos.second;
            QTest::addRow("%s barra", nombre) << QString::fromLatin1(datos.first) << Via::Barra << datos.second;
        }
    }

    void ayudaConCadaPantallaMuestraSuTema()
    {
        QFETCH(QString, botonPantalla);
        QFETCH(Via, via);
        QFETCH(int, contexto);
        MdiPrincipal& w = Arranca();
        QVERIFY(Boton(qPrintable(botonPantalla)));
        QTRY_VERIFY(w.PantallaAbierta() != nullptr);
        if (via == Via::Menu) {
            // F1 from wherever the focus is on the screen: its first field.
            QWidget* foco = QApplication::focusWidget();
            QVERIFY(foco != nullptr);
            QTest::keyClick(foco, Qt::Key_F1);
        } else {
            Pide(via, "mnuAyudaPrograma", "Ayuda");
        }
        QCOMPARE(doble_->ayuda.peticiones.size(), std::size_t{1});
        QCOMPARE(doble_->ayuda.peticiones[0].fichero, FicheroAyuda());
        QCOMPARE(doble_->ayuda.peticiones[0].contexto, contexto);
    }

    void conFmConfinaAbiertaElMenuMuestraElTema33()
    {
        Arranca();
        QVERIFY(Boton("Confina"));
        QTRY_VERIFY(Estado().F_CONFINA);
        Pide(Via::Menu, "mnuAyudaPrograma", "Ayuda");
        QCOMPARE(doble_->ayuda.peticiones.size(), std::size_t{1});
        QCOMPARE(doble_->ayuda.peticiones[0].contexto, 33);
    }

    void laPantallaSeBuscaPorSusIndicadoresEnElOrdenDeSiempre()
    {
        // Flexion, characteristics, confinement, T: the first flag that is up gives the topic.
        Arranca();
        Estado().F_CONFINA = true;
        Estado().F_FLEXIONT = true;
        ventana_->AyudaPrograma();
        Estado().F_CARAC = true;
        ventana_->AyudaPrograma();
        Estado().F_FLEXION = true;
        ventana_->AyudaPrograma();
        QCOMPARE(doble_->ayuda.peticiones.size(), std::size_t{3});
        QCOMPARE(doble_->ayuda.peticiones[0].contexto, 33);
        QCOMPARE(doble_->ayuda.peticiones[1].contexto, 31);
        QCOMPARE(doble_->ayuda.peticiones[2].contexto, 32);
    }

    void menuYBarra_data()
    {
        QTest::addColumn<Via>("via");
        QTest::newRow("menú") << Via::Menu;
        QTest::newRow("barra") << Via::Barra;
    }

    void laGuiaSeAbreEnElLectorDePdf_data() { menuYBarra_data(); }
    void laGuiaSeAbreEnElLectorDePdf()
    {
        QFETCH(Via, via);
        Arranca();
        Pide(via, "mnuAyudaManual", "Guia");
        QCOMPARE(doble_->escritorio.ficheros, QStringList{FicheroGuia()});
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void sinSuProgramaLaGuiaYLaWebLoDicen_data()
    {
        prueba::Columnas<Via, bool, QString, QString, QString>({"via", "sinVisor", "entrada", "clave", "mensaje"});
        const QString sinLector = QStringLiteral(
            "No se ha encontrado ningún lector de ficheros PDF. En el CD de instalación está disponible el Adobe "
            "Acrobat Reader.");
        const QString sinNavegador = QStringLiteral("No se ha encontrado ningún navegador asociado en su ordenador.");
        for (const auto& [via, nombre] : {std::pair{Via::Menu, "menú"}, std::pair{Via::Barra, "barra"}}) {
            QTest::addRow("la guía sin lector de PDF, %s", nombre) << via << true << "mnuAyudaManual"
                                                                   << "Guia" << sinLector;
            QTest::addRow("la web sin navegador, %s", nombre) << via << false << "mnuAyudaWeb"
                                                              << "Web" << sinNavegador;
        }
    }

    void sinSuProgramaLaGuiaYLaWebLoDicen()
    {
        QFETCH(Via, via);
        QFETCH(bool, sinVisor);
        QFETCH(QString, entrada);
        QFETCH(QString, clave);
        QFETCH(QString, mensaje);
        Arranca();
        doble_->escritorio.sinVisor = sinVisor;
        doble_->escritorio.sinNavegador = !sinVisor;
        Pide(via, qPrintable(entrada), qPrintable(clave));
        QCOMPARE(Mensajes(), QStringList{mensaje});
    }

    void laWebSeAbreEnElNavegadorConLaDireccionDelProducto_data() { menuYBarra_data(); }
    void laWebSeAbreEnElNavegadorConLaDireccionDelProducto()
    {
        QFETCH(Via, via);
        Arranca();
        Pide(via, "mnuAyudaWeb", "Web");
        QCOMPARE(doble_->escritorio.direcciones, QStringList{QStringLiteral(TEXALON_WEB)});
        QCOMPARE(DireccionWebVelmora(), QStringLiteral(TEXALON_WEB));
        // Written without a scheme.
        QVERIFY(!DireccionWebVelmora().contains(QStringLiteral("://")));
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void unCorreoLlevaElAsuntoYElBuzonDelFabricante_data() { menuYBarra_data(); }
    void unCorreoLlevaElAsuntoYElBuzonDelFabricante()
    {
        QFETCH(Via, via);
        Arranca();
        Pide(via, "mnuAyudaContactar", "Mail");
        QCOMPARE(doble_->correo.inicios, 1);
        QCOMPARE(doble_->correo.mensajes.size(), std::size_t{1});
        QCOMPARE(doble_->correo.mensajes[0].asunto,
                 QStringLiteral("INFORMACION SOBRE EL SISTEMA DE REFUERZO TEXALON®"));
        QCOMPARE(doble_->correo.mensajes[0].destinatario, QStringLiteral(TEXALON_CORREO));
        QVERIFY(Estado().F_MAPI);
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void dosCorreosEnUnaEjecucionUnSoloInicioDeSesion()
    {
        Arranca();
        Pide(Via::Menu, "mnuAyudaContactar", "Mail");
        Pide(Via::Barra, "mnuAyudaContactar", "Mail");
        QCOMPARE(doble_->correo.inicios, 1);
        QCOMPARE(doble_->correo.mensajes.size(), std::size_t{2});
        QVERIFY(Estado().F_MAPI);
    }

    void unCorreoQueFallaLoDice_data()
    {
        prueba::DosFilas("alIniciar", {"sin programa de correo, no queda sesión", true},
                         {"que no se envía, la sesión sigue abierta", false});
    }

    void unCorreoQueFallaLoDice()
    {
        QFETCH(bool, alIniciar);
        Arranca();
        bool& falla = alIniciar ? doble_->correo.fallaInicio : doble_->correo.fallaEnvio;
        const Via via = alIniciar ? Via::Barra : Via::Menu;
        falla = true;
        Pide(via, "mnuAyudaContactar", "Mail");
        QCOMPARE(Mensajes(), QStringList{kSinCorreo});
        QCOMPARE(Estado().F_MAPI, !alIniciar);
        if (alIniciar) QVERIFY(doble_->correo.mensajes.empty());
        // The next mail tries the sign-on again, or goes through the session still open.
        falla = false;
        Pide(via, "mnuAyudaContactar", "Mail");
        QCOMPARE(doble_->correo.inicios, alIniciar ? 2 : 1);
        if (alIniciar)
            QVERIFY(Estado().F_MAPI);
        else
            QCOMPARE(Mensajes(), QStringList{kSinCorreo});
    }

    void salirCierraLaSesionDeCorreo()
    {
        MdiPrincipal& w = Arranca();
        Pide(Via::Barra, "mnuAyudaContactar", "Mail");
        QTest::keyClick(&w, Qt::Key_F7);
        QCOMPARE(doble_->correo.cierres, 1);
        QVERIFY(!Estado().F_MAPI);
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{0});
    }

    void cerrarLaVentanaPrincipalCierraLaSesionDeCorreo()
    {
        MdiPrincipal& w = Arranca();
        Pide(Via::Barra, "mnuAyudaContactar", "Mail");
        w.close();
        QCOMPARE(doble_->correo.cierres, 1);
        QVERIFY(!Estado().F_MAPI);
    }

    void sinCorreoEnLaEjecucionNoHayNadaQueCerrar()
    {
        MdiPrincipal& w = Arranca();
        QTest::keyClick(&w, Qt::Key_F7);
        QCOMPARE(doble_->correo.cierres, 0);
    }
};

QTEST_MAIN(PruebaAyuda)
#include "test_ayuda.moc"
