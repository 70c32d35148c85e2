#include "calculo/Informe.h"

#include "engine/Calculos.h"
#include "engine/Caracteristicas.h"
#include "reports/Informes.h"
#include "state/ErrorEjecucion.h"

#include <new>

namespace texalon::calculo {

namespace {

void Imprime(CalculoFichero& calculo, plataforma::Impresora& impresora, int tipo, int capas, char separador)
{
    General& g = calculo.g;
    GeneralDibujo d;
    if (calculo.clase == ClaseFichero::Confinamiento) {
        // A file that was read shows its own shape on the screen's list.
        InformeConfina(impresora, g, d, ResultadosConfina(g, tipo, capas, separador), FormaDe(g), separador);
        return;
    }
    if (InformeFlexionDeSeccion(impresora, g, d, calculo.seccion, ResultadosFlexion(g, tipo, capas, separador),
                                calculo.veredicto, separador) == Impresion::CeldaRechazada)
        calculo.errores.emplace_back(kMensajeCeldaRechazada);
}

}  // namespace

bool InformeImprimible(const CalculoFichero& calculo, int tipo, int capas)
{
    if (!calculo.Correcto()) return false;
    if (calculo.clase != ClaseFichero::Flexion) return true;
    // A cell with no gain shows "---" in every result, and its report prints nothing.
    return calculo.g.MU(tipo, capas) != kSinMejora;
}

std::string MensajeInformeSinEscribir(const std::string& destino)
{
    return "no se ha podido escribir el informe en «" + destino + "».";
}

void ImprimeInforme(CalculoFichero& calculo, plataforma::Impresora& impresora, int tipo, int capas, char separador,
                    const std::string& destino)
{
    try {
        Imprime(calculo, impresora, tipo, capas, separador);
    } catch (const ErrorEjecucion& error) {
        // The printer writes the file as the document ends: a path it cannot reach is told by name.
        calculo.errores.push_back(error.Numero() == ErrorEjecucion::kErrorDeAccesoRuta
                                      ? MensajeInformeSinEscribir(destino)
                                      : MensajeErrorEjecucion(error.Numero()));
    } catch (const std::bad_alloc&) {
        calculo.errores.push_back(MensajeErrorEjecucion(ErrorEjecucion::kMemoriaInsuficiente));
    }
}

}  // namespace texalon::calculo
