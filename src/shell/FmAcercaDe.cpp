#include "shell/FmAcercaDe.h"

#include "platform/Dialogos.h"
#include "screens/Imagenes.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace texalon {

namespace {

QLabel* Etiqueta(const char* nombre, const QString& texto, QWidget* padre)
{
    auto* etiqueta = new QLabel(texto, padre);
    etiqueta->setObjectName(QString::fromLatin1(nombre));
    return etiqueta;
}

QLabel* Dibujo(const char* nombre, const QString& recurso, QSize tamano, QWidget* padre)
{
    QLabel* dibujo = Etiqueta(nombre, QString(), padre);
    dibujo->setPixmap(Imagen(recurso, tamano));
    dibujo->setFixedSize(tamano);
    return dibujo;
}

}  // namespace

FmAcercaDe::FmAcercaDe(QWidget* padre) : QDialog(padre)
{
    setObjectName(QStringLiteral("FM_ACERCADE"));
    setWindowTitle(QStringLiteral("Acerca de TEXALON®"));
    setMinimumSize(420, 260);

    QLabel* image1 = Dibujo("Image1", QStringLiteral(":/imagenes/logo.svg"), QSize(96, 96), this);
    QLabel* image2 = Dibujo("Image2", QStringLiteral(":/imagenes/acerca.svg"), QSize(48, 48), this);

    QLabel* lblTitle = Etiqueta("lblTitle", QStringLiteral("VELMORA - TEXALON®"), this);
    QFont titulo = lblTitle->font();
    titulo.setPointSizeF(15.0);
    titulo.setBold(true);
    lblTitle->setFont(titulo);
    QLabel* lblVersion = Etiqueta("lblVersion", QStringLiteral("Versión 1.0"), this);

    QLabel* label1 = Etiqueta("Label1", QStringLiteral("Programa realizado por "), this);
    // The maker's name stands as its signature: "Orventa" in bold, "ingeniería" under it.
    QLabel* label2 = Etiqueta("Label2", QStringLiteral("Orventa"), this);
    QFont empresa = label2->font();
    empresa.setPointSizeF(13.0);
    empresa.setBold(true);
    label2->setFont(empresa);
    QLabel* label3 = Etiqueta("Label3", QStringLiteral("ingeniería"), this);
    QFont oficio = label3->font();
    oficio.setItalic(true);
    label3->setFont(oficio);

    auto* linea = new QFrame(this);
    linea->setFrameShape(QFrame::HLine);
    linea->setFrameShadow(QFrame::Sunken);

    auto* cmdOK = new QPushButton(QStringLiteral("Aceptar"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdOK->setMinimumWidth(90);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* autor = new QVBoxLayout;
    autor->setSpacing(0);
    autor->addSpacing(8);
    autor->addWidget(label1);
    autor->addSpacing(4);
    autor->addWidget(label2);
    autor->addWidget(label3);

    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(16, 16, 16, 14);
    rejilla->setHorizontalSpacing(18);
    rejilla->addWidget(image1, 0, 0, 3, 1, Qt::AlignTop);
    rejilla->addWidget(lblTitle, 0, 1);
    rejilla->addWidget(lblVersion, 1, 1);
    rejilla->addLayout(autor, 2, 1, Qt::AlignTop);
    rejilla->addWidget(linea, 3, 0, 1, 2);
    rejilla->addWidget(image2, 4, 0, Qt::AlignLeft | Qt::AlignVCenter);
    rejilla->addWidget(cmdOK, 4, 1, Qt::AlignRight | Qt::AlignVCenter);
    rejilla->setRowStretch(2, 1);
    plataforma::PreparaDialogo(*this);
}

}  // namespace texalon
