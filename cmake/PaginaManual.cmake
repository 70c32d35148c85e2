# The manual page of texalon-calculo, written by help2man from the command's --help and the
# include file of its other sections, in Spanish and dated on the day of the version.
#
#   cmake -DHELP2MAN=... -DPROGRAMA=texalon-calculo -DENVOLTORIO=ayuda-help2man.sh
#         -DINCLUSION=texalon-calculo.h2m -DVERSION=1.0 -DEPOCA=SEGUNDOS -DSALIDA=texalon-calculo.1
#         -P PaginaManual.cmake
#
# help2man reads the usage lines in Spanish as "Modo de empleo:"; the wrapper runs the command
# and hands its help over in that form.
foreach(_variable HELP2MAN PROGRAMA ENVOLTORIO INCLUSION VERSION EPOCA SALIDA)
  if(NOT DEFINED ${_variable})
    message(FATAL_ERROR "PaginaManual.cmake necesita -D${_variable}=...")
  endif()
endforeach()

set(ENV{TEXALON_CALCULO} "${PROGRAMA}")
# help2man dates the page by this time, not by the day of the build.
set(ENV{SOURCE_DATE_EPOCH} "${EPOCA}")
execute_process(
  COMMAND "${HELP2MAN}" --locale=es_ES.UTF-8 --no-info --section=1
          "--version-string=texalon-calculo ${VERSION}" "--source=TEXALON ${VERSION}"
          "--include=${INCLUSION}" "--output=${SALIDA}" "${ENVOLTORIO}"
  RESULT_VARIABLE _resultado
  ERROR_VARIABLE _errores)
if(NOT _resultado EQUAL 0)
  file(REMOVE "${SALIDA}")
  message(FATAL_ERROR "help2man no ha podido escribir la página de manual de texalon-calculo:\n${_errores}")
endif()

# Without the locale help2man writes its headings in English and does not find the usage lines.
file(READ "${SALIDA}" _pagina)
if(NOT _pagina MATCHES "\n\\.SH NOMBRE\n" OR NOT _pagina MATCHES "\n\\.SH SINOPSIS\n")
  file(REMOVE "${SALIDA}")
  message(FATAL_ERROR "help2man no ha escrito la página en español (sin NOMBRE o SINOPSIS): "
                      "hace falta el ajuste regional es_ES.UTF-8 (locale-gen).")
endif()
