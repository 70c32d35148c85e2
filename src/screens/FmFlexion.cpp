#include "screens/FmFlexion.h"

#include "engine/Calcular.h"
#include "engine/Calculos.h"
#include "files/Copias.h"
#include "files/Ficheros.h"
#include "platform/Plataforma.h"
#include "screens/Entrada.h"
#include "screens/FmAnclaje.h"
#include "screens/FmCoef.h"
#include "screens/Proyecto.h"
#include "screens/ReglasFlexion.h"
#include "screens/RejillaResultados.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace texalon {

namespace {

constexpr int kAltoControl = 20;
constexpr int kAnchoCampo = 58;

// The four buttons that a Calculate enables and any change of a field disables.
const char* const kBotonesResultado[] = {"CM_ANCLAJE", "CM_ARMADURA", "CM_CAPAS", "CM_DEFORMACIONES"};

// Label and unit of each input field, in the order of the screen.
struct Rotulo {
    const char* control;
    const char* etiqueta;
    const char* unidad;
};

constexpr Rotulo kRotulos[] = {
    {"TX_ANCHO", "Ancho", "m"},
    {"TX_ANCHOALMA", "Ancho alma", "m"},
    {"TX_CANTO", "Canto", "m"},
    {"TX_CANTOALA", "Canto ala", "m"},
    {"TX_RECUB", "Recubrimiento", "m"},
    {"TX_ASI", "Armadura inferior", "cm²"},
    {"TX_ASS", "Armadura superior", "cm²"},
    {"TX_MCP", "Momento actual", "mkN"},
    {"TX_MD", "Momento solicitante", "mkN"},
    {"CO_FCK", "f<sub>ck</sub>", "N/mm²"},
    {"CO_FYK", "f<sub>yk</sub>", "N/mm²"},
    {"CO_ANCHOR", "Ancho del refuerzo", "m"},
};

const Rotulo& RotuloDe(const std::string& control)
{
    for (const Rotulo& r : kRotulos)
        if (control == r.control) return r;
    return kRotulos[0];
}

QString Texto(const std::string& texto) { return QString::fromStdString(texto); }

// The platform's regional conversion: the text is in the machine's own format, as a field's
// test has rewritten it. A text that does not convert is the classic type mismatch.
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

QPushButton* BotonConDibujo(const char* nombre, const char* consejo, const char* dibujo, QWidget* padre)
{
    auto* boton = new QPushButton(padre);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setToolTip(QString::fromUtf8(consejo));
    boton->setAccessibleName(QString::fromUtf8(consejo));
    boton->setIcon(QIcon(QStringLiteral(":/iconos/%1.svg").arg(QString::fromLatin1(dibujo))));
    boton->setIconSize(QSize(24, 24));
    boton->setFixedSize(34, 32);
    return boton;
}

}  // namespace

FmFlexion::FmFlexion(bool seccionT, QWidget* padre) : QWidget(padre), seccionT_(seccionT)
{
    setObjectName(seccionT ? QStringLiteral("FM_FLEXIONT") : QStringLiteral("FM_FLEXION"));
    setWindowTitle(seccionT ? QStringLiteral("Cálculo del refuerzo a flexión en secciones T")
                            : QStringLiteral("Cálculo del refuerzo a flexión en secciones rectangulares"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(4, 4, 4, 4);
    rejilla->setSpacing(4);
    rejilla->addWidget(CreaDatos(), 0, 0);
    auto* resultados = new QGroupBox(QStringLiteral("Momento último de la sección reforzada (mkN)"), this);
    resultados->setObjectName(QStringLiteral("Frame1"));
    auto* marcoRejilla = new QVBoxLayout(resultados);
    marcoRejilla->setContentsMargins(6, 6, 6, 6);
    rejilla_ = new RejillaResultados(resultados);
    rejilla_->setObjectName(QStringLiteral("FG_FLEXION"));
    rejilla_->setAccessibleName(resultados->title());
    // The grid has its size from the design: empty, inactive, the table's own rows and columns.
    rejilla_->Dimensiona(Estado().MAXCAPAS + 1, Estado().NTIPOS + 1, 300, 1595, 1000);
    rejilla_->setFixedSize(rejilla_->sizeHint());
    rejilla_->Activa(false);
    marcoRejilla->addWidget(rejilla_);
    marcoRejilla->addStretch(1);
    controles_[QStringLiteral("FG_FLEXION")] = rejilla_;
    rejilla->addWidget(resultados, 0, 1);
    rejilla->addWidget(CreaBotones(), 0, 2, Qt::AlignTop);
    rejilla->addWidget(CreaResultados(), 1, 0);
    rejilla->addWidget(CreaDibujo(), 1, 1, 1, 2);
    rejilla->setRowStretch(1, 1);
    rejilla->setColumnStretch(1, 1);

    connect(rejilla_, &RejillaResultados::Clic, this, &FmFlexion::ClicEnRejilla);
    connect(rejilla_, &RejillaResultados::SeleccionCambiada, this, [this](int fila, int columna) {
        // Calculate moves the selection itself while it fills the grid.
        if (Estado().F_CALCULANDO || fila == 0 || columna == 0) return;
        ClicEnRejilla(fila, columna);
    });

    General& g = Estado();
    if (seccionT)
        g.F_FLEXIONT = true;
    else
        g.F_FLEXION = true;
    g.F_GRABADO = g.F_ABIERTO;
    g.F_NUEVO = !g.F_ABIERTO;
    CargaCampos();
    ActivaResultados(false);
}

QWidget* FmFlexion::Control(const QString& nombre) const
{
    const auto it = controles_.find(nombre);
    return it == controles_.end() ? nullptr : it->second;
}

QWidget* FmFlexion::CreaDatos()
{
    auto* marco = new QGroupBox(QStringLiteral("Datos de la sección"), this);
    marco->setObjectName(QStringLiteral("Frame2"));
    auto* filas = new QGridLayout(marco);
    filas->setContentsMargins(6, 6, 6, 6);
    filas->setVerticalSpacing(2);
    filas->setHorizontalSpacing(4);
    int fila = 0;
    int filaFck = 0;
    const auto& reglas = ReglasFlexion(seccionT_);
    for (std::size_t i = 0; i < reglas.size(); ++i) {
        const ReglaCampo& regla = reglas[i];
        const QString nombre = Texto(regla.control);
        QWidget* control = nullptr;
        if (nombre.startsWith(QLatin1String("CO_"))) {
            auto* lista = new QComboBox(marco);
            lista->setEditable(true);
            lista->setInsertPolicy(QComboBox::NoInsert);
            control = lista;
        } else {
            auto* campo = new QLineEdit(marco);
            campo->setAlignment(Qt::AlignRight);
            control = campo;
        }
        control->setObjectName(nombre);
        control->setFixedSize(nombre.startsWith(QLatin1String("CO_")) ? kAnchoCampo + 18 : kAnchoCampo, kAltoControl);
        control->setAccessibleName(QString::fromUtf8(RotuloDe(regla.control).etiqueta));
        controles_[nombre] = control;
        AlPerderFoco(control, [this, &regla] { Comprueba(regla); });

        // On the T screen the web width and the flange depth stand beside the width and depth.
        const bool companero =
            seccionT_ && (nombre == QLatin1String("TX_ANCHOALMA") || nombre == QLatin1String("TX_CANTOALA"));
        if (companero) {
            filas->addWidget(control, fila - 1, 3);
            filas->addWidget(new QLabel(QString::fromUtf8(RotuloDe(regla.control).unidad), marco), fila - 1, 4);
            continue;
        }
        QString etiqueta = QString::fromUtf8(RotuloDe(regla.control).etiqueta);
        if (seccionT_ && nombre == QLatin1String("TX_ANCHO")) etiqueta = QStringLiteral("Ancho - Ancho alma");
        if (seccionT_ && nombre == QLatin1String("TX_CANTO")) etiqueta = QStringLiteral("Canto - Canto ala");
        if (nombre == QLatin1String("CO_FCK")) filaFck = fila;
        auto* rotulo = new QLabel(etiqueta, marco);
        rotulo->setBuddy(control);
        filas->addWidget(rotulo, fila, 0);
        filas->addWidget(control, fila, 1);
        filas->addWidget(new QLabel(QString::fromUtf8(RotuloDe(regla.control).unidad), marco), fila, 2);
        ++fila;
    }
    // The coefficient buttons, with their Greek gamma, beside the materials.
    for (const char* nombre : {"CM_GAMMA1", "CM_GAMMA2"}) {
        auto* gamma = new QPushButton(QStringLiteral("γ"), marco);
        gamma->setObjectName(QString::fromLatin1(nombre));
        gamma->setAccessibleName(QStringLiteral("Coeficientes de seguridad de los materiales"));
        gamma->setFixedSize(24, kAltoControl + 1);
        controles_[QString::fromLatin1(nombre)] = gamma;
        connect(gamma, &QPushButton::clicked, this, [this, gamma] {
            if (BotonConFoco(gamma)) Coeficientes();
        });
    }
    filas->addWidget(controles_[QStringLiteral("CM_GAMMA1")], filaFck, 3);
    filas->addWidget(controles_[QStringLiteral("CM_GAMMA2")], filaFck + 1, 3);
    filas->setColumnStretch(0, 1);
    return marco;
}

QLineEdit* FmFlexion::CampoResultado(const char* nombre, const char* consejo)
{
    auto* campo = new QLineEdit(this);
    campo->setObjectName(QString::fromLatin1(nombre));
    campo->setReadOnly(true);
    campo->setFocusPolicy(Qt::NoFocus);
    campo->setAlignment(Qt::AlignRight);
    campo->setToolTip(QString::fromUtf8(consejo));
    campo->setAccessibleName(QString::fromUtf8(consejo));
    campo->setFixedSize(kAnchoCampo - 6, kAltoControl);
    controles_[campo->objectName()] = campo;
    return campo;
}

QWidget* FmFlexion::CreaResultados()
{
    auto* marco = new QGroupBox(QStringLiteral("Resultados de la sección"), this);
    marco->setObjectName(QStringLiteral("Frame3"));
    auto* filas = new QGridLayout(marco);
    filas->setContentsMargins(8, 4, 8, 4);
    filas->setVerticalSpacing(2);
    filas->setHorizontalSpacing(4);
    tipo_ = new QLabel(marco);
    tipo_->setObjectName(QStringLiteral("LB_TIPO"));
    QFont negrita = tipo_->font();
    negrita.setBold(true);
    tipo_->setFont(negrita);
    controles_[QStringLiteral("LB_TIPO")] = tipo_;
    filas->addWidget(tipo_, 0, 0, 1, 6);

    struct Resultado {
        const char* nombre;
        const char* etiqueta;
        const char* unidad;
        const char* consejo;
    };
    const Resultado columnaMomentos[] = {
        {"TX_MUSR", "M<sub>u</sub> s/r", "mkN", "Momento último de la sección sin reforzar"},
        {"TX_MU", "M<sub>u</sub>", "mkN", "Momento último de la sección con refuerzo"},
        {"TX_MRB", "M<sub>RB</sub>", "mkN", "Momento que hace que el diagrama de rotura pase por los pivotes R y B"},
        {"TX_MLIMCR", "M<sub>lím</sub>", "mkN", "Momento límite de la sección con refuerzo"},
        {"TX_FN", "x", "m", "Profundidad de la fibra neutra"},
        {"TX_PIVOTE", "Pivote", "", "Pivote de rotura de la sección"},
    };
    const Resultado columnaDeformaciones[] = {
        {"TX_EPS0", "ε<sub>0</sub>", "‰", "Predeformación de la sección"},
        {"TX_EPSC", "ε<sub>c</sub>", "‰", "Deformación de la fibra superior de hormigón"},
        {"TX_EPSSS", "ε<sub>s sup</sub>", "‰", "Deformación de la armadura superior"},
        {"TX_EPSSI", "ε<sub>s inf</sub>", "‰", "Deformación de la armadura inferior"},
        {"TX_EPSR", "ε<sub>r</sub>", "‰", "Deformación del refuerzo TEXALON®"},
    };
    const auto columna = [&](const auto& resultados, int primera) {
        int fila = 1;
        for (const Resultado& r : resultados) {
            filas->addWidget(new QLabel(QString::fromUtf8(r.etiqueta), marco), fila, primera);
            filas->addWidget(CampoResultado(r.nombre, r.consejo), fila, primera + 1);
            filas->addWidget(new QLabel(QString::fromUtf8(r.unidad), marco), fila, primera + 2);
            ++fila;
        }
    };
    columna(columnaMomentos, 0);
    columna(columnaDeformaciones, 3);
    filas->setRowStretch(7, 1);
    return marco;
}

QWidget* FmFlexion::CreaDibujo()
{
    auto* dibujo = new QFrame(this);
    dibujo->setObjectName(QStringLiteral("PIC_FLEXION"));
    dibujo->setFrameShape(QFrame::StyledPanel);
    dibujo->setFrameShadow(QFrame::Sunken);
    dibujo->setAutoFillBackground(true);
    QPalette blanco = dibujo->palette();
    blanco.setColor(QPalette::Window, Qt::white);
    dibujo->setPalette(blanco);
    controles_[dibujo->objectName()] = dibujo;

    info_ = new QLabel(QStringLiteral(" NO ES NECESARIO REFORZAR LA SECCIÓN "), dibujo);
    info_->setObjectName(QStringLiteral("LB_INFO"));
    QFont negrita = info_->font();
    negrita.setBold(true);
    info_->setFont(negrita);
    info_->setAlignment(Qt::AlignCenter);
    info_->setVisible(false);
    controles_[info_->objectName()] = info_;
    auto* capas = new QVBoxLayout(dibujo);
    capas->addWidget(info_, 0, Qt::AlignTop | Qt::AlignHCenter);
    capas->addStretch(1);
    return dibujo;
}

QWidget* FmFlexion::CreaBotones()
{
    auto* columna = new QWidget(this);
    auto* botones = new QVBoxLayout(columna);
    botones->setContentsMargins(0, 8, 0, 0);
    botones->setSpacing(4);
    struct Boton {
        const char* nombre;
        const char* consejo;
        const char* dibujo;
    };
    const Boton lista[] = {
        {"CM_CALCULAR", "Calcula flexión", "boton_calcular"},
        {"CM_SECCION", "Sección", "boton_seccion"},
        {"CM_DEFORMACIONES", "Diagrama de deformaciones", "boton_deformaciones"},
        {"CM_ARMADURA", "Diagrama M-Ar", "boton_armadura"},
        {"CM_CAPAS", "Diagrama M-Capas", "boton_capas"},
        {"CM_ANCLAJE", "Longitud de anclaje", "boton_anclaje"},
    };
    for (const Boton& b : lista) {
        QPushButton* boton = BotonConDibujo(b.nombre, b.consejo, b.dibujo, columna);
        controles_[boton->objectName()] = boton;
        botones->addWidget(boton);
        if (boton->objectName() == QLatin1String("CM_CALCULAR")) botones->addSpacing(8);
    }
    auto* calcular = qobject_cast<QPushButton*>(controles_[QStringLiteral("CM_CALCULAR")]);
    connect(calcular, &QPushButton::clicked, this, [this, calcular] {
        if (BotonConFoco(calcular)) plataforma::AtrapaErrorFatal([this] { Calcular(); });
    });
    auto* anclaje = qobject_cast<QPushButton*>(controles_[QStringLiteral("CM_ANCLAJE")]);
    connect(anclaje, &QPushButton::clicked, this, [this, anclaje] {
        if (BotonConFoco(anclaje)) plataforma::AtrapaErrorFatal([this] { Anclaje(); });
    });
    return columna;
}

void FmFlexion::CargaCampos()
{
    for (const ReglaCampo& regla : ReglasFlexion(seccionT_)) {
        QWidget* control = controles_[Texto(regla.control)];
        if (auto* lista = qobject_cast<QComboBox*>(control))
            CargaLista(lista, regla);
        else
            EscribeTexto(control, plataforma::FormatoLocal(Estado().*regla.campo, regla.formato));
    }
}

void FmFlexion::CargaLista(QComboBox* lista, const ReglaCampo& regla)
{
    for (double fila : FilasLista(regla.control))
        lista->addItem(plataforma::FormatoLocal(fila, regla.formato));
    // The row is chosen by exact comparison of its rounded text with the state: a value that
    // no row shows goes into the next row, rounded as the field shows it.
    const double valor = Estado().*regla.campo;
    for (int i = 0; i < lista->count(); ++i)
        if (ValorRegional(lista->itemText(i)) == valor) {
            lista->setCurrentIndex(i);
            return;
        }
    lista->addItem(plataforma::FormatoLocal(valor, regla.formato));
    lista->setCurrentIndex(lista->count() - 1);
}

void FmFlexion::EscribeFilasAnchoRefuerzo()
{
    auto* lista = qobject_cast<QComboBox*>(controles_[QStringLiteral("CO_ANCHOR")]);
    const QString texto = lista->currentText();
    const auto& filas = FilasLista("CO_ANCHOR");
    for (int i = 0; i < static_cast<int>(filas.size()) && i < lista->count(); ++i)
        lista->setItemText(i, plataforma::FormatoLocal(filas[static_cast<std::size_t>(i)], "0.000"));
    lista->setEditText(texto);
}

void FmFlexion::Comprueba(const ReglaCampo& regla)
{
    QWidget* control = controles_[Texto(regla.control)];
    const ResultadoCampo r = CompruebaCampo(regla, TextoDe(control).toStdString(), Estado(),
                                            plataforma::ServicioRegional().SeparadorDecimal());
    switch (r.desenlace) {
    case Desenlace::Aceptado:
        EscribeTexto(control, Texto(r.textoNuevo));
        ActivaResultados(false);
        if (regla.control == "TX_ANCHO" || regla.control == "TX_ANCHOALMA") EscribeFilasAnchoRefuerzo();
        break;
    case Desenlace::Rechazado:
        plataforma::MsgBox(Texto(r.mensaje), plataforma::Estilo::Parada);
        DevuelveFoco(control);
        break;
    case Desenlace::Blando:
        // The buttons stay as they are in this branch.
        EscribeTexto(control, Texto(r.textoNuevo));
        plataforma::MsgBox(Texto(r.mensaje), plataforma::Estilo::Parada);
        LlevaFocoA(controles_[Texto(r.companero)]);
        break;
    }
}

void FmFlexion::ActivaResultados(bool activos)
{
    for (const char* nombre : kBotonesResultado)
        controles_[QString::fromLatin1(nombre)]->setEnabled(activos);
}

void FmFlexion::LeeCampos(General& g) const
{
    // Straight into the state with the regional conversion, with no test: every field's text has
    // been through its own test when the focus left it.
    for (const ReglaCampo& regla : ReglasFlexion(seccionT_))
        g.*regla.campo = ValorRegional(TextoDe(Control(Texto(regla.control))));
}

void FmFlexion::Calcular()
{
    General& g = Estado();
    const ResultadoCalculo r =
        CalculaFlexion(g, seccionT_ ? kSeccionT : kSeccionRectangular, [this](General& e) { LeeCampos(e); });
    if (r.predeformacionExcesiva) {
        plataforma::MsgBox(
            QString::fromUtf8(kMensajePredeformacion.data(), static_cast<qsizetype>(kMensajePredeformacion.size())),
            plataforma::Estilo::Parada);
        rejilla_->Activa(false);
        return;
    }
    MuestraVeredicto(static_cast<int>(r.veredicto));
    ActivaResultados(true);
    TablaFlexion();
    ResultadosFlexion(1, 1);
    g.F_CALCULANDO = false;
    rejilla_->Activa(true);
    rejilla_->setFocus();
    rejilla_->CeldaActual(1, 1);
    // The moment-layers chart is drawn here once the diagrams exist.
}

void FmFlexion::MuestraVeredicto(int veredicto)
{
    const auto v = static_cast<Veredicto>(veredicto);
    if (v == Veredicto::Oculto) {
        info_->setVisible(false);
        return;
    }
    const std::string_view texto = TextoVeredicto(v);
    info_->setText(QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())));
    // QBColor 2, green, and QBColor 12, light red.
    QPalette color = info_->palette();
    color.setColor(QPalette::WindowText, v == Veredicto::NoEsNecesario ? QColor(0, 128, 0) : QColor(255, 0, 0));
    info_->setPalette(color);
    info_->setVisible(true);
}

void FmFlexion::TablaFlexion()
{
    const General& g = Estado();
    rejilla_->Dimensiona(g.MAXCAPAS + 1, g.NTIPOS + 1, 300, 1595, 1000);
    rejilla_->EscribeCelda(0, 0, QStringLiteral("Nº capas"));
    for (int t = 1; t <= g.NTIPOS; ++t)
        rejilla_->EscribeCelda(0, t, Texto(g.TIPOS(t)));
    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        rejilla_->EscribeCelda(n, 0, QString::number(n));
        for (int t = 1; t <= g.NTIPOS; ++t) {
            const double mu = g.MU(t, n);
            rejilla_->EscribeCelda(n, t,
                                   mu == kSinMejora ? QStringLiteral("---") : plataforma::FormatoLocal(mu, "0.0"));
            // Every combination that carries the design moment is yellow, whatever the verdict.
            rejilla_->ColoreaCelda(n, t, mu >= g.MD ? QColor(255, 255, 0) : QColor(255, 255, 255));
        }
    }
}

void FmFlexion::ResultadosFlexion(int tipo, int capas)
{
    General& g = Estado();
    tipo_->setText(QStringLiteral("Refuerzo tipo ") + Texto(g.TIPOS(tipo)) + QStringLiteral(" - Núm. capas: ") +
                   QString::number(capas));
    EscribeTexto(Control(QStringLiteral("TX_MUSR")), plataforma::FormatoLocal(g.MUSR, "0.0"));
    EscribeTexto(Control(QStringLiteral("TX_EPS0")), plataforma::FormatoLocal(g.EPS0 * 1000.0, "0.00"));
    const bool sinResultado = g.MU(tipo, capas) == kSinMejora;
    const auto escribe = [&](const char* nombre, const QString& texto) {
        EscribeTexto(Control(QString::fromLatin1(nombre)), sinResultado ? QStringLiteral("---") : texto);
    };
    escribe("TX_MRB", plataforma::FormatoLocal(g.MRB(tipo, capas), "0.0"));
    escribe("TX_MLIMCR", plataforma::FormatoLocal(g.MLIMCR(tipo, capas), "0.0"));
    escribe("TX_PIVOTE", Texto(g.PIVOTE(tipo, capas)));
    escribe("TX_FN", plataforma::FormatoLocal(g.FN(tipo, capas), "0.000"));
    escribe("TX_EPSC", plataforma::FormatoLocal(g.EPSC(tipo, capas) * 1000.0, "0.00"));
    escribe("TX_EPSSI", plataforma::FormatoLocal(g.EPSSI(tipo, capas) * 1000.0, "0.00"));
    escribe("TX_EPSSS", plataforma::FormatoLocal(std::fabs(g.EPSSS(tipo, capas)) * 1000.0, "0.00"));
    escribe("TX_EPSR", plataforma::FormatoLocal(g.EPSR(tipo, capas) * 1000.0, "0.00"));
    escribe("TX_MU", plataforma::FormatoLocal(g.MU(tipo, capas), "0.0"));
    g.EPSRSEL = g.EPSR(tipo, capas);
}

void FmFlexion::ClicEnRejilla(int fila, int columna)
{
    if (fila == 0 || columna == 0) return;
    // The grid shows its table whatever F_CALCULADO says: an old cell shows its old results.
    ResultadosFlexion(columna, fila);
    controles_[QStringLiteral("CM_DEFORMACIONES")]->setEnabled(Estado().MU(columna, fila) != kSinMejora);
}

void FmFlexion::Coeficientes()
{
    FmCoef::Muestra(this);
    // Whatever the way out of the dialog, the results no longer answer for the coefficients.
    ActivaResultados(false);
}

void FmFlexion::Anclaje() { OrdenAnclaje(this); }

void FmFlexion::closeEvent(QCloseEvent* evento)
{
    General& g = Estado();
    if (seccionT_)
        g.F_FLEXIONT = false;
    else
        g.F_FLEXION = false;
    g.F_CALCULADO = false;
    emit Descargada();
    if (!(g.F_GRABADO && !g.F_MODIFICADO)) GrabaAlCerrar();
    BorraDibujo(EstadoDibujo());
    // The unload cannot be refused: neither answer, nor Cancel in the dialog, keeps the screen.
    evento->accept();
}

TextosFlexion FmFlexion::Textos() const
{
    const auto texto = [this](const char* nombre) {
        return TextoDe(Control(QString::fromLatin1(nombre))).toStdString();
    };
    TextosFlexion textos;
    textos.ANCHO = texto("TX_ANCHO");
    textos.CANTO = texto("TX_CANTO");
    if (seccionT_) {
        textos.ANCHOALMA = texto("TX_ANCHOALMA");
        textos.CANTOALA = texto("TX_CANTOALA");
    }
    textos.RECUB = texto("TX_RECUB");
    textos.ASI = texto("TX_ASI");
    textos.ASS = texto("TX_ASS");
    textos.FCK = texto("CO_FCK");
    textos.FYK = texto("CO_FYK");
    textos.ANCHOR = texto("CO_ANCHOR");
    textos.MCP = texto("TX_MCP");
    textos.MD = texto("TX_MD");
    return textos;
}

void FmFlexion::CopiaAlEstado()
{
    if (seccionT_)
        CopiaFlexionT(Estado(), Textos());
    else
        CopiaFlexion(Estado(), Textos());
}

void FmFlexion::GrabaAlCerrar()
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
    if (!PideFicheroFlexion(g)) return;
    GrabaFlexion(g, g.FICHERO, seccionT_ ? kSeccionT : kSeccionRectangular, AvisoFichero());
    g.F_GRABADO = true;
    g.F_MODIFICADO = false;
}

}  // namespace texalon
