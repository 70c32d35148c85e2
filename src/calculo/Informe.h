// The reports of the batch command: after a file is calculated, the report that Print makes on
// its screen, for the cell that the command line chooses, on the printer given.
#pragma once

#include "calculo/Proyecto.h"
#include "platform/Impresora.h"

#include <string>

namespace texalon::calculo {

// "no se ha podido escribir el informe en «DESTINO».": the report's file could not be written.
std::string MensajeInformeSinEscribir(const std::string& destino);

// Prints the report of a calculated file for the cell (tipo, capas), as Print prints it on the
// file's screen after a Calculate with that cell chosen, to the file `destino`. A cell that the
// report refuses ("---") leaves the report's own message in the file's errors and nothing
// reaches the printer; a file the printer cannot write leaves the message that names it; any
// other run-time error of the report leaves its own. Only for a file that succeeded.
void ImprimeInforme(CalculoFichero& calculo, plataforma::Impresora& impresora, int tipo, int capas, char separador,
                    const std::string& destino);

// Whether the report of the calculation's cell (tipo, capas) can be printed: the calculation
// succeeded and, for flexure, the cell has a result.
bool InformeImprimible(const CalculoFichero& calculo, int tipo, int capas);

// A printer that passes everything on to another but the end of the document: the reports of
// many members, each of which ends its document, go one after another into one file.
class ImpresoraContinua final : public plataforma::Impresora {
public:
    explicit ImpresoraContinua(plataforma::Impresora& destino) : destino_(destino) {}

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
    // The document goes on: the next report starts on a page of its own.
    void EndDoc() override {}

private:
    plataforma::Impresora& destino_;
};

}  // namespace texalon::calculo
