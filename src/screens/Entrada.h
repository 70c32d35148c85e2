// How the fields of the screens are checked: when a control loses the focus, and at no other
// moment. Typing runs no code, picking a row of a list runs no code, and there is no handler
// for the Enter key. A refusal keeps the focus in the field with its text selected.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace texalon {

// Runs `comprobacion` each time `control` (a text box or an editable list) loses the focus to
// another control. The focus that a message box or a list's popup takes does not count, nor
// does the move of a refusal that gives the focus back: neither starts a second check.
void AlPerderFoco(QWidget* control, std::function<void()> comprobacion);

// The failure steps of a field: its whole text selected and the focus given back to it.
void DevuelveFoco(QWidget* control);

// The soft tests send the user to the partner field: its text selected, the focus there.
void LlevaFocoA(QWidget* control);

// A command button acts only if the focus reached it: a field that refused to let the focus
// go, when the click on the button took it away, keeps the button from acting.
bool BotonConFoco(const QWidget* boton);

// The text of a text box or of an editable list, and writing it.
QString TextoDe(const QWidget* control);
void EscribeTexto(QWidget* control, const QString& texto);

}  // namespace texalon
