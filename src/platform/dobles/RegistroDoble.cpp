#include "platform/dobles/RegistroDoble.h"

#include <cstring>
#include <stdexcept>

namespace texalon::plataforma {

namespace {
constexpr long kErrorNoEncontrado = 2;  // ERROR_FILE_NOT_FOUND
constexpr long kErrorMasDatos = 234;  // ERROR_MORE_DATA
}  // namespace

ApiRegistroDoble::Valor ApiRegistroDoble::Texto(const std::string& texto)
{
    Valor valor{kRegSz, std::vector<unsigned char>(texto.begin(), texto.end())};
    valor.datos.push_back(0);
    return valor;
}

ApiRegistroDoble::Valor ApiRegistroDoble::Numero(std::uint32_t numero)
{
    Valor valor{kRegDword, std::vector<unsigned char>(4)};
    for (std::size_t i = 0; i < 4; ++i) valor.datos[i] = static_cast<unsigned char>((numero >> (8 * i)) & 0xFFu);
    return valor;
}

void ApiRegistroDoble::Escribe(const std::string& clave, const std::string& nombre, Valor valor)
{
    claves_[clave][nombre] = std::move(valor);
}

long ApiRegistroDoble::RegOpenKeyExA(std::uint32_t raiz, const std::string& subclave, std::uint32_t opciones,
                                     std::uint32_t acceso, Clave& clave)
{
    aperturas.push_back({raiz, subclave, opciones, acceso});
    if (raiz != kHkeyLocalMachine || !claves_.contains(subclave)) return kErrorNoEncontrado;
    abiertas_.push_back(subclave);
    clave = abiertas_.size();
    return 0;
}

long ApiRegistroDoble::RegQueryValueExA(Clave clave, const std::string& valor, std::uint32_t& tipo,
                                        std::vector<unsigned char>& datos, std::uint32_t& longitud)
{
    consultas.emplace_back(clave, valor);
    if (clave == 0 || clave > abiertas_.size()) return kErrorNoEncontrado;
    const auto& valores = claves_.at(abiertas_[clave - 1]);
    const auto encontrado = valores.find(valor);
    if (encontrado == valores.end()) return kErrorNoEncontrado;
    const Valor& leido = encontrado->second;
    if (leido.datos.size() > longitud || leido.datos.size() > datos.size()) return kErrorMasDatos;
    std::memcpy(datos.data(), leido.datos.data(), leido.datos.size());
    tipo = leido.tipo;
    longitud = static_cast<std::uint32_t>(leido.datos.size());
    return 0;
}

long ApiRegistroDoble::RegCloseKey(Clave clave)
{
    cierres.push_back(clave);
    return 0;
}

bool ArrancadorDoble::Inicia(const std::string& lineaDeOrden)
{
    lineas.push_back(lineaDeOrden);
    if (lanzaError) throw std::runtime_error("no se puede iniciar");
    return !falla;
}

}  // namespace texalon::plataforma
