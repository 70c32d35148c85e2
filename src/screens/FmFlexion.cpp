#include "screens/FmFlexion.h"

#include "diagrams/Grafico.h"
#include "diagrams/Lista.h"
#include "diagrams/qt/Lienzo.h"
#include "engine/Calculos.h"
#include "files/Ficheros.h"
#include "platform/Plataforma.h"
#include "reports/Informes.h"
#include "screens/Entrada.h"
#include "screens/FmAnclaje.h"
#include "screens/Proyecto.h"
#include "files/ReglasFlexion.h"
#include "screens/RejillaResultados.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>

namespace texalon {

namespace {

// Label and unit of each input field.
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

QString Utf8(const char* texto) { return QString::fromUtf8(texto); }

// The four buttons that a Calculate enables and any change of a field disables.
const std::vector<const char*> kBotonesResultado = {"CM_ANCLAJE", "CM_ARMADURA", "CM_CAPAS", "CM_DEFORMACIONES"};

}  // namespace

FmFlexion::FmFlexion(SeccionFlexion seccion, QWidget* padre)
    : FormularioCalculo(
          {seccion == SeccionFlexion::T ? QStringLiteral("FM_FLEXIONT") : QStringLiteral("FM_FLEXION"),
           seccion == SeccionFlexion::T ? QStringLiteral("Cálculo del refuerzo a flexión en secciones T")
                                        : QStringLiteral("Cálculo del refuerzo a flexión en secciones rectangulares"),
           kBotonesResultado, true},
          padre),
      seccion_(seccion)
{
    QGridLayout* rejilla = CreaDisposicion();
    rejilla->addWidget(CreaDatos(), 0, 0);
    rejilla->addWidget(CreaMarcoRejilla("FG_FLEXION", QStringLiteral("Momento último de la sección reforzada (mkN)")),
                       0, 1);
    rejilla->addWidget(
        CreaBotones("Calcula flexión", {{"CM_SECCION", "Sección", "boton_seccion"},
                                        {"CM_DEFORMACIONES", "Diagrama de deformaciones", "boton_deformaciones"},
                                        {"CM_ARMADURA", "Diagrama M-Ar", "boton_armadura"},
                                        {"CM_CAPAS", "Diagrama M-Capas", "boton_capas"},
                                        {"CM_ANCLAJE", "Longitud de anclaje", "boton_anclaje"}}),
        0, 2, Qt::AlignTop);
    rejilla->addWidget(
        CreaMarcoResultados("Frame3", QStringLiteral("Resultados de la sección"),
                            {{{"TX_MUSR", "M<sub>u</sub> s/r", "mkN", "Momento último de la sección sin reforzar"},
                              {"TX_MU", "M<sub>u</sub>", "mkN", "Momento último de la sección con refuerzo"},
                              {"TX_MRB", "M<sub>RB</sub>", "mkN",
                               "Momento que hace que el diagrama de rotura pase por los pivotes R y B"},
                              {"TX_MLIMCR", "M<sub>lím</sub>", "mkN", "Momento límite de la sección con refuerzo"},
                              {"TX_FN", "x", "m", "Profundidad de la fibra neutra"},
                              {"TX_PIVOTE", "Pivote", "", "Pivote de rotura de la sección"}},
                             {{"TX_EPS0", "ε<sub>0</sub>", "‰", "Predeformación de la sección"},
                              {"TX_EPSC", "ε<sub>c</sub>", "‰", "Deformación de la fibra superior de hormigón"},
                              {"TX_EPSSS", "ε<sub>s sup</sub>", "‰", "Deformación de la armadura superior"},
                              {"TX_EPSSI", "ε<sub>s inf</sub>", "‰", "Deformación de la armadura inferior"},
                              {"TX_EPSR", "ε<sub>r</sub>", "‰", "Deformación del refuerzo TEXALON®"}}}),
        1, 0);
    rejilla->addWidget(CreaDibujoConVeredicto(kPicFlexion, QStringLiteral(" NO ES NECESARIO REFORZAR LA SECCIÓN ")),
                       1, 1, 1, 2);
    rejilla->setRowStretch(1, 1);
    rejilla->setColumnStretch(1, 1);

    auto* anclaje = qobject_cast<QPushButton*>(Control(QStringLiteral("CM_ANCLAJE")));
    connect(anclaje, &QPushButton::clicked, this, [this, anclaje] {
        if (BotonConFoco(anclaje)) plataforma::AtrapaErrorFatal([this] { OrdenAnclaje(this); });
    });
    ConectaDiagrama("CM_SECCION", [this] { DibujaSeccion(); });
    ConectaDiagrama("CM_DEFORMACIONES", [this] { DiagramaPivotes(); });
    ConectaDiagrama("CM_ARMADURA", [this] { DiagramaMomentoArea(); });
    ConectaDiagrama("CM_CAPAS", [this] { DiagramaMomentoCapas(); });

    std::vector<const char*> orden = {"TX_ANCHO"};
    if (EsT()) orden.push_back("TX_ANCHOALMA");
    orden.push_back("TX_CANTO");
    if (EsT()) orden.push_back("TX_CANTOALA");
    for (const char* nombre :
         {"TX_RECUB", "TX_ASI", "TX_ASS", "TX_MCP", "TX_MD", "CO_FCK", "CM_GAMMA1", "CO_FYK", "CM_GAMMA2", "CO_ANCHOR",
          "CM_CALCULAR", "CM_SECCION", "CM_DEFORMACIONES", "CM_ARMADURA", "CM_CAPAS", "CM_ANCLAJE", "FG_FLEXION"})
        orden.push_back(nombre);
    OrdenaTabulacion(orden);

    // The load.
    General& g = Estado();
    if (EsT())
        g.F_FLEXIONT = true;
    else
        g.F_FLEXION = true;
    g.F_GRABADO = g.F_ABIERTO;
    g.F_NUEVO = !g.F_ABIERTO;
    for (const ReglaCampo& regla : ReglasFlexion(seccion_))
        CargaCampo(regla);
    ActivaResultados(false);
}

QWidget* FmFlexion::CreaDatos()
{
    QGroupBox* marco = CreaMarco("Frame2", QStringLiteral("Datos de la sección"));
    QGridLayout* filas = CreaFilas(marco);
    const auto& reglas = ReglasFlexion(seccion_);
    const auto campo = [&](const char* nombre) -> QWidget* {
        for (const ReglaCampo& regla : reglas)
            if (regla.control == nombre) return CreaCampo(regla, marco);
        return nullptr;
    };
    const auto fila = [&](const char* nombre, QWidget* otro = nullptr, const char* otraUnidad = "") {
        const Rotulo& r = RotuloDe(nombre);
        AnadeFila(filas, Utf8(r.etiqueta), campo(nombre), Utf8(r.unidad), otro, Utf8(otraUnidad));
    };
    // On the T screen the web width and the flange depth stand beside the width and depth.
    if (EsT()) {
        QWidget* ancho = campo("TX_ANCHO");
        QWidget* alma = campo("TX_ANCHOALMA");
        AnadeFila(filas, QStringLiteral("Ancho - Ancho alma"), ancho, QStringLiteral("m"), alma, QStringLiteral("m"));
        alma->setAccessibleName(Utf8(RotuloDe("TX_ANCHOALMA").etiqueta));
        ancho->setAccessibleName(Utf8(RotuloDe("TX_ANCHO").etiqueta));
        QWidget* canto = campo("TX_CANTO");
        QWidget* ala = campo("TX_CANTOALA");
        AnadeFila(filas, QStringLiteral("Canto - Canto ala"), canto, QStringLiteral("m"), ala, QStringLiteral("m"));
        ala->setAccessibleName(Utf8(RotuloDe("TX_CANTOALA").etiqueta));
        canto->setAccessibleName(Utf8(RotuloDe("TX_CANTO").etiqueta));
    } else {
        fila("TX_ANCHO");
        fila("TX_CANTO");
    }
    for (const char* nombre : {"TX_RECUB", "TX_ASI", "TX_ASS", "TX_MCP", "TX_MD"})
        fila(nombre);
    // The coefficient buttons, with their Greek gamma, beside the materials.
    fila("CO_FCK", CreaGamma("CM_GAMMA1", marco));
    fila("CO_FYK", CreaGamma("CM_GAMMA2", marco));
    fila("CO_ANCHOR");
    filas->setColumnStretch(0, 1);
    return marco;
}

void FmFlexion::EscribeFilasAnchoRefuerzo()
{
    auto* lista = qobject_cast<QComboBox*>(Control(QStringLiteral("CO_ANCHOR")));
    const QString texto = lista->currentText();
    const auto& filas = FilasLista("CO_ANCHOR");
    for (int i = 0; i < static_cast<int>(filas.size()) && i < lista->count(); ++i)
        lista->setItemText(i, plataforma::FormatoLocal(filas[static_cast<std::size_t>(i)], "0.000"));
    lista->setEditText(texto);
}

void FmFlexion::Aceptado(const ReglaCampo& regla)
{
    if (regla.control == "TX_ANCHO" || regla.control == "TX_ANCHOALMA") EscribeFilasAnchoRefuerzo();
}

void FmFlexion::LeeCampos(General& g) const
{
    for (const ReglaCampo& regla : ReglasFlexion(seccion_))
        LeeCampo(g, regla);
}

ResultadoCalculo FmFlexion::Calcula()
{
    return CalculaFlexion(Estado(), seccion_, [this](General& g) { LeeCampos(g); });
}

std::optional<CampoRechazado> FmFlexion::CampoQueRechazaAlCalcular() const
{
    General valores = Estado();
    LeeCampos(valores);
    return CampoQueRechazaLaFlexion(valores, seccion_);
}

CeldaResultado FmFlexion::Celda(int tipo, int capas) const
{
    return CeldaFlexion(Estado(), tipo, capas, plataforma::ServicioRegional().SeparadorDecimal());
}

void FmFlexion::ResultadosFlexion(int tipo, int capas)
{
    General& g = Estado();
    celdaMostrada_ = texalon::ResultadosFlexion(g, tipo, capas, plataforma::ServicioRegional().SeparadorDecimal());
    const ResultadosCeldaFlexion& r = celdaMostrada_;
    MuestraTipo(r.tipo);
    Muestra({{"TX_MUSR", &r.MUSR},
             {"TX_EPS0", &r.EPS0},
             {"TX_MRB", &r.MRB},
             {"TX_MLIMCR", &r.MLIMCR},
             {"TX_PIVOTE", &r.PIVOTE},
             {"TX_FN", &r.FN},
             {"TX_EPSC", &r.EPSC},
             {"TX_EPSSI", &r.EPSSI},
             {"TX_EPSSS", &r.EPSSS},
             {"TX_EPSR", &r.EPSR},
             {"TX_MU", &r.MU}});
    g.EPSRSEL = g.EPSR(tipo, capas);
}

void FmFlexion::MuestraCelda(int tipo, int capas) { ResultadosFlexion(tipo, capas); }

void FmFlexion::CeldaElegida(int tipo, int capas)
{
    const bool conResultado = Estado().MU(tipo, capas) != kSinMejora;
    Control(QStringLiteral("CM_DEFORMACIONES"))->setEnabled(conResultado);
    // The strain diagram follows the cell while it is on show; any other diagram stays, and a
    // cell without a result leaves the picture as it is.
    if (conResultado && EstadoDibujo().F_PIVOTES) DiagramaPivotes();
}

void FmFlexion::GraficoDelCalculo() { DiagramaMomentoCapas(); }

void FmFlexion::DiagramaPivotes()
{
    const char separador = plataforma::ServicioRegional().SeparadorDecimal();
    DiagramaPivotesFlexion(Estado(), EstadoDibujo(), celdaMostrada_, separador);
    MuestraDiagrama(kAnisotropico);
}

void FmFlexion::DiagramaMomentoCapas()
{
    DiagramaMomentoCapasFlexion(Estado(), EstadoDibujo(), plataforma::ServicioRegional().SeparadorDecimal());
    MuestraDiagrama(kAnisotropico);
}

void FmFlexion::DiagramaMomentoArea()
{
    DiagramaMomentoAreaFlexion(Estado(), EstadoDibujo(), plataforma::ServicioRegional().SeparadorDecimal());
    MuestraDiagrama(kAnisotropico);
}

void FmFlexion::DibujaSeccion()
{
    DibujaSeccionFlexion(Estado(), EstadoDibujo(), seccion_, plataforma::ServicioRegional().SeparadorDecimal());
    MuestraDiagrama(kIsotropico);
}

bool FmFlexion::Imprime(plataforma::Impresora& impresora)
{
    const char separador = plataforma::ServicioRegional().SeparadorDecimal();
    switch (InformeFlexionDeSeccion(impresora, Estado(), EstadoDibujo(), seccion_, celdaMostrada_, VeredictoMostrado(),
                                    separador)) {
    case Impresion::ConDiagramas: return true;
    case Impresion::SoloVeredicto: break;
    case Impresion::CeldaRechazada:
        plataforma::MsgBox(QString::fromUtf8(kMensajeCeldaRechazada), plataforma::Estilo::Informacion);
        break;
    }
    return false;
}

void FmFlexion::BajaBandera(General& g)
{
    if (EsT())
        g.F_FLEXIONT = false;
    else
        g.F_FLEXION = false;
}

TextosFlexion FmFlexion::Textos() const
{
    const auto texto = [this](const char* nombre) {
        return TextoDe(Control(QString::fromLatin1(nombre))).toStdString();
    };
    TextosFlexion textos;
    textos.ANCHO = texto("TX_ANCHO");
    textos.CANTO = texto("TX_CANTO");
    if (EsT()) {
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

void FmFlexion::CopiaAlEstado() { CopiaFlexionDeSeccion(Estado(), Textos(), seccion_); }

bool FmFlexion::PideFichero(General& g) const { return PideFicheroFlexion(g); }

void FmFlexion::Graba(General& g) const { GrabaFlexion(g, g.FICHERO, seccion_, AvisoFichero()); }

}  // namespace texalon
