#include "calculo/Diagrama.h"

#include "calculo/Texto.h"

#include "diagrams/Grafico.h"
#include "diagrams/Lista.h"
#include "engine/Calculos.h"
#include "engine/Caracteristicas.h"
#include "state/ErrorEjecucion.h"

#include <array>
#include <new>
#include <utility>
#include <vector>

namespace texalon::calculo {

namespace {

constexpr std::array<Diagrama, 6> kDiagramas = {Diagrama::Tension, Diagrama::Confinamiento, Diagrama::Area,
                                                Diagrama::Capas,   Diagrama::Pivotes,       Diagrama::Seccion};

// "a, b y c".
std::string ListaEspanola(const std::vector<std::string_view>& nombres)
{
    std::string texto;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        if (i > 0) texto += i + 1 == nombres.size() ? " y " : ", ";
        texto += nombres[i];
    }
    return texto;
}

// The stress-strain chart and the section drawing belong to every project; the bars to a
// confinement project; the moment and strain charts to a flexure project.
bool TieneDiagrama(ClaseFichero clase, Diagrama diagrama)
{
    switch (diagrama) {
    case Diagrama::Tension:
    case Diagrama::Seccion: return true;
    case Diagrama::Confinamiento: return clase == ClaseFichero::Confinamiento;
    case Diagrama::Area:
    case Diagrama::Capas:
    case Diagrama::Pivotes: break;
    }
    return clase == ClaseFichero::Flexion;
}

std::string MensajeSinDiagrama(ClaseFichero clase, Diagrama diagrama)
{
    std::vector<std::string_view> suyos;
    for (const Diagrama otro : kDiagramas)
        if (TieneDiagrama(clase, otro)) suyos.push_back(NombreDiagrama(otro));
    const std::string proyecto = clase == ClaseFichero::Confinamiento ? "confinamiento" : "flexión";
    return "un proyecto de " + proyecto + " no tiene el diagrama «" + std::string(NombreDiagrama(diagrama)) +
           "»: sus diagramas son " + ListaEspanola(suyos) + ".";
}

std::string MensajeCeldaSinResultado(const General& g, const PeticionDiagrama& peticion)
{
    return "la celda de " + g.TIPOS(peticion.tipo) + " y " + TextoEntero(peticion.capas) +
           (peticion.capas == 1 ? " capa" : " capas") + " no tiene resultado («---»): no hay diagrama de pivotes.";
}

// The name of a flexure diagram's procedure for the rectangular section; the T section's twin
// ends with a "T".
std::string_view NombreDe(Diagrama diagrama)
{
    if (diagrama == Diagrama::Area) return "DiagramaMomentoArea";
    if (diagrama == Diagrama::Capas) return "DiagramaMomentoCapas";
    return "DibujaSeccion";
}

// The section drawings keep the section's proportions (kIsotropico); the charts take a scale in
// each direction.
void Describe(ListaDiagrama& lista, std::string procedimiento, const Dibujo& dibujo, Entero isotropico)
{
    lista.procedimiento = std::move(procedimiento);
    lista.dibujo = &dibujo;
    lista.isotropico = isotropico;
}

void DibujaFlexion(CalculoFichero& calculo, const PeticionDiagrama& peticion, char separador, ListaDiagrama& lista)
{
    General& g = calculo.g;
    // The list is named for the twin of the section's kind, which the T one ends with a "T".
    const std::string sufijo = calculo.seccion == SeccionFlexion::T ? "T" : "";
    if (peticion.diagrama == Diagrama::Pivotes) {
        // The cell's results as the screen's fields show them, which the strain plane reads.
        const ResultadosCeldaFlexion celda = ResultadosFlexion(g, peticion.tipo, peticion.capas, separador);
        DiagramaPivotesFlexion(g, lista.d, celda, separador);
        Describe(lista, "DiagramaPivotes" + sufijo, kPicFlexion, kAnisotropico);
        return;
    }
    if (peticion.diagrama == Diagrama::Area)
        DiagramaMomentoAreaFlexion(g, lista.d, separador);
    else if (peticion.diagrama == Diagrama::Capas)
        DiagramaMomentoCapasFlexion(g, lista.d, separador);
    else
        DibujaSeccionFlexion(g, lista.d, calculo.seccion, separador);
    const Entero isotropico = peticion.diagrama == Diagrama::Seccion ? kIsotropico : kAnisotropico;
    Describe(lista, std::string(NombreDe(peticion.diagrama)) + sufijo, kPicFlexion, isotropico);
}

// Runs the procedure of the diagram for the file's kind of project.
void Dibuja(CalculoFichero& calculo, const PeticionDiagrama& peticion, char separador, ListaDiagrama& lista)
{
    General& g = calculo.g;
    if (peticion.diagrama == Diagrama::Tension) {
        // As the characteristics screen does before it draws: EPSD of the type in hand.
        CargaCaracteristicas(g, peticion.tipo);
        DiagramaTension(g, lista.d, static_cast<Entero>(peticion.tipo), separador);
        Describe(lista, "DiagramaTension", kPicCarac, kAnisotropico);
    } else if (calculo.clase == ClaseFichero::Flexion) {
        DibujaFlexion(calculo, peticion, separador, lista);
    } else if (peticion.diagrama == Diagrama::Confinamiento) {
        DiagramaConfina(g, lista.d, separador);
        Describe(lista, "DiagramaConfina", kPicConfina, kAnisotropico);
    } else {
        DibujaSeccionConfina(g, lista.d, separador);
        Describe(lista, "DibujaSeccionConfina", kPicConfina, kIsotropico);
    }
}

}  // namespace

std::string_view NombreDiagrama(Diagrama diagrama)
{
    switch (diagrama) {
    case Diagrama::Tension: return "tension";
    case Diagrama::Confinamiento: return "confinamiento";
    case Diagrama::Area: return "area";
    case Diagrama::Capas: return "capas";
    case Diagrama::Pivotes: return "pivotes";
    case Diagrama::Seccion: break;
    }
    return "seccion";
}

bool NecesitaCalculo(Diagrama diagrama) { return diagrama != Diagrama::Tension && diagrama != Diagrama::Seccion; }

std::optional<Diagrama> DiagramaDeNombre(std::string_view nombre)
{
    for (const Diagrama diagrama : kDiagramas)
        if (NombreDiagrama(diagrama) == nombre) return diagrama;
    return std::nullopt;
}

std::string NombresDiagramas()
{
    std::vector<std::string_view> nombres;
    for (const Diagrama diagrama : kDiagramas)
        nombres.push_back(NombreDiagrama(diagrama));
    return ListaEspanola(nombres);
}

std::optional<ListaDiagrama> DibujaDiagrama(CalculoFichero& calculo, const PeticionDiagrama& peticion, char separador)
{
    if (!TieneDiagrama(calculo.clase, peticion.diagrama)) {
        calculo.errores.push_back(MensajeSinDiagrama(calculo.clase, peticion.diagrama));
        return std::nullopt;
    }
    // The screen offers the strain diagram only for a cell with a value.
    if (peticion.diagrama == Diagrama::Pivotes && calculo.g.MU(peticion.tipo, peticion.capas) == kSinMejora) {
        calculo.errores.push_back(MensajeCeldaSinResultado(calculo.g, peticion));
        return std::nullopt;
    }
    ListaDiagrama lista;
    try {
        Dibuja(calculo, peticion, separador, lista);
    } catch (const ErrorEjecucion& error) {
        calculo.errores.push_back(MensajeErrorEjecucion(error.Numero()));
        return std::nullopt;
    } catch (const std::bad_alloc&) {
        calculo.errores.push_back(MensajeErrorEjecucion(ErrorEjecucion::kMemoriaInsuficiente));
        return std::nullopt;
    }
    return lista;
}

}  // namespace texalon::calculo
