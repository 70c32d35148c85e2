#!/usr/bin/env bash
# The Windows installation carries every DLL that its programs and Qt's plugins load: the folder
# that `cmake --install` lays out is read with objdump, and each DLL that a file of it imports
# must be in the folder or be the system's own. A DLL that is found in the Qt for Windows or in
# MinGW's runtime folders and not in the installation was left out of the list of
# cmake/InstalacionWindows.cmake.
#
#   dlls.sh CONSTRUCCION OBJDUMP CARPETA_A_VIGILAR...
set -euo pipefail
construccion=$1 objdump=$2
shift 2

carpeta=$(mktemp -d)
trap 'rm -rf "$carpeta"' EXIT
cmake --install "$construccion" --prefix "$carpeta" >/dev/null

fallos=0 comprobados=0
while IFS= read -r -d '' fichero; do
  comprobados=$((comprobados + 1))
  while IFS= read -r dll; do
    if [ -n "$(find "$carpeta" -maxdepth 1 -iname "$dll" -print -quit)" ]; then continue; fi
    for vigilada in "$@"; do
      if [ -n "$(find "$vigilada" -maxdepth 1 -iname "$dll" -print -quit)" ]; then
        echo "${fichero#"$carpeta"/} carga $dll, que está en $vigilada y no en la instalación"
        fallos=1
      fi
    done
  done < <("$objdump" -p "$fichero" | sed -n 's/^[[:space:]]*DLL Name: //p')
done < <(find "$carpeta" \( -iname '*.exe' -o -iname '*.dll' \) -print0)

for necesario in texalon.exe texalon-calculo.exe Qt6Core.dll plugins/platforms/qwindows.dll qt.conf \
                 translations/qtbase_es.qm fuentes/LiberationSans-Regular.ttf guia_texalon.pdf ayuda/mapa.txt; do
  [ -e "$carpeta/$necesario" ] || { echo "falta $necesario en la instalación"; fallos=1; }
done
echo "$comprobados ficheros ejecutables comprobados"
exit $fallos
