# Runs the texalon-calculo command as a user does and checks its exit status, and optionally
# that its output holds a text.
#   -DPROGRAMA=<path of texalon-calculo>  -DESTADO=<expected status>
#   -DFICHERO=<one argument, may be empty>  -DTEXTO=<text expected in the output, may be empty>
#   -DOPCIONES=<options ahead of the file, parted by blanks, may be empty>
#   -DERRORES=<text expected on the error output, may be empty>
separate_arguments(argumentos UNIX_COMMAND "${OPCIONES}")
if(FICHERO)
  list(APPEND argumentos "${FICHERO}")
endif()
execute_process(
  COMMAND "${PROGRAMA}" ${argumentos}
  RESULT_VARIABLE estado
  OUTPUT_VARIABLE salida
  ERROR_VARIABLE errores)
if(NOT estado STREQUAL "${ESTADO}")
  message(FATAL_ERROR "texalon-calculo terminó con ${estado} y se esperaba ${ESTADO}\n${salida}\n${errores}")
endif()
# Fails unless `texto` holds `buscado`; `donde` names the output in the message.
function(comprueba_contiene texto buscado donde)
  string(FIND "${texto}" "${buscado}" posicion)
  if(posicion EQUAL -1)
    message(FATAL_ERROR "${donde} no contiene «${buscado}»:\n${texto}")
  endif()
endfunction()

if(TEXTO)
  comprueba_contiene("${salida}" "${TEXTO}" "La salida")
endif()
if(ERRORES)
  comprueba_contiene("${errores}" "${ERRORES}" "La salida de errores")
endif()
