// Simple MAPI of Windows (mapi32.dll), loaded when first asked for, so that a system without
// it still starts the program.
#pragma once

#include "platform/CorreoMapi.h"

namespace texalon::plataforma {

class ApiMapiWindows final : public ApiMapi {
public:
    ~ApiMapiWindows() override;
    bool Disponible() override;
    unsigned long Inicia(Sesion& sesion) override;
    unsigned long Envia(Sesion sesion, const std::string& asunto, const std::string& destinatario) override;
    unsigned long Cierra(Sesion sesion) override;

private:
    using Funcion = void (*)();
    void* biblioteca_ = nullptr;
    Funcion logon_ = nullptr;
    Funcion sendMail_ = nullptr;
    Funcion logoff_ = nullptr;
    bool cargada_ = false;
};

}  // namespace texalon::plataforma
