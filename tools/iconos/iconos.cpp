// Draws an SVG picture as PNG files of the sizes of an icon theme, for the installation:
//
//   texalon-iconos ENTRADA.svg PLANTILLA TAMAÑO...
//
// PLANTILLA is the path of the PNG file with %1 where the size goes, e.g.
// "iconos/hicolor/%1x%1/apps/texalon.png"; the folders are made as needed. Each file is a square
// of that many pixels with a transparent background and the picture centred in it, its aspect
// kept. It runs during the build, on no display.
#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QSvgRenderer>
#include <QTextStream>

#include <cstdio>

namespace {

int Falla(const QString& texto)
{
    QTextStream(stderr) << "texalon-iconos: " << texto << Qt::endl;
    return 1;
}

}  // namespace

int main(int argc, char* argv[])
{
    // No window is ever shown: the offscreen platform serves on any machine, display or not.
    qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
    QGuiApplication aplicacion(argc, argv);
    const QStringList argumentos = QGuiApplication::arguments();
    if (argumentos.size() < 4 || !argumentos.at(2).contains(QStringLiteral("%1"))) {
        return Falla(QStringLiteral("uso: texalon-iconos ENTRADA.svg PLANTILLA(con %1) TAMAÑO..."));
    }

    const QString entrada = argumentos.at(1);
    QSvgRenderer dibujo(entrada);
    if (!dibujo.isValid()) {
        return Falla(QStringLiteral("no se puede leer el dibujo SVG %1").arg(entrada));
    }
    dibujo.setAspectRatioMode(Qt::KeepAspectRatio);

    for (qsizetype i = 3; i < argumentos.size(); ++i) {
        bool valido = false;
        const int lado = argumentos.at(i).toInt(&valido);
        if (!valido || lado < 1 || lado > 4096) {
            return Falla(QStringLiteral("tamaño no válido: %1").arg(argumentos.at(i)));
        }
        QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
        imagen.fill(Qt::transparent);
        {
            QPainter pintor(&imagen);
            pintor.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
            dibujo.render(&pintor, QRectF(0, 0, lado, lado));
        }
        const QString salida = argumentos.at(2).arg(lado);
        if (!QDir().mkpath(QFileInfo(salida).absolutePath())) {
            return Falla(QStringLiteral("no se puede crear la carpeta de %1").arg(salida));
        }
        if (!imagen.save(salida, "PNG")) {
            return Falla(QStringLiteral("no se puede escribir %1").arg(salida));
        }
    }
    return 0;
}
