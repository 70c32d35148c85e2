// The four screens of the program, one row each: what the main window needs to know of a
// screen to open it, find it, close it, give its help and print its report.
//
// At most one screen is open, and the state's open flags say which: the commands test the
// flags in fixed orders. The rows stand in the order of closing the open screen, which Save
// keeps too, and Print after taking first a screen that needs no calculation; Help and About
// have orders of their own, given as turns. A fifth screen would be one row more.
#pragma once

#include "files/Ficheros.h"
#include "state/General.h"
#include "state/TiposSeccion.h"

#include <span>

namespace texalon {

class Formulario;

enum class Pantalla { Flexion, FlexionT, Confina, Carac };

struct FilaPantalla {
    Pantalla pantalla;
    const char* nombre;  // the window's name
    bool General::*abierta;  // its open flag
    int contextoAyuda;  // its help topic, for F1
    int turnoAyuda;  // where F1 tests its flag, from 1
    int turnoCopia;  // where About tests its flag to copy its fields, from 1; 0 with no fields
    // Whether the screen holds a project file: Save and Save As work on it, and Print wants
    // its results calculated for its data first.
    bool conProyecto;
    // The project files that Open shows on it: their kind and, for flexure, the section kind of
    // their line 1. None for a screen without a file.
    ClaseFichero clase;
    SeccionFlexion seccion;
    // The start values that its New command writes; none for a screen that New does not
    // start (the characteristics leave the state as it is).
    void (*valoresIniciales)(General& g);
    // Makes the screen, whose load then runs.
    Formulario* (*crea)();
};

// Every row, in the order of closing.
std::span<const FilaPantalla> FilasPantallas();
const FilaPantalla& FilaDe(Pantalla pantalla);
// The row of a window's name; none for a window that is no screen.
const FilaPantalla* FilaDeNombre(const char* nombre);
// The screen that shows a project read from a file of that kind and section; none for none.
const FilaPantalla* FilaDeProyecto(ClaseFichero clase, SeccionFlexion seccion);

// The screen whose open flag is up, tested in the order of the rows: the one to close first,
// the one to save. `conProyecto` keeps to the screens that hold a project file.
const FilaPantalla* PrimeraAbierta(const General& g, bool conProyecto = false);
// The screen whose report Print runs: a screen that needs no calculation first, then the
// others in the order of the rows.
const FilaPantalla* PantallaParaImprimir(const General& g);
// The screen whose flag is up first in the turns of the given column.
const FilaPantalla* PantallaPorTurno(const General& g, int FilaPantalla::*turno);

}  // namespace texalon
