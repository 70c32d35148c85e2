// One project file of the batch command: which kind it is, read into a state of its own and
// calculated as the Calculate button of its screen does.
#pragma once

#include "engine/Calcular.h"
#include "files/Ficheros.h"
#include "state/General.h"
#include "state/TiposSeccion.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace texalon::calculo {

// The messages of the batch command that the screens do not have.
inline constexpr std::string_view kMensajeNoEsProyecto = "no es un fichero de proyecto TEXALON (.vmf o .vmc).";
// What Open says after a file it could not take.
inline constexpr std::string_view kMensajeDatosIncorrectos = "Los datos almacenados no son correctos.";

// A file read and calculated; `g` holds its whole state afterwards.
struct CalculoFichero {
    std::string fichero;  // the name as given; a member's table
    // A member of a table: its name and the table's row it came from; empty and 0 for a file.
    std::string elemento;
    std::size_t fila = 0;
    ClaseFichero clase = ClaseFichero::Ninguna;
    // The section kind of a flexure project: line 1 of its file as read, or its table row's kind.
    SeccionFlexion seccion = SeccionFlexion::Rectangular;
    bool leido = false;  // the whole file read and found good
    Veredicto veredicto = Veredicto::Oculto;
    // The messages of a failure, in the order the program shows them; none on success.
    std::vector<std::string> errores;
    General g;

    bool Correcto() const { return errores.empty(); }
};

// Reads the file and, if it is good, calculates it: the flexure files also get their anchorage
// lengths, which their screens show on request.
CalculoFichero CalculaFichero(const std::string& fichero);

// The second half of CalculaFichero, for a state that holds a project's values already read
// and found good: refused with its field's message where a field would refuse a value,
// calculated otherwise.
void CalculaLeido(CalculoFichero& calculo);

// Where a calculation's results and messages come from: the file's name as given, or for a
// member of a table "TABLA: fila N (ELEMENTO)", the row being the table's line it starts on.
std::string Procedencia(const CalculoFichero& calculo);

// The kinds of project, as the column "tipo" of a table and --json name them.
inline constexpr std::string_view kTipoRectangular = "rectangular";
inline constexpr std::string_view kTipoT = "T";
inline constexpr std::string_view kTipoConfinamiento = "confinamiento";

// The shapes of a column, in lower case, as the batch command's text and the guide name them.
constexpr std::string_view NombreForma(FormaPilar forma)
{
    switch (forma) {
    case FormaPilar::Circular: return "circular";
    case FormaPilar::Cuadrada: return "cuadrada";
    case FormaPilar::Rectangular: return "rectangular";
    }
    return {};
}

// The kind's name of above; none while the file has not told its kind.
std::optional<std::string_view> NombreTipo(const CalculoFichero& calculo);

// The message of a run-time error inside a calculation or a drawing, as the program would end
// with it: "Se ha producido el error '11' en tiempo de ejecución: División por cero".
std::string MensajeErrorEjecucion(int numero);

}  // namespace texalon::calculo
