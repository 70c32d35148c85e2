// The Qt implementations of the platform services, as the program uses them.
#pragma once

#include "platform/Plataforma.h"

#include <QUrl>
#include <memory>

class QMessageBox;
class QWidget;

namespace texalon::plataforma {

class MensajesQt final : public Mensajes {
public:
    Respuesta Muestra(const QString& texto, Estilo estilo) override;
};

class FicherosQt final : public Ficheros {
public:
    std::optional<FicheroElegido> Abrir(const DialogoFichero& dialogo) override;
    std::optional<FicheroElegido> Guardar(const DialogoFichero& dialogo) override;
};

class VentanasQt final : public Ventanas {
public:
    int MuestraModal(QDialog& dialogo) override;
};

class MonitorQt final : public Monitor {
public:
    QSizeF Tamano() const override;
};

class RegionalQt final : public Regional {
public:
    char SeparadorDecimal() const override;
};

class ProcesoQt final : public Proceso {
public:
    void Termina(int codigo) override;
    void ErrorFatal(const ErrorEjecucion& error) override;
};

// The help window of the program, one for the run, created when first asked for.
class VentanaAyuda;
class AyudaQt final : public Ayuda {
public:
    void MuestraTema(const QString& ficheroAyuda, int contexto) override;
    void MuestraContenido(const QString& ficheroAyuda) override;
    VentanaAyuda* Ventana() const;

private:
    void Muestra(const QString& ficheroAyuda, int contexto);
};

// The viewer associated with a file and the default browser, as the desktop says.
class EscritorioQt final : public Escritorio {
public:
    bool AbreFichero(const QString& fichero) override;
    bool AbreDireccion(const QString& direccion) override;
};

// The desktop's mail program, reached through a "mailto:" address: it needs no sign-on, and the
// message is edited and sent there.
class CorreoQt final : public Correo {
public:
    bool IniciaSesion() override { return true; }
    bool Redacta(const QString& asunto, const QString& destinatario) override;
    void CierraSesion() override {}
};

// A "mailto:" address with its subject, as desktop mail programs read it.
QUrl DireccionCorreo(const QString& asunto, const QString& destinatario);
// A web address written without a scheme, as the program keeps it, ready for the browser.
QUrl DireccionWeb(const QString& direccion);

// Installs the Qt services for the life of the process.
void InstalaQt();

// Puts the program's pictures (":/imagenes/...") within reach. They are compiled into the
// platform; InstalaQt and the printers call this, so any program that uses either has them.
void RegistraImagenes();

// The classic filter "Descripción|*.VMF|Otra|*.VMC;*.VMF" as Qt's list of name filters. Each
// pattern is offered in capitals and in small letters, since file names on this system tell
// the two apart and the program does not.
QStringList FiltrosQt(const QString& filtro);

// The extension a save dialog adds to a name typed without one: that of the filter's first
// pattern, in small letters ("vmf" for "Archivos TEXALON - Flexión|*.VMF").
QString ExtensionPorDefecto(const QString& filtro);

// The message box of the program, ready to be shown: the text, the icon and buttons of the
// style, the program's title, the frame of the program's dialogs.
std::unique_ptr<QMessageBox> CajaDeMensaje(const QString& texto, Estilo estilo, QWidget* padre);

// A carriage return alone breaks a line in a classic message box; Qt wants a line feed.
QString TextoParaMostrar(const QString& texto);

}  // namespace texalon::plataforma
