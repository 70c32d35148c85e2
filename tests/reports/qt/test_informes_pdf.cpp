// The four reports on the PDF printer, read back with the PDF tools of poppler: every text that a
// report printed, the texts of its diagrams included, stands on its page where the report put
// it; no other text is on the pages but the logos'; the flexure reports have two numbered pages
// and the others one; the letters are embedded fonts, not pictures. The positions that the
// flexure report commands are those of the report's layout on the real printer's line height.
#include "comun/Pdf.h"
#include "diagrams/Grafico.h"
#include "engine/Calcular.h"
#include "engine/Caracteristicas.h"
#include "platform/Impresora.h"
#include "platform/qt/ImpresoraQt.h"
#include "reports/Imprimir.h"
#include "reports/Informes.h"
#include "state/Formato.h"
#include "state/General.h"

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

namespace {

// How far a word may stand from where it was printed.
constexpr double kTolerancia = 0.05;
// Pieces of text printed on one line, a subscript lowered a little included.
constexpr double kMismaLinea = 0.1;
// The positions that the report computes, compared on the same printer's metrics.
constexpr double kExacto = 1e-9;

// ---- What the report printed, as it printed it.

// A word of a printed text, the X at which it starts (the text's X plus the width of what goes
// before it in the text) and its own width, in the font of the moment.
struct PalabraImpresa {
    QString texto;
    double x = 0.0;
    double ancho = 0.0;
};

// One Print of the report: the text, the page and the position at that moment, and the diagram
// it belongs to (0 for the report's own texts, 1 for the first diagram on paper and so on).
struct Escrito {
    std::string texto;
    int pagina = 0;
    double x = 0.0;
    double y = 0.0;
    int diagrama = 0;
    std::vector<PalabraImpresa> palabras;
};

// The box of a picture painted on a page.
struct Cuadro {
    int pagina = 0;
    double x = 0.0;
    double y = 0.0;
    double ancho = 0.0;
    double alto = 0.0;
};

// What a report printed: its texts and its pictures, in order, and how many diagrams.
struct Notas {
    std::vector<Escrito> escritos;
    std::vector<Cuadro> cuadros;
    int diagramas = 0;
};

// The printer of the reports, passed through: every operation goes to the real printer, and each
// Print and PaintPicture is noted first, with the position, page and widths the real printer
// gives at that moment. A diagram goes on paper from its set of the scale, which the report's
// own set-up makes once before; the report's texts on a new page are its own again.
class ImpresoraAnotada final : public plataforma::ImpresoraQueReenvia {
public:
    using ImpresoraQueReenvia::ImpresoraQueReenvia;

    void ScaleMode(int modo) override
    {
        if (escalas_++ > 0) diagrama_ = ++notas.diagramas;
        destino_.ScaleMode(modo);
    }
    void Print(const std::string& texto) override
    {
        notas.escritos.push_back(Anota(texto));
        destino_.Print(texto);
    }
    void PaintPicture(const std::string& imagen, double x, double y, double ancho, double alto) override
    {
        notas.cuadros.push_back({destino_.Page(), x, y, ancho, alto});
        destino_.PaintPicture(imagen, x, y, ancho, alto);
    }
    void NewPage() override
    {
        diagrama_ = 0;
        destino_.NewPage();
    }

    Notas notas;

private:
    // The text split at its blanks, as a PDF reader splits it into words.
    Escrito Anota(const std::string& texto) const
    {
        Escrito escrito{texto, destino_.Page(), destino_.CurrentX(), destino_.CurrentY(), diagrama_, {}};
        constexpr char kBlancos[] = " \t";
        std::size_t inicio = texto.find_first_not_of(kBlancos);
        while (inicio != std::string::npos) {
            const std::size_t fin = texto.find_first_of(kBlancos, inicio);
            const std::string palabra = texto.substr(inicio, fin - inicio);
            escrito.palabras.push_back({QString::fromStdString(palabra),
                                        escrito.x + destino_.TextWidth(texto.substr(0, inicio)),
                                        destino_.TextWidth(palabra)});
            inicio = texto.find_first_not_of(kBlancos, fin);
        }
        return escrito;
    }

    int escalas_ = 0;
    int diagrama_ = 0;
};

// ---- What the PDF holds, read by poppler.

// A word of a PDF page, its box measured from the printable area's top-left corner (the PDF
// printer's margin taken off), where the printer put the position.
struct Palabra : prueba::PalabraPdf {
    bool impresa = false;  // matched with the words of the printed texts
};

std::vector<Palabra> Palabras(const QString& pdf)
{
    std::vector<Palabra> palabras;
    for (const prueba::PalabraPdf& palabra : prueba::PalabrasPdf(pdf, kMargenPdf))
        palabras.push_back({palabra});
    return palabras;
}

// A font of the document as pdffonts lists it: its name and whether the file carries it.
struct Fuente {
    QString nombre;
    bool incrustada = false;
};

// The columns of pdffonts' table are those of the rule of dashes under its heading; the fourth
// says whether the font is embedded.
std::vector<Fuente> Fuentes(const QString& pdf)
{
    const QStringList lineas = prueba::EjecutaPoppler(QStringLiteral("pdffonts"), {pdf}).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    std::vector<Fuente> fuentes;
    if (lineas.size() < 2) return fuentes;
    static const QRegularExpression kColumna(QStringLiteral("-+"));
    std::vector<std::pair<qsizetype, qsizetype>> columnas;
    for (const QRegularExpressionMatch& m : kColumna.globalMatch(lineas[1]))
        columnas.emplace_back(m.capturedStart(), m.capturedLength());
    if (columnas.size() < 4) return fuentes;
    for (qsizetype i = 2; i < lineas.size(); ++i) {
        const QString& linea = lineas[i];
        const auto columna = [&](std::size_t j) { return linea.mid(columnas[j].first, columnas[j].second).trimmed(); };
        fuentes.push_back({columna(0), columna(3) == QStringLiteral("yes")});
    }
    return fuentes;
}

// ---- The comparison.

// Whether the word starts inside the box of a picture: the logos carry words of their own.
bool EnElCuadro(const Palabra& palabra, const Cuadro& cuadro)
{
    return palabra.pagina == cuadro.pagina && palabra.x >= cuadro.x - kTolerancia &&
           palabra.x <= cuadro.x + cuadro.ancho + kTolerancia && palabra.y >= cuadro.y - kTolerancia &&
           palabra.y <= cuadro.y + cuadro.alto + kTolerancia;
}

// A printed text for the messages: its letters, page and position.
QString Describe(const Escrito& escrito)
{
    return QStringLiteral("«%1» en la página %2 en (%3, %4)")
        .arg(QString::fromStdString(escrito.texto))
        .arg(escrito.pagina)
        .arg(escrito.x, 0, 'f', 3)
        .arg(escrito.y, 0, 'f', 3);
}

// A word of a printed text on its way to the words of the PDF.
struct Pieza {
    const Escrito* escrito = nullptr;
    const PalabraImpresa* palabra = nullptr;
    bool hallada = false;
};

std::vector<Pieza> Piezas(const std::vector<Escrito>& escritos)
{
    std::vector<Pieza> piezas;
    for (const Escrito& escrito : escritos)
        for (const PalabraImpresa& palabra : escrito.palabras)
            piezas.push_back({&escrito, &palabra});
    return piezas;
}

// Whether the word of the PDF starts on the piece's page within the tolerance of (x, the
// piece's Y).
bool EmpiezaEn(const Palabra& palabra, const Pieza& pieza, double x)
{
    return palabra.pagina == pieza.escrito->pagina && std::abs(palabra.x - x) <= kTolerancia &&
           std::abs(palabra.y - pieza.escrito->y) <= kTolerancia;
}

// First the words whole: for each printed word, the nearest word of the PDF of the same letters
// not yet taken that starts where the word was printed and ends one word's width further on.
void EmparejaEnteras(std::vector<Pieza>& piezas, std::vector<Palabra>& palabras)
{
    for (Pieza& pieza : piezas) {
        const PalabraImpresa& impresa = *pieza.palabra;
        Palabra* mejor = nullptr;
        double distancia = 0.0;
        for (Palabra& palabra : palabras) {
            if (palabra.impresa || palabra.texto != impresa.texto || !EmpiezaEn(palabra, pieza, impresa.x)) continue;
            if (std::abs(palabra.derecha - (impresa.x + impresa.ancho)) > kTolerancia) continue;
            const double d = std::hypot(palabra.x - impresa.x, palabra.y - pieza.escrito->y);
            if (mejor == nullptr || d < distancia) {
                mejor = &palabra;
                distancia = d;
            }
        }
        if (mejor != nullptr) {
            mejor->impresa = true;
            pieza.hallada = true;
        }
    }
}

// Then the words joined: a PDF reader takes for one word the pieces that a report prints
// touching each other on a line, as the main letter, the subscript and the colon of "fck:". A
// word of the PDF not yet taken is such pieces, left to right: the first where the word starts,
// each next one on the first one's line and
// starting where the one before ends, the last ending at the word's right edge. The word's top
// is that of its highest letters, the first piece's.
void EmparejaUnidas(std::vector<Pieza>& piezas, std::vector<Palabra>& palabras)
{
    for (Palabra& palabra : palabras) {
        if (palabra.impresa) continue;
        std::vector<Pieza*> cadena;
        QString resto = palabra.texto;
        double x = palabra.x;
        while (!resto.isEmpty()) {
            const auto siguiente = std::find_if(piezas.begin(), piezas.end(), [&](const Pieza& pieza) {
                if (pieza.hallada || std::find(cadena.begin(), cadena.end(), &pieza) != cadena.end() ||
                    !resto.startsWith(pieza.palabra->texto))
                    return false;
                if (cadena.empty()) return EmpiezaEn(palabra, pieza, x);
                return pieza.escrito->pagina == palabra.pagina && std::abs(pieza.palabra->x - x) <= kTolerancia &&
                       std::abs(pieza.escrito->y - cadena.front()->escrito->y) <= kMismaLinea;
            });
            if (siguiente == piezas.end()) break;
            cadena.push_back(&*siguiente);
            resto.remove(0, siguiente->palabra->texto.size());
            x = siguiente->palabra->x + siguiente->palabra->ancho;
        }
        if (!resto.isEmpty() || cadena.size() < 2 || std::abs(x - palabra.derecha) > kTolerancia) continue;
        palabra.impresa = true;
        for (Pieza* pieza : cadena)
            pieza->hallada = true;
    }
}

// Each word of each printed text matched with the words of the PDF, whole or joined. Gives a
// line for each printed word that is not in its place, with the nearest word of the PDF of the
// same letters if there is one.
QStringList Descolocadas(const std::vector<Escrito>& escritos, std::vector<Palabra>& palabras)
{
    std::vector<Pieza> piezas = Piezas(escritos);
    EmparejaEnteras(piezas, palabras);
    EmparejaUnidas(piezas, palabras);
    QStringList fallos;
    for (const Pieza& pieza : piezas) {
        if (pieza.hallada) continue;
        const PalabraImpresa& impresa = *pieza.palabra;
        const Palabra* cercana = nullptr;
        double distancia = 0.0;
        for (const Palabra& palabra : palabras) {
            if (palabra.pagina != pieza.escrito->pagina || palabra.texto != impresa.texto) continue;
            const double d = std::hypot(palabra.x - impresa.x, palabra.y - pieza.escrito->y);
            if (cercana == nullptr || d < distancia) {
                cercana = &palabra;
                distancia = d;
            }
        }
        QString fallo = QStringLiteral("«%1» de %2, esperada de X %3 a %4: ")
                            .arg(impresa.texto, Describe(*pieza.escrito))
                            .arg(impresa.x, 0, 'f', 3)
                            .arg(impresa.x + impresa.ancho, 0, 'f', 3);
        fallo += cercana == nullptr ? QStringLiteral("no está en la página")
                                    : QStringLiteral("la más cercana está de (%1, %2) a X %3")
                                          .arg(cercana->x, 0, 'f', 3)
                                          .arg(cercana->y, 0, 'f', 3)
                                          .arg(cercana->derecha, 0, 'f', 3);
        fallos << fallo;
    }
    return fallos;
}

// The words of the pages that no printed text accounts for, but those of the logos.
QStringList Sobrantes(const std::vector<Palabra>& palabras, const std::vector<Cuadro>& cuadros)
{
    QStringList sobrantes;
    for (const Palabra& palabra : palabras) {
        if (palabra.impresa) continue;
        if (std::any_of(cuadros.begin(), cuadros.end(), [&](const Cuadro& c) { return EnElCuadro(palabra, c); }))
            continue;
        sobrantes << QStringLiteral("«%1» en la página %2 en (%3, %4)")
                         .arg(palabra.texto)
                         .arg(palabra.pagina)
                         .arg(palabra.x, 0, 'f', 3)
                         .arg(palabra.y, 0, 'f', 3);
    }
    return sobrantes;
}

// ---- The reports, as the Print command runs them on the start-up projects.

enum class Informe { Caracteristicas, Flexion, FlexionT, Confinamiento };

int PaginasDe(Informe informe) { return informe == Informe::Flexion || informe == Informe::FlexionT ? 2 : 1; }

int DiagramasDe(Informe informe)
{
    switch (informe) {
    case Informe::Caracteristicas: return 1;
    case Informe::Flexion:
    case Informe::FlexionT: return 4;
    case Informe::Confinamiento: return 2;
    }
    return 0;
}

// Prints the report on the printer given. Type 1 for the characteristics; MD 250 on the
// default rectangle and T, cell (1, 1); the default circular column, cell (1, 1).
void ImprimeInforme(Informe informe, Impresora& impresora, char separador)
{
    General g;
    ValoresIniciales(g);
    GeneralDibujo d;
    const auto sinCampos = [](General&) {};
    switch (informe) {
    case Informe::Caracteristicas:
        CargaCaracteristicas(g, 1);
        DiagramaTension(g, d, 1, separador);
        InformeCarac(impresora, g, d, 1, separador);
        break;
    case Informe::Flexion:
    case Informe::FlexionT: {
        const bool enT = informe == Informe::FlexionT;
        g.MD = 250.0;
        const ResultadoCalculo resultado =
            CalculaFlexion(g, enT ? SeccionFlexion::T : SeccionFlexion::Rectangular, sinCampos);
        QCOMPARE(resultado.veredicto, Veredicto::Oculto);
        const ResultadosCeldaFlexion celda = ResultadosFlexion(g, 1, 1, separador);
        const Impresion impresion =
            (enT ? InformeFlexionT : InformeFlexion)(impresora, g, d, celda, resultado.veredicto, separador);
        QCOMPARE(impresion, Impresion::ConDiagramas);
        break;
    }
    case Informe::Confinamiento:
        QCOMPARE(g.SECCION, Entero{1});
        CalculaConfinamiento(g, FormaDe(g), sinCampos);
        InformeConfina(impresora, g, d, ResultadosConfina(g, 1, 1, separador), FormaPilar::Circular, separador);
        break;
    }
}

// The start of a report's page, to measure its line on the real printer.
void PreparaComoUnInforme(Impresora& impresora)
{
    impresora.PaperSize(kPapelA4);
    impresora.ScaleMode(kEscalaCentimetros);
    impresora.FontName("arial");
    impresora.FontSize(10);
    impresora.FontBold(false);
}

// A number written with '.' as its decimal separator, under the separator given.
std::string Con(std::string texto, char separador)
{
    std::replace(texto.begin(), texto.end(), '.', separador);
    return texto;
}

}  // namespace

Q_DECLARE_METATYPE(Informe)

class PruebaInformesPdf : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        for (const char* herramienta : {"pdftotext", "pdfinfo", "pdffonts"})
            QVERIFY2(prueba::HayPoppler(QString::fromLatin1(herramienta)), herramienta);
    }

    void init()
    {
        carpeta_ = std::make_unique<QTemporaryDir>();
        QVERIFY(carpeta_->isValid());
    }

    void cadaTextoEnSuSitio_data() { Filas(); }

    void cadaTextoEnSuSitio()
    {
        QFETCH(Informe, informe);
        QFETCH(char, separador);
        const QString pdf = Fichero("informe.pdf");
        const Notas notas = Imprime(informe, separador, pdf);
        if (QTest::currentTestFailed()) return;

        // Texts of blanks alone leave nothing to find.
        std::vector<Escrito> escritos;
        std::copy_if(notas.escritos.begin(), notas.escritos.end(), std::back_inserter(escritos),
                     [](const Escrito& e) { return !e.palabras.empty(); });
        QVERIFY(escritos.size() > 30);
        // Every diagram on paper has texts of its own among them.
        QCOMPARE(notas.diagramas, DiagramasDe(informe));
        for (int diagrama = 1; diagrama <= notas.diagramas; ++diagrama)
            QVERIFY2(
                std::any_of(escritos.begin(), escritos.end(), [&](const Escrito& e) { return e.diagrama == diagrama; }),
                qPrintable(QStringLiteral("diagrama %1").arg(diagrama)));
        std::vector<Palabra> palabras = Palabras(pdf);
        QVERIFY2(!palabras.empty(), qPrintable(pdf));

        const QStringList descolocadas = Descolocadas(escritos, palabras);
        QVERIFY2(descolocadas.isEmpty(), qPrintable(descolocadas.join(QLatin1Char('\n'))));
        const QStringList sobrantes = Sobrantes(palabras, notas.cuadros);
        QVERIFY2(sobrantes.isEmpty(), qPrintable(sobrantes.join(QLatin1Char('\n'))));
    }

    void paginasNumeradasYLetraIncrustada_data() { Filas(); }

    void paginasNumeradasYLetraIncrustada()
    {
        QFETCH(Informe, informe);
        QFETCH(char, separador);
        const QString pdf = Fichero("paginas.pdf");
        Imprime(informe, separador, pdf);
        if (QTest::currentTestFailed()) return;

        const int paginas = PaginasDe(informe);
        QCOMPARE(prueba::PaginasPdf(pdf), paginas);
        const QStringList textos = prueba::TextoDePaginasPdf(pdf);
        QCOMPARE(textos.size(), paginas);
        for (int n = 1; n <= paginas; ++n) {
            const QString numero = QStringLiteral("Página %1").arg(n);
            QVERIFY2(textos[n - 1].contains(numero), qPrintable(numero));
            QVERIFY(textos[n - 1].contains(QStringLiteral("SISTEMA DE REFUERZO TEXALON®")));
        }
        QVERIFY(!textos.join(QString()).contains(QStringLiteral("Página %1").arg(paginas + 1)));

        const std::vector<Fuente> fuentes = Fuentes(pdf);
        QVERIFY(!fuentes.empty());
        QVERIFY(std::any_of(fuentes.begin(), fuentes.end(), [](const Fuente& f) {
            return f.nombre.contains(QStringLiteral("LiberationSans")) || f.nombre.contains(QStringLiteral("Arial"));
        }));
        for (const Fuente& fuente : fuentes)
            QVERIFY2(fuente.incrustada, qPrintable(fuente.nombre));
    }

    void laFlexionSeColocaSegunSuDiseno_data()
    {
        QTest::addColumn<char>("separador");
        QTest::newRow("coma") << ',';
        QTest::newRow("punto") << '.';
    }

    void laFlexionSeColocaSegunSuDiseno()
    {
        QFETCH(char, separador);
        // The natural line of the reports' font on this printer.
        const auto regla = ImpresoraQt::PdfEn(Fichero("regla.pdf"));
        PreparaComoUnInforme(*regla);
        const double linea = regla->TextHeight("Ancho:");
        QVERIFY(linea > 0.3 && linea < 0.5);

        const Notas notas = Imprime(Informe::Flexion, separador, Fichero("diseno.pdf"));
        if (QTest::currentTestFailed()) return;
        const std::vector<Escrito>& escritos = notas.escritos;
        std::size_t desde = 0;
        // The next Print of the text from where the last one was found, on page 1.
        const auto enSuSitio = [&](const std::string& texto, double x, double y) {
            const auto it = std::find_if(escritos.begin() + static_cast<std::ptrdiff_t>(desde), escritos.end(),
                                         [&](const Escrito& e) { return e.texto == texto; });
            if (it == escritos.end()) return QStringLiteral("«%1» no se imprimió").arg(QString::fromStdString(texto));
            desde = static_cast<std::size_t>(it - escritos.begin()) + 1;
            if (it->pagina != 1 || std::abs(it->x - x) > kExacto || std::abs(it->y - y) > kExacto)
                return QStringLiteral("%1, esperado en (%2, %3)").arg(Describe(*it)).arg(x).arg(y);
            return QString();
        };
        const auto verifica = [&](const std::string& texto, double x, double y) {
            const QString fallo = enSuSitio(texto, x, y);
            QVERIFY2(fallo.isEmpty(), qPrintable(fallo));
        };

        // A block of rows one natural line apart from `y`: each label at `x`, and its value in the
        // separator's form at `xValor`.
        const auto verificaBloque = [&](const std::vector<std::pair<std::string, std::string>>& filas, double x,
                                        double xValor, double y) {
            for (std::size_t k = 0; k < filas.size(); ++k) {
                verifica(filas[k].first, x, y + static_cast<double>(k) * linea);
                verifica(Con(filas[k].second, separador), xValor, y + static_cast<double>(k) * linea);
            }
        };

        // The rows of the left block, one natural line apart from Y 5.0, the subscript rows by their
        // main letter and their value; and those of the right block, from Y 6.0.
        const std::vector<std::pair<std::string, std::string>> datos{
            {"Ancho:", "0.400 m"},
            {"Canto:", "0.600 m"},
            {"Recubrimiento:", "0.050 m"},
            {"Armadura inferior:", "10.00 cm²"},
            {"Armadura superior:", "0.00 cm²"},
            {"f", "25 N/mm²"},
            {"f", "500 N/mm²"},
            {"Coef. seg. hormigón:", "1.50"},
            {"Coef. seg. acero:", "1.15"},
            {"Coef. seg. TEXALON®:", "1.40"},
            {"Ancho del refuerzo:", "0.125 m"},
            {"Momento actual:", "0.00 mkN"},
            {"Mom. flector solicitante:", "250.00 mkN"},
        },
            resultados{
                {"Momento último s/r:", "222.5 mkN"},
                {"Predeformación inicial:", "0.00 ‰"},
                {"M", "366.6 mkN"},
                {"M", "692.4 mkN"},
                {"Pivote:", "R"},
                {"Prof. fibra neutra:", "0.103 m"},
                {"Def. hormigón:", "1.99‰"},
                {"Def. armadura inferior:", "8.67‰"},
                {"Def. armadura superior:", "1.02‰"},
                {"Def. refuerzo:", "9.64‰"},
                {"Momento último c/r:", "238.5 mkN"},
            };

        verifica("REFUERZO A FLEXION EN SECCIONES RECTANGULARES", 2.0, 2.0);
        verifica("DATOS GENERALES", 2.0, 4.0);
        verificaBloque(datos, 2.0, 6.5, 5.0);
        verifica("RESULTADOS DE LA SECCION", 10.5, 4.0);
        verifica("Refuerzo tipo TEXALON L - Núm. capas: 1", 10.5, 5.0);
        verificaBloque(resultados, 10.5, 15.0, 6.0);
    }

private:
    // The rows of data: each report under each decimal separator.
    void Filas()
    {
        QTest::addColumn<Informe>("informe");
        QTest::addColumn<char>("separador");
        const std::pair<const char*, Informe> informes[] = {{"caracteristicas", Informe::Caracteristicas},
                                                            {"flexion", Informe::Flexion},
                                                            {"flexion_t", Informe::FlexionT},
                                                            {"confinamiento", Informe::Confinamiento}};
        for (const auto& [nombre, informe] : informes) {
            QTest::addRow("%s coma", nombre) << informe << ',';
            QTest::addRow("%s punto", nombre) << informe << '.';
        }
    }

    // The report printed to `pdf` on the PDF printer, and what it printed there.
    static Notas Imprime(Informe informe, char separador, const QString& pdf)
    {
        const auto real = ImpresoraQt::PdfEn(pdf);
        ImpresoraAnotada impresora(*real);
        ImprimeInforme(informe, impresora, separador);
        return std::move(impresora.notas);
    }

    QString Fichero(const char* nombre) const { return QDir(carpeta_->path()).filePath(QString::fromLatin1(nombre)); }

    std::unique_ptr<QTemporaryDir> carpeta_;
};

QTEST_MAIN(PruebaInformesPdf)
#include "test_informes_pdf.moc"
