#!/usr/bin/env bash
# The layers of the program, checked on the sources without building anything: which folder of
# src/ may include which, and which of Qt. One way only, as docs/ARQUITECTURA.md draws it:
#
#   shell -> screens, calculo -> reports -> diagrams -> engine, files, platform -> state
#
# with Qt only in the qt/ folders, the platform, the screens and the shell, and in the batch
# command (calculo) only Qt's core, painting and SVG, never a widget.
#
# Every include that breaks a rule is told on the error output with its file, its line and the
# rule, and the test fails:
#
#   FICHERO:LINEA: #include X rompe la regla: REGLA
#
#   capas.sh RAIZ   (the project's root, the folder of src/)
#
# The folder of Qt's headers is asked of qtpaths6 or qmake6, else looked for under
# /usr/include/*/qt6; CAPAS_QT_CABECERAS=CARPETA names it instead.
set -uo pipefail

# The allow-list. One row per folder of src/ (a qt/, dobles/ or win/ folder is a row of its own):
# the folder, the Qt it may include, and the folders of src/ whose headers it may include
# besides its own. A folder without a row is refused, both its own includes and any include of
# its headers, until it is given one here.
#
# Qt: "no" no header of Qt at all, neither directly nor through a header of the project;
#     "sí" any module;
#     a list of modules (QtCore,QtGui,QtSvg): only those, neither directly nor through a header
#     of the project. The headers of QtWidgets, QtPrintSupport and any other Qt*Widgets module
#     are widgets.
# A new rule wants its break in the tree ejemplo/ and its line in ejemplo/esperado.txt, which
# detecta.sh checks.
readonly CAPAS='
# carpeta         Qt                   incluye, además de sus propias cabeceras
state             no                   -
engine            no                   state
# files and engine stand side by side in the drawing. The entry rules checked before
# calculating (ReglasAntesDeCalcular, ReglasConfina) run the engine, so files may include the
# engine; the engine never includes files.
files             no                   engine state
# The interfaces of the operating system know neither their implementations (qt/, win/), nor
# their test doubles (dobles/), nor engine and files beside them.
platform          sí                   state
# The Qt implementation chooses the Windows parts when it is compiled for Windows.
platform/qt       sí                   platform platform/win state
# The Windows start-up adds the fonts it carries through qt/Fuentes.
platform/win      sí                   platform platform/qt state
# The test doubles build on the Qt implementation. Nothing of src/ includes a test double: they
# are for the tests alone.
platform/dobles   sí                   platform platform/qt state
diagrams          no                   engine files platform state
diagrams/qt       sí                   diagrams engine files platform platform/qt state
reports           no                   diagrams engine files platform state
reports/qt        sí                   reports diagrams diagrams/qt engine files platform platform/qt state
screens           sí                   reports reports/qt diagrams diagrams/qt engine files platform platform/qt state
# The batch command draws its SVG files and writes its PDF files without a window; whatever it
# includes that would bring a widget is refused by its Qt.
calculo           QtCore,QtGui,QtSvg   reports reports/qt diagrams diagrams/qt engine files platform platform/qt state
shell             sí                   screens reports reports/qt diagrams diagrams/qt engine files platform platform/qt state
'

# The includes that break a rule of the table and are kept on purpose: the file, from src/, and
# the include as it is written. One that is no longer there is told as a notice.
readonly EXCEPCIONES='
# The batch command starts QApplication, which lives in QtWidgets, so that the texts of its SVG
# files and reports measure as those of the screens do; it shows no widget.
calculo/main.cpp  <QApplication>
'

# The headers of the build that are written while building (moc, uic, configure_file) are no
# files of src/; none is included today. One included by quotes would need a row in EXCEPCIONES.

raiz=${1:?"uso: capas.sh RAIZ"}
cd "$raiz" || exit 2

# The folder of Qt's headers: one that holds QtCore/, QtWidgets/ and QtPrintSupport/.
cabeceras_qt() {
  local candidata
  local -a candidatas=()
  if [ -n "${CAPAS_QT_CABECERAS-}" ]; then
    candidatas=("$CAPAS_QT_CABECERAS")
  else
    command -v qtpaths6 >/dev/null && candidatas+=("$(qtpaths6 --query QT_INSTALL_HEADERS 2>/dev/null)")
    command -v qmake6 >/dev/null && candidatas+=("$(qmake6 -query QT_INSTALL_HEADERS 2>/dev/null)")
    candidatas+=(/usr/include/*/qt6 /usr/include/qt6)
  fi
  for candidata in "${candidatas[@]}"; do
    if [ -d "$candidata/QtCore" ] && [ -d "$candidata/QtWidgets" ] && [ -d "$candidata/QtPrintSupport" ]; then
      echo "$candidata"
      return 0
    fi
  done
  return 1
}

if ! qt=$(cabeceras_qt); then
  {
    echo "no encuentro las cabeceras de Qt 6 (las carpetas QtCore/, QtWidgets/ y QtPrintSupport/):" \
      "${CAPAS_QT_CABECERAS:-ni qtpaths6 ni qmake6 las dan, ni están en /usr/include/*/qt6}"
    echo "sin ellas no se sabe qué cabecera es de widgets; dilas con CAPAS_QT_CABECERAS=CARPETA"
  } >&2
  exit 2
fi

if [ ! -d src ]; then
  echo "no hay fuentes en $raiz/src" >&2
  exit 1
fi

# One stream for the one awk program: "Q MÓDULO/CABECERA" for each header of Qt, "F RUTA" for
# each file of src/.
{
  find "$qt" -mindepth 2 -maxdepth 2 -path "$qt/Qt*/*" -type f -printf 'Q %P\n'
  find src -type f -printf 'F %p\n'
} | LC_ALL=C sort | CAPAS_TABLA=$CAPAS CAPAS_EXCEPCIONES=$EXCEPCIONES awk '
# The folder of a path: "src/engine/X.h" is "src/engine", "engine/X.h" is "engine", "X.h" is "".
function carpeta(ruta,   c) {
  c = ruta
  if (sub(/\/[^\/]*$/, "", c)) return c
  return ""
}

# How a folder of src/ is named in a message.
function nombre_capa(c) { return c == "" ? "src/ (sin carpeta)" : c }

function falla(fichero, linea, inclusion, regla) {
  print fichero ":" linea ": #include " inclusion " rompe la regla: " regla > "/dev/stderr"
  fallos++
}

# A header of Qt by the name it is found under; where a name is in a widget module and in
# another, the other: the QtWidgets copies of qaction.h, qshortcut.h... only bring those of QtGui.
function anota(nombre, modulo) {
  if (!(nombre in indice) || es_widget(indice[nombre])) indice[nombre] = modulo
}

function es_widget(modulo) {
  return modulo == "QtWidgets" || modulo == "QtPrintSupport" || modulo ~ /^Qt.*Widgets$/
}

# The Qt module of a header included as <nombre>, however spelled (<QLabel>, <qlabel.h>,
# <QtWidgets>, <QtWidgets/QLabel>...), or "" when it is no header of Qt.
function modulo(nombre,   m) {
  if (index(nombre, "/")) {
    m = nombre
    sub(/\/.*/, "", m)
    return (m in modulos || m ~ /^Qt[A-Z]/) ? m : ""
  }
  if (nombre in indice) return indice[nombre]
  if (nombre ~ /^Q/) return "Qt"  # a header of a module that is not installed here
  return ""
}

# Whether a folder with that Qt may include a header of that module.
function admite(politica, m) {
  if (politica == "sí") return 1
  if (politica == "no") return 0
  return index("," politica ",", "," m ",") > 0
}

# The rule that a header of Qt breaks in a folder with that Qt; eso is what brings it.
function regla_qt(capa, politica, m, eso,   n, partes, lista, i) {
  if (politica == "no") return "«" capa "» es C++ sin Qt" eso
  if (eso == "") eso = " (módulo " m ")"
  if (es_widget(m)) return "«" capa "» no incluye ninguna clase de widget" eso
  n = split(politica, partes, ",")
  lista = partes[1]
  for (i = 2; i <= n; i++) lista = lista (i < n ? ", " : " y ") partes[i]
  return "«" capa "» solo incluye Qt de " lista eso
}

# The first header of Qt outside that Qt that a header of the project brings, itself or
# through the headers of the project it includes; "" when none. A header of Qt that the
# folder of that header may not include is told on its own line, not again at each include of it.
function trae(cabecera, politica,   clave, su_qt, i, nombre, r) {
  clave = politica SUBSEP cabecera
  if (clave in trae_memo) return trae_memo[clave]
  trae_memo[clave] = ""  # a header that comes back to itself adds nothing
  su_qt = carpeta(substr(cabecera, 5))
  su_qt = (su_qt in qt) ? qt[su_qt] : "no"
  for (i = 1; i <= ninc[cabecera]; i++) {
    nombre = inc_nombre[cabecera, i]
    if (inc_tipo[cabecera, i] == "<") {
      r = modulo(nombre)
      r = (r != "" && admite(su_qt, r) && !admite(politica, r)) ? "<" nombre ">" : ""
    } else {
      r = (("src/" nombre) in ninc) ? trae("src/" nombre, politica) : ""
    }
    if (r != "") return trae_memo[clave] = r
  }
  return ""
}

# Whether a header of the project brings a widget, or any Qt outside what the batch command
# may include.
function trae_widget(cabecera, politica) { return trae(cabecera, politica) }

# Whether a header of the project brings any Qt at all.
function trae_qt(cabecera) { return trae(cabecera, "no") }

# The includes of a source, kept by number: their line, their kind (" or <) and their name.
function lee(fichero,   linea, n, nl, resto, tipo, fin) {
  n = 0
  nl = 0
  while ((getline linea < fichero) > 0) {
    nl++
    if (linea !~ /^[ \t]*#[ \t]*include[ \t]*[<"]/) continue
    resto = linea
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", resto)
    tipo = substr(resto, 1, 1)
    resto = substr(resto, 2)
    fin = index(resto, tipo == "<" ? ">" : "\"")
    n++
    inc_linea[fichero, n] = nl
    inc_tipo[fichero, n] = tipo
    inc_nombre[fichero, n] = fin ? substr(resto, 1, fin - 1) : resto
  }
  close(fichero)
  ninc[fichero] = n
}

function comprueba(fichero,   propio, capa, i, linea, tipo, nombre, escrita, cabecera, otra, m, eso) {
  propio = substr(fichero, 5)
  capa = carpeta(propio)
  for (i = 1; i <= ninc[fichero]; i++) {
    linea = inc_linea[fichero, i]
    tipo = inc_tipo[fichero, i]
    nombre = inc_nombre[fichero, i]
    escrita = tipo == "<" ? "<" nombre ">" : "\"" nombre "\""
    if ((propio SUBSEP escrita) in excepcion) {
      excepcion_usada[propio SUBSEP escrita] = 1
      continue
    }
    if (!(capa in qt)) {
      falla(fichero, linea, escrita, "«" nombre_capa(capa) "» no está en la tabla de capas de tests/capas/capas.sh: añádela con lo que puede incluir")
      continue
    }
    if (tipo == "<") {
      otra = nombre
      sub(/\/.*/, "", otra)
      if (("src/" nombre) in existe || (index(nombre, "/") && ("src/" otra) in carpetas)) {
        falla(fichero, linea, escrita, "una cabecera del proyecto se incluye entre comillas, desde src/")
        continue
      }
      m = modulo(nombre)
      if (m != "" && !admite(qt[capa], m)) falla(fichero, linea, escrita, regla_qt(capa, qt[capa], m, ""))
      continue
    }
    if (nombre ~ /^\// || nombre ~ /(^|\/)\.\.?(\/|$)/) {
      falla(fichero, linea, escrita, "una cabecera del proyecto se escribe desde src/, sin ./ ni ../")
      continue
    }
    cabecera = "src/" nombre
    if (!(cabecera in existe)) {
      if ((carpeta(fichero) "/" nombre) in existe)
        falla(fichero, linea, escrita, "una cabecera del proyecto se escribe desde src/: \"" substr(carpeta(fichero) "/" nombre, 5) "\"")
      else
        falla(fichero, linea, escrita, "no es ningún fichero de src/ (las cabeceras de fuera van entre <>)")
      continue
    }
    otra = carpeta(nombre)
    if (!(otra in qt)) {
      falla(fichero, linea, escrita, "«" nombre_capa(otra) "» no está en la tabla de capas de tests/capas/capas.sh: añádela con lo que puede incluir")
      continue
    }
    if (otra != capa && !((capa SUBSEP otra) in permite)) {
      falla(fichero, linea, escrita, "«" capa "» no incluye «" otra "» (incluye: " incluye[capa] ")")
      continue
    }
    if (qt[capa] == "sí") continue
    eso = qt[capa] == "no" ? trae_qt(cabecera) : trae_widget(cabecera, qt[capa])
    if (eso != "") falla(fichero, linea, escrita, regla_qt(capa, qt[capa], modulo(substr(eso, 2, length(eso) - 2)), " (esa cabecera trae " eso ")"))
  }
}

$1 == "Q" {
  ruta = substr($0, 3)
  m = ruta
  sub(/\/.*/, "", m)
  modulos[m] = 1
  anota(substr(ruta, length(m) + 2), m)
  anota(m, m)
  next
}
$1 == "F" {
  ruta = substr($0, 3)
  existe[ruta] = 1
  if (ruta ~ /\.(h|hh|hpp|hxx|inl|ipp|tpp|c|cc|cpp|cxx|mm)$/) fuentes[++nfuentes] = ruta
  d = ruta
  while (sub(/\/[^\/]*$/, "", d)) carpetas[d] = 1
  next
}

END {
  # The table, and that it names no folder without a row nor a Qt it does not know.
  n = split(ENVIRON["CAPAS_TABLA"], filas, "\n")
  for (i = 1; i <= n; i++) {
    fila = filas[i]
    sub(/#.*/, "", fila)
    k = split(fila, c)
    if (k == 0) continue
    qt[c[1]] = c[2]
    incluye[c[1]] = c[1]
    for (j = 3; j <= k; j++) {
      if (c[j] == "-") continue
      permite[c[1] SUBSEP c[j]] = 1
      nombrada[c[j]] = 1
      incluye[c[1]] = incluye[c[1]] " " c[j]
    }
    if (k < 3 || (c[2] != "no" && c[2] != "sí" && c[2] !~ /^Qt[A-Za-z]+(,Qt[A-Za-z]+)*$/)) {
      print "la tabla de capas no se entiende en: " filas[i] > "/dev/stderr"
      exit 2
    }
  }
  for (c1 in nombrada) if (!(c1 in qt)) {
    print "la tabla de capas nombra «" c1 "», que no tiene fila" > "/dev/stderr"
    exit 2
  }
  n = split(ENVIRON["CAPAS_EXCEPCIONES"], filas, "\n")
  for (i = 1; i <= n; i++) {
    fila = filas[i]
    sub(/#.*/, "", fila)
    if (split(fila, c) == 2) excepcion[c[1] SUBSEP c[2]] = 1
  }

  if (nfuentes == 0) {
    print "no hay fuentes en src" > "/dev/stderr"
    exit 1
  }
  for (i = 1; i <= nfuentes; i++) lee(fuentes[i])
  for (i = 1; i <= nfuentes; i++) comprueba(fuentes[i])

  for (x in excepcion) if (!(x in excepcion_usada)) {
    split(x, c, SUBSEP)
    print "aviso: src/" c[1] " ya no incluye " c[2] ": sobra su excepción en tests/capas/capas.sh"
  }
  if (fallos > 0) {
    print fallos " inclusiones rompen las capas (" nfuentes " ficheros leídos)" > "/dev/stderr"
    exit 1
  }
  print "capas en orden: " nfuentes " ficheros leídos"
}
'
