#include "platform/Dialogos.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFontMetrics>
#include <QLayout>
#include <QTimer>

namespace texalon::plataforma {

namespace {

// The frame's own share of the caption bar: the window icon, the close button and the margins
// around them, and room for a title font somewhat larger and bolder than the program's.
constexpr int kMarcoTitulo = 96;
constexpr double kLetraTitulo = 1.2;

// A dialog of the program cannot be minimised: some window managers offer the button on any
// dialog all the same, and a minimised modal dialog would leave the program looking frozen.
// The dialog comes straight back.
class SinMinimizar : public QObject {
public:
    explicit SinMinimizar(QDialog& dialogo) : QObject(&dialogo), dialogo_(dialogo) { dialogo.installEventFilter(this); }

    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (objeto == &dialogo_ && evento->type() == QEvent::WindowStateChange && dialogo_.isMinimized())
            QTimer::singleShot(0, &dialogo_, [this] {
                dialogo_.setWindowState(dialogo_.windowState() & ~Qt::WindowMinimized);
                dialogo_.activateWindow();
            });
        return QObject::eventFilter(objeto, evento);
    }

private:
    QDialog& dialogo_;
};

}  // namespace

int AnchoParaTitulo(const QDialog& dialogo)
{
    QFont letra = QApplication::font();
    letra.setBold(true);
    const int texto = QFontMetrics(letra).horizontalAdvance(dialogo.windowTitle());
    return static_cast<int>(texto * kLetraTitulo) + kMarcoTitulo;
}

void PreparaDialogo(QDialog& dialogo)
{
    dialogo.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                           Qt::MSWindowsFixedSizeDialogHint);
    dialogo.setSizeGripEnabled(false);
    new SinMinimizar(dialogo);
    // The size its contents ask for, widened to the caption's; a layout that would fix the size
    // itself would narrow it again.
    if (QLayout* disposicion = dialogo.layout()) {
        disposicion->setSizeConstraint(QLayout::SetDefaultConstraint);
        disposicion->activate();
    }
    dialogo.setFixedSize(
        dialogo.sizeHint().expandedTo(dialogo.minimumSize()).expandedTo(QSize(AnchoParaTitulo(dialogo), 0)));
}

}  // namespace texalon::plataforma
