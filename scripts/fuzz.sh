#!/usr/bin/env bash
# Builds the libFuzzer target of the project file readers and the calculation with clang, and
# runs it for the given number of seconds (300 by default) on a copy of the corpus. New inputs
# stay in build-fuzz/corpus; merge the useful ones into tests/fuzz/corpus by hand.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/comun.sh

instala_dependencias clang libclang-rt-14-dev
segundos=${1:-300}
# Only the fuzz target and the libraries it links: the windows are not fuzzed.
CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTEXALON_FUZZ=ON >/dev/null
cmake --build build-fuzz -j"$(nproc)" --target fuzz_lectores
mkdir -p build-fuzz/corpus
cp -n tests/fuzz/corpus/* build-fuzz/corpus/
build-fuzz/tests/fuzz/fuzz_lectores build-fuzz/corpus -dict=tests/fuzz/lectores.dict -max_len=512 -timeout=10 \
  -max_total_time="$segundos" -print_final_stats=1
