// FM_ANCLAJE: the net anchorage length of the sheet, for every type and number of layers, in a
// small modal window. The two flexure screens open it from their CM_ANCLAJE.
#pragma once

#include <QDialog>

namespace texalon {

class RejillaResultados;

class FmAnclaje : public QDialog {
    Q_OBJECT
public:
    // Load: the table is filled from LANC as the state holds it now.
    explicit FmAnclaje(QWidget* padre = nullptr);

    // Creates the window, shows it modally over `padre` and destroys it once CM_SALIR closes it.
    static void Muestra(QWidget* padre);

private:
    void TablaAnclaje();

    RejillaResultados* rejilla_;  // FG_ANCLAJE
};

// CM_ANCLAJE of FM_FLEXION and FM_FLEXIONT: the lengths for the project as it stands, then the
// window that shows them.
void OrdenAnclaje(QWidget* padre);

}  // namespace texalon
