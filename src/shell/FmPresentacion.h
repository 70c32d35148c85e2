// The splash, FM_PRESENTACION: shown over the main window at start, for 15 seconds at most.
#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QTimer;

namespace texalon {

class FmPresentacion : public QWidget {
    Q_OBJECT
public:
    static constexpr int kIntervaloMs = 15000;

    // Load: F_PRESENTACION True and the timer TM started. The window deletes itself on close.
    explicit FmPresentacion(QWidget* principal);
    ~FmPresentacion() override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void TM_Timer();

    QFrame* Frame1_;
    QLabel* Image1_;
    QLabel* LB_NOMBRE_;
    QLabel* LB_VERSION_;
    QLabel* LB_COMENTARIOS_;
    QLabel* LB_AUTOR_;
    QTimer* TM_;
};

}  // namespace texalon
