// A printer that records every operation with its arguments, for exact assertions on what a
// report prints, and a set of printers around it that can also have none installed. Plain C++:
// the reports' tests need no toolkit.
#pragma once

#include "platform/Impresora.h"

#include <string>
#include <vector>

namespace texalon::plataforma {

// One operation as the report asked for it: its name as the printer calls it ("Line", "Print",
// "CurrentX"...), its numbers in the order of its arguments, its text if it has one.
struct Operacion {
    std::string nombre;
    std::vector<double> numeros;
    std::string texto;

    bool operator==(const Operacion&) const = default;
};

class ImpresoraDoble final : public Impresora {
public:
    // The metrics of the double's fonts, in centimetres: each character is 0.02 cm wide for each
    // point of the font size, and a line is 0.05 cm high for each point.
    static constexpr double kAnchoCaracterPorPunto = 0.02;
    static constexpr double kAltoLineaPorPunto = 0.05;

    void PaperSize(int codigo) override;
    void ScaleMode(int modo) override;
    double ScaleWidth() const override { return anchoPagina; }
    double ScaleHeight() const override { return altoPagina; }
    void NombreDocumento(const std::string& nombre) override;
    void DrawStyle(int estilo) override;
    void DrawWidth(int ancho) override;
    void Line(double x1, double y1, double x2, double y2, Color color) override;
    void Box(double x1, double y1, double x2, double y2, Color color) override;
    void Circle(double x, double y, double radio, Color color) override;
    void Arc(double x, double y, double radio, Color color, double inicio, double fin) override;
    void FontName(const std::string& nombre) override;
    void FontSize(double puntos) override;
    void FontBold(bool negrita) override;
    void ForeColor(Color color) override;
    double TextWidth(const std::string& texto) const override;
    double TextHeight(const std::string& texto) const override;
    void CurrentX(double x) override;
    void CurrentY(double y) override;
    double CurrentX() const override { return x_; }
    double CurrentY() const override { return y_; }
    void Print(const std::string& texto) override;
    void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) override;
    int Page() const override { return pagina_; }
    void NewPage() override;
    void EndDoc() override;

    // The operations of the current document and of those ended before it, in order.
    std::vector<Operacion> operaciones;
    // The printable area of an A4 page with the margins of a common printer.
    double anchoPagina = 19.0;
    double altoPagina = 27.7;
    // The font in use, as the text operations leave it.
    std::string fuente;
    double tamano = 10.0;
    bool negrita = false;
    Color color = 0;
    int estilo = kTrazoContinuo;
    int ancho = 1;
    int documentosTerminados = 0;
    // When not 0, EndDoc throws this run-time error, as a printer does that cannot write its
    // document where it was sent.
    int errorAlTerminar = 0;

private:
    void Anota(std::string nombre, std::vector<double> numeros, std::string texto = {});

    double x_ = 0.0;
    double y_ = 0.0;
    int pagina_ = 1;
};

class ImpresorasDoble final : public Impresoras {
public:
    std::vector<std::string> Nombres() const override { return nombres; }
    std::string Actual() const override { return actual; }
    bool Elige(const std::string& nombre) override;
    Impresora& EnUso() override { return impresora; }

    // The installed printers and the PDF printer; empty plays a machine with no printer.
    std::vector<std::string> nombres = {"Oficina", kImprimirAPdf};
    std::string actual = "Oficina";
    ImpresoraDoble impresora;
};

}  // namespace texalon::plataforma
