#include "screens/FormularioCalculo.h"

#include "diagrams/qt/Lienzo.h"
#include "platform/Plataforma.h"
#include "screens/CampoResultado.h"
#include "screens/Entrada.h"
#include "screens/FmCoef.h"
#include "screens/RejillaResultados.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace texalon {

namespace {

QString Texto(const std::string& texto) { return QString::fromStdString(texto); }
QString Texto(std::string_view texto) { return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())); }

// The result grids have the same layout throughout: a row a number of layers, a column a
// sheet type, sizes in twips.
constexpr int kAltoFila = 300;
constexpr int kAnchoColumna = 1595;
constexpr int kAnchoColumna0 = 1000;

// The height of the verdict's band over the picture, in pixels: it covers the whole line of a
// chart's title, which stands in the top tenth of every picture.
constexpr int kAltoBandaVeredicto = 32;

// QBColor 2, green, and QBColor 12, light red.
const QColor kVerdeVeredicto(0, 128, 0);
const QColor kRojoVeredicto(255, 0, 0);

}  // namespace

double ValorRegional(const QString& texto)
{
    QString normal = texto.trimmed();
    if (plataforma::ServicioRegional().SeparadorDecimal() == ',') {
        normal.remove(QLatin1Char('.'));
        normal.replace(QLatin1Char(','), QLatin1Char('.'));
    }
    bool bien = false;
    const double valor = QLocale::c().toDouble(normal, &bien);
    if (!bien) throw ErrorEjecucion(ErrorEjecucion::kTiposNoCoinciden);
    return valor;
}

FormularioCalculo::FormularioCalculo(const Forma& forma, QWidget* padre)
    : Formulario(forma.nombre, forma.titulo, padre), forma_(forma)
{
}

// ---------------------------------------------------------------------------------------------
// Building the screen.

QWidget* FormularioCalculo::CreaCampo(const ReglaCampo& regla, QWidget* marco)
{
    const QString nombre = Texto(regla.control);
    QWidget* control = nullptr;
    if (nombre.startsWith(QLatin1String("CO_"))) {
        control = new ListaDesplegable(true, marco);
        control->setFixedSize(kAnchoLista, kAltoControl);
        ProtegeClic(control);
    } else {
        auto* campo = new QLineEdit(marco);
        campo->setAlignment(Qt::AlignRight);
        campo->setFixedSize(kAnchoCampo, kAltoControl);
        control = campo;
    }
    control->setObjectName(nombre);
    AlPerderFoco(control, [this, &regla] {
        if (!descargando_) Comprueba(regla);
    });
    return Registra(control);
}

CampoResultado* FormularioCalculo::CreaResultado(const char* nombre, const char* consejo, QWidget* marco)
{
    auto* campo = new CampoResultado(QString::fromLatin1(nombre), QString::fromUtf8(consejo), marco);
    campo->setFixedSize(kAnchoCampo, kAltoControl);
    return Registra(campo);
}

QPushButton* FormularioCalculo::CreaBoton(const char* nombre, const char* consejo, const char* dibujo, QWidget* padre)
{
    auto* boton = new QPushButton(padre);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setToolTip(QString::fromUtf8(consejo));
    boton->setAccessibleName(QString::fromUtf8(consejo));
    boton->setIcon(QIcon(QStringLiteral(":/iconos/%1.svg").arg(QString::fromLatin1(dibujo))));
    boton->setIconSize(QSize(24, 24));
    boton->setFixedSize(34, 32);
    ProtegeClic(boton);
    return Registra(boton);
}

QPushButton* FormularioCalculo::CreaGamma(const char* nombre, QWidget* padre)
{
    auto* gamma = new QPushButton(QStringLiteral("γ"), padre);
    gamma->setObjectName(QString::fromLatin1(nombre));
    gamma->setToolTip(QStringLiteral("Coeficientes de seguridad de los materiales"));
    gamma->setAccessibleName(gamma->toolTip());
    gamma->setFixedSize(24, kAltoControl + 1);
    ProtegeClic(gamma);
    connect(gamma, &QPushButton::clicked, this, [this, gamma] {
        if (BotonConFoco(gamma)) Coeficientes();
    });
    return Registra(gamma);
}

QGroupBox* FormularioCalculo::CreaMarcoRejilla(const char* nombreRejilla, const QString& titulo)
{
    QGroupBox* marco = CreaMarco("Frame1", titulo);
    auto* disposicion = new QVBoxLayout(marco);
    disposicion->setContentsMargins(6, 6, 6, 6);
    rejilla_ = new RejillaResultados(marco);
    rejilla_->setObjectName(QString::fromLatin1(nombreRejilla));
    rejilla_->setAccessibleName(titulo);
    // The grid has its size from the design: empty, inactive, the table's own rows and columns.
    const General& g = Estado();
    rejilla_->Dimensiona(g.MAXCAPAS + 1, g.NTIPOS + 1, kAltoFila, kAnchoColumna, kAnchoColumna0);
    rejilla_->setFixedSize(rejilla_->sizeHint());
    rejilla_->Activa(false);
    disposicion->addWidget(rejilla_);
    disposicion->addStretch(1);
    Registra(rejilla_);

    connect(rejilla_, &RejillaResultados::Clic, this, &FormularioCalculo::ClicEnRejilla);
    connect(rejilla_, &RejillaResultados::SeleccionCambiada, this, [this](int fila, int columna) {
        if (forma_.seleccionGuardada && Estado().F_CALCULANDO) return;
        ClicEnRejilla(fila, columna);
    });
    return marco;
}

QGroupBox* FormularioCalculo::CreaMarcoResultados(const char* nombre, const QString& titulo,
                                                  const std::vector<std::vector<Resultado>>& columnas)
{
    QGroupBox* marco = CreaMarco(nombre, titulo);
    auto* filas = new QGridLayout(marco);
    filas->setContentsMargins(8, 4, 8, 4);
    filas->setVerticalSpacing(2);
    filas->setHorizontalSpacing(4);
    tipo_ = CreaEtiqueta(QString(), marco, "LB_TIPO");
    QFont negrita = tipo_->font();
    negrita.setBold(true);
    tipo_->setFont(negrita);
    filas->addWidget(tipo_, 0, 0, 1, 3 * static_cast<int>(columnas.size()));
    int primera = 0;
    for (const std::vector<Resultado>& columna : columnas) {
        int fila = 1;
        for (const Resultado& r : columna) {
            filas->addWidget(CreaEtiqueta(QString::fromUtf8(r.etiqueta), marco), fila, primera);
            filas->addWidget(CreaResultado(r.nombre, r.consejo, marco), fila, primera + 1);
            filas->addWidget(CreaEtiqueta(QString::fromUtf8(r.unidad), marco), fila, primera + 2);
            ++fila;
        }
        primera += 3;
    }
    filas->setRowStretch(filas->rowCount(), 1);
    return marco;
}

Lienzo* FormularioCalculo::CreaDibujoConVeredicto(const Dibujo& cual, const QString& textoVeredicto)
{
    Lienzo* dibujo = CreaDibujo(cual);
    // The verdict stands on the picture; the clicks of the zoom pass through it.
    QWidget* superficie = dibujo->viewport();
    info_ = CreaEtiqueta(textoVeredicto, superficie, "LB_INFO");
    info_->setAttribute(Qt::WA_TransparentForMouseEvents);
    // A child of the picture's surface would take its white base and black text as its own
    // roles; the verdict paints with the roles that its colours are set on.
    info_->setBackgroundRole(QPalette::Window);
    info_->setForegroundRole(QPalette::WindowText);
    info_->setAutoFillBackground(true);
    QFont negrita = info_->font();
    negrita.setBold(true);
    info_->setFont(negrita);
    info_->setAlignment(Qt::AlignCenter);
    info_->setVisible(false);
    // A band across the top of the picture, where the chart has its title.
    info_->setFixedHeight(kAltoBandaVeredicto);
    auto* capas = new QVBoxLayout(superficie);
    capas->setContentsMargins(0, 0, 0, 0);
    capas->addWidget(info_, 0, Qt::AlignTop);
    capas->addStretch(1);
    return dibujo;
}

QWidget* FormularioCalculo::CreaBotones(const char* consejoCalcular, const std::vector<Boton>& botones)
{
    auto* columna = new QWidget(this);
    auto* disposicion = new QVBoxLayout(columna);
    disposicion->setContentsMargins(0, 8, 0, 0);
    disposicion->setSpacing(4);
    QPushButton* calcular = CreaBoton("CM_CALCULAR", consejoCalcular, "boton_calcular", columna);
    connect(calcular, &QPushButton::clicked, this, [this, calcular] {
        if (BotonConFoco(calcular)) plataforma::AtrapaErrorFatal([this] { Calcular(); });
    });
    disposicion->addWidget(calcular);
    disposicion->addSpacing(8);
    for (const Boton& b : botones)
        disposicion->addWidget(CreaBoton(b.nombre, b.consejo, b.dibujo, columna));
    return columna;
}

// ---------------------------------------------------------------------------------------------
// The fields.

void FormularioCalculo::CargaCampo(const ReglaCampo& regla)
{
    QWidget* control = Control(Texto(regla.control));
    const double valor = Estado().*regla.campo;
    auto* lista = qobject_cast<QComboBox*>(control);
    if (lista == nullptr) {
        EscribeTexto(control, plataforma::FormatoLocal(valor, regla.formato));
        return;
    }
    for (double fila : FilasLista(regla.control))
        lista->addItem(plataforma::FormatoLocal(fila, regla.formato));
    // The row is chosen by exact comparison of its rounded text with the state: a value that
    // no row shows goes into the next row, rounded as the field shows it.
    for (int i = 0; i < lista->count(); ++i)
        if (ValorRegional(lista->itemText(i)) == valor) {
            lista->setCurrentIndex(i);
            return;
        }
    lista->addItem(plataforma::FormatoLocal(valor, regla.formato));
    lista->setCurrentIndex(lista->count() - 1);
}

void FormularioCalculo::Comprueba(const ReglaCampo& regla)
{
    QWidget* control = Control(Texto(regla.control));
    const ResultadoCampo r = CompruebaCampo(regla, TextoDe(control).toStdString(), Estado(),
                                            plataforma::ServicioRegional().SeparadorDecimal());
    switch (r.desenlace) {
    case Desenlace::Aceptado:
        EscribeTexto(control, Texto(r.textoNuevo));
        ActivaResultados(false);
        Aceptado(regla);
        break;
    case Desenlace::Rechazado:
        plataforma::MsgBox(Texto(r.mensaje), plataforma::Estilo::Parada);
        DevuelveFoco(control);
        break;
    case Desenlace::Blando:
        // The buttons stay as they are in this branch.
        EscribeTexto(control, Texto(r.textoNuevo));
        plataforma::MsgBox(Texto(r.mensaje), plataforma::Estilo::Parada);
        LlevaFocoA(Control(Texto(r.companero)));
        break;
    }
}

void FormularioCalculo::Aceptado(const ReglaCampo& /*regla*/) {}

void FormularioCalculo::LeeCampo(General& g, const ReglaCampo& regla) const
{
    g.*regla.campo = ValorRegional(TextoDe(Control(Texto(regla.control))));
}

void FormularioCalculo::ActivaResultados(bool activos)
{
    for (const char* nombre : forma_.botonesResultado)
        Control(QString::fromLatin1(nombre))->setEnabled(activos);
}

// ---------------------------------------------------------------------------------------------
// The calculation and its results.

void FormularioCalculo::Calcular()
{
    if (RechazaAntesDeCalcular()) return;
    const ResultadoCalculo r = Calcula();
    if (r.predeformacionExcesiva) {
        plataforma::MsgBox(Texto(kMensajePredeformacion), plataforma::Estilo::Parada);
        rejilla_->Activa(false);
        return;
    }
    MuestraVeredicto(r.veredicto);
    ActivaResultados(true);
    TablaResultados();
    MuestraCelda(1, 1);
    if (forma_.seleccionGuardada) Estado().F_CALCULANDO = false;
    rejilla_->Activa(true);
    rejilla_->setFocus();
    rejilla_->CeldaActual(1, 1);
    GraficoDelCalculo();
}

// A value that reached a field without the user's typing it (a project file holds values that no
// field takes) is refused as the field refuses it on acceptance: its message, the focus and the
// selection in it, and nothing calculated. The engine's searches end only on values within the
// fields' bounds. A coefficient is refused in its own dialog, opened on it.
bool FormularioCalculo::RechazaAntesDeCalcular()
{
    const std::optional<CampoRechazado> rechazo = CampoQueRechazaAlCalcular();
    if (!rechazo) return false;
    plataforma::MsgBox(Texto(rechazo->mensaje), plataforma::Estilo::Parada);
    if (rechazo->coeficiente) {
        FmCoef::MuestraEnCampo(this, Texto(rechazo->control));
        ActivaResultados(false);
    } else {
        DevuelveFoco(Control(Texto(rechazo->control)));
    }
    return true;
}

void FormularioCalculo::TablaResultados()
{
    const General& g = Estado();
    rejilla_->Dimensiona(g.MAXCAPAS + 1, g.NTIPOS + 1, kAltoFila, kAnchoColumna, kAnchoColumna0);
    rejilla_->EscribeCelda(0, 0, QString::fromUtf8(kCabeceraCapas));
    for (int t = 1; t <= g.NTIPOS; ++t)
        rejilla_->EscribeCelda(0, t, Texto(g.TIPOS(t)));
    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        rejilla_->EscribeCelda(n, 0, QString::number(n));
        for (int t = 1; t <= g.NTIPOS; ++t) {
            const CeldaResultado celda = Celda(t, n);
            rejilla_->EscribeCelda(n, t, Texto(celda.texto));
            // Every combination that meets the requirement is yellow, whatever the verdict.
            rejilla_->ColoreaCelda(n, t, celda.cumple ? RejillaResultados::kAmarillo : RejillaResultados::kBlanco);
        }
    }
}

void FormularioCalculo::MuestraVeredicto(Veredicto veredicto)
{
    veredicto_ = veredicto;
    if (veredicto == Veredicto::Oculto) {
        info_->setVisible(false);
        return;
    }
    info_->setText(Texto(TextoVeredicto(veredicto)));
    // The verdict's colour fills the label and the text is white: it stands over the chart's
    // title, and must read at a glance whatever the chart shows under it.
    QPalette color = info_->palette();
    color.setColor(QPalette::Window, veredicto == Veredicto::NoEsNecesario ? kVerdeVeredicto : kRojoVeredicto);
    color.setColor(QPalette::WindowText, Qt::white);
    info_->setPalette(color);
    info_->setVisible(true);
}

void FormularioCalculo::ClicEnRejilla(int fila, int columna)
{
    if (fila == 0 || columna == 0) return;
    // The grid shows its table whatever F_CALCULADO says: an old cell shows its old results.
    MuestraCelda(columna, fila);
    CeldaElegida(columna, fila);
}

void FormularioCalculo::CeldaElegida(int /*tipo*/, int /*capas*/) {}

void FormularioCalculo::ConectaDiagrama(const char* nombre, std::function<void()> diagrama)
{
    auto* boton = qobject_cast<QPushButton*>(Control(QString::fromLatin1(nombre)));
    connect(boton, &QPushButton::clicked, this, [boton, diagrama = std::move(diagrama)] {
        if (BotonConFoco(boton)) plataforma::AtrapaErrorFatal(diagrama);
    });
}

void FormularioCalculo::Muestra(const std::vector<std::pair<const char*, const std::string*>>& textos)
{
    for (const auto& [nombre, texto] : textos)
        EscribeTexto(Control(QString::fromLatin1(nombre)), Texto(*texto));
}

void FormularioCalculo::MuestraTipo(const std::string& texto) { tipo_->setText(Texto(texto)); }

void FormularioCalculo::Coeficientes()
{
    FmCoef::Muestra(this);
    // Whatever the way out of the dialog, the results no longer answer for the coefficients.
    ActivaResultados(false);
}

// ---------------------------------------------------------------------------------------------
// The unload.

void FormularioCalculo::closeEvent(QCloseEvent* evento)
{
    descargando_ = true;
    General& g = Estado();
    BajaBandera(g);
    g.F_CALCULADO = false;
    emit Descargada();
    if (!(g.F_GRABADO && !g.F_MODIFICADO)) GrabaAlCerrar();
    BorraDibujo(EstadoDibujo());
    // The unload cannot be refused: neither answer, nor Cancel in the dialog, keeps the screen.
    evento->accept();
}

void FormularioCalculo::GrabaAlCerrar()
{
    if (plataforma::MsgBox(QStringLiteral("Los datos no se han grabado, ¿desea grabar los datos?"),
                           plataforma::Estilo::PreguntaSiNo) != plataforma::Respuesta::Si)
        return;
    General& g = Estado();
    // F_ERROR is the caller's to clear: a True left by an earlier command reports a failure.
    CopiaAlEstado();
    if (g.F_ERROR) {
        plataforma::MsgBox(QStringLiteral("Los datos introducidos no son correctos."), plataforma::Estilo::Parada);
        return;
    }
    // The dialog comes up always, also for a project that has a file name.
    if (!PideFichero(g)) return;
    Graba(g);
    g.F_GRABADO = true;
    g.F_MODIFICADO = false;
}

}  // namespace texalon
