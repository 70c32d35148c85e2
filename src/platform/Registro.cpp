#include "platform/Registro.h"

#include <algorithm>
#include <cstdio>

namespace texalon::plataforma {

namespace {

// A hexadecimal literal "&h..." read as the classic runtime reads it: up to four digits make a
// 16-bit integer, up to eight a 32-bit one, both signed.
std::string DecimalDeHexadecimal(const std::string& cifras)
{
    if (cifras.empty()) return "0";
    const unsigned long long valor = std::stoull(cifras, nullptr, 16);
    long long conSigno = 0;
    if (cifras.size() <= 4)
        conSigno = static_cast<std::int16_t>(static_cast<std::uint16_t>(valor));
    else
        conSigno = static_cast<std::int32_t>(static_cast<std::uint32_t>(valor));
    return std::to_string(conSigno);
}

// The bytes of a number from the last to the first, each as its hexadecimal digits without a
// leading zero, as the classic Hex function writes a byte.
std::string HexadecimalDeBytes(const std::string& bytes)
{
    std::string cifras;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        char texto[3];
        std::snprintf(texto, sizeof texto, "%X", static_cast<unsigned>(static_cast<unsigned char>(*byte)));
        cifras += texto;
    }
    return cifras;
}

bool Falla(ApiRegistro& api, ApiRegistro::Clave clave, std::string& texto)
{
    texto.clear();
    api.RegCloseKey(clave);
    return false;
}

}  // namespace

bool LeeRegistro(ApiRegistro& api, std::uint32_t raiz, const std::string& clave, const std::string& valor,
                 std::string& texto)
{
    // The handle is closed on every way out, even when the key never opened.
    ApiRegistro::Clave abierta = 0;
    if (api.RegOpenKeyExA(raiz, clave, 0, kAccesoTotal, abierta) != 0) return Falla(api, abierta, texto);

    std::uint32_t tipo = 0;
    std::vector<unsigned char> datos(kTamanoBuffer, 0);
    std::uint32_t longitud = kTamanoBuffer;
    if (api.RegQueryValueExA(abierta, valor, tipo, datos, longitud) != 0) return Falla(api, abierta, texto);

    // A closing zero at the length returned is dropped, whatever the type of the value.
    std::string leido(reinterpret_cast<const char*>(datos.data()), std::min<std::size_t>(longitud, datos.size()));
    if (!leido.empty() && leido.back() == '\0') leido.pop_back();

    if (tipo == kRegSz) texto = leido;
    else if (tipo == kRegDword) texto = DecimalDeHexadecimal(HexadecimalDeBytes(leido));

    api.RegCloseKey(abierta);
    return true;
}

std::string LineaDeOrden(const std::string& ordenRegistrada, const std::string& argumento)
{
    // The position of ".exe" from 1, 0 when absent; the four letters and the one character
    // behind them stay: the closing quote of a quoted path, or the blank of an unquoted one.
    const std::size_t encontrada = ordenRegistrada.find(".exe");
    const std::size_t posicion = encontrada == std::string::npos ? 0 : encontrada + 1;
    return ordenRegistrada.substr(0, posicion + 4) + argumento;
}

namespace {

bool Lanza(Arrancador& arrancador, const std::string& ordenRegistrada, const std::string& argumento)
{
    try {
        return arrancador.Inicia(LineaDeOrden(ordenRegistrada, argumento));
    } catch (...) {
        return false;
    }
}

}  // namespace

bool AbrePdfPorRegistro(ApiRegistro& api, Arrancador& arrancador, const std::string& fichero)
{
    std::string clase;
    if (!LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Classes\\.pdf", "", clase)) return false;
    std::string orden;
    if (!LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Classes\\" + clase + "\\shell\\open\\command", "", orden))
        return false;
    return Lanza(arrancador, orden, fichero);
}

bool AbreWebPorRegistro(ApiRegistro& api, Arrancador& arrancador, const std::string& direccion)
{
    std::string orden;
    if (!LeeRegistro(api, kHkeyLocalMachine, "SOFTWARE\\Classes\\http\\shell\\open\\command", "", orden))
        return false;
    return Lanza(arrancador, orden, direccion);
}

}  // namespace texalon::plataforma
