#!/usr/bin/env bash
# build.sh [windows-x64|native]: brings the build of that preset up to date (default: windows-x64).
set -euo pipefail
cd "$(dirname "$0")"
preset=${1:-windows-x64}

tools/setup.sh
if [ "$preset" = windows-x64 ]; then
  TM_WINDOWS_DEPS=$(tools/cross-deps.sh)
  export TM_WINDOWS_DEPS
fi
# Libraries that are newer than the build's own are found only by a fresh start.
grep -qsF "${TM_WINDOWS_DEPS:-}" "out/$preset/CMakeCache.txt" || rm -rf "out/$preset/CMakeCache.txt" "out/$preset/CMakeFiles"
[ -e "out/$preset/CMakeCache.txt" ] || cmake --preset "$preset" >/dev/null
echo "Building $preset"
NINJA_STATUS='[%f/%t] ' cmake --build --preset "$preset"
