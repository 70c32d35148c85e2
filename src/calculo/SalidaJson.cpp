#include "calculo/SalidaJson.h"

#include "calculo/Texto.h"

#include "engine/Calculos.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <utility>

namespace texalon::calculo {

namespace {

// Enough for the value of a double to read back the same.
constexpr int kCifrasSignificativas = 17;

// The escape of a character below U+0020, which JSON does not allow bare in a string.
std::string EscapeControl(char c)
{
    switch (c) {
    case '\b': return "\\b";
    case '\f': return "\\f";
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    default: break;
    }
    constexpr std::string_view kHex = "0123456789abcdef";
    const auto codigo = static_cast<unsigned char>(c);
    return std::string("\\u00") + kHex[codigo >> 4U] + kHex[codigo & 0x0FU];
}

std::string Numero(double valor)
{
    if (!std::isfinite(valor)) return "null";
    char cifras[32];
    const auto escrito =
        std::to_chars(cifras, cifras + sizeof cifras, valor, std::chars_format::general, kCifrasSignificativas);
    return std::string(cifras, escrito.ptr);
}

std::string Valor(double valor) { return Numero(valor); }
std::string Valor(const std::string& valor) { return CadenaJson(valor); }

// A result array by type, each a list by number of layers.
template <typename T>
std::string Tabla(const Arreglo<T>& arreglo)
{
    std::string texto = "[";
    for (int t = 1; t <= arreglo.Filas(); ++t) {
        texto += t > 1 ? ",[" : "[";
        for (int n = 1; n <= arreglo.Columnas(); ++n)
            texto += (n > 1 ? "," : "") + Valor(arreglo(t, n));
        texto += ']';
    }
    return texto + ']';
}

// An array with one value for each type.
std::string Lista(const Arreglo<double>& arreglo)
{
    std::string texto = "[";
    for (int t = 1; t <= arreglo.Filas(); ++t)
        texto += (t > 1 ? "," : "") + Valor(arreglo(t));
    return texto + ']';
}

using ListaEscalares = std::initializer_list<std::pair<std::string_view, double>>;
using ListaTablas = std::initializer_list<std::pair<std::string_view, const Arreglo<double>*>>;

// The members of one object, written in the order they are added.
class Objeto {
public:
    void Miembro(std::string_view nombre, const std::string& valor)
    {
        texto_ += (texto_.size() > 1 ? "," : "") + CadenaJson(nombre) + ':' + valor;
    }
    void Texto(std::string_view nombre, std::string_view valor) { Miembro(nombre, CadenaJson(valor)); }
    void Numeros(ListaEscalares escalares)
    {
        for (const auto& [nombre, valor] : escalares)
            Miembro(nombre, Numero(valor));
    }
    void Tablas(ListaTablas tablas)
    {
        for (const auto& [nombre, arreglo] : tablas)
            Miembro(nombre, Tabla(*arreglo));
    }
    std::string Cierra() const { return texto_ + '}'; }

private:
    std::string texto_ = "{";
};

void DatosFlexion(Objeto& objeto, const General& g, SeccionFlexion seccion)
{
    objeto.Numeros({{"ANCHO", g.ANCHO}, {"CANTO", g.CANTO}});
    // A rectangular file has no web and no flange.
    if (seccion == SeccionFlexion::T) objeto.Numeros({{"ANCHOALMA", g.ANCHOALMA}, {"CANTOALA", g.CANTOALA}});
    objeto.Numeros({{"RECUB", g.RECUB},
                    {"ASI", g.ASI},
                    {"ASS", g.ASS},
                    {"FCK", g.FCK},
                    {"FYK", g.FYK},
                    {"GC", g.GC},
                    {"GS", g.GS},
                    {"GR", g.GR},
                    {"ANCHOR", g.ANCHOR},
                    {"MCP", g.MCP},
                    {"MD", g.MD}});
}

void ResultadosFlexion(Objeto& objeto, const General& g)
{
    objeto.Numeros({{"EPS0", g.EPS0}, {"MUSR", g.MUSR}, {"MUMAX", g.MUMAX}});
    objeto.Tablas({{"MU", &g.MU}, {"FN", &g.FN}});
    objeto.Miembro("PIVOTE", Tabla(g.PIVOTE));
    objeto.Tablas({{"MRB", &g.MRB},
                   {"XRB", &g.XRB},
                   {"MLIMSR", &g.MLIMSR},
                   {"MLIMCR", &g.MLIMCR},
                   {"XLIM", &g.XLIM},
                   {"EPSC", &g.EPSC},
                   {"EPSSI", &g.EPSSI},
                   {"EPSSS", &g.EPSSS},
                   {"EPSR", &g.EPSR},
                   {"LANC", &g.LANC}});
}

// NU is no part of the file, but the calculation reads it from the state.
void DatosConfinamiento(Objeto& objeto, const General& g)
{
    objeto.Miembro("SECCION", TextoEntero(g.SECCION));
    objeto.Numeros({{"DIAM", g.DIAM},
                    {"LADOMENOR", g.LADOMENOR},
                    {"FCK", g.FCK},
                    {"GC", g.GC},
                    {"GS", g.GS},
                    {"GR", g.GR},
                    {"NCP", g.NCP},
                    {"INCR", g.INCR},
                    {"NU", g.NU}});
}

void ResultadosConfinamiento(Objeto& objeto, const General& g)
{
    objeto.Numeros({{"EPS0", g.EPS0}, {"ALFAN", g.ALFAN}, {"ALFAS", g.ALFAS}, {"RESUMAX", g.RESUMAX}});
    objeto.Miembro("WC", Lista(g.WC));
    objeto.Tablas({{"WR", &g.WR},
                   {"WWD", &g.WWD},
                   {"EPSRC", &g.EPSRC},
                   {"SIGMAR", &g.SIGMAR},
                   {"TENSCONF", &g.TENSCONF},
                   {"RESU", &g.RESU}});
}

// The display list, elements 1 to NLISTA: each its 10 fields, and its text.
std::string ObjetoLista(const ListaDiagrama& lista)
{
    const GeneralDibujo& d = lista.d;
    std::string elementos = "[";
    std::string textos = "[";
    for (int i = 1; i <= d.NLISTA; ++i) {
        elementos += i > 1 ? ",[" : "[";
        for (int campo = 1; campo <= GeneralDibujo::kCampos; ++campo)
            elementos += (campo > 1 ? "," : "") + Numero(d.LISTA(i, campo));
        elementos += ']';
        textos += (i > 1 ? "," : "") + CadenaJson(d.TEXTOS(i));
    }
    Objeto objeto;
    objeto.Texto("diagrama", lista.procedimiento);
    objeto.Miembro("NLISTA", TextoEntero(d.NLISTA));
    objeto.Miembro("LISTA", elementos + ']');
    objeto.Miembro("TEXTOS", textos + ']');
    return objeto.Cierra();
}

}  // namespace

std::string CadenaJson(std::string_view texto)
{
    std::string cadena = "\"";
    RecorreUtf8(texto, [&cadena](std::string_view caracter) {
        if (caracter.empty()) {
            cadena += "\\ufffd";
            return;
        }
        const char c = caracter.front();
        if (c == '"' || c == '\\')
            cadena += std::string{'\\', c};
        else if (static_cast<unsigned char>(c) < 0x20)
            cadena += EscapeControl(c);
        else
            cadena += caracter;
    });
    return cadena + '"';
}

std::string ObjetoJson(const CalculoFichero& calculo, const ListaDiagrama* lista)
{
    Objeto objeto;
    objeto.Texto("fichero", calculo.fichero);
    // A member of a table: its name and its row, after the table's name.
    if (calculo.fila != 0) {
        objeto.Texto("elemento", calculo.elemento);
        objeto.Miembro("fila", TextoEntero(static_cast<int>(calculo.fila)));
    }
    if (const auto tipo = NombreTipo(calculo)) objeto.Texto("tipo", *tipo);
    if (!calculo.Correcto()) {
        objeto.Texto("error", Unidos(calculo.errores));
    } else {
        if (calculo.clase == ClaseFichero::Flexion) {
            DatosFlexion(objeto, calculo.g, calculo.seccion);
            ResultadosFlexion(objeto, calculo.g);
        } else {
            DatosConfinamiento(objeto, calculo.g);
            ResultadosConfinamiento(objeto, calculo.g);
        }
        // No verdict on show is no text at all: null, not an empty string.
        if (calculo.veredicto == Veredicto::Oculto)
            objeto.Miembro("veredicto", "null");
        else
            objeto.Texto("veredicto", TextoVeredicto(calculo.veredicto));
    }
    // A drawing that reads only the project's data comes even when the calculation failed.
    if (lista != nullptr) objeto.Miembro("lista", ObjetoLista(*lista));
    return objeto.Cierra();
}

}  // namespace texalon::calculo
