// FM_FLEXION and FM_FLEXIONT: the fields, what each takes and refuses, and the lists.
#include "PruebaFlexion.h"

void PruebaFlexion::campoVacioDaSuMensajeYGuardaElValorPorDefecto()
{
    Abre();
    C("TX_RECUB")->setFocus();
    QTRY_VERIFY(C("TX_RECUB")->hasFocus());
    // Leaving the first field on the way here was a pass through a valid field.
    QVERIFY(Estado().F_MODIFICADO);
    Estado().F_MODIFICADO = false;
    Estado().RECUB = 0.07;
    Escribe("TX_RECUB", QString());
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("Debe darse el recubrimiento de la sección.")});
    QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
    QVERIFY(Campo("TX_RECUB")->hasFocus());
    QCOMPARE(Estado().RECUB, 0.05);
    QCOMPARE(Campo("TX_RECUB")->text(), QString());
    QVERIFY(!Estado().F_MODIFICADO);
}

// ---- Texts typed into the fields and left with Tab.

void PruebaFlexion::loTecleadoEnLosCampos_data()
{
    QTest::addColumn<bool>("seccionT");
    QTest::addColumn<char>("separador");
    QTest::addColumn<prueba::Pasos>("pasos");
    const char* recubrimientoCero = "El recubrimiento de la sección debe ser mayor que cero.";
    const char* refuerzoMasAncho = "El ancho del refuerzo no puede ser mayor que el ancho de la sección.";
    const char* alaMasAlta = "El canto del ala no puede ser mayor que el canto de la sección.";
    const char* fckBajo = "La resistencia del hormigón de la sección no puede ser menor de 15 N/mm².";
    QTest::newRow("letras en el recubrimiento quedan elegidas")
        << false << ','
        << prueba::Pasos{
               {"TX_RECUB", "12a", "El recubrimiento de la sección debe ser un número.", qQNaN(), "12a", "TX_RECUB"}};
    for (const char separador : {',', '.'})
        QTest::addRow("negativo, que se acepta positivo, %s", separador == ',' ? "coma" : "punto")
            << false << separador << prueba::Pasos{{"TX_CANTO", "-2,5", "", 2.5, "2,500"}};
    QTest::newRow("límite inferior de un centímetro")
        << false << ',' << prueba::Pasos{{"TX_RECUB", "0,001", recubrimientoCero}, {"TX_RECUB", "0,01", "", 0.01}};
    QTest::newRow("recubrimiento igual a la mitad del canto")
        << false << ','
        << prueba::Pasos{
               {"TX_RECUB", "0,3"},
               {"TX_RECUB", "0,301", "El recubrimiento de la sección debe ser menor que la mitad del canto.", 0.05}};
    QTest::newRow("miles con coma: 1,234") << false << ',' << prueba::Pasos{{"TX_MD", "1.234,5", "", 1.234, "1,23"}};
    QTest::newRow("blancos alrededor") << false << ',' << prueba::Pasos{{"TX_ASI", "  12,5 ", "", 12.5, "12,50"}};
    QTest::newRow("armadura superior vacía: 10 en el estado")
        << false << ',' << prueba::Pasos{{"TX_ASS", "", "Debe darse la armadura superior de la sección.", 10.0, ""}};
    QTest::newRow("ancho menor que el refuerzo: prueba blanda")
        << false << ',' << prueba::Pasos{{"TX_ANCHO", "0,1", refuerzoMasAncho, 0.1, "0,100", "CO_ANCHOR"}};
    QTest::newRow("refuerzo más ancho que la sección: vuelve al ancho")
        << false << ','
        << prueba::Pasos{{"CO_ANCHOR", "0,5",
                          "El ancho del refuerzo a disponer en la sección debe ser menor que el ancho de la "
                          "sección.",
                          0.4, "0,5", "CO_ANCHOR"}};
    QTest::newRow("refuerzo igual de ancho que la sección")
        << false << ',' << prueba::Pasos{{"CO_ANCHOR", "0,4", "", 0.4, "0,400"}};
    QTest::newRow("resistencias con sus límites")
        << false << ','
        << prueba::Pasos{
               {"CO_FCK", "27", "", 27.0},
               {"CO_FCK", "51", "La resistencia del hormigón de la sección no puede ser mayor de 50 N/mm²."},
               {"CO_FCK", "14", fckBajo},
               {"CO_FCK", "30"},
               {"CO_FYK", "601", "La resistencia del acero de las armaduras no puede ser mayor de 600 N/mm²."},
               {"CO_FYK", "299", "La resistencia del acero de las armaduras no puede ser menor de 300 N/mm².", 500.0}};
    // A list completes nothing: "4" stays as typed.
    QTest::newRow("la lista no completa lo tecleado")
        << false << ','
        << prueba::Pasos{{"CO_FCK", "4", fckBajo, 25.0, "4"}, {"CO_FCK", "30"}, {"CO_ANCHOR", "0,3", "", 0.3, "0,300"}};
    // A flange depth away from the reset shows that the refusal writes 0.2.
    QTest::newRow("T ala más alta que la sección")
        << true << ',' << prueba::Pasos{{"TX_CANTOALA", "0,15", "", 0.15}, {"TX_CANTOALA", "0,7", alaMasAlta, 0.2}};
    QTest::newRow("T ala tan alta como la sección")
        << true << ',' << prueba::Pasos{{"TX_CANTOALA", "0,6", "", 0.6, "0,600"}};
    QTest::newRow("T canto menor que el ala: prueba blanda")
        << true << ',' << prueba::Pasos{{"TX_CANTO", "0,15", alaMasAlta, 0.15, nullptr, "TX_CANTOALA"}};
    QTest::newRow("T refuerzo más ancho que el alma y no que el ala")
        << true << ','
        << prueba::Pasos{
               {"CO_ANCHOR", "0,3", "", 0.3},
               {"TX_ANCHOALMA", "0,2", "El ancho del refuerzo no puede ser mayor que el ancho del alma de la sección.",
                qQNaN(), nullptr, "CO_ANCHOR"}};
}

void PruebaFlexion::loTecleadoEnLosCampos()
{
    QFETCH(bool, seccionT);
    QFETCH(char, separador);
    QFETCH(prueba::Pasos, pasos);
    Abre(seccionT, separador);
    Recorre(pasos);
    if (QTest::currentTestFailed()) return;
    // Each field passed marks the project and leaves it uncalculated.
    QVERIFY(Estado().F_MODIFICADO);
    QVERIFY(!Estado().F_CALCULADO);
}

void PruebaFlexion::seccionTConSusCamposYRestablecimientos()
{
    FmFlexion& p = Abre(true);
    QCOMPARE(p.objectName(), QStringLiteral("FM_FLEXIONT"));
    QCOMPARE(p.windowTitle(), QStringLiteral("Cálculo del refuerzo a flexión en secciones T"));
    QVERIFY(Estado().F_FLEXIONT);
    QCOMPARE(Campo("TX_ANCHOALMA")->text(), QStringLiteral("0,200"));
    QCOMPARE(Campo("TX_CANTOALA")->text(), QStringLiteral("0,200"));
    Estado().ANCHO = 0.5;
    // A web width away from the reset shows that the refusal leaves it alone.
    Estado().ANCHOALMA = 0.15;
    Escribe("TX_ANCHOALMA", QStringLiteral("0"));
    QCOMPARE(Mensajes().last(), QStringLiteral("El ancho del alma de la sección debe ser un número mayor que cero."));
    QVERIFY(Campo("TX_ANCHOALMA")->hasFocus());
    QCOMPARE(Campo("TX_ANCHOALMA")->selectedText(), QStringLiteral("0"));
    QCOMPARE(Estado().ANCHO, 0.2);
    QCOMPARE(Estado().ANCHOALMA, 0.15);
    QCOMPARE(Campo("TX_ANCHO")->text(), QStringLiteral("0,400"));
    Escribe("TX_ANCHOALMA", QStringLiteral("0,25"));
    Estado().CANTO = 0.7;
    Escribe("TX_CANTOALA", QStringLiteral("0"));
    QCOMPARE(Estado().CANTO, 0.2);
    Escribe("TX_CANTOALA", QStringLiteral("0,2"));
    QCOMPARE(Estado().CANTOALA, 0.2);
}

void PruebaFlexion::limitesInferioresDeCadaCampo_data()
{
    QTest::addColumn<bool>("seccionT");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("mensaje");
    const auto fila = [](bool t, const char* control, const char* mensaje) {
        QTest::newRow(qPrintable(QString::fromLatin1(control) + (t ? QStringLiteral(" T") : QString())))
            << t << QString::fromLatin1(control) << QString::fromUtf8(mensaje);
    };
    for (bool t : {false, true}) {
        fila(t, "TX_ANCHO", "El ancho de la sección debe ser un número mayor que cero.");
        fila(t, "TX_CANTO", "El canto de la sección debe ser un número mayor que cero.");
        fila(t, "TX_RECUB", "El recubrimiento de la sección debe ser mayor que cero.");
        fila(t, "TX_ASI", "La armadura inferior de la sección debe ser mayor que cero.");
        fila(t, "CO_ANCHOR", "El ancho del refuerzo a disponer en la sección debe ser mayor que cero.");
    }
    fila(true, "TX_ANCHOALMA", "El ancho del alma de la sección debe ser un número mayor que cero.");
    fila(true, "TX_CANTOALA", "El canto del ala de la sección debe ser un número mayor que cero.");
}

void PruebaFlexion::limitesInferioresDeCadaCampo()
{
    QFETCH(bool, seccionT);
    QFETCH(QString, control);
    QFETCH(QString, mensaje);
    Abre(seccionT);
    // Small partners, so that no test against another field gets in the way.
    Estado().ANCHOR = 0.01;
    Estado().CANTOALA = 0.01;
    const QByteArray nombre = control.toLatin1();
    EscribeYSal(nombre.constData(), QStringLiteral("0,009"));
    QCOMPARE(Mensajes(), QStringList{mensaje});
    doble_->mensajes.mostrados.clear();
    EscribeYSal(nombre.constData(), QStringLiteral("0,01"));
    QVERIFY2(Mensajes().isEmpty(), qPrintable(Mensajes().join(QLatin1Char('|'))));
    QCOMPARE(TextoDe(C(nombre.constData())),
             control.startsWith(QLatin1String("TX_AS")) ? QStringLiteral("0,01") : QStringLiteral("0,010"));
    EscribeYSal(nombre.constData(), QStringLiteral("0,011"));
    QVERIFY(Mensajes().isEmpty());
}

// ---- What a new user met on these screens.

void PruebaFlexion::enviadoAlAnchoDelRefuerzoPuedeTeclearUnAnchoPequeno()
{
    Abre();
    Escribe("TX_ANCHO", QStringLiteral("0,1"));
    QCOMPARE(Mensajes(),
             QStringList{QStringLiteral("El ancho del refuerzo no puede ser mayor que el ancho de la sección.")});
    QVERIFY(Lista("CO_ANCHOR")->hasFocus());
    prueba::Teclea(C("CO_ANCHOR"), QStringLiteral("0,1"));
    QTest::keyClick(C("CO_ANCHOR"), Qt::Key_Tab);
    QCOMPARE(Mensajes().size(), 1);
    QCOMPARE(Estado().ANCHOR, 0.1);
    QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,100"));
}

void PruebaFlexion::abrirLaListaNoComprueba()
{
    Abre();
    TecleaSinSalir("CO_ANCHOR", QStringLiteral("0,6"));
    QComboBox* ancho = Lista("CO_ANCHOR");
    QVERIFY(prueba::AbreConTeclado(ancho));
    QVERIFY(Mensajes().isEmpty());
    QTest::keyClick(ancho->view(), Qt::Key_Escape);
    QTRY_VERIFY(!ancho->view()->isVisible());
    QVERIFY(Mensajes().isEmpty());
    QCOMPARE(ancho->currentText(), QStringLiteral("0,6"));
    QCOMPARE(Estado().ANCHOR, 0.125);
    // Leaving the field is what checks it.
    QTest::keyClick(ancho, Qt::Key_Tab);
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("El ancho del refuerzo a disponer en la sección debe ser menor "
                                                    "que el ancho de la sección.")});
}

void PruebaFlexion::laRuedaSobreUnaListaSinFocoNoCambiaElProyecto()
{
    Abre();
    QVERIFY(prueba::Enfoca(C("TX_ANCHO")));
    QComboBox* fck = Lista("CO_FCK");
    const QPointF centro = QRectF(fck->rect()).center();
    QWheelEvent rueda(centro, fck->mapToGlobal(centro), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(fck, &rueda);
    QCOMPARE(fck->currentText(), QStringLiteral("25"));
    QCOMPARE(fck->currentIndex(), 0);
    QVERIFY(C("TX_ANCHO")->hasFocus());
    QVERIFY(Mensajes().isEmpty());
}

void PruebaFlexion::cadaCampoConSusMensajesYSuReinicio_data()
{
    prueba::Columnas<bool, QString, QString, QString, double>({"seccionT", "control", "vacio", "noNumero", "reinicio"});
    const auto fila = [](bool t, const char* control, const char* vacio, const char* noNumero, double reinicio) {
        QTest::newRow(qPrintable(QString::fromLatin1(control) + (t ? QStringLiteral(" T") : QString())))
            << t << QString::fromLatin1(control) << QString::fromUtf8(vacio) << QString::fromUtf8(noNumero) << reinicio;
    };
    // The T section's own fields, then those of both sections.
    fila(true, "TX_ANCHOALMA", "Debe darse el ancho del alma de la sección.",
         "El ancho del alma de la sección debe ser un número.", 0.2);
    fila(true, "TX_CANTOALA", "Debe darse el canto del ala de la sección.",
         "El canto del ala de la sección debe ser un número.", 0.2);
    for (bool t : {false, true}) {
        fila(t, "TX_ANCHO", "Debe darse el ancho de la sección.", "El ancho de la sección debe ser un número.", 0.4);
        fila(t, "TX_CANTO", "Debe darse el canto de la sección.", "El canto de la sección debe ser un número.", 0.6);
        fila(t, "TX_RECUB", "Debe darse el recubrimiento de la sección.",
             "El recubrimiento de la sección debe ser un número.", 0.05);
        fila(t, "TX_ASI", "Debe darse la armadura inferior de la sección.",
             "La armadura inferior de la sección debe ser un número.", 10.0);
        fila(t, "TX_ASS", "Debe darse la armadura superior de la sección.",
             "La armadura superior de la sección debe ser un número.", 10.0);
        fila(t, "TX_MCP", "Debe darse el momento que actúa en la sección cuando se va a colocar el refuerzo.",
             "El momento que actúa en la sección cuando se va a colocar el refuerzo debe ser un número.", 0.0);
        fila(t, "TX_MD", "Debe darse el momento de cálculo.", "El momento de cálculo debe ser un número.", 0.0);
        fila(t, "CO_FCK", "Debe darse la resistencia del hormigón de la sección.",
             "La resistencia del hormigón de la sección debe ser un número.", 25.0);
        fila(t, "CO_FYK", "Debe darse la resistencia del acero de las armaduras de la sección.",
             "La resistencia del acero de las armaduras de la sección debe ser un número.", 500.0);
        fila(t, "CO_ANCHOR", "Debe darse el ancho del refuerzo a disponer en la sección.",
             "El ancho del refuerzo a disponer en la sección debe ser un número.", 0.125);
    }
}

void PruebaFlexion::cadaCampoConSusMensajesYSuReinicio()
{
    QFETCH(bool, seccionT);
    QFETCH(QString, control);
    QFETCH(QString, vacio);
    QFETCH(QString, noNumero);
    QFETCH(double, reinicio);
    Abre(seccionT);
    const QByteArray nombre = control.toLatin1();
    C(nombre.constData())->setFocus();
    QTRY_VERIFY(C(nombre.constData())->hasFocus());
    Estado().F_MODIFICADO = false;
    Estado().F_CALCULADO = true;
    for (const QString& texto : {QString(), QStringLiteral("12a"), QStringLiteral("   ")}) {
        // A state value away from the reset shows that the failure writes the reset.
        ValorDelCampo(nombre.constData()) = 0.123;
        doble_->mensajes.mostrados.clear();
        Escribe(nombre.constData(), texto);
        QCOMPARE(Mensajes(), QStringList{texto.isEmpty() ? vacio : noNumero});
        QCOMPARE(ValorDelCampo(nombre.constData()), reinicio);
        QVERIFY(C(nombre.constData())->hasFocus());
        QCOMPARE(TextoDe(C(nombre.constData())), texto);
    }
    // A failure touches neither the flags nor the buttons.
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(Estado().F_CALCULADO);
}

void PruebaFlexion::elegirUnaFilaDeLaListaNoEjecutaNada()
{
    Abre();
    QComboBox* fck = Lista("CO_FCK");
    QVERIFY(prueba::Enfoca(fck));
    Estado().F_MODIFICADO = false;
    QVERIFY(prueba::AbreConTeclado(fck));
    for (int paso = 0; paso < 3; ++paso)
        QTest::keyClick(fck->view(), Qt::Key_Down);
    QTest::keyClick(fck->view(), Qt::Key_Return);
    QTRY_VERIFY(!fck->view()->isVisible());
    QCOMPARE(fck->currentText(), QStringLiteral("40"));
    QCOMPARE(Estado().FCK, 25.0);
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(fck->hasFocus());
    QTest::keyClick(fck, Qt::Key_Tab);
    QCOMPARE(Estado().FCK, 40.0);
    QVERIFY(Estado().F_MODIFICADO);
}

void PruebaFlexion::elFocoQueTomaLaCajaDeMensajeNoEmpiezaOtraComprobacion()
{
    Abre();
    // The box of the refusal comes up as a window of its own and takes the focus.
    doble_->mensajes.alMostrar = [](const MensajeMostrado&) {
        QDialog caja(QApplication::activeWindow());
        caja.show();
        caja.activateWindow();
        if (!QTest::qWaitForWindowActive(&caja)) qWarning("la caja no se ha activado");
        caja.close();
        if (!QTest::qWaitForWindowActive(caja.parentWidget())) qWarning("la pantalla no ha vuelto");
    };
    // The next field is made wrong too, by the program's own writing: a second check would
    // show its message as well.
    EscribeTexto(C("TX_RECUB"), QStringLiteral("xyz"));
    Escribe("TX_CANTO", QStringLiteral("abc"));
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("El canto de la sección debe ser un número.")});
    QTRY_VERIFY(Campo("TX_CANTO")->hasFocus());
}

void PruebaFlexion::resistenciasExactamenteEnSusLimitesPasan()
{
    Abre();
    for (const char* fck : {"15", "50"}) {
        EscribeYSal("CO_FCK", QString::fromLatin1(fck));
        QCOMPARE(Estado().FCK, QString::fromLatin1(fck).toDouble());
    }
    for (const char* fyk : {"300", "600"}) {
        EscribeYSal("CO_FYK", QString::fromLatin1(fyk));
        QCOMPARE(Estado().FYK, QString::fromLatin1(fyk).toDouble());
    }
    QVERIFY(Mensajes().isEmpty());
}
