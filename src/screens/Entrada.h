// How the fields of the screens are checked: when a control loses the focus, and at no other
// moment. Typing runs no code, opening a list or picking one of its rows runs no code, and
// there is no handler for the Enter key. A refusal keeps the focus in the field with its text
// selected.
#pragma once

#include <QComboBox>
#include <QString>
#include <functional>

class QWidget;

namespace texalon {

// A drop-down list of the screens. An editable one takes the text exactly as typed: it
// completes nothing, so that "4" stays 4 and "0,1" stays 0,1 for the field's check to judge.
// The mouse wheel changes the row only of the list that has the focus: scrolling over a screen
// must never change a project.
class ListaDesplegable : public QComboBox {
    Q_OBJECT
public:
    ListaDesplegable(bool editable, QWidget* padre);

protected:
    void wheelEvent(QWheelEvent* evento) override;
};

// Runs `comprobacion` each time `control` (a text box or a list) loses the focus to another
// control. The focus that a message box or a list's own popup takes does not count, nor does
// the move of a refusal that gives the focus back: none of them starts a check.
void AlPerderFoco(QWidget* control, std::function<void()> comprobacion);

// The failure steps of a field: its whole text selected and the focus given back to it.
void DevuelveFoco(QWidget* control);

// The soft tests send the user to the partner field: its text selected, the focus there.
void LlevaFocoA(QWidget* control);

// A button or a list of a screen acts on a click only if the focus reached it. A press of the
// mouse moves the focus first, and a field that refuses takes it back, with its message in
// between; the press that then arrives is dropped, so that a button neither acts nor stays
// drawn pressed after the message, and a list does not open.
void ProtegeClic(QWidget* control);
bool BotonConFoco(const QWidget* boton);

// The text of a text box or of a list, and writing it.
QString TextoDe(const QWidget* control);
void EscribeTexto(QWidget* control, const QString& texto);

}  // namespace texalon
