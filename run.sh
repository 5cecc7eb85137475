#!/usr/bin/env bash
# Builds the console, installs the plug-in and the stand-in service in a private Wine prefix, and opens the console.
# Without a display: prints the whole tree with its rows, saves pictures, and says where. Arguments go to TConsole.exe.
set -euo pipefail
cd "$(dirname "$0")"

./build.sh windows-x64
# shellcheck source=tools/wine.sh
. tools/wine.sh
headless=
[ -n "${DISPLAY:-}" ] || headless=yes
use_display
trap stop_wine EXIT
use_prefix "$PWD/out/prefix"
keep_services

data=$WINEPREFIX/drive_c/ProgramData/Brimlow
if [ ! -e "$data" ]; then
  echo 'Putting in sample data'
  cp -r tools/sample-data/Brimlow "$data"
fi
if [ ! -e "$data/Data/HotFolders.db" ] || [ ! -e "$data/Data/Tessaro.db" ] || [ ! -e "$data/KeyStore/KeyStore.p12" ]; then
  echo 'Putting in sample hot folders, users, applications and a certificate'
  wine out/windows-x64/SampleData.exe "$(windows_path tools/sample-data/files)"
fi

echo 'Registering the plug-in, starting the stand-in service'
wine regsvr32 /s "$(windows_path out/windows-x64/TMgmt.dll)"
wine out/windows-x64/TSvcStandIn.exe install >/dev/null 2>&1 || wine out/windows-x64/TSvcStandIn.exe reconfigure >/dev/null
wine out/windows-x64/TSvcStandIn.exe start >/dev/null || true

if [ -n "$headless" ] && [ $# -eq 0 ]; then
  wine out/windows-x64/TConsole.exe --list
  echo
  tools/screenshots.sh out/pictures
else
  echo 'Opening the console'
  wine out/windows-x64/TConsole.exe "$@"
fi
