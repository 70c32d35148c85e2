// Open, Save and Save As: the dialogs, Cancel, the menu and toolbar and About.
#include "PruebaOrdenesFichero.h"
#include "comun/Ejecuta.h"

// ---- The dialogs.

void PruebaOrdenesFichero::abrirMuestraLosTresFiltrosDesdeElTercero()
{
    Cancela();
    QVERIFY(Orden("mnuPrincipalAbrir"));
    QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{1});
    QCOMPARE(doble_->ficheros.abiertos[0].filtro, kFiltroAbrir);
    QCOMPARE(doble_->ficheros.abiertos[0].indiceFiltro, 3);
    QCOMPARE(doble_->ficheros.abiertos[0].nombre, QString());
    QVERIFY(doble_->ficheros.guardados.empty());
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::abrirGuardaElFicheroYLaCarpetaElegidos()
{
    const QString ruta = AbreFichero("obra.vmf", kRectangular);
    QCOMPARE(QString::fromStdString(Estado().FICHERO), ruta);
    QCOMPARE(QString::fromStdString(Estado().DIRECTORIO), QFileInfo(ruta).absolutePath());
}

void PruebaOrdenesFichero::guardarUnaPantallaNuevaOfreceSuTipoYSuNombre_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("filtro");
    QTest::addColumn<QString>("nombre");
    QTest::addColumn<QString>("elegido");
    QTest::newRow("rectangular") << "mnuCalcularFlexion" << kFiltroFlexion << "flexion.vmf"
                                 << "viga.vmf";
    QTest::newRow("T") << "mnuCalcularFlexionT" << kFiltroFlexion << "flexion.vmf"
                       << "viga_t.vmf";
    QTest::newRow("confinamiento") << "mnuCalcularConfina" << kFiltroConfina << "confina.vmc"
                                   << "pilar.vmc";
}

void PruebaOrdenesFichero::guardarUnaPantallaNuevaOfreceSuTipoYSuNombre()
{
    QFETCH(QString, orden);
    QFETCH(QString, filtro);
    QFETCH(QString, nombre);
    QFETCH(QString, elegido);
    QVERIFY(Orden(qPrintable(orden)));
    const QString ruta = carpeta_->filePath(elegido);
    Elige(ruta);
    QVERIFY(Orden("mnuPrincipalGuardar"));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(DialogoDeGuardar(), QStringList({filtro, "1", nombre}));
    QVERIFY(doble_->ficheros.abiertos.empty());
    QCOMPARE(QString::fromStdString(Estado().FICHERO), ruta);
    QCOMPARE(QString::fromStdString(Estado().DIRECTORIO), QFileInfo(ruta).absolutePath());
    QVERIFY(QFileInfo::exists(ruta));
    QVERIFY(Mostrados().isEmpty());
}

// ---- Cancel.

void PruebaOrdenesFichero::abrirCierraAntesLaPantallaConSuPreguntaYCancelarNoDejaNinguna()
{
    MdiPrincipal& w = *ventana_;
    QVERIFY(Orden("mnuCalcularFlexion"));
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
    std::size_t dialogosAlPreguntar = 99;
    doble_->mensajes.alMostrar = [&](const MensajeMostrado&) {
        dialogosAlPreguntar = doble_->ficheros.abiertos.size();
    };
    Cancela();
    QVERIFY(Orden("mnuPrincipalAbrir"));
    // The new screen's prompt came first, with the Open dialog not yet up.
    QCOMPARE(Mostrados(), QStringList{Pregunta()});
    QCOMPARE(dialogosAlPreguntar, std::size_t{0});
    QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{1});
    QVERIFY(Abierta() == nullptr);
    QVERIFY(w.Area()->subWindowList().isEmpty());
    QVERIFY(!Estado().F_FLEXION);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
}

void PruebaOrdenesFichero::cancelarAbrirDesdeElMenuBorraAbiertoYDesdeLaBarraNo_data()
{
    QTest::addColumn<bool>("desdeMenu");
    QTest::addColumn<bool>("abierto");
    QTest::newRow("menú") << true << false;
    QTest::newRow("barra") << false << true;
}

void PruebaOrdenesFichero::cancelarAbrirDesdeElMenuBorraAbiertoYDesdeLaBarraNo()
{
    QFETCH(bool, desdeMenu);
    QFETCH(bool, abierto);
    AbreFichero("obra.vmf", kRectangular);
    QVERIFY(Estado().F_ABIERTO);
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
    Cancela();
    QVERIFY(desdeMenu ? Orden("mnuPrincipalAbrir") : Boton("Abrir"));
    QCOMPARE(doble_->ficheros.abiertos.size(), std::size_t{2});
    QCOMPARE(Estado().F_ABIERTO, abierto);
    // The screen read from the file closed without a prompt, and none took its place.
    QVERIFY(Abierta() == nullptr);
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::cancelarGuardarEnUnaPantallaNuevaNoTocaNadaYLaPantallaSigue_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<bool>("abierto");
    QTest::newRow("Guardar del menú") << "mnuPrincipalGuardar" << false;
    QTest::newRow("Guardar de la barra") << "Guardar" << true;
    QTest::newRow("Guardar como") << "mnuPrincipalGuardarcomo" << false;
}

void PruebaOrdenesFichero::cancelarGuardarEnUnaPantallaNuevaNoTocaNadaYLaPantallaSigue()
{
    QFETCH(QString, orden);
    QFETCH(bool, abierto);
    QVERIFY(Orden("mnuCalcularFlexion"));
    prueba::EscribeYTabula(C("TX_MD"), QStringLiteral("50"));
    QVERIFY(Estado().F_MODIFICADO);
    // As a project read before the new screen would have left it: only the menu clears it.
    Estado().F_ABIERTO = true;
    Estado().FICHERO = "anterior.vmf";
    Cancela();
    QVERIFY(Ejecuta(orden));
    QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
    QCOMPARE(Estado().F_ABIERTO, abierto);
    QVERIFY(!Estado().F_GRABADO);
    QVERIFY(Estado().F_NUEVO);
    QVERIFY(Estado().F_MODIFICADO);
    QCOMPARE(Estado().FICHERO, std::string("anterior.vmf"));
    QVERIFY(FicherosDeLaCarpeta().isEmpty());
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_FLEXION"));
    QVERIFY(Estado().F_FLEXION);
    QCOMPARE(Texto("TX_MD"), Sep("50,00"));
    QVERIFY(Mostrados().isEmpty());
}

// ---- Menu and toolbar.

void PruebaOrdenesFichero::menuYBarraSiguenALaPantallaTrasLasOrdenes_data()
{
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("pantalla");
    QTest::addColumn<bool>("guardar");
    QTest::newRow("rectangular") << "mnuCalcularFlexion"
                                 << "FM_FLEXION" << true;
    QTest::newRow("T") << "mnuCalcularFlexionT"
                       << "FM_FLEXIONT" << true;
    QTest::newRow("confinamiento") << "mnuCalcularConfina"
                                   << "FM_CONFINA" << true;
    QTest::newRow("características") << "mnuCalcularCarac"
                                     << "FM_CARAC" << false;
}

void PruebaOrdenesFichero::menuYBarraSiguenALaPantallaTrasLasOrdenes()
{
    QFETCH(QString, orden);
    QFETCH(QString, pantalla);
    QFETCH(bool, guardar);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
    QVERIFY(Orden(qPrintable(orden)));
    QCOMPARE(NombreAbierta(), pantalla);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({guardar, guardar, true, guardar, true}));
    if (guardar) {
        QVERIFY(GuardaComo(Ruta(pantalla == QLatin1String("FM_CONFINA") ? "p.vmc" : "v.vmf")));
        QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({true, true, true, true, true}));
    }
    CierraPantalla();
    QVERIFY(Abierta() == nullptr);
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, false, false, false}));
}

void PruebaOrdenesFichero::caracteristicasTrasUnaPantallaDeCalculoDejaGuardarApagado()
{
    QVERIFY(Orden("mnuCalcularFlexion"));
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({true, true, true, true, true}));
    QVERIFY(Orden("mnuCalcularCarac"));
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
    QCOMPARE(EstadoDeLasOrdenes(), QList<bool>({false, false, true, false, true}));
}

// GR typed in the coefficients of a flexure screen stays in the project state: the
// characteristics screen, opened next from the menu, works its table out with it.
void PruebaOrdenesFichero::elGrDeLosCoeficientesLlegaALaTablaDeCaracteristicas()
{
    QVERIFY(Orden("mnuCalcularFlexion"));
    bool aceptado = false;
    doble_->ventanas.alMostrar = [&](QDialog& dialogo) {
        auto* campo = dialogo.findChild<QLineEdit*>(QStringLiteral("TX_GR"));
        if (!prueba::Enfoca(campo)) return;
        prueba::Teclea(campo, Sep("1"));
        QTest::keyClick(campo, Qt::Key_Tab);
        prueba::Pulsa(dialogo.findChild<QAbstractButton*>(QStringLiteral("CM_ACEPTAR")));
        aceptado = dialogo.result() == QDialog::Accepted;
    };
    prueba::Pulsa(Abierta()->Control(QStringLiteral("CM_GAMMA1")));
    doble_->ventanas.alMostrar = nullptr;
    QVERIFY(aceptado);
    QCOMPARE(Estado().GR, 1.0);
    doble_->mensajes.respuestas = {Respuesta::No};
    QVERIFY(Orden("mnuCalcularCarac"));
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
    auto* tabla = qobject_cast<RejillaResultados*>(Abierta()->Control(QStringLiteral("FG_EPSD")));
    QVERIFY(tabla != nullptr);
    // Type L, one layer: EPSD = 0.015 × 0.900 / 1, and FR = 230000 × EPSD.
    QStringList fila;
    for (int columna = 0; columna < 4; ++columna)
        fila << tabla->Texto(1, columna);
    QCOMPARE(fila, QStringList({"1", Sep("0,900"), Sep("13,50"), Sep("3105,0")}));
}

void PruebaOrdenesFichero::guardarEnCaracteristicasNoHaceNada()
{
    MdiPrincipal& w = *ventana_;
    QVERIFY(Orden("mnuCalcularCarac"));
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
    const General antes = Estado();
    QVERIFY(!Orden("mnuPrincipalGuardar"));
    QVERIFY(!Orden("mnuPrincipalGuardarcomo"));
    QVERIFY(!Boton("Guardar"));
    // Nor do the commands themselves, reached by any other way.
    w.GuardarDesdeMenu();
    w.GuardarComo();
    w.TB_BARRA_ButtonClick(QStringLiteral("Guardar"));
    QVERIFY(doble_->ficheros.guardados.empty());
    QVERIFY(Mostrados().isEmpty());
    QCOMPARE(NombreAbierta(), QStringLiteral("FM_CARAC"));
    QCOMPARE(Estado().F_GRABADO, antes.F_GRABADO);
    QCOMPARE(Estado().F_NUEVO, antes.F_NUEVO);
    QCOMPARE(Estado().F_MODIFICADO, antes.F_MODIFICADO);
    QVERIFY(!Estado().F_ERROR);
    QVERIFY(FicherosDeLaCarpeta().isEmpty());
}

// ---- About.

void PruebaOrdenesFichero::acercaDeEnConfinamientoCopiaElTextoTecleadoYAbreLaCaja_data()
{
    prueba::DosFilas("desdeMenu", {"menú", true}, {"barra", false});
}

void PruebaOrdenesFichero::acercaDeEnConfinamientoCopiaElTextoTecleadoYAbreLaCaja()
{
    QFETCH(bool, desdeMenu);
    QVERIFY(Orden("mnuCalcularConfina"));
    QVERIFY(prueba::Enfoca(C("TX_NCP")));
    prueba::Teclea(C("TX_NCP"), QStringLiteral("850"));
    QCOMPARE(Estado().NCP, 0.0);
    QVERIFY(desdeMenu ? Orden("mnuAyudaAcerca") : Boton("Info"));
    QCOMPARE(Estado().NCP, 850.0);
    QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_ACERCADE")});
    QVERIFY(Mostrados().isEmpty());
}

void PruebaOrdenesFichero::acercaDeConAbcEnElDiametroNoAbreNiDiceNada()
{
    QVERIFY(Orden("mnuCalcularConfina"));
    QVERIFY(prueba::Enfoca(C("TX_DIAM")));
    prueba::Teclea(C("TX_DIAM"), QStringLiteral("abc"));
    QVERIFY(Orden("mnuAyudaAcerca"));
    QVERIFY(doble_->ventanas.mostradas.isEmpty());
    QVERIFY(Mostrados().isEmpty());
    QCOMPARE(Estado().DIAM, 0.5);
    QVERIFY(C("TX_DIAM")->hasFocus());
    QCOMPARE(Texto("TX_DIAM"), QStringLiteral("abc"));
}

int main(int argc, char** argv) { return prueba::Ejecuta<PruebaOrdenesFichero>(argc, argv); }
