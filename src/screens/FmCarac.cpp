#include "screens/FmCarac.h"

#include "diagrams/Grafico.h"
#include "diagrams/Lista.h"
#include "reports/Informes.h"
#include "diagrams/qt/Lienzo.h"
#include "engine/Caracteristicas.h"
#include "platform/Plataforma.h"
#include "screens/CampoResultado.h"
#include "screens/Entrada.h"
#include "screens/RejillaResultados.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace texalon {

namespace {

// FG_EPSD's own sizes, in twips.
constexpr int kAltoFila = 300;
constexpr int kAnchoColumna = 915;
constexpr int kAnchoColumna0 = 525;

constexpr int kAnchoLeyenda = 180;

QString Utf8(const std::string& texto) { return QString::fromStdString(texto); }

}  // namespace

FmCarac::FmCarac(QWidget* padre)
    : Formulario(QStringLiteral("FM_CARAC"), QStringLiteral("Características mecánicas del refuerzo"), padre)
{
    QGridLayout* rejilla = CreaDisposicion();
    rejilla->addWidget(CreaRefuerzo(), 0, 0);
    rejilla->addWidget(CreaTabla(), 0, 1);
    rejilla->addWidget(CreaDibujo(kPicCarac), 1, 0, 1, 2);
    rejilla->setRowStretch(1, 1);
    rejilla->setColumnStretch(1, 1);
    OrdenaTabulacion({"OP_TL", "OP_TH", "OP_TX"});

    // The load.
    Estado().F_CARAC = true;
    CargaCaracteristicas();
    DiagramaTension(1);
}

QWidget* FmCarac::CreaRefuerzo()
{
    QGroupBox* marco = CreaMarco("FR_TEXALON", QStringLiteral("Características del refuerzo TEXALON"));
    auto* disposicion = new QVBoxLayout(marco);
    disposicion->setContentsMargins(8, 6, 8, 6);
    disposicion->setSpacing(6);

    auto* tipos = new QHBoxLayout;
    const char* const nombres[] = {"OP_TL", "OP_TH", "OP_TX"};
    const char* const rotulos[] = {"TIPO L", "TIPO H", "TIPO X"};
    for (int i = 0; i < 3; ++i) {
        opciones_[i] = Registra(new QRadioButton(QString::fromLatin1(rotulos[i]), marco), nombres[i]);
        // A click on the option already selected runs the same steps again, and draws the
        // stress-strain diagram of the option's type.
        connect(opciones_[i], &QRadioButton::clicked, this, [this, i] {
            plataforma::AtrapaErrorFatal([this, i] {
                CargaCaracteristicas();
                DiagramaTension(static_cast<Entero>(i + 1));
            });
        });
        tipos->addWidget(opciones_[i]);
    }
    opciones_[0]->setChecked(true);
    disposicion->addLayout(tipos);

    auto* filas = new QGridLayout;
    filas->setVerticalSpacing(2);
    filas->setHorizontalSpacing(4);
    struct Dato {
        const char* nombre;
        const char* etiqueta;
        const char* unidad;
    };
    for (const Dato& d : {Dato{"TX_ESPESOR", "Espesor", "mm"}, Dato{"TX_E", "Módulo de Young", "N/mm²"},
                          Dato{"TX_EPSU", "Deformación última", "‰"}}) {
        // The fields show the catalogue; no handler reads them.
        auto* campo = Registra(new CampoResultado(QString::fromLatin1(d.nombre), QString::fromUtf8(d.etiqueta), marco));
        campo->setFixedSize(kAnchoCampo, kAltoControl);
        const int fila = filas->rowCount();
        filas->addWidget(CreaEtiqueta(QString::fromUtf8(d.etiqueta), marco), fila, 0);
        filas->addWidget(campo, fila, 1);
        filas->addWidget(CreaEtiqueta(QString::fromUtf8(d.unidad), marco), fila, 2);
    }
    filas->setColumnStretch(0, 1);
    disposicion->addLayout(filas);
    disposicion->addStretch(1);
    return marco;
}

QWidget* FmCarac::CreaTabla()
{
    auto* zona = new QWidget(this);
    auto* disposicion = new QGridLayout(zona);
    disposicion->setContentsMargins(4, 8, 4, 4);
    disposicion->setHorizontalSpacing(12);
    disposicion->setVerticalSpacing(4);
    // The label is written as the users have always read it, double blank and all.
    const QString titulo = QStringLiteral("Deformación de cálculo en función del número de  capas dispuetas");
    QLabel* etiqueta = CreaEtiqueta(titulo, zona, "LB_EPSD");
    disposicion->addWidget(etiqueta, 0, 0, 1, 2);

    rejilla_ = Registra(new RejillaResultados(zona), "FG_EPSD");
    rejilla_->setAccessibleName(titulo);
    const General& g = Estado();
    rejilla_->Dimensiona(g.MAXCAPAS + 1, 4, kAltoFila, kAnchoColumna, kAnchoColumna0);
    rejilla_->setFixedSize(rejilla_->sizeHint());
    // A table to read: no cell is chosen and it takes no focus.
    rejilla_->Activa(false);
    disposicion->addWidget(rejilla_, 1, 0, Qt::AlignTop);

    auto* leyenda = new QGridLayout;
    leyenda->setHorizontalSpacing(8);
    leyenda->setVerticalSpacing(4);
    const char* const terminos[][2] = {{"Km", "Factor reductor de la deformación máxima "},
                                       {"Def. cálculo", "Deformación de cálculo del refuerzo"},
                                       {"FR", "Tensión máxima de cálculo del refuerzo"}};
    for (int i = 0; i < 3; ++i) {
        QLabel* termino = CreaEtiqueta(QString::fromUtf8(terminos[i][0]), zona);
        QFont negrita = termino->font();
        negrita.setBold(true);
        termino->setFont(negrita);
        leyenda->addWidget(termino, i, 0, Qt::AlignTop);
        // The explanations break their lines, so that the screen keeps within the main window.
        QLabel* explicacion = CreaEtiqueta(QString::fromUtf8(terminos[i][1]), zona);
        explicacion->setWordWrap(true);
        explicacion->setFixedWidth(kAnchoLeyenda);
        leyenda->addWidget(explicacion, i, 1);
    }
    leyenda->setRowStretch(3, 1);
    disposicion->addLayout(leyenda, 1, 1);
    disposicion->setColumnStretch(1, 1);
    return zona;
}

int FmCarac::TipoElegido() const
{
    for (int i = 0; i < 3; ++i)
        if (opciones_[i]->isChecked()) return i + 1;
    return 0;
}

void FmCarac::CargaCaracteristicas()
{
    General& g = Estado();
    texalon::CargaCaracteristicas(g, TipoElegido());
    const TextosCaracteristicas t = Caracteristicas(g, plataforma::ServicioRegional().SeparadorDecimal());
    EscribeTexto(Control(QStringLiteral("TX_ESPESOR")), Utf8(t.ESPESOR));
    EscribeTexto(Control(QStringLiteral("TX_E")), Utf8(t.E));
    EscribeTexto(Control(QStringLiteral("TX_EPSU")), Utf8(t.EPSU));
    rejilla_->Dimensiona(g.MAXCAPAS + 1, 4, kAltoFila, kAnchoColumna, kAnchoColumna0);
    for (int columna = 0; columna < 4; ++columna)
        rejilla_->EscribeCelda(0, columna, Utf8(t.cabecera[static_cast<std::size_t>(columna)]));
    for (int n = 1; n <= g.MAXCAPAS; ++n)
        for (int columna = 0; columna < 4; ++columna)
            rejilla_->EscribeCelda(n, columna,
                                   Utf8(t.filas[static_cast<std::size_t>(n - 1)][static_cast<std::size_t>(columna)]));
    rejilla_->AjustaLetra();
}

void FmCarac::DiagramaTension(Entero tipo)
{
    texalon::DiagramaTension(Estado(), EstadoDibujo(), tipo, plataforma::ServicioRegional().SeparadorDecimal());
    MuestraDiagrama(kAnisotropico);
}

bool FmCarac::Imprime(plataforma::Impresora& impresora)
{
    const char separador = plataforma::ServicioRegional().SeparadorDecimal();
    const int tipo = TipoElegido();
    texalon::DiagramaTension(Estado(), EstadoDibujo(), static_cast<Entero>(tipo), separador);
    InformeCarac(impresora, Estado(), EstadoDibujo(), tipo, separador);
    return true;
}

void FmCarac::closeEvent(QCloseEvent* evento)
{
    General& g = Estado();
    g.F_CARAC = false;
    g.F_CALCULADO = false;
    emit Descargada();
    // There is no prompt: nothing here is saved.
    BorraDibujo(EstadoDibujo());
    evento->accept();
}

}  // namespace texalon
