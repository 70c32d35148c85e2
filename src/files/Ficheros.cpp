#include "files/Ficheros.h"

#include "files/Comprobaciones.h"

#include "state/Decimales.h"
#include "state/ErrorEjecucion.h"
#include "state/Rutas.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <new>
#include <string>
#include <string_view>
#include <system_error>

namespace texalon {

namespace {

// Every line of a project file ends so, on any machine.
constexpr std::string_view kFinDeLinea = "\r\n";

// ---------------------------------------------------------------------------------------------
// Run-time error numbers of the file layer.

// The error number of a failed system call on an open file or on opening one.
int NumeroDeErrorDelSistema(int codigo)
{
    switch (codigo) {
    case ENOMEM: return ErrorEjecucion::kMemoriaInsuficiente;
    case ENOSPC:
#ifdef EDQUOT  // a quota is a disk full as the user sees it; Windows has no such code
    case EDQUOT:
#endif
        return ErrorEjecucion::kDiscoLleno;
    case EACCES:
    case EPERM:
    case EROFS: return ErrorEjecucion::kPermisoDenegado;
    case ENOTDIR: return ErrorEjecucion::kRutaNoEncontrada;
    case EISDIR: return ErrorEjecucion::kErrorDeAccesoRuta;
    default: return ErrorEjecucion::kErrorDeEntradaSalida;
    }
}

// The system says "no such file" both for a missing file and for a missing directory on the
// way to it; the user is told which of the two it is.
int NumeroDeErrorAlAbrir(int codigo, const std::string& fichero)
{
    std::error_code sin_excepcion;
    // Windows refuses a folder opened as a file as it refuses a file without permission: it is
    // told as the folder it is, as Linux tells it.
    if (codigo == EACCES && std::filesystem::is_directory(RutaUtf8(fichero), sin_excepcion))
        return ErrorEjecucion::kErrorDeAccesoRuta;
    if (codigo != ENOENT) return NumeroDeErrorDelSistema(codigo);
    const std::filesystem::path padre = RutaUtf8(fichero).parent_path();
    if (!padre.empty() && !std::filesystem::is_directory(padre, sin_excepcion))
        return ErrorEjecucion::kRutaNoEncontrada;
    return ErrorEjecucion::kArchivoNoEncontrado;
}

[[noreturn]] void LanzaErrorDelSistema(int codigo) { throw ErrorEjecucion(NumeroDeErrorDelSistema(codigo)); }

// ---------------------------------------------------------------------------------------------
// The file channel: one open file, closed on leaving the procedure whatever happens.

class Canal {
public:
    Canal(const std::string& fichero, const char* modo)
    {
        // An empty name, or one with a NUL inside that the system would cut short, names no
        // file at all.
        if (fichero.empty() || fichero.find('\0') != std::string::npos)
            throw ErrorEjecucion(ErrorEjecucion::kNombreDeArchivoIncorrecto);
        errno = 0;
#ifdef _WIN32
        const std::wstring modoAncho(modo, modo + std::char_traits<char>::length(modo));
        fichero_ = ::_wfopen(RutaUtf8(fichero).c_str(), modoAncho.c_str());
#else
        fichero_ = std::fopen(fichero.c_str(), modo);
#endif
        if (fichero_ == nullptr) throw ErrorEjecucion(NumeroDeErrorAlAbrir(errno, fichero));
    }
    Canal(const Canal&) = delete;
    Canal& operator=(const Canal&) = delete;
    ~Canal()
    {
        // Only reached with the file still open when an error is already on its way.
        if (fichero_ != nullptr) std::fclose(fichero_);
    }

    std::FILE* Fichero() const { return fichero_; }

    // Closes the file and tells whether the system could finish writing it.
    void Cierra()
    {
        std::FILE* abierto = fichero_;
        fichero_ = nullptr;
        errno = 0;
        if (std::fclose(abierto) != 0) LanzaErrorDelSistema(errno);
    }

private:
    std::FILE* fichero_ = nullptr;
};

// ---------------------------------------------------------------------------------------------
// Reading values: the classic sequential input of a numeric variable.

bool EsBlanco(int c) { return c == ' ' || c == '\t'; }

bool EsFinDeLinea(int c) { return c == '\r' || c == '\n'; }

// Rounds half-way cases to the even neighbour, as the classic conversion to an integer does,
// whatever rounding mode the floating-point unit happens to be in.
double RedondeoAlPar(double valor)
{
    const double abajo = std::floor(valor);
    const double resto = valor - abajo;
    if (resto < 0.5) return abajo;
    if (resto > 0.5) return abajo + 1.0;
    return std::fmod(abajo, 2.0) == 0.0 ? abajo : abajo + 1.0;
}

class LectorValores {
public:
    explicit LectorValores(std::FILE* fichero) : fichero_(fichero) {}

    // The next value as a double: text that is no number reads 0.
    double LeeDoble()
    {
        const double valor = LecturaSimple(LeeTexto());
        if (!std::isfinite(valor)) throw ErrorEjecucion(ErrorEjecucion::kDesbordamiento);
        return valor;
    }

    // The next value as one of the program's 16-bit integers.
    Entero LeeEntero()
    {
        const double entero = RedondeoAlPar(LeeDoble());
        if (entero < -32768.0 || entero > 32767.0) throw ErrorEjecucion(ErrorEjecucion::kDesbordamiento);
        return static_cast<Entero>(entero);
    }

private:
    int Caracter()
    {
        errno = 0;
        const int c = std::getc(fichero_);
        if (c == EOF && std::ferror(fichero_) != 0) LanzaErrorDelSistema(errno);
        return c;
    }

    // A CR may stand alone as a line end or be followed by its LF; the pair is one line end.
    void SaltaLfTrasCr()
    {
        const int c = Caracter();
        if (c != '\n' && c != EOF) std::ungetc(c, fichero_);
    }

    // The text of the next value, without its leading blanks and without what ends it (a comma
    // or a line end, which is consumed). An empty line gives an empty text.
    std::string LeeTexto()
    {
        int c = Caracter();
        while (EsBlanco(c))
            c = Caracter();
        if (c == EOF) throw ErrorEjecucion(ErrorEjecucion::kEntradaPasadoElFinal);

        std::string texto;
        while (c != EOF && c != ',' && !EsFinDeLinea(c)) {
            texto.push_back(static_cast<char>(c));
            c = Caracter();
        }
        if (c == '\r') SaltaLfTrasCr();
        return texto;
    }

    std::FILE* fichero_;
};

// ---------------------------------------------------------------------------------------------
// Writing values.

// A double in plain decimal with a period: the shortest text that reads back to the same value,
// without a decimal part when the value is whole. A negative zero is written as 0.
void AnadeLinea(std::string& texto, double valor)
{
    if (valor == 0.0) valor = 0.0;
    // The longest fixed form of a double (the largest one) has 309 digits and a sign.
    char cifras[400];
    const auto escrito = std::to_chars(cifras, cifras + sizeof cifras, valor, std::chars_format::fixed);
    texto.append(cifras, escrito.ptr);
    texto.append(kFinDeLinea);
}

void AnadeLinea(std::string& texto, Entero valor)
{
    char cifras[8];
    const auto escrito = std::to_chars(cifras, cifras + sizeof cifras, valor);
    texto.append(cifras, escrito.ptr);
    texto.append(kFinDeLinea);
}

// Replaces the file with the text. A file the system could only write in part stays as it is.
void EscribeFichero(const std::string& fichero, const std::string& texto)
{
    Canal canal(fichero, "wb");
    errno = 0;
    if (std::fwrite(texto.data(), 1, texto.size(), canal.Fichero()) != texto.size()) LanzaErrorDelSistema(errno);
    // A full disk often shows only when the buffer goes to the device.
    errno = 0;
    if (std::fflush(canal.Fichero()) != 0) LanzaErrorDelSistema(errno);
    canal.Cierra();
}

// ---------------------------------------------------------------------------------------------
// The single error trap of the four procedures.

// Runs the part of a procedure that may meet a run-time error. Such an error sets F_ERROR and
// is told to the user; the answer says whether the part ran through. The file is closed by then.
template <typename Parte>
bool BajoTrampaDeErrores(General& g, const Aviso& aviso, Parte&& parte)
{
    int numero = 0;
    try {
        parte();
        return true;
    } catch (const ErrorEjecucion& error) {
        numero = error.Numero();
    } catch (const std::bad_alloc&) {
        numero = ErrorEjecucion::kMemoriaInsuficiente;
    }
    g.F_ERROR = true;
    if (aviso) aviso(MensajeErrorFichero(numero));
    return false;
}

// ---------------------------------------------------------------------------------------------
// Flexure file.

// Any kind other than T is read as a rectangular file; the checks refuse the unknown ones.
DatosFlexion LeeDatosFlexion(LectorValores& lector, SeccionFlexion seccion)
{
    DatosFlexion d;
    d.ANCHO = lector.LeeDoble();
    d.CANTO = lector.LeeDoble();
    if (seccion == SeccionFlexion::T) {
        d.ANCHOALMA = lector.LeeDoble();
        d.CANTOALA = lector.LeeDoble();
    }
    d.RECUB = lector.LeeDoble();
    d.ASI = lector.LeeDoble();
    d.ASS = lector.LeeDoble();
    d.FCK = lector.LeeDoble();
    d.FYK = lector.LeeDoble();
    d.GC = lector.LeeDoble();
    d.GS = lector.LeeDoble();
    d.GR = lector.LeeDoble();
    d.ANCHOR = lector.LeeDoble();
    d.MCP = lector.LeeDoble();
    d.MD = lector.LeeDoble();
    return d;
}

// On purpose: the checks run on the values as read, so a negative pair of widths that passes
// them is kept as positive values afterwards, which the screens would not allow.
bool CompruebaFlexion(const DatosFlexion& d, SeccionFlexion seccion)
{
    if (seccion != SeccionFlexion::Rectangular && seccion != SeccionFlexion::T) return false;
    return FlexionValida(d, seccion);
}

// A rectangular file leaves the web width and flange depth of the state as they were.
void GuardaFlexion(General& g, const DatosFlexion& d, SeccionFlexion seccion)
{
    g.ANCHO = std::fabs(d.ANCHO);
    g.CANTO = std::fabs(d.CANTO);
    if (seccion == SeccionFlexion::T) {
        g.ANCHOALMA = std::fabs(d.ANCHOALMA);
        g.CANTOALA = std::fabs(d.CANTOALA);
    }
    g.RECUB = std::fabs(d.RECUB);
    g.ASI = std::fabs(d.ASI);
    g.ASS = std::fabs(d.ASS);
    g.FCK = std::fabs(d.FCK);
    g.FYK = std::fabs(d.FYK);
    g.ANCHOR = std::fabs(d.ANCHOR);
    g.MCP = std::fabs(d.MCP);
    g.MD = std::fabs(d.MD);
    g.GC = std::fabs(d.GC);
    g.GS = std::fabs(d.GS);
    g.GR = std::fabs(d.GR);
}

std::string TextoFlexion(const General& g, SeccionFlexion seccion)
{
    std::string texto;
    AnadeLinea(texto, static_cast<Entero>(seccion));
    AnadeLinea(texto, g.ANCHO);
    AnadeLinea(texto, g.CANTO);
    if (seccion == SeccionFlexion::T) {
        AnadeLinea(texto, g.ANCHOALMA);
        AnadeLinea(texto, g.CANTOALA);
    }
    for (double valor : {g.RECUB, g.ASI, g.ASS, g.FCK, g.FYK, g.GC, g.GS, g.GR, g.ANCHOR, g.MCP, g.MD})
        AnadeLinea(texto, valor);
    return texto;
}

// ---------------------------------------------------------------------------------------------
// Confinement file.

DatosConfina LeeDatosConfina(LectorValores& lector)
{
    DatosConfina d;
    d.SECCION = lector.LeeEntero();
    d.DIAM = lector.LeeDoble();
    d.LADOMENOR = lector.LeeDoble();
    d.FCK = lector.LeeDoble();
    d.GC = lector.LeeDoble();
    d.GS = lector.LeeDoble();
    d.GR = lector.LeeDoble();
    d.NCP = lector.LeeDoble();
    d.INCR = lector.LeeDoble();
    return d;
}

bool CompruebaConfina(const DatosConfina& d)
{
    const auto forma = static_cast<FormaPilar>(d.SECCION);
    if (forma != FormaPilar::Circular && forma != FormaPilar::Cuadrada && forma != FormaPilar::Rectangular)
        return false;
    return ConfinaValida(d, forma);
}

void GuardaConfina(General& g, const DatosConfina& d)
{
    g.SECCION = static_cast<Entero>(std::abs(d.SECCION));
    g.DIAM = std::fabs(d.DIAM);
    g.LADOMENOR = std::fabs(d.LADOMENOR);
    g.INCR = std::fabs(d.INCR);
    g.NCP = std::fabs(d.NCP);
    g.FCK = std::fabs(d.FCK);
    g.GC = std::fabs(d.GC);
    g.GS = std::fabs(d.GS);
    g.GR = std::fabs(d.GR);
}

std::string TextoConfina(const General& g)
{
    std::string texto;
    AnadeLinea(texto, g.SECCION);
    for (double valor : {g.DIAM, g.LADOMENOR, g.FCK, g.GC, g.GS, g.GR, g.NCP, g.INCR})
        AnadeLinea(texto, valor);
    return texto;
}

}  // namespace

// ---------------------------------------------------------------------------------------------

ClaseFichero ClaseDe(std::string_view fichero)
{
    // The classic Trim takes spaces only; only the ASCII letters change case, whatever the
    // machine's character settings.
    const std::size_t inicio = fichero.find_first_not_of(' ');
    if (inicio == std::string_view::npos) return ClaseFichero::Ninguna;
    const std::string_view nombre = fichero.substr(inicio, fichero.find_last_not_of(' ') - inicio + 1);
    if (nombre.size() < 3) return ClaseFichero::Ninguna;
    std::string extension(nombre.substr(nombre.size() - 3));
    for (char& c : extension)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (extension == "VMF") return ClaseFichero::Flexion;
    if (extension == "VMC") return ClaseFichero::Confinamiento;
    return ClaseFichero::Ninguna;
}

std::string MensajeErrorFichero(int numero)
{
    if (numero == ErrorEjecucion::kMemoriaInsuficiente) return "Memoria insuficiente.";
    if (numero == ErrorEjecucion::kDiscoLleno) return "Espacio en disco insuficiente.";
    char cifras[16];
    const auto escrito = std::to_chars(cifras, cifras + sizeof cifras, numero);
    return "Error " + std::string(cifras, escrito.ptr) + ": " + ErrorEjecucion::DescripcionDe(numero);
}

void LeeFlexion(General& g, const std::string& fichero, SeccionFlexion& seccion, const Aviso& aviso)
{
    // The state is not touched until the whole file has been read and found good.
    DatosFlexion datos;
    const bool leido = BajoTrampaDeErrores(g, aviso, [&] {
        Canal canal(fichero, "rb");
        LectorValores lector(canal.Fichero());
        seccion = static_cast<SeccionFlexion>(lector.LeeEntero());
        datos = LeeDatosFlexion(lector, seccion);
        canal.Cierra();
    });
    if (leido && CompruebaFlexion(datos, seccion)) {
        GuardaFlexion(g, datos, seccion);
        return;
    }
    // A refused file and a failed one both leave the start values of a new project.
    g.F_ERROR = true;
    ValoresFlexion(g);
}

void LeeConfina(General& g, const std::string& fichero, const Aviso& aviso)
{
    DatosConfina datos;
    const bool leido = BajoTrampaDeErrores(g, aviso, [&] {
        Canal canal(fichero, "rb");
        LectorValores lector(canal.Fichero());
        datos = LeeDatosConfina(lector);
        canal.Cierra();
    });
    if (!leido) {
        // A file that fails on the way gives the start values of a new confinement project,
        // the Poisson coefficient and the steel strength included; a refused one below does
        // not touch those two.
        ValoresNuevoConfinamiento(g);
        return;
    }
    if (!CompruebaConfina(datos)) {
        g.F_ERROR = true;
        ValoresConfinamiento(g);
        return;
    }
    GuardaConfina(g, datos);
}

void GrabaFlexion(General& g, const std::string& fichero, SeccionFlexion seccion, const Aviso& aviso)
{
    // No checks here: the state holds what a screen's copy has just checked, or what was read.
    BajoTrampaDeErrores(g, aviso, [&] { EscribeFichero(fichero, TextoFlexion(g, seccion)); });
}

void GrabaConfina(General& g, const std::string& fichero, const Aviso& aviso)
{
    BajoTrampaDeErrores(g, aviso, [&] { EscribeFichero(fichero, TextoConfina(g)); });
}

}  // namespace texalon
