// The run-time errors of the program, numbered as the classic runtime numbers them.
//
// An arithmetic fault inside a calculation, a drawing or a report, and any fault of a file
// procedure, is raised as one of these. The file procedures trap it and tell the user "Error N:
// description"; anywhere else nothing traps it and the shell ends the process with the error's
// message, as the classic runtime did.
#pragma once

#include <stdexcept>
#include <string>

namespace texalon {

class ErrorEjecucion : public std::runtime_error {
public:
    static constexpr int kArgumentoNoValido = 5;
    static constexpr int kDesbordamiento = 6;
    static constexpr int kMemoriaInsuficiente = 7;
    static constexpr int kSubindiceFueraDeIntervalo = 9;
    static constexpr int kDivisionPorCero = 11;
    static constexpr int kTiposNoCoinciden = 13;
    static constexpr int kNombreDeArchivoIncorrecto = 52;
    static constexpr int kArchivoNoEncontrado = 53;
    static constexpr int kErrorDeEntradaSalida = 57;
    static constexpr int kDiscoLleno = 61;
    static constexpr int kEntradaPasadoElFinal = 62;
    static constexpr int kPermisoDenegado = 70;
    static constexpr int kErrorDeAccesoRuta = 75;
    static constexpr int kRutaNoEncontrada = 76;

    explicit ErrorEjecucion(int numero);

    int Numero() const { return numero_; }
    // The description in Spanish, without a closing period: "Desbordamiento".
    const std::string& Descripcion() const { return descripcion_; }

    // The description of any error number; an unknown number has the runtime's generic text.
    static std::string DescripcionDe(int numero);

private:
    int numero_;
    std::string descripcion_;
};

}  // namespace texalon
