// FM_CONFIG_IMPR: the printers on offer, the one chosen, and the ways out of the dialog.
#include "PruebaImpresion.h"

// ---- FM_CONFIG_IMPR.

void PruebaImpresion::configurarMuestraElDialogoModalYFijo()
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

void PruebaImpresion::laListaSigueElOrdenDelServicioConLaActualElegida_data()
{
    QTest::addColumn<QStringList>("nombres");
    QTest::addColumn<QString>("actual");
    QTest::addColumn<int>("elegida");
    const QStringList tres = {QStringLiteral("Oficina"), QStringLiteral("Planta 2"), QStringLiteral("Imprimir a PDF")};
    QTest::newRow("la primera") << tres << "Oficina" << 0;
    QTest::newRow("la del medio") << tres << "Planta 2" << 1;
    QTest::newRow("la última") << tres << "Imprimir a PDF" << 2;
    QTest::newRow("una que no está") << tres << "Retirada" << 0;
    QTest::newRow("dos iguales: la última") << QStringList({"Copia", "Planta 2", "Copia"}) << "Copia" << 2;
}

void PruebaImpresion::laListaSigueElOrdenDelServicioConLaActualElegida()
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

void PruebaImpresion::sinImpresorasLaListaYSeleccionarApagados()
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

void PruebaImpresion::seleccionarConElTecladoLaHaceActualYElDialogoSigue()
{
    ArrancaConTresImpresoras();
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
    QCOMPARE(otraVez.entradas,
             QStringList({QStringLiteral("Oficina"), QStringLiteral("Planta 2"), QStringLiteral("Imprimir a PDF")}));
    QCOMPARE(otraVez.elegida, 1);
    QCOMPARE(doble_->ventanas.mostradas.size(), 2);
}

void PruebaImpresion::seleccionarConElRatonLaHaceActual()
{
    ArrancaConTresImpresoras();
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

void PruebaImpresion::elDialogoNoTocaLosResultados_data()
{
    prueba::DosFilas("calculado", {"calculado", true}, {"sin calcular", false});
}

void PruebaImpresion::elDialogoNoTocaLosResultados()
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

void PruebaImpresion::cambiarLaEntradaSinSeleccionarNoCambiaNada_data()
{
    prueba::DosFilas("conSalir", {"Salir", true}, {"Escape", false});
}

void PruebaImpresion::cambiarLaEntradaSinSeleccionarNoCambiaNada()
{
    QFETCH(bool, conSalir);
    ArrancaConTresImpresoras();
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
