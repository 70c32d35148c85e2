// The whole program as a user goes through it, from the start to the printed report: the real
// main window with its splash, the menus opened with the mouse and the keyboard, a new
// rectangular section typed field by field, Calculate, the grid, the four diagrams, Save As, the
// end of the program, its start again with the saved project named on the command line, a cell
// chosen in the grid, the printer chosen in FM_CONFIG_IMPR, and Print on the real PDF printer.
// The PDF is read back with poppler's tools. The message boxes and the file dialogs are the
// doubles'; every number is typed and read with the machine's own decimal separator.
#include "comun/Pdf.h"
#include "comun/Usuario.h"
#include "diagrams/qt/Lienzo.h"
#include "platform/Plataforma.h"
#include "platform/dobles/PlataformaDoble.h"
#include "platform/qt/ImpresoraQt.h"
#include "screens/Entrada.h"
#include "screens/Formulario.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "shell/Arranque.h"
#include "shell/FmPresentacion.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <utility>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

// The machine's printers and the PDF printer in place of the doubles' recording printer; the
// other services stay as they are.
class ImpresorasDeLaMaquina {
public:
    ImpresorasDeLaMaquina()
    {
        Servicios enUso = Instala({});
        anteriores_ = enUso;
        enUso.impresoras = &impresoras_;
        Instala(enUso);
    }
    ~ImpresorasDeLaMaquina() { Instala(anteriores_); }
    ImpresorasDeLaMaquina(const ImpresorasDeLaMaquina&) = delete;
    ImpresorasDeLaMaquina& operator=(const ImpresorasDeLaMaquina&) = delete;

private:
    ImpresorasQt impresoras_;
    Servicios anteriores_;
};

// One field of the project as the user types it, with a comma for the decimal separator, and
// as the field writes it back once it is accepted.
struct Dato {
    const char* control;
    const char* tecleado;
    const char* mostrado;
};

// A rectangular section that differs from the start values in every field. Under a design
// moment of 340.5 mkN some cells of the grid reach it and others do not.
constexpr Dato kDatos[] = {
    {"TX_ANCHO", "0,35", "0,350"},  {"TX_CANTO", "0,65", "0,650"}, {"TX_RECUB", "0,045", "0,045"},
    {"TX_ASI", "12,5", "12,50"},    {"TX_ASS", "3,2", "3,20"},     {"TX_MCP", "25", "25,00"},
    {"TX_MD", "340,5", "340,50"},   {"CO_FCK", "35", "35"},        {"CO_FYK", "450", "450"},
    {"CO_ANCHOR", "0,25", "0,250"},
};
constexpr double kMomentoDeCalculo = 340.5;

// The safety coefficients, typed in FM_COEF.
constexpr Dato kCoeficientes[] = {
    {"TX_GC", "1,6", "1,60"},
    {"TX_GS", "1,2", "1,20"},
    {"TX_GR", "1,3", "1,30"},
};

// The data rows of the report, label and value, for the project above.
const std::pair<const char*, const char*> kDatosImpresos[] = {
    {"Ancho:", "0,350 m"},
    {"Canto:", "0,650 m"},
    {"Recubrimiento:", "0,045 m"},
    {"Armadura inferior:", "12,50 cm²"},
    {"Armadura superior:", "3,20 cm²"},
    {"f|ck", "35 N/mm²"},
    {"f|yk", "450 N/mm²"},
    {"Coef. seg. hormigón:", "1,60"},
    {"Coef. seg. acero:", "1,20"},
    {"Coef. seg. TEXALON®:", "1,30"},
    {"Ancho del refuerzo:", "0,250 m"},
    {"Momento actual:", "25,00 mkN"},
    {"Mom. flector solicitante:", "340,50 mkN"},
};

// The cell chosen for the report: TEXALON H with two layers, which reaches the design moment.
constexpr int kCapasElegidas = 2;
constexpr int kTipoElegido = 2;

const QString kTituloFlexion = QStringLiteral("Cálculo del refuerzo a flexión en secciones rectangulares");

// ---- The PDF, read by poppler's tools.

// Words of one printed line start at the same height.
constexpr double kMismaLinea = 0.05;

using prueba::PalabraPdf;

// The lines of a page: the words that start at one height, left to right, joined by a blank.
QStringList Lineas(const std::vector<PalabraPdf>& palabras, int pagina)
{
    std::vector<PalabraPdf> deLaPagina;
    std::copy_if(palabras.begin(), palabras.end(), std::back_inserter(deLaPagina),
                 [pagina](const PalabraPdf& p) { return p.pagina == pagina; });
    std::sort(deLaPagina.begin(), deLaPagina.end(),
              [](const PalabraPdf& a, const PalabraPdf& b) { return a.y < b.y || (a.y == b.y && a.x < b.x); });
    QStringList lineas;
    std::vector<PalabraPdf> linea;
    const auto cierra = [&] {
        std::sort(linea.begin(), linea.end(), [](const PalabraPdf& a, const PalabraPdf& b) { return a.x < b.x; });
        QStringList textos;
        for (const PalabraPdf& p : linea)
            textos << p.texto;
        if (!textos.isEmpty()) lineas << textos.join(QLatin1Char(' '));
        linea.clear();
    };
    for (const PalabraPdf& p : deLaPagina) {
        if (!linea.empty() && std::abs(p.y - linea.front().y) > kMismaLinea) cierra();
        linea.push_back(p);
    }
    cierra();
    return lineas;
}

// Whether one of the lines holds the text as whole words.
bool EnLineas(const QStringList& lineas, const QString& texto)
{
    const QRegularExpression palabras(QStringLiteral("(^| )%1( |$)").arg(QRegularExpression::escape(texto)));
    return std::any_of(lineas.begin(), lineas.end(),
                       [&](const QString& linea) { return palabras.match(linea).hasMatch(); });
}

// Whether one of the lines holds the label with the value right after it, word for word. A
// label "f|ck" is a letter with a subscript: the reader may join the subscript to the letter,
// and the colon, placed where the widest subscript ends, may stand apart.
bool FilaEnLineas(const QStringList& lineas, const QString& etiqueta, const QString& valor)
{
    const QStringList partes = etiqueta.split(QLatin1Char('|'));
    const QString rotulo = partes.size() == 2
                               ? QStringLiteral("%1 ?%2(?: ?:)")
                                     .arg(QRegularExpression::escape(partes[0]), QRegularExpression::escape(partes[1]))
                               : QRegularExpression::escape(etiqueta);
    const QRegularExpression fila(QStringLiteral("(^| )%1 %2( |$)").arg(rotulo, QRegularExpression::escape(valor)));
    return std::any_of(lineas.begin(), lineas.end(),
                       [&](const QString& linea) { return fila.match(linea).hasMatch(); });
}

}  // namespace

class PruebaPrograma : public QObject {
    Q_OBJECT

    std::unique_ptr<PlataformaDoble> doble_;
    std::unique_ptr<ImpresorasDeLaMaquina> impresoras_;
    // The program's window: it closes only when the test ends the program.
    MdiPrincipal* ventana_ = nullptr;
    std::unique_ptr<QTemporaryDir> carpeta_;
    char separador_ = ',';

    // ---- The program.

    // A fresh process: its state, the platform of the tests with the real printers, and the
    // program started with these arguments.
    MdiPrincipal& Arranca(const QStringList& argumentos)
    {
        Estado() = General{};
        EstadoDibujo() = GeneralDibujo{};
        doble_ = std::make_unique<PlataformaDoble>();
        doble_->monitor.tamano = {1024.0, 768.0};
        impresoras_ = std::make_unique<ImpresorasDeLaMaquina>();
        separador_ = ServicioRegional().SeparadorDecimal();
        ventana_ = texalon::Arranca(argumentos);
        return *ventana_;
    }

    // The end of the process: the window goes while the doubles still answer for the platform.
    void Termina()
    {
        if (ventana_) {
            doble_->mensajes.respuestas.clear();
            ventana_->CierraPantallaAbierta();
            delete ventana_;
            ventana_ = nullptr;
        }
        impresoras_.reset();
        doble_.reset();
    }

    // A number of the test data, written with a comma, as the machine in use writes it.
    QString Sep(const QString& texto) const
    {
        QString s = texto;
        if (separador_ == '.') s.replace(QLatin1Char(','), QLatin1Char('.'));
        return s;
    }
    QString Sep(const char* texto) const { return Sep(QString::fromUtf8(texto)); }

    QStringList Mensajes() const
    {
        QStringList textos;
        for (const MensajeMostrado& m : doble_->mensajes.mostrados)
            textos << m.texto;
        for (const MensajeMostrado& m : doble_->proceso.erroresFatales)
            textos << m.texto;
        return textos;
    }

    Formulario* Pantalla() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return ventana_->PantallaAbierta();
    }
    QWidget* C(const char* nombre) const { return Pantalla()->Control(QString::fromLatin1(nombre)); }
    QString Texto(const char* nombre) const { return TextoDe(C(nombre)); }
    RejillaResultados* Rejilla() const { return qobject_cast<RejillaResultados*>(C("FG_FLEXION")); }
    Lienzo* Dibujo() const { return qobject_cast<Lienzo*>(C("PIC_FLEXION")); }
    QString Tipo() const { return qobject_cast<QLabel*>(C("LB_TIPO"))->text(); }

    // The name of the control that has the focus; a list's edit box stands for its list.
    static QString Foco()
    {
        QWidget* foco = QApplication::focusWidget();
        if (foco != nullptr && foco->objectName().isEmpty() && qobject_cast<QComboBox*>(foco->parentWidget()))
            foco = foco->parentWidget();
        return foco == nullptr ? QString() : foco->objectName();
    }

    // A menu or a dialog has gone: the window manager gives the main window the keyboard back,
    // and the focus comes back to the control that had it. (The offscreen platform leaves the
    // last window shown active, a menu too, until another one is activated.)
    void VuelveALaVentana()
    {
        ventana_->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget*>(ventana_));
    }

    // ---- The menus.

    QMenu* Menu(const char* nombre) const
    {
        return ventana_->menuBar()->findChild<QMenu*>(QString::fromLatin1(nombre));
    }

    // A click on the menu's title in the menu bar, then on its entry, which is available.
    void EligeConRaton(const char* menu, const char* entrada)
    {
        QAction* accion = ventana_->ElementoMenu(QString::fromLatin1(entrada));
        QVERIFY(accion != nullptr);
        QVERIFY(accion->isEnabled());
        QVERIFY(prueba::EligeDelMenu(ventana_->menuBar(), Menu(menu), accion));
        VuelveALaVentana();
    }

    // Alt and the menu's letter, then the entry's letter.
    void EligeConTeclado(const char* menu, Qt::Key letraMenu, Qt::Key letraEntrada)
    {
        QWidget* foco = QApplication::focusWidget();
        QTest::keyClick(foco != nullptr ? foco : ventana_, letraMenu, Qt::AltModifier);
        QMenu* desplegable = Menu(menu);
        QVERIFY(desplegable != nullptr);
        QTRY_VERIFY(desplegable->isVisible());
        QTest::keyClick(desplegable, letraEntrada);
        QTRY_VERIFY(!desplegable->isVisible());
        VuelveALaVentana();
    }

    // ---- The steps.

    // The program starts with its splash over the main window; Calcular → Refuerzo a flexión,
    // sección rectangular, with the mouse, opens a new screen with the focus in its first field.
    void AbreFlexionNueva()
    {
        MdiPrincipal& w = Arranca({QStringLiteral("texalon")});
        QVERIFY(w.Cargada());
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QCOMPARE(w.windowTitle(), QStringLiteral("VELMORA - Programa para el cálculo del refuerzo TEXALON®"));
        QPointer<FmPresentacion> presentacion = w.Presentacion();
        QVERIFY(presentacion != nullptr);
        QVERIFY(presentacion->isVisible());
        QVERIFY(w.PantallaAbierta() == nullptr);
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalGuardarcomo"))->isEnabled());
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled());

        EligeConRaton("mnuCalcular", "mnuCalcularFlexion");
        if (QTest::currentTestFailed()) return;
        // Opening the menu closed the splash.
        QTRY_VERIFY(presentacion.isNull());
        QVERIFY(Pantalla() != nullptr);
        QCOMPARE(Pantalla()->objectName(), QStringLiteral("FM_FLEXION"));
        QCOMPARE(Pantalla()->windowTitle(), kTituloFlexion);
        QVERIFY(w.ElementoMenu(QStringLiteral("mnuPrincipalGuardarcomo"))->isEnabled());
        // The start values, in their formats.
        QCOMPARE(Texto("TX_ANCHO"), Sep("0,400"));
        QCOMPARE(Texto("TX_MD"), Sep("0,00"));
        QCOMPARE(Texto("CO_ANCHOR"), Sep("0,125"));
        QVERIFY(!C("CM_CAPAS")->isEnabled());
        QTRY_COMPARE(Foco(), QStringLiteral("TX_ANCHO"));
        QVERIFY(Mensajes().isEmpty());
    }

    // The coefficients' button, pressed with Space: FM_COEF comes up with the focus in its first
    // field; the three coefficients typed with Tab between them, then a click on Aceptar; back on
    // the screen, the focus where it was.
    void TecleaCoeficientes()
    {
        QStringList vistos;
        bool aceptado = false;
        doble_->ventanas.alMostrar = [&](QDialog& dialogo) {
            vistos << dialogo.windowTitle();
            dialogo.activateWindow();
            if (!QTest::qWaitForWindowActive(&dialogo)) qWarning("FM_COEF no se ha activado");
            QWidget* primero = dialogo.findChild<QLineEdit*>(QStringLiteral("TX_GC"));
            if (!QTest::qWaitFor([primero] { return primero->hasFocus(); }, 1000)) return;
            for (const Dato& dato : kCoeficientes) {
                auto* campo = dialogo.findChild<QLineEdit*>(QString::fromLatin1(dato.control));
                if (QApplication::focusWidget() != campo) return;
                prueba::Teclea(campo, Sep(dato.tecleado));
                QTest::keyClick(campo, Qt::Key_Tab);
                vistos << campo->text();
            }
            // The focus reached Aceptar by Tab from the last field.
            vistos << QApplication::focusWidget()->objectName();
            prueba::Pulsa(dialogo.findChild<QAbstractButton*>(QStringLiteral("CM_ACEPTAR")));
            aceptado = !dialogo.isVisible() && dialogo.result() == QDialog::Accepted;
        };
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        doble_->ventanas.alMostrar = nullptr;
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
        QStringList esperados{QStringLiteral("Coeficientes de seguridad de los materiales")};
        for (const Dato& dato : kCoeficientes)
            esperados << Sep(dato.mostrado);
        esperados << QStringLiteral("CM_ACEPTAR");
        QCOMPARE(vistos, esperados);
        QVERIFY(aceptado);
        VuelveALaVentana();
    }

    // The project typed from the first field to the last, in the order of Tab: each field's text
    // typed over the start value and Tab, after which the field shows the value in its format;
    // the first coefficients' button opens FM_COEF, the second is passed by.
    void TecleaProyecto()
    {
        const char* orden[] = {"TX_ANCHO", "TX_CANTO",  "TX_RECUB", "TX_ASI",    "TX_ASS",    "TX_MCP",     "TX_MD",
                               "CO_FCK",   "CM_GAMMA1", "CO_FYK",   "CM_GAMMA2", "CO_ANCHOR", "CM_CALCULAR"};
        for (std::size_t i = 0; i + 1 < std::size(orden); ++i) {
            const QString control = QString::fromLatin1(orden[i]);
            QCOMPARE(Foco(), control);
            const auto dato = std::find_if(std::begin(kDatos), std::end(kDatos),
                                           [&](const Dato& d) { return control == QLatin1String(d.control); });
            if (dato != std::end(kDatos)) {
                prueba::Teclea(QApplication::focusWidget(), Sep(dato->tecleado));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(Texto(dato->control), Sep(dato->mostrado));
            } else {
                if (control == QStringLiteral("CM_GAMMA1")) TecleaCoeficientes();
                if (QTest::currentTestFailed()) return;
                QCOMPARE(Foco(), control);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(Foco(), QString::fromLatin1(orden[i + 1]));
        }
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('\n'))));
    }

    // The result fields of the cell on show, by control.
    std::map<QString, QString> Resultados() const
    {
        std::map<QString, QString> textos;
        for (const char* nombre : {"TX_MUSR", "TX_EPS0", "TX_MRB", "TX_MLIMCR", "TX_PIVOTE", "TX_FN", "TX_EPSC",
                                   "TX_EPSSI", "TX_EPSSS", "TX_EPSR", "TX_MU"})
            textos[QString::fromLatin1(nombre)] = Texto(nombre);
        return textos;
    }

    // The grid after a Calculate: every cell of every type and number of layers written, yellow
    // where the design moment is reached and white where it is not, both kinds present; the
    // results of cell (1, 1) on show.
    void CompruebaRejilla()
    {
        RejillaResultados* rejilla = Rejilla();
        QVERIFY(rejilla->EstaActiva());
        QCOMPARE(rejilla->Texto(0, 1), QStringLiteral("TEXALON L"));
        QCOMPARE(rejilla->Texto(0, 3), QStringLiteral("TEXALON X"));
        int alcanzan = 0;
        int noAlcanzan = 0;
        for (int capas = 1; capas <= 5; ++capas) {
            QCOMPARE(rejilla->Texto(capas, 0), QString::number(capas));
            for (int tipo = 1; tipo <= 3; ++tipo) {
                const QString texto = rejilla->Texto(capas, tipo);
                const QString celda = QStringLiteral("celda (%1, %2): %3").arg(capas).arg(tipo).arg(texto);
                QVERIFY2(!texto.isEmpty(), qPrintable(celda));
                if (texto == QStringLiteral("---")) {
                    QCOMPARE(rejilla->Color(capas, tipo), RejillaResultados::kBlanco);
                    continue;
                }
                bool numero = false;
                const double momento = QString(texto).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&numero);
                QVERIFY2(numero, qPrintable(celda));
                QVERIFY2(texto.contains(QLatin1Char(separador_)), qPrintable(celda));
                const bool alcanza = momento >= kMomentoDeCalculo;
                QCOMPARE(rejilla->Color(capas, tipo),
                         alcanza ? RejillaResultados::kAmarillo : RejillaResultados::kBlanco);
                ++(alcanza ? alcanzan : noAlcanzan);
            }
        }
        QVERIFY(alcanzan > 0);
        QVERIFY(noAlcanzan > 0);
        QCOMPARE(rejilla->Fila(), 1);
        QCOMPARE(rejilla->Columna(), 1);
        QCOMPARE(Tipo(), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
        QCOMPARE(Texto("TX_MU"), rejilla->Texto(1, 1));
        for (const auto& [control, texto] : Resultados())
            QVERIFY2(!texto.isEmpty() && texto != QStringLiteral("---"), qPrintable(control));
        // The verdict is not over the chart: some sheet does what is needed.
        QVERIFY(!C("LB_INFO")->isVisible());
    }

    // The captions of the texts on show in the picture.
    QStringList TextosDelDibujo() const
    {
        QStringList textos;
        for (const ElementoPantalla& e : Dibujo()->Escena().Elementos(ClasePantalla::Tit))
            if (e.visible) textos << e.texto;
        return textos;
    }

    int LineasDelDibujo() const
    {
        const auto lineas = Dibujo()->Escena().Elementos(ClasePantalla::Linea);
        return static_cast<int>(std::count_if(lineas.begin(), lineas.end(), [](const auto& e) { return e.visible; }));
    }

    // How much of the picture, as painted, is not the white of its background.
    int PixelesPintados() const
    {
        const QImage imagen = Dibujo()->viewport()->grab().toImage();
        int pintados = 0;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                if (imagen.pixelColor(x, y) != QColor(Qt::white)) ++pintados;
        return pintados;
    }

    // A diagram button, clicked: the picture holds its diagram, with its own texts.
    void CompruebaDiagrama(const char* boton, const QStringList& textos)
    {
        QVERIFY2(C(boton)->isEnabled(), boton);
        prueba::Pulsa(C(boton));
        const QStringList enElDibujo = TextosDelDibujo();
        for (const QString& texto : textos)
            QVERIFY2(enElDibujo.contains(texto),
                     qPrintable(QStringLiteral("%1: «%2» no está en %3")
                                    .arg(QString::fromLatin1(boton), texto, enElDibujo.join(QStringLiteral(" | ")))));
        QVERIFY2(LineasDelDibujo() > 4, boton);
        QVERIFY2(PixelesPintados() > 500, boton);
    }

    void CompruebaDiagramas()
    {
        // Calculate left the chart of the moment by number of layers.
        QVERIFY(TextosDelDibujo().contains(QStringLiteral("DIAGRAMA DE MOMENTOS ULTIMOS")));
        QVERIFY(TextosDelDibujo().contains(QStringLiteral("Nº capas")));
        const QString pivote = Texto("TX_EPSC") + QStringLiteral("‰");
        CompruebaDiagrama("CM_ARMADURA", {QStringLiteral("DIAGRAMA DE MOMENTOS ULTIMOS"), QStringLiteral("Ar (mm²)"),
                                          QStringLiteral("Mu (mkN)")});
        CompruebaDiagrama("CM_DEFORMACIONES", {QStringLiteral("DIAGRAMA DE PIVOTES"), pivote});
        // The section to scale, with the typed depth, width and sheet width.
        CompruebaDiagrama("CM_SECCION", {QStringLiteral("SECCION"), Sep("0,65"), Sep("0,35"), Sep("0,250")});
        CompruebaDiagrama("CM_CAPAS", {QStringLiteral("DIAGRAMA DE MOMENTOS ULTIMOS"), QStringLiteral("Nº capas")});
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('\n'))));
    }

    // Principal → Guardar datos como..., answered with a file in the temporary folder.
    void GuardaComo(const QString& fichero)
    {
        doble_->ficheros.respuestas.push_back(FicheroElegido{fichero, QFileInfo(fichero).absolutePath()});
        EligeConRaton("mnuPrincipal", "mnuPrincipalGuardarcomo");
        if (QTest::currentTestFailed()) return;
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].filtro, QStringLiteral("Archivos TEXALON - Flexión|*.VMF"));
        QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
        QVERIFY(doble_->ficheros.respuestas.empty());
        const QFileInfo escrito(fichero);
        QVERIFY(escrito.exists());
        QVERIFY(escrito.size() > 0);
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('\n'))));
    }

    // Ctrl+F4 on the screen: a project just saved goes without a question.
    void CierraLaPantalla()
    {
        QMdiSubWindow* ventana = ventana_->Area()->activeSubWindow();
        QVERIFY(ventana != nullptr);
        QPointer<QWidget> pantalla = Pantalla();
        QVERIFY(QApplication::focusWidget() != nullptr);
        QVERIFY(pantalla->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4, Qt::ControlModifier);
        QTRY_VERIFY(pantalla.isNull());
        QVERIFY(ventana_->PantallaAbierta() == nullptr);
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('\n'))));
        QVERIFY(!ventana_->ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled());
    }

    // Principal → Salir with its key, F7: the program ends, and its window with it.
    void Sale()
    {
        QCOMPARE(QApplication::activeWindow(), static_cast<QWidget*>(ventana_));
        QWidget* foco = QApplication::focusWidget();
        QTest::keyClick(foco != nullptr ? foco : ventana_, Qt::Key_F7);
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{0});
        Termina();
    }

    // The program started with the file on its command line: the screen of the file's kind, with
    // every value as it was typed, and no question or message.
    void AbreElFicheroAlArrancar(const QString& fichero)
    {
        MdiPrincipal& w = Arranca({QStringLiteral("texalon"), fichero});
        QVERIFY(QTest::qWaitForWindowExposed(&w));
        QTRY_VERIFY(w.Presentacion() == nullptr);
        QVERIFY(Pantalla() != nullptr);
        QCOMPARE(Pantalla()->objectName(), QStringLiteral("FM_FLEXION"));
        QCOMPARE(Pantalla()->windowTitle(), kTituloFlexion);
        for (const Dato& dato : kDatos)
            QCOMPARE(Texto(dato.control), Sep(dato.mostrado));
        // The coefficients came back too: FM_COEF shows them.
        QStringList coeficientes;
        doble_->ventanas.alMostrar = [&](QDialog& dialogo) {
            for (const Dato& dato : kCoeficientes)
                coeficientes << dialogo.findChild<QLineEdit*>(QString::fromLatin1(dato.control))->text();
            // Escape leaves it as it was.
            QTest::keyClick(&dialogo, Qt::Key_Escape);
        };
        prueba::Pulsa(C("CM_GAMMA1"));
        doble_->ventanas.alMostrar = nullptr;
        VuelveALaVentana();
        QStringList esperados;
        for (const Dato& dato : kCoeficientes)
            esperados << Sep(dato.mostrado);
        QCOMPARE(coeficientes, esperados);
        // Nothing calculated yet: no results, the grid not in use.
        QVERIFY(!Rejilla()->EstaActiva());
        QVERIFY(Texto("TX_MU").isEmpty());
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('\n'))));
    }

    // Calculate, then the cell chosen with the arrow keys from the cell that Calculate shows.
    void CalculaYEligeCelda()
    {
        prueba::Pulsa(C("CM_CALCULAR"));
        CompruebaRejilla();
        if (QTest::currentTestFailed()) return;
        RejillaResultados* rejilla = Rejilla();
        QVERIFY(prueba::Enfoca(rejilla));
        for (int capas = 1; capas < kCapasElegidas; ++capas)
            QTest::keyClick(rejilla, Qt::Key_Down);
        for (int tipo = 1; tipo < kTipoElegido; ++tipo)
            QTest::keyClick(rejilla, Qt::Key_Right);
        QCOMPARE(rejilla->Fila(), kCapasElegidas);
        QCOMPARE(rejilla->Columna(), kTipoElegido);
        QCOMPARE(Tipo(), QStringLiteral("Refuerzo tipo TEXALON H - Núm. capas: %1").arg(kCapasElegidas));
        QCOMPARE(Texto("TX_MU"), rejilla->Texto(kCapasElegidas, kTipoElegido));
        QCOMPARE(rejilla->Color(kCapasElegidas, kTipoElegido), RejillaResultados::kAmarillo);
    }

    // Principal → Configurar impresora: the last entry of the list, "Imprimir a PDF", chosen
    // with the keyboard, then Seleccionar and Salir with the mouse.
    void EligeImpresoraPdf()
    {
        QStringList entradas;
        QString elegida;
        bool cerrado = false;
        doble_->ventanas.alMostrar = [&](QDialog& dialogo) {
            auto* lista = dialogo.findChild<QComboBox*>(QStringLiteral("CO_IMPRESORA"));
            for (int i = 0; i < lista->count(); ++i)
                entradas << lista->itemText(i);
            dialogo.activateWindow();
            if (!QTest::qWaitForWindowActive(&dialogo) || !prueba::Enfoca(lista)) return;
            QTest::keyClick(lista, Qt::Key_End);
            elegida = lista->currentText();
            prueba::Pulsa(dialogo.findChild<QAbstractButton*>(QStringLiteral("CM_SELECCIONAR")));
            prueba::Pulsa(dialogo.findChild<QAbstractButton*>(QStringLiteral("CM_SALIR")));
            cerrado = !dialogo.isVisible();
        };
        EligeConRaton("mnuPrincipal", "mnuPrincipalConfigurar");
        doble_->ventanas.alMostrar = nullptr;
        if (QTest::currentTestFailed()) return;
        VuelveALaVentana();
        QCOMPARE(doble_->ventanas.mostradas.last(), QStringLiteral("FM_CONFIG_IMPR"));
        QVERIFY(!entradas.isEmpty());
        QCOMPARE(entradas.last(), QString::fromUtf8(kImprimirAPdf));
        QCOMPARE(elegida, QString::fromUtf8(kImprimirAPdf));
        QVERIFY(cerrado);
        QCOMPARE(ServicioImpresoras().Actual(), std::string(kImprimirAPdf));
    }

    // Principal → Imprimir with the keys, Alt+P and I: the PDF printer asks where to save the
    // report, offering its name in the project's folder.
    void ImprimeEnPdf(const QString& pdf)
    {
        doble_->ficheros.respuestas.push_back(FicheroElegido{pdf, QFileInfo(pdf).absolutePath()});
        EligeConTeclado("mnuPrincipal", Qt::Key_P, Qt::Key_I);
        if (QTest::currentTestFailed()) return;
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('\n'))));
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].filtro, kFiltroPdf);
        QCOMPARE(doble_->ficheros.guardados[0].nombre,
                 QDir::toNativeSeparators(QDir(carpeta_->path()).filePath(QStringLiteral("informe_flexion.pdf"))));
        QVERIFY(doble_->ficheros.respuestas.empty());
        QVERIFY(QFileInfo(pdf).size() > 0);
    }

    // The report, as the PDF reader shows it: two pages, the typed data as the report writes
    // them, and the results of the cell exactly as the screen showed them.
    void CompruebaInforme(const QString& pdf, const QString& tipo, const std::map<QString, QString>& resultados)
    {
        QCOMPARE(prueba::PaginasPdf(pdf), 2);
        const std::vector<PalabraPdf> palabras = prueba::PalabrasPdf(pdf);
        QVERIFY2(!palabras.empty(), qPrintable(pdf));
        const QStringList pagina1 = Lineas(palabras, 1);
        const QStringList pagina2 = Lineas(palabras, 2);
        const QString todo = pagina1.join(QLatin1Char('\n'));
        QVERIFY2(pagina1.contains(QStringLiteral("REFUERZO A FLEXION EN SECCIONES RECTANGULARES")), qPrintable(todo));
        QVERIFY(pagina2.contains(QStringLiteral("REFUERZO A FLEXION EN SECCIONES RECTANGULARES")));
        QVERIFY(EnLineas(pagina1, QStringLiteral("Página 1")));
        QVERIFY(EnLineas(pagina2, QStringLiteral("Página 2")));

        for (const auto& [etiquetaUtf8, valor] : kDatosImpresos) {
            const QString etiqueta = QString::fromUtf8(etiquetaUtf8);
            QVERIFY2(FilaEnLineas(pagina1, etiqueta, Sep(valor)),
                     qPrintable(QStringLiteral("«%1 %2» no está en la página 1:\n%3").arg(etiqueta, Sep(valor), todo)));
        }

        QVERIFY2(EnLineas(pagina1, tipo),
                 qPrintable(QStringLiteral("«%1» no está en la página 1:\n%2").arg(tipo, todo)));
        const auto r = [&resultados](const char* control) { return resultados.at(QString::fromLatin1(control)); };
        const std::vector<std::pair<QString, QString>> filas = {
            {QStringLiteral("Momento último s/r:"), r("TX_MUSR") + QStringLiteral(" mkN")},
            {QStringLiteral("Predeformación inicial:"), r("TX_EPS0") + QStringLiteral(" ‰")},
            {QStringLiteral("M|RB"), r("TX_MRB") + QStringLiteral(" mkN")},
            {QStringLiteral("M|lím"), r("TX_MLIMCR") + QStringLiteral(" mkN")},
            {QStringLiteral("Pivote:"), r("TX_PIVOTE")},
            {QStringLiteral("Prof. fibra neutra:"), r("TX_FN") + QStringLiteral(" m")},
            {QStringLiteral("Def. hormigón:"), r("TX_EPSC") + QStringLiteral("‰")},
            {QStringLiteral("Def. armadura inferior:"), r("TX_EPSSI") + QStringLiteral("‰")},
            {QStringLiteral("Def. armadura superior:"), r("TX_EPSSS") + QStringLiteral("‰")},
            {QStringLiteral("Def. refuerzo:"), r("TX_EPSR") + QStringLiteral("‰")},
            {QStringLiteral("Momento último c/r:"), r("TX_MU") + QStringLiteral(" mkN")},
        };
        for (const auto& [etiqueta, valor] : filas)
            QVERIFY2(FilaEnLineas(pagina1, etiqueta, valor),
                     qPrintable(QStringLiteral("«%1 %2» no está en la página 1:\n%3").arg(etiqueta, valor, todo)));
        // The diagrams: the strain plane and the section on page 1, both moment charts on page 2.
        QVERIFY(pagina1.join(QLatin1Char(' ')).contains(QStringLiteral("DIAGRAMA DE PIVOTES")));
        QVERIFY(pagina1.join(QLatin1Char(' ')).contains(QStringLiteral("SECCION")));
        QCOMPARE(pagina2.join(QLatin1Char(' ')).count(QStringLiteral("DIAGRAMA DE MOMENTOS ULTIMOS")), 2);
    }

    // The user's steps in turn, each one while none before has failed.
    template <class... Pasos>
    static void EnOrden(Pasos&&... pasos)
    {
        static_cast<void>((... && (pasos(), !QTest::currentTestFailed())));
    }

private slots:
    void initTestCase()
    {
        for (const char* herramienta : {"pdftotext", "pdfinfo"})
            QVERIFY2(prueba::HayPoppler(QString::fromLatin1(herramienta)), herramienta);
    }

    void cleanup()
    {
        Termina();
        carpeta_.reset();
    }

    void unProyectoDeFlexionDeLaPantallaAlInformeEnPdf()
    {
        carpeta_ = std::make_unique<QTemporaryDir>();
        QVERIFY(carpeta_->isValid());
        const QString proyecto = carpeta_->filePath(QStringLiteral("viga.vmf"));
        const QString pdf = carpeta_->filePath(QStringLiteral("viga.pdf"));
        QElapsedTimer reloj;
        reloj.start();

        // A new project, typed, calculated and drawn; saved, closed, and the program ended; the
        // program again, with the project on its command line.
        EnOrden([this] { AbreFlexionNueva(); },
                [this] {
                    qInfo("separador decimal de la máquina: «%c»", separador_);
                    TecleaProyecto();
                },
                [this] {
                    prueba::Pulsa(C("CM_CALCULAR"));
                    CompruebaRejilla();
                },
                [this] { CompruebaDiagramas(); }, [&] { GuardaComo(proyecto); }, [this] { CierraLaPantalla(); },
                [this] { Sale(); }, [&] { AbreElFicheroAlArrancar(proyecto); }, [this] { CalculaYEligeCelda(); });
        if (QTest::currentTestFailed()) return;
        const QString tipo = Tipo();
        const std::map<QString, QString> resultados = Resultados();
        EligeImpresoraPdf();
        if (QTest::currentTestFailed()) return;
        ImprimeEnPdf(pdf);
        if (QTest::currentTestFailed()) return;
        // Print leaves the screen as it was.
        QCOMPARE(Tipo(), tipo);
        QCOMPARE(Resultados(), resultados);

        CompruebaInforme(pdf, tipo, resultados);
        qInfo("recorrido completo en %lld ms", static_cast<long long>(reloj.elapsed()));
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaPrograma prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_programa.moc"
