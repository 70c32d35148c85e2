#include "files/Comprobaciones.h"

#include "files/Limites.h"

namespace texalon {

namespace {

using namespace limites;

bool EnIntervalo(double valor, double minimo, double maximo) { return valor >= minimo && valor <= maximo; }

}  // namespace

bool FlexionValida(const DatosFlexion& d, SeccionFlexion seccion)
{
    const bool seccionT = seccion == SeccionFlexion::T;
    // The sheet lies under the web of a T section and under the whole width of a rectangle.
    if (d.ANCHOR > (seccionT ? d.ANCHOALMA : d.ANCHO)) return false;
    if (d.ANCHO == 0.0 || d.CANTO == 0.0) return false;
    if (seccionT && (d.ANCHOALMA == 0.0 || d.CANTOALA == 0.0)) return false;
    if (d.RECUB == 0.0 || d.ASI == 0.0 || d.ANCHOR == 0.0) return false;
    if (seccionT && d.CANTOALA > d.CANTO) return false;
    if (!EnIntervalo(d.FCK, kFckMinimo, kFckMaximo)) return false;
    if (!EnIntervalo(d.FYK, kFykMinimo, kFykMaximo)) return false;
    return d.CANTO / 2.0 >= d.RECUB;
}

bool ConfinaValida(const DatosConfina& d, FormaPilar forma)
{
    const bool rectangular = forma == FormaPilar::Rectangular;
    // The smaller side is kept for every shape, and must be there for every shape.
    if (d.DIAM == 0.0 || d.LADOMENOR == 0.0) return false;
    // The long side of a rectangle is the one given first.
    if (rectangular && d.LADOMENOR > d.DIAM) return false;
    if (!EnIntervalo(d.FCK, kFckMinimo, kFckMaximo)) return false;
    return d.INCR >= kIncrMinimo;
}

}  // namespace texalon
