// The frame of the program's dialogs on the window system.
#pragma once

class QDialog;

namespace texalon::plataforma {

// A dialog of the program is a fixed-size window with a caption and a close button, with no
// minimise or maximise, and at least as wide as the window manager needs to show its caption
// whole. Called once the dialog holds its caption and its contents.
void PreparaDialogo(QDialog& dialogo);

// The width the window manager needs for a caption with its icon and close button, in pixels.
int AnchoParaTitulo(const QDialog& dialogo);

}  // namespace texalon::plataforma
