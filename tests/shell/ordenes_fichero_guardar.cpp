// Save and Save As, the flags that each command leaves, and a project typed, saved and opened
// again.
#include "PruebaOrdenesFichero.h"

// ---- Saving.

void PruebaOrdenesFichero::guardarUnaPantallaAbiertaDeFicheroEscribeEnElSinDialogo_data()
{
    prueba::DosFilas("desdeMenu", {"menú", true}, {"barra", false});
}

void PruebaOrdenesFichero::guardarUnaPantallaAbiertaDeFicheroEscribeEnElSinDialogo()
{
    QFETCH(bool, desdeMenu);
    const QString ruta = AbreFichero("obra.vmf", kRectangular);
    prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("75"));
    QVERIFY(Estado().F_MODIFICADO);
    QVERIFY(desdeMenu ? Orden("mnuPrincipalGuardar") : Boton("Guardar"));
    QVERIFY(doble_->ficheros.guardados.empty());
    QCOMPARE(
        Contenido(ruta),
        QByteArray("1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n75\r\n"));
    QCOMPARE(QString::fromStdString(Estado().FICHERO), ruta);
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(!Estado().F_NUEVO);
    QVERIFY(Mostrados().isEmpty());
    // Saved: the screen closes without a prompt.
    CierraPantalla();
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::atajosDeGuardarYAbrirDesdeUnCampoTecleado()
{
    const QString ruta = AbreFichero("obra.vmf", kRectangular);
    QVERIFY(prueba::Enfoca(C("TX_MD")));
    prueba::Teclea(C("TX_MD"), QStringLiteral("75"));
    // Ctrl+S saves the text as typed, the field not yet left, over the project's file.
    QTest::keyClick(C("TX_MD"), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(doble_->ficheros.guardados.empty());
    QCOMPARE(
        Contenido(ruta),
        QByteArray("1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n75\r\n"));
    QCOMPARE(Texto("TX_MD"), QStringLiteral("75"));
    QVERIFY(!Estado().F_MODIFICADO);
    // Ctrl+A is Open, not the field's select-all: the menu's command, with its Cancel.
    Cancela();
    QTest::keyClick(C("TX_MD"), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{2});
    QVERIFY(Abierta() == nullptr);
    QVERIFY(!Estado().F_ABIERTO);
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::guardarComoPreguntaSiempreTambienTrasGuardar()
{
    const QString ruta = AbreFichero("obra.vmf", kRectangular);
    QVERIFY(Orden("mnuPrincipalGuardar"));
    QVERIFY(doble_->ficheros.guardados.empty());
    QCOMPARE(Contenido(ruta), kRectangular);

    // The name offered is the default one, not the project's own.
    const QString otra = Ruta("otra.vmf");
    QVERIFY(GuardaComo(otra));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(DialogoDeGuardar(), QStringList({kFiltroFlexion, "1", "flexion.vmf"}));
    QCOMPARE(Contenido(otra), kRectangular);
    QCOMPARE(QString::fromStdString(Estado().FICHERO), otra);

    // Save goes on to the new name without asking; Save As asks again.
    prueba::EscribeYTabula(C("TX_MCP"), QStringLiteral("15"));
    QVERIFY(Orden("mnuPrincipalGuardar"));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(
        Contenido(otra),
        QByteArray("1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n15\r\n80\r\n"));
    QCOMPARE(Contenido(ruta), kRectangular);
    const QString tercera = Ruta("tercera.vmf");
    QVERIFY(GuardaComo(tercera));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{2});
    QCOMPARE(Contenido(tercera), Contenido(otra));
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::guardarComoEnConfinamientoOfreceSuTipo()
{
    AbreFichero("pilar.vmc", kConfina);
    const QString otra = Ruta("otro.vmc");
    QVERIFY(GuardaComo(otra));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(DialogoDeGuardar(), QStringList({kFiltroConfina, "1", "confina.vmc"}));
    QCOMPARE(Contenido(otra), kConfina);
    QVERIFY(!Estado().F_MODIFICADO);
    // Saved, the confinement screen too closes without a prompt.
    CierraPantalla();
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::guardarTrasCalcularNoTocaElCalculo_data()
{
    QTest::addColumn<QString>("orden");
    for (const auto& [caso, orden] : kGuardarYGuardarComo)
        QTest::newRow(caso) << QString::fromLatin1(orden);
}

void PruebaOrdenesFichero::guardarTrasCalcularNoTocaElCalculo()
{
    QFETCH(QString, orden);
    QVERIFY(Orden("mnuCalcularFlexion"));
    prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("300"));
    prueba::Pulsa(C("CM_CALCULAR"));
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(Estado().F_MODIFICADO);
    Elige(Ruta("viga.vmf"));
    QVERIFY(Orden(qPrintable(orden)));
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(!Estado().F_NUEVO);
    QVERIFY(C("CM_CAPAS")->isEnabled());
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::guardarConUnCampoQueNoEsNumeroLoRechazaSinDialogo_data()
{
    QTest::addColumn<bool>("nueva");
    QTest::addColumn<bool>("saleDelCampo");
    QTest::addColumn<QString>("orden");
    QTest::newRow("nueva, tecleado sin salir, Guardar") << true << false << "mnuPrincipalGuardar";
    QTest::newRow("nueva, rechazado al salir, Guardar") << true << true << "mnuPrincipalGuardar";
    QTest::newRow("nueva, tecleado sin salir, Guardar como") << true << false << "mnuPrincipalGuardarcomo";
    QTest::newRow("nueva, tecleado sin salir, Guardar de la barra") << true << false << "Guardar";
    QTest::newRow("de fichero, tecleado sin salir, Guardar") << false << false << "mnuPrincipalGuardar";
    QTest::newRow("de fichero, rechazado al salir, Guardar") << false << true << "mnuPrincipalGuardar";
    QTest::newRow("de fichero, rechazado al salir, Guardar como") << false << true << "mnuPrincipalGuardarcomo";
}

void PruebaOrdenesFichero::guardarConUnCampoQueNoEsNumeroLoRechazaSinDialogo()
{
    QFETCH(bool, nueva);
    QFETCH(bool, saleDelCampo);
    QFETCH(QString, orden);
    const QString ruta = Ruta("obra.vmf");
    if (nueva) {
        QVERIFY(Orden("mnuCalcularFlexion"));
    } else {
        Crea(ruta, kRectangular);
        AbreDesdeMenu(ruta);
    }
    const bool grabado = Estado().F_GRABADO;
    QVERIFY(prueba::Enfoca(C("TX_ASI")));
    prueba::Teclea(C("TX_ASI"), QStringLiteral("abc"));
    if (saleDelCampo) {
        QTest::keyClick(C("TX_ASI"), Qt::Key_Tab);
        QCOMPARE(Mostrados(),
                 QStringList{Parada(QStringLiteral("La armadura inferior de la sección debe ser un número."))});
        QVERIFY(C("TX_ASI")->hasFocus());
        doble_->mensajes.mostrados.clear();
    }
    Elige(Ruta("otra.vmf"));
    QVERIFY(Ejecuta(orden));
    QCOMPARE(Mostrados(), QStringList{Parada(kIntroducidos)});
    QVERIFY(doble_->ficheros.guardados.empty());
    QCOMPARE(FicherosDeLaCarpeta(), nueva ? QStringList() : QStringList{QStringLiteral("obra.vmf")});
    if (!nueva) QCOMPARE(Contenido(ruta), kRectangular);
    QCOMPARE(Estado().F_GRABADO, grabado);
    QCOMPARE(Estado().F_NUEVO, nueva);
    // The refusal on leaving put the field's reset value in the state; the copy stored nothing.
    QCOMPARE(Estado().ASI, saleDelCampo || nueva ? 10.0 : 12.0);
    QCOMPARE(Texto("TX_ASI"), QStringLiteral("abc"));
    QVERIFY(C("TX_ASI")->hasFocus());
}

void PruebaOrdenesFichero::escrituraFallidaGuardarNoLaDaPorGrabadaYGuardarComoSi_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<bool>("soloLectura");
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("cuentaComoGrabado");
    const QString sinRuta = QStringLiteral("Error 76: No se ha encontrado la ruta de acceso");
    const QString sinPermiso = QStringLiteral("Error 70: Permiso denegado");
    QTest::newRow("Guardar del menú, carpeta que no existe") << "mnuPrincipalGuardar" << false << sinRuta << false;
    QTest::newRow("Guardar de la barra, carpeta que no existe") << "Guardar" << false << sinRuta << false;
    QTest::newRow("Guardar como, carpeta que no existe") << "mnuPrincipalGuardarcomo" << false << sinRuta << true;
    QTest::newRow("Guardar del menú, solo lectura") << "mnuPrincipalGuardar" << true << sinPermiso << false;
    QTest::newRow("Guardar como, solo lectura") << "mnuPrincipalGuardarcomo" << true << sinPermiso << true;
}

void PruebaOrdenesFichero::escrituraFallidaGuardarNoLaDaPorGrabadaYGuardarComoSi()
{
    QFETCH(QString, orden);
    QFETCH(bool, soloLectura);
    QFETCH(QString, error);
    QFETCH(bool, cuentaComoGrabado);
    const QString ruta = soloLectura ? Ruta("viga.vmf") : Ruta("no_existe/viga.vmf");
    if (soloLectura) {
        Crea(ruta, "antes");
        QVERIFY(QFile::setPermissions(ruta, QFileDevice::ReadOwner | QFileDevice::ReadGroup));
        // The administrator writes anywhere (under Wine too, whose Windows attribute is the
        // Unix file's write bit): the refusal can't be shown under that account.
        QFile prueba(ruta);
        if (prueba.open(QIODevice::Append)) QSKIP("el usuario puede escribir en un fichero de solo lectura");
    }
    QVERIFY(Orden("mnuCalcularFlexion"));
    prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("50"));
    QVERIFY(Estado().F_MODIFICADO);
    Elige(ruta);
    QVERIFY(Ejecuta(orden));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(Mostrados(), QStringList{Exclamacion(error)});
    QCOMPARE(Contenido(ruta), soloLectura ? QByteArray("antes") : QByteArray("(no existe)"));
    QCOMPARE(Estado().F_GRABADO, cuentaComoGrabado);
    QCOMPARE(Estado().F_MODIFICADO, !cuentaComoGrabado);
    QCOMPARE(Estado().F_NUEVO, !cuentaComoGrabado);
    QVERIFY(Estado().F_ERROR);
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
}

// ---- The flags of each command.

void PruebaOrdenesFichero::nuevaPoneLasBanderasDeSuTabla_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("pantalla");
    QTest::addColumn<bool>("modificadoAntes");
    QTest::addColumn<bool>("modificadoDespues");
    const auto fila = [](const char* caso, const char* orden, const char* pantalla, bool antes, bool despues) {
        QTest::newRow(caso) << orden << pantalla << antes << despues;
    };
    fila("rectangular, modificado", "mnuCalcularFlexion", "FM_FLEXION", true, true);
    fila("rectangular, sin modificar", "mnuCalcularFlexion", "FM_FLEXION", false, false);
    fila("T, modificado", "mnuCalcularFlexionT", "FM_FLEXIONT", true, true);
    fila("T, sin modificar", "mnuCalcularFlexionT", "FM_FLEXIONT", false, false);
    fila("confinamiento, modificado", "mnuCalcularConfina", "FM_CONFINA", true, true);
    // The confinement load sets it through its section, whatever it was.
    fila("confinamiento, sin modificar", "mnuCalcularConfina", "FM_CONFINA", false, true);
}

void PruebaOrdenesFichero::nuevaPoneLasBanderasDeSuTabla()
{
    QFETCH(QString, orden);
    QFETCH(QString, pantalla);
    QFETCH(bool, modificadoAntes);
    QFETCH(bool, modificadoDespues);
    const General& g = PonBanderas(true, true, false, modificadoAntes);
    QVERIFY(Orden(qPrintable(orden)));
    QCOMPARE(NombreAbierta(), pantalla);
    QVERIFY(!g.F_ABIERTO);
    QVERIFY(!g.F_GRABADO);
    QVERIFY(g.F_NUEVO);
    QCOMPARE(g.F_MODIFICADO, modificadoDespues);
}

void PruebaOrdenesFichero::abrirPoneLasBanderasDeSuTabla_data()
{
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QByteArray>("contenido");
    QTest::addColumn<bool>("modificadoAntes");
    QTest::addColumn<bool>("modificadoDespues");
    const auto fila = [](const char* caso, const char* nombre, const QByteArray& contenido, bool antes, bool despues) {
        QTest::newRow(caso) << nombre << contenido << antes << despues;
    };
    fila("vmf, modificado", "a.vmf", kRectangular, true, true);
    fila("vmf, sin modificar", "a.vmf", kRectangular, false, false);
    fila("vmf T, modificado", "t.vmf", kSeccionT, true, true);
    fila("vmc, modificado", "a.vmc", kConfina, true, true);
    fila("vmc, sin modificar", "a.vmc", kConfina, false, true);
}

void PruebaOrdenesFichero::abrirPoneLasBanderasDeSuTabla()
{
    QFETCH(QString, nombre);
    QFETCH(QByteArray, contenido);
    QFETCH(bool, modificadoAntes);
    QFETCH(bool, modificadoDespues);
    const General& g = PonBanderas(false, false, true, modificadoAntes);
    AbreFichero(nombre, contenido);
    QVERIFY(Abierta() != nullptr);
    QVERIFY(g.F_ABIERTO);
    QVERIFY(g.F_GRABADO);
    QVERIFY(!g.F_NUEVO);
    QCOMPARE(g.F_MODIFICADO, modificadoDespues);
    // A project marked modified prompts on close though it came from a file.
    CierraPantalla();
    QCOMPARE(Mostrados(), modificadoDespues ? QStringList{Pregunta()} : QStringList());
}

void PruebaOrdenesFichero::guardarYGuardarComoPonenLasBanderasDeSuTabla_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<bool>("deFichero");
    for (const auto& [caso, orden] : kGuardarYGuardarComo)
        for (const bool deFichero : {false, true})
            QTest::addRow("%s, pantalla %s", caso, deFichero ? "de fichero" : "nueva")
                << QString::fromLatin1(orden) << deFichero;
}

void PruebaOrdenesFichero::guardarYGuardarComoPonenLasBanderasDeSuTabla()
{
    QFETCH(QString, orden);
    QFETCH(bool, deFichero);
    if (deFichero) {
        AbreFichero("pilar.vmc", kConfina);
    } else {
        QVERIFY(Orden("mnuCalcularConfina"));
    }
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_CONFINA"));
    QVERIFY(Estado().F_MODIFICADO);
    Elige(Ruta("otro.vmc"));
    QVERIFY(Orden(qPrintable(orden)));
    // Only Save on a project read from a file writes over it without asking.
    const bool pregunta = !deFichero || orden == QLatin1String("mnuPrincipalGuardarcomo");
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{pregunta ? 1u : 0u});
    QCOMPARE(Contenido(Ruta(pregunta ? "otro.vmc" : "pilar.vmc")),
             deFichero ? kConfina : QByteArray("1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n"));
    QCOMPARE(Estado().F_ABIERTO, deFichero);
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_NUEVO);
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(Mostrados().isEmpty());
}

// ---- A project typed, saved and opened again.

void PruebaOrdenesFichero::idaYVueltaDeUnProyectoTecleado_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("pantalla");
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<char>("separador");
    const QByteArray rectangular =
        "1\r\n0.35\r\n0.7\r\n0.04\r\n12.5\r\n3.2\r\n27\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n20\r\n150\r\n";
    const QByteArray seccionT =
        "2\r\n0.8\r\n0.7\r\n0.3\r\n0.15\r\n0.04\r\n12.5\r\n3.2\r\n27\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0."
        "25\r\n20\r\n150\r\n";
    const QByteArray confina = "3\r\n0.5\r\n0.4\r\n27\r\n1.5\r\n1.15\r\n1.4\r\n800\r\n1.2\r\n";
    for (const char separador : {',', '.'}) {
        const char* ajuste = separador == ',' ? "coma" : "punto";
        QTest::addRow("rectangular, %s", ajuste) << "mnuCalcularFlexion"
                                                 << "FM_FLEXION"
                                                 << "viga.vmf" << rectangular << separador;
        QTest::addRow("T, %s", ajuste) << "mnuCalcularFlexionT"
                                       << "FM_FLEXIONT"
                                       << "viga_t.vmf" << seccionT << separador;
        QTest::addRow("confinamiento, %s", ajuste) << "mnuCalcularConfina"
                                                   << "FM_CONFINA"
                                                   << "pilar.vmc" << confina << separador;
    }
}

void PruebaOrdenesFichero::idaYVueltaDeUnProyectoTecleado()
{
    QFETCH(QString, orden);
    QFETCH(QString, pantalla);
    QFETCH(QString, nombre);
    QFETCH(QByteArray, fichero);
    QFETCH(char, separador);
    doble_->regional.separador = separador;
    QVERIFY(Orden(qPrintable(orden)));
    QCOMPARE(NombreAbierta(), pantalla);
    TecleaProyecto(pantalla);
    QVERIFY(Mostrados().isEmpty());
    if (pantalla == QLatin1String("FM_CONFINA")) {
        QCOMPARE(Texto("CO_SECCION"), QStringLiteral("RECTANGULAR"));
        QCOMPARE(Estado().SECCION, Entero{3});
    }
    const QStringList textos = TextosDe(pantalla);

    const QString ruta = carpeta_->filePath(nombre);
    QVERIFY(GuardaComo(ruta));
    // The file uses the period and CR LF whatever the setting.
    QCOMPARE(Contenido(ruta), fichero);
    const std::vector<double> valores = ValoresDe(pantalla);
    CierraPantalla();
    QVERIFY(Abierta() == nullptr);

    // What the screen shows again comes from the file, not from what the state kept.
    const auto borraProyecto = [&pantalla] {
        if (pantalla == QLatin1String("FM_CONFINA"))
            ValoresNuevoConfinamiento(Estado());
        else
            ValoresFlexion(Estado());
    };
    borraProyecto();
    AbreDesdeMenu(ruta);
    QCOMPARE(NombreAbierta(), pantalla);
    QCOMPARE(TextosDe(pantalla), textos);
    QCOMPARE(ValoresDe(pantalla), valores);
    QCOMPARE(qobject_cast<QComboBox*>(C("CO_FCK"))->currentIndex(), 6);

    // Under the other setting the same file shows the other separator.
    CierraPantalla();
    QVERIFY(Abierta() == nullptr);
    doble_->regional.separador = separador == ',' ? '.' : ',';
    borraProyecto();
    AbreDesdeMenu(ruta);
    QCOMPARE(NombreAbierta(), pantalla);
    QStringList otros;
    for (const QString& texto : textos)
        otros << OtroSeparador(texto);
    QCOMPARE(TextosDe(pantalla), otros);
    QCOMPARE(ValoresDe(pantalla), valores);
    QCOMPARE(Contenido(ruta), fichero);
    // Only the confinement screens prompted, as their load marks them modified.
    const QStringList preguntas = pantalla == QLatin1String("FM_CONFINA") ? QStringList{Pregunta()} : QStringList();
    QCOMPARE(Mostrados(), preguntas);
}
