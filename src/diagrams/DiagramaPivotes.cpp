// The strain plane of one flexure cell and the three pivots of the failure domain.
//
// The diagram draws what the results panel shows: its numbers are read back from the texts of
// the result fields, in per mil, and not from the result arrays. The horizontal axis is strain
// in per mil, compression to the right and tension to the left; the vertical axis is the
// height in the section in metres from the bottom fibre.
#include "diagrams/Grafico.h"

#include "diagrams/Lista.h"
#include "state/Catalogo.h"
#include "state/Decimales.h"
#include "state/Formato.h"

#include <string>
#include <string_view>

namespace texalon {

namespace {

// The pivots of the failure domain, in per mil: B the top concrete at 0.0035, A the bottom
// steel at 0.01 in tension.
constexpr double kPivoteB = 3.5;
constexpr double kPivoteA = -10.0;

// Where the caption "Refuerzo tipo TEXALON L - Núm. capas: 1" holds the short code of the
// type and the number of layers, counted in characters from 1.
constexpr int kPosicionCodigo = 23;
constexpr int kPosicionCapas = 39;

// The character at a position of a text, counted from 1 in characters and not in bytes; ""
// beyond its end.
std::string_view CaracterEn(std::string_view texto, int posicion)
{
    int contados = 0;
    for (std::size_t i = 0; i < texto.size();) {
        std::size_t largo = 1;
        const auto byte = static_cast<unsigned char>(texto[i]);
        if (byte >= 0xF0)
            largo = 4;
        else if (byte >= 0xE0)
            largo = 3;
        else if (byte >= 0xC0)
            largo = 2;
        if (++contados == posicion) return texto.substr(i, largo);
        i += largo;
    }
    return {};
}

// The sheet type whose short code stands in the caption; 0 when it names none.
int TipoDelTitulo(std::string_view titulo)
{
    const std::string_view codigo = CaracterEn(titulo, kPosicionCodigo);
    for (int tipo = 1; tipo <= kNumeroTipos; ++tipo)
        if (codigo == EtiquetaTipo(tipo)) return tipo;
    return 0;
}

// The number of layers in the caption, read as a plain number: 0 when the place holds no digit.
int CapasDelTitulo(std::string_view titulo)
{
    const std::string_view digito = CaracterEn(titulo, kPosicionCapas);
    return digito.size() == 1 && digito[0] >= '0' && digito[0] <= '9' ? digito[0] - '0' : 0;
}

// The numbers of the cell that the diagram draws, per mil and metres.
struct CeldaPivotes {
    double ec;  // top concrete fibre
    double er;  // sheet
    double esi;  // bottom steel
    double ess;  // top steel, unsigned
    double fn;  // neutral axis depth
    double e0;  // initial strain
};

CeldaPivotes LeeCelda(const ResultadosCeldaFlexion& celda, char separador)
{
    CeldaPivotes c{};
    c.ec = ValorDeTexto(celda.EPSC, separador);
    c.er = ValorDeTexto(celda.EPSR, separador);
    c.esi = ValorDeTexto(celda.EPSSI, separador);
    c.ess = ValorDeTexto(celda.EPSSS, separador);
    c.fn = ValorDeTexto(celda.FN, separador);
    c.e0 = ValorDeTexto(celda.EPS0, separador);
    return c;
}

std::string PorMil(double valor, char separador) { return Formato(valor, "0.00", separador) + "‰"; }

}  // namespace

void DiagramaPivotesFlexion(General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda, char separador)
{
    NuevaLista(d);
    d.F_PIVOTES = true;
    d.F_MOMENTOS = false;
    d.F_SECCION = false;
    d.F_CAPAS = false;

    const int tipo = TipoDelTitulo(celda.tipo);
    const int capas = CapasDelTitulo(celda.tipo);
    CopiaTipo(g, tipo);
    DeformacionCalculo(g);

    const CeldaPivotes c = LeeCelda(celda, separador);
    const double h = g.CANTO;
    const double r = g.RECUB;

    // Failing at pivot R the sheet reaches its design strain, and the pivot ends the strain
    // line; otherwise the pivot stands at the design strain less the initial strain, apart.
    const double xr = Recortado(celda.PIVOTE) == "R" ? -c.er : -g.EPSD(capas) * 1000.0 - c.e0;
    // The field shows the top steel unsigned: below the neutral axis it is in tension.
    const double s = c.fn < r ? -c.ess : c.ess;

    Eje(d, 0.0, 0.0, 0.0, h);
    Eje(d, 0.0, h, c.ec, h);
    Eje(d, 0.0, 0.0, -c.er, 0.0);
    LineaRejilla(d, 0.0, r, -c.esi, r);
    LineaRejilla(d, 0.0, h - r, s, h - r);
    Eje(d, -c.er, 0.0, c.ec, h);

    AnadePunto(d, kPivoteB, h, kRojo);
    AnadePunto(d, kPivoteA, r, kRojo);
    AnadePunto(d, xr, 0.0, kRojo);
    AnadeLinea(d, 0.0, h, kPivoteB, h, kRojo, kPunteada, 1);
    AnadeLinea(d, 0.0, 0.0, xr, 0.0, kRojo, kPunteada, 1);
    AnadeLinea(d, 0.0, r, kPivoteA, r, kRojo, kPunteada, 1);

    EtiquetaHorizontal(d, c.ec * 1.5, h * 1.07, PorMil(c.ec, separador));
    EtiquetaHorizontal(d, -c.er * 1.1, h * -0.07, PorMil(c.er, separador));
    AnadeTexto(d, Clase::Texto, 4.0, h, kRojo, 8, false, "B");
    AnadeTexto(d, Clase::Texto, xr - 0.5, 0.0, kRojo, 8, false, "R");
    AnadeTexto(d, Clase::Texto, -10.5, r, kRojo, 8, false, "A");
    Titulo(d, -13.5 / 4.0, h * 1.2, "DIAGRAMA DE PIVOTES");
}

void DiagramaPivotes(General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda, char separador)
{
    DiagramaPivotesFlexion(g, d, celda, separador);
}

void DiagramaPivotesT(General& g, GeneralDibujo& d, const ResultadosCeldaFlexion& celda, char separador)
{
    DiagramaPivotesFlexion(g, d, celda, separador);
}

}  // namespace texalon
