#include "state/General.h"

#include "state/Catalogo.h"

namespace texalon {

General& Estado()
{
    static General estado;
    return estado;
}

GeneralDibujo& EstadoDibujo()
{
    static GeneralDibujo dibujo;
    return dibujo;
}

void BorraDibujo(ContadoresDibujo& d) { d = ContadoresDibujo{}; }

void ValoresIniciales(General& g)
{
    ValoresFlexion(g);
    ValoresNuevoConfinamiento(g);
    CargaCatalogo(g);
}

void ValoresFlexion(General& g)
{
    g.GC = defecto::GC;
    g.GS = defecto::GS;
    g.GR = defecto::GR;
    g.FCK = defecto::FCK;
    g.FYK = defecto::FYK;
    g.ANCHO = defecto::ANCHO;
    g.CANTO = defecto::CANTO;
    g.ANCHOALMA = defecto::ANCHOALMA;
    g.CANTOALA = defecto::CANTOALA;
    g.RECUB = defecto::RECUB;
    g.ASI = defecto::ASI;
    g.ASS = defecto::ASS;
    g.ANCHOR = defecto::ANCHOR;
    g.EPS0 = defecto::EPS0;
    g.MD = defecto::MD;
    g.MCP = defecto::MCP;
}

void ValoresConfinamiento(General& g)
{
    g.SECCION = defecto::SECCION;
    g.DIAM = defecto::DIAM;
    g.LADOMENOR = defecto::LADOMENOR;
    g.INCR = defecto::INCR;
    g.NCP = defecto::NCP;
    g.GC = defecto::GC;
    g.GS = defecto::GS;
    g.GR = defecto::GR;
    g.FCK = defecto::FCK;
}

void ValoresNuevoConfinamiento(General& g)
{
    ValoresConfinamiento(g);
    g.NU = defecto::NU;
    g.FYK = defecto::FYK;
}

}  // namespace texalon
