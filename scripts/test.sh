#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test: once with warnings as
# errors (ci preset), once under AddressSanitizer and UBSan (asan preset), and the
# feed parser's fuzz target for a short fixed time. Every host is loopback. First of all
# it checks that the sources keep the project's format (.clang-format).
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh

echo "== format"
git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format --dry-run -Werror

jobs=$(nproc)
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}
chmod 700 "$XDG_RUNTIME_DIR"

run_preset() {
  local preset=$1
  echo "== $preset: configure and build"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j"$jobs"
  echo "== $preset: tests"
  ctest --preset "$preset" -j"$jobs"
}

run_preset ci
ASAN_OPTIONS=detect_leaks=0:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  run_preset asan

if [ -x fuzz/run.sh ] || [ -f fuzz/run.sh ]; then
  echo "== fuzz: feed parser"
  bash fuzz/run.sh build/fuzz "${FUZZ_SECONDS:-30}"
fi
echo "All tests passed."
