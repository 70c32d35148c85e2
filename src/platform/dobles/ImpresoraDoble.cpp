#include "platform/dobles/ImpresoraDoble.h"

#include "state/ErrorEjecucion.h"

#include <algorithm>
#include <utility>

namespace texalon::plataforma {

namespace {

// The characters of a UTF-8 text, as a printer measures it.
std::size_t Caracteres(const std::string& texto)
{
    return static_cast<std::size_t>(
        std::count_if(texto.begin(), texto.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace

void ImpresoraDoble::Anota(std::string nombre, std::vector<double> numeros, std::string texto)
{
    operaciones.push_back({std::move(nombre), std::move(numeros), std::move(texto)});
}

void ImpresoraDoble::PaperSize(int codigo) { Anota("PaperSize", {double(codigo)}); }
void ImpresoraDoble::ScaleMode(int modo) { Anota("ScaleMode", {double(modo)}); }
void ImpresoraDoble::NombreDocumento(const std::string& nombre) { Anota("NombreDocumento", {}, nombre); }

void ImpresoraDoble::DrawStyle(int valor)
{
    estilo = valor;
    Anota("DrawStyle", {double(valor)});
}

void ImpresoraDoble::DrawWidth(int valor)
{
    ancho = valor;
    Anota("DrawWidth", {double(valor)});
}

void ImpresoraDoble::Line(double x1, double y1, double x2, double y2, Color c)
{
    Anota("Line", {x1, y1, x2, y2, double(c)});
}

void ImpresoraDoble::Box(double x1, double y1, double x2, double y2, Color c) { Anota("Box", {x1, y1, x2, y2, double(c)}); }

void ImpresoraDoble::Circle(double x, double y, double radio, Color c) { Anota("Circle", {x, y, radio, double(c)}); }

void ImpresoraDoble::Arc(double x, double y, double radio, Color c, double inicio, double fin)
{
    Anota("Arc", {x, y, radio, double(c), inicio, fin});
}

void ImpresoraDoble::FontName(const std::string& nombre)
{
    fuente = nombre;
    Anota("FontName", {}, nombre);
}

void ImpresoraDoble::FontSize(double puntos)
{
    tamano = puntos;
    Anota("FontSize", {puntos});
}

void ImpresoraDoble::FontBold(bool valor)
{
    negrita = valor;
    Anota("FontBold", {valor ? 1.0 : 0.0});
}

void ImpresoraDoble::ForeColor(Color c)
{
    color = c;
    Anota("ForeColor", {double(c)});
}

double ImpresoraDoble::TextWidth(const std::string& texto) const
{
    return static_cast<double>(Caracteres(texto)) * kAnchoCaracterPorPunto * tamano;
}

double ImpresoraDoble::TextHeight(const std::string& /*texto*/) const { return kAltoLineaPorPunto * tamano; }

void ImpresoraDoble::CurrentX(double x)
{
    x_ = x;
    Anota("CurrentX", {x});
}

void ImpresoraDoble::CurrentY(double y)
{
    y_ = y;
    Anota("CurrentY", {y});
}

void ImpresoraDoble::Print(const std::string& texto)
{
    Anota("Print", {x_, y_}, texto);
    x_ = 0.0;
    y_ += TextHeight(texto);
}

void ImpresoraDoble::PaintPicture(const std::string& imagen, double x, double y, double anchoImagen, double altoImagen)
{
    Anota("PaintPicture", {x, y, anchoImagen, altoImagen}, imagen);
}

void ImpresoraDoble::NewPage()
{
    Anota("NewPage", {});
    ++pagina_;
    x_ = 0.0;
    y_ = 0.0;
}

void ImpresoraDoble::EndDoc()
{
    Anota("EndDoc", {});
    if (errorAlTerminar != 0) throw ErrorEjecucion(errorAlTerminar);
    ++documentosTerminados;
    pagina_ = 1;
    x_ = 0.0;
    y_ = 0.0;
}

bool ImpresorasDoble::Elige(const std::string& nombre)
{
    if (std::find(nombres.begin(), nombres.end(), nombre) == nombres.end()) return false;
    actual = nombre;
    return true;
}

}  // namespace texalon::plataforma
