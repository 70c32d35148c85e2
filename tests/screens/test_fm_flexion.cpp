#include "comun/Pantallas.h"
#include "comun/Usuario.h"
#include "engine/Calculos.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/CampoResultado.h"
#include "screens/Entrada.h"
#include "screens/FmFlexion.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "state/Formato.h"
#include "state/General.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <fstream>
#include <memory>
#include <sstream>

using namespace texalon;
using namespace texalon::plataforma;

class PruebaFlexion : public prueba::PruebaDePantalla {
    Q_OBJECT

    QPointer<FmFlexion> pantalla_;

    Formulario* EnPrueba() const override { return pantalla_; }

    // A fresh state with the start values, changed as the test needs before the load, and the
    // screen loaded over it.
    FmFlexion& Abre(bool seccionT = false, char separador = ',', const QString& valores = {})
    {
        delete pantalla_;
        Estado() = General{};
        ValoresIniciales(Estado());
        if (!valores.isEmpty()) EscribeValores(Estado(), valores);
        NuevosDobles(separador);
        pantalla_ = new FmFlexion(seccionT);
        pantalla_->show();
        pantalla_->activateWindow();
        if (!QTest::qWaitForWindowActive(pantalla_)) qWarning("la pantalla no se ha activado");
        return *pantalla_;
    }

    RejillaResultados* Rejilla() { return qobject_cast<RejillaResultados*>(C("FG_FLEXION")); }

    // Types a text into a field and leaves it with Tab, as a user would.
    void Escribe(const char* nombre, const QString& texto) { prueba::EscribeYTabula(C(nombre), texto); }

    // Types a text into a field and leaves it for a button, which has no test of its own.
    void EscribeYSal(const char* nombre, const QString& texto)
    {
        QVERIFY(prueba::Enfoca(C(nombre)));
        prueba::Teclea(C(nombre), texto);
        // A refusal keeps the focus in the field.
        C("CM_CALCULAR")->setFocus(Qt::MouseFocusReason);
    }

    bool BotonesResultado(bool activos)
    {
        for (const char* b : {"CM_ANCLAJE", "CM_ARMADURA", "CM_CAPAS", "CM_DEFORMACIONES"})
            if (C(b)->isEnabled() != activos) return false;
        return true;
    }

    void Calcula() { prueba::Pulsa(C("CM_CALCULAR")); }

private slots:
    void cleanup() { CierraPantalla(); }

    void cargaConTituloYCamposDelEstado()
    {
        FmFlexion& p = Abre();
        QCOMPARE(p.objectName(), QStringLiteral("FM_FLEXION"));
        QCOMPARE(p.windowTitle(), QStringLiteral("Cálculo del refuerzo a flexión en secciones rectangulares"));
        QVERIFY(Estado().F_FLEXION);
        QVERIFY(!Estado().F_GRABADO);
        QVERIFY(Estado().F_NUEVO);
        QCOMPARE(Campo("TX_ANCHO")->text(), QStringLiteral("0,400"));
        QCOMPARE(Campo("TX_CANTO")->text(), QStringLiteral("0,600"));
        QCOMPARE(Campo("TX_RECUB")->text(), QStringLiteral("0,050"));
        QCOMPARE(Campo("TX_ASI")->text(), QStringLiteral("10,00"));
        QCOMPARE(Campo("TX_ASS")->text(), QStringLiteral("0,00"));
        QCOMPARE(Campo("TX_MCP")->text(), QStringLiteral("0,00"));
        QCOMPARE(Campo("TX_MD")->text(), QStringLiteral("0,00"));
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

    void cargaEnInglesConPunto()
    {
        Abre(false, '.');
        QCOMPARE(Campo("TX_ANCHO")->text(), QStringLiteral("0.400"));
        QCOMPARE(Lista("CO_ANCHOR")->itemText(2), QStringLiteral("0.250"));
    }

    void abiertaDeFicheroNoEsNueva()
    {
        Estado() = General{};
        ValoresIniciales(Estado());
        Estado().F_ABIERTO = true;
        doble_ = std::make_unique<PlataformaDoble>();
        pantalla_ = new FmFlexion(false);
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_NUEVO);
    }

    void listaConOtroValorLoPoneEnLaFilaSiguiente()
    {
        Estado() = General{};
        ValoresIniciales(Estado());
        Estado().FCK = 27.0;
        Estado().ANCHOR = 0.1234;
        doble_ = std::make_unique<PlataformaDoble>();
        doble_->regional.separador = ',';
        pantalla_ = new FmFlexion(false);
        QCOMPARE(Lista("CO_FCK")->count(), 7);
        QCOMPARE(Lista("CO_FCK")->currentIndex(), 6);
        QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("27"));
        QCOMPARE(Lista("CO_ANCHOR")->currentIndex(), 5);
        QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,123"));
        QCOMPARE(Estado().ANCHOR, 0.1234);
    }

    void campoVacioDaSuMensajeYGuardaElValorPorDefecto()
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

    void textoNoNumericoQuedaSeleccionado()
    {
        Abre();
        Escribe("TX_RECUB", QStringLiteral("12a"));
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("El recubrimiento de la sección debe ser un número.")});
        QVERIFY(Campo("TX_RECUB")->hasFocus());
        QCOMPARE(Campo("TX_RECUB")->text(), QStringLiteral("12a"));
        QCOMPARE(Campo("TX_RECUB")->selectedText(), QStringLiteral("12a"));
    }

    void negativoSeAceptaComoPositivo_data() { prueba::FilasSeparador(); }

    void negativoSeAceptaComoPositivo()
    {
        QFETCH(char, separador);
        Abre(false, separador);
        Escribe("TX_CANTO", QStringLiteral("-2,5"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().CANTO, 2.5);
        QCOMPARE(Campo("TX_CANTO")->text(), Sep("2,500"));
        QVERIFY(Estado().F_MODIFICADO);
        QVERIFY(!Estado().F_CALCULADO);
    }

    void limiteInferiorDeUnCentimetro()
    {
        Abre();
        Escribe("TX_RECUB", QStringLiteral("0,001"));
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("El recubrimiento de la sección debe ser mayor que cero.")});
        doble_->mensajes.mostrados.clear();
        Escribe("TX_RECUB", QStringLiteral("0,01"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().RECUB, 0.01);
    }

    void recubrimientoIgualALaMitadDelCantoPasa()
    {
        Abre();
        Escribe("TX_RECUB", QStringLiteral("0,3"));
        QVERIFY(Mensajes().isEmpty());
        Escribe("TX_RECUB", QStringLiteral("0,301"));
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("El recubrimiento de la sección debe ser menor que la mitad del canto.")});
        QCOMPARE(Estado().RECUB, 0.05);
    }

    void milesConComaDaUnoComaDosTresCuatro()
    {
        Abre();
        Escribe("TX_MD", QStringLiteral("1.234,5"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().MD, 1.234);
        QCOMPARE(Campo("TX_MD")->text(), QStringLiteral("1,23"));
    }

    void blancosAlrededorSeQuitan()
    {
        Abre();
        Escribe("TX_ASI", QStringLiteral("  12,5 "));
        QCOMPARE(Estado().ASI, 12.5);
        QCOMPARE(Campo("TX_ASI")->text(), QStringLiteral("12,50"));
    }

    void armaduraSuperiorVaciaPoneDiezEnElEstado()
    {
        Abre();
        Escribe("TX_ASS", QString());
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("Debe darse la armadura superior de la sección.")});
        QCOMPARE(Estado().ASS, 10.0);
        QCOMPARE(Campo("TX_ASS")->text(), QString());
    }

    void anchoMenorQueElRefuerzoEsPruebaBlanda()
    {
        Abre();
        Escribe("TX_ANCHO", QStringLiteral("0,1"));
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("El ancho del refuerzo no puede ser mayor que el ancho de la sección.")});
        QCOMPARE(Estado().ANCHO, 0.1);
        QCOMPARE(Campo("TX_ANCHO")->text(), QStringLiteral("0,100"));
        QVERIFY(Lista("CO_ANCHOR")->hasFocus());
        QVERIFY(Estado().F_MODIFICADO);
    }

    void anchoDelRefuerzoMayorQueElAnchoVuelveAlAncho()
    {
        Abre();
        Escribe("CO_ANCHOR", QStringLiteral("0,5"));
        QCOMPARE(Mensajes(), QStringList{QStringLiteral(
                                 "El ancho del refuerzo a disponer en la sección debe ser menor que el ancho de la "
                                 "sección.")});
        QCOMPARE(Estado().ANCHOR, 0.4);
        QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,5"));
        QVERIFY(Lista("CO_ANCHOR")->hasFocus());
    }

    void anchoDelRefuerzoIgualAlAnchoSeAcepta()
    {
        Abre();
        Escribe("CO_ANCHOR", QStringLiteral("0,4"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().ANCHOR, 0.4);
        QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,400"));
    }

    void resistenciasConSusLimites()
    {
        Abre();
        Escribe("CO_FCK", QStringLiteral("27"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().FCK, 27.0);
        Escribe("CO_FCK", QStringLiteral("51"));
        Escribe("CO_FCK", QStringLiteral("14"));
        Escribe("CO_FCK", QStringLiteral("30"));
        Escribe("CO_FYK", QStringLiteral("601"));
        Escribe("CO_FYK", QStringLiteral("299"));
        QCOMPARE(Mensajes(),
                 QStringList(
                     {QStringLiteral("La resistencia del hormigón de la sección no puede ser mayor de 50 N/mm²."),
                      QStringLiteral("La resistencia del hormigón de la sección no puede ser menor de 15 N/mm²."),
                      QStringLiteral("La resistencia del acero de las armaduras no puede ser mayor de 600 N/mm²."),
                      QStringLiteral("La resistencia del acero de las armaduras no puede ser menor de 300 N/mm².")}));
        QCOMPARE(Estado().FYK, 500.0);
    }

    void calculoPorDefectoNoNecesitaRefuerzo()
    {
        Abre();
        Calcula();
        QVERIFY(Mensajes().isEmpty());
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(!Estado().F_CALCULANDO);
        auto* info = qobject_cast<QLabel*>(C("LB_INFO"));
        QVERIFY(info->isVisible());
        QCOMPARE(info->text(), QStringLiteral(" NO ES NECESARIO REFORZAR LA SECCION "));
        QCOMPARE(info->palette().color(QPalette::Window), QColor(0, 128, 0));
        QCOMPARE(info->palette().color(QPalette::WindowText), QColor(Qt::white));
        QVERIFY(info->autoFillBackground());
        QVERIFY(BotonesResultado(true));
        RejillaResultados* r = Rejilla();
        QVERIFY(r->EstaActiva());
        QCOMPARE(r->Fila(), 1);
        QCOMPARE(r->Columna(), 1);
        QCOMPARE(r->Texto(0, 0), QStringLiteral("Nº capas"));
        QCOMPARE(r->Texto(0, 1), QStringLiteral("TEXALON L"));
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
        QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(),
                 QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
        QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("238,5"));
        QCOMPARE(Campo("TX_MUSR")->text(), QStringLiteral("222,5"));
        QCOMPARE(Campo("TX_PIVOTE")->text(), QStringLiteral("R"));
        QCOMPARE(Campo("TX_FN")->text(), QStringLiteral("0,103"));
        QCOMPARE(Campo("TX_EPSR")->text(), QStringLiteral("9,64"));
        QCOMPARE(Campo("TX_MRB")->text(), QStringLiteral("366,6"));
        QCOMPARE(Campo("TX_MLIMCR")->text(), QStringLiteral("692,4"));
        QCOMPARE(Campo("TX_EPS0")->text(), QStringLiteral("0,00"));
    }

    void momentoDe230DejaElLetreroOculto()
    {
        Abre();
        Escribe("TX_MD", QStringLiteral("230"));
        Calcula();
        QVERIFY(!C("LB_INFO")->isVisible());
        for (int n = 1; n <= 5; ++n) {
            QCOMPARE(Rejilla()->Color(n, 1), QColor(255, 255, 0));
            QCOMPARE(Rejilla()->Color(n, 2), QColor(255, 255, 0));
            QCOMPARE(Rejilla()->Color(n, 3), n <= 2 ? QColor(255, 255, 0) : QColor(255, 255, 255));
        }
    }

    void momentoDe300NoSePuedeReforzar()
    {
        Abre();
        Escribe("TX_MD", QStringLiteral("300"));
        Calcula();
        auto* info = qobject_cast<QLabel*>(C("LB_INFO"));
        QVERIFY(info->isVisible());
        QCOMPARE(info->text(), QStringLiteral(" NO SE PUEDE REFORZAR LA SECCION "));
        QCOMPARE(info->palette().color(QPalette::Window), QColor(255, 0, 0));
        QCOMPARE(info->palette().color(QPalette::WindowText), QColor(Qt::white));
        QVERIFY(info->autoFillBackground());
        for (int n = 1; n <= 5; ++n)
            for (int t = 1; t <= 3; ++t)
                QCOMPARE(Rejilla()->Color(n, t), QColor(255, 255, 255));
        QCOMPARE(Campo("TX_MU")->text(), QStringLiteral("238,5"));
    }

    void predeformacionExcesivaTrasUnCalculoDejaLaRejillaInactiva()
    {
        Abre();
        Calcula();
        Escribe("TX_MCP", QStringLiteral("1000"));
        Calcula();
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("La predeformación de la estructura es superior al 2 por mil.")});
        QVERIFY(!Rejilla()->EstaActiva());
        QVERIFY(Estado().F_CALCULANDO);
        QVERIFY(!Estado().F_CALCULADO);
        // The old table stays on show over the cleared arrays.
        QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("238,5"));
    }

    void tabularPorUnCampoValidoInvalidaLosResultados()
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

    void calcularConUnCampoMalMuestraSuMensajeYNoCalcula()
    {
        Abre();
        QWidget* campo = C("TX_MD");
        QVERIFY(prueba::Enfoca(campo));
        prueba::Teclea(campo, QStringLiteral("abc"));
        Calcula();
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("El momento de cálculo debe ser un número.")});
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(campo->hasFocus());
        QVERIFY(!Rejilla()->EstaActiva());
    }

    void celdaSinResultadoDesactivaDeformaciones()
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

    void seccionTConSusCamposYRestablecimientos()
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
        QCOMPARE(Mensajes().last(),
                 QStringLiteral("El ancho del alma de la sección debe ser un número mayor que cero."));
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

    void seccionTCantoDelAlaMayorQueElCanto()
    {
        Abre(true);
        // A flange depth away from the reset shows that the refusal writes 0.2.
        Escribe("TX_CANTOALA", QStringLiteral("0,15"));
        QCOMPARE(Estado().CANTOALA, 0.15);
        Escribe("TX_CANTOALA", QStringLiteral("0,7"));
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("El canto del ala no puede ser mayor que el canto de la sección.")});
        QCOMPARE(Estado().CANTOALA, 0.2);
    }

    void seccionTCantoDelAlaIgualAlCantoSeAcepta()
    {
        Abre(true);
        Escribe("TX_CANTOALA", QStringLiteral("0,6"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().CANTOALA, 0.6);
        QCOMPARE(Campo("TX_CANTOALA")->text(), QStringLiteral("0,600"));
    }

    void seccionTCantoMenorQueElAlaEsBlando()
    {
        Abre(true);
        Escribe("TX_CANTO", QStringLiteral("0,15"));
        QCOMPARE(Mensajes(),
                 QStringList{QStringLiteral("El canto del ala no puede ser mayor que el canto de la sección.")});
        QCOMPARE(Estado().CANTO, 0.15);
        QVERIFY(Campo("TX_CANTOALA")->hasFocus());
    }

    void seccionTRefuerzoMasAnchoQueElAlmaPeroNoQueElAla()
    {
        Abre(true);
        Escribe("CO_ANCHOR", QStringLiteral("0,3"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().ANCHOR, 0.3);
        Escribe("TX_ANCHOALMA", QStringLiteral("0,2"));
        QCOMPARE(Mensajes(), QStringList{QStringLiteral(
                                 "El ancho del refuerzo no puede ser mayor que el ancho del alma de la sección.")});
        QVERIFY(Lista("CO_ANCHOR")->hasFocus());
    }

    void seccionTCalculaConRoturaT()
    {
        Abre(true);
        Escribe("TX_CANTOALA", QStringLiteral("0,05"));
        Calcula();
        QCOMPARE(Rejilla()->Texto(1, 1), QStringLiteral("231,0"));
        QCOMPARE(Rejilla()->Texto(5, 1), QStringLiteral("270,7"));
    }

    void cerrarPantallaNuevaPreguntaYNoNoGraba()
    {
        Abre();
        doble_->mensajes.respuestas = {Respuesta::No};
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?")});
        QCOMPARE(doble_->mensajes.mostrados[0].estilo, Estilo::PreguntaSiNo);
        QVERIFY(doble_->ficheros.guardados.empty());
        QVERIFY(!Estado().F_FLEXION);
    }

    void cerrarConSiGrabaElFichero()
    {
        Abre();
        const QString fichero = QDir::temp().filePath(QStringLiteral("texalon_prueba_cierre.vmf"));
        doble_->mensajes.respuestas = {Respuesta::Si};
        doble_->ficheros.respuestas.push_back(FicheroElegido{fichero, QDir::tempPath()});
        pantalla_->close();
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
        QCOMPARE(doble_->ficheros.guardados[0].filtro, QStringLiteral("Archivos TEXALON - Flexión|*.VMF"));
        QVERIFY(Estado().F_GRABADO);
        QVERIFY(!Estado().F_MODIFICADO);
        QCOMPARE(QString::fromStdString(Contenido(fichero)),
                 QStringLiteral(
                     "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n"));
        QFile::remove(fichero);
    }

    void cerrarConSiYDatosMalosLosPierde()
    {
        Abre();
        Estado().RECUB = 0.05;
        // Typed and never left: the closing screen checks no field, its copy finds it.
        QVERIFY(prueba::Enfoca(C("TX_ASI")));
        prueba::Teclea(C("TX_ASI"), QStringLiteral("abc"));
        doble_->mensajes.respuestas = {Respuesta::Si};
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList({QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"),
                                          QStringLiteral("Los datos introducidos no son correctos.")}));
        QVERIFY(doble_->ficheros.guardados.empty());
    }

    void errorDejadoPorOtraOrdenRechazaDatosBuenosAlCerrar()
    {
        Abre();
        Estado().F_ERROR = true;
        doble_->mensajes.respuestas = {Respuesta::Si};
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList({QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"),
                                          QStringLiteral("Los datos introducidos no son correctos.")}));
        QVERIFY(doble_->ficheros.guardados.empty());
    }

    void siEnUnProyectoConNombreOfreceIgualmenteFlexionVmf()
    {
        Estado() = General{};
        ValoresIniciales(Estado());
        Estado().F_ABIERTO = true;
        Estado().F_MODIFICADO = true;
        Estado().FICHERO = "/tmp/viga_de_prueba.vmf";
        doble_ = std::make_unique<PlataformaDoble>();
        pantalla_ = new FmFlexion(true);
        doble_->mensajes.respuestas = {Respuesta::Si};
        pantalla_->close();
        QCOMPARE(doble_->ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(doble_->ficheros.guardados[0].nombre, QStringLiteral("flexion.vmf"));
        QCOMPARE(Estado().FICHERO, std::string("/tmp/viga_de_prueba.vmf"));
    }

    void limitesInferioresDeCadaCampo_data()
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

    void limitesInferioresDeCadaCampo()
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

    void cancelarElDialogoCierraSinDecirNada()
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

    void abiertaDeFicheroSinCambiosCierraSinPreguntar()
    {
        Estado() = General{};
        ValoresIniciales(Estado());
        Estado().F_ABIERTO = true;
        doble_ = std::make_unique<PlataformaDoble>();
        pantalla_ = new FmFlexion(false);
        pantalla_->show();
        pantalla_->close();
        QVERIFY(doble_->mensajes.mostrados.empty());
    }

    void abiertaDeFicheroTrasTabularPregunta()
    {
        Estado() = General{};
        ValoresIniciales(Estado());
        Estado().F_ABIERTO = true;
        doble_ = std::make_unique<PlataformaDoble>();
        doble_->regional.separador = ',';
        separador_ = ',';
        pantalla_ = new FmFlexion(false);
        pantalla_->show();
        pantalla_->activateWindow();
        Escribe("TX_CANTO", Campo("TX_CANTO")->text());
        pantalla_->close();
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?")});
    }

    void coeficientesDesactivanLosBotonesPorCualquierSalida()
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

    void anclajeMuestraSuVentana()
    {
        Abre();
        Calcula();
        QTest::mouseClick(qobject_cast<QPushButton*>(C("CM_ANCLAJE")), Qt::LeftButton);
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_ANCLAJE")});
        QCOMPARE(Formato(Estado().LANC(1, 1), "0.00", '.'), std::string("0.14"));
    }

    void seleccionInactivaMientrasSeCalcula()
    {
        Abre();
        Calcula();
        Estado().F_CALCULANDO = true;
        Rejilla()->CeldaActual(2, 2);
        QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(),
                 QStringLiteral("Refuerzo tipo TEXALON L - Núm. capas: 1"));
        Estado().F_CALCULANDO = false;
        Rejilla()->CeldaActual(3, 2);
        QCOMPARE(qobject_cast<QLabel*>(C("LB_TIPO"))->text(),
                 QStringLiteral("Refuerzo tipo TEXALON H - Núm. capas: 3"));
    }

    void calcularConElTeclado()
    {
        Abre();
        QWidget* boton = C("CM_CALCULAR");
        boton->setFocus();
        QTRY_VERIFY(boton->hasFocus());
        QTest::keyClick(boton, Qt::Key_Space);
        QVERIFY(Estado().F_CALCULADO);
    }

    void alAbrirElFocoEstaEnElPrimerCampoSinCambiarNada()
    {
        Abre(true);
        QCOMPARE(QApplication::focusWidget(), C("TX_ANCHO"));
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(Estado().F_NUEVO);
        // The user types at once, and only leaving the field checks it.
        QTest::keyClicks(C("TX_ANCHO"), QStringLiteral("5"));
        QVERIFY(!Estado().F_MODIFICADO);
    }

    void tabuladorSigueElOrdenDeLectura_data()
    {
        QTest::addColumn<bool>("seccionT");
        QTest::addColumn<QStringList>("datos");
        const QStringList comunes = {"TX_RECUB", "TX_ASI",    "TX_ASS", "TX_MCP",    "TX_MD",
                                     "CO_FCK",   "CM_GAMMA1", "CO_FYK", "CM_GAMMA2", "CO_ANCHOR"};
        QTest::newRow("rectangular") << false << QStringList({"TX_ANCHO", "TX_CANTO"}) + comunes;
        QTest::newRow("T") << true << QStringList({"TX_ANCHO", "TX_ANCHOALMA", "TX_CANTO", "TX_CANTOALA"}) + comunes;
    }

    void tabuladorSigueElOrdenDeLectura()
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

    void nombresAccesiblesYConsejos()
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

    // ---- What a new user met on these screens.

    void laListaNoCompletaLoTecleado()
    {
        Abre();
        Escribe("CO_FCK", QStringLiteral("4"));
        QCOMPARE(
            Mensajes(),
            QStringList{QStringLiteral("La resistencia del hormigón de la sección no puede ser menor de 15 N/mm².")});
        QCOMPARE(Lista("CO_FCK")->currentText(), QStringLiteral("4"));
        QCOMPARE(Estado().FCK, 25.0);
        doble_->mensajes.mostrados.clear();
        Escribe("CO_FCK", QStringLiteral("30"));
        Escribe("CO_ANCHOR", QStringLiteral("0,3"));
        QVERIFY(Mensajes().isEmpty());
        QCOMPARE(Estado().ANCHOR, 0.3);
        QCOMPARE(Lista("CO_ANCHOR")->currentText(), QStringLiteral("0,300"));
    }

    void enviadoAlAnchoDelRefuerzoPuedeTeclearUnAnchoPequeno()
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

    void abrirLaListaNoComprueba()
    {
        Abre();
        QComboBox* ancho = Lista("CO_ANCHOR");
        QVERIFY(prueba::Enfoca(ancho));
        prueba::Teclea(ancho, QStringLiteral("0,6"));
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

    void abrirLaListaEnUnaPantallaCalculadaNoApagaLosBotones()
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

    void laRuedaSobreUnaListaSinFocoNoCambiaElProyecto()
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

    void unBotonPulsadoConUnCampoMaloNoQuedaHundido()
    {
        Abre();
        QVERIFY(prueba::Enfoca(C("TX_MD")));
        prueba::Teclea(C("TX_MD"), QStringLiteral("abc"));
        auto* calcular = qobject_cast<QPushButton*>(C("CM_CALCULAR"));
        // The user's release of the button happens while the message is up, elsewhere.
        QTest::mousePress(calcular, Qt::LeftButton);
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("El momento de cálculo debe ser un número.")});
        QVERIFY(!calcular->isDown());
        QVERIFY(C("TX_MD")->hasFocus());
        QVERIFY(!Estado().F_CALCULADO);
    }

    void losCamposDeResultadoMuestranElNumeroEntero()
    {
        Abre();
        Escribe("TX_ASI", QStringLiteral("80000"));
        Calcula();
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY2(Campo("TX_MRB")->text().size() >= 8, qPrintable(Campo("TX_MRB")->text()));
        for (const char* nombre : {"TX_MUSR", "TX_MU", "TX_MRB", "TX_MLIMCR", "TX_FN", "TX_EPSC", "TX_EPSSI",
                                   "TX_EPSSS", "TX_EPSR", "TX_EPS0"}) {
            auto* campo = qobject_cast<CampoResultado*>(C(nombre));
            QVERIFY2(campo->TextoEntero(), nombre);
        }
        // A short number goes back to the screen's own letters.
        Escribe("TX_ASI", QStringLiteral("10"));
        Calcula();
        QCOMPARE(Campo("TX_MRB")->font().pointSizeF(), Campo("TX_MRB")->parentWidget()->font().pointSizeF());
    }

    void cadaCampoConSusMensajesYSuReinicio_data()
    {
        QTest::addColumn<bool>("seccionT");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("vacio");
        QTest::addColumn<QString>("noNumero");
        QTest::addColumn<double>("reinicio");
        const auto fila = [](bool t, const char* control, const char* vacio, const char* noNumero, double reinicio) {
            QTest::newRow(qPrintable(QString::fromLatin1(control) + (t ? QStringLiteral(" T") : QString())))
                << t << QString::fromLatin1(control) << QString::fromUtf8(vacio) << QString::fromUtf8(noNumero)
                << reinicio;
        };
        for (bool t : {false, true}) {
            fila(t, "TX_ANCHO", "Debe darse el ancho de la sección.", "El ancho de la sección debe ser un número.",
                 0.4);
            fila(t, "TX_CANTO", "Debe darse el canto de la sección.", "El canto de la sección debe ser un número.",
                 0.6);
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
        fila(true, "TX_ANCHOALMA", "Debe darse el ancho del alma de la sección.",
             "El ancho del alma de la sección debe ser un número.", 0.2);
        fila(true, "TX_CANTOALA", "Debe darse el canto del ala de la sección.",
             "El canto del ala de la sección debe ser un número.", 0.2);
    }

    void cadaCampoConSusMensajesYSuReinicio()
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
            double General::*campo = nullptr;
            for (const auto& [n, c] :
                 std::initializer_list<std::pair<const char*, double General::*>>{{"TX_ANCHO", &General::ANCHO},
                                                                                  {"TX_CANTO", &General::CANTO},
                                                                                  {"TX_RECUB", &General::RECUB},
                                                                                  {"TX_ASI", &General::ASI},
                                                                                  {"TX_ASS", &General::ASS},
                                                                                  {"TX_MCP", &General::MCP},
                                                                                  {"TX_MD", &General::MD},
                                                                                  {"CO_FCK", &General::FCK},
                                                                                  {"CO_FYK", &General::FYK},
                                                                                  {"CO_ANCHOR", &General::ANCHOR},
                                                                                  {"TX_ANCHOALMA", &General::ANCHOALMA},
                                                                                  {"TX_CANTOALA", &General::CANTOALA}})
                if (control == QLatin1String(n)) campo = c;
            Estado().*campo = 0.123;
            doble_->mensajes.mostrados.clear();
            Escribe(nombre.constData(), texto);
            QCOMPARE(Mensajes(), QStringList{texto.isEmpty() ? vacio : noNumero});
            QCOMPARE(Estado().*campo, reinicio);
            QVERIFY(C(nombre.constData())->hasFocus());
            QCOMPARE(TextoDe(C(nombre.constData())), texto);
        }
        // A failure touches neither the flags nor the buttons.
        QVERIFY(!Estado().F_MODIFICADO);
        QVERIFY(Estado().F_CALCULADO);
    }

    void elegirUnaFilaDeLaListaNoEjecutaNada()
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

    void elFocoQueTomaLaCajaDeMensajeNoEmpiezaOtraComprobacion()
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

    void resistenciasExactamenteEnSusLimitesPasan()
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

    void pruebaBlandaNoTocaLosBotones()
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

    void deformacionesDeLaCeldaEnSusFormatos()
    {
        Abre();
        Calcula();
        QCOMPARE(Campo("TX_EPSC")->text(), QStringLiteral("1,99"));
        QCOMPARE(Campo("TX_EPSSI")->text(), QStringLiteral("8,67"));
        QCOMPARE(Campo("TX_EPSSS")->text(), QStringLiteral("1,02"));
        QVERIFY(Estado().EPSSS(1, 1) > 0.0);
        QCOMPARE(Estado().EPSRSEL, Estado().EPSR(1, 1));
    }

    void desbordamientoAlCalcularEsErrorFatal()
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

    void unValorQueSuCampoRechazaNoSeCalcula_data()
    {
        QTest::addColumn<bool>("seccionT");
        QTest::addColumn<QString>("valores");
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("mensaje");
        // The file checks take any length above 0; the fields take 0.01 and up.
        QTest::newRow("ancho") << false << "ANCHO=0.005;ANCHOR=0.005" << "TX_ANCHO"
                               << "El ancho de la sección debe ser un número mayor que cero.";
        QTest::newRow("canto") << false << "CANTO=0.008;RECUB=0.004" << "TX_CANTO"
                               << "El canto de la sección debe ser un número mayor que cero.";
        QTest::newRow("recubrimiento") << false << "RECUB=0.004" << "TX_RECUB"
                                       << "El recubrimiento de la sección debe ser mayor que cero.";
        // 0.004 cm² shows as "0,00": the field's text is what Calculate reads.
        QTest::newRow("armadura inferior") << false << "ASI=0.004" << "TX_ASI"
                                           << "La armadura inferior de la sección debe ser mayor que cero.";
        QTest::newRow("ancho del refuerzo")
            << false << "ANCHOR=0.005" << "CO_ANCHOR"
            << "El ancho del refuerzo a disponer en la sección debe ser mayor que cero.";
        // A file's negative value passes its checks, which come before the sign is dropped.
        // The width, which has the focus on opening, finds it first as the focus leaves it.
        QTest::newRow("refuerzo más ancho que la sección")
            << false << "ANCHOR=0.5" << "CO_ANCHOR" << "El ancho del refuerzo no puede ser mayor que el ancho de la sección.";
        QTest::newRow("T refuerzo más ancho que la sección")
            << true << "ANCHOR=0.5" << "CO_ANCHOR"
            << "El ancho del refuerzo a disponer en la sección debe ser menor que el ancho de la sección.";
        QTest::newRow("recubrimiento de más de medio canto")
            << false << "RECUB=0.4" << "TX_RECUB" << "El recubrimiento de la sección debe ser menor que la mitad del canto.";
        QTest::newRow("T ala más alta que la sección") << true << "CANTOALA=0.8" << "TX_CANTOALA"
                                                      << "El canto del ala no puede ser mayor que el canto de la sección.";
        QTest::newRow("T ancho") << true << "ANCHO=0.005;ANCHOALMA=0.005;ANCHOR=0.005" << "TX_ANCHO"
                                 << "El ancho de la sección debe ser un número mayor que cero.";
        QTest::newRow("T ancho del alma") << true << "ANCHOALMA=0.005;ANCHOR=0.005" << "TX_ANCHOALMA"
                                          << "El ancho del alma de la sección debe ser un número mayor que cero.";
        QTest::newRow("T canto del ala") << true << "CANTOALA=0.005" << "TX_CANTOALA"
                                         << "El canto del ala de la sección debe ser un número mayor que cero.";
        QTest::newRow("T recubrimiento") << true << "RECUB=0.004" << "TX_RECUB"
                                         << "El recubrimiento de la sección debe ser mayor que cero.";
    }

    void unValorQueSuCampoRechazaNoSeCalcula()
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

    void unCoeficienteQueSuCampoRechazaSeCorrigeEnSuDialogo()
    {
        // A coefficient of 0 from a file would divide by zero: Calculate opens the dialog on it.
        Abre(false, ',', QStringLiteral("GC=0"));
        bool enfocado = false;
        doble_->ventanas.alMostrar = CorrigeCoeficiente("TX_GC", QStringLiteral("1,5"), enfocado);
        Calcula();
        QCOMPARE(Mensajes(), QStringList{QStringLiteral("El coeficiente de seguridad del hormigón no puede ser menor que 1.")});
        QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
        QVERIFY(enfocado);
        QCOMPARE(Estado().GC, 1.5);
        QVERIFY(!Estado().F_CALCULADO);
        QVERIFY(doble_->proceso.erroresFatales.empty());
        // Back on the screen, Calculate again: the coefficient typed is the one calculated with.
        pantalla_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(pantalla_));
        Calcula();
        QVERIFY(Estado().F_CALCULADO);
        QVERIFY(Rejilla()->EstaActiva());
    }

    void deUnExtremoAOtroComoUnUsuario()
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
};

int main(int argc, char** argv)
{
    AplicacionTexalon aplicacion(argc, argv);
    PreparaAplicacion(aplicacion);
    PruebaFlexion prueba;
    return QTest::qExec(&prueba, argc, argv);
}

#include "test_fm_flexion.moc"
