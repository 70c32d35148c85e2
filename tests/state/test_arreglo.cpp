#include "state/Arreglo.h"

#include <gtest/gtest.h>

#include <string>

namespace texalon {
namespace {

TEST(Arreglo, SinDimensionarNoTieneElementos)
{
    Arreglo<double> a;
    EXPECT_FALSE(a.Existe());
    EXPECT_THROW(a(1), ErrorEjecucion);
}

TEST(Arreglo, UnaDimensionCuentaDesdeUno)
{
    Arreglo<double> a;
    a.Redimensiona(5);
    EXPECT_EQ(a.Filas(), 5);
    for (int i = 1; i <= 5; ++i)
        a(i) = i * 10.0;
    EXPECT_EQ(a(1), 10.0);
    EXPECT_EQ(a(5), 50.0);
}

TEST(Arreglo, DosDimensionesPorTipoYCapas)
{
    Arreglo<double> mu;
    mu.Redimensiona(3, 5);
    mu(1, 1) = 1.0;
    mu(3, 5) = 35.0;
    mu(2, 4) = 24.0;
    EXPECT_EQ(mu(1, 1), 1.0);
    EXPECT_EQ(mu(2, 4), 24.0);
    EXPECT_EQ(mu(3, 5), 35.0);
    EXPECT_EQ(mu(3, 4), 0.0);
}

TEST(Arreglo, FueraDeLimitesEsElErrorNueve)
{
    Arreglo<double> mu;
    mu.Redimensiona(3, 5);
    for (auto [i, j] : {std::pair{0, 1}, {1, 0}, {4, 1}, {1, 6}}) {
        try {
            mu(i, j);
            ADD_FAILURE() << i << ", " << j;
        } catch (const ErrorEjecucion& error) {
            EXPECT_EQ(error.Numero(), 9);
            EXPECT_EQ(error.Descripcion(), "Subíndice fuera del intervalo");
        }
    }
    EXPECT_THROW(mu(1), ErrorEjecucion);
}

TEST(Arreglo, RedimensionarBorraLosValores)
{
    Arreglo<std::string> pivote;
    pivote.Redimensiona(3, 5);
    pivote(2, 2) = "B";
    pivote.Redimensiona(3, 5);
    EXPECT_EQ(pivote(2, 2), "");
    Arreglo<double> lista;
    lista.Redimensiona(1000, 10);
    EXPECT_EQ(lista(1000, 10), 0.0);
    lista.Borra();
    EXPECT_FALSE(lista.Existe());
}

TEST(ErrorEjecucion, DescripcionesEnEspanol)
{
    EXPECT_EQ(ErrorEjecucion(6).Descripcion(), "Desbordamiento");
    EXPECT_EQ(ErrorEjecucion(53).Descripcion(), "No se ha encontrado el archivo");
    EXPECT_EQ(ErrorEjecucion(62).Descripcion(), "La entrada sobrepasa el final del archivo");
    EXPECT_EQ(ErrorEjecucion(70).Descripcion(), "Permiso denegado");
    EXPECT_EQ(ErrorEjecucion(76).Descripcion(), "No se ha encontrado la ruta de acceso");
    EXPECT_EQ(ErrorEjecucion(6).Numero(), 6);
}

}  // namespace
}  // namespace texalon
