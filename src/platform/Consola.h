// A console program's arguments and output, the same bytes on every system.
#pragma once

#include <string>
#include <vector>

namespace texalon::plataforma {

// The program's arguments after its own name, in UTF-8. Windows hands a program its arguments in
// the ANSI code page, where a file name with a letter outside it is lost: there they are read
// from the UTF-16 command line instead.
std::vector<std::string> ArgumentosUtf8(int argc, char* argv[]);

// The standard output and error write their bytes as they are (no "\n" made "\r\n" on Windows,
// so that the CSV's own CR LF and every output match Linux's byte for byte), and a Windows
// console shows them as UTF-8.
void PreparaConsola();

}  // namespace texalon::plataforma
