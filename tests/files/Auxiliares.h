// Helpers of the project file tests: a scratch directory per test, hand-made files, the messages
// the procedures show, and the value lists of the worked examples.
#pragma once

#include "comun/Proyectos.h"
#include "files/Ficheros.h"
#include "state/General.h"

#include <filesystem>
#include <string>
#include <vector>

namespace texalon::prueba {

// A directory of its own for one test, removed with everything in it at the end of the test.
class DirectorioTemporal {
public:
    DirectorioTemporal();
    ~DirectorioTemporal();
    DirectorioTemporal(const DirectorioTemporal&) = delete;
    DirectorioTemporal& operator=(const DirectorioTemporal&) = delete;

    const std::filesystem::path& Ruta() const { return ruta_; }
    // Full name of a file inside the directory, as the procedures take it.
    std::string Fichero(const std::string& nombre) const;

private:
    std::filesystem::path ruta_;
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

// Expectations on whole groups of fields.
void EsperaMismosValoresFlexion(const General& esperado, const General& g);
void EsperaMismosValoresConfinamiento(const General& esperado, const General& g);

}  // namespace texalon::prueba
