// Open, Save and Save As of the main window, end to end: the real screens, the real files in a
// temporary folder, the platform doubles in place of the dialogs and the message box.
#include "comun/Principal.h"
#include "comun/Usuario.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/Entrada.h"
#include "screens/Formulario.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QToolBar>
#include <QTest>
#include <memory>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

const QString kFiltroAbrir = QStringLiteral(
    "Archivos TEXALON - Flexión|*.VMF|Archivos TEXALON - Confinamiento|*.VMC|Archivos TEXALON|*.VMC;*.VMF");
const QString kFiltroFlexion = QStringLiteral("Archivos TEXALON - Flexión|*.VMF");
const QString kFiltroConfina = QStringLiteral("Archivos TEXALON - Confinamiento|*.VMC");

const QString kAlmacenados = QStringLiteral("Los datos almacenados no son correctos.");
const QString kIntroducidos = QStringLiteral("Los datos introducidos no son correctos.");
const QString kPregunta = QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?");

// Good projects, as a hand or another machine could have written them.
const QByteArray kRectangular =
    "1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n80\r\n";
const QByteArray kSeccionT =
    "2\r\n0.8\r\n0.7\r\n0.3\r\n0.15\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n0\r\n120\r\n";
const QByteArray kConfina = "3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n1200\r\n1\r\n";

// A message as the doubles recorded it, text and style together, so that a list of them
// compares in one go and shows both when it differs.
QString Mensaje(const QString& texto, Estilo estilo)
{
    return QStringLiteral("%1 [%2]").arg(texto).arg(static_cast<int>(estilo));
}

QString Parada(const QString& texto) { return Mensaje(texto, Estilo::Parada); }
QString Exclamacion(const QString& texto) { return Mensaje(texto, Estilo::Exclamacion); }
QString Pregunta() { return Mensaje(kPregunta, Estilo::PreguntaSiNo); }

// A field typed by the user: its control and the text, written with a comma.
struct Tecleo {
    const char* control;
    const char* texto;
};

const std::vector<Tecleo> kTecleoRectangular = {
    {"TX_ANCHO", "0,35"}, {"TX_CANTO", "0,7"}, {"TX_RECUB", "0,04"}, {"TX_ASI", "12,5"}, {"TX_ASS", "3,2"},
    {"TX_MCP", "20"},     {"TX_MD", "150"},    {"CO_FCK", "27"},     {"CO_FYK", "400"},  {"CO_ANCHOR", "0,25"},
};

const std::vector<Tecleo> kTecleoT = {
    {"TX_ANCHO", "0,8"},  {"TX_ANCHOALMA", "0,3"}, {"TX_CANTO", "0,7"}, {"TX_CANTOALA", "0,15"},
    {"TX_RECUB", "0,04"}, {"TX_ASI", "12,5"},      {"TX_ASS", "3,2"},   {"TX_MCP", "20"},
    {"TX_MD", "150"},     {"CO_FCK", "27"},        {"CO_FYK", "400"},   {"CO_ANCHOR", "0,25"},
};

// CO_SECCION goes to RECTANGULAR with the keys before these: the smaller side is greyed till then.
const std::vector<Tecleo> kTecleoConfina = {
    {"TX_DIAM", "0,5"}, {"TX_LADOMENOR", "0,4"}, {"TX_INCR", "1,2"}, {"TX_NCP", "800"}, {"CO_FCK", "27"},
};

const std::vector<Tecleo>& TecleoDe(const QString& pantalla)
{
    if (pantalla == QLatin1String("FM_FLEXIONT")) return kTecleoT;
    if (pantalla == QLatin1String("FM_CONFINA")) return kTecleoConfina;
    return kTecleoRectangular;
}

// The controls whose texts a project shows, inputs and the values the screen works out.
QStringList ControlesDe(const QString& pantalla)
{
    if (pantalla == QLatin1String("FM_CONFINA"))
        return {"CO_SECCION", "TX_DIAM", "TX_LADOMENOR", "TX_INCR", "TX_NCP", "CO_FCK", "TX_ALFAN", "TX_NU"};
    QStringList controles;
    for (const Tecleo& t : TecleoDe(pantalla))
        controles << QString::fromLatin1(t.control);
    return controles;
}

// The project values of the state that a file of that screen holds.
std::vector<double> ValoresDe(const QString& pantalla)
{
    const General& g = Estado();
    if (pantalla == QLatin1String("FM_CONFINA"))
        return {static_cast<double>(g.SECCION), g.DIAM, g.LADOMENOR, g.FCK, g.GC, g.GS, g.GR, g.NCP, g.INCR};
    std::vector<double> valores = {g.ANCHO, g.CANTO};
    if (pantalla == QLatin1String("FM_FLEXIONT")) valores.insert(valores.end(), {g.ANCHOALMA, g.CANTOALA});
    valores.insert(valores.end(), {g.RECUB, g.ASI, g.ASS, g.FCK, g.FYK, g.GC, g.GS, g.GR, g.ANCHOR, g.MCP, g.MD});
    return valores;
}

// The same texts under the other decimal setting.
QString OtroSeparador(QString texto)
{
    for (QChar& c : texto) {
        if (c == QLatin1Char(','))
            c = QLatin1Char('.');
        else if (c == QLatin1Char('.'))
            c = QLatin1Char(',');
    }
    return texto;
}

}  // namespace

class PruebaOrdenesFichero : public prueba::PruebaDePrincipal {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> carpeta_;

    QString Ruta(const char* nombre) const { return carpeta_->filePath(QString::fromUtf8(nombre)); }

    static void Crea(const QString& ruta, const QByteArray& contenido)
    {
        QFile fichero(ruta);
        if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size())
            qWarning("no se ha podido escribir %s", qPrintable(ruta));
    }

    static QByteArray Contenido(const QString& ruta)
    {
        QFile fichero(ruta);
        return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray("(no existe)");
    }

    QStringList FicherosDeLaCarpeta() const
    {
        return QDir(carpeta_->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    }

    // The user's next choice in a file dialog.
    void Elige(const QString& ruta)
    {
        doble_->ficheros.respuestas.push_back(FicheroElegido{ruta, QFileInfo(ruta).absolutePath()});
    }
    void Cancela() { doble_->ficheros.respuestas.push_back(std::nullopt); }

    // A command by the name of its menu item ("mnuPrincipalGuardar") or the key of its toolbar
    // button ("Guardar").
    bool Ejecuta(const QString& orden)
    {
        return orden.startsWith(QLatin1String("mnu")) ? Orden(qPrintable(orden)) : Boton(qPrintable(orden));
    }

    QString NombreAbierta() const
    {
        Formulario* pantalla = Abierta();
        return pantalla == nullptr ? QString() : pantalla->objectName();
    }
    QWidget* C(const char* nombre) const { return Abierta()->Control(QString::fromLatin1(nombre)); }
    QString Texto(const char* nombre) const { return TextoDe(C(nombre)); }

    // The user closes the screen with its close button.
    void CierraPantalla()
    {
        if (QMdiSubWindow* ventana = ventana_->Area()->activeSubWindow()) ventana->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList Mostrados() const
    {
        QStringList lista;
        for (const MensajeMostrado& m : doble_->mensajes.mostrados)
            lista << Mensaje(m.texto, m.estilo);
        return lista;
    }

    QStringList TextosDe(const QString& pantalla) const
    {
        QStringList textos;
        for (const QString& control : ControlesDe(pantalla))
            textos << TextoDe(Abierta()->Control(control));
        return textos;
    }

    bool MenuActivo(const char* nombre) const
    {
        return ventana_->ElementoMenu(QString::fromLatin1(nombre))->isEnabled();
    }

    // Guardar, Guardar como and Imprimir of the menu, then buttons 3 and 4 of the toolbar.
    QList<bool> EstadoDeLasOrdenes() const
    {
        return {MenuActivo("mnuPrincipalGuardar"), MenuActivo("mnuPrincipalGuardarcomo"),
                MenuActivo("mnuPrincipalImprimir"), ventana_->Boton(3)->isEnabled(), ventana_->Boton(4)->isEnabled()};
    }

    // CO_SECCION from its first row to RECTANGULAR, with the keys.
    void SeccionRectangularConTeclado()
    {
        auto* seccion = qobject_cast<QComboBox*>(C("CO_SECCION"));
        if (!prueba::Enfoca(seccion)) qWarning("CO_SECCION no ha tomado el foco");
        QTest::keyClick(seccion, Qt::Key_Down);
        QTest::keyClick(seccion, Qt::Key_Down);
    }

    void TecleaProyecto(const QString& pantalla)
    {
        if (pantalla == QLatin1String("FM_CONFINA")) SeccionRectangularConTeclado();
        for (const Tecleo& t : TecleoDe(pantalla))
            prueba::EscribeYTabula(C(t.control), Sep(t.texto));
    }

    // The first choice of the Open dialog and its command, from the menu.
    void AbreDesdeMenu(const QString& ruta)
    {
        Elige(ruta);
        Orden("mnuPrincipalAbrir");
    }

private slots:
    void init()
    {
        carpeta_ = std::make_unique<QTemporaryDir>();
        QVERIFY(carpeta_->isValid());
    }

    void cleanup()
    {
        if (ventana_ && doble_) {
            // A prompt left at the end is answered No, and no dialog is waiting.
            doble_->mensajes.respuestas.clear();
            doble_->ficheros.respuestas.clear();
            ventana_->Area()->closeAllSubWindows();
        }
        ventana_.reset();
        doble_.reset();
        carpeta_.reset();
    }

    // ---- The dialogs.

    void abrirMuestraLosTresFiltrosDesdeElTercero()
    {
        Arranca();
        Cancela();
        QVERIFY(Orden("mnuPrincipalAbrir"));
        QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.abiertos[0].filtro, kFiltroAbrir);
        QCOMPARE(doble_->ficheros.abiertos[0].indiceFiltro, 3);
        QCOMPARE(doble_->ficheros.abiertos[0].nombre, QString());
        QVERIFY(doble_->ficheros.guardados.empty());
        QVERIFY(Mostrados().isEmpty());
    }

    void abrirGuardaElFicheroYLaCarpetaElegidos()
    {
        Arranca();
        const QString ruta = Ruta("obra.vmf");
        Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
        QCOMPARE(QString::fromStdString(Estado().FICHERO), ruta);
        QCOMPARE(QString::fromStdString(Estado().DIRECTORIO), QFileInfo(ruta).absolutePath());
    }

    void guardarUnaPantallaNuevaOfreceSuTipoYSuNombre_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("filtro");
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QString>("elegido");
        QTest::newRow("rectangular") << "mnuCalcularFlexion" << kFiltroFlexion << "flexion.vmf"
                                     << "viga.vmf";
        QTest::newRow("T") << "mnuCalcularFlexionT" << kFiltroFlexion << "flexion.vmf"
                           << "viga_t.vmf";
        QTest::newRow("confinamiento") << "mnuCalcularConfina" << kFiltroConfina << "confina.vmc"
                                       << "pilar.vmc";
    }

    void guardarUnaPantallaNuevaOfreceSuTipoYSuNombre()
    {
        QFETCH(QString, orden);
        QFETCH(QString, filtro);
        QFETCH(QString, nombre);
        QFETCH(QString, elegido);
        Arranca();
        QVERIFY(Orden(qPrintable(orden)));
        const QString ruta = carpeta_->filePath(elegido);
        Elige(ruta);
        QVERIFY(Orden("mnuPrincipalGuardar"));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].filtro, filtro);
        QCOMPARE(doble_->ficheros.guardados[0].indiceFiltro, 1);
        QCOMPARE(doble_->ficheros.guardados[0].nombre, nombre);
        QVERIFY(doble_->ficheros.abiertos.empty());
        QCOMPARE(QString::fromStdString(Estado().FICHERO), ruta);
        QCOMPARE(QString::fromStdString(Estado().DIRECTORIO), QFileInfo(ruta).absolutePath());
        QVERIFY(QFileInfo::exists(ruta));
        QVERIFY(Mostrados().isEmpty());
    }

    // ---- Cancel.

    void abrirCierraAntesLaPantallaConSuPreguntaYCancelarNoDejaNinguna()
    {
        MdiPrincipal& w = Arranca();
        QVERIFY(Orden("mnuCalcularFlexion"));
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
        std::size_t dialogosAlPreguntar = 99;
        doble_->mensajes.alMostrar = [&](const MensajeMostrado&) {
            dialogosAlPreguntar = doble_->ficheros.abiertos.size();
        };
        Cancela();
        QVERIFY(Orden("mnuPrincipalAbrir"));
        // The new screen's prompt came first, with the Open dialog not yet up.
        QCOMPARE(Mostrados(), QStringList{Pregunta()});
        QCOMPARE(dialogosAlPreguntar, std::size_t{0});
        QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{1});
        QVERIFY(Abierta() == nullptr);
        QVERIFY(w.Area()->subWindowList().isEmpty());
        QVERIFY(!Estado().F_FLEXION);
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
    }

    void cancelarAbrirDesdeElMenuBorraAbiertoYDesdeLaBarraNo_data()
    {
        QTest::addColumn<bool>("desdeMenu");
        QTest::addColumn<bool>("abierto");
        QTest::newRow("menú") << true << false;
        QTest::newRow("barra") << false << true;
    }

    void cancelarAbrirDesdeElMenuBorraAbiertoYDesdeLaBarraNo()
    {
        QFETCH(bool, desdeMenu);
        QFETCH(bool, abierto);
        Arranca();
        const QString ruta = Ruta("obra.vmf");
        Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
        QVERIFY(Estado().F_ABIERTO);
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
        Cancela();
        QVERIFY(desdeMenu ? Orden("mnuPrincipalAbrir") : Boton("Abrir"));
        QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{2});
        QCOMPARE(Estado().F_ABIERTO, abierto);
        // The screen read from the file closed without a prompt, and none took its place.
        QVERIFY(Abierta() == nullptr);
        QVERIFY(Mostrados().isEmpty());
    }

    void cancelarGuardarEnUnaPantallaNuevaNoTocaNadaYLaPantallaSigue_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<bool>("abierto");
        QTest::newRow("Guardar del menú") << "mnuPrincipalGuardar" << false;
        QTest::newRow("Guardar de la barra") << "Guardar" << true;
        QTest::newRow("Guardar como") << "mnuPrincipalGuardarcomo" << false;
    }

    void cancelarGuardarEnUnaPantallaNuevaNoTocaNadaYLaPantallaSigue()
    {
        QFETCH(QString, orden);
        QFETCH(bool, abierto);
        Arranca();
        QVERIFY(Orden("mnuCalcularFlexion"));
        prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("50"));
        QVERIFY(Estado().F_MODIFICADO);
        // As a project read before the new screen would have left it: only the menu clears it.
        Estado().F_ABIERTO = true;
        Estado().FICHERO = "anterior.vmf";
        Cancela();
        QVERIFY(Ejecuta(orden));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(Estado().F_ABIERTO, abierto);
        QVERIFY(!Estado().F_GRABADO);
        QVERIFY(Estado().F_NUEVO);
        QVERIFY(Estado().F_MODIFICADO);
        QCOMPARE(Estado().FICHERO, std::string("anterior.vmf"));
        QVERIFY(FicherosDeLaCarpeta().isEmpty());
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
        QVERIFY(Estado().F_FLEXION);
        QCOMPARE(Texto("TX_MD"), Sep("50,00"));
        QVERIFY(Mostrados().isEmpty());
    }

    // ---- Opening good files.

    void abrirUnFicheroBuenoAbreLaPantallaDeSuTipo_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QByteArray>("contenido");
        QTest::addColumn<QString>("pantalla");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<bool>("preguntaAlCerrar");
        QTest::newRow("rectangular") << "x.vmf" << kRectangular << "FM_FLEXION"
                                     << "TX_MD"
                                     << "80,00" << false;
        QTest::newRow("T") << "t.vmf" << kSeccionT << "FM_FLEXIONT"
                           << "TX_ANCHOALMA"
                           << "0,300" << false;
        QTest::newRow("confinamiento") << "c.vmc" << kConfina << "FM_CONFINA"
                                       << "TX_NCP"
                                       << "1200,00" << true;
        QTest::newRow("mayúsculas VMF") << "X.VMF" << kRectangular << "FM_FLEXION"
                                        << "TX_MCP"
                                        << "10,00" << false;
        QTest::newRow("mezcla Vmc") << "Y.Vmc" << kConfina << "FM_CONFINA"
                                    << "TX_DIAM"
                                    << "0,500" << true;
    }

    void abrirUnFicheroBuenoAbreLaPantallaDeSuTipo()
    {
        QFETCH(QString, nombre);
        QFETCH(QByteArray, contenido);
        QFETCH(QString, pantalla);
        QFETCH(QString, control);
        QFETCH(QString, texto);
        QFETCH(bool, preguntaAlCerrar);
        Arranca();
        QVERIFY(!Estado().F_MODIFICADO);
        const QString ruta = carpeta_->filePath(nombre);
        Crea(ruta, contenido);
        AbreDesdeMenu(ruta);
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(NombreAbierta(), pantalla);
        QCOMPARE(Texto(qPrintable(control)), Sep(qPrintable(texto)));
        QVERIFY(Estado().F_ABIERTO);
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_NUEVO);
        // Only the confinement screen's load marks the project modified, through its section.
        QCOMPARE(Estado().F_MODIFICADO, preguntaAlCerrar);
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({true, true, true, true, true}));
        CierraPantalla();
        QCOMPARE(Mostrados(), preguntaAlCerrar ? QStringList{Pregunta()} : QStringList());
        QVERIFY(Abierta() == nullptr);
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
    }

    void abrirDesdeLaBarraAbreIgualQueDesdeElMenu()
    {
        Arranca();
        const QString ruta = Ruta("t.VMF");
        Crea(ruta, kSeccionT);
        Elige(ruta);
        QVERIFY(Boton("Abrir"));
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXIONT"));
        QCOMPARE(Estado().ANCHO, 0.8);
        QCOMPARE(Estado().MD, 120.0);
        QVERIFY(Estado().F_ABIERTO);
        QVERIFY(Mostrados().isEmpty());
    }

    // ---- Opening bad files.

    void abrirUnFicheroQueNoPasaLasComprobacionesSoloDiceQueNoEsCorrecto_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QByteArray>("contenido");
        QTest::addColumn<double>("ancho");
        QTest::addColumn<double>("asi");
        QTest::addColumn<double>("diam");
        QTest::addColumn<int>("seccion");
        QTest::addColumn<double>("nu");
        // Kind 3 is read through as a rectangular file and then refused; the flexure defaults
        // replace the project, the confinement fields stay.
        QTest::newRow("vmf de tipo 3") << "tipo3.vmf"
                                       << QByteArray(
                                              "3\r\n0.3\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1."
                                              "15\r\n1.4\r\n0.125\r\n0\r\n0\r\n")
                                       << 0.4 << 10.0 << 0.7 << 2 << 0.3;
        // A refused confinement file leaves NU as it was; only a failing one loads it.
        QTest::newRow("vmc con INCR 0.5")
            << "incr.vmc" << QByteArray("3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n1200\r\n0.5\r\n") << 0.3 << 20.0
            << 0.5 << 1 << 0.3;
    }

    void abrirUnFicheroQueNoPasaLasComprobacionesSoloDiceQueNoEsCorrecto()
    {
        QFETCH(QString, nombre);
        QFETCH(QByteArray, contenido);
        QFETCH(double, ancho);
        QFETCH(double, asi);
        QFETCH(double, diam);
        QFETCH(int, seccion);
        QFETCH(double, nu);
        Arranca();
        General& g = Estado();
        g.ANCHO = 0.3;
        g.ASI = 20.0;
        g.DIAM = 0.7;
        g.SECCION = 2;
        g.NU = 0.3;
        const QString ruta = carpeta_->filePath(nombre);
        Crea(ruta, contenido);
        AbreDesdeMenu(ruta);
        QCOMPARE(Mostrados(), QStringList{Parada(kAlmacenados)});
        QVERIFY(Abierta() == nullptr);
        QVERIFY(!g.F_ABIERTO);
        QCOMPARE(g.ANCHO, ancho);
        QCOMPARE(g.ASI, asi);
        QCOMPARE(g.DIAM, diam);
        QCOMPARE(static_cast<int>(g.SECCION), seccion);
        QCOMPARE(g.NU, nu);
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
    }

    void abrirUnFicheroQueFallaDaSuErrorYLuegoQueNoEsCorrecto_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QString>("forma");  // "fichero", "nada", "sinLectura" or "carpeta"
        QTest::addColumn<QByteArray>("contenido");
        QTest::addColumn<QString>("error");
        QTest::addColumn<bool>("flexion");
        const QString finDelFichero = QStringLiteral("Error 62: La entrada sobrepasa el final del archivo");
        const QString noEncontrado = QStringLiteral("Error 53: No se ha encontrado el archivo");
        QTest::newRow("vmf corto") << "corto.vmf"
                                   << "fichero" << QByteArray("1\r\n0.3\r\n0.6\r\n") << finDelFichero << true;
        QTest::newRow("vmc corto") << "corto.vmc"
                                   << "fichero" << QByteArray("3\r\n0.5\r\n") << finDelFichero << false;
        QTest::newRow("vmf vacío") << "vacio.vmf"
                                   << "fichero" << QByteArray() << finDelFichero << true;
        QTest::newRow("vmf que no existe") << "falta.vmf"
                                           << "nada" << QByteArray() << noEncontrado << true;
        QTest::newRow("vmc que no existe") << "falta.vmc"
                                           << "nada" << QByteArray() << noEncontrado << false;
        QTest::newRow("carpeta que no existe")
            << "no_existe/obra.vmf"
            << "nada" << QByteArray() << "Error 76: No se ha encontrado la ruta de acceso" << true;
        // A folder with a project's name opens but cannot be read.
        QTest::newRow("vmf sin permiso de lectura")
            << "cerrado.vmf"
            << "sinLectura" << kRectangular << "Error 70: Permiso denegado" << true;
        QTest::newRow("carpeta con nombre de proyecto")
            << "carpeta.vmc"
            << "carpeta" << QByteArray() << "Error 75: Error de acceso a la ruta o al archivo" << false;
    }

    void abrirUnFicheroQueFallaDaSuErrorYLuegoQueNoEsCorrecto()
    {
        QFETCH(QString, nombre);
        QFETCH(QString, forma);
        QFETCH(QByteArray, contenido);
        QFETCH(QString, error);
        QFETCH(bool, flexion);
        Arranca();
        General& g = Estado();
        g.ANCHO = 0.3;
        g.DIAM = 0.7;
        g.NU = 0.3;
        g.FYK = 400.0;
        const QString ruta = carpeta_->filePath(nombre);
        if (forma == QLatin1String("fichero")) Crea(ruta, contenido);
        if (forma == QLatin1String("carpeta")) QVERIFY(QDir(carpeta_->path()).mkdir(nombre));
        if (forma == QLatin1String("sinLectura")) {
            Crea(ruta, contenido);
            QVERIFY(QFile::setPermissions(ruta, QFileDevice::WriteOwner));
            // The administrator reads anything: the refusal can't be shown under that account.
            if (QFileInfo(ruta).isReadable()) QSKIP("el usuario puede leer un fichero sin permiso de lectura");
        }
        AbreDesdeMenu(ruta);
        QCOMPARE(Mostrados(), QStringList({Exclamacion(error), Parada(kAlmacenados)}));
        QVERIFY(Abierta() == nullptr);
        QVERIFY(!g.F_ABIERTO);
        // The reader of the file's kind has loaded its defaults; a failing confinement file the
        // longer list, the Poisson coefficient and the steel among them.
        QCOMPARE(g.ANCHO, flexion ? 0.4 : 0.3);
        QCOMPARE(g.DIAM, flexion ? 0.7 : 0.5);
        QCOMPARE(g.NU, flexion ? 0.3 : 0.5);
        QCOMPARE(g.FYK, 500.0);
    }

    void abrirUnNombreDeOtraExtensionNoHaceNada_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<bool>("existe");
        QTest::newRow("notas.txt que existe") << "notas.txt" << true;
        QTest::newRow("notas.txt que no existe") << "notas.txt" << false;
        QTest::newRow("copia de un vmf") << "obra.vmf.bak" << true;
    }

    void abrirUnNombreDeOtraExtensionNoHaceNada()
    {
        QFETCH(QString, nombre);
        QFETCH(bool, existe);
        Arranca();
        General& g = Estado();
        g.ANCHO = 0.3;
        g.DIAM = 0.7;
        const QString ruta = carpeta_->filePath(nombre);
        // The contents of a good project do not count: the name decides.
        if (existe) Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
        QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{1});
        QVERIFY(Mostrados().isEmpty());
        QVERIFY(Abierta() == nullptr);
        QVERIFY(!g.F_ERROR);
        QVERIFY(!g.F_ABIERTO);
        QCOMPARE(g.ANCHO, 0.3);
        QCOMPARE(g.DIAM, 0.7);
        QCOMPARE(g.ASI, 10.0);
    }

    // ---- Saving.

    void guardarUnaPantallaAbiertaDeFicheroEscribeEnElSinDialogo_data()
    {
        QTest::addColumn<bool>("desdeMenu");
        QTest::newRow("menú") << true;
        QTest::newRow("barra") << false;
    }

    void guardarUnaPantallaAbiertaDeFicheroEscribeEnElSinDialogo()
    {
        QFETCH(bool, desdeMenu);
        Arranca();
        const QString ruta = Ruta("obra.vmf");
        Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
        prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("75"));
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(desdeMenu ? Orden("mnuPrincipalGuardar") : Boton("Guardar"));
        QVERIFY(doble_->ficheros.guardados.empty());
        QCOMPARE(Contenido(ruta),
                 QByteArray(
                     "1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n75\r\n"));
        QCOMPARE(QString::fromStdString(Estado().FICHERO), ruta);
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_NUEVO);
        QVERIFY(Mostrados().isEmpty());
        // Saved: the screen closes without a prompt.
        CierraPantalla();
        QVERIFY(Mostrados().isEmpty());
    }

    void atajosDeGuardarYAbrirDesdeUnCampoTecleado()
    {
        Arranca();
        const QString ruta = Ruta("obra.vmf");
        Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
        QVERIFY(prueba::Enfoca(C("TX_MD")));
        prueba::Teclea(C("TX_MD"), QStringLiteral("75"));
        // Ctrl+S saves the text as typed, the field not yet left, over the project's file.
        QTest::keyClick(C("TX_MD"), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(doble_->ficheros.guardados.empty());
        QCOMPARE(Contenido(ruta),
                 QByteArray(
                     "1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n75\r\n"));
        QCOMPARE(Texto("TX_MD"), QStringLiteral("75"));
        QVERIFY(!Estado().F_MODIFICADO);
        // Ctrl+A is Open, not the field's select-all: the menu's command, with its Cancel.
        Cancela();
        QTest::keyClick(C("TX_MD"), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{2});
        QVERIFY(Abierta() == nullptr);
        QVERIFY(!Estado().F_ABIERTO);
        QVERIFY(Mostrados().isEmpty());
    }

    void guardarComoPreguntaSiempreTambienTrasGuardar()
    {
        Arranca();
        const QString ruta = Ruta("obra.vmf");
        Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
        QVERIFY(Orden("mnuPrincipalGuardar"));
        QVERIFY(doble_->ficheros.guardados.empty());
        QCOMPARE(Contenido(ruta), kRectangular);

        // The name offered is the default one, not the project's own.
        const QString otra = Ruta("otra.vmf");
        Elige(otra);
        QVERIFY(Orden("mnuPrincipalGuardarcomo"));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].filtro, kFiltroFlexion);
        QCOMPARE(doble_->ficheros.guardados[0].indiceFiltro, 1);
        QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
        QCOMPARE(Contenido(otra), kRectangular);
        QCOMPARE(QString::fromStdString(Estado().FICHERO), otra);

        // Save goes on to the new name without asking; Save As asks again.
        prueba::EscribeYTabula(C("TX_MCP"), QStringLiteral("15"));
        QVERIFY(Orden("mnuPrincipalGuardar"));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(Contenido(otra),
                 QByteArray(
                     "1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n15\r\n80\r\n"));
        QCOMPARE(Contenido(ruta), kRectangular);
        const QString tercera = Ruta("tercera.vmf");
        Elige(tercera);
        QVERIFY(Orden("mnuPrincipalGuardarcomo"));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{2});
        QCOMPARE(Contenido(tercera), Contenido(otra));
        QVERIFY(Mostrados().isEmpty());
    }

    void guardarComoEnConfinamientoOfreceSuTipo()
    {
        Arranca();
        const QString ruta = Ruta("pilar.vmc");
        Crea(ruta, kConfina);
        AbreDesdeMenu(ruta);
        const QString otra = Ruta("otro.vmc");
        Elige(otra);
        QVERIFY(Orden("mnuPrincipalGuardarcomo"));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].filtro, kFiltroConfina);
        QCOMPARE(doble_->ficheros.guardados[0].indiceFiltro, 1);
        QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("confina.vmc"));
        QCOMPARE(Contenido(otra), kConfina);
        QVERIFY(!Estado().F_MODIFICADO);
        // Saved, the confinement screen too closes without a prompt.
        CierraPantalla();
        QVERIFY(Mostrados().isEmpty());
    }

    void guardarTrasCalcularNoTocaElCalculo_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::newRow("Guardar") << "mnuPrincipalGuardar";
        QTest::newRow("Guardar como") << "mnuPrincipalGuardarcomo";
    }

    void guardarTrasCalcularNoTocaElCalculo()
    {
        QFETCH(QString, orden);
        Arranca();
        QVERIFY(Orden("mnuCalcularFlexion"));
        prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("300"));
        prueba::Pulsa(C("CM_CALCULAR"));
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(Estado().F_MODIFICADO);
        Elige(Ruta("viga.vmf"));
        QVERIFY(Orden(qPrintable(orden)));
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_NUEVO);
        QVERIFY(C("CM_CAPAS")->isEnabled());
        QVERIFY(Mostrados().isEmpty());
    }

    void guardarConUnCampoQueNoEsNumeroLoRechazaSinDialogo_data()
    {
        QTest::addColumn<bool>("nueva");
        QTest::addColumn<bool>("saleDelCampo");
        QTest::addColumn<QString>("orden");
        QTest::newRow("nueva, tecleado sin salir, Guardar") << true << false << "mnuPrincipalGuardar";
        QTest::newRow("nueva, rechazado al salir, Guardar") << true << true << "mnuPrincipalGuardar";
        QTest::newRow("nueva, tecleado sin salir, Guardar como") << true << false << "mnuPrincipalGuardarcomo";
        QTest::newRow("nueva, tecleado sin salir, Guardar de la barra") << true << false << "Guardar";
        QTest::newRow("de fichero, tecleado sin salir, Guardar") << false << false << "mnuPrincipalGuardar";
        QTest::newRow("de fichero, rechazado al salir, Guardar") << false << true << "mnuPrincipalGuardar";
        QTest::newRow("de fichero, rechazado al salir, Guardar como") << false << true << "mnuPrincipalGuardarcomo";
    }

    void guardarConUnCampoQueNoEsNumeroLoRechazaSinDialogo()
    {
        QFETCH(bool, nueva);
        QFETCH(bool, saleDelCampo);
        QFETCH(QString, orden);
        Arranca();
        const QString ruta = Ruta("obra.vmf");
        if (nueva) {
            QVERIFY(Orden("mnuCalcularFlexion"));
        } else {
            Crea(ruta, kRectangular);
            AbreDesdeMenu(ruta);
        }
        const bool grabado = Estado().F_GRABADO;
        QVERIFY(prueba::Enfoca(C("TX_ASI")));
        prueba::Teclea(C("TX_ASI"), QStringLiteral("abc"));
        if (saleDelCampo) {
            QTest::keyClick(C("TX_ASI"), Qt::Key_Tab);
            QCOMPARE(Mostrados(),
                     QStringList{Parada(QStringLiteral("La armadura inferior de la sección debe ser un número."))});
            QVERIFY(C("TX_ASI")->hasFocus());
            doble_->mensajes.mostrados.clear();
        }
        Elige(Ruta("otra.vmf"));
        QVERIFY(Ejecuta(orden));
        QCOMPARE(Mostrados(), QStringList{Parada(kIntroducidos)});
        QVERIFY(doble_->ficheros.guardados.empty());
        QCOMPARE(FicherosDeLaCarpeta(), nueva ? QStringList() : QStringList{QStringLiteral("obra.vmf")});
        if (!nueva) QCOMPARE(Contenido(ruta), kRectangular);
        QCOMPARE(Estado().F_GRABADO, grabado);
        QCOMPARE(Estado().F_NUEVO, nueva);
        // The refusal on leaving put the field's reset value in the state; the copy stored nothing.
        QCOMPARE(Estado().ASI, saleDelCampo || nueva ? 10.0 : 12.0);
        QCOMPARE(Texto("TX_ASI"), QStringLiteral("abc"));
        QVERIFY(C("TX_ASI")->hasFocus());
    }

    void escrituraFallidaGuardarNoLaDaPorGrabadaYGuardarComoSi_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<bool>("soloLectura");
        QTest::addColumn<QString>("error");
        QTest::addColumn<bool>("cuentaComoGrabado");
        const QString sinRuta = QStringLiteral("Error 76: No se ha encontrado la ruta de acceso");
        const QString sinPermiso = QStringLiteral("Error 70: Permiso denegado");
        QTest::newRow("Guardar del menú, carpeta que no existe") << "mnuPrincipalGuardar" << false << sinRuta << false;
        QTest::newRow("Guardar de la barra, carpeta que no existe") << "Guardar" << false << sinRuta << false;
        QTest::newRow("Guardar como, carpeta que no existe") << "mnuPrincipalGuardarcomo" << false << sinRuta << true;
        QTest::newRow("Guardar del menú, solo lectura") << "mnuPrincipalGuardar" << true << sinPermiso << false;
        QTest::newRow("Guardar como, solo lectura") << "mnuPrincipalGuardarcomo" << true << sinPermiso << true;
    }

    void escrituraFallidaGuardarNoLaDaPorGrabadaYGuardarComoSi()
    {
        QFETCH(QString, orden);
        QFETCH(bool, soloLectura);
        QFETCH(QString, error);
        QFETCH(bool, cuentaComoGrabado);
        const QString ruta = soloLectura ? Ruta("viga.vmf") : Ruta("no_existe/viga.vmf");
        if (soloLectura) {
            Crea(ruta, "antes");
            QVERIFY(QFile::setPermissions(ruta, QFileDevice::ReadOwner | QFileDevice::ReadGroup));
            // The administrator writes anywhere (under Wine too, whose Windows attribute is the
            // Unix file's write bit): the refusal can't be shown under that account.
            QFile prueba(ruta);
            if (prueba.open(QIODevice::Append)) QSKIP("el usuario puede escribir en un fichero de solo lectura");
        }
        Arranca();
        QVERIFY(Orden("mnuCalcularFlexion"));
        prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("50"));
        QVERIFY(Estado().F_MODIFICADO);
        Elige(ruta);
        QVERIFY(Ejecuta(orden));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(Mostrados(), QStringList{Exclamacion(error)});
        QCOMPARE(Contenido(ruta), soloLectura ? QByteArray("antes") : QByteArray("(no existe)"));
        QCOMPARE(Estado().F_GRABADO, cuentaComoGrabado);
        QCOMPARE(Estado().F_MODIFICADO, !cuentaComoGrabado);
        QCOMPARE(Estado().F_NUEVO, !cuentaComoGrabado);
        QVERIFY(Estado().F_ERROR);
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
    }

    // ---- The flags of each command.

    void nuevaPoneLasBanderasDeSuTabla_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("pantalla");
        QTest::addColumn<bool>("modificadoAntes");
        QTest::addColumn<bool>("modificadoDespues");
        QTest::newRow("rectangular, modificado") << "mnuCalcularFlexion"
                                                 << "FM_FLEXION" << true << true;
        QTest::newRow("rectangular, sin modificar") << "mnuCalcularFlexion"
                                                    << "FM_FLEXION" << false << false;
        QTest::newRow("T, modificado") << "mnuCalcularFlexionT"
                                       << "FM_FLEXIONT" << true << true;
        QTest::newRow("T, sin modificar") << "mnuCalcularFlexionT"
                                          << "FM_FLEXIONT" << false << false;
        QTest::newRow("confinamiento, modificado") << "mnuCalcularConfina"
                                                   << "FM_CONFINA" << true << true;
        // The confinement load sets it through its section, whatever it was.
        QTest::newRow("confinamiento, sin modificar") << "mnuCalcularConfina"
                                                      << "FM_CONFINA" << false << true;
    }

    void nuevaPoneLasBanderasDeSuTabla()
    {
        QFETCH(QString, orden);
        QFETCH(QString, pantalla);
        QFETCH(bool, modificadoAntes);
        QFETCH(bool, modificadoDespues);
        Arranca();
        General& g = Estado();
        g.F_ABIERTO = true;
        g.F_GRABADO = true;
        g.F_NUEVO = false;
        g.F_MODIFICADO = modificadoAntes;
        QVERIFY(Orden(qPrintable(orden)));
        QCOMPARE(NombreAbierta(), pantalla);
        QVERIFY(!g.F_ABIERTO);
        QVERIFY(!g.F_GRABADO);
        QVERIFY(g.F_NUEVO);
        QCOMPARE(g.F_MODIFICADO, modificadoDespues);
    }

    void abrirPoneLasBanderasDeSuTabla_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QByteArray>("contenido");
        QTest::addColumn<bool>("modificadoAntes");
        QTest::addColumn<bool>("modificadoDespues");
        QTest::newRow("vmf, modificado") << "a.vmf" << kRectangular << true << true;
        QTest::newRow("vmf, sin modificar") << "a.vmf" << kRectangular << false << false;
        QTest::newRow("vmf T, modificado") << "t.vmf" << kSeccionT << true << true;
        QTest::newRow("vmc, modificado") << "a.vmc" << kConfina << true << true;
        QTest::newRow("vmc, sin modificar") << "a.vmc" << kConfina << false << true;
    }

    void abrirPoneLasBanderasDeSuTabla()
    {
        QFETCH(QString, nombre);
        QFETCH(QByteArray, contenido);
        QFETCH(bool, modificadoAntes);
        QFETCH(bool, modificadoDespues);
        Arranca();
        General& g = Estado();
        g.F_ABIERTO = false;
        g.F_GRABADO = false;
        g.F_NUEVO = true;
        g.F_MODIFICADO = modificadoAntes;
        const QString ruta = carpeta_->filePath(nombre);
        Crea(ruta, contenido);
        AbreDesdeMenu(ruta);
        QVERIFY(Abierta() != nullptr);
        QVERIFY(g.F_ABIERTO);
        QVERIFY(g.F_GRABADO);
        QVERIFY(!g.F_NUEVO);
        QCOMPARE(g.F_MODIFICADO, modificadoDespues);
        // A project marked modified prompts on close though it came from a file.
        CierraPantalla();
        QCOMPARE(Mostrados(), modificadoDespues ? QStringList{Pregunta()} : QStringList());
    }

    void guardarYGuardarComoPonenLasBanderasDeSuTabla_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<bool>("deFichero");
        QTest::newRow("Guardar, pantalla nueva") << "mnuPrincipalGuardar" << false;
        QTest::newRow("Guardar, pantalla de fichero") << "mnuPrincipalGuardar" << true;
        QTest::newRow("Guardar como, pantalla nueva") << "mnuPrincipalGuardarcomo" << false;
        QTest::newRow("Guardar como, pantalla de fichero") << "mnuPrincipalGuardarcomo" << true;
    }

    void guardarYGuardarComoPonenLasBanderasDeSuTabla()
    {
        QFETCH(QString, orden);
        QFETCH(bool, deFichero);
        Arranca();
        if (deFichero) {
            const QString ruta = Ruta("pilar.vmc");
            Crea(ruta, kConfina);
            AbreDesdeMenu(ruta);
        } else {
            QVERIFY(Orden("mnuCalcularConfina"));
        }
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_CONFINA"));
        QVERIFY(Estado().F_MODIFICADO);
        Elige(Ruta("otro.vmc"));
        QVERIFY(Orden(qPrintable(orden)));
        // Only Save on a project read from a file writes over it without asking.
        const bool pregunta = !deFichero || orden == QLatin1String("mnuPrincipalGuardarcomo");
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{pregunta ? 1u : 0u});
        QCOMPARE(Contenido(Ruta(pregunta ? "otro.vmc" : "pilar.vmc")),
                 deFichero ? kConfina : QByteArray("1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n"));
        QCOMPARE(Estado().F_ABIERTO, deFichero);
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_NUEVO);
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(Mostrados().isEmpty());
    }

    // ---- A project typed, saved and opened again.

    void idaYVueltaDeUnProyectoTecleado_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("pantalla");
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QByteArray>("fichero");
        QTest::addColumn<char>("separador");
        const QByteArray rectangular =
            "1\r\n0.35\r\n0.7\r\n0.04\r\n12.5\r\n3.2\r\n27\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n20\r\n150\r\n";
        const QByteArray seccionT =
            "2\r\n0.8\r\n0.7\r\n0.3\r\n0.15\r\n0.04\r\n12.5\r\n3.2\r\n27\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0."
            "25\r\n20\r\n150\r\n";
        const QByteArray confina = "3\r\n0.5\r\n0.4\r\n27\r\n1.5\r\n1.15\r\n1.4\r\n800\r\n1.2\r\n";
        for (const char separador : {',', '.'}) {
            const char* ajuste = separador == ',' ? "coma" : "punto";
            QTest::addRow("rectangular, %s", ajuste) << "mnuCalcularFlexion"
                                                     << "FM_FLEXION"
                                                     << "viga.vmf" << rectangular << separador;
            QTest::addRow("T, %s", ajuste) << "mnuCalcularFlexionT"
                                           << "FM_FLEXIONT"
                                           << "viga_t.vmf" << seccionT << separador;
            QTest::addRow("confinamiento, %s", ajuste) << "mnuCalcularConfina"
                                                       << "FM_CONFINA"
                                                       << "pilar.vmc" << confina << separador;
        }
    }

    void idaYVueltaDeUnProyectoTecleado()
    {
        QFETCH(QString, orden);
        QFETCH(QString, pantalla);
        QFETCH(QString, nombre);
        QFETCH(QByteArray, fichero);
        QFETCH(char, separador);
        Arranca();
        doble_->regional.separador = separador;
        QVERIFY(Orden(qPrintable(orden)));
        QCOMPARE(NombreAbierta(), pantalla);
        TecleaProyecto(pantalla);
        QVERIFY(Mostrados().isEmpty());
        if (pantalla == QLatin1String("FM_CONFINA")) {
            QCOMPARE(Texto("CO_SECCION"), QStringLiteral("RECTANGULAR"));
            QCOMPARE(Estado().SECCION, Entero{3});
        }
        const QStringList textos = TextosDe(pantalla);

        const QString ruta = carpeta_->filePath(nombre);
        Elige(ruta);
        QVERIFY(Orden("mnuPrincipalGuardarcomo"));
        // The file uses the period and CR LF whatever the setting.
        QCOMPARE(Contenido(ruta), fichero);
        const std::vector<double> valores = ValoresDe(pantalla);
        CierraPantalla();
        QVERIFY(Abierta() == nullptr);

        // What the screen shows again comes from the file, not from what the state kept.
        const auto borraProyecto = [&pantalla] {
            if (pantalla == QLatin1String("FM_CONFINA"))
                ValoresNuevoConfinamiento(Estado());
            else
                ValoresFlexion(Estado());
        };
        borraProyecto();
        AbreDesdeMenu(ruta);
        QCOMPARE(NombreAbierta(), pantalla);
        QCOMPARE(TextosDe(pantalla), textos);
        QCOMPARE(ValoresDe(pantalla), valores);
        QCOMPARE(qobject_cast<QComboBox*>(C("CO_FCK"))->currentIndex(), 6);

        // Under the other setting the same file shows the other separator.
        CierraPantalla();
        QVERIFY(Abierta() == nullptr);
        doble_->regional.separador = separador == ',' ? '.' : ',';
        borraProyecto();
        AbreDesdeMenu(ruta);
        QCOMPARE(NombreAbierta(), pantalla);
        QStringList otros;
        for (const QString& texto : textos)
            otros << OtroSeparador(texto);
        QCOMPARE(TextosDe(pantalla), otros);
        QCOMPARE(ValoresDe(pantalla), valores);
        QCOMPARE(Contenido(ruta), fichero);
        // Only the confinement screens prompted, as their load marks them modified.
        const QStringList preguntas = pantalla == QLatin1String("FM_CONFINA") ? QStringList{Pregunta()} : QStringList();
        QCOMPARE(Mostrados(), preguntas);
    }

    // ---- Menu and toolbar.

    void menuYBarraSiguenALaPantallaTrasLasOrdenes_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("pantalla");
        QTest::addColumn<bool>("guardar");
        QTest::newRow("rectangular") << "mnuCalcularFlexion"
                                     << "FM_FLEXION" << true;
        QTest::newRow("T") << "mnuCalcularFlexionT"
                           << "FM_FLEXIONT" << true;
        QTest::newRow("confinamiento") << "mnuCalcularConfina"
                                       << "FM_CONFINA" << true;
        QTest::newRow("características") << "mnuCalcularCarac"
                                         << "FM_CARAC" << false;
    }

    void menuYBarraSiguenALaPantallaTrasLasOrdenes()
    {
        QFETCH(QString, orden);
        QFETCH(QString, pantalla);
        QFETCH(bool, guardar);
        Arranca();
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
        QVERIFY(Orden(qPrintable(orden)));
        QCOMPARE(NombreAbierta(), pantalla);
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({guardar, guardar, true, guardar, true}));
        if (guardar) {
            Elige(Ruta(pantalla == QLatin1String("FM_CONFINA") ? "p.vmc" : "v.vmf"));
            QVERIFY(Orden("mnuPrincipalGuardarcomo"));
            QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({true, true, true, true, true}));
        }
        CierraPantalla();
        QVERIFY(Abierta() == nullptr);
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
    }

    void caracteristicasTrasUnaPantallaDeCalculoDejaGuardarApagado()
    {
        Arranca();
        QVERIFY(Orden("mnuCalcularFlexion"));
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({true, true, true, true, true}));
        QVERIFY(Orden("mnuCalcularCarac"));
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, true, false, true}));
    }

    // GR typed in the coefficients of a flexure screen stays in the project state: the
    // characteristics screen, opened next from the menu, works its table out with it.
    void elGrDeLosCoeficientesLlegaALaTablaDeCaracteristicas()
    {
        Arranca();
        QVERIFY(Orden("mnuCalcularFlexion"));
        bool aceptado = false;
        doble_->ventanas.alMostrar = [&](QDialog& dialogo) {
            auto* campo = dialogo.findChild<QLineEdit*>(QStringLiteral("TX_GR"));
            if (!prueba::Enfoca(campo)) return;
            prueba::Teclea(campo, Sep("1"));
            QTest::keyClick(campo, Qt::Key_Tab);
            prueba::Pulsa(dialogo.findChild<QAbstractButton*>(QStringLiteral("CM_ACEPTAR")));
            aceptado = dialogo.result() == QDialog::Accepted;
        };
        prueba::Pulsa(Abierta()->Control(QStringLiteral("CM_GAMMA1")));
        doble_->ventanas.alMostrar = nullptr;
        QVERIFY(aceptado);
        QCOMPARE(Estado().GR, 1.0);
        doble_->mensajes.respuestas = {Respuesta::No};
        QVERIFY(Orden("mnuCalcularCarac"));
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
        auto* tabla = qobject_cast<RejillaResultados*>(Abierta()->Control(QStringLiteral("FG_EPSD")));
        QVERIFY(tabla != nullptr);
        // Type L, one layer: EPSD = 0.015 × 0.900 / 1, and FR = 230000 × EPSD.
        QStringList fila;
        for (int columna = 0; columna < 4; ++columna)
            fila << tabla->Texto(1, columna);
        QCOMPARE(fila, QStringList({"1", Sep("0,900"), Sep("13,50"), Sep("3105,0")}));
    }

    void guardarEnCaracteristicasNoHaceNada()
    {
        MdiPrincipal& w = Arranca();
        QVERIFY(Orden("mnuCalcularCarac"));
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
        const General antes = Estado();
        QVERIFY(!Orden("mnuPrincipalGuardar"));
        QVERIFY(!Orden("mnuPrincipalGuardarcomo"));
        QVERIFY(!Boton("Guardar"));
        // Nor do the commands themselves, reached by any other way.
        w.GuardarDesdeMenu();
        w.GuardarComo();
        w.TB_BARRA_ButtonClick(QStringLiteral("Guardar"));
        QVERIFY(doble_->ficheros.guardados.empty());
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
        QCOMPARE(Estado().F_GRABADO, antes.F_GRABADO);
        QCOMPARE(Estado().F_NUEVO, antes.F_NUEVO);
        QCOMPARE(Estado().F_MODIFICADO, antes.F_MODIFICADO);
        QVERIFY(!Estado().F_ERROR);
        QVERIFY(FicherosDeLaCarpeta().isEmpty());
    }

    // ---- About.

    void acercaDeEnConfinamientoCopiaElTextoTecleadoYAbreLaCaja_data()
    {
        QTest::addColumn<bool>("desdeMenu");
        QTest::newRow("menú") << true;
        QTest::newRow("barra") << false;
    }

    void acercaDeEnConfinamientoCopiaElTextoTecleadoYAbreLaCaja()
    {
        QFETCH(bool, desdeMenu);
        Arranca();
        QVERIFY(Orden("mnuCalcularConfina"));
        QVERIFY(prueba::Enfoca(C("TX_NCP")));
        prueba::Teclea(C("TX_NCP"), QStringLiteral("850"));
        QCOMPARE(Estado().NCP, 0.0);
        QVERIFY(desdeMenu ? Orden("mnuAyudaAcerca") : Boton("Info"));
        QCOMPARE(Estado().NCP, 850.0);
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_ACERCADE")});
        QVERIFY(Mostrados().isEmpty());
    }

    void acercaDeConAbcEnElDiametroNoAbreNiDiceNada()
    {
        Arranca();
        QVERIFY(Orden("mnuCalcularConfina"));
        QVERIFY(prueba::Enfoca(C("TX_DIAM")));
        prueba::Teclea(C("TX_DIAM"), QStringLiteral("abc"));
        QVERIFY(Orden("mnuAyudaAcerca"));
        QVERIFY(doble_->ventanas.mostradas.isEmpty());
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(Estado().DIAM, 0.5);
        QVERIFY(C("TX_DIAM")->hasFocus());
        QCOMPARE(Texto("TX_DIAM"), QStringLiteral("abc"));
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaOrdenesFichero prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_ordenes_fichero.moc"
