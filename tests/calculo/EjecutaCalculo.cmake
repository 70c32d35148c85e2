# What the scripts that run texalon-calculo as a user does share: included by them, in script
# mode.

# Runs PROGRAMA with the arguments given and checks that it ends well and says nothing on the
# error output (the toolkit's notes are no messages of the command).
function(texalon_calculo_sin_errores)
  execute_process(
    COMMAND "${PROGRAMA}" ${ARGN}
    RESULT_VARIABLE estado
    OUTPUT_VARIABLE salida
    ERROR_VARIABLE errores)
  if(NOT estado STREQUAL "0")
    message(FATAL_ERROR "texalon-calculo terminó con ${estado} y se esperaba 0\n${salida}\n${errores}")
  endif()
  if(NOT errores STREQUAL "")
    message(FATAL_ERROR "texalon-calculo ha escrito en la salida de errores:\n${errores}")
  endif()
endfunction()

# Fails unless the command left the file.
function(texalon_calculo_ha_escrito fichero)
  if(NOT EXISTS "${fichero}")
    message(FATAL_ERROR "No se ha escrito ${fichero}")
  endif()
endfunction()
