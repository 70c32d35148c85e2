// The kind of a project file: the extension decides, as Open and the batch command read it.
#include "files/Ficheros.h"

#include <gtest/gtest.h>

namespace texalon {
namespace {

TEST(ClaseDe, LaExtensionDecideEnMayusculasOMinusculas)
{
    EXPECT_EQ(ClaseDe("viga.vmf"), ClaseFichero::Flexion);
    EXPECT_EQ(ClaseDe("VIGA.VMF"), ClaseFichero::Flexion);
    EXPECT_EQ(ClaseDe("dir/Viga.VmF"), ClaseFichero::Flexion);
    EXPECT_EQ(ClaseDe("pilar.vmc"), ClaseFichero::Confinamiento);
    EXPECT_EQ(ClaseDe("PILAR.VMC"), ClaseFichero::Confinamiento);
}

TEST(ClaseDe, SeRecortanLosBlancosDelNombre) { EXPECT_EQ(ClaseDe("  viga.vmf  "), ClaseFichero::Flexion); }

TEST(ClaseDe, OtraExtensionNoEsUnProyecto)
{
    EXPECT_EQ(ClaseDe("notas.txt"), ClaseFichero::Ninguna);
    EXPECT_EQ(ClaseDe("viga.vmf.bak"), ClaseFichero::Ninguna);
    EXPECT_EQ(ClaseDe("vm"), ClaseFichero::Ninguna);
    EXPECT_EQ(ClaseDe(""), ClaseFichero::Ninguna);
    EXPECT_EQ(ClaseDe("   "), ClaseFichero::Ninguna);
}

TEST(ClaseDe, SoloLosTresUltimosCaracteresCuentan)
{
    EXPECT_EQ(ClaseDe("vmf"), ClaseFichero::Flexion);
    EXPECT_EQ(ClaseDe("proyecto.xvmc"), ClaseFichero::Confinamiento);
    EXPECT_EQ(ClaseDe("viga.vmf\t"), ClaseFichero::Ninguna);
}

}  // namespace
}  // namespace texalon
