# Compresses a file as Debian wants its documents and manual pages: gzip at its best, without the
# name or the time of the original in the header, so that the same text always gives the same
# bytes.
#
#   cmake -DENTRADA=FICHERO -DSALIDA=FICHERO.gz -P Comprime.cmake
foreach(_variable ENTRADA SALIDA)
  if(NOT DEFINED ${_variable})
    message(FATAL_ERROR "Comprime.cmake necesita -D${_variable}=...")
  endif()
endforeach()
execute_process(COMMAND gzip -9n -c "${ENTRADA}" OUTPUT_FILE "${SALIDA}" RESULT_VARIABLE _resultado)
if(NOT _resultado EQUAL 0)
  file(REMOVE "${SALIDA}")
  message(FATAL_ERROR "gzip no ha podido comprimir ${ENTRADA}: ${_resultado}")
endif()
