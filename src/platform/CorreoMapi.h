// Mail through the system's simple mail interface (MAPI), as a Windows machine offers it, with
// the desktop's "mailto:" handler where no mail service answers.
#pragma once

#include "platform/Plataforma.h"

#include <cstdint>
#include <string>

namespace texalon::plataforma {

// The three calls of Simple MAPI that the program makes, with their result codes (0 is success).
class ApiMapi {
public:
    using Sesion = std::uintptr_t;
    static constexpr unsigned long kExito = 0;
    static constexpr unsigned long kCanceladoPorElUsuario = 1;  // MAPI_USER_ABORT

    virtual ~ApiMapi() = default;
    // False when the system has no Simple MAPI at all (no mapi32.dll or no MAPISendMail in it).
    virtual bool Disponible() = 0;
    // MAPILogon with the mail program's own sign-on dialog if it needs one.
    virtual unsigned long Inicia(Sesion& sesion) = 0;
    // MAPISendMail of a new message, shown in the mail program's window for the user to edit and
    // send (the dialog flag); the texts in UTF-8.
    virtual unsigned long Envia(Sesion sesion, const std::string& asunto, const std::string& destinatario) = 0;
    virtual unsigned long Cierra(Sesion sesion) = 0;
};

// One MAPI session a run. Where the system has no MAPI, or its sign-on fails for any reason but
// the user's cancelling it, the mail goes to the desktop's mailto: handler (`respaldo`) instead.
class CorreoMapi final : public Correo {
public:
    CorreoMapi(ApiMapi& api, Correo& respaldo) : api_(api), respaldo_(respaldo) {}
    bool IniciaSesion() override;
    bool Redacta(const QString& asunto, const QString& destinatario) override;
    void CierraSesion() override;

    // Whether the session signed on is MAPI's (false: the mailto: handler's, or none yet).
    bool PorMapi() const { return porMapi_; }

private:
    ApiMapi& api_;
    Correo& respaldo_;
    ApiMapi::Sesion sesion_ = 0;
    bool porMapi_ = false;
};

}  // namespace texalon::plataforma
