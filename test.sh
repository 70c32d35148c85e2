#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test headless: under a Spanish and an
# English decimal setting, then once more with AddressSanitizer and UndefinedBehaviorSanitizer.
# Exits non-zero on any failure.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/comun.sh

instala_dependencias

export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
chmod 700 "$XDG_RUNTIME_DIR"

ejecuta_pruebas() {
  local directorio=$1 ajuste=$2
  echo "== Pruebas en $directorio con $ajuste =="
  LC_ALL=$ajuste LANG=$ajuste ctest --test-dir "$directorio" --output-on-failure -j"$(nproc)"
}

construye build Release -DTEXALON_WERROR=ON
for ajuste in "${AJUSTES_REGIONALES[@]}"; do
  ejecuta_pruebas build "$ajuste"
done

# The sanitizer build runs the same tests again; the guide, the icons, the package and the
# benchmarks, made and checked in the first build, are not made again.
construye build-sanitizers RelWithDebInfo -DTEXALON_WERROR=ON -DTEXALON_SANITIZE=ON -DTEXALON_HERRAMIENTAS=OFF
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
ejecuta_pruebas build-sanitizers "${AJUSTES_REGIONALES[0]}"
