// The sheet of the program's pictures: every SVG of resources/iconos, resources/imagenes and
// resources/escritorio on one PNG, grouped by folder, each at the sizes the program draws it,
// with its file name under it; above them the toolbar and the screens' buttons as Qt draws
// them. It reads the SVG files of the sources, so a picture that was just redrawn shows without
// building the program again.
//
//   hoja SALIDA.png [CARPETA_DE_RECURSOS]
//
// It renders with Qt SVG, as the program does, and fails (status 1) when a file does not load,
// when Qt SVG complains about something in it, or when it uses what the program's pictures keep
// away from: filters, masks, clipping, patterns, embedded images, style sheets.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QStringList>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QToolBar>
#include <QWidget>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int kAncho = 1320;      // the sheet's width
constexpr int kMargen = 28;       // round the sheet
constexpr int kEntreTamanos = 14; // between two sizes of one picture
constexpr int kEntreDibujos = 34; // between two pictures
constexpr int kEntreFilas = 26;
const QColor kFondo(0xf4, 0xf5, 0xf7);
const QColor kTinta(0x2b, 0x3a, 0x4a);
const QColor kTintaSuave(0x6f, 0x7d, 0x8b);
const QColor kRaya(0xd3, 0xdb, 0xe3);

// The toolbar, in the order of the main window, and the buttons of the calculation screens.
const QStringList kBarra = {QStringLiteral("abrir"),     QStringLiteral("guardar"), QStringLiteral("imprimir"),
                            QStringLiteral("carac"),     QStringLiteral("flexion_r"), QStringLiteral("flexion_t"),
                            QStringLiteral("confina"),   QStringLiteral("ayuda"),   QStringLiteral("guia"),
                            QStringLiteral("web"),       QStringLiteral("mail"),    QStringLiteral("info")};
const QStringList kBotones = {QStringLiteral("boton_calcular"),      QStringLiteral("boton_seccion"),
                              QStringLiteral("boton_deformaciones"), QStringLiteral("boton_armadura"),
                              QStringLiteral("boton_capas"),         QStringLiteral("boton_anclaje"),
                              QStringLiteral("boton_confina")};

struct Tamano {
    QSize tamano;
    QString rotulo;
};

Tamano Cuadrado(int lado, const QString& rotulo = QString())
{
    return {QSize(lado, lado), rotulo.isEmpty() ? QString::number(lado) : rotulo};
}

// The sizes at which the program draws each picture; a picture that is not named here gets
// those of its folder.
std::vector<Tamano> Tamanos(const QString& carpeta, const QString& nombre)
{
    if (carpeta == QLatin1String("iconos")) {
        // Toolbar and screen buttons at 24; 16 and 48 to judge them small and large.
        std::vector<Tamano> t = {Cuadrado(16), Cuadrado(24), Cuadrado(48)};
        if (nombre == QLatin1String("boton_anclaje")) t.push_back(Cuadrado(96, QStringLiteral("96 (anclaje)")));
        return t;
    }
    if (carpeta == QLatin1String("imagenes")) {
        if (nombre == QLatin1String("aplicacion"))
            return {Cuadrado(16), Cuadrado(24), Cuadrado(32), Cuadrado(48), Cuadrado(64)};
        if (nombre == QLatin1String("logo"))
            return {Cuadrado(96, QStringLiteral("96 (acerca de)")), Cuadrado(160, QStringLiteral("160 (presentación)"))};
        if (nombre == QLatin1String("acerca")) return {Cuadrado(48, QStringLiteral("48 (acerca de)"))};
        if (nombre.startsWith(QLatin1String("logo_")))
            // The frame of the reports: 2 × 1 cm, on the screen and on a 300 ppp printer.
            return {{QSize(76, 38), QStringLiteral("2×1 cm, 96 ppp")}, {QSize(236, 118), QStringLiteral("2×1 cm, 300 ppp")}};
        return {Cuadrado(96)};
    }
    // The desktop's pictures: file manager lists, icons, large views.
    return {Cuadrado(16), Cuadrado(24), Cuadrado(32), Cuadrado(48), Cuadrado(128)};
}

// What Qt SVG says about the file being loaded.
QString ficheroEnCurso;
QStringList quejas;
QtMessageHandler anterior = nullptr;

void Escucha(QtMsgType tipo, const QMessageLogContext& contexto, const QString& mensaje)
{
    const QString categoria = QString::fromLatin1(contexto.category ? contexto.category : "");
    if (categoria.startsWith(QLatin1String("qt.svg")) || (!ficheroEnCurso.isEmpty() && tipo == QtWarningMsg)) {
        const QString queja = ficheroEnCurso.isEmpty() ? mensaje : ficheroEnCurso + QStringLiteral(": ") + mensaje;
        if (!quejas.contains(queja)) quejas << queja;
    } else if (anterior) {
        anterior(tipo, contexto, mensaje);
    }
}

// The elements the pictures are made of: plain shapes, gradients, groups and text.
const QStringList kElementos = {
    QStringLiteral("svg"),      QStringLiteral("g"),       QStringLiteral("defs"),     QStringLiteral("title"),
    QStringLiteral("desc"),     QStringLiteral("metadata"), QStringLiteral("path"),    QStringLiteral("rect"),
    QStringLiteral("circle"),   QStringLiteral("ellipse"), QStringLiteral("line"),     QStringLiteral("polyline"),
    QStringLiteral("polygon"),  QStringLiteral("linearGradient"), QStringLiteral("radialGradient"),
    QStringLiteral("stop"),     QStringLiteral("use"),     QStringLiteral("text"),     QStringLiteral("tspan")};
const QStringList kAtributosFuera = {QStringLiteral("style"), QStringLiteral("class"), QStringLiteral("filter"),
                                     QStringLiteral("mask"), QStringLiteral("clip-path")};

// What in the file lies outside those.
QStringList FueraDeLaFamilia(const QString& ruta)
{
    QStringList fuera;
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly)) return {QStringLiteral("no se puede abrir")};
    QXmlStreamReader xml(&fichero);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        const QString elemento = xml.name().toString();
        const QString donde = QStringLiteral(" (línea %1)").arg(xml.lineNumber());
        if (!kElementos.contains(elemento)) fuera << QStringLiteral("elemento <%1>").arg(elemento) + donde;
        for (const QXmlStreamAttribute& atributo : xml.attributes())
            if (kAtributosFuera.contains(atributo.name().toString()))
                fuera << QStringLiteral("atributo %1 en <%2>").arg(atributo.name().toString(), elemento) + donde;
    }
    if (xml.hasError()) fuera << xml.errorString();
    return fuera;
}

QImage Dibuja(QSvgRenderer& dibujo, QSize caja)
{
    QSize tamano = dibujo.defaultSize();
    tamano.scale(caja, Qt::KeepAspectRatio);
    QImage imagen(tamano, QImage::Format_ARGB32_Premultiplied);
    imagen.fill(Qt::transparent);
    QPainter pintor(&imagen);
    dibujo.render(&pintor, QRectF(QPointF(0, 0), QSizeF(tamano)));
    return imagen;
}

QIcon Icono(const QString& recursos, const QString& nombre)
{
    return QIcon(recursos + QStringLiteral("/iconos/") + nombre + QStringLiteral(".svg"));
}

// The toolbar as the main window shows it: 24 px icons; with Guardar and Imprimir disabled, as
// at start-up, when `alEmpezar`.
QImage Barra(const QString& recursos, bool alEmpezar)
{
    QToolBar barra;
    barra.setIconSize(QSize(24, 24));
    barra.addSeparator();
    for (const QString& nombre : kBarra) {
        QAction* accion = barra.addAction(Icono(recursos, nombre), nombre);
        if (alEmpezar && (nombre == QLatin1String("guardar") || nombre == QLatin1String("imprimir")))
            accion->setEnabled(false);
    }
    barra.adjustSize();
    return barra.grab().toImage();
}

// The buttons beside the result grid: 34 × 32 with a 24 px picture.
QImage Botones(const QString& recursos)
{
    QWidget fila;
    auto* disposicion = new QHBoxLayout(&fila);
    disposicion->setContentsMargins(6, 6, 6, 6);
    disposicion->setSpacing(8);
    for (const QString& nombre : kBotones) {
        auto* boton = new QPushButton(&fila);
        boton->setIcon(Icono(recursos, nombre));
        boton->setIconSize(QSize(24, 24));
        boton->setFixedSize(34, 32);
        disposicion->addWidget(boton);
    }
    fila.adjustSize();
    return fila.grab().toImage();
}

// One block of the sheet: its size and how to paint it at a place.
struct Bloque {
    QSize tamano;
    std::function<void(QPainter&, QPoint)> pinta;
};

class Hoja {
public:
    Hoja()
    {
        letra_ = QFont(QStringLiteral("Arial"));
        letra_.setPixelSize(12);
        pequena_ = letra_;
        pequena_.setPixelSize(10);
        titulo_ = letra_;
        titulo_.setPixelSize(20);
        titulo_.setBold(true);
        seccion_ = letra_;
        seccion_.setPixelSize(15);
        seccion_.setBold(true);
    }

    // A heading across the sheet, with a line of explanation.
    void Encabezado(const QString& texto, const QString& nota, bool principal = false)
    {
        CierraFila();
        const QFont letra = principal ? titulo_ : seccion_;
        const int alto = QFontMetrics(letra).height() + QFontMetrics(letra_).height() + (principal ? 8 : 22);
        const int arriba = y_ + (principal ? 0 : 14);
        pinturas_.push_back([=, this](QPainter& p) {
            if (!principal) {
                p.setPen(QPen(kRaya, 1));
                p.drawLine(kMargen, arriba - 6, kAncho - kMargen, arriba - 6);
            }
            p.setPen(kTinta);
            p.setFont(letra);
            const QFontMetrics m(letra);
            p.drawText(QPoint(kMargen, arriba + m.ascent()), texto);
            p.setFont(letra_);
            p.setPen(kTintaSuave);
            p.drawText(QPoint(kMargen, arriba + m.height() + 2 + QFontMetrics(letra_).ascent()), nota);
        });
        y_ = arriba + alto;
    }

    // A picture at each of its sizes, bottom-aligned, each size's label under it, and the file
    // name under them all.
    void Dibujo(const QString& nombre, const std::vector<std::pair<QImage, QString>>& vistas)
    {
        const QFontMetrics m(letra_);
        const QFontMetrics mp(pequena_);
        int ancho = 0;
        int alto = 0;
        std::vector<int> anchos;
        for (const auto& [imagen, rotulo] : vistas) {
            const int a = std::max(imagen.width(), mp.horizontalAdvance(rotulo));
            anchos.push_back(a);
            ancho += a + (ancho > 0 ? kEntreTamanos : 0);
            alto = std::max(alto, imagen.height());
        }
        ancho = std::max(ancho, m.horizontalAdvance(nombre));
        const int total = alto + 4 + mp.height() + 4 + m.height();
        Coloca({QSize(ancho, total), [=, this](QPainter& p, QPoint en) {
                    int x = en.x();
                    const QFontMetrics mp2(pequena_);
                    for (std::size_t i = 0; i < vistas.size(); ++i) {
                        const QImage& imagen = vistas[i].first;
                        const int dx = x + (anchos[i] - imagen.width()) / 2;
                        p.drawImage(QPoint(dx, en.y() + alto - imagen.height()), imagen);
                        p.setFont(pequena_);
                        p.setPen(kTintaSuave);
                        p.drawText(QRect(x, en.y() + alto + 4, anchos[i], mp2.height()), Qt::AlignHCenter,
                                   vistas[i].second);
                        x += anchos[i] + kEntreTamanos;
                    }
                    p.setFont(letra_);
                    p.setPen(kTinta);
                    p.drawText(QRect(en.x(), en.y() + alto + 4 + mp2.height() + 4, ancho, QFontMetrics(letra_).height()),
                               Qt::AlignLeft, nombre);
                }});
    }

    // A finished picture (a grab of widgets) with its caption.
    void Muestra(const QImage& imagen, const QString& rotulo)
    {
        const QFontMetrics m(letra_);
        const int ancho = std::max(imagen.width(), m.horizontalAdvance(rotulo));
        Coloca({QSize(ancho, imagen.height() + 4 + m.height()), [=, this](QPainter& p, QPoint en) {
                    p.drawImage(en, imagen);
                    p.setFont(letra_);
                    p.setPen(kTinta);
                    p.drawText(QPoint(en.x(), en.y() + imagen.height() + 4 + QFontMetrics(letra_).ascent()), rotulo);
                }});
    }

    QImage Termina()
    {
        CierraFila();
        QImage hoja(kAncho, y_ + kMargen, QImage::Format_RGB32);
        hoja.fill(kFondo);
        QPainter p(&hoja);
        p.setRenderHint(QPainter::TextAntialiasing);
        for (const auto& pintura : pinturas_) pintura(p);
        return hoja;
    }

private:
    void Coloca(const Bloque& bloque)
    {
        if (!fila_.empty() && x_ + bloque.tamano.width() > kAncho - kMargen) CierraFila();
        fila_.push_back({x_, bloque});
        x_ += bloque.tamano.width() + kEntreDibujos;
    }

    // Lays the row's blocks on a common bottom line.
    void CierraFila()
    {
        if (fila_.empty()) return;
        int alto = 0;
        for (const auto& [x, b] : fila_) alto = std::max(alto, b.tamano.height());
        const int y = y_;
        for (const auto& [x, b] : fila_) {
            const QPoint en(x, y + alto - b.tamano.height());
            pinturas_.push_back([en, b](QPainter& p) { b.pinta(p, en); });
        }
        fila_.clear();
        x_ = kMargen;
        y_ += alto + kEntreFilas;
    }

    QFont letra_, pequena_, titulo_, seccion_;
    int x_ = kMargen;
    int y_ = kMargen;
    std::vector<std::pair<int, Bloque>> fila_;
    std::vector<std::function<void(QPainter&)>> pinturas_;
};

}  // namespace

int main(int argc, char** argv)
{
    QApplication aplicacion(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont letra(QStringLiteral("Arial"));
    letra.setPointSizeF(9.0);
    QApplication::setFont(letra);

    const QStringList argumentos = QApplication::arguments();
    if (argumentos.size() < 2 || argumentos.size() > 3 || argumentos.at(1).startsWith(QLatin1Char('-'))) {
        std::fprintf(stderr, "Uso: hoja SALIDA.png [CARPETA_DE_RECURSOS]\n"
                             "Dibuja en SALIDA.png todas las imágenes SVG de iconos/, imagenes/ y escritorio/\n"
                             "(por omisión, las de %s).\n",
                     TEXALON_RECURSOS);
        return 2;
    }
    const QString salida = argumentos.at(1);
    const QString recursos = argumentos.size() == 3 ? argumentos.at(2) : QString::fromUtf8(TEXALON_RECURSOS);

    anterior = qInstallMessageHandler(Escucha);

    Hoja hoja;
    hoja.Encabezado(QStringLiteral("TEXALON: las imágenes del programa"),
                    QStringLiteral("Cada imagen de resources/ dibujada con Qt SVG a los tamaños en que la usa el programa; "
                                   "debajo de cada una, su tamaño en píxeles."),
                    true);

    hoja.Encabezado(QStringLiteral("En uso"),
                    QStringLiteral("La barra de herramientas (iconos de 24 px; al empezar, Guardar e Imprimir desactivados) "
                                   "y los botones de las pantallas de cálculo (34 × 32 con dibujo de 24 px)."));
    hoja.Muestra(Barra(recursos, false), QStringLiteral("Barra de herramientas"));
    hoja.Muestra(Barra(recursos, true), QStringLiteral("Barra de herramientas al empezar"));
    hoja.Muestra(Botones(recursos), QStringLiteral("Botones de las pantallas"));

    struct Carpeta {
        const char* nombre;
        const char* nota;
    };
    const Carpeta carpetas[] = {
        {"iconos", "Barra de herramientas y botones de las pantallas a 24 px; la longitud de anclaje, también a 96."},
        {"imagenes", "Icono de la ventana, presentación (160), acerca de (96 y 48) y logotipos de los informes (2 × 1 cm)."},
        {"escritorio", "Iconos de los ficheros de proyecto (.vmf, .vmc) para el escritorio."},
    };
    int dibujos = 0;
    for (const Carpeta& carpeta : carpetas) {
        const QString nombreCarpeta = QString::fromLatin1(carpeta.nombre);
        const QDir dir(recursos + QLatin1Char('/') + nombreCarpeta);
        const QStringList ficheros = dir.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
        hoja.Encabezado(QStringLiteral("resources/") + nombreCarpeta, QString::fromUtf8(carpeta.nota));
        for (const QString& fichero : ficheros) {
            ficheroEnCurso = nombreCarpeta + QLatin1Char('/') + fichero;
            for (const QString& queja : FueraDeLaFamilia(dir.filePath(fichero)))
                quejas << ficheroEnCurso + QStringLiteral(": ") + queja;
            QSvgRenderer dibujo(dir.filePath(fichero));
            if (!dibujo.isValid()) {
                quejas << ficheroEnCurso + QStringLiteral(": no se puede leer");
                continue;
            }
            std::vector<std::pair<QImage, QString>> vistas;
            for (const Tamano& t : Tamanos(nombreCarpeta, QFileInfo(fichero).completeBaseName()))
                vistas.emplace_back(Dibuja(dibujo, t.tamano), t.rotulo);
            hoja.Dibujo(fichero, vistas);
            ++dibujos;
        }
        ficheroEnCurso.clear();
    }

    const QImage imagen = hoja.Termina();
    qInstallMessageHandler(anterior);
    if (!imagen.save(salida, "PNG")) {
        std::fprintf(stderr, "No se puede escribir %s\n", qPrintable(salida));
        return 1;
    }
    std::printf("%s: %d imágenes, %d × %d px\n", qPrintable(salida), dibujos, imagen.width(), imagen.height());
    for (const QString& queja : quejas) std::fprintf(stderr, "%s\n", qPrintable(queja));
    return quejas.isEmpty() ? 0 : 1;
}
