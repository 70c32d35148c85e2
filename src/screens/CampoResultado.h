// A result field of the screens: a read-only box that the program writes and the user reads.
#pragma once

#include <QLineEdit>

namespace texalon {

// Shows its number whole: a text wider than the box, such as a moment of 173524,7 mkN under a
// huge steel area, is written in smaller letters rather than cut. It takes no focus, so that
// Tab passes it by.
class CampoResultado : public QLineEdit {
    Q_OBJECT
public:
    CampoResultado(const QString& nombre, const QString& consejo, QWidget* padre);

    // True when the whole text is in sight.
    bool TextoEntero() const;

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    int AnchoUtil() const;
    void Ajusta();
};

}  // namespace texalon
