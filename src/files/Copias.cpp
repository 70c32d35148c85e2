#include "files/Copias.h"

#include "files/Comprobaciones.h"

#include "state/Decimales.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace texalon {

namespace {

// ---------------------------------------------------------------------------------------------
// Reading the fields.

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
            *lista_[i].valor = std::fabs(Decimales(Recortado(*lista_[i].texto)));
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

// ---------------------------------------------------------------------------------------------
// Flexure.

// The fields of the screen of that section kind.
Campos CamposFlexion(const TextosFlexion& t, DatosFlexion& v, SeccionFlexion seccion)
{
    Campos campos;
    campos.Anade(t.ANCHO, v.ANCHO);
    campos.Anade(t.CANTO, v.CANTO);
    if (seccion == SeccionFlexion::T) {
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

// The coefficients are not among the values: they belong to the coefficient dialog.
void GuardaFlexion(General& g, const DatosFlexion& v, SeccionFlexion seccion)
{
    g.ANCHO = v.ANCHO;
    g.CANTO = v.CANTO;
    if (seccion == SeccionFlexion::T) {
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

}  // namespace

void CopiaFlexionDeSeccion(General& g, const TextosFlexion& campos, SeccionFlexion seccion)
{
    DatosFlexion v;
    if (!CamposFlexion(campos, v, seccion).Lee() || !FlexionValida(v, seccion)) {
        g.F_ERROR = true;
        return;
    }
    GuardaFlexion(g, v, seccion);
}

void CopiaFlexion(General& g, const TextosFlexion& campos)
{
    CopiaFlexionDeSeccion(g, campos, SeccionFlexion::Rectangular);
}

void CopiaFlexionT(General& g, const TextosFlexion& campos) { CopiaFlexionDeSeccion(g, campos, SeccionFlexion::T); }

// ---------------------------------------------------------------------------------------------
// Confinement.

void CopiaConfina(General& g, const TextosConfina& campos, int indice_seccion)
{
    DatosConfina v;
    Campos leidos;
    leidos.Anade(campos.DIAM, v.DIAM);
    leidos.Anade(campos.LADOMENOR, v.LADOMENOR);
    leidos.Anade(campos.FCK, v.FCK);
    leidos.Anade(campos.NCP, v.NCP);
    leidos.Anade(campos.INCR, v.INCR);
    if (!leidos.Lee() || !ConfinaValida(v, FormaDeFila(indice_seccion))) {
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
