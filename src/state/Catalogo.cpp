#include "state/Catalogo.h"

#include <array>

namespace texalon {

namespace {

struct FilaCatalogo {
    std::string_view nombre;
    std::string_view etiqueta;
    double espesor;
    double modulo;
    double epsu;
    Color color;
};

constexpr std::array<FilaCatalogo, kNumeroTipos> kFilas = {{
    {"TEXALON L", "L", 0.111, 230000.0, 0.015, ColorRGB(255, 0, 0)},
    {"TEXALON H", "H", 0.167, 230000.0, 0.015, ColorRGB(0, 0, 0)},
    {"TEXALON X", "X", 0.163, 440000.0, 0.0055, ColorRGB(214, 204, 31)},
}};

const FilaCatalogo& Fila(int tipo)
{
    if (tipo < 1 || tipo > kNumeroTipos) throw ErrorEjecucion(ErrorEjecucion::kSubindiceFueraDeIntervalo);
    return kFilas[static_cast<std::size_t>(tipo - 1)];
}

}  // namespace

std::string_view EtiquetaTipo(int tipo) { return Fila(tipo).etiqueta; }

void CargaCatalogo(General& g)
{
    g.NTIPOS = kNumeroTipos;
    g.MAXCAPAS = kMaximoCapas;
    g.TIPOS.Redimensiona(g.NTIPOS);
    g.CATALOGO.Redimensiona(g.NTIPOS, 3);
    g.COLORES.Redimensiona(g.NTIPOS);
    for (int tipo = 1; tipo <= g.NTIPOS; ++tipo) {
        const FilaCatalogo& fila = Fila(tipo);
        g.TIPOS(tipo) = std::string(fila.nombre);
        g.CATALOGO(tipo, kEspesor) = fila.espesor;
        g.CATALOGO(tipo, kModulo) = fila.modulo;
        g.CATALOGO(tipo, kEpsu) = fila.epsu;
        g.COLORES(tipo) = fila.color;
    }
}

void CopiaTipo(General& g, int tipo)
{
    g.ESPESOR = g.CATALOGO(tipo, kEspesor);
    g.E = g.CATALOGO(tipo, kModulo);
    g.EPSU = g.CATALOGO(tipo, kEpsu);
}

void DeformacionCalculo(General& g)
{
    g.KM.Redimensiona(g.MAXCAPAS);
    g.EPSD.Redimensiona(g.MAXCAPAS);
    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        // Stiffness of the package of n layers, N/mm. Both formulas give 0.5 at 214000.
        const double x = static_cast<double>(n) * g.E * g.ESPESOR;
        double km = x < 214000.0 ? 1.0 - x / 428000.0 : 107000.0 / x;
        // The cap applies to the reduction factor, before the division by GR.
        if (km > 0.9) km = 0.9;
        g.KM(n) = km;
        g.EPSD(n) = (g.EPSU / g.GR) * km;
    }
}

}  // namespace texalon
