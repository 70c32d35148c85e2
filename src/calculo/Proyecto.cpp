#include "calculo/Proyecto.h"

#include "calculo/Texto.h"

#include "engine/Calculos.h"
#include "files/Ficheros.h"
#include "files/ReglasAntesDeCalcular.h"
#include "state/ErrorEjecucion.h"

#include <new>

namespace texalon::calculo {

namespace {

// Reads the file as Open does; a refused or failed file leaves its messages and the one of Open.
bool Lee(CalculoFichero& calculo)
{
    const Aviso aviso = [&calculo](const std::string& texto) { calculo.errores.push_back(texto); };
    calculo.g.F_ERROR = false;
    if (calculo.clase == ClaseFichero::Flexion)
        LeeFlexion(calculo.g, calculo.fichero, calculo.seccion, aviso);
    else
        LeeConfina(calculo.g, calculo.fichero, aviso);
    if (calculo.g.F_ERROR) calculo.errores.emplace_back(kMensajeDatosIncorrectos);
    calculo.leido = !calculo.g.F_ERROR;
    return calculo.leido;
}

// A value that the screen's field would refuse stops the file before its calculation, with the
// field's own message: the file checks take values that no field takes, and the calculation's
// searches end only on values within the fields' bounds.
bool ValoresQueLosCamposAceptan(CalculoFichero& calculo)
{
    const std::optional<CampoRechazado> rechazo = calculo.clase == ClaseFichero::Flexion
                                                      ? CampoQueRechazaLaFlexion(calculo.g, calculo.seccion)
                                                      : CampoQueRechazaElConfinamiento(calculo.g);
    if (!rechazo) return true;
    calculo.errores.push_back(rechazo->control + ": " + rechazo->mensaje);
    return false;
}

// The screen reads no fields here: the state already holds the file's values.
ResultadoCalculo CalculaSegunClase(CalculoFichero& calculo)
{
    General& g = calculo.g;
    if (calculo.clase == ClaseFichero::Flexion) return CalculaFlexion(g, calculo.seccion, nullptr);
    return CalculaConfinamiento(g, FormaDe(g), nullptr);
}

void Calcula(CalculoFichero& calculo)
{
    const ResultadoCalculo resultado = CalculaSegunClase(calculo);
    if (resultado.predeformacionExcesiva) {
        calculo.errores.emplace_back(kMensajePredeformacion);
        return;
    }
    calculo.veredicto = resultado.veredicto;
    if (calculo.clase == ClaseFichero::Flexion) LongitudAnclaje(calculo.g);
}

void CalculaBajoTrampa(CalculoFichero& calculo)
{
    try {
        Calcula(calculo);
    } catch (const ErrorEjecucion& error) {
        calculo.errores.push_back(MensajeErrorEjecucion(error.Numero()));
    } catch (const std::bad_alloc&) {
        calculo.errores.push_back(MensajeErrorEjecucion(ErrorEjecucion::kMemoriaInsuficiente));
    }
}

}  // namespace

CalculoFichero CalculaFichero(const std::string& fichero)
{
    CalculoFichero calculo;
    calculo.fichero = fichero;
    calculo.clase = ClaseDe(fichero);
    if (calculo.clase == ClaseFichero::Ninguna) {
        calculo.errores.emplace_back(kMensajeNoEsProyecto);
        return calculo;
    }
    ValoresIniciales(calculo.g);
    if (Lee(calculo)) CalculaLeido(calculo);
    return calculo;
}

void CalculaLeido(CalculoFichero& calculo)
{
    if (ValoresQueLosCamposAceptan(calculo)) CalculaBajoTrampa(calculo);
}

// On a screen the fatal-error trap around Calculate ends the program with this message; the
// batch command tells it and goes on with the next file.
std::string MensajeErrorEjecucion(int numero)
{
    return "Se ha producido el error '" + TextoEntero(numero) +
           "' en tiempo de ejecución: " + ErrorEjecucion::DescripcionDe(numero);
}

std::string Procedencia(const CalculoFichero& calculo)
{
    if (calculo.fila == 0) return calculo.fichero;
    std::string procedencia = calculo.fichero + ": fila " + TextoEntero(static_cast<int>(calculo.fila));
    if (!calculo.elemento.empty()) procedencia += " (" + calculo.elemento + ")";
    return procedencia;
}

std::optional<std::string_view> NombreTipo(const CalculoFichero& calculo)
{
    if (calculo.clase == ClaseFichero::Confinamiento) return kTipoConfinamiento;
    if (calculo.clase != ClaseFichero::Flexion) return std::nullopt;
    if (calculo.seccion == SeccionFlexion::Rectangular) return kTipoRectangular;
    if (calculo.seccion == SeccionFlexion::T) return kTipoT;
    return std::nullopt;
}

}  // namespace texalon::calculo
