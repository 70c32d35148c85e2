// The screenshots of docs/: the program driven as a user drives it, on a real display, and the
// whole screen taken after each step; and the report of each screen printed to PDF. Run tools/capturas/capturas.sh; it starts a virtual
// display with a window manager, so that the pictures show what a user sees.
#include "comun/Usuario.h"
#include "platform/Impresora.h"
#include "platform/Plataforma.h"
#include "platform/qt/PlataformaQt.h"
#include "screens/Formulario.h"
#include "shell/Aplicacion.h"
#include "shell/FmPresentacion.h"
#include "shell/MdiPrincipal.h"
#include "state/General.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <cstdio>

namespace texalon {
namespace {

QString carpeta;

// The save dialog of the PDF printer, answered as the user would: the name it offers, in the
// folder of the pictures.
class FicherosDeCaptura final : public plataforma::Ficheros {
public:
    explicit FicherosDeCaptura(plataforma::Ficheros& reales) : reales_(reales) {}
    std::optional<plataforma::FicheroElegido> Abrir(const plataforma::DialogoFichero& dialogo) override
    {
        return reales_.Abrir(dialogo);
    }
    std::optional<plataforma::FicheroElegido> Guardar(const plataforma::DialogoFichero& dialogo) override
    {
        return plataforma::FicheroElegido{carpeta + QStringLiteral("/") + QFileInfo(dialogo.nombre).fileName(), carpeta};
    }

private:
    plataforma::Ficheros& reales_;
};

// The report of the open screen, by the Print command, on the PDF printer.
void Imprime(MdiPrincipal& p)
{
    plataforma::ServicioImpresoras().Elige(plataforma::kImprimirAPdf);
    p.Imprimir();
}

void Espera(int ms = 400) { QTest::qWait(ms); }

// The whole screen, window manager and all.
void Captura(const char* nombre)
{
    Espera(600);
    const QString fichero = carpeta + QStringLiteral("/") + QString::fromLatin1(nombre) + QStringLiteral(".png");
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(fichero)) std::fprintf(stderr, "no se ha escrito %s\n", nombre);
}

QWidget* C(MdiPrincipal& principal, const char* nombre)
{
    return principal.PantallaAbierta()->Control(QString::fromLatin1(nombre));
}

void Escribe(MdiPrincipal& p, const char* nombre, const char* texto)
{
    prueba::EscribeYTabula(C(p, nombre), QString::fromUtf8(texto));
}

void Pulsa(MdiPrincipal& p, const char* nombre)
{
    prueba::Pulsa(C(p, nombre));
    Espera();
}

// A new screen by the shell's command. The project on show counts as saved, so that no prompt
// stops the tour, and the main window takes the focus back from the closing splash.
void Abre(MdiPrincipal& p, void (MdiPrincipal::*orden)())
{
    Estado().F_GRABADO = true;
    Estado().F_MODIFICADO = false;
    (p.*orden)();
    p.activateWindow();
    if (!QTest::qWaitForWindowActive(&p)) std::fprintf(stderr, "la ventana principal no se ha activado\n");
    Espera();
}

void Recorre(MdiPrincipal& p)
{
    Abre(p, &MdiPrincipal::NuevaFlexion);
    Escribe(p, "TX_MD", "250");
    Pulsa(p, "CM_CALCULAR");
    Captura("flexion");
    // Two clicks around the first layers of the chart, the band stretched between them.
    QWidget* dibujo = qobject_cast<QAbstractScrollArea*>(C(p, "PIC_FLEXION"))->viewport();
    QTest::mouseClick(dibujo, Qt::LeftButton, {}, QPoint(30, 70));
    QTest::mouseMove(dibujo, QPoint(200, 120));
    Captura("flexion_banda");
    QTest::mouseClick(dibujo, Qt::LeftButton, {}, QPoint(200, 120));
    Captura("flexion_zoom");
    QTest::mouseClick(dibujo, Qt::RightButton, {}, QPoint(5, 5));
    Pulsa(p, "CM_ARMADURA");
    Captura("flexion_area");
    Pulsa(p, "CM_DEFORMACIONES");
    Captura("flexion_pivotes");
    Imprime(p);

    Abre(p, &MdiPrincipal::NuevaFlexionT);
    Escribe(p, "TX_MD", "300");
    Pulsa(p, "CM_CALCULAR");
    Captura("flexion_t");
    Escribe(p, "TX_MD", "250");
    Pulsa(p, "CM_CALCULAR");
    Imprime(p);
    Pulsa(p, "CM_SECCION");
    Captura("flexion_t_seccion");

    Abre(p, &MdiPrincipal::NuevoConfinamiento);
    Escribe(p, "TX_INCR", "1,2");
    Pulsa(p, "CM_CALCULAR");
    Captura("confina_calculado");
    Imprime(p);
    Pulsa(p, "CM_SECCION");
    Captura("confina_seccion");

    Abre(p, &MdiPrincipal::NuevoConfinamiento);
    auto* seccion = qobject_cast<QComboBox*>(C(p, "CO_SECCION"));
    prueba::Enfoca(seccion);
    QTest::keyClick(seccion, Qt::Key_Down);
    QTest::keyClick(seccion, Qt::Key_Down);
    Escribe(p, "TX_DIAM", "0,45");
    Escribe(p, "TX_LADOMENOR", "0,35");
    Escribe(p, "TX_INCR", "1,1");
    Escribe(p, "TX_NCP", "800");
    Escribe(p, "CO_FCK", "30");
    Pulsa(p, "CM_CALCULAR");
    Captura("confina");

    Abre(p, &MdiPrincipal::Caracteristicas);
    prueba::Pulsa(qobject_cast<QRadioButton*>(C(p, "OP_TX")));
    Captura("caracteristicas");
    Imprime(p);

    // Principal → Configurar impresora: the printer dialog, taken while it is up.
    QTimer::singleShot(1200, [] {
        Captura("impresora");
        if (QWidget* dialogo = QApplication::activeModalWidget()) dialogo->close();
    });
    p.ConfigurarImpresora();

    // F1 on the rectangular section: the help window on its topic.
    Abre(p, &MdiPrincipal::NuevaFlexion);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    Captura("ayuda");
}

}  // namespace
}  // namespace texalon

int main(int argc, char** argv)
{
    texalon::AplicacionTexalon aplicacion(argc, argv);
    texalon::plataforma::InstalaQt();
    texalon::PreparaAplicacion(aplicacion);
    texalon::carpeta = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
    texalon::plataforma::Servicios servicios = texalon::plataforma::Instala({});
    texalon::FicherosDeCaptura ficheros(*servicios.ficheros);
    servicios.ficheros = &ficheros;
    texalon::plataforma::Instala(servicios);
    texalon::MdiPrincipal principal;
    principal.show();
    principal.activateWindow();
    if (!QTest::qWaitForWindowActive(&principal)) std::fprintf(stderr, "la ventana principal no se ha activado\n");
    texalon::Espera(1500);
    texalon::Captura("principal");
    // A key sends the splash away, as it does for the user.
    if (texalon::FmPresentacion* presentacion = principal.Presentacion()) QTest::keyClick(presentacion, Qt::Key_Escape);
    texalon::Recorre(principal);
    return 0;
}
