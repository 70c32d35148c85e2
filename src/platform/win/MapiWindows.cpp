#include "platform/win/MapiWindows.h"

#include <windows.h>
#include <mapi.h>

namespace texalon::plataforma {

namespace {
// MAPI's codes for a failure of the library itself, when a function is missing.
constexpr unsigned long kFallo = MAPI_E_FAILURE;

// A function of the library by its name, as the plain function type that any other is cast
// from and to.
void (*Busca(HMODULE biblioteca, const char* nombre))()
{
    return reinterpret_cast<void (*)()>(::GetProcAddress(biblioteca, nombre));
}

template <typename Funcion>
Funcion Como(void (*direccion)())
{
    return reinterpret_cast<Funcion>(direccion);
}
}  // namespace

ApiMapiWindows::~ApiMapiWindows()
{
    if (biblioteca_ != nullptr) ::FreeLibrary(static_cast<HMODULE>(biblioteca_));
}

bool ApiMapiWindows::Disponible()
{
    if (!cargada_) {
        cargada_ = true;
        HMODULE mapi = ::LoadLibraryA("mapi32.dll");
        if (mapi != nullptr) {
            biblioteca_ = mapi;
            logon_ = Busca(mapi, "MAPILogon");
            sendMail_ = Busca(mapi, "MAPISendMail");
            logoff_ = Busca(mapi, "MAPILogoff");
        }
    }
    return logon_ != nullptr && sendMail_ != nullptr && logoff_ != nullptr;
}

unsigned long ApiMapiWindows::Inicia(Sesion& sesion)
{
    if (!Disponible()) return kFallo;
    LHANDLE abierta = 0;
    const ULONG resultado = Como<LPMAPILOGON>(logon_)(0, nullptr, nullptr, MAPI_LOGON_UI, 0, &abierta);
    sesion = static_cast<Sesion>(abierta);
    return resultado;
}

unsigned long ApiMapiWindows::Envia(Sesion sesion, const std::string& asunto, const std::string& destinatario)
{
    if (!Disponible()) return kFallo;
    // Simple MAPI's A functions take the system's code page; the subject's "®" is in it.
    const int ancho = ::MultiByteToWideChar(CP_UTF8, 0, asunto.c_str(), -1, nullptr, 0);
    std::wstring amplio(static_cast<std::size_t>(ancho), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, asunto.c_str(), -1, amplio.data(), ancho);
    const int estrecho = ::WideCharToMultiByte(CP_ACP, 0, amplio.c_str(), -1, nullptr, 0, nullptr, nullptr);
    std::string asuntoAnsi(static_cast<std::size_t>(estrecho), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, amplio.c_str(), -1, asuntoAnsi.data(), estrecho, nullptr, nullptr);

    std::string direccion = "SMTP:" + destinatario;
    std::string nombre = destinatario;
    MapiRecipDesc receptor{};
    receptor.ulRecipClass = MAPI_TO;
    receptor.lpszName = nombre.data();
    receptor.lpszAddress = direccion.data();
    MapiMessage mensaje{};
    mensaje.lpszSubject = asuntoAnsi.data();
    mensaje.nRecipCount = 1;
    mensaje.lpRecips = &receptor;
    return Como<LPMAPISENDMAIL>(sendMail_)(static_cast<LHANDLE>(sesion), 0, &mensaje, MAPI_DIALOG | MAPI_LOGON_UI, 0);
}

unsigned long ApiMapiWindows::Cierra(Sesion sesion)
{
    if (!Disponible()) return kFallo;
    return Como<LPMAPILOGOFF>(logoff_)(static_cast<LHANDLE>(sesion), 0, 0, 0);
}

}  // namespace texalon::plataforma
