// texalon-guia AYUDA EJEMPLOS LOGO SALIDA.pdf
//
// Writes the guide of the program from the pages of its help: a cover, a table of contents
// with the page of each chapter and section, the pages in the order the help's contents list
// them, and a chapter of worked examples calculated by the engine. The help and the guide are
// thus one text.
#include "Ejemplos.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <cmath>
#include <cstdio>

namespace {

const QString kContenido = QStringLiteral("contenido.html");

QString Lee(const QString& fichero)
{
    QFile entrada(fichero);
    if (!entrada.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(entrada.readAll());
}

// The pages the contents link to, in their order, each once.
QStringList PaginasEnOrden(const QString& carpeta)
{
    QStringList paginas;
    static const QRegularExpression enlace(QStringLiteral("href=\"([^\"#:]+\\.html)"));
    for (const QRegularExpressionMatch& hallado : enlace.globalMatch(Lee(carpeta + QLatin1Char('/') + kContenido)))
        if (!paginas.contains(hallado.captured(1)) && hallado.captured(1) != kContenido) paginas << hallado.captured(1);
    return paginas;
}

QString Ancla(const QString& pagina) { return QStringLiteral("pagina-") + QString(pagina).remove(QStringLiteral(".html")); }

// The body of a page as a chapter of the guide: its links lead inside the book, and the way
// back to the help's contents, which the book has no need of, goes.
QString Capitulo(const QString& carpeta, const QString& pagina)
{
    QString html = Lee(carpeta + QLatin1Char('/') + pagina);
    static const QRegularExpression cuerpo(QStringLiteral("<body[^>]*>(.*)</body>"),
                                           QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch hallado = cuerpo.match(html);
    if (hallado.hasMatch()) html = hallado.captured(1);
    static const QRegularExpression vuelta(QStringLiteral("<p[^>]*>(?:(?!</p>).)*contenido\\.html(?:(?!</p>).)*</p>"),
                                           QRegularExpression::DotMatchesEverythingOption);
    html.remove(vuelta);
    static const QRegularExpression aSeccion(QStringLiteral("href=\"[^\"#:]+\\.html#"));
    html.replace(aSeccion, QStringLiteral("href=\"#"));
    static const QRegularExpression aPagina(QStringLiteral("href=\"([^\"#:]+)\\.html\""));
    html.replace(aPagina, QStringLiteral("href=\"#pagina-\\1\""));
    return QStringLiteral("<a name=\"%1\"></a>").arg(Ancla(pagina)) + html;
}

struct Entrada {
    int nivel;
    QString titulo;
    int pagina;
};

// The table of contents, with its page numbers; entries whose page is still unknown read 0.
QString Indice(const QList<Entrada>& entradas)
{
    QString html = QStringLiteral("<h1>Índice</h1><table width=\"100%\" cellpadding=\"2\" cellspacing=\"0\">");
    for (const Entrada& entrada : entradas) {
        const QString titulo = entrada.nivel == 1 ? QStringLiteral("<b>%1</b>").arg(entrada.titulo.toHtmlEscaped())
                                                  : QStringLiteral("&nbsp;&nbsp;&nbsp;&nbsp;") + entrada.titulo.toHtmlEscaped();
        html += QStringLiteral("<tr><td>%1</td><td align=\"right\" width=\"12%\">%2</td></tr>").arg(titulo).arg(entrada.pagina);
    }
    return html + QStringLiteral("</table>");
}

// Each chapter starts on a page of its own, and so does each block of `saltos` (by number).
void PonSaltos(QTextDocument& documento, const QSet<int>& saltos)
{
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        const bool capitulo = bloque.blockFormat().headingLevel() == 1 && bloque.blockNumber() != 0;
        if (!capitulo && !saltos.contains(bloque.blockNumber())) continue;
        QTextBlockFormat formato = bloque.blockFormat();
        formato.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(bloque).setBlockFormat(formato);
    }
}

// The first heading left at the foot of a page, with less room under it than a few lines of
// text; -1 when there is none.
int TituloAlPie(const QTextDocument& documento)
{
    const qreal alto = documento.pageSize().height();
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        if (bloque.blockFormat().headingLevel() < 2) continue;
        const QRectF caja = documento.documentLayout()->blockBoundingRect(bloque);
        if (alto - std::fmod(caja.bottom(), alto) < alto * 0.08) return bloque.blockNumber();
    }
    return -1;
}

// The document laid out on the pages. A heading never stays alone at the foot of a page: it
// goes to the next one with the text it heads. Each move shifts what follows, so the whole
// document is laid out anew after each, from the top.
void PreparaDocumento(QTextDocument& documento, const QString& html, QPaintDevice& dispositivo, const QSizeF& pagina)
{
    documento.documentLayout()->setPaintDevice(&dispositivo);
    QFont letra(QStringLiteral("Liberation Sans"));
    letra.setPointSizeF(10.0);
    documento.setDefaultFont(letra);
    documento.setDocumentMargin(0);
    QSet<int> saltos;
    while (true) {
        documento.setPageSize(QSizeF());
        documento.setHtml(html);
        PonSaltos(documento, saltos);
        documento.setPageSize(pagina);
        const int alPie = TituloAlPie(documento);
        if (alPie < 0 || saltos.contains(alPie)) return;
        saltos.insert(alPie);
    }
}

// The chapters and sections with the page each starts on, counted from the first page of the
// document; the cover comes before it.
QList<Entrada> Entradas(const QTextDocument& documento, int primeraPagina)
{
    QList<Entrada> entradas;
    const qreal alto = documento.pageSize().height();
    bool enIndice = true;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        const int nivel = bloque.blockFormat().headingLevel();
        if (nivel != 1 && nivel != 2) continue;
        // The first heading is the table of contents' own.
        if (enIndice) {
            enIndice = false;
            continue;
        }
        const qreal y = documento.documentLayout()->blockBoundingRect(bloque).top();
        entradas.append({nivel, bloque.text().trimmed(), primeraPagina + static_cast<int>(y / alto)});
    }
    return entradas;
}

void Portada(QPainter& pintor, const QRectF& hoja, const QString& logo)
{
    const qreal cm = hoja.width() / 17.0;
    QSvgRenderer dibujo(logo);
    if (dibujo.isValid()) dibujo.render(&pintor, QRectF(hoja.left() + 3.5 * cm, hoja.top() + 3 * cm, 10 * cm, 5 * cm));
    const auto texto = [&](qreal y, qreal puntos, bool negrita, const QString& cadena) {
        QFont letra(QStringLiteral("Liberation Sans"));
        letra.setPointSizeF(puntos);
        letra.setBold(negrita);
        pintor.setFont(letra);
        pintor.drawText(QRectF(hoja.left(), hoja.top() + y * cm, hoja.width(), 2 * cm), Qt::AlignHCenter | Qt::AlignTop,
                        cadena);
    };
    pintor.setPen(QColor(0, 0, 128));
    texto(10.0, 32, true, QStringLiteral("TEXALON®"));
    pintor.setPen(Qt::black);
    texto(12.2, 18, false, QStringLiteral("Guía de referencia"));
    texto(13.6, 12, false, QStringLiteral("Programa para el cálculo del refuerzo TEXALON®"));
    texto(14.4, 12, false, QStringLiteral("de estructuras de hormigón armado con tejido de fibra de carbono"));
    texto(20.0, 14, true, QStringLiteral("VELMORA"));
    texto(21.0, 11, false, QStringLiteral("Versión 1.0"));
    texto(21.8, 11, false, QStringLiteral(TEXALON_WEB));
}

void Pie(QPainter& pintor, const QRectF& pie, int pagina)
{
    QFont letra(QStringLiteral("Liberation Sans"));
    letra.setPointSizeF(8.0);
    pintor.setFont(letra);
    pintor.setPen(Qt::darkGray);
    pintor.drawLine(pie.topLeft(), pie.topRight());
    pintor.drawText(pie, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("TEXALON® · Guía de referencia"));
    pintor.drawText(pie, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("Página %1").arg(pagina));
}

}  // namespace

int main(int argc, char** argv)
{
    QGuiApplication aplicacion(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr, "uso: texalon-guia AYUDA EJEMPLOS LOGO SALIDA.pdf\n");
        return 2;
    }
    const QString carpeta = QString::fromLocal8Bit(argv[1]);
    const QStringList paginas = PaginasEnOrden(carpeta);
    if (paginas.isEmpty()) {
        std::fprintf(stderr, "texalon-guia: %s no tiene páginas enlazadas desde %s\n", argv[1], "contenido.html");
        return 1;
    }
    QString capitulos;
    for (const QString& pagina : paginas)
        capitulos += Capitulo(carpeta, pagina);
    capitulos += QString::fromStdString(texalon::guia::CapituloEjemplos(argv[2]));

    QPdfWriter pdf(QString::fromLocal8Bit(argv[4]));
    pdf.setResolution(300);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(20, 18, 20, 15), QPageLayout::Millimeter);
    pdf.setTitle(QStringLiteral("TEXALON® · Guía de referencia"));
    pdf.setCreator(QStringLiteral("TEXALON"));
    const qreal puntosPorCm = pdf.resolution() / 2.54;
    const QSizeF pagina(pdf.width(), pdf.height() - 1.2 * puntosPorCm);

    // The table of contents takes the same room whatever its numbers, so one layout with
    // provisional numbers tells the pages of the final one.
    QTextDocument documento;
    PreparaDocumento(documento, Indice({}) + capitulos, pdf, pagina);
    QList<Entrada> entradas = Entradas(documento, 2);
    for (int vuelta = 0; vuelta < 3; ++vuelta) {
        QTextDocument definitivo;
        PreparaDocumento(definitivo, Indice(entradas) + capitulos, pdf, pagina);
        const QList<Entrada> halladas = Entradas(definitivo, 2);
        const bool iguales = std::equal(halladas.begin(), halladas.end(), entradas.begin(), entradas.end(),
                                        [](const Entrada& a, const Entrada& b) { return a.pagina == b.pagina; });
        entradas = halladas;
        if (iguales && halladas.size() == entradas.size()) break;
    }
    PreparaDocumento(documento, Indice(entradas) + capitulos, pdf, pagina);

    QPainter pintor(&pdf);
    Portada(pintor, QRectF(0, 0, pdf.width(), pdf.height()), QString::fromLocal8Bit(argv[3]));
    const int hojas = documento.pageCount();
    const QRectF pie(0, pdf.height() - 0.6 * puntosPorCm, pdf.width(), 0.6 * puntosPorCm);
    for (int hoja = 0; hoja < hojas; ++hoja) {
        pdf.newPage();
        pintor.save();
        pintor.translate(0, -hoja * pagina.height());
        QAbstractTextDocumentLayout::PaintContext contexto;
        contexto.clip = QRectF(0, hoja * pagina.height(), pagina.width(), pagina.height());
        pintor.setClipRect(contexto.clip);
        documento.documentLayout()->draw(&pintor, contexto);
        pintor.restore();
        Pie(pintor, pie, hoja + 2);
    }
    pintor.end();
    std::printf("%s: %d páginas\n", argv[4], hojas + 1);
    return 0;
}
