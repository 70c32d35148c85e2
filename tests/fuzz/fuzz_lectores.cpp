// Fuzz target of the project file readers and of the calculations behind them.
//
// An input is one project file: its first byte chooses the reader (even: flexure, VMF; odd:
// confinement, VMC; the seeds start with 'F' and 'C', so that they read as text) and the rest
// is the file. The file is read into a fresh state by its reader, then put through the batch
// command's own path, which reads it again, refuses what a field of its screen would refuse and
// calculates the rest: whatever a reader accepts is calculated or refused there, and a search
// that never ends is caught by libFuzzer's timeout. A state that Save would write is written
// back and read again.
//
// A finding ends the process with a trap: a run-time error of a calculation on values that the
// fields accept, other than an overflow (a length of 1e300 m passes every field, and the screen
// ends on it with the same error), or a result that is not finite, a reader that leaves other
// values than the defaults on a refused file, a file written from a good state that does not
// read back the same.

#include "calculo/Proyecto.h"
#include "engine/Calcular.h"
#include "files/Comprobaciones.h"
#include "files/Ficheros.h"
#include "files/ReglasAntesDeCalcular.h"
#include "files/ReglasConfina.h"
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

// The one file of this process, written anew for every input and removed when it ends.
class FicheroDelProceso {
public:
    // The batch command tells the kind of a project file by its extension.
    explicit FicheroDelProceso(const char* extension)
        : ruta_((std::filesystem::temp_directory_path() /
                 ("texalon_fuzz_lectores_" + std::to_string(::getpid()) + extension))
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

FicheroDelProceso& Fichero(bool flexion)
{
    static FicheroDelProceso flexionF(".vmf");
    static FicheroDelProceso confinamiento(".vmc");
    return flexion ? flexionF : confinamiento;
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
void ExigeIdaYVueltaFlexion(General& g, SeccionFlexion tipo)
{
    Avisos avisos;
    GrabaFlexion(g, Fichero(true).Ruta(), tipo, avisos.Funcion());
    Exige(!g.F_ERROR && avisos.cuantos == 0);

    General leido;
    ValoresIniciales(leido);
    SeccionFlexion tipo_leido{};
    LeeFlexion(leido, Fichero(true).Ruta(), tipo_leido, avisos.Funcion());
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
    GrabaConfina(g, Fichero(false).Ruta(), avisos.Funcion());
    Exige(!g.F_ERROR && avisos.cuantos == 0);

    General leido;
    ValoresIniciales(leido);
    LeeConfina(leido, Fichero(false).Ruta(), avisos.Funcion());
    Exige(!leido.F_ERROR && avisos.cuantos == 0);
    Exige(leido.SECCION == g.SECCION && leido.DIAM == g.DIAM && leido.LADOMENOR == g.LADOMENOR);
    Exige(leido.FCK == g.FCK && leido.GC == g.GC && leido.GS == g.GS && leido.GR == g.GR);
    Exige(leido.NCP == g.NCP && leido.INCR == g.INCR);
}

// The outcome of the batch command's path on values that the fields accept: calculated, every
// result finite; or stopped by the initial strain over its limit; or an overflow.
void ExigeCalculoCorrecto(const calculo::CalculoFichero& calculo)
{
    const General& g = calculo.g;
    if (!calculo.Correcto()) {
        Exige(calculo.errores.size() == 1);
        const std::string& error = calculo.errores.front();
        Exige(error == kMensajePredeformacion ||
              error == calculo::MensajeErrorEjecucion(ErrorEjecucion::kDesbordamiento));
        return;
    }
    Exige(g.F_CALCULADO);
    ExigeFinito(g.EPS0);
    if (calculo.clase == ClaseFichero::Flexion) {
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
        return;
    }
    for (const Arreglo<double>* valores : {&g.WR, &g.WWD, &g.EPSRC, &g.SIGMAR, &g.TENSCONF, &g.RESU})
        ExigeFinitos(g, *valores);
    for (int t = 1; t <= g.NTIPOS; ++t)
        ExigeFinito(g.WC(t));
    ExigeFinito(g.RESUMAX);
}

// Whether Save would write the state: the screen's copy tests the values as the reader does,
// so that what is written reads back. The reader tests them before it drops their signs, so a
// state read from a file may fail them (a sheet of -4 m beside a web of 0.3 m).
bool SeGrabariaFlexion(const General& g, SeccionFlexion tipo)
{
    const DatosFlexion d{g.ANCHO, g.CANTO, g.ANCHOALMA, g.CANTOALA, g.RECUB, g.ASI, g.ASS, g.FCK,
                         g.FYK,   g.GC,    g.GS,        g.GR,       g.ANCHOR, g.MCP, g.MD};
    return FlexionValida(d, tipo);
}

bool SeGrabariaConfina(const General& g)
{
    const DatosConfina d{g.SECCION, g.DIAM, g.LADOMENOR, g.FCK, g.GC, g.GS, g.GR, g.NCP, g.INCR};
    return ConfinaValida(d, FormaDe(g));
}

// The file through the batch command's path. What the reader took, the command takes too; a
// value that a field refuses (`rechazo`, as the reader's state shows it) stops it with that
// field's message, and the rest is calculated.
void CalculaComoElProgramaDeCalculo(const std::string& ruta, const std::optional<CampoRechazado>& rechazo)
{
    const calculo::CalculoFichero calculo = calculo::CalculaFichero(ruta);
    Exige(calculo.leido);
    if (rechazo) {
        Exige(calculo.errores == std::vector<std::string>{rechazo->control + ": " + rechazo->mensaje});
        return;
    }
    ExigeCalculoCorrecto(calculo);
}

void PruebaFlexion()
{
    const std::string& ruta = Fichero(true).Ruta();
    General g;
    ValoresIniciales(g);
    Avisos avisos;
    SeccionFlexion tipo{};
    LeeFlexion(g, ruta, tipo, avisos.Funcion());
    // Only a fault of the file is told, and it always refuses the file.
    Exige(!avisos.vacio && (avisos.cuantos == 0 || g.F_ERROR));
    if (g.F_ERROR) {
        ExigeValoresPorDefecto(g);
        return;
    }
    Exige(tipo == SeccionFlexion::Rectangular || tipo == SeccionFlexion::T);
    CalculaComoElProgramaDeCalculo(ruta, CampoQueRechazaLaFlexion(g, tipo));
    if (SeGrabariaFlexion(g, tipo)) ExigeIdaYVueltaFlexion(g, tipo);
}

void PruebaConfina()
{
    const std::string& ruta = Fichero(false).Ruta();
    General g;
    ValoresIniciales(g);
    Avisos avisos;
    LeeConfina(g, ruta, avisos.Funcion());
    Exige(!avisos.vacio && (avisos.cuantos == 0 || g.F_ERROR));
    if (g.F_ERROR) {
        ExigeValoresPorDefecto(g);
        return;
    }
    CalculaComoElProgramaDeCalculo(ruta, CampoQueRechazaElConfinamiento(g));
    if (SeGrabariaConfina(g)) ExigeIdaYVueltaConfina(g);
}

}  // namespace

}  // namespace texalon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    if (largo == 0) return 0;
    const bool flexion = datos[0] % 2 == 0;
    texalon::Fichero(flexion).Escribe(datos + 1, largo - 1);
    if (flexion)
        texalon::PruebaFlexion();
    else
        texalon::PruebaConfina();
    return 0;
}
