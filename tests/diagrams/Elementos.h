// What the tests of the diagram procedures share: an element of the display list read back as
// a record, and a drawing state in use that a procedure must leave as it is but for its list.
#pragma once

#include "diagrams/Lista.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace texalon::prueba {

// One element of the list, field by field.
struct Elemento {
    int clase = 0;
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
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

// A drawing state whose counters, fit and zoom hold values that no diagram procedure writes. A
// procedure builds the list and sets its flags, and that is all: whoever called it shows the
// list on a picture, on paper or in a file.
inline GeneralDibujo DibujoEnUso()
{
    GeneralDibujo d;
    d.NLINEA = 11;
    d.NTIT = 12;
    d.NBARRA = 13;
    d.NPUNTO = 14;
    d.NSECRECT = 15;
    d.NSECCIR = 16;
    d.ANCHOPIC = 440.0;
    d.ALTOPIC = 176.0;
    d.ESCALAX = 3.5;
    d.ESCALAY = 4.5;
    d.ZOOM = 30.0;
    d.ZOOMX1 = 1.0;
    d.ZOOMY1 = 2.0;
    d.ZOOMX2 = 3.0;
    d.ZOOMY2 = 4.0;
    d.F_ZOOM = true;
    return d;
}

// The counters, fit and zoom of DibujoEnUso, as they were.
inline void EsperaSoloLaLista(const GeneralDibujo& d)
{
    const GeneralDibujo antes = DibujoEnUso();
    EXPECT_EQ(d.NLINEA, antes.NLINEA);
    EXPECT_EQ(d.NTIT, antes.NTIT);
    EXPECT_EQ(d.NBARRA, antes.NBARRA);
    EXPECT_EQ(d.NPUNTO, antes.NPUNTO);
    EXPECT_EQ(d.NSECRECT, antes.NSECRECT);
    EXPECT_EQ(d.NSECCIR, antes.NSECCIR);
    EXPECT_EQ(d.ANCHOPIC, antes.ANCHOPIC);
    EXPECT_EQ(d.ALTOPIC, antes.ALTOPIC);
    EXPECT_EQ(d.ESCALAX, antes.ESCALAX);
    EXPECT_EQ(d.ESCALAY, antes.ESCALAY);
    EXPECT_EQ(d.ZOOM, antes.ZOOM);
    EXPECT_EQ(d.ZOOMX1, antes.ZOOMX1);
    EXPECT_EQ(d.ZOOMY1, antes.ZOOMY1);
    EXPECT_EQ(d.ZOOMX2, antes.ZOOMX2);
    EXPECT_EQ(d.ZOOMY2, antes.ZOOMY2);
    EXPECT_EQ(d.F_ZOOM, antes.F_ZOOM);
}

}  // namespace texalon::prueba
