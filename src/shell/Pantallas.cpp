#include "shell/Pantallas.h"

#include "screens/FmCarac.h"
#include "screens/FmConfina.h"
#include "screens/FmFlexion.h"

#include <cstring>

namespace texalon {

namespace {

using enum SeccionFlexion;

// clang-format off
constexpr FilaPantalla kPantallas[] = {
    // screen             window          open flag             help turns: F1 About  file   files opened on it                   New's start values          made by
    {Pantalla::Flexion,  "FM_FLEXION",  &General::F_FLEXION,  32,    1,   1,        true,  ClaseFichero::Flexion,       Rectangular, &ValoresFlexion,            [] () -> Formulario* { return new FmFlexion(Rectangular); }},
    {Pantalla::Confina,  "FM_CONFINA",  &General::F_CONFINA,  33,    3,   3,        true,  ClaseFichero::Confinamiento, Rectangular, &ValoresNuevoConfinamiento, [] () -> Formulario* { return new FmConfina; }},
    {Pantalla::Carac,    "FM_CARAC",    &General::F_CARAC,    31,    2,   0,        false, ClaseFichero::Ninguna,       Rectangular, nullptr,                    [] () -> Formulario* { return new FmCarac; }},
    {Pantalla::FlexionT, "FM_FLEXIONT", &General::F_FLEXIONT, 34,    4,   2,        true,  ClaseFichero::Flexion,       T,           &ValoresFlexion,            [] () -> Formulario* { return new FmFlexion(T); }},
};
// clang-format on

}  // namespace

std::span<const FilaPantalla> FilasPantallas() { return kPantallas; }

const FilaPantalla& FilaDe(Pantalla pantalla)
{
    for (const FilaPantalla& fila : kPantallas)
        if (fila.pantalla == pantalla) return fila;
    return kPantallas[0];
}

const FilaPantalla* FilaDeNombre(const char* nombre)
{
    for (const FilaPantalla& fila : kPantallas)
        if (std::strcmp(fila.nombre, nombre) == 0) return &fila;
    return nullptr;
}

const FilaPantalla* FilaDeProyecto(ClaseFichero clase, SeccionFlexion seccion)
{
    for (const FilaPantalla& fila : kPantallas) {
        if (clase == ClaseFichero::Ninguna || fila.clase != clase) continue;
        // A confinement file has one screen, whatever the section kind says.
        if (clase != ClaseFichero::Flexion || fila.seccion == seccion) return &fila;
    }
    return nullptr;
}

const FilaPantalla* PrimeraAbierta(const General& g, bool conProyecto)
{
    for (const FilaPantalla& fila : kPantallas)
        if (g.*fila.abierta && (fila.conProyecto || !conProyecto)) return &fila;
    return nullptr;
}

const FilaPantalla* PantallaParaImprimir(const General& g)
{
    for (const FilaPantalla& fila : kPantallas)
        if (g.*fila.abierta && !fila.conProyecto) return &fila;
    return PrimeraAbierta(g, true);
}

const FilaPantalla* PantallaPorTurno(const General& g, int FilaPantalla::*turno)
{
    const FilaPantalla* primera = nullptr;
    for (const FilaPantalla& fila : kPantallas)
        if (fila.*turno > 0 && g.*fila.abierta && (primera == nullptr || fila.*turno < primera->*turno))
            primera = &fila;
    return primera;
}

}  // namespace texalon
