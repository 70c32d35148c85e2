// Value sets drawn at random in and around the bounds of every field, written as project files
// and put through the batch command's path, one after another: each one is calculated or
// refused with a message, and none takes longer than a bound of time. The engine's searches
// have no iteration limit, so a value set that would never end must be refused before them.

#include "Prueba.h"

#include "calculo/Proyecto.h"
#include "files/ReglasAntesDeCalcular.h"
#include "files/ReglasCoeficientes.h"
#include "files/ReglasConfina.h"
#include "files/ReglasFlexion.h"

#include <gtest/gtest.h>

#include <atomic>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace texalon::prueba {
namespace {

using Reloj = std::chrono::steady_clock;

constexpr int kValoresPorClase = 25000;  // four kinds: rectangular, T, and the column twice
// A value set takes well under a millisecond; this is what "never hangs" is held to, with room
// for the slowest build the tests run in (the sanitizers, or Windows under Wine).
constexpr auto kTiempoMaximo = std::chrono::seconds(2);

// One kind of project file and the fields it holds, in the order of its lines.
struct Clase {
    const char* nombre;
    const char* extension;
    std::string primeraLinea;  // the section kind, or "" where the shape is drawn with the values
    std::vector<const ReglaCampo*> campos;
};

const ReglaCampo& ReglaDe(const std::vector<ReglaCampo>& reglas, CampoEstado campo)
{
    for (const ReglaCampo& regla : reglas)
        if (regla.campo == campo) return regla;
    for (const ReglaCampo& regla : ReglasCoeficientes())
        if (regla.campo == campo) return regla;
    throw std::logic_error("campo sin regla");
}

// The lines of a flexure file after its kind, and of a confinement file after its shape.
Clase Flexion(bool seccionT)
{
    const auto& reglas = ReglasFlexion(seccionT ? SeccionFlexion::T : SeccionFlexion::Rectangular);
    std::vector<CampoEstado> orden{&General::ANCHO, &General::CANTO};
    if (seccionT) orden.insert(orden.end(), {&General::ANCHOALMA, &General::CANTOALA});
    orden.insert(orden.end(), {&General::RECUB, &General::ASI, &General::ASS, &General::FCK, &General::FYK, &General::GC,
                               &General::GS, &General::GR, &General::ANCHOR, &General::MCP, &General::MD});
    Clase clase{seccionT ? "T" : "rectangular", ".vmf", seccionT ? "2" : "1", {}};
    for (CampoEstado campo : orden)
        clase.campos.push_back(&ReglaDe(reglas, campo));
    return clase;
}

Clase Confinamiento()
{
    Clase clase{"confinamiento", ".vmc", "", {}};
    for (CampoEstado campo : {&General::DIAM, &General::LADOMENOR, &General::FCK, &General::GC, &General::GS,
                              &General::GR, &General::NCP, &General::INCR})
        clase.campos.push_back(&ReglaDe(ReglasConfina(), campo));
    return clase;
}

// The values worth trying for a field: each bound, a hair below and above it, half and twice it;
// the start value; and far outside, from nothing to the largest a file can write.
std::vector<double> ValoresNotables(const ReglaCampo& regla)
{
    std::vector<double> valores{regla.reinicio, 0.0, 1e-300, 1e-6, 1e3, 1e6, 1e12, 1e300, -regla.reinicio};
    for (const std::optional<Limite>& limite : {regla.minimo, regla.maximo}) {
        if (!limite) continue;
        const double b = limite->valor;
        valores.insert(valores.end(), {b, std::nextafter(b, 0.0), std::nextafter(b, 1e308), b / 2.0, b * 2.0});
    }
    return valores;
}

// A value set: most fields take an ordinary value, within the field's bounds where it has two,
// else from half to twice its start value, so that many sets pass every test and reach the
// engine's searches; one to three fields, or none, take a notable value.
class Sorteo {
public:
    explicit Sorteo(std::uint64_t semilla) : azar_(semilla) {}

    std::vector<double> Valores(const std::vector<const ReglaCampo*>& campos)
    {
        std::vector<double> valores;
        for (const ReglaCampo* campo : campos)
            valores.push_back(Corriente(*campo));
        for (std::size_t n = Indice(4); n > 0; --n) {
            const std::size_t i = Indice(campos.size());
            const std::vector<double>& notables = Notables(*campos[i]);
            valores[i] = notables[Indice(notables.size())];
        }
        return valores;
    }

    // SECCION of a column: mostly 1 to 3, sometimes a shape that the file checks must refuse.
    int Forma() { return Moneda() || Moneda() ? static_cast<int>(Indice(3)) + 1 : static_cast<int>(Indice(5)); }

private:
    double Corriente(const ReglaCampo& regla)
    {
        if (regla.minimo && regla.maximo)
            return std::uniform_real_distribution<double>(regla.minimo->valor, regla.maximo->valor)(azar_);
        const double centro = regla.reinicio != 0.0 ? regla.reinicio : 100.0;
        const double valor = centro * std::pow(10.0, std::uniform_real_distribution<double>(-0.3, 0.3)(azar_));
        if (regla.minimo && valor < regla.minimo->valor)
            return regla.minimo->valor * std::pow(10.0, std::uniform_real_distribution<double>(0.0, 0.5)(azar_));
        return valor;
    }

    bool Moneda() { return (azar_() & 1u) != 0; }
    std::size_t Indice(std::size_t n) { return static_cast<std::size_t>(azar_() % n); }

    const std::vector<double>& Notables(const ReglaCampo& regla)
    {
        auto [posicion, nueva] = notables_.try_emplace(&regla);
        if (nueva) posicion->second = ValoresNotables(regla);
        return posicion->second;
    }

    std::mt19937_64 azar_;
    std::map<const ReglaCampo*, std::vector<double>> notables_;
};

// A double as its shortest text that reads back the same, as a hand-written file may have it.
std::string Numero(double valor)
{
    char texto[32];
    const auto fin = std::to_chars(texto, texto + sizeof texto, valor).ptr;
    return {texto, fin};
}

// How a value set ended.
enum class Desenlace { Calculado, FicheroRechazado, CampoRechazado, Predeformacion, ErrorDeEjecucion };

Desenlace DesenlaceDe(const calculo::CalculoFichero& calculo)
{
    if (calculo.Correcto()) return Desenlace::Calculado;
    if (!calculo.leido) return Desenlace::FicheroRechazado;
    const std::string& primero = calculo.errores.front();
    if (primero == kMensajePredeformacion) return Desenlace::Predeformacion;
    if (primero.rfind("Se ha producido el error '", 0) == 0) return Desenlace::ErrorDeEjecucion;
    return Desenlace::CampoRechazado;
}

// What the fields say of the values as read: what the command must have refused them with.
std::optional<CampoRechazado> RechazoEsperado(const calculo::CalculoFichero& calculo)
{
    return calculo.clase == ClaseFichero::Flexion ? CampoQueRechazaLaFlexion(calculo.g, calculo.seccion)
                                                  : CampoQueRechazaElConfinamiento(calculo.g);
}

// The set in hand, for the watchdog to tell if it never ends.
struct EnCurso {
    std::atomic<long long> inicio{0};  // Reloj ticks; 0 between sets
    std::atomic<bool> terminado{false};
    std::string texto;  // written only while inicio is 0
    std::atomic<const std::string*> visible{nullptr};
};

// Watches the set in hand; one that passes the bound will not end either, and the thread that
// runs it cannot be stopped: the test ends the process with the file's text.
void Vigila(EnCurso& enCurso)
{
    while (!enCurso.terminado) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        const long long inicio = enCurso.inicio;
        if (inicio == 0) continue;
        const auto transcurrido = Reloj::now().time_since_epoch() - Reloj::duration(inicio);
        if (transcurrido > kTiempoMaximo * 5) {
            const std::string* texto = enCurso.visible;
            std::fprintf(stderr, "Un cálculo no ha terminado en %lld s con el fichero:\n%s\n",
                         static_cast<long long>(std::chrono::duration_cast<std::chrono::seconds>(transcurrido).count()),
                         texto != nullptr ? texto->c_str() : "");
            std::fflush(stderr);
            std::abort();
        }
    }
}

TEST(ValoresAlAzar, CadaConjuntoSeCalculaOSeRechazaATiempo)
{
    DirectorioTemporal directorio;
    const std::vector<Clase> clases{Flexion(false), Flexion(true), Confinamiento(), Confinamiento()};
    Sorteo sorteo(20261125);
    std::map<Desenlace, int> cuenta;
    Reloj::duration peor{};
    std::string peorFichero;

    EnCurso enCurso;
    std::thread vigilante(Vigila, std::ref(enCurso));
    for (const Clase& clase : clases) {
        for (int n = 0; n < kValoresPorClase; ++n) {
            std::string texto = clase.primeraLinea.empty() ? std::to_string(sorteo.Forma()) : clase.primeraLinea;
            texto += "\r\n";
            for (double valor : sorteo.Valores(clase.campos))
                texto += Numero(valor) + "\r\n";
            enCurso.texto = texto;
            enCurso.visible = &enCurso.texto;
            const std::string fichero = directorio.Escribe(std::string("valores") + clase.extension, texto);

            const auto inicio = Reloj::now();
            enCurso.inicio = inicio.time_since_epoch().count();
            const calculo::CalculoFichero calculo = calculo::CalculaFichero(fichero);
            const auto tiempo = Reloj::now() - inicio;
            enCurso.inicio = 0;
            enCurso.visible = nullptr;

            if (tiempo > peor) {
                peor = tiempo;
                peorFichero = texto;
            }
            const Desenlace desenlace = DesenlaceDe(calculo);
            ++cuenta[desenlace];
            // Calculated means every array filled; refused means a message and no result.
            if (desenlace == Desenlace::Calculado) {
                ASSERT_TRUE(calculo.g.F_CALCULADO) << texto;
                ASSERT_FALSE(RechazoEsperado(calculo)) << texto;
            } else {
                ASSERT_FALSE(calculo.errores.empty()) << texto;
            }
            // A value that a field refuses never reaches the engine, and is told with the
            // field's own message.
            if (calculo.leido) {
                const std::optional<CampoRechazado> rechazo = RechazoEsperado(calculo);
                if (rechazo) {
                    ASSERT_EQ(desenlace, Desenlace::CampoRechazado) << texto;
                    ASSERT_EQ(calculo.errores.front(), rechazo->control + ": " + rechazo->mensaje) << texto;
                }
            }
        }
    }
    enCurso.terminado = true;
    vigilante.join();

    EXPECT_LT(peor, kTiempoMaximo) << "el conjunto más lento:\n" << peorFichero;
    // Every way out is taken: the draw is wide enough to be worth its time.
    for (Desenlace d : {Desenlace::Calculado, Desenlace::FicheroRechazado, Desenlace::CampoRechazado,
                        Desenlace::Predeformacion, Desenlace::ErrorDeEjecucion})
        EXPECT_GT(cuenta[d], 0) << static_cast<int>(d);
    std::printf("calculados %d, ficheros rechazados %d, campos rechazados %d, predeformación %d, "
                "errores de ejecución %d; el más lento %.3f ms\n",
                cuenta[Desenlace::Calculado], cuenta[Desenlace::FicheroRechazado], cuenta[Desenlace::CampoRechazado],
                cuenta[Desenlace::Predeformacion], cuenta[Desenlace::ErrorDeEjecucion],
                std::chrono::duration<double, std::milli>(peor).count());
}

}  // namespace
}  // namespace texalon::prueba
