#!/usr/bin/env bash
# bench.sh [--quick]: measures the plug-in under Wine, prints the report and writes it to docs/performance.md. --quick
# leaves out the lists of 100,000 rows, repeats less and writes to out/performance.md. Use a machine that does nothing
# else meanwhile.
set -euo pipefail
cd "$(dirname "$0")"

./build.sh windows-x64
# shellcheck source=tools/wine.sh
. tools/wine.sh
unset DISPLAY
use_display
trap stop_wine EXIT
use_prefix "$PWD/out/bench-prefix"

build=$PWD/out/windows-x64
wine regsvr32 /s "$(windows_path "$build/TMgmt.dll")"
# An edit is to end with the change, not with a restart of a service that is not there.
wine reg add 'HKLM\SOFTWARE\Brimlow\KV Tessaro' /v 'Restart Services' /d false /f >/dev/null 2>&1
echo 'Measuring'
report=docs/performance.md
[ "${1:-}" != --quick ] || report=out/performance.md
python3 bench/measure.py "$build" "$report" "$@"
