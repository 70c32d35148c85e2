// The desktop's viewer and browser as a Windows machine finds them: through the registry's
// command lines for the PDF class and for http.
#pragma once

#include "platform/Plataforma.h"
#include "platform/Registro.h"

namespace texalon::plataforma {

class EscritorioRegistro final : public Escritorio {
public:
    EscritorioRegistro(ApiRegistro& api, Arrancador& arrancador) : api_(api), arrancador_(arrancador) {}
    // Any local file is taken for a PDF: the guide is the only file the program opens so.
    bool AbreFichero(const QString& fichero) override;
    bool AbreDireccion(const QString& direccion) override;

private:
    ApiRegistro& api_;
    Arrancador& arrancador_;
};

}  // namespace texalon::plataforma
