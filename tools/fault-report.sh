#!/usr/bin/env bash
# Writes docs/faults.md from what FaultTests printed in the last run of ./test.sh, or in two other logs:
#     tools/fault-report.sh [NATIVE_LOG WINDOWS_LOG]
set -euo pipefail
cd "$(dirname "$0")/.."
native=${1:-out/test-results/FaultTests-native.log}
windows=${2:-out/test-results/FaultTests.log}

# The table at the end of a log; a run with a failure has no report.
table() {
  if ! grep -q '^\[  PASSED  \]' "$1" || grep -q '^\[  FAILED  \]' "$1"; then
    echo "$1 is not the log of a whole run without failures" >&2
    return 1
  fi
  sed -n '/^| save |/,$p' "$1" | grep '^|'
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
END
  printf '\n## Natively: system calls\n\n'
  table "$native"
  printf '\n## Under Wine: calls of Windows, killed by TerminateProcess\n\n'
  if [ -e "$windows" ]; then
    table "$windows"
  else
    echo 'Not yet: the runner is built for Windows, but has not had a whole run without failures, so `./test.sh` leaves it out.'
  fi
)
printf '%s\n' "$report" >docs/faults.md
