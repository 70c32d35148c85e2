// The program opened from outside: a project named on the command line or dropped on the main
// window opens as Open opens it, with the same checks, messages and screen; and the main window
// starts in the middle of the screen.
#include "platform/dobles/PlataformaDoble.h"
#include "screens/Formulario.h"
#include "shell/Arranque.h"
#include "shell/FmPresentacion.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>
#include <QTest>
#include <memory>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

// A rectangular section of 0.3 by 0.5, and a column: both good files.
const QByteArray kViga =
    "1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n80\r\n";
const QByteArray kPilar = "3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n1200\r\n1\r\n";
// A section kind the reader refuses.
const QByteArray kVigaMala = "7\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n80\r\n";

const QString kDatosIncorrectos = QStringLiteral("Los datos almacenados no son correctos.");

}  // namespace

class PruebaInicio : public QObject {
    Q_OBJECT

    std::unique_ptr<PlataformaDoble> doble_;
    std::unique_ptr<MdiPrincipal> ventana_;
    std::unique_ptr<QTemporaryDir> carpeta_;

    MdiPrincipal& Arranca() { return ArrancaCon({}); }

    // The program started as its entry starts it, with these arguments after its name. The test
    // owns the window.
    MdiPrincipal& ArrancaCon(const QStringList& argumentos)
    {
        ventana_.reset();
        Estado() = General{};
        doble_ = std::make_unique<PlataformaDoble>();
        doble_->monitor.tamano = {1024.0, 768.0};
        ventana_.reset(texalon::Arranca(QStringList{QStringLiteral("texalon")} + argumentos));
        ventana_->setAttribute(Qt::WA_DeleteOnClose, false);
        return *ventana_;
    }

    QString Escribe(const char* nombre, const QByteArray& contenido)
    {
        const QString ruta = carpeta_->filePath(QString::fromUtf8(nombre));
        QFile fichero(ruta);
        if (!fichero.open(QIODevice::WriteOnly)) qFatal("no se ha podido escribir %s", nombre);
        fichero.write(contenido);
        return ruta;
    }

    QStringList Mensajes() const
    {
        QStringList textos;
        for (const MensajeMostrado& m : doble_->mensajes.mostrados)
            textos << m.texto;
        return textos;
    }

    // A drop of the file on the main window, as a file manager gives it.
    void Suelta(MdiPrincipal& w, const QString& fichero)
    {
        QMimeData datos;
        datos.setUrls({QUrl::fromLocalFile(fichero)});
        const QPoint punto = w.rect().center();
        QDragEnterEvent entra(punto, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&w, &entra);
        QVERIFY(entra.isAccepted());
        QDropEvent suelta(QPointF(punto), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&w, &suelta);
    }

private slots:
    void init() { carpeta_ = std::make_unique<QTemporaryDir>(); }

    void cleanup()
    {
        if (ventana_) {
            doble_->mensajes.respuestas.clear();
            ventana_->CierraPantallaAbierta();
        }
        ventana_.reset();
        doble_.reset();
    }

    void laVentanaEmpiezaEnElCentroDeLaPantalla()
    {
        MdiPrincipal& w = Arranca();
        const QRect marco = w.frameGeometry();
        QCOMPARE(marco.left(), (1024 - marco.width()) / 2);
        QCOMPARE(marco.top(), (768 - marco.height()) / 2);
    }

    void unProyectoNombradoSeAbreComoAbrir()
    {
        const QString ruta = Escribe("viga.vmf", kViga);
        MdiPrincipal& w = ArrancaCon({ruta});
        QVERIFY(Mensajes().isEmpty());
        // The splash goes, and the screen of the section kind opens with the file's data.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(w.Presentacion() == nullptr);
        QVERIFY(w.PantallaAbierta() != nullptr);
        QCOMPARE(w.PantallaAbierta()->objectName(), QStringLiteral("FM_FLEXION"));
        QCOMPARE(Estado().ANCHO, 0.3);
        QCOMPARE(Estado().MD, 80.0);
        QVERIFY(Estado().F_ABIERTO);
        QCOMPARE(QString::fromStdString(Estado().FICHERO), QFileInfo(ruta).absoluteFilePath());
        QCOMPARE(QString::fromStdString(Estado().DIRECTORIO), QFileInfo(ruta).absolutePath());
    }

    void sinArgumentosNoSeAbreNada()
    {
        MdiPrincipal& w = ArrancaCon({});
        QVERIFY(w.Presentacion() != nullptr);
        QVERIFY(w.PantallaAbierta() == nullptr);
        QVERIFY(Mensajes().isEmpty());
        QVERIFY(!Estado().F_ABIERTO);
    }

    void unPilarAbreSuPantalla()
    {
        MdiPrincipal& w = ArrancaCon({Escribe("PILAR.VMC", kPilar)});
        QVERIFY(w.PantallaAbierta() != nullptr);
        QCOMPARE(w.PantallaAbierta()->objectName(), QStringLiteral("FM_CONFINA"));
        QCOMPARE(Estado().NCP, 1200.0);
    }

    void unFicheroMaloDaElMensajeYNingunaPantalla()
    {
        MdiPrincipal& w = ArrancaCon({Escribe("mala.vmf", kVigaMala)});
        QCOMPARE(Mensajes(), QStringList{kDatosIncorrectos});
        QVERIFY(w.PantallaAbierta() == nullptr);
        QVERIFY(!Estado().F_ABIERTO);
    }

    void unFicheroQueNoExisteDaElMensaje()
    {
        MdiPrincipal& w = ArrancaCon({carpeta_->filePath(QStringLiteral("no_existe.vmf"))});
        // The reader's own error first, as Open shows it.
        QCOMPARE(Mensajes(), QStringList({QStringLiteral("Error 53: No se ha encontrado el archivo"), kDatosIncorrectos}));
        QVERIFY(w.PantallaAbierta() == nullptr);
    }

    void otraExtensionSeIgnoraEnSilencio()
    {
        MdiPrincipal& w = ArrancaCon({Escribe("notas.txt", kViga)});
        QVERIFY(Mensajes().isEmpty());
        QVERIFY(w.PantallaAbierta() == nullptr);
    }

    void unProyectoSoltadoSobreLaVentanaSeAbre()
    {
        MdiPrincipal& w = Arranca();
        Suelta(w, Escribe("viga.VMF", kViga));
        QVERIFY(w.PantallaAbierta() != nullptr);
        QCOMPARE(w.PantallaAbierta()->objectName(), QStringLiteral("FM_FLEXION"));
        QCOMPARE(Estado().ASI, 12.0);
    }

    void loQueNoEsUnFicheroNoSeAcepta()
    {
        MdiPrincipal& w = Arranca();
        QMimeData datos;
        datos.setText(QStringLiteral("viga.vmf"));
        QDragEnterEvent entra(w.rect().center(), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&w, &entra);
        QVERIFY(!entra.isAccepted());
    }

    void abrirOtroCierraLaPantallaAbiertaPorSuPregunta()
    {
        MdiPrincipal& w = Arranca();
        w.AbrirFichero(Escribe("viga.vmf", kViga));
        QVERIFY(w.PantallaAbierta() != nullptr);
        // Opened from a file and unchanged: no prompt as the screen goes.
        w.AbrirFichero(Escribe("pilar.vmc", kPilar));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(w.PantallaAbierta()->objectName(), QStringLiteral("FM_CONFINA"));
    }
};

QTEST_MAIN(PruebaInicio)
#include "test_inicio.moc"
