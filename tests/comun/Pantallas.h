// What the widget tests of the screens share: the platform doubles, the decimal setting under
// which a test runs, and the controls of the screen in test by their names.
#pragma once

#include "platform/dobles/PlataformaDoble.h"
#include "state/General.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtNumeric>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

class QColor;
class QComboBox;
class QDialog;
class QLineEdit;
class QWidget;

namespace texalon {
class Formulario;
class Lienzo;
}  // namespace texalon

namespace texalon::prueba {

// The two decimal settings, as the data rows "coma" and "punto" of a column "separador".
void FilasSeparador();

// How the picture differs from the list of the drawing state fitted to the picture's pixels
// with `isotropico`: the lines and texts against the counters, the first line against its
// fitted place. Empty when the picture shows the list so.
QString DiferenciaConLaLista(const Lienzo& lienzo, const GeneralDibujo& d, Entero isotropico);

// A step of the user on a screen: a text typed into a field, then Tab; and what the step
// leaves: the message shown (none when empty), the state's value of the field (not looked at
// when NaN), the field's text, written with a comma, and the control with the focus (neither
// looked at when null).
struct Paso {
    Paso(const char* en, const char* tecleado, const char* aviso = "", double queda = qQNaN(),
         const char* muestra = nullptr, const char* enfocado = nullptr)
        : control(en), texto(tecleado), mensaje(aviso), valor(queda), escrito(muestra), foco(enfocado)
    {
    }

    const char* control;
    const char* texto;
    const char* mensaje;
    double valor;
    const char* escrito;
    const char* foco;
};
using Pasos = std::vector<Paso>;

// Values written into the state as a project file leaves them, "ANCHO=0.005;SECCION=3":
// values that no field has taken.
void EscribeValores(General& g, const QString& valores);

class PruebaDePantalla : public QObject {
protected:
    // The screen the test is working on.
    virtual Formulario* EnPrueba() const = 0;

    QWidget* C(const char* nombre) const;
    QLineEdit* Campo(const char* nombre) const;
    QComboBox* Lista(const char* nombre) const;

    // Fresh doubles answering with this decimal separator; the ones before go first, since a
    // double going puts back what was there before it.
    void NuevosDobles(char separador);

    // A number of the test data, written with a comma, as the machine in use writes it.
    QString Sep(const char* texto) const;

    // The texts of the messages shown so far.
    QStringList Mensajes() const;

    // Whether the control has the focus with its whole text selected, as a refusal leaves it.
    bool FocoYSeleccion(const char* nombre) const;

    // Shows the screen and waits for it to be the active window, as the user finds it.
    static void MuestraActiva(QWidget* pantalla);

    // The user's steps in turn, each checked as it ends; a refusal that keeps the focus in its
    // field leaves its whole text selected. The messages before the first step are cleared.
    void Recorre(const Pasos& pasos);

    // The state's value that a field holds: TX_ANCHO's is General::ANCHO.
    static double& ValorDelCampo(const char* control);

    // The texts of the controls, in their order.
    QStringList Textos(std::initializer_list<const char*> controles) const;
    // Numbers of the test data, written with a comma, as the machine in use writes them.
    QStringList Sep(std::initializer_list<const char*> textos) const;

    // The texts of a row of the results grid of that name.
    QStringList FilaDe(const char* rejilla, int fila) const;

    // The label LB_INFO on show with this text, in white on that colour.
    void CompruebaLetrero(const QString& texto, const QColor& fondo);

    // Values written into the state as a project file leaves them, "ANCHO=0.005;ASI=0.004":
    // values that no field has taken.
    static void EscribeValores(General& g, const QString& valores) { prueba::EscribeValores(g, valores); }

    // The user in FM_COEF as Calculate opens it on a refused coefficient: notes whether the
    // control had the focus with its whole text selected, types the new value over it, leaves
    // it with Tab and accepts.
    static std::function<void(QDialog&)> CorrigeCoeficiente(const char* control, const QString& nuevo, bool& enfocado);

    // Types the text into the field, the focus put there first, and stays in it.
    void TecleaSinSalir(const char* control, const QString& texto);

    // The machine's own decimal separator, which the doubles answer with unless told.
    static char SeparadorDeLaMaquina();

    // A click on Calcular.
    void Calcula();

    // The text typed into the field and left with Tab, then a click on Calcular.
    void CalculaCon(const char* control, const QString& texto);
    // A calculated screen calculated again once the field has taken the text.
    void CalculaDeNuevoCon(const char* control, const QString& texto);

    // Calculate on a coefficient that its field refuses: the message, and FM_COEF opened on
    // that field with its text selected, where the user types `nuevo` and accepts; nothing is
    // calculated. Back on the screen, Calculate calculates with the coefficient typed, and the
    // grid `rejilla` takes the results.
    void CorrigeElCoeficienteYCalcula(const char* control, const char* nuevo, const char* mensaje, double valor,
                                      const char* rejilla);

    // The user closes the screen, answers Sí to its prompt and chooses that name in the
    // temporary folder: the file's path.
    QString CierraYGuarda(const char* nombre);

    // The end of a test: the screen closed, its prompt answered No, the doubles gone.
    void CierraPantalla();

    // A file's bytes, as the program wrote them.
    static std::string Contenido(const QString& fichero);

    std::unique_ptr<plataforma::PlataformaDoble> doble_;
    char separador_ = ',';
};

}  // namespace texalon::prueba

Q_DECLARE_METATYPE(texalon::prueba::Pasos)
