#include "shell/MdiPrincipal.h"

#include "platform/Plataforma.h"
#include "screens/FormularioCalculo.h"
#include "screens/Imagenes.h"
#include "shell/Ayuda.h"
#include "shell/FmAcercaDe.h"
#include "shell/FmPresentacion.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QToolBar>
#include <QUrl>
#include <span>

namespace texalon {

// One command of the main window, written once and read by the menu and the toolbar: its menu
// item's name, caption, shortcut, state at start and action; and, for a command the toolbar
// carries, the button's key, tooltip, picture and action. Open and Save from the toolbar leave
// F_ABIERTO as it was when their dialog is cancelled, so the toolbar has an action of its own
// there; elsewhere it does what the menu does. A separator is an item with a name and nothing
// else. No command has a help topic of its own: F1 gives the open screen's.
struct OrdenPrincipal {
    using Accion = void (MdiPrincipal::*)();

    const char* nombre;
    const char* titulo = nullptr;
    const char* atajo = "";
    bool activo = true;
    Accion desdeMenu = nullptr;
    const char* clave = nullptr;
    const char* consejo = nullptr;
    const char* imagen = nullptr;
    Accion desdeBarra = nullptr;

    Accion AccionDeBarra() const { return desdeBarra != nullptr ? desdeBarra : desdeMenu; }
};

namespace {

// clang-format off
// Each command: menu item, caption, shortcut, state at start, action; then, on the toolbar, key,
// tooltip, picture and, where it differs, the toolbar's own action.
constexpr OrdenPrincipal kAbrir{"mnuPrincipalAbrir", "&Abrir datos", "Ctrl+A", true, &MdiPrincipal::AbrirDesdeMenu,
    "Abrir", "Abrir", "abrir", &MdiPrincipal::AbrirDesdeBarra};
constexpr OrdenPrincipal kGuardar{"mnuPrincipalGuardar", "&Guardar datos", "Ctrl+S", false, &MdiPrincipal::GuardarDesdeMenu,
    "Guardar", "Guardar", "guardar", &MdiPrincipal::GuardarDesdeBarra};
constexpr OrdenPrincipal kGuardarComo{"mnuPrincipalGuardarcomo", "G&uardar datos como...", "", false, &MdiPrincipal::GuardarComo};
constexpr OrdenPrincipal kImprimir{"mnuPrincipalImprimir", "&Imprimir", "Ctrl+I", false, &MdiPrincipal::Imprimir,
    "Imprimir", "Imprimir", "imprimir"};
constexpr OrdenPrincipal kConfigurar{"mnuPrincipalConfigurar", "&Configurar impresora", "", true, &MdiPrincipal::ConfigurarImpresora};
constexpr OrdenPrincipal kSalir{"mnuPrincipalSalir", "&Salir", "F7", true, &MdiPrincipal::Salir};
constexpr OrdenPrincipal kFlexion{"mnuCalcularFlexion", "Refuerzo a &flexión. Sección rectangular", "Ctrl+R", true, &MdiPrincipal::NuevaFlexion,
    "FlexionR", "Refuerzo a flexión. Sección rectangular", "flexion_r"};
constexpr OrdenPrincipal kFlexionT{"mnuCalcularFlexionT", "Refuerzo a fle&xión. Sección en T", "Ctrl+T", true, &MdiPrincipal::NuevaFlexionT,
    "FlexionT", "Refuerzo a flexión. Sección en T", "flexion_t"};
constexpr OrdenPrincipal kConfina{"mnuCalcularConfina", "Refuerzo a con&finamiento", "Ctrl+C", true, &MdiPrincipal::NuevoConfinamiento,
    "Confina", "Refuerzo de confinamiento", "confina"};
constexpr OrdenPrincipal kCarac{"mnuCalcularCarac", "Ca&racterísticas mecánicas del refuerzo", "", true, &MdiPrincipal::Caracteristicas,
    "Carac", "Características mecánicas", "carac"};
constexpr OrdenPrincipal kAyudaPrograma{"mnuAyudaPrograma", "Ayuda del programa", "F1", true, &MdiPrincipal::AyudaPrograma,
    "Ayuda", "Ayuda del programa", "ayuda"};
constexpr OrdenPrincipal kManual{"mnuAyudaManual", "Manual de referencia", "", true, &MdiPrincipal::Guia,
    "Guia", "Manual de referencia", "guia"};
constexpr OrdenPrincipal kWeb{"mnuAyudaWeb", "Velmora en la web", "", true, &MdiPrincipal::Web,
    "Web", "Velmora en la web", "web"};
constexpr OrdenPrincipal kContactar{"mnuAyudaContactar", "Contactar con Velmora", "", true, &MdiPrincipal::Contactar,
    "Mail", "Contactar con Velmora", "mail"};
constexpr OrdenPrincipal kAcerca{"mnuAyudaAcerca", "Acerca de...", "", true, &MdiPrincipal::AcercaDe,
    "Info", "Acerca de...", "info"};
// clang-format on

constexpr OrdenPrincipal kPrincipalNada1{"mnuPrincipalNada1"};
constexpr OrdenPrincipal kPrincipalNada2{"mnuPrincipalNada2"};
constexpr OrdenPrincipal kCalcularNada1{"mnuCalcularNada1"};
constexpr OrdenPrincipal kAyudaNada1{"mnuAyudaNada1"};
constexpr OrdenPrincipal kAyudaNada2{"mnuAyudaNada2"};

constexpr const OrdenPrincipal* kPrincipal[] = {&kAbrir,    &kGuardar,    &kGuardarComo,    &kPrincipalNada1,
                                                &kImprimir, &kConfigurar, &kPrincipalNada2, &kSalir};
constexpr const OrdenPrincipal* kCalcular[] = {&kFlexion, &kFlexionT, &kConfina, &kCalcularNada1, &kCarac};
constexpr const OrdenPrincipal* kAyuda[] = {&kAyudaPrograma, &kManual,     &kAyudaNada1, &kWeb,
                                            &kContactar,     &kAyudaNada2, &kAcerca};

struct Menu {
    const char* nombre;
    const char* titulo;
    std::span<const OrdenPrincipal* const> ordenes;
};

constexpr Menu kMenus[] = {
    {"mnuPrincipal", "&Principal", kPrincipal},
    {"mnuCalcular", "&Calcular", kCalcular},
    {"mnuAyuda", "&Ayuda", kAyuda},
};

// The toolbar's buttons after its leading separator, in their order.
constexpr const OrdenPrincipal* kBarra[] = {&kAbrir,   &kGuardar,       &kImprimir, &kCarac, &kFlexion,   &kFlexionT,
                                            &kConfina, &kAyudaPrograma, &kManual,   &kWeb,   &kContactar, &kAcerca};

}  // namespace

MdiPrincipal::MdiPrincipal(QWidget* padre) : QMainWindow(padre)
{
    setObjectName(QStringLiteral("MDI_PRINCIPAL"));
    setWindowTitle(QStringLiteral("VELMORA - Programa para el cálculo del refuerzo TEXALON®"));

    area_ = new QMdiArea(this);
    area_->setObjectName(QStringLiteral("AreaPantallas"));
    area_->setBackground(palette().brush(QPalette::Dark));
    area_->viewport()->installEventFilter(this);
    setCentralWidget(area_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MdiPrincipal::VentanaActivada);

    CreaMenu();
    CreaBarra();
    qApp->installEventFilter(this);
    // A project dropped on the window opens as Open opens it.
    setAcceptDrops(true);
    resize(kAncho, kAlto);
    Carga();
}

MdiPrincipal::~MdiPrincipal()
{
    area_->disconnect(this);
    if (presentacion_) presentacion_->disconnect(this);
    for (QMdiSubWindow* ventana : area_->subWindowList())
        if (ventana->widget() != nullptr) ventana->widget()->disconnect(this);
}

void MdiPrincipal::Carga()
{
    General& g = Estado();
    g.F_ERROR = false;
    g.F_PRESENTACION = false;
    g.F_ABIERTO = false;
    g.F_CALCULADO = false;
    g.F_GRABADO = false;
    g.F_MODIFICADO = false;
    g.F_MAPI = false;
    for (const FilaPantalla& fila : FilasPantallas())
        g.*fila.abierta = false;
    g.F_NUEVO = true;

    if (!ResolucionSuficiente()) {
        plataforma::MsgBox(QStringLiteral("La resolución mínima requerida por la aplicación es 800x600.\r"
                                          "Cambie la resolución de su ordenador y vuelva a ejecutar el programa."),
                           plataforma::Estilo::Parada);
        plataforma::ServicioProceso().Termina(1);
        return;
    }

    presentacion_ = new FmPresentacion(this);
    // When the splash goes, the main window takes the keyboard back.
    connect(presentacion_, &QObject::destroyed, this, [this] {
        if (isVisible()) activateWindow();
    });
    presentacion_->show();

    ValoresIniciales(g);
    cargada_ = true;
}

bool MdiPrincipal::ResolucionSuficiente() const
{
    // On purpose: an And, so that a screen is refused only when it is short in both directions.
    const QSizeF pantalla = plataforma::ServicioMonitor().Tamano();
    return !(pantalla.width() < kAncho && pantalla.height() < kAlto);
}

void MdiPrincipal::CreaMenu()
{
    for (const Menu& definicion : kMenus) {
        QMenu* menu = menuBar()->addMenu(QString::fromUtf8(definicion.titulo));
        menu->setObjectName(QString::fromLatin1(definicion.nombre));
        menu->menuAction()->setObjectName(QString::fromLatin1(definicion.nombre));
        connect(menu, &QMenu::aboutToShow, this, &MdiPrincipal::CierraPresentacion);
        for (const OrdenPrincipal* orden : definicion.ordenes) {
            QAction* accion =
                orden->titulo == nullptr ? menu->addSeparator() : menu->addAction(QString::fromUtf8(orden->titulo));
            accion->setObjectName(QString::fromLatin1(orden->nombre));
            accion->setEnabled(orden->activo);
            const QKeySequence atajo(QString::fromLatin1(orden->atajo));
            if (!atajo.isEmpty()) {
                accion->setShortcut(atajo);
                accion->setShortcutContext(Qt::WindowShortcut);
                atajos_ << atajo;
            }
            if (orden->desdeMenu != nullptr) connect(accion, &QAction::triggered, this, orden->desdeMenu);
        }
    }
}

void MdiPrincipal::CreaBarra()
{
    barra_ = addToolBar(QStringLiteral("TB_BARRA"));
    barra_->setObjectName(QStringLiteral("TB_BARRA"));
    barra_->setMovable(false);
    barra_->setFloatable(false);
    barra_->setContextMenuPolicy(Qt::PreventContextMenu);
    barra_->setIconSize(QSize(24, 24));
    barra_->addSeparator();
    for (const OrdenPrincipal* orden : kBarra) {
        const QString clave = QString::fromLatin1(orden->clave);
        QAction* accion =
            barra_->addAction(QIcon(QStringLiteral(":/iconos/%1.svg").arg(QString::fromLatin1(orden->imagen))),
                              QString::fromUtf8(orden->consejo));
        accion->setObjectName(clave);
        accion->setData(clave);
        accion->setToolTip(QString::fromUtf8(orden->consejo));
        accion->setEnabled(orden->activo);
    }
    connect(barra_, &QToolBar::actionTriggered, this,
            [this](QAction* accion) { TB_BARRA_ButtonClick(accion->data().toString()); });
}

QAction* MdiPrincipal::ElementoMenu(const QString& nombre) const
{
    for (QAction* accion : menuBar()->findChildren<QAction*>(nombre))
        if (!accion->menu() || accion->objectName() == nombre) return accion;
    return nullptr;
}

QAction* MdiPrincipal::Boton(int indice) const
{
    const QList<QAction*> botones = barra_->actions();
    return indice >= 1 && indice <= botones.size() ? botones.at(indice - 1) : nullptr;
}

QAction* MdiPrincipal::ElementoDe(const OrdenPrincipal& orden) const
{
    return ElementoMenu(QString::fromLatin1(orden.nombre));
}

QAction* MdiPrincipal::BotonDe(const OrdenPrincipal& orden) const
{
    return barra_->findChild<QAction*>(QString::fromLatin1(orden.clave), Qt::FindDirectChildrenOnly);
}

void MdiPrincipal::CierraPresentacion()
{
    if (Estado().F_PRESENTACION && presentacion_) presentacion_->close();
}

void MdiPrincipal::ActivaGuardarEImprimir(bool guardar, bool imprimir)
{
    ElementoDe(kGuardar)->setEnabled(guardar);
    ElementoDe(kGuardarComo)->setEnabled(guardar);
    ElementoDe(kImprimir)->setEnabled(imprimir);
    BotonDe(kImprimir)->setEnabled(imprimir);
}

void MdiPrincipal::PantallaActivada(Pantalla pantalla)
{
    if (!FilaDe(pantalla).conProyecto) {
        // On purpose: for a screen without a file, button 3 stays as the last unload left it.
        ActivaGuardarEImprimir(false, true);
        return;
    }
    ActivaGuardarEImprimir(true, true);
    BotonDe(kGuardar)->setEnabled(true);
}

void MdiPrincipal::PantallaDescargada()
{
    ActivaGuardarEImprimir(false, false);
    BotonDe(kGuardar)->setEnabled(false);
}

QMdiSubWindow* MdiPrincipal::Ventana(const FilaPantalla& fila) const
{
    for (QMdiSubWindow* ventana : area_->subWindowList())
        if (ventana->widget() != nullptr && ventana->widget()->objectName() == QLatin1String(fila.nombre)) return ventana;
    return nullptr;
}

Formulario* MdiPrincipal::PantallaDe(const FilaPantalla* fila) const
{
    QMdiSubWindow* ventana = fila == nullptr ? nullptr : Ventana(*fila);
    return ventana == nullptr ? nullptr : qobject_cast<Formulario*>(ventana->widget());
}

FormularioCalculo* MdiPrincipal::PantallaDeCalculo(const FilaPantalla* fila) const
{
    return qobject_cast<FormularioCalculo*>(PantallaDe(fila));
}

void MdiPrincipal::CierraPantallaAbierta()
{
    const General& g = Estado();
    for (const FilaPantalla& fila : FilasPantallas())
        if (g.*fila.abierta)
            if (QMdiSubWindow* ventana = Ventana(fila)) ventana->close();
}

void MdiPrincipal::Nueva(Pantalla pantalla)
{
    const FilaPantalla& fila = FilaDe(pantalla);
    // A new project leaves the project in hand behind; the characteristics keep the state.
    if (fila.valoresIniciales != nullptr) Estado().F_ABIERTO = false;
    CierraPantallaAbierta();
    if (fila.valoresIniciales != nullptr) fila.valoresIniciales(Estado());
    MuestraPantalla(pantalla);
}

Formulario* MdiPrincipal::PantallaAbierta() const
{
    const QList<QMdiSubWindow*> ventanas = area_->subWindowList();
    for (QMdiSubWindow* ventana : ventanas)
        if (auto* pantalla = qobject_cast<Formulario*>(ventana->widget())) return pantalla;
    return nullptr;
}

void MdiPrincipal::MuestraPantalla(Pantalla pantalla)
{
    Formulario* contenido = FilaDe(pantalla).crea();
    connect(contenido, &Formulario::Descargada, this, &MdiPrincipal::PantallaDescargada);

    // A screen has a fixed size and a frame that can be minimised and closed, not stretched.
    QMdiSubWindow* ventana =
        area_->addSubWindow(contenido, Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->setWindowIcon(contenido->windowIcon());
    ventana->adjustSize();
    ventana->setFixedSize(ventana->sizeHint());
    ventana->move(0, 0);
    ventana->show();
    area_->setActiveSubWindow(ventana);
    // The focus goes where the load left it: the first field, or a field a message sent it to.
    if (QWidget* foco = contenido->focusWidget()) foco->setFocus(Qt::OtherFocusReason);
}

void MdiPrincipal::VentanaActivada(QMdiSubWindow* ventana)
{
    if (ventana == nullptr || ventana->widget() == nullptr) return;
    if (const FilaPantalla* fila = FilaDeNombre(ventana->widget()->objectName().toLatin1().constData()))
        PantallaActivada(fila->pantalla);
}

void MdiPrincipal::AcercaDe()
{
    General& g = Estado();
    g.F_ERROR = false;
    // A real copy: a text typed and not yet checked reaches the state, and fields that do not
    // pass keep the box from opening, without a word.
    if (FormularioCalculo* pantalla = PantallaDeCalculo(PantallaPorTurno(g, &FilaPantalla::turnoCopia)))
        pantalla->CopiaAlEstado();
    if (g.F_ERROR) return;
    FmAcercaDe caja(this);
    plataforma::ServicioVentanas().MuestraModal(caja);
}

void MdiPrincipal::Salir()
{
    CierraPantallaAbierta();
    CierraCorreo();
    plataforma::ServicioProceso().Termina(0);
}

void MdiPrincipal::TB_BARRA_ButtonClick(const QString& clave)
{
    barra_->update();
    CierraPresentacion();
    for (const OrdenPrincipal* orden : kBarra)
        if (clave == QLatin1String(orden->clave)) (this->*orden->AccionDeBarra())();
}

void MdiPrincipal::DevuelveTamano()
{
    // The window can be minimised and restored, but neither maximised nor stretched: any
    // attempt springs back to 800 by 600 inside the frame, where the window stood before it.
    if (ajustando_ || isMinimized()) return;
    ajustando_ = true;
    if (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    if (size() != QSize(kAncho, kAlto)) {
        if (posicion_)
            setGeometry(QRect(*posicion_, QSize(kAncho, kAlto)));
        else
            resize(kAncho, kAlto);
    }
    ajustando_ = false;
}

void MdiPrincipal::showEvent(QShowEvent* evento)
{
    QMainWindow::showEvent(evento);
    DevuelveTamano();
    // The first showing puts the window in the middle of the screen.
    if (!centrada_) {
        centrada_ = true;
        const QSizeF pantalla = plataforma::ServicioMonitor().Tamano();
        const QSize marco = frameGeometry().size();
        move(qRound((pantalla.width() - marco.width()) / 2.0), qRound((pantalla.height() - marco.height()) / 2.0));
    }
    CentraPresentacion();
}

namespace {

// The first local file of a drag, if it carries one.
QString FicheroArrastrado(const QMimeData* datos)
{
    if (datos == nullptr || !datos->hasUrls()) return {};
    for (const QUrl& direccion : datos->urls())
        if (direccion.isLocalFile()) return direccion.toLocalFile();
    return {};
}

}  // namespace

void MdiPrincipal::dragEnterEvent(QDragEnterEvent* evento)
{
    if (!FicheroArrastrado(evento->mimeData()).isEmpty()) evento->acceptProposedAction();
}

void MdiPrincipal::dropEvent(QDropEvent* evento)
{
    const QString fichero = FicheroArrastrado(evento->mimeData());
    if (fichero.isEmpty()) return;
    evento->acceptProposedAction();
    AbrirFichero(fichero);
}

void MdiPrincipal::moveEvent(QMoveEvent* evento)
{
    // Where the window's inside stands at its own size is where a spring-back puts it again:
    // a maximise or a drag of the left or top border moves it before the size comes back, and
    // the frame may come or change in between.
    QMainWindow::moveEvent(evento);
    const bool normal = !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized));
    if (!ajustando_ && normal && size() == QSize(kAncho, kAlto)) posicion_ = geometry().topLeft();
    DevuelveTamano();
    CentraPresentacion();
}

void MdiPrincipal::CentraPresentacion()
{
    if (presentacion_) presentacion_->move(frameGeometry().center() - presentacion_->rect().center());
}

void MdiPrincipal::resizeEvent(QResizeEvent* evento)
{
    QMainWindow::resizeEvent(evento);
    DevuelveTamano();
}

void MdiPrincipal::changeEvent(QEvent* evento)
{
    QMainWindow::changeEvent(evento);
    if (evento->type() == QEvent::WindowStateChange) DevuelveTamano();
    // While the splash is up it keeps the focus, and with it the front of the main window.
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() && presentacion_) {
        presentacion_->raise();
        presentacion_->activateWindow();
    }
}

void MdiPrincipal::closeEvent(QCloseEvent* evento)
{
    // The screen goes first, through its own unload and prompt; then the process ends.
    area_->closeAllSubWindows();
    CierraCorreo();
    evento->accept();
    QApplication::quit();
}

bool MdiPrincipal::eventFilter(QObject* objeto, QEvent* evento)
{
    // A click on the empty background of the main window closes the splash.
    if (objeto == area_->viewport() && evento->type() == QEvent::MouseButtonPress) CierraPresentacion();

    // On purpose: the menu's shortcuts win over the text fields' own, whatever has the focus:
    // Ctrl+C starts a new confinement calculation and does not copy.
    if (evento->type() == QEvent::ShortcutOverride) {
        auto* widget = qobject_cast<QWidget*>(objeto);
        const auto* tecla = static_cast<QKeyEvent*>(evento);
        if (widget != nullptr && widget->window() == this && atajos_.contains(QKeySequence(tecla->keyCombination())))
            return true;
    }
    return QMainWindow::eventFilter(objeto, evento);
}

}  // namespace texalon
