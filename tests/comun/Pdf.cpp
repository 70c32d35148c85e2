#include "Pdf.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

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

namespace {

#ifdef _WIN32
// Under Wine, poppler's tools are Debian's own: a Windows program starts a Unix program by its
// Unix path, but Wine hands it neither the pipes of the standard output nor its exit status.
// So the tool runs under /bin/sh, which writes its output and its status to files of a
// temporary folder that the test then reads.

// A Windows path as the Unix path that Wine gives it; any other argument as it is.
QString ComoUnix(const QString& argumento)
{
    static const QRegularExpression kRutaWindows(QStringLiteral("^[A-Za-z]:[/\\\\]"));
    using ANombreUnix = char* (*)(const wchar_t*);
    static const auto nombreUnix = reinterpret_cast<ANombreUnix>(reinterpret_cast<void (*)()>(
        ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    if (nombreUnix == nullptr || !kRutaWindows.match(argumento).hasMatch()) return argumento;
    const std::wstring ruta = QDir::toNativeSeparators(argumento).toStdWString();
    char* unix = nombreUnix(ruta.c_str());
    if (unix == nullptr) return argumento;
    const QString resultado = QString::fromUtf8(unix);
    ::HeapFree(::GetProcessHeap(), 0, unix);
    return resultado;
}

// An argument of the shell, between single quotes.
QString ParaShell(const QString& argumento)
{
    QString citado = argumento;
    citado.replace(QStringLiteral("'"), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + citado + QLatin1Char('\'');
}

QString EjecutaPorShell(const QString& programa, const QStringList& argumentos)
{
    QTemporaryDir carpeta;
    const QString salida = carpeta.filePath(QStringLiteral("salida"));
    const QString estado = carpeta.filePath(QStringLiteral("estado"));
    QStringList orden{QStringLiteral("LC_ALL=C"), QStringLiteral("/usr/bin/") + programa};
    for (const QString& argumento : argumentos) orden << ParaShell(ComoUnix(argumento));
    const QString aparte = estado + QStringLiteral(".escribiendo");
    const QString guion = orden.join(QLatin1Char(' ')) + QStringLiteral(" >") + ParaShell(ComoUnix(salida)) +
                          QStringLiteral(" 2>/dev/null; echo $? >") + ParaShell(ComoUnix(aparte)) +
                          QStringLiteral("; mv ") + ParaShell(ComoUnix(aparte)) + QLatin1Char(' ') +
                          ParaShell(ComoUnix(estado));
    std::wstring linea = (QStringLiteral("/bin/sh -c \"") + guion + QLatin1Char('"')).toStdWString();
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    PROCESS_INFORMATION proceso{};
    if (!::CreateProcessW(nullptr, linea.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &inicio, &proceso))
        return {};
    ::CloseHandle(proceso.hThread);
    ::CloseHandle(proceso.hProcess);
    // Nor can a Unix process's handle be waited for: the status file, moved into place whole
    // as the last step, tells that the tool has ended.
    QElapsedTimer espera;
    espera.start();
    while (!QFileInfo::exists(estado) && espera.elapsed() < 30000) ::Sleep(10);
    QFile leidoEstado(estado);
    if (!leidoEstado.open(QIODevice::ReadOnly) || leidoEstado.readAll().trimmed() != "0") return {};
    QFile leidaSalida(salida);
    if (!leidaSalida.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(leidaSalida.readAll());
}
#endif

}  // namespace

bool HayPoppler(const QString& programa)
{
#ifdef _WIN32
    return QFileInfo::exists(QStringLiteral("Z:/usr/bin/") + programa);
#else
    return !QStandardPaths::findExecutable(programa).isEmpty();
#endif
}

QString EjecutaPoppler(const QString& programa, const QStringList& argumentos)
{
#ifdef _WIN32
    return EjecutaPorShell(programa, argumentos);
#else
    QProcess proceso;
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    proceso.setProcessEnvironment(entorno);
    proceso.start(programa, argumentos);
    if (!proceso.waitForFinished(30000) || proceso.exitStatus() != QProcess::NormalExit || proceso.exitCode() != 0)
        return {};
    return QString::fromUtf8(proceso.readAllStandardOutput());
#endif
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
