#include "Json.h"

#include <charconv>
#include <stdexcept>

namespace texalon::prueba {

namespace {

class Lector {
public:
    explicit Lector(std::string_view texto) : texto_(texto) {}

    ValorJson Todo()
    {
        ValorJson valor = Valor();
        Blancos();
        if (posicion_ != texto_.size()) Falla("texto tras el valor");
        return valor;
    }

private:
    [[noreturn]] void Falla(const std::string& motivo) const
    {
        throw std::runtime_error("JSON no válido en la posición " + std::to_string(posicion_) + ": " + motivo);
    }

    void Blancos()
    {
        while (posicion_ < texto_.size() &&
               std::string_view(" \t\r\n").find(texto_[posicion_]) != std::string_view::npos)
            ++posicion_;
    }

    char Mira()
    {
        Blancos();
        if (posicion_ >= texto_.size()) Falla("final inesperado");
        return texto_[posicion_];
    }

    void Espera(char c)
    {
        if (Mira() != c) Falla(std::string("se esperaba '") + c + "'");
        ++posicion_;
    }

    bool Palabra(std::string_view palabra)
    {
        if (texto_.substr(posicion_, palabra.size()) != palabra) return false;
        posicion_ += palabra.size();
        return true;
    }

    ValorJson Valor()
    {
        ValorJson valor;
        const char c = Mira();
        if (c == '{') {
            valor.clase = ValorJson::Clase::Objeto;
            Miembros(valor);
        } else if (c == '[') {
            valor.clase = ValorJson::Clase::Lista;
            Elementos(valor);
        } else if (c == '"') {
            valor.clase = ValorJson::Clase::Cadena;
            valor.cadena = Cadena();
        } else if (Palabra("null")) {
            valor.clase = ValorJson::Clase::Nulo;
        } else if (Palabra("true")) {
            valor.clase = ValorJson::Clase::Logico;
            valor.logico = true;
        } else if (Palabra("false")) {
            valor.clase = ValorJson::Clase::Logico;
        } else {
            valor.clase = ValorJson::Clase::Numero;
            valor.numero = Numero();
        }
        return valor;
    }

    // What stands between `abre` and `cierra`, parted by commas, each read by `lee`.
    template <class Lector>
    void Secuencia(char abre, char cierra, Lector lee)
    {
        Espera(abre);
        if (Mira() == cierra) {
            ++posicion_;
            return;
        }
        for (;;) {
            lee();
            if (Mira() == cierra) break;
            Espera(',');
        }
        ++posicion_;
    }

    void Miembros(ValorJson& objeto)
    {
        Secuencia('{', '}', [&] {
            if (Mira() != '"') Falla("se esperaba un nombre");
            std::string nombre = Cadena();
            Espera(':');
            objeto.miembros.emplace_back(std::move(nombre), Valor());
        });
    }

    void Elementos(ValorJson& lista)
    {
        Secuencia('[', ']', [&] { lista.lista.push_back(Valor()); });
    }

    // The grammar of a JSON number, then its value read back as a double.
    double Numero()
    {
        const std::size_t inicio = posicion_;
        const auto digitos = [this] {
            const std::size_t antes = posicion_;
            while (posicion_ < texto_.size() && texto_[posicion_] >= '0' && texto_[posicion_] <= '9')
                ++posicion_;
            return posicion_ > antes;
        };
        if (posicion_ < texto_.size() && texto_[posicion_] == '-') ++posicion_;
        if (!digitos()) Falla("número sin cifras");
        if (posicion_ < texto_.size() && texto_[posicion_] == '.') {
            ++posicion_;
            if (!digitos()) Falla("número sin decimales");
        }
        if (posicion_ < texto_.size() && (texto_[posicion_] == 'e' || texto_[posicion_] == 'E')) {
            ++posicion_;
            if (posicion_ < texto_.size() && (texto_[posicion_] == '+' || texto_[posicion_] == '-')) ++posicion_;
            if (!digitos()) Falla("exponente sin cifras");
        }
        double numero = 0.0;
        const auto leido = std::from_chars(texto_.data() + inicio, texto_.data() + posicion_, numero);
        if (leido.ec != std::errc()) Falla("número fuera de intervalo");
        return numero;
    }

    unsigned Hex4()
    {
        if (posicion_ + 4 > texto_.size()) Falla("escape \\u corto");
        unsigned codigo = 0;
        const auto leido = std::from_chars(texto_.data() + posicion_, texto_.data() + posicion_ + 4, codigo, 16);
        if (leido.ptr != texto_.data() + posicion_ + 4) Falla("escape \\u no válido");
        posicion_ += 4;
        return codigo;
    }

    static void Utf8(std::string& texto, unsigned codigo)
    {
        const auto byte = [&texto](unsigned valor) { texto += static_cast<char>(valor); };
        if (codigo < 0x80) {
            byte(codigo);
        } else if (codigo < 0x800) {
            byte(0xC0 | (codigo >> 6));
            byte(0x80 | (codigo & 0x3F));
        } else if (codigo < 0x10000) {
            byte(0xE0 | (codigo >> 12));
            byte(0x80 | ((codigo >> 6) & 0x3F));
            byte(0x80 | (codigo & 0x3F));
        } else {
            byte(0xF0 | (codigo >> 18));
            byte(0x80 | ((codigo >> 12) & 0x3F));
            byte(0x80 | ((codigo >> 6) & 0x3F));
            byte(0x80 | (codigo & 0x3F));
        }
    }

    std::string Cadena()
    {
        Espera('"');
        std::string cadena;
        for (;;) {
            if (posicion_ >= texto_.size()) Falla("cadena sin cerrar");
            const char c = texto_[posicion_++];
            if (c == '"') return cadena;
            if (static_cast<unsigned char>(c) < 0x20) Falla("carácter de control sin escapar");
            if (c != '\\') {
                cadena += c;
                continue;
            }
            if (posicion_ >= texto_.size()) Falla("escape sin cerrar");
            const char escape = texto_[posicion_++];
            switch (escape) {
            case '"':
            case '\\':
            case '/': cadena += escape; break;
            case 'b': cadena += '\b'; break;
            case 'f': cadena += '\f'; break;
            case 'n': cadena += '\n'; break;
            case 'r': cadena += '\r'; break;
            case 't': cadena += '\t'; break;
            case 'u': {
                unsigned codigo = Hex4();
                if (codigo >= 0xD800 && codigo <= 0xDBFF && Palabra("\\u")) {
                    const unsigned bajo = Hex4();
                    codigo = 0x10000 + ((codigo - 0xD800) << 10) + (bajo - 0xDC00);
                }
                Utf8(cadena, codigo);
                break;
            }
            default: Falla("escape desconocido");
            }
        }
    }

    std::string_view texto_;
    std::size_t posicion_ = 0;
};

}  // namespace

bool ValorJson::Tiene(std::string_view nombre) const
{
    for (const auto& [clave, valor] : miembros)
        if (clave == nombre) return true;
    return false;
}

const ValorJson& ValorJson::operator[](std::string_view nombre) const
{
    for (const auto& [clave, valor] : miembros)
        if (clave == nombre) return valor;
    throw std::out_of_range("el objeto no tiene «" + std::string(nombre) + "»");
}

std::vector<std::string> ValorJson::Nombres() const
{
    std::vector<std::string> nombres;
    for (const auto& miembro : miembros)
        nombres.push_back(miembro.first);
    return nombres;
}

ValorJson LeeJson(std::string_view texto) { return Lector(texto).Todo(); }

}  // namespace texalon::prueba
