#include "comun/Pantallas.h"
#include "comun/Usuario.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/CampoResultado.h"
#include "screens/Entrada.h"
#include "screens/FmConfina.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "state/Formato.h"
#include "state/General.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

const QString kRelacion = QStringLiteral("La relación entre lados del elemento a confinar debe ser menor de 1,5.");
const QString kLadoMenor = QStringLiteral("El lado menor debe ser un número más pequeño que el lado mayor.");
const QString kPregunta = QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?");

}  // namespace

class PruebaConfina : public prueba::PruebaDePantalla {
    Q_OBJECT

    QPointer<FmConfina> pantalla_;

    Formulario* EnPrueba() const override { return pantalla_; }

    // A fresh state with the start values, changed as the test needs before the load, and the
    // screen loaded over it, shown and active.
    FmConfina& Abre(char separador = ',', const std::function<void(General&)>& prepara = {})
    {
        delete pantalla_;
        Estado() = General{};
        ValoresIniciales(Estado());
        if (prepara) prepara(Estado());
        NuevosDobles(separador);
        pantalla_ = new FmConfina;
        pantalla_->show();
        pantalla_->activateWindow();
        if (!QTest::qWaitForWindowActive(pantalla_)) qWarning("la pantalla no se ha activado");
        return *pantalla_;
    }

    // The screen opened on a rectangular column with these sides.
    FmConfina& AbreRectangular(double diam, double ladoMenor)
    {
        return Abre(',', [diam, ladoMenor](General& g) {
            g.SECCION = 3;
            g.DIAM = diam;
            g.LADOMENOR = ladoMenor;
        });
    }

    QComboBox* Seccion() { return Lista("CO_SECCION"); }
    RejillaResultados* Rejilla() { return qobject_cast<RejillaResultados*>(C("FG_CONFINA")); }
    QLabel* Etiqueta(const char* nombre) { return qobject_cast<QLabel*>(C(nombre)); }
    void Escribe(const char* nombre, const QString& texto) { prueba::EscribeYTabula(C(nombre), texto); }

    void Calcula() { prueba::Pulsa(C("CM_CALCULAR")); }

    // Opens the list of sections with the mouse and clicks the row.
    void EligeConRaton(int fila)
    {
        QComboBox* seccion = Seccion();
        prueba::Pulsa(seccion);
        QTRY_VERIFY(seccion->view()->isVisible());
        // The list ignores a release that comes as quickly as the second half of a double click.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QAbstractItemView* vista = seccion->view();
        const QRect celda = vista->visualRect(vista->model()->index(fila, 0));
        QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, celda.center());
        QTRY_VERIFY(!vista->isVisible());
    }

    // Moves the section with the arrow keys, the list having the focus.
    void MueveConTeclas(Qt::Key tecla, int veces = 1)
    {
        QVERIFY(prueba::Enfoca(Seccion()));
        for (int i = 0; i < veces; ++i)
            QTest::keyClick(Seccion(), tecla);
    }

private slots:
    void cleanup() { CierraPantalla(); }

    // ---- The load.

    void cargaConTituloPanelesYCampos_data() { prueba::FilasSeparador(); }

    void cargaConTituloPanelesYCampos()
    {
        QFETCH(char, separador);
        FmConfina& p = Abre(separador);
        QCOMPARE(p.objectName(), QStringLiteral("FM_CONFINA"));
        QCOMPARE(p.windowTitle(), QStringLiteral("Refuerzo a confinamiento"));
        const std::pair<const char*, const char*> marcos[] = {
            {"Frame1", "Incremento de resistencia debido al confinamiento"},
            {"Frame2", "Datos de la sección"},
            {"Frame3", "Valores adoptados en el cálculo"},
            {"Frame4", "Resultados de la sección"}};
        for (const auto& [nombre, titulo] : marcos)
            QCOMPARE(p.findChild<QGroupBox*>(QString::fromLatin1(nombre))->title(), QString::fromUtf8(titulo));
        QVERIFY(Estado().F_CONFINA);
        QVERIFY(!Estado().F_GRABADO);
        QVERIFY(Estado().F_NUEVO);
        QCOMPARE(Seccion()->count(), 3);
        QCOMPARE(Seccion()->itemText(0), QStringLiteral("CIRCULAR"));
        QCOMPARE(Seccion()->itemText(1), QStringLiteral("CUADRADA"));
        QCOMPARE(Seccion()->itemText(2), QStringLiteral("RECTANGULAR"));
        QCOMPARE(Seccion()->currentIndex(), 0);
        QVERIFY(!Seccion()->isEditable());
        QCOMPARE(Campo("TX_DIAM")->text(), Sep("0,500"));
        QCOMPARE(Campo("TX_LADOMENOR")->text(), Sep("0,400"));
        QCOMPARE(Campo("TX_INCR")->text(), Sep("1,00"));
        QCOMPARE(Campo("TX_NCP")->text(), Sep("0,00"));
        QCOMPARE(Campo("TX_NU")->text(), Sep("0,50"));
        QCOMPARE(Campo("TX_ALFAN")->text(), Sep("1,000"));
        QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("25"));
        QCOMPARE(Lista("CO_FCK")->count(), 6);
        QVERIFY(!C("CM_CONFINA")->isEnabled());
        QVERIFY(C("CM_SECCION")->isEnabled());
        QVERIFY(C("CM_CALCULAR")->isEnabled());
        QVERIFY(!Rejilla()->EstaActiva());
        QVERIFY(!C("LB_INFO")->isVisible());
        QCOMPARE(Etiqueta("LB_TIPO")->text(), QString());
        QCOMPARE(Rejilla()->rowCount(), 6);
        QCOMPARE(Rejilla()->columnCount(), 4);
    }

    void laFilaDelLadoMenorSeVeGrisSiNoEsRectangular()
    {
        Abre();
        for (const char* nombre : {"LB_LM", "TX_LADOMENOR", "LB_LMU"}) {
            QVERIFY2(C(nombre)->isVisible(), nombre);
            QVERIFY2(!C(nombre)->isEnabled(), nombre);
        }
        QCOMPARE(Etiqueta("LB_LM")->text(), QStringLiteral("Lado menor"));
        QCOMPARE(Etiqueta("LB_LMU")->text(), QStringLiteral("m"));
        AbreRectangular(0.5, 0.4);
        for (const char* nombre : {"LB_LM", "TX_LADOMENOR", "LB_LMU"})
            QVERIFY2(C(nombre)->isEnabled(), nombre);
        QCOMPARE(Seccion()->currentIndex(), 2);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,167"));
    }

    void etiquetasUnidadesYConsejos()
    {
        Abre();
        const std::pair<const char*, const char*> etiquetas[] = {
            {"CO_SECCION", "Tipo de sección"},    {"TX_DIAM", "Diámetro/Lado"}, {"TX_LADOMENOR", "Lado menor"},
            {"TX_INCR", "Incr. de resistencia"},  {"TX_NCP", "Axil actual"},    {"CO_FCK", "fck"},
            {"TX_ALFAN", "Coeficiente de forma"}, {"TX_NU", "Coef. Poisson"}};
        for (const auto& [nombre, etiqueta] : etiquetas)
            QCOMPARE(C(nombre)->accessibleName(), QString::fromUtf8(etiqueta));
        const std::pair<const char*, const char*> consejos[] = {
            {"TX_EPS0", "Predeformación de la sección"},
            {"TX_WC", "Volumen de hormigón confinado"},
            {"TX_WR", "Volumen de refuerzo TEXALON® de confinamiento"},
            {"TX_WWD", "Cuantía volumétrica"},
            {"TX_EPSR", "Deformación del refuerzo TEXALON®"},
            {"TX_SIGMAR", "Tensión del refuerzo TEXALON®"},
            {"TX_TENSCONF", "Tensión de confinamiento"},
            {"TX_RESU", "Incremento de resistencia"},
            {"CM_CALCULAR", "Calcular confinamiento"},
            {"CM_CONFINA", "Diagrama Capas-Incremento de resistencia"},
            {"CM_SECCION", "Sección"}};
        for (const auto& [nombre, consejo] : consejos)
            QCOMPARE(C(nombre)->toolTip(), QString::fromUtf8(consejo));
        QCOMPARE(qobject_cast<QPushButton*>(C("CM_GAMMA1"))->text(), QStringLiteral("γ"));
        QVERIFY(C("CM_GAMMA2") == nullptr);
        // The units beside the fields, as the rows read.
        QStringList textos;
        for (QLabel* etiqueta : pantalla_->findChild<QGroupBox*>(QStringLiteral("Frame2"))->findChildren<QLabel*>())
            textos << etiqueta->text();
        for (const char* texto : {"m", "kN", "N/mm²", "f<sub>ck</sub>"})
            QVERIFY2(textos.contains(QString::fromUtf8(texto)), texto);
    }

    void laCargaDejaLaPantallaModificada()
    {
        Abre();
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CALCULADO);
    }

    void abiertaDeFicheroYCerradaEnseguidaPregunta()
    {
        Abre(',', [](General& g) { g.F_ABIERTO = true; });
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_NUEVO);
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList{kPregunta});
        QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::PreguntaSiNo);
    }

    void unaSeccionFueraDeLaListaNoEligeFilaNiMarcaNada()
    {
        Abre(',', [](General& g) {
            g.SECCION = 7;
            g.ALFAN = 0.77;
        });
        QCOMPARE(Seccion()->currentIndex(), -1);
        QVERIFY(!Estado().F_MODIFICADO);
        QCOMPARE(Estado().ALFAN, 0.77);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,770"));
        QVERIFY(!C("TX_LADOMENOR")->isEnabled());
    }

    void alAbrirElFocoEstaEnElTipoDeSeccion()
    {
        Abre();
        QCOMPARE(QApplication::focusWidget(), C("CO_SECCION"));
        QVERIFY(Mensajes().isEmpty());
    }

    void unMensajeDeLaCargaLlevaElFocoAlLadoMenor()
    {
        // A file may hold a rectangle of ratio 1.75: the load's change of section refuses it.
        AbreRectangular(0.7, 0.4);
        QCOMPARE(Mensajes(), QStringList{kRelacion});
        QCOMPARE(QApplication::focusWidget(), C("TX_LADOMENOR"));
        QCOMPARE(Estado().SECCION, Entero{3});
        QCOMPARE(Estado().DIAM, 0.7);
        QCOMPARE(Campo("TX_LADOMENOR")->text(), QStringLiteral("0,400"));
    }

    // ---- The change of section.

    void rectangularConLadosIgualesPorRaton()
    {
        Abre(',', [](General& g) {
            g.DIAM = 0.4;
            g.LADOMENOR = 0.4;
        });
        Calcula();
        QVERIFY(C("CM_CONFINA")->isEnabled());
        EligeConRaton(2);
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().SECCION, Entero{3});
        QCOMPARE(Estado().ALFAN, 1.0 - 2.0 / 3.0);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,333"));
        QVERIFY(C("TX_LADOMENOR")->isEnabled());
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CALCULADO);
        // Only a click greys the diagram button.
        QVERIFY(!C("CM_CONFINA")->isEnabled());
    }

    void cambioPorTecladoDejaElBotonDelDiagrama()
    {
        Abre();
        Calcula();
        QVERIFY(C("CM_CONFINA")->isEnabled());
        Estado().F_MODIFICADO = false;
        MueveConTeclas(Qt::Key_Down);
        QCOMPARE(Seccion()->currentIndex(), 1);
        QCOMPARE(Estado().SECCION, Entero{2});
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,333"));
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(C("CM_CONFINA")->isEnabled());
        MueveConTeclas(Qt::Key_Down);
        QCOMPARE(Estado().SECCION, Entero{3});
        QVERIFY(C("TX_LADOMENOR")->isEnabled());
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,167"));
        QVERIFY(C("CM_CONFINA")->isEnabled());
        QVERIFY(Mensajes().isEmpty());
    }

    void cualquierTeclaEnLaListaMarcaElProyecto()
    {
        Abre();
        QVERIFY(prueba::Enfoca(Seccion()));
        Estado().F_MODIFICADO = false;
        Estado().F_CALCULADO = true;
        QTest::keyClick(Seccion(), Qt::Key_Shift);
        QCOMPARE(Seccion()->currentIndex(), 0);
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CALCULADO);
    }

    void ladoMenorMayorQueElLadoAlElegirRectangular_data()
    {
        QTest::addColumn<bool>("porRaton");
        QTest::newRow("raton") << true;
        QTest::newRow("teclado") << false;
    }

    void ladoMenorMayorQueElLadoAlElegirRectangular()
    {
        QFETCH(bool, porRaton);
        Abre(',', [](General& g) {
            g.SECCION = 2;
            g.DIAM = 0.3;
            g.LADOMENOR = 0.4;
        });
        if (porRaton)
            EligeConRaton(2);
        else
            MueveConTeclas(Qt::Key_Down);
        // One message for the key's down; its up happens with the focus elsewhere.
        QCOMPARE(Mensajes(), QStringList{kLadoMenor});
        QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
        QCOMPARE(QApplication::focusWidget(), C("TX_LADOMENOR"));
        QCOMPARE(Campo("TX_LADOMENOR")->selectedText(), QStringLiteral("0,400"));
        // The handler goes on: nothing is reset and the section stays rectangular.
        QCOMPARE(Estado().SECCION, Entero{3});
        QCOMPARE(Estado().DIAM, 0.3);
        QCOMPARE(Estado().LADOMENOR, 0.4);
        QCOMPARE(Estado().ALFAN, 0.5);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,500"));
        QVERIFY(Estado().F_MODIFICADO);
    }

    void relacionDeUnoYMedioPasaAlCambiarDeSeccion()
    {
        Abre(',', [](General& g) {
            g.DIAM = 0.6;
            g.LADOMENOR = 0.4;
        });
        EligeConRaton(2);
        QVERIFY(Mensajes().isEmpty());
        Abre(',', [](General& g) {
            g.DIAM = 0.61;
            g.LADOMENOR = 0.4;
        });
        EligeConRaton(2);
        QCOMPARE(Mensajes(), QStringList{kRelacion});
        QCOMPARE(QApplication::focusWidget(), C("TX_LADOMENOR"));
        QCOMPARE(Estado().SECCION, Entero{3});
    }

    void circularPoneGrisElLadoMenorQueSigueEnElFichero()
    {
        AbreRectangular(0.5, 0.35);
        EligeConRaton(0);
        QVERIFY(!C("TX_LADOMENOR")->isEnabled());
        QVERIFY(!C("LB_LM")->isEnabled());
        QCOMPARE(Estado().LADOMENOR, 0.35);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("1,000"));
        const QString fichero = QDir::temp().filePath(QStringLiteral("texalon_prueba_circular.vmc"));
        doble_->mensajes.respuestas = {Respuesta::Si};
        doble_->ficheros.respuestas.push_back(FicheroElegido{fichero, QDir::tempPath()});
        pantalla_->close();
        QCOMPARE(Contenido(fichero), std::string("1\r\n0.5\r\n0.35\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n"));
        QFile::remove(fichero);
    }

    void laRuedaSobreLaSeccionSinFocoNoLaCambia()
    {
        Abre();
        QVERIFY(prueba::Enfoca(C("TX_DIAM")));
        Estado().F_MODIFICADO = false;
        const QPointF centro = QRectF(Seccion()->rect()).center();
        QWheelEvent rueda(centro, Seccion()->mapToGlobal(centro), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Seccion(), &rueda);
        QCOMPARE(Seccion()->currentIndex(), 0);
        QCOMPARE(Estado().SECCION, Entero{1});
        QVERIFY(!Estado().F_MODIFICADO);
    }

    // ---- The fields.

    void cadaCampoConSusMensajesYSuReinicio_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("vacio");
        QTest::addColumn<QString>("noNumero");
        QTest::addColumn<double>("reinicio");
        const auto fila = [](const char* control, const char* vacio, const char* noNumero, double reinicio) {
            QTest::newRow(control) << QString::fromLatin1(control) << QString::fromUtf8(vacio)
                                   << QString::fromUtf8(noNumero) << reinicio;
        };
        fila("TX_DIAM", "Debe darse el diámetro o lado del elemento a confinar.",
             "El diámetro o lado debe ser un número.", 0.5);
        fila("TX_LADOMENOR", "Debe darse el lado menor del elemento a confinar.", "El lado menor debe ser un número.",
             0.4);
        fila("TX_INCR", "Debe darse el incremento de resistencia necesario.",
             "El incremento de resistencia necesario debe ser un número.", 1.0);
        fila("TX_NCP", "Debe darse el axil que actúa en el momento de colocar el refuerzo.",
             "El axil que actúa en el momento de colocar el refuerzo debe ser un número.", 0.0);
        fila("CO_FCK", "Debe darse la resistencia del hormigón de la sección.",
             "La resistencia del hormigón de la sección debe ser un número.", 25.0);
    }

    void cadaCampoConSusMensajesYSuReinicio()
    {
        QFETCH(QString, control);
        QFETCH(QString, vacio);
        QFETCH(QString, noNumero);
        QFETCH(double, reinicio);
        AbreRectangular(0.5, 0.4);
        const QByteArray nombre = control.toLatin1();
        double General::*campo = nullptr;
        for (const auto& [n, c] :
             std::initializer_list<std::pair<const char*, double General::*>>{{"TX_DIAM", &General::DIAM},
                                                                              {"TX_LADOMENOR", &General::LADOMENOR},
                                                                              {"TX_INCR", &General::INCR},
                                                                              {"TX_NCP", &General::NCP},
                                                                              {"CO_FCK", &General::FCK}})
            if (control == QLatin1String(n)) campo = c;
        QVERIFY(prueba::Enfoca(C(nombre.constData())));
        Calcula();
        QVERIFY(prueba::Enfoca(C(nombre.constData())));
        Estado().F_MODIFICADO = false;
        for (const QString& texto : {QString(), QStringLiteral("12a"), QStringLiteral("   ")}) {
            // A state value away from the reset shows that the failure writes the reset.
            Estado().*campo = 0.123;
            doble_->mensajes.mostrados.clear();
            Escribe(nombre.constData(), texto);
            QCOMPARE(Mensajes(), QStringList{texto.isEmpty() ? vacio : noNumero});
            QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
            QCOMPARE(Estado().*campo, reinicio);
            QVERIFY(C(nombre.constData())->hasFocus());
            QCOMPARE(TextoDe(C(nombre.constData())), texto);
        }
        // A failure touches neither the flags nor the diagram button.
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(C("CM_CONFINA")->isEnabled());
    }

    void limitesDeCadaCampo_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("fuera");
        QTest::addColumn<QString>("exacto");
        QTest::addColumn<QString>("dentro");
        QTest::addColumn<QString>("mensaje");
        QTest::addColumn<double>("reinicio");
        QTest::addColumn<QString>("exactoEscrito");
        QTest::newRow("TX_DIAM") << "TX_DIAM"
                                 << "0,009"
                                 << "0,01"
                                 << "0,011" << QStringLiteral("El diámetro o lado debe ser mayor que cero.") << 0.5
                                 << "0,010";
        QTest::newRow("TX_LADOMENOR") << "TX_LADOMENOR"
                                      << "0,009"
                                      << "0,01"
                                      << "0,011" << QStringLiteral("El lado menor debe ser mayor que cero.") << 0.4
                                      << "0,010";
        QTest::newRow("TX_INCR") << "TX_INCR"
                                 << "0,99"
                                 << "1"
                                 << "1,01"
                                 << QStringLiteral("El incremento de resistencia necesario debe ser mayor que 1.")
                                 << 1.0 << "1,00";
        QTest::newRow("CO_FCK arriba")
            << "CO_FCK"
            << "51"
            << "50"
            << "49" << QStringLiteral("La resistencia del hormigón de la sección no puede ser mayor de 50 N/mm².")
            << 25.0 << "50";
        QTest::newRow("CO_FCK abajo")
            << "CO_FCK"
            << "14"
            << "15"
            << "16" << QStringLiteral("La resistencia del hormigón de la sección no puede ser menor de 15 N/mm².")
            << 25.0 << "15";
    }

    void limitesDeCadaCampo()
    {
        QFETCH(QString, control);
        QFETCH(QString, fuera);
        QFETCH(QString, exacto);
        QFETCH(QString, dentro);
        QFETCH(QString, mensaje);
        QFETCH(double, reinicio);
        QFETCH(QString, exactoEscrito);
        // Small sides whose ratio stays below 1.5 at every step: no test of the sides against
        // each other gets in the way.
        AbreRectangular(0.014, 0.01);
        const QByteArray nombre = control.toLatin1();
        Escribe(nombre.constData(), fuera);
        QCOMPARE(Mensajes(), QStringList{mensaje});
        QVERIFY(C(nombre.constData())->hasFocus());
        QCOMPARE(TextoDe(C(nombre.constData())), fuera);
        double General::*campo = control == QLatin1String("TX_DIAM")        ? &General::DIAM
                                 : control == QLatin1String("TX_LADOMENOR") ? &General::LADOMENOR
                                 : control == QLatin1String("TX_INCR")      ? &General::INCR
                                                                            : &General::FCK;
        QCOMPARE(Estado().*campo, reinicio);
        doble_->mensajes.mostrados.clear();
        Escribe(nombre.constData(), exacto);
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('|'))));
        QCOMPARE(TextoDe(C(nombre.constData())), exactoEscrito);
        Escribe(nombre.constData(), dentro);
        QVERIFY(Mensajes().isEmpty());
    }

    void aceptarReescribeEnSuFormatoYApagaSoloElDiagrama_data() { prueba::FilasSeparador(); }

    void aceptarReescribeEnSuFormatoYApagaSoloElDiagrama()
    {
        QFETCH(char, separador);
        Abre(separador);
        Calcula();
        QVERIFY(C("CM_CONFINA")->isEnabled());
        Estado().F_MODIFICADO = false;
        Escribe("TX_NCP", QStringLiteral("-1200,5"));
        QCOMPARE(Estado().NCP, 1200.5);
        QCOMPARE(Campo("TX_NCP")->text(), Sep("1200,50"));
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(!C("CM_CONFINA")->isEnabled());
        QVERIFY(C("CM_SECCION")->isEnabled());
        Escribe("TX_DIAM", QStringLiteral(" 0.45 "));
        QCOMPARE(Estado().DIAM, 0.45);
        QCOMPARE(Campo("TX_DIAM")->text(), Sep("0,450"));
        Escribe("TX_INCR", QStringLiteral("1,234"));
        QCOMPARE(Estado().INCR, 1.234);
        QCOMPARE(Campo("TX_INCR")->text(), Sep("1,23"));
        Escribe("CO_FCK", QStringLiteral("27"));
        QCOMPARE(Estado().FCK, 27.0);
        QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("27"));
        QVERIFY(Mensajes().isEmpty());
    }

    void incrementoUnoSeAceptaYCeroNoventaYNueveNo()
    {
        Abre();
        Escribe("TX_INCR", QStringLiteral("1"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().INCR, 1.0);
        Escribe("TX_INCR", QStringLiteral("0,99"));
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("El incremento de resistencia necesario debe ser mayor que 1.")});
        QCOMPARE(Estado().INCR, 1.0);
    }

    void axilCeroSeAceptaYCualquierNumeroTambien()
    {
        Abre();
        for (const char* texto : {"0", "-50", "250000"}) {
            Escribe("TX_NCP", QString::fromLatin1(texto));
            QCOMPARE(Estado().NCP, std::fabs(QString::fromLatin1(texto).toDouble()));
        }
        QVERIFY(Mensajes().isEmpty());
    }

    void ladoMenorIgualAlLadoSeAcepta()
    {
        AbreRectangular(0.5, 0.4);
        Escribe("TX_LADOMENOR", QStringLiteral("0,5"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().LADOMENOR, 0.5);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,333"));
    }

    void ladoMenorMayorQueElLadoSeRechaza()
    {
        // From a side other than the start value, so that the fall back to 0.4 shows.
        AbreRectangular(0.5, 0.45);
        Escribe("TX_LADOMENOR", QStringLiteral("0,51"));
        QCOMPARE(Mensajes(), QStringList{kLadoMenor});
        QCOMPARE(Estado().LADOMENOR, 0.4);
        QVERIFY(C("TX_LADOMENOR")->hasFocus());
    }

    void ladoMenorConRelacionDeUnoYMedioSeRechaza()
    {
        // 0.75 / 0.5 is exactly 1.5; the side typed and the one before both differ from the
        // start value 0.4 that the refusal puts back.
        AbreRectangular(0.75, 0.55);
        Escribe("TX_LADOMENOR", QStringLiteral("0,5"));
        QCOMPARE(Mensajes(), QStringList{kRelacion});
        QCOMPARE(Estado().LADOMENOR, 0.4);
        doble_->mensajes.mostrados.clear();
        Escribe("TX_LADOMENOR", QStringLiteral("0,501"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().LADOMENOR, 0.501);
    }

    void diametroCeroSeisConLadoMenorCeroCuatroEnRectangularVuelveACeroCinco()
    {
        // From a side other than the start value, so that the fall back to 0.5 shows.
        AbreRectangular(0.55, 0.4);
        Escribe("TX_DIAM", QStringLiteral("0,6"));
        QCOMPARE(Mensajes(), QStringList{kRelacion});
        QCOMPARE(Estado().DIAM, 0.5);
        QCOMPARE(Campo("TX_DIAM")->text(), QStringLiteral("0,6"));
        QVERIFY(C("TX_DIAM")->hasFocus());
        QCOMPARE(Campo("TX_DIAM")->selectedText(), QStringLiteral("0,6"));
        doble_->mensajes.mostrados.clear();
        Escribe("TX_DIAM", QStringLiteral("0,599"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().DIAM, 0.599);
    }

    void laRelacionSoloSePruebaEnRectangular()
    {
        Abre(',', [](General& g) {
            g.SECCION = 2;
            g.LADOMENOR = 0.4;
        });
        Escribe("TX_DIAM", QStringLiteral("0,9"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().DIAM, 0.9);
    }

    void unDiametroMenorQueElLadoMenorPasaYSeCalculaConEl()
    {
        AbreRectangular(0.5, 0.4);
        // Back to the list of sections, so as not to leave the short side, which would refuse.
        QVERIFY(prueba::Enfoca(C("TX_DIAM")));
        prueba::Teclea(C("TX_DIAM"), QStringLiteral("0,3"));
        QTest::keyClick(C("TX_DIAM"), Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), C("CO_SECCION"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().DIAM, 0.3);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,500"));
        Calcula();
        QVERIFY(Estado().F_CALCULADO);
        // The copy finds it: the close's save refuses the data.
        doble_->mensajes.respuestas = {Respuesta::Si};
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList({kPregunta, QStringLiteral("Los datos introducidos no son correctos.")}));
        QVERIFY(doble_->ficheros.guardados.empty());
    }

    void elCoeficienteDeFormaSeCalculaAlAceptarLosLados()
    {
        AbreRectangular(0.5, 0.4);
        Escribe("TX_DIAM", QStringLiteral("0,55"));
        QCOMPARE(Estado().ALFAN, 1.0 - ((2.0 / 3.0) * 0.55) / 0.4);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,083"));
        Escribe("TX_LADOMENOR", QStringLiteral("0,45"));
        QCOMPARE(Estado().ALFAN, 1.0 - ((2.0 / 3.0) * 0.55) / 0.45);
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,185"));
        // On a square the row gives 1 - 2/3 whatever the sides.
        EligeConRaton(1);
        Escribe("TX_DIAM", QStringLiteral("0,7"));
        QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("0,333"));
    }

    void losValoresAdoptadosNoSeEscriben()
    {
        Abre();
        for (const char* nombre : {"TX_ALFAN", "TX_NU"}) {
            QVERIFY2(Campo(nombre)->isReadOnly(), nombre);
            QCOMPARE(Campo(nombre)->focusPolicy(), Qt::NoFocus);
        }
        QTest::keyClicks(Campo("TX_NU"), QStringLiteral("0,3"));
        QCOMPARE(Campo("TX_NU")->text(), QStringLiteral("0,50"));
        QCOMPARE(Estado().NU, 0.5);
    }

    void laListaDeHormigonNoCompletaYAbrirlaNoComprueba()
    {
        Abre();
        Escribe("CO_FCK", QStringLiteral("4"));
        QCOMPARE(
            Mensajes(),
            QStringList{QStringLiteral("La resistencia del hormigón de la sección no puede ser menor de 15 N/mm².")});
        QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("4"));
        doble_->mensajes.mostrados.clear();
        QVERIFY(prueba::AbreConTeclado(Lista("CO_FCK")));
        QVERIFY(Mensajes().isEmpty());
        QTest::keyClick(Lista("CO_FCK")->view(), Qt::Key_Escape);
    }

    // ---- The calculation.

    void calculoPorDefecto_data() { prueba::FilasSeparador(); }

    void calculoPorDefecto()
    {
        QFETCH(char, separador);
        Abre(separador);
        Calcula();
        QVERIFY(Mensajes().isEmpty());
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(!C("LB_INFO")->isVisible());
        QVERIFY(C("CM_CONFINA")->isEnabled());
        QVERIFY(C("CM_SECCION")->isEnabled());
        RejillaResultados* r = Rejilla();
        QVERIFY(r->EstaActiva());
        QVERIFY(r->hasFocus());
        QCOMPARE(r->Fila(), 1);
        QCOMPARE(r->Columna(), 1);
        QCOMPARE(r->Texto(0, 0), QStringLiteral("Nº capas"));
        QCOMPARE(r->Texto(0, 1), QStringLiteral("TEXALON L"));
        QCOMPARE(r->Texto(0, 2), QStringLiteral("TEXALON H"));
        QCOMPARE(r->Texto(0, 3), QStringLiteral("TEXALON X"));
        const char* const esperado[5][3] = {{"1,03", "1,05", "1,11"},
                                            {"1,07", "1,11", "1,26"},
                                            {"1,11", "1,20", "1,37"},
                                            {"1,17", "1,27", "1,38"},
                                            {"1,23", "1,33", "1,38"}};
        for (int n = 1; n <= 5; ++n) {
            QCOMPARE(r->Texto(n, 0), QString::number(n));
            for (int t = 1; t <= 3; ++t) {
                QCOMPARE(r->Texto(n, t), Sep(esperado[n - 1][t - 1]));
                QCOMPARE(r->Color(n, t), QColor(255, 255, 0));
            }
        }
        QCOMPARE(Etiqueta("LB_TIPO")->text(), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
        QCOMPARE(Campo("TX_EPS0")->text(), Sep("0,00"));
        QCOMPARE(Campo("TX_WC")->text(), Sep("0,196350"));
        QCOMPARE(Campo("TX_WR")->text(), Sep("0,000174"));
        QCOMPARE(Campo("TX_WWD")->text(), Sep(Formato(Estado().WWD(1, 1), "0.000000", ',').c_str()));
        QCOMPARE(Campo("TX_EPSR")->text(), Sep(Formato(Estado().EPSRC(1, 1) * 1000.0, "0.00", ',').c_str()));
        QCOMPARE(Campo("TX_SIGMAR")->text(), Sep(Formato(Estado().SIGMAR(1, 1), "0.0", ',').c_str()));
        QCOMPARE(Campo("TX_TENSCONF")->text(), Sep(Formato(Estado().TENSCONF(1, 1), "0.000", ',').c_str()));
        QCOMPARE(Campo("TX_RESU")->text(), Sep("1,03"));
        QCOMPARE(Campo("TX_ALFAN")->text(), Sep("1,000"));
    }

    void incrementoUnoDejaElLetreroOculto()
    {
        AbreRectangular(0.5, 0.4);
        Calcula();
        QVERIFY(!C("LB_INFO")->isVisible());
        QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("1,01"));
    }

    void incrementoDosNoSePuedeReforzar()
    {
        Abre();
        Escribe("TX_INCR", QStringLiteral("2"));
        Calcula();
        auto* info = Etiqueta("LB_INFO");
        QVERIFY(info->isVisible());
        QCOMPARE(info->text(), QStringLiteral(" NO SE PUEDE REFORZAR LA SECCION "));
        QCOMPARE(info->palette().color(QPalette::Window), QColor(255, 0, 0));
        QCOMPARE(info->palette().color(QPalette::WindowText), QColor(Qt::white));
        QVERIFY(info->autoFillBackground());
        for (int n = 1; n <= 5; ++n)
            for (int t = 1; t <= 3; ++t) {
                QVERIFY(!Rejilla()->Texto(n, t).isEmpty());
                QCOMPARE(Rejilla()->Color(n, t), QColor(255, 255, 255));
            }
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(C("CM_CONFINA")->isEnabled());
        // A new Calculate that reaches INCR hides the label again.
        Escribe("TX_INCR", QStringLiteral("1,2"));
        Calcula();
        QVERIFY(!info->isVisible());
    }

    void elIncrementoYLaSeccionNoLosLeeCalcular()
    {
        Abre();
        // Their own handlers keep the state up to date; Calculate takes the state's values.
        Estado().INCR = 3.0;
        Calcula();
        QVERIFY(Etiqueta("LB_INFO")->isVisible());
        QCOMPARE(Campo("TX_INCR")->text(), QStringLiteral("1,00"));
    }

    void axilDeMilDaSuPredeformacion()
    {
        Abre();
        Escribe("TX_NCP", QStringLiteral("1000"));
        Calcula();
        QCOMPARE(Formato(Estado().EPS0, "0.00000000", '.'), std::string("0.00018148"));
        QCOMPARE(Campo("TX_EPS0")->text(), QStringLiteral("0,18"));
        QCOMPARE(Campo("TX_WWD")->text().left(6), QStringLiteral("0,0118"));
    }

    void predeformacionExcesivaParaYDejaLaRejillaInactiva()
    {
        Abre();
        Calcula();
        Escribe("TX_NCP", QStringLiteral("20000"));
        Calcula();
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("La predeformación de la estructura es superior al 2 por mil.")});
        QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
        QVERIFY(!Rejilla()->EstaActiva());
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(!C("CM_CONFINA")->isEnabled());
        QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("1,03"));
    }

    void laRejillaMuestraLaCeldaElegidaSinGuarda()
    {
        Abre();
        Calcula();
        // The confinement grid has no guard on F_CALCULANDO.
        Estado().F_CALCULANDO = true;
        Rejilla()->CeldaActual(3, 2);
        QCOMPARE(Etiqueta("LB_TIPO")->text(), QStringLiteral("Refuerzo tipo TEXALON H - Núm. capas: 3"));
        QCOMPARE(Campo("TX_RESU")->text(), QStringLiteral("1,20"));
        Estado().F_CALCULANDO = false;
        // A click of the mouse on a cell, and the keys.
        const QRect celda = Rejilla()->visualItemRect(Rejilla()->item(5, 3));
        QTest::mouseClick(Rejilla()->viewport(), Qt::LeftButton, {}, celda.center());
        QCOMPARE(Etiqueta("LB_TIPO")->text(), QStringLiteral("Refuerzo tipo TEXALON X - Núm. capas: 5"));
        QCOMPARE(Campo("TX_RESU")->text(), QStringLiteral("1,38"));
        QTest::keyClick(Rejilla(), Qt::Key_Up);
        QCOMPARE(Etiqueta("LB_TIPO")->text(), QStringLiteral("Refuerzo tipo TEXALON X - Núm. capas: 4"));
    }

    void losCoeficientesApaganElDiagramaPorCualquierSalida()
    {
        Abre();
        Calcula();
        QVERIFY(C("CM_CONFINA")->isEnabled());
        prueba::Pulsa(C("CM_GAMMA1"));
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
        QVERIFY(!C("CM_CONFINA")->isEnabled());
        QVERIFY(C("CM_SECCION")->isEnabled());
    }

    void desbordamientoAlCalcularEsErrorFatal()
    {
        // A diameter of 1e160 m passes every test: the calculation overflows on it.
        Abre(',', [](General& g) { g.DIAM = 1e160; });
        Calcula();
        QCOMPARE(doble_->proceso.erroresFatales.size(), std::size_t{1});
        QCOMPARE(doble_->proceso.erroresFatales[0].texto,
                 QStringLiteral("Se ha producido el error '6' en tiempo de ejecución:\r\rDesbordamiento"));
    }

    // ---- Values that no field has taken: a project file holds values that its fields refuse.

    void unValorQueSuCampoRechazaNoSeCalcula_data()
    {
        QTest::addColumn<QString>("valores");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("mensaje");
        // The file checks take any side above 0; the fields take 0.01 and up.
        for (const char* seccion : {"1", "2", "3"})
            QTest::addRow("diámetro en la sección %s", seccion)
                << QStringLiteral("SECCION=%1;DIAM=0.005;LADOMENOR=0.004").arg(QLatin1String(seccion)) << "TX_DIAM"
                << "El diámetro o lado debe ser mayor que cero.";
    }

    void unValorQueSuCampoRechazaNoSeCalcula()
    {
        QFETCH(QString, valores);
        QFETCH(QString, control);
        QFETCH(QString, mensaje);
        Abre(',', [&valores](General& g) { EscribeValores(g, valores); });
        Calcula();
        QCOMPARE(Mensajes(), QStringList{mensaje});
        QVERIFY(FocoYSeleccion(control.toLatin1().constData()));
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(!Rejilla()->EstaActiva());
        QVERIFY(!C("CM_CONFINA")->isEnabled());
    }

    void elPilarDeLadosEnRelacionTresConTresNoSeCalcula()
    {
        // The file's column of 0.5 by 0.15 m, whose calculation would never end: refused on the
        // load, and again at Calculate, which leaves the short side.
        AbreRectangular(0.5, 0.15);
        QCOMPARE(Mensajes(), QStringList{kRelacion});
        Calcula();
        QCOMPARE(Mensajes(), QStringList({kRelacion, kRelacion}));
        QVERIFY(FocoYSeleccion("TX_LADOMENOR"));
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(!Rejilla()->EstaActiva());
    }

    void unCoeficienteQueSuCampoRechazaSeCorrigeEnSuDialogo()
    {
        Abre(',', [](General& g) { g.GS = 0.5; });
        bool enfocado = false;
        doble_->ventanas.alMostrar = CorrigeCoeficiente("TX_GS", QStringLiteral("1,15"), enfocado);
        Calcula();
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("El coeficiente de seguridad del acero no puede ser menor de 1.")});
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
        QVERIFY(enfocado);
        QCOMPARE(Estado().GS, 1.15);
        QVERIFY(!Estado().F_CALCULADO);
        // Back on the screen, Calculate again: the coefficient typed is the one calculated with.
        pantalla_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(pantalla_));
        Calcula();
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(Rejilla()->EstaActiva());
    }

    // ---- The unload.

    void cerrarConSiGrabaConfinaVmc()
    {
        Abre();
        const QString fichero = QDir::temp().filePath(QStringLiteral("texalon_prueba_cierre.vmc"));
        doble_->mensajes.respuestas = {Respuesta::Si};
        doble_->ficheros.respuestas.push_back(FicheroElegido{fichero, QDir::tempPath()});
        EstadoDibujo().NLINEA = 4;
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList{kPregunta});
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("confina.vmc"));
        QCOMPARE(doble_->ficheros.guardados[0].filtro, QStringLiteral("Archivos TEXALON - Confinamiento|*.VMC"));
        QCOMPARE(doble_->ficheros.guardados[0].indiceFiltro, 1);
        QCOMPARE(Estado().FICHERO, fichero.toStdString());
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CONFINA);
        QVERIFY(!Estado().F_CALCULADO);
        QCOMPARE(EstadoDibujo().NLINEA, Entero{0});
        QCOMPARE(Contenido(fichero), std::string("1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n"));
        QFile::remove(fichero);
    }

    void cerrarConNoNoGraba()
    {
        Abre();
        doble_->mensajes.respuestas = {Respuesta::No};
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList{kPregunta});
        QVERIFY(doble_->ficheros.guardados.empty());
        QVERIFY(!Estado().F_CONFINA);
    }

    void cerrarConSiYUnCampoMaloSinDejarLoPierde()
    {
        Abre();
        QVERIFY(prueba::Enfoca(C("TX_DIAM")));
        prueba::Teclea(C("TX_DIAM"), QStringLiteral("abc"));
        doble_->mensajes.respuestas = {Respuesta::Si};
        pantalla_->close();
        // The closing screen checks no field: only the copy speaks.
        QCOMPARE(Mensajes(), QStringList({kPregunta, QStringLiteral("Los datos introducidos no son correctos.")}));
        QVERIFY(doble_->ficheros.guardados.empty());
    }

    void cancelarElDialogoDelCierreCierraSinDecirNada()
    {
        Abre();
        doble_->mensajes.respuestas = {Respuesta::Si};
        pantalla_->close();
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(Mensajes(), QStringList{kPregunta});
        QVERIFY(!Estado().F_GRABADO);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(pantalla_.isNull());
    }

    // ---- The keyboard path.

    void tabuladorSigueElOrdenDeLectura()
    {
        AbreRectangular(0.5, 0.4);
        Calcula();
        QVERIFY(prueba::Enfoca(C("CM_CALCULAR")));
        QCOMPARE(prueba::RecorridoTab(4), QStringList({"CM_SECCION", "CM_CONFINA", "FG_CONFINA", "CO_SECCION"}));
        // Each field passed greys the diagram button, which Tab then passes by.
        QCOMPARE(prueba::RecorridoTab(10),
                 QStringList({"TX_DIAM", "TX_LADOMENOR", "TX_INCR", "TX_NCP", "CO_FCK", "CM_GAMMA1", "CM_CALCULAR",
                              "CM_SECCION", "FG_CONFINA", "CO_SECCION"}));
        QVERIFY(Mensajes().isEmpty());
        // A circular column passes by the greyed short side.
        EligeConRaton(0);
        QVERIFY(prueba::Enfoca(Seccion()));
        QCOMPARE(prueba::RecorridoTab(3), QStringList({"TX_DIAM", "TX_INCR", "TX_NCP"}));
    }

    void deUnExtremoAOtroComoUnUsuario_data() { prueba::FilasSeparador(); }

    void deUnExtremoAOtroComoUnUsuario()
    {
        QFETCH(char, separador);
        Abre(separador);
        // The focus starts in the section kind: two steps down to the rectangle.
        QCOMPARE(QApplication::focusWidget(), C("CO_SECCION"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const auto teclea = [](const QString& texto) {
            prueba::Teclea(QApplication::focusWidget(), texto);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        };
        teclea(Sep("0,45"));  // Diámetro/Lado
        teclea(Sep("0,35"));  // Lado menor
        teclea(Sep("1,1"));  // Incr. de resistencia
        teclea(QStringLiteral("800"));  // Axil actual
        teclea(QStringLiteral("30"));  // fck
        QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('|'))));
        QCOMPARE(QApplication::focusWidget(), C("CM_GAMMA1"));
        Calcula();
        const General& g = Estado();
        QCOMPARE(g.SECCION, Entero{3});
        QCOMPARE(g.DIAM, 0.45);
        QCOMPARE(g.LADOMENOR, 0.35);
        QCOMPARE(g.INCR, 1.1);
        QCOMPARE(g.NCP, 800.0);
        QCOMPARE(g.FCK, 30.0);
        QVERIFY(g.F_CALCULADO);
        QCOMPARE(Campo("TX_ALFAN")->text(), Sep(Formato(1.0 - ((2.0 / 3.0) * 0.45) / 0.35, "0.000", ',').c_str()));
        for (int n = 1; n <= 5; ++n)
            for (int t = 1; t <= 3; ++t) {
                QCOMPARE(Rejilla()->Texto(n, t), Sep(Formato(g.RESU(t, n), "0.00", ',').c_str()));
                QCOMPARE(Rejilla()->Color(n, t), g.RESU(t, n) >= 1.1 ? QColor(255, 255, 0) : QColor(255, 255, 255));
            }
        QCOMPARE(Campo("TX_RESU")->text(), Rejilla()->Texto(1, 1));
        QCOMPARE(Campo("TX_EPS0")->text(), Sep(Formato(g.EPS0 * 1000.0, "0.00", ',').c_str()));
        QVERIFY(g.EPS0 > 0.0);
        // The keys then move in the grid, showing each cell.
        QTest::keyClick(Rejilla(), Qt::Key_Right);
        QCOMPARE(Etiqueta("LB_TIPO")->text(), QStringLiteral("Refuerzo tipo TEXALON H - Núm. capas: 1"));
        QCOMPARE(Campo("TX_RESU")->text(), Rejilla()->Texto(1, 2));
    }
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaConfina prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_fm_confina.moc"
