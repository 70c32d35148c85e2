// The guide as a reader finds it in the PDF: the cover, a table of contents whose every page
// number leads to its chapter, the help's pages in the order of its contents, and worked
// examples whose numbers are the program's own.
#include "calculo/Proyecto.h"
#include "engine/Caracteristicas.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

using namespace texalon;

namespace {

const std::string kGuia = TEXALON_GUIA_PDF;
const std::string kAyuda = TEXALON_AYUDA_FUENTE;
const std::string kEjemplos = TEXALON_EJEMPLOS_FUENTE;

std::string Salida(const std::string& orden)
{
    std::string texto;
    std::unique_ptr<FILE, int (*)(FILE*)> tubo(popen(orden.c_str(), "r"), pclose);
    if (!tubo) return texto;
    std::array<char, 4096> trozo{};
    while (std::fgets(trozo.data(), static_cast<int>(trozo.size()), tubo.get()) != nullptr) texto += trozo.data();
    return texto;
}

// The text of pages `desde` to `hasta` (from 1), in reading order with the layout kept.
std::string Paginas(int desde, int hasta)
{
    return Salida("pdftotext -layout -f " + std::to_string(desde) + " -l " + std::to_string(hasta) + " '" + kGuia +
                  "' -");
}

int NumeroDePaginas()
{
    const std::string info = Salida("pdfinfo '" + kGuia + "'");
    std::smatch m;
    return std::regex_search(info, m, std::regex(R"(Pages:\s+(\d+))")) ? std::stoi(m[1]) : 0;
}

std::string Lee(const std::string& fichero)
{
    std::ifstream entrada(fichero, std::ios::binary);
    std::stringstream texto;
    texto << entrada.rdbuf();
    return texto.str();
}

// The title of a help page: its one heading of level 1, without its tags.
std::string Titulo(const std::string& pagina)
{
    std::smatch m;
    const std::string html = Lee(kAyuda + "/" + pagina);
    if (!std::regex_search(html, m, std::regex(R"(<h1[^>]*>([\s\S]*?)</h1>)"))) return {};
    std::string titulo = std::regex_replace(m[1].str(), std::regex("<[^>]*>"), "");
    titulo = std::regex_replace(titulo, std::regex(R"(\s+)"), " ");
    return std::regex_replace(titulo, std::regex(R"(^ | $)"), "");
}

// The pages the help's contents link to, in order.
std::vector<std::string> PaginasDelContenido()
{
    std::vector<std::string> paginas;
    const std::string html = Lee(kAyuda + "/contenido.html");
    const std::regex enlace(R"re(href="([^"#:]+\.html))re");
    for (auto it = std::sregex_iterator(html.begin(), html.end(), enlace); it != std::sregex_iterator(); ++it) {
        const std::string pagina = (*it)[1];
        if (pagina != "contenido.html" && std::find(paginas.begin(), paginas.end(), pagina) == paginas.end())
            paginas.push_back(pagina);
    }
    return paginas;
}

// The entries of the table of contents: title and page, as the reader sees them.
std::map<std::string, int> Indice()
{
    std::map<std::string, int> entradas;
    std::istringstream lineas(Paginas(2, 4));
    const std::regex entrada(R"(^\s*(\S.*?\S)\s{2,}(\d+)\s*$)");
    for (std::string linea; std::getline(lineas, linea);) {
        std::smatch m;
        if (std::regex_match(linea, m, entrada)) entradas.emplace(m[1].str(), std::stoi(m[2].str()));
    }
    return entradas;
}

std::string Compacto(std::string texto) { return std::regex_replace(texto, std::regex(R"(\s+)"), " "); }

}  // namespace

TEST(Guia, EsUnPdfDeVariasPaginas)
{
    ASSERT_TRUE(std::filesystem::exists(kGuia)) << kGuia;
    EXPECT_GE(NumeroDePaginas(), 10);
}

TEST(Guia, LaPortadaNombraElProgramaElFabricanteYSuWeb)
{
    const std::string portada = Paginas(1, 1);
    EXPECT_NE(portada.find("TEXALON®"), std::string::npos);
    EXPECT_NE(portada.find("Guía de referencia"), std::string::npos);
    EXPECT_NE(portada.find("VELMORA"), std::string::npos);
    EXPECT_NE(portada.find("Versión 1.0"), std::string::npos);
    EXPECT_NE(portada.find(TEXALON_WEB), std::string::npos);
}

TEST(Guia, ElIndiceLlevaCadaCapituloALaPaginaDondeEmpieza)
{
    ASSERT_NE(Paginas(2, 2).find("Índice"), std::string::npos);
    const std::map<std::string, int> indice = Indice();
    std::vector<std::string> capitulos;
    for (const std::string& pagina : PaginasDelContenido())
        capitulos.push_back(Titulo(pagina));
    capitulos.push_back("Ejemplos resueltos");
    ASSERT_GE(capitulos.size(), 5u);
    int anterior = 0;
    for (const std::string& capitulo : capitulos) {
        const auto entrada = indice.find(capitulo);
        ASSERT_NE(entrada, indice.end()) << "falta en el índice: " << capitulo;
        // The chapters come in the order of the help's contents, each on a later page.
        EXPECT_GT(entrada->second, anterior) << capitulo;
        anterior = entrada->second;
        const std::string pagina = Compacto(Paginas(entrada->second, entrada->second));
        EXPECT_EQ(pagina.rfind(" " + capitulo, 0) == 0 || pagina.rfind(capitulo, 0) == 0, true)
            << capitulo << " no abre la página " << entrada->second << ": " << pagina.substr(0, 80);
    }
}

TEST(Guia, LasSeccionesDelIndiceEstanEnSuPagina)
{
    const std::map<std::string, int> indice = Indice();
    ASSERT_GT(indice.size(), 20u);
    for (const auto& [titulo, pagina] : indice)
        EXPECT_NE(Compacto(Paginas(pagina, pagina)).find(titulo), std::string::npos)
            << titulo << " no está en la página " << pagina;
}

TEST(Guia, NoLlevaLosEnlacesDeVueltaDeLaAyuda)
{
    const std::string texto = Paginas(1, NumeroDePaginas());
    EXPECT_EQ(texto.find("Volver al contenido"), std::string::npos);
}

TEST(Guia, LosEjemplosLlevanLaRejillaQueCalculaElPrograma)
{
    const int paginas = NumeroDePaginas();
    const std::string texto = Paginas(1, paginas);
    const std::size_t ejemplos = texto.rfind("Ejemplos resueltos");
    ASSERT_NE(ejemplos, std::string::npos);
    const std::string capitulo = texto.substr(ejemplos);
    int calculados = 0;
    for (const auto& entrada : std::filesystem::directory_iterator(kEjemplos)) {
        // The projects; the example table of the batch command is no worked example.
        if (ClaseDe(entrada.path().string()) == ClaseFichero::Ninguna) continue;
        const calculo::CalculoFichero calculo = calculo::CalculaFichero(entrada.path().string());
        ASSERT_TRUE(calculo.Correcto()) << entrada.path();
        ++calculados;
        EXPECT_NE(capitulo.find(entrada.path().filename().string()), std::string::npos) << entrada.path();
        // Each row of the grid, as the screen writes its cells with the comma.
        for (int n = 1; n <= calculo.g.MAXCAPAS; ++n) {
            std::string fila = std::to_string(n);
            for (int t = 1; t <= calculo.g.NTIPOS; ++t) {
                const CeldaResultado celda = calculo.clase == ClaseFichero::Flexion
                                                 ? CeldaFlexion(calculo.g, t, n, ',')
                                                 : CeldaConfina(calculo.g, t, n, ',');
                fila += " " + celda.texto;
            }
            EXPECT_NE(Compacto(capitulo).find(" " + fila + " "), std::string::npos)
                << entrada.path().filename() << ": " << fila;
        }
    }
    EXPECT_EQ(calculados, 3);
}
