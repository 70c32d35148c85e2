// The tests of FM_CONFINA: the screen in test and what the user does on it. The tests stand in
// files by behaviour: the load, the change of section, the close and the keyboard path
// (test_fm_confina.cpp), the fields (fm_confina_campos.cpp) and the calculation
// (fm_confina_calculo.cpp).
#pragma once

#include "comun/Filas.h"
#include "comun/Pantallas.h"
#include "comun/Usuario.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/CampoResultado.h"
#include "screens/Entrada.h"
#include "screens/FmConfina.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "state/Formato.h"
#include "state/General.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>

using namespace texalon;
using namespace texalon::plataforma;

inline const QString kRelacion =
    QStringLiteral("La relación entre lados del elemento a confinar debe ser menor de 1,5.");
inline const QString kLadoMenor = QStringLiteral("El lado menor debe ser un número más pequeño que el lado mayor.");
inline const QString kPregunta = QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?");

class PruebaConfina : public prueba::PruebaDePantalla {
    Q_OBJECT

    QPointer<FmConfina> pantalla_;

    Formulario* EnPrueba() const override { return pantalla_; }

    // A fresh state with the start values, changed as the test needs before the load, and the
    // screen loaded over it, shown and active.
    FmConfina& Abre(char separador = ',', const std::function<void(General&)>& prepara = {})
    {
        delete pantalla_;
        Estado() = General{};
        ValoresIniciales(Estado());
        if (prepara) prepara(Estado());
        NuevosDobles(separador);
        pantalla_ = new FmConfina;
        MuestraActiva(pantalla_);
        return *pantalla_;
    }

    // The screen opened on a rectangular column with these sides.
    FmConfina& AbreRectangular(double diam, double ladoMenor)
    {
        return Abre(',', [diam, ladoMenor](General& g) {
            g.SECCION = 3;
            g.DIAM = diam;
            g.LADOMENOR = ladoMenor;
        });
    }

    QComboBox* Seccion() { return Lista("CO_SECCION"); }
    RejillaResultados* Rejilla() { return qobject_cast<RejillaResultados*>(C("FG_CONFINA")); }
    QLabel* Etiqueta(const char* nombre) { return qobject_cast<QLabel*>(C(nombre)); }
    void Escribe(const char* nombre, const QString& texto) { prueba::EscribeYTabula(C(nombre), texto); }

    // Opens the list of sections with the mouse and clicks the row.
    void EligeConRaton(int fila)
    {
        QComboBox* seccion = Seccion();
        prueba::Pulsa(seccion);
        QTRY_VERIFY(seccion->view()->isVisible());
        // The list ignores a release that comes as quickly as the second half of a double click.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QAbstractItemView* vista = seccion->view();
        const QRect celda = vista->visualRect(vista->model()->index(fila, 0));
        QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, celda.center());
        QTRY_VERIFY(!vista->isVisible());
    }

    // Moves the section with the arrow keys, the list having the focus.
    void MueveConTeclas(Qt::Key tecla, int veces = 1)
    {
        QVERIFY(prueba::Enfoca(Seccion()));
        for (int i = 0; i < veces; ++i)
            QTest::keyClick(Seccion(), tecla);
    }

private slots:
    void cleanup() { CierraPantalla(); }
    void cargaConTituloPanelesYCampos_data();
    void cargaConTituloPanelesYCampos();
    void laFilaDelLadoMenorSeVeGrisSiNoEsRectangular();
    void etiquetasUnidadesYConsejos();
    void laCargaDejaLaPantallaModificada();
    void abiertaDeFicheroYCerradaEnseguidaPregunta();
    void unaSeccionFueraDeLaListaNoEligeFilaNiMarcaNada();
    void alAbrirElFocoEstaEnElTipoDeSeccion();
    void unMensajeDeLaCargaLlevaElFocoAlLadoMenor();
    void rectangularConLadosIgualesPorRaton();
    void cambioPorTecladoDejaElBotonDelDiagrama();
    void cualquierTeclaEnLaListaMarcaElProyecto();
    void ladoMenorMayorQueElLadoAlElegirRectangular_data();
    void ladoMenorMayorQueElLadoAlElegirRectangular();
    void relacionDeUnoYMedioPasaAlCambiarDeSeccion();
    void circularPoneGrisElLadoMenorQueSigueEnElFichero();
    void laRuedaSobreLaSeccionSinFocoNoLaCambia();
    void cadaCampoConSusMensajesYSuReinicio_data();
    void cadaCampoConSusMensajesYSuReinicio();
    void limitesDeCadaCampo_data();
    void limitesDeCadaCampo();
    void aceptarReescribeEnSuFormatoYApagaSoloElDiagrama_data();
    void aceptarReescribeEnSuFormatoYApagaSoloElDiagrama();
    void loTecleadoEnLosCampos_data();
    void loTecleadoEnLosCampos();
    void unDiametroMenorQueElLadoMenorPasaYSeCalculaConEl();
    void elCoeficienteDeFormaSeCalculaAlAceptarLosLados();
    void losValoresAdoptadosNoSeEscriben();
    void laListaDeHormigonNoCompletaYAbrirlaNoComprueba();
    void calculoPorDefecto_data();
    void calculoPorDefecto();
    void incrementoUnoDejaElLetreroOculto();
    void incrementoDosNoSePuedeReforzar();
    void elIncrementoYLaSeccionNoLosLeeCalcular();
    void axilDeMilDaSuPredeformacion();
    void predeformacionExcesivaParaYDejaLaRejillaInactiva();
    void laRejillaMuestraLaCeldaElegidaSinGuarda();
    void losCoeficientesApaganElDiagramaPorCualquierSalida();
    void desbordamientoAlCalcularEsErrorFatal();
    void unValorQueSuCampoRechazaNoSeCalcula_data();
    void unValorQueSuCampoRechazaNoSeCalcula();
    void elPilarDeLadosEnRelacionTresConTresNoSeCalcula();
    void unCoeficienteQueSuCampoRechazaSeCorrigeEnSuDialogo();
    void cerrarConSiGrabaConfinaVmc();
    void cerrarConNoNoGraba();
    void cerrarConSiYUnCampoMaloSinDejarLoPierde();
    void cancelarElDialogoDelCierreCierraSinDecirNada();
    void tabuladorSigueElOrdenDeLectura();
    void deUnExtremoAOtroComoUnUsuario_data();
    void deUnExtremoAOtroComoUnUsuario();
};
