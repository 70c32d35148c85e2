#!/usr/bin/env bash
# The check of the layers on a tree made to break each rule: it must fail, and name every
# include that breaks one with its file, its line and the rule.
#   detecta.sh CARPETA   (the folder of capas.sh and of the tree ejemplo/)
set -uo pipefail
carpeta=${1:?"uso: detecta.sh CARPETA"}
salida=$(bash "$carpeta/capas.sh" "$carpeta/ejemplo" 2>&1)
estado=$?
mal=0
if [ "$estado" -ne 1 ]; then
  echo "la comprobación acabó con $estado, no con 1" >&2
  mal=1
fi
while IFS= read -r esperada; do
  [ -z "$esperada" ] && continue
  if ! grep -qxF -- "$esperada" <<<"$salida"; then
    echo "falta: $esperada" >&2
    mal=1
  fi
done <"$carpeta/ejemplo/esperado.txt"
if [ "$(grep -c ' rompe la regla: ' <<<"$salida")" -ne "$(grep -c . "$carpeta/ejemplo/esperado.txt")" ]; then
  echo "la comprobación dice más de lo esperado:" >&2
  mal=1
fi
[ "$mal" -eq 0 ] || { echo "$salida" >&2; exit 1; }
echo "cada inclusión que rompe una regla, dicha con su fichero, su línea y la regla"
