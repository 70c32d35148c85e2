// Where a diagram procedure puts its list at the end: the picture of its screen.
//
// The procedures draw on the picture of the screen they belong to, whoever called them (a
// report's diagram refreshes the screen too). The pictures register themselves here while
// their screen lives; the batch command registers none, and its diagrams stay lists.
#pragma once

#include "state/General.h"

namespace texalon {

// The four screens of the program, each with its picture.
enum class Pantalla {
    Flexion,  // PIC_FLEXION of FM_FLEXION
    FlexionT,  // PIC_FLEXION of FM_FLEXIONT
    Confina,  // PIC_CONFINA
    Carac,  // PIC_CARAC
};

// The size of each picture in pixels: the screens fix their pictures to it, and the SVG files
// of the batch command are fitted to it, so that a file looks as the screen's picture does.
struct TamanoDibujo {
    int ancho;
    int alto;
};
TamanoDibujo TamanoDe(Pantalla pantalla);

// A picture that shows display lists.
class Dibujante {
public:
    virtual ~Dibujante() = default;
    // The first showing of the list on the picture: fit, elements replaced (DibujaLista).
    virtual void DibujaLista(GeneralDibujo& d, Entero isotropico) = 0;
};

// The picture of a screen, or none to take it away.
void RegistraDibujante(Pantalla pantalla, Dibujante* dibujante);
Dibujante* DibujanteDe(Pantalla pantalla);

// DibujaLista on the screen's picture, when the screen has one; nothing otherwise.
void DibujaEnPantalla(Pantalla pantalla, GeneralDibujo& d, Entero isotropico);

}  // namespace texalon
