// Test doubles of the registry and of the start of a process: a registry of written keys and
// values, and a starter that records each command line.
#pragma once

#include "platform/Registro.h"

#include <map>
#include <utility>

namespace texalon::plataforma {

class ApiRegistroDoble final : public ApiRegistro {
public:
    struct Valor {
        std::uint32_t tipo = kRegSz;
        std::vector<unsigned char> datos;
    };
    // A text value as the registry keeps it, with its closing zero.
    static Valor Texto(const std::string& texto);
    // A 32-bit number, in the machine's byte order (the lowest byte first).
    static Valor Numero(std::uint32_t numero);

    // Writes a value; a key exists once it holds any value.
    void Escribe(const std::string& clave, const std::string& nombre, Valor valor);

    long RegOpenKeyExA(std::uint32_t raiz, const std::string& subclave, std::uint32_t opciones, std::uint32_t acceso,
                       Clave& clave) override;
    long RegQueryValueExA(Clave clave, const std::string& valor, std::uint32_t& tipo, std::vector<unsigned char>& datos,
                          std::uint32_t& longitud) override;
    long RegCloseKey(Clave clave) override;

    struct Apertura {
        std::uint32_t raiz;
        std::string subclave;
        std::uint32_t opciones;
        std::uint32_t acceso;
    };
    std::vector<Apertura> aperturas;
    std::vector<Clave> cierres;
    std::vector<std::pair<Clave, std::string>> consultas;

private:
    std::map<std::string, std::map<std::string, Valor>> claves_;
    std::vector<std::string> abiertas_;  // handle n is abiertas_[n - 1]
};

class ArrancadorDoble final : public Arrancador {
public:
    bool Inicia(const std::string& lineaDeOrden) override;

    std::vector<std::string> lineas;
    bool falla = false;  // the command line cannot be started
    bool lanzaError = false;  // the start raises an error on the way
};

}  // namespace texalon::plataforma
