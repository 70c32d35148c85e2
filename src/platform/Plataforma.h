// Everything the program asks of the operating system goes through these interfaces: the
// message box, the file dialogs, modal windows, the screen size, the decimal separator, the end
// of the process, the printers, the help, the desktop's viewers and browser, and the mail. The program installs the Qt implementations at start-up; the
// tests install doubles that record what was asked and answer from a script, so no test ever
// waits on a person.
#pragma once

#include "platform/Impresora.h"
#include "state/ErrorEjecucion.h"

#include <QSizeF>
#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>

class QDialog;

namespace texalon::plataforma {

// The title of every message box of the program.
inline const QString kTituloMensajes = QStringLiteral("VELMORA - TEXALON®");

// Message box styles, numbered as the classic message box numbers them.
enum class Estilo : int {
    Parada = 16,  // stop icon, one button
    PreguntaSiNo = 36,  // question icon, Yes and No
    Exclamacion = 48,  // exclamation icon, one button
    Informacion = 64,  // information icon, one button
};

enum class Respuesta : int { Aceptar = 1, Si = 6, No = 7 };

class Mensajes {
public:
    virtual ~Mensajes() = default;
    // Shows the text with the program's title. A carriage return alone breaks the line.
    virtual Respuesta Muestra(const QString& texto, Estilo estilo) = 0;
};

// One use of the file dialog: the filter in the classic form "Descripción|*.EXT|...", the
// filter shown first (from 1) and the proposed file name.
struct DialogoFichero {
    QString filtro;
    int indiceFiltro = 1;
    QString nombre;
};

// What the user chose: the full path of the file and the directory it is in.
struct FicheroElegido {
    QString fichero;
    QString directorio;
};

class Ficheros {
public:
    virtual ~Ficheros() = default;
    // Both return nothing when the user cancels. Saving asks before replacing a file.
    virtual std::optional<FicheroElegido> Abrir(const DialogoFichero& dialogo) = 0;
    virtual std::optional<FicheroElegido> Guardar(const DialogoFichero& dialogo) = 0;
};

class Ventanas {
public:
    virtual ~Ventanas() = default;
    // Shows a dialog modally and returns its result code when it closes.
    virtual int MuestraModal(QDialog& dialogo) = 0;
};

class Monitor {
public:
    virtual ~Monitor() = default;
    // Size of the screen in pixels.
    virtual QSizeF Tamano() const = 0;
};

class Regional {
public:
    virtual ~Regional() = default;
    // The decimal separator of the machine's regional settings: ',' or '.'.
    virtual char SeparadorDecimal() const = 0;
};

class Proceso {
public:
    virtual ~Proceso() = default;
    // Ends the process at once. The caller returns straight after the call, so that a double
    // that records the end instead leaves nothing running behind it.
    virtual void Termina(int codigo) = 0;
    // A run-time error that nothing trapped: its message, then the end of the process.
    virtual void ErrorFatal(const ErrorEjecucion& error) = 0;
};

class Ayuda {
public:
    virtual ~Ayuda() = default;
    // Shows the topic of the help file with that context number, or the contents page. A help
    // file that is missing is the help's own business: it says so in its window.
    virtual void MuestraTema(const QString& ficheroAyuda, int contexto) = 0;
    virtual void MuestraContenido(const QString& ficheroAyuda) = 0;
};

// The programs of the desktop: the viewer associated with a local file, and the browser.
class Escritorio {
public:
    virtual ~Escritorio() = default;
    // False when no program could be found or started for it.
    virtual bool AbreFichero(const QString& fichero) = 0;
    virtual bool AbreDireccion(const QString& direccion) = 0;
};

// The user's mail program: one session a run, then a new message shown for the user to edit
// and send from there.
class Correo {
public:
    virtual ~Correo() = default;
    virtual bool IniciaSesion() = 0;
    // A new message with its subject and recipient, in the mail program's own window; false
    // when it could not be composed or the user cancelled it.
    virtual bool Redacta(const QString& asunto, const QString& destinatario) = 0;
    virtual void CierraSesion() = 0;
};

// The services in use.
Mensajes& ServicioMensajes();
Ficheros& ServicioFicheros();
Ventanas& ServicioVentanas();
Monitor& ServicioMonitor();
Regional& ServicioRegional();
Proceso& ServicioProceso();
Impresoras& ServicioImpresoras();
Ayuda& ServicioAyuda();
Escritorio& ServicioEscritorio();
Correo& ServicioCorreo();

struct Servicios {
    Mensajes* mensajes = nullptr;
    Ficheros* ficheros = nullptr;
    Ventanas* ventanas = nullptr;
    Monitor* monitor = nullptr;
    Regional* regional = nullptr;
    Proceso* proceso = nullptr;
    Impresoras* impresoras = nullptr;
    Ayuda* ayuda = nullptr;
    Escritorio* escritorio = nullptr;
    Correo* correo = nullptr;
};

// Puts a set of services in place and returns the set it replaces.
Servicios Instala(const Servicios& servicios);

// Shorthand for the message box of the program.
inline Respuesta MsgBox(const QString& texto, Estilo estilo) { return ServicioMensajes().Muestra(texto, estilo); }

// Runs an event handler of the program. A run-time error that it raises ends here, as the
// classic runtime ended it: the error's message, then the end of the process. Qt's own code,
// which calls the handler, never sees the exception go through it.
template <typename Manejador>
void AtrapaErrorFatal(Manejador manejador)
{
    try {
        manejador();
    } catch (const ErrorEjecucion& error) {
        ServicioProceso().ErrorFatal(error);
    }
}

// A number in one of the program's formats ("0", "0.00"...) with the machine's decimal
// separator, as the screens and reports show numbers.
QString FormatoLocal(double valor, std::string_view patron);

// The folder of the program's help and guide: "share/texalon" beside the folder of the
// program, as an installation lays it out, when that holds the help; otherwise the folder of
// the program itself, as in the build tree.
QString UbicaDatos(const QString& directorioPrograma);
// The same for the running program.
QString DirectorioDatos();

// The message of a run-time error that nothing trapped, as the classic runtime words it.
QString TextoErrorFatal(const ErrorEjecucion& error);

}  // namespace texalon::plataforma
