#include "state/Catalogo.h"

#include <gtest/gtest.h>

#include <cmath>

namespace texalon {
namespace {

// A value to the six decimals the tables give, as a whole number of millionths.
long long Millonesimas(double valor) { return std::llround(valor * 1e6); }

class Catalogo : public ::testing::Test {
protected:
    void SetUp() override { ValoresIniciales(g); }

    // KM and EPSD of a type with the GR in hand.
    void Calcula(int tipo)
    {
        CopiaTipo(g, tipo);
        DeformacionCalculo(g);
    }

    General g;
};

TEST_F(Catalogo, FilasDeLosTresTipos)
{
    ASSERT_EQ(g.NTIPOS, 3);
    ASSERT_EQ(g.MAXCAPAS, 5);
    EXPECT_EQ(g.TIPOS(1), "TEXALON L");
    EXPECT_EQ(g.TIPOS(2), "TEXALON H");
    EXPECT_EQ(g.TIPOS(3), "TEXALON X");
    EXPECT_EQ(g.CATALOGO(1, kEspesor), 0.111);
    EXPECT_EQ(g.CATALOGO(2, kEspesor), 0.167);
    EXPECT_EQ(g.CATALOGO(3, kEspesor), 0.163);
    EXPECT_EQ(g.CATALOGO(1, kModulo), 230000.0);
    EXPECT_EQ(g.CATALOGO(2, kModulo), 230000.0);
    EXPECT_EQ(g.CATALOGO(3, kModulo), 440000.0);
    EXPECT_EQ(g.CATALOGO(1, kEpsu), 0.015);
    EXPECT_EQ(g.CATALOGO(2, kEpsu), 0.015);
    EXPECT_EQ(g.CATALOGO(3, kEpsu), 0.0055);
    EXPECT_EQ(g.COLORES(1), ColorRGB(255, 0, 0));
    EXPECT_EQ(g.COLORES(2), ColorRGB(0, 0, 0));
    EXPECT_EQ(g.COLORES(3), ColorRGB(214, 204, 31));
    EXPECT_EQ(g.COLORES(3), 214 + 256 * 204 + 65536 * 31);
    EXPECT_EQ(EtiquetaTipo(1), "L");
    EXPECT_EQ(EtiquetaTipo(2), "H");
    EXPECT_EQ(EtiquetaTipo(3), "X");
}

TEST_F(Catalogo, CopiaTipoLlevaLaFilaAlTipoEnCurso)
{
    CopiaTipo(g, 3);
    EXPECT_EQ(g.ESPESOR, 0.163);
    EXPECT_EQ(g.E, 440000.0);
    EXPECT_EQ(g.EPSU, 0.0055);
}

struct FilaTabla {
    int capas;
    long long km[3];
    long long epsd[3];
};

// The design strain table with the default GR of 1.4, to six decimals.
constexpr FilaTabla kTabla[] = {
    {1, {900000, 900000, 832430}, {9643, 9643, 3270}}, {2, {880701, 820514, 664860}, {9436, 8791, 2612}},
    {3, {821051, 730771, 497304}, {8797, 7830, 1954}}, {4, {761402, 641028, 372978}, {8158, 6868, 1465}},
    {5, {701752, 551285, 298383}, {7519, 5907, 1172}},
};

TEST_F(Catalogo, TablaDeDeformacionDeCalculoConGrPorDefecto)
{
    ASSERT_EQ(g.GR, 1.4);
    for (int tipo = 1; tipo <= 3; ++tipo) {
        Calcula(tipo);
        ASSERT_EQ(g.KM.Filas(), 5);
        ASSERT_EQ(g.EPSD.Filas(), 5);
        for (const FilaTabla& fila : kTabla) {
            const auto columna = static_cast<std::size_t>(tipo - 1);
            EXPECT_EQ(Millonesimas(g.KM(fila.capas)), fila.km[columna]) << "tipo " << tipo << ", capas " << fila.capas;
            EXPECT_EQ(Millonesimas(g.EPSD(fila.capas)), fila.epsd[columna])
                << "tipo " << tipo << ", capas " << fila.capas;
        }
    }
}

TEST_F(Catalogo, PrimerasCapasDeLyHTopadasEnCeroNueve)
{
    Calcula(1);
    EXPECT_EQ(g.KM(1), 0.9);
    EXPECT_DOUBLE_EQ(g.EPSD(1), 0.9 * 0.015 / 1.4);
    Calcula(2);
    EXPECT_EQ(g.KM(1), 0.9);
}

TEST_F(Catalogo, RigidezDe214000DaCeroCincoPorLaSegundaRama)
{
    // One layer of 1 mm at 214000 N/mm² gives x = 214000 exactly.
    g.ESPESOR = 1.0;
    g.E = 214000.0;
    g.EPSU = 0.015;
    DeformacionCalculo(g);
    EXPECT_EQ(g.KM(1), 0.5);
    EXPECT_EQ(g.KM(1), 107000.0 / 214000.0);
    // Just below, the first formula; it meets the second at 0.5.
    g.E = 213999.0;
    DeformacionCalculo(g);
    EXPECT_DOUBLE_EQ(g.KM(1), 1.0 - 213999.0 / 428000.0);
}

TEST_F(Catalogo, GrUnoYTipoXDaEpsdDeCeroCeroCeroCincoCincoPorKm)
{
    g.GR = 1.0;
    Calcula(3);
    EXPECT_EQ(Millonesimas(g.KM(1)), 832430);
    EXPECT_DOUBLE_EQ(g.EPSD(1), 0.0055 * g.KM(1));
    EXPECT_NEAR(g.EPSD(1), 0.0055 * 0.83243, 0.0055 * 0.000001);
}

TEST_F(Catalogo, CambioDeGrCambiaEpsdPeroNoKm)
{
    Calcula(2);
    const Arreglo<double> kmAntes = g.KM;
    const Arreglo<double> epsdAntes = g.EPSD;
    g.GR = 1.2;
    Calcula(2);
    for (int n = 1; n <= 5; ++n) {
        EXPECT_EQ(g.KM(n), kmAntes(n));
        EXPECT_NE(g.EPSD(n), epsdAntes(n));
        EXPECT_DOUBLE_EQ(g.EPSD(n), epsdAntes(n) * 1.4 / 1.2);
    }
}

TEST_F(Catalogo, ElUltimoTipoCopiadoQuedaEnElEstado)
{
    Calcula(1);
    Calcula(3);
    EXPECT_EQ(g.E, 440000.0);
    EXPECT_EQ(Millonesimas(g.KM(1)), 832430);
}

}  // namespace
}  // namespace texalon
