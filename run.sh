#!/usr/bin/env bash
# Installs what is missing, builds in Release and starts TEXALON.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/comun.sh

instala_dependencias
construye build Release

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No hay pantalla gráfica (DISPLAY no está definido): TEXALON necesita un escritorio para mostrarse." >&2
  echo "Ejecútelo desde una sesión gráfica, o bajo Xvfb: xvfb-run ./run.sh" >&2
  exit 1
fi
exec ./build/src/shell/texalon "$@"
