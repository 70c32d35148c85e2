#!/usr/bin/env bash
# The check of the layers on a tree made to break each rule: it must fail, and name exactly the
# includes listed in ejemplo/esperado.txt, each with its file, its line and the rule, and no
# other. The same tree with those lines taken out must pass: every other include in it is one
# that the rules allow. Without the headers of Qt the check must fail, not pass.
#   detecta.sh CARPETA   (the folder of capas.sh and of the tree ejemplo/)
set -uo pipefail
carpeta=${1:?"uso: detecta.sh CARPETA"}
carpeta=$(cd "$carpeta" && pwd) || exit 2
esperado=$carpeta/ejemplo/esperado.txt
mal=0

# The tree that breaks each rule once.
salida=$(bash "$carpeta/capas.sh" "$carpeta/ejemplo" 2>&1)
estado=$?
if [ "$estado" -ne 1 ]; then
  echo "en ejemplo/ la comprobación acabó con $estado, no con 1" >&2
  mal=1
fi
diferencias=$(diff <(grep -F ' rompe la regla: ' <<<"$salida" | LC_ALL=C sort) <(grep . "$esperado" | LC_ALL=C sort))
if [ -n "$diferencias" ]; then
  echo "en ejemplo/ las inclusiones dichas no son las esperadas (< dicha y no esperada, > esperada y no dicha):" >&2
  echo "$diferencias" >&2
  mal=1
fi
if ! grep -qxF "$(grep -c . "$esperado") inclusiones rompen las capas ($(find "$carpeta/ejemplo/src" -type f | wc -l) ficheros leídos)" <<<"$salida"; then
  echo "en ejemplo/ la cuenta final no es la esperada" >&2
  mal=1
fi
[ "$mal" -eq 0 ] || echo "$salida" >&2

# The same tree without the lines that break a rule, each left as an empty comment so that
# the others keep their numbers.
limpio=$(mktemp -d)
trap 'rm -rf "$limpio"' EXIT
cp -r "$carpeta/ejemplo/src" "$limpio/src"
declare -A quitar=()
while IFS= read -r esperada; do
  [ -z "$esperada" ] && continue
  lugar=${esperada%%: #include *}
  quitar[${lugar%:*}]+="${lugar##*:}s|.*|//|;"
done <"$esperado"
for fichero in "${!quitar[@]}"; do
  sed -i "${quitar[$fichero]}" "$limpio/$fichero"
done
salida_limpio=$(bash "$carpeta/capas.sh" "$limpio" 2>&1)
estado=$?
if [ "$estado" -ne 0 ] || ! grep -q '^capas en orden: ' <<<"$salida_limpio"; then
  echo "ejemplo/ sin sus inclusiones esperadas no pasa:" >&2
  echo "$salida_limpio" >&2
  mal=1
fi

# Without the headers of Qt nothing can tell a widget: the check fails and says why.
salida_sin_qt=$(CAPAS_QT_CABECERAS=/no/hay/qt6 bash "$carpeta/capas.sh" "$carpeta/ejemplo" 2>&1)
estado=$?
if [ "$estado" -ne 2 ] || ! grep -q 'no encuentro las cabeceras de Qt 6' <<<"$salida_sin_qt"; then
  echo "sin las cabeceras de Qt la comprobación acabó con $estado:" >&2
  echo "$salida_sin_qt" >&2
  mal=1
fi

[ "$mal" -eq 0 ] || exit 1
echo "cada inclusión que rompe una regla, dicha con su fichero, su línea y la regla; ninguna más"
