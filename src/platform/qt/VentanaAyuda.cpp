#include "platform/qt/VentanaAyuda.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextStream>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace texalon::plataforma {

QMap<int, QString> LeeMapaAyuda(const QString& ficheroAyuda)
{
    QMap<int, QString> mapa;
    QFile fichero(ficheroAyuda + QStringLiteral("/mapa.txt"));
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Text)) return mapa;
    QTextStream lector(&fichero);
    static const QRegularExpression linea(QStringLiteral("^\\s*(\\d+)\\s+(\\S+)\\s*$"));
    while (!lector.atEnd()) {
        const QRegularExpressionMatch partes = linea.match(lector.readLine());
        if (partes.hasMatch()) mapa.insert(partes.captured(1).toInt(), partes.captured(2));
    }
    return mapa;
}

QRect LugarDeLaAyuda(const QRect& disponible, const QRect& principal, QSize tamano, const QMargins& marco)
{
    const QRect libre = disponible.marginsRemoved(marco);
    tamano = tamano.boundedTo(libre.size());
    const QSize exterior = tamano.grownBy(marco);
    QPoint esquina;  // of the frame
    if (principal.isEmpty())
        esquina = disponible.center() - QRect(QPoint(), exterior).center();
    else if (principal.right() + exterior.width() <= disponible.right())
        esquina = QPoint(principal.right() + 1, principal.top());
    else if (principal.left() - exterior.width() >= disponible.left())
        esquina = QPoint(principal.left() - exterior.width(), principal.top());
    else  // over it, a title bar's height in, so that the main window's title stays in sight
        esquina = principal.topLeft() + QPoint(marco.top(), marco.top());
    // Moved in, so that no edge lies off the free area.
    esquina.setX(qBound(disponible.left(), esquina.x(), disponible.right() + 1 - exterior.width()));
    esquina.setY(qBound(disponible.top(), esquina.y(), disponible.bottom() + 1 - exterior.height()));
    return QRect(esquina + QPoint(marco.left(), marco.top()), tamano);
}

namespace {

QToolButton* Boton(const QString& texto, QWidget* padre)
{
    auto* boton = new QToolButton(padre);
    boton->setText(texto);
    boton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    boton->setAutoRaise(true);
    return boton;
}

}  // namespace

VentanaAyuda::VentanaAyuda(QWidget* padre) : QWidget(padre, Qt::Window)
{
    setObjectName(QStringLiteral("VentanaAyuda"));
    setWindowTitle(QStringLiteral("Ayuda de TEXALON"));
    resize(720, 560);

    contenido_ = Boton(QStringLiteral("&Contenido"), this);
    atras_ = Boton(QStringLiteral("< &Atrás"), this);
    adelante_ = Boton(QStringLiteral("A&delante >"), this);
    auto* botones = new QHBoxLayout;
    botones->setContentsMargins(4, 4, 4, 0);
    botones->addWidget(contenido_);
    botones->addWidget(atras_);
    botones->addWidget(adelante_);
    botones->addStretch();

    visor_ = new QTextBrowser(this);
    visor_->setObjectName(QStringLiteral("VisorAyuda"));
    // Pages of the help open here; web addresses and mail go to the desktop's programs.
    visor_->setOpenLinks(true);
    visor_->setOpenExternalLinks(true);

    auto* disposicion = new QVBoxLayout(this);
    disposicion->setContentsMargins(0, 0, 0, 0);
    disposicion->setSpacing(2);
    disposicion->addLayout(botones);
    disposicion->addWidget(visor_);

    // Escape closes the help, as it closes the program's dialogs.
    auto* cierra = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(cierra, &QShortcut::activated, this, &QWidget::close);
    connect(contenido_, &QToolButton::clicked, this, [this] { Muestra(ficheroAyuda_, 0); });
    connect(atras_, &QToolButton::clicked, visor_, &QTextBrowser::backward);
    connect(adelante_, &QToolButton::clicked, visor_, &QTextBrowser::forward);
    connect(visor_, &QTextBrowser::historyChanged, this, &VentanaAyuda::Actualiza);
    Actualiza();
}

void VentanaAyuda::Muestra(const QString& ficheroAyuda, int contexto)
{
    ficheroAyuda_ = ficheroAyuda;
    QString pagina = QString::fromLatin1(kPaginaContenido);
    if (contexto != 0) {
        const QMap<int, QString> mapa = LeeMapaAyuda(ficheroAyuda);
        pagina = mapa.value(contexto);
        if (pagina.isEmpty()) {
            MuestraAviso(mapa.isEmpty()
                             ? QStringLiteral("No se encuentra el archivo de ayuda %1.").arg(ficheroAyuda)
                             : QStringLiteral("No existe el tema de ayuda %1 en %2.").arg(contexto).arg(ficheroAyuda));
            return;
        }
    }
    const QString ruta = ficheroAyuda + QLatin1Char('/') + pagina;
    if (!QFileInfo::exists(ruta)) {
        MuestraAviso(QStringLiteral("No se encuentra el archivo de ayuda %1.").arg(ruta));
        return;
    }
    visor_->setSource(QUrl::fromLocalFile(ruta));
    Actualiza();
}

QString VentanaAyuda::PaginaMostrada() const
{
    return visor_->source().isLocalFile() ? visor_->source().toLocalFile() : QString();
}

void VentanaAyuda::MuestraAviso(const QString& texto)
{
    visor_->clearHistory();
    visor_->setSource(QUrl());
    visor_->setPlainText(texto);
    Actualiza();
}

void VentanaAyuda::Actualiza()
{
    contenido_->setEnabled(!ficheroAyuda_.isEmpty());
    atras_->setEnabled(visor_->isBackwardAvailable());
    adelante_->setEnabled(visor_->isForwardAvailable());
}

}  // namespace texalon::plataforma
