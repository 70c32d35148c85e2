// The command line of the diagrams: --diagrama, --tipo, --capas and --svg, their values and
// their usage errors, and the help that tells them.
#include "Prueba.h"

#include "comun/Tablas.h"

#include "calculo/Calculo.h"

#include <gtest/gtest.h>

namespace texalon::prueba {
namespace {

// The two lines of a usage error.
std::string ErrorDeUso(const std::string& error)
{
    return "texalon-calculo: " + error + "\nPruebe «texalon-calculo --help» para más información.\n";
}

void EsperaErrorDeUso(const std::vector<std::string>& argumentos, const std::string& error)
{
    const Ejecucion ejecucion = EjecutaCalculo(argumentos);
    EXPECT_EQ(ejecucion.estado, 2);
    EXPECT_EQ(ejecucion.salida, "");
    EXPECT_EQ(ejecucion.errores, ErrorDeUso(error));
}

// The message of a value of --tipo or --capas that is no whole number from 1 to `maximo`.
std::string NoEsEnteroDeUnoA(const std::string& valor, const std::string& opcion, int maximo)
{
    return "el valor «" + valor + "» de " + opcion + " no es un número entero de 1 a " + std::to_string(maximo) + ".";
}

const std::string kDiagramasQueHay = "los diagramas son tension, confinamiento, area, capas, pivotes y seccion.";

// Options that the command does not take, and the usage error that it gives: one row a case.
struct UsoIncorrecto {
    const char* nombre;
    std::vector<std::string> argumentos;
    std::string error;
};

class UsoDelDiagrama : public ::testing::TestWithParam<UsoIncorrecto> {};

TEST_P(UsoDelDiagrama, DaSuErrorDeUso) { EsperaErrorDeUso(GetParam().argumentos, GetParam().error); }

// clang-format off
const UsoIncorrecto kUsosIncorrectos[] = {
    {"DiagramaDesconocido", {"--diagrama", "tensiones", "viga.vmf"},
     "diagrama «tensiones» no reconocido: " + kDiagramasQueHay},
    {"ElValorSeTomaAunqueEmpieceConGuion", {"--diagrama", "--json", "viga.vmf"},
     "diagrama «--json» no reconocido: " + kDiagramasQueHay},
    {"UnaCarpetaVaciaNoEsCarpeta", {"--diagrama", "capas", "--svg", "", "viga.vmf"},
     "falta el valor de la opción «--svg»."},
    {"SvgSinDiagramaEsErrorDeUso", {"--svg", "salida", "viga.vmf"},
     "la opción «--svg» necesita «--diagrama NOMBRE»."},
    // Without a file, that is said first.
    {"SinFicheroConSvg", {"--svg", "salida"}, "falta el nombre de algún fichero."},
    {"SinFicheroConDiagrama", {"--diagrama", "capas"}, "falta el nombre de algún fichero."},
    {"ElPrimerErrorEsElQueSeDice", {"--tipo", "9", "--diagrama", "nada", "viga.vmf"},
     NoEsEnteroDeUnoA("9", "--tipo", 3)},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(OrdenDiagrama, UsoDelDiagrama, ::testing::ValuesIn(kUsosIncorrectos), NombreDeFila());

TEST(OrdenDiagrama, ElNombreNoLlevaTildeNiMayusculas)
{
    for (const std::string nombre : {"tensión", "Capas", "SECCION", ""})
        EXPECT_EQ(EjecutaCalculo({"--diagrama", nombre, "viga.vmf"}).estado, 2) << nombre;
}

TEST(OrdenDiagrama, TipoFueraDeIntervalo)
{
    for (const std::string valor : {"0", "4", "-1", "10"})
        EsperaErrorDeUso({"--diagrama", "tension", "--tipo", valor, "viga.vmf"}, NoEsEnteroDeUnoA(valor, "--tipo", 3));
}

TEST(OrdenDiagrama, TipoQueNoEsUnNumero)
{
    for (const std::string valor : {"dos", "1.5", "1,0", "+1", " 1", "1 ", "", "99999999999999999999"})
        EsperaErrorDeUso({"--diagrama", "tension", "--tipo", valor, "viga.vmf"}, NoEsEnteroDeUnoA(valor, "--tipo", 3));
}

TEST(OrdenDiagrama, CapasFueraDeIntervaloONoNumericas)
{
    for (const std::string valor : {"0", "6", "tres", "2.0"})
        EsperaErrorDeUso({"--diagrama", "pivotes", "--capas", valor, "viga.vmf"},
                         NoEsEnteroDeUnoA(valor, "--capas", 5));
}

TEST(OrdenDiagrama, LosExtremosSeAceptan)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", kFlexionRectangular);
    EXPECT_EQ(EjecutaCalculo({"--diagrama", "tension", "--tipo", "3", fichero}).estado, 0);
    EXPECT_EQ(EjecutaCalculo({"--diagrama", "pivotes", "--tipo", "1", "--capas", "5", fichero}).estado, 0);
    EXPECT_EQ(EjecutaCalculo({"--diagrama", "pivotes", "--tipo", "1", "--capas", "01", fichero}).estado, 0);
}

TEST(OrdenDiagrama, FaltaElValor)
{
    for (const std::string opcion : {"--diagrama", "--tipo", "--capas", "--svg"})
        EsperaErrorDeUso({"viga.vmf", opcion}, "falta el valor de la opción «" + opcion + "».");
}

TEST(OrdenDiagrama, TrasDosGuionesLasOpcionesSonNombres)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--", "--diagrama", "capas"});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores,
              "--diagrama: no es un fichero de proyecto TEXALON (.vmf o .vmc).\n"
              "capas: no es un fichero de proyecto TEXALON (.vmf o .vmc).\n");
}

TEST(OrdenDiagrama, LaAyudaPuedeConLasOpcionesDeDiagrama)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--diagrama", "capas", "--svg", "salida", "--help"});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.salida, calculo::TextoAyuda());
}

TEST(OrdenDiagrama, LaAyudaNombraTodasLasOpciones)
{
    const std::string ayuda = calculo::TextoAyuda();
    for (const std::string_view opcion :
         {"--json", "--diagrama NOMBRE", "--tipo N", "--capas N", "--svg CARPETA", "-h, --help", "  --  "})
        EXPECT_TRUE(Contiene(ayuda, opcion));
    EXPECT_TRUE(Contiene(ayuda,
                         "  o: texalon-calculo [--json] --diagrama NOMBRE [--tipo N] [--capas N]\n"
                         "                     [--svg CARPETA] FICHERO...\n"));
}

TEST(OrdenDiagrama, LaAyudaNombraTodosLosDiagramas)
{
    const std::string ayuda = calculo::TextoAyuda();
    for (const std::string_view nombre : {"tension", "confinamiento", "area", "capas", "pivotes", "seccion"})
        EXPECT_TRUE(Contiene(ayuda, "                " + std::string(nombre) + " ")) << nombre;
}

TEST(OrdenDiagrama, LaAyudaDiceLaListaElSvgYLosErrores)
{
    const std::string ayuda = calculo::TextoAyuda();
    for (std::string_view texto : {
             "«lista»",
             "DiagramaMomentoCapasT",
             "«NLISTA», «LISTA»",
             "«TEXTOS» llevan el separador decimal del sistema",
             "de 1 a 3\n              (1 TEXALON L, 2 TEXALON H, 3 TEXALON X); 1 si no se da.",
             "de 1 a 5; 1 si no se\n              da.",
             "CARPETA/<nombre del fichero sin extensión>-NOMBRE.svg",
             "no necesita pantalla gráfica",
             "predeformación superior al 2 por mil",
             "(area en un pilar, por ejemplo)",
             "resultado («---»)",
             ", --svg sin --diagrama o --csv con otra opción.",
             "tension y seccion no necesitan el cálculo: se dibujan aunque este\n"
             "              falle, y el fichero falla igualmente con el mensaje del cálculo.",
             "«veredicto» (el texto del veredicto de la pantalla, o null si no\n"
             "              muestra ninguno)",
         })
        EXPECT_TRUE(Contiene(ayuda, texto));
}

}  // namespace
}  // namespace texalon::prueba
