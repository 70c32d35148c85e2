#include "Pantallas.h"

#include "comun/Usuario.h"
#include "diagrams/Lista.h"
#include "diagrams/qt/Lienzo.h"
#include "screens/Entrada.h"
#include "screens/Formulario.h"
#include "screens/RejillaResultados.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
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

namespace {

// The state's value of that name, "ANCHO" or "FCK".
double General::*CampoDelEstado(const QString& nombre)
{
    static const std::map<QString, double General::*> campos{
        {QStringLiteral("ANCHO"), &General::ANCHO},
        {QStringLiteral("CANTO"), &General::CANTO},
        {QStringLiteral("ANCHOALMA"), &General::ANCHOALMA},
        {QStringLiteral("CANTOALA"), &General::CANTOALA},
        {QStringLiteral("RECUB"), &General::RECUB},
        {QStringLiteral("ASI"), &General::ASI},
        {QStringLiteral("ASS"), &General::ASS},
        {QStringLiteral("MCP"), &General::MCP},
        {QStringLiteral("MD"), &General::MD},
        {QStringLiteral("FCK"), &General::FCK},
        {QStringLiteral("FYK"), &General::FYK},
        {QStringLiteral("ANCHOR"), &General::ANCHOR},
        {QStringLiteral("DIAM"), &General::DIAM},
        {QStringLiteral("LADOMENOR"), &General::LADOMENOR},
        {QStringLiteral("INCR"), &General::INCR},
        {QStringLiteral("NCP"), &General::NCP},
        {QStringLiteral("GC"), &General::GC},
        {QStringLiteral("GS"), &General::GS},
        {QStringLiteral("GR"), &General::GR},
        {QStringLiteral("NU"), &General::NU},
    };
    return campos.at(nombre);
}

}  // namespace

void PruebaDePantalla::MuestraActiva(QWidget* pantalla)
{
    pantalla->show();
    pantalla->activateWindow();
    if (!QTest::qWaitForWindowActive(pantalla)) qWarning("la pantalla no se ha activado");
}

void PruebaDePantalla::Recorre(const Pasos& pasos)
{
    doble_->mensajes.mostrados.clear();
    for (const Paso& paso : pasos) {
        const QString texto = QString::fromUtf8(paso.texto);
        EscribeYTabula(C(paso.control), texto);
        const QString mensaje = QString::fromUtf8(paso.mensaje);
        QCOMPARE(Mensajes(), mensaje.isEmpty() ? QStringList() : QStringList{mensaje});
        if (!qIsNaN(paso.valor)) QCOMPARE(ValorDelCampo(paso.control), paso.valor);
        if (paso.escrito != nullptr) QCOMPARE(TextoDe(C(paso.control)), Sep(paso.escrito));
        if (paso.foco != nullptr) QVERIFY2(C(paso.foco)->hasFocus(), paso.foco);
        if (paso.foco != nullptr && qstrcmp(paso.foco, paso.control) == 0 && !mensaje.isEmpty() && !texto.isEmpty())
            QVERIFY2(FocoYSeleccion(paso.control), paso.control);
        doble_->mensajes.mostrados.clear();
    }
}

double& PruebaDePantalla::ValorDelCampo(const char* control)
{
    return Estado().*CampoDelEstado(QString::fromLatin1(control).mid(3));
}

QStringList PruebaDePantalla::Textos(std::initializer_list<const char*> controles) const
{
    QStringList textos;
    for (const char* control : controles)
        textos << TextoDe(C(control));
    return textos;
}

QStringList PruebaDePantalla::Sep(std::initializer_list<const char*> textos) const
{
    QStringList escritos;
    for (const char* texto : textos)
        escritos << Sep(texto);
    return escritos;
}

QStringList PruebaDePantalla::FilaDe(const char* rejilla, int fila) const
{
    const auto* r = qobject_cast<const RejillaResultados*>(C(rejilla));
    QStringList textos;
    for (int columna = 0; columna < r->columnCount(); ++columna)
        textos << r->Texto(fila, columna);
    return textos;
}

void PruebaDePantalla::CompruebaLetrero(const QString& texto, const QColor& fondo)
{
    const auto* letrero = qobject_cast<const QLabel*>(C("LB_INFO"));
    QVERIFY(letrero->isVisible());
    QCOMPARE(letrero->text(), texto);
    QCOMPARE(letrero->palette().color(QPalette::Window), fondo);
    QCOMPARE(letrero->palette().color(QPalette::WindowText), QColor(Qt::white));
    QVERIFY(letrero->autoFillBackground());
}

void EscribeValores(General& g, const QString& valores)
{
    for (const QString& asignacion : valores.split(QLatin1Char(';'))) {
        const QStringList partes = asignacion.split(QLatin1Char('='));
        if (partes.first() == QStringLiteral("SECCION"))
            g.SECCION = static_cast<Entero>(partes.last().toInt());
        else
            g.*CampoDelEstado(partes.first()) = partes.last().toDouble();
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

void PruebaDePantalla::Calcula() { Pulsa(C("CM_CALCULAR")); }

void PruebaDePantalla::CalculaCon(const char* control, const QString& texto)
{
    EscribeYTabula(C(control), texto);
    Calcula();
}

void PruebaDePantalla::CalculaDeNuevoCon(const char* control, const QString& texto)
{
    Calcula();
    CalculaCon(control, texto);
}

void PruebaDePantalla::TecleaSinSalir(const char* control, const QString& texto)
{
    QVERIFY2(Enfoca(C(control)), control);
    Teclea(C(control), texto);
}

char PruebaDePantalla::SeparadorDeLaMaquina() { return plataforma::RegionalDoble().separador; }

void PruebaDePantalla::CorrigeElCoeficienteYCalcula(const char* control, const char* nuevo, const char* mensaje,
                                                    double valor, const char* rejilla)
{
    bool enfocado = false;
    doble_->ventanas.alMostrar = CorrigeCoeficiente(control, QString::fromUtf8(nuevo), enfocado);
    Calcula();
    doble_->ventanas.alMostrar = nullptr;
    QCOMPARE(Mensajes(), QStringList{QString::fromUtf8(mensaje)});
    QCOMPARE(doble_->ventanas.mostradas, QStringList{QStringLiteral("FM_COEF")});
    QVERIFY(enfocado);
    QCOMPARE(ValorDelCampo(control), valor);
    QVERIFY(!Estado().F_CALCULADO);
    QVERIFY(doble_->proceso.erroresFatales.empty());
    EnPrueba()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(EnPrueba()));
    Calcula();
    QVERIFY(Estado().F_CALCULADO);
    QVERIFY(qobject_cast<RejillaResultados*>(C(rejilla))->EstaActiva());
}

QString PruebaDePantalla::CierraYGuarda(const char* nombre)
{
    const QString fichero = QDir::temp().filePath(QString::fromLatin1(nombre));
    doble_->mensajes.respuestas = {plataforma::Respuesta::Si};
    doble_->ficheros.respuestas.push_back(plataforma::FicheroElegido{fichero, QDir::tempPath()});
    EnPrueba()->close();
    return fichero;
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
