#!/usr/bin/env bash
# Feeds made-up bytes to everything that reads files, under the sanitizers, seeded by the fixtures.
# Usage: bench/fuzz.sh [SECONDS [TARGET...]], 600 seconds for each target by default.
#
# Ends with an error when a target crashed, hung or took too much memory; the bytes that did it are in
# build/fuzz/found.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-600}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(reader tag_scanner encodings catalogue recovery clipboard pictures)

scripts/setup fuzz
cmake -S . -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTARVEL_FUZZ=ON -DTARVEL_UI=OFF -DTARVEL_TESTS=OFF -DTARVEL_WERROR=ON >/dev/null
cmake --build build/fuzz

# The seeds of a target, from the skins and catalogues that the tests have.
seeds() {
    local out=build/fuzz/seeds/$1 file
    rm -rf "$out"
    mkdir -p "$out"
    case $1 in
    recovery | clipboard)
        build/fuzz/src/"fuzz_$1_seeds" "$out" tests/fixtures/*/in examples/*/
        [ "$1" = recovery ] && return
        ;;
    catalogue)
        cp assets/modifiers.xml "$out"
        ;;
    pictures)
        find examples tests/fixtures assets packaging -name '*.png' -o -name '*.jpg' -o -name '*.bmp' |
            while read -r file; do head -c 2000 "$file" >"$out/${file//\//_}"; done
        return
        ;;
    esac
    local number=0
    for file in tests/fixtures/*/in/QOR_Skin.xml examples/*/QOR_Skin.xml tests/fuzz/found/"$1"/*; do
        [ -f "$file" ] || continue
        number=$((number + 1))
        if [ "$1" = tag_scanner ]; then
            { echo Name; cat "$file"; } >"$out/$number"
        else
            cp "$file" "$out/$number"
        fi
    done
}

# Feeds one target, and says how it went.
feed() {
    local target=$1 log=build/fuzz/$1.log code=0 runs covered
    seeds "$target"
    mkdir -p "build/fuzz/corpus/$target"
    build/fuzz/src/"fuzz_$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -max_len=65536 -print_final_stats=1 -artifact_prefix="build/fuzz/found/$target-" \
        "build/fuzz/corpus/$target" "build/fuzz/seeds/$target" >"$log" 2>&1 || code=$?
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    covered=$(grep -o 'cov: [0-9]*' "$log" | tail -n 1)
    if [ "$code" -ne 0 ]; then
        echo "$target: failed, see $log" >&2
        grep -m 1 -E 'ERROR|runtime error' "$log" >&2 || tail -n 5 "$log" >&2
        return 1
    fi
    echo "$target: $runs inputs in $seconds s, ${covered:-cov: 0}"
}

# Twice as many at once as there are cores: each has its seconds by the clock.
mkdir -p build/fuzz/found
failed=0
running=0
for target in "${targets[@]}"; do
    if [ "$running" -eq "$((2 * $(nproc)))" ]; then
        wait -n || failed=1
        running=$((running - 1))
    fi
    feed "$target" &
    running=$((running + 1))
done
while [ "$running" -gt 0 ]; do
    wait -n || failed=1
    running=$((running - 1))
done
exit $failed
