#include "Pdf.h"

#include <QProcess>
#include <QRegularExpression>

namespace texalon::prueba {

namespace {

constexpr double kPuntosPorCm = 72.0 / 2.54;

double Centimetros(const QString& puntos, double margen) { return puntos.toDouble() / kPuntosPorCm - margen; }

// pdftotext writes its words as XHTML: the five entities stand for their characters.
QString SinEntidades(QString texto)
{
    texto.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    texto.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    texto.replace(QStringLiteral("&quot;"), QStringLiteral("\""));
    texto.replace(QStringLiteral("&apos;"), QStringLiteral("'"));
    texto.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return texto;
}

}  // namespace

QString EjecutaPoppler(const QString& programa, const QStringList& argumentos)
{
    QProcess proceso;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    proceso.setProcessEnvironment(entorno);
    proceso.start(programa, argumentos);
    if (!proceso.waitForFinished(30000) || proceso.exitStatus() != QProcess::NormalExit || proceso.exitCode() != 0)
        return {};
    return QString::fromUtf8(proceso.readAllStandardOutput());
}

std::vector<PalabraPdf> PalabrasPdf(const QString& pdf, double margen)
{
    const QString xhtml = EjecutaPoppler(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), QStringLiteral("-enc"),
                                                                       QStringLiteral("UTF-8"), pdf, QStringLiteral("-")});
    static const QRegularExpression kEtiqueta(QStringLiteral(
        R"re(<page |<word xMin="([0-9.]+)" yMin="([0-9.]+)" xMax="([0-9.]+)" yMax="([0-9.]+)">([^<]*)</word>)re"));
    std::vector<PalabraPdf> palabras;
    int pagina = 0;
    for (const QRegularExpressionMatch& m : kEtiqueta.globalMatch(xhtml)) {
        if (m.captured(0).startsWith(QStringLiteral("<page"))) {
            ++pagina;
            continue;
        }
        palabras.push_back({SinEntidades(m.captured(5)), pagina, Centimetros(m.captured(1), margen),
                            Centimetros(m.captured(2), margen), Centimetros(m.captured(3), margen),
                            Centimetros(m.captured(4), margen)});
    }
    return palabras;
}

int PaginasPdf(const QString& pdf)
{
    static const QRegularExpression kPaginas(QStringLiteral(R"re(Pages:\s+(\d+))re"));
    return kPaginas.match(EjecutaPoppler(QStringLiteral("pdfinfo"), {pdf})).captured(1).toInt();
}

QStringList TextoDePaginasPdf(const QString& pdf)
{
    QStringList paginas = EjecutaPoppler(QStringLiteral("pdftotext"),
                                         {QStringLiteral("-enc"), QStringLiteral("UTF-8"), pdf, QStringLiteral("-")})
                              .split(QLatin1Char('\f'));
    // The text ends with a form feed after the last page.
    if (!paginas.isEmpty() && paginas.last().trimmed().isEmpty()) paginas.removeLast();
    return paginas;
}

}  // namespace texalon::prueba
