#include "comun/Ejecuta.h"
#include "comun/Filas.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/FmCoef.h"
#include "state/General.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

// The coefficients of the project on which every test opens the dialog: none of them is a
// start value, so that a field showing a start value has been written by Restablecer.
constexpr double kGC = 1.6;
constexpr double kGS = 1.25;
constexpr double kGR = 1.333;

const QString kNotaPlana = QStringLiteral(
    "NOTA: Se recomienda no modificar los valores de los coeficientes de seguridad establecidos por el programa.");

QString Texto(const char* utf8) { return QString::fromUtf8(utf8); }

// The text as the machine writes it: the test data are written with a comma.
QString ConSeparador(QString texto, char separador) { return texto.replace(QLatin1Char(','), QLatin1Char(separador)); }

}  // namespace

class PruebaCoef : public QObject {
    Q_OBJECT

    std::unique_ptr<PlataformaDoble> doble_;
    std::unique_ptr<FmCoef> dialogo_;

    // A calculated, saved project with known coefficients, and the dialog shown over it with
    // the focus in its first field, as the user finds it.
    bool Abre(char separador)
    {
        doble_->regional.separador = separador;
        dialogo_ = std::make_unique<FmCoef>(nullptr);
        dialogo_->show();
        dialogo_->activateWindow();
        return QTest::qWaitForWindowActive(dialogo_.get()) && QApplication::focusWidget() == Campo("TX_GC");
    }

    QLineEdit* Campo(const char* nombre) const { return dialogo_->findChild<QLineEdit*>(QString::fromLatin1(nombre)); }

    QPushButton* Boton(const char* nombre) const
    {
        return dialogo_->findChild<QPushButton*>(QString::fromLatin1(nombre));
    }

    QLabel* Etiqueta(const QString& nombre) const { return dialogo_->findChild<QLabel*>(nombre); }

    // The user clicks into the field and types the text over what was there.
    void Teclea(const char* nombre, const QString& texto)
    {
        QLineEdit* campo = Campo(nombre);
        QTest::mouseClick(campo, Qt::LeftButton);
        campo->setText(texto);
    }

    void Tabula(const char* nombre) { QTest::keyClick(Campo(nombre), Qt::Key_Tab); }

    // Teclea, then Tab out of the field.
    void Escribe(const char* nombre, const QString& texto)
    {
        Teclea(nombre, texto);
        Tabula(nombre);
    }

    void Pulsa(const char* nombre) { QTest::mouseClick(Boton(nombre), Qt::LeftButton); }

    const std::vector<MensajeMostrado>& Mensajes() const { return doble_->mensajes.mostrados; }

    bool EstadoIntacto() const { return Estado().GC == kGC && Estado().GS == kGS && Estado().GR == kGR; }

    bool BanderasIntactas() const { return !Estado().F_MODIFICADO && Estado().F_CALCULADO; }

    bool BanderasDeCambio() const { return Estado().F_MODIFICADO && !Estado().F_CALCULADO; }

    void LimpiaBanderas()
    {
        Estado().F_MODIFICADO = false;
        Estado().F_CALCULADO = true;
    }

    // The failure steps left the field as the user typed it, selected, with the focus.
    void CompruebaDevuelto(const char* nombre, const QString& texto)
    {
        QLineEdit* campo = Campo(nombre);
        QCOMPARE(QApplication::focusWidget(), campo);
        QCOMPARE(campo->text(), texto);
        QCOMPARE(campo->selectedText(), texto);
    }

    // The project's coefficients GC, GS and GR are these.
    static void CompruebaCoeficientes(double gc, double gs, double gr)
    {
        QCOMPARE(Estado().GC, gc);
        QCOMPARE(Estado().GS, gs);
        QCOMPARE(Estado().GR, gr);
    }

    // Tab from whatever has the focus, that many times.
    static void TabulaDesdeElFoco(int veces)
    {
        for (int i = 0; i < veces; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }

    // Tab from the first field to the button, that many steps, then the space bar on it; the
    // flags cleared just before, so that only the button can mark them.
    void LlegaConTabYPulsa(int pasos, const char* boton)
    {
        TabulaDesdeElFoco(pasos);
        QCOMPARE(QApplication::focusWidget(), Boton(boton));
        LimpiaBanderas();
        QTest::keyClick(Boton(boton), Qt::Key_Space);
    }

    // A click on Restablecer, then back with the keys to Aceptar, no field passed on the way.
    void VuelveAAceptar()
    {
        QTest::mouseClick(Boton("CM_RESTAURAR"), Qt::LeftButton);
        QTest::keyClick(Boton("CM_RESTAURAR"), Qt::Key_Backtab);
        QTest::keyClick(Boton("CM_CANCELAR"), Qt::Key_Backtab);
    }

    static void DatosSeparador()
    {
        QTest::addColumn<char>("separador");
        QTest::newRow("coma") << ',';
        QTest::newRow("punto") << '.';
    }

private slots:
    void init()
    {
        doble_ = std::make_unique<PlataformaDoble>();
        Estado().GC = kGC;
        Estado().GS = kGS;
        Estado().GR = kGR;
        LimpiaBanderas();
    }

    void cleanup()
    {
        // The dialog goes first, while the doubles still answer for the platform.
        if (dialogo_) dialogo_->hide();
        dialogo_.reset();
        doble_.reset();
    }

    void tituloNombreYTamanoFijo()
    {
        QVERIFY(Abre(','));
        QCOMPARE(dialogo_->objectName(), QStringLiteral("FM_COEF"));
        QCOMPARE(dialogo_->windowTitle(), QStringLiteral("Coeficientes de seguridad de los materiales"));
        QVERIFY(dialogo_->isModal());
        QCOMPARE(dialogo_->minimumSize(), dialogo_->maximumSize());
        QCOMPARE(dialogo_->size(), dialogo_->minimumSize());
    }

    void camposConNombreEtiquetaYAlineacion_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<QString>("simbolo");
        QTest::addColumn<QString>("etiqueta");
        QTest::newRow("TX_GC") << "TX_GC" << Texto("γ<sub>c</sub>") << Texto("Coeficiente de seguridad del hormigón");
        QTest::newRow("TX_GS") << "TX_GS" << Texto("γ<sub>s</sub>") << Texto("Coeficiente de seguridad del acero");
        QTest::newRow("TX_GR") << "TX_GR" << Texto("γ<sub>R</sub>") << Texto("Coeficiente de seguridad del TEXALON®");
    }

    void camposConNombreEtiquetaYAlineacion()
    {
        QFETCH(QString, nombre);
        QFETCH(QString, simbolo);
        QFETCH(QString, etiqueta);
        QVERIFY(Abre(','));
        const QString sufijo = nombre.mid(2);
        auto* campo = dialogo_->findChild<QLineEdit*>(nombre);
        QVERIFY(campo != nullptr);
        QCOMPARE(campo->accessibleName(), etiqueta);
        QVERIFY(campo->alignment() & Qt::AlignRight);
        QVERIFY(campo->width() >= campo->fontMetrics().horizontalAdvance(QStringLiteral("0,00")));
        QVERIFY(campo->width() < 200);

        QLabel* gamma = Etiqueta(QStringLiteral("LB_GAMMA") + sufijo);
        QVERIFY(gamma != nullptr);
        QCOMPARE(gamma->text(), simbolo);
        QCOMPARE(gamma->textFormat(), Qt::RichText);
        QLabel* largo = Etiqueta(QStringLiteral("LB") + sufijo);
        QVERIFY(largo != nullptr);
        QCOMPARE(largo->text(), etiqueta);
        QCOMPARE(largo->buddy(), campo);

        // Symbol, label and field stand in one row, in that order.
        QVERIFY(gamma->geometry().right() < largo->geometry().left());
        QVERIFY(largo->geometry().right() < campo->geometry().left());
        QVERIFY(qAbs(gamma->geometry().center().y() - campo->geometry().center().y()) <= 4);
    }

    void botonesEnFilaAlPie()
    {
        QVERIFY(Abre(','));
        const char* nombres[] = {"CM_ACEPTAR", "CM_CANCELAR", "CM_RESTAURAR"};
        const QString textos[] = {QStringLiteral("Aceptar"), QStringLiteral("Cancelar"), QStringLiteral("Restablecer")};
        for (int i = 0; i < 3; ++i) {
            QPushButton* boton = Boton(nombres[i]);
            QVERIFY(boton != nullptr);
            QCOMPARE(boton->text(), textos[i]);
            QVERIFY(boton->isEnabled());
            QCOMPARE(boton->y(), Boton("CM_ACEPTAR")->y());
            QVERIFY(boton->geometry().top() > Campo("TX_GR")->geometry().bottom());
        }
        QVERIFY(Boton("CM_ACEPTAR")->x() < Boton("CM_CANCELAR")->x());
        QVERIFY(Boton("CM_CANCELAR")->x() < Boton("CM_RESTAURAR")->x());
    }

    void notaAlPieConNotaEnNegrita()
    {
        QVERIFY(Abre(','));
        QLabel* nota = Etiqueta(QStringLiteral("LB_NOTA"));
        QVERIFY(nota != nullptr);
        QVERIFY(nota->wordWrap());
        QTextDocument documento;
        documento.setHtml(nota->text());
        QCOMPARE(documento.toPlainText(), kNotaPlana);
        QTextCursor cursor(&documento);
        cursor.setPosition(3);  // inside "NOTA"
        QVERIFY(cursor.charFormat().fontWeight() >= QFont::Bold);
        cursor.setPosition(10);  // inside "Se recomienda"
        QVERIFY(cursor.charFormat().fontWeight() < QFont::Bold);
        QVERIFY(nota->geometry().top() > Campo("TX_GR")->geometry().bottom());
        QVERIFY(nota->geometry().bottom() < Boton("CM_ACEPTAR")->geometry().top());
    }

    void ordenDeTabulacionNatural()
    {
        QVERIFY(Abre(','));
        const char* orden[] = {"TX_GS", "TX_GR", "CM_ACEPTAR", "CM_CANCELAR", "CM_RESTAURAR", "TX_GC"};
        for (const char* nombre : orden) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(nombre));
        }
        QVERIFY(Mensajes().empty());
    }

    void cargaConElSeparadorDeLaMaquina_data() { DatosSeparador(); }

    void cargaConElSeparadorDeLaMaquina()
    {
        QFETCH(char, separador);
        QVERIFY(Abre(separador));
        QCOMPARE(Campo("TX_GC")->text(), ConSeparador(QStringLiteral("1,60"), separador));
        QCOMPARE(Campo("TX_GS")->text(), ConSeparador(QStringLiteral("1,25"), separador));
        QCOMPARE(Campo("TX_GR")->text(), ConSeparador(QStringLiteral("1,33"), separador));
        QVERIFY(BanderasIntactas());
    }

    // The ways out other than Aceptar, after the user has done nothing, passed TX_GC with Tab,
    // clicked into TX_GS and typed over it, or written over TX_GC with no check to see it.
    void salirSinAceptarNoCambiaLosCoeficientes_data()
    {
        prueba::Columnas<QString, QString, QString, bool>({"antes", "texto", "salida", "marcado"});
        const auto fila = [](const char* caso, const char* antes, const char* texto, const char* salida, bool marcado) {
            QTest::newRow(caso) << antes << texto << salida << marcado;
        };
        fila("abrir y Cancelar sin tocar", "", "", "Cancelar", false);
        fila("Tab de GC a GS y Cancelar marca el proyecto", "Tab", "", "Cancelar", true);
        fila("Cancelar con un campo mal sale sin mensaje", "clic en TX_GS", "abc", "Cancelar", true);
        fila("Escape es Cancelar sin probar el campo", "TX_GC", "abc", "Escape", false);
        fila("cerrar la ventana es Cancelar", "TX_GC", "2", "cerrar", false);
    }

    void salirSinAceptarNoCambiaLosCoeficientes()
    {
        QFETCH(QString, antes);
        QFETCH(QString, texto);
        QFETCH(QString, salida);
        QFETCH(bool, marcado);
        QVERIFY(Abre(','));
        if (antes == QLatin1String("Tab")) {
            Tabula("TX_GC");
            QCOMPARE(QApplication::focusWidget(), Campo("TX_GS"));
        } else if (antes == QLatin1String("clic en TX_GS")) {
            Teclea("TX_GS", texto);
        } else if (!antes.isEmpty()) {
            Campo(qPrintable(antes))->setText(texto);
        }
        if (salida == QLatin1String("Cancelar"))
            Pulsa("CM_CANCELAR");
        else if (salida == QLatin1String("Escape"))
            QTest::keyClick(Campo("TX_GC"), Qt::Key_Escape);
        else
            QVERIFY(dialogo_->close());
        QVERIFY(!dialogo_->isVisible());
        QCOMPARE(dialogo_->result(), int(QDialog::Rejected));
        QVERIFY(Mensajes().empty());
        QVERIFY(EstadoIntacto());
        QVERIFY(marcado ? BanderasDeCambio() : BanderasIntactas());
    }

    void gcDe09SeRechazaY1SeAcepta_data() { DatosSeparador(); }

    void gcDe09SeRechazaY1SeAcepta()
    {
        QFETCH(char, separador);
        QVERIFY(Abre(separador));
        const QString nueveDecimas = ConSeparador(QStringLiteral("0,9"), separador);
        Escribe("TX_GC", nueveDecimas);
        QCOMPARE(Mensajes().size(), std::size_t{1});
        QCOMPARE(Mensajes()[0].texto, Texto("El coeficiente de seguridad del hormigón no puede ser menor que 1."));
        QVERIFY(Mensajes()[0].estilo == Estilo::Parada);
        CompruebaDevuelto("TX_GC", nueveDecimas);
        QVERIFY(EstadoIntacto());
        QVERIFY(BanderasIntactas());

        Campo("TX_GC")->setText(QStringLiteral("1"));
        Tabula("TX_GC");
        QCOMPARE(Mensajes().size(), std::size_t{1});
        QCOMPARE(Campo("TX_GC")->text(), ConSeparador(QStringLiteral("1,00"), separador));
        QCOMPARE(QApplication::focusWidget(), Campo("TX_GS"));
        QVERIFY(BanderasDeCambio());
        QVERIFY(EstadoIntacto());  // the state waits for Aceptar
    }

    void grNegativoSeAceptaSinSigno_data() { DatosSeparador(); }

    void grNegativoSeAceptaSinSigno()
    {
        QFETCH(char, separador);
        QVERIFY(Abre(separador));
        Escribe("TX_GR", ConSeparador(QStringLiteral("-1,2"), separador));
        QVERIFY(Mensajes().empty());
        QCOMPARE(Campo("TX_GR")->text(), ConSeparador(QStringLiteral("1,20"), separador));
        QCOMPARE(QApplication::focusWidget(), Boton("CM_ACEPTAR"));
        QVERIFY(BanderasDeCambio());
        QVERIFY(EstadoIntacto());
    }

    void mensajesDeCadaCampo_data()
    {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("mensaje");
        const char* hormigon[] = {"TX_GC", "Debe darse el coeficiente de seguridad del hormigón.",
                                  "El coeficiente de seguridad del hormigón de ser un número.",
                                  "El coeficiente de seguridad del hormigón no puede ser menor que 1."};
        const char* acero[] = {"TX_GS", "Debe darse el coeficiente de seguridad del acero.",
                               "El coeficiente de seguridad del acero de ser un número.",
                               "El coeficiente de seguridad del acero no puede ser menor de 1."};
        const char* refuerzo[] = {"TX_GR", "Debe darse el coeficiente de seguridad del refuerzo TEXALON®.",
                                  "El coeficiente de seguridad del refuerzo TEXALON® de ser un número.",
                                  "El coeficiente de seguridad del refuerzo TEXALON® no puede ser menor que 1."};
        for (const auto& c : {hormigon, acero, refuerzo}) {
            const QString nombre = QString::fromLatin1(c[0]);
            auto fila = [&](const char* caso) -> QTestData& { return QTest::addRow("%s %s", c[0], caso) << nombre; };
            fila("vacío") << QString() << Texto(c[1]);
            fila("blancos") << QStringLiteral("   ") << Texto(c[2]);
            fila("letras") << QStringLiteral("abc") << Texto(c[2]);
            fila("12a") << QStringLiteral("12a") << Texto(c[2]);
            fila("cero") << QStringLiteral("0") << Texto(c[3]);
            fila("0,999") << QStringLiteral("0,999") << Texto(c[3]);
            fila("-0.5") << QStringLiteral("-0.5") << Texto(c[3]);
        }
    }

    void mensajesDeCadaCampo()
    {
        QFETCH(QString, campo);
        QFETCH(QString, texto);
        QFETCH(QString, mensaje);
        QVERIFY(Abre(','));
        const QByteArray nombre = campo.toLatin1();
        Teclea(nombre.constData(), texto);
        LimpiaBanderas();  // clicking into a field after TX_GC has passed TX_GC
        Tabula(nombre.constData());
        QCOMPARE(Mensajes().size(), std::size_t{1});
        QCOMPARE(Mensajes()[0].texto, mensaje);
        QVERIFY(Mensajes()[0].estilo == Estilo::Parada);
        CompruebaDevuelto(nombre.constData(), texto);
        QVERIFY(EstadoIntacto());
        QVERIFY(BanderasIntactas());
    }

    void elMensajeVuelveCadaVezQueSeSale()
    {
        QVERIFY(Abre(','));
        Escribe("TX_GC", QString());
        Tabula("TX_GC");
        QCOMPARE(Mensajes().size(), std::size_t{2});
        QCOMPARE(Mensajes()[1].texto, Texto("Debe darse el coeficiente de seguridad del hormigón."));
        CompruebaDevuelto("TX_GC", QString());
    }

    void reescrituraConAmbosSeparadores_data()
    {
        QTest::addColumn<char>("separador");
        QTest::addColumn<QString>("entrada");
        QTest::addColumn<QString>("escrito");
        // clang-format off
        QTest::newRow("coma, punto tecleado") << ',' << "1.5" << "1,50";
        QTest::newRow("punto, coma tecleada") << '.' << "1,5" << "1.50";
        QTest::newRow("coma, entero") << ',' << "2" << "2,00";
        QTest::newRow("punto, entero") << '.' << "2" << "2.00";
        QTest::newRow("coma, blancos alrededor") << ',' << "  1,35  " << "1,35";
        QTest::newRow("punto, blancos alrededor") << '.' << " 1.35 " << "1.35";
        QTest::newRow("coma, redondeo") << ',' << "1,005" << "1,01";
        QTest::newRow("punto, negativo") << '.' << "-1,234" << "1.23";
        QTest::newRow("coma, exponente") << ',' << "1e1" << "10,00";
        QTest::newRow("coma, miles no entendidos") << ',' << "1.234,5" << "1,23";
        QTest::newRow("coma, exactamente 1") << ',' << "1,000" << "1,00";
        // clang-format on
    }

    void reescrituraConAmbosSeparadores()
    {
        QFETCH(char, separador);
        QFETCH(QString, entrada);
        QFETCH(QString, escrito);
        QVERIFY(Abre(separador));
        Escribe("TX_GS", entrada);
        QVERIFY(Mensajes().empty());
        QCOMPARE(Campo("TX_GS")->text(), escrito);
        QCOMPARE(QApplication::focusWidget(), Campo("TX_GR"));
        QVERIFY(EstadoIntacto());
    }

    void pasarUnCampoMarcaSinTocarElEstadoNiLosBotones()
    {
        QVERIFY(Abre(','));
        Tabula("TX_GC");
        Tabula("TX_GS");
        QVERIFY(BanderasDeCambio());
        QVERIFY(EstadoIntacto());
        for (QPushButton* boton : dialogo_->findChildren<QPushButton*>())
            QVERIFY(boton->isEnabled());
        QCOMPARE(Campo("TX_GC")->text(), QStringLiteral("1,60"));
    }

    void restablecerYCancelarConservaElEstado()
    {
        QVERIFY(Abre(','));
        Pulsa("CM_RESTAURAR");
        QCOMPARE(Campo("TX_GC")->text(), QStringLiteral("1,50"));
        QCOMPARE(Campo("TX_GS")->text(), QStringLiteral("1,15"));
        QCOMPARE(Campo("TX_GR")->text(), QStringLiteral("1,40"));
        Pulsa("CM_CANCELAR");
        QCOMPARE(dialogo_->result(), int(QDialog::Rejected));
        QVERIFY(EstadoIntacto());
    }

    void restablecerNoMarcaNada_data() { DatosSeparador(); }

    void restablecerNoMarcaNada()
    {
        QFETCH(char, separador);
        QVERIFY(Abre(separador));
        Pulsa("CM_RESTAURAR");  // the click takes the focus from TX_GC, which passes
        LimpiaBanderas();
        QTest::keyClick(Boton("CM_RESTAURAR"), Qt::Key_Space);
        QCOMPARE(Campo("TX_GS")->text(), ConSeparador(QStringLiteral("1,15"), separador));
        QVERIFY(BanderasIntactas());
        QVERIFY(EstadoIntacto());
        QVERIFY(dialogo_->isVisible());
    }

    void restablecerYAceptarGuardaLosValoresDelPrograma_data() { DatosSeparador(); }

    void restablecerYAceptarGuardaLosValoresDelPrograma()
    {
        QFETCH(char, separador);
        QVERIFY(Abre(separador));
        Pulsa("CM_RESTAURAR");
        Pulsa("CM_ACEPTAR");
        QVERIFY(!dialogo_->isVisible());
        QCOMPARE(dialogo_->result(), int(QDialog::Accepted));
        QCOMPARE(Estado().GC, 1.5);
        QCOMPARE(Estado().GS, 1.15);
        QCOMPARE(Estado().GR, 1.4);
        QVERIFY(Mensajes().empty());
    }

    void restablecerYAceptarSinSalirDeUnCampoDejaLosResultados()
    {
        // Only the keyboard reaches the buttons without a field losing the focus afterwards:
        // Tab to Restablecer, then back to Aceptar.
        QVERIFY(Abre(','));
        LlegaConTabYPulsa(5, "CM_RESTAURAR");
        QTest::keyClick(Boton("CM_RESTAURAR"), Qt::Key_Backtab);
        QTest::keyClick(Boton("CM_CANCELAR"), Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), Boton("CM_ACEPTAR"));
        QTest::keyClick(Boton("CM_ACEPTAR"), Qt::Key_Space);
        QCOMPARE(dialogo_->result(), int(QDialog::Accepted));
        CompruebaCoeficientes(1.5, 1.15, 1.4);
        QVERIFY(BanderasIntactas());
    }

    void aceptarConElRatonYUnCampoMalNoAcepta_data()
    {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("mensaje");
        QTest::newRow("TX_GC") << "TX_GC"
                               << "0,5" << Texto("El coeficiente de seguridad del hormigón no puede ser menor que 1.");
        QTest::newRow("TX_GS") << "TX_GS"
                               << "abc" << Texto("El coeficiente de seguridad del acero de ser un número.");
        QTest::newRow("TX_GR") << "TX_GR"
                               << "" << Texto("Debe darse el coeficiente de seguridad del refuerzo TEXALON®.");
    }

    void aceptarConElRatonYUnCampoMalNoAcepta()
    {
        QFETCH(QString, campo);
        QFETCH(QString, texto);
        QFETCH(QString, mensaje);
        QVERIFY(Abre(','));
        Teclea(qPrintable(campo), texto);
        Pulsa("CM_ACEPTAR");
        QCOMPARE(Mensajes().size(), std::size_t{1});
        QCOMPARE(Mensajes()[0].texto, mensaje);
        QVERIFY(Mensajes()[0].estilo == Estilo::Parada);
        QVERIFY(dialogo_->isVisible());
        QCOMPARE(dialogo_->result(), int(QDialog::Rejected));
        CompruebaDevuelto(qPrintable(campo), texto);
        QVERIFY(EstadoIntacto());
        QVERIFY(doble_->proceso.erroresFatales.empty());
    }

    void aceptarLeeElSeparadorDeLaMaquina_data() { DatosSeparador(); }

    void aceptarLeeElSeparadorDeLaMaquina()
    {
        QFETCH(char, separador);
        QVERIFY(Abre(separador));
        Escribe("TX_GC", ConSeparador(QStringLiteral("1,60"), separador));
        Escribe("TX_GS", QStringLiteral("1,3"));
        Teclea("TX_GR", QStringLiteral("-2.75"));
        Pulsa("CM_ACEPTAR");
        QVERIFY(Mensajes().empty());
        QCOMPARE(dialogo_->result(), int(QDialog::Accepted));
        QCOMPARE(Estado().GC, 1.6);
        QCOMPARE(Estado().GS, 1.3);
        QCOMPARE(Estado().GR, 2.75);
        QVERIFY(BanderasDeCambio());
    }

    void aceptarNoPoneBanderasYGuardaLoQueSeVe()
    {
        QVERIFY(Abre(','));
        LlegaConTabYPulsa(3, "CM_ACEPTAR");
        QCOMPARE(dialogo_->result(), int(QDialog::Accepted));
        // GR is what the field shows, not what the state held.
        CompruebaCoeficientes(1.6, 1.25, 1.33);
        QVERIFY(BanderasIntactas());
    }

    // A text that no check has seen: written in a field while the focus stands on Aceptar.
    void textoSinProbarPasaPorAceptar_data()
    {
        prueba::Columnas<char, QString, double>({"separador", "texto", "valor"});
        QTest::newRow("coma, menor que 1") << ',' << "0,5" << 0.5;
        QTest::newRow("punto, menor que 1") << '.' << "0.5" << 0.5;
        QTest::newRow("coma, sin reescribir") << ',' << " 1,3 " << 1.3;
        QTest::newRow("punto, negativo") << '.' << "-1.5" << -1.5;
        QTest::newRow("coma, con signo más") << ',' << "+2,5" << 2.5;
        QTest::newRow("punto, exponente") << '.' << "1.2e1" << 12.0;
    }

    void textoSinProbarPasaPorAceptar()
    {
        QFETCH(char, separador);
        QFETCH(QString, texto);
        QFETCH(double, valor);
        QVERIFY(Abre(separador));
        VuelveAAceptar();
        QCOMPARE(QApplication::focusWidget(), Boton("CM_ACEPTAR"));
        Campo("TX_GS")->setText(texto);
        QTest::keyClick(Boton("CM_ACEPTAR"), Qt::Key_Space);
        QVERIFY(Mensajes().empty());
        QCOMPARE(dialogo_->result(), int(QDialog::Accepted));
        QCOMPARE(Campo("TX_GS")->text(), texto);
        QCOMPARE(Estado().GS, valor);
        QCOMPARE(Estado().GC, 1.5);
        QCOMPARE(Estado().GR, 1.4);
    }

    void textoIlegibleEnAceptarEsErrorDeEjecucion_data()
    {
        QTest::addColumn<char>("separador");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("error");
        const QString tipos = QStringLiteral(
            "Se ha producido el error '13' en tiempo de ejecución:\r\r"
            "No coinciden los tipos");
        QTest::newRow("letras") << ',' << "abc" << tipos;
        QTest::newRow("vacío") << '.' << "" << tipos;
        QTest::newRow("coma en máquina de punto") << '.' << "1,5" << tipos;
        QTest::newRow("punto en máquina de coma") << ',' << "1.5" << tipos;
        QTest::newRow("infinito") << '.' << "inf" << tipos;
        QTest::newRow("dos signos") << ',' << "+-1" << tipos;
        QTest::newRow("desbordamiento")
            << '.' << "1e999"
            << QStringLiteral("Se ha producido el error '6' en tiempo de ejecución:\r\rDesbordamiento");
    }

    void textoIlegibleEnAceptarEsErrorDeEjecucion()
    {
        QFETCH(char, separador);
        QFETCH(QString, texto);
        QFETCH(QString, error);
        QVERIFY(Abre(separador));
        VuelveAAceptar();
        Campo("TX_GR")->setText(texto);
        QTest::keyClick(Boton("CM_ACEPTAR"), Qt::Key_Space);
        QCOMPARE(doble_->proceso.erroresFatales.size(), std::size_t{1});
        QCOMPARE(doble_->proceso.erroresFatales[0].texto, error);
        QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{1});
        QVERIFY(EstadoIntacto());
        QVERIFY(Mensajes().empty());
    }

    void introEnUnCampoNoHaceNada()
    {
        QVERIFY(Abre(','));
        QVERIFY(Boton("CM_ACEPTAR")->isDefault());  // Enter reaches it, but it has no focus
        Campo("TX_GC")->setText(QStringLiteral("0,5"));
        QTest::keyClick(Campo("TX_GC"), Qt::Key_Return);
        QTest::keyClick(Campo("TX_GC"), Qt::Key_Enter);
        QVERIFY(dialogo_->isVisible());
        QCOMPARE(QApplication::focusWidget(), Campo("TX_GC"));
        QVERIFY(Mensajes().empty());
        QVERIFY(EstadoIntacto());
        QVERIFY(BanderasIntactas());
    }

    void muestraPasaPorLaVentanaModalDeLaPlataforma()
    {
        doble_->ventanas.alMostrar = [](QDialog& dialogo) {
            dialogo.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialogo));
            QTest::mouseClick(dialogo.findChild<QPushButton*>(QStringLiteral("CM_RESTAURAR")), Qt::LeftButton);
            QTest::mouseClick(dialogo.findChild<QPushButton*>(QStringLiteral("CM_ACEPTAR")), Qt::LeftButton);
        };
        QCOMPARE(FmCoef::Muestra(nullptr), int(QDialog::Accepted));
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
        QCOMPARE(Estado().GC, 1.5);
        QCOMPARE(Estado().GS, 1.15);
        QCOMPARE(Estado().GR, 1.4);
    }

    void muestraSinRespuestaEsCancelar()
    {
        QCOMPARE(FmCoef::Muestra(nullptr), int(QDialog::Rejected));
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
        QVERIFY(EstadoIntacto());
        QVERIFY(BanderasIntactas());
        QVERIFY(Mensajes().empty());
    }
};

int main(int argc, char** argv) { return prueba::Ejecuta<PruebaCoef>(argc, argv); }

#include "test_fm_coef.moc"
