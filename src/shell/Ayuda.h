// The four commands that take the user out of the program: the help, the guide in PDF, the
// maker's web site and a mail to the maker.
#pragma once

#include <QString>

namespace texalon {

// The maker's web site, written without a scheme, and its contact mailbox: values of the
// product, set when the program is built.
QString DireccionWebVelmora();
QString BuzonVelmora();

// The subject of every mail to the maker.
inline const QString kAsuntoCorreo = QStringLiteral("INFORMACION SOBRE EL SISTEMA DE REFUERZO TEXALON®");

// The help file of the program (the folder of its pages) and the guide.
QString FicheroAyuda();
QString FicheroGuia();

// Opens the file with the PDF reader; when none can be found or started, says so.
void AbrePDF(const QString& fichero);
// Opens the address with the browser; when none can be found or started, says so.
void AbreWeb(const QString& direccion);
// A new mail to the maker in the user's mail program, signing on first if this run has not.
void Correo();
// Signs the mail session off at the end of the run, if one was signed on.
void CierraCorreo();

}  // namespace texalon
