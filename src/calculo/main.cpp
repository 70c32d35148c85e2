// texalon-calculo: calculates TEXALON project files from the command line.
#include "calculo/Calculo.h"

#include <clocale>
#include <iostream>
#include <string>
#include <vector>

namespace {

// The machine's decimal separator, read once. The C locale is put back at once, so that
// nothing else in the process converts numbers by the machine's settings.
char SeparadorDelSistema()
{
    const char* ajustado = std::setlocale(LC_ALL, "");
    const char separador =
        texalon::calculo::SeparadorDecimal(ajustado != nullptr ? std::localeconv()->decimal_point : nullptr);
    std::setlocale(LC_ALL, "C");
    return separador;
}

}  // namespace

int main(int argc, char* argv[])
{
    // argv[0] is the program's own name, when the system gives one.
    const std::vector<std::string> argumentos(argc > 0 ? argv + 1 : argv, argv + argc);
    return texalon::calculo::Ejecuta(argumentos, SeparadorDelSistema(), std::cout, std::cerr);
}
