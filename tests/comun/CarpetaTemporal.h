// A directory of its own for one test, made empty at the start and removed with everything in
// it at the end. Header only.
#pragma once

#include <filesystem>
#include <system_error>
#include <utility>

namespace texalon::prueba {

class CarpetaTemporal {
public:
    explicit CarpetaTemporal(std::filesystem::path ruta) : ruta_(std::move(ruta))
    {
        std::filesystem::remove_all(ruta_);
        std::filesystem::create_directories(ruta_);
    }
    ~CarpetaTemporal()
    {
        std::error_code sin_excepcion;
        std::filesystem::remove_all(ruta_, sin_excepcion);
    }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

protected:
    const std::filesystem::path& Camino() const { return ruta_; }

private:
    std::filesystem::path ruta_;
};

}  // namespace texalon::prueba
