#!/usr/bin/env bash
# Runs every check and every test: the form of the sources, the libraries and rules natively under the sanitizers, then
# everything under Wine. Ends with "N passed, N failed" and exits 0 only when nothing failed.
set -uo pipefail
cd "$(dirname "$0")"

passed=0
failed=0
results=$PWD/out/test-results
rm -rf "$results"
mkdir -p "$results"

# verdict NAME COMMAND…: a check that passes or fails as a whole.
verdict() {
  local name=$1
  shift
  if "$@" >"$results/$name.log" 2>&1; then
    passed=$((passed + 1))
    echo "  ok      $name"
  else
    failed=$((failed + 1))
    echo "  FAILED  $name"
    tail -n 60 "$results/$name.log"
  fi
}

# tests NAME SECONDS COMMAND…: a GoogleTest program, its cases counted. One that dies counts as a failed case more.
tests() {
  local name=$1 seconds=$2 log=$results/$1.log status ok bad
  shift 2
  echo "  $name"
  timeout --kill-after=10 "$seconds" "$@" </dev/null >"$log" 2>&1
  status=$?
  ok=$(grep -c '^\[       OK \]' "$log")
  bad=$(grep -cE '^\[  FAILED  \] [^ ]+ \(' "$log")
  if ! grep -q '^\[==========\].*ran\.' "$log" || { [ "$status" -ne 0 ] && [ "$bad" -eq 0 ]; } || [ $((ok + bad)) -eq 0 ]; then
    bad=$((bad + 1))
    echo "  FAILED  $name ended with status $status before its time:"
    tail -n 40 "$log"
  elif [ "$bad" -gt 0 ]; then
    grep -E '^\[  FAILED  \] [^ ]+ \(' "$log"
    grep -vE '^\[( *(OK|RUN) *|-+|=+)\]' "$log" | tail -n 200
  fi
  passed=$((passed + ok))
  failed=$((failed + bad))
}

# resolution DPI: of the screen, for the programs that start from now on.
resolution() {
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
}

finish() {
  echo "$passed passed, $failed failed"
  [ "$failed" -eq 0 ]
  exit
}

tools/setup.sh || { failed=1; finish; }
echo 'Building'
verdict build-native ./build.sh native
verdict build-windows ./build.sh windows-x64
[ "$failed" -eq 0 ] || finish

echo 'Checking the sources'
verdict lint tools/lint.sh
verdict bitmaps python3 tools/check-bitmaps.py
verdict behaviour python3 tools/behaviour.py --check

echo 'Testing natively, under the address and undefined-behaviour sanitizers'
tests UnitTests-native 900 out/native/UnitTests

echo 'Testing under Wine'
# shellcheck source=tools/wine.sh
. tools/wine.sh
unset DISPLAY
use_display
trap stop_wine EXIT
use_prefix "$PWD/out/test-prefix"
# A service that an earlier run left behind would answer for the new one.
wine out/windows-x64/TSvcStandIn.exe uninstall >/dev/null 2>&1
verdict register wine regsvr32 /s "$(windows_path out/windows-x64/TMgmt.dll)"
resolution 96
for program in UnitTests PluginTests HostTests WindowTests StandInTests AcceptanceTests; do
  tests "$program" 1200 wine "out/windows-x64/$program.exe"
done
for dpi in 144 192; do
  resolution $dpi
  tests "PluginTests-at-$dpi-dpi" 300 wine out/windows-x64/PluginTests.exe '--gtest_filter=*Fit.hasRoomForItsTexts/*'
done
resolution 96
finish
