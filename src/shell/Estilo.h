// The style of the program's windows: Fusion, with the frames and captions that it draws the
// same way on every painting kept as pictures.
//
// A screen is painted whole far more often than any frame or caption on it changes. Fusion
// draws the frame of a group box by stretching the middle of a picture over the whole panel,
// which the raster engine hands to other threads and waits for, the frame of a text box as an
// antialiased rounded outline, and a caption by shaping its text anew; each costs more than
// showing a kept picture of it. A kept picture is made by Fusion itself, at the size of what it
// stands for and for everything its drawing reads (state, palette, font, colour), and is drawn
// unscaled where Fusion would have drawn.
#pragma once

#include <QProxyStyle>

namespace texalon {

class EstiloTexalon : public QProxyStyle {
    Q_OBJECT
public:
    EstiloTexalon();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                       const QWidget* widget = nullptr) const override;
    void drawItemText(QPainter* pintor, const QRect& area, int alineacion, const QPalette& paleta, bool activo,
                      const QString& texto, QPalette::ColorRole papel = QPalette::NoRole) const override;
};

}  // namespace texalon
