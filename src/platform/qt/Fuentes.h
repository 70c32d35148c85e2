// The fonts that the program carries, for a system that lacks the one it draws with.
#pragma once

#include <QFont>
#include <QString>

namespace texalon::plataforma {

// The screens, the pictures and the reports draw in Arial. Where the system has no Arial (Wine,
// a Windows without it, Qt's offscreen platform on Windows, which reads only the fonts it is
// given), the program adds the Liberation Sans that it carries, whose letters measure as
// Arial's, and takes it for Arial: the texts measure as on a Linux desktop, where fontconfig
// makes the same substitution. Does nothing on a system that has Arial, or with no such folder.
// Returns the number of font files added.
int CargaFuentesPropias(const QString& carpeta);

// The font with its letters hinted vertically only, as fontconfig hints them on a Debian
// desktop: their advances are the font's own, and so a text is as wide, and a label stands as
// far, on every system. Qt's FreeType on Windows would hint them fully, which widens and narrows
// them by whole pixels; the Windows platform draws such a font with DirectWrite, unhinted across.
QFont ConAnchoPropio(QFont letra);

// The folder of the fonts that the program carries: "fuentes" beside the program, else the
// build's own copy.
QString CarpetaFuentesPropias();

}  // namespace texalon::plataforma
