// What a user does on the widgets, for the widget tests: typing with the keys, leaving with
// Tab, clicking with the mouse, opening a list with the keyboard. Nothing here sets a
// widget's text or index directly, so that what Qt does in between (completion, focus
// events) happens as it does for the user.
#pragma once

#include <QString>
#include <QStringList>

class QAbstractButton;
class QAction;
class QComboBox;
class QMenu;
class QMenuBar;
class QWidget;

namespace texalon::prueba {

// Puts the focus in the control, as a click in it would, and waits for it to arrive.
bool Enfoca(QWidget* control);

// Types the text over what the control holds: its whole text chosen with the keys and
// deleted, then the new text key by key. The focus must already be in the control.
void Teclea(QWidget* control, const QString& texto);

// Enfoca, Teclea, then Tab, which checks the field.
void EscribeYTabula(QWidget* control, const QString& texto);

// A click of the left button in the middle of a button or a control.
void Pulsa(QWidget* control);

// The user walks the screen with Tab from the control that has the focus: the objectName of
// each control the focus reaches, `pasos` steps in all.
QStringList RecorridoTab(int pasos);

// A click on the menu's title in the menu bar, then on its entry; true when the menu opened and
// closed again on the click.
bool EligeDelMenu(QMenuBar* barra, QMenu* menu, QAction* entrada);

// Opens the list with Alt+Down, as the keyboard does; true when its rows are on show.
bool AbreConTeclado(QComboBox* lista);

}  // namespace texalon::prueba
