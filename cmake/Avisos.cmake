# Warnings for the project's own targets. Qt's and the system's headers are included
# as system headers, so their warnings do not count.
add_library(texalon_avisos INTERFACE)
target_compile_options(texalon_avisos INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Wold-style-cast -Wcast-align -Woverloaded-virtual -Wnull-dereference -Wdouble-promotion
  -Wformat=2 -Wimplicit-fallthrough
  # GCC 12 reports -Wrestrict on std::string inside the standard library at -O2 (GCC bug
  # 105329) and -Wmaybe-uninitialized on moving a std::optional (GCC bug 80635); both are false
  # there and would fail every Release build. Clang, in the fuzzing build, keeps its own checks.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-maybe-uninitialized>)
if(TEXALON_WERROR)
  target_compile_options(texalon_avisos INTERFACE -Werror)
endif()
