#!/usr/bin/env bash
# The main window under a real window manager, as a user meets it: openbox on a virtual screen,
# the program started as a user starts it, and the window stretched, maximised, dragged by its
# border and minimised with the pointer and the window manager's own requests; then F1 and
# Escape on the help window. TEXALON_CAPTURA_AYUDA, when set, names a PNG file for a screenshot
# of the screen with the help up.
#
#   gestor_ventanas.sh TEXALON
#
# After each attempt the window must show 800 by 600 pixels inside its frame, where it stood
# before; the help must lie wholly on the screen and go with Escape; minimised, the main window
# stays minimised. Every failed check says what was seen; the script goes
# through all of them and exits with 1 if any failed.
set -euo pipefail

if [ $# -ne 1 ]; then
  echo "uso: $0 TEXALON" >&2
  exit 2
fi
programa=$1

for orden in Xvfb openbox xdotool xwininfo xprop; do
  command -v "$orden" >/dev/null || { echo "FALLO: falta la orden $orden (instálela con ./test.sh)" >&2; exit 1; }
done

fallos=0
falla() {
  echo "FALLO: $*" >&2
  fallos=$((fallos + 1))
}

temporal=$(mktemp -d "${TMPDIR:-/tmp}/texalon-gestor.XXXXXX")
pids=()
termina() {
  for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$temporal"
}
trap termina EXIT

# A free display: the X server writes the number it took.
exec 3>"$temporal/pantalla"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp >"$temporal/xvfb.txt" 2>&1 &
pids+=($!)
for _ in $(seq 100); do [ -s "$temporal/pantalla" ] && break; sleep 0.1; done
exec 3>&-
[ -s "$temporal/pantalla" ] || { cat "$temporal/xvfb.txt" >&2; echo "FALLO: Xvfb no ha arrancado" >&2; exit 1; }
export DISPLAY=":$(head -n1 "$temporal/pantalla")"
unset QT_QPA_PLATFORM
export XDG_RUNTIME_DIR="$temporal"

# The window manager, once the screen answers. Now and then openbox cannot open the display it
# is given and ends at once ("Failed to open the display"), though the screen answers everyone
# else: without it the checks below would meet a screen with no frames at all. One that ended
# so is started again, three times at the most, until it takes the screen.
for _ in $(seq 100); do xprop -root >/dev/null 2>&1 && break; sleep 0.1; done
gestor=
for _ in 1 2 3; do
  openbox --sm-disable >>"$temporal/openbox.txt" 2>&1 &
  pids+=($!)
  for _ in $(seq 100); do
    if xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; then
      gestor=$!
      break 2
    fi
    kill -0 $! 2>/dev/null || break
    sleep 0.1
  done
  # An openbox still running that has not taken the screen is not started twice.
  kill -0 $! 2>/dev/null && break
done
[ -n "$gestor" ] || { cat "$temporal/openbox.txt" >&2; echo "FALLO: openbox no ha tomado la pantalla" >&2; exit 1; }

"$programa" >"$temporal/programa.txt" 2>&1 &
pids+=($!)
# busca_ventana TÍTULO [DÉCIMAS]: the id of the window on show with that title, once the window
# manager has framed it (it tells then the frame's extents); nothing after 20 seconds (or that
# many tenths of a second) without it.
busca_ventana() {
  local id=
  for _ in $(seq "${2:-200}"); do
    id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n1 || true)
    [ -n "$id" ] && break
    sleep 0.1
  done
  [ -n "$id" ] || return 0
  for _ in $(seq 100); do xprop -id "$id" _NET_FRAME_EXTENTS 2>/dev/null | grep -q '=' && break; sleep 0.1; done
  echo "$id"
}
# geometria ID: "X Y ANCHO ALTO" of the window's inside, on the screen.
geometria() {
  xwininfo -id "$1" | awk '
    /Absolute upper-left X/ {x=$NF} /Absolute upper-left Y/ {y=$NF}
    /^ *Width:/ {w=$NF} /^ *Height:/ {h=$NF}
    END {print x, y, w, h}'
}

ventana=$(busca_ventana 'VELMORA - Programa para el cálculo del refuerzo TEXALON®')
[ -n "$ventana" ] || { cat "$temporal/programa.txt" >&2; echo "FALLO: la ventana principal no aparece" >&2; exit 1; }

# Waits for the window to settle: the same geometry twice, a fifth of a second apart.
asentada() {
  local anterior= actual
  for _ in $(seq 50); do
    sleep 0.2
    actual=$(geometria "$ventana")
    [ "$actual" = "$anterior" ] && break
    anterior=$actual
  done
  echo "$actual"
}
# comprueba QUÉ: the window is 800 by 600 inside, where it stood at the start.
comprueba() {
  local vista
  vista=$(asentada)
  read -r x y ancho alto <<<"$vista"
  [ "$ancho $alto" = "800 600" ] || falla "$1: la ventana mide ${ancho} x ${alto} por dentro, no 800 x 600"
  [ "$x $y" = "$x0 $y0" ] || falla "$1: la ventana está en ${x},${y}, no en ${x0},${y0} donde estaba"
}

read -r x0 y0 ancho alto <<<"$(asentada)"
[ "$ancho $alto" = "800 600" ] || falla "al arrancar: la ventana mide ${ancho} x ${alto} por dentro, no 800 x 600"
echo "La ventana principal: ${ancho} x ${alto} por dentro, en ${x0},${y0}"

xdotool windowsize "$ventana" 1200 900
comprueba "tras xdotool windowsize 1200 900"

xdotool windowsize "$ventana" 640 480
comprueba "tras xdotool windowsize 640 480"

# A double click on the title bar maximises the window in openbox.
xdotool mousemove "$((x0 + 400))" "$((y0 - 8))" click --repeat 2 --delay 80 1
comprueba "tras maximizarla con un doble clic en la barra de título"

# The bottom right corner of the frame dragged down and right, then the left border dragged left.
xdotool mousemove "$((x0 + 800))" "$((y0 + 602))" mousedown 1 mousemove "$((x0 + 950))" "$((y0 + 700))" mouseup 1
comprueba "tras arrastrar la esquina inferior derecha"
xdotool mousemove "$((x0 - 1))" "$((y0 + 300))" mousedown 1 mousemove "$((x0 - 150))" "$((y0 + 300))" mouseup 1
comprueba "tras arrastrar el borde izquierdo"

# F1 on the main window: the help comes up wholly on the screen, and Escape closes it.
# On a loaded machine the click that gives the window the focus may come before the window
# manager has done with the drags above, and F1 then goes to no window of the program: the
# window is activated and the key pressed again, three times at most.
xdotool mousemove "$((x0 + 400))" "$((y0 + 300))" click 1
ayuda=
for _ in 1 2 3; do
  xdotool windowactivate --sync "$ventana" 2>/dev/null || true
  sleep 0.5
  xdotool key F1
  ayuda=$(busca_ventana 'Ayuda de TEXALON' 80)
  [ -n "$ayuda" ] && break
done
if [ -z "$ayuda" ]; then
  falla "F1 no abre la ventana de ayuda"
elif ! xprop -id "$ayuda" _NET_FRAME_EXTENTS 2>/dev/null | grep -q '='; then
  falla "openbox no ha enmarcado la ventana de ayuda"
else
  sleep 0.5
  read -r ax ay aancho aalto <<<"$(geometria "$ayuda")"
  read -r bi bd ba bb <<<"$(xprop -id "$ayuda" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')"
  read -r pancho palto <<<"$(xwininfo -root | awk '/^ *Width:/ {w=$NF} /^ *Height:/ {h=$NF} END {print w, h}')"
  echo "La ayuda: ${aancho} x ${aalto} por dentro, en ${ax},${ay}, marco ${bi} ${bd} ${ba} ${bb}"
  if [ $((ax - bi)) -lt 0 ] || [ $((ay - ba)) -lt 0 ] ||
     [ $((ax + aancho + bd)) -gt "$pancho" ] || [ $((ay + aalto + bb)) -gt "$palto" ]; then
    falla "la ventana de ayuda sale de la pantalla de ${pancho} x ${palto}"
  fi
  [ -n "${TEXALON_CAPTURA_AYUDA:-}" ] && command -v import >/dev/null && import -window root "$TEXALON_CAPTURA_AYUDA"
  xdotool key Escape
  sleep 0.5
  for _ in $(seq 50); do
    xdotool search --onlyvisible --name '^Ayuda de TEXALON$' >/dev/null 2>&1 || break
    sleep 0.1
  done
  xdotool search --onlyvisible --name '^Ayuda de TEXALON$' >/dev/null 2>&1 && falla "Escape no cierra la ventana de ayuda"
fi

xdotool windowminimize --sync "$ventana"
sleep 0.5
xprop -id "$ventana" WM_STATE | grep -q 'Iconic' || falla "minimizada, la ventana no se queda minimizada"

if [ "$fallos" -gt 0 ]; then
  echo "$fallos comprobaciones han fallado" >&2
  exit 1
fi
echo "La ventana vuelve a 800 x 600 por dentro y se queda donde estaba"
