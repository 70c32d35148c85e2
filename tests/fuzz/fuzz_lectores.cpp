// Fuzz target of the project file readers and of the calculations behind them.
//
// An input is one project file: its first byte chooses the reader (even: flexure, VMF; odd:
// confinement, VMC; the seeds start with 'F' and 'C', so that they read as text) and the rest
// is the file. The file is read into a fresh state; a file the reader takes whose values the
// screens would accept too is written back, read again, and calculated. The engine's searches
// have no iteration limit and end only on data within the screens' bounds, so a state out of
// them is read and checked but never calculated here.
//
// A finding ends the process with a trap: a run-time error of a calculation (the engine raises
// one on a division by zero or an overflow) or a result that is not finite, a reader that
// leaves other values than the defaults on a refused file, a file written from a good state
// that does not read back the same.

#include "engine/Calcular.h"
#include "files/Ficheros.h"
#include "state/ErrorEjecucion.h"
#include "state/General.h"

#include <unistd.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace texalon {

namespace {

// Section kinds of a flexure file and shapes of a confinement file.
constexpr Entero kRectangular = 1;
constexpr Entero kSeccionTe = 2;
constexpr Entero kFormaMinima = 1;
constexpr Entero kFormaRectangular = 3;

// The bounds of the screens' fields.
constexpr double kLargoMinimo = 0.01;  // m
constexpr double kLargoMaximo = 10.0;  // m
constexpr double kAreaMinima = 0.01;  // cm²
constexpr double kAreaMaxima = 1000.0;  // cm²
constexpr double kFckMinimo = 15.0;
constexpr double kFckMaximo = 50.0;
constexpr double kFykMinimo = 300.0;
constexpr double kFykMaximo = 600.0;
constexpr double kCoeficienteMinimo = 1.0;
constexpr double kCoeficienteMaximo = 10.0;
constexpr double kMomentoMaximo = 100000.0;  // mkN
constexpr double kIncrMinimo = 1.0;
constexpr double kIncrMaximo = 100.0;
constexpr double kAxilMaximo = 1000000.0;  // kN
// The long side of a rectangular column stays below this many times the short side.
constexpr double kEsbeltezMaxima = 1.5;

// The one file of this process, written anew for every input and removed when it ends.
class FicheroDelProceso {
public:
    FicheroDelProceso()
        : ruta_((std::filesystem::temp_directory_path() /
                 ("texalon_fuzz_lectores_" + std::to_string(::getpid()) + ".txt"))
                    .string())
    {
    }
    FicheroDelProceso(const FicheroDelProceso&) = delete;
    FicheroDelProceso& operator=(const FicheroDelProceso&) = delete;
    ~FicheroDelProceso()
    {
        std::error_code sin_excepcion;
        std::filesystem::remove(ruta_, sin_excepcion);
    }

    const std::string& Ruta() const { return ruta_; }

    // Replaces the file with the bytes. A machine that cannot write its temporary folder
    // cannot fuzz at all: that is no finding, and the run stops with the reason.
    void Escribe(const std::uint8_t* datos, std::size_t largo) const
    {
        std::FILE* fichero = std::fopen(ruta_.c_str(), "wb");
        if (fichero == nullptr) Abandona();
        const bool escrito = largo == 0 || std::fwrite(datos, 1, largo, fichero) == largo;
        if (std::fclose(fichero) != 0 || !escrito) Abandona();
    }

private:
    [[noreturn]] void Abandona() const
    {
        std::fprintf(stderr, "fuzz_lectores: no se puede escribir %s\n", ruta_.c_str());
        std::abort();
    }

    std::string ruta_;
};

FicheroDelProceso& Fichero()
{
    static FicheroDelProceso fichero;
    return fichero;
}

// The readers tell the user of a faulty file; the fuzzer only checks that something is told.
struct Avisos {
    int cuantos = 0;
    bool vacio = false;

    Aviso Funcion()
    {
        return [this](const std::string& texto) {
            ++cuantos;
            if (texto.empty()) vacio = true;
        };
    }
};

[[noreturn]] void Hallazgo() { __builtin_trap(); }

void Exige(bool condicion)
{
    if (!condicion) Hallazgo();
}

bool Entre(double valor, double minimo, double maximo) { return valor >= minimo && valor <= maximo; }

bool EsLargo(double valor) { return Entre(valor, kLargoMinimo, kLargoMaximo); }

bool CoeficientesAdmitidos(const General& g)
{
    return Entre(g.GC, kCoeficienteMinimo, kCoeficienteMaximo) && Entre(g.GS, kCoeficienteMinimo, kCoeficienteMaximo) &&
           Entre(g.GR, kCoeficienteMinimo, kCoeficienteMaximo);
}

// What the flexure screens of the kind would let the user calculate.
bool FlexionAdmitida(const General& g, Entero tipo)
{
    const bool es_t = tipo == kSeccionTe;
    if (tipo != kRectangular && !es_t) return false;
    if (!EsLargo(g.ANCHO) || !EsLargo(g.CANTO) || !EsLargo(g.RECUB) || !EsLargo(g.ANCHOR)) return false;
    if (es_t && (!EsLargo(g.ANCHOALMA) || !EsLargo(g.CANTOALA))) return false;
    if (!Entre(g.ASI, kAreaMinima, kAreaMaxima) || !Entre(g.ASS, 0.0, kAreaMaxima)) return false;
    if (!Entre(g.FCK, kFckMinimo, kFckMaximo) || !Entre(g.FYK, kFykMinimo, kFykMaximo)) return false;
    if (!CoeficientesAdmitidos(g)) return false;
    if (g.RECUB > g.CANTO / 2.0) return false;
    if (es_t) {
        if (g.ANCHOALMA > g.ANCHO || g.CANTOALA > g.CANTO || g.ANCHOR > g.ANCHOALMA) return false;
    } else if (g.ANCHOR > g.ANCHO) {
        return false;
    }
    return Entre(g.MCP, -kMomentoMaximo, kMomentoMaximo) && Entre(g.MD, -kMomentoMaximo, kMomentoMaximo);
}

// What the confinement screen would let the user calculate.
bool ConfinamientoAdmitido(const General& g)
{
    if (g.SECCION < kFormaMinima || g.SECCION > kFormaRectangular) return false;
    if (!EsLargo(g.DIAM) || !EsLargo(g.LADOMENOR)) return false;
    if (!Entre(g.INCR, kIncrMinimo, kIncrMaximo) || !Entre(g.NCP, -kAxilMaximo, kAxilMaximo)) return false;
    if (!Entre(g.FCK, kFckMinimo, kFckMaximo) || !CoeficientesAdmitidos(g)) return false;
    if (g.SECCION == kFormaRectangular && (g.LADOMENOR > g.DIAM || !(g.DIAM < kEsbeltezMaxima * g.LADOMENOR)))
        return false;
    return true;
}

// A refused or faulty file leaves the defaults; the state was fresh, so every value of the
// project is a default, whichever list the reader loaded.
void ExigeValoresPorDefecto(const General& g)
{
    Exige(g.GC == defecto::GC && g.GS == defecto::GS && g.GR == defecto::GR);
    Exige(g.FCK == defecto::FCK && g.FYK == defecto::FYK && g.NU == defecto::NU);
    Exige(g.ANCHO == defecto::ANCHO && g.CANTO == defecto::CANTO);
    Exige(g.ANCHOALMA == defecto::ANCHOALMA && g.CANTOALA == defecto::CANTOALA);
    Exige(g.RECUB == defecto::RECUB && g.ASI == defecto::ASI && g.ASS == defecto::ASS);
    Exige(g.ANCHOR == defecto::ANCHOR && g.MCP == defecto::MCP && g.MD == defecto::MD);
    Exige(g.SECCION == defecto::SECCION && g.DIAM == defecto::DIAM && g.LADOMENOR == defecto::LADOMENOR);
    Exige(g.INCR == defecto::INCR && g.NCP == defecto::NCP);
}

void ExigeFinito(double valor) { Exige(std::isfinite(valor)); }

void ExigeFinitos(const General& g, const Arreglo<double>& valores)
{
    for (int t = 1; t <= g.NTIPOS; ++t)
        for (int n = 1; n <= g.MAXCAPAS; ++n)
            ExigeFinito(valores(t, n));
}

// The state written to the file and read back in a fresh state, which must come out the same.
void ExigeIdaYVueltaFlexion(General& g, Entero tipo)
{
    Avisos avisos;
    GrabaFlexion(g, Fichero().Ruta(), tipo, avisos.Funcion());
    Exige(!g.F_ERROR && avisos.cuantos == 0);

    General leido;
    ValoresIniciales(leido);
    Entero tipo_leido = 0;
    LeeFlexion(leido, Fichero().Ruta(), tipo_leido, avisos.Funcion());
    Exige(!leido.F_ERROR && avisos.cuantos == 0 && tipo_leido == tipo);
    Exige(leido.ANCHO == g.ANCHO && leido.CANTO == g.CANTO && leido.RECUB == g.RECUB);
    Exige(leido.ANCHOALMA == g.ANCHOALMA && leido.CANTOALA == g.CANTOALA);
    Exige(leido.ASI == g.ASI && leido.ASS == g.ASS && leido.ANCHOR == g.ANCHOR);
    Exige(leido.FCK == g.FCK && leido.FYK == g.FYK);
    Exige(leido.GC == g.GC && leido.GS == g.GS && leido.GR == g.GR);
    Exige(leido.MCP == g.MCP && leido.MD == g.MD);
}

void ExigeIdaYVueltaConfina(General& g)
{
    Avisos avisos;
    GrabaConfina(g, Fichero().Ruta(), avisos.Funcion());
    Exige(!g.F_ERROR && avisos.cuantos == 0);

    General leido;
    ValoresIniciales(leido);
    LeeConfina(leido, Fichero().Ruta(), avisos.Funcion());
    Exige(!leido.F_ERROR && avisos.cuantos == 0);
    Exige(leido.SECCION == g.SECCION && leido.DIAM == g.DIAM && leido.LADOMENOR == g.LADOMENOR);
    Exige(leido.FCK == g.FCK && leido.GC == g.GC && leido.GS == g.GS && leido.GR == g.GR);
    Exige(leido.NCP == g.NCP && leido.INCR == g.INCR);
}

// A Calculate on data the screens accept; a run-time error there is a finding.
ResultadoCalculo SinErrorDeEjecucion(General& g, Entero seccion, bool flexion)
{
    try {
        return flexion ? CalculaFlexion(g, seccion, nullptr) : CalculaConfinamiento(g, seccion, nullptr);
    } catch (const ErrorEjecucion&) {
        Hallazgo();
    }
}

void CalculaFlexionAdmitida(General& g, Entero tipo)
{
    const ResultadoCalculo resultado = SinErrorDeEjecucion(g, tipo, true);
    ExigeFinito(g.EPS0);
    if (resultado.predeformacionExcesiva) return;

    Exige(g.F_CALCULADO);
    for (const Arreglo<double>* valores :
         {&g.MU, &g.FN, &g.MRB, &g.XRB, &g.MLIMSR, &g.MLIMCR, &g.XLIM, &g.EPSC, &g.EPSSI, &g.EPSSS, &g.EPSR})
        ExigeFinitos(g, *valores);
    for (int t = 1; t <= g.NTIPOS; ++t)
        for (int n = 1; n <= g.MAXCAPAS; ++n) {
            const std::string& pivote = g.PIVOTE(t, n);
            Exige(pivote == "R" || pivote == "B" || pivote == "A");
        }
    ExigeFinito(g.MUSR);
    ExigeFinito(g.MUMAX);
}

void CalculaConfinamientoAdmitido(General& g)
{
    const ResultadoCalculo resultado = SinErrorDeEjecucion(g, g.SECCION, false);
    ExigeFinito(g.EPS0);
    if (resultado.predeformacionExcesiva) return;

    Exige(g.F_CALCULADO);
    for (const Arreglo<double>* valores : {&g.WR, &g.WWD, &g.EPSRC, &g.SIGMAR, &g.TENSCONF, &g.RESU})
        ExigeFinitos(g, *valores);
    for (int t = 1; t <= g.NTIPOS; ++t)
        ExigeFinito(g.WC(t));
    ExigeFinito(g.RESUMAX);
}

void PruebaFlexion()
{
    General g;
    ValoresIniciales(g);
    Avisos avisos;
    Entero tipo = 0;
    LeeFlexion(g, Fichero().Ruta(), tipo, avisos.Funcion());
    // Only a fault of the file is told, and it always refuses the file.
    Exige(!avisos.vacio && (avisos.cuantos == 0 || g.F_ERROR));
    if (g.F_ERROR) {
        ExigeValoresPorDefecto(g);
        return;
    }
    Exige(tipo == kRectangular || tipo == kSeccionTe);
    if (!FlexionAdmitida(g, tipo)) return;

    ExigeIdaYVueltaFlexion(g, tipo);
    CalculaFlexionAdmitida(g, tipo);
}

void PruebaConfina()
{
    General g;
    ValoresIniciales(g);
    Avisos avisos;
    LeeConfina(g, Fichero().Ruta(), avisos.Funcion());
    Exige(!avisos.vacio && (avisos.cuantos == 0 || g.F_ERROR));
    if (g.F_ERROR) {
        ExigeValoresPorDefecto(g);
        return;
    }
    if (!ConfinamientoAdmitido(g)) return;

    ExigeIdaYVueltaConfina(g);
    CalculaConfinamientoAdmitido(g);
}

}  // namespace

}  // namespace texalon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    if (largo == 0) return 0;
    const bool flexion = datos[0] % 2 == 0;
    texalon::Fichero().Escribe(datos + 1, largo - 1);
    if (flexion)
        texalon::PruebaFlexion();
    else
        texalon::PruebaConfina();
    return 0;
}
