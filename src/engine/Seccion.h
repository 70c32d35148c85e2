// The models of the flexure analysis: the section with its concrete, steel and sheet forces,
// the elastic analysis behind the initial strain, and the search without sheet. The rectangular
// and T procedures of Calculos share them; the tests and the diagrams read them too.
#pragma once

#include "engine/Calculos.h"

#include <cmath>

namespace texalon {

// The section and materials of one flexure analysis, and the force models that the rectangular
// and the T section share. The T section differs only in the concrete block once it reaches
// the web, and in the reference moments taken from that block.
struct Seccion {
    bool esT;
    double b;  // width; flange width of a T
    double h;  // depth
    double r;  // cover
    double d;  // depth of the bottom steel
    double bw;  // web width of a T
    double hf;  // flange depth of a T
    double asi;
    double ass;
    double fyk;
    double gs;
    double epsy;  // yield strain of the steel
    double fc;  // design stress of the concrete, scaled by 100

    Seccion(const General& g, bool t, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double FCK,
            double FYK)
        : esT(t),
          b(ANCHO),
          h(CANTO),
          r(RECUB),
          d(CANTO - RECUB),
          bw(g.ANCHOALMA),
          hf(g.CANTOALA),
          asi(ASI),
          ass(ASS),
          fyk(FYK),
          gs(g.GS),
          epsy((FYK / g.GS) / kModuloAcero),
          fc(FCK * 0.85 * 100.0 / g.GC)
    {
    }

    // The block reaches into the web of a T section.
    bool BloqueEnAlma(double x) const { return esT && x * 0.8 > hf; }

    // Force of the concrete block of depth 0.8 x, kN.
    double CC(double x) const
    {
        if (BloqueEnAlma(x)) return (((x * 0.8 - hf) * bw + hf * b) * fc) * 10.0;
        return fc * b * 0.8 * x * 10.0;
    }

    // Tension of the bottom steel at strain e, kN; a compressed bar gives a negative tension.
    double FSI(double e) const
    {
        if (e >= epsy) return asi * 0.0001 * fyk * 100.0 / gs * 10.0;
        return asi * 0.0001 * 20000000.0 * e * 10.0;
    }

    // Force of the top steel at strain e, kN, never negative: its direction comes from the
    // side of the neutral axis the bar lies on. The linear branch is not capped below -EPSY.
    double FSS(double e) const
    {
        if (e >= epsy) return ass * 0.0001 * fyk * 100.0 / gs * 10.0;
        return std::fabs(e) * ass * 0.0001 * 20000000.0 * 10.0;
    }

    // Balance of forces at neutral axis depth x with the given sheet force.
    double RES(double x, double es1, double es2, double fr) const
    {
        if (x >= r) return CC(x) + FSS(es2) - FSI(es1) - fr;
        return CC(x) - FSS(es2) - FSI(es1) - fr;
    }

    // Moment about the bottom face, where the sheet lies: the sheet has no lever in it.
    // On purpose: the concrete force takes the lever of a rectangular block even when it
    // reaches the web.
    double MOM(double x, double es1, double es2) const
    {
        if (x >= r) return (h - 0.8 * x / 2.0) * CC(x) + d * FSS(es2) - FSI(es1) * r;
        return (h - 0.8 * x / 2.0) * CC(x) - d * FSS(es2) - FSI(es1) * r;
    }

    // Moment of the block of neutral axis depth x about a line at depth `palanca` from the
    // top, before the closing factor 10. A T block in the web is taken as two rectangles,
    // the flange and the web, each with its own lever.
    double MomentoBloque(double x, double palanca) const
    {
        const double y = x * 0.8;
        if (BloqueEnAlma(x))
            return (((palanca - hf) - (y - hf) / 2.0) * ((y - hf) * bw) + (palanca - hf / 2.0) * (hf * b)) * fc;
        return fc * b * 0.8 * x * (palanca - (x * 0.8) / 2.0);
    }

    // The bottom steel at yield about the bottom face, as MRB and MLIMCR take it.
    double MomentoAceroInferior() const { return ((fyk * asi) / gs / 100.0) * r; }
};

// Strains of the section at one neutral axis depth.
struct Deformaciones {
    double ec;  // top concrete fibre
    double es1;  // bottom steel
    double es2;  // top steel
    double er;  // sheet, initial strain included
};

// The cracked, transformed section under service load.
struct SeccionFisurada {
    double EC;  // modulus of the concrete, N/mm²
    double N;  // modular ratio
    double X;  // depth of the neutral axis, m
    double I;  // second moment of area, m⁴
};

// Modulus of the concrete, N/mm², from its characteristic strength.
double ModuloHormigon(double fck);

// The elastic analysis of a rectangular (1) or T (2) section of the state.
SeccionFisurada AnalisisElastico(const General& g, SeccionFlexion seccion);

// MUSR of a section by bisection between pivots A and B; returns the final axis depth.
double MomentoSinRefuerzoSeccion(General& g, const Seccion& s);

}  // namespace texalon
