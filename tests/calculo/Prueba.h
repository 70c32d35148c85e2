// Helpers of the batch command tests: a scratch directory per test, the default projects as
// files, a run of the command through its library, and the comparison with the expected outputs.
#pragma once

#include "calculo/Calculo.h"
#include "comun/CarpetaTemporal.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace texalon::prueba {

// The files that New and Save give for the start values of each screen.
inline constexpr std::string_view kFlexionRectangular =
    "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n";
// The same section with a design moment of 250 mkN.
inline constexpr std::string_view kFlexionRectangularMd250 =
    "1\r\n0.4\r\n0.6\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n250\r\n";
inline constexpr std::string_view kFlexionT =
    "2\r\n0.4\r\n0.6\r\n0.2\r\n0.2\r\n0.05\r\n10\r\n0\r\n25\r\n500\r\n1.5\r\n1.15\r\n1.4\r\n0.125\r\n0\r\n0\r\n";
inline constexpr std::string_view kConfinamiento = "1\r\n0.5\r\n0.4\r\n25\r\n1.5\r\n1.15\r\n1.4\r\n0\r\n1\r\n";

// A directory of its own for one test, removed with everything in it at the end of the test.
class DirectorioTemporal : public CarpetaTemporal {
public:
    DirectorioTemporal();

    // The directory's full name, its folders joined by '/' on every system as the command
    // names them in its messages.
    std::string Ruta() const { return Camino().generic_string(); }
    // Writes the bytes as a file of the directory and gives its full name.
    std::string Escribe(const std::string& nombre, std::string_view bytes) const;
    // The full name of a file of the directory that is not written.
    std::string Fichero(const std::string& nombre) const;
};

// The fixture of a table of cases that each run the command on one project file, written in a
// directory of its own: the row's `fichero`, with the row's `contenido`.
template <class Fila>
class ConUnFichero : public ::testing::TestWithParam<Fila> {
protected:
    DirectorioTemporal directorio;
    const std::string fichero = directorio.Escribe(this->GetParam().fichero, this->GetParam().contenido);
};

// What one run of the command gives.
struct Ejecucion {
    int estado = -1;
    std::string salida;
    std::string errores;
};

// Runs the command through its library, as main does, with the given decimal separator and
// the given writer of SVG files and printer of reports.
Ejecucion EjecutaCalculo(const std::vector<std::string>& argumentos, char separador = ',',
                         const calculo::Dispositivos& dispositivos = {});

// The text with every occurrence of `buscado` replaced.
std::string Sustituye(std::string texto, std::string_view buscado, std::string_view nuevo);

// Compares the text with the expected file of tests/calculo/esperado. With the environment
// variable TEXALON_ACTUALIZA_ESPERADO set, writes the text as the new expected file instead.
void ComparaConEsperado(const std::string& texto, const std::string& esperado);

// Whether the text holds the part, telling both when it does not.
::testing::AssertionResult Contiene(const std::string& texto, std::string_view parte);

// A file's bytes.
std::string Contenido(const std::string& fichero);

// The lines of a text, without their ends.
std::vector<std::string> Lineas(const std::string& texto);

}  // namespace texalon::prueba
