# To be sourced. How this project runs Windows programs: Wine, 64-bit, in a private prefix, on a display.
#   use_prefix FOLDER   makes the prefix if it is not there and works in it
#   copy_prefix A B     makes B from the prefix A, which nobody uses, if it is not there, and works in it
#   keep_services       keeps the prefix's services running between programs
#   use_display         takes the display of the session, or starts one without a screen

export WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
# Neither .NET nor HTML is needed: without this Wine asks whether to install them.
export WINEDLLOVERRIDES='mscoree=;mshtml='

use_display() {
  [ -n "${DISPLAY:-}" ] && return
  coproc XVFB { exec Xvfb -displayfd 1 -screen 0 1600x1200x24 -nolisten tcp 2>/dev/null; }
  xvfb_pid=$XVFB_PID
  read -r -u "${XVFB[0]}" display
  export DISPLAY=:$display
}

use_prefix() {
  export WINEPREFIX=$1
  [ -e "$WINEPREFIX/ready" ] && return
  echo "Making the Wine prefix ${WINEPREFIX#"$PWD"/} (once, about 20 seconds)"
  rm -rf "$WINEPREFIX"
  mkdir -p "$(dirname "$WINEPREFIX")"
  wineboot -i >/dev/null 2>&1
  wineserver -w
  # Captions on windows even where no window manager runs.
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
  wineserver -w
  touch "$WINEPREFIX/ready"
}

# Takes a second in place of the twenty of a new one.
copy_prefix() {
  export WINEPREFIX=$2
  [ -e "$WINEPREFIX/ready" ] && return
  rm -rf "$WINEPREFIX"
  cp -a "$1" "$WINEPREFIX"
}

# Services end with the last ordinary program of a prefix. This one waits for input that never comes, until stop_wine.
keep_services() {
  local pipe held
  pipe=$(mktemp -u)
  mkfifo "$pipe"
  exec {held}<>"$pipe"
  rm "$pipe"
  wine cmd <&"$held" >/dev/null 2>&1 &
}

# A Windows path for a Unix one.
windows_path() { winepath -w "$1" 2>/dev/null; }

stop_wine() {
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  [ -z "${xvfb_pid:-}" ] || kill "$xvfb_pid" 2>/dev/null || true
}
