#include "files/Copias.h"

#include "state/Decimales.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace texalon {

namespace {

// The list index of the rectangular entry of CO_SECCION.
constexpr int kIndiceRectangular = 2;

// Ranges that the screens accept, both ends included.
constexpr double kFckMinimo = 15.0;
constexpr double kFckMaximo = 50.0;
constexpr double kFykMinimo = 300.0;
constexpr double kFykMaximo = 600.0;
constexpr double kIncrMinimo = 1.0;

enum class Seccion { kRectangular, kT };

// ---------------------------------------------------------------------------------------------
// Reading the fields.

// The blanks that the numeric test lets stand around a number.
bool EsBlanco(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view Recorta(std::string_view texto)
{
    std::size_t inicio = 0;
    std::size_t fin = texto.size();
    while (inicio < fin && EsBlanco(texto[inicio]))
        ++inicio;
    while (fin > inicio && EsBlanco(texto[fin - 1]))
        --fin;
    return texto.substr(inicio, fin - inicio);
}

// The fields of one screen, each text with the local that receives its value, in the order
// they are tested and converted.
class Campos {
public:
    void Anade(const std::string& texto, double& valor)
    {
        lista_.at(cuantos_) = {&texto, &valor};
        ++cuantos_;
    }

    // Every text must be a number, tested in the order of the list, before any is converted;
    // then each trimmed text is converted, in the same order, and its value kept without its
    // sign. On a refusal no local has been written.
    bool Lee() const
    {
        for (std::size_t i = 0; i < cuantos_; ++i) {
            if (!EsNumerico(*lista_[i].texto)) return false;
        }
        for (std::size_t i = 0; i < cuantos_; ++i)
            *lista_[i].valor = std::fabs(Decimales(Recorta(*lista_[i].texto)));
        return true;
    }

private:
    struct Campo {
        const std::string* texto = nullptr;
        double* valor = nullptr;
    };

    // The T flexure screen has the most fields.
    std::array<Campo, 12> lista_{};
    std::size_t cuantos_ = 0;
};

bool EnIntervalo(double valor, double minimo, double maximo)
{
    return valor >= minimo && valor <= maximo;
}

// ---------------------------------------------------------------------------------------------
// Flexure.

// The values of a flexure screen, without their signs. The rectangular screen leaves the web
// width and the flange depth unread.
struct ValoresFlexion {
    double ANCHO = 0.0;
    double CANTO = 0.0;
    double ANCHOALMA = 0.0;
    double CANTOALA = 0.0;
    double RECUB = 0.0;
    double ASI = 0.0;
    double ASS = 0.0;
    double FCK = 0.0;
    double FYK = 0.0;
    double ANCHOR = 0.0;
    double MCP = 0.0;
    double MD = 0.0;
};

// The fields of the screen of that section kind.
Campos CamposFlexion(const TextosFlexion& t, ValoresFlexion& v, Seccion seccion)
{
    Campos campos;
    campos.Anade(t.ANCHO, v.ANCHO);
    campos.Anade(t.CANTO, v.CANTO);
    if (seccion == Seccion::kT) {
        campos.Anade(t.ANCHOALMA, v.ANCHOALMA);
        campos.Anade(t.CANTOALA, v.CANTOALA);
    }
    campos.Anade(t.RECUB, v.RECUB);
    campos.Anade(t.ASI, v.ASI);
    campos.Anade(t.ASS, v.ASS);
    campos.Anade(t.FCK, v.FCK);
    campos.Anade(t.FYK, v.FYK);
    campos.Anade(t.ANCHOR, v.ANCHOR);
    campos.Anade(t.MCP, v.MCP);
    campos.Anade(t.MD, v.MD);
    return campos;
}

bool CompruebaFlexion(const ValoresFlexion& v, Seccion seccion)
{
    const bool es_t = seccion == Seccion::kT;
    // The sheet lies under the web of a T section and under the whole width of a rectangle.
    if (v.ANCHOR > (es_t ? v.ANCHOALMA : v.ANCHO)) return false;
    if (v.ANCHO == 0.0 || v.CANTO == 0.0) return false;
    if (es_t && (v.ANCHOALMA == 0.0 || v.CANTOALA == 0.0)) return false;
    if (v.RECUB == 0.0 || v.ASI == 0.0 || v.ANCHOR == 0.0) return false;
    if (es_t && v.CANTOALA > v.CANTO) return false;
    if (!EnIntervalo(v.FCK, kFckMinimo, kFckMaximo)) return false;
    if (!EnIntervalo(v.FYK, kFykMinimo, kFykMaximo)) return false;
    return v.CANTO / 2.0 >= v.RECUB;
}

// The coefficients are not among the values: they belong to the coefficient dialog.
void GuardaFlexion(General& g, const ValoresFlexion& v, Seccion seccion)
{
    g.ANCHO = v.ANCHO;
    g.CANTO = v.CANTO;
    if (seccion == Seccion::kT) {
        g.ANCHOALMA = v.ANCHOALMA;
        g.CANTOALA = v.CANTOALA;
    }
    g.RECUB = v.RECUB;
    g.ASI = v.ASI;
    g.ASS = v.ASS;
    g.FCK = v.FCK;
    g.FYK = v.FYK;
    g.ANCHOR = v.ANCHOR;
    g.MCP = v.MCP;
    g.MD = v.MD;
}

void CopiaFlexionDe(General& g, const TextosFlexion& campos, Seccion seccion)
{
    ValoresFlexion v;
    if (!CamposFlexion(campos, v, seccion).Lee() || !CompruebaFlexion(v, seccion)) {
        g.F_ERROR = true;
        return;
    }
    GuardaFlexion(g, v, seccion);
}

// ---------------------------------------------------------------------------------------------
// Confinement.

struct ValoresConfina {
    double DIAM = 0.0;
    double LADOMENOR = 0.0;
    double FCK = 0.0;
    double NCP = 0.0;
    double INCR = 0.0;
};

bool CompruebaConfina(const ValoresConfina& v, int indice_seccion)
{
    // The long side of a rectangle is the one given first.
    if (indice_seccion == kIndiceRectangular && v.DIAM < v.LADOMENOR) return false;
    // The smaller side is kept for every shape, and must be there for every shape.
    if (v.DIAM == 0.0 || v.LADOMENOR == 0.0) return false;
    if (!EnIntervalo(v.FCK, kFckMinimo, kFckMaximo)) return false;
    return v.INCR >= kIncrMinimo;
}

}  // namespace

void CopiaFlexion(General& g, const TextosFlexion& campos)
{
    CopiaFlexionDe(g, campos, Seccion::kRectangular);
}

void CopiaFlexionT(General& g, const TextosFlexion& campos)
{
    CopiaFlexionDe(g, campos, Seccion::kT);
}

void CopiaConfina(General& g, const TextosConfina& campos, int indice_seccion)
{
    ValoresConfina v;
    Campos leidos;
    leidos.Anade(campos.DIAM, v.DIAM);
    leidos.Anade(campos.LADOMENOR, v.LADOMENOR);
    leidos.Anade(campos.FCK, v.FCK);
    leidos.Anade(campos.NCP, v.NCP);
    leidos.Anade(campos.INCR, v.INCR);
    if (!leidos.Lee() || !CompruebaConfina(v, indice_seccion)) {
        g.F_ERROR = true;
        return;
    }
    g.DIAM = v.DIAM;
    g.LADOMENOR = v.LADOMENOR;
    g.FCK = v.FCK;
    g.NCP = v.NCP;
    g.INCR = v.INCR;
}

}  // namespace texalon
