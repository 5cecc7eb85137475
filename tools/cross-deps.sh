#!/usr/bin/env bash
# Builds the libraries that Debian has no Windows packages of, once, into a cache outside the checkout:
# pugixml from Debian's source package, GoogleTest from the sources that the package googletest installs.
# Prints the folder, for TM_WINDOWS_DEPS.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)

pugixml_version=$(dpkg-query -W -f='${source:Upstream-Version}' libpugixml-dev)
gtest_version=$(dpkg-query -W -f='${Version}' googletest)
compiler=$(x86_64-w64-mingw32-g++-posix -dumpfullversion)
cache=${XDG_CACHE_HOME:-$HOME/.cache}/kv-tessaro-management
deps=$cache/windows-x64-gcc$compiler-pugixml$pugixml_version-gtest$gtest_version
if [ -e "$deps/complete" ]; then
  echo "$deps"
  exit 0
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
rm -rf "$deps"
mkdir -p "$deps"

# apt fetches sources only from source lists; a machine usually has none, so Debian's own binary lists serve as a model.
fetch_source() {
  mkdir -p "$work/lists/partial" "$work/src"
  if [ -e /etc/apt/sources.list.d/debian.sources ]; then
    sed 's/^Types:.*/Types: deb-src/' /etc/apt/sources.list.d/debian.sources >"$work/src.sources"
  else
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$work/src.list"
  fi
  local options=(-qq -o "Dir::Etc::sourcelist=$(ls "$work"/src.sources "$work"/src.list 2>/dev/null)"
    -o Dir::Etc::sourceparts=- -o "Dir::State::lists=$work/lists")
  apt-get "${options[@]}" update >&2
  (cd "$work/src" && apt-get "${options[@]}" source "$1" >&2)
}

build() {
  cmake -S "$1" -B "$work/build-$2" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/cmake/mingw-w64.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$deps" -DBUILD_SHARED_LIBS=OFF "${@:3}" >"$work/$2.log" 2>&1 &&
    cmake --build "$work/build-$2" --target install >>"$work/$2.log" 2>&1 || {
    cat "$work/$2.log" >&2
    exit 1
  }
}

echo "Building pugixml $pugixml_version for Windows (once)" >&2
fetch_source pugixml
build "$(find "$work/src" -mindepth 1 -maxdepth 1 -type d -name 'pugixml-*')" pugixml
echo "Building GoogleTest $gtest_version for Windows (once)" >&2
build /usr/src/googletest googletest -DINSTALL_GTEST=ON

touch "$deps/complete"
echo "$deps"
