# Run by CPack on the files of the package, after it has installed and stripped them and before
# it packs them: takes out of the programs the sections that strip leaves and that Debian's own
# packages do not carry, the compilers' names (.comment) and the old notes (.note), as dh_strip
# does.
if(NOT CPACK_TEXALON_STRIP)
  message(FATAL_ERROR "LimpiaBinarios.cmake necesita CPACK_TEXALON_STRIP, la orden strip.")
endif()
set(_programas)
foreach(_programa IN LISTS CPACK_TEXALON_PROGRAMAS)
  file(GLOB_RECURSE _hallados "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*/bin/${_programa}")
  if(NOT _hallados)
    message(FATAL_ERROR "El paquete no tiene bin/${_programa} en ${CPACK_TEMPORARY_INSTALL_DIRECTORY}")
  endif()
  list(APPEND _programas ${_hallados})
endforeach()
execute_process(COMMAND "${CPACK_TEXALON_STRIP}" --remove-section=.comment --remove-section=.note ${_programas}
                RESULT_VARIABLE _resultado)
if(NOT _resultado EQUAL 0)
  message(FATAL_ERROR "strip no ha podido limpiar ${_programas}")
endif()
