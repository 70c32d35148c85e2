// Print and the choice of printer, end to end: the real screens of the main window, their
// reports on the recording printer, FM_CONFIG_IMPR over the doubles' printers, and the user's
// keys and clicks in between. The tests stand in files by behaviour: the reports and when Print
// refuses (test_impresion.cpp), what a report leaves on the screen and a second report
// (impresion_pantalla.cpp), and FM_CONFIG_IMPR (impresion_dialogo.cpp).
#pragma once

#include "comun/Filas.h"
#include "comun/Pantallas.h"
#include "comun/Principal.h"
#include "comun/Usuario.h"
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
#include <QTest>
#include <QToolBar>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

inline const QString kSinCalcular = QStringLiteral(
    "No se han calculado los resultados o los datos han sido modificados y no se ha procedido a realizar un nuevo "
    "cálculo.");
inline const QString kCeldaRechazada = QStringLiteral(
    "El tipo de refuerzo y número de capas elegidas no cumple con los requisitos impuestos por el fabricante.");
inline const std::string kNoEsNecesario = " NO ES NECESARIO REFORZAR LA SECCION ";

inline QString Informacion(const QString& texto) { return prueba::Mensaje(texto, Estilo::Informacion); }

// The recording printer seen through a watcher that is told of every operation before the
// printer is: what the user sees on the screen while the report runs.
class ImpresoraVigilada final : public Impresora {
public:
    ImpresoraVigilada(ImpresoraDoble& impresora, std::function<void()> vigia)
        : impresora_(impresora), vigia_(std::move(vigia))
    {
    }

    void PaperSize(int codigo) override { Mira().PaperSize(codigo); }
    void ScaleMode(int modo) override { Mira().ScaleMode(modo); }
    double ScaleWidth() const override { return Mira().ScaleWidth(); }
    double ScaleHeight() const override { return Mira().ScaleHeight(); }
    void NombreDocumento(const std::string& nombre) override { Mira().NombreDocumento(nombre); }
    void DrawStyle(int estilo) override { Mira().DrawStyle(estilo); }
    void DrawWidth(int ancho) override { Mira().DrawWidth(ancho); }
    void Line(double x1, double y1, double x2, double y2, Color color) override { Mira().Line(x1, y1, x2, y2, color); }
    void Box(double x1, double y1, double x2, double y2, Color color) override { Mira().Box(x1, y1, x2, y2, color); }
    void Circle(double x, double y, double radio, Color color) override { Mira().Circle(x, y, radio, color); }
    void Arc(double x, double y, double radio, Color color, double inicio, double fin) override
    {
        Mira().Arc(x, y, radio, color, inicio, fin);
    }
    void FontName(const std::string& nombre) override { Mira().FontName(nombre); }
    void FontSize(double puntos) override { Mira().FontSize(puntos); }
    void FontBold(bool negrita) override { Mira().FontBold(negrita); }
    void ForeColor(Color color) override { Mira().ForeColor(color); }
    double TextWidth(const std::string& texto) const override { return Mira().TextWidth(texto); }
    double TextHeight(const std::string& texto) const override { return Mira().TextHeight(texto); }
    void CurrentX(double x) override { Mira().CurrentX(x); }
    void CurrentY(double y) override { Mira().CurrentY(y); }
    double CurrentX() const override { return Mira().CurrentX(); }
    double CurrentY() const override { return Mira().CurrentY(); }
    void Print(const std::string& texto) override { Mira().Print(texto); }
    void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) override
    {
        Mira().PaintPicture(imagen, x, y, ancho, alto);
    }
    int Page() const override { return Mira().Page(); }
    void NewPage() override { Mira().NewPage(); }
    void EndDoc() override { Mira().EndDoc(); }

private:
    // The watcher is told first; then the printer.
    ImpresoraDoble& Mira() const
    {
        vigia_();
        return impresora_;
    }

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

    // The values printed after each label, in their order.
    QStringList ValoresDe(std::initializer_list<const char*> etiquetas) const
    {
        QStringList valores;
        for (const char* etiqueta : etiquetas)
            valores << ValorDe(etiqueta);
        return valores;
    }

    // Print, which only warns with that message: nothing printed, the hourglass up while the
    // message is and the arrow back after it.
    void ImprimeYSoloAvisa(const QString& via, const QString& aviso)
    {
        QWidget& w = *ventana_;
        Qt::CursorShape cursorDelAviso = Qt::BlankCursor;
        doble_->mensajes.alMostrar = [&](const MensajeMostrado&) { cursorDelAviso = w.cursor().shape(); };
        const bool disponible = Imprime(via);
        doble_->mensajes.alMostrar = nullptr;
        QVERIFY(disponible);
        QCOMPARE(Mostrados(), QStringList{Informacion(aviso)});
        QVERIFY(Operaciones().empty());
        QCOMPARE(doble_->impresoras.impresora.documentosTerminados, 0);
        QCOMPARE(cursorDelAviso, Qt::WaitCursor);
        QCOMPARE(w.cursor().shape(), Qt::ArrowCursor);
    }

    // The main window, the doubles offering the printers Oficina, Planta 2 and Imprimir a PDF.
    MdiPrincipal& ArrancaConTresImpresoras()
    {
        MdiPrincipal& w = Arranca();
        doble_->impresoras.nombres = {"Oficina", "Planta 2", kImprimirAPdf};
        return w;
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
    void imprimirCaracteristicasNoNecesitaCalcular_data();
    void imprimirCaracteristicasNoNecesitaCalcular();
    void imprimirFlexionCalculadaDaDosPaginas_data();
    void imprimirFlexionCalculadaDaDosPaginas();
    void imprimirConfinamientoCalculado_data();
    void imprimirConfinamientoCalculado();
    void imprimirSinResultadosAvisaYNoImprime_data();
    void imprimirSinResultadosAvisaYNoImprime();
    void unaCeldaRechazadaAvisaYNoImprime_data();
    void unaCeldaRechazadaAvisaYNoImprime();
    void conElVeredictoUnaPaginaConLaFrase_data();
    void conElVeredictoUnaPaginaConLaFrase();
    void elDibujoQuedaConElUltimoDiagramaYElAjusteDelPapel_data();
    void elDibujoQuedaConElUltimoDiagramaYElAjusteDelPapel();
    void unClicDerechoEnElDibujoVacioDeLaPantallaSiguienteNoDibujaNada();
    void conElVeredictoElDibujoSeQuedaComoEstaba();
    void unaSegundaImpresionEmpiezaEnLaPaginaUno();
    void unaSegundaImpresionDeCaracteristicasEmpiezaEnLaPaginaUno();
    void elRelojDeArenaMientrasCorreElInforme_data();
    void elRelojDeArenaMientrasCorreElInforme();
    void sinPantallaImprimirNoEstaYNoHaceNada();
    void configurarMuestraElDialogoModalYFijo();
    void laListaSigueElOrdenDelServicioConLaActualElegida_data();
    void laListaSigueElOrdenDelServicioConLaActualElegida();
    void sinImpresorasLaListaYSeleccionarApagados();
    void seleccionarConElTecladoLaHaceActualYElDialogoSigue();
    void seleccionarConElRatonLaHaceActual();
    void elDialogoNoTocaLosResultados_data();
    void elDialogoNoTocaLosResultados();
    void cambiarLaEntradaSinSeleccionarNoCambiaNada_data();
    void cambiarLaEntradaSinSeleccionarNoCambiaNada();
};
