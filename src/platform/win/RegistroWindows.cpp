#include "platform/win/RegistroWindows.h"

#include <windows.h>

namespace texalon::plataforma {

long ApiRegistroWindows::RegOpenKeyExA(std::uint32_t raiz, const std::string& subclave, std::uint32_t opciones,
                                       std::uint32_t acceso, Clave& clave)
{
    HKEY abierta = nullptr;
    const LONG resultado = ::RegOpenKeyExA(reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(raiz)), subclave.c_str(),
                                           opciones, static_cast<REGSAM>(acceso), &abierta);
    clave = reinterpret_cast<Clave>(abierta);
    return resultado;
}

long ApiRegistroWindows::RegQueryValueExA(Clave clave, const std::string& valor, std::uint32_t& tipo,
                                          std::vector<unsigned char>& datos, std::uint32_t& longitud)
{
    DWORD tipoLeido = 0;
    DWORD longitudLeida = longitud;
    const LONG resultado = ::RegQueryValueExA(reinterpret_cast<HKEY>(clave), valor.c_str(), nullptr, &tipoLeido,
                                              datos.data(), &longitudLeida);
    tipo = tipoLeido;
    longitud = longitudLeida;
    return resultado;
}

long ApiRegistroWindows::RegCloseKey(Clave clave) { return ::RegCloseKey(reinterpret_cast<HKEY>(clave)); }

bool ArrancadorWindows::Inicia(const std::string& lineaDeOrden)
{
    STARTUPINFOA inicio{};
    inicio.cb = sizeof inicio;
    inicio.dwFlags = STARTF_USESHOWWINDOW;
    inicio.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION proceso{};
    std::string linea = lineaDeOrden;  // CreateProcessA may write into the command line
    if (!::CreateProcessA(nullptr, linea.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &inicio, &proceso))
        return false;
    ::CloseHandle(proceso.hThread);
    ::CloseHandle(proceso.hProcess);
    return true;
}

}  // namespace texalon::plataforma
