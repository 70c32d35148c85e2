#!/bin/sh
# Stands for texalon-calculo before help2man: runs the program named by TEXALON_CALCULO with the
# same arguments and gives its output with the usage lines in the form that help2man reads in
# Spanish: "Modo de empleo:" for "Uso:", and each way of calling it on one line ("  o: ..."), a
# way that the help breaks over two lines joined again. Everything else goes through unchanged.
set -eu
salida=$("$TEXALON_CALCULO" "$@")
printf '%s\n' "$salida" | awk '
  NR == 1 {
    if (!sub(/^Uso:/, "Modo de empleo:")) {
      print "la ayuda de texalon-calculo no empieza por «Uso:»: " $0 > "/dev/stderr"
      exit 1
    }
    uso = 1; linea = $0; next
  }
  uso && /^ +o: / { print linea; linea = $0; next }
  uso && /^ +[^ ]/ { sub(/^ +/, " "); linea = linea $0; next }
  uso { print linea; uso = 0 }
  { print }
  END { if (uso) print linea }
'
