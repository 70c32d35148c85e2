// The safety coefficient dialog, FM_COEF: the partial coefficients of the concrete, the steel
// and the TEXALON® sheet. Its fields are checked when they lose the focus, as every field of
// the program, but the project state takes their values only at Aceptar.
#pragma once

#include <QDialog>

class QGridLayout;
class QLineEdit;
class QPushButton;

namespace texalon {

struct ReglaCampo;

class FmCoef : public QDialog {
    Q_OBJECT
public:
    explicit FmCoef(QWidget* padre);

    // Opens the dialog modally over `padre` and returns its result, QDialog::Accepted when
    // the user left by Aceptar. The caller greys its result buttons afterwards, whatever the
    // answer.
    static int Muestra(QWidget* padre);
    // The same, with the focus and the selection in the field of that control ("TX_GC"), as a
    // refusal leaves them: Calculate sends the user here for a coefficient that the dialog
    // would refuse.
    static int MuestraEnCampo(QWidget* padre, const QString& control);

    // One row of the dialog, described where the dialog is built.
    struct Coeficiente;

private:
    static constexpr int kNumCoeficientes = 3;

    QLineEdit* CreaFila(QGridLayout* rejilla, int fila);
    QPushButton* CreaBoton(const char* nombre, const QString& texto);
    void OrdenaTabulacion();

    void CargaEstado();
    void CompruebaCampo(QLineEdit* campo, const ReglaCampo& regla);
    void Aceptar();
    void Restablecer();

    QLineEdit* campos_[kNumCoeficientes] = {};
    QPushButton* cmAceptar_ = nullptr;
    QPushButton* cmCancelar_ = nullptr;
    QPushButton* cmRestaurar_ = nullptr;
};

}  // namespace texalon
