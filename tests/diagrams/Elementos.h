// What the tests of the diagram procedures share: an element of the display list read back as
// a record, and a drawing state in use that a procedure must leave as it is but for its list.
#pragma once

#include "diagrams/Lista.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

namespace texalon::prueba {

// One element of the list, field by field.
struct Elemento {
    int clase = 0;
    double x1 = 0.0, y1 = 0.0;  // the first corner or point
    double x2 = 0.0, y2 = 0.0;  // the second
    Color color = 0;
    double estilo = 0.0;  // line style (field 8)
    double ancho = 0.0;  // line width or font size (field 9)
    bool negrita = false;  // field 10 not 0
    std::string texto;
};

// Element i of the list, as the renderers read it.
inline Elemento Lee(const GeneralDibujo& d, int i)
{
    Elemento e;
    e.clase = static_cast<int>(std::lround(d.LISTA(i, campo::kClase)));
    e.x1 = d.LISTA(i, campo::kX1);
    e.y1 = d.LISTA(i, campo::kY1);
    e.x2 = d.LISTA(i, campo::kX2);
    e.y2 = d.LISTA(i, campo::kY2);
    e.color = static_cast<Color>(std::lround(d.LISTA(i, campo::kColor)));
    e.estilo = d.LISTA(i, campo::kEstilo);
    e.ancho = d.LISTA(i, campo::kAncho);
    e.negrita = d.LISTA(i, campo::kNegrita) != 0.0;
    e.texto = d.TEXTOS(i);
    return e;
}

// Expected elements, written field by field as the charts' forms write them.
inline Elemento EsperadoLinea(double x1, double y1, double x2, double y2, Color color, int estilo, int ancho)
{
    return {static_cast<int>(Clase::Linea), x1, y1, x2, y2, color, static_cast<double>(estilo),
            static_cast<double>(ancho), false, ""};
}
inline Elemento EsperadoPunto(double x, double y, Color color)
{
    return {static_cast<int>(Clase::Punto), x, y, 0.0, 0.0, color, 0.0, 0.0, false, ""};
}
inline Elemento EsperadoTexto(Clase clase, double x, double y, Color color, double tamano, bool negrita,
                              const std::string& texto)
{
    return {static_cast<int>(clase), x, y, 0.0, 0.0, color, 0.0, tamano, negrita, texto};
}
inline Elemento EsperadoForma(Clase clase, double x1, double y1, double x2, double y2, Color relleno)
{
    return {static_cast<int>(clase), x1, y1, x2, y2, relleno, 0.0, 0.0, false, ""};
}

// Element i of the list against an expected one: the kind, colour, style, width or size,
// boldness and text exactly, the coordinates to the last bits of a double.
inline void EsperaElemento(const GeneralDibujo& d, int i, const Elemento& esperado)
{
    SCOPED_TRACE("elemento " + std::to_string(i));
    const Elemento e = Lee(d, i);
    EXPECT_EQ(e.clase, esperado.clase);
    EXPECT_DOUBLE_EQ(e.x1, esperado.x1);
    EXPECT_DOUBLE_EQ(e.y1, esperado.y1);
    EXPECT_DOUBLE_EQ(e.x2, esperado.x2);
    EXPECT_DOUBLE_EQ(e.y2, esperado.y2);
    EXPECT_EQ(e.color, esperado.color);
    EXPECT_EQ(e.estilo, esperado.estilo);
    EXPECT_EQ(e.ancho, esperado.ancho);
    EXPECT_EQ(e.negrita, esperado.negrita);
    EXPECT_EQ(e.texto, esperado.texto);
}

// The whole list against the expected sequence, element by element, and nothing beyond it.
inline void EsperaLista(const GeneralDibujo& d, const std::vector<Elemento>& esperados)
{
    ASSERT_EQ(d.NLISTA, static_cast<int>(esperados.size()));
    for (int i = 1; i <= d.NLISTA; ++i) EsperaElemento(d, i, esperados[static_cast<std::size_t>(i - 1)]);
}

// The counters, the fit and the zoom of a drawing state, as one tuple: two states compare in a
// single expectation that prints them all.
inline auto ContadoresAjusteYZoom(const GeneralDibujo& d)
{
    return std::tuple(d.NLINEA, d.NTIT, d.NBARRA, d.NPUNTO, d.NSECRECT, d.NSECCIR, d.ANCHOPIC, d.ALTOPIC, d.ESCALAX,
                      d.ESCALAY, d.ZOOM, d.ZOOMX1, d.ZOOMY1, d.ZOOMX2, d.ZOOMY2, d.F_ZOOM);
}

// The four flags of the diagrams in one tuple: pivots, moments, section, layers.
inline auto Banderas(const GeneralDibujo& d) { return std::tuple(d.F_PIVOTES, d.F_MOMENTOS, d.F_SECCION, d.F_CAPAS); }

// A drawing state whose counters, fit and zoom hold values that no diagram procedure writes. A
// procedure builds the list and sets its flags, and that is all: whoever called it shows the
// list on a picture, on paper or in a file.
inline GeneralDibujo DibujoEnUso()
{
    GeneralDibujo d;
    static_cast<ContadoresDibujo&>(d) = {
        .NLINEA = 11, .NTIT = 12, .NBARRA = 13, .NPUNTO = 14, .NSECRECT = 15, .NSECCIR = 16};
    std::tie(d.ANCHOPIC, d.ALTOPIC, d.ESCALAX, d.ESCALAY) = std::tuple(440.0, 176.0, 3.5, 4.5);
    std::tie(d.ZOOM, d.ZOOMX1, d.ZOOMY1, d.ZOOMX2, d.ZOOMY2, d.F_ZOOM) = std::tuple(30.0, 1.0, 2.0, 3.0, 4.0, true);
    return d;
}

// The counters, fit and zoom of DibujoEnUso, as they were.
inline void EsperaSoloLaLista(const GeneralDibujo& d)
{
    EXPECT_EQ(ContadoresAjusteYZoom(d), ContadoresAjusteYZoom(DibujoEnUso()));
}

}  // namespace texalon::prueba
