// FM_CONFINA: the calculation, its grid and the diagram's button.
#include "PruebaConfina.h"

// ---- The calculation.

void PruebaConfina::calculoPorDefecto_data() { prueba::FilasSeparador(); }

void PruebaConfina::calculoPorDefecto()
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
    QCOMPARE(FilaDe("FG_CONFINA", 0), QStringList({"Nº capas", "TEXALON L", "TEXALON H", "TEXALON X"}));
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

void PruebaConfina::incrementoUnoDejaElLetreroOculto()
{
    AbreRectangular(0.5, 0.4);
    Calcula();
    QVERIFY(!C("LB_INFO")->isVisible());
    QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("1,01"));
}

void PruebaConfina::incrementoDosNoSePuedeReforzar()
{
    Abre();
    CalculaCon("TX_INCR", QStringLiteral("2"));
    CompruebaLetrero(QStringLiteral(" NO SE PUEDE REFORZAR LA SECCION "), QColor(255, 0, 0));
    for (int n = 1; n <= 5; ++n)
        for (int t = 1; t <= 3; ++t) {
            QVERIFY(!Rejilla()->Texto(n, t).isEmpty());
            QCOMPARE(Rejilla()->Color(n, t), QColor(255, 255, 255));
        }
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(C("CM_CONFINA")->isEnabled());
    // A new Calculate that reaches INCR hides the label again.
    CalculaCon("TX_INCR", QStringLiteral("1,2"));
    QVERIFY(!C("LB_INFO")->isVisible());
}

void PruebaConfina::elIncrementoYLaSeccionNoLosLeeCalcular()
{
    Abre();
    // Their own handlers keep the state up to date; Calculate takes the state's values.
    Estado().INCR = 3.0;
    Calcula();
    QVERIFY(Etiqueta("LB_INFO")->isVisible());
    QCOMPARE(Campo("TX_INCR")->text(), QStringLiteral("1,00"));
}

void PruebaConfina::axilDeMilDaSuPredeformacion()
{
    Abre();
    CalculaCon("TX_NCP", QStringLiteral("1000"));
    QCOMPARE(Formato(Estado().EPS0, "0.00000000", '.'), std::string("0.00018148"));
    QCOMPARE(Campo("TX_EPS0")->text(), QStringLiteral("0,18"));
    QCOMPARE(Campo("TX_WWD")->text().left(6), QStringLiteral("0,0118"));
}

void PruebaConfina::predeformacionExcesivaParaYDejaLaRejillaInactiva()
{
    Abre();
    CalculaDeNuevoCon("TX_NCP", QStringLiteral("20000"));
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("La predeformación de la estructura es superior al 2 por mil.")});
    QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::Parada);
    QVERIFY(!Rejilla()->EstaActiva());
    QVERIFY(!Estado().F_CALCULADO);
    QVERIFY(!C("CM_CONFINA")->isEnabled());
    QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("1,03"));
}

void PruebaConfina::laRejillaMuestraLaCeldaElegidaSinGuarda()
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

void PruebaConfina::losCoeficientesApaganElDiagramaPorCualquierSalida()
{
    Abre();
    Calcula();
    QVERIFY(C("CM_CONFINA")->isEnabled());
    prueba::Pulsa(C("CM_GAMMA1"));
    QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
    QVERIFY(!C("CM_CONFINA")->isEnabled());
    QVERIFY(C("CM_SECCION")->isEnabled());
}

void PruebaConfina::desbordamientoAlCalcularEsErrorFatal()
{
    // A diameter of 1e160 m passes every test: the calculation overflows on it.
    Abre(',', [](General& g) { g.DIAM = 1e160; });
    Calcula();
    QCOMPARE(doble_->proceso.erroresFatales.size(), std::size_t{1});
    QCOMPARE(doble_->proceso.erroresFatales[0].texto,
             QStringLiteral("Se ha producido el error '6' en tiempo de ejecución:\r\rDesbordamiento"));
}

// ---- Values that no field has taken: a project file holds values that its fields refuse.

void PruebaConfina::unValorQueSuCampoRechazaNoSeCalcula_data()
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

void PruebaConfina::unValorQueSuCampoRechazaNoSeCalcula()
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

void PruebaConfina::elPilarDeLadosEnRelacionTresConTresNoSeCalcula()
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

void PruebaConfina::unCoeficienteQueSuCampoRechazaSeCorrigeEnSuDialogo()
{
    Abre(',', [](General& g) { g.GS = 0.5; });
    CorrigeElCoeficienteYCalcula("TX_GS", "1,15", "El coeficiente de seguridad del acero no puede ser menor de 1.",
                                 1.15, "FG_CONFINA");
}
