// The pictures of the program's screens: PIC_FLEXION of FM_FLEXION and FM_FLEXIONT,
// PIC_CONFINA of FM_CONFINA and PIC_CARAC of FM_CARAC.
//
// A picture has a fixed size in pixels. The screens make their pictures of that size, and the
// batch command fits the SVG file of a diagram to the size of the picture that the diagram
// belongs to, so that the file looks as the screen's picture does.
//
// Plain data, no Qt, so that the batch command's library can name a picture.
#pragma once

namespace texalon {

// The drawing area of a picture, in pixels.
struct TamanoDibujo {
    int ancho;
    int alto;
};

struct Dibujo {
    const char* nombre;  // the control's name, "PIC_FLEXION"
    TamanoDibujo tamano;
    // Whether the picture shows section drawings, which its right click fits again with one
    // scale in both directions. PIC_CARAC only ever shows the stress-strain chart.
    bool muestraSecciones;
};

inline constexpr Dibujo kPicFlexion{"PIC_FLEXION", {440, 176}, true};
inline constexpr Dibujo kPicConfina{"PIC_CONFINA", {440, 212}, true};
inline constexpr Dibujo kPicCarac{"PIC_CARAC", {734, 238}, false};

}  // namespace texalon
