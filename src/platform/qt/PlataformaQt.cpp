#include "platform/qt/PlataformaQt.h"

#include "platform/Dialogos.h"
#ifdef _WIN32
#include "platform/EscritorioRegistro.h"
#include "platform/CorreoMapi.h"
#include "platform/win/MapiWindows.h"
#include "platform/win/RegistroWindows.h"
#endif
#include "platform/qt/ImpresoraQt.h"
#include "platform/qt/VentanaAyuda.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QPointer>
#include <QUrlQuery>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <QSpacerItem>
#include <cstdio>
#include <cstdlib>

// The resource's registration is a function of the global namespace.
static void RegistraRecursoImagenes() { Q_INIT_RESOURCE(texalon_imagenes); }

namespace texalon::plataforma {

namespace {

QMessageBox::Icon IconoDe(Estilo estilo)
{
    switch (estilo) {
    case Estilo::Parada: return QMessageBox::Critical;
    case Estilo::PreguntaSiNo: return QMessageBox::Question;
    case Estilo::Exclamacion: return QMessageBox::Warning;
    case Estilo::Informacion: return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

std::optional<FicheroElegido> MuestraDialogo(const DialogoFichero& dialogo, QFileDialog::AcceptMode modo)
{
    QFileDialog cuadro(QApplication::activeWindow());
    cuadro.setOption(QFileDialog::DontUseNativeDialog);
    cuadro.setAcceptMode(modo);
    cuadro.setFileMode(modo == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    cuadro.setDirectory(QDir::currentPath());
    const QStringList filtros = FiltrosQt(dialogo.filtro);
    cuadro.setNameFilters(filtros);
    if (dialogo.indiceFiltro >= 1 && dialogo.indiceFiltro <= filtros.size())
        cuadro.selectNameFilter(filtros.at(dialogo.indiceFiltro - 1));
    if (!dialogo.nombre.isEmpty()) cuadro.selectFile(dialogo.nombre);
    // A name typed without its extension gets the project's, as a desktop's save dialog does.
    if (modo == QFileDialog::AcceptSave) cuadro.setDefaultSuffix(ExtensionPorDefecto(dialogo.filtro));
    if (cuadro.exec() != QDialog::Accepted || cuadro.selectedFiles().isEmpty()) return std::nullopt;

    // As the classic dialog does, the chosen file's folder becomes the current directory.
    const QFileInfo elegido(cuadro.selectedFiles().constFirst());
    QDir::setCurrent(elegido.absolutePath());
    return FicheroElegido{QDir::toNativeSeparators(elegido.absoluteFilePath()),
                          QDir::toNativeSeparators(elegido.absolutePath())};
}

}  // namespace

QString ExtensionPorDefecto(const QString& filtro)
{
    // The first pattern of the first filter, "*.VMF", in small letters.
    const QStringList partes = filtro.split(QLatin1Char('|'));
    if (partes.size() < 2) return {};
    const QString patron = partes.at(1).section(QLatin1Char(';'), 0, 0);
    return patron.startsWith(QLatin1String("*.")) ? patron.mid(2).toLower() : QString();
}

QString TextoParaMostrar(const QString& texto)
{
    QString resultado = texto;
    resultado.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    resultado.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return resultado;
}

QStringList FiltrosQt(const QString& filtro)
{
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        QStringList patrones;
        for (const QString& patron : partes.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            patrones << patron.toUpper();
            if (patron.toLower() != patron.toUpper()) patrones << patron.toLower();
        }
        filtros << QStringLiteral("%1 (%2)").arg(partes.at(i), patrones.join(QLatin1Char(' ')));
    }
    return filtros;
}

std::unique_ptr<QMessageBox> CajaDeMensaje(const QString& texto, Estilo estilo, QWidget* padre)
{
    auto caja = std::make_unique<QMessageBox>(IconoDe(estilo), kTituloMensajes, TextoParaMostrar(texto),
                                              QMessageBox::NoButton, padre);
    if (estilo == Estilo::PreguntaSiNo) {
        caja->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        caja->setDefaultButton(QMessageBox::Yes);
    } else {
        caja->setStandardButtons(QMessageBox::Ok);
    }
    // A message box works out its size again as it comes up, from its layout alone: a row as
    // wide as the caption keeps the room for it there.
    if (auto* rejilla = qobject_cast<QGridLayout*>(caja->layout())) {
        const QMargins margenes = rejilla->contentsMargins();
        const int ancho = AnchoParaTitulo(*caja) - margenes.left() - margenes.right();
        rejilla->addItem(new QSpacerItem(ancho, 0, QSizePolicy::Minimum, QSizePolicy::Fixed), rejilla->rowCount(), 0,
                         1, rejilla->columnCount());
    }
    PreparaDialogo(*caja);
    return caja;
}

Respuesta MensajesQt::Muestra(const QString& texto, Estilo estilo)
{
    const std::unique_ptr<QMessageBox> caja = CajaDeMensaje(texto, estilo, QApplication::activeWindow());
    const int respuesta = caja->exec();
    if (estilo != Estilo::PreguntaSiNo) return Respuesta::Aceptar;
    return respuesta == QMessageBox::Yes ? Respuesta::Si : Respuesta::No;
}

std::optional<FicheroElegido> FicherosQt::Abrir(const DialogoFichero& dialogo)
{
    return MuestraDialogo(dialogo, QFileDialog::AcceptOpen);
}

std::optional<FicheroElegido> FicherosQt::Guardar(const DialogoFichero& dialogo)
{
    return MuestraDialogo(dialogo, QFileDialog::AcceptSave);
}

int VentanasQt::MuestraModal(QDialog& dialogo) { return dialogo.exec(); }

QSizeF MonitorQt::Tamano() const
{
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    return pantalla == nullptr ? QSizeF() : QSizeF(pantalla->size());
}

char RegionalQt::SeparadorDecimal() const
{
    return QLocale::system().decimalPoint() == QStringLiteral(",") ? ',' : '.';
}

void ProcesoQt::Termina(int codigo)
{
    std::fflush(nullptr);
    std::_Exit(codigo);
}

void ProcesoQt::ErrorFatal(const ErrorEjecucion& error)
{
    MensajesQt().Muestra(TextoErrorFatal(error), Estilo::Parada);
    Termina(1);
}

namespace {

QPointer<VentanaAyuda>& VentanaDeAyuda()
{
    static QPointer<VentanaAyuda> ventana;
    return ventana;
}

// The help window's first place: beside or over the window that asked for it, wholly on the
// free area of that window's screen.
void ColocaAyuda(VentanaAyuda& ventana)
{
    const QWidget* principal = QApplication::activeWindow();
    QScreen* pantalla = principal != nullptr ? principal->screen() : QGuiApplication::primaryScreen();
    if (pantalla == nullptr) return;
    QRect exterior;
    QMargins marco;
    if (principal != nullptr) {
        exterior = principal->frameGeometry();
        const QRect interior = principal->geometry();
        marco = QMargins(interior.left() - exterior.left(), interior.top() - exterior.top(),
                         exterior.right() - interior.right(), exterior.bottom() - interior.bottom());
    }
    ventana.setGeometry(LugarDeLaAyuda(pantalla->availableGeometry(), exterior, ventana.size(), marco));
}

}  // namespace

void AyudaQt::MuestraTema(const QString& ficheroAyuda, int contexto) { Muestra(ficheroAyuda, contexto); }

void AyudaQt::MuestraContenido(const QString& ficheroAyuda) { Muestra(ficheroAyuda, 0); }

VentanaAyuda* AyudaQt::Ventana() const { return VentanaDeAyuda(); }

void AyudaQt::Muestra(const QString& ficheroAyuda, int contexto)
{
    // The help lives beside the program, in a window of its own that stays while the user
    // works on; a second request brings the same window forward.
    QPointer<VentanaAyuda>& ventana = VentanaDeAyuda();
    if (!ventana) {
        ventana = new VentanaAyuda;
        ventana->setAttribute(Qt::WA_DeleteOnClose);
        ventana->setAttribute(Qt::WA_QuitOnClose, false);
        ColocaAyuda(*ventana);
    }
    ventana->Muestra(ficheroAyuda, contexto);
    ventana->show();
    ventana->raise();
    ventana->activateWindow();
}

bool EscritorioQt::AbreFichero(const QString& fichero)
{
    // A missing file has no viewer to open it: the same failure as no viewer at all.
    if (!QFileInfo::exists(fichero)) return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(fichero));
}

bool EscritorioQt::AbreDireccion(const QString& direccion)
{
    const QUrl url = DireccionWeb(direccion);
    return url.isValid() && QDesktopServices::openUrl(url);
}

QUrl DireccionWeb(const QString& direccion)
{
    // An address that brings a scheme of its own is taken as it is; a drive letter is none.
    const QUrl escrita(direccion.trimmed());
    if (escrita.scheme().size() > 1) return escrita;
    return QUrl(QStringLiteral("https://") + direccion.trimmed());
}

QUrl DireccionCorreo(const QString& asunto, const QString& destinatario)
{
    QUrl url;
    url.setScheme(QStringLiteral("mailto"));
    url.setPath(destinatario);
    QUrlQuery consulta;
    consulta.addQueryItem(QStringLiteral("subject"), asunto);
    url.setQuery(consulta);
    return url;
}

bool CorreoQt::Redacta(const QString& asunto, const QString& destinatario)
{
    return QDesktopServices::openUrl(DireccionCorreo(asunto, destinatario));
}

void RegistraImagenes() { RegistraRecursoImagenes(); }

void InstalaQt()
{
    RegistraImagenes();
    static MensajesQt mensajes;
    static FicherosQt ficheros;
    static VentanasQt ventanas;
    static MonitorQt monitor;
    static RegionalQt regional;
    static ProcesoQt proceso;
    static ImpresorasQt impresoras;
    static AyudaQt ayuda;
#ifdef _WIN32
    // Windows keeps the viewer and the browser in its registry, and offers mail through
    // Simple MAPI; the mailto: handler stands in where no mail service answers.
    static ApiRegistroWindows registro;
    static ArrancadorWindows arrancador;
    static EscritorioRegistro escritorio(registro, arrancador);
    static ApiMapiWindows mapi;
    static CorreoQt correoMailto;
    static CorreoMapi correo(mapi, correoMailto);
#else
    static EscritorioQt escritorio;
    static CorreoQt correo;
#endif
    Instala({&mensajes, &ficheros, &ventanas, &monitor, &regional, &proceso, &impresoras, &ayuda, &escritorio,
             &correo});
}

}  // namespace texalon::plataforma
