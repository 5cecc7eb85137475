#!/usr/bin/env bash
# Checks the form of our sources: clang-format on all, clang-tidy on the folders that changed since they were last clean.
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

# clang-tidy takes seconds for the system's headers, so the sources of a folder are looked at together, through one file
# that includes them all. Two of them that define the same name do not go together: it is a second copy or wants a name
# of its own.
newest_header=$(find . -path ./out -prune -o \( -name '*.h' -o -name .clang-tidy \) -printf '%T@ %p\n' | sort -rn | head -n 1 | cut -d' ' -f2)
export newest_header

# check GROUP [ARGUMENT…]: one line of the list that lint-groups.py prints.
check() {
  local group=$1 report
  shift
  if [ "$group.clean" -nt "$group" ] && [ "$group.clean" -nt "$newest_header" ] &&
    [ -z "$(sed -n 's/^#include "\(.*\)".*/\1/p' "$group" | xargs -d '\n' -I{} find {} -newer "$group.clean")" ]; then
    return 0
  fi
  if report=$(clang-tidy --quiet -p "$(dirname "$group")" "$@" "$group" 2>/dev/null); then
    touch "$group.clean"
  else
    echo "$report"
    return 1
  fi
}
export -f check

# Every source of a product once: natively where it is built natively, else as Windows sees it. Tests are looked at where
# they are built natively.
failed=0
python3 tools/lint-groups.py native | xargs -P "$(nproc)" -I{} bash -c 'check {}' || failed=1
python3 tools/lint-groups.py windows-x64 | xargs -P "$(nproc)" -I{} bash -c \
  "check {} --extra-arg=--target=x86_64-w64-mingw32 ${windows_arguments[*]}" || failed=1
exit $failed
