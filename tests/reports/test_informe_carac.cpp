// The characteristics report against the recording printer, for the start-up project: the
// sheet type's data, the ruled table of design strains and the stress-strain diagram that the
// Print command draws before it.
//
// The double's metrics: at size 10 a line is 0.5 cm high and a character 0.2 cm wide; the page
// is 19.0 × 27.7 cm and the margins are 2.0.
#include "reports/Informes.h"

#include "Operaciones.h"
#include "diagrams/Grafico.h"
#include "engine/Caracteristicas.h"
#include "platform/dobles/ImpresoraDoble.h"
#include "reports/Imprimir.h"
#include "state/Formato.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace texalon {
namespace {

using plataforma::ImpresoraDoble;
using plataforma::Operacion;
using prueba::EsperaOperaciones;

// A text written with ',' as its decimal separator, under the separator given.
std::string Con(char separador, std::string texto)
{
    std::replace(texto.begin(), texto.end(), ',', separador);
    return texto;
}

// The start-up project with the type in hand loaded, and its diagram drawn, as the Print
// command leaves them before the report.
struct Preparado {
    General g;
    GeneralDibujo d;
};

Preparado Prepara(int tipo, char separador)
{
    Preparado p;
    ValoresIniciales(p.g);
    CargaCaracteristicas(p.g, tipo);
    DiagramaTension(p.g, p.d, static_cast<Entero>(tipo), separador);
    return p;
}

// The position set and the text printed there.
void Texto(std::vector<Operacion>& v, double x, double y, const std::string& texto)
{
    v.push_back({"CurrentX", {x}, ""});
    v.push_back({"CurrentY", {y}, ""});
    v.push_back({"Print", {x, y}, texto});
}

// Everything the report prints ahead of the diagram, worked out by hand for the start-up
// project with TEXALON L in hand (GR 1.4).
std::vector<Operacion> EsperadoAntesDelDiagrama(char sep, const std::string& nombreTipo)
{
    std::vector<Operacion> v{
        {"PaperSize", {9}, ""},
        {"ScaleMode", {7}, ""},
        {"FontName", {}, "arial"},
        {"FontSize", {10}, ""},
        {"NombreDocumento", {}, "caracteristicas"},
        // The frame.
        {"FontBold", {0}, ""},
        {"DrawStyle", {0}, ""},
        {"DrawWidth", {1}, ""},
        {"FontName", {}, "arial"},
        {"FontSize", {10}, ""},
    };
    Texto(v, 2.0, 2.0, "CARACTERISTICAS MECANICAS DEL REFUERZO");
    v.push_back({"PaintPicture", {15.0, 1.5, 2.0, 1.0}, ":/imagenes/logo_caracteristicas.svg"});
    v.push_back({"Line", {2.0, 2.65, 17.0, 2.65, 0}, ""});
    Texto(v, 2.0, 25.2, "SISTEMA DE REFUERZO TEXALON®");
    v.push_back({"Line", {2.0, 25.05, 17.0, 25.05, 0}, ""});
    Texto(v, 15.4, 25.2, "Página 1");

    // The data of the type, one natural line (0.5) apart from 5.0.
    v.push_back({"FontBold", {1}, ""});
    Texto(v, 2.0, 4.0, "DATOS GENERALES");
    v.push_back({"FontBold", {0}, ""});
    const std::vector<std::pair<std::string, std::string>> filas{
        {"Tipo de refuerzo:", nombreTipo},          {"Espesor:", Con(sep, "0,111 mm")},
        {"Módulo de Young:", "230000 N/mm²"},       {"Deformación última:", Con(sep, "15,00‰")},
        {"Coef. seg. TEXALON®:", Con(sep, "1,40")},
    };
    double y = 5.0;
    for (const auto& [etiqueta, valor] : filas) {
        Texto(v, 2.0, y, etiqueta);
        Texto(v, 6.5, y, valor);
        y += 0.5;
    }

    // The table: its heading 1.5 below the running Y after the last row (7.5), the grid 1.0
    // below that, 6 rows of 0.8 and 4 columns of 3.5.
    v.push_back({"FontBold", {1}, ""});
    Texto(v, 2.0, 9.0, "DEFORMACION DE CALCULO");
    v.push_back({"FontBold", {0}, ""});
    v.push_back({"DrawStyle", {0}, ""});
    for (double yr : {10.0, 10.8, 11.6, 12.4, 13.2, 14.0, 14.8})
        v.push_back({"Line", {2.0, yr, 16.0, yr, 0}, ""});
    for (double xr : {2.0, 5.5, 9.0, 12.5, 16.0})
        v.push_back({"Line", {xr, 10.0, xr, 14.8, 0}, ""});

    // Every text centred in its cell: X = 2 + 3.5 J + (3.5 - width) / 2, Y = 10 + 0.8 I + 0.15.
    const auto celda = [&v](int i, int j, const std::string& texto, int caracteres) {
        Texto(v, 2.0 + 3.5 * j + (3.5 - 0.2 * caracteres) / 2, 10.15 + 0.8 * i, texto);
    };
    v.push_back({"FontBold", {1}, ""});
    celda(0, 0, "Núm. de capas", 13);
    celda(0, 1, "Km", 2);
    celda(0, 2, "Def. cálculo (‰)", 16);
    celda(0, 3, "Tensión (N/mm²)", 15);
    v.push_back({"FontBold", {0}, ""});
    // KM = 0.9 capped, then 1 - n × 230000 × 0.111 / 428000; EPSD = 0.015 / 1.4 × KM; the
    // stress 230000 × EPSD.
    const std::vector<std::vector<std::string>> capas{
        {"1", "0,900", "9,64", "2217,9"}, {"2", "0,881", "9,44", "2170,3"}, {"3", "0,821", "8,80", "2023,3"},
        {"4", "0,761", "8,16", "1876,3"}, {"5", "0,702", "7,52", "1729,3"},
    };
    for (int i = 1; i <= 5; ++i) {
        for (int j = 0; j < 4; ++j) {
            const std::string& texto = capas[static_cast<std::size_t>(i - 1)][static_cast<std::size_t>(j)];
            celda(i, j, Con(sep, texto), static_cast<int>(texto.size()));
        }
    }
    return v;
}

// What ImprimeLista alone prints of the list `d` with the given margins, on a fresh printer.
std::vector<Operacion> DiagramaEnPapel(GeneralDibujo d, double derecho, double izquierdo, double superior,
                                       double inferior)
{
    ImpresoraDoble aparte;
    ImprimeLista(aparte, d, derecho, izquierdo, superior, inferior, 0);
    return aparte.operaciones;
}

void CompruebaTipoUno(char sep)
{
    Preparado p = Prepara(1, sep);
    const GeneralDibujo antes = p.d;
    ImpresoraDoble impresora;
    InformeCarac(impresora, p.g, p.d, 1, sep);

    auto esperadas = EsperadoAntesDelDiagrama(sep, "TEXALON L");
    // The diagram in the full text width from Y = 2 + 12 down to the bottom margin.
    const auto diagrama = DiagramaEnPapel(antes, 2.0, 2.0, 14.0, 2.0);
    ASSERT_GT(diagrama.size(), 1u);
    EXPECT_EQ(diagrama.front(), (Operacion{"ScaleMode", {7}, ""}));
    esperadas.insert(esperadas.end(), diagrama.begin(), diagrama.end());
    esperadas.push_back({"EndDoc", {}, ""});
    EsperaOperaciones(impresora.operaciones, esperadas);
    EXPECT_EQ(impresora.documentosTerminados, 1);
}

TEST(InformeCarac, TipoUnoDelEstadoInicialConComa) { CompruebaTipoUno(','); }

TEST(InformeCarac, TipoUnoDelEstadoInicialConPunto) { CompruebaTipoUno('.'); }

TEST(InformeCarac, ElDiagramaEsElQueDejoLaOrdenYQuedaEnElRectanguloDeLaPagina)
{
    Preparado p = Prepara(1, ',');
    const Entero elementos = p.d.NLISTA;
    ASSERT_GT(elementos, 0);
    const std::string titulo = p.d.TEXTOS(elementos);
    ImpresoraDoble impresora;
    InformeCarac(impresora, p.g, p.d, 1, ',');
    // The report draws the list that it was given and does not build it again.
    EXPECT_EQ(p.d.NLISTA, elementos);
    EXPECT_EQ(p.d.TEXTOS(elementos), titulo);
    // 19 - 2 - 2 across and 27.7 - 14 - 2 down.
    EXPECT_NEAR(p.d.ANCHOPIC, 15.0, 1e-9);
    EXPECT_NEAR(p.d.ALTOPIC, 11.7, 1e-9);
}

TEST(InformeCarac, SinOpcionElegidaNoSeImprimeNombreDeTipo)
{
    Preparado p = Prepara(1, ',');
    ImpresoraDoble impresora;
    InformeCarac(impresora, p.g, p.d, 0, ',');
    // The label stays and its value is empty; the rest of the report prints as for TEXALON L.
    auto esperadas = EsperadoAntesDelDiagrama(',', "");
    const auto& op = impresora.operaciones;
    ASSERT_GT(op.size(), esperadas.size());
    EsperaOperaciones({op.begin(), op.begin() + static_cast<std::ptrdiff_t>(esperadas.size())}, esperadas);
    // No text of the report names a type (the diagram's legend, which names them all, is the
    // list's).
    for (std::size_t i = 0; i < esperadas.size(); ++i)
        for (const char* tipo : {"TEXALON L", "TEXALON H", "TEXALON X"})
            EXPECT_EQ(op[i].texto.find(tipo), std::string::npos) << op[i].texto;
    EXPECT_EQ(op.back().nombre, "EndDoc");
}

// The value printed in the row of the label given.
std::string ValorDeLaFila(const ImpresoraDoble& impresora, const std::string& etiqueta)
{
    const auto& op = impresora.operaciones;
    for (std::size_t i = 0; i + 3 < op.size(); ++i)
        if (op[i].nombre == "Print" && op[i].texto == etiqueta) return op[i + 3].texto;
    ADD_FAILURE() << "sin fila " << etiqueta;
    return {};
}

TEST(InformeCarac, LosTiposDosYTresSeNombranYMuestranSusDatos)
{
    Preparado h = Prepara(2, ',');
    ImpresoraDoble impresoraH;
    InformeCarac(impresoraH, h.g, h.d, 2, ',');
    EXPECT_EQ(ValorDeLaFila(impresoraH, "Tipo de refuerzo:"), "TEXALON H");
    EXPECT_EQ(ValorDeLaFila(impresoraH, "Espesor:"), "0,167 mm");

    Preparado x = Prepara(3, '.');
    ImpresoraDoble impresoraX;
    InformeCarac(impresoraX, x.g, x.d, 3, '.');
    EXPECT_EQ(ValorDeLaFila(impresoraX, "Tipo de refuerzo:"), "TEXALON X");
    EXPECT_EQ(ValorDeLaFila(impresoraX, "Espesor:"), "0.163 mm");
    EXPECT_EQ(ValorDeLaFila(impresoraX, "Módulo de Young:"), "440000 N/mm²");
    EXPECT_EQ(ValorDeLaFila(impresoraX, "Deformación última:"), "5.50‰");
}

// The texts of the fourth column of the table, rows 1 to 5, in order.
std::vector<std::string> ColumnaTension(const ImpresoraDoble& impresora)
{
    std::vector<std::string> textos;
    for (const auto& o : impresora.operaciones)
        if (o.nombre == "Print" && o.numeros[0] > 12.5 && o.numeros[0] < 16.0 && o.numeros[1] > 10.8 &&
            o.numeros[1] < 14.8)
            textos.push_back(o.texto);
    return textos;
}

TEST(InformeCarac, LaTensionEsElModuloPorLaDeformacionYBajaConLasCapas)
{
    for (char sep : {',', '.'}) {
        Preparado p = Prepara(1, sep);
        ImpresoraDoble impresora;
        InformeCarac(impresora, p.g, p.d, 1, sep);
        const auto tensiones = ColumnaTension(impresora);
        ASSERT_EQ(tensiones.size(), 5u);
        for (std::size_t n = 1; n <= 5; ++n)
            EXPECT_EQ(tensiones[n - 1], Formato(230000.0 * p.g.EPSD(static_cast<int>(n)), "0.0", sep));
        EXPECT_EQ(tensiones.front(), Con(sep, "2217,9"));
        EXPECT_EQ(tensiones.back(), Con(sep, "1729,3"));
        for (std::size_t n = 1; n < 5; ++n)
            EXPECT_GT(ValorDeTexto(tensiones[n - 1], sep), ValorDeTexto(tensiones[n], sep)) << n;
    }
}

TEST(InformeCarac, UnSegundoInformeEmpiezaConSuPreparacionYLaPaginaUno)
{
    Preparado p = Prepara(1, ',');
    ImpresoraDoble impresora;
    InformeCarac(impresora, p.g, p.d, 1, ',');
    const std::size_t primero = impresora.operaciones.size();
    DiagramaTension(p.g, p.d, 1, ',');
    InformeCarac(impresora, p.g, p.d, 1, ',');
    ASSERT_EQ(impresora.operaciones.size(), 2 * primero);
    // The second document repeats the first operation by operation, page number included.
    EsperaOperaciones(
        {impresora.operaciones.begin() + static_cast<std::ptrdiff_t>(primero), impresora.operaciones.end()},
        {impresora.operaciones.begin(), impresora.operaciones.begin() + static_cast<std::ptrdiff_t>(primero)});
    EXPECT_EQ(impresora.operaciones[primero].nombre, "PaperSize");
    EXPECT_EQ(impresora.operaciones[primero + 21].texto, "Página 1");
    EXPECT_EQ(impresora.documentosTerminados, 2);
}

}  // namespace
}  // namespace texalon
