// Open: good files open the screen of their kind; bad ones say so and open none.
#include "PruebaOrdenesFichero.h"

// ---- Opening good files.

void PruebaOrdenesFichero::abrirUnFicheroBuenoAbreLaPantallaDeSuTipo_data()
{
    prueba::Columnas<QString, QByteArray, QString, QString, QString, bool>(
        {"nombre", "contenido", "pantalla", "control", "texto", "preguntaAlCerrar"});
    const auto fila = [](const char* caso, const char* nombre, const QByteArray& contenido, const char* pantalla,
                         const char* control, const char* texto, bool preguntaAlCerrar) {
        QTest::newRow(caso) << nombre << contenido << pantalla << control << texto << preguntaAlCerrar;
    };
    fila("rectangular", "x.vmf", kRectangular, "FM_FLEXION", "TX_MD", "80,00", false);
    fila("T", "t.vmf", kSeccionT, "FM_FLEXIONT", "TX_ANCHOALMA", "0,300", false);
    fila("confinamiento", "c.vmc", kConfina, "FM_CONFINA", "TX_NCP", "1200,00", true);
    fila("mayúsculas VMF", "X.VMF", kRectangular, "FM_FLEXION", "TX_MCP", "10,00", false);
    fila("mezcla Vmc", "Y.Vmc", kConfina, "FM_CONFINA", "TX_DIAM", "0,500", true);
}

void PruebaOrdenesFichero::abrirUnFicheroBuenoAbreLaPantallaDeSuTipo()
{
    QFETCH(QString, nombre);
    QFETCH(QByteArray, contenido);
    QFETCH(QString, pantalla);
    QFETCH(QString, control);
    QFETCH(QString, texto);
    QFETCH(bool, preguntaAlCerrar);
    QVERIFY(!Estado().F_MODIFICADO);
    AbreFichero(nombre, contenido);
    QVERIFY(Mostrados().isEmpty());
    QCOMPARE(NombreAbierta(), pantalla);
    QCOMPARE(Texto(qPrintable(control)), Sep(qPrintable(texto)));
    QVERIFY(Estado().F_ABIERTO);
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_NUEVO);
    // Only the confinement screen's load marks the project modified, through its section.
    QCOMPARE(Estado().F_MODIFICADO, preguntaAlCerrar);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({true, true, true, true, true}));
    CierraPantalla();
    QCOMPARE(Mostrados(), preguntaAlCerrar ? QStringList{Pregunta()} : QStringList());
    QVERIFY(Abierta() == nullptr);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
}

void PruebaOrdenesFichero::abrirDesdeLaBarraAbreIgualQueDesdeElMenu()
{
    const QString ruta = Ruta("t.VMF");
    Crea(ruta, kSeccionT);
    Elige(ruta);
    QVERIFY(Boton("Abrir"));
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXIONT"));
    QCOMPARE(Estado().ANCHO, 0.8);
    QCOMPARE(Estado().MD, 120.0);
    QVERIFY(Estado().F_ABIERTO);
    QVERIFY(Mostrados().isEmpty());
}

// ---- Opening bad files.

void PruebaOrdenesFichero::abrirUnFicheroQueNoPasaLasComprobacionesSoloDiceQueNoEsCorrecto_data()
{
    prueba::Columnas<QString, QByteArray, double, double, double, int, double>(
        {"nombre", "contenido", "ancho", "asi", "diam", "seccion", "nu"});
    // Kind 3 is read through as a rectangular file and then refused; the flexure defaults
    // replace the project, the confinement fields stay.
    QTest::newRow("vmf de tipo 3") << "tipo3.vmf"
                                   << QByteArray(
                                          "3\r\n0.3\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1."
                                          "15\r\n1.4\r\n0.125\r\n0\r\n0\r\n")
                                   << 0.4 << 10.0 << 0.7 << 2 << 0.3;
    // A refused confinement file leaves NU as it was; only a failing one loads it.
    QTest::newRow("vmc con INCR 0.5") << "incr.vmc"
                                      << QByteArray("3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n1200\r\n0.5\r\n")
                                      << 0.3 << 20.0 << 0.5 << 1 << 0.3;
}

void PruebaOrdenesFichero::abrirUnFicheroQueNoPasaLasComprobacionesSoloDiceQueNoEsCorrecto()
{
    QFETCH(QString, nombre);
    QFETCH(QByteArray, contenido);
    QFETCH(double, ancho);
    QFETCH(double, asi);
    QFETCH(double, diam);
    QFETCH(int, seccion);
    QFETCH(double, nu);
    General& g = Estado();
    prueba::EscribeValores(g, QStringLiteral("ANCHO=0.3;ASI=20;DIAM=0.7;SECCION=2;NU=0.3"));
    AbreFichero(nombre, contenido);
    QCOMPARE(Mostrados(), QStringList{Parada(kAlmacenados)});
    QVERIFY(Abierta() == nullptr);
    QVERIFY(!g.F_ABIERTO);
    QCOMPARE(g.ANCHO, ancho);
    QCOMPARE(g.ASI, asi);
    QCOMPARE(g.DIAM, diam);
    QCOMPARE(static_cast<int>(g.SECCION), seccion);
    QCOMPARE(g.NU, nu);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
}

void PruebaOrdenesFichero::abrirUnFicheroQueFallaDaSuErrorYLuegoQueNoEsCorrecto_data()
{
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QString>("forma");  // "fichero", "nada", "sinLectura" or "carpeta"
    QTest::addColumn<QByteArray>("contenido");
    QTest::addColumn<QString>("error");
    QTest::addColumn<bool>("flexion");
    const QString finDelFichero = QStringLiteral("Error 62: La entrada sobrepasa el final del archivo");
    const QString noEncontrado = QStringLiteral("Error 53: No se ha encontrado el archivo");
    QTest::newRow("vmf corto") << "corto.vmf"
                               << "fichero" << QByteArray("1\r\n0.3\r\n0.6\r\n") << finDelFichero << true;
    QTest::newRow("vmc corto") << "corto.vmc"
                               << "fichero" << QByteArray("3\r\n0.5\r\n") << finDelFichero << false;
    QTest::newRow("vmf vacío") << "vacio.vmf"
                               << "fichero" << QByteArray() << finDelFichero << true;
    QTest::newRow("vmf que no existe") << "falta.vmf"
                                       << "nada" << QByteArray() << noEncontrado << true;
    QTest::newRow("vmc que no existe") << "falta.vmc"
                                       << "nada" << QByteArray() << noEncontrado << false;
    QTest::newRow("carpeta que no existe")
        << "no_existe/obra.vmf"
        << "nada" << QByteArray() << "Error 76: No se ha encontrado la ruta de acceso" << true;
    // A folder with a project's name opens but cannot be read.
    QTest::newRow("vmf sin permiso de lectura") << "cerrado.vmf"
                                                << "sinLectura" << kRectangular << "Error 70: Permiso denegado" << true;
    QTest::newRow("carpeta con nombre de proyecto")
        << "carpeta.vmc"
        << "carpeta" << QByteArray() << "Error 75: Error de acceso a la ruta o al archivo" << false;
}

void PruebaOrdenesFichero::abrirUnFicheroQueFallaDaSuErrorYLuegoQueNoEsCorrecto()
{
    QFETCH(QString, nombre);
    QFETCH(QString, forma);
    QFETCH(QByteArray, contenido);
    QFETCH(QString, error);
    QFETCH(bool, flexion);
    prueba::EscribeValores(Estado(), QStringLiteral("ANCHO=0.3;DIAM=0.7;NU=0.3;FYK=400"));
    const General& g = Estado();
    const QString ruta = carpeta_->filePath(nombre);
    if (forma == QLatin1String("fichero")) Crea(ruta, contenido);
    if (forma == QLatin1String("carpeta")) QVERIFY(QDir(carpeta_->path()).mkdir(nombre));
    if (forma == QLatin1String("sinLectura")) {
        Crea(ruta, contenido);
        QVERIFY(QFile::setPermissions(ruta, QFileDevice::WriteOwner));
        // The administrator reads anything: the refusal can't be shown under that account.
        if (QFileInfo(ruta).isReadable()) QSKIP("el usuario puede leer un fichero sin permiso de lectura");
    }
    AbreDesdeMenu(ruta);
    QCOMPARE(Mostrados(), QStringList({Exclamacion(error), Parada(kAlmacenados)}));
    QVERIFY(Abierta() == nullptr);
    QVERIFY(!g.F_ABIERTO);
    // The reader of the file's kind has loaded its defaults; a failing confinement file the
    // longer list, the Poisson coefficient and the steel among them.
    QCOMPARE(g.ANCHO, flexion ? 0.4 : 0.3);
    QCOMPARE(g.DIAM, flexion ? 0.7 : 0.5);
    QCOMPARE(g.NU, flexion ? 0.3 : 0.5);
    QCOMPARE(g.FYK, 500.0);
}

void PruebaOrdenesFichero::abrirUnNombreDeOtraExtensionNoHaceNada_data()
{
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<bool>("existe");
    const QString notas = QStringLiteral("notas.txt");
    QTest::newRow("notas.txt que existe") << notas << true;
    QTest::newRow("notas.txt que no existe") << notas << false;
    QTest::newRow("copia de un vmf") << QStringLiteral("obra.vmf.bak") << true;
}

void PruebaOrdenesFichero::abrirUnNombreDeOtraExtensionNoHaceNada()
{
    QFETCH(QString, nombre);
    QFETCH(bool, existe);
    prueba::EscribeValores(Estado(), QStringLiteral("ANCHO=0.3;DIAM=0.7"));
    const General& g = Estado();
    const QString ruta = carpeta_->filePath(nombre);
    // The contents of a good project do not count: the name decides.
    if (existe) Crea(ruta, kRectangular);
    AbreDesdeMenu(ruta);
    QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{1});
    QVERIFY(Mostrados().isEmpty());
    QVERIFY(Abierta() == nullptr);
    QVERIFY(!g.F_ERROR);
    QVERIFY(!g.F_ABIERTO);
    QCOMPARE(g.ANCHO, 0.3);
    QCOMPARE(g.DIAM, 0.7);
    QCOMPARE(g.ASI, 10.0);
}
