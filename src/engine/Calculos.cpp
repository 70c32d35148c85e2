#include "engine/Calculos.h"

#include "engine/Aritmetica.h"
#include "engine/Seccion.h"

#include "state/Catalogo.h"

#include <cmath>

namespace texalon {

namespace {

// Bisection on the neutral axis depth x, from the residual at the start, while the residual is
// over the tolerance. `paso` works out the section at a depth, keeps what it must and returns
// the residual there; compression over (residual > 0) moves the upper end, anything else the
// lower end, so a residual of exactly 0 ends the search too.
//
// Where the bracket holds no root (an initial strain so negative that the sheet starts in
// compression, say), the halving reaches two neighbouring doubles: once the midpoint is one of
// the ends, every further step would work out the same depth again, forever. The search stops
// after that step, in the very state it would keep: nothing changes for a search that ends by
// the tolerance, and the program cannot hang on data that the screens accept.
template <typename Paso>
void Biseccion(double residuo, double bajo, double alto, double& x, Paso paso)
{
    while (std::fabs(residuo) > kTolerancia) {
        x = (alto + bajo) / 2.0;
        const bool sinAvance = x == alto || x == bajo;
        residuo = paso(x);
        if (residuo > 0.0)
            alto = x;
        else
            bajo = x;
        if (sinAvance) return;
    }
}

// Strains of the failure diagram that turns about a pivot, at depth x.
Deformaciones DiagramaPorPivote(const Seccion& s, char pivote, double x, double eprR)
{
    Deformaciones e{};
    switch (pivote) {
    case 'R':
        e.er = eprR;
        e.ec = (x * e.er) / (s.h - x);
        e.es1 = ((s.d - x) * e.ec) / x;
        e.es2 = ((x - s.r) * e.ec) / x;
        break;
    case 'B':
        e.ec = kDeformacionHormigon;
        e.er = ((s.h - x) * kDeformacionHormigon) / x;
        e.es1 = ((s.d - x) * kDeformacionHormigon) / x;
        e.es2 = ((x - s.r) * kDeformacionHormigon) / x;
        break;
    default:  // 'A'
        e.es1 = kDeformacionAcero;
        e.ec = (x * kDeformacionAcero) / (s.d - x);
        e.er = ((s.h - x) * e.ec) / x;
        e.es2 = ((x - s.r) * e.ec) / x;
        break;
    }
    return e;
}

// The ultimate analysis of one sheet type for 1 to MAXCAPAS layers, rectangular or T.
void Rotura(General& g, const Seccion& s, double ANCHOR, double EPS0, Entero tipo)
{
    CopiaTipo(g, tipo);
    DeformacionCalculo(g);
    const int t = tipo;
    // The axis depth carries over from one layer count to the next: where a search needs no
    // step, FN keeps the depth of the layer count before it.
    double x = 0.0;

    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        // Sheet force at total strain e: only the strain beyond the initial strain loads it.
        const auto FR = [&](double e) {
            return (e - EPS0) * (g.E * 100.0) * ANCHOR * g.ESPESOR * 0.001 * static_cast<double>(n) * 10.0;
        };

        const double xrb = (s.h * kDeformacionHormigon) / ((EPS0 + kDeformacionHormigon) + g.EPSD(n));
        const double eTop = (xrb - s.r) * kDeformacionHormigon / xrb;
        g.XRB(t, n) = xrb;

        const double t1 = s.MomentoBloque(xrb, s.h);
        const double t2 =
            eTop >= s.epsy ? ((s.ass * s.fyk) / s.gs / 100.0) * s.d : ((s.ass * kModuloAcero * eTop) / 100.0) * s.d;
        g.MRB(t, n) = (t1 + t2 - s.MomentoAceroInferior()) * 10.0;

        const double xlim = (s.d * kDeformacionHormigon) / (s.epsy + kDeformacionHormigon);
        g.XLIM(t, n) = xlim;
        g.MLIMSR(t, n) = s.MomentoBloque(xlim, s.d) * 10.0;
        g.MLIMCR(t, n) = s.MomentoBloque(xlim, s.h) * 10.0 - s.MomentoAceroInferior() * 10.0;

        // The search starts on the diagram through R and B.
        Deformaciones e{kDeformacionHormigon, (s.d - xrb) * kDeformacionHormigon / xrb,
                        (xrb - s.r) * kDeformacionHormigon / xrb, g.EPSD(n) + EPS0};
        const double r0 = s.RES(xrb, e.es1, e.es2, FR(e.er));

        // Tension wins at the R-B depth: the axis goes down, the concrete governs. Otherwise
        // compression wins: the axis goes up, the sheet or the steel governs.
        const bool bajaElEje = r0 < 0.0;
        const char pivote = bajaElEje ? 'B' : (e.es1 <= kDeformacionAcero ? 'R' : 'A');
        const double bajo = bajaElEje ? xrb : 0.0;
        const double alto = bajaElEje ? s.h : xrb;

        Biseccion(r0, bajo, alto, x, [&](double profundidad) {
            e = DiagramaPorPivote(s, pivote, profundidad, g.EPSD(n) + EPS0);
            g.MU(t, n) = s.MOM(profundidad, e.es1, e.es2);
            return s.RES(profundidad, e.es1, e.es2, FR(e.er));
        });

        // From the first layer count whose moment falls, the layers bring no gain.
        if (n >= 2 && (g.MU(t, n) < g.MU(t, n - 1) || g.MU(t, n - 1) == kSinMejora)) g.MU(t, n) = kSinMejora;

        g.FN(t, n) = x;
        g.PIVOTE(t, n) = std::string(1, pivote);
        g.EPSC(t, n) = e.ec;
        g.EPSSI(t, n) = e.es1;
        g.EPSSS(t, n) = e.es2;
        g.EPSR(t, n) = e.er;
    }
}

}  // namespace

double MomentoSinRefuerzoSeccion(General& g, const Seccion& s)
{
    // Start where the steel is at 0.01 and the concrete at 0.0035 together.
    double x = (s.d * kDeformacionHormigon) / 0.0135;
    double es1 = ((s.d - x) * kDeformacionHormigon) / x;
    double es2 = ((x - s.r) * kDeformacionHormigon) / x;
    double res = s.RES(x, es1, es2, 0.0);

    const bool pivoteA = res >= 0.0;
    double bajo = pivoteA ? 0.0 : x;
    double alto = pivoteA ? x : s.h;
    Biseccion(res, bajo, alto, x, [&](double profundidad) {
        if (pivoteA) {
            es1 = kDeformacionAcero;
            const double ec = (profundidad * kDeformacionAcero) / (s.d - profundidad);
            es2 = ((profundidad - s.r) * ec) / profundidad;
        } else {
            es1 = ((s.d - profundidad) * kDeformacionHormigon) / profundidad;
            es2 = ((profundidad - s.r) * kDeformacionHormigon) / profundidad;
        }
        g.MUSR = s.MOM(profundidad, es1, es2);
        return s.RES(profundidad, es1, es2, 0.0);
    });
    return x;
}

namespace {

// Per shape: the concrete confined per metre, the perimeter factor of the wrap, the area of
// the concrete and of the steel (0.4 % of the concrete) transformed, and the shape coefficient.
struct FormaColumna {
    double wc;
    double perimetro;
    double ac;
    double at;
    double alfan;
};

constexpr double kPi = 3.141592;

FormaColumna Forma(FormaPilar forma, double D, double L, double N)
{
    switch (forma) {
    case FormaPilar::Circular:
        return {(D * D * kPi) / 4.0, D * kPi, (D * D * kPi) / 4.0, ((D * D * 0.012566368) / 4.0) * N,
                CoeficienteForma(forma, D, L)};
    case FormaPilar::Cuadrada: return {D * D, D * 4.0, D * D, (D * D * 0.004) * N, CoeficienteForma(forma, D, L)};
    case FormaPilar::Rectangular:
        return {D * L, (D + L) + (D + L), L * D, ((D * 0.004) * L) * N, CoeficienteForma(forma, D, L)};
    default: throw ErrorEjecucion(ErrorEjecucion::kSubindiceFueraDeIntervalo);
    }
}

}  // namespace

double CoeficienteForma(FormaPilar forma, double DIAM, double LADOMENOR)
{
    switch (forma) {
    case FormaPilar::Circular: return 1.0;
    case FormaPilar::Cuadrada: return 1.0 - 2.0 / 3.0;
    case FormaPilar::Rectangular: return 1.0 - ((2.0 / 3.0) * DIAM) / LADOMENOR;
    default: throw ErrorEjecucion(ErrorEjecucion::kSubindiceFueraDeIntervalo);
    }
}

double ModuloHormigon(double fck) { return 8500.0 * std::pow(fck + 8.0, 1.0 / 3.0); }

SeccionFisurada AnalisisElastico(const General& g, SeccionFlexion seccion)
{
    SeccionFisurada f{};
    f.EC = ModuloHormigon(g.FCK);
    const double N = 200000.0 / f.EC;
    f.N = N;
    const double A1 = g.ASI / 10000.0;
    const double A2 = g.ASS / 10000.0;
    const double b = g.ANCHO;
    const double h = g.CANTO;
    const double r = g.RECUB;

    // The cracked transformed rectangle: b X² / 2 + N A2 (X − r) = N A1 (h − r − X).
    double X = (-N * (A2 + A1) + std::sqrt(N * (N * A1 * A1 + N * A2 * A2 + 2.0 * N * A2 * A1 + 2.0 * b * A2 * r +
                                                2.0 * b * A1 * h - 2.0 * b * A1 * r))) /
               b;
    double I = A2 * N * (X - r) * (X - r) + (1.0 / 3.0) * b * X * X * X + A1 * N * (h - X - r) * (h - X - r);

    if (seccion == SeccionFlexion::T && X > g.CANTOALA) {
        // The axis is in the web: flange and web both in compression.
        const double BW = g.ANCHOALMA;
        const double HF = g.CANTOALA;
        const double S = A2 * N + A1 * N;
        const double D = b * b * HF * HF - HF * HF * b * BW + S * (2.0 * b * HF) - S * (2.0 * BW * HF) +
                         N * N * A2 * A2 + 2.0 * N * N * A2 * A1 + N * N * A1 * A1 + 2.0 * BW * A2 * r * N +
                         2.0 * BW * A1 * N * h - 2.0 * BW * A1 * N * r;
        X = (-b * HF + BW * HF - A2 * N - A1 * N + std::sqrt(D)) / BW;
        I = (HF * b) * (X - HF / 2.0) * (X - HF / 2.0) + (1.0 / 12.0) * b * HF * HF * HF +
            (1.0 / 3.0) * BW * (X - HF) * (X - HF) * (X - HF) + A2 * N * (X - r) * (X - r) +
            A1 * N * (h - X - r) * (h - X - r);
    }
    f.X = X;
    f.I = I;
    return f;
}

void Predeformacion(General& g, SeccionFlexion seccion)
{
    if (seccion != SeccionFlexion::Rectangular && seccion != SeccionFlexion::T) return;
    const SeccionFisurada f = AnalisisElastico(g, seccion);
    // The strain of the bottom fibre; the factor 1000 turns N/mm² into kN/m².
    g.EPS0 = ((g.CANTO - f.X) * g.MCP) / ((f.EC * 1000.0) * f.I);
}

void RoturaDeSeccion(General& g, SeccionFlexion seccion, double ANCHO, double CANTO, double RECUB, double ASI,
                     double ASS, double ANCHOR, double FCK, double FYK, double EPS0, Entero tipo)
{
    Rotura(g, Seccion(g, seccion == SeccionFlexion::T, ANCHO, CANTO, RECUB, ASI, ASS, FCK, FYK), ANCHOR, EPS0, tipo);
}

void RoturaRectangular(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double ANCHOR,
                       double FCK, double FYK, double EPS0, double /*MD*/, Entero tipo)
{
    RoturaDeSeccion(g, SeccionFlexion::Rectangular, ANCHO, CANTO, RECUB, ASI, ASS, ANCHOR, FCK, FYK, EPS0, tipo);
}

void RoturaT(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double ANCHOR, double FCK,
             double FYK, double EPS0, double /*MD*/, Entero tipo)
{
    RoturaDeSeccion(g, SeccionFlexion::T, ANCHO, CANTO, RECUB, ASI, ASS, ANCHOR, FCK, FYK, EPS0, tipo);
}

void MomentoSinRefuerzoDeSeccion(General& g, SeccionFlexion seccion, double ANCHO, double CANTO, double RECUB,
                                 double ASI, double ASS, double FCK, double FYK)
{
    MomentoSinRefuerzoSeccion(g, Seccion(g, seccion == SeccionFlexion::T, ANCHO, CANTO, RECUB, ASI, ASS, FCK, FYK));
}

void MomentoSinRefuerzo(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double FCK,
                        double FYK)
{
    MomentoSinRefuerzoDeSeccion(g, SeccionFlexion::Rectangular, ANCHO, CANTO, RECUB, ASI, ASS, FCK, FYK);
}

void MomentoSinRefuerzoT(General& g, double ANCHO, double CANTO, double RECUB, double ASI, double ASS, double FCK,
                         double FYK)
{
    MomentoSinRefuerzoDeSeccion(g, SeccionFlexion::T, ANCHO, CANTO, RECUB, ASI, ASS, FCK, FYK);
}

void PredeformacionConfina(General& g)
{
    const double ec = ModuloHormigon(g.FCK);
    const FormaColumna f = Forma(FormaDe(g), g.DIAM, g.LADOMENOR, 200000.0 / ec);
    g.EPS0 = g.NCP / (((f.ac + f.at) * ec) * 1000.0);
}

void CalculoConfina(General& g, FormaPilar forma, double DIAM, double LADOMENOR, double FCK, Entero tipo)
{
    CopiaTipo(g, tipo);
    DeformacionCalculo(g);
    const FormaColumna f = Forma(forma, DIAM, LADOMENOR, 200000.0 / ModuloHormigon(FCK));
    const int t = tipo;
    g.ALFAS = 1.0;
    g.ALFAN = f.alfan;
    g.WC(t) = f.wc;

    for (int n = 1; n <= g.MAXCAPAS; ++n) {
        // Fixed point between the confinement and the strain the confined concrete reaches,
        // which grows with the square of the strength increase.
        double kPrevio = 999.0;
        double emax = 0.002 - g.EPS0;
        double el = 0.0;
        double k = 0.0;
        double diferencia = 0.0;
        do {
            // The sheet follows the lateral strain of the concrete, up to its design strain.
            el = g.NU * emax;
            if (el > g.EPSD(n)) el = g.EPSD(n);
            g.WR(t, n) = f.perimetro * g.ESPESOR * 0.001 * static_cast<double>(n);
            double wwd = (((g.WR(t, n) / g.WC(t)) * g.E) * el) / (FCK / g.GC);
            if (wwd > 0.5) wwd = 0.5;
            g.WWD(t, n) = wwd;
            g.TENSCONF(t, n) = (g.ALFAS * 0.5 * g.ALFAN) * wwd;
            k = g.TENSCONF(t, n) < 0.05 ? g.TENSCONF(t, n) * 5.0 + 1.0 : g.TENSCONF(t, n) * 2.5 + 1.125;
            emax = k * k * (0.002 - g.EPS0);
            diferencia = std::fabs(k - kPrevio);
            kPrevio = k;
        } while (diferencia > kTolerancia);

        g.EPSRC(t, n) = el;
        g.SIGMAR(t, n) = g.E * el;
        g.RESU(t, n) = k;
    }
}

namespace {

void LongitudesDeAnclaje(General& g)
{
    g.LANC.Redimensiona(g.NTIPOS, g.MAXCAPAS);
    // Bond strength of the concrete, N/mm²: no safety coefficient enters.
    const double adherencia = std::pow(g.FCK, 2.0 / 3.0) * 0.21;
    for (int t = 1; t <= g.NTIPOS; ++t) {
        CopiaTipo(g, static_cast<Entero>(t));
        DeformacionCalculo(g);
        for (int n = 1; n <= g.MAXCAPAS; ++n)
            g.LANC(t, n) = (((static_cast<double>(n) * g.ESPESOR) * 0.001) * g.E * g.EPSD(n)) / adherencia;
    }
}

}  // namespace

void LongitudAnclaje(General& g)
{
    ConAritmeticaVigilada([&g] {
        LongitudesDeAnclaje(g);
        return true;
    });
}

}  // namespace texalon
