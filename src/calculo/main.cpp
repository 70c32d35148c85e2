// texalon-calculo: calculates TEXALON project files from the command line.
#include "calculo/Calculo.h"
#include "diagrams/qt/Svg.h"
#include "platform/Consola.h"
#include "platform/qt/ImpresoraQt.h"

#include <QApplication>
#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

#include <clocale>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

// The machine's decimal separator, read once. The C locale is put back at once, so that
// nothing else in the process converts numbers by the machine's settings.
char SeparadorDelSistema()
{
    const char* ajustado = std::setlocale(LC_ALL, "");
    const char separador =
        texalon::calculo::SeparadorDecimal(ajustado != nullptr ? std::localeconv()->decimal_point : nullptr);
    std::setlocale(LC_ALL, "C");
    return separador;
}

// The toolkit's own notes (a runtime folder it makes up, a font it stands in) are no messages
// of the command: only its critical and fatal ones reach the error output.
void MensajeDelToolkit(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto)
{
    if (tipo == QtDebugMsg || tipo == QtInfoMsg || tipo == QtWarningMsg) return;
    std::cerr << qPrintable(qFormatLogMessage(tipo, contexto, texto)) << std::endl;
}

// The windowing toolkit, started only for the first SVG file or report: it measures the texts as
// the screen and the printer do. The files need no display, and so the offscreen platform
// serves whenever none is asked for.
class Aplicacion {
public:
    void Arranca()
    {
        if (aplicacion_) return;
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(MensajeDelToolkit);
        aplicacion_ = std::make_unique<QApplication>(argc_, argv_);
        // The toolkit takes the machine's locale on starting; numbers keep to the C locale.
        std::setlocale(LC_ALL, "C");
    }

private:
    // The toolkit sees the program's name alone, so that no file name is taken for its options.
    char nombre_[16] = "texalon-calculo";
    char* argv_[2] = {nombre_, nullptr};
    int argc_ = 1;
    std::unique_ptr<QApplication> aplicacion_;
};

}  // namespace

int main(int argc, char* argv[])
{
    texalon::plataforma::PreparaConsola();
    const std::vector<std::string> argumentos = texalon::plataforma::ArgumentosUtf8(argc, argv);
    const char separador = SeparadorDelSistema();
    Aplicacion aplicacion;
    texalon::calculo::Dispositivos dispositivos;
    dispositivos.svg = [&aplicacion](const texalon::GeneralDibujo& d, const texalon::Dibujo& dibujo,
                                     texalon::Entero isotropico, const std::string& fichero) {
        aplicacion.Arranca();
        return texalon::EscribeSvg(d, dibujo.tamano, isotropico, QString::fromStdString(fichero));
    };
    dispositivos.pdf = [&aplicacion](const std::string& fichero,
                                     const std::function<void(texalon::plataforma::Impresora&)>& imprime) {
        aplicacion.Arranca();
        const std::unique_ptr<texalon::plataforma::ImpresoraQt> impresora =
            texalon::plataforma::ImpresoraQt::PdfEn(QString::fromStdString(fichero));
        if (!impresora) return false;
        imprime(*impresora);
        return true;
    };
    return texalon::calculo::Ejecuta(argumentos, separador, std::cout, std::cerr, dispositivos);
}
