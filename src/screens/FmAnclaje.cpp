#include "screens/FmAnclaje.h"

#include "engine/Calculos.h"
#include "platform/Dialogos.h"
#include "platform/Plataforma.h"
#include "screens/Imagenes.h"
#include "screens/RejillaResultados.h"
#include "state/General.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace texalon {

namespace {

// The table's sizes, in twips as it was laid out.
constexpr int kAltoFila = 300;
constexpr int kAnchoColumna = 1600;
constexpr int kAnchoColumna0 = 1000;

constexpr QSize kTamanoDibujo{96, 96};

QLabel* Dibujo(QWidget* padre)
{
    auto* dibujo = new QLabel(padre);
    dibujo->setObjectName(QStringLiteral("Image1"));
    dibujo->setPixmap(Imagen(QStringLiteral(":/iconos/boton_anclaje.svg"), kTamanoDibujo));
    dibujo->setFixedSize(kTamanoDibujo);
    return dibujo;
}

QPushButton* BotonSalir(QDialog* ventana)
{
    auto* salir = new QPushButton(QStringLiteral("Salir"), ventana);
    salir->setObjectName(QStringLiteral("CM_SALIR"));
    salir->setMinimumWidth(90);
    // The window only informs: Enter and Escape close it as the button does.
    salir->setDefault(true);
    QObject::connect(salir, &QPushButton::clicked, ventana, &QDialog::accept);
    return salir;
}

}  // namespace

FmAnclaje::FmAnclaje(QWidget* padre) : QDialog(padre), rejilla_(new RejillaResultados(this))
{
    setObjectName(QStringLiteral("FM_ANCLAJE"));
    setWindowTitle(QStringLiteral("Longitud  neta de anclaje (Lb)"));
    setModal(true);
    rejilla_->setObjectName(QStringLiteral("FG_ANCLAJE"));
    TablaAnclaje();

    QPushButton* salir = BotonSalir(this);
    auto* disposicion = new QGridLayout(this);
    disposicion->setContentsMargins(14, 14, 14, 12);
    disposicion->setHorizontalSpacing(16);
    disposicion->setVerticalSpacing(12);
    disposicion->addWidget(Dibujo(this), 0, 0, Qt::AlignCenter);
    disposicion->addWidget(rejilla_, 0, 1);
    disposicion->addWidget(salir, 1, 1, Qt::AlignRight);
    // The window takes the size of what it holds and keeps it.
    plataforma::PreparaDialogo(*this);
    // The focus starts on the button, so that no cell of the table looks chosen on opening.
    salir->setFocus();
}

void FmAnclaje::TablaAnclaje()
{
    const General& g = Estado();
    rejilla_->Dimensiona(g.MAXCAPAS + 1, g.NTIPOS + 1, kAltoFila, kAnchoColumna, kAnchoColumna0);
    rejilla_->EscribeCelda(0, 0, QStringLiteral("Nº capas"));
    for (int tipo = 1; tipo <= g.NTIPOS; ++tipo)
        rejilla_->EscribeCelda(0, tipo, QString::fromStdString(g.TIPOS(tipo)));
    for (int capas = 1; capas <= g.MAXCAPAS; ++capas) {
        rejilla_->EscribeCelda(capas, 0, QString::number(capas));
        for (int tipo = 1; tipo <= g.NTIPOS; ++tipo)
            rejilla_->EscribeCelda(capas, tipo,
                                   plataforma::FormatoLocal(g.LANC(tipo, capas), "0.00") + QStringLiteral(" m"));
    }
}

void FmAnclaje::Muestra(QWidget* padre)
{
    FmAnclaje ventana(padre);
    plataforma::ServicioVentanas().MuestraModal(ventana);
}

void OrdenAnclaje(QWidget* padre)
{
    LongitudAnclaje(Estado());
    FmAnclaje::Muestra(padre);
}

}  // namespace texalon
