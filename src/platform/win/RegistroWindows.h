// advapi32's registry and the start of a process, on Windows only.
#pragma once

#include "platform/Registro.h"

namespace texalon::plataforma {

class ApiRegistroWindows final : public ApiRegistro {
public:
    long RegOpenKeyExA(std::uint32_t raiz, const std::string& subclave, std::uint32_t opciones, std::uint32_t acceso,
                       Clave& clave) override;
    long RegQueryValueExA(Clave clave, const std::string& valor, std::uint32_t& tipo, std::vector<unsigned char>& datos,
                          std::uint32_t& longitud) override;
    long RegCloseKey(Clave clave) override;
};

// Starts the command line as it stands, in a normal window with the focus, and does not wait.
class ArrancadorWindows final : public Arrancador {
public:
    bool Inicia(const std::string& lineaDeOrden) override;
};

}  // namespace texalon::plataforma
