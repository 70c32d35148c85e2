#!/usr/bin/env bash
# Makes the Windows installer texalon-<versión>-instalador.exe with NSIS, from what
# `cmake --install` lays out of the Windows build, and leaves it in the project folder. Prints
# its path.
#
#   scripts/instalador-windows.sh [build-windows]
set -euo pipefail
cd "$(dirname "$0")/.."

construccion=${1:-build-windows}
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$construccion/CMakeCache.txt")
origen="$PWD/$construccion/instalar"
rm -rf "$origen"
cmake --install "$construccion" --prefix "$origen" >/dev/null

# What the uninstaller removes: every file laid, then every folder, deepest first.
archivos="$PWD/$construccion/desinstalar.nsh"
{
  (cd "$origen" && find . -type f | sort) | while read -r f; do
    printf 'Delete "$INSTDIR\\%s"\n' "$(echo "${f#./}" | tr / '\\')"
  done
  (cd "$origen" && find . -mindepth 1 -type d | sort -r) | while read -r d; do
    printf 'RMDir "$INSTDIR\\%s"\n' "$(echo "${d#./}" | tr / '\\')"
  done
} > "$archivos"

tamano=$(du -sk "$origen" | cut -f1)
salida="$PWD/texalon-$version-instalador.exe"
makensis -V2 -INPUTCHARSET UTF8 -DORIGEN="$origen" -DVERSION="$version" -DTAMANO="$tamano" \
  -DSALIDA="$salida" -DARCHIVOS="$archivos" packaging/windows/texalon.nsi
echo "$salida"
