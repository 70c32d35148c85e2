#include "platform/CorreoMapi.h"

namespace texalon::plataforma {

bool CorreoMapi::IniciaSesion()
{
    porMapi_ = false;
    if (api_.Disponible()) {
        ApiMapi::Sesion sesion = 0;
        const unsigned long resultado = api_.Inicia(sesion);
        if (resultado == ApiMapi::kExito) {
            sesion_ = sesion;
            porMapi_ = true;
            return true;
        }
        // The user closed the mail program's sign-on: that is a failed sign-on, not a system
        // without mail.
        if (resultado == ApiMapi::kCanceladoPorElUsuario) return false;
    }
    return respaldo_.IniciaSesion();
}

bool CorreoMapi::Redacta(const QString& asunto, const QString& destinatario)
{
    if (!porMapi_) return respaldo_.Redacta(asunto, destinatario);
    return api_.Envia(sesion_, asunto.toStdString(), destinatario.toStdString()) == ApiMapi::kExito;
}

void CorreoMapi::CierraSesion()
{
    if (porMapi_) {
        api_.Cierra(sesion_);
        porMapi_ = false;
        sesion_ = 0;
        return;
    }
    respaldo_.CierraSesion();
}

}  // namespace texalon::plataforma
