#!/usr/bin/env bash
# Writes the screenshots of docs/ anew: the program on a virtual 800 × 600 display with the
# openbox window manager, under the Spanish setting; and the pages of the four reports, printed
# to PDF by the program, as pictures. Needs xvfb, openbox, poppler-utils and a build with
# -DTEXALON_CAPTURAS=ON in build/.
set -euo pipefail
cd "$(dirname "$0")/../.."
destino=${1:-docs}
export LC_ALL=es_ES.UTF-8 LANG=es_ES.UTF-8
xvfb-run -a -s "-screen 0 800x600x24" bash -c "openbox & sleep 1; build/tools/capturas/capturas '$destino'"
for informe in "$destino"/informe_flexion "$destino"/informe_flexion_t "$destino"/informe_confinamiento "$destino"/caracteristicas; do
  pdftoppm -r 60 -png "$informe.pdf" "$informe"
  rm "$informe.pdf"
done
# The first pages of the guide, as the build wrote it.
pdftoppm -r 60 -png -f 1 -l 4 build/src/shell/guia_texalon.pdf "$destino"/guia
