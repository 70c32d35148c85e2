// The confinement report on the recording printer: every text where it stands for the three
// column shapes, the gap of the rectangle's word, the row of the smaller side, the order of
// set-up, frame, rows and the two diagrams, and the area of each diagram on the page.
#include "Operaciones.h"
#include "diagrams/Grafico.h"
#include "diagrams/Lista.h"
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "platform/dobles/ImpresoraDoble.h"
#include "reports/Imprimir.h"
#include "reports/Informes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace texalon::prueba {
namespace {

using plataforma::ImpresoraDoble;
using plataforma::Operacion;

constexpr char kTitulo[] = "REFUERZO A CONFINAMIENTO";

// The rows of the screen's section list.
constexpr int kCircular = 0;
constexpr int kCuadrada = 1;
constexpr int kRectangular = 2;

// ---- What the report must write.

// The numbers of cell (L, 1) of a default column of each shape, and its shape coefficient.
struct Cifras {
    std::string ALFAN;
    std::vector<std::string> resultados;  // WC, WR, WWD, EPS0, EPSR, SIGMAR, TENSCONF, RESU
};

Cifras CifrasDe(Entero seccion)
{
    switch (seccion) {
    case 1: return {"1.000", {"0.196350", "0.000174", "0.013068", "0.00", "1.07", "245.3", "0.007", "1.03"}};
    case 2: return {"0.333", {"0.250000", "0.000222", "0.012511", "0.00", "1.02", "234.8", "0.002", "1.01"}};
    default: return {"0.167", {"0.200000", "0.000200", "0.013947", "0.00", "1.01", "232.7", "0.001", "1.01"}};
    }
}

// The left block's rows after the size: the strength, the axial load and the increase.
std::vector<Fila> FilasComunes(char sep)
{
    return {{"f", "25 N/mm²", "ck", "fck"},
            {"Axil actual:", Con("0.00 kN", sep)},
            {"Incr. de resistencia:", Con("1.00", sep)}};
}

// The whole text of the page, with the left block's rows given.
std::vector<Texto> Pagina(const std::vector<Fila>& datos, const Cifras& c, char sep)
{
    std::vector<Texto> textos{{kIzquierda, 2.0, kTitulo},
                              {kIzquierda, 25.2, "SISTEMA DE REFUERZO TEXALON®"},
                              {kAnchoPagina - 2.0 - Ancho("Página 1"), 25.2, "Página 1"},
                              {kIzquierda, 4.0, "DATOS GENERALES"}};
    AnadeFilas(textos, kIzquierda, 5.0, datos);
    textos.push_back({kDerecha, 4.0, "DATOS AUXILIARES"});
    AnadeFilas(textos, kDerecha, 5.0,
               {{"Coeficiente de Poisson:", Con("0.50", sep)},
                {"Coeficiente de forma:", Con(c.ALFAN, sep)},
                {"Coef. seg. hormigón:", Con("1.50", sep)},
                {"Coef. seg. acero:", Con("1.15", sep)},
                {"Coef. seg. TEXALON®:", Con("1.40", sep)}});
    // The running Y under the last auxiliary row is 7.5: heading, cell and results 1.5, 2.5 and
    // 3.5 below it.
    textos.push_back({kDerecha, 9.0, "RESULTADOS DE LA SECCION"});
    textos.push_back({kDerecha, 10.0, kCelda});
    const auto& r = c.resultados;
    AnadeFilas(textos, kDerecha, 11.0,
               {{"Vol. hormigón confinado:", Con(r[0] + " m³/m", sep)},
                {"Vol. de refuerzo:", Con(r[1] + " m³/m", sep)},
                {"Cuantía volumétrica:", Con(r[2], sep)},
                {"Predeformación inicial:", Con(r[3] + "‰", sep)},
                {"Def. refuerzo:", Con(r[4] + "‰", sep)},
                {"Tensión en refuerzo:", Con(r[5] + " N/mm²", sep)},
                {"Tensión de confinamiento:", Con(r[6], sep)},
                {"Incremento de resistencia:", Con(r[7], sep)}});
    return textos;
}

// The left block of a default column whose list row and SECCION agree.
std::vector<Fila> DatosGenerales(int fila, char sep)
{
    std::vector<Fila> filas;
    if (fila == kCircular) {
        filas = {{"Tipo de sección:", "CIRCULAR"}, {"Diámetro:", Con("0.500 m", sep)}};
    } else if (fila == kCuadrada) {
        filas = {{"Tipo de sección:", "CUADRADA"}, {"Lado:", Con("0.500 m", sep)}};
    } else {
        filas = {{"Tipo de sección:", ""}, {"Lado mayor:", Con("0.500 m", sep)}, {"Lado menor:", Con("0.400 m", sep)}};
    }
    const auto comunes = FilasComunes(sep);
    filas.insert(filas.end(), comunes.begin(), comunes.end());
    return filas;
}

// ---- Projects and runs.

// The default column of a shape (SECCION 1 circular, 2 square, 3 rectangular), calculated.
General Calculada(Entero seccion)
{
    General g;
    ValoresIniciales(g);
    g.SECCION = seccion;
    CalculaConfinamiento(g, FormaDe(g), [](General&) {});
    return g;
}

struct Informe {
    ImpresoraDoble impresora;
    GeneralDibujo d;
};

void Imprime(Informe& informe, General& g, int fila, char sep)
{
    InformeConfina(informe.impresora, g, informe.d, ResultadosConfina(g, 1, 1, sep), FormaDeFila(fila), sep);
}

// ---- The page, row by row, for each shape.

// The page of a column of that shape, calculated and printed with each separator, row by row up
// to the diagrams; then `ademas` on its operations.
void EsperaPaginaDeLaForma(Entero seccion, int fila,
                           const std::function<void(const std::vector<Operacion>&)>& ademas = nullptr)
{
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        General g = Calculada(seccion);
        Informe informe;
        Imprime(informe, g, fila, sep);
        const auto& ops = informe.impresora.operaciones;
        EsperaTextos(TextosAntesDeLosDiagramas(ops), Pagina(DatosGenerales(fila, sep), CifrasDe(seccion), sep));
        if (ademas) ademas(ops);
    }
}

TEST(InformeConfina, CircularPorDefectoImprimeCadaFilaEnSuSitio) { EsperaPaginaDeLaForma(1, kCircular); }

TEST(InformeConfina, CuadradaImprimeCuadradaYLado) { EsperaPaginaDeLaForma(2, kCuadrada); }

TEST(InformeConfina, RectangularDejaElTipoEnBlancoConLadoMayorYLadoMenor)
{
    EsperaPaginaDeLaForma(3, kRectangular, [](const std::vector<Operacion>& ops) {
        // The value beside "Tipo de sección:" is printed, and empty.
        const std::size_t etiqueta = PosicionDelTexto(ops, "Tipo de sección:");
        const auto valor = std::find_if(ops.begin() + static_cast<std::ptrdiff_t>(etiqueta) + 1, ops.end(),
                                        [](const Operacion& op) { return op.nombre == "Print"; });
        ASSERT_NE(valor, ops.end());
        EXPECT_EQ(*valor, (Operacion{"Print", {kIzquierda + kValor, 5.0}, ""}));
    });
}

TEST(InformeConfina, CircularSinLadoMenorSubeLasFilasYElBloqueDerechoSeQueda)
{
    General circular = Calculada(1);
    General rectangular = Calculada(3);
    Informe deCircular;
    Informe deRectangular;
    Imprime(deCircular, circular, kCircular, '.');
    Imprime(deRectangular, rectangular, kRectangular, '.');
    const auto textosC = TextosAntesDeLosDiagramas(deCircular.impresora.operaciones);
    const auto textosR = TextosAntesDeLosDiagramas(deRectangular.impresora.operaciones);
    const auto y = [](const std::vector<Texto>& textos, const std::string& etiqueta) {
        const auto t = std::find_if(textos.begin(), textos.end(), [&](const Texto& x) { return x.texto == etiqueta; });
        return t == textos.end() ? -1.0 : t->y;
    };
    EXPECT_EQ(y(textosC, "Lado menor:"), -1.0);
    EXPECT_NEAR(y(textosR, "Lado menor:"), 6.0, kTolerancia);
    for (const std::string etiqueta : {"Axil actual:", "Incr. de resistencia:"})
        EXPECT_NEAR(y(textosC, etiqueta) + kLinea, y(textosR, etiqueta), kTolerancia) << etiqueta;
    EXPECT_NEAR(y(textosC, "Incr. de resistencia:"), 7.0, kTolerancia);

    // Both right blocks stand line for line at the same places.
    const auto derecha = [](const std::vector<Texto>& textos) {
        std::vector<Texto> bloque;
        std::copy_if(textos.begin(), textos.end(), std::back_inserter(bloque),
                     [](const Texto& t) { return t.x > kDerecha - kTolerancia && t.y < 20.0; });
        return bloque;
    };
    const auto bloqueC = derecha(textosC);
    const auto bloqueR = derecha(textosR);
    ASSERT_EQ(bloqueC.size(), 1u + 10u + 2u + 16u);
    ASSERT_EQ(bloqueC.size(), bloqueR.size());
    for (std::size_t i = 0; i < bloqueC.size(); ++i) {
        EXPECT_NEAR(bloqueC[i].x, bloqueR[i].x, kTolerancia) << i;
        EXPECT_NEAR(bloqueC[i].y, bloqueR[i].y, kTolerancia) << i;
    }
}

TEST(InformeConfina, AxilCeroSeImprimeConSuUnidad)
{
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        General g = Calculada(1);
        ASSERT_EQ(g.NCP, 0.0);
        Informe informe;
        Imprime(informe, g, kCircular, sep);
        const auto& ops = informe.impresora.operaciones;
        const std::size_t etiqueta = PosicionDelTexto(ops, "Axil actual:");
        ASSERT_LT(etiqueta, ops.size());
        EsperaNumeros(ops[etiqueta], "Print", {kIzquierda, 6.5});
        const auto valor = std::find_if(ops.begin() + static_cast<std::ptrdiff_t>(etiqueta) + 1, ops.end(),
                                        [](const Operacion& op) { return op.nombre == "Print"; });
        ASSERT_NE(valor, ops.end());
        EXPECT_EQ(valor->texto, sep == '.' ? "0.00 kN" : "0,00 kN");
        EsperaNumeros(*valor, "Print", {kIzquierda + kValor, 6.5});
    }
}

TEST(InformeConfina, LaFilaDeLaListaNombraLaFormaYSeccionDaElLadoMenor)
{
    // A list row that says circle over a rectangular state: the circle's word and label, and
    // the smaller side all the same.
    General rectangular = Calculada(3);
    Informe informe;
    Imprime(informe, rectangular, kCircular, '.');
    std::vector<Fila> datos{{"Tipo de sección:", "CIRCULAR"}, {"Diámetro:", "0.500 m"}, {"Lado menor:", "0.400 m"}};
    const auto comunes = FilasComunes('.');
    datos.insert(datos.end(), comunes.begin(), comunes.end());
    EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones), Pagina(datos, CifrasDe(3), '.'));

    // And the rectangle's row over a circular state: no smaller side.
    General circular = Calculada(1);
    Informe otro;
    Imprime(otro, circular, kRectangular, '.');
    datos = {{"Tipo de sección:", ""}, {"Lado mayor:", "0.500 m"}};
    datos.insert(datos.end(), comunes.begin(), comunes.end());
    EsperaTextos(TextosAntesDeLosDiagramas(otro.impresora.operaciones), Pagina(datos, CifrasDe(1), '.'));
}

TEST(InformeConfina, SinFilaElegidaNiPalabraNiEtiquetaDelTamano)
{
    General g = Calculada(1);
    Informe informe;
    Imprime(informe, g, -1, '.');
    std::vector<Fila> datos{{"Tipo de sección:", ""}, {"", "0.500 m"}};
    const auto comunes = FilasComunes('.');
    datos.insert(datos.end(), comunes.begin(), comunes.end());
    EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones), Pagina(datos, CifrasDe(1), '.'));
}

TEST(InformeConfina, LosTextosDeLosCamposSeLeenYSeFormateanDeNuevo)
{
    for (char sep : {'.', ','}) {
        SCOPED_TRACE(std::string("separador ") + sep);
        General g = Calculada(1);
        const ResultadosCeldaConfina celda{.tipo = std::string("  ") + kCelda + "  ",
                                           .WC = Con("0.19634954", sep),
                                           .WR = Con(" 0.0001745 ", sep),
                                           .WWD = Con("0.0130685", sep),
                                           .EPS0 = "1",
                                           .EPSR = Con("1.065", sep),
                                           .SIGMAR = Con("245.25", sep),
                                           .TENSCONF = Con("0.0065", sep),
                                           .RESU = Con("1.025", sep)};
        Informe informe;
        InformeConfina(informe.impresora, g, informe.d, celda, FormaDeFila(kCircular), sep);
        // Rounded half away from zero in decimal; the initial strain without a blank.
        const Cifras cifras{"1.000", {"0.196350", "0.000175", "0.013069", "1.00", "1.07", "245.3", "0.007", "1.03"}};
        EsperaTextos(TextosAntesDeLosDiagramas(informe.impresora.operaciones),
                     Pagina(DatosGenerales(kCircular, sep), cifras, sep));
    }
}

TEST(InformeConfina, UnCampoSinNumeroDetieneElInformeEnSuFila)
{
    General g = Calculada(1);
    ResultadosCeldaConfina celda = ResultadosConfina(g, 1, 1, '.');
    celda.SIGMAR = "---";
    Informe informe;
    EsperaDetenidoEnLaFila([&] { InformeConfina(informe.impresora, g, informe.d, celda, FormaDeFila(kCircular), '.'); },
                           informe.impresora, "Def. refuerzo:", "Tensión en refuerzo:");
}

// ---- The order of the page and its diagrams.

TEST(InformeConfina, ImprimirPreparaEnmarcaEscribeYDibujaEnUnaPagina)
{
    General g = Calculada(1);
    Informe informe;
    Imprime(informe, g, kCircular, '.');
    const auto& ops = informe.impresora.operaciones;

    EsperaPreparacion(ops, kDocumentoConfina);

    const auto escalas = Posiciones(ops, "ScaleMode");
    const auto logos = Posiciones(ops, "PaintPicture");
    ASSERT_EQ(escalas.size(), 3u);
    ASSERT_EQ(logos.size(), 1u);
    EXPECT_EQ(ops[logos[0]], (Operacion{"PaintPicture", {15.0, 1.5, 2.0, 1.0}, kLogoConfina}));
    EXPECT_TRUE(Posiciones(ops, "NewPage").empty());
    EXPECT_LT(logos[0], PosicionDelTexto(ops, "DATOS GENERALES"));
    EXPECT_LT(PosicionDelTexto(ops, "DATOS GENERALES"), PosicionDelTexto(ops, "DATOS AUXILIARES"));
    EXPECT_LT(PosicionDelTexto(ops, "DATOS AUXILIARES"), PosicionDelTexto(ops, "RESULTADOS DE LA SECCION"));
    EXPECT_LT(PosicionDelTexto(ops, "Incremento de resistencia:"), escalas[1]);
    EXPECT_EQ(Posiciones(ops, "EndDoc"), std::vector<std::size_t>{ops.size() - 1});
    EXPECT_EQ(informe.impresora.documentosTerminados, 1);

    // The frame's two rules and nothing else ruled ahead of the diagrams.
    EsperaReglasDelMarco(ops, escalas[1]);
}

TEST(InformeConfina, CadaDiagramaQuedaEnElAreaDeSusMargenes)
{
    // The circle starts with its ellipse, the square and the rectangle with a rounded rectangle.
    for (Entero seccion : {Entero{1}, Entero{2}, Entero{3}}) {
        for (char sep : {'.', ','}) {
            SCOPED_TRACE("seccion " + std::to_string(seccion) + " separador " + sep);
            General g = Calculada(seccion);
            const General copia = g;
            Informe informe;
            Imprime(informe, g, seccion - 1, sep);
            const auto& ops = informe.impresora.operaciones;
            const auto escalas = Posiciones(ops, "ScaleMode");
            ASSERT_EQ(escalas.size(), 3u);

            GeneralDibujo lista;
            DiagramaConfina(copia, lista, sep);
            {
                SCOPED_TRACE("barras");
                EsperaDiagrama(ops, escalas[1], escalas[2], lista, 2.0, 2.0, 2.0 + 12.0, 2.0, 0);
            }
            DibujaSeccionConfina(copia, lista, sep);
            {
                SCOPED_TRACE("columna");
                EsperaDiagrama(ops, escalas[2], ops.size() - 1, lista, 2.0 + 8.5, 2.0, 2.0 + 5.0, 2.0 + 12.0, 1);
            }
            // The section is the last diagram: it stays in the list and on the screen.
            EXPECT_TRUE(informe.d.F_SECCION);
            EXPECT_DOUBLE_EQ(informe.d.ANCHOPIC, 19.0 - 10.5 - 2.0);
            EXPECT_DOUBLE_EQ(informe.d.ALTOPIC, 27.7 - 7.0 - 14.0);
        }
    }
}

}  // namespace
}  // namespace texalon::prueba
