#include "Ejemplos.h"

#include "calculo/Proyecto.h"
#include "engine/Calculos.h"
#include "engine/Caracteristicas.h"
#include "state/Formato.h"
#include "state/TiposSeccion.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

namespace texalon::guia {

namespace {

constexpr char kComa = ',';

using Filas = std::vector<std::pair<std::string, std::string>>;

std::string Escapa(const std::string& texto)
{
    std::string escapado;
    for (const char c : texto) {
        if (c == '<') escapado += "&lt;";
        else if (c == '>') escapado += "&gt;";
        else if (c == '&') escapado += "&amp;";
        else escapado += c;
    }
    return escapado;
}

std::string Recortado(const std::string& texto)
{
    const auto inicio = texto.find_first_not_of(' ');
    if (inicio == std::string::npos) return {};
    return texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
}

std::string TablaDeFilas(const Filas& filas)
{
    std::string html = "<table border=\"1\" cellpadding=\"3\" cellspacing=\"0\">";
    for (const auto& [etiqueta, valor] : filas)
        html += "<tr><td>" + Escapa(etiqueta) + "</td><td align=\"right\">" + Escapa(valor) + "</td></tr>";
    return html + "</table>";
}

std::string Metros(double valor) { return Formato(valor, "0.000", kComa) + " m"; }
std::string Dos(double valor) { return Formato(valor, "0.00", kComa); }

// The data of a flexure project, with the labels of its report.
Filas DatosFlexion(const General& g, bool enT)
{
    Filas filas{{"Ancho", Metros(g.ANCHO)}, {"Canto", Metros(g.CANTO)}};
    if (enT) {
        filas.push_back({"Ancho del alma", Metros(g.ANCHOALMA)});
        filas.push_back({"Canto del ala", Metros(g.CANTOALA)});
    }
    const Filas resto{{"Recubrimiento", Metros(g.RECUB)},
                      {"Armadura inferior", Dos(g.ASI) + " cm²"},
                      {"Armadura superior", Dos(g.ASS) + " cm²"},
                      {"fck", Formato(g.FCK, "0", kComa) + " N/mm²"},
                      {"fyk", Formato(g.FYK, "0", kComa) + " N/mm²"},
                      {"Coef. seg. hormigón", Dos(g.GC)},
                      {"Coef. seg. acero", Dos(g.GS)},
                      {"Coef. seg. TEXALON®", Dos(g.GR)},
                      {"Ancho del refuerzo", Metros(g.ANCHOR)},
                      {"Momento actual", Dos(g.MCP) + " mkN"},
                      {"Mom. flector solicitante", Dos(g.MD) + " mkN"}};
    filas.insert(filas.end(), resto.begin(), resto.end());
    return filas;
}

// The name of the size that DIAM holds, by the shape of the column.
const char* NombreTamano(FormaPilar forma)
{
    switch (forma) {
    case FormaPilar::Circular: return "Diámetro";
    case FormaPilar::Cuadrada: return "Lado";
    case FormaPilar::Rectangular: break;
    }
    return "Lado mayor";
}

Filas DatosConfinamiento(const General& g)
{
    const FormaPilar forma = FormaDe(g);
    Filas filas{{"Tipo de sección", std::string(calculo::NombreForma(forma))}, {NombreTamano(forma), Metros(g.DIAM)}};
    if (forma == FormaPilar::Rectangular) filas.push_back({"Lado menor", Metros(g.LADOMENOR)});
    const Filas resto{{"fck", Formato(g.FCK, "0", kComa) + " N/mm²"},
                      {"Axil actual", Dos(g.NCP) + " kN"},
                      {"Incr. de resistencia", Dos(g.INCR)},
                      {"Coeficiente de Poisson", Dos(g.NU)},
                      {"Coeficiente de forma", Formato(g.ALFAN, "0.000", kComa)},
                      {"Coef. seg. hormigón", Dos(g.GC)},
                      {"Coef. seg. acero", Dos(g.GS)},
                      {"Coef. seg. TEXALON®", Dos(g.GR)}};
    filas.insert(filas.end(), resto.begin(), resto.end());
    return filas;
}

// The result grid as the screen lays it out, yellow where the cell meets the requirement.
template <typename Celda>
std::string Rejilla(const General& g, Celda celda)
{
    std::string html = "<table border=\"1\" cellpadding=\"3\" cellspacing=\"0\"><tr><th>" + std::string(kCabeceraCapas) +
                       "</th>";
    for (int t = 1; t <= g.NTIPOS; ++t)
        html += "<th>" + Escapa(g.TIPOS(t)) + "</th>";
    html += "</tr>";
    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        html += "<tr><td align=\"center\">" + std::to_string(n) + "</td>";
        for (int t = 1; t <= g.NTIPOS; ++t) {
            const CeldaResultado resultado = celda(t, n);
            html += std::string("<td align=\"right\"") + (resultado.cumple ? " bgcolor=\"#ffff00\"" : "") + ">" +
                    Escapa(resultado.texto) + "</td>";
        }
        html += "</tr>";
    }
    return html + "</table>";
}

// The cell the example reads: the first that meets the requirement, with the fewest layers of
// the first type that reaches it; the first cell when none does.
template <typename Celda>
std::pair<int, int> CeldaElegida(const General& g, Celda celda)
{
    for (int n = 1; n <= g.MAXCAPAS; ++n)
        for (int t = 1; t <= g.NTIPOS; ++t)
            if (celda(t, n).cumple) return {t, n};
    return {1, 1};
}

std::string Veredicto(const calculo::CalculoFichero& calculo)
{
    const std::string texto = Recortado(std::string(TextoVeredicto(calculo.veredicto)));
    if (texto.empty()) return "<p>La rejilla no lleva aviso: hay refuerzos que alcanzan lo pedido (en amarillo).</p>";
    return "<p>Aviso de la pantalla: <b>" + Escapa(texto) + "</b></p>";
}

std::string EjemploFlexion(const calculo::CalculoFichero& calculo)
{
    const General& g = calculo.g;
    const bool enT = calculo.seccion == SeccionFlexion::T;
    const auto celda = [&g](int t, int n) { return CeldaFlexion(g, t, n, kComa); };
    const auto [tipo, capas] = CeldaElegida(g, celda);
    const ResultadosCeldaFlexion r = ResultadosFlexion(g, tipo, capas, kComa);
    const Filas resultados{{"Momento último s/r", r.MUSR + " mkN"},
                           {"Predeformación inicial", r.EPS0 + " ‰"},
                           {"MRB", r.MRB + " mkN"},
                           {"Mlím", r.MLIMCR + " mkN"},
                           {"Pivote", Recortado(r.PIVOTE)},
                           {"Prof. fibra neutra", r.FN + " m"},
                           {"Def. hormigón", r.EPSC + " ‰"},
                           {"Def. armadura inferior", r.EPSSI + " ‰"},
                           {"Def. armadura superior", r.EPSSS + " ‰"},
                           {"Def. refuerzo", r.EPSR + " ‰"},
                           {"Momento último c/r", r.MU + " mkN"}};
    return "<h3>Datos</h3>" + TablaDeFilas(DatosFlexion(g, enT)) +
           "<h3>Momento último de la sección reforzada (mkN)</h3>" + Rejilla(g, celda) + Veredicto(calculo) +
           "<h3>Resultados de la celda " + Escapa(Recortado(r.tipo)) + "</h3>" + TablaDeFilas(resultados);
}

std::string EjemploConfinamiento(const calculo::CalculoFichero& calculo)
{
    const General& g = calculo.g;
    const auto celda = [&g](int t, int n) { return CeldaConfina(g, t, n, kComa); };
    const auto [tipo, capas] = CeldaElegida(g, celda);
    const ResultadosCeldaConfina r = ResultadosConfina(g, tipo, capas, kComa);
    const Filas resultados{{"Vol. hormigón confinado", r.WC + " m³/m"},
                           {"Vol. de refuerzo", r.WR + " m³/m"},
                           {"Cuantía volumétrica", r.WWD},
                           {"Predeformación inicial", r.EPS0 + " ‰"},
                           {"Def. refuerzo", r.EPSR + " ‰"},
                           {"Tensión en refuerzo", r.SIGMAR + " N/mm²"},
                           {"Tensión de confinamiento", r.TENSCONF},
                           {"Incremento de resistencia", r.RESU}};
    return "<h3>Datos</h3>" + TablaDeFilas(DatosConfinamiento(g)) +
           "<h3>Incremento de resistencia debido al confinamiento</h3>" + Rejilla(g, celda) + Veredicto(calculo) +
           "<h3>Resultados de la celda " + Escapa(Recortado(r.tipo)) + "</h3>" + TablaDeFilas(resultados);
}

std::string TituloEjemplo(const calculo::CalculoFichero& calculo)
{
    if (calculo.clase == ClaseFichero::Flexion)
        return calculo.seccion == SeccionFlexion::T ? "Flexión de una sección en T" : "Flexión de una viga rectangular";
    return "Confinamiento de un pilar";
}

}  // namespace

std::string CapituloEjemplos(const std::string& carpeta)
{
    std::vector<std::filesystem::path> ficheros;
    for (const auto& entrada : std::filesystem::directory_iterator(carpeta))
        if (entrada.is_regular_file()) ficheros.push_back(entrada.path());
    std::sort(ficheros.begin(), ficheros.end());

    std::string html =
        "<h1><a name=\"ejemplos\"></a>Ejemplos resueltos</h1>"
        "<p>Los ejemplos que siguen son proyectos que acompañan al programa, en la carpeta <i>ejemplos</i> de su "
        "instalación. Ábralos con <b>Principal → Abrir datos</b> y pulse <b>Calcular</b>: la pantalla mostrará los "
        "mismos números que aquí, calculados por el propio programa al preparar esta guía.</p>";
    for (const auto& fichero : ficheros) {
        const calculo::CalculoFichero calculo = calculo::CalculaFichero(fichero.string());
        if (!calculo.Correcto()) continue;
        html += "<h2>" + TituloEjemplo(calculo) + " (" + Escapa(fichero.filename().string()) + ")</h2>";
        html += calculo.clase == ClaseFichero::Flexion ? EjemploFlexion(calculo) : EjemploConfinamiento(calculo);
    }
    return html;
}

}  // namespace texalon::guia
