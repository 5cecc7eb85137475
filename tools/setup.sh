#!/usr/bin/env bash
# Installs the Debian packages that building and running need, and those named, and says which. Does nothing when all
# are there.
set -euo pipefail

packages=(
  g++ clang cmake ninja-build git ca-certificates
  g++-mingw-w64-x86-64-posix mingw-w64-tools libwine-dev
  libpugixml-dev libsqlite3-dev libssl-dev openssl perl googletest libgtest-dev dpkg-dev make tcl
  clang-format clang-tidy libclang-rt-14-dev
  wine wine64 fonts-wine xvfb x11-utils imagemagick python3 procps
  "$@"
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
