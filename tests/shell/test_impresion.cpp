// Print and the choice of printer, end to end: the real screens of the main window, their
// reports on the recording printer, FM_CONFIG_IMPR over the doubles' printers, and the user's
// keys and clicks in between.
#include "comun/Principal.h"
#include "comun/Usuario.h"
#include "comun/Pantallas.h"
#include "diagrams/Lista.h"
#include "diagrams/qt/Lienzo.h"
#include "platform/Dialogos.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/Entrada.h"
#include "screens/FmCarac.h"
#include "screens/Formulario.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "shell/MdiPrincipal.h"
#include "state/Formato.h"
#include "state/General.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QToolBar>
#include <QTest>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

const QString kSinCalcular = QStringLiteral(
    "No se han calculado los resultados o los datos han sido modificados y no se ha procedido a realizar un nuevo "
    "cálculo.");
const QString kCeldaRechazada = QStringLiteral(
    "El tipo de refuerzo y número de capas elegidas no cumple con los requisitos impuestos por el fabricante.");
const std::string kNoEsNecesario = " NO ES NECESARIO REFORZAR LA SECCION ";

// A message as the doubles recorded it, text and style together.
QString Mensaje(const QString& texto, Estilo estilo)
{
    return QStringLiteral("%1 [%2]").arg(texto).arg(static_cast<int>(estilo));
}

QString Informacion(const QString& texto) { return Mensaje(texto, Estilo::Informacion); }

// The recording printer seen through a watcher that is told of every operation before the
// printer is: what the user sees on the screen while the report runs.
class ImpresoraVigilada final : public Impresora {
public:
    ImpresoraVigilada(ImpresoraDoble& impresora, std::function<void()> vigia)
        : impresora_(impresora), vigia_(std::move(vigia))
    {
    }

    void PaperSize(int codigo) override
    {
        Mira();
        impresora_.PaperSize(codigo);
    }
    void ScaleMode(int modo) override
    {
        Mira();
        impresora_.ScaleMode(modo);
    }
    double ScaleWidth() const override
    {
        Mira();
        return impresora_.ScaleWidth();
    }
    double ScaleHeight() const override
    {
        Mira();
        return impresora_.ScaleHeight();
    }
    void NombreDocumento(const std::string& nombre) override
    {
        Mira();
        impresora_.NombreDocumento(nombre);
    }
    void DrawStyle(int estilo) override
    {
        Mira();
        impresora_.DrawStyle(estilo);
    }
    void DrawWidth(int ancho) override
    {
        Mira();
        impresora_.DrawWidth(ancho);
    }
    void Line(double x1, double y1, double x2, double y2, Color color) override
    {
        Mira();
        impresora_.Line(x1, y1, x2, y2, color);
    }
    void Box(double x1, double y1, double x2, double y2, Color color) override
    {
        Mira();
        impresora_.Box(x1, y1, x2, y2, color);
    }
    void Circle(double x, double y, double radio, Color color) override
    {
        Mira();
        impresora_.Circle(x, y, radio, color);
    }
    void Arc(double x, double y, double radio, Color color, double inicio, double fin) override
    {
        Mira();
        impresora_.Arc(x, y, radio, color, inicio, fin);
    }
    void FontName(const std::string& nombre) override
    {
        Mira();
        impresora_.FontName(nombre);
    }
    void FontSize(double puntos) override
    {
        Mira();
        impresora_.FontSize(puntos);
    }
    void FontBold(bool negrita) override
    {
        Mira();
        impresora_.FontBold(negrita);
    }
    void ForeColor(Color color) override
    {
        Mira();
        impresora_.ForeColor(color);
    }
    double TextWidth(const std::string& texto) const override
    {
        Mira();
        return impresora_.TextWidth(texto);
    }
    double TextHeight(const std::string& texto) const override
    {
        Mira();
        return impresora_.TextHeight(texto);
    }
    void CurrentX(double x) override
    {
        Mira();
        impresora_.CurrentX(x);
    }
    void CurrentY(double y) override
    {
        Mira();
        impresora_.CurrentY(y);
    }
    double CurrentX() const override
    {
        Mira();
        return impresora_.CurrentX();
    }
    double CurrentY() const override
    {
        Mira();
        return impresora_.CurrentY();
    }
    void Print(const std::string& texto) override
    {
        Mira();
        impresora_.Print(texto);
    }
    void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) override
    {
        Mira();
        impresora_.PaintPicture(imagen, x, y, ancho, alto);
    }
    int Page() const override
    {
        Mira();
        return impresora_.Page();
    }
    void NewPage() override
    {
        Mira();
        impresora_.NewPage();
    }
    void EndDoc() override
    {
        Mira();
        impresora_.EndDoc();
    }

private:
    void Mira() const { vigia_(); }

    ImpresoraDoble& impresora_;
    std::function<void()> vigia_;
};

// The doubles' printers with the watched printer in use. While it lives, it stands for the
// printers of the platform; the other services stay the doubles'.
class ImpresorasVigiladas final : public Impresoras {
public:
    ImpresorasVigiladas(PlataformaDoble& doble, std::function<void()> vigia)
        : doble_(doble),
          impresora_(doble.impresoras.impresora, std::move(vigia)),
          anteriores_(Instala({&doble.mensajes, &doble.ficheros, &doble.ventanas, &doble.monitor, &doble.regional,
                               &doble.proceso, this, &doble.ayuda, &doble.escritorio, &doble.correo}))
    {
    }
    ~ImpresorasVigiladas() override { Instala(anteriores_); }
    ImpresorasVigiladas(const ImpresorasVigiladas&) = delete;
    ImpresorasVigiladas& operator=(const ImpresorasVigiladas&) = delete;

    std::vector<std::string> Nombres() const override { return doble_.impresoras.Nombres(); }
    std::string Actual() const override { return doble_.impresoras.Actual(); }
    bool Elige(const std::string& nombre) override { return doble_.impresoras.Elige(nombre); }
    Impresora& EnUso() override { return impresora_; }

private:
    PlataformaDoble& doble_;
    ImpresoraVigilada impresora_;
    Servicios anteriores_;
};

// What the user saw of FM_CONFIG_IMPR while it was up.
struct DialogoVisto {
    QString nombre;
    QString titulo;
    bool modal = false;
    QString etiqueta;
    QStringList entradas;
    int elegida = -2;
    bool listaActiva = false;
    bool seleccionarActivo = false;
    bool salirActivo = false;
};

}  // namespace

class PruebaImpresion : public prueba::PruebaDePrincipal {
    Q_OBJECT

    // Print as the user asks for it: the menu, the toolbar button or Ctrl+I from wherever the
    // focus is. Tells whether the command was available.
    bool Imprime(const QString& via)
    {
        if (via == QStringLiteral("menú")) return Orden("mnuPrincipalImprimir");
        if (via == QStringLiteral("barra")) return Boton("Imprimir");
        if (via != QStringLiteral("Ctrl+I")) qFatal("no hay vía %s", qPrintable(via));
        QWidget* foco = QApplication::focusWidget();
        QTest::keyClick(foco != nullptr ? foco : ventana_.get(), Qt::Key_I, Qt::ControlModifier);
        return ventana_->ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled();
    }

    QWidget* C(const char* nombre) const { return Abierta()->Control(QString::fromLatin1(nombre)); }
    QString Texto(const char* nombre) const { return TextoDe(C(nombre)); }

    // A click of the mouse on a cell of the result grid: row = layers, column = sheet type.
    void ClicEnCelda(const char* rejilla, int fila, int columna)
    {
        auto* r = qobject_cast<RejillaResultados*>(C(rejilla));
        const QRect celda = r->visualItemRect(r->item(fila, columna));
        QTest::mouseClick(r->viewport(), Qt::LeftButton, {}, celda.center());
    }

    // A new flexure screen, rectangular or T, with the design moment typed (or left at its start
    // value, 0) and calculated.
    void FlexionCalculada(bool seccionT, const char* momento = nullptr)
    {
        Orden(seccionT ? "mnuCalcularFlexionT" : "mnuCalcularFlexion");
        if (momento != nullptr) prueba::EscribeYTabula(C("TX_MD"), Sep(momento));
        prueba::Pulsa(C("CM_CALCULAR"));
    }

    void ConfinamientoCalculado()
    {
        Orden("mnuCalcularConfina");
        prueba::Pulsa(C("CM_CALCULAR"));
    }

    QStringList Mostrados() const
    {
        QStringList lista;
        for (const MensajeMostrado& m : doble_->mensajes.mostrados)
            lista << Mensaje(m.texto, m.estilo);
        return lista;
    }

    const std::vector<Operacion>& Operaciones() const { return doble_->impresoras.impresora.operaciones; }

    int Cuenta(const char* nombre) const
    {
        int n = 0;
        for (const Operacion& op : Operaciones())
            if (op.nombre == nombre) ++n;
        return n;
    }

    // The texts printed by the operations [desde, hasta), in order.
    QStringList Impresos(std::size_t desde = 0, std::size_t hasta = static_cast<std::size_t>(-1)) const
    {
        QStringList textos;
        const auto& ops = Operaciones();
        for (std::size_t i = desde; i < hasta && i < ops.size(); ++i)
            if (ops[i].nombre == "Print") textos << QString::fromStdString(ops[i].texto);
        return textos;
    }

    // The text printed right after the label: a row's value.
    QString ValorDe(const std::string& etiqueta) const
    {
        const auto& ops = Operaciones();
        for (std::size_t i = 0; i < ops.size(); ++i)
            if (ops[i].nombre == "Print" && ops[i].texto == etiqueta)
                for (std::size_t j = i + 1; j < ops.size(); ++j)
                    if (ops[j].nombre == "Print") return QString::fromStdString(ops[j].texto);
        return QStringLiteral("(no impreso)");
    }

    // Where the text was printed, {x, y}; empty when it was not.
    std::vector<double> PosicionDe(const std::string& texto) const
    {
        for (const Operacion& op : Operaciones())
            if (op.nombre == "Print" && op.texto == texto) return op.numeros;
        return {};
    }

    // The positions of the operations of a name.
    std::vector<std::size_t> Posiciones(const char* nombre) const
    {
        std::vector<std::size_t> posiciones;
        for (std::size_t i = 0; i < Operaciones().size(); ++i)
            if (Operaciones()[i].nombre == nombre) posiciones.push_back(i);
        return posiciones;
    }

    // The texts on the screen's picture, every one of the list's, in its order.
    QStringList TextosDelDibujo(const char* dibujo) const
    {
        QStringList textos;
        for (const ElementoPantalla& e : qobject_cast<Lienzo*>(C(dibujo))->Escena().Elementos(ClasePantalla::Tit))
            textos << e.texto;
        return textos;
    }

    // The report's run, as every report makes it: A4 first, one document ended last.
    void EsperaUnDocumento(const char* titulo, const char* documento, int paginas)
    {
        const auto& ops = Operaciones();
        QVERIFY(!ops.empty());
        QCOMPARE(ops.front(), (Operacion{"PaperSize", {9.0}, ""}));
        QCOMPARE(ops.back(), (Operacion{"EndDoc", {}, ""}));
        QCOMPARE(Cuenta("EndDoc"), 1);
        QCOMPARE(Cuenta("NewPage"), paginas - 1);
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 1);
        QVERIFY(std::find(ops.begin(), ops.end(), Operacion{"NombreDocumento", {}, documento}) != ops.end());
        QCOMPARE(Impresos().first(), QString::fromUtf8(titulo));
        QStringList numeros;
        for (const QString& texto : Impresos())
            if (texto.startsWith(QStringLiteral("Página "))) numeros << texto;
        QStringList esperados;
        for (int pagina = 1; pagina <= paginas; ++pagina)
            esperados << QStringLiteral("Página %1").arg(pagina);
        QCOMPARE(numeros, esperados);
        QCOMPARE(Impresos().count(QString::fromUtf8(titulo)), paginas);
    }

    // FM_CONFIG_IMPR as the user sees it when it comes up.
    static DialogoVisto Observa(QDialog& dialogo)
    {
        DialogoVisto visto;
        visto.nombre = dialogo.objectName();
        visto.titulo = dialogo.windowTitle();
        visto.modal = dialogo.isModal();
        auto* etiqueta = dialogo.findChild<QLabel*>(QStringLiteral("Label1"));
        visto.etiqueta = etiqueta != nullptr ? etiqueta->text() : QString();
        auto* lista = Lista(dialogo);
        for (int i = 0; i < lista->count(); ++i)
            visto.entradas << lista->itemText(i);
        visto.elegida = lista->currentIndex();
        visto.listaActiva = lista->isEnabled();
        visto.seleccionarActivo = BotonDe(dialogo, "CM_SELECCIONAR")->isEnabled();
        visto.salirActivo = BotonDe(dialogo, "CM_SALIR")->isEnabled();
        return visto;
    }

    static QComboBox* Lista(QDialog& dialogo) { return dialogo.findChild<QComboBox*>(QStringLiteral("CO_IMPRESORA")); }
    static QPushButton* BotonDe(QDialog& dialogo, const char* nombre)
    {
        return dialogo.findChild<QPushButton*>(QString::fromLatin1(nombre));
    }

    // The dialog made the window the user works in, as the window manager makes a new one.
    static bool Activa(QDialog& dialogo)
    {
        dialogo.activateWindow();
        return QTest::qWaitForWindowActive(&dialogo);
    }

    // Opens Configurar impresora from the menu with the user's script; what the dialog showed
    // when it came up.
    DialogoVisto Configura(const std::function<void(QDialog&)>& script = {})
    {
        DialogoVisto visto;
        doble_->ventanas.alMostrar = [&](QDialog& dialogo) {
            visto = Observa(dialogo);
            if (script) script(dialogo);
        };
        Orden("mnuPrincipalConfigurar");
        doble_->ventanas.alMostrar = nullptr;
        return visto;
    }

    static void FilasVia()
    {
        QTest::addColumn<QString>("via");
        QTest::addColumn<char>("separador");
        QTest::newRow("menú, coma") << QStringLiteral("menú") << ',';
        QTest::newRow("barra, punto") << QStringLiteral("barra") << '.';
        QTest::newRow("Ctrl+I, coma") << QStringLiteral("Ctrl+I") << ',';
        QTest::newRow("menú, punto") << QStringLiteral("menú") << '.';
        QTest::newRow("barra, coma") << QStringLiteral("barra") << ',';
    }

private slots:
    void cleanup()
    {
        if (ventana_ && doble_) {
            doble_->mensajes.respuestas.clear();
            doble_->mensajes.alMostrar = nullptr;
            doble_->ventanas.alMostrar = nullptr;
            ventana_->Area()->closeAllSubWindows();
        }
        ventana_.reset();
        doble_.reset();
    }

    // ---- Print on the characteristics.

    void imprimirCaracteristicasNoNecesitaCalcular_data() { FilasVia(); }

    void imprimirCaracteristicasNoNecesitaCalcular()
    {
        QFETCH(QString, via);
        QFETCH(char, separador);
        Arranca(separador);
        QVERIFY(Orden("mnuCalcularCarac"));
        QCOMPARE(Abierta()->objectName(), QStringLiteral("FM_CARAC"));
        prueba::Pulsa(qobject_cast<QRadioButton*>(C("OP_TX")));
        // The picture shows another type's chart: the one of the report has to be drawn anew.
        qobject_cast<FmCarac*>(Abierta())->DiagramaTension(1);
        QVERIFY(TextosDelDibujo("PIC_CARAC").contains(QStringLiteral("TEXALON L")));
        QVERIFY(!Estado().F_CALCULADO);

        QVERIFY(Imprime(via));
        QVERIFY(Mostrados().isEmpty());
        EsperaUnDocumento("CARACTERISTICAS MECANICAS DEL REFUERZO", "caracteristicas", 1);
        QCOMPARE(ValorDe("Tipo de refuerzo:"), QStringLiteral("TEXALON X"));
        QCOMPARE(ValorDe("Espesor:"), Sep("0,163 mm"));
        QCOMPARE(ValorDe("Módulo de Young:"), QStringLiteral("440000 N/mm²"));
        QCOMPARE(ValorDe("Deformación última:"), Sep("5,50‰"));
        QCOMPARE(ValorDe("Coef. seg. TEXALON®:"), Sep("1,40"));
        // Type X's design strain for one layer, as its table shows it.
        QVERIFY(Impresos().contains(Sep("3,27")));

        // The chart drawn for the report is type X's, on the screen and on paper alike.
        const QStringList dibujo = TextosDelDibujo("PIC_CARAC");
        QVERIFY(dibujo.contains(QStringLiteral("DIAGRAMA TENSION-DEFORMACION")));
        QVERIFY(dibujo.contains(QStringLiteral("TEXALON X")));
        QVERIFY(!dibujo.contains(QStringLiteral("TEXALON L")));
        const std::vector<std::size_t> escalas = Posiciones("ScaleMode");
        QCOMPARE(escalas.size(), std::size_t{2});
        QCOMPARE(Impresos(escalas[1]), dibujo);
        QCOMPARE(int(EstadoDibujo().NPUNTO), int(Estado().MAXCAPAS));
        // Print neither calculates nor marks anything.
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(TextosDelDibujo("PIC_CARAC").contains(QStringLiteral("TEXALON X")));
    }

    // ---- Print on the calculation screens.

    void imprimirFlexionCalculadaDaDosPaginas_data()
    {
        QTest::addColumn<bool>("seccionT");
        QTest::addColumn<QString>("via");
        QTest::addColumn<char>("separador");
        for (bool seccionT : {false, true}) {
            const char* s = seccionT ? "T" : "rectangular";
            QTest::addRow("%s, menú, coma", s) << seccionT << QStringLiteral("menú") << ',';
            QTest::addRow("%s, barra, punto", s) << seccionT << QStringLiteral("barra") << '.';
            QTest::addRow("%s, Ctrl+I, punto", s) << seccionT << QStringLiteral("Ctrl+I") << '.';
            QTest::addRow("%s, barra, coma", s) << seccionT << QStringLiteral("barra") << ',';
        }
    }

    void imprimirFlexionCalculadaDaDosPaginas()
    {
        QFETCH(bool, seccionT);
        QFETCH(QString, via);
        QFETCH(char, separador);
        Arranca(separador);
        FlexionCalculada(seccionT, "250");
        QVERIFY(Estado().F_CALCULADO);
        QCOMPARE(Texto("TX_MD"), Sep("250,00"));
        QVERIFY(!C("LB_INFO")->isVisible());
        const QString mu = Texto("TX_MU");
        const QString musr = Texto("TX_MUSR");

        QVERIFY(Imprime(via));
        QVERIFY(Mostrados().isEmpty());
        EsperaUnDocumento(
            seccionT ? "REFUERZO A FLEXION EN SECCIONES EN T" : "REFUERZO A FLEXION EN SECCIONES RECTANGULARES",
            seccionT ? "informe_flexion_t" : "informe_flexion", 2);
        QCOMPARE(ValorDe("Mom. flector solicitante:"), Sep("250,00 mkN"));
        QCOMPARE(ValorDe("Armadura superior:"), Sep("0,00 cm²"));
        QCOMPARE(ValorDe("Ancho del alma:"), seccionT ? Sep("0,200 m") : QStringLiteral("(no impreso)"));
        QCOMPARE(ValorDe("Canto del ala:"), seccionT ? Sep("0,200 m") : QStringLiteral("(no impreso)"));
        QVERIFY(Impresos().contains(QStringLiteral("RESULTADOS DE LA SECCION")));
        QCOMPARE(ValorDe("RESULTADOS DE LA SECCION"), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
        // The cell on show, read from the screen's fields and formatted again.
        const char sep = doble_->regional.separador;
        QCOMPARE(ValorDe("Momento último c/r:"),
                 QString::fromStdString(Formato(ValorDeTexto(mu.toStdString(), sep), "0.0", sep) + " mkN"));
        QCOMPARE(ValorDe("Momento último s/r:"),
                 QString::fromStdString(Formato(ValorDeTexto(musr.toStdString(), sep), "0.0", sep) + " mkN"));
        QVERIFY(!Impresos().contains(QString::fromStdString(kNoEsNecesario)));
        // The moment-layers chart was printed last, and it is the one left on the screen.
        QVERIFY(EstadoDibujo().F_CAPAS);
        QVERIFY(TextosDelDibujo("PIC_FLEXION").contains(QStringLiteral("DIAGRAMA DE MOMENTOS ULTIMOS")));
        QVERIFY(Estado().F_CALCULADO);
    }

    void imprimirConfinamientoCalculado_data() { FilasVia(); }

    void imprimirConfinamientoCalculado()
    {
        QFETCH(QString, via);
        QFETCH(char, separador);
        Arranca(separador);
        ConfinamientoCalculado();
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(Imprime(via));
        QVERIFY(Mostrados().isEmpty());
        EsperaUnDocumento("REFUERZO A CONFINAMIENTO", "informe_confinamiento", 1);
        QCOMPARE(ValorDe("Tipo de sección:"), QStringLiteral("CIRCULAR"));
        QCOMPARE(ValorDe("Diámetro:"), Sep("0,500 m"));
        QCOMPARE(ValorDe("Lado menor:"), QStringLiteral("(no impreso)"));
        QCOMPARE(ValorDe("Axil actual:"), Sep("0,00 kN"));
        QCOMPARE(ValorDe("Incr. de resistencia:"), Sep("1,00"));
        QCOMPARE(ValorDe("RESULTADOS DE LA SECCION"), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
        const char sep = doble_->regional.separador;
        QCOMPARE(ValorDe("Incremento de resistencia:"),
                 QString::fromStdString(Formato(ValorDeTexto(Texto("TX_RESU").toStdString(), sep), "0.00", sep)));
        // The section was printed last and stays on the screen.
        QVERIFY(EstadoDibujo().F_SECCION);
    }

    // ---- Print refused.

    void imprimirSinResultadosAvisaYNoImprime_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("cambio");
        QTest::addColumn<QString>("via");
        QTest::addColumn<char>("separador");
        const struct {
            const char* orden;
            const char* campo;
        } pantallas[] = {
            {"mnuCalcularFlexion", "TX_MD"}, {"mnuCalcularFlexionT", "TX_MD"}, {"mnuCalcularConfina", "TX_NCP"}};
        for (const auto& p : pantallas) {
            QTest::addRow("%s sin calcular, menú", p.orden) << p.orden << QString() << QStringLiteral("menú") << ',';
            QTest::addRow("%s sin calcular, barra", p.orden) << p.orden << QString() << QStringLiteral("barra") << '.';
            QTest::addRow("%s con %s cambiado, menú", p.orden, p.campo)
                << p.orden << p.campo << QStringLiteral("menú") << '.';
            QTest::addRow("%s con %s cambiado, barra", p.orden, p.campo)
                << p.orden << p.campo << QStringLiteral("barra") << ',';
        }
    }

    void imprimirSinResultadosAvisaYNoImprime()
    {
        QFETCH(QString, orden);
        QFETCH(QString, cambio);
        QFETCH(QString, via);
        QFETCH(char, separador);
        MdiPrincipal& w = Arranca(separador);
        QVERIFY(Orden(qPrintable(orden)));
        if (!cambio.isEmpty()) {
            prueba::Pulsa(C("CM_CALCULAR"));
            QVERIFY(Estado().F_CALCULADO);
            prueba::EscribeYTabula(C(qPrintable(cambio)), Sep("300"));
            QCOMPARE(Texto(qPrintable(cambio)), Sep("300,00"));
            QVERIFY(Mostrados().isEmpty());
        }
        QVERIFY(!Estado().F_CALCULADO);
        Qt::CursorShape cursorDelAviso = Qt::BlankCursor;
        doble_->mensajes.alMostrar = [&](const MensajeMostrado&) { cursorDelAviso = w.cursor().shape(); };

        QVERIFY(Imprime(via));
        QCOMPARE(Mostrados(), QStringList{Informacion(kSinCalcular)});
        QVERIFY(Operaciones().empty());
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 0);
        // The hourglass stood while the message was up, and the arrow came back after it.
        QCOMPARE(cursorDelAviso, Qt::WaitCursor);
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!Estado().F_CALCULADO);
    }

    void unaCeldaRechazadaAvisaYNoImprime_data()
    {
        QTest::addColumn<QString>("via");
        QTest::addColumn<char>("separador");
        QTest::newRow("menú, coma") << QStringLiteral("menú") << ',';
        QTest::newRow("barra, punto") << QStringLiteral("barra") << '.';
    }

    void unaCeldaRechazadaAvisaYNoImprime()
    {
        QFETCH(QString, via);
        QFETCH(char, separador);
        MdiPrincipal& w = Arranca(separador);
        FlexionCalculada(false, "250");
        // TEXALON X gains nothing from its third layer on in the default project.
        ClicEnCelda("FG_FLEXION", 3, 3);
        QCOMPARE(Texto("TX_MU"), QStringLiteral("---"));
        QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text().trimmed(),
                 QStringLiteral("Refuerzo tipo TEXALON X - Núm. capas: 3"));
        QVERIFY(Estado().F_CALCULADO);
        const QStringList dibujo = TextosDelDibujo("PIC_FLEXION");
        Qt::CursorShape cursorDelAviso = Qt::BlankCursor;
        doble_->mensajes.alMostrar = [&](const MensajeMostrado&) { cursorDelAviso = w.cursor().shape(); };

        QVERIFY(Imprime(via));
        QCOMPARE(Mostrados(), QStringList{Informacion(kCeldaRechazada)});
        QVERIFY(Operaciones().empty());
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 0);
        QCOMPARE(cursorDelAviso, Qt::WaitCursor);
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
        // No diagram was drawn for the refused report.
        QCOMPARE(TextosDelDibujo("PIC_FLEXION"), dibujo);
    }

    // ---- The verdict.

    void conElVeredictoUnaPaginaConLaFrase_data()
    {
        QTest::addColumn<bool>("seccionT");
        QTest::addColumn<double>("y");
        QTest::addColumn<char>("separador");
        // Rows of half a centimetre from 5.0: 13 of them, or 15 on a T, then 2 cm further down.
        QTest::newRow("rectangular, coma") << false << 13.5 << ',';
        QTest::newRow("rectangular, punto") << false << 13.5 << '.';
        QTest::newRow("T, coma") << true << 14.5 << ',';
        QTest::newRow("T, punto") << true << 14.5 << '.';
    }

    void conElVeredictoUnaPaginaConLaFrase()
    {
        QFETCH(bool, seccionT);
        QFETCH(double, y);
        QFETCH(char, separador);
        Arranca(separador);
        FlexionCalculada(seccionT);
        QCOMPARE(Estado().MD, 0.0);
        QVERIFY(C("LB_INFO")->isVisible());
        QVERIFY(Imprime(QStringLiteral("menú")));
        QVERIFY(Mostrados().isEmpty());
        EsperaUnDocumento(
            seccionT ? "REFUERZO A FLEXION EN SECCIONES EN T" : "REFUERZO A FLEXION EN SECCIONES RECTANGULARES",
            seccionT ? "informe_flexion_t" : "informe_flexion", 1);
        QCOMPARE(ValorDe("Mom. flector solicitante:"), Sep("0,00 mkN"));
        // 37 characters, 7.4 cm in the double's letters, centred on the 21 cm of the sheet.
        const std::vector<double> frase = PosicionDe(kNoEsNecesario);
        QCOMPARE(frase.size(), std::size_t{2});
        QCOMPARE(frase[0], (21.0 - 7.4) / 2);
        QCOMPARE(frase[1], y);
        QVERIFY(!Impresos().contains(QStringLiteral("RESULTADOS DE LA SECCION")));
        // No diagram: one change of scale, the set-up's.
        QCOMPARE(Cuenta("ScaleMode"), 1);
        QCOMPARE(Operaciones()[Operaciones().size() - 2].texto, kNoEsNecesario);
    }

    // ---- What a report leaves on the screen.

    // The picture of the open screen shows the last diagram that the report built, fitted to
    // the picture's pixels, while the fit in store is the page's, in centimetres: a zoom or a
    // right click then works with those small numbers.
    void elDibujoQuedaConElUltimoDiagramaYElAjusteDelPapel_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("dibujo");
        QTest::addColumn<int>("isotropico");
        QTest::newRow("FM_FLEXION") << QStringLiteral("mnuCalcularFlexion") << QStringLiteral("PIC_FLEXION") << 0;
        QTest::newRow("FM_FLEXIONT") << QStringLiteral("mnuCalcularFlexionT") << QStringLiteral("PIC_FLEXION") << 0;
        QTest::newRow("FM_CONFINA") << QStringLiteral("mnuCalcularConfina") << QStringLiteral("PIC_CONFINA") << 1;
        QTest::newRow("FM_CARAC") << QStringLiteral("mnuCalcularCarac") << QStringLiteral("PIC_CARAC") << 0;
    }

    void elDibujoQuedaConElUltimoDiagramaYElAjusteDelPapel()
    {
        QFETCH(QString, orden);
        QFETCH(QString, dibujo);
        QFETCH(int, isotropico);
        Arranca();
        if (orden == QLatin1String("mnuCalcularFlexion") || orden == QLatin1String("mnuCalcularFlexionT"))
            FlexionCalculada(orden.endsWith(QLatin1Char('T')), "250");
        else if (orden == QLatin1String("mnuCalcularConfina"))
            ConfinamientoCalculado();
        else
            QVERIFY(Orden(qPrintable(orden)));
        auto* lienzo = qobject_cast<Lienzo*>(C(qPrintable(dibujo)));
        // A zoom on the picture before the report.
        QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
        QTest::mouseMove(lienzo->viewport(), QPoint(150, 90));
        QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));

        QVERIFY(Imprime(QStringLiteral("menú")));
        const GeneralDibujo& d = EstadoDibujo();
        // The last ImprimeLista's area, within a page of 20 × 28.7 cm less its margins.
        QVERIFY(d.ANCHOPIC > 1.0 && d.ANCHOPIC < 20.0);
        QVERIFY(d.ALTOPIC > 1.0 && d.ALTOPIC < 28.7);
        const Encuadre papel = Encuadra(d, d.ANCHOPIC, d.ALTOPIC, Entero(isotropico));
        QCOMPARE(d.ESCALAX, papel.escalaX);
        QCOMPARE(d.ESCALAY, papel.escalaY);
        // On the screen the same list, fitted to the picture and no longer zoomed, counted by
        // the state's counters.
        const QString diferencia = prueba::DiferenciaConLaLista(*lienzo, d, Entero(isotropico));
        QVERIFY2(diferencia.isEmpty(), qPrintable(diferencia));
    }

    // The chart of a calculated flexure stays in the state as its list when the confinement
    // screen opens: a right click on the new, empty picture fits only what that picture has,
    // which is nothing.
    void unClicDerechoEnElDibujoVacioDeLaPantallaSiguienteNoDibujaNada()
    {
        Arranca();
        FlexionCalculada(false, "250");
        QVERIFY(!qobject_cast<Lienzo*>(C("PIC_FLEXION"))->scene()->items().isEmpty());
        QVERIFY(EstadoDibujo().NLISTA > 0);
        doble_->mensajes.respuestas = {Respuesta::No};
        QVERIFY(Orden("mnuCalcularConfina"));
        auto* lienzo = qobject_cast<Lienzo*>(C("PIC_CONFINA"));
        QVERIFY(lienzo->scene()->items().isEmpty());
        QTest::mouseClick(lienzo->viewport(), Qt::RightButton, {}, QPoint(120, 80));
        QVERIFY(lienzo->scene()->items().isEmpty());
        const GeneralDibujo& d = EstadoDibujo();
        QCOMPARE(d.NLINEA + d.NTIT + d.NBARRA + d.NPUNTO + d.NSECRECT + d.NSECCIR, Entero{0});
        // Its own diagram, once calculated, zoomed and fitted again by a right click as ever.
        prueba::Pulsa(C("CM_CALCULAR"));
        const int elementos = static_cast<int>(lienzo->scene()->items().size());
        QVERIFY(elementos > 0);
        QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
        QTest::mouseMove(lienzo->viewport(), QPoint(150, 90));
        QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));
        QTest::mouseClick(lienzo->viewport(), Qt::RightButton, {}, QPoint(120, 80));
        QCOMPARE(static_cast<int>(lienzo->scene()->items().size()), elementos);
        const QString diferencia = prueba::DiferenciaConLaLista(*lienzo, d, 0);
        QVERIFY2(diferencia.isEmpty(), qPrintable(diferencia));
    }

    // A report with the verdict in place of the results builds no diagram: the picture keeps
    // what it showed, zoom and all.
    void conElVeredictoElDibujoSeQuedaComoEstaba()
    {
        Arranca();
        FlexionCalculada(false);
        QVERIFY(C("LB_INFO")->isVisible());
        auto* lienzo = qobject_cast<Lienzo*>(C("PIC_FLEXION"));
        QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(100, 60));
        QTest::mouseMove(lienzo->viewport(), QPoint(150, 90));
        QTest::mouseClick(lienzo->viewport(), Qt::LeftButton, {}, QPoint(150, 90));
        const ElementoPantalla ampliada = lienzo->Escena().Elementos(ClasePantalla::Linea).front();
        const double anchoPic = EstadoDibujo().ANCHOPIC;
        QCOMPARE(anchoPic, double(kPicFlexion.tamano.ancho));
        QVERIFY(Imprime(QStringLiteral("barra")));
        QCOMPARE(Cuenta("ScaleMode"), 1);
        const ElementoPantalla despues = lienzo->Escena().Elementos(ClasePantalla::Linea).front();
        QCOMPARE(despues.x1, ampliada.x1);
        QCOMPARE(despues.y1, ampliada.y1);
        QCOMPARE(despues.x2, ampliada.x2);
        QCOMPARE(EstadoDibujo().ANCHOPIC, anchoPic);
    }

    // ---- Again and again.

    void unaSegundaImpresionEmpiezaEnLaPaginaUno()
    {
        Arranca();
        FlexionCalculada(false, "250");
        QVERIFY(Imprime(QStringLiteral("menú")));
        const std::size_t primera = Operaciones().size();
        QVERIFY(Imprime(QStringLiteral("barra")));
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 2);
        QCOMPARE(Cuenta("NewPage"), 2);
        // The second document has its own set-up and counts its pages from 1.
        QCOMPARE(Operaciones()[primera], (Operacion{"PaperSize", {9.0}, ""}));
        QStringList paginas;
        for (const QString& texto : Impresos(primera))
            if (texto.startsWith(QStringLiteral("Página "))) paginas << texto;
        QCOMPARE(paginas, QStringList({QStringLiteral("Página 1"), QStringLiteral("Página 2")}));
        // Both documents are the same report.
        QCOMPARE(Impresos(primera), Impresos(0, primera));
    }

    void unaSegundaImpresionDeCaracteristicasEmpiezaEnLaPaginaUno()
    {
        Arranca();
        QVERIFY(Orden("mnuCalcularCarac"));
        QVERIFY(Imprime(QStringLiteral("barra")));
        const std::size_t primera = Operaciones().size();
        QVERIFY(Imprime(QStringLiteral("menú")));
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 2);
        QCOMPARE(Impresos().count(QStringLiteral("Página 1")), 2);
        QVERIFY(!Impresos().contains(QStringLiteral("Página 2")));
        QCOMPARE(Impresos(primera), Impresos(0, primera));
    }

    // ---- The hourglass.

    void elRelojDeArenaMientrasCorreElInforme_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::newRow("características") << QStringLiteral("mnuCalcularCarac");
        QTest::newRow("flexión rectangular") << QStringLiteral("mnuCalcularFlexion");
        QTest::newRow("flexión en T") << QStringLiteral("mnuCalcularFlexionT");
        QTest::newRow("confinamiento") << QStringLiteral("mnuCalcularConfina");
    }

    void elRelojDeArenaMientrasCorreElInforme()
    {
        QFETCH(QString, orden);
        MdiPrincipal& w = Arranca();
        QVERIFY(Orden(qPrintable(orden)));
        if (orden == QLatin1String("mnuCalcularFlexion") || orden == QLatin1String("mnuCalcularFlexionT"))
            prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("250"));
        if (orden != QLatin1String("mnuCalcularCarac")) prueba::Pulsa(C("CM_CALCULAR"));
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
        QList<Qt::CursorShape> cursores;
        {
            ImpresorasVigiladas vigiladas(*doble_, [&] { cursores << w.cursor().shape(); });
            QVERIFY(Imprime(QStringLiteral("menú")));
        }
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 1);
        // Every operation of the report, the first one included, ran under the hourglass.
        QVERIFY(!cursores.isEmpty());
        QVERIFY(cursores.size() >= qsizetype(Operaciones().size()));
        QCOMPARE(cursores.count(Qt::WaitCursor), cursores.size());
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
    }

    void sinPantallaImprimirNoEstaYNoHaceNada()
    {
        MdiPrincipal& w = Arranca();
        QVERIFY(!w.ElementoMenu(QStringLiteral("mnuPrincipalImprimir"))->isEnabled());
        QVERIFY(!w.Boton(4)->isEnabled());
        // The command itself, were it reached, finds no screen to print.
        w.TB_BARRA_ButtonClick(QStringLiteral("Imprimir"));
        QVERIFY(Mostrados().isEmpty());
        QVERIFY(Operaciones().empty());
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
    }

    // ---- FM_CONFIG_IMPR.

    void configurarMuestraElDialogoModalYFijo()
    {
        Arranca();
        // Available with no project open.
        QVERIFY(ventana_->ElementoMenu(QStringLiteral("mnuPrincipalConfigurar"))->isEnabled());
        QSize minimo;
        QSize maximo;
        QSize tamano;
        int anchoTitulo = 0;
        Qt::WindowFlags marco;
        QString seleccionar;
        QString salir;
        QWidget* rotulada = nullptr;
        QWidget* lista = nullptr;
        const DialogoVisto visto = Configura([&](QDialog& dialogo) {
            minimo = dialogo.minimumSize();
            maximo = dialogo.maximumSize();
            tamano = dialogo.size();
            anchoTitulo = AnchoParaTitulo(dialogo);
            marco = dialogo.windowFlags();
            seleccionar = BotonDe(dialogo, "CM_SELECCIONAR")->text();
            salir = BotonDe(dialogo, "CM_SALIR")->text();
            rotulada = dialogo.findChild<QLabel*>(QStringLiteral("Label1"))->buddy();
            lista = Lista(dialogo);
        });
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_CONFIG_IMPR")});
        QCOMPARE(visto.nombre, QStringLiteral("FM_CONFIG_IMPR"));
        QCOMPARE(visto.titulo, QStringLiteral("Selección de impresora"));
        QVERIFY(visto.modal);
        QCOMPARE(visto.etiqueta, QStringLiteral("Seleccione impresora por defecto"));
        QCOMPARE(seleccionar, QStringLiteral("&Seleccionar"));
        QCOMPARE(salir, QStringLiteral("S&alir"));
        QCOMPARE(rotulada, lista);
        QCOMPARE(visto.entradas, QStringList({QStringLiteral("Oficina"), QStringLiteral("Imprimir a PDF")}));
        QCOMPARE(visto.elegida, 0);
        QVERIFY(visto.listaActiva && visto.seleccionarActivo && visto.salirActivo);
        // A fixed-size window with its caption and a close button, nothing else.
        QCOMPARE(minimo, maximo);
        QCOMPARE(tamano, minimo);
        QVERIFY(tamano.width() >= anchoTitulo);
        QVERIFY(marco.testFlag(Qt::WindowCloseButtonHint));
        QVERIFY(marco.testFlag(Qt::CustomizeWindowHint));
        QVERIFY(!marco.testFlag(Qt::WindowMinimizeButtonHint));
        QVERIFY(!marco.testFlag(Qt::WindowMaximizeButtonHint));
        QCOMPARE(Qt::WindowType(int(marco & Qt::WindowType_Mask)), Qt::Dialog);
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(doble_->impresoras.actual, std::string("Oficina"));
    }

    void laListaSigueElOrdenDelServicioConLaActualElegida_data()
    {
        QTest::addColumn<QStringList>("nombres");
        QTest::addColumn<QString>("actual");
        QTest::addColumn<int>("elegida");
        const QStringList tres = {QStringLiteral("Oficina"), QStringLiteral("Planta 2"),
                                  QStringLiteral("Imprimir a PDF")};
        QTest::newRow("la primera") << tres << "Oficina" << 0;
        QTest::newRow("la del medio") << tres << "Planta 2" << 1;
        QTest::newRow("la última") << tres << "Imprimir a PDF" << 2;
        QTest::newRow("una que no está") << tres << "Retirada" << 0;
        QTest::newRow("dos iguales: la última") << QStringList({"Copia", "Planta 2", "Copia"}) << "Copia" << 2;
    }

    void laListaSigueElOrdenDelServicioConLaActualElegida()
    {
        QFETCH(QStringList, nombres);
        QFETCH(QString, actual);
        QFETCH(int, elegida);
        Arranca();
        doble_->impresoras.nombres.clear();
        for (const QString& nombre : nombres)
            doble_->impresoras.nombres.push_back(nombre.toStdString());
        doble_->impresoras.actual = actual.toStdString();
        const DialogoVisto visto = Configura();
        QCOMPARE(visto.entradas, nombres);
        QCOMPARE(visto.elegida, elegida);
        QVERIFY(visto.listaActiva && visto.seleccionarActivo && visto.salirActivo);
        QCOMPARE(doble_->impresoras.actual, actual.toStdString());
    }

    void sinImpresorasLaListaYSeleccionarApagados()
    {
        Arranca();
        doble_->impresoras.nombres.clear();
        doble_->impresoras.actual.clear();
        bool abiertoTrasSeleccionar = false;
        bool abiertoTrasSalir = true;
        const DialogoVisto visto = Configura([&](QDialog& dialogo) {
            // The user's clicks on the grey controls do nothing; Salir still closes.
            prueba::Pulsa(BotonDe(dialogo, "CM_SELECCIONAR"));
            abiertoTrasSeleccionar = dialogo.isVisible();
            prueba::Pulsa(BotonDe(dialogo, "CM_SALIR"));
            abiertoTrasSalir = dialogo.isVisible();
        });
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_CONFIG_IMPR")});
        QVERIFY(visto.entradas.isEmpty());
        QCOMPARE(visto.elegida, -1);
        QVERIFY(!visto.listaActiva);
        QVERIFY(!visto.seleccionarActivo);
        QVERIFY(visto.salirActivo);
        QVERIFY(abiertoTrasSeleccionar);
        QVERIFY(!abiertoTrasSalir);
        QVERIFY(Mostrados().isEmpty());
        QVERIFY(doble_->impresoras.actual.empty());
    }

    void seleccionarConElTecladoLaHaceActualYElDialogoSigue()
    {
        Arranca();
        doble_->impresoras.nombres = {"Oficina", "Planta 2", kImprimirAPdf};
        bool activa = false;
        int elegida = -1;
        std::string actualAlElegir;
        std::string actualTrasSeleccionar;
        bool seleccionarPulsado = false;
        bool abiertoTrasSeleccionar = false;
        bool abiertoTrasSalir = true;
        Configura([&](QDialog& dialogo) {
            activa = Activa(dialogo) && prueba::Enfoca(Lista(dialogo));
            QTest::keyClick(Lista(dialogo), Qt::Key_Down);
            elegida = Lista(dialogo)->currentIndex();
            actualAlElegir = doble_->impresoras.actual;
            // Alt+S, the key of "&Seleccionar": the button goes down and comes up a moment later,
            // when its click runs.
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::AltModifier);
            seleccionarPulsado = QTest::qWaitFor([&] { return !BotonDe(dialogo, "CM_SELECCIONAR")->isDown(); }, 1000);
            actualTrasSeleccionar = doble_->impresoras.actual;
            abiertoTrasSeleccionar = dialogo.isVisible();
            // Alt+A, the key of "S&alir".
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
            abiertoTrasSalir = !QTest::qWaitFor([&] { return !dialogo.isVisible(); }, 1000);
        });
        QVERIFY(activa);
        QVERIFY(seleccionarPulsado);
        QCOMPARE(elegida, 1);
        QCOMPARE(actualAlElegir, std::string("Oficina"));
        QCOMPARE(actualTrasSeleccionar, std::string("Planta 2"));
        QVERIFY(abiertoTrasSeleccionar);
        QVERIFY(!abiertoTrasSalir);
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(doble_->impresoras.actual, std::string("Planta 2"));

        // Opened again, the new current printer is the one selected.
        const DialogoVisto otraVez = Configura();
        QCOMPARE(otraVez.entradas, QStringList({QStringLiteral("Oficina"), QStringLiteral("Planta 2"),
                                                QStringLiteral("Imprimir a PDF")}));
        QCOMPARE(otraVez.elegida, 1);
        QCOMPARE(doble_->ventanas.mostradas.size(), 2);
    }

    void seleccionarConElRatonLaHaceActual()
    {
        Arranca();
        doble_->impresoras.nombres = {"Oficina", "Planta 2", kImprimirAPdf};
        bool desplegada = false;
        int elegida = -1;
        std::string actualTrasSeleccionar;
        bool abiertoTrasSeleccionar = false;
        bool abiertoTrasSalir = true;
        Configura([&](QDialog& dialogo) {
            QComboBox* lista = Lista(dialogo);
            Activa(dialogo);
            prueba::Pulsa(lista);
            desplegada = QTest::qWaitFor([lista] { return lista->view()->isVisible(); }, 1000);
            // The user takes a moment before choosing the row: a release straight after the
            // press that opened the list is the same click.
            QTest::qWait(QApplication::doubleClickInterval() + 50);
            QAbstractItemView* filas = lista->view();
            const QPoint pdf = filas->visualRect(filas->model()->index(2, 0)).center();
            QTest::mouseMove(filas->viewport(), pdf);
            QTest::mouseClick(filas->viewport(), Qt::LeftButton, {}, pdf);
            if (!QTest::qWaitFor([lista] { return !lista->view()->isVisible(); }, 1000))
                qWarning("la lista sigue desplegada");
            elegida = lista->currentIndex();
            prueba::Pulsa(BotonDe(dialogo, "CM_SELECCIONAR"));
            actualTrasSeleccionar = doble_->impresoras.actual;
            abiertoTrasSeleccionar = dialogo.isVisible();
            prueba::Pulsa(BotonDe(dialogo, "CM_SALIR"));
            abiertoTrasSalir = dialogo.isVisible();
        });
        QVERIFY(desplegada);
        QCOMPARE(elegida, 2);
        QCOMPARE(actualTrasSeleccionar, std::string(kImprimirAPdf));
        QVERIFY(abiertoTrasSeleccionar);
        QVERIFY(!abiertoTrasSalir);
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(doble_->impresoras.actual, std::string(kImprimirAPdf));
        QCOMPARE(Configura().elegida, 2);
    }

    void cambiarLaEntradaSinSeleccionarNoCambiaNada_data()
    {
        QTest::addColumn<bool>("conSalir");
        QTest::newRow("Salir") << true;
        QTest::newRow("Escape") << false;
    }

    void cambiarLaEntradaSinSeleccionarNoCambiaNada()
    {
        QFETCH(bool, conSalir);
        Arranca();
        doble_->impresoras.nombres = {"Oficina", "Planta 2", kImprimirAPdf};
        doble_->impresoras.actual = "Planta 2";
        int elegida = -1;
        Configura([&](QDialog& dialogo) {
            Activa(dialogo);
            prueba::Enfoca(Lista(dialogo));
            QTest::keyClick(Lista(dialogo), Qt::Key_Down);
            elegida = Lista(dialogo)->currentIndex();
            if (conSalir)
                prueba::Pulsa(BotonDe(dialogo, "CM_SALIR"));
            else
                QTest::keyClick(&dialogo, Qt::Key_Escape);
        });
        QCOMPARE(elegida, 2);
        QCOMPARE(doble_->impresoras.actual, std::string("Planta 2"));
        QVERIFY(Mostrados().isEmpty());
        QCOMPARE(Configura().elegida, 1);
    }

    void elDialogoNoTocaLosResultados_data()
    {
        QTest::addColumn<bool>("calculado");
        QTest::newRow("calculado") << true;
        QTest::newRow("sin calcular") << false;
    }

    void elDialogoNoTocaLosResultados()
    {
        QFETCH(bool, calculado);
        Arranca();
        FlexionCalculada(false, "250");
        if (!calculado) prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("300"));
        QCOMPARE(Estado().F_CALCULADO, calculado);
        const bool modificado = Estado().F_MODIFICADO;
        Configura([&](QDialog& dialogo) {
            Activa(dialogo);
            prueba::Enfoca(Lista(dialogo));
            QTest::keyClick(Lista(dialogo), Qt::Key_Down);
            prueba::Pulsa(BotonDe(dialogo, "CM_SELECCIONAR"));
            prueba::Pulsa(BotonDe(dialogo, "CM_SALIR"));
        });
        QCOMPARE(doble_->impresoras.actual, std::string(kImprimirAPdf));
        QCOMPARE(Estado().F_CALCULADO, calculado);
        QCOMPARE(Estado().F_MODIFICADO, modificado);
        QVERIFY(Mostrados().isEmpty());
        // Print goes by the results alone, whatever printer was chosen.
        QVERIFY(Imprime(QStringLiteral("menú")));
        if (calculado) {
            QVERIFY(Mostrados().isEmpty());
            QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 1);
        } else {
            QCOMPARE(Mostrados(), QStringList{Informacion(kSinCalcular)});
            QVERIFY(Operaciones().empty());
        }
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaImpresion prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_impresion.moc"
