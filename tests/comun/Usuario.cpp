#include "Usuario.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace texalon::prueba {

namespace {

// Where the keys go: the edit box of an editable list, or the control itself.
QWidget* Teclado(QWidget* control)
{
    if (auto* lista = qobject_cast<QComboBox*>(control); lista != nullptr && lista->lineEdit() != nullptr)
        return lista->lineEdit();
    return control;
}

}  // namespace

bool Enfoca(QWidget* control)
{
    control->setFocus(Qt::MouseFocusReason);
    return QTest::qWaitFor([control] { return control->hasFocus(); }, 1000);
}

void Teclea(QWidget* control, const QString& texto)
{
    QWidget* teclado = Teclado(control);
    QTest::keyClick(teclado, Qt::Key_End);
    QTest::keyClick(teclado, Qt::Key_Home, Qt::ShiftModifier);
    QTest::keyClick(teclado, Qt::Key_Delete);
    QTest::keyClicks(teclado, texto);
}

void EscribeYTabula(QWidget* control, const QString& texto)
{
    if (!Enfoca(control)) qWarning("el control %s no ha tomado el foco", qPrintable(control->objectName()));
    Teclea(control, texto);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
}

void Pulsa(QWidget* control) { QTest::mouseClick(control, Qt::LeftButton); }

bool EligeDelMenu(QMenuBar* barra, QMenu* menu, QAction* entrada)
{
    if (barra == nullptr || menu == nullptr || entrada == nullptr) return false;
    QTest::mouseClick(barra, Qt::LeftButton, {}, barra->actionGeometry(menu->menuAction()).center());
    if (!QTest::qWaitFor([menu] { return menu->isVisible(); })) return false;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entrada).center());
    return QTest::qWaitFor([menu] { return !menu->isVisible(); });
}

QStringList RecorridoTab(int pasos)
{
    QStringList recorrido;
    for (int paso = 0; paso < pasos; ++paso) {
        QWidget* actual = QApplication::focusWidget();
        if (actual == nullptr) break;
        QTest::keyClick(actual, Qt::Key_Tab);
        QWidget* siguiente = QApplication::focusWidget();
        // The edit box of a list stands for its list.
        while (siguiente != nullptr && siguiente->objectName().isEmpty() && siguiente->parentWidget() != nullptr &&
               qobject_cast<QComboBox*>(siguiente->parentWidget()) != nullptr)
            siguiente = siguiente->parentWidget();
        recorrido << (siguiente == nullptr ? QString() : siguiente->objectName());
    }
    return recorrido;
}

bool AbreConTeclado(QComboBox* lista)
{
    QTest::keyClick(lista, Qt::Key_Down, Qt::AltModifier);
    return QTest::qWaitFor([lista] { return lista->view()->isVisible(); }, 1000);
}

}  // namespace texalon::prueba
