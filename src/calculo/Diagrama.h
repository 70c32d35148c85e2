// The diagrams of the batch command: after a file is calculated, one diagram procedure of its
// kind of project leaves its display list, the very list that the screen would draw.
#pragma once

#include "calculo/Proyecto.h"
#include "diagrams/qt/Dibujos.h"
#include "state/General.h"

#include <optional>
#include <string>
#include <string_view>

namespace texalon::calculo {

// The diagrams by the name the command line gives them.
enum class Diagrama {
    Tension,  // the stress-strain lines of the characteristics screen, any kind of project
    Confinamiento,  // the bars of a confinement project
    Area,  // moment against sheet area, flexure
    Capas,  // moment against layers, flexure
    Pivotes,  // the strain plane of one result cell, flexure
    Seccion,  // the section in hand, any kind of project
};

// The name on the command line: "tension", "confinamiento", "area", "capas", "pivotes", "seccion".
std::string_view NombreDiagrama(Diagrama diagrama);
std::optional<Diagrama> DiagramaDeNombre(std::string_view nombre);
// The names in the order above, joined as a Spanish list: "tension, ..., pivotes y seccion".
std::string NombresDiagramas();

// The section drawing reads only the section's data and the stress-strain chart only the
// catalogue and the coefficients: they need no calculation, and are drawn for a file read whole
// even when its calculation failed.
bool NecesitaCalculo(Diagrama diagrama);

// The sheet types and the numbers of layers that a diagram may be asked for.
constexpr int kTipoMaximo = 3;
constexpr int kCapasMaximo = 5;

// What the command line asks to be drawn: the diagram, the sheet type of `tension` and
// `pivotes`, and the number of layers of `pivotes`.
struct PeticionDiagrama {
    Diagrama diagrama = Diagrama::Tension;
    int tipo = 1;
    int capas = 1;
};

// The list a diagram procedure has left, and how its screen shows it.
struct ListaDiagrama {
    std::string procedimiento;  // the procedure's name: "DiagramaMomentoCapasT"
    const Dibujo* dibujo = &kPicFlexion;  // the picture of the screen that shows it
    Entero isotropico = 0;  // the fit the screen gives it
    GeneralDibujo d;
};

// Draws the diagram of a calculated file with its own state, the texts with `separador` as
// decimal separator. When the file's kind of project has no such diagram, the cell of `pivotes`
// has no result or the procedure fails, the message goes to the file's errors and there is no
// list. Only for a file that succeeded, or one read whole for a diagram that needs no
// calculation.
std::optional<ListaDiagrama> DibujaDiagrama(CalculoFichero& calculo, const PeticionDiagrama& peticion, char separador);

}  // namespace texalon::calculo
