#include "screens/Formulario.h"

#include "diagrams/Lista.h"
#include "diagrams/qt/Lienzo.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTextDocumentFragment>

namespace texalon {

Formulario::Formulario(const QString& nombre, const QString& titulo, QWidget* padre) : QWidget(padre)
{
    setObjectName(nombre);
    setWindowTitle(titulo);
    setAttribute(Qt::WA_DeleteOnClose);
}

QWidget* Formulario::Control(const QString& nombre) const
{
    const auto it = controles_.find(nombre);
    return it == controles_.end() ? nullptr : it->second;
}

QGridLayout* Formulario::CreaDisposicion()
{
    auto* disposicion = new QGridLayout(this);
    disposicion->setContentsMargins(4, 4, 4, 4);
    disposicion->setSpacing(4);
    return disposicion;
}

QGridLayout* Formulario::CreaFilas(QWidget* marco)
{
    auto* filas = new QGridLayout(marco);
    filas->setContentsMargins(6, 6, 6, 6);
    filas->setVerticalSpacing(2);
    filas->setHorizontalSpacing(4);
    return filas;
}

QGroupBox* Formulario::CreaMarco(const char* nombre, const QString& titulo)
{
    auto* marco = new QGroupBox(titulo, this);
    marco->setObjectName(QString::fromLatin1(nombre));
    return marco;
}

QLabel* Formulario::CreaEtiqueta(const QString& texto, QWidget* padre, const char* nombre)
{
    auto* etiqueta = new QLabel(texto, padre);
    if (nombre != nullptr) Registra(etiqueta, nombre);
    return etiqueta;
}

Formulario::Rotulos Formulario::AnadeFila(QGridLayout* filas, const QString& etiqueta, QWidget* control,
                                          const QString& unidad, QWidget* otro, const QString& otraUnidad)
{
    QWidget* marco = filas->parentWidget();
    const int fila = filas->rowCount();
    Rotulos rotulos{CreaEtiqueta(etiqueta, marco), CreaEtiqueta(unidad, marco)};
    rotulos.etiqueta->setBuddy(control);
    control->setAccessibleName(QTextDocumentFragment::fromHtml(etiqueta).toPlainText());
    filas->addWidget(rotulos.etiqueta, fila, 0);
    filas->addWidget(control, fila, 1);
    filas->addWidget(rotulos.unidad, fila, 2);
    if (otro != nullptr) {
        filas->addWidget(otro, fila, 3);
        if (!otraUnidad.isEmpty()) filas->addWidget(CreaEtiqueta(otraUnidad, marco), fila, 4);
    }
    return rotulos;
}

Lienzo* Formulario::CreaDibujo(const Dibujo& dibujo)
{
    dibujo_ = Registra(new Lienzo(dibujo, this));
    return dibujo_;
}

void Formulario::MuestraDiagrama(Entero isotropico) { dibujo_->Escena().DibujaLista(EstadoDibujo(), isotropico); }

void Formulario::MuestraDiagramaDelInforme()
{
    GeneralDibujo& d = EstadoDibujo();
    const TamanoDibujo tamano = dibujo_->Tamano();
    dibujo_->Escena().Muestra(d, Encuadra(d, tamano.ancho, tamano.alto, dibujo_->IsotropicoDeLaLista()), d);
}

void Formulario::OrdenaTabulacion(const std::vector<const char*>& nombres)
{
    ordenTabulacion_.clear();
    for (const char* nombre : nombres)
        ordenTabulacion_.push_back(Control(QString::fromLatin1(nombre)));
    if (!ordenTabulacion_.empty()) ordenTabulacion_.front()->setFocus(Qt::OtherFocusReason);
}

int Formulario::PosicionDelFoco() const
{
    const QWidget* foco = QApplication::focusWidget();
    for (std::size_t i = 0; i < ordenTabulacion_.size(); ++i) {
        const QWidget* control = ordenTabulacion_[i];
        if (foco == control || (foco != nullptr && control->isAncestorOf(foco))) return static_cast<int>(i);
    }
    return -1;
}

bool Formulario::focusNextPrevChild(bool siguiente)
{
    const int total = static_cast<int>(ordenTabulacion_.size());
    if (total == 0) return QWidget::focusNextPrevChild(siguiente);
    const int paso = siguiente ? 1 : -1;
    int posicion = PosicionDelFoco();
    if (posicion < 0) posicion = siguiente ? total - 1 : 0;
    for (int intento = 0; intento < total; ++intento) {
        posicion = (posicion + paso + total) % total;
        QWidget* control = ordenTabulacion_[static_cast<std::size_t>(posicion)];
        // A group of options is one stop, its selected option; the arrows move within it.
        const auto* opcion = qobject_cast<const QRadioButton*>(control);
        if (opcion != nullptr && opcion->autoExclusive() && !opcion->isChecked()) continue;
        if (control->isEnabled() && control->isVisible() && (control->focusPolicy() & Qt::TabFocus)) {
            control->setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

}  // namespace texalon
