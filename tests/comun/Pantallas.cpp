#include "Pantallas.h"

#include "screens/Formulario.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>
#include <fstream>
#include <sstream>

namespace texalon::prueba {

void FilasSeparador()
{
    QTest::addColumn<char>("separador");
    QTest::newRow("coma") << ',';
    QTest::newRow("punto") << '.';
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
