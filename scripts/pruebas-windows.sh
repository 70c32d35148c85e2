#!/usr/bin/env bash
# Runs every test of the Windows build under Wine, headless (Qt's offscreen platform), in a new
# Wine prefix inside the build folder, under a Spanish (decimal comma) and an English (decimal
# period) regional setting, as ./test.sh does on Linux. Exits non-zero on any failure.
#
#   scripts/pruebas-windows.sh [build-windows]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/comun.sh

construccion=${1:-build-windows}
emulador="$PWD/$construccion/wine.sh"
[ -x "$emulador" ] || { echo "No hay construcción para Windows en $construccion (./windows.sh)" >&2; exit 2; }

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
chmod 700 "$XDG_RUNTIME_DIR"
# No display: Wine's windows are never shown, whatever session this runs in.
unset DISPLAY WAYLAND_DISPLAY

# A new prefix each run, so that nothing of an earlier run (a registry key, a file) counts.
prefijo=$(sed -n 's/^export WINEPREFIX="\(.*\)"$/\1/p' "$emulador")
rm -rf "$prefijo"
mkdir -p "$prefijo"
inicio=$(date +%s)
# One Wine server for the whole run, rather than one started and stopped for each test.
WINEPREFIX="$prefijo" wineserver -p
trap 'WINEPREFIX="$prefijo" wineserver -k 2>/dev/null || true' EXIT
"$emulador" wineboot --init >/dev/null 2>&1
echo "Prefijo de Wine listo en $(( $(date +%s) - inicio )) s: $prefijo"

# The starts that Wine gave up before the program ran (scripts/wine.sh.in), counted for the run.
export TEXALON_WINE_REGISTRO="$PWD/$construccion/arranques-fallidos.txt"
rm -f "$TEXALON_WINE_REGISTRO"

fallos=0
for ajuste in "${AJUSTES_REGIONALES[@]}"; do
  echo "== Pruebas de Windows bajo Wine con $ajuste =="
  # Wine writes the regional setting into the prefix's registry when the first program of a new
  # setting starts; tests started two at a time could read the one before. One program first.
  LC_ALL=$ajuste LANG=$ajuste "$emulador" cmd /c exit >/dev/null 2>&1 || true
  LC_ALL=$ajuste LANG=$ajuste ctest --test-dir "$construccion" --output-on-failure -j"$(nproc)" || fallos=1
done
echo "Pruebas de Windows en $(( $(date +%s) - inicio )) s"
if [ -s "$TEXALON_WINE_REGISTRO" ]; then
  echo "Arranques de Wine repetidos: $(wc -l < "$TEXALON_WINE_REGISTRO") (en $TEXALON_WINE_REGISTRO)"
fi
exit $fallos
