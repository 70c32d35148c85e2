// The confinement file reader: its checks and its two lists of defaults.
#include "Auxiliares.h"

#include "files/Ficheros.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace texalon {
namespace {

using prueba::ConFinDeLinea;
using prueba::LineasConfinaRectangular;

// What a reading leaves, and the readings of bytes and of lines.
using prueba::Lectura, prueba::LeeConfinaDe, prueba::LeeLineasConfina;

std::vector<std::string> ConfinaCon(std::size_t linea, const std::string& texto)
{
    return prueba::ConLinea(LineasConfinaRectangular(), linea, texto);
}

void EsperaAceptado(const Lectura& l)
{
    EXPECT_FALSE(l.g.F_ERROR);
    EXPECT_TRUE(l.avisos.empty());
    // Neither NU nor FYK are in the file.
    prueba::EsperaCampos(l.g, {{"NU", 0.3}, {"FYK", 410.0}});
}

// A refusal loads the short list: NU and FYK stay as they were.
void EsperaRechazo(const Lectura& l)
{
    EXPECT_TRUE(l.g.F_ERROR);
    EXPECT_TRUE(l.avisos.empty());
    prueba::EsperaValoresConfinamiento(l.g);
    prueba::EsperaCampos(l.g, {{"NU", 0.3}, {"FYK", 410.0}});
}

// A run-time error loads the long list: NU 0.5 and FYK 500 as well.
void EsperaError(const Lectura& l, const std::string& mensaje)
{
    EXPECT_TRUE(l.g.F_ERROR);
    ASSERT_EQ(l.avisos.size(), 1u);
    EXPECT_EQ(l.avisos[0], mensaje);
    prueba::EsperaValoresConfinamiento(l.g);
    prueba::EsperaCampos(l.g, {{"NU", 0.5}, {"FYK", 500.0}});
}

TEST(LeeConfina, PilarRectangularGuardaCadaValorEnSuCampo)
{
    const Lectura l = LeeLineasConfina({"3", "0.5", "0.4", "30", "1.6", "1.2", "1.3", "1200", "1.25"});
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"SECCION", 3},
                               {"DIAM", 0.5},
                               {"LADOMENOR", 0.4},
                               {"FCK", 30.0},
                               {"GC", 1.6},
                               {"GS", 1.2},
                               {"GR", 1.3},
                               {"NCP", 1200.0},
                               {"INCR", 1.25}});
    // Flexure fields are no business of the confinement reader.
    prueba::EsperaCampos(l.g, {{"ANCHO", 0.9}, {"ASI", 12.5}});
}

TEST(LeeConfina, LasTresFormasSeAceptan)
{
    for (Entero seccion = 1; seccion <= 3; ++seccion) {
        SCOPED_TRACE(seccion);
        const Lectura l = LeeLineasConfina(ConfinaCon(1, std::to_string(seccion)));
        EsperaAceptado(l);
        EXPECT_EQ(l.g.SECCION, seccion);
    }
}

TEST(LeeConfina, SeccionFueraDeUnoATresSeRechaza)
{
    for (const char* seccion : {"0", "4", "-1", "-3", "x"}) {
        SCOPED_TRACE(seccion);
        EsperaRechazo(LeeLineasConfina(ConfinaCon(1, seccion)));
    }
}

TEST(LeeConfina, SeccionSeRedondeaAlPar)
{
    EXPECT_EQ(LeeLineasConfina(ConfinaCon(1, "2.5")).g.SECCION, 2);
    EXPECT_EQ(LeeLineasConfina(ConfinaCon(1, "1.5")).g.SECCION, 2);
    EXPECT_EQ(LeeLineasConfina(ConfinaCon(1, "0.5")).g.F_ERROR, true);
    EXPECT_EQ(LeeLineasConfina(ConfinaCon(1, "3.5")).g.F_ERROR, true);
}

TEST(LeeConfina, SeccionQueDesbordaDaErrorYLaListaLarga)
{
    for (const char* seccion : {"70000", "-32769", "1e999"}) {
        SCOPED_TRACE(seccion);
        EsperaError(LeeLineasConfina(ConfinaCon(1, seccion)), "Error 6: Desbordamiento");
    }
}

TEST(LeeConfina, DiamOLadoMenorCeroSeRechazaEnCualquierForma)
{
    for (const char* seccion : {"1", "2", "3"}) {
        SCOPED_TRACE(seccion);
        auto sin_diam = ConfinaCon(2, "0");
        sin_diam[0] = seccion;
        EsperaRechazo(LeeLineasConfina(sin_diam));
        auto sin_lado = ConfinaCon(3, "0");
        sin_lado[0] = seccion;
        EsperaRechazo(LeeLineasConfina(sin_lado));
    }
}

TEST(LeeConfina, LadoMenorIgualAlDiamSeAcepta)
{
    const Lectura l = LeeLineasConfina(ConfinaCon(3, "0.5"));
    EsperaAceptado(l);
    EXPECT_EQ(l.g.LADOMENOR, 0.5);
}

TEST(LeeConfina, LadoMenorMayorQueDiamSeRechazaSoloEnRectangular)
{
    EsperaRechazo(LeeLineasConfina(ConfinaCon(3, "0.5000001")));
    for (const char* seccion : {"1", "2"}) {
        SCOPED_TRACE(seccion);
        auto lineas = ConfinaCon(3, "0.8");
        lineas[0] = seccion;
        const Lectura l = LeeLineasConfina(lineas);
        EsperaAceptado(l);
        EXPECT_EQ(l.g.LADOMENOR, 0.8);
    }
}

TEST(LeeConfina, LimitesDeFckSeAceptan)
{
    const Lectura quince = LeeLineasConfina(ConfinaCon(4, "15"));
    EsperaAceptado(quince);
    EXPECT_EQ(quince.g.FCK, 15.0);
    const Lectura cincuenta = LeeLineasConfina(ConfinaCon(4, "50"));
    EsperaAceptado(cincuenta);
    EXPECT_EQ(cincuenta.g.FCK, 50.0);
}

TEST(LeeConfina, FckJustoFueraSeRechaza)
{
    for (const char* fck : {"14.9999", "50.0001", "-25", ""}) {
        SCOPED_TRACE(fck);
        EsperaRechazo(LeeLineasConfina(ConfinaCon(4, fck)));
    }
}

TEST(LeeConfina, IncrUnoSeAceptaYMenosSeRechaza)
{
    const Lectura uno = LeeLineasConfina(ConfinaCon(9, "1"));
    EsperaAceptado(uno);
    EXPECT_EQ(uno.g.INCR, 1.0);
    for (const char* incr : {"0.9999999", "0", "-1.5", "z"}) {
        SCOPED_TRACE(incr);
        EsperaRechazo(LeeLineasConfina(ConfinaCon(9, incr)));
    }
}

TEST(LeeConfina, CoeficientesCeroAbren)
{
    // GC, GS and GR.
    const Lectura l = LeeLineasConfina(prueba::ConLineas(LineasConfinaRectangular(), {{5, "0"}, {6, "0"}, {7, "0"}}));
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"GC", 0.0}, {"GS", 0.0}, {"GR", 0.0}});
}

TEST(LeeConfina, NegativosQuePasanSeGuardanPositivos)
{
    const Lectura l = LeeLineasConfina({"1", "-0.5", "-0.4", "25", "-1.5", "1.15", "1.4", "-1200", "1"});
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"DIAM", 0.5}, {"LADOMENOR", 0.4}, {"GC", 1.5}, {"NCP", 1200.0}});
}

TEST(LeeConfina, NegativosEnRectangularSeComparanConSigno)
{
    // -0.4 <= -0.5 is false: the raw values decide.
    EsperaRechazo(LeeLineasConfina({"3", "-0.5", "-0.4", "25", "1.5", "1.15", "1.4", "0", "1"}));
    const Lectura l = LeeLineasConfina({"3", "-0.4", "-0.5", "25", "1.5", "1.15", "1.4", "0", "1"});
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"DIAM", 0.4}, {"LADOMENOR", 0.5}});
}

TEST(LeeConfina, RechazoCargaLaListaCortaSinNuNiFyk)
{
    const Lectura l = LeeLineasConfina(ConfinaCon(4, "70"));
    EsperaRechazo(l);
    EXPECT_EQ(l.g.ANCHO, 0.9);
}

TEST(LeeConfina, ErrorDeEjecucionCargaLaListaLargaConNuYFyk)
{
    auto lineas = LineasConfinaRectangular();
    lineas.resize(8);
    EsperaError(LeeLineasConfina(lineas), "Error 62: La entrada sobrepasa el final del archivo");
}

TEST(LeeConfina, DobleDemasiadoGrandeDaDesbordamiento)
{
    EsperaError(LeeLineasConfina(ConfinaCon(8, "-1e999")), "Error 6: Desbordamiento");
}

TEST(LeeConfina, ComaDecimalDesplazaLosValores)
{
    // GC 1,5 is read as GC 1 and GS 5; the rest moves by one and INCR takes the axial load.
    const Lectura l = LeeConfinaDe("1\r\n0.5\r\n0.4\r\n25\r\n1,5\r\n1.15\r\n1.4\r\n1200\r\n1\r\n");
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"SECCION", 1}, {"GC", 1.0}, {"GS", 5.0}, {"GR", 1.15}, {"NCP", 1.4}, {"INCR", 1200.0}});
}

TEST(LeeConfina, ComaDecimalEnElDiametroSeRechaza)
{
    // 0,5 gives DIAM 0.
    EsperaRechazo(LeeConfinaDe("3\r\n0,5\r\n0,4\r\n25\r\n1,5\r\n1,15\r\n1,4\r\n1200\r\n1\r\n"));
}

TEST(LeeConfina, NueveValoresEnUnaLinea)
{
    const Lectura l = LeeConfinaDe("3,0.5,0.4,25,1.5,1.15,1.4,1200,1");
    EsperaAceptado(l);
    prueba::EsperaCampos(l.g, {{"SECCION", 3}, {"NCP", 1200.0}, {"INCR", 1.0}});
}

TEST(LeeConfina, FinesDeLineaLfYCrSolos)
{
    for (const char* fin : {"\n", "\r"}) {
        const Lectura l = LeeConfinaDe(ConFinDeLinea(LineasConfinaRectangular(), fin));
        EsperaAceptado(l);
        prueba::EsperaCampos(l.g, {{"SECCION", 3}, {"LADOMENOR", 0.4}, {"INCR", 1.0}});
    }
}

TEST(LeeConfina, NuncaBorraLaBanderaDeError)
{
    General inicial = prueba::EstadoAjeno();
    inicial.F_ERROR = true;
    const Lectura l = LeeConfinaDe(ConFinDeLinea(LineasConfinaRectangular()), inicial);
    EXPECT_TRUE(l.g.F_ERROR);
    EXPECT_TRUE(l.avisos.empty());
    prueba::EsperaCampos(l.g, {{"SECCION", 3}, {"NCP", 1200.0}});
}

}  // namespace
}  // namespace texalon
