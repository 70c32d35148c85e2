// The flexure reports, rectangular and T, on the recording printer: every text of page 1 where
// it stands, the order of set-up, frame, rows and diagrams, the area of each diagram on its
// page, the one-page report of a section without results, and the refused cell.
#include "Operaciones.h"
#include "diagrams/Grafico.h"
#include "diagrams/Lista.h"
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "platform/dobles/ImpresoraDoble.h"
#include "reports/Imprimir.h"
#include "reports/Informes.h"
#include "state/ErrorEjecucion.h"
#include "state/Formato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace texalon::prueba {
namespace {

using plataforma::ImpresoraDoble;
using plataforma::Operacion;

constexpr char kTituloRectangular[] = "REFUERZO A FLEXION EN SECCIONES RECTANGULARES";
constexpr char kTituloT[] = "REFUERZO A FLEXION EN SECCIONES EN T";

// How many operations of a name the printer recorded.
std::size_t Cuenta(const std::vector<Operacion>& ops, const std::string& nombre)
{
    return Posiciones(ops, nombre).size();
}

// ---- What the report must write.

// The texts of the frame of a page: title, footer and page number at the right margin.
std::vector<Texto> Marco(const std::string& titulo, int pagina)
{
    const std::string numero = "Página " + std::to_string(pagina);
    const double yPie = kAltoPagina - kLinea - 2.0;
    return {{kIzquierda, 2.0, titulo},
            {kIzquierda, yPie, "SISTEMA DE REFUERZO TEXALON®"},
            {kAnchoPagina - 2.0 - Ancho(numero), yPie, numero}};
}

// The left block of the default projects: MD and the flange depth as the test sets them.
std::vector<Fila> DatosGenerales(char sep, bool enT, const std::string& md, const std::string& cantoAla = "0.200")
{
    std::vector<Fila> filas{{"Ancho:", Con("0.400 m", sep)}, {"Canto:", Con("0.600 m", sep)}};
    if (enT) {
        filas.push_back({"Ancho del alma:", Con("0.200 m", sep)});
        filas.push_back({"Canto del ala:", Con(cantoAla + " m", sep)});
    }
    const std::vector<Fila> resto{
        {"Recubrimiento:", Con("0.050 m", sep)},
        {"Armadura inferior:", Con("10.00 cm²", sep)},
        {"Armadura superior:", Con("0.00 cm²", sep)},
        {"f", "25 N/mm²", "ck", "fck"},
        {"f", "500 N/mm²", "yk", "fyk"},
        {"Coef. seg. hormigón:", Con("1.50", sep)},
        {"Coef. seg. acero:", Con("1.15", sep)},
        {"Coef. seg. TEXALON®:", Con("1.40", sep)},
        {"Ancho del refuerzo:", Con("0.125 m", sep)},
        {"Momento actual:", Con("0.00 mkN", sep)},
        {"Mom. flector solicitante:", Con(md + " mkN", sep)},
    };
    filas.insert(filas.end(), resto.begin(), resto.end());
    return filas;
}

// The right block of cell (L, 1) of the default projects with MD 250: only the limit moment
// differs between the rectangle and the T of flange 0.20.
// The figures of the cell that differ between the cases: those of the cell (L, 1) of the default
// beam under 250 mkN unless a case says otherwise.
struct CifrasDeLaCelda {
    std::string musr = "222.5";
    std::string eps0 = "0.00";
    std::string mlim;
    std::string ess = "1.02";
    std::string er = "9.64";
};

std::vector<Fila> ResultadosCon(char sep, const CifrasDeLaCelda& cifras)
{
    return {
        {"Momento último s/r:", Con(cifras.musr + " mkN", sep)},
        {"Predeformación inicial:", Con(cifras.eps0 + " ‰", sep)},
        {"M", Con("366.6 mkN", sep), "RB", "MRB"},
        {"M", Con(cifras.mlim + " mkN", sep), "lím", "MRB"},
        {"Pivote:", "R"},
        {"Prof. fibra neutra:", Con("0.103 m", sep)},
        {"Def. hormigón:", Con("1.99‰", sep)},
        {"Def. armadura inferior:", Con("8.67‰", sep)},
        {"Def. armadura superior:", Con(cifras.ess + "‰", sep)},
        {"Def. refuerzo:", Con(cifras.er + "‰", sep)},
        {"Momento último c/r:", Con("238.5 mkN", sep)},
    };
}

std::vector<Fila> Resultados(char sep, const std::string& mlim) { return ResultadosCon(sep, {.mlim = mlim}); }

// Page 1 up to its diagrams: frame, left block, right block.
std::vector<Texto> Pagina1(const std::string& titulo, const std::vector<Fila>& datos,
                           const std::vector<Fila>& resultados)
{
    std::vector<Texto> textos = Marco(titulo, 1);
    textos.push_back({kIzquierda, 4.0, "DATOS GENERALES"});
    AnadeFilas(textos, kIzquierda, 5.0, datos);
    textos.push_back({kDerecha, 4.0, "RESULTADOS DE LA SECCION"});
    textos.push_back({kDerecha, 5.0, kCelda});
    AnadeFilas(textos, kDerecha, 6.0, resultados);
    return textos;
}

// ---- Projects and runs.

struct Proyecto {
    General g;
    Veredicto veredicto = Veredicto::Oculto;
};

// The default project of a section kind, with MD and the flange depth set, calculated.
Proyecto Calculado(SeccionFlexion seccion, double md, double cantoAla = defecto::CANTOALA)
{
    Proyecto p;
    ValoresIniciales(p.g);
    p.g.MD = md;
    p.g.CANTOALA = cantoAla;
    p.veredicto = CalculaFlexion(p.g, seccion, [](General&) {}).veredicto;
    return p;
}

struct Informe {
    ImpresoraDoble impresora;
    GeneralDibujo d;
    Impresion resultado = Impresion::ConDiagramas;
};

// The report of a cell of the project, as Print runs it.
void Imprime(Informe& informe, Proyecto& p, bool enT, const ResultadosCeldaFlexion& celda, char sep)
{
    informe.resultado =
        (enT ? InformeFlexionT : InformeFlexion)(informe.impresora, p.g, informe.d, celda, p.veredicto, sep);
}

void Imprime(Informe& informe, Proyecto& p, bool enT, char sep)
{
    Imprime(informe, p, enT, ResultadosFlexion(p.g, 1, 1, sep), sep);
}

// ---- The diagrams on paper.

// The four diagrams of a calculated report, each in its area: the strain plane right and the
// section left under the right block's last row (running Y 11.5), then on page 2 the moments
// against area above and against layers below. `copia` is the project as it was printed.
void EsperaCuatroDiagramas(const std::vector<Operacion>& ops, const General& copia, const ResultadosCeldaFlexion& celda,
                           bool enT, char sep)
{
    const auto escalas = Posiciones(ops, "ScaleMode");
    const auto paginas = Posiciones(ops, "NewPage");
    ASSERT_EQ(escalas.size(), 5u);
    ASSERT_EQ(paginas.size(), 1u);
    const std::size_t fin = ops.size() - 1;
    ASSERT_EQ(ops[fin].nombre, "EndDoc");

    General g = copia;
    GeneralDibujo lista;
    const double arriba = 2.0 + 11.5;
    (enT ? DiagramaPivotesT : DiagramaPivotes)(g, lista, celda, sep);
    {
        SCOPED_TRACE("deformaciones");
        EsperaDiagrama(ops, escalas[1], escalas[2], lista, 2.0, 2.0 + 8.5, arriba, 2.0 + 5.0, 0);
    }
    (enT ? DibujaSeccionT : DibujaSeccion)(g, lista, sep);
    {
        SCOPED_TRACE("seccion");
        EsperaDiagrama(ops, escalas[2], paginas[0], lista, 2.0 + 8.5, 2.0, arriba, 2.0 + 5.0, 1);
    }
    (enT ? DiagramaMomentoAreaT : DiagramaMomentoArea)(g, lista, sep);
    {
        SCOPED_TRACE("momento-area");
        EsperaDiagrama(ops, escalas[3], escalas[4], lista, 2.0, 2.0, 2.0, 2.0 + 13.0, 0);
    }
    (enT ? DiagramaMomentoCapasT : DiagramaMomentoCapas)(g, lista, sep);
    {
        SCOPED_TRACE("momento-capas");
        EsperaDiagrama(ops, escalas[4], fin, lista, 2.0, 2.0, 2.0 + 13.0, 2.0, 0);
    }
}

// ---- The calculated report, row by row.

TEST(InformeFlexion, RectangularConMd250ImprimeCadaFilaEnSuSitio)
{
    Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
    ASSERT_EQ(p.veredicto, Veredicto::Oculto);
    Informe informe;
    Imprime(informe, p, false, '.');
    EXPECT_EQ(informe.resultado, Impresion::ConDiagramas);
    EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones),
                 Pagina1(kTituloRectangular, DatosGenerales('.', false, "250.00"), Resultados('.', "692.4")));
}

TEST(InformeFlexion, RectangularConComaDecimal)
{
    Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
    Informe informe;
    Imprime(informe, p, false, ',');
    EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones),
                 Pagina1(kTituloRectangular, DatosGenerales(',', false, "250.00"), Resultados(',', "692.4")));
}

TEST(InformeFlexionT, PorDefectoConMd250ImprimeCadaFilaEnSuSitio)
{
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        Proyecto p = Calculado(SeccionFlexion::T, 250.0);
        ASSERT_EQ(p.veredicto, Veredicto::Oculto);
        Informe informe;
        Imprime(informe, p, true, sep);
        EXPECT_EQ(informe.resultado, Impresion::ConDiagramas);
        EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones),
                     Pagina1(kTituloT, DatosGenerales(sep, true, "250.00"), Resultados(sep, "618.6")));
    }
}

TEST(InformeFlexion, LosDosPuntosDeLosMomentosVanTrasElAnchoDeMRB)
{
    Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
    Informe informe;
    Imprime(informe, p, false, '.');
    const auto textos = TextosAntesDeLosDiagramas(informe.impresora.operaciones);
    std::vector<Texto> dosPuntos;
    std::copy_if(textos.begin(), textos.end(), std::back_inserter(dosPuntos),
                 [](const Texto& t) { return t.texto == ":" && t.x > kDerecha - kTolerancia; });
    ASSERT_EQ(dosPuntos.size(), 2u);
    // "MRB" is three characters, 0.6 cm at size 10: behind "M" + "RB", and short of "M" + "lím".
    EXPECT_NEAR(dosPuntos[0].x, kDerecha + 0.6, kTolerancia);
    EXPECT_NEAR(dosPuntos[0].y, 7.0, kTolerancia);
    EXPECT_NEAR(dosPuntos[1].x, kDerecha + 0.6, kTolerancia);
    EXPECT_NEAR(dosPuntos[1].y, 7.5, kTolerancia);
    EXPECT_LT(dosPuntos[1].x, kDerecha + Ancho("M") + Ancho("lím"));
}

TEST(InformeFlexion, LosTextosDeLosCamposSeLeenYSeFormateanDeNuevo)
{
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
        const ResultadosCeldaFlexion celda{.tipo = std::string(kCelda) + "   ",
                                           .MUSR = Con("222.449", sep),
                                           .EPS0 = Con("0.5", sep),
                                           .MRB = Con("366.55", sep),
                                           .MLIMCR = "692",
                                           .PIVOTE = " R ",
                                           .FN = Con("0.1034", sep),
                                           .EPSC = Con("1.985", sep),
                                           .EPSSI = Con("8.666", sep),
                                           .EPSSS = "1",
                                           .EPSR = Con("9.6", sep),
                                           .MU = Con(" 238.46 ", sep)};
        Informe informe;
        Imprime(informe, p, false, celda, sep);
        // The rows of the texts read and formatted anew: the rest as the real cell's.
        const std::vector<Fila> resultados =
            ResultadosCon(sep, {.musr = "222.4", .eps0 = "0.50", .mlim = "692.0", .ess = "1.00", .er = "9.60"});
        EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones),
                     Pagina1(kTituloRectangular, DatosGenerales(sep, false, "250.00"), resultados));
    }
}

// ---- The order of a printed report.

TEST(InformeFlexion, ImprimirPreparaEnmarcaEscribeYDibujaEnDosPaginas)
{
    Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
    Informe informe;
    Imprime(informe, p, false, '.');
    const auto& ops = informe.impresora.operaciones;

    const std::size_t primerTexto = EsperaPreparacion(ops, kDocumentoFlexion);

    // Frame, rows, the two diagrams of page 1; a new page with its frame and the two diagrams
    // of page 2; the end of the document.
    const auto escalas = Posiciones(ops, "ScaleMode");
    const auto paginas = Posiciones(ops, "NewPage");
    const auto logos = Posiciones(ops, "PaintPicture");
    ASSERT_EQ(escalas.size(), 5u);
    ASSERT_EQ(paginas.size(), 1u);
    ASSERT_EQ(logos.size(), 2u);
    EXPECT_LT(escalas[0], primerTexto);
    EXPECT_LT(logos[0], PosicionDelTexto(ops, "DATOS GENERALES"));
    EXPECT_LT(PosicionDelTexto(ops, "DATOS GENERALES"), PosicionDelTexto(ops, "RESULTADOS DE LA SECCION"));
    EXPECT_LT(PosicionDelTexto(ops, "RESULTADOS DE LA SECCION"), escalas[1]);
    EXPECT_LT(escalas[2], paginas[0]);
    EXPECT_LT(paginas[0], logos[1]);
    EXPECT_LT(logos[1], escalas[3]);
    EXPECT_EQ(Cuenta(ops, "EndDoc"), 1u);
    EXPECT_EQ(ops.back().nombre, "EndDoc");
    EXPECT_EQ(informe.impresora.documentosTerminados, 1);

    // The frame of page 1: the logo at the right margin on the rule, and the two rules.
    for (std::size_t i : logos)
        EXPECT_EQ(ops[i], (Operacion{"PaintPicture", {15.0, 1.5, 2.0, 1.0}, kLogoFlexion}));
    EsperaReglasDelMarco(ops, escalas[1]);

    // Page 2 starts with its frame, numbered 2, and holds no rows.
    EsperaTextos(Textos(ops, paginas[0], escalas[3]), Marco(kTituloRectangular, 2));
    EXPECT_LT(PosicionDelTexto(ops, "Página 1"), paginas[0]);
}

TEST(InformeFlexion, CadaDiagramaQuedaEnElAreaDeSusMargenes)
{
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
        const General copia = p.g;
        const ResultadosCeldaFlexion celda = ResultadosFlexion(p.g, 1, 1, sep);
        Informe informe;
        Imprime(informe, p, false, celda, sep);
        EsperaCuatroDiagramas(informe.impresora.operaciones, copia, celda, false, sep);
        // The last diagram printed is the one left in the list, and on the screen.
        EXPECT_TRUE(informe.d.F_CAPAS);
        EXPECT_DOUBLE_EQ(informe.d.ANCHOPIC, 15.0);
        EXPECT_DOUBLE_EQ(informe.d.ALTOPIC, 27.7 - 15.0 - 2.0);
    }
}

TEST(InformeFlexionT, CadaDiagramaQuedaEnElAreaDeSusMargenes)
{
    Proyecto p = Calculado(SeccionFlexion::T, 250.0);
    const General copia = p.g;
    const ResultadosCeldaFlexion celda = ResultadosFlexion(p.g, 1, 1, '.');
    Informe informe;
    Imprime(informe, p, true, celda, '.');
    const auto& ops = informe.impresora.operaciones;
    EsperaCuatroDiagramas(ops, copia, celda, true, '.');
    EXPECT_EQ(
        Operacion({"NombreDocumento", {}, kDocumentoFlexionT}),
        *std::find_if(ops.begin(), ops.end(), [](const Operacion& op) { return op.nombre == "NombreDocumento"; }));
    for (std::size_t i : Posiciones(ops, "PaintPicture"))
        EXPECT_EQ(ops[i], (Operacion{"PaintPicture", {15.0, 1.5, 2.0, 1.0}, kLogoFlexionT}));
    EsperaTextos(Textos(ops, Posiciones(ops, "NewPage").at(0), Posiciones(ops, "ScaleMode").at(3)), Marco(kTituloT, 2));
}

TEST(InformeFlexionT, LasDosFilasDeMasSoloBajanElBloqueIzquierdo)
{
    Proyecto rectangular = Calculado(SeccionFlexion::Rectangular, 250.0);
    Proyecto t = Calculado(SeccionFlexion::T, 250.0);
    Informe deRectangular;
    Informe deT;
    Imprime(deRectangular, rectangular, false, '.');
    Imprime(deT, t, true, '.');
    const auto& opsR = deRectangular.impresora.operaciones;
    const auto& opsT = deT.impresora.operaciones;

    // The rows under "Canto:" stand two lines lower: "Mom. flector solicitante:" at 11.0 and 12.0.
    const auto textosR = TextosAntesDeLosDiagramas(opsR);
    const auto textosT = TextosAntesDeLosDiagramas(opsT);
    const auto fila = [](const std::vector<Texto>& textos, const std::string& etiqueta) {
        return *std::find_if(textos.begin(), textos.end(), [&](const Texto& x) { return x.texto == etiqueta; });
    };
    EXPECT_NEAR(fila(textosR, "Canto:").y, fila(textosT, "Canto:").y, kTolerancia);
    EXPECT_NEAR(fila(textosR, "Recubrimiento:").y + 2 * kLinea, fila(textosT, "Recubrimiento:").y, kTolerancia);
    EXPECT_NEAR(fila(textosR, "Mom. flector solicitante:").y, 11.0, kTolerancia);
    EXPECT_NEAR(fila(textosT, "Mom. flector solicitante:").y, 12.0, kTolerancia);

    // The right block keeps its place, text for text.
    std::vector<Texto> derechaR;
    std::vector<Texto> derechaT;
    const auto aLaDerecha = [](const Texto& x) { return x.x > kDerecha - kTolerancia && x.y < 20.0; };
    std::copy_if(textosR.begin(), textosR.end(), std::back_inserter(derechaR), aLaDerecha);
    std::copy_if(textosT.begin(), textosT.end(), std::back_inserter(derechaT), aLaDerecha);
    ASSERT_EQ(derechaR.size(), 2u + 11u + 4u + 11u);
    // The limit moment of the T section is its own; everything else reads and stands the same.
    for (auto& x : derechaR)
        if (x.texto == "692.4 mkN") x.texto = "618.6 mkN";
    EsperaTextos(derechaT, derechaR);

    // So the strain plane, which takes its top from the right block, is drawn where it was.
    const auto escalasR = Posiciones(opsR, "ScaleMode");
    const auto escalasT = Posiciones(opsT, "ScaleMode");
    ASSERT_EQ(escalasR.size(), 5u);
    ASSERT_EQ(escalasT.size(), 5u);
    const std::vector<Operacion> pivotesR(opsR.begin() + static_cast<std::ptrdiff_t>(escalasR[1]),
                                          opsR.begin() + static_cast<std::ptrdiff_t>(escalasR[2]));
    const std::vector<Operacion> pivotesT(opsT.begin() + static_cast<std::ptrdiff_t>(escalasT[1]),
                                          opsT.begin() + static_cast<std::ptrdiff_t>(escalasT[2]));
    EXPECT_EQ(pivotesR, pivotesT);
}

TEST(InformeFlexionT, CantoDelAlaIgualAlCantoImprimeComoOtra)
{
    Proyecto p = Calculado(SeccionFlexion::T, 250.0, defecto::CANTO);
    ASSERT_EQ(p.veredicto, Veredicto::Oculto);
    const General copia = p.g;
    const ResultadosCeldaFlexion celda = ResultadosFlexion(p.g, 1, 1, '.');
    Informe informe;
    Imprime(informe, p, true, celda, '.');
    EXPECT_EQ(informe.resultado, Impresion::ConDiagramas);
    // The whole section is flange: the limit moment is that of the rectangle of the same width.
    EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones),
                 Pagina1(kTituloT, DatosGenerales('.', true, "250.00", "0.600"), Resultados('.', "692.4")));
    EsperaCuatroDiagramas(informe.impresora.operaciones, copia, celda, true, '.');
}

TEST(InformeFlexion, ArmaduraSuperiorCeroSeImprimeConSuUnidad)
{
    for (char sep : {'.', ','}) {
        for (double md : {250.0, 0.0}) {
            SCOPED_TRACE(std::string("separador ") + sep + " MD " + std::to_string(md));
            Proyecto p = Calculado(SeccionFlexion::Rectangular, md);
            ASSERT_EQ(p.g.ASS, 0.0);
            Informe informe;
            Imprime(informe, p, false, sep);
            const auto textos = Textos(informe.impresora.operaciones, 0, informe.impresora.operaciones.size());
            const auto etiqueta = std::find_if(textos.begin(), textos.end(),
                                               [](const Texto& t) { return t.texto == "Armadura superior:"; });
            ASSERT_NE(etiqueta, textos.end());
            ASSERT_NE(etiqueta + 1, textos.end());
            EXPECT_NEAR(etiqueta->y, 7.0, kTolerancia);
            EXPECT_EQ((etiqueta + 1)->texto, sep == '.' ? "0.00 cm²" : "0,00 cm²");
            EXPECT_NEAR((etiqueta + 1)->x, kIzquierda + kValor, kTolerancia);
            EXPECT_NEAR((etiqueta + 1)->y, 7.0, kTolerancia);
        }
    }
}

// ---- Without results.

// The report of a section without results: frame and data, then the verdict centred on 21 cm
// at two lines under the data; one page, no results, no diagram.
void EsperaSinResultados(double md, bool enT, char sep, const std::string& veredicto, double xVeredicto,
                         double yVeredicto)
{
    Proyecto p = Calculado(enT ? SeccionFlexion::T : SeccionFlexion::Rectangular, md);
    ASSERT_NE(p.veredicto, Veredicto::Oculto);
    Informe informe;
    NuevaLista(informe.d);
    Imprime(informe, p, enT, sep);
    EXPECT_EQ(informe.resultado, Impresion::SoloVeredicto);
    const auto& ops = informe.impresora.operaciones;

    std::vector<Texto> esperados = Marco(enT ? kTituloT : kTituloRectangular, 1);
    esperados.push_back({kIzquierda, 4.0, "DATOS GENERALES"});
    AnadeFilas(esperados, kIzquierda, 5.0, DatosGenerales(sep, enT, Formato(md, "0.00", '.')));
    esperados.push_back({xVeredicto, yVeredicto, veredicto});
    EsperaTextos(Textos(ops, 0, ops.size()), esperados);

    EXPECT_EQ(Cuenta(ops, "NewPage"), 0u);
    EXPECT_EQ(Cuenta(ops, "ScaleMode"), 1u);  // the set-up's: no diagram
    EXPECT_EQ(PosicionDelTexto(ops, "RESULTADOS DE LA SECCION"), ops.size());
    EXPECT_EQ(Cuenta(ops, "EndDoc"), 1u);
    EXPECT_EQ(ops.back().nombre, "EndDoc");
    EXPECT_EQ(informe.d.NLISTA, 0);
}

TEST(InformeFlexion, SinNecesidadDeRefuerzoUnaPaginaConLaFraseCentrada)
{
    // " NO ES NECESARIO REFORZAR LA SECCION " is 37 characters, 7.4 cm: (21 - 7.4) / 2.
    const std::string frase = " NO ES NECESARIO REFORZAR LA SECCION ";
    ASSERT_EQ(TextoVeredicto(Veredicto::NoEsNecesario), frase);
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        EsperaSinResultados(0.0, false, sep, frase, 6.8, 11.5 + 2.0);
    }
}

TEST(InformeFlexion, SeccionQueNoSePuedeReforzarUnaPaginaConLaFraseCentrada)
{
    // " NO SE PUEDE REFORZAR LA SECCION " is 33 characters, 6.6 cm: (21 - 6.6) / 2.
    const std::string frase = " NO SE PUEDE REFORZAR LA SECCION ";
    ASSERT_EQ(TextoVeredicto(Veredicto::NoSePuede), frase);
    EsperaSinResultados(300.0, false, '.', frase, 7.2, 11.5 + 2.0);
}

TEST(InformeFlexionT, SinResultadosLaFraseQuedaDosLineasMasAbajo)
{
    EsperaSinResultados(0.0, true, ',', " NO ES NECESARIO REFORZAR LA SECCION ", 6.8, 12.5 + 2.0);
    EsperaSinResultados(300.0, true, '.', " NO SE PUEDE REFORZAR LA SECCION ", 7.2, 12.5 + 2.0);
}

// ---- The refused cell.

TEST(InformeFlexion, CeldaConGuionesNoLlegaALaImpresora)
{
    for (bool enT : {false, true}) {
        for (double md : {250.0, 0.0}) {
            SCOPED_TRACE(std::string(enT ? "T" : "rectangular") + " MD " + std::to_string(md));
            Proyecto p = Calculado(enT ? SeccionFlexion::T : SeccionFlexion::Rectangular, md);
            // TEXALON X gains nothing from 3 layers on.
            const ResultadosCeldaFlexion celda = ResultadosFlexion(p.g, 3, 5, '.');
            ASSERT_EQ(celda.MU, "---");
            Informe informe;
            NuevaLista(informe.d);
            AnadeLinea(informe.d, 0.0, 0.0, 1.0, 1.0, kNegro, kContinua, 1);
            Imprime(informe, p, enT, celda, '.');
            EXPECT_EQ(informe.resultado, Impresion::CeldaRechazada);
            EXPECT_TRUE(informe.impresora.operaciones.empty());
            EXPECT_EQ(informe.impresora.documentosTerminados, 0);
            // Nor was any diagram drawn: the list is the one of before.
            EXPECT_EQ(informe.d.NLISTA, 1);
        }
    }
}

TEST(InformeFlexion, SoloElMomentoConGuionesRechazaLaCelda)
{
    // Another field without a number passes the guard, and stops the report at its row with
    // the run-time type error: the rows before it are printed, the document never ends.
    Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
    ResultadosCeldaFlexion celda = ResultadosFlexion(p.g, 1, 1, '.');
    celda.EPSC = "---";
    Informe informe;
    EsperaDetenidoEnLaFila([&] { Imprime(informe, p, false, celda, '.'); }, informe.impresora,
                           "Prof. fibra neutra:", "Def. hormigón:");

    // A moment of " ---" is no refusal either: the guard wants exactly "---".
    celda = ResultadosFlexion(p.g, 1, 1, '.');
    celda.MU = " ---";
    Informe otro;
    EXPECT_THROW(Imprime(otro, p, false, celda, '.'), ErrorEjecucion);
    EXPECT_FALSE(otro.impresora.operaciones.empty());
}

TEST(InformeFlexion, UnSegundoInformeEmpiezaDeNuevoEnLaPaginaUno)
{
    Proyecto p = Calculado(SeccionFlexion::Rectangular, 250.0);
    Informe informe;
    Imprime(informe, p, false, '.');
    const std::size_t primero = informe.impresora.operaciones.size();
    Imprime(informe, p, false, '.');
    const auto& ops = informe.impresora.operaciones;
    EXPECT_EQ(informe.impresora.documentosTerminados, 2);
    EXPECT_EQ(ops[primero], (Operacion{"PaperSize", {9.0}, ""}));
    const std::vector<Operacion> primeroOps(ops.begin(), ops.begin() + static_cast<std::ptrdiff_t>(primero));
    const std::vector<Operacion> segundoOps(ops.begin() + static_cast<std::ptrdiff_t>(primero), ops.end());
    EXPECT_EQ(primeroOps, segundoOps);
}

}  // namespace
}  // namespace texalon::prueba
