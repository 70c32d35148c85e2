#include "calculo/Miembros.h"

#include "calculo/SalidaCsv.h"
#include "calculo/Texto.h"

#include "engine/Calculos.h"
#include "files/Comprobaciones.h"
#include "files/ReglasAntesDeCalcular.h"
#include "state/Formato.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>

namespace texalon::calculo {

namespace {

constexpr std::string_view kElemento = "elemento";
constexpr std::string_view kTipo = "tipo";
constexpr std::string_view kSeccion = "SECCION";

// Which kinds a column applies to.
enum Ambito : unsigned { kRectangular = 1U, kT = 2U, kConfinamiento = 4U, kFlexion = kRectangular | kT };

// A numeric input of a project: its name, its state field, the kinds it applies to and those
// that must give it. The order is the project file's, so that a template reads like one.
struct Columna {
    std::string_view nombre;
    double General::*campo;
    unsigned ambito;
    unsigned obligatoria;
};

constexpr std::array<Columna, 19> kColumnas = {{
    {"ANCHO", &General::ANCHO, kFlexion, kFlexion},
    {"CANTO", &General::CANTO, kFlexion, kFlexion},
    {"ANCHOALMA", &General::ANCHOALMA, kT, kT},
    {"CANTOALA", &General::CANTOALA, kT, kT},
    {"RECUB", &General::RECUB, kFlexion, 0},
    {"ASI", &General::ASI, kFlexion, 0},
    {"ASS", &General::ASS, kFlexion, 0},
    {"DIAM", &General::DIAM, kConfinamiento, kConfinamiento},
    {"LADOMENOR", &General::LADOMENOR, kConfinamiento, 0},
    {"FCK", &General::FCK, kFlexion | kConfinamiento, 0},
    {"FYK", &General::FYK, kFlexion, 0},
    {"GC", &General::GC, kFlexion | kConfinamiento, 0},
    {"GS", &General::GS, kFlexion | kConfinamiento, 0},
    {"GR", &General::GR, kFlexion | kConfinamiento, 0},
    {"ANCHOR", &General::ANCHOR, kFlexion, 0},
    {"MCP", &General::MCP, kFlexion, 0},
    {"MD", &General::MD, kFlexion, 0},
    {"NCP", &General::NCP, kConfinamiento, 0},
    {"INCR", &General::INCR, kConfinamiento, 0},
}};

// The formats in which a template writes a new project's values: those of the screens' fields.
std::string_view FormatoDe(std::string_view nombre)
{
    if (nombre == "FCK" || nombre == "FYK") return "0";
    if (nombre == "ASI" || nombre == "ASS" || nombre == "GC" || nombre == "GS" || nombre == "GR" || nombre == "MCP" ||
        nombre == "MD" || nombre == "NCP" || nombre == "INCR")
        return "0.00";
    return "0.000";
}

std::string Mayusculas(std::string_view texto)
{
    std::string resultado(texto);
    std::transform(resultado.begin(), resultado.end(), resultado.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return resultado;
}

std::string_view SinBlancos(std::string_view texto)
{
    while (!texto.empty() && (texto.front() == ' ' || texto.front() == '\t')) texto.remove_prefix(1);
    while (!texto.empty() && (texto.back() == ' ' || texto.back() == '\t')) texto.remove_suffix(1);
    return texto;
}

const Columna* ColumnaDe(std::string_view nombre)
{
    for (const Columna& columna : kColumnas)
        if (columna.nombre == nombre) return &columna;
    return nullptr;
}

const Columna* ColumnaDeCampo(CampoEstado campo)
{
    for (const Columna& columna : kColumnas)
        if (columna.campo == campo) return &columna;
    return nullptr;
}

// The canonical name of a header field: "elemento" and "tipo" in small letters, the inputs as
// the state names them.
std::optional<std::string> NombreCanonico(std::string_view escrito)
{
    const std::string nombre = Mayusculas(SinBlancos(escrito));
    if (nombre == Mayusculas(kElemento)) return std::string(kElemento);
    if (nombre == Mayusculas(kTipo)) return std::string(kTipo);
    if (nombre == kSeccion || ColumnaDe(nombre) != nullptr) return nombre;
    return std::nullopt;
}

// The kind of a row and what it means for the project.
struct Clase {
    unsigned ambito;
    ClaseFichero fichero;
    SeccionFlexion seccion;  // for flexure only
};

std::optional<Clase> ClaseDe(std::string_view tipo)
{
    const std::string nombre = Mayusculas(SinBlancos(tipo));
    if (nombre == Mayusculas(kTipoRectangular))
        return Clase{kRectangular, ClaseFichero::Flexion, SeccionFlexion::Rectangular};
    if (nombre == Mayusculas(kTipoT)) return Clase{kT, ClaseFichero::Flexion, SeccionFlexion::T};
    if (nombre == Mayusculas(kTipoConfinamiento))
        return Clase{kConfinamiento, ClaseFichero::Confinamiento, SeccionFlexion::Rectangular};
    return std::nullopt;
}

std::string Rechazo(std::string_view columna, std::string_view valor, std::string_view motivo)
{
    return std::string(columna) + " «" + std::string(valor) + "»: " + std::string(motivo);
}

// The shortest text that reads back as the value, with a period.
std::string NumeroCorto(double valor)
{
    char cifras[32];
    const auto escrito = std::to_chars(cifras, cifras + sizeof cifras, valor);
    return std::string(cifras, escrito.ptr);
}

// The row's cells by column, as written.
class Celdas {
public:
    Celdas(const CabeceraTabla& cabecera, const Registro& fila) : cabecera_(cabecera), fila_(fila) {}

    // The cell of the column, without the blanks around it; empty where the table has no such
    // column.
    std::string_view De(std::string_view columna) const
    {
        const auto posicion = std::find(cabecera_.columnas.begin(), cabecera_.columnas.end(), columna);
        if (posicion == cabecera_.columnas.end()) return {};
        return SinBlancos(fila_.campos[static_cast<std::size_t>(posicion - cabecera_.columnas.begin())]);
    }

private:
    const CabeceraTabla& cabecera_;
    const Registro& fila_;
};

// The section of a column: 1 circular, 2 square, 3 rectangular, as the project file has it.
std::optional<Entero> SeccionDe(std::string_view texto)
{
    if (texto == "1" || texto == "2" || texto == "3") return static_cast<Entero>(texto.front() - '0');
    return std::nullopt;
}

// Every input of the row into the project state, which holds a new project's values: an empty
// cell keeps the value a new project starts with. The fields take a value without its sign.
void LeeValores(CalculoFichero& calculo, const Clase& clase, const Celdas& celdas, std::string_view decimales)
{
    General& g = calculo.g;
    if (clase.ambito == kConfinamiento) {
        const std::string_view seccion = celdas.De(kSeccion);
        const std::optional<Entero> forma = SeccionDe(seccion);
        if (seccion.empty())
            calculo.errores.push_back(std::string(kSeccion) + ": falta el valor.");
        else if (!forma)
            calculo.errores.push_back(
                Rechazo(kSeccion, seccion, "la sección es 1 (circular), 2 (cuadrada) o 3 (rectangular)."));
        else
            g.SECCION = *forma;
    } else if (!celdas.De(kSeccion).empty()) {
        calculo.errores.push_back(Rechazo(kSeccion, celdas.De(kSeccion), "la columna no se aplica a este tipo."));
    }
    for (const Columna& columna : kColumnas) {
        const std::string_view texto = celdas.De(columna.nombre);
        const bool aplica = (columna.ambito & clase.ambito) != 0;
        const bool obligatoria =
            (columna.obligatoria & clase.ambito) != 0 ||
            (columna.nombre == "LADOMENOR" && FormaDe(g) == FormaPilar::Rectangular && clase.ambito == kConfinamiento);
        if (texto.empty()) {
            if (aplica && obligatoria) calculo.errores.push_back(std::string(columna.nombre) + ": falta el valor.");
            continue;
        }
        if (!aplica) {
            calculo.errores.push_back(Rechazo(columna.nombre, texto, "la columna no se aplica a este tipo."));
            continue;
        }
        const std::optional<double> valor = NumeroDeCelda(texto, decimales);
        if (!valor) {
            calculo.errores.push_back(Rechazo(columna.nombre, texto, "no es un número."));
            continue;
        }
        g.*columna.campo = std::fabs(*valor);
    }
}

// The checks of a project written by the program and read again: every test of the screen's
// fields and of the coefficients' dialog, then the file's own checks.
void Comprueba(CalculoFichero& calculo, const Celdas& celdas)
{
    const General& g = calculo.g;
    const bool flexion = calculo.clase == ClaseFichero::Flexion;
    const std::optional<CampoRechazado> rechazo = flexion
                                                      ? CampoQueRechazaLaFlexionAlEscribir(g, calculo.seccion)
                                                      : CampoQueRechazaElConfinamientoAlEscribir(g);
    if (rechazo) {
        const Columna* columna = ColumnaDeCampo(rechazo->campo);
        const std::string_view nombre = columna != nullptr ? columna->nombre : std::string_view(rechazo->control);
        std::string valor(celdas.De(nombre));
        // A cell left empty stands for the new project's value, which is what is refused.
        if (valor.empty() && columna != nullptr) valor = NumeroCorto(g.*columna->campo);
        calculo.errores.push_back(Rechazo(nombre, valor, rechazo->mensaje));
        return;
    }
    const bool valido =
        flexion ? FlexionValida({g.ANCHO, g.CANTO, g.ANCHOALMA, g.CANTOALA, g.RECUB, g.ASI, g.ASS, g.FCK, g.FYK, g.GC,
                                 g.GS, g.GR, g.ANCHOR, g.MCP, g.MD},
                                calculo.seccion)
                : ConfinaValida({g.SECCION, g.DIAM, g.LADOMENOR, g.FCK, g.GC, g.GS, g.GR, g.NCP, g.INCR}, FormaDe(g));
    if (!valido) calculo.errores.emplace_back(kMensajeDatosIncorrectos);
}

}  // namespace

CabeceraTabla LeeCabecera(const Registro& cabecera)
{
    CabeceraTabla leida;
    for (const std::string& campo : cabecera.campos) {
        const std::optional<std::string> nombre = NombreCanonico(campo);
        if (!nombre) {
            leida.error = "columna «" + campo + "» no reconocida.";
            return leida;
        }
        if (std::find(leida.columnas.begin(), leida.columnas.end(), *nombre) != leida.columnas.end()) {
            leida.error = "la columna «" + *nombre + "» está repetida.";
            return leida;
        }
        leida.columnas.push_back(*nombre);
    }
    for (const std::string_view obligatoria : {kElemento, kTipo})
        if (std::find(leida.columnas.begin(), leida.columnas.end(), obligatoria) == leida.columnas.end()) {
            leida.error = "falta la columna «" + std::string(obligatoria) + "».";
            return leida;
        }
    return leida;
}

CalculoFichero CalculaFila(const std::string& tabla, const CabeceraTabla& cabecera, const Registro& fila,
                           std::string_view decimales)
{
    CalculoFichero calculo;
    calculo.fichero = tabla;
    calculo.fila = fila.linea;
    if (fila.campos.size() != cabecera.columnas.size()) {
        calculo.errores.push_back("la fila tiene " + TextoEntero(static_cast<int>(fila.campos.size())) +
                                  " campos y la cabecera " + TextoEntero(static_cast<int>(cabecera.columnas.size())) +
                                  ".");
        return calculo;
    }
    const Celdas celdas(cabecera, fila);
    calculo.elemento = std::string(celdas.De(kElemento));
    const std::string_view tipo = celdas.De(kTipo);
    const std::optional<Clase> clase = ClaseDe(tipo);
    if (calculo.elemento.empty()) calculo.errores.emplace_back("elemento: falta el nombre del elemento.");
    if (!clase) {
        calculo.errores.push_back(Rechazo(kTipo, tipo, "los tipos son rectangular, T y confinamiento."));
        return calculo;
    }
    calculo.clase = clase->fichero;
    calculo.seccion = clase->seccion;
    ValoresIniciales(calculo.g);
    LeeValores(calculo, *clase, celdas, decimales);
    if (!calculo.errores.empty()) return calculo;
    Comprueba(calculo, celdas);
    if (!calculo.errores.empty()) return calculo;
    calculo.leido = true;
    CalculaLeido(calculo);
    return calculo;
}

std::string NombreDeFichero(std::string_view elemento)
{
    std::string nombre;
    for (const char c : elemento) {
        const bool control = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        nombre += control || std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos ? '_' : c;
    }
    for (auto fin = nombre.rbegin(); fin != nombre.rend() && (*fin == ' ' || *fin == '.'); ++fin)
        *fin = '_';
    if (nombre.empty()) return "_";
    // A device's name, with an extension or not, in any case.
    const std::string base = Mayusculas(nombre.substr(0, nombre.find('.')));
    const bool dispositivo =
        base == "CON" || base == "PRN" || base == "AUX" || base == "NUL" ||
        (base.size() == 4 && (base.rfind("COM", 0) == 0 || base.rfind("LPT", 0) == 0) && base[3] >= '1' && base[3] <= '9');
    return dispositivo ? "_" + nombre : nombre;
}

std::optional<std::string> Plantilla(std::string_view tipo, char separadorDecimal)
{
    const std::optional<Clase> clase = ClaseDe(tipo);
    if (!clase || SinBlancos(tipo) != tipo) return std::nullopt;
    General g;
    ValoresIniciales(g);
    const char separador = SeparadorCsv(separadorDecimal);
    std::string cabecera = std::string(kElemento) + separador + std::string(kTipo);
    std::string fila = std::string("E-1") + separador +
                       std::string(clase->ambito == kRectangular ? kTipoRectangular
                                   : clase->ambito == kT        ? kTipoT
                                                                : kTipoConfinamiento);
    if (clase->ambito == kConfinamiento) {
        cabecera += separador + std::string(kSeccion);
        fila += separador + TextoEntero(g.SECCION);
    }
    for (const Columna& columna : kColumnas) {
        if ((columna.ambito & clase->ambito) == 0) continue;
        cabecera += separador + std::string(columna.nombre);
        fila += separador + Formato(g.*columna.campo, std::string(FormatoDe(columna.nombre)), separadorDecimal);
    }
    return "\xEF\xBB\xBF" + cabecera + "\r\n" + fila + "\r\n";
}

}  // namespace texalon::calculo
