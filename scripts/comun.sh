# Shared steps of run.sh and test.sh: what Debian 12 must have, and the builds.
# Sourced, not run.

# Packages the program, its build and its tests need, all from Debian 12.
PAQUETES=(
  g++ cmake ninja-build pkgconf
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 qt6-translations-l10n libgl-dev
  libgtest-dev googletest libbenchmark-dev
  fonts-liberation locales poppler-utils python3
  dpkg-dev desktop-file-utils shared-mime-info libxml2-utils
  help2man man-db lintian appstream
  ccache
  xvfb openbox xdotool x11-utils
)

# What ./windows.sh needs beside them: the MinGW-w64 cross compilers, Wine to run the tests and
# the installer, NSIS to make the installer, ImageMagick for the installer test's screenshot.
PAQUETES_WINDOWS=(
  g++-mingw-w64-x86-64-posix mingw-w64 wine wine64 nsis dpkg-dev imagemagick
)

# Where scripts/qt-windows.sh keeps the Qt for Windows: $TEXALON_QT_WINDOWS, else the user's
# cache folder (from the password database when HOME is not set, as under some CI runners).
carpeta_qt_windows() {
  local casa=${HOME:-$(getent passwd "$(id -u)" | cut -d: -f6)}
  echo "${TEXALON_QT_WINDOWS:-$casa/.cache/texalon/qt-6.4.2-mingw64}"
}

# Regional settings the tests run under: Spanish (comma) and English (period).
AJUSTES_REGIONALES=(es_ES.UTF-8 en_US.UTF-8)

como_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

instala_dependencias() {
  local faltan=()
  for paquete in "${PAQUETES[@]}" "$@"; do
    dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q "install ok installed" || faltan+=("$paquete")
  done
  if [ ${#faltan[@]} -gt 0 ]; then
    echo "Instalando: ${faltan[*]}"
    como_root apt-get update -qq
    como_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${faltan[@]}"
  fi
  genera_ajustes_regionales
}

genera_ajustes_regionales() {
  local generar=0
  for ajuste in "${AJUSTES_REGIONALES[@]}"; do
    local nombre="${ajuste%.UTF-8}.utf8"
    if ! locale -a 2>/dev/null | grep -qx "$nombre"; then
      como_root sed -i "s/^# *\(${ajuste} UTF-8\)/\1/" /etc/locale.gen
      grep -q "^${ajuste} UTF-8" /etc/locale.gen || echo "${ajuste} UTF-8" | como_root tee -a /etc/locale.gen >/dev/null
      generar=1
    fi
  done
  if [ $generar -eq 1 ]; then como_root locale-gen >/dev/null; fi
}

# configura DIRECTORIO TIPO [opciones de CMake...]
#
# With Ninja: it starts the compilers sooner than make and keeps both cores busy to the end.
# A build folder that an earlier checkout configured with make is configured anew.
configura() {
  local directorio=$1 tipo=$2
  shift 2
  if [ -f "$directorio/CMakeCache.txt" ] && ! grep -q '^CMAKE_GENERATOR:INTERNAL=Ninja$' "$directorio/CMakeCache.txt"; then
    rm -rf "$directorio/CMakeCache.txt" "$directorio/CMakeFiles"
  fi
  cmake -S . -B "$directorio" -G Ninja -DCMAKE_BUILD_TYPE="$tipo" "$@" >/dev/null
}

# construye DIRECTORIO TIPO [opciones de CMake...]
construye() {
  configura "$@"
  cmake --build "$1" -j"$(nproc)"
}
