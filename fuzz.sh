#!/usr/bin/env bash
# fuzz.sh [--runs N] [--keep] [TARGET…]: runs the fuzzer on the targets (folders in tests/fuzz; all without any named)
# under the address and undefined-behaviour sanitizers, a million times each or N, shared by as many processes as there
# are processors, and writes docs/robustness.md.
# --keep takes what it found into the corpora, as far as it reaches what they do not. Exits 1 when a rule was broken;
# the content that did it is out/fuzz/TARGET-crash-….
set -euo pipefail
cd "$(dirname "$0")"

runs=1000000
keep=
targets=()
while [ $# -gt 0 ]; do
  case $1 in
    --runs) runs=$2; shift ;;
    --keep) keep=1 ;;
    -*) sed -n '2,7s/^# //p' "$0"; exit 2 ;;
    *) targets+=("$1") ;;
  esac
  shift
done
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(cd tests/fuzz && printf '%s\n' */about.txt | xargs -n 1 dirname)

tools/setup.sh llvm
build=${FUZZ_BUILD:-$PWD/out/fuzz}
# A compiler cache with a base folder makes paths relative, and the sources whose lines count would not be found.
export CCACHE_BASEDIR=
# make FOLDER FLAGS: the fuzzer, with the flags.
make_fuzzer() {
  cmake -S . -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTM_FUZZ=ON -DCMAKE_C_COMPILER=clang \
    -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link $2" >/dev/null
  ninja -C "$1" Fuzzer
}
make_fuzzer "$build" '-fsanitize=address,undefined -fno-sanitize-recover=all'
make_fuzzer "$build/coverage" '-fprofile-instr-generate -fcoverage-mapping'

# Files are made on a disk in memory. Every block of memory's history costs more time than all else together.
export TMPDIR=/dev/shm ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=32:max_malloc_fill_size=0
status=0
for target in "${targets[@]}"; do
  corpus=tests/fuzz/$target/corpus
  found=$build/found/$target
  rm -f "$build/$target".*.log
  mkdir -p "$found"
  export FUZZ_TARGET=$target
  echo "$target: $runs executions"
  dictionary=(tests/fuzz/"$target"/*.dict)
  [ -e "${dictionary[0]}" ] && dictionary=("-dict=${dictionary[0]}") || dictionary=()
  processes=()
  for process in $(seq "$(nproc)"); do
    "$build/Fuzzer" -runs=$((runs / $(nproc))) -seed=$((RANDOM + 1)) -timeout=20 -print_final_stats=1 \
      -artifact_prefix="$build/$target-" "${dictionary[@]}" "$found" "$corpus" >"$build/$target.$process.log" 2>&1 &
    processes+=($!)
  done
  for process in "${processes[@]}"; do
    wait "$process" || status=1
  done
  grep -h -E 'Broken:|runtime error:|ERROR:' "$build/$target".*.log || true

  if [ "$keep" ]; then
    # What reaches places in the code that the seeds do not, however often it passes there.
    merged=$(mktemp -d)
    cp -r "$corpus" "$merged/seeds"
    rm -rf "$merged/seeds/found"
    "$build/Fuzzer" -merge=1 -use_counters=0 "$merged" "$corpus" "$found" >"$build/$target.merge" 2>&1
    rm -r "$merged/seeds"
    python3 tools/robustness.py keep "$corpus" "$merged"
    rm -r "$merged"
  fi

  LLVM_PROFILE_FILE=$build/$target.profraw "$build/coverage/Fuzzer" -runs=0 "$found" "$corpus" >/dev/null 2>&1
  llvm-profdata merge -o "$build/$target.profdata" "$build/$target.profraw"
  mapfile -t sources < <(tail -n +2 "tests/fuzz/$target/about.txt")
  llvm-cov export -summary-only -instr-profile="$build/$target.profdata" "$build/coverage/Fuzzer" "${sources[@]}" \
    >"$build/$target.json"
  python3 tools/robustness.py record "$target" "$build/$target.json" "$build/$target".*.log
done
python3 tools/robustness.py page
exit $status
