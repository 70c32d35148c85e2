// The kind of a project file: the extension decides, as Open and the batch command read it.
#include "files/Ficheros.h"

#include "comun/Tablas.h"

#include <gtest/gtest.h>

namespace texalon {
namespace {

// A file name and the kind of project that its name makes it: one row a case.
struct NombreDeFichero {
    const char* nombre;
    const char* fichero;
    ClaseFichero clase;
};

class ClaseDeFichero : public ::testing::TestWithParam<NombreDeFichero> {};

TEST_P(ClaseDeFichero, LaDaSuExtension) { EXPECT_EQ(ClaseDe(GetParam().fichero), GetParam().clase); }

// clang-format off
const NombreDeFichero kNombres[] = {
    // The extension decides, in capitals or small letters.
    {"FlexionEnMinusculas",             "viga.vmf",      ClaseFichero::Flexion},
    {"FlexionEnMayusculas",             "VIGA.VMF",      ClaseFichero::Flexion},
    {"FlexionMezcladaTrasUnaCarpeta",   "dir/Viga.VmF",  ClaseFichero::Flexion},
    {"ConfinamientoEnMinusculas",       "pilar.vmc",     ClaseFichero::Confinamiento},
    {"ConfinamientoEnMayusculas",       "PILAR.VMC",     ClaseFichero::Confinamiento},
    // The blanks around the name are trimmed.
    {"SeRecortanLosBlancosDelNombre",   "  viga.vmf  ",  ClaseFichero::Flexion},
    // Another extension is no project.
    {"OtraExtension",                   "notas.txt",     ClaseFichero::Ninguna},
    {"ExtensionTrasLaDelProyecto",      "viga.vmf.bak",  ClaseFichero::Ninguna},
    {"NombreMasCortoQueUnaExtension",   "vm",            ClaseFichero::Ninguna},
    {"NombreVacio",                     "",              ClaseFichero::Ninguna},
    {"SoloBlancos",                     "   ",           ClaseFichero::Ninguna},
    // Only the last three characters count.
    {"SoloLaExtensionSinPunto",         "vmf",           ClaseFichero::Flexion},
    {"ExtensionDeCuatroLetrasQueAcabaEnVmc", "proyecto.xvmc", ClaseFichero::Confinamiento},
    {"TabuladorFinalNoSeRecorta",       "viga.vmf\t",    ClaseFichero::Ninguna},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(ClaseDe, ClaseDeFichero, ::testing::ValuesIn(kNombres), prueba::NombreDeFila());

}  // namespace
}  // namespace texalon
