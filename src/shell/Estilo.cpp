#include "shell/Estilo.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QStyleFactory>
#include <QStyleOption>

namespace texalon {

namespace {

// The frames that Fusion draws from their option and their widget alone, and only those: a text
// box within a list or a spin box has its frame drawn by them, and is left to Fusion.
bool SeGuarda(QStyle::PrimitiveElement elemento, const QWidget* widget)
{
    switch (elemento) {
    case QStyle::PE_FrameGroupBox: return true;
    case QStyle::PE_PanelLineEdit: {
        const QWidget* padre = widget != nullptr ? widget->parentWidget() : nullptr;
        return qobject_cast<const QComboBox*>(padre) == nullptr && qobject_cast<const QAbstractSpinBox*>(padre) == nullptr;
    }
    default: return false;
    }
}

// A picture drawn unscaled and opaque in place stands for the drawing only on a painter that
// neither transforms nor fades what it draws.
bool PintorLlano(const QPainter& pintor)
{
    return pintor.worldTransform().type() <= QTransform::TxTranslate && pintor.opacity() == 1.0 &&
           pintor.compositionMode() == QPainter::CompositionMode_SourceOver;
}

// Everything the frame's drawing reads: its kind, size, state, palette, the height of the font
// (the room of a group box's title), the direction, the resolution, the frame's widths, and of a
// group box whether it has a title and a check box.
QString Clave(QStyle::PrimitiveElement elemento, const QStyleOptionFrame& opcion, const QWidget* widget, qreal escala)
{
    const auto* grupo = qobject_cast<const QGroupBox*>(widget);
    return QStringLiteral("texalon-marco/%1/%2x%3/%4/%5/%6/%7/%8/%9/")
               .arg(elemento)
               .arg(opcion.rect.width())
               .arg(opcion.rect.height())
               .arg(static_cast<int>(opcion.state))
               .arg(opcion.palette.cacheKey())
               .arg(opcion.fontMetrics.height())
               .arg(opcion.direction)
               .arg(escala)
               .arg(opcion.lineWidth) +
           QStringLiteral("%1/%2/%3/%4")
               .arg(opcion.midLineWidth)
               .arg(static_cast<int>(opcion.features))
               .arg(grupo != nullptr && grupo->title().isEmpty())
               .arg(grupo != nullptr && grupo->isCheckable());
}

// The kept picture under `clave`, made by `dibuja` on a transparent picture of `tamano` in the
// painter's own state (hints, pen, brush and its origin, font), as if `esquina` were the origin.
template <typename Dibuja>
QPixmap Guardada(const QString& clave, QPainter& pintor, QRect area, Dibuja dibuja)
{
    QPixmap imagen;
    if (QPixmapCache::find(clave, &imagen)) return imagen;
    const qreal escala = pintor.device() != nullptr ? pintor.device()->devicePixelRatio() : 1.0;
    imagen = QPixmap(area.size() * escala);
    imagen.setDevicePixelRatio(escala);
    imagen.fill(Qt::transparent);
    QPainter propio(&imagen);
    propio.setRenderHints(pintor.renderHints());
    propio.setPen(pintor.pen());
    propio.setBrush(pintor.brush());
    propio.setBrushOrigin(pintor.brushOrigin() - area.topLeft());
    propio.setFont(pintor.font());
    area.moveTo(0, 0);
    dibuja(propio, area);
    propio.end();
    QPixmapCache::insert(clave, imagen);
    return imagen;
}

// Drawn unscaled, a picture needs no filtering: without it the raster engine blends it in one
// pass on this thread.
void DibujaGuardada(QPainter& pintor, QPoint esquina, const QPixmap& imagen)
{
    const bool suave = pintor.testRenderHint(QPainter::SmoothPixmapTransform);
    pintor.setRenderHint(QPainter::SmoothPixmapTransform, false);
    pintor.drawPixmap(esquina, imagen);
    pintor.setRenderHint(QPainter::SmoothPixmapTransform, suave);
}

}  // namespace

EstiloTexalon::EstiloTexalon() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void EstiloTexalon::drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                                  const QWidget* widget) const
{
    const auto* marco = qstyleoption_cast<const QStyleOptionFrame*>(opcion);
    if (marco == nullptr || !SeGuarda(elemento, widget) || !PintorLlano(*pintor) || marco->rect.isEmpty()) {
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, widget);
        return;
    }
    const qreal escala = pintor->device() != nullptr ? pintor->device()->devicePixelRatio() : 1.0;
    const QPixmap imagen = Guardada(Clave(elemento, *marco, widget, escala), *pintor, marco->rect,
                                    [&](QPainter& propio, const QRect& area) {
                                        QStyleOptionFrame enElOrigen(*marco);
                                        enElOrigen.rect = area;
                                        QProxyStyle::drawPrimitive(elemento, &enElOrigen, &propio, widget);
                                    });
    DibujaGuardada(*pintor, marco->rect.topLeft(), imagen);
}

void EstiloTexalon::drawItemText(QPainter* pintor, const QRect& area, int alineacion, const QPalette& paleta,
                                 bool activo, const QString& texto, QPalette::ColorRole papel) const
{
    // A caption that may run out of its area is drawn as it comes.
    if (texto.isEmpty() || area.isEmpty() || (alineacion & Qt::TextDontClip) != 0 || !PintorLlano(*pintor)) {
        QProxyStyle::drawItemText(pintor, area, alineacion, paleta, activo, texto, papel);
        return;
    }
    const qreal escala = pintor->device() != nullptr ? pintor->device()->devicePixelRatio() : 1.0;
    const QColor color = papel == QPalette::NoRole ? pintor->pen().color() : paleta.color(papel);
    const QString clave = QStringLiteral("texalon-texto/%1x%2/%3/%4/%5/%6/%7/%8/%9/")
                              .arg(area.width())
                              .arg(area.height())
                              .arg(alineacion)
                              .arg(paleta.cacheKey())
                              .arg(activo)
                              .arg(papel)
                              .arg(color.rgba())
                              .arg(escala)
                              .arg(pintor->font().key()) +
                          texto;
    const QPixmap imagen = Guardada(clave, *pintor, area, [&](QPainter& propio, const QRect& origen) {
        QProxyStyle::drawItemText(&propio, origen, alineacion, paleta, activo, texto, papel);
    });
    DibujaGuardada(*pintor, area.topLeft(), imagen);
}

}  // namespace texalon
