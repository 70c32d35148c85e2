#include "platform/dobles/PlataformaDoble.h"

#include "platform/qt/PlataformaQt.h"

#include <QDialog>

namespace texalon::plataforma {

Respuesta MensajesDoble::Muestra(const QString& texto, Estilo estilo)
{
    mostrados.push_back({texto, estilo});
    if (alMostrar) alMostrar(mostrados.back());
    if (estilo != Estilo::PreguntaSiNo) return Respuesta::Aceptar;
    if (respuestas.empty()) return Respuesta::No;
    const Respuesta respuesta = respuestas.front();
    respuestas.pop_front();
    return respuesta;
}

std::optional<FicheroElegido> FicherosDoble::Responde()
{
    if (respuestas.empty()) return std::nullopt;
    auto respuesta = respuestas.front();
    respuestas.pop_front();
    return respuesta;
}

std::optional<FicheroElegido> FicherosDoble::Abrir(const DialogoFichero& dialogo)
{
    abiertos.push_back(dialogo);
    return Responde();
}

std::optional<FicheroElegido> FicherosDoble::Guardar(const DialogoFichero& dialogo)
{
    guardados.push_back(dialogo);
    return Responde();
}

int VentanasDoble::MuestraModal(QDialog& dialogo)
{
    mostradas << dialogo.objectName();
    dialogo.show();
    if (alMostrar) alMostrar(dialogo);
    if (dialogo.isVisible()) dialogo.reject();
    return dialogo.result();
}

RegionalDoble::RegionalDoble() : separador(RegionalQt().SeparadorDecimal()) {}

void ProcesoDoble::ErrorFatal(const ErrorEjecucion& error)
{
    erroresFatales.push_back({TextoErrorFatal(error), Estilo::Parada});
    Termina(1);
}

bool EscritorioDoble::AbreFichero(const QString& fichero)
{
    ficheros << fichero;
    return !sinVisor;
}

bool EscritorioDoble::AbreDireccion(const QString& direccion)
{
    direcciones << direccion;
    return !sinNavegador;
}

bool CorreoDoble::IniciaSesion()
{
    ++inicios;
    return !fallaInicio;
}

bool CorreoDoble::Redacta(const QString& asunto, const QString& destinatario)
{
    mensajes.push_back({asunto, destinatario});
    return !fallaEnvio;
}

PlataformaDoble::PlataformaDoble()
    : anteriores_(Instala({&mensajes, &ficheros, &ventanas, &monitor, &regional, &proceso, &impresoras, &ayuda,
                           &escritorio, &correo}))
{
}

PlataformaDoble::~PlataformaDoble() { Instala(anteriores_); }

}  // namespace texalon::plataforma
