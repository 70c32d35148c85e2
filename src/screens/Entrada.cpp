#include "screens/Entrada.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>

namespace texalon {

namespace {

// Set while a check runs or a refusal moves the focus back: a focus change then is the
// program's own and starts no check.
bool movimientoPropio = false;

// The list's popup is up, or coming up: the focus it takes stays within the list in the
// user's eyes. The first opening moves the focus twice, once to the popup window and once to
// its rows.
bool ListaAbierta(const QWidget* control)
{
    const auto* lista = qobject_cast<const QComboBox*>(control);
    return lista != nullptr && lista->view() != nullptr && lista->view()->window()->isVisible();
}

class VigilanteFoco : public QObject {
public:
    VigilanteFoco(QWidget* control, std::function<void()> comprobacion)
        : QObject(control), control_(control), comprobacion_(std::move(comprobacion))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut && !movimientoPropio && !ListaAbierta(control_)) {
            const Qt::FocusReason razon = static_cast<QFocusEvent*>(evento)->reason();
            // The window losing its activation (a message box coming up) or a popup opening do
            // not take the focus from the field in the user's eyes.
            if (razon != Qt::ActiveWindowFocusReason && razon != Qt::PopupFocusReason) {
                // The control finishes its own loss of the focus first (a text box drops its
                // selection there), so that a refusal's selection is the one that stays.
                objeto->event(evento);
                movimientoPropio = true;
                comprobacion_();
                movimientoPropio = false;
                return true;
            }
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    QWidget* control_;
    std::function<void()> comprobacion_;
};

// Drops a press of the mouse on a control that the focus did not reach.
class GuardaClic : public QObject {
public:
    explicit GuardaClic(QWidget* control) : QObject(control), control_(control) { control->installEventFilter(this); }

    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        const bool pulsacion =
            evento->type() == QEvent::MouseButtonPress || evento->type() == QEvent::MouseButtonDblClick;
        // Only a control that a click gives the focus to is judged by it.
        if (objeto == control_ && pulsacion && (control_->focusPolicy() & Qt::ClickFocus) && !control_->hasFocus())
            return true;
        return QObject::eventFilter(objeto, evento);
    }

private:
    QWidget* control_;
};

QLineEdit* EditorDe(QWidget* control)
{
    if (auto* lista = qobject_cast<QComboBox*>(control)) return lista->lineEdit();
    return qobject_cast<QLineEdit*>(control);
}

}  // namespace

ListaDesplegable::ListaDesplegable(bool editable, QWidget* padre) : QComboBox(padre)
{
    setEditable(editable);
    if (editable) {
        setInsertPolicy(QComboBox::NoInsert);
        setCompleter(nullptr);
    }
    // The wheel gives no focus: a list is chosen with a click or with Tab.
    setFocusPolicy(Qt::StrongFocus);
}

void ListaDesplegable::wheelEvent(QWheelEvent* evento)
{
    if (!hasFocus()) {
        // The screen under the pointer gets the wheel instead, as a scroll.
        evento->ignore();
        return;
    }
    QComboBox::wheelEvent(evento);
}

void AlPerderFoco(QWidget* control, std::function<void()> comprobacion)
{
    new VigilanteFoco(control, std::move(comprobacion));
}

void DevuelveFoco(QWidget* control)
{
    if (QLineEdit* editor = EditorDe(control)) editor->selectAll();
    control->setFocus(Qt::OtherFocusReason);
}

void LlevaFocoA(QWidget* control) { DevuelveFoco(control); }

void ProtegeClic(QWidget* control) { new GuardaClic(control); }

bool BotonConFoco(const QWidget* boton) { return QApplication::focusWidget() == boton; }

QString TextoDe(const QWidget* control)
{
    if (const auto* lista = qobject_cast<const QComboBox*>(control)) return lista->currentText();
    if (const auto* editor = qobject_cast<const QLineEdit*>(control)) return editor->text();
    return {};
}

void EscribeTexto(QWidget* control, const QString& texto)
{
    if (auto* lista = qobject_cast<QComboBox*>(control))
        lista->setEditText(texto);
    else if (auto* editor = qobject_cast<QLineEdit*>(control))
        editor->setText(texto);
}

}  // namespace texalon
