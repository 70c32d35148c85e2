// What the report tests share: the recording printer's page and line, the operations it
// recorded compared one by one, the set-up and the frame's rules, a report stopped at a field
// without a number, the texts printed and where, the rows of label and value, and a diagram on
// paper checked against its display list fitted into its margins.
#pragma once

#include "diagrams/Lista.h"
#include "platform/dobles/ImpresoraDoble.h"
#include "state/ErrorEjecucion.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace texalon::prueba {

inline constexpr double kTolerancia = 1e-9;
// The double's page and its line at the reports' font size 10.
inline constexpr double kAnchoPagina = 19.0;
inline constexpr double kAltoPagina = 27.7;
inline constexpr double kLinea = 0.5;
// The columns of the two blocks with the margins of 2 cm.
inline constexpr double kIzquierda = 2.0;
inline constexpr double kDerecha = 10.5;
inline constexpr double kValor = 4.5;

// The cell (L, 1) as the results block names it.
inline constexpr char kCelda[] = "Refuerzo tipo TEXALON L - Núm. capas: 1";

// ---- What the printer recorded.

// The operations recorded, one by one: name, text and every number to 1e-9.
inline void EsperaOperaciones(const std::vector<plataforma::Operacion>& reales,
                              const std::vector<plataforma::Operacion>& esperadas)
{
    ASSERT_EQ(reales.size(), esperadas.size());
    for (std::size_t i = 0; i < reales.size(); ++i) {
        SCOPED_TRACE("operación " + std::to_string(i) + ": " + esperadas[i].nombre);
        EXPECT_EQ(reales[i].nombre, esperadas[i].nombre);
        EXPECT_EQ(reales[i].texto, esperadas[i].texto);
        ASSERT_EQ(reales[i].numeros.size(), esperadas[i].numeros.size());
        for (std::size_t j = 0; j < reales[i].numeros.size(); ++j)
            EXPECT_NEAR(reales[i].numeros[j], esperadas[i].numeros[j], kTolerancia) << "número " << j;
    }
}

// The three operations that print a text at (x, y): the place, then the text.
inline std::vector<plataforma::Operacion> ImpresoEn(double x, double y, const std::string& texto)
{
    return {{"CurrentX", {x}, ""}, {"CurrentY", {y}, ""}, {"Print", {x, y}, texto}};
}

// Runs of operations, one after the other.
inline std::vector<plataforma::Operacion> Seguidas(std::initializer_list<std::vector<plataforma::Operacion>> partes)
{
    std::vector<plataforma::Operacion> todas;
    for (const auto& parte : partes)
        todas.insert(todas.end(), parte.begin(), parte.end());
    return todas;
}

// One operation: its name and every number to 1e-9.
inline void EsperaNumeros(const plataforma::Operacion& op, const std::string& nombre,
                          const std::vector<double>& numeros)
{
    EXPECT_EQ(op.nombre, nombre);
    ASSERT_EQ(op.numeros.size(), numeros.size()) << op.nombre;
    for (std::size_t i = 0; i < numeros.size(); ++i)
        EXPECT_NEAR(op.numeros[i], numeros[i], kTolerancia) << i;
}

// The positions of the operations of a name, in order.
inline std::vector<std::size_t> Posiciones(const std::vector<plataforma::Operacion>& ops, const std::string& nombre)
{
    std::vector<std::size_t> posiciones;
    for (std::size_t i = 0; i < ops.size(); ++i)
        if (ops[i].nombre == nombre) posiciones.push_back(i);
    return posiciones;
}

// The first operation that prints the text, or ops.size().
inline std::size_t PosicionDelTexto(const std::vector<plataforma::Operacion>& ops, const std::string& texto)
{
    for (std::size_t i = 0; i < ops.size(); ++i)
        if (ops[i].nombre == "Print" && ops[i].texto == texto) return i;
    return ops.size();
}

// The set-up ahead of anything printed: the paper first, then centimetres, Arial 10 and the
// document's name. Gives the position of the first text.
inline std::size_t EsperaPreparacion(const std::vector<plataforma::Operacion>& ops, const std::string& documento)
{
    using plataforma::Operacion;
    const std::size_t primerTexto = Posiciones(ops, "Print").at(0);
    const std::vector<Operacion> preparacion(ops.begin(), ops.begin() + static_cast<std::ptrdiff_t>(primerTexto));
    EXPECT_EQ(ops[0], (Operacion{"PaperSize", {9.0}, ""}));
    for (const Operacion& esperada : {Operacion{"ScaleMode", {7.0}, ""}, Operacion{"FontName", {}, "arial"},
                                      Operacion{"FontSize", {10.0}, ""}, Operacion{"NombreDocumento", {}, documento}})
        EXPECT_NE(std::find(preparacion.begin(), preparacion.end(), esperada), preparacion.end()) << esperada.nombre;
    return primerTexto;
}

// The frame's two rules, under the title and over the footer, and nothing else ruled by the
// operations before `hasta`.
inline void EsperaReglasDelMarco(const std::vector<plataforma::Operacion>& ops, std::size_t hasta)
{
    std::vector<plataforma::Operacion> reglas;
    for (std::size_t i = 0; i < hasta; ++i)
        if (ops[i].nombre == "Line") reglas.push_back(ops[i]);
    ASSERT_EQ(reglas.size(), 2u);
    EsperaNumeros(reglas[0], "Line", {2.0, 2.65, 17.0, 2.65, 0.0});
    EsperaNumeros(reglas[1], "Line", {2.0, 25.05, 17.0, 25.05, 0.0});
}

// A report that meets a field without a number: it stops at that field's row with the run-time
// type error, the row `anterior` printed and the row `detenida` not, and the document is never
// ended.
template <typename Imprime>
void EsperaDetenidoEnLaFila(Imprime imprime, const plataforma::ImpresoraDoble& impresora, const std::string& anterior,
                            const std::string& detenida)
{
    try {
        imprime();
        ADD_FAILURE() << "the report read \"---\" as a number";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.Numero(), ErrorEjecucion::kTiposNoCoinciden);
    }
    const auto& ops = impresora.operaciones;
    EXPECT_LT(PosicionDelTexto(ops, anterior), ops.size());
    EXPECT_EQ(PosicionDelTexto(ops, detenida), ops.size());
    EXPECT_TRUE(Posiciones(ops, "EndDoc").empty());
}

// A text where the printer wrote it.
struct Texto {
    double x = 0.0;
    double y = 0.0;
    std::string texto;
};

// The texts printed by operations [desde, hasta).
inline std::vector<Texto> Textos(const std::vector<plataforma::Operacion>& ops, std::size_t desde, std::size_t hasta)
{
    std::vector<Texto> textos;
    for (std::size_t i = desde; i < hasta && i < ops.size(); ++i)
        if (ops[i].nombre == "Print") textos.push_back({ops[i].numeros[0], ops[i].numeros[1], ops[i].texto});
    return textos;
}

// The texts of the frame and the rows: everything before the first diagram.
inline std::vector<Texto> TextosAntesDeLosDiagramas(const std::vector<plataforma::Operacion>& ops)
{
    const auto escalas = Posiciones(ops, "ScaleMode");
    return Textos(ops, 0, escalas.size() > 1 ? escalas[1] : ops.size());
}

inline void EsperaTextos(const std::vector<Texto>& vistos, const std::vector<Texto>& esperados)
{
    ASSERT_EQ(vistos.size(), esperados.size());
    for (std::size_t i = 0; i < vistos.size(); ++i) {
        SCOPED_TRACE("texto " + std::to_string(i) + " \"" + esperados[i].texto + "\"");
        EXPECT_EQ(vistos[i].texto, esperados[i].texto);
        EXPECT_NEAR(vistos[i].x, esperados[i].x, kTolerancia);
        EXPECT_NEAR(vistos[i].y, esperados[i].y, kTolerancia);
    }
}

// ---- What a report must write.

// The width of a text at size 10 in the double's metrics.
inline double Ancho(const std::string& texto)
{
    plataforma::ImpresoraDoble metrica;
    return metrica.TextWidth(texto);
}

// A number text written with the period, with the separator given.
inline std::string Con(std::string texto, char separador)
{
    std::replace(texto.begin(), texto.end(), '.', separador);
    return texto;
}

// A row: a label, or the main letters of a label with a subscript and the text whose width
// places the colon; the value with its unit.
struct Fila {
    Fila(std::string etiqueta_, std::string valor_) : etiqueta(std::move(etiqueta_)), valor(std::move(valor_)) {}
    Fila(std::string principal, std::string valor_, std::string subindice_, std::string anteDosPuntos_)
        : etiqueta(std::move(principal)),
          valor(std::move(valor_)),
          subindice(std::move(subindice_)),
          anteDosPuntos(std::move(anteDosPuntos_))
    {
    }

    std::string etiqueta;
    std::string valor;
    std::string subindice;
    std::string anteDosPuntos;
};

// The texts of rows one line apart from y, at the label column x.
inline void AnadeFilas(std::vector<Texto>& textos, double x, double y, const std::vector<Fila>& filas)
{
    for (const Fila& f : filas) {
        textos.push_back({x, y, f.etiqueta});
        if (!f.subindice.empty()) {
            textos.push_back({x + Ancho(f.etiqueta), y + 0.05, f.subindice});
            textos.push_back({x + Ancho(f.anteDosPuntos), y, ":"});
        }
        textos.push_back({x + kValor, y, f.valor});
        y += kLinea;
    }
}

// ---- The diagrams on paper.

// The operations that ImprimeLista draws for an element of each kind: a rounded rectangle is
// four sides and four arcs, everything else one operation.
inline std::size_t OperacionesDeDibujo(const GeneralDibujo& d)
{
    std::size_t n = 0;
    for (int i = 1; i <= d.NLISTA; ++i)
        n += ClaseElemento(d, i) == static_cast<int>(Clase::RectanguloRedondeado) ? 8u : 1u;
    return n;
}

inline bool EsDibujo(const plataforma::Operacion& op)
{
    return op.nombre == "Line" || op.nombre == "Box" || op.nombre == "Circle" || op.nombre == "Arc" ||
           op.nombre == "Print";
}

// The diagram drawn by the operations [desde, hasta), against the list `lista` fitted into the
// area that the four margins leave on the double's page: as many drawing operations as the list
// asks for, its first element where the fit puts it, every line and the centre of every circle
// and arc inside the area.
inline void EsperaDiagrama(const std::vector<plataforma::Operacion>& ops, std::size_t desde, std::size_t hasta,
                           GeneralDibujo& lista, double derecho, double izquierdo, double superior, double inferior,
                           Entero isotropico)
{
    ASSERT_LT(desde, hasta);
    ASSERT_LE(hasta, ops.size());
    EXPECT_EQ(ops[desde].nombre, "ScaleMode");
    std::vector<plataforma::Operacion> dibujo;
    for (std::size_t i = desde; i < hasta; ++i)
        if (EsDibujo(ops[i])) dibujo.push_back(ops[i]);
    ASSERT_EQ(dibujo.size(), OperacionesDeDibujo(lista));

    const double xMax = kAnchoPagina - derecho;
    const double yMax = kAltoPagina - inferior;
    const Encuadre e = Ajusta(lista, xMax - izquierdo, yMax - superior, isotropico, izquierdo, superior);
    const double xa = e.X(lista.LISTA(1, campo::kX1));
    const double ya = e.Y(lista.LISTA(1, campo::kY1));
    const double xb = e.X(lista.LISTA(1, campo::kX2));
    const double yb = e.Y(lista.LISTA(1, campo::kY2));
    const double color = lista.LISTA(1, campo::kColor);
    switch (static_cast<Clase>(ClaseElemento(lista, 1))) {
    case Clase::Linea: EsperaNumeros(dibujo[0], "Line", {xa, ya, xb, yb, color}); break;
    case Clase::Elipse: EsperaNumeros(dibujo[0], "Circle", {(xa + xb) / 2, (ya + yb) / 2, (xb - xa) / 2, color}); break;
    case Clase::RectanguloRedondeado: {
        const double r = 0.1 * std::min(std::abs(xb - xa), std::abs(yb - ya));
        EsperaNumeros(dibujo[0], "Line", {xa, ya + r, xa, yb - r, color});
        break;
    }
    default: FAIL() << "the diagrams of these reports start with a line or a shape";
    }

    const auto dentro = [&](double x, double y) {
        EXPECT_GE(x, izquierdo - kTolerancia);
        EXPECT_LE(x, xMax + kTolerancia);
        EXPECT_GE(y, superior - kTolerancia);
        EXPECT_LE(y, yMax + kTolerancia);
    };
    for (const plataforma::Operacion& op : dibujo) {
        if (op.nombre == "Line") {
            dentro(op.numeros[0], op.numeros[1]);
            dentro(op.numeros[2], op.numeros[3]);
        } else if (op.nombre == "Circle" || op.nombre == "Arc") {
            dentro(op.numeros[0], op.numeros[1]);
        }
    }
}

}  // namespace texalon::prueba
