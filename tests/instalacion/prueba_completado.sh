#!/usr/bin/env bash
# The bash completion of texalon-calculo, tried as bash calls it:
#
#   prueba_completado.sh FICHERO_DE_COMPLETADO
#
# Loads the file in a bash of its own, in a temporary folder with project files, other files and
# folders, and for each command line sets COMP_WORDS and COMP_CWORD as bash does, calls the
# function that the file registers for texalon-calculo and compares the candidates it leaves in
# COMPREPLY with the ones expected. Every failed case says what came; exits with 1 if any failed.
set -euo pipefail

if [ $# -ne 1 ]; then
  echo "uso: $0 FICHERO_DE_COMPLETADO" >&2
  exit 2
fi
completado=$(realpath "$1")
[ -f "$completado" ] || { echo "FALLO: no existe $completado" >&2; exit 1; }

temporal=$(mktemp -d "${TMPDIR:-/tmp}/texalon-completado.XXXXXX")
trap 'rm -rf "$temporal"' EXIT
cd "$temporal"
touch viga.vmf PILAR.VMC Mixto.Vmc 'con espacio.vmf' notas.txt viga.vmf.txt informe.pdf edificio.csv PLANTA.CSV \
  -- -raro.vmf
mkdir -p notas informes/2026 'otra carpeta'
touch informes/planta.vmf informes/leeme.txt

# shellcheck source=/dev/null
source "$completado"

fallos=0
casos=0
# caso DESCRIPCIÓN "PALABRA ... PALABRA_ACTUAL" CANDIDATO...: the line is the command's words up to
# the one being completed, which is the last (empty for a word not begun: a trailing "").
caso() {
  local descripcion=$1 linea=$2
  shift 2
  local -a esperados=("$@") palabras
  eval "palabras=($linea)"
  COMP_WORDS=("${palabras[@]}")
  COMP_CWORD=$((${#palabras[@]} - 1))
  COMP_LINE="${palabras[*]}"
  COMP_POINT=${#COMP_LINE}
  COMPREPLY=()
  # As bash calls it: without errexit, with the command, the word and the word before it.
  set +e
  "$funcion" texalon-calculo "${palabras[COMP_CWORD]}" "${palabras[COMP_CWORD - 1]}"
  set -e
  local obtenido esperado
  obtenido=$(printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort)
  esperado=$(printf '%s\n' "${esperados[@]}" | LC_ALL=C sort)
  casos=$((casos + 1))
  if [ "$obtenido" != "$esperado" ]; then
    fallos=$((fallos + 1))
    echo "FALLO: $descripcion ($linea)" >&2
    echo "  esperado: $(echo "$esperado" | paste -sd' ')" >&2
    echo "  obtenido: $(echo "$obtenido" | paste -sd' ')" >&2
  fi
}

# The file registers a function for the command, and nothing else is needed to call it.
registro=$(complete -p texalon-calculo 2>/dev/null || true)
if [[ "$registro" != *" -F "* ]]; then
  echo "FALLO: el fichero no registra una función de completado para texalon-calculo: «$registro»" >&2
  exit 1
fi
funcion=${registro#* -F }
funcion=${funcion%% *}

todas=(--csv --tabla --json --resumen --proyectos --diagrama --tipo --capas --svg --informe --help --plantilla --)

# Options.
caso "todas las opciones" "texalon-calculo -" "${todas[@]}"
caso "una opción por su principio" "texalon-calculo --dia" --diagrama
caso "--c: --csv y --capas" "texalon-calculo --c" --csv --capas
caso "una opción dada no se ofrece otra vez" "texalon-calculo --json --j"
caso "tras otra opción no se ofrece --csv" "texalon-calculo --json --c" --capas
caso "tras otra opción no se ofrece --plantilla" "texalon-calculo --json --p" --proyectos
caso "tras --csv solo --tabla y --" "texalon-calculo --csv viga.vmf -" --tabla --
caso "tras --help nada" "texalon-calculo --help ''"
caso "tras --plantilla y su valor nada" "texalon-calculo --plantilla T ''"

# The values of the options.
caso "los diagramas" "texalon-calculo --diagrama ''" tension confinamiento area capas pivotes seccion
caso "un diagrama por su principio" "texalon-calculo --json --diagrama c" confinamiento capas
caso "los tipos" "texalon-calculo --tipo ''" 1 2 3
caso "las capas" "texalon-calculo --diagrama pivotes --capas ''" 1 2 3 4 5
caso "--svg: las carpetas" "texalon-calculo --diagrama capas --svg ''" notas informes 'otra carpeta'
caso "--informe: las carpetas por su principio" "texalon-calculo --informe inf" informes
caso "--proyectos: las carpetas" "texalon-calculo --tabla --proyectos ''" notas informes 'otra carpeta'
caso "--informe: las carpetas de dentro" "texalon-calculo --informe informes/" informes/2026
caso "el valor de una opción no cuenta como opción dada" "texalon-calculo --diagrama capas --t" --tipo --tabla
caso "los tipos de --plantilla" "texalon-calculo --plantilla ''" rectangular T confinamiento

# Project files, in either case, and the folders that may hold them.
proyectos=(viga.vmf PILAR.VMC Mixto.Vmc 'con espacio.vmf' notas informes 'otra carpeta')
# -raro.vmf is not offered before "--": the command would take it for an option.
caso "los proyectos y las carpetas" "texalon-calculo ''" "${proyectos[@]}"
caso "tras --csv, los proyectos" "texalon-calculo --csv ''" "${proyectos[@]}"
caso "tras un valor, los proyectos" "texalon-calculo --tipo 2 ''" "${proyectos[@]}"
caso "un proyecto por su principio" "texalon-calculo --json v" viga.vmf
caso "mayúsculas" "texalon-calculo P" PILAR.VMC
caso "un nombre con espacio" "texalon-calculo con" 'con espacio.vmf'
caso "los proyectos de una carpeta" "texalon-calculo informes/" informes/planta.vmf informes/2026
caso "tras --, un nombre que empieza por -" "texalon-calculo -- -" -raro.vmf
caso "tras --, ninguna opción" "texalon-calculo -- --csv -" -raro.vmf
caso "tras --, todos los proyectos" "texalon-calculo -- ''" -raro.vmf "${proyectos[@]}"

# Tables, in either case, with --tabla.
caso "con --tabla, las tablas y las carpetas" "texalon-calculo --tabla ''" edificio.csv PLANTA.CSV notas.txt \
  viga.vmf.txt notas informes 'otra carpeta'
caso "con --csv --tabla, una tabla por su principio" "texalon-calculo --csv --tabla e" edificio.csv

echo "Completado de texalon-calculo: $casos casos, $((casos - fallos)) correctos"
if [ $fallos -gt 0 ]; then
  echo "$fallos casos del completado han fallado" >&2
  exit 1
fi
