// Helpers of the project file tests: a scratch directory per test, hand-made files, the messages
// the procedures show, and the value lists of the worked examples.
#pragma once

#include "comun/CarpetaTemporal.h"
#include "comun/Proyectos.h"
#include "files/Ficheros.h"
#include "state/General.h"

#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace texalon::prueba {

// A directory of its own for one test, removed with everything in it at the end of the test.
class DirectorioTemporal : public CarpetaTemporal {
public:
    DirectorioTemporal();

    const std::filesystem::path& Ruta() const { return Camino(); }
    // Full name of a file inside the directory, as the procedures take it.
    std::string Fichero(const std::string& nombre) const;
};

// The messages shown by the procedures, in order.
class Avisos {
public:
    Aviso Funcion();
    const std::vector<std::string>& Textos() const { return textos_; }

private:
    std::vector<std::string> textos_;
};

// Joins the lines, each ended by CR LF, as the writers do.
std::string ConFinDeLinea(const std::vector<std::string>& lineas, const std::string& fin = "\r\n");

void EscribeBytes(const std::string& fichero, const std::string& bytes);
std::string LeeBytes(const std::string& fichero);

// The rectangular flexure file of the start values, line by line.
std::vector<std::string> LineasFlexionRectangular();
// The same section as a T section.
std::vector<std::string> LineasFlexionT();
// The rectangular column 0.5 by 0.4 with an axial load of 1200.
std::vector<std::string> LineasConfinaRectangular();

// The lines with line `linea` (from 1, as in the file) replaced by `texto`.
std::vector<std::string> ConLinea(std::vector<std::string> lineas, std::size_t linea, const std::string& texto);

// The lines with several lines replaced: each change names a line (from 1) and its new text.
std::vector<std::string> ConLineas(std::vector<std::string> lineas,
                                   std::initializer_list<std::pair<std::size_t, std::string>> cambios);

// The section kind of a reading that never got to read it.
constexpr Entero kTipoSinLeer = -7;

// What reading a hand-made file leaves behind: the state, the section kind (flexure files
// alone) and the messages shown.
struct Lectura {
    General g;
    Entero tipo = kTipoSinLeer;
    std::vector<std::string> avisos;
};

// Reads the bytes as a flexure file, or as a confinement one, over the state `inicial`: by
// default one whose values all differ from the defaults (NU 0.3 and FYK 410 among them).
Lectura LeeFlexionDe(const std::string& bytes, General inicial = EstadoAjeno());
Lectura LeeConfinaDe(const std::string& bytes, General inicial = EstadoAjeno());
// Reads the file of that name as a flexure file, or as a confinement one, over the state `inicial`.
Lectura LeeFicheroFlexion(const std::string& fichero, General inicial = EstadoAjeno());
Lectura LeeFicheroConfina(const std::string& fichero, General inicial = EstadoAjeno());
// The same, of the lines each ended by CR LF.
Lectura LeeLineasFlexion(const std::vector<std::string>& lineas);
Lectura LeeLineasConfina(const std::vector<std::string>& lineas);

// Expectations on whole groups of fields.
void EsperaMismosValoresFlexion(const General& esperado, const General& g);
void EsperaMismosValoresConfinamiento(const General& esperado, const General& g);

}  // namespace texalon::prueba
