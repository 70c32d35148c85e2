// The confinement report: the column's data, the auxiliary coefficients, the results of the
// cell on show, the bars of the strength increase and the wrapped section, on one page.
#include "reports/Informes.h"

#include "diagrams/Grafico.h"
#include "reports/Imprimir.h"
#include "state/Decimales.h"
#include "state/Formato.h"

#include <string>
#include <string_view>

namespace texalon {

namespace {

constexpr char kTitulo[] = "REFUERZO A CONFINAMIENTO";

// From the last auxiliary row to the results' heading, to the name of the cell and to the first
// result.
constexpr double kSaltoResultados = 1.5;
constexpr double kSaltoCelda = 2.5;
constexpr double kSaltoPrimerResultado = 3.5;
// The diagram takes the page from this far under the top margin; the section stands from the
// first row of data down to that same height.
constexpr double kCorteDiagrama = 12.0;
constexpr double kArribaSeccion = 5.0;

// The word of the shape. On purpose: the rectangle has none, and its value stays blank.
std::string NombreForma(FormaPilar forma)
{
    if (forma == FormaPilar::Circular) return "CIRCULAR";
    if (forma == FormaPilar::Cuadrada) return "CUADRADA";
    return "";
}

// The label of the size in DIAM, by the shape of the list.
std::string EtiquetaTamano(FormaPilar forma)
{
    if (forma == FormaPilar::Circular) return "Diámetro:";
    if (forma == FormaPilar::Cuadrada) return "Lado:";
    if (forma == FormaPilar::Rectangular) return "Lado mayor:";
    return "";
}

// The left block. The shape's word and the size's label go by the screen's list, the row of
// the smaller side by the section in the state.
void DatosGenerales(Impresora& impresora, const Pagina& pagina, const General& g, FormaPilar forma, char separador)
{
    const double x = pagina.margenIzquierdo;
    Cabecera(impresora, x, kYCabecera, "DATOS GENERALES");
    double y = kYPrimeraFila;
    Fila(impresora, x, y, "Tipo de sección:", NombreForma(forma));
    Fila(impresora, x, y, EtiquetaTamano(forma), Formato(g.DIAM, "0.000", separador) + " m");
    if (FormaDe(g) == FormaPilar::Rectangular)
        Fila(impresora, x, y, "Lado menor:", Formato(g.LADOMENOR, "0.000", separador) + " m");
    FilaConSubindice(impresora, x, y, "f", "ck", "fck", Formato(g.FCK, "0", separador) + " N/mm²");
    Fila(impresora, x, y, "Axil actual:", Formato(g.NCP, "0.00", separador) + " kN");
    Fila(impresora, x, y, "Incr. de resistencia:", Formato(g.INCR, "0.00", separador));
}

// The upper right block. Returns the running Y under its last row, from which the results are
// placed.
double DatosAuxiliares(Impresora& impresora, const Pagina& pagina, const General& g, char separador)
{
    const double x = pagina.margenIzquierdo + kBloqueDerecho;
    const auto dos = [separador](double valor) { return Formato(valor, "0.00", separador); };
    Cabecera(impresora, x, kYCabecera, "DATOS AUXILIARES");
    double y = kYPrimeraFila;
    Fila(impresora, x, y, "Coeficiente de Poisson:", dos(g.NU));
    Fila(impresora, x, y, "Coeficiente de forma:", Formato(g.ALFAN, "0.000", separador));
    Fila(impresora, x, y, "Coef. seg. hormigón:", dos(g.GC));
    Fila(impresora, x, y, "Coef. seg. acero:", dos(g.GS));
    Fila(impresora, x, y, "Coef. seg. TEXALON®:", dos(g.GR));
    return y;
}

// The lower right block: the cell on show and its results, from the texts of the result
// fields.
// On purpose: the initial strain has no blank before its sign here, and the confinement stress
// no unit.
void Resultados(Impresora& impresora, const Pagina& pagina, double y0, const ResultadosCeldaConfina& celda,
                char separador)
{
    const double x = pagina.margenIzquierdo + kBloqueDerecho;
    const auto volumen = [separador](const std::string& texto) { return Valor(texto, "0.000000", separador); };
    Cabecera(impresora, x, y0 + kSaltoResultados, "RESULTADOS DE LA SECCION");
    Escribe(impresora, x, y0 + kSaltoCelda, std::string(Recortado(celda.tipo)));
    double y = y0 + kSaltoPrimerResultado;
    Fila(impresora, x, y, "Vol. hormigón confinado:", volumen(celda.WC) + " m³/m");
    Fila(impresora, x, y, "Vol. de refuerzo:", volumen(celda.WR) + " m³/m");
    Fila(impresora, x, y, "Cuantía volumétrica:", volumen(celda.WWD));
    Fila(impresora, x, y, "Predeformación inicial:", Valor(celda.EPS0, "0.00", separador) + "‰");
    Fila(impresora, x, y, "Def. refuerzo:", Valor(celda.EPSR, "0.00", separador) + "‰");
    Fila(impresora, x, y, "Tensión en refuerzo:", Valor(celda.SIGMAR, "0.0", separador) + " N/mm²");
    Fila(impresora, x, y, "Tensión de confinamiento:", Valor(celda.TENSCONF, "0.000", separador));
    Fila(impresora, x, y, "Incremento de resistencia:", Valor(celda.RESU, "0.00", separador));
}

}  // namespace

void InformeConfina(Impresora& impresora, General& g, GeneralDibujo& d, const ResultadosCeldaConfina& celda,
                    FormaPilar forma, char separador)
{
    const Pagina pagina = PreparaInforme(impresora, kDocumentoConfina);
    MarcoPagina(impresora, pagina, kTitulo, kLogoConfina);

    DatosGenerales(impresora, pagina, g, forma, separador);
    const double y0 = DatosAuxiliares(impresora, pagina, g, separador);
    Resultados(impresora, pagina, y0, celda, separador);

    // The bars across the lower part of the page; the column to scale under the left block.
    DiagramaConfina(g, d, separador);
    ImprimeLista(impresora, d, pagina.margenDerecho, pagina.margenIzquierdo, pagina.margenSuperior + kCorteDiagrama,
                 pagina.margenInferior, 0);
    DibujaSeccionConfina(g, d, separador);
    ImprimeLista(impresora, d, pagina.margenDerecho + kBloqueDerecho, pagina.margenIzquierdo,
                 pagina.margenSuperior + kArribaSeccion, pagina.margenInferior + kCorteDiagrama, 1);
    impresora.EndDoc();
}

}  // namespace texalon
