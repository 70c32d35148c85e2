// The characteristics screen, FM_CARAC: the mechanical data of one sheet type, its design
// strain by number of layers and its stress-strain diagram. A screen to look at: its only input
// is the choice of the type, and it has no file.
#pragma once

#include "screens/Formulario.h"

class QRadioButton;

namespace texalon {

class RejillaResultados;

class FmCarac : public Formulario {
    Q_OBJECT
public:
    // Load: the open flag, then the screen filled for type 1, whose option is selected at every
    // load as the window is created anew.
    explicit FmCarac(QWidget* padre = nullptr);

    // CargaCaracteristicas: the fields and the table for the selected option's type, with the
    // GR of the state.
    void CargaCaracteristicas();
    // The type of the selected option: OP_TL is tested first, then OP_TH, then OP_TX.
    int TipoElegido() const;
    // The stress-strain diagram of the sheet type `tipo`, whose design strains are in EPSD,
    // on the screen's picture.
    void DiagramaTension(Entero tipo);
    // The characteristics report of the selected option's type, its diagram built first so
    // that the diagram printed is that type's. It needs no Calculate.
    bool Imprime(plataforma::Impresora& impresora) override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    QWidget* CreaRefuerzo();
    QWidget* CreaTabla();

    QRadioButton* opciones_[3] = {};
    RejillaResultados* rejilla_ = nullptr;  // FG_EPSD
};

}  // namespace texalon
