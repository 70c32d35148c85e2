// The characteristics report: the data of the sheet type chosen, the ruled table of its design
// strain by number of layers, and its stress-strain diagram, on one page.
#include "reports/Informes.h"

#include "reports/Imprimir.h"
#include "state/Formato.h"

#include <string>
#include <vector>

namespace texalon {

namespace {

constexpr char kTitulo[] = "CARACTERISTICAS MECANICAS DEL REFUERZO";

// The table of design strains: one heading row and a row for each number of layers.
constexpr double kColumnasTabla = 4.0;
constexpr double kAltoFila = 0.8;
constexpr double kAnchoColumna = 3.5;
// From the last row of data to the table's heading, and from that heading to the table.
constexpr double kSaltoTabla = 1.5;
constexpr double kSaltoCabeceraTabla = 1.0;
// The diagram starts this far below the top margin, under the table.
constexpr double kSaltoDiagrama = 12.0;

// The texts of row `i` of the table whose top-left corner is (x0, y0), each centred in its cell
// (row 0 is the heading).
void FilaTabla(Impresora& impresora, double x0, double y0, int i, const std::vector<std::string>& textos)
{
    for (std::size_t j = 0; j < textos.size(); ++j) {
        const std::string& texto = textos[j];
        impresora.CurrentX(x0 + kAnchoColumna * static_cast<double>(j) +
                           (kAnchoColumna - impresora.TextWidth(texto)) / 2);
        impresora.CurrentY(y0 + kAltoFila * i + (kAltoFila - impresora.TextHeight(texto)) / 2);
        impresora.Print(texto);
    }
}

// A row of layers: the number, KM, the design strain per mil and the design stress E × EPSD.
std::vector<std::string> TextosCapas(const General& g, int n, char separador)
{
    return {std::to_string(n), Formato(g.KM(n), "0.000", separador), Formato(g.EPSD(n) * 1000, "0.00", separador),
            Formato(g.E * g.EPSD(n), "0.0", separador)};
}

}  // namespace

void InformeCarac(Impresora& impresora, const General& g, GeneralDibujo& d, int tipoElegido, char separador)
{
    const Pagina pagina = PreparaInforme(impresora, kDocumentoCarac);
    MarcoPagina(impresora, pagina, kTitulo, kLogoCarac);

    const double x = pagina.margenIzquierdo;
    Cabecera(impresora, x, kYCabecera, "DATOS GENERALES");
    double y = kYPrimeraFila;
    // With no option set the row keeps its label and shows an empty value.
    Fila(impresora, x, y, "Tipo de refuerzo:", tipoElegido == 0 ? std::string() : g.TIPOS(tipoElegido));
    Fila(impresora, x, y, "Espesor:", Formato(g.ESPESOR, "0.000", separador) + " mm");
    Fila(impresora, x, y, "Módulo de Young:", Formato(g.E, "0", separador) + " N/mm²");
    Fila(impresora, x, y, "Deformación última:", Formato(g.EPSU * 1000, "0.00", separador) + "‰");
    Fila(impresora, x, y, "Coef. seg. TEXALON®:", Formato(g.GR, "0.00", separador));

    const double y1 = y + kSaltoTabla;
    Cabecera(impresora, x, y1, "DEFORMACION DE CALCULO");
    const double y0 = y1 + kSaltoCabeceraTabla;
    ImprimeTabla(impresora, x, y0, g.MAXCAPAS + 1, kColumnasTabla, kAltoFila, kAnchoColumna);

    impresora.FontBold(true);
    FilaTabla(impresora, x, y0, 0, {"Núm. de capas", "Km", "Def. cálculo (‰)", "Tensión (N/mm²)"});
    impresora.FontBold(false);
    for (int n = 1; n <= g.MAXCAPAS; ++n)
        FilaTabla(impresora, x, y0, n, TextosCapas(g, n, separador));

    ImprimeLista(impresora, d, pagina.margenDerecho, pagina.margenIzquierdo, pagina.margenSuperior + kSaltoDiagrama,
                 pagina.margenInferior, 0);
    impresora.EndDoc();
}

}  // namespace texalon
