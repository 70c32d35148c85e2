# The layers of src/ as the compiler sees them. A target of a layer finds the headers of the
# project through a folder of its own in the build tree that links to the folders of src/ that
# the layer may include, and to no other: an include of a layer further up, or of one beside
# it, does not compile. The order is the one of docs/ARQUITECTURA.md:
#
#   shell -> screens, calculo -> reports -> diagrams -> engine, files, platform -> state
#
# The compiler sees whole folders: a qt/, dobles/ or win/ folder comes with the folder that
# holds it. Those finer rules, Qt's modules, and an include written from anywhere but src/ are
# the layer guard's (tests/capas/capas.sh), which runs among the tests.

# The folders of src/ that each layer may include, its own among them.
set(TEXALON_CAPA_state state)
set(TEXALON_CAPA_engine state engine)
set(TEXALON_CAPA_files state engine files)
set(TEXALON_CAPA_platform state platform)
set(TEXALON_CAPA_diagrams state engine files platform diagrams)
set(TEXALON_CAPA_reports ${TEXALON_CAPA_diagrams} reports)
set(TEXALON_CAPA_screens ${TEXALON_CAPA_reports} screens)
set(TEXALON_CAPA_calculo ${TEXALON_CAPA_reports} calculo)
set(TEXALON_CAPA_shell ${TEXALON_CAPA_screens} shell)

# texalon_capa(OBJETIVO CAPA): the target compiles as a part of the layer.
function(texalon_capa objetivo capa)
  if(NOT DEFINED TEXALON_CAPA_${capa})
    message(FATAL_ERROR "La capa «${capa}» no está en cmake/Capas.cmake")
  endif()
  set(raiz ${CMAKE_BINARY_DIR}/capas/${capa})
  if(NOT EXISTS ${raiz})
    file(MAKE_DIRECTORY ${raiz})
    foreach(carpeta IN LISTS TEXALON_CAPA_${capa})
      file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${carpeta} ${raiz}/${carpeta} SYMBOLIC)
    endforeach()
  endif()
  target_include_directories(${objetivo} PRIVATE ${raiz})
endfunction()

# Each configuration lays the links anew, so that a row changed above counts at once.
file(REMOVE_RECURSE ${CMAKE_BINARY_DIR}/capas)
