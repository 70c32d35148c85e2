// The diagrams of the command: for every diagram and every kind of project, the list that the
// JSON carries, and the one that the library hands on, are the very list that the diagram
// procedure leaves when it is called on the file's calculated state, as the screen calls it.
#include "Json.h"
#include "Prueba.h"

#include "calculo/Diagrama.h"
#include "calculo/Proyecto.h"
#include "diagrams/Grafico.h"
#include "engine/Calculos.h"
#include "engine/Caracteristicas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <functional>
#include <map>

namespace texalon::prueba {
namespace {

// The default confinement project with a square and with a rectangular column.
constexpr std::string_view kPilarCuadrado = "2\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n";
constexpr std::string_view kPilarRectangular = "3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n";

struct Proyecto {
    std::string_view fichero;
    std::string_view contenido;
};

const std::map<std::string_view, Proyecto> kProyectos = {
    {"rectangular", {"viga.vmf", kFlexionRectangular}},
    {"T", {"viga_t.vmf", kFlexionT}},
    {"circular", {"pilar.vmc", kConfinamiento}},
    {"cuadrado", {"pilar_cuadrado.vmc", kPilarCuadrado}},
    {"rectangulo", {"pilar_rectangular.VMC", kPilarRectangular}},
};

// One diagram of one project, and what the screen would do to draw it.
struct Caso {
    std::string_view proyecto;
    std::string_view nombre;  // --diagrama
    int tipo;
    int capas;
    std::string_view procedimiento;
    const Dibujo* dibujo;
    Entero isotropico;
};

const Caso kCasos[] = {
    {"rectangular", "tension", 1, 1, "DiagramaTension", &kPicCarac, 0},
    {"rectangular", "tension", 3, 1, "DiagramaTension", &kPicCarac, 0},
    {"rectangular", "area", 1, 1, "DiagramaMomentoArea", &kPicFlexion, 0},
    {"rectangular", "capas", 1, 1, "DiagramaMomentoCapas", &kPicFlexion, 0},
    {"rectangular", "pivotes", 1, 1, "DiagramaPivotes", &kPicFlexion, 0},
    {"rectangular", "pivotes", 2, 2, "DiagramaPivotes", &kPicFlexion, 0},
    {"rectangular", "pivotes", 1, 5, "DiagramaPivotes", &kPicFlexion, 0},
    {"rectangular", "seccion", 1, 1, "DibujaSeccion", &kPicFlexion, 1},
    {"T", "tension", 2, 1, "DiagramaTension", &kPicCarac, 0},
    {"T", "area", 1, 1, "DiagramaMomentoAreaT", &kPicFlexion, 0},
    {"T", "capas", 1, 1, "DiagramaMomentoCapasT", &kPicFlexion, 0},
    {"T", "pivotes", 1, 1, "DiagramaPivotesT", &kPicFlexion, 0},
    {"T", "pivotes", 2, 2, "DiagramaPivotesT", &kPicFlexion, 0},
    {"T", "seccion", 1, 1, "DibujaSeccionT", &kPicFlexion, 1},
    {"circular", "tension", 1, 1, "DiagramaTension", &kPicCarac, 0},
    {"circular", "confinamiento", 1, 1, "DiagramaConfina", &kPicConfina, 0},
    {"circular", "seccion", 1, 1, "DibujaSeccionConfina", &kPicConfina, 1},
    {"cuadrado", "seccion", 1, 1, "DibujaSeccionConfina", &kPicConfina, 1},
    {"rectangulo", "seccion", 1, 1, "DibujaSeccionConfina", &kPicConfina, 1},
    {"rectangulo", "confinamiento", 1, 1, "DiagramaConfina", &kPicConfina, 0},
};

using Llamada = std::function<void(General&, GeneralDibujo&, int tipo, int capas, char separador)>;

// Each procedure called as its screen calls it: the characteristics screen loads the type's
// design strains first, and the strain diagram reads the fields of the cell.
const std::map<std::string_view, Llamada> kLlamadas = {
    {"DiagramaTension",
     [](General& g, GeneralDibujo& d, int tipo, int, char s) {
         CargaCaracteristicas(g, tipo);
         DiagramaTension(g, d, static_cast<Entero>(tipo), s);
     }},
    {"DiagramaConfina", [](General& g, GeneralDibujo& d, int, int, char s) { DiagramaConfina(g, d, s); }},
    {"DiagramaMomentoArea", [](General& g, GeneralDibujo& d, int, int, char s) { DiagramaMomentoArea(g, d, s); }},
    {"DiagramaMomentoAreaT", [](General& g, GeneralDibujo& d, int, int, char s) { DiagramaMomentoAreaT(g, d, s); }},
    {"DiagramaMomentoCapas", [](General& g, GeneralDibujo& d, int, int, char s) { DiagramaMomentoCapas(g, d, s); }},
    {"DiagramaMomentoCapasT", [](General& g, GeneralDibujo& d, int, int, char s) { DiagramaMomentoCapasT(g, d, s); }},
    {"DiagramaPivotes", [](General& g, GeneralDibujo& d, int tipo, int capas,
                           char s) { DiagramaPivotes(g, d, ResultadosFlexion(g, tipo, capas, s), s); }},
    {"DiagramaPivotesT", [](General& g, GeneralDibujo& d, int tipo, int capas,
                            char s) { DiagramaPivotesT(g, d, ResultadosFlexion(g, tipo, capas, s), s); }},
    {"DibujaSeccion", [](General& g, GeneralDibujo& d, int, int, char s) { DibujaSeccion(g, d, s); }},
    {"DibujaSeccionT", [](General& g, GeneralDibujo& d, int, int, char s) { DibujaSeccionT(g, d, s); }},
    {"DibujaSeccionConfina", [](General& g, GeneralDibujo& d, int, int, char s) { DibujaSeccionConfina(g, d, s); }},
};

// The list that the procedure leaves on the file's own calculated state.
GeneralDibujo ListaDelProcedimiento(const Caso& caso, const std::string& fichero, char separador)
{
    calculo::CalculoFichero calculo = calculo::CalculaFichero(fichero);
    EXPECT_TRUE(calculo.Correcto());
    GeneralDibujo d;
    kLlamadas.at(caso.procedimiento)(calculo.g, d, caso.tipo, caso.capas, separador);
    return d;
}

std::vector<std::string> Argumentos(const Caso& caso, const std::string& fichero)
{
    return {"--json",
            "--diagrama",
            std::string(caso.nombre),
            "--tipo",
            std::to_string(caso.tipo),
            "--capas",
            std::to_string(caso.capas),
            fichero};
}

// Both lists the same, element by element, over the whole of both arrays.
::testing::AssertionResult MismaLista(const GeneralDibujo& obtenida, const GeneralDibujo& esperada)
{
    if (obtenida.NLISTA != esperada.NLISTA)
        return ::testing::AssertionFailure() << "NLISTA " << obtenida.NLISTA << " y " << esperada.NLISTA;
    for (int i = 1; i <= GeneralDibujo::kElementos; ++i) {
        for (int c = 1; c <= GeneralDibujo::kCampos; ++c)
            if (obtenida.LISTA(i, c) != esperada.LISTA(i, c))
                return ::testing::AssertionFailure()
                       << "LISTA(" << i << ", " << c << ") " << obtenida.LISTA(i, c) << " y " << esperada.LISTA(i, c);
        if (obtenida.TEXTOS(i) != esperada.TEXTOS(i))
            return ::testing::AssertionFailure()
                   << "TEXTOS(" << i << ") «" << obtenida.TEXTOS(i) << "» y «" << esperada.TEXTOS(i) << "»";
    }
    return ::testing::AssertionSuccess();
}

// The "lista" member against the procedure's list: every field of elements 1 to NLISTA.
void ComparaConJson(const ValorJson& lista, const GeneralDibujo& d, std::string_view procedimiento)
{
    ASSERT_EQ(lista.clase, ValorJson::Clase::Objeto);
    EXPECT_EQ(lista.Nombres(), (std::vector<std::string>{"diagrama", "NLISTA", "LISTA", "TEXTOS"}));
    EXPECT_EQ(lista["diagrama"].cadena, procedimiento);
    ASSERT_GT(d.NLISTA, 0);
    EXPECT_EQ(lista["NLISTA"].numero, d.NLISTA);
    const std::vector<ValorJson>& elementos = lista["LISTA"].lista;
    const std::vector<ValorJson>& textos = lista["TEXTOS"].lista;
    ASSERT_EQ(elementos.size(), static_cast<std::size_t>(d.NLISTA));
    ASSERT_EQ(textos.size(), static_cast<std::size_t>(d.NLISTA));
    for (int i = 1; i <= d.NLISTA; ++i) {
        const std::vector<ValorJson>& campos = elementos[static_cast<std::size_t>(i - 1)].lista;
        ASSERT_EQ(campos.size(), 10U) << i;
        for (int c = 1; c <= 10; ++c) {
            const ValorJson& campo = campos[static_cast<std::size_t>(c - 1)];
            if (std::isfinite(d.LISTA(i, c)))
                EXPECT_EQ(campo.numero, d.LISTA(i, c)) << "LISTA(" << i << ", " << c << ")";
            else
                EXPECT_EQ(campo.clase, ValorJson::Clase::Nulo) << "LISTA(" << i << ", " << c << ")";
        }
        EXPECT_EQ(textos[static_cast<std::size_t>(i - 1)].cadena, d.TEXTOS(i)) << "TEXTOS(" << i << ")";
    }
}

struct CasoConSeparador {
    Caso caso;
    char separador;
};

std::vector<CasoConSeparador> CasosConSeparador()
{
    std::vector<CasoConSeparador> casos;
    for (const char separador : {',', '.'})
        for (const Caso& caso : kCasos)
            casos.push_back({caso, separador});
    return casos;
}

void PrintTo(const CasoConSeparador& caso, std::ostream* salida)
{
    *salida << caso.caso.proyecto << " " << caso.caso.nombre << " " << caso.caso.tipo << " " << caso.caso.capas << " '"
            << caso.separador << "'";
}

std::string NombreCaso(const ::testing::TestParamInfo<CasoConSeparador>& info)
{
    const Caso& caso = info.param.caso;
    return std::string(caso.proyecto) + "_" + std::string(caso.nombre) + "_" + std::to_string(caso.tipo) + "_" +
           std::to_string(caso.capas) + (info.param.separador == ',' ? "_coma" : "_punto");
}

class ListaDeDiagrama : public ::testing::TestWithParam<CasoConSeparador> {};

TEST_P(ListaDeDiagrama, ElJsonLlevaLaListaDelProcedimiento)
{
    const auto& [caso, separador] = GetParam();
    const Proyecto& proyecto = kProyectos.at(caso.proyecto);
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(std::string(proyecto.fichero), proyecto.contenido);

    const Ejecucion ejecucion = EjecutaCalculo(Argumentos(caso, fichero), separador);
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
    EXPECT_EQ(ejecucion.errores, "");
    const std::vector<std::string> lineas = Lineas(ejecucion.salida);
    ASSERT_EQ(lineas.size(), 1U);
    const ValorJson objeto = LeeJson(lineas[0]);
    // "lista" closes the object, after the results and the verdict.
    const std::vector<std::string> nombres = objeto.Nombres();
    ASSERT_GE(nombres.size(), 3U);
    EXPECT_EQ(nombres[nombres.size() - 2], "veredicto");
    EXPECT_EQ(nombres.back(), "lista");
    ComparaConJson(objeto["lista"], ListaDelProcedimiento(caso, fichero, separador), caso.procedimiento);
}

TEST_P(ListaDeDiagrama, LosResultadosSonLosDeSinDiagrama)
{
    // The diagram runs after the results are in, and the object keeps them as they were.
    const auto& [caso, separador] = GetParam();
    const Proyecto& proyecto = kProyectos.at(caso.proyecto);
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(std::string(proyecto.fichero), proyecto.contenido);
    const std::string con = EjecutaCalculo(Argumentos(caso, fichero), separador).salida;
    const std::string sin = EjecutaCalculo({"--json", fichero}, separador).salida;
    ASSERT_EQ(sin.substr(sin.size() - 2), "}\n");
    EXPECT_EQ(con.substr(0, sin.size() - 2) + "}", sin.substr(0, sin.size() - 1));
    EXPECT_EQ(con.substr(sin.size() - 2, 9), ",\"lista\":");
}

TEST_P(ListaDeDiagrama, LaBibliotecaDaLaListaYSuDibujo)
{
    const auto& [caso, separador] = GetParam();
    const Proyecto& proyecto = kProyectos.at(caso.proyecto);
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(std::string(proyecto.fichero), proyecto.contenido);

    calculo::CalculoFichero calculo = calculo::CalculaFichero(fichero);
    ASSERT_TRUE(calculo.Correcto());
    const std::optional<calculo::Diagrama> diagrama = calculo::DiagramaDeNombre(caso.nombre);
    ASSERT_TRUE(diagrama.has_value());
    const std::optional<calculo::ListaDiagrama> lista =
        calculo::DibujaDiagrama(calculo, {*diagrama, caso.tipo, caso.capas}, separador);
    ASSERT_TRUE(lista.has_value());
    EXPECT_TRUE(calculo.Correcto());
    EXPECT_EQ(lista->procedimiento, caso.procedimiento);
    EXPECT_EQ(lista->dibujo, caso.dibujo);
    EXPECT_EQ(lista->isotropico, caso.isotropico);
    EXPECT_TRUE(MismaLista(lista->d, ListaDelProcedimiento(caso, fichero, separador)));
}

INSTANTIATE_TEST_SUITE_P(Calculo, ListaDeDiagrama, ::testing::ValuesIn(CasosConSeparador()), NombreCaso);

// ---- The options reach the procedure.

ValorJson ListaJson(const std::vector<std::string>& argumentos, char separador = ',')
{
    const Ejecucion ejecucion = EjecutaCalculo(argumentos, separador);
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
    return LeeJson(ejecucion.salida)["lista"];
}

TEST(DiagramaCalculo, ElTipoEligeLaLineaGruesaDeTension)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    for (const int tipo : {1, 2, 3}) {
        calculo::CalculoFichero calculo = calculo::CalculaFichero(fichero);
        const ValorJson lista = ListaJson({"--json", "--diagrama", "tension", "--tipo", std::to_string(tipo), fichero});
        // The one curve of width 2 is the type's, in its colour.
        int gruesas = 0;
        for (const ValorJson& elemento : lista["LISTA"].lista) {
            if (elemento.lista[0].numero != 1.0 || elemento.lista[8].numero != 2.0) continue;
            ++gruesas;
            EXPECT_EQ(elemento.lista[6].numero, static_cast<double>(calculo.g.COLORES(tipo))) << tipo;
        }
        EXPECT_EQ(gruesas, 1) << tipo;
    }
}

// The fields of every element of a "lista", and its texts.
std::vector<std::vector<double>> Numeros(const ValorJson& lista)
{
    std::vector<std::vector<double>> numeros;
    for (const ValorJson& elemento : lista["LISTA"].lista) {
        numeros.emplace_back();
        for (const ValorJson& campo : elemento.lista)
            numeros.back().push_back(campo.numero);
    }
    return numeros;
}

std::vector<std::string> Textos(const ValorJson& lista)
{
    std::vector<std::string> textos;
    for (const ValorJson& texto : lista["TEXTOS"].lista)
        textos.push_back(texto.cadena);
    return textos;
}

TEST(DiagramaCalculo, SinTipoNiCapasSeDibujaLaPrimeraCelda)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const ValorJson porDefecto = ListaJson({"--json", "--diagrama", "pivotes", fichero});
    const ValorJson primera = ListaJson({"--json", "--diagrama", "pivotes", "--tipo", "1", "--capas", "1", fichero});
    const ValorJson otra = ListaJson({"--json", "--diagrama", "pivotes", "--tipo", "2", "--capas", "2", fichero});
    EXPECT_EQ(Numeros(porDefecto), Numeros(primera));
    EXPECT_EQ(Textos(porDefecto), Textos(primera));
    // The cell of two layers of TEXALON H has a strain plane of its own.
    EXPECT_NE(Numeros(otra), Numeros(primera));
}

TEST(DiagramaCalculo, LaUltimaOpcionRepetidaVale)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const ValorJson lista = ListaJson({"--json", "--diagrama", "area", "--diagrama", "seccion", fichero});
    EXPECT_EQ(lista["diagrama"].cadena, "DibujaSeccion");
}

TEST(DiagramaCalculo, LosTextosLlevanElSeparadorDelSistema)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::vector<std::string> argumentos = {"--json", "--diagrama", "seccion", fichero};
    // With no top steel the drawing has 20 elements: the depth of the section, 0.6 m, in
    // "0.00" is element 16, and the width of the sheet, 0.125 m, in "0.000" is element 18.
    const std::vector<std::string> coma = Textos(ListaJson(argumentos, ','));
    const std::vector<std::string> punto = Textos(ListaJson(argumentos, '.'));
    ASSERT_EQ(coma.size(), 20U);
    ASSERT_EQ(punto.size(), 20U);
    EXPECT_EQ(coma[15], "0,60");
    EXPECT_EQ(punto[15], "0.60");
    EXPECT_EQ(coma[17], "0,125");
    EXPECT_EQ(punto[17], "0.125");
    EXPECT_EQ(coma[18], "10,00 cm²");
    EXPECT_EQ(punto[18], "10.00 cm²");
    // The numbers of LISTA are the JSON's own, the same whatever the separator.
    EXPECT_EQ(Numeros(ListaJson(argumentos, ',')), Numeros(ListaJson(argumentos, '.')));
}

TEST(DiagramaCalculo, SinJsonElTextoNoCambia)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const Ejecucion sin = EjecutaCalculo({fichero});
    const Ejecucion con = EjecutaCalculo({"--diagrama", "capas", fichero});
    EXPECT_EQ(con.estado, 0);
    EXPECT_EQ(con.errores, "");
    EXPECT_EQ(con.salida, sin.salida);
}

TEST(DiagramaCalculo, SinDiagramaNoHayLista)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "--tipo", "2", "--capas", "3", fichero});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_FALSE(LeeJson(ejecucion.salida).Tiene("lista"));
    EXPECT_EQ(ejecucion.salida, EjecutaCalculo({"--json", fichero}).salida);
}

TEST(DiagramaCalculo, NombresDeLosDiagramas)
{
    EXPECT_EQ(calculo::NombresDiagramas(), "tension, confinamiento, area, capas, pivotes y seccion");
    for (const std::string_view nombre : {"tension", "confinamiento", "area", "capas", "pivotes", "seccion"}) {
        const std::optional<calculo::Diagrama> diagrama = calculo::DiagramaDeNombre(nombre);
        ASSERT_TRUE(diagrama.has_value()) << nombre;
        EXPECT_EQ(calculo::NombreDiagrama(*diagrama), nombre);
    }
    EXPECT_EQ(calculo::DiagramaDeNombre("Tension"), std::nullopt);
    EXPECT_EQ(calculo::DiagramaDeNombre("tensión"), std::nullopt);
    EXPECT_EQ(calculo::DiagramaDeNombre(""), std::nullopt);
}

// ---- Diagrams that cannot be drawn.

constexpr std::string_view kSinArea =
    "un proyecto de confinamiento no tiene el diagrama «area»: sus diagramas son tension, confinamiento y seccion.";

TEST(DiagramaCalculo, UnPilarNoTieneDiagramaDeArea)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("pilar.vmc", kConfinamiento);
    const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", "area", fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida, "");
    EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kSinArea) + "\n");
}

TEST(DiagramaCalculo, UnPilarNoTieneCapasNiPivotes)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("pilar.vmc", kConfinamiento);
    for (const std::string nombre : {"capas", "pivotes"}) {
        const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", nombre, fichero});
        EXPECT_EQ(ejecucion.estado, 1);
        EXPECT_EQ(ejecucion.errores, fichero + ": un proyecto de confinamiento no tiene el diagrama «" + nombre +
                                         "»: sus diagramas son tension, confinamiento y seccion.\n");
    }
}

TEST(DiagramaCalculo, UnaVigaNoTieneDiagramaDeConfinamiento)
{
    DirectorioTemporal directorio;
    for (const auto& [nombre, contenido] :
         {std::pair{"viga.vmf", kFlexionRectangular}, std::pair{"viga_t.vmf", kFlexionT}}) {
        const std::string fichero = directorio.Escribe(nombre, contenido);
        const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", "confinamiento", fichero});
        EXPECT_EQ(ejecucion.estado, 1);
        EXPECT_EQ(ejecucion.errores, fichero +
                                         ": un proyecto de flexión no tiene el diagrama «confinamiento»: sus diagramas "
                                         "son tension, area, capas, pivotes y seccion.\n");
    }
}

TEST(DiagramaCalculo, ElDiagramaQueFaltaVaEnElErrorDelJson)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("pilar.vmc", kConfinamiento);
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "--diagrama", "area", fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida, "{\"fichero\":\"" + fichero + "\",\"tipo\":\"confinamiento\",\"error\":\"" +
                                    std::string(kSinArea) + "\"}\n");
    EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kSinArea) + "\n");
}

TEST(DiagramaCalculo, UnaCeldaSinResultadoNoTienePivotes)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    // Three layers of TEXALON X bring no gain to the default section.
    ASSERT_EQ(calculo::CalculaFichero(fichero).g.MU(3, 3), kSinMejora);
    const Ejecucion ejecucion =
        EjecutaCalculo({"--json", "--diagrama", "pivotes", "--tipo", "3", "--capas", "3", fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    const std::string mensaje =
        "la celda de TEXALON X y 3 capas no tiene resultado («---»): no hay diagrama de pivotes.";
    EXPECT_EQ(ejecucion.errores, fichero + ": " + mensaje + "\n");
    EXPECT_EQ(ejecucion.salida,
              "{\"fichero\":\"" + fichero + "\",\"tipo\":\"rectangular\",\"error\":\"" + mensaje + "\"}\n");
}

TEST(DiagramaCalculo, UnaCeldaSinResultadoEnLaSeccionEnT)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga_t.vmf", kFlexionT);
    const calculo::CalculoFichero calculo = calculo::CalculaFichero(fichero);
    // The first cell with the mark of no gain, by type and then layers.
    int tipo = 0;
    int capas = 0;
    for (int t = 1; t <= 3 && tipo == 0; ++t)
        for (int n = 1; n <= 5 && tipo == 0; ++n)
            if (calculo.g.MU(t, n) == kSinMejora) {
                tipo = t;
                capas = n;
            }
    ASSERT_NE(tipo, 0) << "la sección en T por defecto no tiene celdas sin resultado";
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--diagrama", "pivotes", "--tipo", std::to_string(tipo), "--capas", std::to_string(capas), fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, fichero + ": la celda de " + calculo.g.TIPOS(tipo) + " y " + std::to_string(capas) +
                                     (capas == 1 ? " capa" : " capas") +
                                     " no tiene resultado («---»): no hay diagrama de pivotes.\n");
}

// MCP, line 13 of a rectangular file, far over the limit of the initial strain.
std::string VigaConPredeformacion()
{
    std::string contenido(kFlexionRectangular);
    contenido.replace(contenido.find("0.125\r\n0\r\n"), 10, "0.125\r\n1000\r\n");
    return contenido;
}

TEST(DiagramaCalculo, LaPredeformacionDetieneElCalculoYNoHayDiagramaDeResultados)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", VigaConPredeformacion());
    for (const std::string nombre : {"capas", "area", "pivotes"}) {
        const Ejecucion ejecucion = EjecutaCalculo({"--json", "--diagrama", nombre, fichero});
        EXPECT_EQ(ejecucion.estado, 1);
        EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kMensajePredeformacion) + "\n");
        EXPECT_EQ(ejecucion.salida, "{\"fichero\":\"" + fichero + "\",\"tipo\":\"rectangular\",\"error\":\"" +
                                        std::string(kMensajePredeformacion) + "\"}\n");
    }
}

// The section drawing reads only the section's data and the stress-strain chart only the
// catalogue: both are drawn past the strain limit, the same as for the beam without its initial
// moment, and the file still fails with the calculation's message.
TEST(DiagramaCalculo, PasadaLaPredeformacionSeccionYTensionSeDibujanIgual)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", VigaConPredeformacion());
    const std::string sinMomento = directorio.Escribe("sin_momento.vmf", kFlexionRectangular);
    for (const std::string nombre : {"seccion", "tension"}) {
        const Ejecucion ejecucion = EjecutaCalculo({"--json", "--diagrama", nombre, "--tipo", "2", fichero});
        EXPECT_EQ(ejecucion.estado, 1) << nombre;
        EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kMensajePredeformacion) + "\n") << nombre;
        const ValorJson objeto = LeeJson(ejecucion.salida);
        EXPECT_EQ(objeto.Nombres(), (std::vector<std::string>{"fichero", "tipo", "error", "lista"})) << nombre;
        EXPECT_EQ(objeto["error"].cadena, std::string(kMensajePredeformacion));
        EXPECT_EQ(objeto["lista"]["diagrama"].cadena, nombre == "seccion" ? "DibujaSeccion" : "DiagramaTension");
        EXPECT_GT(objeto["lista"]["NLISTA"].numero, 0.0) << nombre;
        // The list is the last member: its text, as written for the beam without the moment.
        const std::string referencia =
            EjecutaCalculo({"--json", "--diagrama", nombre, "--tipo", "2", sinMomento}).salida;
        const auto lista = [](const std::string& linea) { return linea.substr(linea.find("\"lista\":")); };
        EXPECT_EQ(lista(ejecucion.salida), lista(referencia)) << nombre;
    }
}

TEST(DiagramaCalculo, PasadaLaPredeformacionLaSeccionVaASuSvg)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", VigaConPredeformacion());
    std::vector<std::string> escritos;
    calculo::Dispositivos dispositivos;
    dispositivos.svg = [&escritos](const GeneralDibujo& d, const Dibujo&, Entero, const std::string& destino) {
        escritos.push_back(destino);
        return d.NLISTA > 0;
    };
    const std::string carpeta = directorio.Ruta();
    const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", "seccion", "--svg", carpeta, fichero}, ',', dispositivos);
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kMensajePredeformacion) + "\n");
    EXPECT_EQ(escritos, std::vector<std::string>{carpeta + "/viga-seccion.svg"});
    EXPECT_EQ(ejecucion.salida, "");
}

// A file that cannot be read has no data to draw.
TEST(DiagramaCalculo, UnFicheroIlegibleNoDibujaNiLaSeccion)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", "1\r\n0.4\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "--diagrama", "seccion", fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_FALSE(LeeJson(ejecucion.salida).Tiene("lista"));
}

TEST(DiagramaCalculo, LaPredeformacionDelPilarTambien)
{
    DirectorioTemporal directorio;
    const std::string fichero =
        directorio.Escribe("pilar.vmc", "1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n100000\r\n1\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", "confinamiento", fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kMensajePredeformacion) + "\n");
}

TEST(DiagramaCalculo, TrasUnDiagramaQueFaltaSigueConElSiguiente)
{
    DirectorioTemporal directorio;
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "--diagrama", "area", pilar, "ausente.vmf", viga});
    EXPECT_EQ(ejecucion.estado, 1);
    const std::vector<std::string> objetos = Lineas(ejecucion.salida);
    ASSERT_EQ(objetos.size(), 3U);
    EXPECT_TRUE(LeeJson(objetos[0]).Tiene("error"));
    EXPECT_FALSE(LeeJson(objetos[0]).Tiene("lista"));
    EXPECT_TRUE(LeeJson(objetos[1]).Tiene("error"));
    EXPECT_EQ(LeeJson(objetos[2])["lista"]["diagrama"].cadena, "DiagramaMomentoArea");
    EXPECT_FALSE(Contiene(ejecucion.errores, viga));
}

}  // namespace
}  // namespace texalon::prueba
