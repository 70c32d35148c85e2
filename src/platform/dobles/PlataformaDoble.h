// Test doubles of the platform services: each records what the program asked of it and
// answers from a script that the test writes beforehand. Creating a PlataformaDoble installs
// them all; destroying it puts back what was there before.
#pragma once

#include "platform/Plataforma.h"
#include "platform/dobles/ImpresoraDoble.h"

#include <deque>
#include <functional>
#include <vector>

namespace texalon::plataforma {

struct MensajeMostrado {
    QString texto;
    Estilo estilo;
};

class MensajesDoble final : public Mensajes {
public:
    Respuesta Muestra(const QString& texto, Estilo estilo) override;

    std::vector<MensajeMostrado> mostrados;
    // Answers to the Yes/No questions, in order; an unscripted question is answered No.
    std::deque<Respuesta> respuestas;
    // Runs while the box is "up", as the user's time in front of it.
    std::function<void(const MensajeMostrado&)> alMostrar;
};

class FicherosDoble final : public Ficheros {
public:
    std::optional<FicheroElegido> Abrir(const DialogoFichero& dialogo) override;
    std::optional<FicheroElegido> Guardar(const DialogoFichero& dialogo) override;

    std::vector<DialogoFichero> abiertos;
    std::vector<DialogoFichero> guardados;
    // The user's choices, in order; nothing left in the script is a Cancel.
    std::deque<std::optional<FicheroElegido>> respuestas;

private:
    std::optional<FicheroElegido> Responde();
};

class VentanasDoble final : public Ventanas {
public:
    // Shows the dialog without a loop of its own, runs the script against it, and closes it
    // as the user's Escape would if the script left it open.
    int MuestraModal(QDialog& dialogo) override;

    QStringList mostradas;  // objectName of each dialog shown
    std::function<void(QDialog&)> alMostrar;
};

class MonitorDoble final : public Monitor {
public:
    QSizeF Tamano() const override { return tamano; }
    QSizeF tamano{1024.0, 768.0};
};

class RegionalDoble final : public Regional {
public:
    // Starts with the separator of the machine's settings, so that the whole suite runs under
    // each setting it is given; a test may set either one.
    RegionalDoble();
    char SeparadorDecimal() const override { return separador; }
    char separador;
};

class ProcesoDoble final : public Proceso {
public:
    void Termina(int codigo) override { terminaciones.push_back(codigo); }
    void ErrorFatal(const ErrorEjecucion& error) override;

    std::vector<int> terminaciones;
    std::vector<MensajeMostrado> erroresFatales;
};

class AyudaDoble final : public Ayuda {
public:
    // What the help was asked to show: the help file and the context, 0 for the contents.
    struct Peticion {
        QString fichero;
        int contexto;
    };
    void MuestraTema(const QString& ficheroAyuda, int contexto) override { peticiones.push_back({ficheroAyuda, contexto}); }
    void MuestraContenido(const QString& ficheroAyuda) override { peticiones.push_back({ficheroAyuda, 0}); }

    std::vector<Peticion> peticiones;
};

class EscritorioDoble final : public Escritorio {
public:
    bool AbreFichero(const QString& fichero) override;
    bool AbreDireccion(const QString& direccion) override;

    QStringList ficheros;
    QStringList direcciones;
    bool sinVisor = false;  // no viewer is associated with the file
    bool sinNavegador = false;  // no browser is installed
};

class CorreoDoble final : public Correo {
public:
    bool IniciaSesion() override;
    bool Redacta(const QString& asunto, const QString& destinatario) override;
    void CierraSesion() override { ++cierres; }

    struct Mensaje {
        QString asunto;
        QString destinatario;
    };
    int inicios = 0;
    int cierres = 0;
    std::vector<Mensaje> mensajes;
    bool fallaInicio = false;  // there is no mail program to sign on to
    bool fallaEnvio = false;  // the message cannot be composed, or the user cancels it
};

class PlataformaDoble {
public:
    PlataformaDoble();
    ~PlataformaDoble();
    PlataformaDoble(const PlataformaDoble&) = delete;
    PlataformaDoble& operator=(const PlataformaDoble&) = delete;

    MensajesDoble mensajes;
    FicherosDoble ficheros;
    VentanasDoble ventanas;
    MonitorDoble monitor;
    RegionalDoble regional;
    ProcesoDoble proceso;
    ImpresorasDoble impresoras;
    AyudaDoble ayuda;
    EscritorioDoble escritorio;
    CorreoDoble correo;

private:
    Servicios anteriores_;
};

}  // namespace texalon::plataforma
