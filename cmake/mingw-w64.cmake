# Cross-building for 64-bit Windows with Debian's MinGW-w64 (the posix-thread compilers, whose
# std::thread and std::mutex the batch command's workers use). Used for Qt itself
# (scripts/qt-windows.sh) and for the project (windows.sh).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(TEXALON_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${TEXALON_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TEXALON_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${TEXALON_MINGW}-windres)

# Libraries and headers only from the MinGW root and the Qt built for Windows; programs (moc,
# rcc, uic and the rest) from the machine that builds.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${TEXALON_MINGW})
if(DEFINED ENV{TEXALON_QT_WINDOWS})
  list(APPEND CMAKE_FIND_ROOT_PATH $ENV{TEXALON_QT_WINDOWS})
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
