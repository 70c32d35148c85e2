// Print: the report of each screen, its verdict, the hourglass, and when Print refuses.
#include "PruebaImpresion.h"
#include "comun/Ejecuta.h"

// ---- Print on the characteristics.

void PruebaImpresion::imprimirCaracteristicasNoNecesitaCalcular_data() { FilasVia(); }

void PruebaImpresion::imprimirCaracteristicasNoNecesitaCalcular()
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
    QCOMPARE(
        ValoresDe({"Tipo de refuerzo:", "Espesor:", "Módulo de Young:", "Deformación última:", "Coef. seg. TEXALON®:"}),
        QStringList({"TEXALON X", Sep("0,163 mm"), "440000 N/mm²", Sep("5,50‰"), Sep("1,40")}));
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

void PruebaImpresion::imprimirFlexionCalculadaDaDosPaginas_data()
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

void PruebaImpresion::imprimirFlexionCalculadaDaDosPaginas()
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

void PruebaImpresion::imprimirConfinamientoCalculado_data() { FilasVia(); }

void PruebaImpresion::imprimirConfinamientoCalculado()
{
    QFETCH(QString, via);
    QFETCH(char, separador);
    Arranca(separador);
    ConfinamientoCalculado();
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(Imprime(via));
    QVERIFY(Mostrados().isEmpty());
    EsperaUnDocumento("REFUERZO A CONFINAMIENTO", "informe_confinamiento", 1);
    QCOMPARE(ValoresDe({"Tipo de sección:", "Diámetro:", "Lado menor:", "Axil actual:", "Incr. de resistencia:"}),
             QStringList({"CIRCULAR", Sep("0,500 m"), "(no impreso)", Sep("0,00 kN"), Sep("1,00")}));
    QCOMPARE(ValorDe("RESULTADOS DE LA SECCION"), QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
    const char sep = doble_->regional.separador;
    QCOMPARE(ValorDe("Incremento de resistencia:"),
             QString::fromStdString(Formato(ValorDeTexto(Texto("TX_RESU").toStdString(), sep), "0.00", sep)));
    // The section was printed last and stays on the screen.
    QVERIFY(EstadoDibujo().F_SECCION);
}

// ---- Print refused.

void PruebaImpresion::imprimirSinResultadosAvisaYNoImprime_data()
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

void PruebaImpresion::imprimirSinResultadosAvisaYNoImprime()
{
    QFETCH(QString, orden);
    QFETCH(QString, cambio);
    QFETCH(QString, via);
    QFETCH(char, separador);
    Arranca(separador);
    QVERIFY(Orden(qPrintable(orden)));
    if (!cambio.isEmpty()) {
        prueba::Pulsa(C("CM_CALCULAR"));
        QVERIFY(Estado().F_CALCULADO);
        prueba::EscribeYTabula(C(qPrintable(cambio)), Sep("300"));
        QCOMPARE(Texto(qPrintable(cambio)), Sep("300,00"));
        QVERIFY(Mostrados().isEmpty());
    }
    QVERIFY(!Estado().F_CALCULADO);
    ImprimeYSoloAvisa(via, kSinCalcular);
    QVERIFY(!Estado().F_CALCULADO);
}

void PruebaImpresion::unaCeldaRechazadaAvisaYNoImprime_data()
{
    QTest::addColumn<QString>("via");
    QTest::addColumn<char>("separador");
    QTest::newRow("menú, coma") << QStringLiteral("menú") << ',';
    QTest::newRow("barra, punto") << QStringLiteral("barra") << '.';
}

void PruebaImpresion::unaCeldaRechazadaAvisaYNoImprime()
{
    QFETCH(QString, via);
    QFETCH(char, separador);
    Arranca(separador);
    FlexionCalculada(false, "250");
    // TEXALON X gains nothing from its third layer on in the default project.
    ClicEnCelda("FG_FLEXION", 3, 3);
    QCOMPARE(Texto("TX_MU"), QStringLiteral("---"));
    QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text().trimmed(),
             QStringLiteral("Refuerzo tipo TEXALON X - Núm. capas: 3"));
    QVERIFY(Estado().F_CALCULADO);
    const QStringList dibujo = TextosDelDibujo("PIC_FLEXION");
    ImprimeYSoloAvisa(via, kCeldaRechazada);
    // No diagram was drawn for the refused report.
    QCOMPARE(TextosDelDibujo("PIC_FLEXION"), dibujo);
}

// ---- The verdict.

void PruebaImpresion::conElVeredictoUnaPaginaConLaFrase_data()
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

void PruebaImpresion::conElVeredictoUnaPaginaConLaFrase()
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

// ---- The hourglass.

void PruebaImpresion::elRelojDeArenaMientrasCorreElInforme_data()
{
    QTest::addColumn<QString>("orden");
    QTest::newRow("características") << QStringLiteral("mnuCalcularCarac");
    QTest::newRow("flexión rectangular") << QStringLiteral("mnuCalcularFlexion");
    QTest::newRow("flexión en T") << QStringLiteral("mnuCalcularFlexionT");
    QTest::newRow("confinamiento") << QStringLiteral("mnuCalcularConfina");
}

void PruebaImpresion::elRelojDeArenaMientrasCorreElInforme()
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

void PruebaImpresion::sinPantallaImprimirNoEstaYNoHaceNada()
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

int main(int argc, char** argv) { return prueba::Ejecuta<PruebaImpresion>(argc, argv); }
