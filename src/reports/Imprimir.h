// What the four reports share: the page set-up, the page frame, the rows of label and value,
// the labels with subscripts, the ruled grid, and the diagram of the display list on paper.
// Every position is in centimetres from the page's printable origin, X to the right, Y down.
#pragma once

#include "platform/Impresora.h"
#include "state/General.h"

#include <string>
#include <string_view>

namespace texalon {

using plataforma::Impresora;

// The layout of every report page.
constexpr double kMargen = 2.0;  // each of the four margins
constexpr double kColumnaValor = 4.5;  // from a block's label column to its value column
constexpr double kBloqueDerecho = 8.5;  // from the left margin to the right block's labels
constexpr double kYCabecera = 4.0;  // the first heading
constexpr double kYPrimeraFila = 5.0;  // the first row under it
constexpr double kAnchoA4 = 21.0;  // the nominal width of the sheet, for centred sentences

// The page of a report, read once after its set-up.
struct Pagina {
    double ancho = 0.0;  // the printer's scale width, cm
    double alto = 0.0;  // its scale height, cm
    double margenIzquierdo = kMargen;
    double margenDerecho = kMargen;
    double margenSuperior = kMargen;
    double margenInferior = kMargen;
};

// The start of every report: A4, centimetres, "arial" 10, the document's name for a printer
// that writes files; then the page's size read back.
Pagina PreparaInforme(Impresora& impresora, const std::string& nombreDocumento);

// Puts the print position at (x, y) and writes the text there.
void Escribe(Impresora& impresora, double x, double y, const std::string& texto);

// A result field's text read as a number and written again in the report's own format, so that
// the report does not depend on the decimals the field shows.
std::string Valor(const std::string& texto, std::string_view patron, char separador);

// The frame of the page in hand: the title, the logo (a picture of the program, 2 × 1 cm) at
// the right margin, the rule under them, the footer "SISTEMA DE REFUERZO TEXALON®" with its
// rule and the page number at the right margin.
void MarcoPagina(Impresora& impresora, const Pagina& pagina, const std::string& titulo, const std::string& logo);

// A heading in bold at (x, y); bold is cleared after it.
void Cabecera(Impresora& impresora, double x, double y, const std::string& texto);

// A row of label and value at the running Y: the label at `columna`, the value and its unit
// joined at `columna` + 4.5; the running Y then follows the printer's position, one natural
// line down.
void Fila(Impresora& impresora, double columna, double& y, const std::string& etiqueta, const std::string& valor);

// The same row with a label of main letters and a subscript lowered 0.05 cm ("f" "ck"), and
// its colon after the width of `anteDosPuntos` (the main and subscript letters, or the text
// that a report measures instead).
void FilaConSubindice(Impresora& impresora, double columna, double& y, const std::string& principal,
                      const std::string& subindice, const std::string& anteDosPuntos, const std::string& valor);

// Rules a grid of `filas` × `columnas` cells from (x0, y0), black and solid.
void ImprimeTabla(Impresora& impresora, double x0, double y0, double filas, double columnas, double altoFila,
                  double anchoColumna);

// The display list on the page, fitted into the area that the four margins leave (the right
// margin first): outlines only, thick lines doubled, nothing restored afterwards.
void ImprimeLista(Impresora& impresora, GeneralDibujo& d, double margenDerecho, double margenIzquierdo,
                  double margenSuperior, double margenInferior, Entero isotropico);

}  // namespace texalon
