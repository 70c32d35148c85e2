#include "calculo/Texto.h"

namespace texalon::calculo {

std::string Unidos(const std::vector<std::string>& mensajes)
{
    std::string texto;
    for (const std::string& mensaje : mensajes)
        texto += (texto.empty() ? "" : "\n") + mensaje;
    return texto;
}

std::size_t CaracterUtf8(std::string_view texto)
{
    const auto byte = [texto](std::size_t i) { return static_cast<unsigned char>(texto[i]); };
    const unsigned char primero = byte(0);
    if (primero < 0x80) return 1;
    std::size_t largo = 0;
    unsigned char minimo = 0x80;
    unsigned char maximo = 0xBF;
    if (primero >= 0xC2 && primero <= 0xDF) {
        largo = 2;
    } else if (primero >= 0xE0 && primero <= 0xEF) {
        largo = 3;
        if (primero == 0xE0) minimo = 0xA0;
        if (primero == 0xED) maximo = 0x9F;
    } else if (primero >= 0xF0 && primero <= 0xF4) {
        largo = 4;
        if (primero == 0xF0) minimo = 0x90;
        if (primero == 0xF4) maximo = 0x8F;
    } else {
        return 0;
    }
    if (texto.size() < largo || byte(1) < minimo || byte(1) > maximo) return 0;
    for (std::size_t i = 2; i < largo; ++i)
        if ((byte(i) & 0xC0U) != 0x80U) return 0;
    return largo;
}

namespace {

constexpr std::string_view kSustituto = "\xEF\xBF\xBD";  // U+FFFD

}  // namespace

std::string Utf8Valido(std::string_view texto)
{
    // Most texts are well-formed already, and go as they are.
    std::size_t i = 0;
    while (i < texto.size()) {
        const std::size_t largo = static_cast<unsigned char>(texto[i]) < 0x80 ? 1 : CaracterUtf8(texto.substr(i));
        if (largo == 0) break;
        i += largo;
    }
    if (i == texto.size()) return std::string(texto);
    std::string valido;
    valido.reserve(texto.size());
    RecorreUtf8(texto, [&valido](std::string_view caracter) { valido += caracter.empty() ? kSustituto : caracter; });
    return valido;
}

}  // namespace texalon::calculo
