#!/usr/bin/env bash
# Writes docs/faults.md from what FaultTests printed in the last run of ./test.sh, or in other logs of whole programs
# that ended well; those from Wine together have every save:
#     tools/fault-report.sh [NATIVE_LOG WINDOWS_LOG…]
set -euo pipefail
shopt -s inherit_errexit
cd "$(dirname "$0")/.."
results=out/test-results
[ $# -gt 0 ] || set -- "$results"/FaultTests-{native,files,databases}.log
native=$1
windows=("${@:2}")

# table LOG…: what the logs have at their ends, as one table in the order of the native one, with all saves added up.
table() {
  local log
  for log in "$@"; do
    if ! grep -q '^\[  PASSED  \]' "$log" || grep -q '^\[  FAILED  \]' "$log"; then
      echo "$log is not the log of a whole run without failures" >&2
      return 1
    fi
  done
  awk -F ' *[|] *' '
    /^\| (save|all) \||^\|---/ { if (FNR == NR && !/^\| all/) heading = heading $0 "\n"; next }
    !/^\| / { next }
    FNR == NR { order[++saves] = $2 }
    FNR != NR { row[$2] = $0 }
    END {
      printf "%s", heading
      for (i = 1; i <= saves; ++i) {
        if (!(order[i] in row)) { print "no run has " order[i] >"/dev/stderr"; exit 1 }
        print row[order[i]]
        columns = split(row[order[i]], cuts)
        for (column = 3; column < columns; ++column) sum[column] += cuts[column]
      }
      printf "| all |"
      for (column = 3; column < columns; ++column) printf " %d |", sum[column]
      print ""
    }' "$native" "$@" | tr -d '\r'
}

report=$(
  cat <<'END'
# Faults

Everything that the product saves, cut at every call on the system: `tests/faults`, run by `./test.sh`. For each save the program takes its calls for files and folders one by one and lets each meet

- its end: the program is killed before the call and, where the call writes, with half of it written,
- a full disk, for this call alone or from then on, also with half of it written,
- a denied access,
- another program that has the file just then.

A save that is killed must leave the old state or the new one, and so must one that is refused, of which the
administrator is told (`refused though made`: what failed came behind the point at which the change had happened); one
that helps itself (by another attempt, or because nothing depended on the call) the new one. The next
program must read that state whole, and its next save must work and leave no file behind that an undisturbed one would
not have left. `refused` and `done` count how the saves ended that were not killed.

What is not tried here: a power failure, after which a disk may lack what it was given. Against that every file is flushed
before it counts.

Made by `tools/fault-report.sh` from the logs of the tests.

## Natively: system calls

END
  table "$native"
  cat <<'END'

## Under Wine: calls of Windows, killed by TerminateProcess

What is cut are the calls of kernel32 and advapi32 that the libraries and SQLite import for files and folders, wherever
the file is. Not cut are closing and unlocking, which do not fail, and the look at the size of a certificate file that is
imported, which goes through the C runtime and without which the file is read all the same. `ReplaceFileW` is also cut in
its middle, where the old file is away already and the new one not there yet.

Files and the key store are cut at every point. So are databases by `wine out/windows-x64/FaultTests.exe` alone; in
`./test.sh`, where that would be the longest of all tests because each program that is killed has to be started, one
point of 23 is (`FAULT_STRIDE`), each save at others. The numbers of cuts tell which run the table is of.

END
  table "${windows[@]}"
)
printf '%s\n' "$report" >docs/faults.md
