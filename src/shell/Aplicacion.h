// The application object of the program and its one-time preparation.
#pragma once

#include <QApplication>

namespace texalon {

// Traps the run-time errors that no handler traps, as the classic runtime did: the error's
// message, then the end of the process. Nothing in the program goes on after such an error.
class AplicacionTexalon : public QApplication {
public:
    AplicacionTexalon(int& argc, char** argv);
    bool notify(QObject* receptor, QEvent* evento) override;
};

// Qt's own texts in Spanish (the Yes and No buttons, the file dialog), Arial as the font
// asked for by name, the program's look and its window icon.
void PreparaAplicacion(QApplication& aplicacion);

// The name of the Spanish translation of Qt's texts that PreparaAplicacion loads.
QString FicheroTraduccionQt();

}  // namespace texalon
