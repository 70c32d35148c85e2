#!/usr/bin/env bash
# Tries the Windows installer under Wine as an administrator deploys it: a silent install into a
# new Wine prefix, the files and registry keys it must leave, the installed program started on a
# .vmf project through its file association on an Xvfb display (a screenshot of it), then the
# silent uninstall, after which nothing of it may be left. Exits non-zero on any failure.
#
#   scripts/prueba-instalador.sh [texalon-1.0-instalador.exe] [captura.png]
set -euo pipefail
cd "$(dirname "$0")/.."

instalador=$(realpath "${1:-texalon-1.0-instalador.exe}")
captura=${2:-build-windows/instalado.png}
[ -f "$instalador" ] || { echo "No está el instalador $instalador (./windows.sh)" >&2; exit 2; }

export WINEPREFIX="$PWD/build-windows/wine-instalador"
export WINEARCH=win64 WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export LC_ALL=es_ES.UTF-8 LANG=es_ES.UTF-8
rm -rf "$WINEPREFIX"

pantalla=:$(( 70 + RANDOM % 20 ))
Xvfb "$pantalla" -screen 0 1024x768x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
termina() {
  wineserver -k 2>/dev/null || true
  kill "$xvfb" 2>/dev/null || true
}
trap termina EXIT
export DISPLAY=$pantalla
wineboot --init >/dev/null 2>&1

fallos=0
falla() { echo "FALLO: $*"; fallos=1; }
comprueba() { if eval "$1"; then echo "bien: $2"; else falla "$2"; fi; }

carpeta="$WINEPREFIX/drive_c/Program Files/VELMORA/TEXALON"
menu="$WINEPREFIX/drive_c/ProgramData/Microsoft/Windows/Start Menu/Programs/TEXALON"
clave='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\TEXALON'

echo "== Instalación silenciosa =="
wine "$instalador" /S
wineserver -w
for f in texalon.exe texalon-calculo.exe desinstalar.exe guia_texalon.pdf qt.conf Qt6Core.dll Qt6Svg.dll \
         libstdc++-6.dll plugins/platforms/qwindows.dll plugins/iconengines/qsvgicon.dll \
         translations/qtbase_es.qm fuentes/LiberationSans-Regular.ttf ayuda/mapa.txt ejemplos; do
  comprueba '[ -e "$carpeta/$f" ]' "instalado $f"
done
for f in TEXALON.lnk "Manual de referencia.lnk" "Desinstalar TEXALON.lnk"; do
  comprueba '[ -e "$menu/$f" ]' "acceso del menú Inicio $f"
done
lee_clave() { wine reg query "$@" 2>/dev/null | tr -d '\r'; }
comprueba 'lee_clave "$clave" /v Publisher | grep -q "VELMORA"' "fabricante en la lista de programas"
comprueba 'lee_clave "$clave" /v DisplayVersion | grep -q "1.0"' "versión en la lista de programas"
comprueba 'lee_clave "$clave" /v EstimatedSize | grep -q "REG_DWORD"' "tamaño en la lista de programas"
comprueba 'lee_clave "$clave" /v UninstallString | grep -q "desinstalar.exe"' "desinstalador en la lista de programas"
comprueba 'lee_clave "HKLM\Software\Classes\.vmf" | grep -q "VELMORA.TEXALON.Flexion"' "tipo .vmf"
comprueba 'lee_clave "HKLM\Software\Classes\.vmc" | grep -q "VELMORA.TEXALON.Confinamiento"' "tipo .vmc"
comprueba 'lee_clave "HKLM\Software\Classes\VELMORA.TEXALON.Flexion\shell\open\command" | grep -q "texalon.exe\" \"%1\""' "orden de apertura de .vmf"
comprueba 'lee_clave "HKLM\Software\Classes\VELMORA.TEXALON.Confinamiento\DefaultIcon" | grep -q "texalon.exe,-3"' "icono de .vmc"

echo "== Un proyecto abierto por su asociación =="
proyecto='C:\Program Files\VELMORA\TEXALON\ejemplos\ejemplo1_viga_rectangular.vmf'
wine start /unix "$carpeta/ejemplos/ejemplo1_viga_rectangular.vmf" >/dev/null 2>&1 &
ventana=""
for _ in $(seq 1 60); do
  ventana=$(xdotool search --name "TEXALON" 2>/dev/null | head -1 || true)
  [ -n "$ventana" ] && break
  sleep 1
done
comprueba '[ -n "$ventana" ]' "la ventana de TEXALON se abre con $proyecto"
sleep 4
mkdir -p "$(dirname "$captura")"
import -window root "$captura" && echo "captura: $captura"
# The association hands the project's Windows path to the program, which Wine shows as the
# process's command line; the screen it opens is in the screenshot.
ordenes=$(ps -eo args | grep -i 'texalon.exe' || true)
comprueba 'grep -qi "texalon.exe.*ejemplos.ejemplo1_viga_rectangular.vmf" <<<"$ordenes"' "el programa recibe el proyecto de su asociación"
wineserver -k 2>/dev/null || true
sleep 1

echo "== Desinstalación silenciosa =="
# A project that the user saved among the examples, and one in the user's documents: the
# uninstaller leaves both, and the folders that hold the first, and nothing else.
documentos="$WINEPREFIX/drive_c/users/$(id -un)/Documents"
mkdir -p "$documentos"
cp "$carpeta/ejemplos/ejemplo1_viga_rectangular.vmf" "$carpeta/ejemplos/mi_viga.vmf"
cp "$carpeta/ejemplos/ejemplo3_pilar_circular.vmc" "$documentos/mi_pilar.vmc"
wine "$carpeta/desinstalar.exe" /S
wineserver -w
comprueba '[ -f "$carpeta/ejemplos/mi_viga.vmf" ] && [ -f "$documentos/mi_pilar.vmc" ]' "los proyectos del usuario siguen"
comprueba '[ "$(find "$carpeta" -type f | wc -l)" -eq 1 ]' "no queda ningún fichero instalado"
rm "$carpeta/ejemplos/mi_viga.vmf"
comprueba 'rmdir "$carpeta/ejemplos" "$carpeta" "$(dirname "$carpeta")"' "no queda ninguna carpeta instalada"
comprueba '[ ! -e "$menu" ]' "no quedan los accesos del menú Inicio"
comprueba '! wine reg query "$clave" >/dev/null 2>&1' "no queda la entrada de la lista de programas"
comprueba '! wine reg query "HKLM\Software\Classes\.vmf" >/dev/null 2>&1' "no queda el tipo .vmf"
comprueba '! wine reg query "HKLM\Software\Classes\VELMORA.TEXALON.Confinamiento" >/dev/null 2>&1' "no queda la clase de .vmc"

if [ $fallos -ne 0 ]; then echo "La prueba del instalador ha fallado"; exit 1; fi
echo "La prueba del instalador ha pasado"
