#include "shell/Aplicacion.h"

#include "platform/Plataforma.h"
#include "platform/qt/Fuentes.h"
#include "shell/Estilo.h"

#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>
#include <new>

namespace texalon {

AplicacionTexalon::AplicacionTexalon(int& argc, char** argv) : QApplication(argc, argv) {}

bool AplicacionTexalon::notify(QObject* receptor, QEvent* evento)
{
    try {
        return QApplication::notify(receptor, evento);
    } catch (const ErrorEjecucion& error) {
        plataforma::ServicioProceso().ErrorFatal(error);
    } catch (const std::bad_alloc&) {
        plataforma::ServicioProceso().ErrorFatal(ErrorEjecucion(ErrorEjecucion::kMemoriaInsuficiente));
    }
    return true;
}

QString FicheroTraduccionQt()
{
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_es.qm");
}

void PreparaAplicacion(QApplication& aplicacion)
{
    // Everything the user reads is in Spanish, Qt's own buttons and dialogs too, whatever the
    // language of the machine. The decimal separator stays the machine's own.
    auto* traductor = new QTranslator(&aplicacion);
    if (traductor->load(FicheroTraduccionQt())) QApplication::installTranslator(traductor);

    QApplication::setStyle(new EstiloTexalon);
    QFont letra(QStringLiteral("Arial"));
    letra.setPointSizeF(9.0);
    QApplication::setFont(plataforma::ConAnchoPropio(letra));
    QApplication::setApplicationName(QStringLiteral("TEXALON"));
    QApplication::setOrganizationName(QStringLiteral("VELMORA"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/imagenes/aplicacion.svg")));
}

}  // namespace texalon
