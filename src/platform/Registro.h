// The registry of a Windows machine and the way the program finds the PDF reader and the
// browser in it: the command line the registry holds for the file class, cut after its ".exe",
// with the file or address appended. Plain C++: the registry and the start of a process are
// seen through interfaces, with advapi32 and the process start behind them on Windows and test
// doubles anywhere.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace texalon::plataforma {

// The root key every read of the program uses.
inline constexpr std::uint32_t kHkeyLocalMachine = 0x80000002u;
// KEY_ALL_ACCESS as the program asks for it.
inline constexpr std::uint32_t kAccesoTotal = 0x2003Fu;
// The size of the buffer a value is read into.
inline constexpr std::uint32_t kTamanoBuffer = 1024;
// Types of registry values: text and a 32-bit number.
inline constexpr std::uint32_t kRegSz = 1;
inline constexpr std::uint32_t kRegDword = 4;

// The three functions of advapi32 the program imports, with their signatures: a result of 0
// is success.
class ApiRegistro {
public:
    using Clave = std::uintptr_t;
    virtual ~ApiRegistro() = default;
    virtual long RegOpenKeyExA(std::uint32_t raiz, const std::string& subclave, std::uint32_t opciones,
                               std::uint32_t acceso, Clave& clave) = 0;
    // Reads the value into `datos`, which holds `longitud` bytes on entry; on return `longitud`
    // is the length of the value and `tipo` its type.
    virtual long RegQueryValueExA(Clave clave, const std::string& valor, std::uint32_t& tipo,
                                  std::vector<unsigned char>& datos, std::uint32_t& longitud) = 0;
    virtual long RegCloseKey(Clave clave) = 0;
};

// Starts a process from a whole command line, with a normal focused window, without waiting
// for it. False when it could not be started.
class Arrancador {
public:
    virtual ~Arrancador() = default;
    virtual bool Inicia(const std::string& lineaDeOrden) = 0;
};

// Reads a value of the registry into `texto`: true when it was read. A failure empties the
// text; a value of a type that is neither text nor number leaves it as it came in.
bool LeeRegistro(ApiRegistro& api, std::uint32_t raiz, const std::string& clave, const std::string& valor,
                 std::string& texto);

// The registered command line cut after ".exe" and its next character, with the argument
// appended as it is: no blank, no quotes. On purpose: ".exe" is sought in small letters only;
// a command line that has it in capitals keeps just its first four characters.
std::string LineaDeOrden(const std::string& ordenRegistrada, const std::string& argumento);

// The launches of the program: each reads the registry, builds the command line and starts
// it. False on any failure on the way, whatever it was.
bool AbrePdfPorRegistro(ApiRegistro& api, Arrancador& arrancador, const std::string& fichero);
bool AbreWebPorRegistro(ApiRegistro& api, Arrancador& arrancador, const std::string& direccion);

}  // namespace texalon::plataforma
