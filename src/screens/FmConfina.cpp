#include "screens/FmConfina.h"

#include "diagrams/Grafico.h"
#include "diagrams/Lista.h"
#include "reports/Informes.h"
#include "diagrams/qt/Lienzo.h"

#include "files/Copias.h"
#include "files/Ficheros.h"
#include "platform/Plataforma.h"
#include "screens/CampoResultado.h"
#include "screens/Entrada.h"
#include "screens/Proyecto.h"
#include "files/ReglasConfina.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

namespace texalon {

namespace {

const ReglaCampo& Regla(const char* control)
{
    for (const ReglaCampo& regla : ReglasConfina())
        if (regla.control == control) return regla;
    throw ErrorEjecucion(ErrorEjecucion::kArgumentoNoValido);
}

QString Utf8(const char* texto) { return QString::fromUtf8(texto); }

// The two panels of data stand one over the other with their fields in one column: the
// captions take the width of the longest caption of both, whatever room is left goes to the
// right of the units, and the list of sections spans exactly the field, the unit and the
// coefficient button.
constexpr int kAnchoUnidad = 44;
constexpr int kAnchoBoton = 24;
constexpr int kSeparacion = 4;
const char* const kRotulos[] = {"Tipo de sección", "Diámetro/Lado",        "Lado menor",   "Incr. de resistencia",
                                "Axil actual",     "Coeficiente de forma", "Coef. Poisson"};

void AlineaColumnas(QGridLayout* filas)
{
    const QFontMetrics medidas(filas->parentWidget()->font());
    int rotulo = 0;
    for (const char* texto : kRotulos)
        rotulo = std::max(rotulo, medidas.horizontalAdvance(QString::fromUtf8(texto)));
    filas->setHorizontalSpacing(kSeparacion);
    filas->setColumnMinimumWidth(0, rotulo + kSeparacion);
    filas->setColumnMinimumWidth(2, kAnchoUnidad);
    filas->setColumnMinimumWidth(3, kAnchoBoton);
    filas->setColumnStretch(4, 1);
}

}  // namespace

FmConfina::FmConfina(QWidget* padre)
    : FormularioCalculo(
          {QStringLiteral("FM_CONFINA"), QStringLiteral("Refuerzo a confinamiento"), {"CM_CONFINA"}, false}, padre)
{
    QGridLayout* rejilla = CreaDisposicion();
    rejilla->addWidget(CreaDatos(), 0, 0);
    rejilla->addWidget(CreaValoresAdoptados(), 1, 0);
    rejilla->addWidget(
        CreaMarcoResultados("Frame4", QStringLiteral("Resultados de la sección"),
                            {{{"TX_EPS0", "ε<sub>0</sub>", "‰", "Predeformación de la sección"},
                              {"TX_WC", "W<sub>c</sub>", "m³/m", "Volumen de hormigón confinado"},
                              {"TX_WR", "W<sub>r</sub>", "m³/m", "Volumen de refuerzo TEXALON® de confinamiento"},
                              {"TX_WWD", "ω<sub>wd</sub>", "", "Cuantía volumétrica"}},
                             {{"TX_EPSR", "ε<sub>r</sub>", "‰", "Deformación del refuerzo TEXALON®"},
                              {"TX_SIGMAR", "σ<sub>r</sub>", "N/mm²", "Tensión del refuerzo TEXALON®"},
                              {"TX_TENSCONF", "σ<sub>l</sub>/f<sub>cd</sub>", "", "Tensión de confinamiento"},
                              {"TX_RESU", "f<sub>cc</sub>/f<sub>cd</sub>", "", "Incremento de resistencia"}}}),
        2, 0);
    rejilla->addWidget(
        CreaMarcoRejilla("FG_CONFINA", QStringLiteral("Incremento de resistencia debido al confinamiento")), 0, 1);
    rejilla->addWidget(CreaBotones("Calcular confinamiento",
                                   {{"CM_SECCION", "Sección", "boton_seccion"},
                                    {"CM_CONFINA", "Diagrama Capas-Incremento de resistencia", "boton_confina"}}),
                       0, 2, Qt::AlignTop);
    rejilla->addWidget(CreaDibujoConVeredicto(kPicConfina,
                                              QString::fromUtf8(TextoVeredicto(Veredicto::NoSePuede))),
                       1, 1, 2, 2);
    rejilla->setRowStretch(2, 1);
    rejilla->setColumnStretch(1, 1);
    OrdenaTabulacion({"CO_SECCION", "TX_DIAM", "TX_LADOMENOR", "TX_INCR", "TX_NCP", "CO_FCK", "CM_GAMMA1",
                      "CM_CALCULAR", "CM_SECCION", "CM_CONFINA", "FG_CONFINA"});
    ActivaResultados(false);
    ConectaDiagrama("CM_SECCION", [this] {
        DibujaSeccionConfina(Estado(), EstadoDibujo(), plataforma::ServicioRegional().SeparadorDecimal());
        MuestraDiagrama(kIsotropico);
    });
    ConectaDiagrama("CM_CONFINA", [this] { GraficoDelCalculo(); });

    // The load.
    General& g = Estado();
    g.F_CONFINA = true;
    g.F_GRABADO = g.F_ABIERTO;
    g.F_NUEVO = !g.F_ABIERTO;
    for (const std::string& fila : FilasSeccion())
        seccion_->addItem(QString::fromStdString(fila));
    seccion_->setCurrentIndex(-1);
    // Selecting the row is a click on the list, with its change steps, before the fields are
    // written: every confinement screen counts as modified from the moment it opens. With a
    // section kind outside the rows no row is selected and nothing runs.
    const int fila = FilaDeLista(FormaDe(g));
    if (fila >= 0 && fila < static_cast<int>(FilasSeccion().size())) {
        seccion_->setCurrentIndex(fila);
        if (const auto alfan = CoeficienteFormaDeFila(seccion_->currentIndex(), g)) g.ALFAN = *alfan;
        CambioSeccion(true);
    }
    for (const char* nombre : {"TX_DIAM", "TX_LADOMENOR", "TX_NCP", "TX_INCR"})
        CargaCampo(Regla(nombre));
    EscribeTexto(Control(QStringLiteral("TX_NU")), plataforma::FormatoLocal(g.NU, "0.00"));
    EscribeCoeficienteForma();
    ActivaLadoMenor(FormaDe(g) == FormaPilar::Rectangular);
    CargaCampo(Regla("CO_FCK"));
}

QWidget* FmConfina::CreaDatos()
{
    QGroupBox* marco = CreaMarco("Frame2", QStringLiteral("Datos de la sección"));
    QGridLayout* filas = CreaFilas(marco);

    // A pure list, as wide as its longest row, over the columns of the fields and their units.
    seccion_ = Registra(new ListaDesplegable(false, marco), "CO_SECCION");
    seccion_->setAccessibleName(QStringLiteral("Tipo de sección"));
    seccion_->setFixedSize(kAnchoCampo + kAnchoUnidad + kAnchoBoton + 2 * kSeparacion, kAltoControl);
    ProtegeClic(seccion_);
    QLabel* tipo = CreaEtiqueta(QStringLiteral("Tipo de sección"), marco);
    tipo->setBuddy(seccion_);
    filas->addWidget(tipo, 0, 0);
    filas->addWidget(seccion_, 0, 1, 1, 3);
    connect(seccion_, &QComboBox::activated, this, [this] {
        if (!teclaEnCurso_) CambioSeccion(true);
    });
    seccion_->installEventFilter(this);

    AnadeFila(filas, QStringLiteral("Diámetro/Lado"), CreaCampo(Regla("TX_DIAM"), marco), QStringLiteral("m"));
    const Rotulos ladoMenor =
        AnadeFila(filas, QStringLiteral("Lado menor"), CreaCampo(Regla("TX_LADOMENOR"), marco), QStringLiteral("m"));
    Registra(ladoMenor.etiqueta, "LB_LM");
    Registra(ladoMenor.unidad, "LB_LMU");
    AnadeFila(filas, QStringLiteral("Incr. de resistencia"), CreaCampo(Regla("TX_INCR"), marco), QString());
    AnadeFila(filas, QStringLiteral("Axil actual"), CreaCampo(Regla("TX_NCP"), marco), QStringLiteral("kN"));
    AnadeFila(filas, QStringLiteral("f<sub>ck</sub>"), CreaCampo(Regla("CO_FCK"), marco), QStringLiteral("N/mm²"),
              CreaGamma("CM_GAMMA1", marco));
    AlineaColumnas(filas);
    return marco;
}

QWidget* FmConfina::CreaValoresAdoptados()
{
    QGroupBox* marco = CreaMarco("Frame3", QStringLiteral("Valores adoptados en el cálculo"));
    QGridLayout* filas = CreaFilas(marco);
    // They show what the system fixes; no check reads them and they feed nothing.
    for (const auto& [nombre, etiqueta] : {std::pair{"TX_ALFAN", "Coeficiente de forma"}, {"TX_NU", "Coef. Poisson"}}) {
        auto* campo = Registra(new CampoResultado(QString::fromLatin1(nombre), Utf8(etiqueta), marco));
        campo->setFixedSize(kAnchoCampo, kAltoControl);
        AnadeFila(filas, Utf8(etiqueta), campo, QString());
    }
    AlineaColumnas(filas);
    return marco;
}

bool FmConfina::eventFilter(QObject* objeto, QEvent* evento)
{
    // Key down and key up on CO_SECCION run the change steps, without the click's last one: a
    // change of section by keyboard can leave the diagram button enabled. Tab only moves on.
    const bool tecla = evento->type() == QEvent::KeyPress || evento->type() == QEvent::KeyRelease;
    if (objeto != seccion_ || !tecla) return FormularioCalculo::eventFilter(objeto, evento);
    const int codigo = static_cast<QKeyEvent*>(evento)->key();
    if (codigo == Qt::Key_Tab || codigo == Qt::Key_Backtab) return false;
    if (evento->type() == QEvent::KeyPress) {
        // The key does its work on the list first; the steps then see the row it chose.
        teclaEnCurso_ = true;
        seccion_->event(evento);
        teclaEnCurso_ = false;
        plataforma::AtrapaErrorFatal([this] { CambioSeccion(false); });
        return true;
    }
    // A message of the key's down has sent the focus away: the key's up happens elsewhere.
    if (seccion_->hasFocus()) plataforma::AtrapaErrorFatal([this] { CambioSeccion(false); });
    return false;
}

void FmConfina::CambioSeccion(bool porClic)
{
    const CambioDeForma cambio = texalon::CambiaSeccion(Estado(), seccion_->currentIndex());
    ActivaLadoMenor(cambio.ladoMenorActivo);
    if (!cambio.mensaje.empty()) {
        // The handler goes on after the focus has moved: nothing is reset, the section stays.
        plataforma::MsgBox(QString::fromStdString(cambio.mensaje), plataforma::Estilo::Parada);
        DevuelveFoco(Control(QStringLiteral("TX_LADOMENOR")));
    }
    EscribeCoeficienteForma();
    if (porClic) Control(QStringLiteral("CM_CONFINA"))->setEnabled(false);
}

void FmConfina::ActivaLadoMenor(bool activo)
{
    // The row stays on the screen, greyed, and LADOMENOR stays in the state and the file.
    for (const char* nombre : {"LB_LM", "TX_LADOMENOR", "LB_LMU"})
        Control(QString::fromLatin1(nombre))->setEnabled(activo);
}

void FmConfina::EscribeCoeficienteForma()
{
    EscribeTexto(Control(QStringLiteral("TX_ALFAN")), plataforma::FormatoLocal(Estado().ALFAN, "0.000"));
}

void FmConfina::Aceptado(const ReglaCampo& regla)
{
    if (regla.control != "TX_DIAM" && regla.control != "TX_LADOMENOR") return;
    if (const auto alfan = CoeficienteFormaDeFila(seccion_->currentIndex(), Estado())) Estado().ALFAN = *alfan;
    EscribeCoeficienteForma();
}

FormaPilar FmConfina::Forma() const { return FormaDeFila(seccion_->currentIndex()); }

// INCR and SECCION are not read here: their own handlers keep them current.
void FmConfina::LeeCampos(General& g) const
{
    for (const char* nombre : {"TX_DIAM", "TX_LADOMENOR", "CO_FCK", "TX_NCP"})
        LeeCampo(g, Regla(nombre));
}

ResultadoCalculo FmConfina::Calcula()
{
    return CalculaConfinamiento(Estado(), Forma(), [this](General& g) { LeeCampos(g); });
}

// The fields are tested for the section that the calculation takes, the one of the list.
std::optional<CampoRechazado> FmConfina::CampoQueRechazaAlCalcular() const
{
    General valores = Estado();
    LeeCampos(valores);
    valores.SECCION = NumeroDe(Forma());
    return CampoQueRechazaElConfinamiento(valores);
}

CeldaResultado FmConfina::Celda(int tipo, int capas) const
{
    return CeldaConfina(Estado(), tipo, capas, plataforma::ServicioRegional().SeparadorDecimal());
}

void FmConfina::ResultadosConfina(int tipo, int capas)
{
    celdaMostrada_ =
        texalon::ResultadosConfina(Estado(), tipo, capas, plataforma::ServicioRegional().SeparadorDecimal());
    const ResultadosCeldaConfina& r = celdaMostrada_;
    MuestraTipo(r.tipo);
    Muestra({{"TX_WC", &r.WC},
             {"TX_WR", &r.WR},
             {"TX_WWD", &r.WWD},
             {"TX_EPS0", &r.EPS0},
             {"TX_EPSR", &r.EPSR},
             {"TX_SIGMAR", &r.SIGMAR},
             {"TX_TENSCONF", &r.TENSCONF},
             {"TX_RESU", &r.RESU}});
}

void FmConfina::MuestraCelda(int tipo, int capas) { ResultadosConfina(tipo, capas); }

void FmConfina::BajaBandera(General& g) { g.F_CONFINA = false; }

bool FmConfina::Imprime(plataforma::Impresora& impresora)
{
    InformeConfina(impresora, Estado(), EstadoDibujo(), celdaMostrada_, Forma(),
                   plataforma::ServicioRegional().SeparadorDecimal());
    return true;
}

void FmConfina::CopiaAlEstado()
{
    const auto texto = [this](const char* nombre) {
        return TextoDe(Control(QString::fromLatin1(nombre))).toStdString();
    };
    CopiaConfina(Estado(),
                 {texto("TX_DIAM"), texto("TX_LADOMENOR"), texto("CO_FCK"), texto("TX_NCP"), texto("TX_INCR")},
                 seccion_->currentIndex());
}

void FmConfina::GraficoDelCalculo()
{
    DiagramaConfina(Estado(), EstadoDibujo(), plataforma::ServicioRegional().SeparadorDecimal());
    MuestraDiagrama(kAnisotropico);
}

bool FmConfina::PideFichero(General& g) const { return PideFicheroConfina(g); }

void FmConfina::Graba(General& g) const { GrabaConfina(g, g.FICHERO, AvisoFichero()); }

}  // namespace texalon
