# Runs "texalon-calculo --informe CARPETA FICHERO" as a user does and checks that it ends well,
# says nothing on the error output and leaves CARPETA/<name of the file without its
# extension>.pdf, a PDF document whose text holds TEXTO and that has PAGINAS pages.
#   -DPROGRAMA=<path of texalon-calculo>  -DCARPETA=<folder, made anew>  -DFICHERO=<project>
#   -DTEXTO=<text expected in the report>  -DPAGINAS=<number of pages>
include(${CMAKE_CURRENT_LIST_DIR}/EjecutaCalculo.cmake)
file(REMOVE_RECURSE "${CARPETA}")
texalon_calculo_sin_errores(--informe "${CARPETA}" "${FICHERO}")
get_filename_component(nombre "${FICHERO}" NAME_WLE)
set(pdf "${CARPETA}/${nombre}.pdf")
texalon_calculo_ha_escrito("${pdf}")
file(READ "${pdf}" cabecera LIMIT 8)
string(FIND "${cabecera}" "%PDF-" inicio)
if(NOT inicio EQUAL 0)
  message(FATAL_ERROR "${pdf} no es un documento PDF")
endif()
execute_process(COMMAND pdftotext -layout "${pdf}" - OUTPUT_VARIABLE texto RESULT_VARIABLE leido)
if(NOT leido EQUAL 0)
  message(FATAL_ERROR "pdftotext no ha podido leer ${pdf}")
endif()
string(FIND "${texto}" "${TEXTO}" posicion)
if(posicion EQUAL -1)
  message(FATAL_ERROR "${pdf} no contiene «${TEXTO}»:\n${texto}")
endif()
execute_process(COMMAND pdfinfo "${pdf}" OUTPUT_VARIABLE informacion)
string(REGEX MATCH "Pages: +([0-9]+)" paginas "${informacion}")
if(NOT CMAKE_MATCH_1 STREQUAL "${PAGINAS}")
  message(FATAL_ERROR "${pdf} tiene ${CMAKE_MATCH_1} páginas y se esperaban ${PAGINAS}")
endif()
