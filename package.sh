#!/usr/bin/env bash
# Installs what is missing, builds in Release in ./build and makes the Debian package of TEXALON:
# texalon_<version>_<architecture>.deb, left in this folder. Prints its path.
#
#   ./package.sh
#   sudo apt-get install ./texalon_1.0_amd64.deb
set -euo pipefail
cd "$(dirname "$0")"
source scripts/comun.sh

instala_dependencias
construye build Release

paquetes=build/paquete
rm -rf "$paquetes"
mkdir -p "$paquetes"
if ! cpack --config build/CPackConfig.cmake -G DEB -B "$paquetes" >"$paquetes/cpack.txt" 2>&1; then
  cat "$paquetes/cpack.txt" >&2
  echo "cpack no ha podido construir el paquete" >&2
  exit 1
fi

shopt -s nullglob
deb=("$paquetes"/texalon_*.deb)
if [ ${#deb[@]} -ne 1 ]; then
  echo "cpack no ha dejado un paquete texalon_*.deb en $paquetes" >&2
  exit 1
fi
nombre=$(basename "${deb[0]}")
mv -f "${deb[0]}" "./$nombre"
rm -rf "$paquetes"
echo "$(pwd)/$nombre"
