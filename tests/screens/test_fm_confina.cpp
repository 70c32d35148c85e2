// FM_CONFINA: the load, the change of section, the close and the keyboard path.
#include "PruebaConfina.h"
#include "comun/Ejecuta.h"

// ---- The load.

void PruebaConfina::cargaConTituloPanelesYCampos_data() { prueba::FilasSeparador(); }

void PruebaConfina::cargaConTituloPanelesYCampos()
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
    QCOMPARE(Textos({"TX_DIAM", "TX_LADOMENOR", "TX_INCR", "TX_NCP", "TX_NU", "TX_ALFAN"}),
             Sep({"0,500", "0,400", "1,00", "0,00", "0,50", "1,000"}));
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

void PruebaConfina::laFilaDelLadoMenorSeVeGrisSiNoEsRectangular()
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

void PruebaConfina::etiquetasUnidadesYConsejos()
{
    Abre();
    const std::pair<const char*, const char*> etiquetas[] = {
        {"CO_SECCION", "Tipo de sección"},    {"TX_DIAM", "Diámetro/Lado"}, {"TX_LADOMENOR", "Lado menor"},
        {"TX_INCR", "Incr. de resistencia"},  {"TX_NCP", "Axil actual"},    {"CO_FCK", "fck"},
        {"TX_ALFAN", "Coeficiente de forma"}, {"TX_NU", "Coef. Poisson"}};
    for (const auto& [nombre, etiqueta] : etiquetas)
        QCOMPARE(C(nombre)->accessibleName(), QString::fromUtf8(etiqueta));
    const std::pair<const char*, const char*> consejos[] = {{"TX_EPS0", "Predeformación de la sección"},
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

void PruebaConfina::laCargaDejaLaPantallaModificada()
{
    Abre();
    QVERIFY(Estado().F_MODIFICADO);
    QVERIFY(!Estado().F_CALCULADO);
}

void PruebaConfina::abiertaDeFicheroYCerradaEnseguidaPregunta()
{
    Abre(',', [](General& g) { g.F_ABIERTO = true; });
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_NUEVO);
    pantalla_->close();
    QCOMPARE(Mensajes(), QStringList{kPregunta});
    QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::PreguntaSiNo);
}

void PruebaConfina::unaSeccionFueraDeLaListaNoEligeFilaNiMarcaNada()
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

void PruebaConfina::alAbrirElFocoEstaEnElTipoDeSeccion()
{
    Abre();
    QCOMPARE(QApplication::focusWidget(), C("CO_SECCION"));
    QVERIFY(Mensajes().isEmpty());
}

void PruebaConfina::unMensajeDeLaCargaLlevaElFocoAlLadoMenor()
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

void PruebaConfina::rectangularConLadosIgualesPorRaton()
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

void PruebaConfina::cambioPorTecladoDejaElBotonDelDiagrama()
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

void PruebaConfina::cualquierTeclaEnLaListaMarcaElProyecto()
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

void PruebaConfina::ladoMenorMayorQueElLadoAlElegirRectangular_data()
{
    prueba::DosFilas("porRaton", {"raton", true}, {"teclado", false});
}

void PruebaConfina::ladoMenorMayorQueElLadoAlElegirRectangular()
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

void PruebaConfina::relacionDeUnoYMedioPasaAlCambiarDeSeccion()
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

void PruebaConfina::circularPoneGrisElLadoMenorQueSigueEnElFichero()
{
    AbreRectangular(0.5, 0.35);
    EligeConRaton(0);
    QVERIFY(!C("TX_LADOMENOR")->isEnabled());
    QVERIFY(!C("LB_LM")->isEnabled());
    QCOMPARE(Estado().LADOMENOR, 0.35);
    QCOMPARE(Campo("TX_ALFAN")->text(), QStringLiteral("1,000"));
    const QString fichero = CierraYGuarda("texalon_prueba_circular.vmc");
    QCOMPARE(Contenido(fichero), std::string("1\r\n0.5\r\n0.35\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n"));
    QFile::remove(fichero);
}

void PruebaConfina::laRuedaSobreLaSeccionSinFocoNoLaCambia()
{
    Abre();
    QVERIFY(prueba::Enfoca(C("TX_DIAM")));
    Estado().F_MODIFICADO = false;
    const QPointF centro = QRectF(Seccion()->rect()).center();
    QWheelEvent rueda(centro, Seccion()->mapToGlobal(centro), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Seccion(), &rueda);
    QCOMPARE(Seccion()->currentIndex(), 0);
    QCOMPARE(Estado().SECCION, Entero{1});
    QVERIFY(!Estado().F_MODIFICADO);
}

// ---- The unload.

void PruebaConfina::cerrarConSiGrabaConfinaVmc()
{
    Abre();
    EstadoDibujo().NLINEA = 4;
    const QString fichero = CierraYGuarda("texalon_prueba_cierre.vmc");
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

void PruebaConfina::cerrarConNoNoGraba()
{
    Abre();
    doble_->mensajes.respuestas = {Respuesta::No};
    pantalla_->close();
    QCOMPARE(Mensajes(), QStringList{kPregunta});
    QVERIFY(doble_->ficheros.guardados.empty());
    QVERIFY(!Estado().F_CONFINA);
}

void PruebaConfina::cerrarConSiYUnCampoMaloSinDejarLoPierde()
{
    Abre();
    TecleaSinSalir("TX_DIAM", QStringLiteral("abc"));
    doble_->mensajes.respuestas = {Respuesta::Si};
    pantalla_->close();
    // The closing screen checks no field: only the copy speaks.
    QCOMPARE(Mensajes(), QStringList({kPregunta, QStringLiteral("Los datos introducidos no son correctos.")}));
    QVERIFY(doble_->ficheros.guardados.empty());
}

void PruebaConfina::cancelarElDialogoDelCierreCierraSinDecirNada()
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

void PruebaConfina::tabuladorSigueElOrdenDeLectura()
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

void PruebaConfina::deUnExtremoAOtroComoUnUsuario_data() { prueba::FilasSeparador(); }

void PruebaConfina::deUnExtremoAOtroComoUnUsuario()
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

int main(int argc, char** argv) { return prueba::Ejecuta<PruebaConfina>(argc, argv); }
