#!/usr/bin/env bash
# Runs every check and every test: the form of the sources, the libraries and rules natively under the sanitizers, and
# everything under Wine. Prints the ten slowest tests, ends with "N passed, N failed" and exits 0 only when nothing
# failed.
#
# Most of their time the tests wait for windows and services, so they run in lanes side by side, each with a display and
# a Wine prefix of its own, which means its own registry, services and files. More lanes at once would only make tests
# wait for the processor.
set -uo pipefail
cd "$(dirname "$0")"
# shellcheck source=tools/wine.sh
. tools/wine.sh

results=$PWD/out/test-results
rm -rf "$results"
mkdir -p "$results"

# report NAME PASSED FAILED [TROUBLE]
report() {
  echo "$2 $3" >"$results/$1.count"
  local mark=ok
  [ "$3" -eq 0 ] || mark=FAILED
  printf '  %-7s %5d:%02d  %s: %d passed%s\n' "$mark" $((SECONDS / 60)) $((SECONDS % 60)) "$1" "$2" "${4:+$'\n'$4}"
}

# check NAME COMMAND…: passes or fails as a whole.
check() {
  local name=$1 log=$results/$1.log
  shift
  if "$@" >"$log" 2>&1; then
    report "$name" 1 0
  else
    report "$name" 0 1 "$(tail -n 60 "$log")"
    return 1
  fi
}

# tests NAME SECONDS COMMAND…: a GoogleTest program, its cases counted. One that dies counts as a failed case more.
tests() {
  local name=$1 seconds=$2 log=$results/$1.log status ok bad trouble=
  shift 2
  timeout --kill-after=10 "$seconds" "$@" </dev/null >"$log" 2>&1
  status=$?
  ok=$(grep -c '^\[       OK \]' "$log")
  bad=$(grep -cE '^\[  FAILED  \] [^ ]+ \(' "$log")
  if ! grep -q '^\[==========\].*ran\.' "$log" || { [ "$status" -ne 0 ] && [ "$bad" -eq 0 ]; } || [ $((ok + bad)) -eq 0 ]; then
    bad=$((bad + 1))
    trouble="ended with status $status before its time:"$'\n'$(tail -n 40 "$log")
  elif [ "$bad" -gt 0 ]; then
    trouble=$(grep -E '^\[  FAILED  \] [^ ]+ \(' "$log"; grep -vE '^\[( *(OK|RUN) *|-+|=+)\]' "$log" | tail -n 200)
  fi
  report "$name" "$ok" "$bad" "$trouble"
}

# A prefix for this lane with the plug-in registered in it.
enter_wine() {
  unset DISPLAY
  use_display
  trap stop_wine EXIT
  copy_prefix out/test-prefix "$PWD/out/test-prefix-$1"
  # A service that an earlier run left behind would answer for the new one.
  wine out/windows-x64/TSvcStandIn.exe uninstall >/dev/null 2>&1
  check "register-$1" wine regsvr32 /s "$(windows_path out/windows-x64/TMgmt.dll)"
}

sources_lane() {
  check lint nice tools/lint.sh
  check bitmaps python3 tools/check-bitmaps.py
  check behaviour python3 tools/behaviour.py --check
}

native_lane() {
  tests UnitTests-native 1200 out/native/UnitTests
  tests FaultTests-native 2400 out/native/FaultTests
}

# resolution DPI: of the screen, for the programs that start from now on.
resolution() {
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
}

# Only the tests of the restart and of the stand-in itself use the server's default port, which all lanes share.
programs_lane() {
  local program dpi
  enter_wine programs
  resolution 96
  for program in UnitTests PluginTests HostTests WindowTests StandInTests; do
    tests "$program" 1200 wine "out/windows-x64/$program.exe"
  done
  for dpi in 144 192; do
    resolution $dpi
    tests "PluginTests-at-$dpi-dpi" 600 wine out/windows-x64/PluginTests.exe --gtest_filter='*Fit.hasRoomForItsTexts/*'
  done
  resolution 96
  tests AcceptanceTests-restart 600 wine out/windows-x64/AcceptanceTests.exe --gtest_filter='Restart.*'
}

# Whole this would be the longest lane: each program that is killed has to be started, and under Wine calls on files are
# slow. One point of 23 is cut where a database is saved, which is always done with the same calls.
faults_lane() {
  local files='*/settings*:*/text_file*:*/log_file*:*/key_store*'
  enter_wine faults
  tests FaultTests-files 1200 wine out/windows-x64/FaultTests.exe --gtest_filter="$files"
  FAULT_STRIDE=23 tests FaultTests-databases 1800 wine out/windows-x64/FaultTests.exe --gtest_filter="-$files"
}

acceptance_lane() {
  enter_wine "acceptance-$1"
  GTEST_TOTAL_SHARDS=2 GTEST_SHARD_INDEX=$1 \
    tests "AcceptanceTests-$1" 2400 wine out/windows-x64/AcceptanceTests.exe --gtest_filter='-Restart.*'
}

# Every dialog and node a hundred times. The thousand times that are the tests' own take as long as all other lanes.
hostile_lane() {
  enter_wine hostile
  HOSTILE_ROUNDS=100 tests HostileTests 2400 wine out/windows-x64/HostileTests.exe
}

finish() {
  cat "$results"/*.log | sed -nE 's/^\[       OK \] ([^ ]+) \(([0-9]+) ms\)$/\2 ms  \1/p' | sort -rn >"$results/slowest.txt"
  echo 'The slowest ten tests:'
  head -n 10 "$results/slowest.txt" | sed 's/^/  /'
  awk '{ passed += $1; failed += $2 } END { print passed " passed, " failed " failed"; exit failed > 0 }' "$results"/*.count
  exit
}

check setup tools/setup.sh || finish
check build-windows ./build.sh windows-x64 || finish
check build-native ./build.sh native || finish
unset DISPLAY
use_display
use_prefix "$PWD/out/test-prefix"
stop_wine
sources_lane &
{ native_lane; (faults_lane); } &
{ (programs_lane); (hostile_lane); } &
acceptance_lane 0 &
acceptance_lane 1 &
wait
finish
