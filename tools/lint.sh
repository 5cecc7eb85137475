#!/usr/bin/env bash
# Checks the form of our sources: clang-format on all, clang-tidy on what changed since the last clean run.
# Needs both builds configured. Exits 1 with what to do when something is found.
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t sources < <(git ls-files -co --exclude-standard '*.cpp' '*.h')
if ! clang-format --dry-run -Werror "${sources[@]}" 2>/tmp/format.$$; then
  grep -o '^[^:]*' /tmp/format.$$ | sort -u | head -20
  rm -f /tmp/format.$$
  echo 'Not formatted. Run: clang-format -i <file>'
  exit 1
fi
rm -f /tmp/format.$$

# clang finds the Windows headers of mingw-w64 by its target, but not its C++ library.
mapfile -t windows_arguments < <(x86_64-w64-mingw32-g++-posix -x c++ -E -v /dev/null 2>&1 |
  sed -n '/#include <...>/,/End of search/p' | grep -E '^ .*(/c\+\+|/x86_64-w64-mingw32/include$|backward)' |
  sed 's/^ */--extra-arg=-isystem/')

# ComPtr::Attach of mingw-w64 adds a reference, contrary to what its name promises everywhere else.
if git grep -nE '\.Attach\(' -- '*.cpp' '*.h'; then
  echo 'Take references over with platform::takeReference.'
  exit 1
fi

stamps=out/lint
mkdir -p "$stamps"
newest_header=$(find . -path ./out -prune -o \( -name '*.h' -o -name .clang-tidy \) -printf '%T@ %p\n' | sort -rn | head -n 1 | cut -d' ' -f2)

check() {
  local preset=$1 source=$2 stamp report
  shift 2
  stamp=$stamps/$preset/$source
  if [ "$stamp" -nt "$source" ] && [ "$stamp" -nt "$newest_header" ]; then return 0; fi
  if report=$(clang-tidy --quiet -p "out/$preset" "$@" "$source" 2>/dev/null); then
    mkdir -p "$(dirname "$stamp")"
    touch "$stamp"
  else
    echo "$report"
    return 1
  fi
}
export stamps newest_header
export -f check

# Every source of a product once: natively where it is built natively, else as Windows sees it, which takes clang-tidy
# some seconds a file. Tests are looked at where they are built natively.
list() { python3 -c 'import json,sys,os
for entry in json.load(open(f"out/{sys.argv[1]}/compile_commands.json")):
    file = os.path.relpath(entry["file"])
    if file.endswith(".cpp") and not file.startswith(("..", "out/")): print(file)' "$1" | sort -u; }
list native >"$stamps/native.list"
list windows-x64 | grep -v '^tests/' | comm -23 - "$stamps/native.list" >"$stamps/windows.list"
failed=0
xargs -a "$stamps/native.list" -P "$(nproc)" -I{} bash -c 'check native {}' || failed=1
xargs -a "$stamps/windows.list" -P "$(nproc)" -I{} bash -c \
  "check windows-x64 {} --extra-arg=--target=x86_64-w64-mingw32 ${windows_arguments[*]}" || failed=1
exit $failed
