#include "platform/qt/Fuentes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QFontDatabase>

namespace texalon::plataforma {

namespace {
constexpr char kArial[] = "Arial";
constexpr char kLiberationSans[] = "Liberation Sans";
}  // namespace

int CargaFuentesPropias(const QString& carpeta)
{
    if (QFontDatabase::hasFamily(QString::fromLatin1(kArial))) return 0;
    int anadidas = 0;
    const QDir dir(carpeta);
    for (const QString& fichero : dir.entryList({QStringLiteral("*.ttf")}, QDir::Files, QDir::Name)) {
        if (QFontDatabase::addApplicationFont(dir.filePath(fichero)) >= 0) ++anadidas;
    }
    if (QFontDatabase::hasFamily(QString::fromLatin1(kLiberationSans))) {
        QFont::insertSubstitution(QString::fromLatin1(kArial), QString::fromLatin1(kLiberationSans));
    }
    return anadidas;
}

QFont ConAnchoPropio(QFont letra)
{
    letra.setHintingPreference(QFont::PreferVerticalHinting);
    return letra;
}

QString CarpetaFuentesPropias()
{
    const QString junto = QCoreApplication::applicationDirPath() + QStringLiteral("/fuentes");
    if (QDir(junto).exists()) return junto;
#ifdef TEXALON_FUENTES_CONSTRUCCION
    return QString::fromUtf8(TEXALON_FUENTES_CONSTRUCCION);
#else
    return junto;
#endif
}

}  // namespace texalon::plataforma
