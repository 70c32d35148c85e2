// The strain and pivot diagram of one flexure cell, element by element, read from the texts of
// the result fields.
#include "Elementos.h"
#include "diagrams/Grafico.h"
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "state/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

namespace texalon {
namespace {

using prueba::Elemento;
using prueba::Lee;

constexpr Color kRojoPivote = 255;  // RGB(255, 0, 0)

// ---- What an element must hold.

void EsperaLinea(const GeneralDibujo& d, int i, double x1, double y1, double x2, double y2, Color color, int estilo,
                 int ancho)
{
    prueba::EsperaElemento(d, i, prueba::EsperadoLinea(x1, y1, x2, y2, color, estilo, ancho));
}

void EsperaPunto(const GeneralDibujo& d, int i, double x, double y, Color color)
{
    prueba::EsperaElemento(d, i, prueba::EsperadoPunto(x, y, color));
}

// All the texts of this diagram are centred on their anchor.
void EsperaTexto(const GeneralDibujo& d, int i, double x, double y, Color color, double tamano, bool negrita,
                 const std::string& texto)
{
    prueba::EsperaElemento(d, i, prueba::EsperadoTexto(Clase::Texto, x, y, color, tamano, negrita, texto));
}

// The point where the sheet breaks, at x on the axis: the red point, the dotted red line from the
// section to it, and its letter R half a unit further out.
void EsperaPuntoDeRotura(const GeneralDibujo& d, double x)
{
    EsperaPunto(d, 9, x, 0.0, kRojoPivote);
    EsperaLinea(d, 11, 0.0, 0.0, x, 0.0, kRojoPivote, 3, 1);
    EsperaTexto(d, 16, x - 0.5, 0.0, kRojoPivote, 8, false, "R");
}

// ---- States and cells.

// The default rectangular project, calculated: every cell of L and H and the first two of X
// have a value, all at pivot R, without initial strain.
General CalculadoPorDefecto(SeccionFlexion seccion = SeccionFlexion::Rectangular)
{
    General g;
    ValoresIniciales(g);
    CalculaFlexion(g, seccion, [](General&) {});
    return g;
}

// A heavily reinforced section under a moment when the sheet is applied: the concrete reaches
// 3.5 per mil first (pivot B) for the types L and H, and the initial strain is not 0.
General CalculadoConPredeformacion()
{
    General g;
    ValoresIniciales(g);
    g.ASI = 30.0;
    g.ASS = 4.0;
    g.MCP = 100.0;
    CalculaFlexion(g, SeccionFlexion::Rectangular, [](General&) {});
    return g;
}

// A cell written by hand, with the texts of the results panel.
ResultadosCeldaFlexion Celda(const std::string& tipo, const std::string& pivote, const std::string& fn,
                             const std::string& ec, const std::string& er, const std::string& esi,
                             const std::string& ess, const std::string& e0)
{
    return {.tipo = tipo,
            .MUSR = "222,4",
            .EPS0 = e0,
            .MRB = "300,0",
            .MLIMCR = "400,0",
            .PIVOTE = pivote,
            .FN = fn,
            .EPSC = ec,
            .EPSSI = esi,
            .EPSSS = ess,
            .EPSR = er,
            .MU = "250,0"};
}

// The diagram of the cell on the state g.
GeneralDibujo DiagramaDe(General& g, const ResultadosCeldaFlexion& celda, char separador)
{
    GeneralDibujo d;
    DiagramaPivotes(g, d, celda, separador);
    return d;
}

// The diagram of the cell on the default project.
GeneralDibujo DeLaCelda(const ResultadosCeldaFlexion& celda)
{
    General g = CalculadoPorDefecto();
    return DiagramaDe(g, celda, ',');
}

// The design strain of a sheet type for n layers, per mil, from the catalogue row and GR.
double DisenoPorMil(double espesor, double modulo, double epsu, double gr, int capas)
{
    const double x = capas * modulo * espesor;
    double km = x < 214000.0 ? 1.0 - x / 428000.0 : 107000.0 / x;
    if (km > 0.9) km = 0.9;
    return (epsu / gr) * km * 1000.0;
}

// ---- The whole list of a real cell.

// The default project, cell (L, 1 layer): pivot R, neutral axis above the top steel.
void EsperaCeldaPorDefecto(const GeneralDibujo& d, const std::string& separador)
{
    const double h = 0.6, r = 0.05, ec = 1.99, er = 9.64, esi = 8.67, ess = 1.02;
    ASSERT_EQ(d.NLISTA, 18);
    EsperaLinea(d, 1, 0.0, 0.0, 0.0, h, 0, 1, 1);
    EsperaLinea(d, 2, 0.0, h, ec, h, 0, 1, 1);
    EsperaLinea(d, 3, 0.0, 0.0, -er, 0.0, 0, 1, 1);
    EsperaLinea(d, 4, 0.0, r, -esi, r, 0, 3, 1);
    EsperaLinea(d, 5, 0.0, h - r, ess, h - r, 0, 3, 1);
    EsperaLinea(d, 6, -er, 0.0, ec, h, 0, 1, 1);
    EsperaPunto(d, 7, 3.5, h, kRojoPivote);
    EsperaPunto(d, 8, -10.0, r, kRojoPivote);
    EsperaPunto(d, 9, -er, 0.0, kRojoPivote);
    EsperaLinea(d, 10, 0.0, h, 3.5, h, kRojoPivote, 3, 1);
    EsperaLinea(d, 11, 0.0, 0.0, -er, 0.0, kRojoPivote, 3, 1);
    EsperaLinea(d, 12, 0.0, r, -10.0, r, kRojoPivote, 3, 1);
    EsperaTexto(d, 13, ec * 1.5, h * 1.07, 0, 8, false, "1" + separador + "99‰");
    EsperaTexto(d, 14, -er * 1.1, h * -0.07, 0, 8, false, "9" + separador + "64‰");
    EsperaTexto(d, 15, 4.0, h, kRojoPivote, 8, false, "B");
    EsperaTexto(d, 16, -er - 0.5, 0.0, kRojoPivote, 8, false, "R");
    EsperaTexto(d, 17, -10.5, r, kRojoPivote, 8, false, "A");
    EsperaTexto(d, 18, -3.375, h * 1.2, 0, 12, true, "DIAGRAMA DE PIVOTES");
}

TEST(DiagramaPivotes, CeldaRealConComaEscribeLosDieciochoElementos)
{
    General g = CalculadoPorDefecto();
    const ResultadosCeldaFlexion celda = ResultadosFlexion(g, 1, 1, ',');
    ASSERT_EQ(celda.tipo, "Refuerzo tipo TEXALON L - Núm. capas: 1");
    ASSERT_EQ(std::tie(celda.PIVOTE, celda.FN, celda.EPSC, celda.EPSR, celda.EPSSI, celda.EPSSS, celda.EPS0),
              std::tuple("R", "0,103", "1,99", "9,64", "8,67", "1,02", "0,00"));

    const GeneralDibujo d = DiagramaDe(g, celda, ',');
    EsperaCeldaPorDefecto(d, ",");
}

TEST(DiagramaPivotes, CeldaRealConPuntoEscribeLosDieciochoElementos)
{
    General g = CalculadoPorDefecto();
    const ResultadosCeldaFlexion celda = ResultadosFlexion(g, 1, 1, '.');
    ASSERT_EQ(std::tie(celda.EPSC, celda.EPSR, celda.FN), std::tuple("1.99", "9.64", "0.103"));

    const GeneralDibujo d = DiagramaDe(g, celda, '.');
    EsperaCeldaPorDefecto(d, ".");
}

TEST(DiagramaPivotes, SoloEscribeLaLista)
{
    General g = CalculadoPorDefecto();
    GeneralDibujo d = prueba::DibujoEnUso();
    DiagramaPivotes(g, d, ResultadosFlexion(g, 1, 1, ','), ',');
    EXPECT_EQ(d.NLISTA, 18);
    prueba::EsperaSoloLaLista(d);
}

TEST(DiagramaPivotesT, MismaListaQueLaRectangular)
{
    General g = CalculadoPorDefecto(SeccionFlexion::T);
    const ResultadosCeldaFlexion celda = ResultadosFlexion(g, 1, 1, ',');
    ASSERT_EQ(std::tie(celda.EPSC, celda.EPSR, celda.EPSSI, celda.EPSSS, celda.FN, celda.PIVOTE),
              std::tuple("1,99", "9,64", "8,67", "1,02", "0,103", "R"));

    GeneralDibujo d = prueba::DibujoEnUso();
    DiagramaPivotesT(g, d, celda, ',');
    EsperaCeldaPorDefecto(d, ",");
    prueba::EsperaSoloLaLista(d);
    EXPECT_TRUE(d.F_PIVOTES);
}

TEST(DiagramaPivotes, EncenderSoloLaBanderaDePivotesYEmpezarListaNueva)
{
    General g = CalculadoPorDefecto();
    GeneralDibujo d;
    NuevaLista(d);
    for (int i = 0; i < 25; ++i)
        AnadePunto(d, 1.0, 1.0, 7);
    d.F_PIVOTES = false;
    d.F_MOMENTOS = d.F_SECCION = d.F_CAPAS = true;
    DiagramaPivotes(g, d, ResultadosFlexion(g, 1, 1, ','), ',');
    // Pivots, moments, section and layers.
    EXPECT_EQ(prueba::Banderas(d), std::tuple(true, false, false, false));
    EXPECT_EQ(d.NLISTA, 18);
    EXPECT_EQ(d.LISTA(19, campo::kClase), 0.0);
    EXPECT_EQ(d.LISTA(25, campo::kX1), 0.0);
}

// ---- The pivot R point.

TEST(DiagramaPivotes, PivoteRPoneElPuntoEnElExtremoIzquierdoDeLaLineaInclinada)
{
    // Type X, 1 layer of a section with initial strain: at pivot R the point is -er, the
    // initial strain does not move it.
    General g = CalculadoConPredeformacion();
    const ResultadosCeldaFlexion celda = ResultadosFlexion(g, 3, 1, ',');
    ASSERT_EQ(std::tie(celda.PIVOTE, celda.EPSR, celda.EPS0), std::tuple("R", "3,66", "0,39"));

    const GeneralDibujo d = DiagramaDe(g, celda, ',');
    const Elemento inclinada = Lee(d, 6);
    const Elemento punto = Lee(d, 9);
    EXPECT_EQ(punto.x1, inclinada.x1);
    EXPECT_EQ(punto.y1, inclinada.y1);
    EXPECT_DOUBLE_EQ(punto.x1, -3.66);
    EsperaLinea(d, 11, 0.0, 0.0, -3.66, 0.0, kRojoPivote, 3, 1);
    EsperaTexto(d, 16, -3.66 - 0.5, 0.0, kRojoPivote, 8, false, "R");
}

TEST(DiagramaPivotes, PivoteRSeLeeRecortado)
{
    const GeneralDibujo d = DeLaCelda(
        Celda("Refuerzo tipo TEXALON H - Núm. capas: 4", "  R ", "0,200", "2,00", "6,00", "5,00", "1,00", "0,50"));
    EsperaPunto(d, 9, -6.0, 0.0, kRojoPivote);
}

TEST(DiagramaPivotes, PivoteBPoneElPuntoEnLaDeformacionDeDisenoMenosLaInicial)
{
    General g = CalculadoConPredeformacion();
    const ResultadosCeldaFlexion celda = ResultadosFlexion(g, 2, 3, ',');
    ASSERT_EQ(std::tie(celda.tipo, celda.PIVOTE, celda.EPSR, celda.EPSC, celda.EPS0),
              std::tuple("Refuerzo tipo TEXALON H - Núm. capas: 3", "B", "4,50", "3,50", "0,39"));

    const GeneralDibujo d = DiagramaDe(g, celda, ',');
    // TEXALON H: 0.167 mm, 230000 N/mm², 0.015; GR 1.4.
    const double xr = -DisenoPorMil(0.167, 230000.0, 0.015, 1.4, 3) - 0.39;
    EXPECT_NEAR(xr, -8.220, 0.001);  // 7.830 per mil of design strain, less 0.39
    EsperaPuntoDeRotura(d, xr);
    // The sheet's own strain line stops short of the pivot.
    EsperaLinea(d, 3, 0.0, 0.0, -4.5, 0.0, 0, 1, 1);
    EsperaLinea(d, 6, -4.5, 0.0, 3.5, 0.6, 0, 1, 1);
    EXPECT_LT(Lee(d, 9).x1, Lee(d, 6).x1);
}

TEST(DiagramaPivotes, PivoteAConCincoCapasLeeElDigitoPorCaracteresNoPorBytes)
{
    // The "ú" of the caption is two bytes: the layer digit is the 39th character, not byte.
    const GeneralDibujo d = DeLaCelda(
        Celda("Refuerzo tipo TEXALON X - Núm. capas: 5", "A", "0,080", "1,20", "2,00", "10,00", "0,30", "0,25"));
    // TEXALON X: 0.163 mm, 440000 N/mm², 0.0055; GR 1.4.
    const double xr = -DisenoPorMil(0.163, 440000.0, 0.0055, 1.4, 5) - 0.25;
    EXPECT_NEAR(xr, -1.422, 0.001);
    EsperaPuntoDeRotura(d, xr);
    EsperaLinea(d, 4, 0.0, 0.05, -10.0, 0.05, 0, 3, 1);
}

TEST(DiagramaPivotes, PivoteBDeTipoLConDosCapas)
{
    const GeneralDibujo d = DeLaCelda(
        Celda("Refuerzo tipo TEXALON L - Núm. capas: 2", "B", "0,300", "3,50", "4,00", "3,00", "2,50", "0,00"));
    const double xr = -DisenoPorMil(0.111, 230000.0, 0.015, 1.4, 2) - 0.0;
    EXPECT_NEAR(xr, -9.436, 0.001);
    EsperaPunto(d, 9, xr, 0.0, kRojoPivote);
}

// ---- The top steel.

TEST(DiagramaPivotes, FibraNeutraIgualAlRecubrimientoDibujaElAceroSuperiorComprimido)
{
    General g = CalculadoPorDefecto();
    ASSERT_EQ(g.RECUB, 0.05);
    GeneralDibujo d;
    DiagramaPivotes(
        g, d, Celda("Refuerzo tipo TEXALON L - Núm. capas: 1", "R", "0,050", "1,00", "9,64", "8,00", "0,75", "0,00"),
        ',');
    EsperaLinea(d, 5, 0.0, 0.6 - 0.05, 0.75, 0.6 - 0.05, 0, 3, 1);
}

TEST(DiagramaPivotes, FibraNeutraPorDebajoDelRecubrimientoDibujaElAceroSuperiorTraccionado)
{
    const GeneralDibujo d = DeLaCelda(
        Celda("Refuerzo tipo TEXALON L - Núm. capas: 1", "R", "0,049", "0,10", "9,64", "8,00", "0,75", "0,00"));
    EsperaLinea(d, 5, 0.0, 0.6 - 0.05, -0.75, 0.6 - 0.05, 0, 3, 1);
}

TEST(DiagramaPivotes, AceroSuperiorSinDeformacionNoTieneLongitud)
{
    const GeneralDibujo d = DeLaCelda(
        Celda("Refuerzo tipo TEXALON L - Núm. capas: 1", "R", "0,550", "3,00", "9,64", "8,00", "0,00", "0,00"));
    const Elemento e = Lee(d, 5);
    EXPECT_EQ(e.clase, 1);
    EXPECT_EQ(e.x1, 0.0);
    EXPECT_EQ(e.x2, 0.0);
    EXPECT_EQ(e.y1, e.y2);
}

// ---- Where the strain labels stand.

TEST(DiagramaPivotes, EtiquetasDeDeformacionBajoYSobreLaSeccion)
{
    General g = CalculadoPorDefecto();
    g.CANTO = 0.8;
    GeneralDibujo d;
    DiagramaPivotes(
        g, d, Celda("Refuerzo tipo TEXALON H - Núm. capas: 2", "R", "0,150", "-0,50", "7,25", "6,10", "0,40", "0,00"),
        ',');
    // The concrete label at 1.07 times the depth, the sheet's at -0.07 times; the negative
    // strain keeps its sign in the text.
    EsperaTexto(d, 13, -0.5 * 1.5, 0.8 * 1.07, 0, 8, false, "-0,50‰");
    EsperaTexto(d, 14, -7.25 * 1.1, 0.8 * -0.07, 0, 8, false, "7,25‰");
    EXPECT_DOUBLE_EQ(Lee(d, 13).y1, 0.856);
    EXPECT_DOUBLE_EQ(Lee(d, 14).y1, -0.056);
}

// ---- The fit.

// The extent of the list as the fit takes it: fields 2 and 4 in x, 3 and 5 in y.
struct Extension {
    double xmin, xmax, ymin, ymax;
};

Extension ExtensionDe(const GeneralDibujo& d)
{
    Extension x{Lee(d, 1).x1, Lee(d, 1).x1, Lee(d, 1).y1, Lee(d, 1).y1};
    for (int i = 1; i <= d.NLISTA; ++i) {
        const Elemento e = Lee(d, i);
        x.xmin = std::min({x.xmin, e.x1, e.x2});
        x.xmax = std::max({x.xmax, e.x1, e.x2});
        x.ymin = std::min({x.ymin, e.y1, e.y2});
        x.ymax = std::max({x.ymax, e.y1, e.y2});
    }
    return x;
}

TEST(DiagramaPivotes, ExtensionHorizontalAlMenosDeMenosDiezYMedioACuatro)
{
    const GeneralDibujo d = DeLaCelda(
        Celda("Refuerzo tipo TEXALON L - Núm. capas: 1", "R", "0,200", "0,50", "1,00", "0,80", "0,20", "0,00"));
    const Extension x = ExtensionDe(d);
    EXPECT_EQ(x.xmin, -10.5);
    EXPECT_EQ(x.xmax, 4.0);
}

TEST(DiagramaPivotes, EscalaVerticalDependeSoloDelCanto)
{
    // Little strain and much, each drawn on the default project.
    GeneralDibujo poca = DeLaCelda(
        Celda("Refuerzo tipo TEXALON L - Núm. capas: 1", "R", "0,200", "0,50", "1,00", "0,80", "0,20", "0,00"));
    GeneralDibujo mucha = DeLaCelda(
        Celda("Refuerzo tipo TEXALON H - Núm. capas: 3", "B", "0,300", "3,50", "9,00", "8,00", "2,00", "1,50"));
    const double h = 0.6;
    for (GeneralDibujo* d : {&poca, &mucha}) {
        const Extension x = ExtensionDe(*d);
        EXPECT_DOUBLE_EQ(x.ymin, h * -0.07);
        EXPECT_DOUBLE_EQ(x.ymax, h * 1.2);
        Ajusta(*d, 440.0, 176.0, 0);
        EXPECT_DOUBLE_EQ(d->ESCALAY, 176.0 * 0.8 / (h * 1.2 - h * -0.07));
    }
}

// ---- The sheet type in hand.

TEST(DiagramaPivotes, DejaEnElEstadoElTipoDeLaCelda)
{
    General g = CalculadoPorDefecto();
    g.ESPESOR = 9.0;
    g.E = 9.0;
    g.EPSU = 9.0;
    g.KM.Redimensiona(2);
    g.EPSD.Redimensiona(2);
    GeneralDibujo d;
    DiagramaPivotes(
        g, d, Celda("Refuerzo tipo TEXALON X - Núm. capas: 2", "R", "0,100", "0,60", "2,61", "2,35", "0,26", "0,00"),
        ',');
    // The catalogue row of the type: thickness, modulus and ultimate strain.
    EXPECT_EQ(std::tie(g.ESPESOR, g.E, g.EPSU), std::tuple(0.163, 440000.0, 0.0055));
    ASSERT_EQ(g.KM.Filas(), 5);
    ASSERT_EQ(g.EPSD.Filas(), 5);
    const double kmEsperado[] = {0.832430, 0.664860, 0.497304, 0.372978, 0.298383};
    const double epsdEsperado[] = {0.003270, 0.002612, 0.001954, 0.001465, 0.001172};
    for (int n = 1; n <= 5; ++n) {
        SCOPED_TRACE("capas " + std::to_string(n));
        EXPECT_NEAR(g.KM(n), kmEsperado[n - 1], 0.0000005);
        EXPECT_NEAR(g.EPSD(n), epsdEsperado[n - 1], 0.0000005);
    }
}

TEST(DiagramaPivotes, ElTipoHDejaSuFilaYSuDeformacionDeDiseno)
{
    General g = CalculadoPorDefecto();
    GeneralDibujo d;
    DiagramaPivotes(
        g, d, Celda("Refuerzo tipo TEXALON H - Núm. capas: 1", "R", "0,100", "1,60", "9,64", "8,60", "0,70", "0,00"),
        ',');
    // The catalogue row of the type: thickness, modulus and ultimate strain.
    EXPECT_EQ(std::tie(g.ESPESOR, g.E, g.EPSU), std::tuple(0.167, 230000.0, 0.015));
    EXPECT_EQ(g.KM(1), 0.9);
    EXPECT_NEAR(g.KM(5), 0.551285, 0.0000005);
    EXPECT_NEAR(g.EPSD(3), 0.007830, 0.0000005);
}

// ---- Cells the diagram cannot draw.

// The number of the run-time error that drawing the cell on the default project raises; 0 where
// the cell is drawn.
int ErrorAlDibujar(void (*diagrama)(General&, GeneralDibujo&, const ResultadosCeldaFlexion&, char),
                   const ResultadosCeldaFlexion& celda)
{
    General g = CalculadoPorDefecto();
    GeneralDibujo d;
    try {
        diagrama(g, d, celda, ',');
    } catch (const ErrorEjecucion& error) {
        return error.Numero();
    }
    return 0;
}

TEST(DiagramaPivotes, CeldaSinValorEsElErrorDeTipos)
{
    const ResultadosCeldaFlexion celda = ResultadosFlexion(CalculadoPorDefecto(), 3, 3, ',');
    ASSERT_EQ(celda.EPSC, "---");
    const int error = ErrorAlDibujar(DiagramaPivotes, celda);
    EXPECT_EQ(error, ErrorEjecucion::kTiposNoCoinciden) << "una celda \"---\" no se puede dibujar";
    EXPECT_EQ(error, 13);
}

TEST(DiagramaPivotes, UnSoloCampoSinNumeroEsElErrorDeTipos)
{
    ResultadosCeldaFlexion celda =
        Celda("Refuerzo tipo TEXALON L - Núm. capas: 1", "R", "0,100", "1,60", "9,64", "8,60", "0,70", "0,00");
    celda.FN = "---";
    EXPECT_EQ(ErrorAlDibujar(DiagramaPivotesT, celda), 13) << "\"---\" no es un número";
}

TEST(DiagramaPivotes, TituloSinTipoEsElErrorDeSubindice)
{
    const int error = ErrorAlDibujar(DiagramaPivotes, Celda("Refuerzo tipo TEXALON Z - Núm. capas: 1", "R", "0,100",
                                                            "1,60", "9,64", "8,60", "0,70", "0,00"));
    EXPECT_EQ(error, ErrorEjecucion::kSubindiceFueraDeIntervalo) << "un título sin tipo no se puede dibujar";
    EXPECT_EQ(error, 9);
}

TEST(DiagramaPivotes, ElCodigoSeTomaPorSuPosicionYNoBuscandolo)
{
    // The code "L" is in the caption, but not at the 23rd character.
    EXPECT_EQ(ErrorAlDibujar(DiagramaPivotes, Celda("Refuerzo TEXALON L - Núm. capas: 1", "R", "0,100", "1,60", "9,64",
                                                    "8,60", "0,70", "0,00")),
              9)
        << "el código no está en su sitio";
}

}  // namespace
}  // namespace texalon
