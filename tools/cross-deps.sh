#!/usr/bin/env bash
# Builds the libraries that Debian has no Windows packages of, once, into a cache outside the checkout:
# OpenSSL, pugixml and SQLite from Debian's source packages, GoogleTest from the sources that the package googletest
# installs.
# Prints the folder, for TM_WINDOWS_DEPS.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)

openssl_version=$(dpkg-query -W -f='${Version}' libssl-dev)
pugixml_version=$(dpkg-query -W -f='${source:Upstream-Version}' libpugixml-dev)
sqlite_version=$(dpkg-query -W -f='${Version}' libsqlite3-dev)
gtest_version=$(dpkg-query -W -f='${Version}' googletest)
compiler=$(x86_64-w64-mingw32-g++-posix -dumpfullversion)
cache=${XDG_CACHE_HOME:-$HOME/.cache}/kv-tessaro-management
# The recipe counts, too: this script.
recipe=$(sha256sum "$here/tools/cross-deps.sh" | cut -c1-8)
deps=$cache/windows-x64-gcc$compiler-openssl$openssl_version-pugixml$pugixml_version-sqlite$sqlite_version-gtest$gtest_version-$recipe
if [ -e "$deps" ]; then
  echo "$deps"
  exit 0
fi

# The folder gets its name when everything is in it, so that it is complete whenever it exists.
mkdir -p "$cache"
work=$(mktemp -d "$cache/building.XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/lists/partial" "$work/src" "$work/deps/include" "$work/deps/lib"

# logged NAME COMMAND…: shows what the command says only when it fails.
logged() {
  "${@:2}" >>"$work/$1.log" 2>&1 || {
    cat "$work/$1.log" >&2
    exit 1
  }
}

# apt fetches sources only from source lists; a machine usually has none, so Debian's own binary lists serve as a model.
if [ -e /etc/apt/sources.list.d/debian.sources ]; then
  sources=$work/src.sources
  sed 's/^Types:.*/Types: deb-src/' /etc/apt/sources.list.d/debian.sources >"$sources"
else
  sources=$work/src.list
  sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$sources"
fi
source_options=(-o "Dir::Etc::sourcelist=$sources" -o Dir::Etc::sourceparts=- -o "Dir::State::lists=$work/lists")

# fetch_source PACKAGE: prints the folder of its sources, with Debian's patches. Where the list names a version that the
# archive does not hand out (yet), the one before it is taken.
fetch_source() {
  local version
  mkdir "$work/src/$1"
  cd "$work/src/$1"
  for version in $(apt-cache "${source_options[@]}" showsrc --only-source "$1" | sed -n 's/^Version: //p' | sort -urV); do
    if apt-get -qq "${source_options[@]}" source "$1=$version" >>"$work/$1.log" 2>&1; then
      find "$PWD" -mindepth 1 -maxdepth 1 -type d
      return
    fi
  done
  cat "$work/$1.log" >&2
  return 1
}

# build_cmake SOURCES NAME OPTIONS…
build_cmake() {
  logged "$2" cmake -S "$1" -B "$work/build-$2" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/cmake/mingw-w64.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$work/deps" -DBUILD_SHARED_LIBS=OFF "${@:3}"
  logged "$2" cmake --build "$work/build-$2" --target install
}

# build_sqlite SOURCES: joins them to the one file that SQLite is meant to be compiled as. No extension is loaded from
# elsewhere, and a text in double quotes is never taken for a string. What nothing here calls is left out.
build_sqlite() {
  mkdir "$work/build-sqlite"
  cd "$work/build-sqlite"
  logged sqlite "$1/configure" --disable-tcl --disable-shared
  logged sqlite make sqlite3.c sqlite3.h
  logged sqlite x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_OMIT_LOAD_EXTENSION -DSQLITE_DQS=0 \
    -DSQLITE_OMIT_AUTHORIZATION -DSQLITE_OMIT_DECLTYPE -DSQLITE_OMIT_DEPRECATED -DSQLITE_OMIT_JSON \
    -DSQLITE_OMIT_PROGRESS_CALLBACK -DSQLITE_OMIT_SHARED_CACHE -DSQLITE_OMIT_TRACE -c sqlite3.c
  logged sqlite x86_64-w64-mingw32-ar rcs "$work/deps/lib/libsqlite3.a" sqlite3.o
  cp sqlite3.h "$work/deps/include"
  cd "$here"
}

# build_openssl SOURCES: the cryptography alone, without TLS and programs. What old PKCS#12 files are encrypted with is
# linked in ("no-module"), and nothing is ever loaded or configured from a folder of the machine, where somebody could
# put it. Protocols and ciphers that no certificate and no file of keys has are left out: they would be a tenth of
# TMgmt.dll.
build_openssl() {
  cp -r "$1" "$work/build-openssl"
  cd "$work/build-openssl"
  # It cleans up after itself through msvcrt's _onexit, which runs when the process ends: too late in a DLL that is gone
  # by then. The atexit of mingw-w64 belongs to the module.
  grep -q '_onexit(win32atexit) == NULL' crypto/init.c
  sed -i 's/_onexit(win32atexit) == NULL/atexit(OPENSSL_cleanup) != 0/' crypto/init.c
  # Whatever was configured below, it would look for openssl.cnf when it is asked for an object's name.
  grep -q 'int ret = ossl_config_int(NULL);' crypto/init.c
  sed -i 's/int ret = ossl_config_int(NULL);/int ret = 1;/' crypto/init.c
  logged openssl ./Configure mingw64 CC=x86_64-w64-mingw32-gcc-posix AR=x86_64-w64-mingw32-ar \
    RANLIB=x86_64-w64-mingw32-ranlib RC=x86_64-w64-mingw32-windres \
    no-shared no-module no-dso no-engine no-autoload-config no-tests no-comp no-ui-console \
    no-bf no-blake2 no-cast no-chacha no-cmp no-cms no-ct no-dgram no-dh no-gost no-idea no-mdc2 no-multiblock no-ocb \
    no-ocsp no-poly1305 no-psk no-rc5 no-rfc3779 no-siphash no-siv no-sock no-srp no-srtp no-ts no-whirlpool
  logged openssl make build_generated
  logged openssl make -j"$(nproc)" libcrypto.a
  cp libcrypto.a "$work/deps/lib"
  cp -r include/openssl "$work/deps/include"
  cd "$here"
}

logged apt apt-get -qq "${source_options[@]}" update
echo "Building OpenSSL $openssl_version for Windows (once)" >&2
openssl=$(fetch_source openssl)
build_openssl "$openssl"
echo "Building pugixml $pugixml_version for Windows (once)" >&2
pugixml=$(fetch_source pugixml)
build_cmake "$pugixml" pugixml -DPUGIXML_NO_XPATH=ON
echo "Building SQLite $sqlite_version for Windows (once)" >&2
sqlite=$(fetch_source sqlite3)
build_sqlite "$sqlite"
echo "Building GoogleTest $gtest_version for Windows (once)" >&2
build_cmake /usr/src/googletest googletest -DINSTALL_GTEST=ON

# Where two builds ran at once, the first one's result stays.
mv -T "$work/deps" "$deps" 2>/dev/null || [ -e "$deps" ]
echo "$deps"
