#!/usr/bin/env bash
# Builds Qt for 64-bit Windows once, from Debian's own source packages, with Debian's MinGW-w64:
# Core, Gui, Widgets, PrintSupport and Test, the windows and offscreen platforms, the
# windowsvista style, and Svg, as DLLs with Qt's bundled third-party libraries. What the program
# does not use (network, sql, dbus, OpenGL, Qt's examples and tests) is left out, so that the
# build is as short as it can be.
#
# It installs into $TEXALON_QT_WINDOWS (by default ~/.cache/texalon/qt-6.4.2-mingw64); a run
# that finds that folder complete does nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/comun.sh

QT_VERSION=6.4.2
TEXALON_QT_WINDOWS=$(carpeta_qt_windows)
export TEXALON_QT_WINDOWS
MARCA="$TEXALON_QT_WINDOWS/.texalon-completo"
if [ -f "$MARCA" ]; then
  echo "Qt para Windows ya está en $TEXALON_QT_WINDOWS"
  exit 0
fi

instala_dependencias "${PAQUETES_WINDOWS[@]}"

PROYECTO="$PWD"
TRABAJO="${TEXALON_QT_WINDOWS}.obra"
mkdir -p "$TRABAJO"
inicio=$(date +%s)

# A deb-src entry for each archive and suite that apt already uses, so that apt-get source
# takes the sources from the same place as the binary packages.
anade_fuentes() {
  local fuentes=/etc/apt/sources.list.d/texalon-fuentes.sources
  [ -f "$fuentes" ] && return 0
  if grep -rqs '^Types:.*deb-src' /etc/apt/sources.list.d/*.sources || grep -qs '^deb-src ' /etc/apt/sources.list; then
    return 0
  fi
  local texto=""
  for f in /etc/apt/sources.list.d/*.sources; do
    [ -f "$f" ] && texto+="$(sed 's/^Types: *deb$/Types: deb-src/' "$f")"$'\n\n'
  done
  if [ -f /etc/apt/sources.list ]; then
    local lineas
    lineas=$(grep '^deb ' /etc/apt/sources.list | sed 's/^deb /deb-src /' || true)
    [ -n "$lineas" ] && echo "$lineas" | como_root tee /etc/apt/sources.list.d/texalon-fuentes.list >/dev/null
  fi
  [ -n "$texto" ] && printf '%s' "$texto" | como_root tee "$fuentes" >/dev/null
  como_root apt-get update -qq
}

# trae_fuente PAQUETE: the orig tarball of a source package, unpacked in $TRABAJO; prints its folder.
# Fails when the archive does not give the package.
trae_fuente() {
  local paquete=$1 tarball carpeta
  if ! ls "$TRABAJO/${paquete}"_*.orig.tar.* >/dev/null 2>&1; then
    (cd "$TRABAJO" && apt-get source --download-only "$paquete" >&2) || return 1
  fi
  tarball=$(ls "$TRABAJO/${paquete}"_*.orig.tar.* 2>/dev/null | head -1)
  [ -n "$tarball" ] || return 1
  carpeta=$(tar tf "$tarball" | head -1 | cut -d/ -f1)
  [ -d "$TRABAJO/$carpeta" ] || tar xf "$tarball" -C "$TRABAJO"
  echo "$TRABAJO/$carpeta"
}

anade_fuentes

CRUZADO=(
  -G Ninja
  -DCMAKE_TOOLCHAIN_FILE="$PROYECTO/cmake/mingw-w64.cmake"
  -DCMAKE_BUILD_TYPE=Release
  -DCMAKE_INSTALL_PREFIX="$TEXALON_QT_WINDOWS"
  -DQT_HOST_PATH=/usr
  -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake"
)

echo "== qtbase =="
QTBASE=$(trae_fuente qt6-base)
# Debian's tarball leaves out Qt's tablet header (src/3rdparty/wintab), so tablets are off: the
# program has no use for them.
cmake -S "$QTBASE" -B "$TRABAJO/qtbase-build" "${CRUZADO[@]}" \
  -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
  -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_opengl=OFF \
  -DFEATURE_concurrent=OFF -DFEATURE_xml=OFF -DFEATURE_vulkan=OFF -DFEATURE_tabletevent=OFF \
  -DFEATURE_dynamicgl=OFF \
  -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_freetype=OFF \
  -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_png=OFF -DFEATURE_system_jpeg=OFF \
  -DFEATURE_system_doubleconversion=OFF -DFEATURE_sql_sqlite=OFF
cmake --build "$TRABAJO/qtbase-build" -j"$(nproc)"
cmake --install "$TRABAJO/qtbase-build"

echo "== qtsvg =="
source scripts/qtsvg-windows.sh
construye_qtsvg

# Qt's own texts in Spanish are the same files on every system: Debian's, from
# qt6-translations-l10n.
mkdir -p "$TEXALON_QT_WINDOWS/translations"
cp /usr/share/qt6/translations/qtbase_es.qm "$TEXALON_QT_WINDOWS/translations/"

du -sh "$TEXALON_QT_WINDOWS"
fin=$(date +%s)
echo "Qt para Windows construido en $(( (fin - inicio) / 60 )) min $(( (fin - inicio) % 60 )) s en $TEXALON_QT_WINDOWS"
echo "$QT_VERSION $(date -u +%FT%TZ)" > "$MARCA"
