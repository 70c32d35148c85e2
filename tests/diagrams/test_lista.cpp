// The display list's writers and the fit that every renderer shares.
#include "diagrams/Lista.h"
#include "Elementos.h"

#include <gtest/gtest.h>

#include <tuple>

namespace texalon {
namespace {

using prueba::Lee;

GeneralDibujo ListaVacia()
{
    GeneralDibujo d;
    NuevaLista(d);
    return d;
}

// The point (x, y) of the world at the pixel (px, py), each to the last bits of a double.
void EsperaEnPixeles(const Encuadre& e, double x, double y, double px, double py)
{
    EXPECT_DOUBLE_EQ(e.X(x), px);
    EXPECT_DOUBLE_EQ(e.Y(y), py);
}

// The scales of the fit, each to the last bits of a double.
void EsperaEscalas(const GeneralDibujo& d, double escalax, double escalay)
{
    EXPECT_DOUBLE_EQ(d.ESCALAX, escalax);
    EXPECT_DOUBLE_EQ(d.ESCALAY, escalay);
}

TEST(NuevaLista, DejaMilElementosDeDiezCamposVaciosYNingunoContado)
{
    GeneralDibujo d;
    d.NLISTA = 7;
    NuevaLista(d);
    EXPECT_EQ(d.NLISTA, 0);
    EXPECT_EQ(d.LISTA.Filas(), 1000);
    EXPECT_EQ(d.LISTA.Columnas(), 10);
    EXPECT_EQ(d.TEXTOS.Filas(), 1000);
    EXPECT_EQ(d.LISTA(1000, 10), 0.0);
    EXPECT_EQ(d.TEXTOS(1000), "");
}

TEST(NuevaLista, BorraLaListaDelDiagramaAnterior)
{
    GeneralDibujo d = ListaVacia();
    Titulo(d, 1, 2, "DIAGRAMA");
    NuevaLista(d);
    EXPECT_EQ(d.LISTA(1, campo::kClase), 0.0);
    EXPECT_EQ(d.TEXTOS(1), "");
}

TEST(Escritores, CadaElementoOcupaLosCamposDeSuClase)
{
    GeneralDibujo d = ListaVacia();
    AnadeLinea(d, 1, 2, 3, 4, ColorRGB(1, 2, 3), kPunteada, 2);
    AnadePunto(d, 5, 6, kRojo);
    AnadeTexto(d, Clase::TextoDerecha, 7, 8, kAzul, 12, true, "Nº capas");
    AnadeForma(d, Clase::Elipse, 9, 10, 11, 12, kGris);
    ASSERT_EQ(d.NLISTA, 4);

    const prueba::Elemento linea = Lee(d, 1);
    // Kind, corners, colour, style and width, exactly.
    EXPECT_EQ(std::tuple(linea.clase, linea.x1, linea.y1, linea.x2, linea.y2, linea.color, linea.estilo, linea.ancho),
              std::tuple(1, 1, 2, 3, 4, 1 + 2 * 256 + 3 * 65536, 3, 2));

    const prueba::Elemento punto = Lee(d, 2);
    EXPECT_EQ(punto.clase, 2);
    EXPECT_EQ(punto.x2, 0.0);
    EXPECT_EQ(punto.y2, 0.0);
    EXPECT_EQ(punto.color, 255);

    const prueba::Elemento texto = Lee(d, 3);
    EXPECT_EQ(texto.clase, 8);
    EXPECT_EQ(texto.ancho, 12);
    EXPECT_TRUE(texto.negrita);
    EXPECT_EQ(texto.color, 255 * 65536);
    EXPECT_EQ(texto.texto, "Nº capas");

    const prueba::Elemento elipse = Lee(d, 4);
    EXPECT_EQ(elipse.clase, 7);
    EXPECT_EQ(elipse.x2, 11);
    EXPECT_EQ(elipse.color, 192 + 192 * 256 + 192 * 65536);
    // Field 6 is never written.
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(d.LISTA(i, 6), 0.0);
}

TEST(Escritores, FormasComunesDeLosGraficos)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 1, 0);
    Curva(d, 0, 0, 1, 1, kRojo);
    LineaRejilla(d, 0, 1, 1, 1);
    MarcaRequerida(d, 0.5, 0, 0.5, 1);
    EtiquetaHorizontal(d, 0.5, -0.1, "0,50");
    EtiquetaVertical(d, 0, 0.5, "  50");
    NombreEje(d, 1.1, 0, "Mu (mkN)");
    Titulo(d, 0.5, 1.3, "DIAGRAMA");

    const auto linea = [&](int i, Color color, double estilo, double ancho) {
        const prueba::Elemento e = Lee(d, i);
        EXPECT_EQ(e.clase, 1) << i;
        EXPECT_EQ(e.color, color) << i;
        EXPECT_EQ(e.estilo, estilo) << i;
        EXPECT_EQ(e.ancho, ancho) << i;
    };
    linea(1, 0, 1, 1);
    linea(2, 255, 1, 2);
    linea(3, 0, 3, 1);
    linea(4, 128 + 64 * 65536, 3, 3);

    const auto texto = [&](int i, int clase, double tamano, bool negrita) {
        const prueba::Elemento e = Lee(d, i);
        EXPECT_EQ(e.clase, clase) << i;
        EXPECT_EQ(e.color, 0) << i;
        EXPECT_EQ(e.ancho, tamano) << i;
        EXPECT_EQ(e.negrita, negrita) << i;
    };
    texto(5, 3, 8, false);
    texto(6, 4, 8, false);
    texto(7, 3, 8, false);
    texto(8, 3, 12, true);
}

// ---- The fit.

TEST(Ajusta, UnTextoSoloEnCincoCincoAjustaLaCajaDesdeElOrigen)
{
    GeneralDibujo d = ListaVacia();
    NombreEje(d, 5, 5, "x");
    const Encuadre e = Ajusta(d, 400, 300, 0);
    EXPECT_EQ(e.xmin, 0.0);
    EXPECT_EQ(e.ymin, 0.0);
    EsperaEscalas(d, 400 * 0.8 / 5, 300 * 0.8 / 5);
    // The box (0, 0)-(5, 5) fills 80 % of the area, centred.
    EsperaEnPixeles(e, 0, 0, 40, 270);
    EsperaEnPixeles(e, 5, 5, 360, 30);
}

TEST(Ajusta, GuardaElTamanoDelAreaYLasEscalas)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 10, 2);
    const Encuadre e = Ajusta(d, 440, 176, 0);
    EXPECT_EQ(std::tie(d.ANCHOPIC, d.ALTOPIC), std::tuple(440, 176));
    EsperaEscalas(d, 35.2, 70.4);
    EXPECT_EQ(std::tie(e.escalaX, e.escalaY), std::tie(d.ESCALAX, d.ESCALAY));
}

TEST(Ajusta, IsotropicoUnCuadradoQuedaCuadrado)
{
    GeneralDibujo d = ListaVacia();
    AnadeForma(d, Clase::Barra, 1, 3, 3, 1, kGris);
    const Encuadre e = Ajusta(d, 400, 300, 1);
    // A shape's two corners are both real: the box is (1, 1)-(3, 3), and the lesser factor,
    // 300 × 0.8 / 2, serves both directions.
    EsperaEscalas(d, 120, 120);
    EXPECT_DOUBLE_EQ(e.X(3) - e.X(1), 240);
    EXPECT_DOUBLE_EQ(e.Y(1) - e.Y(3), 240);
    EsperaEnPixeles(e, 1, 1, (400 - 2 * 120) / 2.0, 300 - (300 - 2 * 120) / 2.0);
}

TEST(Ajusta, SinIsotropiaElCuadradoSeEstiraAlOchentaPorCiento)
{
    GeneralDibujo d = ListaVacia();
    AnadeForma(d, Clase::Barra, 0, 2, 2, 0, kGris);
    const Encuadre e = Ajusta(d, 400, 300, 0);
    EXPECT_DOUBLE_EQ(e.X(2) - e.X(0), 320);
    EXPECT_DOUBLE_EQ(e.Y(0) - e.Y(2), 240);
}

TEST(Ajusta, IsotropicoConEscalaAnchoCeroTodoCaeEnElCentro)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 0, 4);
    const Encuadre e = Ajusta(d, 400, 300, 1);
    EXPECT_EQ(std::tie(d.ESCALAX, d.ESCALAY), std::tuple(0.0, 0.0));
    EsperaEnPixeles(e, 0, 4, 200, 150);
    EXPECT_DOUBLE_EQ(e.Y(0), 150);
}

TEST(Ajusta, CualquierOtroValorDeIsotropiaDejaLasEscalasIndependientes)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 4, 1);
    Ajusta(d, 400, 300, 2);
    EsperaEscalas(d, 80, 240);
}

TEST(Ajusta, LaCajaTomaLosCamposDeTodasLasClasesYEmpiezaEnElElementoUno)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, -2, 1, 6, 3);
    AnadeForma(d, Clase::RectanguloRedondeado, 1, 9, 2, 4, kGris);
    const Encuadre e = Ajusta(d, 100, 100, 0);
    EXPECT_EQ(e.xmin, -2);
    EXPECT_EQ(e.ymin, 1);
    EsperaEscalas(d, 80.0 / 8, 80.0 / 8);
}

TEST(Ajusta, EnElPapelLosMargenesDesplazanLaCaja)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 10, 5);
    // A page of 19 × 27 cm with margins 2 (right), 1.5 (left), 3 (top) and 4 (bottom).
    const double ancho = 19 - 2 - 1.5;
    const double alto = 27 - 3 - 4;
    const Encuadre e = Ajusta(d, ancho, alto, 0, 1.5, 3);
    EXPECT_DOUBLE_EQ(d.ANCHOPIC, 15.5);
    EXPECT_DOUBLE_EQ(d.ALTOPIC, 20);
    EXPECT_DOUBLE_EQ(e.ox, (15.5 - 10 * d.ESCALAX) / 2 + 1.5);
    EXPECT_DOUBLE_EQ(e.oy, (20 + 3) - (20 - 5 * d.ESCALAY) / 2);
    EsperaEnPixeles(e, 0, 0, 1.5 + 15.5 * 0.1, 3 + 20 * 0.9);
}

TEST(Ajusta, UnaListaQueNuncaSeCreoCabeEnUnPunto)
{
    GeneralDibujo d;
    const Encuadre e = Ajusta(d, 400, 300, 0);
    EXPECT_EQ(d.ESCALAX, 0.0);
    EXPECT_EQ(d.ESCALAY, 0.0);
    EsperaEnPixeles(e, 0, 0, 200, 150);
}

TEST(AjustaGuardado, UsaElTamanoGuardadoAunqueSeaDeCentimetros)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 1, 1);
    d.ANCHOPIC = 8.5;
    d.ALTOPIC = 6.0;
    AjustaGuardado(d, 0);
    EsperaEscalas(d, 6.8, 4.8);
    EXPECT_EQ(d.ANCHOPIC, 8.5);
}

TEST(Encuadra, ElMismoAjusteSinGuardarNada)
{
    GeneralDibujo d = ListaVacia();
    Eje(d, 0, 0, 10, 5);
    d.ANCHOPIC = 17.0;
    d.ALTOPIC = 25.7;
    d.ESCALAX = 1.5;
    d.ESCALAY = 2.5;
    const Encuadre e = Encuadra(d, 400, 300, kIsotropico);
    EXPECT_EQ(e.ancho, 400.0);
    EXPECT_EQ(e.alto, 300.0);
    EXPECT_DOUBLE_EQ(e.escalaX, 32);
    EXPECT_DOUBLE_EQ(e.escalaY, 32);
    EsperaEnPixeles(e, 0, 0, 40, 230);
    // The drawing state is as it was: a picture drawn for a file leaves it so.
    EXPECT_EQ(d.ANCHOPIC, 17.0);
    EXPECT_EQ(d.ALTOPIC, 25.7);
    EXPECT_EQ(d.ESCALAX, 1.5);
    EXPECT_EQ(d.ESCALAY, 2.5);
    // Ajusta stores the very same fit.
    const Encuadre guardado = Ajusta(d, 400, 300, kIsotropico);
    EXPECT_EQ(guardado.ox, e.ox);
    EXPECT_EQ(guardado.oy, e.oy);
    EXPECT_EQ(d.ANCHOPIC, 400.0);
    EXPECT_EQ(d.ESCALAX, e.escalaX);
    EXPECT_EQ(d.ESCALAY, e.escalaY);
}

// ---- The place of a text by its kind, on the picture and on paper alike.

TEST(ColocaTexto, CentradoEnSuAnclaje)
{
    const EsquinaTexto e = ColocaTexto(Clase::Texto, 100, 50, 30, 12);
    EXPECT_DOUBLE_EQ(e.izquierda, 85);
    EXPECT_DOUBLE_EQ(e.arriba, 44);
}

TEST(ColocaTexto, AcabaUnTercioDeSuAnchoALaIzquierdaDelAnclaje)
{
    const EsquinaTexto e = ColocaTexto(Clase::TextoIzquierda, 100, 50, 30, 12);
    EXPECT_DOUBLE_EQ(e.izquierda, 60);
    EXPECT_DOUBLE_EQ(e.izquierda + 30, 100 - 30.0 / 3);
    EXPECT_DOUBLE_EQ(e.arriba, 44);
}

TEST(ColocaTexto, EmpiezaUnTercioDeSuAnchoALaDerechaDelAnclaje)
{
    const EsquinaTexto e = ColocaTexto(Clase::TextoDerecha, 100, 50, 30, 12);
    EXPECT_DOUBLE_EQ(e.izquierda, 110);
    EXPECT_DOUBLE_EQ(e.arriba, 44);
}

}  // namespace
}  // namespace texalon
