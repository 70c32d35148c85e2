// FM_CONFIG_IMPR, "Selección de impresora": the printer on which the reports of this run come
// out. The choice changes the program's current printer only, for the rest of the run.
#pragma once

#include <QDialog>

class QComboBox;
class QPushButton;

namespace texalon {

class FmConfigImpr : public QDialog {
    Q_OBJECT
public:
    // The load: the printers of the platform in their order, the current one selected (the
    // first when it is not among them); with no printer, the list and Seleccionar disabled.
    explicit FmConfigImpr(QWidget* padre = nullptr);

    // Shows the dialog modally, through the platform.
    static int Muestra(QWidget* padre);

private:
    // CM_SELECCIONAR: the printer at the list's index becomes the current one; the dialog
    // stays open and says nothing.
    void Seleccionar();

    QComboBox* impresoras_ = nullptr;  // CO_IMPRESORA
    QPushButton* seleccionar_ = nullptr;  // CM_SELECCIONAR
};

}  // namespace texalon
