// The tests of FM_FLEXION and FM_FLEXIONT: the screen in test and what the user does on it. The
// tests stand in files by behaviour: the load, the close and the keyboard path
// (test_fm_flexion.cpp), the fields (fm_flexion_campos.cpp) and the calculation
// (fm_flexion_calculo.cpp).
#pragma once

#include "comun/Filas.h"
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
#include <functional>
#include <memory>
#include <sstream>

using namespace texalon;
using namespace texalon::plataforma;

class PruebaFlexion : public prueba::PruebaDePantalla {
    Q_OBJECT

    QPointer<FmFlexion> pantalla_;

    Formulario* EnPrueba() const override { return pantalla_; }

    // A fresh state with the start values, changed as the test needs before the load, and the
    // screen loaded over it, not yet on show.
    FmFlexion& Carga(bool seccionT, char separador, const std::function<void(General&)>& prepara)
    {
        delete pantalla_;
        Estado() = General{};
        ValoresIniciales(Estado());
        prepara(Estado());
        NuevosDobles(separador);
        pantalla_ = new FmFlexion(seccionT ? SeccionFlexion::T : SeccionFlexion::Rectangular);
        return *pantalla_;
    }

    // The same with the values as a project file leaves them, "ANCHO=0.005", the screen shown.
    FmFlexion& Abre(bool seccionT = false, char separador = ',', const QString& valores = {})
    {
        Carga(seccionT, separador, [&valores](General& g) {
            if (!valores.isEmpty()) EscribeValores(g, valores);
        });
        MuestraActiva(pantalla_);
        return *pantalla_;
    }

    // The screen loaded over a project read from a file, the doubles answering with the machine's
    // separator.
    FmFlexion& CargaDeFichero(bool seccionT = false) { return Carga(seccionT, SeparadorDeLaMaquina(), DeFichero); }
    static void DeFichero(General& g) { g.F_ABIERTO = true; }

    RejillaResultados* Rejilla() { return qobject_cast<RejillaResultados*>(C("FG_FLEXION")); }

    // Types a text into a field and leaves it with Tab, as a user would.
    void Escribe(const char* nombre, const QString& texto) { prueba::EscribeYTabula(C(nombre), texto); }

    // Types a text into a field and leaves it for a button, which has no test of its own.
    void EscribeYSal(const char* nombre, const QString& texto)
    {
        TecleaSinSalir(nombre, texto);
        // A refusal keeps the focus in the field.
        C("CM_CALCULAR")->setFocus(Qt::MouseFocusReason);
    }

    bool BotonesResultado(bool activos)
    {
        for (const char* b : {"CM_ANCLAJE", "CM_ARMADURA", "CM_CAPAS", "CM_DEFORMACIONES"})
            if (C(b)->isEnabled() != activos) return false;
        return true;
    }

private slots:
    void cleanup() { CierraPantalla(); }
    void cargaConTituloYCamposDelEstado();
    void cargaEnInglesConPunto();
    void abiertaDeFicheroNoEsNueva();
    void listaConOtroValorLoPoneEnLaFilaSiguiente();
    void campoVacioDaSuMensajeYGuardaElValorPorDefecto();
    void loTecleadoEnLosCampos_data();
    void loTecleadoEnLosCampos();
    void calculoPorDefectoNoNecesitaRefuerzo();
    void momentoDe230DejaElLetreroOculto();
    void momentoDe300NoSePuedeReforzar();
    void predeformacionExcesivaTrasUnCalculoDejaLaRejillaInactiva();
    void tabularPorUnCampoValidoInvalidaLosResultados();
    void calcularConUnCampoMalMuestraSuMensajeYNoCalcula();
    void celdaSinResultadoDesactivaDeformaciones();
    void seccionTConSusCamposYRestablecimientos();
    void seccionTCalculaConRoturaT();
    void cerrarPantallaNuevaPreguntaYNoNoGraba();
    void cerrarConSiGrabaElFichero();
    void cerrarConSiYDatosMalosNoGraba_data();
    void cerrarConSiYDatosMalosNoGraba();
    void siEnUnProyectoConNombreOfreceIgualmenteFlexionVmf();
    void limitesInferioresDeCadaCampo_data();
    void limitesInferioresDeCadaCampo();
    void cancelarElDialogoCierraSinDecirNada();
    void abiertaDeFicheroSinCambiosCierraSinPreguntar();
    void abiertaDeFicheroTrasTabularPregunta();
    void coeficientesDesactivanLosBotonesPorCualquierSalida();
    void anclajeMuestraSuVentana();
    void seleccionInactivaMientrasSeCalcula();
    void calcularConElTeclado();
    void alAbrirElFocoEstaEnElPrimerCampoSinCambiarNada();
    void tabuladorSigueElOrdenDeLectura_data();
    void tabuladorSigueElOrdenDeLectura();
    void nombresAccesiblesYConsejos();
    void enviadoAlAnchoDelRefuerzoPuedeTeclearUnAnchoPequeno();
    void abrirLaListaNoComprueba();
    void abrirLaListaEnUnaPantallaCalculadaNoApagaLosBotones();
    void laRuedaSobreUnaListaSinFocoNoCambiaElProyecto();
    void unBotonPulsadoConUnCampoMaloNoQuedaHundido();
    void losCamposDeResultadoMuestranElNumeroEntero();
    void cadaCampoConSusMensajesYSuReinicio_data();
    void cadaCampoConSusMensajesYSuReinicio();
    void elegirUnaFilaDeLaListaNoEjecutaNada();
    void elFocoQueTomaLaCajaDeMensajeNoEmpiezaOtraComprobacion();
    void resistenciasExactamenteEnSusLimitesPasan();
    void pruebaBlandaNoTocaLosBotones();
    void deformacionesDeLaCeldaEnSusFormatos();
    void desbordamientoAlCalcularEsErrorFatal();
    void unValorQueSuCampoRechazaNoSeCalcula_data();
    void unValorQueSuCampoRechazaNoSeCalcula();
    void unCoeficienteQueSuCampoRechazaSeCorrigeEnSuDialogo();
    void deUnExtremoAOtroComoUnUsuario();
};
