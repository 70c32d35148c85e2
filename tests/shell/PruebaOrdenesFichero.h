// Open, Save and Save As of the main window, end to end: the real screens, the real files in a
// temporary folder, the platform doubles in place of the dialogs and the message box. The tests
// stand in files by behaviour: the dialogs, Cancel, the menu and toolbar and About
// (test_ordenes_fichero.cpp), opening files (ordenes_fichero_abrir.cpp), and saving and the
// flags of each command (ordenes_fichero_guardar.cpp).
#pragma once

#include "comun/Filas.h"
#include "comun/Pantallas.h"
#include "comun/Principal.h"
#include "comun/Usuario.h"
#include "platform/dobles/PlataformaDoble.h"
#include "screens/Entrada.h"
#include "screens/Formulario.h"
#include "screens/RejillaResultados.h"
#include "shell/Aplicacion.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>
#include <memory>
#include <vector>

using namespace texalon;
using namespace texalon::plataforma;

inline const QString kFiltroAbrir = QStringLiteral(
    "Archivos TEXALON - Flexión|*.VMF|Archivos TEXALON - Confinamiento|*.VMC|Archivos TEXALON|*.VMC;*.VMF");
inline const QString kFiltroFlexion = QStringLiteral("Archivos TEXALON - Flexión|*.VMF");
inline const QString kFiltroConfina = QStringLiteral("Archivos TEXALON - Confinamiento|*.VMC");

inline const QString kAlmacenados = QStringLiteral("Los datos almacenados no son correctos.");
inline const QString kIntroducidos = QStringLiteral("Los datos introducidos no son correctos.");
inline const QString kPregunta = QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?");

// Good projects, as a hand or another machine could have written them.
inline const QByteArray kRectangular =
    "1\r\n0.3\r\n0.5\r\n0.04\r\n12\r\n2\r\n30\r\n400\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n10\r\n80\r\n";
inline const QByteArray kSeccionT =
    "2\r\n0.8\r\n0.7\r\n0.3\r\n0.15\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.25\r\n0\r\n120\r\n";
inline const QByteArray kConfina = "3\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n1200\r\n1\r\n";

// Save and Save As, each by its menu item.
inline const std::pair<const char*, const char*> kGuardarYGuardarComo[] = {{"Guardar", "mnuPrincipalGuardar"},
                                                                           {"Guardar como", "mnuPrincipalGuardarcomo"}};

inline QString Parada(const QString& texto) { return prueba::Mensaje(texto, Estilo::Parada); }
inline QString Exclamacion(const QString& texto) { return prueba::Mensaje(texto, Estilo::Exclamacion); }
inline QString Pregunta() { return prueba::Mensaje(kPregunta, Estilo::PreguntaSiNo); }

// A field typed by the user: its control and the text, written with a comma.
struct Tecleo {
    const char* control;
    const char* texto;
};

inline const std::vector<Tecleo> kTecleoRectangular = {
    {"TX_ANCHO", "0,35"}, {"TX_CANTO", "0,7"}, {"TX_RECUB", "0,04"}, {"TX_ASI", "12,5"}, {"TX_ASS", "3,2"},
    {"TX_MCP", "20"},     {"TX_MD", "150"},    {"CO_FCK", "27"},     {"CO_FYK", "400"},  {"CO_ANCHOR", "0,25"},
};

inline const std::vector<Tecleo> kTecleoT = {
    {"TX_ANCHO", "0,8"},  {"TX_ANCHOALMA", "0,3"}, {"TX_CANTO", "0,7"}, {"TX_CANTOALA", "0,15"},
    {"TX_RECUB", "0,04"}, {"TX_ASI", "12,5"},      {"TX_ASS", "3,2"},   {"TX_MCP", "20"},
    {"TX_MD", "150"},     {"CO_FCK", "27"},        {"CO_FYK", "400"},   {"CO_ANCHOR", "0,25"},
};

// CO_SECCION goes to RECTANGULAR with the keys before these: the smaller side is greyed till then.
inline const std::vector<Tecleo> kTecleoConfina = {
    {"TX_DIAM", "0,5"}, {"TX_LADOMENOR", "0,4"}, {"TX_INCR", "1,2"}, {"TX_NCP", "800"}, {"CO_FCK", "27"},
};

inline const std::vector<Tecleo>& TecleoDe(const QString& pantalla)
{
    if (pantalla == QLatin1String("FM_FLEXIONT")) return kTecleoT;
    if (pantalla == QLatin1String("FM_CONFINA")) return kTecleoConfina;
    return kTecleoRectangular;
}

// The controls whose texts a project shows, inputs and the values the screen works out.
inline QStringList ControlesDe(const QString& pantalla)
{
    if (pantalla == QLatin1String("FM_CONFINA"))
        return {"CO_SECCION", "TX_DIAM", "TX_LADOMENOR", "TX_INCR", "TX_NCP", "CO_FCK", "TX_ALFAN", "TX_NU"};
    QStringList controles;
    for (const Tecleo& t : TecleoDe(pantalla))
        controles << QString::fromLatin1(t.control);
    return controles;
}

// The project values of the state that a file of that screen holds.
inline std::vector<double> ValoresDe(const QString& pantalla)
{
    const General& g = Estado();
    if (pantalla == QLatin1String("FM_CONFINA"))
        return {static_cast<double>(g.SECCION), g.DIAM, g.LADOMENOR, g.FCK, g.GC, g.GS, g.GR, g.NCP, g.INCR};
    std::vector<double> valores = {g.ANCHO, g.CANTO};
    if (pantalla == QLatin1String("FM_FLEXIONT")) valores.insert(valores.end(), {g.ANCHOALMA, g.CANTOALA});
    valores.insert(valores.end(), {g.RECUB, g.ASI, g.ASS, g.FCK, g.FYK, g.GC, g.GS, g.GR, g.ANCHOR, g.MCP, g.MD});
    return valores;
}

// The same texts under the other decimal setting.
inline QString OtroSeparador(QString texto)
{
    for (QChar& c : texto) {
        if (c == QLatin1Char(','))
            c = QLatin1Char('.');
        else if (c == QLatin1Char('.'))
            c = QLatin1Char(',');
    }
    return texto;
}

class PruebaOrdenesFichero : public prueba::PruebaDePrincipal {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> carpeta_;

    QString Ruta(const char* nombre) const { return carpeta_->filePath(QString::fromUtf8(nombre)); }

    static void Crea(const QString& ruta, const QByteArray& contenido)
    {
        QFile fichero(ruta);
        if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size())
            qWarning("no se ha podido escribir %s", qPrintable(ruta));
    }

    static QByteArray Contenido(const QString& ruta)
    {
        QFile fichero(ruta);
        return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray("(no existe)");
    }

    QStringList FicherosDeLaCarpeta() const
    {
        return QDir(carpeta_->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    }

    // The user's next choice in a file dialog.
    void Elige(const QString& ruta)
    {
        doble_->ficheros.respuestas.push_back(FicheroElegido{ruta, QFileInfo(ruta).absolutePath()});
    }
    void Cancela() { doble_->ficheros.respuestas.push_back(std::nullopt); }

    // A command by the name of its menu item ("mnuPrincipalGuardar") or the key of its toolbar
    // button ("Guardar").
    bool Ejecuta(const QString& orden)
    {
        return orden.startsWith(QLatin1String("mnu")) ? Orden(qPrintable(orden)) : Boton(qPrintable(orden));
    }

    QString NombreAbierta() const
    {
        Formulario* pantalla = Abierta();
        return pantalla == nullptr ? QString() : pantalla->objectName();
    }
    QWidget* C(const char* nombre) const { return Abierta()->Control(QString::fromLatin1(nombre)); }
    QString Texto(const char* nombre) const { return TextoDe(C(nombre)); }

    // The user closes the screen with its close button.
    void CierraPantalla()
    {
        if (QMdiSubWindow* ventana = ventana_->Area()->activeSubWindow()) ventana->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QStringList TextosDe(const QString& pantalla) const
    {
        QStringList textos;
        for (const QString& control : ControlesDe(pantalla))
            textos << TextoDe(Abierta()->Control(control));
        return textos;
    }

    bool MenuActivo(const char* nombre) const
    {
        return ventana_->ElementoMenu(QString::fromLatin1(nombre))->isEnabled();
    }

    // Guardar, Guardar como and Imprimir of the menu, then buttons 3 and 4 of the toolbar.
    QList<bool> EstadoDeLasOrdenes() const
    {
        return {MenuActivo("mnuPrincipalGuardar"), MenuActivo("mnuPrincipalGuardarcomo"),
                MenuActivo("mnuPrincipalImprimir"), ventana_->Boton(3)->isEnabled(), ventana_->Boton(4)->isEnabled()};
    }

    // CO_SECCION from its first row to RECTANGULAR, with the keys.
    void SeccionRectangularConTeclado()
    {
        auto* seccion = qobject_cast<QComboBox*>(C("CO_SECCION"));
        if (!prueba::Enfoca(seccion)) qWarning("CO_SECCION no ha tomado el foco");
        QTest::keyClick(seccion, Qt::Key_Down);
        QTest::keyClick(seccion, Qt::Key_Down);
    }

    void TecleaProyecto(const QString& pantalla)
    {
        if (pantalla == QLatin1String("FM_CONFINA")) SeccionRectangularConTeclado();
        for (const Tecleo& t : TecleoDe(pantalla))
            prueba::EscribeYTabula(C(t.control), Sep(t.texto));
    }

    // The first choice of the Open dialog and its command, from the menu.
    void AbreDesdeMenu(const QString& ruta)
    {
        Elige(ruta);
        Orden("mnuPrincipalAbrir");
    }

    // A project file of that name and contents in the folder, opened from the menu: its path.
    QString AbreFichero(const QString& nombre, const QByteArray& contenido)
    {
        const QString ruta = carpeta_->filePath(nombre);
        Crea(ruta, contenido);
        AbreDesdeMenu(ruta);
        return ruta;
    }

    // Save As, the user choosing that path in its dialog; tells whether the command was available.
    bool GuardaComo(const QString& ruta)
    {
        Elige(ruta);
        return Orden("mnuPrincipalGuardarcomo");
    }

    // The filter, its index and the name that the last Save dialog offered.
    QStringList DialogoDeGuardar() const
    {
        const auto& dialogo = doble_->ficheros.guardados.back();
        return {dialogo.filtro, QString::number(dialogo.indiceFiltro), dialogo.nombre};
    }

    // The project's flags before a command: the state.
    static const General& PonBanderas(bool abierto, bool grabado, bool nuevo, bool modificado)
    {
        General& g = Estado();
        g.F_ABIERTO = abierto;
        g.F_GRABADO = grabado;
        g.F_NUEVO = nuevo;
        g.F_MODIFICADO = modificado;
        return g;
    }

private slots:
    // Every test starts on the main window with its splash gone, over a folder of its own.
    void init()
    {
        carpeta_ = std::make_unique<QTemporaryDir>();
        QVERIFY(carpeta_->isValid());
        Arranca();
    }
    void cleanup()
    {
        if (ventana_ && doble_) {
            // A prompt left at the end is answered No, and no dialog is waiting.
            doble_->mensajes.respuestas.clear();
            doble_->ficheros.respuestas.clear();
            ventana_->Area()->closeAllSubWindows();
        }
        ventana_.reset();
        doble_.reset();
        carpeta_.reset();
    }
    void abrirMuestraLosTresFiltrosDesdeElTercero();
    void abrirGuardaElFicheroYLaCarpetaElegidos();
    void guardarUnaPantallaNuevaOfreceSuTipoYSuNombre_data();
    void guardarUnaPantallaNuevaOfreceSuTipoYSuNombre();
    void abrirCierraAntesLaPantallaConSuPreguntaYCancelarNoDejaNinguna();
    void cancelarAbrirDesdeElMenuBorraAbiertoYDesdeLaBarraNo_data();
    void cancelarAbrirDesdeElMenuBorraAbiertoYDesdeLaBarraNo();
    void cancelarGuardarEnUnaPantallaNuevaNoTocaNadaYLaPantallaSigue_data();
    void cancelarGuardarEnUnaPantallaNuevaNoTocaNadaYLaPantallaSigue();
    void abrirUnFicheroBuenoAbreLaPantallaDeSuTipo_data();
    void abrirUnFicheroBuenoAbreLaPantallaDeSuTipo();
    void abrirDesdeLaBarraAbreIgualQueDesdeElMenu();
    void abrirUnFicheroQueNoPasaLasComprobacionesSoloDiceQueNoEsCorrecto_data();
    void abrirUnFicheroQueNoPasaLasComprobacionesSoloDiceQueNoEsCorrecto();
    void abrirUnFicheroQueFallaDaSuErrorYLuegoQueNoEsCorrecto_data();
    void abrirUnFicheroQueFallaDaSuErrorYLuegoQueNoEsCorrecto();
    void abrirUnNombreDeOtraExtensionNoHaceNada_data();
    void abrirUnNombreDeOtraExtensionNoHaceNada();
    void guardarUnaPantallaAbiertaDeFicheroEscribeEnElSinDialogo_data();
    void guardarUnaPantallaAbiertaDeFicheroEscribeEnElSinDialogo();
    void atajosDeGuardarYAbrirDesdeUnCampoTecleado();
    void guardarComoPreguntaSiempreTambienTrasGuardar();
    void guardarComoEnConfinamientoOfreceSuTipo();
    void guardarTrasCalcularNoTocaElCalculo_data();
    void guardarTrasCalcularNoTocaElCalculo();
    void guardarConUnCampoQueNoEsNumeroLoRechazaSinDialogo_data();
    void guardarConUnCampoQueNoEsNumeroLoRechazaSinDialogo();
    void escrituraFallidaGuardarNoLaDaPorGrabadaYGuardarComoSi_data();
    void escrituraFallidaGuardarNoLaDaPorGrabadaYGuardarComoSi();
    void nuevaPoneLasBanderasDeSuTabla_data();
    void nuevaPoneLasBanderasDeSuTabla();
    void abrirPoneLasBanderasDeSuTabla_data();
    void abrirPoneLasBanderasDeSuTabla();
    void guardarYGuardarComoPonenLasBanderasDeSuTabla_data();
    void guardarYGuardarComoPonenLasBanderasDeSuTabla();
    void idaYVueltaDeUnProyectoTecleado_data();
    void idaYVueltaDeUnProyectoTecleado();
    void menuYBarraSiguenALaPantallaTrasLasOrdenes_data();
    void menuYBarraSiguenALaPantallaTrasLasOrdenes();
    void caracteristicasTrasUnaPantallaDeCalculoDejaGuardarApagado();
    void elGrDeLosCoeficientesLlegaALaTablaDeCaracteristicas();
    void guardarEnCaracteristicasNoHaceNada();
    void acercaDeEnConfinamientoCopiaElTextoTecleadoYAbreLaCaja_data();
    void acercaDeEnConfinamientoCopiaElTextoTecleadoYAbreLaCaja();
    void acercaDeConAbcEnElDiametroNoAbreNiDiceNada();
};
