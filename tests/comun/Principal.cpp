#include "Principal.h"

#include "screens/Formulario.h"
#include "shell/FmPresentacion.h"
#include "state/General.h"

#include <QAction>
#include <QTest>
#include <QToolBar>

namespace texalon::prueba {

QString Mensaje(const QString& texto, plataforma::Estilo estilo)
{
    return QStringLiteral("%1 [%2]").arg(texto).arg(static_cast<int>(estilo));
}

MdiPrincipal& PruebaDePrincipal::Arranca(char separador)
{
    Termina();
    Estado() = General{};
    EstadoDibujo() = GeneralDibujo{};
    doble_ = std::make_unique<plataforma::PlataformaDoble>();
    doble_->regional.separador = separador;
    ventana_ = std::make_unique<MdiPrincipal>();
    ventana_->show();
    if (ventana_->Presentacion() != nullptr) ventana_->Presentacion()->close();
    ventana_->activateWindow();
    if (!QTest::qWaitForWindowActive(ventana_.get())) qWarning("la ventana principal no se ha activado");
    return *ventana_;
}

MdiPrincipal& PruebaDePrincipal::Arranca() { return Arranca(plataforma::RegionalDoble().separador); }

void PruebaDePrincipal::Termina()
{
    ventana_.reset();
    doble_.reset();
}

QString PruebaDePrincipal::Sep(const char* texto) const
{
    QString s = QString::fromUtf8(texto);
    if (doble_->regional.separador == '.') s.replace(QLatin1Char(','), QLatin1Char('.'));
    return s;
}

bool PruebaDePrincipal::Orden(const char* nombre)
{
    QAction* accion = ventana_->ElementoMenu(QString::fromLatin1(nombre));
    if (accion == nullptr) qFatal("no hay elemento de menú %s", nombre);
    const bool activo = accion->isEnabled();
    accion->trigger();
    return activo;
}

bool PruebaDePrincipal::Boton(const char* clave)
{
    for (QAction* accion : ventana_->Barra()->actions())
        if (accion->data().toString() == QLatin1String(clave)) {
            const bool activo = accion->isEnabled();
            QTest::mouseClick(ventana_->Barra()->widgetForAction(accion), Qt::LeftButton);
            return activo;
        }
    qFatal("no hay botón %s", clave);
}

QStringList PruebaDePrincipal::Mostrados() const
{
    QStringList lista;
    for (const plataforma::MensajeMostrado& m : doble_->mensajes.mostrados)
        lista << Mensaje(m.texto, m.estilo);
    return lista;
}

Formulario* PruebaDePrincipal::Abierta() const
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return ventana_->PantallaAbierta();
}

}  // namespace texalon::prueba
