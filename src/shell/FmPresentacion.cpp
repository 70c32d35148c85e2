#include "shell/FmPresentacion.h"

#include "screens/Imagenes.h"
#include "state/General.h"

#include <QFrame>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

namespace texalon {

namespace {

QLabel* Etiqueta(const char* nombre, const QString& texto, QWidget* padre)
{
    auto* etiqueta = new QLabel(texto, padre);
    etiqueta->setObjectName(QString::fromLatin1(nombre));
    // Each text answers a click on itself only, as the controls of a classic form do.
    etiqueta->setAttribute(Qt::WA_NoMousePropagation);
    return etiqueta;
}

}  // namespace

FmPresentacion::FmPresentacion(QWidget* principal) : QWidget(principal, Qt::Dialog | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("FM_PRESENTACION"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(500, 300);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);

    Frame1_ = new QFrame(this);
    Frame1_->setObjectName(QStringLiteral("Frame1"));
    Frame1_->setFrameShape(QFrame::Box);
    Frame1_->setFrameShadow(QFrame::Sunken);

    Image1_ = Etiqueta("Image1", QString(), Frame1_);
    Image1_->setPixmap(Imagen(QStringLiteral(":/imagenes/logo.svg"), QSize(160, 160)));
    Image1_->setFixedSize(160, 160);

    LB_NOMBRE_ = Etiqueta("LB_NOMBRE", QStringLiteral("Texalon"), Frame1_);
    QFont nombre = LB_NOMBRE_->font();
    nombre.setPointSizeF(30.0);
    nombre.setBold(true);
    LB_NOMBRE_->setFont(nombre);

    LB_VERSION_ = Etiqueta("LB_VERSION", QStringLiteral("Versión 1.0"), Frame1_);
    QFont version = LB_VERSION_->font();
    version.setPointSizeF(11.0);
    LB_VERSION_->setFont(version);

    LB_COMENTARIOS_ = Etiqueta(
        "LB_COMENTARIOS",
        QStringLiteral("Programa de cálculo del refuerzo de secciones mediante fibra de carbono TEXALON®."), Frame1_);
    LB_COMENTARIOS_->setWordWrap(true);

    LB_AUTOR_ = Etiqueta("LB_AUTOR", QStringLiteral("© VELMORA, 2026"), Frame1_);
    LB_AUTOR_->setAlignment(Qt::AlignRight | Qt::AlignBottom);

    auto* textos = new QVBoxLayout;
    textos->setSpacing(6);
    textos->addStretch(1);
    textos->addWidget(LB_NOMBRE_);
    textos->addWidget(LB_VERSION_);
    textos->addSpacing(12);
    textos->addWidget(LB_COMENTARIOS_);
    textos->addStretch(2);

    auto* marco = new QGridLayout(Frame1_);
    marco->setContentsMargins(18, 18, 18, 12);
    marco->setHorizontalSpacing(22);
    marco->addWidget(Image1_, 0, 0, Qt::AlignVCenter);
    marco->addLayout(textos, 0, 1);
    marco->addWidget(LB_AUTOR_, 1, 0, 1, 2);

    auto* ventana = new QVBoxLayout(this);
    ventana->setContentsMargins(6, 6, 6, 6);
    ventana->addWidget(Frame1_);

    for (QWidget* control : {static_cast<QWidget*>(Frame1_), static_cast<QWidget*>(LB_AUTOR_),
                             static_cast<QWidget*>(LB_COMENTARIOS_), static_cast<QWidget*>(LB_VERSION_)})
        control->installEventFilter(this);

    Estado().F_PRESENTACION = true;
    TM_ = new QTimer(this);
    TM_->setObjectName(QStringLiteral("TM"));
    TM_->setInterval(kIntervaloMs);
    connect(TM_, &QTimer::timeout, this, &FmPresentacion::TM_Timer);
    TM_->start();
}

FmPresentacion::~FmPresentacion() { Estado().F_PRESENTACION = false; }

void FmPresentacion::TM_Timer()
{
    // The timer is not stopped: closing the window ends it.
    if (Estado().F_PRESENTACION) close();
}

void FmPresentacion::keyPressEvent(QKeyEvent* /*evento*/) { close(); }

void FmPresentacion::mouseReleaseEvent(QMouseEvent* /*evento*/) { close(); }

bool FmPresentacion::eventFilter(QObject* objeto, QEvent* evento)
{
    // A click on the frame, the author, the comments or the version closes the splash; the
    // logo and the name have no click of their own.
    if (evento->type() == QEvent::MouseButtonRelease) {
        close();
        return true;
    }
    return QWidget::eventFilter(objeto, evento);
}

}  // namespace texalon
