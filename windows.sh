#!/usr/bin/env bash
# TEXALON for Windows, made on this Debian machine: installs what is missing, builds Qt for
# Windows once (scripts/qt-windows.sh, cached), cross-builds the project with MinGW-w64 in
# ./build-windows, runs every test under Wine with a Spanish and an English decimal setting, and
# makes the installer texalon-1.0-instalador.exe, left in this folder, and tries it under Wine
# (scripts/prueba-instalador.sh). Exits non-zero on any failure.
#
#   ./windows.sh                 everything
#   ./windows.sh --sin-pruebas   the build and the installer, without the tests
set -euo pipefail
cd "$(dirname "$0")"
source scripts/comun.sh

pruebas=1
[ "${1:-}" = "--sin-pruebas" ] && pruebas=0

instala_dependencias "${PAQUETES_WINDOWS[@]}"
TEXALON_QT_WINDOWS=$(carpeta_qt_windows)
export TEXALON_QT_WINDOWS
scripts/qt-windows.sh

# What the Windows build takes from the Linux one, whose tools cannot run under the cross
# build: the guide, drawn from the help's pages, and the PNG icons, made into Windows icons.
echo "== Guía e iconos (construcción de Linux) =="
configura build Release -DTEXALON_WERROR=ON
cmake --build build -j"$(nproc)" --target texalon_guia texalon_iconos
iconos=build-windows/iconos
mkdir -p "$iconos"
hace_ico() {
  local contexto=$1 nombre=$2 salida=$3 pngs=()
  for lado in 16 24 32 48 64 256; do pngs+=("build/iconos/hicolor/${lado}x${lado}/$contexto/$nombre.png"); done
  python3 packaging/windows/ico.py "$iconos/$salida" "${pngs[@]}"
}
hace_ico apps texalon texalon.ico
hace_ico mimetypes application-x-texalon-flexion flexion.ico
hace_ico mimetypes application-x-texalon-confinamiento confinamiento.ico

echo "== Construcción para Windows =="
inicio=$(date +%s)
cmake -S . -B build-windows -G Ninja \
  -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" \
  -DCMAKE_BUILD_TYPE=Release -DTEXALON_WERROR=ON -DTEXALON_CAPTURAS=OFF \
  -DCMAKE_PREFIX_PATH="$TEXALON_QT_WINDOWS" -DTEXALON_QT_WINDOWS="$TEXALON_QT_WINDOWS" \
  -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
  -DTEXALON_GUIA_EXTERNA="$PWD/build/src/shell/guia_texalon.pdf" \
  -DTEXALON_ICONOS_WINDOWS="$PWD/$iconos" >/dev/null
cmake --build build-windows -j"$(nproc)"
echo "Construido en $(( $(date +%s) - inicio )) s"

if [ $pruebas -eq 1 ]; then
  scripts/pruebas-windows.sh build-windows
fi

echo "== Instalador =="
instalador=$(scripts/instalador-windows.sh build-windows | tail -1)
ls -l "$instalador"
if [ $pruebas -eq 1 ]; then
  scripts/prueba-instalador.sh "$instalador"
fi
