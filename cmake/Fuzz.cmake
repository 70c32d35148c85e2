# The fuzzing build: Clang only, configured with -DTEXALON_FUZZ=ON, in a build folder of its own:
#   CXX=clang++ cmake -S . -B build-fuzz -DTEXALON_FUZZ=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo
#   cmake --build build-fuzz --target fuzz_lectores
# Every target of the tree is then compiled with the fuzzer's coverage and the address and
# undefined behaviour sanitizers, so that the fuzz targets of tests/fuzz see inside the
# libraries they link. Include this file before the first add_subdirectory.
option(TEXALON_FUZZ "Build the libFuzzer targets (Clang only)" OFF)

if(TEXALON_FUZZ AND NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  message(WARNING "TEXALON_FUZZ needs Clang (CXX=clang++): the fuzz targets are left out of this build")
elseif(TEXALON_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
  # Tells tests/fuzz that the libraries are instrumented.
  set(TEXALON_FUZZ_INSTRUMENTADO ON)
endif()
