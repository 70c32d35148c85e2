// What a PDF file holds, read back with poppler's tools, for the tests of the printed reports
// and of the guide.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace texalon::prueba {

// A word of a page as pdftotext finds it: its page from 1 and its box in centimetres. The top
// of the box is the top of the line of text.
struct PalabraPdf {
    QString texto;
    int pagina = 0;
    double x = 0.0;
    double y = 0.0;
    double derecha = 0.0;
    double abajo = 0.0;
};

// Runs one of poppler's tools in the C locale and gives its output; empty if it failed. Under
// Wine the tools are Debian's own, started by their Unix path, and the Windows paths of the
// arguments are given to them as the Unix paths that Wine maps them to.
QString EjecutaPoppler(const QString& programa, const QStringList& argumentos);

// Whether poppler's tool is there to be run.
bool HayPoppler(const QString& programa);

// Every word of the file, page by page, its box measured from the page's top-left corner, or
// from the corner of a margin of that width all round (a printer's printable area).
std::vector<PalabraPdf> PalabrasPdf(const QString& pdf, double margen = 0.0);

// The number of pages of the file.
int PaginasPdf(const QString& pdf);

// The plain text of each page, in order.
QStringList TextoDePaginasPdf(const QString& pdf);

}  // namespace texalon::prueba
