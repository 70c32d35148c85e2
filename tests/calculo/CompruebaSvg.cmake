# Runs "texalon-calculo --diagrama NOMBRE --svg CARPETA FICHERO" as a user does and checks that
# it ends well, says nothing on the error output (the toolkit's notes are no messages of the
# command) and leaves CARPETA/<name of the file without its extension>-NOMBRE.svg, an SVG
# picture that holds a text of the diagram.
#   -DPROGRAMA=<path of texalon-calculo>  -DNOMBRE=<diagram>  -DCARPETA=<folder, made anew>
#   -DFICHERO=<project file>  -DTEXTO=<text expected in the picture>
#   -DOPCIONES=<more options, parted by blanks, may be empty>
#   -DESPERADO=<expected SVG file, optional>: the picture must be that file byte for byte; with
#   TEXALON_ACTUALIZA_ESPERADO set in the environment it is written anew instead, for review.
include(${CMAKE_CURRENT_LIST_DIR}/EjecutaCalculo.cmake)
file(REMOVE_RECURSE "${CARPETA}")
separate_arguments(opciones UNIX_COMMAND "${OPCIONES}")
texalon_calculo_sin_errores(--diagrama "${NOMBRE}" ${opciones} --svg "${CARPETA}" "${FICHERO}")
get_filename_component(nombre "${FICHERO}" NAME_WLE)
set(svg "${CARPETA}/${nombre}-${NOMBRE}.svg")
texalon_calculo_ha_escrito("${svg}")
file(READ "${svg}" contenido)
foreach(parte "<svg" "${TEXTO}")
  string(FIND "${contenido}" "${parte}" posicion)
  if(posicion EQUAL -1)
    message(FATAL_ERROR "${svg} no contiene «${parte}»")
  endif()
endforeach()
if(DEFINED ESPERADO)
  if(DEFINED ENV{TEXALON_ACTUALIZA_ESPERADO})
    file(COPY_FILE "${svg}" "${ESPERADO}")
  else()
    execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${svg}" "${ESPERADO}" RESULT_VARIABLE distinto)
    if(NOT distinto EQUAL 0)
      message(FATAL_ERROR "${svg} no es igual que ${ESPERADO}")
    endif()
  endif()
endif()
