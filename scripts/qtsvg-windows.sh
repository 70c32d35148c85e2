# Qt's SVG module for the Windows build; sourced by scripts/qt-windows.sh, after qtbase is
# installed in $TEXALON_QT_WINDOWS.
#
# Debian's qt6-svg source package is the first choice. Where the archive does not serve its
# tarball (this machine's mirror answers 404 for qt6-svg_6.4.2.orig.tar.xz), the SVG module is
# built from Debian's qtsvg-opensource-src (Qt 5.15.8), brought to Qt 6 (QStringRef renamed
# QStringView, then packaging/windows/qtsvg/qtsvg-qt6.patch) and built by the CMake file beside
# it: the same renderer and generator, under the names that Qt 6 gives them.
construye_qtsvg() {
  local carpeta
  if carpeta=$(trae_fuente qt6-svg 2>/dev/null); then
    cmake -S "$carpeta" -B "$TRABAJO/qtsvg-build" "${CRUZADO[@]}" \
      -DCMAKE_PREFIX_PATH="$TEXALON_QT_WINDOWS" -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
  else
    echo "qt6-svg no está en el archivo: se construye el SVG de qtsvg-opensource-src (Qt 5.15)"
    carpeta=$(trae_fuente qtsvg-opensource-src)
    if [ ! -f "$carpeta/.texalon-adaptado" ]; then
      # Qt 6 has no QStringRef; QStringView takes its place everywhere, and the patch does the rest.
      sed -i 's/QStringRef/QStringView/g' "$carpeta"/src/svg/*.cpp "$carpeta"/src/svg/*.h
      patch -d "$carpeta" -p1 < "$PROYECTO/packaging/windows/qtsvg/qtsvg-qt6.patch"
      touch "$carpeta/.texalon-adaptado"
    fi
    cmake -S "$PROYECTO/packaging/windows/qtsvg" -B "$TRABAJO/qtsvg-build" "${CRUZADO[@]}" \
      -DCMAKE_PREFIX_PATH="$TEXALON_QT_WINDOWS" -DQTSVG_FUENTES="$carpeta"
  fi
  cmake --build "$TRABAJO/qtsvg-build" -j"$(nproc)"
  cmake --install "$TRABAJO/qtsvg-build"
}
