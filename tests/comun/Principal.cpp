#include "Principal.h"

#include "shell/FmPresentacion.h"
#include "state/General.h"

#include <QtTest>

namespace texalon::prueba {

MdiPrincipal& PruebaDePrincipal::Arranca(char separador)
{
    Termina();
    Estado() = General{};
    EstadoDibujo() = GeneralDibujo{};
    doble_ = std::make_unique<plataforma::PlataformaDoble>();
    doble_->regional.separador = separador;
    ventana_ = std::make_unique<MdiPrincipal>();
    ventana_->show();
    if (ventana_->Presentacion() != nullptr) ventana_->Presentacion()->close();
    ventana_->activateWindow();
    if (!QTest::qWaitForWindowActive(ventana_.get())) qWarning("la ventana principal no se ha activado");
    return *ventana_;
}

MdiPrincipal& PruebaDePrincipal::Arranca() { return Arranca(plataforma::RegionalDoble().separador); }

void PruebaDePrincipal::Termina()
{
    ventana_.reset();
    doble_.reset();
}

}  // namespace texalon::prueba
