// The result grid of the calculation screens and of the anchorage window (FG_FLEXION,
// FG_CONFINA, FG_ANCLAJE), with the look of the classic flex grid.
//
// Row 0 and column 0 are fixed: grey heading cells that can't be selected. They are ordinary
// cells of the table, and the real headers stay hidden, so that a cell's (row, column) is
// (number of layers, sheet type) with no offset anywhere. Sizes come in twips, as the tables
// are laid out, at 15 twips a pixel.
#pragma once

#include <QColor>
#include <QPersistentModelIndex>
#include <QTableWidget>

namespace texalon {

// Pixels of a length in twips, at 15 twips a pixel, rounded to the nearest pixel:
// 300 → 20, 1000 → 67, 1595 → 106, 1600 → 107.
int PixelesDeTwips(int twips);

class RejillaResultados : public QTableWidget {
    Q_OBJECT
public:
    // Backgrounds: yellow for a cell that meets the requirement, white otherwise, and the
    // button-face grey of the fixed row and column.
    static inline const QColor kAmarillo{255, 255, 0};
    static inline const QColor kBlanco{255, 255, 255};
    static inline const QColor kGrisFijo{212, 208, 200};

    explicit RejillaResultados(QWidget* padre = nullptr);

    // Lays the grid out anew: every cell empty and centred, the fixed ones grey, the others
    // white, and no current cell.
    void Dimensiona(int filas, int columnas, int altoFilaTwips, int anchoColumnaTwips, int anchoColumna0Twips);

    // One cell. A cell outside the grid is the run-time error 9.
    void EscribeCelda(int fila, int columna, const QString& texto);
    void ColoreaCelda(int fila, int columna, const QColor& color);
    QString Texto(int fila, int columna) const;
    QColor Color(int fila, int columna) const;

    // Narrows the letters of each cell whose text would not fit its column, in half points:
    // the columns keep the widths of the design whatever the letters of the machine.
    void AjustaLetra();

    // The current cell: the one whose results are on show. -1 while there is none.
    void CeldaActual(int fila, int columna);
    int Fila() const { return currentRow(); }
    int Columna() const { return currentColumn(); }

    // An inactive grid is disabled, shows no current cell and can't take the focus; an active
    // one is enabled and takes the focus.
    void Activa(bool activa);
    bool EstaActiva() const { return activa_; }

    // The table exactly, frame included, so that no scroll bar shows.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    // A click of the mouse on a cell, the fixed ones included.
    void Clic(int fila, int columna);
    // The current cell has changed, by the user or by the program.
    void SeleccionCambiada(int fila, int columna);

protected:
    QModelIndex moveCursor(CursorAction accion, Qt::KeyboardModifiers modificadores) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

private:
    QTableWidgetItem* Celda(int fila, int columna) const;
    QTableWidgetItem* CeldaNueva(int fila, int columna) const;
    bool EsFija(int fila, int columna) const { return fila == 0 || columna == 0; }
    void AvisaCambio(int fila, int columna);

    bool activa_ = true;
    QPersistentModelIndex pulsada_;  // the cell under the last press of the mouse
};

}  // namespace texalon
