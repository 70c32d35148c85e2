// The main window, MDI_PRINCIPAL: the menu, the toolbar TB_BARRA and the area that holds the
// one calculation screen open at a time.
#pragma once

#include "platform/Plataforma.h"
#include "shell/FmPresentacion.h"
#include "shell/Pantallas.h"
#include "state/General.h"

#include <QKeySequence>
#include <QList>
#include <QMainWindow>
#include <QPoint>
#include <QPointer>
#include <functional>
#include <optional>

class QMdiArea;
class QMdiSubWindow;
class QToolBar;

namespace texalon {

class Formulario;
class FormularioCalculo;
struct OrdenPrincipal;

class MdiPrincipal : public QMainWindow {
    Q_OBJECT
public:
    static constexpr int kAncho = 800;  // 12000 twips at 15 twips a pixel
    static constexpr int kAlto = 600;  // 9000 twips

    // Creates the window and runs its load: the flags, the resolution test, the splash and the
    // start values of the project. A screen too small ends the process there.
    explicit MdiPrincipal(QWidget* padre = nullptr);
    // The child windows go with the main window; their signals must not reach it on the way.
    ~MdiPrincipal() override;

    // False when the load ended the process because the screen is too small.
    bool Cargada() const { return cargada_; }

    QMdiArea* Area() const { return area_; }
    // The splash while it is up.
    FmPresentacion* Presentacion() const { return presentacion_; }
    // A menu item by its name ("mnuPrincipalGuardar").
    QAction* ElementoMenu(const QString& nombre) const;
    // A toolbar button by its place from 1, the leading separator counted as button 1.
    QAction* Boton(int indice) const;
    QToolBar* Barra() const { return barra_; }

    // Menu and toolbar follow the active screen: each screen calls these on its activation
    // and on its unload.
    void PantallaActivada(Pantalla pantalla);
    void PantallaDescargada();

    // Unloads the open calculation screen, if any, through its close prompt.
    void CierraPantallaAbierta();

    // The screen open now, if any.
    Formulario* PantallaAbierta() const;

    // The commands of the menu and the toolbar.
    //
    // Open, Save and Save As end at once on any error, and a Cancel in their file dialog is
    // one: the menu's handlers then clear F_ABIERTO, the toolbar's leave it as it was.
    enum class Via { Menu, Barra };
    void Abrir(Via via);
    void Guardar(Via via);
    void AbrirDesdeMenu() { Abrir(Via::Menu); }
    void AbrirDesdeBarra() { Abrir(Via::Barra); }
    // Opens the named project as Open does after its dialog, with the same checks, messages
    // and screen: the file given on the command line, or dropped on the window.
    void AbrirFichero(const QString& fichero);
    void GuardarDesdeMenu() { Guardar(Via::Menu); }
    void GuardarDesdeBarra() { Guardar(Via::Barra); }
    void GuardarComo();
    // New flexure, rectangular or T, and New confinement: a new project of the screen's kind,
    // its start values written, on its screen. Characteristics: its screen, with the state as
    // it is.
    void NuevaFlexion() { Nueva(Pantalla::Flexion); }
    void NuevaFlexionT() { Nueva(Pantalla::FlexionT); }
    void NuevoConfinamiento() { Nueva(Pantalla::Confina); }
    void Caracteristicas() { Nueva(Pantalla::Carac); }
    void AcercaDe();
    // The report of the open screen on the current printer, under the hourglass: the
    // characteristics at once, a calculation screen only when its results answer for its data.
    void Imprimir();
    // FM_CONFIG_IMPR: the printer of the reports for the rest of the run.
    void ConfigurarImpresora();
    void Salir();
    // The help on the topic of the open screen, or its contents with none; the guide in the
    // PDF reader; the maker's web site; a mail to the maker.
    void AyudaPrograma();
    void Guia();
    void Web();
    void Contactar();

    // The one click handler of the toolbar, told the button's key ("Abrir", "FlexionR"...): the
    // bar redrawn and the splash closed, then the button's command.
    void TB_BARRA_ButtonClick(const QString& clave);

protected:
    void showEvent(QShowEvent* evento) override;
    void moveEvent(QMoveEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Carga();
    bool ResolucionSuficiente() const;
    void CreaMenu();
    void CreaBarra();
    void CierraPresentacion();
    void CentraPresentacion();
    void DevuelveTamano();
    void ActivaGuardarEImprimir(bool guardar, bool imprimir);
    // The menu item and the toolbar button of a command of the window's table.
    QAction* ElementoDe(const OrdenPrincipal& orden) const;
    QAction* BotonDe(const OrdenPrincipal& orden) const;
    void Nueva(Pantalla pantalla);
    void MuestraPantalla(Pantalla pantalla);

    // How Open and the saves end: done, or stopped by a Cancel in the file dialog.
    enum class Fin { Completa, Cancelada };
    Fin AbreProyecto();
    void LeeProyecto(const plataforma::FicheroElegido& elegido);
    Fin GuardaProyecto(bool preguntaSiempre);
    void OrdenDeFichero(Via via, const std::function<Fin()>& orden);
    // The screen of a row, when its window is open; none for no row.
    Formulario* PantallaDe(const FilaPantalla* fila) const;
    // The calculation screen of a row, as above.
    FormularioCalculo* PantallaDeCalculo(const FilaPantalla* fila) const;
    void VentanaActivada(QMdiSubWindow* ventana);
    QMdiSubWindow* Ventana(const FilaPantalla& fila) const;

    QMdiArea* area_ = nullptr;
    QToolBar* barra_ = nullptr;
    QPointer<FmPresentacion> presentacion_;
    QList<QKeySequence> atajos_;
    bool cargada_ = false;
    bool ajustando_ = false;
    bool centrada_ = false;
    // The place of the window's inside at its own size, kept for the spring-back.
    std::optional<QPoint> posicion_;
};

}  // namespace texalon
