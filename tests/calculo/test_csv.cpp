// The CSV table of --csv: the quoting of its fields, its rows for good and failed files, the
// yellow of the grids as "sí" and "no", and the options it does not combine with.
#include "Prueba.h"

#include "comun/Tablas.h"

#include "calculo/Proyecto.h"
#include "calculo/SalidaCsv.h"
#include "engine/Calcular.h"

#include <gtest/gtest.h>

namespace texalon::prueba {
namespace {

using calculo::CabeceraCsv;
using calculo::CampoCsv;
using calculo::SeparadorCsv;

constexpr std::string_view kBom = "\xEF\xBB\xBF";
constexpr std::string_view kNoEncontrado = "Error 53: No se ha encontrado el archivo";

// The rows of a CSV text with no line end inside a field, without the byte-order mark and
// without their CR LF ends; fails the test when a line does not end in CR LF.
std::vector<std::string> Filas(const std::string& csv)
{
    EXPECT_EQ(csv.substr(0, kBom.size()), kBom);
    std::vector<std::string> filas;
    std::size_t inicio = kBom.size();
    while (inicio < csv.size()) {
        const std::size_t fin = csv.find('\n', inicio);
        if (fin == std::string::npos || fin == inicio || csv[fin - 1] != '\r') {
            ADD_FAILURE() << "Línea sin CR LF: " << csv.substr(inicio);
            break;
        }
        filas.push_back(csv.substr(inicio, fin - 1 - inicio));
        inicio = fin + 1;
    }
    return filas;
}

// A row of the table from its fields, parted by the separator, none needing quotes.
std::string Fila(const std::vector<std::string_view>& campos, char separador = ';')
{
    std::string fila;
    for (std::string_view campo : campos)
        fila += (fila.empty() ? "" : std::string(1, separador)) + std::string(campo);
    return fila;
}

// A field of the table, the separator, and the field as the table writes it: one row a case.
struct CampoCitado {
    const char* nombre;
    std::string_view campo;
    char separador;
    std::string_view escrito;
};

class CampoDeLaTabla : public ::testing::TestWithParam<CampoCitado> {};

TEST_P(CampoDeLaTabla, SeEscribeAsi)
{
    EXPECT_EQ(CampoCsv(GetParam().campo, GetParam().separador), GetParam().escrito);
}

// clang-format off
const CampoCitado kCamposCitados[] = {
    // With nothing to quote, as it is; the other separator is no special character.
    {"TextoTalCual",                 "TEXALON L",          ';', "TEXALON L"},
    {"ComaConPuntoYComaTalCual",     "238,5",              ';', "238,5"},
    {"PuntoConComaTalCual",          "238.5",              ',', "238.5"},
    {"VacioTalCual",                 "",                   ',', ""},
    {"ElOtroSeparadorTalCual",       "a;b",                ',', "a;b"},
    // The separator goes between quotes.
    {"ComaEntreComillas",            "238,5",              ',', "\"238,5\""},
    {"PuntoYComaEntreComillas",      "viga;1.vmf",         ';', "\"viga;1.vmf\""},
    {"SoloElSeparadorEntreComillas", ";",                  ';', "\";\""},
    // The quotes are doubled.
    {"ComillasDobladas",             "viga \"dos\".vmf",   ';', "\"viga \"\"dos\"\".vmf\""},
    {"UnaComillaDoblada",            "\"",                 ',', "\"\"\"\""},
    {"ComillasYSeparador",           "a,\"b\"",            ',', "\"a,\"\"b\"\"\""},
    // The line ends go between quotes.
    {"SaltoDeLineaEntreComillas",    "línea 1\nlínea 2",   ';', "\"línea 1\nlínea 2\""},
    {"RetornoEntreComillas",         "a\rb",               ',', "\"a\rb\""},
    {"RetornoYSaltoEntreComillas",   "a\r\nb",             ',', "\"a\r\nb\""},
    // UTF-8 passes; any other byte becomes U+FFFD.
    {"TildeUtf8Pasa",                "sí",                 ';', "sí"},
    {"SimbolosUtf8Pasan",            "Nº ‰ 𝜀",             ';', "Nº ‰ 𝜀"},
    {"ByteSueltoSeSustituye",        "a\xff" "b",          ';', "a\xEF\xBF\xBD" "b"},
    {"SecuenciaLargaSeSustituye",    "\xc0\xaf",           ';', "\xEF\xBF\xBD\xEF\xBF\xBD"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(CampoCsv, CampoDeLaTabla, ::testing::ValuesIn(kCamposCitados), NombreDeFila());

TEST(CabeceraCsv, SeparadorSegunElDecimal)
{
    EXPECT_EQ(SeparadorCsv(','), ';');
    EXPECT_EQ(SeparadorCsv('.'), ',');
    EXPECT_EQ(CabeceraCsv(','), std::string(kBom) + "fichero;tipo;refuerzo;capas;resultado;alcanza;error;elemento;solicitado;sin_refuerzo;veredicto\r\n");
    EXPECT_EQ(CabeceraCsv('.'), std::string(kBom) + "fichero,tipo,refuerzo,capas,resultado,alcanza,error,elemento,solicitado,sin_refuerzo,veredicto\r\n");
}

TEST(SalidaCsvCalculo, UnaFilaPorTipoYCapasEnElOrdenDeLaTabla)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const Ejecucion ejecucion = EjecutaCalculo({"--csv", viga}, ',');
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
    const std::vector<std::string> filas = Filas(ejecucion.salida);
    ASSERT_EQ(filas.size(), 16U);
    EXPECT_EQ(filas[0], "fichero;tipo;refuerzo;capas;resultado;alcanza;error;elemento;solicitado;sin_refuerzo;veredicto");
    const std::string_view tipos[] = {"TEXALON L", "TEXALON H", "TEXALON X"};
    for (std::size_t i = 1; i < filas.size(); ++i) {
        const std::string tipo(tipos[(i - 1) / 5]);
        const std::string capas = std::to_string((i - 1) % 5 + 1);
        EXPECT_EQ(filas[i].rfind(viga + ";rectangular;" + tipo + ";" + capas + ";", 0), 0U) << filas[i];
        // No error and no member; the design moment, the moment without the sheet and the verdict.
        EXPECT_TRUE(Contiene(filas[i], ";;;0,00;222,5;NO ES NECESARIO REFORZAR LA SECCION")) << filas[i];
    }
    // The grid of the default beam, as its screen shows it: MD = 0, so every number is yellow.
    const std::vector<std::string_view> seccion = {"", "", "0,00", "222,5", "NO ES NECESARIO REFORZAR LA SECCION"};
    const auto fila = [&](std::vector<std::string_view> celda) {
        celda.insert(celda.end(), seccion.begin(), seccion.end());
        return Fila(celda);
    };
    EXPECT_EQ(filas[1], fila({viga, "rectangular", "TEXALON L", "1", "238,5", "sí"}));
    EXPECT_EQ(filas[10], fila({viga, "rectangular", "TEXALON H", "5", "294,9", "sí"}));
    EXPECT_EQ(filas[12], fila({viga, "rectangular", "TEXALON X", "2", "246,8", "sí"}));
    for (std::size_t i = 13; i <= 15; ++i)
        EXPECT_EQ(filas[i], fila({viga, "rectangular", "TEXALON X", std::to_string(i - 10), "---", "no"}));
}

TEST(SalidaCsvCalculo, ConPuntoDecimalLaComaSepara)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionT);
    const std::vector<std::string> filas = Filas(EjecutaCalculo({"--csv", viga}, '.').salida);
    ASSERT_EQ(filas.size(), 16U);
    EXPECT_EQ(filas[0], "fichero,tipo,refuerzo,capas,resultado,alcanza,error,elemento,solicitado,sin_refuerzo,veredicto");
    EXPECT_EQ(filas[1], Fila({viga, "T", "TEXALON L", "1", "238.5", "sí", "", "", "0.00", "222.5",
                              "NO ES NECESARIO REFORZAR LA SECCION"},
                             ','));
}

// MD = 230 with the default section: the cells of MU >= 230 are yellow, all of TEXALON L and
// TEXALON H and the first two of TEXALON X.
TEST(SalidaCsvCalculo, AlcanzaLasCeldasAmarillas)
{
    DirectorioTemporal directorio;
    const std::string viga =
        directorio.Escribe("viga.vmf", Sustituye(std::string(kFlexionRectangularMd250), "\r\n250\r\n", "\r\n230\r\n"));
    const std::vector<std::string> filas = Filas(EjecutaCalculo({"--csv", viga}, ',').salida);
    ASSERT_EQ(filas.size(), 16U);
    for (std::size_t i = 1; i <= 15; ++i) {
        const bool amarilla = i <= 12;
        EXPECT_TRUE(Contiene(filas[i], amarilla ? ";sí;" : ";no;")) << filas[i];
    }
}

TEST(SalidaCsvCalculo, ConfinamientoConDosDecimales)
{
    DirectorioTemporal directorio;
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    const std::vector<std::string> filas = Filas(EjecutaCalculo({"--csv", pilar}, ',').salida);
    ASSERT_EQ(filas.size(), 16U);
    // The increase wanted, no moment without the sheet, and an increase of 1 shows no verdict.
    EXPECT_EQ(filas[1], Fila({pilar, "confinamiento", "TEXALON L", "1", "1,03", "sí", "", "", "1,00", "", ""}));
    EXPECT_EQ(filas[15], Fila({pilar, "confinamiento", "TEXALON X", "5", "1,38", "sí", "", "", "1,00", "", ""}));
}

// INCR = 2 with the default column: no cell is yellow.
TEST(SalidaCsvCalculo, UnIncrementoQueNoSeAlcanza)
{
    DirectorioTemporal directorio;
    const std::string pilar =
        directorio.Escribe("pilar.vmc", "1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n2\r\n");
    const std::vector<std::string> filas = Filas(EjecutaCalculo({"--csv", pilar}, ',').salida);
    ASSERT_EQ(filas.size(), 16U);
    for (std::size_t i = 1; i <= 15; ++i)
        EXPECT_TRUE(Contiene(filas[i], ";no;")) << filas[i];
}

TEST(SalidaCsvCalculo, UnaSolaCabeceraParaVariosFicheros)
{
    DirectorioTemporal directorio;
    const Ejecucion ejecucion =
        EjecutaCalculo({"--csv", directorio.Escribe("a.vmf", kFlexionRectangular),
                        directorio.Escribe("b.VMF", kFlexionT), directorio.Escribe("c.vmc", kConfinamiento)});
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.salida.rfind(kBom), 0U);
    const std::vector<std::string> filas = Filas(ejecucion.salida);
    ASSERT_EQ(filas.size(), 1U + 3U * 15U);
    EXPECT_TRUE(Contiene(filas[15], "a.vmf;rectangular;TEXALON X;5;"));
    EXPECT_TRUE(Contiene(filas[16], "b.VMF;T;TEXALON L;1;"));
    EXPECT_TRUE(Contiene(filas[31], "c.vmc;confinamiento;TEXALON L;1;"));
}

TEST(SalidaCsvCalculo, UnFicheroQueNoExisteDaUnaFilaConSusMensajes)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Fichero("no_esta.vmf");
    const std::string pilar = directorio.Fichero("no_esta.vmc");
    const Ejecucion ejecucion = EjecutaCalculo({"--csv", viga, pilar});
    EXPECT_EQ(ejecucion.estado, 1);
    const std::string mensajes = std::string(kNoEncontrado) + "\n" + std::string(calculo::kMensajeDatosIncorrectos);
    // A flexure file that could not be read has told no kind; the extension tells confinement.
    EXPECT_EQ(ejecucion.salida, CabeceraCsv(',') + viga + ";;;;;;\"" + mensajes + "\";;;;\r\n" + pilar +
                                    ";confinamiento;;;;;\"" + mensajes + "\";;;;\r\n");
    // The error output says what the other modes say.
    EXPECT_EQ(ejecucion.errores, EjecutaCalculo({viga, pilar}).errores);
}

TEST(SalidaCsvCalculo, UnFicheroLeidoAMediasNoDiceSuTipo)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("corto.vmf", "1\r\n0.4\r\n");
    const Ejecucion ejecucion = EjecutaCalculo({"--csv", viga});
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida, CabeceraCsv(',') + viga +
                                    ";;;;;;\"Error 62: La entrada sobrepasa el final del archivo\n" +
                                    std::string(calculo::kMensajeDatosIncorrectos) + "\";;;;\r\n");
}

TEST(SalidaCsvCalculo, LaPredeformacionConservaElTipo)
{
    DirectorioTemporal directorio;
    // MCP, line 13 of a rectangular file, well over what the section takes.
    const std::string viga = directorio.Escribe(
        "viga.vmf", Sustituye(std::string(kFlexionRectangular), "\r\n0\r\n0\r\n", "\r\n1000\r\n0\r\n"));
    const Ejecucion ejecucion = EjecutaCalculo({"--csv", viga}, '.');
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida,
              CabeceraCsv('.') + Fila({viga, "rectangular", "", "", "", "", kMensajePredeformacion, "", "", "", ""}, ',') +
                  "\r\n");
}

TEST(SalidaCsvCalculo, OtraExtensionSinTipoYElNombreEntreComillas)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--csv", "notas;\"1\".txt"}, ',');
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.salida,
              CabeceraCsv(',') + "\"notas;\"\"1\"\".txt\";;;;;;" + std::string(calculo::kMensajeNoEsProyecto) + ";;;;\r\n");
}

TEST(SalidaCsvCalculo, TrasUnFalloSigueConLosDemas)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangular);
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    const std::vector<std::string> filas = Filas(EjecutaCalculo({"--csv", viga, "notas.txt", pilar}).salida);
    ASSERT_EQ(filas.size(), 1U + 15U + 1U + 15U);
    EXPECT_EQ(filas[16].rfind("notas.txt;;;;;;", 0), 0U);
    EXPECT_EQ(filas[17].rfind(pilar + ";confinamiento;TEXALON L;1;", 0), 0U);
}

class CsvConOtraOpcion : public ::testing::TestWithParam<std::vector<std::string>> {};

TEST_P(CsvConOtraOpcion, EsErrorDeUso)
{
    const std::vector<std::string>& otra = GetParam();
    std::vector<std::string> argumentos = {"--csv"};
    argumentos.insert(argumentos.end(), otra.begin(), otra.end());
    argumentos.push_back("viga.vmf");
    const std::string esperado = "texalon-calculo: la opción «--csv» no se puede combinar con «" + otra.front() +
                                 "».\nPruebe «texalon-calculo --help» para más información.\n";
    const Ejecucion ejecucion = EjecutaCalculo(argumentos);
    EXPECT_EQ(ejecucion.estado, calculo::kSalidaErrorDeUso);
    EXPECT_EQ(ejecucion.salida, "");
    EXPECT_EQ(ejecucion.errores, esperado);
    // The other option first makes no difference.
    std::vector<std::string> alReves = otra;
    alReves.insert(alReves.end(), {"viga.vmf", "--csv"});
    EXPECT_EQ(EjecutaCalculo(alReves).errores, esperado);
}

INSTANTIATE_TEST_SUITE_P(
    SalidaCsvCalculo, CsvConOtraOpcion,
    ::testing::Values(std::vector<std::string>{"--json"}, std::vector<std::string>{"--diagrama", "capas"},
                      std::vector<std::string>{"--svg", "dibujos"}, std::vector<std::string>{"--informe", "informes"},
                      std::vector<std::string>{"--tipo", "2"}, std::vector<std::string>{"--capas", "3"}),
    [](const ::testing::TestParamInfo<std::vector<std::string>>& opcion) { return opcion.param.front().substr(2); });

TEST(SalidaCsvCalculo, SinFicherosEsErrorDeUso)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--csv"});
    EXPECT_EQ(ejecucion.estado, calculo::kSalidaErrorDeUso);
    EXPECT_TRUE(Contiene(ejecucion.errores, "texalon-calculo: falta el nombre de algún fichero.\n"));
}

TEST(SalidaCsvCalculo, LaAyudaLaExplica)
{
    const std::string ayuda = calculo::TextoAyuda();
    EXPECT_TRUE(Contiene(ayuda, "\n  o: texalon-calculo --csv FICHERO...\n"));
    EXPECT_TRUE(Contiene(ayuda, "\n  --csv       escribe una sola tabla para una hoja de cálculo"));
    EXPECT_TRUE(Contiene(ayuda, "--csv con otra opción"));
    // Every line of the option fits a terminal of 80 columns.
    const std::size_t inicio = ayuda.find("\n  --csv ");
    const std::size_t fin = ayuda.find("\n  --diagrama ");
    ASSERT_LT(inicio, fin);
    for (const std::string& linea : Lineas(ayuda.substr(inicio + 1, fin - inicio))) {
        std::size_t columnas = 0;
        for (const char c : linea)
            columnas += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
        EXPECT_LE(columnas, 80U) << linea;
    }
}

}  // namespace
}  // namespace texalon::prueba
