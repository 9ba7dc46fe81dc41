#!/usr/bin/env bash
# The project's lint: every C++ file laid out as .clang-format says, and the checks of .clang-tidy
# clean on the program's sources (src/, tools/) through the build's compile_commands.json.
# Usage: scripts/lint.sh [build folder]   (default: build; configured when it has no compile_commands.json)
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
if [ ! -f "$build/compile_commands.json" ]; then
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
fi
mapfile -t files < <(find src tests bench tools fuzz -name '*.cpp' -o -name '*.h' | sort)
echo "clang-format: ${#files[@]} files"
clang-format --dry-run -Werror "${files[@]}"
echo "clang-tidy: the sources of src/ and tools/"
run-clang-tidy -quiet -p "$build" -j "$(nproc)" "$PWD/(src|tools)/" >"$build/clang-tidy.log" 2>&1 || {
  grep -E "(warning|error):" "$build/clang-tidy.log" | sort -u
  echo "clang-tidy found faults (all of its output: $build/clang-tidy.log)"
  exit 1
}
echo "lint: clean"
