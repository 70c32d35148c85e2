// The project state: one process-wide record that holds the one project of a run.
//
// The inputs of the three calculations, the safety coefficients, the catalogue of sheets, the
// result arrays and the flags by which the windows know of each other all live here. A field
// bears the name of the control that feeds or shows it, without its prefix (TX_ANCHO feeds
// ANCHO). Units are fixed across the program: section lengths in m, steel areas in cm²,
// strengths and moduli in N/mm², sheet thickness in mm, moments in mkN, axial loads in kN,
// strains as plain ratios.
#pragma once

#include "state/Arreglo.h"

#include <cstdint>
#include <string>

namespace texalon {

using Entero = std::int16_t;  // the program's integers are 16-bit
using Color = std::int32_t;  // red + 256 × green + 65536 × blue

constexpr Color ColorRGB(int rojo, int verde, int azul)
{
    return static_cast<Color>(rojo + 256 * verde + 65536 * azul);
}

// The three components of a colour, as the screens and the printers take them.
struct ComponentesRGB {
    int rojo;
    int verde;
    int azul;
};
constexpr ComponentesRGB Componentes(Color color)
{
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

// Defaults of the project fields. New, start-up and the file readers all take them from here.
namespace defecto {
constexpr double GC = 1.5;
constexpr double GS = 1.15;
constexpr double GR = 1.4;
constexpr double FCK = 25.0;
constexpr double FYK = 500.0;
constexpr double NU = 0.5;
constexpr double ANCHO = 0.4;
constexpr double CANTO = 0.6;
constexpr double ANCHOALMA = 0.2;
constexpr double CANTOALA = 0.2;
constexpr double RECUB = 0.05;
constexpr double ASI = 10.0;
constexpr double ASS = 0.0;
constexpr double ANCHOR = 0.125;
constexpr double MCP = 0.0;
constexpr double MD = 0.0;
constexpr double EPS0 = 0.0;
constexpr Entero SECCION = 1;
constexpr double DIAM = 0.5;
constexpr double LADOMENOR = 0.4;
constexpr double INCR = 1.0;
constexpr double NCP = 0.0;
}  // namespace defecto

struct General {
    // Program size, fixed at start-up.
    Entero NTIPOS = 0;  // sheet types; first bound of every result array
    Entero MAXCAPAS = 0;  // largest number of layers; second bound of every result array

    // Catalogue of sheets.
    Arreglo<std::string> TIPOS;  // (1..NTIPOS) names
    Arreglo<double> CATALOGO;  // (1..NTIPOS, 1..3) thickness mm, modulus N/mm², ultimate strain
    Arreglo<Color> COLORES;  // (1..NTIPOS) colour of the type's curves

    // Sheet type in hand: scratch copies of one catalogue row and its design strain.
    double ESPESOR = 0.0;  // mm
    double E = 0.0;  // N/mm²
    double EPSU = 0.0;  // ultimate strain
    Arreglo<double> KM;  // (1..MAXCAPAS) reduction factor for n layers
    Arreglo<double> EPSD;  // (1..MAXCAPAS) design strain for n layers

    // Safety coefficients and materials.
    double GC = 0.0;
    double GS = 0.0;
    double GR = 0.0;
    double FCK = 0.0;  // N/mm²
    double FYK = 0.0;  // N/mm², flexure only
    double NU = 0.0;  // Poisson coefficient of the confined concrete

    // Flexure section.
    double ANCHO = 0.0;  // m, width; flange width of a T section
    double CANTO = 0.0;  // m, total depth
    double ANCHOALMA = 0.0;  // m, web width of a T section
    double CANTOALA = 0.0;  // m, flange depth of a T section
    double RECUB = 0.0;  // m, cover to the centre of the steel, top and bottom
    double ASI = 0.0;  // cm², bottom steel
    double ASS = 0.0;  // cm², top steel
    double ANCHOR = 0.0;  // m, width of the sheet
    double MCP = 0.0;  // mkN, moment acting when the sheet is applied
    double MD = 0.0;  // mkN, design moment
    double EPS0 = 0.0;  // initial strain of the section

    // Flexure results, (1..NTIPOS, 1..MAXCAPAS), allocated anew by each Calculate.
    Arreglo<double> MU;  // mkN; -999.0 marks a layer count that adds nothing
    Arreglo<double> FN;  // m, neutral axis depth
    Arreglo<std::string> PIVOTE;  // "R", "B" or "A"
    Arreglo<double> MRB;  // mkN
    Arreglo<double> XRB;  // m
    Arreglo<double> MLIMSR;  // mkN
    Arreglo<double> MLIMCR;  // mkN
    Arreglo<double> XLIM;  // m
    Arreglo<double> EPSC;  // top concrete fibre
    Arreglo<double> EPSSI;  // bottom steel
    Arreglo<double> EPSSS;  // top steel, signed
    Arreglo<double> EPSR;  // sheet, initial strain included
    double MUSR = 0.0;  // mkN, ultimate moment without sheet
    double MUMAX = 0.0;  // mkN, largest MU of the last Calculate
    double EPSRSEL = 0.0;  // EPSR of the cell in hand

    // Confinement section.
    Entero SECCION = 0;  // 1 circular, 2 square, 3 rectangular
    double DIAM = 0.0;  // m, diameter, side, or long side
    double LADOMENOR = 0.0;  // m, short side of the rectangle
    double INCR = 0.0;  // required increase of strength, as a factor
    double NCP = 0.0;  // kN, axial load when the sheet is applied
    double ALFAN = 0.0;  // shape coefficient
    double ALFAS = 0.0;  // second coefficient of the same product

    // Confinement results: WC (1..NTIPOS), the others (1..NTIPOS, 1..MAXCAPAS).
    Arreglo<double> WR;  // m³/m
    Arreglo<double> WC;  // m³/m
    Arreglo<double> WWD;  // volumetric ratio
    Arreglo<double> EPSRC;  // strain of the sheet
    Arreglo<double> SIGMAR;  // N/mm²
    Arreglo<double> TENSCONF;  // confinement stress over the design strength
    Arreglo<double> RESU;  // strength increase reached
    double RESUMAX = 0.0;

    // Anchorage, (1..NTIPOS, 1..MAXCAPAS), m.
    Arreglo<double> LANC;

    // Program flags.
    bool F_ERROR = false;  // the last file read or screen-to-state copy failed
    bool F_PRESENTACION = false;  // the splash is up
    bool F_ABIERTO = false;  // the project came from Open
    bool F_CALCULADO = false;  // the results match the data on screen
    bool F_GRABADO = false;  // the project has a file on disk
    bool F_NUEVO = true;  // never saved: Save must ask for a name
    bool F_MODIFICADO = false;  // data changed since the last save
    bool F_CALCULANDO = false;  // a flexure Calculate is running
    bool F_MAPI = false;  // a mail session is signed on
    bool F_FLEXION = false;  // FM_FLEXION is open
    bool F_CONFINA = false;  // FM_CONFINA is open
    bool F_CARAC = false;  // FM_CARAC is open
    bool F_FLEXIONT = false;  // FM_FLEXIONT is open

    std::string FICHERO;  // full path of the project file
    std::string DIRECTORIO;  // current directory after the last file dialog
};

// The element counters: how many screen elements of each kind exist now, 0 while none. The
// picture of a screen counts into the drawing state's own set; a picture drawn for a file keeps
// a set of its own, so that the state's counters go on naming what the screen shows.
struct ContadoresDibujo {
    Entero NLINEA = 0;
    Entero NTIT = 0;
    Entero NBARRA = 0;
    Entero NPUNTO = 0;
    Entero NSECRECT = 0;
    Entero NSECCIR = 0;
};

// The display list, the counters of screen elements, the fit of the last rendering and the
// zoom, shared by the diagrams, the pictures and the reports.
struct GeneralDibujo : ContadoresDibujo {
    static constexpr int kElementos = 1000;
    static constexpr int kCampos = 10;

    Entero NLISTA = 0;
    Arreglo<double> LISTA;  // (1..1000, 1..10)
    Arreglo<std::string> TEXTOS;  // (1..1000)

    double ANCHOPIC = 0.0;
    double ALTOPIC = 0.0;
    double ESCALAX = 0.0;
    double ESCALAY = 0.0;
    double ZOOM = 0.0;
    double ZOOMX1 = 0.0;
    double ZOOMY1 = 0.0;
    double ZOOMX2 = 0.0;
    double ZOOMY2 = 0.0;
    bool F_ZOOM = false;
    bool F_PIVOTES = false;
    bool F_MOMENTOS = false;
    bool F_SECCION = false;
    bool F_CAPAS = false;
};

// The one project of the process.
General& Estado();
GeneralDibujo& EstadoDibujo();

// Sets the counters of screen elements to 0, as a screen does when it closes.
void BorraDibujo(ContadoresDibujo& d);

// Start-up: every project field to its default, the program size fixed, the catalogue filled.
// The flags are the main window's and are not touched here.
void ValoresIniciales(General& g);

// The start values of a new flexure project, rectangular or T; they are also the defaults that
// the flexure file reader loads when it refuses a file or fails.
void ValoresFlexion(General& g);

// The defaults that the confinement file reader loads when it refuses a file.
void ValoresConfinamiento(General& g);

// The start values of a new confinement project: those above, and NU and FYK as well. The
// confinement reader loads this longer list when the file itself fails.
void ValoresNuevoConfinamiento(General& g);

}  // namespace texalon
