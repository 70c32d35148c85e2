#include "diagrams/Dibujante.h"

#include <array>

namespace texalon {

namespace {

std::array<Dibujante*, 4>& Dibujantes()
{
    static std::array<Dibujante*, 4> dibujantes{};
    return dibujantes;
}

}  // namespace

TamanoDibujo TamanoDe(Pantalla pantalla)
{
    switch (pantalla) {
    case Pantalla::Flexion:
    case Pantalla::FlexionT:
        return {440, 176};
    case Pantalla::Confina:
        return {440, 212};
    case Pantalla::Carac:
        break;
    }
    return {734, 238};
}

void RegistraDibujante(Pantalla pantalla, Dibujante* dibujante)
{
    Dibujantes()[static_cast<std::size_t>(pantalla)] = dibujante;
}

Dibujante* DibujanteDe(Pantalla pantalla) { return Dibujantes()[static_cast<std::size_t>(pantalla)]; }

void DibujaEnPantalla(Pantalla pantalla, GeneralDibujo& d, Entero isotropico)
{
    if (Dibujante* dibujante = DibujanteDe(pantalla)) dibujante->DibujaLista(d, isotropico);
}

}  // namespace texalon
