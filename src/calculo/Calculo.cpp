#include "calculo/Calculo.h"

#include "calculo/Proyecto.h"
#include "calculo/SalidaJson.h"
#include "calculo/SalidaTexto.h"

#include <ostream>
#include <string_view>

namespace texalon::calculo {

namespace {

constexpr std::string_view kPrograma = "texalon-calculo";

// What the command line asks for.
struct Orden {
    bool json = false;
    bool ayuda = false;
    std::vector<std::string> ficheros;
    std::string error;  // the usage error, if any
};

// A lone "-" is a name: no option is that short.
bool EsOpcion(const std::string& argumento) { return argumento.size() > 1 && argumento.front() == '-'; }

// Options and names may come in any order; after "--" everything is a name, so that a file
// whose name starts with '-' can be given too.
Orden Interpreta(const std::vector<std::string>& argumentos)
{
    Orden orden;
    bool soloNombres = false;
    for (const std::string& argumento : argumentos) {
        if (soloNombres || !EsOpcion(argumento)) {
            orden.ficheros.push_back(argumento);
        } else if (argumento == "--") {
            soloNombres = true;
        } else if (argumento == "--json") {
            orden.json = true;
        } else if (argumento == "--help" || argumento == "-h") {
            orden.ayuda = true;
        } else {
            orden.error = "opción no reconocida «" + argumento + "».";
            return orden;
        }
    }
    if (!orden.ayuda && orden.ficheros.empty()) orden.error = "falta el nombre de algún fichero.";
    return orden;
}

void EscribeErrorDeUso(const std::string& error, std::ostream& errores)
{
    errores << kPrograma << ": " << error << '\n' << "Pruebe «" << kPrograma << " --help» para más información.\n";
}

// The results of one file, or its messages; the answer says whether it succeeded.
bool ProcesaFichero(const std::string& fichero, const Orden& orden, char separador, bool& primerBloque,
                    std::ostream& salida, std::ostream& errores)
{
    const CalculoFichero calculo = CalculaFichero(fichero);
    for (const std::string& mensaje : calculo.errores)
        errores << fichero << ": " << mensaje << '\n';
    if (orden.json) {
        salida << ObjetoJson(calculo) << '\n';
    } else if (calculo.Correcto()) {
        // A blank line parts the blocks of two files.
        if (!primerBloque) salida << '\n';
        salida << TextoResultados(calculo, separador);
        primerBloque = false;
    }
    // Whoever reads both outputs at once sees each file's lines together.
    salida.flush();
    errores.flush();
    return calculo.Correcto();
}

int ProcesaFicheros(const Orden& orden, char separador, std::ostream& salida, std::ostream& errores)
{
    bool todos = true;
    bool primerBloque = true;
    // A failure stops nothing: the next file goes on.
    for (const std::string& fichero : orden.ficheros)
        todos = ProcesaFichero(fichero, orden, separador, primerBloque, salida, errores) && todos;
    return todos ? kSalidaCorrecta : kSalidaConFallos;
}

}  // namespace

std::string TextoAyuda()
{
    return "Uso: texalon-calculo [--json] FICHERO...\n"
           "\n"
           "Calcula cada proyecto TEXALON guardado como lo hace el botón Calcular de su\n"
           "pantalla y escribe sus resultados en la salida estándar. La extensión del nombre\n"
           "decide el tipo de proyecto, en mayúsculas o minúsculas: .vmf flexión (sección\n"
           "rectangular o en T), .vmc confinamiento.\n"
           "\n"
           "Opciones:\n"
           "  --json      escribe un objeto JSON por fichero, cada uno en una sola línea, con\n"
           "              «fichero», «tipo» (rectangular, T o confinamiento), todos los datos\n"
           "              y resultados del proyecto por su nombre (las tablas, una lista por\n"
           "              tipo de refuerzo con un valor por número de capas) y «veredicto»;\n"
           "              los números con 17 cifras significativas y punto decimal, null\n"
           "              si no es finito. Si el fichero falla, el objeto lleva «error» en\n"
           "              lugar de los resultados.\n"
           "  -h, --help  muestra esta ayuda y termina.\n"
           "  --          lo que sigue son nombres de fichero, aunque empiecen por «-».\n"
           "\n"
           "Sin --json se escribe, para cada fichero, la tabla de resultados con un tipo de\n"
           "refuerzo por columna y un número de capas por fila, en los formatos de la\n"
           "pantalla y con el separador decimal del sistema, el veredicto y los valores de\n"
           "la sección. Los mensajes de error van a la salida de errores y el cálculo sigue\n"
           "con el fichero siguiente. El programa no escribe ningún fichero.\n"
           "\n"
           "Estado de salida:\n"
           "  0  se han calculado todos los ficheros.\n"
           "  1  algún fichero no se ha podido leer o calcular.\n"
           "  2  error de uso: ningún fichero u opción no reconocida.\n";
}

int Ejecuta(const std::vector<std::string>& argumentos, char separador, std::ostream& salida, std::ostream& errores)
{
    const Orden orden = Interpreta(argumentos);
    if (!orden.error.empty()) {
        EscribeErrorDeUso(orden.error, errores);
        return kSalidaErrorDeUso;
    }
    if (orden.ayuda) {
        salida << TextoAyuda();
        return kSalidaCorrecta;
    }
    return ProcesaFicheros(orden, separador, salida, errores);
}

char SeparadorDecimal(const char* separadorDelSistema)
{
    const bool coma = separadorDelSistema != nullptr && std::string_view(separadorDelSistema) == ",";
    return coma ? ',' : '.';
}

}  // namespace texalon::calculo
