// What the result tables and the result fields show, as text: the cells of the flexure and
// confinement grids, the results of one cell, and the table of the characteristics screen.
//
// The screens, the diagrams, the reports and the batch command all read these texts, so that
// a number reads the same wherever it appears. `separador` is the machine's decimal separator.
#pragma once

#include "state/General.h"

#include <string>
#include <vector>

namespace texalon {

// The heading of the layer column of the result grids.
inline constexpr char kCabeceraCapas[] = "Nº capas";

// One cell of a result grid: its text and whether it meets the requirement (yellow).
struct CeldaResultado {
    std::string texto;
    bool cumple = false;
};

// The flexure grid, cell (type, layers): MU in "0.0", or "---" for the mark of no gain;
// yellow when MU reaches MD, which a "---" cell never does for an MD above -999.
CeldaResultado CeldaFlexion(const General& g, int tipo, int capas, char separador);

// The confinement grid, cell (type, layers): RESU in "0.00", yellow when it reaches INCR.
CeldaResultado CeldaConfina(const General& g, int tipo, int capas, char separador);

// LB_TIPO of a cell: "Refuerzo tipo TEXALON L - Núm. capas: 1".
std::string TituloCelda(const General& g, int tipo, int capas);

// The results of one flexure cell, as the fields of the results panel show them. MUSR and EPS0
// are the section's, whatever the cell; the others read "---" on a cell with no gain.
struct ResultadosCeldaFlexion {
    std::string tipo;  // LB_TIPO
    std::string MUSR, EPS0;
    std::string MRB, MLIMCR, PIVOTE, FN, EPSC, EPSSI, EPSSS, EPSR, MU;
};
ResultadosCeldaFlexion ResultadosFlexion(const General& g, int tipo, int capas, char separador);

// The results of one confinement cell.
struct ResultadosCeldaConfina {
    std::string tipo;  // LB_TIPO
    std::string WC, WR, WWD, EPS0, EPSR, SIGMAR, TENSCONF, RESU;
};
ResultadosCeldaConfina ResultadosConfina(const General& g, int tipo, int capas, char separador);

// CargaCaracteristicas without the screen: the sheet type's catalogue row copied to ESPESOR, E
// and EPSU, and KM and EPSD worked out for it with the GR of the state.
void CargaCaracteristicas(General& g, int tipo);

// The characteristics screen's fields and its table FG_EPSD, for the type in hand.
struct TextosCaracteristicas {
    std::string ESPESOR;  // mm, "0.000"
    std::string E;  // N/mm², "0"
    std::string EPSU;  // per mil, "0.00"
    std::vector<std::string> cabecera;  // row 0: "Capas", "Km", "Def. cálculo", "FR (N/mm²)"
    // Rows 1 to MAXCAPAS: the number of layers, KM, EPSD per mil, the design stress E × EPSD.
    std::vector<std::vector<std::string>> filas;
};
TextosCaracteristicas Caracteristicas(const General& g, char separador);

}  // namespace texalon
