// The flexure reports, rectangular and T: the project's data, the results of the cell on show
// and four diagrams on two pages; or, after a verdict that no sheet is needed or none will do,
// the data and that verdict on one page. The two sections share one body; the T section adds
// the web and flange rows and draws its own diagrams.
#include "reports/Informes.h"

#include "diagrams/Grafico.h"
#include "reports/Imprimir.h"
#include "state/Decimales.h"
#include "state/Formato.h"

#include <string>
#include <string_view>

namespace texalon {

namespace {

// What tells the reports of the two sections apart on paper.
struct PapelDeSeccion {
    SeccionFlexion seccion;
    const char* titulo;
    const char* logo;
    const char* documento;
};

constexpr PapelDeSeccion kPapelRectangular{SeccionFlexion::Rectangular, "REFUERZO A FLEXION EN SECCIONES RECTANGULARES",
                                           kLogoFlexion, kDocumentoFlexion};
constexpr PapelDeSeccion kPapelT{SeccionFlexion::T, "REFUERZO A FLEXION EN SECCIONES EN T", kLogoFlexionT,
                                 kDocumentoFlexionT};

const PapelDeSeccion& PapelDe(SeccionFlexion seccion)
{
    return seccion == SeccionFlexion::T ? kPapelT : kPapelRectangular;
}

// The text of the moment of a cell that the calculation refused.
constexpr std::string_view kSinResultado = "---";

// The right block's results start one line under the name of the cell.
constexpr double kYCelda = 5.0;
constexpr double kYPrimerResultado = 6.0;
// The verdict stands this far under the data.
constexpr double kSaltoVeredicto = 2.0;
// The diagrams of page 1 end this far above the bottom margin; page 2 is cut in two this far
// from its top and bottom margins.
constexpr double kPieDiagramas = 5.0;
constexpr double kCortePagina2 = 13.0;

// On purpose: the colon of both moment labels with a subscript is placed after the width of this
// text, also where the subscript is "lím" and the colon then does not fall right behind it.
constexpr char kAnteDosPuntosMomento[] = "MRB";

// The left block: the data of the section, its materials, the safety coefficients, the sheet
// and the moments. Returns the running Y under its last row.
double DatosGenerales(Impresora& impresora, const Pagina& pagina, const General& g, SeccionFlexion seccion,
                      char separador)
{
    const double x = pagina.margenIzquierdo;
    const auto metros = [separador](double valor) { return Formato(valor, "0.000", separador) + " m"; };
    const auto dos = [separador](double valor) { return Formato(valor, "0.00", separador); };

    Cabecera(impresora, x, kYCabecera, "DATOS GENERALES");
    double y = kYPrimeraFila;
    Fila(impresora, x, y, "Ancho:", metros(g.ANCHO));
    Fila(impresora, x, y, "Canto:", metros(g.CANTO));
    if (seccion == SeccionFlexion::T) {
        Fila(impresora, x, y, "Ancho del alma:", metros(g.ANCHOALMA));
        Fila(impresora, x, y, "Canto del ala:", metros(g.CANTOALA));
    }
    Fila(impresora, x, y, "Recubrimiento:", metros(g.RECUB));
    Fila(impresora, x, y, "Armadura inferior:", dos(g.ASI) + " cm²");
    Fila(impresora, x, y, "Armadura superior:", dos(g.ASS) + " cm²");
    FilaConSubindice(impresora, x, y, "f", "ck", "fck", Formato(g.FCK, "0", separador) + " N/mm²");
    FilaConSubindice(impresora, x, y, "f", "yk", "fyk", Formato(g.FYK, "0", separador) + " N/mm²");
    Fila(impresora, x, y, "Coef. seg. hormigón:", dos(g.GC));
    Fila(impresora, x, y, "Coef. seg. acero:", dos(g.GS));
    Fila(impresora, x, y, "Coef. seg. TEXALON®:", dos(g.GR));
    Fila(impresora, x, y, "Ancho del refuerzo:", metros(g.ANCHOR));
    Fila(impresora, x, y, "Momento actual:", dos(g.MCP) + " mkN");
    Fila(impresora, x, y, "Mom. flector solicitante:", dos(g.MD) + " mkN");
    return y;
}

// The right block: the cell on show and its results, from the texts of the result fields.
// Returns the running Y under its last row, where the diagrams of page 1 start.
double Resultados(Impresora& impresora, const Pagina& pagina, const ResultadosCeldaFlexion& celda, char separador)
{
    const double x = pagina.margenIzquierdo + kBloqueDerecho;
    const auto momento = [separador](const std::string& texto) { return Valor(texto, "0.0", separador) + " mkN"; };
    const auto milesimas = [separador](const std::string& texto) { return Valor(texto, "0.00", separador); };

    Cabecera(impresora, x, kYCabecera, "RESULTADOS DE LA SECCION");
    Escribe(impresora, x, kYCelda, std::string(Recortado(celda.tipo)));
    double y = kYPrimerResultado;
    Fila(impresora, x, y, "Momento último s/r:", momento(celda.MUSR));
    // On purpose: the initial strain has a blank before its sign; the strains of the cell have
    // none.
    Fila(impresora, x, y, "Predeformación inicial:", milesimas(celda.EPS0) + " ‰");
    FilaConSubindice(impresora, x, y, "M", "RB", kAnteDosPuntosMomento, momento(celda.MRB));
    FilaConSubindice(impresora, x, y, "M", "lím", kAnteDosPuntosMomento, momento(celda.MLIMCR));
    Fila(impresora, x, y, "Pivote:", std::string(Recortado(celda.PIVOTE)));
    Fila(impresora, x, y, "Prof. fibra neutra:", Valor(celda.FN, "0.000", separador) + " m");
    Fila(impresora, x, y, "Def. hormigón:", milesimas(celda.EPSC) + "‰");
    Fila(impresora, x, y, "Def. armadura inferior:", milesimas(celda.EPSSI) + "‰");
    Fila(impresora, x, y, "Def. armadura superior:", milesimas(celda.EPSSS) + "‰");
    Fila(impresora, x, y, "Def. refuerzo:", milesimas(celda.EPSR) + "‰");
    Fila(impresora, x, y, "Momento último c/r:", momento(celda.MU));
    return y;
}

// The verdict of a section without results.
// On purpose: centred on the width of an A4 sheet whatever the printer's printable width.
void ImprimeVeredicto(Impresora& impresora, double y, Veredicto veredicto)
{
    const std::string texto(TextoVeredicto(veredicto));
    Escribe(impresora, (kAnchoA4 - impresora.TextWidth(texto)) / 2, y + kSaltoVeredicto, texto);
}

// Page 1 under the rows: the strain plane on the right and the section to scale on the left,
// side by side from the running Y `y` of the results down to 5 cm above the bottom margin.
void DiagramasPagina1(Impresora& impresora, const Pagina& pagina, General& g, GeneralDibujo& d,
                      const ResultadosCeldaFlexion& celda, double y, SeccionFlexion seccion, char separador)
{
    const double arriba = pagina.margenSuperior + y;
    const double abajo = pagina.margenInferior + kPieDiagramas;
    DiagramaPivotesFlexion(g, d, celda, separador);
    ImprimeLista(impresora, d, pagina.margenDerecho, pagina.margenIzquierdo + kBloqueDerecho, arriba, abajo, 0);
    DibujaSeccionFlexion(g, d, seccion, separador);
    ImprimeLista(impresora, d, pagina.margenDerecho + kBloqueDerecho, pagina.margenIzquierdo, arriba, abajo, 1);
}

// Page 2: the moment against the sheet area in the upper part and against the layers in the
// lower part, both the full width of the text.
void DiagramasPagina2(Impresora& impresora, const Pagina& pagina, const General& g, GeneralDibujo& d, char separador)
{
    DiagramaMomentoAreaFlexion(g, d, separador);
    ImprimeLista(impresora, d, pagina.margenDerecho, pagina.margenIzquierdo, pagina.margenSuperior,
                 pagina.margenInferior + kCortePagina2, 0);
    DiagramaMomentoCapasFlexion(g, d, separador);
    ImprimeLista(impresora, d, pagina.margenDerecho, pagina.margenIzquierdo, pagina.margenSuperior + kCortePagina2,
                 pagina.margenInferior, 0);
}

}  // namespace

Impresion InformeFlexionDeSeccion(Impresora& impresora, General& g, GeneralDibujo& d, SeccionFlexion seccion,
                                  const ResultadosCeldaFlexion& celda, Veredicto veredicto, char separador)
{
    const PapelDeSeccion& papel = PapelDe(seccion);
    // A cell refused by the calculation holds "---" in all its results: nothing is printed.
    if (celda.MU == kSinResultado) return Impresion::CeldaRechazada;

    const Pagina pagina = PreparaInforme(impresora, papel.documento);
    MarcoPagina(impresora, pagina, papel.titulo, papel.logo);
    const double yDatos = DatosGenerales(impresora, pagina, g, seccion, separador);

    Impresion impresion = Impresion::SoloVeredicto;
    if (veredicto != Veredicto::Oculto) {
        ImprimeVeredicto(impresora, yDatos, veredicto);
    } else {
        impresion = Impresion::ConDiagramas;
        const double yResultados = Resultados(impresora, pagina, celda, separador);
        DiagramasPagina1(impresora, pagina, g, d, celda, yResultados, seccion, separador);
        impresora.NewPage();
        MarcoPagina(impresora, pagina, papel.titulo, papel.logo);
        DiagramasPagina2(impresora, pagina, g, d, separador);
    }
    impresora.EndDoc();
    return impresion;
}

Impresion InformeFlexion(Impresora& impresora, General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda,
                         Veredicto veredicto, char separador)
{
    return InformeFlexionDeSeccion(impresora, g, d, SeccionFlexion::Rectangular, celda, veredicto, separador);
}

Impresion InformeFlexionT(Impresora& impresora, General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda,
                          Veredicto veredicto, char separador)
{
    return InformeFlexionDeSeccion(impresora, g, d, SeccionFlexion::T, celda, veredicto, separador);
}

}  // namespace texalon
