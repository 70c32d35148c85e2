// The about box, FM_ACERCADE.
#pragma once

#include <QDialog>

namespace texalon {

class FmAcercaDe : public QDialog {
    Q_OBJECT
public:
    explicit FmAcercaDe(QWidget* padre);
};

}  // namespace texalon
