// FM_CONFINA: the fields, what each takes and refuses, and the values the screen works out.
#include "PruebaConfina.h"

// ---- The fields.

void PruebaConfina::cadaCampoConSusMensajesYSuReinicio_data()
{
    prueba::Columnas<QString, QString, QString, double>({"control", "vacio", "noNumero", "reinicio"});
    const auto fila = [](const char* control, const char* vacio, const char* noNumero, double reinicio) {
        QTest::newRow(control) << QString::fromLatin1(control) << QString::fromUtf8(vacio)
                               << QString::fromUtf8(noNumero) << reinicio;
    };
    fila("TX_DIAM", "Debe darse el diámetro o lado del elemento a confinar.", "El diámetro o lado debe ser un número.",
         0.5);
    fila("TX_LADOMENOR", "Debe darse el lado menor del elemento a confinar.", "El lado menor debe ser un número.", 0.4);
    fila("TX_INCR", "Debe darse el incremento de resistencia necesario.",
         "El incremento de resistencia necesario debe ser un número.", 1.0);
    fila("TX_NCP", "Debe darse el axil que actúa en el momento de colocar el refuerzo.",
         "El axil que actúa en el momento de colocar el refuerzo debe ser un número.", 0.0);
    fila("CO_FCK", "Debe darse la resistencia del hormigón de la sección.",
         "La resistencia del hormigón de la sección debe ser un número.", 25.0);
}

void PruebaConfina::cadaCampoConSusMensajesYSuReinicio()
{
    QFETCH(QString, control);
    QFETCH(QString, vacio);
    QFETCH(QString, noNumero);
    QFETCH(double, reinicio);
    AbreRectangular(0.5, 0.4);
    const QByteArray nombre = control.toLatin1();
    double& valor = ValorDelCampo(nombre.constData());
    QVERIFY(prueba::Enfoca(C(nombre.constData())));
    Calcula();
    QVERIFY(prueba::Enfoca(C(nombre.constData())));
    Estado().F_MODIFICADO = false;
    for (const QString& texto : {QString(), QStringLiteral("12a"), QStringLiteral("   ")}) {
        // A state value away from the reset shows that the failure writes the reset.
        valor = 0.123;
        doble_->mensajes.mostrados.clear();
        Escribe(nombre.constData(), texto);
        QCOMPARE(Mensajes(), QStringList{texto.isEmpty() ? vacio : noNumero});
        QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
        QCOMPARE(valor, reinicio);
        QVERIFY(C(nombre.constData())->hasFocus());
        QCOMPARE(TextoDe(C(nombre.constData())), texto);
    }
    // A failure touches neither the flags nor the diagram button.
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(C("CM_CONFINA")->isEnabled());
}

void PruebaConfina::limitesDeCadaCampo_data()
{
    prueba::Columnas<QString, QString, QString, QString, QString, double, QString>(
        {"control", "fuera", "exacto", "dentro", "mensaje", "reinicio", "exactoEscrito"});
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
                             << "1,01" << QStringLiteral("El incremento de resistencia necesario debe ser mayor que 1.")
                             << 1.0 << "1,00";
    QTest::newRow("CO_FCK arriba") << "CO_FCK"
                                   << "51"
                                   << "50"
                                   << "49"
                                   << QStringLiteral(
                                          "La resistencia del hormigón de la sección no puede ser mayor de 50 N/mm².")
                                   << 25.0 << "50";
    QTest::newRow("CO_FCK abajo") << "CO_FCK"
                                  << "14"
                                  << "15"
                                  << "16"
                                  << QStringLiteral(
                                         "La resistencia del hormigón de la sección no puede ser menor de 15 N/mm².")
                                  << 25.0 << "15";
}

void PruebaConfina::limitesDeCadaCampo()
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
    QCOMPARE(ValorDelCampo(nombre.constData()), reinicio);
    doble_->mensajes.mostrados.clear();
    Escribe(nombre.constData(), exacto);
    QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('|'))));
    QCOMPARE(TextoDe(C(nombre.constData())), exactoEscrito);
    Escribe(nombre.constData(), dentro);
    QVERIFY(Mensajes().isEmpty());
}

void PruebaConfina::aceptarReescribeEnSuFormatoYApagaSoloElDiagrama_data() { prueba::FilasSeparador(); }

void PruebaConfina::aceptarReescribeEnSuFormatoYApagaSoloElDiagrama()
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

void PruebaConfina::loTecleadoEnLosCampos_data()
{
    QTest::addColumn<QString>("valores");  // the project's values before the load, as a file leaves them
    QTest::addColumn<prueba::Pasos>("pasos");
    QTest::addColumn<QString>("alfan");  // the shape coefficient's text at the end, when it counts
    const char* relacion = "La relación entre lados del elemento a confinar debe ser menor de 1,5.";
    QTest::newRow("incremento 1 sí y 0,99 no")
        << ""
        << prueba::Pasos{{"TX_INCR", "1", "", 1.0},
                         {"TX_INCR", "0,99", "El incremento de resistencia necesario debe ser mayor que 1.", 1.0}}
        << "";
    QTest::newRow("axil cero y cualquier número")
        << ""
        << prueba::Pasos{{"TX_NCP", "0", "", 0.0}, {"TX_NCP", "-50", "", 50.0}, {"TX_NCP", "250000", "", 250000.0}}
        << "";
    QTest::newRow("lado menor igual al lado")
        << "SECCION=3;DIAM=0.5;LADOMENOR=0.4" << prueba::Pasos{{"TX_LADOMENOR", "0,5", "", 0.5}} << "0,333";
    // From a side other than the start value, so that the fall back to 0.4 shows.
    QTest::newRow("lado menor mayor que el lado")
        << "SECCION=3;DIAM=0.5;LADOMENOR=0.45"
        << prueba::Pasos{{"TX_LADOMENOR", "0,51", "El lado menor debe ser un número más pequeño que el lado mayor.",
                          0.4, nullptr, "TX_LADOMENOR"}}
        << "";
    // 0.75 / 0.5 is exactly 1.5; the side typed and the one before both differ from the
    // start value 0.4 that the refusal puts back.
    QTest::newRow("lado menor en relación 1,5")
        << "SECCION=3;DIAM=0.75;LADOMENOR=0.55"
        << prueba::Pasos{{"TX_LADOMENOR", "0,5", relacion, 0.4}, {"TX_LADOMENOR", "0,501", "", 0.501}} << "";
    // From a side other than the start value, so that the fall back to 0.5 shows.
    QTest::newRow("diámetro 0,6 con lado menor 0,4 vuelve a 0,5")
        << "SECCION=3;DIAM=0.55;LADOMENOR=0.4"
        << prueba::Pasos{{"TX_DIAM", "0,6", relacion, 0.5, "0,6", "TX_DIAM"}, {"TX_DIAM", "0,599", "", 0.599}} << "";
    QTest::newRow("la relación solo se prueba en rectangular")
        << "SECCION=2;LADOMENOR=0.4" << prueba::Pasos{{"TX_DIAM", "0,9", "", 0.9}} << "";
}

void PruebaConfina::loTecleadoEnLosCampos()
{
    QFETCH(QString, valores);
    QFETCH(prueba::Pasos, pasos);
    QFETCH(QString, alfan);
    Abre(',', [&valores](General& g) {
        if (!valores.isEmpty()) EscribeValores(g, valores);
    });
    Recorre(pasos);
    if (QTest::currentTestFailed()) return;
    if (!alfan.isEmpty()) QCOMPARE(Campo("TX_ALFAN")->text(), alfan);
}

void PruebaConfina::unDiametroMenorQueElLadoMenorPasaYSeCalculaConEl()
{
    AbreRectangular(0.5, 0.4);
    // Back to the list of sections, so as not to leave the short side, which would refuse.
    TecleaSinSalir("TX_DIAM", QStringLiteral("0,3"));
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

void PruebaConfina::elCoeficienteDeFormaSeCalculaAlAceptarLosLados()
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

void PruebaConfina::losValoresAdoptadosNoSeEscriben()
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

void PruebaConfina::laListaDeHormigonNoCompletaYAbrirlaNoComprueba()
{
    Abre();
    Escribe("CO_FCK", QStringLiteral("4"));
    QCOMPARE(Mensajes(),
             QStringList{QStringLiteral("La resistencia del hormigón de la sección no puede ser menor de 15 N/mm².")});
    QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("4"));
    doble_->mensajes.mostrados.clear();
    QVERIFY(prueba::AbreConTeclado(Lista("CO_FCK")));
    QVERIFY(Mensajes().isEmpty());
    QTest::keyClick(Lista("CO_FCK")->view(), Qt::Key_Escape);
}
