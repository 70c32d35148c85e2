#!/usr/bin/env bash
# The layers of the program, checked on the sources without building anything: which part of
# src/ may include which. One way only:
#
#   shell -> screens, calculo -> reports -> diagrams -> engine, files, platform -> state
#
# with Qt only in the qt/ folders, the platform, the screens and the shell. Every include that
# breaks a rule is told with its file, its line and the rule, and the test fails.
#
#   capas.sh RAIZ   (the project's root, the folder of src/)
set -uo pipefail

raiz=${1:?"uso: capas.sh RAIZ"}
cd "$raiz" || exit 2

fallos=0

# falla FICHERO LINEA INCLUSION REGLA
falla() {
  echo "$1:$2: #include $3 rompe la regla: $4" >&2
  fallos=$((fallos + 1))
}

# The Qt headers of the classes that are widgets, and the modules that hold them. The batch
# command may bring Qt's application, text and painting to write its files, never a widget.
readonly WIDGETS='^(QtWidgets|QtPrintSupport|QWidget|QMainWindow|QDialog|QFrame|QLabel|QLineEdit|QComboBox|QAbstractButton|QPushButton|QRadioButton|QCheckBox|QToolButton|QGroupBox|QAbstractScrollArea|QAbstractItemView|QTableView|QTableWidget|QGraphicsView|QTextBrowser|QTextEdit|QMdiArea|QMdiSubWindow|QMenu|QMenuBar|QToolBar|QMessageBox|QFileDialog|QPrintDialog|QSplashScreen|QStatusBar|QScrollArea|QSpinBox|QTabWidget)$'

# The includes of a file, a line each: "LINE:KIND:NAME", KIND " for the project's, < for the
# system's.
inclusiones() {
  grep -n -E '^[[:space:]]*#[[:space:]]*include[[:space:]]*["<]' "$1" |
    sed -E 's/^([0-9]+):[[:space:]]*#[[:space:]]*include[[:space:]]*(["<])([^">]+)[">].*/\1:\2:\3/'
}

# Whether a project header, or one that it includes, includes the header of a widget class.
declare -A declaraWidget=()
trae_widget() {
  local cabecera=$1
  if [ -n "${declaraWidget[$cabecera]+x}" ]; then [ "${declaraWidget[$cabecera]}" = si ]; return; fi
  declaraWidget[$cabecera]=no  # a header that comes back to itself adds nothing
  [ -f "src/$cabecera" ] || return 1
  local linea tipo nombre
  while IFS=: read -r linea tipo nombre; do
    if { [ "$tipo" = "<" ] && [[ $nombre =~ $WIDGETS ]]; } ||
       { [ "$tipo" = '"' ] && trae_widget "$nombre"; }; then
      declaraWidget[$cabecera]=si
      return 0
    fi
  done < <(inclusiones "src/$cabecera")
  return 1
}

# The layer of a file of src/, or of an included project header, by its folder.
capa() {
  case $1 in
    state/*) echo state ;;
    engine/*) echo engine ;;
    files/*) echo files ;;
    diagrams/qt/*) echo diagrams/qt ;;
    diagrams/*) echo diagrams ;;
    reports/qt/*) echo reports/qt ;;
    reports/*) echo reports ;;
    platform/qt/*) echo platform/qt ;;
    platform/*) echo platform ;;
    calculo/*) echo calculo ;;
    screens/*) echo screens ;;
    shell/*) echo shell ;;
    *) echo otra ;;
  esac
}

comprueba() {
  local fichero=$1
  local propia
  propia=$(capa "${fichero#src/}")
  local linea tipo nombre incluida
  while IFS=: read -r linea tipo nombre; do
    if [ "$tipo" = "<" ]; then
      # Qt's headers are named Q... and Qt...; the standard library's are not.
      [[ $nombre =~ ^Q ]] || continue
      case $propia in
        state | engine | files | diagrams | reports)
          falla "$fichero" "$linea" "<$nombre>" "«$propia» es C++ sin Qt" ;;
        calculo)
          [[ $nombre =~ $WIDGETS ]] && falla "$fichero" "$linea" "<$nombre>" "«calculo» no incluye ninguna clase de widget" ;;
      esac
      continue
    fi
    incluida=$(capa "$nombre")
    case $propia in
      state)
        [ "$incluida" = state ] || falla "$fichero" "$linea" "\"$nombre\"" "«state» no incluye nada del proyecto fuera de sí" ;;
      engine | files)
        case $incluida in
          screens | shell | diagrams | diagrams/qt | reports | reports/qt | platform/qt)
            falla "$fichero" "$linea" "\"$nombre\"" "«$propia» no incluye screens, shell, diagrams, reports ni platform/qt" ;;
        esac ;;
      diagrams | reports)
        case $incluida in
          diagrams/qt | reports/qt | platform/qt | screens | shell)
            falla "$fichero" "$linea" "\"$nombre\"" "«$propia» sin qt/ no incluye ningún qt/, screens ni shell" ;;
        esac ;;
      platform | platform/qt)
        case $incluida in
          screens | shell)
            falla "$fichero" "$linea" "\"$nombre\"" "«platform» no incluye screens ni shell" ;;
        esac ;;
      calculo)
        case $incluida in
          screens | shell)
            falla "$fichero" "$linea" "\"$nombre\"" "«calculo» no incluye screens ni shell" ;;
          *)
            trae_widget "$nombre" && falla "$fichero" "$linea" "\"$nombre\"" "«calculo» no incluye ninguna clase de widget (esa cabecera trae una)" ;;
        esac ;;
    esac
  done < <(inclusiones "$fichero")
}

ficheros=0
while IFS= read -r -d '' fichero; do
  comprueba "$fichero"
  ficheros=$((ficheros + 1))
done < <(find src -type f \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -z)

if [ "$ficheros" -eq 0 ]; then
  echo "no hay fuentes en $raiz/src" >&2
  exit 1
fi
if [ "$fallos" -gt 0 ]; then
  echo "$fallos inclusiones rompen las capas ($ficheros ficheros leídos)" >&2
  exit 1
fi
echo "capas en orden: $ficheros ficheros leídos"
