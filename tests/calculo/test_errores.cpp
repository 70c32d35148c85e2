// Files that cannot be calculated: what the command says, and that it goes on with the next.
#include "Prueba.h"

#include "comun/Tablas.h"

#include "engine/Calcular.h"

#include <gtest/gtest.h>

namespace texalon::prueba {
namespace {

constexpr std::string_view kDatosIncorrectos = "Los datos almacenados no son correctos.";
constexpr std::string_view kNoEncontrado = "Error 53: No se ha encontrado el archivo";

// The default rectangular file with one line changed (numbered from 1).
std::string ConLinea(std::size_t numero, std::string_view valor)
{
    std::vector<std::string> lineas = Lineas(std::string(kFlexionRectangular));
    std::string texto;
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        std::string linea = i + 1 == numero ? std::string(valor) : lineas[i].substr(0, lineas[i].size() - 1);
        texto += linea + "\r\n";
    }
    return texto;
}

// A run that fails: status 1, nothing on the standard output and these errors.
void EsperaFalloSinSalida(const Ejecucion& ejecucion, const std::string& errores)
{
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida, "");
    EXPECT_EQ(ejecucion.errores, errores);
}

// A run with --json that fails: status 1 and this object on the standard output.
void EsperaFalloEnJson(const Ejecucion& ejecucion, const std::string& salida)
{
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida, salida);
}

// The object of a file that failed: its name, its kind where it was read, and the error.
std::string ObjetoDeError(const std::string& fichero, const std::string& tipo, const std::string& error)
{
    return "{\"fichero\":\"" + fichero + "\"" + (tipo.empty() ? "" : ",\"tipo\":\"" + tipo + "\"") + ",\"error\":\"" +
           error + "\"}\n";
}

// A rectangular beam file with one line changed that the command refuses, in text and in JSON.
struct LineaQueFalla {
    const char* nombre;
    std::size_t linea;
    std::string_view valor;
    std::string_view mensaje;
    const char* tipo;  // the kind of the JSON object: "" where the file gave none
    bool tambienEnLosErrores;  // whether the JSON run says it on the standard error too
};

class VigaQueFalla : public ::testing::TestWithParam<LineaQueFalla> {
protected:
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("viga.vmf", ConLinea(GetParam().linea, GetParam().valor));
};

TEST_P(VigaQueFalla, SeDiceEnLosErroresYTerminaConUno)
{
    EsperaFalloSinSalida(EjecutaCalculo({fichero}), fichero + ": " + std::string(GetParam().mensaje) + "\n");
}

TEST_P(VigaQueFalla, EnJsonLlevaElErrorYNingunResultado)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--json", fichero});
    EsperaFalloEnJson(ejecucion, ObjetoDeError(fichero, GetParam().tipo, std::string(GetParam().mensaje)));
    if (GetParam().tambienEnLosErrores) {
        EXPECT_TRUE(Contiene(ejecucion.errores, GetParam().mensaje));
    }
}

// clang-format off
const LineaQueFalla kLineasQueFallan[] = {
    // Section kind 3 is no kind at all: the object has no "tipo".
    {"Rechazado", 1, "3", kDatosIncorrectos, "", true},
    // MCP is line 13 of a rectangular file.
    {"MomentoInicialGrandeSuperaLaPredeformacion", 13, "1000", kMensajePredeformacion, "rectangular", false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(ErroresCalculo, VigaQueFalla, ::testing::ValuesIn(kLineasQueFallan), NombreDeFila());

TEST(ErroresCalculo, UnFicheroQueNoExisteDaDosMensajes)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Fichero("no_esta.vmf");
    EsperaFalloSinSalida(EjecutaCalculo({fichero}), fichero + ": " + std::string(kNoEncontrado) + "\n" + fichero +
                                                        ": " + std::string(kDatosIncorrectos) + "\n");
}

TEST(ErroresCalculo, UnFicheroQueNoExisteEnJsonUneLosMensajes)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Fichero("no_esta.vmc");
    EsperaFalloEnJson(
        EjecutaCalculo({"--json", fichero}),
        ObjetoDeError(fichero, "confinamiento", std::string(kNoEncontrado) + "\\n" + std::string(kDatosIncorrectos)));
}

TEST(ErroresCalculo, UnFicheroCortoDiceElFinalAntesQueLosDatos)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("corto.vmf", "1\r\n0.4\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(Lineas(ejecucion.errores),
              (std::vector<std::string>{fichero + ": Error 62: La entrada sobrepasa el final del archivo",
                                        fichero + ": " + std::string(kDatosIncorrectos)}));
}

TEST(ErroresCalculo, UnAxilGrandeSuperaLaPredeformacionDelPilar)
{
    DirectorioTemporal directorio;
    const std::string fichero =
        directorio.Escribe("pilar.vmc", "1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n100000\r\n1\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({fichero});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, fichero + ": " + std::string(kMensajePredeformacion) + "\n");
}

TEST(ErroresCalculo, OtraExtensionNoEsUnProyecto)
{
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe("notas.txt", kFlexionRectangular);
    EsperaFalloSinSalida(EjecutaCalculo({fichero}),
                         fichero + ": no es un fichero de proyecto TEXALON (.vmf o .vmc).\n");
}

TEST(ErroresCalculo, OtraExtensionEnJsonNoTieneTipo)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--json", "notas.txt"});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida,
              "{\"fichero\":\"notas.txt\",\"error\":\"no es un fichero de proyecto TEXALON (.vmf o .vmc).\"}\n");
}

TEST(ErroresCalculo, TrasUnFalloSigueConLosDemas)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::string ausente = directorio.Fichero("ausente.vmf");
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    const Ejecucion ejecucion = EjecutaCalculo({viga, ausente, pilar});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_TRUE(Contiene(ejecucion.salida, viga + ": Flexión, sección rectangular\n"));
    EXPECT_TRUE(Contiene(ejecucion.salida, "\n\n" + pilar + ": Confinamiento, sección circular\n"));
    EXPECT_FALSE(Contiene(ejecucion.salida, ausente));
    EXPECT_TRUE(Contiene(ejecucion.errores, ausente + ": " + std::string(kNoEncontrado)));
    EXPECT_FALSE(Contiene(ejecucion.errores, viga));
}

TEST(ErroresCalculo, TrasUnFalloSigueConLosDemasEnJson)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    const Ejecucion ejecucion = EjecutaCalculo({"--json", viga, "notas.txt", pilar});
    EXPECT_EQ(ejecucion.estado, 1);
    const std::vector<std::string> objetos = Lineas(ejecucion.salida);
    ASSERT_EQ(objetos.size(), 3U);
    EXPECT_TRUE(Contiene(objetos[0], "\"MU\":[["));
    EXPECT_TRUE(Contiene(objetos[1], "\"error\":"));
    EXPECT_TRUE(Contiene(objetos[2], "\"RESU\":[["));
}

TEST(ErroresCalculo, TodosCorrectosTerminaConCero)
{
    DirectorioTemporal directorio;
    const Ejecucion ejecucion =
        EjecutaCalculo({directorio.Escribe("a.vmf", kFlexionRectangular), directorio.Escribe("b.VMF", kFlexionT)});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
}

// A rectangular column whose sides' ratio is 3.3: the file checks take it, the fields refuse it,
// and its calculation would never end. The file fails with the field's message and the next
// file is calculated.
TEST(ErroresCalculo, UnValorQueElCampoRechazaDetieneElFicheroConElMensajeDelCampo)
{
    DirectorioTemporal directorio;
    const std::string pilar =
        directorio.Escribe("pilar.vmc", "3\r\n0.5\r\n0.15\r\n15\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1.2\r\n");
    const std::string bueno = directorio.Escribe("bueno.vmc", kConfinamiento);
    const Ejecucion ejecucion = EjecutaCalculo({pilar, bueno});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores,
              pilar + ": TX_DIAM: La relación entre lados del elemento a confinar debe ser menor de 1,5.\n");
    EXPECT_TRUE(Contiene(ejecucion.salida, bueno + ": Confinamiento, sección circular"));
    EXPECT_FALSE(Contiene(ejecucion.salida, pilar + ":"));
}

// The same column calculated as a square one: only a rectangle has a ratio of sides.
TEST(ErroresCalculo, LaRelacionDeLadosSoloSeMideEnElRectangulo)
{
    DirectorioTemporal directorio;
    const std::string pilar =
        directorio.Escribe("pilar.vmc", "2\r\n0.5\r\n0.15\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1.2\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({pilar});
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
    EXPECT_EQ(ejecucion.errores, "");
}

// Both ends of a field's range pass it: the strengths at their greatest and the coefficients at
// their least are calculated.
TEST(ErroresCalculo, UnValorEnElLimiteDeSuCampoSeCalcula)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe(
        "viga.vmf", "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n50\r\n600\r\n1\r\n1\r\n1\r\n0.125\r\n0\r\n0\r\n");
    const std::string pilar = directorio.Escribe("pilar.vmc", "1\r\n0.5\r\n0.4\r\n50\r\n1\r\n1\r\n1\r\n0\r\n1\r\n");
    const std::string flojo = directorio.Escribe("flojo.vmc", "1\r\n0.5\r\n0.4\r\n15\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({viga, pilar, flojo});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
    for (const std::string& fichero : {viga, pilar, flojo})
        EXPECT_TRUE(Contiene(ejecucion.salida, fichero + ": ")) << fichero;
}

// Every value that the file checks take and a field refuses, file by file: the file fails with
// the field's message, and is not calculated.
struct ValorQueElCampoRechaza {
    const char* nombre;
    const char* fichero;
    std::string_view bytes;
    const char* mensaje;  // the field and its message
};

void PrintTo(const ValorQueElCampoRechaza& caso, std::ostream* salida) { *salida << caso.nombre; }

class ValoresQueLosCamposRechazan : public ::testing::TestWithParam<ValorQueElCampoRechaza> {};

TEST_P(ValoresQueLosCamposRechazan, ElFicheroFallaConElMensajeDelCampo)
{
    const ValorQueElCampoRechaza& caso = GetParam();
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(caso.fichero, caso.bytes);
    EsperaFalloSinSalida(EjecutaCalculo({fichero}), fichero + ": " + caso.mensaje + "\n");
}

// Rectangular: ANCHO CANTO RECUB ASI ASS FCK FYK GC GS GR ANCHOR MCP MD; T: ANCHO CANTO
// ANCHOALMA CANTOALA, then the same; column: SECCION DIAM LADOMENOR FCK GC GS GR NCP INCR.
INSTANTIATE_TEST_SUITE_P(
    ErroresCalculo, ValoresQueLosCamposRechazan,
    ::testing::Values(
        ValorQueElCampoRechaza{"ancho", "viga.vmf",
                               "1\r\n0.005\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.005\r\n0\r\n0\r\n",
                               "TX_ANCHO: El ancho de la sección debe ser un número mayor que cero."},
        ValorQueElCampoRechaza{"canto", "viga.vmf",
                               "1\r\n0.4\r\n0.008\r\n0.004\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_CANTO: El canto de la sección debe ser un número mayor que cero."},
        ValorQueElCampoRechaza{"recubrimiento", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.009\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_RECUB: El recubrimiento de la sección debe ser mayor que cero."},
        ValorQueElCampoRechaza{"armadura_inferior", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.05\r\n0.009\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_ASI: La armadura inferior de la sección debe ser mayor que cero."},
        ValorQueElCampoRechaza{"ancho_del_refuerzo", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.009\r\n0\r\n0\r\n",
                               "CO_ANCHOR: El ancho del refuerzo a disponer en la sección debe ser mayor que cero."},
        // Of 0 the calculation would end in a division by zero.
        ValorQueElCampoRechaza{"coeficiente_del_hormigon", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n0\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_GC: El coeficiente de seguridad del hormigón no puede ser menor que 1."},
        ValorQueElCampoRechaza{"coeficiente_del_acero", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n0.99\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_GS: El coeficiente de seguridad del acero no puede ser menor de 1."},
        ValorQueElCampoRechaza{"coeficiente_del_refuerzo", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n0.5\r\n0.125\r\n0\r\n0\r\n",
                               "TX_GR: El coeficiente de seguridad del refuerzo TEXALON® no puede ser menor que 1."},
        // The file checks compare the values before their signs are dropped: a negative sheet
        // width, cover or flange depth passes them, and its absolute value is too large.
        ValorQueElCampoRechaza{"ancho_del_refuerzo_negativo", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n-0.5\r\n0\r\n0\r\n",
                               "CO_ANCHOR: El ancho del refuerzo a disponer en la sección debe ser menor que el ancho de la sección."},
        ValorQueElCampoRechaza{"recubrimiento_negativo", "viga.vmf",
                               "1\r\n0.4\r\n0.6\r\n-0.4\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_RECUB: El recubrimiento de la sección debe ser menor que la mitad del canto."},
        ValorQueElCampoRechaza{"T_canto_del_ala_negativo", "viga.vmf",
                               "2\r\n0.4\r\n0.6\r\n0.2\r\n-0.8\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_CANTOALA: El canto del ala no puede ser mayor que el canto de la sección."},
        ValorQueElCampoRechaza{"T_ancho_del_alma", "viga.vmf",
                               "2\r\n0.4\r\n0.6\r\n0.009\r\n0.2\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.009\r\n0\r\n0\r\n",
                               "TX_ANCHOALMA: El ancho del alma de la sección debe ser un número mayor que cero."},
        ValorQueElCampoRechaza{"T_canto_del_ala", "viga.vmf",
                               "2\r\n0.4\r\n0.6\r\n0.2\r\n0.009\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_CANTOALA: El canto del ala de la sección debe ser un número mayor que cero."},
        ValorQueElCampoRechaza{"T_coeficiente_del_hormigon", "viga.vmf",
                               "2\r\n0.4\r\n0.6\r\n0.2\r\n0.2\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n0.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n",
                               "TX_GC: El coeficiente de seguridad del hormigón no puede ser menor que 1."},
        ValorQueElCampoRechaza{"pilar_circular_diametro", "pilar.vmc",
                               "1\r\n0.009\r\n0.009\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n",
                               "TX_DIAM: El diámetro o lado debe ser mayor que cero."},
        ValorQueElCampoRechaza{"pilar_cuadrado_diametro", "pilar.vmc",
                               "2\r\n0.009\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n",
                               "TX_DIAM: El diámetro o lado debe ser mayor que cero."},
        ValorQueElCampoRechaza{"pilar_rectangular_lado_menor", "pilar.vmc",
                               "3\r\n0.011\r\n0.009\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n",
                               "TX_LADOMENOR: El lado menor debe ser mayor que cero."},
        // Sides in a ratio of exactly 1.5, the first that the fields refuse.
        ValorQueElCampoRechaza{"pilar_rectangular_relacion", "pilar.vmc",
                               "3\r\n0.6\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n",
                               "TX_DIAM: La relación entre lados del elemento a confinar debe ser menor de 1,5."},
        ValorQueElCampoRechaza{"pilar_coeficiente_del_refuerzo", "pilar.vmc",
                               "1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n0\r\n0\r\n1\r\n",
                               "TX_GR: El coeficiente de seguridad del refuerzo TEXALON® no puede ser menor que 1."}),
    [](const ::testing::TestParamInfo<ValorQueElCampoRechaza>& fila) { return std::string(fila.param.nombre); });

}  // namespace
}  // namespace texalon::prueba
