# The Windows build, cross-built here with MinGW-w64 (windows.sh) against the Qt of
# scripts/qt-windows.sh, and tested under Wine.
#
# The programs and the tests run under Wine through scripts/wine.sh, which CTest puts before each
# of them (CMAKE_CROSSCOMPILING_EMULATOR): a Wine prefix of the build's own, the Qt DLLs and the
# MinGW runtime on the path. GoogleTest is built from Debian's sources (googletest), since
# Debian's libraries are for Linux.

if(NOT DEFINED TEXALON_QT_WINDOWS)
  message(FATAL_ERROR "TEXALON_QT_WINDOWS: la carpeta del Qt para Windows (scripts/qt-windows.sh)")
endif()

# The posix-thread runtime of MinGW's GCC, which every program of the build needs beside it.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libstdc++-6.dll
                OUTPUT_VARIABLE TEXALON_LIBSTDCXX_DLL OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libgcc_s_seh-1.dll
                OUTPUT_VARIABLE TEXALON_LIBGCC_DLL OUTPUT_STRIP_TRAILING_WHITESPACE)
find_file(TEXALON_WINPTHREAD_DLL libwinpthread-1.dll
          PATHS /usr/${TEXALON_MINGW}/lib NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(TEXALON_RUNTIME_DLLS ${TEXALON_LIBSTDCXX_DLL} ${TEXALON_LIBGCC_DLL} ${TEXALON_WINPTHREAD_DLL})
foreach(_dll IN LISTS TEXALON_RUNTIME_DLLS)
  if(NOT EXISTS ${_dll})
    message(FATAL_ERROR "No se encuentra ${_dll} del compilador MinGW")
  endif()
endforeach()
list(GET TEXALON_RUNTIME_DLLS 0 _stdcxx)
cmake_path(GET _stdcxx PARENT_PATH TEXALON_RUNTIME_GCC)

# The emulator: scripts/wine.sh with the build's prefix and paths.
set(TEXALON_WINEPREFIX ${CMAKE_BINARY_DIR}/wine)
configure_file(${PROJECT_SOURCE_DIR}/scripts/wine.sh.in ${CMAKE_BINARY_DIR}/wine.sh @ONLY
               FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                WORLD_READ WORLD_EXECUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_BINARY_DIR}/wine.sh)

# The tools that run at build time cannot run here; windows.sh takes the guide from the Linux
# build instead (TEXALON_GUIA_EXTERNA).
set(TEXALON_HERRAMIENTAS OFF CACHE BOOL "" FORCE)
set(TEXALON_GUIA_EXTERNA "" CACHE FILEPATH "The guide PDF, made by the Linux build")

# Debian's rcc compresses resources with zstd, which the Qt for Windows is built without.
set(CMAKE_AUTORCC_OPTIONS --no-zstd)

# Console programs print UTF-8; the shell of the desktop is a window program.
add_compile_definitions(UNICODE _UNICODE)
