#include "screens/Entrada.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

namespace texalon {

namespace {

// Set while a check runs or a refusal moves the focus back: a focus change then is the
// program's own and starts no check.
bool movimientoPropio = false;

class VigilanteFoco : public QObject {
public:
    VigilanteFoco(QWidget* control, std::function<void()> comprobacion)
        : QObject(control), comprobacion_(std::move(comprobacion))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut && !movimientoPropio) {
            const Qt::FocusReason razon = static_cast<QFocusEvent*>(evento)->reason();
            // The window losing its activation (a message box coming up) or a list's popup
            // opening do not take the focus from the field in the user's eyes.
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
    std::function<void()> comprobacion_;
};

QLineEdit* EditorDe(QWidget* control)
{
    if (auto* lista = qobject_cast<QComboBox*>(control)) return lista->lineEdit();
    return qobject_cast<QLineEdit*>(control);
}

}  // namespace

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
