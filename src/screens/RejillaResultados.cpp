#include "screens/RejillaResultados.h"

#include "state/ErrorEjecucion.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <algorithm>
#include <unordered_map>

namespace texalon {

namespace {

constexpr double kTwipsPorPixel = 15.0;

// Paints a cell with its own background also when it is the current one: a yellow cell has to
// read as yellow while its results are on show. The current cell gets a frame instead of the
// selection colour, and only while the grid is active.
//
// A cell's picture depends only on its text, letters, background and size, and the grid is
// painted far more often than a cell changes (every change of focus repaints it whole): each
// picture is drawn once by the style and kept.
class PintorCelda : public QStyledItemDelegate {
public:
    explicit PintorCelda(RejillaResultados* rejilla) : QStyledItemDelegate(rejilla), rejilla_(rejilla) {}

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        QStyleOptionViewItem celda(opcion);
        initStyleOption(&celda, indice);
        celda.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        // The classic grid keeps its black text when it is disabled: the old table stays legible.
        celda.state |= QStyle::State_Enabled;
        pintor->drawPixmap(opcion.rect.topLeft(), Imagen(celda, indice));
        if (rejilla_->EstaActiva() && indice == rejilla_->currentIndex()) DibujaMarco(pintor, opcion);
    }

private:
    // The cell as the style paints it, from the store.
    const QPixmap& Imagen(const QStyleOptionViewItem& celda, const QModelIndex& indice) const
    {
        // Everything the style's painting of a cell reads.
        const QString clave = QStringLiteral("%1|%2|%3|%4x%5|%6|%7|%8|%9")
                                  .arg(celda.text, celda.font.key())
                                  .arg(celda.backgroundBrush.color().rgba())
                                  .arg(celda.rect.width())
                                  .arg(celda.rect.height())
                                  .arg(celda.palette.color(QPalette::Text).rgba())
                                  .arg(static_cast<int>(celda.displayAlignment))
                                  .arg(static_cast<int>(celda.state))
                                  .arg(static_cast<int>(celda.features));
        auto guardada = imagenes_.find(clave);
        if (guardada != imagenes_.end()) return guardada->second;
        const qreal escala = rejilla_->devicePixelRatioF();
        QPixmap imagen(celda.rect.size() * escala);
        imagen.setDevicePixelRatio(escala);
        imagen.fill(celda.backgroundBrush.color());
        QPainter pintor(&imagen);
        QStyleOptionViewItem enElOrigen(celda);
        enElOrigen.rect.moveTo(0, 0);
        QStyledItemDelegate::paint(&pintor, enElOrigen, indice);
        pintor.end();
        // A grid holds a few dozen cells; the store is emptied before it could grow past them.
        if (imagenes_.size() > kImagenesGuardadas) imagenes_.clear();
        return imagenes_.emplace(clave, imagen).first->second;
    }

    static void DibujaMarco(QPainter* pintor, const QStyleOptionViewItem& opcion)
    {
        pintor->save();
        QPen lapiz(opcion.palette.color(QPalette::Active, QPalette::Highlight), 2.0);
        lapiz.setJoinStyle(Qt::MiterJoin);
        pintor->setPen(lapiz);
        pintor->setBrush(Qt::NoBrush);
        // The 2-pixel pen centred one pixel inside the cell covers its two outer pixels and
        // leaves the grid line alone.
        pintor->drawRect(QRectF(opcion.rect).adjusted(1.0, 1.0, -1.0, -1.0));
        pintor->restore();
    }

    static constexpr std::size_t kImagenesGuardadas = 256;
    const RejillaResultados* rejilla_;
    mutable std::unordered_map<QString, QPixmap> imagenes_;
};

}  // namespace

int PixelesDeTwips(int twips) { return qRound(twips / kTwipsPorPixel); }

RejillaResultados::RejillaResultados(QWidget* padre) : QTableWidget(padre)
{
    horizontalHeader()->hide();
    verticalHeader()->hide();
    // Without these floors a row of 20 pixels would be raised to the style's own minimum.
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);

    setShowGrid(true);
    setGridStyle(Qt::SolidLine);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    // Tab leaves the grid for the next control, as it does everywhere else on the screens.
    setTabKeyNavigation(false);
    setAutoScroll(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setItemDelegate(new PintorCelda(this));
    // The grid paints every pixel of its own: its one-pixel frame and the cells within it. The
    // panel around it need not be painted again under it each time the grid changes.
    setAttribute(Qt::WA_OpaquePaintEvent);

    connect(this, &QTableWidget::currentCellChanged, this,
            [this](int fila, int columna, int, int) { AvisaCambio(fila, columna); });
}

void RejillaResultados::Dimensiona(int filas, int columnas, int altoFilaTwips, int anchoColumnaTwips,
                                   int anchoColumna0Twips)
{
    if (filas == rowCount() && columnas == columnCount()) {
        // The grid keeps its rows and columns, and so its layout: a new Calculate fills the
        // same table without the grid and the panel around it being laid out and painted anew.
        // Only the current cell goes.
        clearSelection();
        selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    } else {
        // Emptying first drops every old cell and the current one with them.
        setRowCount(0);
        setColumnCount(0);
        setRowCount(filas);
        setColumnCount(columnas);
    }
    for (int fila = 0; fila < filas; ++fila) {
        setRowHeight(fila, PixelesDeTwips(altoFilaTwips));
        for (int columna = 0; columna < columnas; ++columna)
            setItem(fila, columna, CeldaNueva(fila, columna));
    }
    for (int columna = 0; columna < columnas; ++columna)
        setColumnWidth(columna, PixelesDeTwips(columna == 0 ? anchoColumna0Twips : anchoColumnaTwips));
    updateGeometry();
}

QTableWidgetItem* RejillaResultados::CeldaNueva(int fila, int columna) const
{
    auto* celda = new QTableWidgetItem;
    celda->setTextAlignment(Qt::AlignCenter);
    celda->setForeground(QColor(0, 0, 0));
    if (EsFija(fila, columna)) {
        celda->setFlags(Qt::ItemIsEnabled);
        celda->setBackground(kGrisFijo);
    } else {
        celda->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        celda->setBackground(kBlanco);
    }
    return celda;
}

QTableWidgetItem* RejillaResultados::Celda(int fila, int columna) const
{
    QTableWidgetItem* celda = item(fila, columna);
    if (celda == nullptr) throw ErrorEjecucion(ErrorEjecucion::kSubindiceFueraDeIntervalo);
    return celda;
}

void RejillaResultados::EscribeCelda(int fila, int columna, const QString& texto)
{
    Celda(fila, columna)->setText(texto);
}

void RejillaResultados::ColoreaCelda(int fila, int columna, const QColor& color)
{
    Celda(fila, columna)->setBackground(color);
}

QString RejillaResultados::Texto(int fila, int columna) const { return Celda(fila, columna)->text(); }

QColor RejillaResultados::Color(int fila, int columna) const { return Celda(fila, columna)->background().color(); }

void RejillaResultados::AjustaLetra()
{
    // The room a cell leaves for its text: the grid line and the margins on either side.
    constexpr int kMargenCelda = 8;
    constexpr qreal kTamanoMinimo = 6.0;
    for (int fila = 0; fila < rowCount(); ++fila)
        for (int columna = 0; columna < columnCount(); ++columna) {
            QTableWidgetItem* celda = Celda(fila, columna);
            const int ancho = columnWidth(columna) - kMargenCelda;
            QFont letra = font();
            while (QFontMetrics(letra).horizontalAdvance(celda->text()) > ancho && letra.pointSizeF() > kTamanoMinimo)
                letra.setPointSizeF(letra.pointSizeF() - 0.5);
            celda->setFont(letra);
        }
}

void RejillaResultados::CeldaActual(int fila, int columna)
{
    Celda(fila, columna);  // a cell outside the grid fails here, before anything moves
    setCurrentCell(fila, columna);
}

void RejillaResultados::Activa(bool activa)
{
    activa_ = activa;
    // A disabled grid takes no focus; its place in the screen's Tab order stays.
    setEnabled(activa);
    if (!activa) {
        clearSelection();
        selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    }
    viewport()->update();
}

void RejillaResultados::AvisaCambio(int fila, int columna)
{
    // Losing the current cell is no cell to show: only a real cell is announced.
    if (fila >= 0 && columna >= 0) emit SeleccionCambiada(fila, columna);
}

QSize RejillaResultados::sizeHint() const
{
    const int marco = 2 * frameWidth();
    int ancho = marco;
    int alto = marco;
    for (int columna = 0; columna < columnCount(); ++columna)
        ancho += columnWidth(columna);
    for (int fila = 0; fila < rowCount(); ++fila)
        alto += rowHeight(fila);
    return {ancho, alto};
}

QModelIndex RejillaResultados::moveCursor(CursorAction accion, Qt::KeyboardModifiers modificadores)
{
    const QModelIndex destino = QTableWidget::moveCursor(accion, modificadores);
    if (!destino.isValid() || rowCount() < 2 || columnCount() < 2) return destino;
    // The keys move among the results only: the fixed row and column are headings.
    return model()->index(std::max(destino.row(), 1), std::max(destino.column(), 1));
}

void RejillaResultados::mousePressEvent(QMouseEvent* evento)
{
    const QModelIndex celda = indexAt(evento->position().toPoint());
    pulsada_ = evento->button() == Qt::LeftButton ? QPersistentModelIndex(celda) : QPersistentModelIndex();
    // A press on a heading leaves the current cell where it is.
    if (celda.isValid() && EsFija(celda.row(), celda.column())) return;
    QTableWidget::mousePressEvent(evento);
}

void RejillaResultados::mouseReleaseEvent(QMouseEvent* evento)
{
    QTableWidget::mouseReleaseEvent(evento);
    const QModelIndex celda = indexAt(evento->position().toPoint());
    const bool clic = evento->button() == Qt::LeftButton && celda.isValid() && pulsada_ == celda;
    pulsada_ = QPersistentModelIndex();
    if (clic) emit Clic(celda.row(), celda.column());
}

void RejillaResultados::mouseDoubleClickEvent(QMouseEvent* evento)
{
    QTableWidget::mouseDoubleClickEvent(evento);
    // The second press of a double click is no click of its own, on a heading or anywhere else.
    pulsada_ = QPersistentModelIndex();
}

}  // namespace texalon
