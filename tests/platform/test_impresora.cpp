// The printers of the reports on Qt: the PDF printer's pages read back with the PDF tools of
// poppler (the words and their boxes, the pages, the fonts, the pictures, the pixels), its save
// dialog through the platform's double, and the list of the machine's printers.
#include "comun/Pdf.h"
#include "platform/dobles/PlataformaDoble.h"
#include "platform/qt/ImpresoraQt.h"
#include "state/ErrorEjecucion.h"
#include "state/General.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <memory>
#include <numbers>
#include <optional>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

constexpr double kPuntosPorCm = 72.0 / 2.54;
// How far a word may stand from where it was printed.
constexpr double kTolerancia = 0.05;

using Palabra = prueba::PalabraPdf;

// The words of the PDF with their boxes measured from the printable area's top-left corner,
// where the printer places its positions.
std::vector<Palabra> Palabras(const QString& pdf) { return prueba::PalabrasPdf(pdf, kMargenPdf); }

std::optional<Palabra> Busca(const std::vector<Palabra>& palabras, const QString& texto)
{
    for (const Palabra& p : palabras)
        if (p.texto == texto) return p;
    return std::nullopt;
}

// The first page at `ppp` dots per inch, as a reader shows it.
QImage Pixeles(const QString& pdf, int ppp)
{
    const QString base = QFileInfo(pdf).absolutePath() + QStringLiteral("/pagina");
    prueba::EjecutaPoppler(QStringLiteral("pdftoppm"),
            {QStringLiteral("-r"), QString::number(ppp), QStringLiteral("-f"), QStringLiteral("1"),
             QStringLiteral("-singlefile"), QStringLiteral("-png"), pdf, base});
    return QImage(base + QStringLiteral(".png")).convertToFormat(QImage::Format_RGB32);
}

// The pixel of the rendered page under a point given in centimetres from the printable origin.
QColor En(const QImage& pagina, int ppp, double x, double y)
{
    const double pixelesPorCm = ppp / 2.54;
    return pagina.pixelColor(static_cast<int>(std::lround((x + kMargenPdf) * pixelesPorCm)),
                             static_cast<int>(std::lround((y + kMargenPdf) * pixelesPorCm)));
}

bool EsBlanco(const QColor& color) { return color.red() > 240 && color.green() > 240 && color.blue() > 240; }

// The start that every report makes.
void Prepara(Impresora& impresora, const std::string& documento)
{
    impresora.PaperSize(kPapelA4);
    impresora.ScaleMode(kEscalaCentimetros);
    impresora.NombreDocumento(documento);
    impresora.FontName("arial");
    impresora.FontSize(10);
    impresora.FontBold(false);
}

void Escribe(Impresora& impresora, double x, double y, const std::string& texto)
{
    impresora.CurrentX(x);
    impresora.CurrentY(y);
    impresora.Print(texto);
}

}  // namespace

class PruebaImpresora : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        carpeta_ = std::make_unique<QTemporaryDir>();
        QVERIFY(carpeta_->isValid());
        // The PDF printer's temporary files go to a folder of the test's own, to be counted.
        temporales_ = std::make_unique<QTemporaryDir>();
        QVERIFY(temporales_->isValid());
        tmpdir_ = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(temporales_->path()));
        Estado() = General{};
    }

    void cleanup()
    {
        qputenv("TMPDIR", tmpdir_);
        Estado() = General{};
    }

    void laPaginaA4EsElAreaImprimibleMenosLosMargenes()
    {
        const auto impresora = ImpresoraQt::PdfEn(Fichero("a4.pdf"));
        impresora->PaperSize(kPapelA4);
        impresora->ScaleMode(kEscalaCentimetros);
        QCOMPARE_LE(std::abs(impresora->ScaleWidth() - (21.0 - 2 * kMargenPdf)), 1e-9);
        QCOMPARE_LE(std::abs(impresora->ScaleHeight() - (29.7 - 2 * kMargenPdf)), 1e-9);
        QCOMPARE_LE(std::abs(impresora->ScaleWidth() - 20.0), 1e-9);
        QCOMPARE_LE(std::abs(impresora->ScaleHeight() - 28.7), 1e-9);
        // In millimetres and in printer pixels at 600 dots per inch.
        impresora->ScaleMode(6);
        QCOMPARE_LE(std::abs(impresora->ScaleWidth() - 200.0), 1e-9);
        QCOMPARE_LE(std::abs(impresora->ScaleHeight() - 287.0), 1e-9);
        impresora->ScaleMode(3);
        QCOMPARE_LE(std::abs(impresora->ScaleWidth() - 20.0 / 2.54 * 600), 1e-6);
        // Nothing was drawn: ending the document writes no file.
        impresora->EndDoc();
        QVERIFY(!QFile::exists(Fichero("a4.pdf")));
    }

    void unaEscalaOUnPapelDesconocidosSonUnError()
    {
        const auto impresora = ImpresoraQt::PdfEn(Fichero("mal.pdf"));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, impresora->ScaleMode(0));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, impresora->PaperSize(256));
    }

    void elTextoQuedaDondeSeImprimio()
    {
        const QString pdf = Fichero("texto.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "texto");
        Escribe(*impresora, 3.0, 5.0, "Hormigón");
        impresora->FontSize(14);
        impresora->FontBold(true);
        Escribe(*impresora, 10.5, 20.25, "TEXALON®");
        impresora->FontSize(8);
        impresora->FontBold(false);
        Escribe(*impresora, 0.0, 0.0, "Origen");
        impresora->EndDoc();

        const std::vector<Palabra> palabras = Palabras(pdf);
        QCOMPARE(palabras.size(), std::size_t{3});
        const auto hormigon = Busca(palabras, QStringLiteral("Hormigón"));
        QVERIFY(hormigon.has_value());
        QCOMPARE_LE(std::abs(hormigon->x - 3.0), kTolerancia);
        QCOMPARE_LE(std::abs(hormigon->y - 5.0), kTolerancia);
        const auto texalon = Busca(palabras, QStringLiteral("TEXALON®"));
        QVERIFY(texalon.has_value());
        QCOMPARE_LE(std::abs(texalon->x - 10.5), kTolerancia);
        QCOMPARE_LE(std::abs(texalon->y - 20.25), kTolerancia);
        const auto origen = Busca(palabras, QStringLiteral("Origen"));
        QVERIFY(origen.has_value());
        QCOMPARE_LE(std::abs(origen->x), kTolerancia);
        QCOMPARE_LE(std::abs(origen->y), kTolerancia);
    }

    void elTextoMideLoQueOcupaEnElPapel()
    {
        const QString pdf = Fichero("medida.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "medida");
        impresora->FontSize(12);
        const double ancho = impresora->TextWidth("Coeficiente");
        const double alto = impresora->TextHeight("Coeficiente");
        Escribe(*impresora, 2.0, 2.0, "Coeficiente");
        impresora->EndDoc();
        const auto palabra = Busca(Palabras(pdf), QStringLiteral("Coeficiente"));
        QVERIFY(palabra.has_value());
        QCOMPARE_LE(std::abs(palabra->derecha - palabra->x - ancho), kTolerancia);
        // The line is taller than the letters' box by the font's line gap alone.
        QCOMPARE_LE(std::abs(palabra->abajo - palabra->y - alto), kTolerancia);
    }

    void printBajaAlBordeIzquierdoDeLaLineaSiguiente()
    {
        const QString pdf = Fichero("lineas.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "lineas");
        const double linea = impresora->TextHeight("Primera");
        Escribe(*impresora, 4.0, 6.0, "Primera");
        QCOMPARE(impresora->CurrentX(), 0.0);
        QCOMPARE_LE(std::abs(impresora->CurrentY() - (6.0 + linea)), 1e-12);
        impresora->Print("Segunda");
        QCOMPARE_LE(std::abs(impresora->CurrentY() - (6.0 + 2 * linea)), 1e-12);
        impresora->EndDoc();
        const std::vector<Palabra> palabras = Palabras(pdf);
        const auto segunda = Busca(palabras, QStringLiteral("Segunda"));
        QVERIFY(segunda.has_value());
        QCOMPARE_LE(std::abs(segunda->x), kTolerancia);
        QCOMPARE_LE(std::abs(segunda->y - (6.0 + linea)), kTolerancia);
    }

    void elAnchoDelTextoCreceConElTextoYElTamano()
    {
        const auto impresora = ImpresoraQt::PdfEn(Fichero("anchos.pdf"));
        Prepara(*impresora, "anchos");
        const double corto = impresora->TextWidth("Momento");
        const double largo = impresora->TextWidth("Momento último");
        QVERIFY(corto > 0.0);
        QVERIFY(largo > corto);
        QCOMPARE_LE(std::abs(impresora->TextWidth("MomentoMomento") - 2 * corto), 1e-3);
        const double alto10 = impresora->TextHeight("Momento");
        // Twice the size is twice as wide and high, but for the few printer pixels that the
        // font's hinting moves each letter by.
        impresora->FontSize(20);
        QCOMPARE_LE(std::abs(impresora->TextWidth("Momento") / corto - 2.0), 0.02);
        QCOMPARE_LE(std::abs(impresora->TextHeight("Momento") / alto10 - 2.0), 0.02);
        impresora->FontSize(10);
        impresora->FontBold(true);
        QVERIFY(impresora->TextWidth("Momento") > corto);
        // Arial at 10 points: a line of 1.15 em, 11.5 points.
        QCOMPARE_LE(std::abs(alto10 - 11.5 / kPuntosPorCm), 0.01);
        QCOMPARE(impresora->TextWidth(""), 0.0);
    }

    void arialEsLaLetraDelDocumentoYElTextoSigueSiendoTexto()
    {
        const QString pdf = Fichero("fuente.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "fuente");
        Escribe(*impresora, 1.0, 1.0, "Arial");
        impresora->Line(1.0, 3.0, 15.0, 3.0, 0);
        impresora->Box(1.0, 4.0, 5.0, 6.0, 0);
        impresora->Circle(8.0, 5.0, 1.0, 0);
        impresora->EndDoc();
        const QString fuentes = prueba::EjecutaPoppler(QStringLiteral("pdffonts"), {pdf});
        QVERIFY2(fuentes.contains(QStringLiteral("LiberationSans")), qPrintable(fuentes));
        // Lines are lines: the page holds no picture.
        const QString imagenes = prueba::EjecutaPoppler(QStringLiteral("pdfimages"), {QStringLiteral("-list"), pdf});
        QCOMPARE(imagenes.split(QLatin1Char('\n'), Qt::SkipEmptyParts).size(), 2);  // the two heading lines
        QVERIFY(Busca(Palabras(pdf), QStringLiteral("Arial")).has_value());
    }

    void nuevaPaginaDaDosPaginas()
    {
        const QString pdf = Fichero("paginas.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "paginas");
        QCOMPARE(impresora->Page(), 1);
        Escribe(*impresora, 1.0, 1.0, "uno");
        impresora->NewPage();
        QCOMPARE(impresora->Page(), 2);
        QCOMPARE(impresora->CurrentX(), 0.0);
        QCOMPARE(impresora->CurrentY(), 0.0);
        Escribe(*impresora, 1.0, 2.0, "dos");
        impresora->EndDoc();
        QCOMPARE(impresora->Page(), 1);

        QCOMPARE(prueba::PaginasPdf(pdf), 2);
        const std::vector<Palabra> palabras = Palabras(pdf);
        QCOMPARE(Busca(palabras, QStringLiteral("uno"))->pagina, 1);
        const auto dos = Busca(palabras, QStringLiteral("dos"));
        QCOMPARE(dos->pagina, 2);
        QCOMPARE_LE(std::abs(dos->y - 2.0), kTolerancia);
    }

    void trasEndDocEmpiezaOtroDocumentoEnLaPaginaUno()
    {
        const QString pdf = Fichero("segundo.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "primero");
        Escribe(*impresora, 1.0, 1.0, "primero");
        impresora->NewPage();
        Escribe(*impresora, 1.0, 1.0, "hoja");
        impresora->EndDoc();
        QCOMPARE(prueba::PaginasPdf(pdf), 2);

        Prepara(*impresora, "segundo");
        QCOMPARE(impresora->Page(), 1);
        Escribe(*impresora, 1.0, 1.0, "segundo");
        impresora->EndDoc();
        QCOMPARE(prueba::PaginasPdf(pdf), 1);
        const std::vector<Palabra> palabras = Palabras(pdf);
        QCOMPARE(palabras.size(), std::size_t{1});
        QCOMPARE(palabras[0].texto, QStringLiteral("segundo"));
    }

    void elDialogoProponeElNombreEnLaCarpetaDelProyecto()
    {
        PlataformaDoble plataforma;
        Estado().DIRECTORIO = QDir::toNativeSeparators(carpeta_->path()).toStdString();
        const QString elegido = Fichero("elegido.pdf");
        plataforma.ficheros.respuestas.push_back(FicheroElegido{elegido, carpeta_->path()});
        const auto impresora = ImpresoraQt::Pdf();
        Prepara(*impresora, "informe_flexion");
        Escribe(*impresora, 2.5, 7.5, "Flexión");
        QVERIFY(plataforma.ficheros.guardados.empty());
        impresora->EndDoc();

        QCOMPARE(plataforma.ficheros.guardados.size(), std::size_t{1});
        const DialogoFichero& dialogo = plataforma.ficheros.guardados[0];
        QCOMPARE(dialogo.nombre, QDir::toNativeSeparators(Fichero("informe_flexion.pdf")));
        QCOMPARE(dialogo.filtro, QStringLiteral("Documentos PDF|*.PDF"));
        QCOMPARE(dialogo.indiceFiltro, 1);
        const auto palabra = Busca(Palabras(elegido), QStringLiteral("Flexión"));
        QVERIFY(palabra.has_value());
        QCOMPARE_LE(std::abs(palabra->x - 2.5), kTolerancia);
        QCOMPARE_LE(std::abs(palabra->y - 7.5), kTolerancia);
        QCOMPARE(Temporales(), QStringList());
    }

    void sinCarpetaDeProyectoSeProponeSoloElNombre()
    {
        const auto impresora = ImpresoraQt::Pdf();
        impresora->NombreDocumento("caracteristicas");
        QCOMPARE(impresora->NombrePropuesto(), QStringLiteral("caracteristicas.pdf"));
        Estado().DIRECTORIO = "/proyectos/puente";
        QCOMPARE(impresora->NombrePropuesto(),
                 QDir::toNativeSeparators(QStringLiteral("/proyectos/puente/caracteristicas.pdf")));
    }

    void cancelarElDialogoNoEscribeNada()
    {
        PlataformaDoble plataforma;  // no answer in the script: the user cancels
        Estado().DIRECTORIO = carpeta_->path().toStdString();
        const auto impresora = ImpresoraQt::Pdf();
        Prepara(*impresora, "informe_confinamiento");
        Escribe(*impresora, 1.0, 1.0, "Confinamiento");
        impresora->EndDoc();

        QCOMPARE(plataforma.ficheros.guardados.size(), std::size_t{1});
        QCOMPARE(plataforma.ficheros.guardados[0].nombre,
                 QDir::toNativeSeparators(Fichero("informe_confinamiento.pdf")));
        QCOMPARE(QDir(carpeta_->path()).entryList(QDir::Files), QStringList());
        QCOMPARE(Temporales(), QStringList());
        QCOMPARE(impresora->Page(), 1);
    }

    void unDocumentoSinDibujoNoPreguntaNada()
    {
        PlataformaDoble plataforma;
        const auto impresora = ImpresoraQt::Pdf();
        Prepara(*impresora, "vacio");
        impresora->TextWidth("nada");
        impresora->EndDoc();
        QVERIFY(plataforma.ficheros.guardados.empty());
        QCOMPARE(Temporales(), QStringList());
    }

    void unDocumentoSinTerminarNoDejaNada()
    {
        PlataformaDoble plataforma;
        Estado().DIRECTORIO = carpeta_->path().toStdString();
        {
            const auto impresora = ImpresoraQt::Pdf();
            Prepara(*impresora, "abandonado");
            Escribe(*impresora, 1.0, 1.0, "abandonado");
        }
        QVERIFY(plataforma.ficheros.guardados.empty());
        QCOMPARE(QDir(carpeta_->path()).entryList(QDir::Files), QStringList());
        QCOMPARE(Temporales(), QStringList());
    }

    void lineasYCirculosEnSuSitioColorYTrazo()
    {
        const QString pdf = Fichero("trazos.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "trazos");
        impresora->DrawWidth(24);  // 1 mm at 600 dots per inch
        impresora->DrawStyle(kTrazoContinuo);
        impresora->Line(1.0, 2.0, 9.0, 2.0, ColorRGB(0, 0, 255));
        impresora->DrawStyle(kTrazoDiscontinuo);
        impresora->Line(1.0, 4.0, 9.0, 4.0, ColorRGB(0, 128, 0));
        impresora->DrawStyle(kTrazoPunteado);
        impresora->Line(1.0, 6.0, 9.0, 6.0, 0);
        impresora->DrawStyle(kTrazoContinuo);
        impresora->Box(1.0, 8.0, 5.0, 10.0, ColorRGB(255, 0, 0));
        impresora->Circle(8.0, 9.0, 1.0, 0);
        impresora->EndDoc();

        constexpr int kPpp = 150;
        const QImage pagina = Pixeles(pdf, kPpp);
        QVERIFY(!pagina.isNull());
        // The colour is red + 256 × green + 65536 × blue.
        const QColor azul = En(pagina, kPpp, 5.0, 2.0);
        QVERIFY(azul.blue() > 200 && azul.red() < 60 && azul.green() < 60);
        const QColor rojo = En(pagina, kPpp, 1.0, 9.0);
        QVERIFY(rojo.red() > 200 && rojo.green() < 60 && rojo.blue() < 60);
        QVERIFY(!EsBlanco(En(pagina, kPpp, 5.0, 9.0)));
        QVERIFY(EsBlanco(En(pagina, kPpp, 3.0, 9.0)));  // a box is not filled
        QVERIFY(!EsBlanco(En(pagina, kPpp, 9.0, 9.0)));
        QVERIFY(!EsBlanco(En(pagina, kPpp, 8.0, 8.0)));
        QVERIFY(EsBlanco(En(pagina, kPpp, 8.0, 9.0)));  // nor is a circle
        QVERIFY(EsBlanco(En(pagina, kPpp, 5.0, 3.0)));
        // Along each line: a solid one has no gap, a dashed one has long marks, a dotted one short.
        const auto tramos = [&](double y) {
            std::vector<int> marcas;
            int marca = 0;
            const double paso = 2.54 / kPpp;
            for (double x = 1.2; x < 8.8; x += paso) {
                if (!EsBlanco(En(pagina, kPpp, x, y))) {
                    ++marca;
                } else if (marca > 0) {
                    marcas.push_back(marca);
                    marca = 0;
                }
            }
            if (marca > 0) marcas.push_back(marca);
            return marcas;
        };
        QCOMPARE(tramos(2.0).size(), std::size_t{1});
        const std::vector<int> guiones = tramos(4.0);
        const std::vector<int> puntos = tramos(6.0);
        QVERIFY(guiones.size() > 10);
        QVERIFY(puntos.size() > guiones.size());
        QVERIFY(*std::max_element(puntos.begin(), puntos.end()) < *std::min_element(guiones.begin(), guiones.end()));
        const QColor verde = En(pagina, kPpp, 1.1, 4.0);
        QVERIFY(verde.green() > 90 && verde.red() < 60 && verde.blue() < 60);
    }

    void elArcoVaEnSentidoContrarioALasAgujasDesdeElEste()
    {
        const QString pdf = Fichero("arco.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "arco");
        impresora->DrawWidth(24);
        constexpr double kPi = 3.141592;
        // The first quarter of the circle: from east up to north.
        impresora->Arc(5.0, 5.0, 2.0, 0, 0.0, kPi / 2);
        // From north-west round through south to east: three quarters less one eighth.
        impresora->Arc(5.0, 12.0, 2.0, 0, 3 * kPi / 4, 2 * kPi);
        impresora->EndDoc();

        constexpr int kPpp = 150;
        const QImage pagina = Pixeles(pdf, kPpp);
        const auto sobre = [&](double cx, double cy, double angulo) {
            return !EsBlanco(En(pagina, kPpp, cx + 2.0 * std::cos(angulo), cy - 2.0 * std::sin(angulo)));
        };
        const double grado = std::numbers::pi / 180.0;
        QVERIFY(sobre(5.0, 5.0, 45 * grado));  // north-east, above the centre on the page
        QVERIFY(!sobre(5.0, 5.0, -45 * grado));
        QVERIFY(!sobre(5.0, 5.0, 135 * grado));
        QVERIFY(!sobre(5.0, 5.0, 225 * grado));
        QVERIFY(sobre(5.0, 12.0, 180 * grado));
        QVERIFY(sobre(5.0, 12.0, 270 * grado));
        QVERIFY(sobre(5.0, 12.0, 315 * grado));
        QVERIFY(!sobre(5.0, 12.0, 45 * grado));
        QVERIFY(!sobre(5.0, 12.0, 90 * grado));
    }

    void losLogosSonDibujosDeDosPorUno()
    {
        for (const char* logo : {":/imagenes/logo_flexion.svg", ":/imagenes/logo_flexion_t.svg",
                                 ":/imagenes/logo_confinamiento.svg", ":/imagenes/logo_caracteristicas.svg"}) {
            QSvgRenderer dibujo{QString::fromLatin1(logo)};
            QVERIFY2(dibujo.isValid(), logo);
            QCOMPARE(dibujo.viewBoxF(), QRectF(0, 0, 200, 100));
        }
    }

    void lasImagenesDelProgramaVienenConLaPlataforma()
    {
        // This test links the platform alone, as the batch command does.
        for (const char* imagen : {":/imagenes/logo.svg", ":/imagenes/acerca.svg", ":/imagenes/aplicacion.svg"})
            QVERIFY2(QSvgRenderer(QString::fromLatin1(imagen)).isValid(), imagen);
    }

    void paintPictureDibujaElLogoEnSuCaja()
    {
        const QString pdf = Fichero("logo.pdf");
        const auto impresora = ImpresoraQt::PdfEn(pdf);
        Prepara(*impresora, "logo");
        impresora->PaintPicture(":/imagenes/logo_flexion.svg", 4.0, 3.0, 4.0, 2.0);
        // A raster picture from a file, drawn into its box.
        QImage cuadro(20, 10, QImage::Format_RGB32);
        cuadro.fill(QColor(0, 0, 255));
        const QString png = Fichero("cuadro.png");
        QVERIFY(cuadro.save(png));
        impresora->PaintPicture(png.toStdString(), 10.0, 3.0, 2.0, 1.0);
        impresora->EndDoc();

        constexpr int kPpp = 150;
        const QImage pagina = Pixeles(pdf, kPpp);
        QVERIFY(!EsBlanco(En(pagina, kPpp, 4.8, 4.8)));  // the beam's sheet, low on the left
        // The product's name on the right half of the box.
        bool nombre = false;
        for (double x = 6.2; x < 7.8; x += 0.02)
            nombre = nombre || !EsBlanco(En(pagina, kPpp, x, 3.85));
        QVERIFY(nombre);
        for (const auto& [x, y] : {std::pair{3.8, 4.0}, std::pair{8.2, 4.0}, std::pair{6.0, 2.8}, std::pair{6.0, 5.2}})
            QVERIFY(EsBlanco(En(pagina, kPpp, x, y)));  // nothing outside the box
        const QColor azul = En(pagina, kPpp, 11.0, 3.5);
        QVERIFY(azul.blue() > 200 && azul.red() < 60);
        QVERIFY(EsBlanco(En(pagina, kPpp, 12.2, 3.5)));
        QVERIFY(EsBlanco(En(pagina, kPpp, 11.0, 4.2)));
    }

    void unDibujoQueNoExisteEsUnError()
    {
        const auto impresora = ImpresoraQt::PdfEn(Fichero("falta.pdf"));
        Prepara(*impresora, "falta");
        try {
            impresora->PaintPicture(":/imagenes/no_existe.svg", 1.0, 1.0, 2.0, 1.0);
            QFAIL("sin error");
        } catch (const ErrorEjecucion& error) {
            QCOMPARE(error.Numero(), ErrorEjecucion::kArchivoNoEncontrado);
        }
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, impresora->PaintPicture(Fichero("no.png").toStdString(), 1, 1, 2, 1));
        // A file that is there but holds no picture.
        QFile texto(Fichero("texto.png"));
        QVERIFY(texto.open(QIODevice::WriteOnly));
        texto.write("no es una imagen");
        texto.close();
        try {
            impresora->PaintPicture(texto.fileName().toStdString(), 1.0, 1.0, 2.0, 1.0);
            QFAIL("sin error");
        } catch (const ErrorEjecucion& error) {
            QCOMPARE(error.Numero(), ErrorEjecucion::kArgumentoNoValido);
        }
    }

    void unaImpresoraQueNoEstaInstaladaEsUnErrorDeEntradaSalida()
    {
        const auto impresora = ImpresoraQt::Instalada(QStringLiteral("Impresora que no existe"));
        impresora->PaperSize(kPapelA4);
        impresora->ScaleMode(kEscalaCentimetros);
        QVERIFY(impresora->ScaleWidth() > 19.0 && impresora->ScaleWidth() < 21.0);
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        try {
            impresora->Line(1.0, 1.0, 2.0, 2.0, 0);
            QFAIL("sin error");
        } catch (const ErrorEjecucion& error) {
            QCOMPARE(error.Numero(), ErrorEjecucion::kErrorDeEntradaSalida);
        }
    }

    void elPdfEsLaUltimaImpresoraYLaActualSinOtras()
    {
        ImpresorasQt impresoras;
        QStringList instaladas = QPrinterInfo::availablePrinterNames();
        instaladas.sort();
        std::vector<std::string> esperadas;
        for (const QString& nombre : instaladas)
            esperadas.push_back(nombre.toStdString());
        esperadas.emplace_back("Imprimir a PDF");
        QCOMPARE(impresoras.Nombres(), esperadas);
        const QString defecto = QPrinterInfo::defaultPrinterName();
        QCOMPARE(impresoras.Actual(), defecto.isEmpty() ? std::string("Imprimir a PDF") : defecto.toStdString());
        if (instaladas.isEmpty()) {
            // This machine has no printer at all.
            QCOMPARE(impresoras.Nombres(), std::vector<std::string>{"Imprimir a PDF"});
            QCOMPARE(impresoras.Actual(), std::string("Imprimir a PDF"));
        }
    }

    void eligeSoloImpresorasDeLaLista()
    {
        ImpresorasQt impresoras;
        const std::string antes = impresoras.Actual();
        QVERIFY(!impresoras.Elige("Impresora que no existe"));
        QCOMPARE(impresoras.Actual(), antes);
        QVERIFY(impresoras.Elige(kImprimirAPdf));
        QCOMPARE(impresoras.Actual(), std::string(kImprimirAPdf));
        Impresora& enUso = impresoras.EnUso();
        QVERIFY(dynamic_cast<ImpresoraQt*>(&enUso) != nullptr);
        QCOMPARE(&impresoras.EnUso(), &enUso);
        QCOMPARE(enUso.Page(), 1);
    }

    void laPlataformaDaSusImpresorasYElDobleLasSuyas()
    {
        {
            PlataformaDoble plataforma;
            QCOMPARE(&ServicioImpresoras(), static_cast<Impresoras*>(&plataforma.impresoras));
            plataforma.impresoras.nombres.clear();
            QVERIFY(ServicioImpresoras().Nombres().empty());
            ServicioImpresoras().EnUso().Print("registrado");
            QCOMPARE(plataforma.impresoras.impresora.operaciones.back().texto, std::string("registrado"));
        }
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, ServicioImpresoras());
    }

private:
    QString Fichero(const char* nombre) const { return QDir(carpeta_->path()).filePath(QString::fromLatin1(nombre)); }

    // The PDF printer's temporary files that are still on disk (where the system allows it, a
    // temporary file has no name in any folder until one is asked for).
    QStringList Temporales() const
    {
        return QDir(temporales_->path()).entryList({QStringLiteral("texalon-*")}, QDir::Files);
    }

    std::unique_ptr<QTemporaryDir> carpeta_;
    std::unique_ptr<QTemporaryDir> temporales_;
    QByteArray tmpdir_;
};

QTEST_MAIN(PruebaImpresora)
#include "test_impresora.moc"
