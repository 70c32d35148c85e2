#!/usr/bin/env bash
# The Debian package on a clean Debian 12, as a user meets it: a minimal root made with
# debootstrap, the package installed there with apt (which brings what it depends on), a PDF
# viewer and the desktop's file tools beside it; then, on a virtual screen, a project opened as a
# file manager's double click opens it (xdg-open), F1, and the guide from the toolbar. Writes
# three screenshots to the folder given (default /tmp/limpia). Run as root, after ./package.sh;
# needs debootstrap, xvfb, openbox, imagemagick and xdotool on this machine (not installed by
# the project's scripts: CI does not run this).
set -euo pipefail
cd "$(dirname "$0")/../.."
destino=$(realpath -m "${1:-/tmp/limpia}")
raiz=/tmp/texalon-raiz-limpia
paquete=$(ls texalon_*.deb)
mkdir -p "$destino"

rm -rf "$raiz"
debootstrap --variant=minbase bookworm "$raiz" http://deb.debian.org/debian >/dev/null
cp /etc/resolv.conf "$raiz/etc/resolv.conf"
cp "$paquete" "$raiz/tmp/"
cp resources/ejemplos/ejemplo1_viga_rectangular.vmf "$raiz/tmp/VIGA.VMF"
mount -t proc proc "$raiz/proc"
mkdir -p "$raiz/tmp/.X11-unix"
mount --bind /tmp/.X11-unix "$raiz/tmp/.X11-unix"
trap 'umount "$raiz/tmp/.X11-unix" "$raiz/proc" 2>/dev/null || true' EXIT
chroot "$raiz" /bin/bash -c "apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
  /tmp/$(basename "$paquete") mupdf desktop-file-utils >/dev/null"
chroot "$raiz" xdg-mime query default application/x-texalon-flexion
chroot "$raiz" xdg-mime query filetype /tmp/VIGA.VMF

cat > "$raiz/tmp/pantalla.sh" <<FIN
#!/bin/bash
openbox & sleep 1
cp "\$XAUTHORITY" $raiz/tmp/xauth
entorno="XAUTHORITY=/tmp/xauth DISPLAY=\$DISPLAY LANG=C.UTF-8 HOME=/root"
chroot $raiz /usr/bin/env \$entorno xdg-open /tmp/VIGA.VMF >/dev/null 2>&1 &
sleep 5; import -window root "$destino/abierto.png"
xdotool key F1; sleep 2; import -window root "$destino/ayuda.png"
xdotool key alt+F4; sleep 1
xdotool mousemove 292 58 click 1; sleep 4; import -window root "$destino/guia.png"
FIN
chmod +x "$raiz/tmp/pantalla.sh"
xvfb-run -a -s "-screen 0 800x600x24" "$raiz/tmp/pantalla.sh" 2>/dev/null || true
ls "$destino"
