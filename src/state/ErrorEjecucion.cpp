#include "state/ErrorEjecucion.h"

#include <string_view>

namespace texalon {

namespace {

struct Descripcion {
    int numero;
    std::string_view texto;
};

constexpr Descripcion kDescripciones[] = {
    {ErrorEjecucion::kArgumentoNoValido, "Llamada a procedimiento o argumento no válido"},
    {ErrorEjecucion::kDesbordamiento, "Desbordamiento"},
    {ErrorEjecucion::kMemoriaInsuficiente, "Memoria insuficiente"},
    {ErrorEjecucion::kSubindiceFueraDeIntervalo, "Subíndice fuera del intervalo"},
    {ErrorEjecucion::kDivisionPorCero, "División por cero"},
    {ErrorEjecucion::kTiposNoCoinciden, "No coinciden los tipos"},
    {ErrorEjecucion::kNombreDeArchivoIncorrecto, "Nombre o número de archivo incorrecto"},
    {ErrorEjecucion::kArchivoNoEncontrado, "No se ha encontrado el archivo"},
    {ErrorEjecucion::kErrorDeEntradaSalida, "Error de E/S en el dispositivo"},
    {ErrorEjecucion::kDiscoLleno, "Disco lleno"},
    {ErrorEjecucion::kEntradaPasadoElFinal, "La entrada sobrepasa el final del archivo"},
    {ErrorEjecucion::kPermisoDenegado, "Permiso denegado"},
    {ErrorEjecucion::kErrorDeAccesoRuta, "Error de acceso a la ruta o al archivo"},
    {ErrorEjecucion::kRutaNoEncontrada, "No se ha encontrado la ruta de acceso"},
};

}  // namespace

ErrorEjecucion::ErrorEjecucion(int numero)
    : std::runtime_error(DescripcionDe(numero)), numero_(numero), descripcion_(DescripcionDe(numero))
{
}

std::string ErrorEjecucion::DescripcionDe(int numero)
{
    for (const auto& d : kDescripciones)
        if (d.numero == numero) return std::string(d.texto);
    return "Error definido por la aplicación o por el objeto";
}

}  // namespace texalon
