// Mail through Simple MAPI, with the mailto: handler where the system has no mail service: the
// choice of the session, one sign-on a run, the subject and the recipient handed over, and the
// sign-off of the session that was signed on.
#include "platform/CorreoMapi.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace texalon::plataforma {
namespace {

class MapiDoble final : public ApiMapi {
public:
    bool hay = true;
    unsigned long resultadoInicio = kExito;
    unsigned long resultadoEnvio = kExito;
    int inicios = 0;
    int cierres = 0;
    std::vector<std::string> asuntos;
    std::vector<std::string> destinatarios;
    Sesion cerrada = 0;

    bool Disponible() override { return hay; }
    unsigned long Inicia(Sesion& sesion) override
    {
        ++inicios;
        sesion = 0x51;
        return resultadoInicio;
    }
    unsigned long Envia(Sesion sesion, const std::string& asunto, const std::string& destinatario) override
    {
        EXPECT_EQ(sesion, 0x51u);
        asuntos.push_back(asunto);
        destinatarios.push_back(destinatario);
        return resultadoEnvio;
    }
    unsigned long Cierra(Sesion sesion) override
    {
        ++cierres;
        cerrada = sesion;
        return kExito;
    }
};

class MailtoDoble final : public Correo {
public:
    int inicios = 0;
    int redactados = 0;
    int cierres = 0;
    bool IniciaSesion() override { return ++inicios > 0; }
    bool Redacta(const QString&, const QString&) override { return ++redactados > 0; }
    void CierraSesion() override { ++cierres; }
};

const QString kAsunto = QStringLiteral("INFORMACION SOBRE EL SISTEMA DE REFUERZO TEXALON®");
const QString kBuzon = QStringLiteral("texalon@velmora.example");

// Every case: the mail over a double of MAPI, with a double of the mailto: handler behind it.
class CorreoPorMapi : public ::testing::Test {
protected:
    MapiDoble mapi;
    MailtoDoble mailto;
    CorreoMapi correo{mapi, mailto};
};

TEST_F(CorreoPorMapi, ConMapiFirmaUnaVezYEnviaElAsuntoYElDestinatarioEnUtf8)
{
    ASSERT_TRUE(correo.IniciaSesion());
    EXPECT_TRUE(correo.PorMapi());
    EXPECT_TRUE(correo.Redacta(kAsunto, kBuzon));
    EXPECT_TRUE(correo.Redacta(kAsunto, kBuzon));
    EXPECT_EQ(mapi.inicios, 1);
    ASSERT_EQ(mapi.asuntos.size(), 2u);
    EXPECT_EQ(mapi.asuntos[0], "INFORMACION SOBRE EL SISTEMA DE REFUERZO TEXALON\xC2\xAE");
    EXPECT_EQ(mapi.destinatarios[0], "texalon@velmora.example");
    EXPECT_EQ(mailto.inicios, 0);
    EXPECT_EQ(mailto.redactados, 0);
}

TEST_F(CorreoPorMapi, SinMapiElCorreoVaAlManejadorMailto)
{
    mapi.hay = false;
    ASSERT_TRUE(correo.IniciaSesion());
    EXPECT_FALSE(correo.PorMapi());
    EXPECT_TRUE(correo.Redacta(kAsunto, kBuzon));
    EXPECT_EQ(mapi.inicios, 0);
    EXPECT_EQ(mailto.inicios, 1);
    EXPECT_EQ(mailto.redactados, 1);
    correo.CierraSesion();
    EXPECT_EQ(mailto.cierres, 1);
    EXPECT_EQ(mapi.cierres, 0);
}

TEST_F(CorreoPorMapi, UnFalloDeFirmaQueNoEsDelUsuarioVaAlManejadorMailto)
{
    mapi.resultadoInicio = 3;  // MAPI_E_LOGIN_FAILURE: no mail profile
    ASSERT_TRUE(correo.IniciaSesion());
    EXPECT_FALSE(correo.PorMapi());
    EXPECT_TRUE(correo.Redacta(kAsunto, kBuzon));
    EXPECT_EQ(mailto.redactados, 1);
    EXPECT_TRUE(mapi.asuntos.empty());
}

TEST_F(CorreoPorMapi, LaFirmaCanceladaPorElUsuarioFalla)
{
    mapi.resultadoInicio = ApiMapi::kCanceladoPorElUsuario;
    EXPECT_FALSE(correo.IniciaSesion());
    EXPECT_EQ(mailto.inicios, 0);
}

TEST_F(CorreoPorMapi, UnEnvioCanceladoOFallidoFallaYLaSesionSigue)
{
    mapi.resultadoEnvio = ApiMapi::kCanceladoPorElUsuario;
    ASSERT_TRUE(correo.IniciaSesion());
    EXPECT_FALSE(correo.Redacta(kAsunto, kBuzon));
    EXPECT_TRUE(correo.PorMapi());
    mapi.resultadoEnvio = ApiMapi::kExito;
    EXPECT_TRUE(correo.Redacta(kAsunto, kBuzon));
    EXPECT_EQ(mapi.inicios, 1);
}

TEST_F(CorreoPorMapi, CerrarLaSesionMapiLaCierraUnaVez)
{
    ASSERT_TRUE(correo.IniciaSesion());
    correo.CierraSesion();
    EXPECT_EQ(mapi.cierres, 1);
    EXPECT_EQ(mapi.cerrada, 0x51u);
    EXPECT_FALSE(correo.PorMapi());
    EXPECT_EQ(mailto.cierres, 0);
}

}  // namespace
}  // namespace texalon::plataforma
