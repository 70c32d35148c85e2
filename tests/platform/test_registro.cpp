// The registry reader and the command lines of the PDF reader and the browser, over a registry
// and a process starter that the tests write.
#include "comun/Tablas.h"
#include "platform/Registro.h"
#include "platform/dobles/RegistroDoble.h"

#include <gtest/gtest.h>
#include <cstdint>
#include <ostream>

using namespace texalon::plataforma;

namespace {

const std::string kClasePdf = "SOFTWARE\\Classes\\.pdf";
const std::string kOrdenLector = "SOFTWARE\\Classes\\AcroExch.Document\\shell\\open\\command";
const std::string kOrdenNavegador = "SOFTWARE\\Classes\\http\\shell\\open\\command";

class Registro : public ::testing::Test {
protected:
    ApiRegistroDoble api;
    ArrancadorDoble arrancador;

    void LectorRegistrado(const std::string& orden)
    {
        api.Escribe(kClasePdf, "", ApiRegistroDoble::Texto("AcroExch.Document"));
        api.Escribe(kOrdenLector, "", ApiRegistroDoble::Texto(orden));
    }
};

}  // namespace

// LeeRegistro

TEST_F(Registro, LeeUnTextoSinSuCeroFinal)
{
    api.Escribe("SOFTWARE\\Clave", "", ApiRegistroDoble::Texto("AcroExch.Document"));
    std::string texto;
    EXPECT_TRUE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Clave", "", texto));
    EXPECT_EQ(texto, "AcroExch.Document");
}

TEST_F(Registro, AbreLaClaveConOpciones0YElAccesoTotalYLaCierra)
{
    api.Escribe("SOFTWARE\\Clave", "", ApiRegistroDoble::Texto("x"));
    std::string texto;
    ASSERT_TRUE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Clave", "", texto));
    ASSERT_EQ(api.aperturas.size(), 1u);
    EXPECT_EQ(api.aperturas[0].raiz, 0x80000002u);
    EXPECT_EQ(api.aperturas[0].opciones, 0u);
    EXPECT_EQ(api.aperturas[0].acceso, 0x2003Fu);
    ASSERT_EQ(api.cierres.size(), 1u);
    EXPECT_EQ(api.cierres[0], 1u);
}

TEST_F(Registro, UnaClaveQueNoExisteVaciaElTextoCierraLaClaveSinAbrirYDevuelveFalso)
{
    std::string texto = "lo que había";
    EXPECT_FALSE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\NoExiste", "", texto));
    EXPECT_EQ(texto, "");
    ASSERT_EQ(api.cierres.size(), 1u);
    EXPECT_EQ(api.cierres[0], 0u);
    EXPECT_TRUE(api.consultas.empty());
}

TEST_F(Registro, UnValorQueNoExisteVaciaElTextoYCierraLaClave)
{
    api.Escribe("SOFTWARE\\Clave", "otro", ApiRegistroDoble::Texto("x"));
    std::string texto = "lo que había";
    EXPECT_FALSE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Clave", "", texto));
    EXPECT_EQ(texto, "");
    ASSERT_EQ(api.cierres.size(), 1u);
    EXPECT_EQ(api.cierres[0], 1u);
}

TEST_F(Registro, UnTextoSinCeroFinalSeLeeEntero)
{
    ApiRegistroDoble::Valor valor{kRegSz, {'a', 'b', 'c'}};
    api.Escribe("SOFTWARE\\Clave", "", valor);
    std::string texto;
    ASSERT_TRUE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Clave", "", texto));
    EXPECT_EQ(texto, "abc");
}

// A number: its bytes read from the last to the first, in hexadecimal, then as a decimal.
struct Numero {
    const char* nombre;
    std::uint32_t valor;
    const char* texto;
};

void PrintTo(const Numero& numero, std::ostream* salida) { *salida << numero.nombre; }

class RegistroNumero : public Registro, public ::testing::WithParamInterface<Numero> {};

TEST_P(RegistroNumero, SeLeeComoTexto)
{
    api.Escribe("SOFTWARE\\Clave", "n", ApiRegistroDoble::Numero(GetParam().valor));
    std::string texto;
    ASSERT_TRUE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Clave", "n", texto));
    EXPECT_EQ(texto, GetParam().texto);
}

INSTANTIATE_TEST_SUITE_P(Registro, RegistroNumero,
                         ::testing::Values(
                             // 0x12345678 is kept as 78 56 34 12; read backwards it is "12345678" in hexadecimal.
                             Numero{"UnNumeroSeLeeDeSuUltimoByteAlPrimeroEnHexadecimal", 0x12345678u, "305419896"},
                             // 266 is 0A 01 00 00: the closing zero goes as a text's would, and the bytes read back
                             // as "0", "1" and "A", without padding: "&h01A" is 26.
                             Numero{"UnNumeroCuyoUltimoByteEsCeroLoPierdeYSusBytesNoLlevanCerosALaIzquierda", 266u,
                                    "26"},
                             Numero{"UnNumeroDeOchoCifrasHexadecimalesConElBitAltoEsNegativo", 0xFFFFFFFFu, "-1"}),
                         texalon::prueba::NombreDeFila());

TEST_F(Registro, UnValorDeOtroTipoDejaElTextoComoLlego)
{
    api.Escribe("SOFTWARE\\Clave", "b", ApiRegistroDoble::Valor{3, {1, 2, 3}});
    std::string texto = "lo que había";
    EXPECT_TRUE(LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Clave", "b", texto));
    EXPECT_EQ(texto, "lo que había");
}

// LineaDeOrden

TEST(LineaDeOrden, RutaEntreComillasSeguidaDeUnPorCientoUnoEntreComillas)
{
    EXPECT_EQ(LineaDeOrden(R"("C:\Archivos de programa\Lector\Lector.exe" "%1")", R"(C:\TEXALON\guia_texalon.pdf)"),
              R"("C:\Archivos de programa\Lector\Lector.exe"C:\TEXALON\guia_texalon.pdf)");
}

TEST(LineaDeOrden, RutaSinComillasConservaElBlancoTrasElExe)
{
    EXPECT_EQ(LineaDeOrden(R"(C:\LECTOR\lector.exe %1)", R"(C:\TEXALON\guia_texalon.pdf)"),
              R"(C:\LECTOR\lector.exe C:\TEXALON\guia_texalon.pdf)");
}

TEST(LineaDeOrden, UnFicheroConBlancosPasaSinComillas)
{
    EXPECT_EQ(LineaDeOrden(R"(C:\LECTOR\lector.exe %1)", R"(C:\Mis documentos\guia texalon.pdf)"),
              R"(C:\LECTOR\lector.exe C:\Mis documentos\guia texalon.pdf)");
}

TEST(LineaDeOrden, ExeEnMayusculasDaLaPosicion0YConservaLosCuatroPrimerosCaracteres)
{
    EXPECT_EQ(LineaDeOrden(R"("C:\LECTOR\LECTOR.EXE" "%1")", "guia.pdf"), R"("C:\guia.pdf)");
}

TEST(LineaDeOrden, UnaOrdenQueAcabaEnExeLaConservaEntera)
{
    EXPECT_EQ(LineaDeOrden(R"(C:\NAVEGA\navega.exe)", "www.velmora.example"),
              R"(C:\NAVEGA\navega.exewww.velmora.example)");
}

TEST(LineaDeOrden, SeBuscaElPrimerExe) { EXPECT_EQ(LineaDeOrden(R"(C:\a.exe\b.exe -x)", "f"), R"(C:\a.exe\f)"); }

// AbrePdfPorRegistro and AbreWebPorRegistro

TEST_F(Registro, ElLectorDePdfRecibeLaRutaConSuComillaYElFicheroSinBlanco)
{
    LectorRegistrado(R"("C:\Archivos de programa\Lector\Lector.exe" "%1")");
    EXPECT_TRUE(AbrePdfPorRegistro(api, arrancador, R"(C:\TEXALON\guia_texalon.pdf)"));
    ASSERT_EQ(arrancador.lineas.size(), 1u);
    EXPECT_EQ(arrancador.lineas[0], R"("C:\Archivos de programa\Lector\Lector.exe"C:\TEXALON\guia_texalon.pdf)");
    // The class, then its command, both from HKEY_LOCAL_MACHINE.
    ASSERT_EQ(api.aperturas.size(), 2u);
    EXPECT_EQ(api.aperturas[0].subclave, kClasePdf);
    EXPECT_EQ(api.aperturas[1].subclave, kOrdenLector);
}

TEST_F(Registro, SinClaseDePdfNoSeIniciaNada)
{
    EXPECT_FALSE(AbrePdfPorRegistro(api, arrancador, "guia.pdf"));
    EXPECT_TRUE(arrancador.lineas.empty());
}

TEST_F(Registro, ConClaseDePdfPeroSinOrdenNoSeIniciaNada)
{
    api.Escribe(kClasePdf, "", ApiRegistroDoble::Texto("AcroExch.Document"));
    EXPECT_FALSE(AbrePdfPorRegistro(api, arrancador, "guia.pdf"));
    EXPECT_TRUE(arrancador.lineas.empty());
}

TEST_F(Registro, UnaOrdenQueNoSePuedeIniciarEsUnFallo)
{
    LectorRegistrado(R"(C:\LECTOR\lector.exe %1)");
    arrancador.falla = true;
    EXPECT_FALSE(AbrePdfPorRegistro(api, arrancador, "guia.pdf"));
}

TEST_F(Registro, UnErrorAlIniciarEsElMismoFallo)
{
    LectorRegistrado(R"(C:\LECTOR\lector.exe %1)");
    arrancador.lanzaError = true;
    EXPECT_FALSE(AbrePdfPorRegistro(api, arrancador, "guia.pdf"));
    EXPECT_EQ(arrancador.lineas.size(), 1u);
}

TEST_F(Registro, ElNavegadorRecibeLaDireccionTrasSuExe)
{
    api.Escribe(kOrdenNavegador, "", ApiRegistroDoble::Texto(R"("C:\Navega\navega.exe" -- "%1")"));
    EXPECT_TRUE(AbreWebPorRegistro(api, arrancador, "www.velmora.example"));
    ASSERT_EQ(arrancador.lineas.size(), 1u);
    EXPECT_EQ(arrancador.lineas[0], R"("C:\Navega\navega.exe"www.velmora.example)");
    ASSERT_EQ(api.aperturas.size(), 1u);
}

TEST_F(Registro, SinNavegadorNoSeIniciaNada)
{
    EXPECT_FALSE(AbreWebPorRegistro(api, arrancador, "www.velmora.example"));
    EXPECT_TRUE(arrancador.lineas.empty());
}
