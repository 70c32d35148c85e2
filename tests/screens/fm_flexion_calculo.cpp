// FM_FLEXION and FM_FLEXIONT: the calculation, its grid and the buttons of its results.
#include "PruebaFlexion.h"

void PruebaFlexion::calculoPorDefectoNoNecesitaRefuerzo()
{
    Abre();
    Calcula();
    QVERIFY(Mensajes().isEmpty());
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(!Estado().F_CALCULANDO);
    CompruebaLetrero(QStringLiteral(" NO ES NECESARIO REFORZAR LA SECCION "), QColor(0, 128, 0));
    QVERIFY(BotonesResultado(true));
    RejillaResultados* r = Rejilla();
    QVERIFY(r->EstaActiva());
    QCOMPARE(r->Fila(), 1);
    QCOMPARE(r->Columna(), 1);
    QCOMPARE(FilaDe("FG_FLEXION", 0), QStringList({"Nº capas", "TEXALON L", "TEXALON H", "TEXALON X"}));
    QCOMPARE(r->Texto(1, 1), QStringLiteral("238,5"));
    QCOMPARE(r->Texto(5, 2), QStringLiteral("294,9"));
    for (int n = 1; n <= 5; ++n) {
        QCOMPARE(r->Texto(n, 0), QString::number(n));
        for (int t = 1; t <= 3; ++t) {
            const bool marca = t == 3 && n >= 3;
            QCOMPARE(r->Texto(n, t) == QLatin1String("---"), marca);
            QCOMPARE(r->Color(n, t), marca ? QColor(255, 255, 255) : QColor(255, 255, 0));
        }
    }
    QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
    QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("238,5"));
    QCOMPARE(Campo("TX_MUSR")->text(), QStringLiteral("222,5"));
    QCOMPARE(Campo("TX_PIVOTE")->text(), QStringLiteral("R"));
    QCOMPARE(Campo("TX_FN")->text(), QStringLiteral("0,103"));
    QCOMPARE(Campo("TX_EPSR")->text(), QStringLiteral("9,64"));
    QCOMPARE(Campo("TX_MRB")->text(), QStringLiteral("366,6"));
    QCOMPARE(Campo("TX_MLIMCR")->text(), QStringLiteral("692,4"));
    QCOMPARE(Campo("TX_EPS0")->text(), QStringLiteral("0,00"));
}

void PruebaFlexion::momentoDe230DejaElLetreroOculto()
{
    Abre();
    CalculaCon("TX_MD", QStringLiteral("230"));
    QVERIFY(!C("LB_INFO")->isVisible());
    for (int n = 1; n <= 5; ++n) {
        QCOMPARE(Rejilla()->Color(n, 1), QColor(255, 255, 0));
        QCOMPARE(Rejilla()->Color(n, 2), QColor(255, 255, 0));
        QCOMPARE(Rejilla()->Color(n, 3), n <= 2 ? QColor(255, 255, 0) : QColor(255, 255, 255));
    }
}

void PruebaFlexion::momentoDe300NoSePuedeReforzar()
{
    Abre();
    CalculaCon("TX_MD", QStringLiteral("300"));
    CompruebaLetrero(QStringLiteral(" NO SE PUEDE REFORZAR LA SECCION "), QColor(255, 0, 0));
    for (int n = 1; n <= 5; ++n)
        for (int t = 1; t <= 3; ++t)
            QCOMPARE(Rejilla()->Color(n, t), QColor(255, 255, 255));
    QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("238,5"));
}

void PruebaFlexion::predeformacionExcesivaTrasUnCalculoDejaLaRejillaInactiva()
{
    Abre();
    CalculaDeNuevoCon("TX_MCP", QStringLiteral("1000"));
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("La predeformación de la estructura es superior al 2 por mil.")});
    QVERIFY(!Rejilla()->EstaActiva());
    QVERIFY(Estado().F_CALCULANDO);
    QVERIFY(!Estado().F_CALCULADO);
    // The old table stays on show over the cleared arrays.
    QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("238,5"));
}

void PruebaFlexion::tabularPorUnCampoValidoInvalidaLosResultados()
{
    Abre();
    Calcula();
    QVERIFY(BotonesResultado(true));
    Escribe("TX_ASI", Campo("TX_ASI")->text());
    QVERIFY(BotonesResultado(false));
    QVERIFY(!Estado().F_CALCULADO);
    QVERIFY(Estado().F_MODIFICADO);
    QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("238,5"));
}

void PruebaFlexion::calcularConUnCampoMalMuestraSuMensajeYNoCalcula()
{
    Abre();
    TecleaSinSalir("TX_MD", QStringLiteral("abc"));
    Calcula();
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("El momento de cálculo debe ser un número.")});
    QVERIFY(!Estado().F_CALCULADO);
    QVERIFY(C("TX_MD")->hasFocus());
    QVERIFY(!Rejilla()->EstaActiva());
}

void PruebaFlexion::celdaSinResultadoDesactivaDeformaciones()
{
    Abre();
    Calcula();
    QVERIFY(C("CM_DEFORMACIONES")->isEnabled());
    Rejilla()->CeldaActual(4, 3);
    QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("---"));
    QCOMPARE(Campo("TX_PIVOTE")->text(), QStringLiteral("---"));
    QCOMPARE(Campo("TX_MUSR")->text(), QStringLiteral("222,5"));
    QVERIFY(!C("CM_DEFORMACIONES")->isEnabled());
    Rejilla()->CeldaActual(2, 3);
    QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("246,8"));
    QVERIFY(C("CM_DEFORMACIONES")->isEnabled());
}

void PruebaFlexion::seccionTCalculaConRoturaT()
{
    Abre(true);
    Escribe("TX_CANTOALA", QStringLiteral("0,05"));
    Calcula();
    QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("231,0"));
    QCOMPARE(Rejilla()->Texto(5, 1), QStringLiteral("270,7"));
}

void PruebaFlexion::coeficientesDesactivanLosBotonesPorCualquierSalida()
{
    Abre();
    Calcula();
    QVERIFY(BotonesResultado(true));
    auto* gamma = qobject_cast<QPushButton*>(C("CM_GAMMA1"));
    QCOMPARE(gamma->text(), QStringLiteral("γ"));
    QTest::mouseClick(gamma, Qt::LeftButton);
    QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
    QVERIFY(BotonesResultado(false));
    // Closing the dialog does not clear F_CALCULADO: only a field's pass does.
    Calcula();
    QTest::mouseClick(qobject_cast<QPushButton*>(C("CM_GAMMA2")), Qt::LeftButton);
    QCOMPARE(doble_->ventanas.mostradas.size(), 2);
    QVERIFY(BotonesResultado(false));
}

void PruebaFlexion::anclajeMuestraSuVentana()
{
    Abre();
    Calcula();
    QTest::mouseClick(qobject_cast<QPushButton*>(C("CM_ANCLAJE")), Qt::LeftButton);
    QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_ANCLAJE")});
    QCOMPARE(Formato(Estado().LANC(1, 1), "0.00", '.'), std::string("0.14"));
}

void PruebaFlexion::seleccionInactivaMientrasSeCalcula()
{
    Abre();
    Calcula();
    Estado().F_CALCULANDO = true;
    Rejilla()->CeldaActual(2, 2);
    QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
    Estado().F_CALCULANDO = false;
    Rejilla()->CeldaActual(3, 2);
    QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(), QStringLiteral("Refuerzo tipo TEXALON H - Núm. capas: 3"));
}

void PruebaFlexion::calcularConElTeclado()
{
    Abre();
    QVERIFY(prueba::Enfoca(C("CM_CALCULAR")));
    QTest::keyClick(C("CM_CALCULAR"), Qt::Key_Space);
    QVERIFY(Estado().F_CALCULADO);
}

void PruebaFlexion::abrirLaListaEnUnaPantallaCalculadaNoApagaLosBotones()
{
    Abre();
    Calcula();
    QComboBox* fck = Lista("CO_FCK");
    QVERIFY(prueba::Enfoca(fck));
    QVERIFY(prueba::AbreConTeclado(fck));
    QTest::keyClick(fck->view(), Qt::Key_Escape);
    QTRY_VERIFY(!fck->view()->isVisible());
    QVERIFY(BotonesResultado(true));
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(Mensajes().isEmpty());
}

void PruebaFlexion::unBotonPulsadoConUnCampoMaloNoQuedaHundido()
{
    Abre();
    TecleaSinSalir("TX_MD", QStringLiteral("abc"));
    auto* calcular = qobject_cast<QPushButton*>(C("CM_CALCULAR"));
    // The user's release of the button happens while the message is up, elsewhere.
    QTest::mousePress(calcular, Qt::LeftButton);
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("El momento de cálculo debe ser un número.")});
    QVERIFY(!calcular->isDown());
    QVERIFY(C("TX_MD")->hasFocus());
    QVERIFY(!Estado().F_CALCULADO);
}

void PruebaFlexion::losCamposDeResultadoMuestranElNumeroEntero()
{
    Abre();
    CalculaCon("TX_ASI", QStringLiteral("80000"));
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY2(Campo("TX_MRB")->text().size() >= 8, qPrintable(Campo("TX_MRB")->text()));
    for (const char* nombre : {"TX_MUSR", "TX_MU", "TX_MRB", "TX_MLIMCR", "TX_FN", "TX_EPSC", "TX_EPSSI", "TX_EPSSS",
                               "TX_EPSR", "TX_EPS0"}) {
        auto* campo = qobject_cast<CampoResultado*>(C(nombre));
        QVERIFY2(campo->TextoEntero(), nombre);
    }
    // A short number goes back to the screen's own letters.
    CalculaCon("TX_ASI", QStringLiteral("10"));
    QCOMPARE(Campo("TX_MRB")->font().pointSizeF(), Campo("TX_MRB")->parentWidget()->font().pointSizeF());
}

void PruebaFlexion::pruebaBlandaNoTocaLosBotones()
{
    Abre();
    Calcula();
    QVERIFY(BotonesResultado(true));
    Escribe("TX_ANCHO", QStringLiteral("0,1"));
    QCOMPARE(Mensajes().size(), 1);
    QVERIFY(BotonesResultado(true));
    QVERIFY(!Estado().F_CALCULADO);
    QVERIFY(Estado().F_MODIFICADO);
}

void PruebaFlexion::deformacionesDeLaCeldaEnSusFormatos()
{
    Abre();
    Calcula();
    QCOMPARE(Campo("TX_EPSC")->text(), QStringLiteral("1,99"));
    QCOMPARE(Campo("TX_EPSSI")->text(), QStringLiteral("8,67"));
    QCOMPARE(Campo("TX_EPSSS")->text(), QStringLiteral("1,02"));
    QVERIFY(Estado().EPSSS(1, 1) > 0.0);
    QCOMPARE(Estado().EPSRSEL, Estado().EPSR(1, 1));
}

void PruebaFlexion::desbordamientoAlCalcularEsErrorFatal()
{
    // A depth of 1e300 m passes every test: the calculation overflows on it.
    Abre(false, ',', QStringLiteral("CANTO=1e300"));
    Calcula();
    QCOMPARE(doble_->proceso.erroresFatales.size(), std::size_t{1});
    QCOMPARE(doble_->proceso.erroresFatales[0].texto,
             QStringLiteral("Se ha producido el error '6' en tiempo de ejecución:\r\rDesbordamiento"));
    QCOMPARE(doble_->proceso.terminaciones, std::vector<int>{1});
}

// ---- Values that no field has taken: a project file holds values that its fields refuse.

void PruebaFlexion::unValorQueSuCampoRechazaNoSeCalcula_data()
{
    prueba::Columnas<bool, QString, QString, QString>({"seccionT", "valores", "control", "mensaje"});
    const QString anchoCero = QStringLiteral("El ancho de la sección debe ser un número mayor que cero.");
    const QString recubrimientoCero = QStringLiteral("El recubrimiento de la sección debe ser mayor que cero.");
    const QString refuerzoCero =
        QStringLiteral("El ancho del refuerzo a disponer en la sección debe ser mayor que cero.");
    const QString armaduraCero = QStringLiteral("La armadura inferior de la sección debe ser mayor que cero.");
    const QString refuerzoAncho =
        QStringLiteral("El ancho del refuerzo no puede ser mayor que el ancho de la sección.");
    const QString medioCanto = QStringLiteral("El recubrimiento de la sección debe ser menor que la mitad del canto.");
    // The file checks take any length above 0; the fields take 0.01 and up. 0.004 cm² shows
    // as "0,00": the field's text is what Calculate reads. A file's negative value passes
    // its checks, which come before the sign is dropped; the width, which has the focus on
    // opening, finds it first as the focus leaves it.
    const auto fila = [](const char* caso, bool t, const char* valores, const char* control, const QString& mensaje) {
        QTest::newRow(caso) << t << valores << control << mensaje;
    };
    fila("ancho", false, "ANCHO=0.005;ANCHOR=0.005", "TX_ANCHO", anchoCero);
    fila("canto", false, "CANTO=0.008;RECUB=0.004", "TX_CANTO",
         QStringLiteral("El canto de la sección debe ser un número mayor que cero."));
    fila("recubrimiento", false, "RECUB=0.004", "TX_RECUB", recubrimientoCero);
    fila("armadura inferior", false, "ASI=0.004", "TX_ASI", armaduraCero);
    fila("ancho del refuerzo", false, "ANCHOR=0.005", "CO_ANCHOR", refuerzoCero);
    fila("refuerzo más ancho que la sección", false, "ANCHOR=0.5", "CO_ANCHOR", refuerzoAncho);
    fila("T refuerzo más ancho que la sección", true, "ANCHOR=0.5", "CO_ANCHOR",
         QStringLiteral("El ancho del refuerzo a disponer en la sección debe ser menor que el ancho de la sección."));
    fila("recubrimiento de más de medio canto", false, "RECUB=0.4", "TX_RECUB", medioCanto);
    fila("T ala más alta que la sección", true, "CANTOALA=0.8", "TX_CANTOALA",
         QStringLiteral("El canto del ala no puede ser mayor que el canto de la sección."));
    fila("T ancho", true, "ANCHO=0.005;ANCHOALMA=0.005;ANCHOR=0.005", "TX_ANCHO", anchoCero);
    fila("T ancho del alma", true, "ANCHOALMA=0.005;ANCHOR=0.005", "TX_ANCHOALMA",
         QStringLiteral("El ancho del alma de la sección debe ser un número mayor que cero."));
    fila("T canto del ala", true, "CANTOALA=0.005", "TX_CANTOALA",
         QStringLiteral("El canto del ala de la sección debe ser un número mayor que cero."));
    fila("T recubrimiento", true, "RECUB=0.004", "TX_RECUB", recubrimientoCero);
}

void PruebaFlexion::unValorQueSuCampoRechazaNoSeCalcula()
{
    QFETCH(bool, seccionT);
    QFETCH(QString, valores);
    QFETCH(QString, control);
    QFETCH(QString, mensaje);
    Abre(seccionT, ',', valores);
    Calcula();
    QCOMPARE(Mensajes(), QStringList{mensaje});
    QVERIFY(FocoYSeleccion(control.toLatin1().constData()));
    QVERIFY(!Estado().F_CALCULADO);
    QVERIFY(!Rejilla()->EstaActiva());
    QVERIFY(BotonesResultado(false));
    QVERIFY(doble_->proceso.erroresFatales.empty());
}

void PruebaFlexion::unCoeficienteQueSuCampoRechazaSeCorrigeEnSuDialogo()
{
    // A coefficient of 0 from a file would divide by zero: Calculate opens the dialog on it.
    Abre(false, ',', QStringLiteral("GC=0"));
    CorrigeElCoeficienteYCalcula("TX_GC", "1,5", "El coeficiente de seguridad del hormigón no puede ser menor que 1.",
                                 1.5, "FG_FLEXION");
}
