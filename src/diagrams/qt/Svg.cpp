#include "diagrams/qt/Svg.h"

#include "diagrams/Lista.h"
#include "diagrams/qt/ElementosLienzo.h"
#include "diagrams/qt/EscenaDibujo.h"

#include <QFile>
#include <QPainter>
#include <QSvgGenerator>

namespace texalon {

bool EscribeSvg(const GeneralDibujo& d, TamanoDibujo tamano, Entero isotropico, const QString& fichero)
{
    QFile salida(fichero);
    if (!salida.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;

    // A scene of the file's own, counting its elements itself.
    EscenaDibujo escena(tamano);
    ContadoresDibujo propios;
    escena.Muestra(d, Encuadra(d, tamano.ancho, tamano.alto, isotropico), propios);

    const QRectF area(0.0, 0.0, tamano.ancho, tamano.alto);
    QSvgGenerator svg;
    svg.setOutputDevice(&salida);
    svg.setSize(QSize(tamano.ancho, tamano.alto));
    svg.setViewBox(area);
    svg.setResolution(static_cast<int>(DpiPantalla()));
    svg.setTitle(QStringLiteral("TEXALON"));
    svg.setDescription(QStringLiteral("Diagrama de TEXALON, como se ve en la pantalla"));
    QPainter pintor;
    if (!pintor.begin(&svg)) return false;
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    escena.render(&pintor, area, area);  // the white background, then the elements
    pintor.end();
    salida.close();
    return salida.error() == QFileDevice::NoError;
}

}  // namespace texalon
