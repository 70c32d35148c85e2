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
        // A file that was read shows its section on the screen's list, row SECCION - 1.
        InformeConfina(impresora, g, d, ResultadosConfina(g, tipo, capas, separador), g.SECCION - 1, separador);
        return;
    }
    const auto informe = calculo.seccion == kSeccionT ? InformeFlexionT : InformeFlexion;
    if (informe(impresora, g, d, ResultadosFlexion(g, tipo, capas, separador), calculo.veredicto, separador) ==
        Impresion::CeldaRechazada)
        calculo.errores.emplace_back(kMensajeCeldaRechazada);
}

}  // namespace

void ImprimeInforme(CalculoFichero& calculo, plataforma::Impresora& impresora, int tipo, int capas, char separador)
{
    try {
        Imprime(calculo, impresora, tipo, capas, separador);
    } catch (const ErrorEjecucion& error) {
        calculo.errores.push_back(MensajeErrorEjecucion(error.Numero()));
    } catch (const std::bad_alloc&) {
        calculo.errores.push_back(MensajeErrorEjecucion(ErrorEjecucion::kMemoriaInsuficiente));
    }
}

}  // namespace texalon::calculo
