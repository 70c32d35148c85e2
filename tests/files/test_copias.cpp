// The copies of the screens' fields into the project state: the numeric test of every field, the
// values taken without their signs, the checks at their bounds, and what a copy never touches.
#include "Auxiliares.h"

#include "files/Copias.h"
#include "state/General.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace texalon {
namespace {

using prueba::EstadoAjeno;

using CopiaDeFlexion = void (*)(General&, const TextosFlexion&);
using CampoFlexion = std::string TextosFlexion::*;
using CampoConfina = std::string TextosConfina::*;

// The start values of a flexure project as the screens show them.
TextosFlexion FlexionInicial()
{
    return {"0,400", "0,600", "0,200", "0,200", "0,050", "10,00", "0,00", "25", "500", "0,125", "0,00", "0,00"};
}

// A rectangular column 0.5 by 0.4 with an axial load of 1200.
TextosConfina ConfinaInicial() { return {"0,500", "0,400", "25", "1200,00", "1,00"}; }

// The texts with some fields changed.
template <typename Textos>
Textos Con(Textos textos,
           std::initializer_list<std::pair<std::string std::type_identity_t<Textos>::*, const char*>> cambios)
{
    for (const auto& [campo, texto] : cambios)
        textos.*campo = texto;
    return textos;
}

TextosFlexion FlexionCon(std::initializer_list<std::pair<CampoFlexion, const char*>> cambios)
{
    return Con(FlexionInicial(), cambios);
}

TextosConfina ConfinaCon(std::initializer_list<std::pair<CampoConfina, const char*>> cambios)
{
    return Con(ConfinaInicial(), cambios);
}

// Every project value as it was: the project fields of both calculations and the coefficients.
void EsperaEstadoIntacto(const General& g)
{
    const General ajeno = EstadoAjeno();
    prueba::EsperaMismosValoresFlexion(ajeno, g);
    prueba::EsperaMismosValoresConfinamiento(ajeno, g);
}

General CopiaSobreAjeno(CopiaDeFlexion copia, const TextosFlexion& textos)
{
    General g = EstadoAjeno();
    copia(g, textos);
    return g;
}

General CopiaConfinaSobreAjeno(const TextosConfina& textos, int indice_seccion)
{
    General g = EstadoAjeno();
    CopiaConfina(g, textos, indice_seccion);
    return g;
}

// Whether the copy takes the texts; a refusal must have left the whole state as it was.
bool Acepta(CopiaDeFlexion copia, const TextosFlexion& textos)
{
    const General g = CopiaSobreAjeno(copia, textos);
    if (g.F_ERROR) EsperaEstadoIntacto(g);
    return !g.F_ERROR;
}

bool AceptaConfina(const TextosConfina& textos, int indice_seccion = 2)
{
    const General g = CopiaConfinaSobreAjeno(textos, indice_seccion);
    if (g.F_ERROR) EsperaEstadoIntacto(g);
    return !g.F_ERROR;
}

// The texts of one field that the copy takes, and those that it refuses: the field set to each
// in turn over the start texts.
void EsperaLimites(CopiaDeFlexion copia, CampoFlexion campo, std::initializer_list<const char*> aceptados,
                   std::initializer_list<const char*> rechazados)
{
    for (const char* texto : aceptados) EXPECT_TRUE(Acepta(copia, FlexionCon({{campo, texto}}))) << texto;
    for (const char* texto : rechazados) EXPECT_FALSE(Acepta(copia, FlexionCon({{campo, texto}}))) << texto;
}

void EsperaLimitesConfina(CampoConfina campo, std::initializer_list<const char*> aceptados,
                          std::initializer_list<const char*> rechazados)
{
    for (const char* texto : aceptados) EXPECT_TRUE(AceptaConfina(ConfinaCon({{campo, texto}}))) << texto;
    for (const char* texto : rechazados) EXPECT_FALSE(AceptaConfina(ConfinaCon({{campo, texto}}))) << texto;
}

struct NombreCampo {
    const char* nombre;
    CampoFlexion campo;
};

const std::vector<NombreCampo> kCamposRectangular = {
    {"ANCHO", &TextosFlexion::ANCHO}, {"CANTO", &TextosFlexion::CANTO},   {"RECUB", &TextosFlexion::RECUB},
    {"ASI", &TextosFlexion::ASI},     {"ASS", &TextosFlexion::ASS},       {"FCK", &TextosFlexion::FCK},
    {"FYK", &TextosFlexion::FYK},     {"ANCHOR", &TextosFlexion::ANCHOR}, {"MCP", &TextosFlexion::MCP},
    {"MD", &TextosFlexion::MD},
};

const std::vector<NombreCampo> kCamposT = {
    {"ANCHO", &TextosFlexion::ANCHO},       {"CANTO", &TextosFlexion::CANTO}, {"ANCHOALMA", &TextosFlexion::ANCHOALMA},
    {"CANTOALA", &TextosFlexion::CANTOALA}, {"RECUB", &TextosFlexion::RECUB}, {"ASI", &TextosFlexion::ASI},
    {"ASS", &TextosFlexion::ASS},           {"FCK", &TextosFlexion::FCK},     {"FYK", &TextosFlexion::FYK},
    {"ANCHOR", &TextosFlexion::ANCHOR},     {"MCP", &TextosFlexion::MCP},     {"MD", &TextosFlexion::MD},
};

// ---------------------------------------------------------------------------------------------
// What the two flexure copies share.

struct Forma {
    const char* nombre;
    CopiaDeFlexion copia;
    const std::vector<NombreCampo>* campos;
};

class AmbasFlexiones : public ::testing::TestWithParam<Forma> {
protected:
    CopiaDeFlexion Copia() const { return GetParam().copia; }
    bool Acepta(const TextosFlexion& textos) const { return texalon::Acepta(Copia(), textos); }
    General Copiada(const TextosFlexion& textos) const { return CopiaSobreAjeno(Copia(), textos); }
};

TEST_P(AmbasFlexiones, LosValoresInicialesSeGuardan)
{
    const General g = Copiada(FlexionInicial());
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaCampos(g, {{"ANCHO", 0.4}, {"CANTO", 0.6}, {"RECUB", 0.05}, {"ASI", 10.0}, {"ASS", 0.0},
                             {"FCK", 25.0}, {"FYK", 500.0}, {"ANCHOR", 0.125}, {"MCP", 0.0}, {"MD", 0.0}});
}

TEST_P(AmbasFlexiones, ComaYPuntoDanElMismoValor)
{
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::ANCHO, "0,400"}})).ANCHO, 0.4);
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::ANCHO, "0.400"}})).ANCHO, 0.4);
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::MD, "123,5"}})).MD, 123.5);
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::MD, "123.5"}})).MD, 123.5);
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::FCK, "2,5E1"}})).FCK, 25.0);
}

TEST_P(AmbasFlexiones, SeGuardaElValorSinSigno)
{
    const General g = Copiada(FlexionCon({{&TextosFlexion::ANCHO, "-0,4"},
                                          {&TextosFlexion::FCK, "-30"},
                                          {&TextosFlexion::MCP, "-12,5"},
                                          {&TextosFlexion::MD, "-150"}}));
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaCampos(g, {{"ANCHO", 0.4}, {"FCK", 30.0}, {"MCP", 12.5}, {"MD", 150.0}});
}

// The sign goes before the checks: a negative width is a positive one to them, so the sheet fits.
TEST_P(AmbasFlexiones, LasComprobacionesVenLosValoresSinSigno)
{
    EXPECT_TRUE(Acepta(FlexionCon({{&TextosFlexion::ANCHO, "-0,4"},
                                   {&TextosFlexion::ANCHOALMA, "-0,2"},
                                   {&TextosFlexion::ANCHOR, "-0,125"},
                                   {&TextosFlexion::RECUB, "-0,3"}})));
    EXPECT_TRUE(Acepta(FlexionCon({{&TextosFlexion::FCK, "-15"}, {&TextosFlexion::FYK, "-600"}})));
    EXPECT_FALSE(Acepta(FlexionCon({{&TextosFlexion::FCK, "-14,99"}})));
}

TEST_P(AmbasFlexiones, LosBlancosAlrededorNoCuentan)
{
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::ANCHO, "  0,400  "}})).ANCHO, 0.4);
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::ANCHO, "\t0.4\t"}})).ANCHO, 0.4);
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::MD, " \t-75,25 "}})).MD, 75.25);
}

TEST_P(AmbasFlexiones, UnCampoVacioSeRechaza)
{
    for (const NombreCampo& c : *GetParam().campos) {
        SCOPED_TRACE(c.nombre);
        EXPECT_FALSE(Acepta(FlexionCon({{c.campo, ""}})));
    }
}

TEST_P(AmbasFlexiones, UnCampoNoNumericoSeRechaza)
{
    for (const NombreCampo& c : *GetParam().campos) {
        SCOPED_TRACE(c.nombre);
        for (const char* texto : {"12a", "abc", "   ", "0,,4", "1e", "--1", "1.2.3a", "1e999"}) {
            SCOPED_TRACE(texto);
            EXPECT_FALSE(Acepta(FlexionCon({{c.campo, texto}})));
        }
    }
}

// The last field refused after all the others passed: nothing of them reaches the state.
TEST_P(AmbasFlexiones, UnRechazoAlFinalNoDejaNadaGuardado)
{
    const General g = Copiada(FlexionCon({{&TextosFlexion::ANCHO, "0,5"}, {&TextosFlexion::MD, "12a"}}));
    EXPECT_TRUE(g.F_ERROR);
    EXPECT_EQ(g.ANCHO, EstadoAjeno().ANCHO);
    EsperaEstadoIntacto(g);
}

TEST_P(AmbasFlexiones, LosCamposQueNoPuedenSerCeroSeRechazanEnCero)
{
    for (CampoFlexion campo : {&TextosFlexion::ANCHO, &TextosFlexion::CANTO, &TextosFlexion::RECUB, &TextosFlexion::ASI,
                               &TextosFlexion::ANCHOR}) {
        for (const char* cero : {"0", "0,000", "-0", "0e5"}) {
            SCOPED_TRACE(cero);
            EXPECT_FALSE(Acepta(FlexionCon({{campo, cero}})));
        }
    }
}

TEST_P(AmbasFlexiones, AssMcpYMdPuedenSerCero)
{
    const General g =
        Copiada(FlexionCon({{&TextosFlexion::ASS, "0"}, {&TextosFlexion::MCP, "0,000"}, {&TextosFlexion::MD, "-0"}}));
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaCampos(g, {{"ASS", 0.0}, {"MCP", 0.0}, {"MD", 0.0}});
}

TEST_P(AmbasFlexiones, FckDe15A50AmbosIncluidos)
{
    EsperaLimites(Copia(), &TextosFlexion::FCK, {"15", "15,01", "49.99", "50"}, {"14,99", "50,01"});
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::FCK, "50"}})).FCK, 50.0);
}

TEST_P(AmbasFlexiones, FykDe300A600AmbosIncluidos)
{
    EsperaLimites(Copia(), &TextosFlexion::FYK, {"300", "300,01", "599.99", "600"}, {"299,99", "600,01"});
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::FYK, "300"}})).FYK, 300.0);
}

TEST_P(AmbasFlexiones, ElRecubrimientoHastaMedioCanto)
{
    EsperaLimites(Copia(), &TextosFlexion::RECUB, {"0,299", "0,300"}, {"0,301"});
    EXPECT_EQ(Copiada(FlexionCon({{&TextosFlexion::RECUB, "0.3"}})).RECUB, 0.3);
}

// F_ERROR is the caller's: a copy whose own checks pass leaves it true and stores its values.
TEST_P(AmbasFlexiones, NuncaBorraFError)
{
    General g = EstadoAjeno();
    g.F_ERROR = true;
    Copia()(g, FlexionInicial());
    EXPECT_TRUE(g.F_ERROR);
    EXPECT_EQ(g.ANCHO, 0.4);
    EXPECT_EQ(g.MD, 0.0);

    General rechazado = EstadoAjeno();
    rechazado.F_ERROR = true;
    Copia()(rechazado, FlexionCon({{&TextosFlexion::ASI, "0"}}));
    EXPECT_TRUE(rechazado.F_ERROR);
    EsperaEstadoIntacto(rechazado);
}

TEST_P(AmbasFlexiones, NoTocaCoeficientesNiDatosDeConfinamiento)
{
    const General ajeno = EstadoAjeno();
    const General g = Copiada(FlexionInicial());
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaMismosCampos(g, ajeno,
                               {"GC", "GS", "GR", "NU", "EPS0", "SECCION", "DIAM", "LADOMENOR", "NCP", "INCR"});
}

INSTANTIATE_TEST_SUITE_P(Copias, AmbasFlexiones,
                         ::testing::Values(Forma{"Rectangular", &CopiaFlexion, &kCamposRectangular},
                                           Forma{"T", &CopiaFlexionT, &kCamposT}),
                         [](const ::testing::TestParamInfo<Forma>& forma) { return std::string(forma.param.nombre); });

// ---------------------------------------------------------------------------------------------
// The rectangular copy.

TEST(CopiaFlexion, NoMiraElAnchoDelAlmaNiElCantoDelAla)
{
    for (const char* texto : {"abc", "", "0", "99"}) {
        SCOPED_TRACE(texto);
        const General g = CopiaSobreAjeno(
            &CopiaFlexion, FlexionCon({{&TextosFlexion::ANCHOALMA, texto}, {&TextosFlexion::CANTOALA, texto}}));
        EXPECT_FALSE(g.F_ERROR);
        EXPECT_EQ(g.ANCHO, 0.4);
        EXPECT_EQ(g.ANCHOALMA, EstadoAjeno().ANCHOALMA);
        EXPECT_EQ(g.CANTOALA, EstadoAjeno().CANTOALA);
    }
}

TEST(CopiaFlexion, LaLaminaCabeEnElAncho)
{
    EsperaLimites(&CopiaFlexion, &TextosFlexion::ANCHOR, {"0,399", "0,400"}, {"0,401"});
    EXPECT_EQ(CopiaSobreAjeno(&CopiaFlexion, FlexionCon({{&TextosFlexion::ANCHOR, "0.4"}})).ANCHOR, 0.4);
}

// A wide web says nothing for a rectangle: the sheet is measured against the whole width.
TEST(CopiaFlexion, ElAlmaNoCuentaParaLaLamina)
{
    EXPECT_FALSE(Acepta(&CopiaFlexion, FlexionCon({{&TextosFlexion::ANCHO, "0,2"},
                                                   {&TextosFlexion::ANCHOALMA, "0,5"},
                                                   {&TextosFlexion::ANCHOR, "0,3"}})));
}

// ---------------------------------------------------------------------------------------------
// The T copy.

TEST(CopiaFlexionT, GuardaLosDoceValores)
{
    const General g = CopiaSobreAjeno(&CopiaFlexionT, FlexionInicial());
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaCampos(g, {{"ANCHO", 0.4}, {"CANTO", 0.6}, {"ANCHOALMA", 0.2}, {"CANTOALA", 0.2}, {"RECUB", 0.05},
                             {"ASI", 10.0}, {"ASS", 0.0}, {"FCK", 25.0}, {"FYK", 500.0}, {"ANCHOR", 0.125},
                             {"MCP", 0.0}, {"MD", 0.0}});
}

TEST(CopiaFlexionT, ElAnchoDelAlmaYElCantoDelAlaSeLeen)
{
    const General g = CopiaSobreAjeno(
        &CopiaFlexionT, FlexionCon({{&TextosFlexion::ANCHOALMA, "-0,25"}, {&TextosFlexion::CANTOALA, "0.15"}}));
    EXPECT_FALSE(g.F_ERROR);
    EXPECT_EQ(g.ANCHOALMA, 0.25);
    EXPECT_EQ(g.CANTOALA, 0.15);
    for (CampoFlexion campo : {&TextosFlexion::ANCHOALMA, &TextosFlexion::CANTOALA}) {
        for (const char* texto : {"abc", "", "0", "0,000"}) {
            SCOPED_TRACE(texto);
            EXPECT_FALSE(Acepta(&CopiaFlexionT, FlexionCon({{campo, texto}})));
        }
    }
}

TEST(CopiaFlexionT, LaLaminaCabeEnElAlma)
{
    EsperaLimites(&CopiaFlexionT, &TextosFlexion::ANCHOR, {"0,199", "0,200"}, {"0,201"});
}

// For a T section the sheet is measured against the web alone, even a web wider than the flange.
TEST(CopiaFlexionT, ElAnchoDelAlaNoCuentaParaLaLamina)
{
    EXPECT_TRUE(Acepta(&CopiaFlexionT, FlexionCon({{&TextosFlexion::ANCHO, "0,2"},
                                                   {&TextosFlexion::ANCHOALMA, "0,5"},
                                                   {&TextosFlexion::ANCHOR, "0,3"}})));
}

TEST(CopiaFlexionT, ElCantoDelAlaHastaElCanto)
{
    EsperaLimites(&CopiaFlexionT, &TextosFlexion::CANTOALA, {"0,599", "0,600"}, {"0,601"});
    EXPECT_EQ(CopiaSobreAjeno(&CopiaFlexionT, FlexionCon({{&TextosFlexion::CANTOALA, "0.6"}})).CANTOALA, 0.6);
}

// ---------------------------------------------------------------------------------------------
// The confinement copy.

struct NombreCampoConfina {
    const char* nombre;
    CampoConfina campo;
};

const std::vector<NombreCampoConfina> kCamposConfina = {
    {"DIAM", &TextosConfina::DIAM}, {"LADOMENOR", &TextosConfina::LADOMENOR}, {"FCK", &TextosConfina::FCK},
    {"NCP", &TextosConfina::NCP},   {"INCR", &TextosConfina::INCR},
};

TEST(CopiaConfina, LosValoresSeGuardan)
{
    const General ajeno = EstadoAjeno();
    const General g = CopiaConfinaSobreAjeno(ConfinaInicial(), 2);
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaCampos(g, {{"DIAM", 0.5}, {"LADOMENOR", 0.4}, {"FCK", 25.0}, {"NCP", 1200.0}, {"INCR", 1.0}});
    // Nothing else: not the section kind, the coefficients, nor the flexure fields.
    prueba::EsperaMismosCampos(g, ajeno, {"SECCION", "GC", "GS", "GR", "NU", "FYK", "ANCHO", "MD"});
}

TEST(CopiaConfina, LaSeccionNoSeCopiaDeLaLista)
{
    for (int indice : {0, 1, 2}) {
        SCOPED_TRACE(indice);
        const General g = CopiaConfinaSobreAjeno(ConfinaInicial(), indice);
        EXPECT_FALSE(g.F_ERROR);
        EXPECT_EQ(g.SECCION, EstadoAjeno().SECCION);
    }
}

TEST(CopiaConfina, ComaPuntoSignoYBlancos)
{
    const General g = CopiaConfinaSobreAjeno(ConfinaCon({{&TextosConfina::DIAM, "0.500"},
                                                         {&TextosConfina::LADOMENOR, " -0,4 "},
                                                         {&TextosConfina::NCP, "-1200,5"},
                                                         {&TextosConfina::INCR, "\t-1,25"}}),
                                             2);
    EXPECT_FALSE(g.F_ERROR);
    prueba::EsperaCampos(g, {{"DIAM", 0.5}, {"LADOMENOR", 0.4}, {"NCP", 1200.5}, {"INCR", 1.25}});
}

TEST(CopiaConfina, UnCampoVacioONoNumericoSeRechaza)
{
    for (const NombreCampoConfina& c : kCamposConfina) {
        SCOPED_TRACE(c.nombre);
        for (const char* texto : {"", "12a", "abc", "   ", "1,,5", "1e999"}) {
            SCOPED_TRACE(texto);
            EXPECT_FALSE(AceptaConfina(ConfinaCon({{c.campo, texto}})));
        }
    }
}

TEST(CopiaConfina, ElLadoMenorDeUnRectanguloNoPasaDelMayor)
{
    const TextosConfina cruzados = ConfinaCon({{&TextosConfina::DIAM, "0,4"}, {&TextosConfina::LADOMENOR, "0,5"}});
    EXPECT_FALSE(AceptaConfina(cruzados, 2));
    EXPECT_TRUE(AceptaConfina(cruzados, 0));
    EXPECT_TRUE(AceptaConfina(cruzados, 1));
    EXPECT_TRUE(AceptaConfina(ConfinaCon({{&TextosConfina::DIAM, "0,4"}, {&TextosConfina::LADOMENOR, "0,4"}}), 2));
    EXPECT_FALSE(AceptaConfina(ConfinaCon({{&TextosConfina::DIAM, "0,4"}, {&TextosConfina::LADOMENOR, "0,401"}}), 2));
    // The sign goes first: -0,4 is 0.4 to the check.
    EXPECT_FALSE(AceptaConfina(ConfinaCon({{&TextosConfina::DIAM, "-0,4"}, {&TextosConfina::LADOMENOR, "0,5"}}), 2));
}

TEST(CopiaConfina, LosLadosNoPuedenSerCero)
{
    for (int indice : {0, 1, 2}) {
        SCOPED_TRACE(indice);
        EXPECT_FALSE(AceptaConfina(ConfinaCon({{&TextosConfina::DIAM, "0"}}), indice));
        EXPECT_FALSE(AceptaConfina(ConfinaCon({{&TextosConfina::LADOMENOR, "0,000"}}), indice));
    }
}

TEST(CopiaConfina, FckDe15A50AmbosIncluidos)
{
    EsperaLimitesConfina(&TextosConfina::FCK, {"15", "15,01", "49,99", "50"}, {"14,99", "50,01"});
}

TEST(CopiaConfina, ElIncrementoNoBajaDeUno)
{
    EsperaLimitesConfina(&TextosConfina::INCR, {"1", "1,01", "-1"}, {"0,99", "-0,99", "0"});
}

TEST(CopiaConfina, ElAxilPuedeSerCero)
{
    const General g = CopiaConfinaSobreAjeno(ConfinaCon({{&TextosConfina::NCP, "0"}}), 0);
    EXPECT_FALSE(g.F_ERROR);
    EXPECT_EQ(g.NCP, 0.0);
}

TEST(CopiaConfina, NuncaBorraFError)
{
    General g = EstadoAjeno();
    g.F_ERROR = true;
    CopiaConfina(g, ConfinaInicial(), 2);
    EXPECT_TRUE(g.F_ERROR);
    EXPECT_EQ(g.DIAM, 0.5);
    EXPECT_EQ(g.NCP, 1200.0);

    General rechazado = EstadoAjeno();
    rechazado.F_ERROR = true;
    CopiaConfina(rechazado, ConfinaCon({{&TextosConfina::INCR, "0,5"}}), 2);
    EXPECT_TRUE(rechazado.F_ERROR);
    EsperaEstadoIntacto(rechazado);
}

}  // namespace
}  // namespace texalon
