#include "platform/qt/ImpresoraQt.h"

#include "platform/Plataforma.h"
#include "platform/qt/Fuentes.h"
#include "platform/qt/PlataformaQt.h"
#include "state/ErrorEjecucion.h"

#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QImage>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QPen>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSvgRenderer>
#include <QTemporaryFile>

#include <algorithm>
#include <memory>
#include <numbers>
#include <utility>

namespace texalon::plataforma {

namespace {

constexpr double kCmPorPulgada = 2.54;
constexpr double kMmPorCm = 10.0;
// The font of a printer before a report chooses one.
constexpr char kFuenteInicial[] = "Arial";
constexpr double kTamanoInicial = 10.0;

// The paper codes of the classic printer that a report may ask for.
QPageSize::PageSizeId PapelDe(int codigo)
{
    switch (codigo) {
    case 1: return QPageSize::Letter;
    case 5: return QPageSize::Legal;
    case 8: return QPageSize::A3;
    case kPapelA4: return QPageSize::A4;
    case 11: return QPageSize::A5;
    default: throw ErrorEjecucion(ErrorEjecucion::kArgumentoNoValido);
    }
}

// Units of a scale mode in one inch; pixels are the device's dots.
double UnidadesPorPulgada(int modo, double puntosPorPulgada)
{
    switch (modo) {
    case 1: return 1440.0;  // twips
    case 2: return 72.0;  // points
    case 3: return puntosPorPulgada;  // pixels
    case 5: return 1.0;  // inches
    case 6: return kMmPorCm * kCmPorPulgada;  // millimetres
    case kEscalaCentimetros: return kCmPorPulgada;
    default: throw ErrorEjecucion(ErrorEjecucion::kArgumentoNoValido);
    }
}

// Inches in one unit of a page's measures; Qt numbers the units of pages and of layouts alike.
double PulgadasPorUnidad(QPageSize::Unit unidad)
{
    switch (unidad) {
    case QPageSize::Millimeter: return 1.0 / (kMmPorCm * kCmPorPulgada);
    case QPageSize::Point: return 1.0 / 72.0;
    case QPageSize::Inch: return 1.0;
    case QPageSize::Pica: return 1.0 / 6.0;
    case QPageSize::Didot: return 0.375 / (kMmPorCm * kCmPorPulgada);
    case QPageSize::Cicero: return 4.5 / (kMmPorCm * kCmPorPulgada);
    }
    return 1.0;
}

// The printable area of a page in inches, worked out from the sheet's own measures and the
// margins: Qt rounds a sheet's size when it gives it in other units (A4 is 8.27 inches).
QSizeF AreaEnPulgadas(const QPageLayout& pagina)
{
    QSizeF hoja = pagina.pageSize().definitionSize() * PulgadasPorUnidad(pagina.pageSize().definitionUnits());
    if (pagina.orientation() == QPageLayout::Landscape) hoja.transpose();
    const QMarginsF margenes = pagina.margins() * PulgadasPorUnidad(static_cast<QPageSize::Unit>(pagina.units()));
    return {hoja.width() - margenes.left() - margenes.right(), hoja.height() - margenes.top() - margenes.bottom()};
}

QColor ColorQt(Color color)
{
    const ComponentesRGB c = Componentes(color);
    return QColor(c.rojo, c.verde, c.azul);
}

// The dashes and gaps of a DrawStyle on paper, in centimetres whatever the width of the line,
// so that a thin line at the printer's resolution still shows its pattern. Empty for a solid
// line, which is also what any other style draws.
QList<double> PatronEnCm(int estilo)
{
    constexpr double kGuion = 0.2;
    constexpr double kPunto = 0.03;
    constexpr double kHueco = 0.06;
    switch (estilo) {
    case kTrazoDiscontinuo: return {kGuion, kHueco};
    case kTrazoPunteado: return {kPunto, kHueco};
    default: return {};
    }
}

QString Texto(const std::string& texto) { return QString::fromStdString(texto); }

}  // namespace

// One document from its first operation to EndDoc: the PDF printer's temporary file, the
// device and its painter. The painter goes first when the document is dropped.
struct ImpresoraQt::Documento {
    ~Documento()
    {
        // Dropped unfinished: the print run is cancelled; the temporary file goes with it.
        if (!pintor.isActive()) return;
        if (impresora != nullptr) impresora->abort();
        pintor.end();
    }

    QTemporaryFile temporal{QDir::temp().filePath(QStringLiteral("texalon-XXXXXX.pdf"))};
    std::unique_ptr<QPagedPaintDevice> dispositivo;
    QPrinter* impresora = nullptr;  // the device, when it is an installed printer
    QPainter pintor;
};

ImpresoraQt::ImpresoraQt(Destino destino, QString nombre)
    : destino_(destino), nombre_(std::move(nombre)), fuente_(QString::fromLatin1(kFuenteInicial))
{
    fuente_.setPointSizeF(kTamanoInicial);
    fuente_ = ConAnchoPropio(fuente_);
    RegistraImagenes();  // the logos of the reports
}

ImpresoraQt::~ImpresoraQt() = default;

std::unique_ptr<ImpresoraQt> ImpresoraQt::Instalada(const QString& nombre)
{
    return std::unique_ptr<ImpresoraQt>(new ImpresoraQt(Destino::Instalada, nombre));
}

std::unique_ptr<ImpresoraQt> ImpresoraQt::Pdf()
{
    return std::unique_ptr<ImpresoraQt>(new ImpresoraQt(Destino::PdfConDialogo, QString()));
}

std::unique_ptr<ImpresoraQt> ImpresoraQt::PdfEn(const QString& fichero)
{
    return std::unique_ptr<ImpresoraQt>(new ImpresoraQt(Destino::PdfDirecto, fichero));
}

std::unique_ptr<QPagedPaintDevice> ImpresoraQt::CreaDispositivo(Documento& documento) const
{
    const QPageSize papel(PapelDe(papel_));
    if (destino_ == Destino::Instalada) {
        // The printer keeps its own margins: those of the area it can print on.
        auto impresora = std::make_unique<QPrinter>(QPrinterInfo::printerInfo(nombre_), QPrinter::HighResolution);
        impresora->setDocName(Texto(documento_));
        impresora->setPageSize(papel);
        documento.impresora = impresora.get();
        return impresora;
    }
    if (!documento.temporal.open()) throw ErrorEjecucion(ErrorEjecucion::kErrorDeAccesoRuta);
    auto pdf = std::make_unique<QPdfWriter>(&documento.temporal);
    pdf->setResolution(kResolucionPdf);
    pdf->setCreator(QStringLiteral("TEXALON"));
    pdf->setTitle(Texto(documento_));
    const double margen = kMargenPdf * kMmPorCm;
    pdf->setPageLayout(
        QPageLayout(papel, QPageLayout::Portrait, QMarginsF(margen, margen, margen, margen), QPageLayout::Millimeter));
    return pdf;
}

ImpresoraQt::Documento& ImpresoraQt::EnCurso() const
{
    if (!enCurso_) {
        auto documento = std::make_unique<Documento>();
        documento->dispositivo = CreaDispositivo(*documento);
        enCurso_ = std::move(documento);
    }
    return *enCurso_;
}

QPainter& ImpresoraQt::Pintor()
{
    Documento& documento = EnCurso();
    if (!documento.pintor.isActive() && !documento.pintor.begin(documento.dispositivo.get()))
        throw ErrorEjecucion(ErrorEjecucion::kErrorDeEntradaSalida);
    return documento.pintor;
}

double ImpresoraQt::PixelesPorUnidad() const
{
    const double puntos = EnCurso().dispositivo->logicalDpiX();
    return puntos / UnidadesPorPulgada(escala_, puntos);
}

// ---- Set-up.

void ImpresoraQt::PaperSize(int codigo)
{
    const QPageSize papel(PapelDe(codigo));
    papel_ = codigo;
    // In the middle of a document the new paper starts with the next page.
    if (enCurso_) enCurso_->dispositivo->setPageSize(papel);
}

void ImpresoraQt::ScaleMode(int modo)
{
    UnidadesPorPulgada(modo, 1.0);  // refuses a mode it does not know
    escala_ = modo;
}

double ImpresoraQt::ScaleWidth() const
{
    const QPagedPaintDevice& dispositivo = *EnCurso().dispositivo;
    return AreaEnPulgadas(dispositivo.pageLayout()).width() * UnidadesPorPulgada(escala_, dispositivo.logicalDpiX());
}

double ImpresoraQt::ScaleHeight() const
{
    const QPagedPaintDevice& dispositivo = *EnCurso().dispositivo;
    return AreaEnPulgadas(dispositivo.pageLayout()).height() * UnidadesPorPulgada(escala_, dispositivo.logicalDpiX());
}

void ImpresoraQt::NombreDocumento(const std::string& nombre) { documento_ = nombre; }

// ---- Lines and circles.

void ImpresoraQt::DrawStyle(int estilo) { estilo_ = estilo; }

void ImpresoraQt::DrawWidth(int ancho) { ancho_ = std::max(ancho, 1); }

void ImpresoraQt::PreparaTrazo(QPainter& pintor, Color color) const
{
    pintor.setBrush(Qt::NoBrush);
    const double ancho = ancho_;
    QPen pluma(ColorQt(color), ancho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    const QList<double> patron = PatronEnCm(estilo_);
    if (!patron.isEmpty()) {
        // Qt measures the pattern in widths of the line.
        const double pixelesPorCm = pintor.device()->logicalDpiX() / kCmPorPulgada;
        QList<qreal> enAnchos;
        for (const double cm : patron)
            enAnchos << cm * pixelesPorCm / ancho;
        pluma.setDashPattern(enAnchos);
        pluma.setCapStyle(Qt::FlatCap);
    }
    pintor.setPen(pluma);
}

void ImpresoraQt::Line(double x1, double y1, double x2, double y2, Color color)
{
    QPainter& pintor = Pintor();
    PreparaTrazo(pintor, color);
    pintor.drawLine(QPointF(Pixeles(x1), Pixeles(y1)), QPointF(Pixeles(x2), Pixeles(y2)));
}

void ImpresoraQt::Box(double x1, double y1, double x2, double y2, Color color)
{
    QPainter& pintor = Pintor();
    PreparaTrazo(pintor, color);
    pintor.drawRect(QRectF(QPointF(Pixeles(x1), Pixeles(y1)), QPointF(Pixeles(x2), Pixeles(y2))).normalized());
}

void ImpresoraQt::Circle(double x, double y, double radio, Color color)
{
    QPainter& pintor = Pintor();
    PreparaTrazo(pintor, color);
    pintor.drawEllipse(QPointF(Pixeles(x), Pixeles(y)), Pixeles(radio), Pixeles(radio));
}

void ImpresoraQt::Arc(double x, double y, double radio, Color color, double inicio, double fin)
{
    // Counter-clockwise on the page from the start to the end, through east when the end is the
    // smaller angle; equal angles make the whole circle. Qt's angles also run counter-clockwise
    // as the page is seen, from 3 o'clock, in degrees.
    double barrido = fin - inicio;
    if (barrido <= 0.0) barrido += 2.0 * std::numbers::pi;
    const double r = Pixeles(radio);
    const QRectF caja(Pixeles(x) - r, Pixeles(y) - r, 2.0 * r, 2.0 * r);
    constexpr double kGradosPorRadian = 180.0 / std::numbers::pi;
    QPainterPath arco;
    arco.arcMoveTo(caja, inicio * kGradosPorRadian);
    arco.arcTo(caja, inicio * kGradosPorRadian, barrido * kGradosPorRadian);
    QPainter& pintor = Pintor();
    PreparaTrazo(pintor, color);
    pintor.drawPath(arco);
}

// ---- Text.

void ImpresoraQt::FontName(const std::string& nombre) { fuente_.setFamily(Texto(nombre)); }

void ImpresoraQt::FontSize(double puntos) { fuente_.setPointSizeF(puntos); }

void ImpresoraQt::FontBold(bool negrita) { fuente_.setBold(negrita); }

void ImpresoraQt::ForeColor(Color color) { color_ = color; }

double ImpresoraQt::TextWidth(const std::string& texto) const
{
    const QFontMetricsF medidas(fuente_, EnCurso().dispositivo.get());
    return medidas.horizontalAdvance(Texto(texto)) / PixelesPorUnidad();
}

double ImpresoraQt::TextHeight(const std::string& /*texto*/) const
{
    // One line of the font, from one line's top to the next line's top.
    const QFontMetricsF medidas(fuente_, EnCurso().dispositivo.get());
    return medidas.lineSpacing() / PixelesPorUnidad();
}

void ImpresoraQt::Print(const std::string& texto)
{
    if (!texto.empty()) {
        QPainter& pintor = Pintor();
        pintor.setFont(fuente_);
        pintor.setPen(ColorQt(color_));
        // The position is the top-left corner of the text; Qt writes from the baseline.
        const QFontMetricsF medidas(fuente_, pintor.device());
        pintor.drawText(QPointF(Pixeles(x_), Pixeles(y_) + medidas.ascent()), Texto(texto));
    }
    y_ += TextHeight(texto);
    x_ = 0.0;
}

// ---- Pictures and pages.

void ImpresoraQt::PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto)
{
    const QString nombre = Texto(imagen);
    if (!QFile::exists(nombre)) throw ErrorEjecucion(ErrorEjecucion::kArchivoNoEncontrado);
    QPainter& pintor = Pintor();
    const QRectF caja(Pixeles(x), Pixeles(y), Pixeles(ancho), Pixeles(alto));
    if (nombre.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) {
        // A drawing stays a drawing on paper.
        QSvgRenderer dibujo(nombre);
        if (!dibujo.isValid()) throw ErrorEjecucion(ErrorEjecucion::kArgumentoNoValido);
        dibujo.render(&pintor, caja);
        return;
    }
    const QImage foto(nombre);
    if (foto.isNull()) throw ErrorEjecucion(ErrorEjecucion::kArgumentoNoValido);
    pintor.drawImage(caja, foto);
}

void ImpresoraQt::NewPage()
{
    Pintor();
    if (!EnCurso().dispositivo->newPage()) throw ErrorEjecucion(ErrorEjecucion::kErrorDeEntradaSalida);
    ++pagina_;
    x_ = 0.0;
    y_ = 0.0;
}

void ImpresoraQt::EndDoc()
{
    pagina_ = 1;
    x_ = 0.0;
    y_ = 0.0;
    const std::unique_ptr<Documento> documento = std::move(enCurso_);
    // A document that drew nothing has nothing to release.
    if (!documento || !documento->pintor.isActive()) return;
    if (!documento->pintor.end()) throw ErrorEjecucion(ErrorEjecucion::kErrorDeEntradaSalida);
    if (destino_ != Destino::Instalada) GuardaPdf(*documento);
}

QString ImpresoraQt::NombrePropuesto() const
{
    const QString fichero = Texto(documento_) + QStringLiteral(".pdf");
    const std::string& carpeta = Estado().DIRECTORIO;
    if (carpeta.empty()) return fichero;
    return QDir::toNativeSeparators(QDir(Texto(carpeta)).filePath(fichero));
}

void ImpresoraQt::GuardaPdf(Documento& documento) const
{
    QString destino = nombre_;
    if (destino_ == Destino::PdfConDialogo) {
        const auto elegido = ServicioFicheros().Guardar({kFiltroPdf, 1, NombrePropuesto()});
        if (!elegido) return;  // the temporary file goes with the document
        destino = elegido->fichero;
    }
    // Written anew rather than moved, so that the file has the user's usual permissions and
    // not the temporary file's.
    QFile fichero(destino);
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw ErrorEjecucion(ErrorEjecucion::kErrorDeAccesoRuta);
    if (!documento.temporal.seek(0) || fichero.write(documento.temporal.readAll()) != documento.temporal.size() ||
        !fichero.flush())
        throw ErrorEjecucion(ErrorEjecucion::kErrorDeEntradaSalida);
}

// ---- The printers of the machine.

ImpresorasQt::ImpresorasQt()
{
    const QString defecto = QPrinterInfo::defaultPrinterName();
    actual_ = defecto.isEmpty() ? std::string(kImprimirAPdf) : defecto.toStdString();
}

ImpresorasQt::~ImpresorasQt() = default;

std::vector<std::string> ImpresorasQt::Nombres() const
{
    QStringList instaladas = QPrinterInfo::availablePrinterNames();
    instaladas.sort();
    std::vector<std::string> nombres;
    for (const QString& nombre : instaladas)
        nombres.push_back(nombre.toStdString());
    nombres.emplace_back(kImprimirAPdf);
    return nombres;
}

bool ImpresorasQt::Elige(const std::string& nombre)
{
    const std::vector<std::string> nombres = Nombres();
    if (std::find(nombres.begin(), nombres.end(), nombre) == nombres.end()) return false;
    if (nombre != actual_) impresora_.reset();
    actual_ = nombre;
    return true;
}

Impresora& ImpresorasQt::EnUso()
{
    if (!impresora_)
        impresora_ = actual_ == kImprimirAPdf ? ImpresoraQt::Pdf() : ImpresoraQt::Instalada(Texto(actual_));
    return *impresora_;
}

}  // namespace texalon::plataforma
