#include "platform/Consola.h"

#ifdef _WIN32
#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

namespace texalon::plataforma {

#ifdef _WIN32
namespace {
std::string Utf8(const wchar_t* texto)
{
    const int bytes = ::WideCharToMultiByte(CP_UTF8, 0, texto, -1, nullptr, 0, nullptr, nullptr);
    if (bytes <= 1) return {};
    std::string resultado(static_cast<std::size_t>(bytes - 1), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, texto, -1, resultado.data(), bytes, nullptr, nullptr);
    return resultado;
}
}  // namespace

std::vector<std::string> ArgumentosUtf8(int, char*[])
{
    int cuantos = 0;
    wchar_t** anchos = ::CommandLineToArgvW(::GetCommandLineW(), &cuantos);
    std::vector<std::string> argumentos;
    if (anchos == nullptr) return argumentos;
    for (int i = 1; i < cuantos; ++i) argumentos.push_back(Utf8(anchos[i]));
    ::LocalFree(anchos);
    return argumentos;
}

void PreparaConsola()
{
    ::_setmode(::_fileno(stdout), _O_BINARY);
    ::_setmode(::_fileno(stderr), _O_BINARY);
    ::SetConsoleOutputCP(CP_UTF8);
}
#else
std::vector<std::string> ArgumentosUtf8(int argc, char* argv[])
{
    // argv[0] is the program's own name, when the system gives one.
    return std::vector<std::string>(argc > 0 ? argv + 1 : argv, argv + argc);
}

void PreparaConsola() {}
#endif

}  // namespace texalon::plataforma
