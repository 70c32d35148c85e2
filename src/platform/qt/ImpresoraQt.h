// The printers of the reports on Qt: an installed printer of the machine, or the PDF printer that
// is always there. Both draw with QPainter on a paged device, in the classic printer's terms:
// positions in the current scale from the printable area's top-left corner, y downward, pen
// widths in printer pixels, fonts in points.
//
// The PDF printer writes each document to a temporary file. When the document ends it asks
// where to save it, offering "<name of the document>.pdf" in the project's folder, and writes
// the finished file there; a Cancel leaves nothing behind. The batch command builds it with a
// file of its own instead, and it writes there with no dialog. Its pages have the resolution
// and the margins of a common office printer: 600 dots per inch and 0.5 cm on every side, so
// that an A4 page offers a printable area of 20.0 × 28.7 cm. Text stays text and lines stay
// lines in the file.
#pragma once

#include "platform/Impresora.h"

#include <QFont>
#include <QString>

#include <memory>
#include <string>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace texalon::plataforma {

// The page of the PDF printer.
constexpr int kResolucionPdf = 600;  // dots per inch
constexpr double kMargenPdf = 0.5;  // cm, on each side

// The filter of the PDF printer's save dialog, in the classic form.
inline const QString kFiltroPdf = QStringLiteral("Documentos PDF|*.PDF");

// The name of the document offered when a report has given none.
inline constexpr char kDocumentoSinNombre[] = "texalon";

class ImpresoraQt final : public Impresora {
public:
    // An installed printer of the machine, by the name the system gives it.
    static std::unique_ptr<ImpresoraQt> Instalada(const QString& nombre);
    // The PDF printer: each document ends in the save dialog.
    static std::unique_ptr<ImpresoraQt> Pdf();
    // The PDF printer of the batch command: each document is written to `fichero`, replacing
    // what was there, with no dialog.
    static std::unique_ptr<ImpresoraQt> PdfEn(const QString& fichero);

    // A document left unfinished is dropped: nothing reaches the printer or the disk.
    ~ImpresoraQt() override;
    ImpresoraQt(const ImpresoraQt&) = delete;
    ImpresoraQt& operator=(const ImpresoraQt&) = delete;

    void PaperSize(int codigo) override;
    void ScaleMode(int modo) override;
    double ScaleWidth() const override;
    double ScaleHeight() const override;
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
    void CurrentX(double x) override { x_ = x; }
    void CurrentY(double y) override { y_ = y; }
    double CurrentX() const override { return x_; }
    double CurrentY() const override { return y_; }
    void Print(const std::string& texto) override;

    void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) override;
    int Page() const override { return pagina_; }
    void NewPage() override;
    void EndDoc() override;

    // The name the save dialog offers for the document in hand: "<name>.pdf", in the project's
    // folder when the project has one.
    QString NombrePropuesto() const;

private:
    enum class Destino { Instalada, PdfConDialogo, PdfDirecto };
    struct Documento;

    ImpresoraQt(Destino destino, QString nombre);

    // The document in hand, begun if there is none; the painter starts with the first drawing.
    Documento& EnCurso() const;
    std::unique_ptr<QPagedPaintDevice> CreaDispositivo(Documento& documento) const;
    QPainter& Pintor();
    // Hands a finished PDF to its file: the batch command's, or the one the user chooses; a
    // Cancel writes nothing.
    void GuardaPdf(Documento& documento) const;

    // Device pixels for one unit of the current scale. Qt's printers have one resolution for
    // both directions.
    double PixelesPorUnidad() const;
    double Pixeles(double valor) const { return valor * PixelesPorUnidad(); }
    // The pen of a line in a colour, with the style and width in use.
    void PreparaTrazo(QPainter& pintor, Color color) const;

    Destino destino_;
    QString nombre_;  // the printer's name, or the batch command's file
    int papel_ = kPapelA4;
    int escala_ = kEscalaCentimetros;
    std::string documento_ = kDocumentoSinNombre;
    int estilo_ = kTrazoContinuo;
    int ancho_ = 1;
    QFont fuente_;
    Color color_ = 0;
    double x_ = 0.0;
    double y_ = 0.0;
    int pagina_ = 1;
    mutable std::unique_ptr<Documento> enCurso_;
};

// The printers of the machine, sorted by name, and the PDF printer after them. The current one
// is the system's default printer if there is one, else the PDF printer.
class ImpresorasQt final : public Impresoras {
public:
    ImpresorasQt();
    ~ImpresorasQt() override;
    ImpresorasQt(const ImpresorasQt&) = delete;
    ImpresorasQt& operator=(const ImpresorasQt&) = delete;

    std::vector<std::string> Nombres() const override;
    std::string Actual() const override { return actual_; }
    bool Elige(const std::string& nombre) override;
    Impresora& EnUso() override;

private:
    std::string actual_;
    std::unique_ptr<ImpresoraQt> impresora_;
};

}  // namespace texalon::plataforma
