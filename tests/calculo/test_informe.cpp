// --informe through the library: the report of each file on the recording printer, exactly as
// Print makes it for the chosen cell, which file it goes to, and the refused cell. The printer
// with Qt, which writes the PDF, is the program's and is run by the command's own tests.
#include "Prueba.h"

#include "comun/Tablas.h"

#include "calculo/Calculo.h"
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "platform/dobles/ImpresoraDoble.h"
#include "reports/Informes.h"
#include "state/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace texalon::prueba {
namespace {

using plataforma::ImpresoraDoble;
using plataforma::Operacion;

// A printer for each report asked for, kept with the file it would write.
class ImpresorasDePrueba {
public:
    explicit ImpresorasDePrueba(bool disponibles = true, int errorAlTerminar = 0)
        : disponibles_(disponibles), errorAlTerminar_(errorAlTerminar)
    {
    }

    calculo::Dispositivos Dispositivos()
    {
        calculo::Dispositivos dispositivos;
        dispositivos.pdf = [this](const std::string& fichero,
                                  const std::function<void(plataforma::Impresora&)>& imprime) {
            ficheros.push_back(fichero);
            if (!disponibles_) return false;
            impresoras.emplace_back();
            impresoras.back().errorAlTerminar = errorAlTerminar_;
            imprime(impresoras.back());
            return true;
        };
        return dispositivos;
    }

    std::vector<std::string> ficheros;
    std::vector<ImpresoraDoble> impresoras;

private:
    bool disponibles_;
    int errorAlTerminar_;
};

bool Imprimio(const ImpresoraDoble& impresora, const std::string& texto)
{
    return std::any_of(impresora.operaciones.begin(), impresora.operaciones.end(),
                       [&texto](const Operacion& op) { return op.nombre == "Print" && op.texto == texto; });
}

int Cuenta(const ImpresoraDoble& impresora, const std::string& nombre)
{
    return static_cast<int>(std::count_if(impresora.operaciones.begin(), impresora.operaciones.end(),
                                          [&nombre](const Operacion& op) { return op.nombre == nombre; }));
}

// A table of two members written as the file t.csv: `primero`, a beam under 250 mkN, then P-1.
std::string TablaDeDosElementos(const DirectorioTemporal& directorio, const std::string& primero)
{
    return directorio.Escribe("t.csv", "elemento;tipo;ANCHO;CANTO;MD\r\n" + primero +
                                           ";rectangular;0,4;0,6;250\r\nP-1;rectangular;0,4;0,6;0\r\n");
}

// The command on that table with --informe to `destino`, which must end well.
void InformaDeLaTabla(const std::string& tabla, const std::string& destino, ImpresorasDePrueba& impresoras)
{
    const Ejecucion ejecucion =
        EjecutaCalculo({"--tabla", "--informe", destino, tabla}, ',', impresoras.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 0) << ejecucion.errores;
}

TEST(InformeCalculo, CadaElementoDeUnaTablaConSuNombre)
{
    DirectorioTemporal directorio;
    const std::string carpeta = directorio.Fichero("informes");
    ImpresorasDePrueba impresoras;
    InformaDeLaTabla(TablaDeDosElementos(directorio, "Viga 1/2"), carpeta, impresoras);
    EXPECT_EQ(impresoras.ficheros, (std::vector<std::string>{carpeta + "/Viga 1_2.pdf", carpeta + "/P-1.pdf"}));
    ASSERT_EQ(impresoras.impresoras.size(), 2u);
    EXPECT_EQ(Cuenta(impresoras.impresoras[0], "EndDoc"), 1);
}

TEST(InformeCalculo, ElInformeConjuntoEsUnSoloDocumento)
{
    DirectorioTemporal directorio;
    const std::string destino = directorio.Fichero("edificio.PDF");
    ImpresorasDePrueba impresoras;
    InformaDeLaTabla(TablaDeDosElementos(directorio, "V-1"), destino, impresoras);
    EXPECT_EQ(impresoras.ficheros, std::vector<std::string>{destino});
    ASSERT_EQ(impresoras.impresoras.size(), 1u);
    const ImpresoraDoble& impresora = impresoras.impresoras[0];
    // The summary, then each report on a new page; the document ends once.
    EXPECT_TRUE(Imprimio(impresora, "RESUMEN DE LOS ELEMENTOS"));
    EXPECT_TRUE(Imprimio(impresora, "V-1"));
    EXPECT_TRUE(Imprimio(impresora, "P-1"));
    EXPECT_EQ(Cuenta(impresora, "EndDoc"), 1);
    EXPECT_GE(Cuenta(impresora, "NewPage"), 2);
}

TEST(InformeCalculo, CadaFicheroEnLaCarpetaConSuNombre)
{
    DirectorioTemporal directorio;
    const std::string carpeta = directorio.Fichero("informes");
    ImpresorasDePrueba impresoras;
    // A beam and a column, the column's extension in capitals.
    const Ejecucion ejecucion =
        EjecutaCalculo({"--informe", carpeta, directorio.Escribe("viga.vmf", kFlexionRectangularMd250),
                        directorio.Escribe("pilar.VMC", kConfinamiento)},
                       ',', impresoras.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 0);
    EXPECT_EQ(ejecucion.errores, "");
    EXPECT_EQ(impresoras.ficheros, (std::vector<std::string>{carpeta + "/viga.pdf", carpeta + "/pilar.pdf"}));
    // The folder is made when it is missing.
    EXPECT_TRUE(std::filesystem::is_directory(carpeta));
    ASSERT_EQ(impresoras.impresoras.size(), 2u);
    EXPECT_TRUE(Imprimio(impresoras.impresoras[0], "REFUERZO A FLEXION EN SECCIONES RECTANGULARES"));
    EXPECT_TRUE(Imprimio(impresoras.impresoras[1], "REFUERZO A CONFINAMIENTO"));
    // The flexure report has its two pages; the document ends once each.
    EXPECT_EQ(Cuenta(impresoras.impresoras[0], "NewPage"), 1);
    EXPECT_EQ(Cuenta(impresoras.impresoras[0], "EndDoc"), 1);
    EXPECT_EQ(Cuenta(impresoras.impresoras[1], "EndDoc"), 1);
}

TEST(InformeCalculo, EsElInformeDeImprimirParaLaCeldaElegida)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangularMd250);
    ImpresorasDePrueba impresoras;
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--informe", directorio.Ruta(), "--tipo", "2", "--capas", "4", viga}, '.', impresoras.Dispositivos());
    ASSERT_EQ(ejecucion.estado, 0);
    ASSERT_EQ(impresoras.impresoras.size(), 1u);

    // The same report printed by hand on the same project, calculated as the screen does.
    General g;
    ValoresIniciales(g);
    g.MD = 250.0;
    const ResultadoCalculo calculo = CalculaFlexion(g, SeccionFlexion::Rectangular, [](General&) {});
    GeneralDibujo d;
    ImpresoraDoble esperada;
    ASSERT_EQ(InformeFlexion(esperada, g, d, ResultadosFlexion(g, 2, 4, '.'), calculo.veredicto, '.'),
              Impresion::ConDiagramas);
    EXPECT_EQ(impresoras.impresoras[0].operaciones, esperada.operaciones);
    EXPECT_TRUE(Imprimio(impresoras.impresoras[0], "Refuerzo tipo TEXALON H - Núm. capas: 4"));
}

// One project file whose report is the one printed: a text it must print, and how many pages
// follow the first where that counts.
struct InformeDeUnFichero {
    const char* nombre;
    const char* fichero;
    std::string_view contenido;
    const char* texto;
    int paginasNuevas;  // -1: not counted
};

class UnInforme : public ConUnFichero<InformeDeUnFichero> {};

TEST_P(UnInforme, ImprimeSuTexto)
{
    const InformeDeUnFichero& caso = GetParam();
    ImpresorasDePrueba impresoras;
    EXPECT_EQ(EjecutaCalculo({"--informe", directorio.Ruta(), fichero}, ',', impresoras.Dispositivos()).estado, 0);
    ASSERT_EQ(impresoras.impresoras.size(), 1u);
    EXPECT_TRUE(Imprimio(impresoras.impresoras[0], caso.texto));
    if (caso.paginasNuevas >= 0) {
        EXPECT_EQ(Cuenta(impresoras.impresoras[0], "NewPage"), caso.paginasNuevas);
    }
}

// clang-format off
const InformeDeUnFichero kInformesDeUnFichero[] = {
    {"LaSeccionEnTTieneSuInforme", "viga_t.vmf", kFlexionT, "REFUERZO A FLEXION EN SECCIONES EN T", -1},
    // MD 0 lies below the unreinforced moment: the report of the verdict, one page.
    {"SinRefuerzoNecesarioUnaPaginaConLaFrase", "viga.vmf", kFlexionRectangular,
     " NO ES NECESARIO REFORZAR LA SECCION ", 0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(InformeCalculo, UnInforme, ::testing::ValuesIn(kInformesDeUnFichero), NombreDeFila());

TEST(InformeCalculo, UnaCeldaSinResultadoDaElMensajeDelInformeYNadaImpreso)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangularMd250);
    const std::string pilar = directorio.Escribe("pilar.vmc", kConfinamiento);
    ImpresorasDePrueba impresoras;
    // TEXALON X gains nothing from the third layer on.
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--informe", directorio.Ruta(), "--tipo", "3", "--capas", "3", viga, pilar}, ',',
        impresoras.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, viga + ": " + std::string(kMensajeCeldaRechazada) + "\n");
    ASSERT_EQ(impresoras.impresoras.size(), 2u);
    EXPECT_TRUE(impresoras.impresoras[0].operaciones.empty());
    // The next file goes on: a column's cells always have a result.
    EXPECT_TRUE(Imprimio(impresoras.impresoras[1], "REFUERZO A CONFINAMIENTO"));
}

// The report of a beam asked for with these printers fails the file with the name of the report's
// file.
void CompruebaQueElInformeNoSeEscribe(ImpresorasDePrueba& impresoras)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangularMd250);
    const Ejecucion ejecucion =
        EjecutaCalculo({"--informe", directorio.Ruta(), viga}, ',', impresoras.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 1);
    const std::string destino = directorio.Fichero("viga.pdf");
    EXPECT_EQ(ejecucion.errores, viga + ": no se ha podido escribir el informe en «" + destino + "».\n");
}

TEST(InformeCalculo, SinImpresoraElFicheroFalla)
{
    ImpresorasDePrueba impresoras(false);
    CompruebaQueElInformeNoSeEscribe(impresoras);
}

// The printer writes the file as the document ends; a path it cannot reach fails the file with
// the name of the report's file, not with the bare run-time error.
TEST(InformeCalculo, UnInformeQueNoSePuedeEscribirDiceSuFichero)
{
    ImpresorasDePrueba impresoras(true, ErrorEjecucion::kErrorDeAccesoRuta);
    CompruebaQueElInformeNoSeEscribe(impresoras);
    // The report ran to its end, where the file is written.
    ASSERT_EQ(impresoras.impresoras.size(), 1u);
    EXPECT_TRUE(Imprimio(impresoras.impresoras[0], "REFUERZO A FLEXION EN SECCIONES RECTANGULARES"));
    EXPECT_EQ(Cuenta(impresoras.impresoras[0], "EndDoc"), 1);
}

TEST(InformeCalculo, UnaCarpetaQueNoSePuedeCrearSeNombra)
{
    DirectorioTemporal directorio;
    const std::string viga = directorio.Escribe("viga.vmf", kFlexionRectangularMd250);
    // A folder inside a file.
    const std::string carpeta = directorio.Fichero("viga.vmf/informes");
    ImpresorasDePrueba impresoras;
    const Ejecucion ejecucion = EjecutaCalculo({"--informe", carpeta, viga}, ',', impresoras.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_EQ(ejecucion.errores, viga + ": no se ha podido crear la carpeta «" + carpeta + "» del informe.\n");
    EXPECT_TRUE(impresoras.ficheros.empty());
}

TEST(InformeCalculo, UnFicheroQueFallaNoTieneInforme)
{
    DirectorioTemporal directorio;
    ImpresorasDePrueba impresoras;
    const Ejecucion ejecucion = EjecutaCalculo(
        {"--informe", directorio.Ruta(), directorio.Fichero("no_existe.vmf")}, ',', impresoras.Dispositivos());
    EXPECT_EQ(ejecucion.estado, 1);
    EXPECT_TRUE(impresoras.ficheros.empty());
}

TEST(InformeCalculo, LaCarpetaVaciaEsUnErrorDeUso)
{
    const Ejecucion ejecucion = EjecutaCalculo({"--informe", "", "viga.vmf"});
    EXPECT_EQ(ejecucion.estado, 2);
    EXPECT_NE(ejecucion.errores.find("falta el valor de la opción «--informe»."), std::string::npos);
    EXPECT_EQ(EjecutaCalculo({"viga.vmf", "--informe"}).estado, 2);
}

TEST(InformeCalculo, LaAyudaLoCuenta)
{
    const std::string ayuda = EjecutaCalculo({"--help"}).salida;
    for (const char* texto : {"--informe CARPETA", "<nombre del fichero", "sin extensión>.pdf", "--tipo", "--capas"})
        EXPECT_NE(ayuda.find(texto), std::string::npos) << texto;
}

}  // namespace
}  // namespace texalon::prueba
