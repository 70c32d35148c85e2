// FM_FLEXION and FM_FLEXIONT: the load, the close and the keyboard path.
#include "PruebaFlexion.h"
#include "comun/Ejecuta.h"

void PruebaFlexion::cargaConTituloYCamposDelEstado()
{
    FmFlexion& p = Abre();
    QCOMPARE(p.objectName(), QStringLiteral("FM_FLEXION"));
    QCOMPARE(p.windowTitle(), QStringLiteral("Cálculo del refuerzo a flexión en secciones rectangulares"));
    QVERIFY(Estado().F_FLEXION);
    QVERIFY(!Estado().F_GRABADO);
    QVERIFY(Estado().F_NUEVO);
    QCOMPARE(Textos({"TX_ANCHO", "TX_CANTO", "TX_RECUB", "TX_ASI", "TX_ASS", "TX_MCP", "TX_MD"}),
             QStringList({"0,400", "0,600", "0,050", "10,00", "0,00", "0,00", "0,00"}));
    QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("25"));
    QCOMPARE(Lista("CO_FCK")->count(), 6);
    QCOMPARE(Lista("CO_FYK")->currentIndex(), 1);
    QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,125"));
    QCOMPARE(Lista("CO_ANCHOR")->itemText(4), QStringLiteral("0,500"));
    QVERIFY(BotonesResultado(false));
    QVERIFY(!Rejilla()->EstaActiva());
    QVERIFY(!C("LB_INFO")->isVisible());
    QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(), QString());
}

void PruebaFlexion::cargaEnInglesConPunto()
{
    Abre(false, '.');
    QCOMPARE(Campo("TX_ANCHO")->text(), QStringLiteral("0.400"));
    QCOMPARE(Lista("CO_ANCHOR")->itemText(2), QStringLiteral("0.250"));
}

void PruebaFlexion::abiertaDeFicheroNoEsNueva()
{
    CargaDeFichero();
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_NUEVO);
}

void PruebaFlexion::listaConOtroValorLoPoneEnLaFilaSiguiente()
{
    Carga(false, ',', [](General& g) {
        g.FCK = 27.0;
        g.ANCHOR = 0.1234;
    });
    QCOMPARE(Lista("CO_FCK")->count(), 7);
    QCOMPARE(Lista("CO_FCK")->currentIndex(), 6);
    QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("27"));
    QCOMPARE(Lista("CO_ANCHOR")->currentIndex(), 5);
    QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,123"));
    QCOMPARE(Estado().ANCHOR, 0.1234);
}

void PruebaFlexion::cerrarPantallaNuevaPreguntaYNoNoGraba()
{
    Abre();
    doble_->mensajes.respuestas = {Respuesta::No};
    pantalla_->close();
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?")});
    QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::PreguntaSiNo);
    QVERIFY(doble_->ficheros.guardados.empty());
    QVERIFY(!Estado().F_FLEXION);
}

void PruebaFlexion::cerrarConSiGrabaElFichero()
{
    Abre();
    const QString fichero = CierraYGuarda("texalon_prueba_cierre.vmf");
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
    QCOMPARE(doble_->ficheros.guardados[0].filtro, QStringLiteral("Archivos TEXALON - Flexión|*.VMF"));
    QVERIFY(Estado().F_GRABADO);
    QVERIFY(!Estado().F_MODIFICADO);
    QCOMPARE(
        QString::fromStdString(Contenido(fichero)),
        QStringLiteral("1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n"));
    QFile::remove(fichero);
}

void PruebaFlexion::cerrarConSiYDatosMalosNoGraba_data()
{
    prueba::DosFilas("tecleado", {"un campo tecleado sin salir, que pierde", true},
                     {"un error dejado por otra orden, que rechaza los datos buenos", false});
}

void PruebaFlexion::cerrarConSiYDatosMalosNoGraba()
{
    QFETCH(bool, tecleado);
    Abre();
    if (tecleado) {
        Estado().RECUB = 0.05;
        // Typed and never left: the closing screen checks no field, its copy finds it.
        TecleaSinSalir("TX_ASI", QStringLiteral("abc"));
    } else {
        Estado().F_ERROR = true;
    }
    doble_->mensajes.respuestas = {Respuesta::Si};
    pantalla_->close();
    QCOMPARE(Mensajes(), QStringList({QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"),
                                      QStringLiteral("Los datos introducidos no son correctos.")}));
    QVERIFY(doble_->ficheros.guardados.empty());
}

void PruebaFlexion::siEnUnProyectoConNombreOfreceIgualmenteFlexionVmf()
{
    Carga(true, SeparadorDeLaMaquina(), [](General& g) {
        g.F_ABIERTO = true;
        g.F_MODIFICADO = true;
        g.FICHERO = "/tmp/viga_de_prueba.vmf";
    });
    doble_->mensajes.respuestas = {Respuesta::Si};
    pantalla_->close();
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
    QCOMPARE(Estado().FICHERO, std::string("/tmp/viga_de_prueba.vmf"));
}

void PruebaFlexion::cancelarElDialogoCierraSinDecirNada()
{
    Abre();
    doble_->mensajes.respuestas = {Respuesta::Si};
    pantalla_->close();
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(doble_->mensajes.mostrados.size(), std::size_t{1});
    QVERIFY(!Estado().F_GRABADO);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(pantalla_.isNull());
}

void PruebaFlexion::abiertaDeFicheroSinCambiosCierraSinPreguntar()
{
    CargaDeFichero().show();
    pantalla_->close();
    QVERIFY(doble_->mensajes.mostrados.empty());
}

void PruebaFlexion::abiertaDeFicheroTrasTabularPregunta()
{
    Carga(false, ',', DeFichero).show();
    pantalla_->activateWindow();
    Escribe("TX_CANTO", Campo("TX_CANTO")->text());
    pantalla_->close();
    QCOMPARE(Mensajes(), QStringList{QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?")});
}

void PruebaFlexion::alAbrirElFocoEstaEnElPrimerCampoSinCambiarNada()
{
    Abre(true);
    QCOMPARE(QApplication::focusWidget(), C("TX_ANCHO"));
    QVERIFY(!Estado().F_MODIFICADO);
    QVERIFY(Estado().F_NUEVO);
    // The user types at once, and only leaving the field checks it.
    QTest::keyClicks(C("TX_ANCHO"), QStringLiteral("5"));
    QVERIFY(!Estado().F_MODIFICADO);
}

void PruebaFlexion::tabuladorSigueElOrdenDeLectura_data()
{
    QTest::addColumn<bool>("seccionT");
    QTest::addColumn<QStringList>("datos");
    const QStringList comunes = {"TX_RECUB", "TX_ASI",    "TX_ASS", "TX_MCP",    "TX_MD",
                                 "CO_FCK",   "CM_GAMMA1", "CO_FYK", "CM_GAMMA2", "CO_ANCHOR"};
    QTest::newRow("rectangular") << false << QStringList({"TX_ANCHO", "TX_CANTO"}) + comunes;
    QTest::newRow("T") << true << QStringList({"TX_ANCHO", "TX_ANCHOALMA", "TX_CANTO", "TX_CANTOALA"}) + comunes;
}

void PruebaFlexion::tabuladorSigueElOrdenDeLectura()
{
    QFETCH(bool, seccionT);
    QFETCH(QStringList, datos);
    Abre(seccionT);
    Calcula();
    // From Calcular on a calculated screen: the result buttons, the grid, the data panel.
    QVERIFY(prueba::Enfoca(C("CM_CALCULAR")));
    const QStringList botones = {"CM_SECCION", "CM_DEFORMACIONES", "CM_ARMADURA",
                                 "CM_CAPAS",   "CM_ANCLAJE",       "FG_FLEXION"};
    QCOMPARE(prueba::RecorridoTab(static_cast<int>(botones.size()) + 1), botones + QStringList{datos.first()});
    // Down the data panel row by row; each field passed greys the result buttons, which
    // Tab then passes by.
    QCOMPARE(prueba::RecorridoTab(static_cast<int>(datos.size()) + 2),
             datos.mid(1) + QStringList({"CM_CALCULAR", "CM_SECCION", "FG_FLEXION"}));
    QVERIFY(Mensajes().isEmpty());
}

void PruebaFlexion::nombresAccesiblesYConsejos()
{
    Abre(true);
    QCOMPARE(C("TX_ANCHO")->accessibleName(), QStringLiteral("Ancho"));
    QCOMPARE(C("TX_ANCHOALMA")->accessibleName(), QStringLiteral("Ancho alma"));
    QCOMPARE(C("TX_MD")->accessibleName(), QStringLiteral("Momento solicitante"));
    QCOMPARE(C("CO_FCK")->accessibleName(), QStringLiteral("fck"));
    QCOMPARE(C("CM_CALCULAR")->toolTip(), QStringLiteral("Calcula flexión"));
    QCOMPARE(C("TX_MRB")->toolTip(),
             QStringLiteral("Momento que hace que el diagrama de rotura pase por los pivotes R y B"));
}

void PruebaFlexion::deUnExtremoAOtroComoUnUsuario()
{
    Abre();
    // Types a section, tabs through it, presses Calculate with the mouse and reads the grid.
    QLineEdit* ancho = Campo("TX_ANCHO");
    ancho->setFocus();
    QTRY_VERIFY(ancho->hasFocus());
    ancho->selectAll();
    QTest::keyClicks(ancho, QStringLiteral("0,3"));
    QTest::keyClick(ancho, Qt::Key_Tab);
    QLineEdit* canto = Campo("TX_CANTO");
    QTRY_VERIFY(canto->hasFocus());
    canto->selectAll();
    QTest::keyClicks(canto, QStringLiteral("0,5"));
    QTest::keyClick(canto, Qt::Key_Tab);
    QVERIFY(Mensajes().isEmpty());
    QCOMPARE(ancho->text(), QStringLiteral("0,300"));
    QCOMPARE(canto->text(), QStringLiteral("0,500"));
    Calcula();
    QVERIFY(Estado().F_CALCULADO);
    QCOMPARE(Estado().ANCHO, 0.3);
    QCOMPARE(Estado().CANTO, 0.5);
    QCOMPARE(Rejilla()->Texto(1, 1), QString(Formato(Estado().MU(1, 1), "0.0", ',').c_str()));
    QVERIFY(Rejilla()->Texto(1, 1) != QLatin1String("238,5"));
}

int main(int argc, char** argv) { return prueba::Ejecuta<PruebaFlexion>(argc, argv); }
