#include "screens/CampoResultado.h"

#include <QStyle>
#include <QStyleOptionFrame>

namespace texalon {

namespace {

// Below this size letters stop being legible; no result of the program needs it.
constexpr qreal kTamanoMinimo = 5.0;

}  // namespace

CampoResultado::CampoResultado(const QString& nombre, const QString& consejo, QWidget* padre) : QLineEdit(padre)
{
    setObjectName(nombre);
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignRight);
    setToolTip(consejo);
    setAccessibleName(consejo);
    connect(this, &QLineEdit::textChanged, this, &CampoResultado::Ajusta);
}

int CampoResultado::AnchoUtil() const
{
    // What the box leaves for the text: its frame, the style's margins and the line edit's own
    // two pixels on each side.
    QStyleOptionFrame opcion;
    initStyleOption(&opcion);
    const QRect texto = style()->subElementRect(QStyle::SE_LineEditContents, &opcion, this);
    const QMargins margenes = textMargins();
    return texto.width() - margenes.left() - margenes.right() - 4;
}

bool CampoResultado::TextoEntero() const { return fontMetrics().horizontalAdvance(text()) <= AnchoUtil(); }

void CampoResultado::Ajusta()
{
    // Start from the screen's own letters each time: a short text goes back to them.
    QFont letra = parentWidget() != nullptr ? parentWidget()->font() : font();
    const qreal normal = letra.pointSizeF();
    setFont(letra);
    for (qreal tamano = normal - 0.5; !TextoEntero() && tamano >= kTamanoMinimo; tamano -= 0.5) {
        letra.setPointSizeF(tamano);
        setFont(letra);
    }
    // The start of the number is the part that counts when nothing else helps.
    setCursorPosition(0);
}

void CampoResultado::resizeEvent(QResizeEvent* evento)
{
    QLineEdit::resizeEvent(evento);
    Ajusta();
}

}  // namespace texalon
