#include "Pantallas.h"

#include "diagrams/Lista.h"
#include "diagrams/qt/Lienzo.h"
#include "screens/Formulario.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <fstream>
#include <map>
#include <sstream>

namespace texalon::prueba {

void FilasSeparador()
{
    QTest::addColumn<char>("separador");
    QTest::newRow("coma") << ',';
    QTest::newRow("punto") << '.';
}

QString DiferenciaConLaLista(const Lienzo& lienzo, const GeneralDibujo& d, Entero isotropico)
{
    const TamanoDibujo tamano = lienzo.Tamano();
    const Encuadre e = Encuadra(d, tamano.ancho, tamano.alto, isotropico);
    const std::vector<ElementoPantalla> lineas = lienzo.Escena().Elementos(ClasePantalla::Linea);
    const auto textos = lienzo.Escena().Elementos(ClasePantalla::Tit).size();
    if (static_cast<int>(lineas.size()) != d.NLINEA || static_cast<int>(textos) != d.NTIT)
        return QStringLiteral("%1 líneas y %2 textos a la vista, NLINEA %3 y NTIT %4")
            .arg(lineas.size())
            .arg(textos)
            .arg(d.NLINEA)
            .arg(d.NTIT);
    int primera = 1;
    while (primera <= d.NLISTA && ClaseElemento(d, primera) != static_cast<int>(Clase::Linea))
        ++primera;
    if (primera > d.NLISTA) return lineas.empty() ? QString() : QStringLiteral("líneas sin lista");
    const ElementoPantalla& linea = lineas.front();
    const double x1 = e.X(d.LISTA(primera, campo::kX1));
    const double y2 = e.Y(d.LISTA(primera, campo::kY2));
    if (linea.x1 != x1 || linea.y2 != y2)
        return QStringLiteral("la primera línea va de x %1 a y %2; ajustada, de %3 a %4")
            .arg(linea.x1)
            .arg(linea.y2)
            .arg(x1)
            .arg(y2);
    return {};
}

QWidget* PruebaDePantalla::C(const char* nombre) const { return EnPrueba()->Control(QString::fromLatin1(nombre)); }

QLineEdit* PruebaDePantalla::Campo(const char* nombre) const { return qobject_cast<QLineEdit*>(C(nombre)); }

QComboBox* PruebaDePantalla::Lista(const char* nombre) const { return qobject_cast<QComboBox*>(C(nombre)); }

void PruebaDePantalla::NuevosDobles(char separador)
{
    doble_.reset();
    doble_ = std::make_unique<plataforma::PlataformaDoble>();
    doble_->regional.separador = separador;
    separador_ = separador;
}

QString PruebaDePantalla::Sep(const char* texto) const
{
    QString s = QString::fromUtf8(texto);
    if (separador_ == '.') s.replace(QLatin1Char(','), QLatin1Char('.'));
    return s;
}

QStringList PruebaDePantalla::Mensajes() const
{
    QStringList lista;
    for (const auto& m : doble_->mensajes.mostrados)
        lista << m.texto;
    return lista;
}

bool PruebaDePantalla::FocoYSeleccion(const char* nombre) const
{
    QWidget* control = C(nombre);
    QLineEdit* editor = qobject_cast<QLineEdit*>(control);
    if (auto* lista = qobject_cast<QComboBox*>(control)) editor = lista->lineEdit();
    return editor != nullptr && QApplication::focusWidget() == control && !editor->text().isEmpty() &&
           editor->selectedText() == editor->text();
}

void PruebaDePantalla::EscribeValores(General& g, const QString& valores)
{
    static const std::map<QString, double General::*> campos{
        {QStringLiteral("ANCHO"), &General::ANCHO},         {QStringLiteral("CANTO"), &General::CANTO},
        {QStringLiteral("ANCHOALMA"), &General::ANCHOALMA}, {QStringLiteral("CANTOALA"), &General::CANTOALA},
        {QStringLiteral("RECUB"), &General::RECUB},         {QStringLiteral("ASI"), &General::ASI},
        {QStringLiteral("ANCHOR"), &General::ANCHOR},       {QStringLiteral("DIAM"), &General::DIAM},
        {QStringLiteral("LADOMENOR"), &General::LADOMENOR}, {QStringLiteral("GC"), &General::GC},
        {QStringLiteral("GS"), &General::GS},               {QStringLiteral("GR"), &General::GR},
    };
    for (const QString& asignacion : valores.split(QLatin1Char(';'))) {
        const QStringList partes = asignacion.split(QLatin1Char('='));
        if (partes.first() == QStringLiteral("SECCION"))
            g.SECCION = static_cast<Entero>(partes.last().toInt());
        else
            g.*campos.at(partes.first()) = partes.last().toDouble();
    }
}

std::function<void(QDialog&)> PruebaDePantalla::CorrigeCoeficiente(const char* control, const QString& nuevo,
                                                                   bool& enfocado)
{
    return [nombre = QString::fromLatin1(control), nuevo, &enfocado](QDialog& dialogo) {
        dialogo.activateWindow();
        auto* campo = dialogo.findChild<QLineEdit*>(nombre);
        enfocado = QTest::qWaitForWindowActive(&dialogo) &&
                   QTest::qWaitFor([campo] { return QApplication::focusWidget() == campo; }) &&
                   !campo->text().isEmpty() && campo->selectedText() == campo->text();
        QTest::keyClicks(campo, nuevo);
        QTest::keyClick(campo, Qt::Key_Tab);
        QTest::mouseClick(dialogo.findChild<QPushButton*>(QStringLiteral("CM_ACEPTAR")), Qt::LeftButton);
    };
}

void PruebaDePantalla::CierraPantalla()
{
    if (Formulario* pantalla = EnPrueba()) {
        doble_->mensajes.respuestas.clear();
        pantalla->close();
    }
    delete EnPrueba();
    doble_.reset();
}

std::string PruebaDePantalla::Contenido(const QString& fichero)
{
    std::ifstream leido(fichero.toStdString(), std::ios::binary);
    std::stringstream contenido;
    contenido << leido.rdbuf();
    return contenido.str();
}

}  // namespace texalon::prueba
