// The printer of the reports, as plain C++: immediate drawing on the page in hand, positions in
// the scale of the page (centimetres once the reports have set scale mode 7), y downward.
//
// The reports and ImprimeLista draw through this interface alone, so that the same code prints
// from the screens and from the batch command. The program's printers are Qt's (QPrinter, and a
// PDF printer that is always there); the tests use a double that records every operation.
#pragma once

#include "state/General.h"

#include <string>
#include <vector>

namespace texalon::plataforma {

// Paper and scale codes of the printer.
constexpr int kPapelA4 = 9;
constexpr int kEscalaCentimetros = 7;

// DrawStyle values.
constexpr int kTrazoContinuo = 0;
constexpr int kTrazoDiscontinuo = 1;
constexpr int kTrazoPunteado = 2;

class Impresora {
public:
    virtual ~Impresora() = default;

    // ---- Set-up of the document. A document starts with the first operation after EndDoc
    // (or after the printer was chosen), on page 1.
    virtual void PaperSize(int codigo) = 0;
    virtual void ScaleMode(int modo) = 0;
    // The printable area of the page in the current scale.
    virtual double ScaleWidth() const = 0;
    virtual double ScaleHeight() const = 0;
    // The name of the document, offered by a printer that writes files ("informe_flexion").
    virtual void NombreDocumento(const std::string& nombre) = 0;

    // ---- Lines and circles.
    virtual void DrawStyle(int estilo) = 0;  // kTrazoContinuo, kTrazoDiscontinuo, kTrazoPunteado
    virtual void DrawWidth(int ancho) = 0;  // in printer pixels
    // Line (x1, y1)-(x2, y2), color.
    virtual void Line(double x1, double y1, double x2, double y2, Color color) = 0;
    // Line (x1, y1)-(x2, y2), color, B: the box with these corners, not filled.
    virtual void Box(double x1, double y1, double x2, double y2, Color color) = 0;
    // Circle (x, y), radio, color: a full circle, not filled.
    virtual void Circle(double x, double y, double radio, Color color) = 0;
    // Circle (x, y), radio, color, inicio, fin: an arc, radians counter-clockwise from east.
    virtual void Arc(double x, double y, double radio, Color color, double inicio, double fin) = 0;

    // ---- Text.
    virtual void FontName(const std::string& nombre) = 0;
    virtual void FontSize(double puntos) = 0;
    virtual void FontBold(bool negrita) = 0;
    virtual void ForeColor(Color color) = 0;
    // The size of the text in the current font and scale.
    virtual double TextWidth(const std::string& texto) const = 0;
    virtual double TextHeight(const std::string& texto) const = 0;
    virtual void CurrentX(double x) = 0;
    virtual void CurrentY(double y) = 0;
    virtual double CurrentX() const = 0;
    virtual double CurrentY() const = 0;
    // Writes the text with its top-left corner at the position, then moves the position to
    // the left edge of the next line.
    virtual void Print(const std::string& texto) = 0;

    // ---- Pictures and pages.
    // Paints one of the program's pictures (a resource name, ":/imagenes/logo_flexion.svg")
    // with its top-left corner at (x, y), `ancho` × `alto`.
    virtual void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) = 0;
    // The number of the page in hand, from 1.
    virtual int Page() const = 0;
    virtual void NewPage() = 0;
    // Ends the document and releases it.
    virtual void EndDoc() = 0;
};

// A printer that passes every operation on to another: the base of a printer that changes a
// few of them (one that keeps a document open across many reports, one that notes what a test
// prints).
class ImpresoraQueReenvia : public Impresora {
public:
    explicit ImpresoraQueReenvia(Impresora& destino) : destino_(destino) {}

    void PaperSize(int codigo) override { destino_.PaperSize(codigo); }
    void ScaleMode(int modo) override { destino_.ScaleMode(modo); }
    double ScaleWidth() const override { return destino_.ScaleWidth(); }
    double ScaleHeight() const override { return destino_.ScaleHeight(); }
    void NombreDocumento(const std::string& nombre) override { destino_.NombreDocumento(nombre); }
    void DrawStyle(int estilo) override { destino_.DrawStyle(estilo); }
    void DrawWidth(int ancho) override { destino_.DrawWidth(ancho); }
    void Line(double x1, double y1, double x2, double y2, Color color) override { destino_.Line(x1, y1, x2, y2, color); }
    void Box(double x1, double y1, double x2, double y2, Color color) override { destino_.Box(x1, y1, x2, y2, color); }
    void Circle(double x, double y, double radio, Color color) override { destino_.Circle(x, y, radio, color); }
    void Arc(double x, double y, double radio, Color color, double inicio, double fin) override
    {
        destino_.Arc(x, y, radio, color, inicio, fin);
    }
    void FontName(const std::string& nombre) override { destino_.FontName(nombre); }
    void FontSize(double puntos) override { destino_.FontSize(puntos); }
    void FontBold(bool negrita) override { destino_.FontBold(negrita); }
    void ForeColor(Color color) override { destino_.ForeColor(color); }
    double TextWidth(const std::string& texto) const override { return destino_.TextWidth(texto); }
    double TextHeight(const std::string& texto) const override { return destino_.TextHeight(texto); }
    void CurrentX(double x) override { destino_.CurrentX(x); }
    void CurrentY(double y) override { destino_.CurrentY(y); }
    double CurrentX() const override { return destino_.CurrentX(); }
    double CurrentY() const override { return destino_.CurrentY(); }
    void Print(const std::string& texto) override { destino_.Print(texto); }
    void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) override
    {
        destino_.PaintPicture(imagen, x, y, ancho, alto);
    }
    int Page() const override { return destino_.Page(); }
    void NewPage() override { destino_.NewPage(); }
    void EndDoc() override { destino_.EndDoc(); }

protected:
    Impresora& destino_;
};

// The printers of the machine and the one the reports print on.
class Impresoras {
public:
    virtual ~Impresoras() = default;
    // The names of the printers, in a stable order: the installed ones, then "Imprimir a PDF".
    virtual std::vector<std::string> Nombres() const = 0;
    // The current printer's name.
    virtual std::string Actual() const = 0;
    // Makes the named printer current; false when there is none of that name.
    virtual bool Elige(const std::string& nombre) = 0;
    // The current printer, to draw on.
    virtual Impresora& EnUso() = 0;
};

// The name of the printer that is always there.
inline constexpr char kImprimirAPdf[] = "Imprimir a PDF";

}  // namespace texalon::plataforma
