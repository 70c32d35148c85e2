#include "screens/FmCoef.h"

#include "platform/Dialogos.h"
#include "platform/Plataforma.h"
#include "files/ReglasCoeficientes.h"
#include "screens/Entrada.h"
#include "state/Decimales.h"
#include "state/ErrorEjecucion.h"
#include "state/General.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace texalon {

// What tells one row of the dialog from the others beyond its field's rule: its labels.
struct FmCoef::Coeficiente {
    const char* simbolo;
    const char* etiqueta;
};

namespace {

// The three rows, top to bottom, in the order of ReglasCoeficientes().
const FmCoef::Coeficiente kCoeficientes[] = {
    {"γ<sub>c</sub>", "Coeficiente de seguridad del hormigón"},
    {"γ<sub>s</sub>", "Coeficiente de seguridad del acero"},
    {"γ<sub>R</sub>", "Coeficiente de seguridad del TEXALON®"},
};


const QString kNota = QStringLiteral(
    "<b>NOTA: </b>Se recomienda no modificar los valores de los coeficientes de seguridad "
    "establecidos por el programa.");

const FmCoef::Coeficiente& CoeficienteDe(int fila) { return kCoeficientes[static_cast<std::size_t>(fila)]; }

const ReglaCampo& ReglaDe(int fila) { return ReglasCoeficientes()[static_cast<std::size_t>(fila)]; }

// The value that a field's text stands for: the sign is dropped, as for every field.
double ValorDe(const QString& texto) { return std::fabs(Decimales(texto.trimmed().toStdString())); }

// The message of the first test the text fails, or nothing when it passes them all. Only the
// empty text is "not given": blanks alone fail the numeric test.
std::optional<QString> Rechazo(const QString& texto, const ReglaCampo& regla)
{
    if (texto.isEmpty()) return QString::fromStdString(regla.mensajeVacio);
    if (!EsNumerico(texto.toStdString())) return QString::fromStdString(regla.mensajeNoNumero);
    if (ValorDe(texto) < regla.minimo->valor) return QString::fromStdString(regla.minimo->mensaje);
    return std::nullopt;
}

[[noreturn]] void NoEsNumero() { throw ErrorEjecucion(ErrorEjecucion::kTiposNoCoinciden); }

// The regional reading of a number, as Aceptar takes the fields: the machine's decimal
// separator is the only one understood, and no thousands separator is, so the text must be a
// plain number written in the machine's own way, as a field's rewrite leaves it. Anything
// else is the run-time type error; the dialog does not trap it, so it ends the program.
double LecturaRegional(const QString& texto)
{
    const char separador = plataforma::ServicioRegional().SeparadorDecimal();
    std::string numero = texto.trimmed().toStdString();
    // from_chars takes no leading '+'; a second sign after it must still be refused.
    if (numero.size() > 1 && numero[0] == '+' && numero[1] != '-' && numero[1] != '+') numero.erase(0, 1);
    for (char& c : numero) {
        if (c == separador) {
            c = '.';
        } else if (c == '.') {
            NoEsNumero();  // the period is the thousands separator of a comma machine
        } else if (std::string_view("0123456789-+eE").find(c) == std::string_view::npos) {
            NoEsNumero();  // keeps out the words "inf" and "nan" that from_chars would take
        }
    }
    double valor = 0.0;
    const char* fin = numero.data() + numero.size();
    const auto [resto, error] = std::from_chars(numero.data(), fin, valor);
    if (error == std::errc::result_out_of_range) throw ErrorEjecucion(ErrorEjecucion::kDesbordamiento);
    if (error != std::errc() || resto != fin) NoEsNumero();
    return valor;
}

QLabel* Etiqueta(const QString& nombre, const QString& texto, Qt::TextFormat formato, QWidget* padre)
{
    auto* etiqueta = new QLabel(texto, padre);
    etiqueta->setObjectName(nombre);
    etiqueta->setTextFormat(formato);
    return etiqueta;
}

// Wide enough for a coefficient in its format, "0,00", with a digit to spare and room for the
// frame and the margins of the box.
int AnchoCampo(const QLineEdit* campo)
{
    const int texto = campo->fontMetrics().horizontalAdvance(QStringLiteral("0,000"));
    return texto + 2 * campo->fontMetrics().averageCharWidth();
}

}  // namespace

FmCoef::FmCoef(QWidget* padre) : QDialog(padre)
{
    setObjectName(QStringLiteral("FM_COEF"));
    setWindowTitle(QStringLiteral("Coeficientes de seguridad de los materiales"));
    setModal(true);

    static_assert(std::size(kCoeficientes) == kNumCoeficientes, "one row for each coefficient");
    auto* filas = new QGridLayout;
    filas->setHorizontalSpacing(10);
    for (int fila = 0; fila < kNumCoeficientes; ++fila) {
        campos_[fila] = CreaFila(filas, fila);
    }

    QLabel* nota = Etiqueta(QStringLiteral("LB_NOTA"), kNota, Qt::RichText, this);
    nota->setWordWrap(true);

    cmAceptar_ = CreaBoton("CM_ACEPTAR", QStringLiteral("Aceptar"));
    cmCancelar_ = CreaBoton("CM_CANCELAR", QStringLiteral("Cancelar"));
    cmRestaurar_ = CreaBoton("CM_RESTAURAR", QStringLiteral("Restablecer"));
    // Leaving must not test anything: a click on Cancelar takes no focus, so the field in hand
    // is not checked and opening and cancelling at once leaves the project as it was. Tab
    // still reaches the button, and leaving a field by Tab checks it as ever.
    cmCancelar_->setFocusPolicy(Qt::TabFocus);
    connect(cmAceptar_, &QPushButton::clicked, this, [this] { plataforma::AtrapaErrorFatal([this] { Aceptar(); }); });
    connect(cmCancelar_, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmRestaurar_, &QPushButton::clicked, this, &FmCoef::Restablecer);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cmAceptar_);
    botones->addWidget(cmCancelar_);
    botones->addWidget(cmRestaurar_);

    auto* marco = new QVBoxLayout(this);
    marco->setContentsMargins(14, 14, 14, 12);
    marco->setSpacing(12);
    marco->addLayout(filas);
    marco->addWidget(nota);
    marco->addLayout(botones);

    OrdenaTabulacion();
    CargaEstado();
    // The dialog can't be resized: its size is what its contents and its caption ask for.
    plataforma::PreparaDialogo(*this);
}

int FmCoef::Muestra(QWidget* padre)
{
    FmCoef dialogo(padre);
    return plataforma::ServicioVentanas().MuestraModal(dialogo);
}

int FmCoef::MuestraEnCampo(QWidget* padre, const QString& control)
{
    FmCoef dialogo(padre);
    // The focus set before the dialog shows is where its window puts it when it opens.
    if (auto* campo = dialogo.findChild<QLineEdit*>(control)) DevuelveFoco(campo);
    return plataforma::ServicioVentanas().MuestraModal(dialogo);
}

QLineEdit* FmCoef::CreaFila(QGridLayout* rejilla, int fila)
{
    const Coeficiente& coeficiente = CoeficienteDe(fila);
    const ReglaCampo& regla = ReglaDe(fila);
    const QString nombre = QString::fromStdString(regla.control);
    const QString etiqueta = QString::fromUtf8(coeficiente.etiqueta);
    const QString sufijo = nombre.mid(2);  // "_GC" of "TX_GC"

    auto* campo = new QLineEdit(this);
    campo->setObjectName(nombre);
    campo->setAccessibleName(etiqueta);
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(AnchoCampo(campo));
    AlPerderFoco(campo, [this, campo, &regla] { CompruebaCampo(campo, regla); });

    QLabel* simbolo =
        Etiqueta(QStringLiteral("LB_GAMMA") + sufijo, QString::fromUtf8(coeficiente.simbolo), Qt::RichText, this);
    QLabel* texto = Etiqueta(QStringLiteral("LB") + sufijo, etiqueta, Qt::PlainText, this);
    texto->setBuddy(campo);

    rejilla->addWidget(simbolo, fila, 0);
    rejilla->addWidget(texto, fila, 1);
    rejilla->addWidget(campo, fila, 2);
    return campo;
}

QPushButton* FmCoef::CreaBoton(const char* nombre, const QString& texto)
{
    auto* boton = new QPushButton(texto, this);
    boton->setObjectName(QString::fromLatin1(nombre));
    // A click must take the focus, so that the field in hand is checked before the button
    // acts. Enter in a field reaches the dialog's default button without moving the focus,
    // and Aceptar, the one it finds, does not act without the focus: Enter runs no code.
    boton->setFocusPolicy(Qt::StrongFocus);
    boton->setMinimumWidth(90);
    ProtegeClic(boton);
    return boton;
}

void FmCoef::OrdenaTabulacion()
{
    QWidget* orden[] = {campos_[0], campos_[1], campos_[2], cmAceptar_, cmCancelar_, cmRestaurar_};
    for (std::size_t i = 1; i < std::size(orden); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void FmCoef::CargaEstado()
{
    for (int fila = 0; fila < kNumCoeficientes; ++fila) {
        const double valor = Estado().*(ReglaDe(fila).campo);
        EscribeTexto(campos_[fila], plataforma::FormatoLocal(valor, ReglaDe(fila).formato));
    }
}

// A field leaving the focus: the tests of every field with a bound of 1, but the state field
// itself waits for Aceptar. Passing through a field still counts as a change of the project,
// even if the user then leaves by Cancelar.
void FmCoef::CompruebaCampo(QLineEdit* campo, const ReglaCampo& regla)
{
    const QString texto = TextoDe(campo);
    if (const std::optional<QString> mensaje = Rechazo(texto, regla)) {
        plataforma::MsgBox(*mensaje, plataforma::Estilo::Parada);
        DevuelveFoco(campo);
        return;
    }
    EscribeTexto(campo, plataforma::FormatoLocal(ValorDe(texto), regla.formato));
    Estado().F_MODIFICADO = true;
    Estado().F_CALCULADO = false;
}

void FmCoef::Aceptar()
{
    // A click of the mouse has just taken the focus from the field in hand; if that field
    // refused, the focus went back to it and the click must do nothing.
    if (!BotonConFoco(cmAceptar_)) return;
    // Every text is read before any is stored. The flags are left alone: only the fields'
    // passes set them.
    double valores[kNumCoeficientes] = {};
    for (int fila = 0; fila < kNumCoeficientes; ++fila)
        valores[fila] = LecturaRegional(TextoDe(campos_[fila]));
    for (int fila = 0; fila < kNumCoeficientes; ++fila)
        Estado().*(ReglaDe(fila).campo) = valores[fila];
    accept();
}

// The program's own coefficients back in the fields; the state waits for Aceptar.
void FmCoef::Restablecer()
{
    for (int fila = 0; fila < kNumCoeficientes; ++fila) {
        EscribeTexto(campos_[fila], plataforma::FormatoLocal(ReglaDe(fila).reinicio, ReglaDe(fila).formato));
    }
}

}  // namespace texalon
