#!/usr/bin/env bash
# The Debian package of TEXALON, checked as it reaches a user's machine:
#
#   prueba_paquete.sh CPACK CPackConfig.cmake VERSIÓN CON_GUÍA(0|1)
#
# Builds the .deb with cpack from the build tree into a temporary folder, unpacks it with
# dpkg-deb -x into a temporary root and checks there the programs, the menu entry, the project
# file types, the icons, the help and the guide, the package's fields and dependencies, and runs
# the batch command from the unpacked root. Then what Debian and the software centres expect of
# it: the copyright file and the changelog, the manual pages, the bash completion, the AppStream
# data (appstreamcli), and lintian on the whole package, which must give no error and no warning.
# Every failed check says what is wrong; the script goes through all of them and exits with 1 if
# any failed.
set -euo pipefail

if [ $# -ne 4 ]; then
  echo "uso: $0 CPACK CPackConfig.cmake VERSIÓN CON_GUÍA" >&2
  exit 2
fi
cpack=$1 configuracion=$2 version=$3 con_guia=$4

TAMANOS=(16 22 24 32 48 64 128 256)
# The libraries that the package must depend on, by name.
DEPENDENCIAS=(libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 libqt6svg6
              qt6-translations-l10n fonts-liberation)

inicio=$SECONDS
fallos=0
falla() {
  echo "FALLO: $*" >&2
  fallos=$((fallos + 1))
}
aborta() {
  echo "FALLO: $*" >&2
  exit 1
}

for orden in dpkg-deb dpkg-parsechangelog desktop-file-validate update-mime-database xmllint readelf \
             gzip man lexgrog appstreamcli lintian; do
  command -v "$orden" >/dev/null || aborta "falta la orden $orden (instálela con ./test.sh)"
done

temporal=$(mktemp -d "${TMPDIR:-/tmp}/texalon-paquete.XXXXXX")
trap 'rm -rf "$temporal"' EXIT

# -- The package ---------------------------------------------------------------------------------
if ! "$cpack" --config "$configuracion" -G DEB -B "$temporal/paquete" >"$temporal/cpack.txt" 2>&1; then
  cat "$temporal/cpack.txt" >&2
  aborta "cpack no ha podido construir el paquete"
fi
arquitectura=$(dpkg --print-architecture)
deb="$temporal/paquete/texalon_${version}_${arquitectura}.deb"
if [ ! -f "$deb" ]; then
  ls -l "$temporal/paquete" >&2
  aborta "cpack no ha dejado $(basename "$deb")"
fi
raiz="$temporal/raiz"
dpkg-deb -x "$deb" "$raiz" || aborta "dpkg-deb -x no puede desempaquetar $(basename "$deb")"
usr="$raiz/usr"

# -- The package's fields --------------------------------------------------------------------------
campo() { dpkg-deb -f "$deb" "$1"; }
[ "$(campo Package)" = texalon ] || falla "Package es «$(campo Package)», no «texalon»"
[ "$(campo Version)" = "$version" ] || falla "Version es «$(campo Version)», no «$version»"
[ "$(campo Architecture)" = "$arquitectura" ] || falla "Architecture es «$(campo Architecture)»"
[ "$(campo Section)" = science ] || falla "Section es «$(campo Section)», no «science»"
[[ "$(campo Maintainer)" =~ ^VELMORA\ \<[^@\>]+@[^\>]+\>$ ]] || falla "Maintainer no es «VELMORA <correo>»: «$(campo Maintainer)»"
[[ "$(campo Homepage)" == https://* ]] || falla "Homepage no empieza por https://: «$(campo Homepage)»"
[ -n "$(campo Description)" ] || falla "el paquete no tiene Description"
depende=$(campo Depends)
for paquete in "${DEPENDENCIAS[@]}"; do
  [[ ", $depende," =~ [\ ,]${paquete}[\ ,\(] ]] || falla "Depends no nombra $paquete: «$depende»"
done
# Every file belongs to root and lies under /usr.
while read -r permisos propietario _ _ _ ruta _; do
  [ "$propietario" = root/root ] || falla "$ruta pertenece a $propietario, no a root/root"
  [[ "$ruta" == ./ || "$ruta" == ./usr/* ]] || falla "$ruta queda fuera de /usr"
  if [[ "$permisos" == d* && "$permisos" != drwxr-xr-x ]]; then
    falla "la carpeta $ruta tiene permisos $permisos"
  fi
done < <(dpkg-deb -c "$deb")

# -- The programs ----------------------------------------------------------------------------------
for programa in texalon texalon-calculo; do
  if [ ! -f "$usr/bin/$programa" ] || [ ! -x "$usr/bin/$programa" ]; then
    falla "falta el programa ejecutable usr/bin/$programa"
  elif readelf -d "$usr/bin/$programa" | grep -qE 'R(UN)?PATH'; then
    falla "usr/bin/$programa lleva un RPATH: $(readelf -d "$usr/bin/$programa" | grep -E 'R(UN)?PATH')"
  fi
done

# -- Help and guide, where the program looks for them: <bin>/../share/texalon ---------------------
datos="$(dirname "$usr/bin/texalon")/../share/texalon"
[ -s "$datos/ayuda/mapa.txt" ] || falla "falta la ayuda: bin/../share/texalon/ayuda/mapa.txt"
if [ "$con_guia" = 1 ]; then
  if [ ! -s "$datos/guia_texalon.pdf" ]; then
    falla "falta la guía: bin/../share/texalon/guia_texalon.pdf"
  elif [ "$(head -c 5 "$datos/guia_texalon.pdf")" != "%PDF-" ]; then
    falla "bin/../share/texalon/guia_texalon.pdf no es un PDF"
  fi
fi

# -- Icons of the hicolor theme ----------------------------------------------------------------------
# tamano_png FICHERO: "ANCHOxALTO" read from the PNG header, or nothing if it is not a PNG.
tamano_png() {
  local firma
  firma=$(od -An -tx1 -N8 "$1" | tr -d ' \n')
  [ "$firma" = 89504e470d0a1a0a ] || return 0
  local -a b
  read -r -a b <<<"$(od -An -tu1 -j16 -N8 "$1")"
  echo "$(((b[0] << 24) + (b[1] << 16) + (b[2] << 8) + b[3]))x$(((b[4] << 24) + (b[5] << 16) + (b[6] << 8) + b[7]))"
}
# comprueba_icono CONTEXTO NOMBRE QUIEN: the icon at every size and scalable.
comprueba_icono() {
  local contexto=$1 nombre=$2 quien=$3 lado png
  for lado in "${TAMANOS[@]}"; do
    png="$usr/share/icons/hicolor/${lado}x${lado}/$contexto/$nombre.png"
    if [ ! -f "$png" ]; then
      falla "$quien: falta el icono hicolor/${lado}x${lado}/$contexto/$nombre.png"
    elif [ "$(tamano_png "$png")" != "${lado}x${lado}" ]; then
      falla "$quien: hicolor/${lado}x${lado}/$contexto/$nombre.png no es un PNG de ${lado}x${lado} ($(tamano_png "$png"))"
    fi
  done
  local svg="$usr/share/icons/hicolor/scalable/$contexto/$nombre.svg"
  if [ ! -f "$svg" ]; then
    falla "$quien: falta el icono hicolor/scalable/$contexto/$nombre.svg"
  elif ! xmllint --noout "$svg" 2>/dev/null || ! grep -q '<svg' "$svg"; then
    falla "$quien: hicolor/scalable/$contexto/$nombre.svg no es un SVG bien formado"
  fi
}

# -- The menu entry --------------------------------------------------------------------------------
escritorio="$usr/share/applications/texalon.desktop"
if [ ! -f "$escritorio" ]; then
  aborta "falta la entrada de menú usr/share/applications/texalon.desktop"
fi
if ! avisos=$(desktop-file-validate "$escritorio" 2>&1) || [ -n "$avisos" ]; then
  falla "desktop-file-validate no acepta texalon.desktop sin avisos: $avisos"
fi
# clave NOMBRE: the value of the key in the [Desktop Entry] group, without locale.
clave() {
  awk -v clave="$1" '
    /^\[/ { grupo = $0; next }
    grupo == "[Desktop Entry]" && index($0, clave "=") == 1 { print substr($0, length(clave) + 2); exit }
  ' "$escritorio"
}
ejecuta=$(clave Exec)
programa=${ejecuta%% *}
if [ -z "$programa" ]; then
  falla "texalon.desktop no tiene Exec"
elif [[ "$programa" == /* ]]; then
  [ -x "$raiz$programa" ] || falla "Exec=$ejecuta: $programa no está en el paquete"
else
  # Found on the PATH of the installed system, /usr/bin, here the unpacked one.
  encontrado=$(PATH="$usr/bin" command -v "$programa" || true)
  [ "$encontrado" = "$usr/bin/texalon" ] || falla "Exec=$ejecuta no lleva a bin/texalon del paquete (${encontrado:-no se encuentra})"
fi
[[ " $ejecuta " =~ \ %[fFuU]\  ]] || falla "Exec=$ejecuta no recibe el fichero que se abre (%f)"
[ "$(clave Terminal)" = false ] || falla "Terminal no es false"
[ "$(clave Type)" = Application ] || falla "Type no es Application"
[ -n "$(clave Comment)" ] || falla "texalon.desktop no tiene Comment"

icono=$(clave Icon)
if [ -z "$icono" ]; then
  falla "texalon.desktop no tiene Icon"
elif [[ "$icono" == */* ]]; then
  falla "Icon=$icono es una ruta, no un nombre del tema de iconos"
else
  comprueba_icono apps "$icono" "Icon=$icono"
fi

# -- The project file types ------------------------------------------------------------------------
# The MIME database as update-mime-database builds it from the package's XML alone.
mime="$temporal/mime"
mkdir -p "$mime/packages"
shopt -s nullglob
xml=("$usr/share/mime/packages/"*.xml)
shopt -u nullglob
if [ ${#xml[@]} -eq 0 ]; then
  falla "el paquete no instala ningún XML en usr/share/mime/packages"
else
  for fichero in "${xml[@]}"; do
    xmllint --noout "$fichero" || falla "$(basename "$fichero") no es XML bien formado"
    cp "$fichero" "$mime/packages/"
  done
  # With the folder on the data path, so that update-mime-database has no note to add about it.
  if ! avisos=$(XDG_DATA_HOME="$temporal" XDG_DATA_DIRS="$temporal" update-mime-database "$mime" 2>&1) ||
     [ -n "$avisos" ]; then
    falla "update-mime-database no acepta el XML del paquete: $avisos"
  fi
fi

# The name patterns as the XML declares them, one a line in the form of globs2:
# weight:type:pattern[:cs]. (update-mime-database 2.2 writes a case-sensitive lower-case glob into
# globs2 twice, once without the flag, so the rules are read from the XML itself.)
xpath() { xmllint --xpath "$1" "$2" 2>/dev/null || true; }
reglas="$temporal/reglas"
: >"$reglas"
for fichero in "${xml[@]}"; do
  cuantos=$(xpath "count(//*[local-name()='mime-type']/*[local-name()='glob'])" "$fichero")
  for ((i = 1; i <= ${cuantos:-0}; i++)); do
    glob="(//*[local-name()='mime-type']/*[local-name()='glob'])[$i]"
    peso=$(xpath "string($glob/@weight)" "$fichero")
    marca=$(xpath "string($glob/@case-sensitive)" "$fichero")
    printf '%s:%s:%s:%s\n' "${peso:-50}" "$(xpath "string($glob/../@type)" "$fichero")" \
      "$(xpath "string($glob/@pattern)" "$fichero")" "$([ "$marca" = true ] && echo cs)" >>"$reglas"
  done
done

# tipo_por_nombre NOMBRE: the type that the patterns give to a file name, as the shared MIME-info
# rules choose it: a pattern matches whatever the case unless it is case-sensitive ("cs"); the
# highest weight wins, then the longest pattern.
tipo_por_nombre() {
  local nombre=$1 minusculas=${1,,} peso tipo patron marcas mejor="" mejor_peso=-1 mejor_largo=-1
  while IFS=: read -r peso tipo patron marcas; do
    [[ "$peso" == \#* || -z "$tipo" ]] && continue
    if [[ ",$marcas," == *,cs,* ]]; then
      # shellcheck disable=SC2053
      [[ "$nombre" == $patron ]] || continue
    else
      # shellcheck disable=SC2053
      [[ "$minusculas" == ${patron,,} ]] || continue
    fi
    if ((peso > mejor_peso || (peso == mejor_peso && ${#patron} > mejor_largo))); then
      mejor=$tipo mejor_peso=$peso mejor_largo=${#patron}
    fi
  done <"$reglas"
  echo "$mejor"
}

tipos=$(clave MimeType)
[ -n "$tipos" ] || falla "texalon.desktop no tiene MimeType"
IFS=';' read -r -a lista_tipos <<<"$tipos"
for tipo in "${lista_tipos[@]}"; do
  [ -n "$tipo" ] || continue
  if [ ! -f "$mime/types" ] || ! grep -qxF "$tipo" "$mime/types"; then
    falla "MimeType $tipo no está declarado en el XML de usr/share/mime/packages"
    continue
  fi
  comentario=$(xmllint --xpath "string(//*[local-name()='mime-type'][@type='$tipo']/*[local-name()='comment'][not(@*)])" "${xml[@]}" 2>/dev/null || true)
  [ -n "$comentario" ] || falla "$tipo no tiene comentario"
  mapfile -t patrones < <(awk -F: -v tipo="$tipo" '$2 == tipo { print $3 }' "$reglas")
  [ ${#patrones[@]} -gt 0 ] || falla "$tipo no tiene ningún patrón de nombre (glob)"
  for patron in "${patrones[@]}"; do
    ejemplo=${patron//\*/proyecto}
    for nombre in "${ejemplo,,}" "${ejemplo^^}"; do
      hallado=$(tipo_por_nombre "$nombre")
      [ "$hallado" = "$tipo" ] || falla "el fichero «$nombre» no se reconoce como $tipo (${hallado:-ningún tipo})"
    done
  done
  icono_tipo=$(awk -F: -v tipo="$tipo" '$1 == tipo { print $2 }' "$mime/icons" 2>/dev/null)
  comprueba_icono mimetypes "${icono_tipo:-${tipo//\//-}}" "$tipo"
done

# -- The batch command, run from the unpacked root, and the guide's examples ---------------------
shopt -s nullglob
ejemplos=("$datos/ejemplos/"*.vm[fcFC])
shopt -u nullglob
[ ${#ejemplos[@]} -gt 0 ] || falla "faltan los ejemplos de la guía: bin/../share/texalon/ejemplos/*.vmf, *.vmc"
if [ -x "$usr/bin/texalon-calculo" ]; then
  if ! salida=$("$usr/bin/texalon-calculo" --help 2>&1); then
    falla "texalon-calculo --help del paquete falla: $salida"
  elif [[ "$salida" != *texalon-calculo* ]]; then
    falla "texalon-calculo --help del paquete no muestra la ayuda: $salida"
  fi
  if [ ${#ejemplos[@]} -gt 0 ] && ! salida=$("$usr/bin/texalon-calculo" "${ejemplos[@]}" 2>&1 >/dev/null); then
    falla "texalon-calculo del paquete no calcula los ejemplos instalados: $salida"
  fi
fi

# -- Compressed documents ----------------------------------------------------------------------------
# comprimido FICHERO QUIEN: a whole gzip file, compressed at the best level and without the name
# or the time of the original, so that the same text gives the same bytes (gzip -9n).
comprimido() {
  local fichero=$1 quien=$2 cabecera
  if ! gzip -t "$fichero" 2>/dev/null; then
    falla "$quien no es un fichero gzip entero"
    return 1
  fi
  # ID1 ID2 CM FLG, MTIME (4 bytes), XFL: no FNAME flag, no time, 2 for the best compression.
  cabecera=$(od -An -tx1 -N9 "$fichero" | tr -d ' \n')
  [ "$cabecera" = 1f8b08000000000002 ] || falla "$quien no está comprimido con gzip -9n (cabecera $cabecera)"
}

# -- The copyright file and the changelog ------------------------------------------------------------
documentos="$usr/share/doc/texalon"
copyright="$documentos/copyright"
if [ ! -s "$copyright" ]; then
  falla "falta usr/share/doc/texalon/copyright"
else
  # Debian's machine-readable form: its header, every file under one licence, and that licence
  # written out in a paragraph of its own.
  grep -qx 'Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/' "$copyright" ||
    falla "copyright no tiene la cabecera Format del formato de Debian"
  grep -qx "Upstream-Contact: $(campo Maintainer)" "$copyright" ||
    falla "el Upstream-Contact de copyright no es el Maintainer del paquete, «$(campo Maintainer)»"
  grep -qx 'Files: \*' "$copyright" || falla "copyright no tiene un párrafo «Files: *»"
  grep -qE '^Copyright: [0-9]{4}(-[0-9]{4})? VELMORA$' "$copyright" || falla "copyright no da VELMORA como titular"
  [ "$(grep -c '^License: LicenseRef-VELMORA$' "$copyright")" -eq 2 ] ||
    falla "copyright no lleva la licencia LicenseRef-VELMORA en los ficheros y en su propio párrafo"
  texto_licencia=$(awk '/^License: LicenseRef-VELMORA$/ { n++; next } n == 2 && /^ / { print } n == 2 && /^$/ { exit }' "$copyright")
  [[ "$texto_licencia" == *"usarlos y copiarlos"* && "$texto_licencia" == *"sin ningún cambio"* &&
     "$texto_licencia" == *"demás derechos están reservados"* ]] ||
    falla "el párrafo de LicenseRef-VELMORA no escribe la licencia: «$texto_licencia»"
fi

# A package made from its own sources (native: its version has no Debian revision) keeps its
# changelog as changelog.gz; changelog.Debian.gz is for one made from another's.
changelog="$documentos/changelog.gz"
# entrada CAMPO: the field of the changelog's last entry, as dpkg-parsechangelog reads it.
entrada() { [ -f "$temporal/changelog" ] && dpkg-parsechangelog -l "$temporal/changelog" -S "$1" 2>/dev/null || true; }
[ ! -e "$documentos/changelog.Debian.gz" ] || falla "el paquete es nativo: su changelog es changelog.gz, no changelog.Debian.gz"
if [ ! -f "$changelog" ]; then
  falla "falta usr/share/doc/texalon/changelog.gz"
elif comprimido "$changelog" changelog.gz; then
  gzip -dc "$changelog" >"$temporal/changelog"
  [ "$(entrada Source)" = texalon ] || falla "la entrada del changelog no es del paquete texalon: «$(entrada Source)»"
  [ "$(entrada Version)" = "$version" ] || falla "la última entrada del changelog es de la versión «$(entrada Version)», no de $version"
  [ "$(entrada Maintainer)" = "$(campo Maintainer)" ] ||
    falla "la entrada del changelog la firma «$(entrada Maintainer)», no el Maintainer «$(campo Maintainer)»"
  [ -n "$(entrada Timestamp)" ] || falla "la entrada del changelog no tiene una fecha válida"
  [[ "$(entrada Changes)" == *"  * "* ]] || falla "la entrada del changelog no cuenta ningún cambio"
fi

# -- The manual pages ------------------------------------------------------------------------------
for programa in texalon texalon-calculo; do
  pagina="$usr/share/man/man1/$programa.1.gz"
  if [ ! -f "$pagina" ]; then
    falla "falta la página de manual usr/share/man/man1/$programa.1.gz"
    continue
  fi
  comprimido "$pagina" "$programa.1.gz" || continue
  # groff's warnings go to the error output; the page must give none.
  if ! texto=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$pagina" 2>"$temporal/avisos_man") ||
     [ -s "$temporal/avisos_man" ]; then
    falla "man -l $programa.1.gz no muestra la página sin avisos: $(cat "$temporal/avisos_man")"
  fi
  [[ "$texto" == *NOMBRE* && "$texto" == *SINOPSIS* && "$texto" == *DESCRIPCI* ]] ||
    falla "$programa.1.gz no tiene las secciones NOMBRE, SINOPSIS y DESCRIPCIÓN en español"
  [[ "$(lexgrog "$pagina" 2>&1)" == *": \"$programa - "* ]] ||
    falla "lexgrog no halla la sección NOMBRE de $programa.1.gz: $(lexgrog "$pagina" 2>&1)"
  echo "$programa.1.gz: $(lexgrog "$pagina" 2>&1 | sed 's/^[^:]*: //')"
  declare "manual_${programa//-/_}=$texto"
done
# The page of the command is made from its --help: every option of the help is in it.
if [ -n "${manual_texalon_calculo:-}" ] && [ -x "$usr/bin/texalon-calculo" ]; then
  while read -r opcion; do
    [[ "$manual_texalon_calculo" == *"$opcion"* ]] || falla "texalon-calculo.1.gz no trae la opción $opcion de --help"
  done < <("$usr/bin/texalon-calculo" --help | grep -oE '^  (-h, )?--[a-z]*' | grep -oE -- '--[a-z]*$')
fi

# -- The bash completion -----------------------------------------------------------------------------
completado="$usr/share/bash-completion/completions/texalon-calculo"
if [ ! -f "$completado" ]; then
  falla "falta el completado de bash usr/share/bash-completion/completions/texalon-calculo"
elif ! bash "$(dirname "$0")/prueba_completado.sh" "$completado"; then
  falla "el completado de bash instalado no completa texalon-calculo como debe"
fi

# -- Software centres: the AppStream data ------------------------------------------------------------
shopt -s nullglob
metainfo=("$usr/share/metainfo/"*.metainfo.xml)
shopt -u nullglob
if [ ${#metainfo[@]} -ne 1 ]; then
  falla "usr/share/metainfo debe tener un fichero <id>.metainfo.xml y tiene ${#metainfo[@]}"
else
  metainfo=${metainfo[0]}
  dato() { xpath "string($1)" "$metainfo"; }
  identificador=$(dato "/component/id")
  [ "$(basename "$metainfo")" = "$identificador.metainfo.xml" ] ||
    falla "$(basename "$metainfo") no se llama como su componente, $identificador.metainfo.xml"
  # The id under the maker's web domain, reversed: www.velmora.example gives example.velmora.
  dominio=$(campo Homepage | sed -E 's|^https://(www\.)?([^/]+).*|\2|')
  dominio_invertido=$(tr '.' '\n' <<<"$dominio" | tac | paste -sd.)
  [[ "$identificador" == "$dominio_invertido".* ]] ||
    falla "el id $identificador no está bajo el dominio de la web, $dominio_invertido"
  [ "$(dato /component/@type)" = desktop-application ] || falla "el componente no es desktop-application"
  [ "$(dato '/component/@xml:lang')" = es ] || falla "los textos del componente no están declarados en español (xml:lang)"
  [ "$(dato "/component/launchable[@type='desktop-id']")" = texalon.desktop ] ||
    falla "el componente no lanza texalon.desktop"
  [ "$(dato /component/project_license)" = "$(sed -n 's/^License: //p' "$copyright" | head -1)" ] ||
    falla "project_license no es la licencia del fichero copyright"
  [ "$(dato /component/developer_name)" = VELMORA ] || falla "developer_name no es VELMORA"
  [ "$(dato "/component/url[@type='homepage']")" = "$(campo Homepage)" ] || falla "la url homepage no es el Homepage del paquete"
  [ "$(dato "/component/releases/release[1]/@version")" = "$version" ] ||
    falla "la última versión de releases no es $version"
  [ "$(dato "/component/releases/release[1]/@date")" = "$(date -u -d "$(entrada Date)" +%F)" ] ||
    falla "la fecha de la versión en releases no es la de la entrada del changelog"
  for tipo in "${lista_tipos[@]}"; do
    [ -z "$tipo" ] || [ "$(dato "count(/component/provides/mediatype[.='$tipo'])")" = 1 ] ||
      falla "el componente no ofrece el tipo $tipo de texalon.desktop"
  done
  capturas=$(dato "count(/component/screenshots/screenshot)")
  [ "${capturas:-0}" -ge 1 ] || falla "el componente no tiene capturas"
  for ((i = 1; i <= ${capturas:-0}; i++)); do
    imagen=$(dato "/component/screenshots/screenshot[$i]/image")
    [[ "$imagen" == "$(campo Homepage)"/texalon/capturas/*.png ]] ||
      falla "la captura $imagen no está en la web del fabricante"
    [ -f "$(dirname "$0")/../../docs/$(basename "$imagen")" ] || falla "la captura $(basename "$imagen") no es una imagen de docs/"
    [ -n "$(dato "/component/screenshots/screenshot[$i]/caption")" ] || falla "la captura $(basename "$imagen") no tiene pie"
  done
  # The file alone, then with the menu entry it names, as the package installs them: no error
  # and no warning (a note is shown, and does not fail).
  valida_appstream() {
    local salida estado
    salida=$(appstreamcli "$@" 2>&1) && estado=0 || estado=$?
    echo "appstreamcli $*:"
    echo "$salida" | sed 's/^/  /'
    if [ $estado -ne 0 ] || grep -qE '^ *[EW]: ' <<<"$salida"; then
      falla "appstreamcli $1 no acepta los datos de AppStream sin errores ni avisos"
    fi
  }
  valida_appstream validate --no-net --pedantic "$metainfo"
  valida_appstream validate-tree --no-net --pedantic "$raiz"
fi

# -- lintian ---------------------------------------------------------------------------------------
# Every tag down to the notes (I:), the experimental (X:) and the pedantic ones (P:) is shown, and
# the overridden ones (O:) without their reason, which is written once in the override file; an
# error (E:) or a warning (W:) fails.
lintian_salida=$(lintian --display-info --display-experimental --pedantic --show-overrides "$deb" 2>&1 |
                 grep -vE '^(N:|running with root privileges)' || true)
echo "lintian:"
echo "${lintian_salida:-  (nada)}" | sed 's/^/  /'
if grep -qE '^[EW]: ' <<<"$lintian_salida"; then
  falla "lintian da errores o avisos sobre el paquete: $(grep -E '^[EW]: ' <<<"$lintian_salida" | paste -sd' ')"
fi

echo "Paquete: $(basename "$deb"), $(stat -c %s "$deb") bytes; instalado: $(du -sk "$usr" | cut -f1) KiB"
echo "Depends: $depende"
echo "Tiempo: $((SECONDS - inicio)) s"
if [ $fallos -gt 0 ]; then
  echo "$fallos comprobaciones del paquete han fallado" >&2
  exit 1
fi
echo "El paquete es correcto."
