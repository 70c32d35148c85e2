#include "reports/qt/FmConfigImpr.h"

#include "platform/Dialogos.h"
#include "platform/Impresora.h"
#include "platform/Plataforma.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace texalon {

FmConfigImpr::FmConfigImpr(QWidget* padre) : QDialog(padre)
{
    setObjectName(QStringLiteral("FM_CONFIG_IMPR"));
    setWindowTitle(QStringLiteral("Selección de impresora"));
    setModal(true);

    auto* etiqueta = new QLabel(QStringLiteral("Seleccione impresora por defecto"), this);
    etiqueta->setObjectName(QStringLiteral("Label1"));
    impresoras_ = new QComboBox(this);
    impresoras_->setObjectName(QStringLiteral("CO_IMPRESORA"));
    impresoras_->setAccessibleName(etiqueta->text());
    impresoras_->setMinimumWidth(260);
    etiqueta->setBuddy(impresoras_);
    seleccionar_ = new QPushButton(QStringLiteral("&Seleccionar"), this);
    seleccionar_->setObjectName(QStringLiteral("CM_SELECCIONAR"));
    auto* salir = new QPushButton(QStringLiteral("S&alir"), this);
    salir->setObjectName(QStringLiteral("CM_SALIR"));
    connect(seleccionar_, &QPushButton::clicked, this, &FmConfigImpr::Seleccionar);
    connect(salir, &QPushButton::clicked, this, &QDialog::accept);

    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(seleccionar_);
    botones->addWidget(salir);
    auto* marco = new QVBoxLayout(this);
    marco->setContentsMargins(14, 14, 14, 12);
    marco->setSpacing(10);
    marco->addWidget(etiqueta);
    marco->addWidget(impresoras_);
    marco->addLayout(botones);

    // The load.
    plataforma::Impresoras& servicio = plataforma::ServicioImpresoras();
    const std::string actual = servicio.Actual();
    int posicion = 0;
    int cuenta = 0;
    for (const std::string& nombre : servicio.Nombres()) {
        ++cuenta;
        impresoras_->addItem(QString::fromStdString(nombre));
        // With equal names the last one wins.
        if (nombre == actual) posicion = cuenta - 1;
    }
    impresoras_->setEnabled(cuenta != 0);
    seleccionar_->setEnabled(cuenta != 0);
    if (cuenta != 0) impresoras_->setCurrentIndex(posicion);
    plataforma::PreparaDialogo(*this);
}

int FmConfigImpr::Muestra(QWidget* padre)
{
    FmConfigImpr dialogo(padre);
    return plataforma::ServicioVentanas().MuestraModal(dialogo);
}

void FmConfigImpr::Seleccionar()
{
    plataforma::Impresoras& servicio = plataforma::ServicioImpresoras();
    const std::vector<std::string> nombres = servicio.Nombres();
    const int indice = impresoras_->currentIndex();
    if (indice >= 0 && indice < static_cast<int>(nombres.size()))
        servicio.Elige(nombres[static_cast<std::size_t>(indice)]);
}

}  // namespace texalon
