#!/usr/bin/env bash
# The screenshots of TEXALON under Wine in docs/: the program driven by tools/capturas (built for
# Windows with -DTEXALON_CAPTURAS=ON) on Wine's own desktop, which draws the windows' frames as
# Windows does, on a virtual 1024 × 768 display, under the Spanish setting; and the installer's
# first page. Needs ./windows.sh to have made build-windows and the installer.
#
#   scripts/capturas-windows.sh [docs]
set -euo pipefail
cd "$(dirname "$0")/.."
destino=$(realpath "${1:-docs}")
construccion=$PWD/build-windows

cmake "$construccion" -DTEXALON_CAPTURAS=ON >/dev/null
cmake --build "$construccion" --target capturas >/dev/null

export LC_ALL=es_ES.UTF-8 LANG=es_ES.UTF-8
# Wine's processes take their regional setting when its server starts them: none may be left
# from a run under another setting.
WINEPREFIX="$construccion/wine" wineserver -k 2>/dev/null || true
pantalla=:$(( 90 + RANDOM % 9 ))
Xvfb "$pantalla" -screen 0 1024x768x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
trap 'WINEPREFIX="$construccion/wine" wineserver -k 2>/dev/null || true; kill $xvfb 2>/dev/null || true' EXIT
export DISPLAY=$pantalla
sleep 1

carpeta=$(mktemp -d)
# The program's own screens: every screenshot of the Linux tour, taken by the program itself.
(cd "$construccion/tools/capturas" &&
  "$construccion/wine.sh" explorer /desktop=TEXALON,1024x768 capturas.exe "$(winepath -w "$carpeta" 2>/dev/null || echo "Z:$carpeta")")
for nombre in principal flexion impresora; do
  cp "$carpeta/$nombre.png" "$destino/windows_$nombre.png"
done

# The installer's first page.
"$construccion/wine.sh" explorer /desktop=TEXALON,1024x768 "$PWD/texalon-1.0-instalador.exe" &
sleep 8
import -window root "$destino/windows_instalador.png"
rm -rf "$carpeta"
echo "Capturas en $destino/windows_*.png"
