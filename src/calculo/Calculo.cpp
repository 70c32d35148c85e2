#include "calculo/Calculo.h"

#include "calculo/Diagrama.h"
#include "files/Ficheros.h"
#include "calculo/Informe.h"
#include "reports/Informes.h"
#include "calculo/Lotes.h"
#include "calculo/Miembros.h"
#include "calculo/Proyecto.h"
#include "calculo/SalidaCsv.h"
#include "calculo/SalidaJson.h"
#include "calculo/SalidaTexto.h"
#include "calculo/Tabla.h"
#include "calculo/Texto.h"
#include "state/Rutas.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <string_view>
#include <system_error>

namespace texalon::calculo {

namespace {

constexpr std::string_view kPrograma = "texalon-calculo";

// What the command line asks for.
struct Orden {
    bool json = false;
    bool csv = false;
    bool ayuda = false;
    bool tablas = false;  // the names are tables of members
    bool resumen = false;
    std::optional<std::string> carpetaProyectos;
    // --informe FICHERO.pdf with tables: one report of every member, after their summary.
    std::optional<std::string> informeConjunto;
    std::optional<std::string> plantilla;  // the kind of member of --plantilla
    std::optional<Diagrama> diagrama;
    int tipo = 1;
    int capas = 1;
    std::optional<std::string> carpetaSvg;
    std::optional<std::string> carpetaInforme;
    std::vector<std::string> ficheros;
    std::vector<std::string> opciones;  // the options given, in their order, without values
    std::string error;  // the usage error, if any
};

// The CSV table is one table of every cell of every file: it takes no option that chooses a
// cell, a diagram or another output.
constexpr std::array<std::string_view, 6> kOpcionesSinCsv = {"--json",    "--diagrama", "--svg",
                                                             "--informe", "--tipo",     "--capas"};

// The summary is one table too, of one row a member; a report may go with it.
constexpr std::array<std::string_view, 3> kOpcionesSinResumen = {"--json", "--diagrama", "--svg"};

// The first option given that --csv, or --resumen, does not combine with, if any.
template <std::size_t N>
std::optional<std::string> OpcionContra(const Orden& orden, const std::array<std::string_view, N>& excluidas)
{
    for (const std::string& opcion : orden.opciones)
        if (std::find(excluidas.begin(), excluidas.end(), opcion) != excluidas.end()) return opcion;
    return std::nullopt;
}

// A lone "-" is a name: no option is that short.
bool EsOpcion(const std::string& argumento) { return argumento.size() > 1 && argumento.front() == '-'; }

bool LlevaValor(const std::string& opcion)
{
    return opcion == "--diagrama" || opcion == "--tipo" || opcion == "--capas" || opcion == "--svg" ||
           opcion == "--informe" || opcion == "--plantilla" || opcion == "--proyectos";
}

// A whole number in plain decimal digits from 1 to `maximo`, the whole text of it.
std::optional<int> NumeroHasta(const std::string& texto, int maximo)
{
    int numero = 0;
    const char* fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, numero);
    if (texto.empty() || leido.ec != std::errc() || leido.ptr != fin || numero < 1 || numero > maximo)
        return std::nullopt;
    return numero;
}

std::string ErrorNumero(const std::string& opcion, const std::string& valor, int maximo)
{
    return "el valor «" + valor + "» de " + opcion + " no es un número entero de 1 a " + TextoEntero(maximo) + ".";
}

// Takes the value of an option that carries one; the answer is the usage error, if any.
std::string TomaValor(Orden& orden, const std::string& opcion, const std::string& valor)
{
    if (opcion == "--diagrama") {
        orden.diagrama = DiagramaDeNombre(valor);
        if (!orden.diagrama)
            return "diagrama «" + valor + "» no reconocido: los diagramas son " + NombresDiagramas() + ".";
    } else if (opcion == "--tipo") {
        const std::optional<int> tipo = NumeroHasta(valor, kTipoMaximo);
        if (!tipo) return ErrorNumero(opcion, valor, kTipoMaximo);
        orden.tipo = *tipo;
    } else if (opcion == "--capas") {
        const std::optional<int> capas = NumeroHasta(valor, kCapasMaximo);
        if (!capas) return ErrorNumero(opcion, valor, kCapasMaximo);
        orden.capas = *capas;
    } else if (opcion == "--plantilla") {
        if (!Plantilla(valor, '.'))
            return "tipo «" + valor + "» de --plantilla no reconocido: los tipos son rectangular, T y confinamiento.";
        orden.plantilla = valor;
    } else {
        if (valor.empty()) return "falta el valor de la opción «" + opcion + "».";
        (opcion == "--svg" ? orden.carpetaSvg : opcion == "--informe" ? orden.carpetaInforme : orden.carpetaProyectos) =
            valor;
    }
    return {};
}

// A name that ends in ".pdf", in any case.
bool EsPdf(const std::string& nombre)
{
    if (nombre.size() < 4) return false;
    std::string extension = nombre.substr(nombre.size() - 4);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == ".pdf";
}

// Options and names may come in any order; an option's value is the argument that follows it.
// After "--" everything is a name, so that a file whose name starts with '-' can be given too.
Orden Interpreta(const std::vector<std::string>& argumentos)
{
    Orden orden;
    bool soloNombres = false;
    for (std::size_t i = 0; i < argumentos.size(); ++i) {
        const std::string& argumento = argumentos[i];
        if (soloNombres || !EsOpcion(argumento)) {
            orden.ficheros.push_back(argumento);
        } else if (argumento == "--") {
            soloNombres = true;
        } else if (argumento == "--json") {
            orden.json = true;
            orden.opciones.push_back(argumento);
        } else if (argumento == "--csv") {
            orden.csv = true;
        } else if (argumento == "--tabla") {
            orden.tablas = true;
        } else if (argumento == "--resumen") {
            orden.resumen = true;
        } else if (argumento == "--help" || argumento == "-h") {
            orden.ayuda = true;
        } else if (LlevaValor(argumento)) {
            orden.opciones.push_back(argumento);
            orden.error = i + 1 < argumentos.size() ? TomaValor(orden, argumento, argumentos[++i])
                                                    : "falta el valor de la opción «" + argumento + "».";
            if (!orden.error.empty()) return orden;
        } else {
            orden.error = "opción no reconocida «" + argumento + "».";
            return orden;
        }
    }
    if (orden.ayuda) return orden;
    if (orden.plantilla) {
        if (!orden.ficheros.empty() || orden.opciones.size() > 1 || orden.csv || orden.tablas)
            orden.error = "la opción «--plantilla» no se combina con otras opciones ni con nombres de fichero.";
        return orden;
    }
    const std::optional<std::string> contraCsv = orden.csv ? OpcionContra(orden, kOpcionesSinCsv) : std::nullopt;
    const std::optional<std::string> contraResumen =
        orden.resumen ? OpcionContra(orden, kOpcionesSinResumen) : std::nullopt;
    if (orden.ficheros.empty())
        orden.error = "falta el nombre de algún fichero.";
    else if (contraCsv)
        orden.error = "la opción «--csv» no se puede combinar con «" + *contraCsv + "».";
    else if (orden.resumen && (orden.csv || contraResumen))
        orden.error = "la opción «--resumen» no se puede combinar con «" +
                      (orden.csv ? std::string("--csv") : *contraResumen) + "».";
    else if (orden.carpetaProyectos && !orden.tablas)
        orden.error = "la opción «--proyectos» necesita «--tabla».";
    else if (orden.carpetaSvg && !orden.diagrama)
        orden.error = "la opción «--svg» necesita «--diagrama NOMBRE».";
    // With tables, a report's name that ends in .pdf is the one file of the joint report.
    if (orden.error.empty() && orden.tablas && orden.carpetaInforme && EsPdf(*orden.carpetaInforme)) {
        orden.informeConjunto = orden.carpetaInforme;
        orden.carpetaInforme.reset();
    }
    return orden;
}

void EscribeErrorDeUso(const std::string& error, std::ostream& errores)
{
    errores << kPrograma << ": " << error << '\n' << "Pruebe «" << kPrograma << " --help» para más información.\n";
}

// CARPETA/<the file's name without its extension>.pdf
std::string FicheroInforme(const std::string& carpeta, const std::string& fichero)
{
    return TextoUtf8(RutaUtf8(carpeta) / (TextoUtf8(RutaUtf8(fichero).stem()) + ".pdf"));
}

// CARPETA/<the member's name, made safe for a file system><extension>
std::string FicheroDeElemento(const std::string& carpeta, const CalculoFichero& calculo, std::string_view extension)
{
    return TextoUtf8(RutaUtf8(carpeta) / (NombreDeFichero(calculo.elemento) + std::string(extension)));
}

// The project file of an accepted member, which its screen opens as any project; an existing
// file is named and left as it is.
void GuardaProyecto(CalculoFichero& calculo, const Orden& orden)
{
    if (!orden.carpetaProyectos || !calculo.leido) return;
    const bool flexion = calculo.clase == ClaseFichero::Flexion;
    const std::string destino = FicheroDeElemento(*orden.carpetaProyectos, calculo, flexion ? ".vmf" : ".vmc");
    std::error_code fallo;
    std::filesystem::create_directories(RutaUtf8(*orden.carpetaProyectos), fallo);
    if (std::filesystem::exists(RutaUtf8(destino), fallo)) {
        calculo.errores.push_back("no se escribe «" + destino + "»: ya existe.");
        return;
    }
    // The state keeps its results: a copy is written, as Save writes the screen's values.
    General g = calculo.g;
    const Aviso aviso = [&calculo](const std::string& texto) { calculo.errores.push_back(texto); };
    if (flexion)
        GrabaFlexion(g, destino, calculo.seccion, aviso);
    else
        GrabaConfina(g, destino, aviso);
}

// The report of a calculated file, as Print makes it for the cell of --tipo and --capas. The
// folder is made when it is missing.
void GuardaInforme(CalculoFichero& calculo, const Orden& orden, char separador, const ImpresoraPdf& pdf)
{
    if (!orden.carpetaInforme || !calculo.Correcto()) return;
    const std::string destino = calculo.fila != 0 ? FicheroDeElemento(*orden.carpetaInforme, calculo, ".pdf")
                                                  : FicheroInforme(*orden.carpetaInforme, calculo.fichero);
    std::error_code fallo;
    std::filesystem::create_directories(RutaUtf8(*orden.carpetaInforme), fallo);
    if (fallo) {
        calculo.errores.push_back("no se ha podido crear la carpeta «" + *orden.carpetaInforme + "» del informe.");
        return;
    }
    const auto imprime = [&](plataforma::Impresora& impresora) {
        ImprimeInforme(calculo, impresora, orden.tipo, orden.capas, separador, destino);
    };
    if (!pdf || !pdf(destino, imprime)) calculo.errores.push_back(MensajeInformeSinEscribir(destino));
}

// CARPETA/<the file's name without its extension>-<the diagram's name>.svg
std::string FicheroSvg(const std::string& carpeta, const std::string& fichero, Diagrama diagrama)
{
    const std::string nombre =
        TextoUtf8(RutaUtf8(fichero).stem()) + "-" + std::string(NombreDiagrama(diagrama)) + ".svg";
    return TextoUtf8(RutaUtf8(carpeta) / nombre);
}

// The folder is made when it is missing; a file that cannot be written is a failure of the file.
bool GuardaSvg(CalculoFichero& calculo, ListaDiagrama& lista, const Orden& orden, const EscritorSvg& escritorSvg)
{
    const std::string destino = FicheroSvg(*orden.carpetaSvg, calculo.fichero, *orden.diagrama);
    std::error_code sinExcepcion;
    std::filesystem::create_directories(RutaUtf8(*orden.carpetaSvg), sinExcepcion);
    if (escritorSvg && escritorSvg(lista.d, *lista.dibujo, lista.isotropico, destino)) return true;
    calculo.errores.push_back("no se ha podido escribir el diagrama en «" + destino + "».");
    return false;
}

// The diagram of a calculated file, written as SVG when asked; none for a file that failed,
// unless it was read whole and the diagram needs no calculation. The calculation's messages stay
// with the file, which still fails.
std::optional<ListaDiagrama> DiagramaDelFichero(CalculoFichero& calculo, const Orden& orden, char separador,
                                                const EscritorSvg& escritorSvg)
{
    if (!orden.diagrama) return std::nullopt;
    if (!calculo.Correcto() && !(calculo.leido && !NecesitaCalculo(*orden.diagrama))) return std::nullopt;
    std::optional<ListaDiagrama> lista = DibujaDiagrama(calculo, {*orden.diagrama, orden.tipo, orden.capas}, separador);
    // A diagram that could not reach its file is not given as drawn.
    if (lista && orden.carpetaSvg && !GuardaSvg(calculo, *lista, orden, escritorSvg)) return std::nullopt;
    return lista;
}

// Whether what the command writes for a calculation is all it does with it: no diagram, report
// or project file to make, which could fail and turn the results into a failure.
bool SoloEscribe(const Orden& orden) { return !orden.diagrama && !orden.carpetaInforme && !orden.carpetaProyectos; }

// What the command writes on its output for one calculation: its CSV rows, its summary row, its
// JSON object, or its block of text (nothing for a failure). A block of text goes without the
// blank line that parts it from the one before.
std::string Salida(const CalculoFichero& calculo, const Orden& orden, char separador, const ListaDiagrama* lista)
{
    if (orden.csv) return FilasCsv(calculo, separador);
    if (orden.resumen) return FilaResumen(calculo, separador);
    if (orden.json) return ObjetoJson(calculo, lista) + '\n';
    return calculo.Correcto() ? TextoResultados(calculo, separador) : std::string();
}

// What the command gives for one calculation, a file's or a member's: its diagram and report
// when asked, its messages, its results. `escrita` is its output already written, if any. The
// answer says whether it succeeded.
bool Entrega(CalculoFichero& calculo, const std::string* escrita, const Orden& orden, char separador,
             const Dispositivos& dispositivos, bool& primerBloque, std::ostream& salida, std::ostream& errores)
{
    const std::optional<ListaDiagrama> lista = DiagramaDelFichero(calculo, orden, separador, dispositivos.svg);
    GuardaInforme(calculo, orden, separador, dispositivos.pdf);
    GuardaProyecto(calculo, orden);
    const std::string procedencia = Procedencia(calculo);
    for (const std::string& mensaje : calculo.errores)
        errores << procedencia << ": " << mensaje << '\n';
    const std::string texto =
        escrita != nullptr ? *escrita : Salida(calculo, orden, separador, lista ? &*lista : nullptr);
    // A blank line parts the blocks of two files.
    const bool bloque = !orden.csv && !orden.resumen && !orden.json && !texto.empty();
    if (bloque && !primerBloque) salida << '\n';
    if (bloque) primerBloque = false;
    salida << texto;
    // Whoever reads both outputs at once sees each file's lines together.
    salida.flush();
    errores.flush();
    return calculo.Correcto();
}

bool ProcesaFichero(const std::string& fichero, const Orden& orden, char separador, const Dispositivos& dispositivos,
                    bool& primerBloque, std::ostream& salida, std::ostream& errores)
{
    CalculoFichero calculo = CalculaFichero(fichero);
    return Entrega(calculo, nullptr, orden, separador, dispositivos, primerBloque, salida, errores);
}

// A member whose name an earlier row has: refused, whatever its values.
CalculoFichero Repetido(const std::string& tabla, const CalculoFichero& calculo, std::size_t filaAnterior)
{
    CalculoFichero repetido;
    repetido.fichero = tabla;
    repetido.fila = calculo.fila;
    repetido.elemento = calculo.elemento;
    repetido.errores.push_back("elemento «" + calculo.elemento + "»: ya está en la fila " +
                               TextoEntero(static_cast<int>(filaAnterior)) + ".");
    return repetido;
}

// What the joint report of the tables' members needs from their first reading: the summary's
// rows and, for each member in table order, whether its report can be printed.
struct InformeConjunto {
    std::vector<std::vector<std::string>> resumen;
    std::vector<bool> imprimible;
};

using CalculaRegistro =
    std::function<FilaCalculada(const CabeceraTabla& cabecera, const Registro& fila, std::string_view decimales)>;

// Opens the table, reads its header, and calculates its rows on every core, each handed to
// `entrega` in table order. A table that cannot be opened, whose header cannot be used or
// whose quotes are left open is told on `errores` (when given) and fails.
bool RecorreTabla(const std::string& tabla, std::ostream* errores, const CalculaRegistro& calcula,
                  const std::function<void(FilaCalculada&)>& entrega)
{
    const auto falla = [&](const std::string& mensaje) {
        if (errores != nullptr) *errores << tabla << ": " << mensaje << '\n';
        return false;
    };
    std::ifstream entrada(RutaUtf8(tabla), std::ios::binary);
    if (!entrada) return falla("no se ha podido abrir la tabla.");
    LectorTabla lector(entrada);
    const std::optional<Registro> primera = lector.Siguiente();
    if (!primera) return falla(lector.Error().empty() ? "la tabla no tiene cabecera." : lector.Error());
    const CabeceraTabla cabecera = LeeCabecera(*primera);
    if (!cabecera.error.empty()) return falla(cabecera.error);
    const std::string_view decimales = lector.Decimales();
    CalculaEnLotes([&lector] { return lector.Siguiente(); },
                   [&](const Registro& fila) { return calcula(cabecera, fila, decimales); }, entrega);
    if (!lector.Error().empty()) return falla(lector.Error());
    return true;
}

// A member in the joint report's summary: its row of --resumen, the verdict's column holding
// instead the reason why it has no report, where it has none.
void AnotaEnElResumen(const CalculoFichero& calculo, const Orden& orden, char separador, InformeConjunto& conjunto)
{
    std::vector<std::string> celdas = CeldasResumen(calculo, separador);
    const std::string error = celdas.back();
    celdas.pop_back();
    const bool imprimible = InformeImprimible(calculo, orden.tipo, orden.capas);
    if (!imprimible) celdas.back() = calculo.Correcto() ? std::string(kMensajeCeldaRechazada) : error;
    conjunto.resumen.push_back(std::move(celdas));
    conjunto.imprimible.push_back(imprimible);
}

// Every row of a table, in its order, calculated on every core: a refused row is told and the
// next goes on.
bool ProcesaTabla(const std::string& tabla, const Orden& orden, char separador, const Dispositivos& dispositivos,
                  bool& primerBloque, std::ostream& salida, std::ostream& errores, InformeConjunto* conjunto)
{
    bool todas = true;
    NombresVistos vistos;
    const bool tablaLeida = RecorreTabla(
        tabla, &errores,
        [&](const CabeceraTabla& cabecera, const Registro& fila, std::string_view decimales) {
            FilaCalculada calculada{CalculaFila(tabla, cabecera, fila, decimales), {}};
            if (SoloEscribe(orden)) calculada.salida = Salida(calculada.calculo, orden, separador, nullptr);
            return calculada;
        },
        [&](FilaCalculada& calculada) {
            CalculoFichero& calculo = calculada.calculo;
            const bool escrita = SoloEscribe(orden);
            if (!calculo.elemento.empty()) {
                if (const std::optional<std::size_t> visto = vistos.Anota(calculo.elemento, calculo.fila)) {
                    calculo = Repetido(tabla, calculo, *visto);
                    calculada.salida = Salida(calculo, orden, separador, nullptr);
                }
            }
            todas = Entrega(calculo, escrita ? &calculada.salida : nullptr, orden, separador, dispositivos,
                            primerBloque, salida, errores) &&
                    todas;
            if (conjunto != nullptr) AnotaEnElResumen(calculo, orden, separador, *conjunto);
        });
    return tablaLeida && todas;
}

bool ProcesaFicheroOTabla(const std::string& nombre, const Orden& orden, char separador,
                          const Dispositivos& dispositivos, bool& primerBloque, std::ostream& salida,
                          std::ostream& errores, InformeConjunto* conjunto)
{
    if (orden.tablas) return ProcesaTabla(nombre, orden, separador, dispositivos, primerBloque, salida, errores, conjunto);
    return ProcesaFichero(nombre, orden, separador, dispositivos, primerBloque, salida, errores);
}

// The joint report: the summary of every member, then each member's report on pages of its
// own, in table order, as its screen prints it after Calculate. The tables are read and
// calculated a second time, so that no more than a few members are in memory at once.
bool ImprimeConjunto(const Orden& orden, char separador, const Dispositivos& dispositivos,
                     const InformeConjunto& conjunto, std::ostream& errores)
{
    const std::string& destino = *orden.informeConjunto;
    std::error_code sinExcepcion;
    const std::filesystem::path carpeta = RutaUtf8(destino).parent_path();
    if (!carpeta.empty()) std::filesystem::create_directories(carpeta, sinExcepcion);
    bool todos = true;
    const auto imprime = [&](plataforma::Impresora& impresora) {
        General nuevo;
        ValoresIniciales(nuevo);
        std::vector<std::string> columnas = {"Elemento", "Tipo", "Solicitado", "Sin refuerzo"};
        for (int t = 1; t <= nuevo.NTIPOS; ++t)
            columnas.push_back(nuevo.TIPOS(t));
        columnas.emplace_back("Veredicto u observación");
        InformeResumen(impresora, columnas, conjunto.resumen);
        ImpresoraContinua continua(impresora);
        std::size_t indice = 0;
        for (const std::string& tabla : orden.ficheros) {
            RecorreTabla(
                tabla, nullptr,
                [&](const CabeceraTabla& cabecera, const Registro& fila, std::string_view decimales) {
                    return FilaCalculada{CalculaFila(tabla, cabecera, fila, decimales), {}};
                },
                [&](FilaCalculada& calculada) {
                    if (indice >= conjunto.imprimible.size() || !conjunto.imprimible[indice++]) return;
                    impresora.NewPage();
                    CalculoFichero& calculo = calculada.calculo;
                    ImprimeInforme(calculo, continua, orden.tipo, orden.capas, separador, destino);
                    for (const std::string& mensaje : calculo.errores)
                        errores << Procedencia(calculo) << ": " << mensaje << '\n';
                    todos = todos && calculo.Correcto();
                });
        }
        impresora.EndDoc();
    };
    if (!dispositivos.pdf || !dispositivos.pdf(destino, imprime)) {
        errores << MensajeInformeSinEscribir(destino) << '\n';
        return false;
    }
    return todos;
}

int ProcesaFicheros(const Orden& orden, char separador, const Dispositivos& dispositivos, std::ostream& salida,
                    std::ostream& errores)
{
    bool todos = true;
    bool primerBloque = true;
    if (orden.csv) salida << CabeceraCsv(separador);
    if (orden.resumen) salida << CabeceraResumen(separador);
    // A failure stops nothing: the next file goes on.
    std::optional<InformeConjunto> conjunto;
    if (orden.informeConjunto) conjunto.emplace();
    for (const std::string& fichero : orden.ficheros)
        todos = ProcesaFicheroOTabla(fichero, orden, separador, dispositivos, primerBloque, salida, errores,
                                     conjunto ? &*conjunto : nullptr) &&
                todos;
    if (conjunto) todos = ImprimeConjunto(orden, separador, dispositivos, *conjunto, errores) && todos;
    return todos ? kSalidaCorrecta : kSalidaConFallos;
}

}  // namespace

std::string TextoAyuda()
{
    return "Uso: texalon-calculo [--json] FICHERO...\n"
           "  o: texalon-calculo --csv FICHERO...\n"
           "  o: texalon-calculo [--json] --diagrama NOMBRE [--tipo N] [--capas N]\n"
           "                     [--svg CARPETA] FICHERO...\n"
           "  o: texalon-calculo --informe CARPETA [--tipo N] [--capas N] FICHERO...\n"
           "  o: texalon-calculo --tabla [--json | --csv | --resumen] [--informe CARPETA]\n"
           "                     [--proyectos CARPETA] TABLA...\n"
           "  o: texalon-calculo --plantilla rectangular|T|confinamiento\n"
           "\n"
           "Calcula cada proyecto TEXALON guardado como lo hace el botón Calcular de su\n"
           "pantalla y escribe sus resultados en la salida estándar. La extensión del nombre\n"
           "decide el tipo de proyecto, en mayúsculas o minúsculas: .vmf flexión (sección\n"
           "rectangular o en T), .vmc confinamiento.\n"
           "\n"
           "Opciones:\n"
           "  --json      escribe un objeto JSON por fichero, cada uno en una sola línea,\n"
           "              con «fichero», «tipo» (rectangular, T o confinamiento), todos los\n"
           "              datos y resultados del proyecto por su nombre (las tablas, una\n"
           "              lista por tipo de refuerzo con un valor por número de capas) y\n"
           "              «veredicto» (el texto del veredicto de la pantalla, o null si no\n"
           "              muestra ninguno); los números con 17 cifras significativas y punto\n"
           "              decimal, null si no es finito. Si el fichero falla, el objeto\n"
           "              lleva «error» en lugar de los resultados.\n"
           "  --csv       escribe una sola tabla para una hoja de cálculo, con una fila por\n"
           "              fichero, tipo de refuerzo y número de capas y las columnas\n"
           "              «fichero», «tipo» (rectangular, T o confinamiento), «refuerzo»\n"
           "              (TEXALON L, TEXALON H o TEXALON X), «capas» (de 1 a 5),\n"
           "              «resultado» (el texto de la celda de la tabla de resultados, como\n"
           "              en la pantalla: «---» si no tiene), «alcanza» (sí si la celda\n"
           "              llega al momento de cálculo o al incremento pedido, como la celda\n"
           "              amarilla de la pantalla; no si no) y «error» (vacío). Un fichero\n"
           "              que falla da una sola fila, con su nombre, su tipo si se sabe y\n"
           "              sus mensajes en «error». Los campos van separados por «;» si el\n"
           "              separador decimal del sistema es la coma y por «,» si es el punto,\n"
           "              entre comillas si lo necesitan; UTF-8 con marca de orden de bytes\n"
           "              y fin de línea CR LF. Al final de cada fila van «elemento» (el\n"
           "              nombre del elemento de una tabla; vacío para un fichero),\n"
           "              «solicitado» (el momento de cálculo MD o el incremento pedido\n"
           "              INCR, como en su campo), «sin_refuerzo» (el momento último de la\n"
           "              sección sin reforzar, solo en flexión) y «veredicto» (el texto del\n"
           "              veredicto de la pantalla, vacío si no muestra ninguno). Solo se\n"
           "              combina con los nombres de fichero y con --tabla.\n"
           "  --diagrama NOMBRE\n"
           "              tras el cálculo dibuja el diagrama NOMBRE del proyecto, el mismo\n"
           "              que dibujaría su pantalla (el de la sección en T para una sección\n"
           "              en T):\n"
           "                tension        tensión-deformación de los refuerzos, con los\n"
           "                               puntos de cálculo del tipo de --tipo; en\n"
           "                               cualquier proyecto.\n"
           "                confinamiento  incremento de resistencia por número de capas;\n"
           "                               solo en confinamiento.\n"
           "                area           momento último frente al área de refuerzo;\n"
           "                               solo en flexión.\n"
           "                capas          momento último frente al número de capas; solo\n"
           "                               en flexión.\n"
           "                pivotes        deformaciones y pivotes de la celda de --tipo y\n"
           "                               --capas; solo en flexión.\n"
           "                seccion        la sección acotada; en cualquier proyecto.\n"
           "              tension y seccion no necesitan el cálculo: se dibujan aunque este\n"
           "              falle, y el fichero falla igualmente con el mensaje del cálculo.\n"
           "              Con --json el objeto lleva además «lista», la lista de dibujo que\n"
           "              deja el diagrama: «diagrama» (el nombre de su procedimiento, como\n"
           "              DiagramaMomentoCapasT), «NLISTA», «LISTA» (una lista de los 10\n"
           "              campos de cada elemento) y «TEXTOS» (el texto de cada elemento).\n"
           "              Los números de «LISTA» van como los demás del JSON; los de\n"
           "              «TEXTOS» llevan el separador decimal del sistema, como en la\n"
           "              pantalla.\n"
           "  --informe CARPETA\n"
           "              escribe el informe de cada fichero en CARPETA/<nombre del fichero\n"
           "              sin extensión>.pdf (de cada elemento de una tabla en\n"
           "              CARPETA/<elemento>.pdf; con --tabla y un nombre terminado en .pdf,\n"
           "              un solo PDF con el resumen de todos los elementos y, cada uno en\n"
           "              una página nueva, el informe de cada uno en el orden de las\n"
           "              tablas: un elemento sin informe lleva en el resumen el motivo), el mismo que imprime la orden Imprimir de su\n"
           "              pantalla tras Calcular, para la celda de --tipo y --capas (la que\n"
           "              Calcular muestra si no se dan). Crea la carpeta si no existe. Si\n"
           "              la celda no tiene resultado («---»), el fichero falla con el\n"
           "              mensaje del informe y no se escribe nada. No necesita pantalla\n"
           "              gráfica.\n"
           "  --tipo N    el tipo de refuerzo de tension, de pivotes y del informe, de 1 a 3\n"
           "              (1 TEXALON L, 2 TEXALON H, 3 TEXALON X); 1 si no se da.\n"
           "  --capas N   el número de capas de pivotes y del informe, de 1 a 5; 1 si no se\n"
           "              da. El diagrama y el informe leen los textos que la pantalla\n"
           "              muestra para esa celda.\n"
           "  --svg CARPETA\n"
           "              escribe el diagrama de cada fichero en\n"
           "              CARPETA/<nombre del fichero sin extensión>-NOMBRE.svg, tal como se\n"
           "              ve en la pantalla: el mismo ajuste al tamaño del dibujo, las\n"
           "              formas rellenas y los textos medidos como en ella. Crea la carpeta\n"
           "              si no existe. Necesita --diagrama; no necesita pantalla gráfica.\n"
           "  --tabla     los nombres son tablas de elementos (.csv) de una hoja de\n"
           "              cálculo: una fila por elemento y una fila de cabecera con los\n"
           "              nombres de las columnas, en cualquier orden y sin distinguir\n"
           "              mayúsculas: «elemento» (el nombre, obligatorio y único en la\n"
           "              tabla), «tipo» (rectangular, T o confinamiento) y los datos del\n"
           "              proyecto con los nombres de --json: ANCHO, CANTO, ANCHOALMA y\n"
           "              CANTOALA (solo T), RECUB, ASI, ASS, FCK, FYK, GC, GS, GR, ANCHOR,\n"
           "              MCP y MD en flexión; SECCION (1 circular, 2 cuadrada, 3\n"
           "              rectangular), DIAM, LADOMENOR, FCK, GC, GS, GR, NCP e INCR en\n"
           "              confinamiento. Una columna que no se aplica al tipo de la fila va\n"
           "              vacía en ella; una columna que falta o una celda vacía toman el\n"
           "              valor de un proyecto nuevo, salvo las dimensiones de la sección\n"
           "              (ANCHO y CANTO, ANCHOALMA y CANTOALA en T, SECCION y DIAM, y\n"
           "              LADOMENOR en la sección rectangular), que se han de dar. Como en\n"
           "              los campos de la pantalla, se toma el valor sin su signo. La\n"
           "              cabecera dice el separador: «;» con coma decimal, «,» con punto\n"
           "              decimal o el tabulador con cualquiera de los dos; los campos entre\n"
           "              comillas como en RFC 4180; UTF-8 con o sin marca de orden de\n"
           "              bytes, o Windows-1252. Un número con separador de miles, con\n"
           "              unidad o con otro texto no se admite. Cada fila se comprueba como\n"
           "              los campos de su pantalla y el fichero de proyecto, y se calcula\n"
           "              como un fichero; una fila rechazada se dice con la tabla, la fila,\n"
           "              el elemento, la columna, el valor escrito y el motivo (el mensaje\n"
           "              de la pantalla para ese campo), y las demás siguen.\n"
           "  --resumen   escribe una tabla para una memoria, con una fila por elemento (o\n"
           "              por fichero) y las columnas «elemento» (su nombre, o el del\n"
           "              fichero), «tipo», «solicitado», «sin_refuerzo», una columna por\n"
           "              tipo de refuerzo (TEXALON L, TEXALON H, TEXALON X) con el menor\n"
           "              número de capas que alcanza lo pedido (la primera celda amarilla\n"
           "              de su columna en la pantalla), vacía si ninguno, «veredicto» y\n"
           "              «error»; con los separadores y la codificación de --csv. No se\n"
           "              combina con --csv, --json, --diagrama ni --svg.\n"
           "  --proyectos CARPETA\n"
           "              con --tabla, escribe cada elemento aceptado como fichero de\n"
           "              proyecto, CARPETA/<elemento>.vmf o .vmc (el nombre con «_» en\n"
           "              lugar de lo que un sistema de ficheros no admite), que el programa\n"
           "              abre como cualquier proyecto. Nunca escribe sobre un fichero que\n"
           "              existe: lo nombra, lo deja como está y la fila falla.\n"
           "  --plantilla rectangular|T|confinamiento\n"
           "              escribe una tabla con la cabecera de ese tipo y una fila con los\n"
           "              valores de un proyecto nuevo, con el separador del sistema, para\n"
           "              empezar a rellenarla. No se combina con nada más.\n"
           "  -h, --help  muestra esta ayuda y termina.\n"
           "  --          lo que sigue son nombres de fichero, aunque empiecen por «-».\n"
           "\n"
           "Sin --json ni --csv se escribe, para cada fichero, la tabla de resultados con un\n"
           "tipo de refuerzo por columna y un número de capas por fila, en los formatos de\n"
           "la pantalla y con el separador decimal del sistema, el veredicto y los valores\n"
           "de la sección. Los mensajes de error van a la salida de errores y el cálculo\n"
           "sigue con el fichero siguiente. También falla un fichero cuyo cálculo se\n"
           "detiene por una predeformación superior al 2 por mil, cuyo proyecto no tiene el\n"
           "diagrama pedido (area en un pilar, por ejemplo), cuya celda de pivotes no tiene\n"
           "resultado («---») o cuyo SVG o informe no se puede escribir. Solo --svg e\n"
           "--informe escriben ficheros.\n"
           "\n"
           "Estado de salida:\n"
           "  0  se han calculado todos los ficheros, y dibujado sus diagramas.\n"
           "  1  algún fichero no se ha podido leer, calcular, dibujar o escribir.\n"
           "  2  error de uso: ningún fichero, una opción no reconocida o sin su valor,\n"
           "     un valor no válido, --svg sin --diagrama o --csv con otra opción.\n"
           "Con --tabla, 1 si alguna tabla no se ha podido leer o alguna fila se ha\n"
           "rechazado o no se ha podido calcular.\n";
}

int Ejecuta(const std::vector<std::string>& argumentos, char separador, std::ostream& salida, std::ostream& errores,
            const Dispositivos& dispositivos)
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
    if (orden.plantilla) {
        salida << *Plantilla(*orden.plantilla, separador);
        return kSalidaCorrecta;
    }
    return ProcesaFicheros(orden, separador, dispositivos, salida, errores);
}

char SeparadorDecimal(const char* separadorDelSistema)
{
    const bool coma = separadorDelSistema != nullptr && std::string_view(separadorDelSistema) == ",";
    return coma ? ',' : '.';
}

}  // namespace texalon::calculo
