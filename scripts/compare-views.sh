#!/bin/sh
# What the lists and the balances show, compared row by row and label by label between two builds
# on the same generated file (made once under DIR):
#   scripts/compare-views.sh OLD/bench_scale NEW/bench_scale [N expenses] [DIR]
# Build OLD from the commit to compare against (e.g. in a worktree of main) with -DQUINTARA_BENCH=ON.
set -eu
old=$1
new=$2
n=${3:-100000}
dir=${4:-/tmp/quintara-scale}
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
export QT_QPA_PLATFORM=offscreen
"$old" --sizes="$n" --dir="$dir" --dump="$out/old.txt" >/dev/null 2>&1
"$new" --sizes="$n" --dir="$dir" --dump="$out/new.txt" >/dev/null 2>&1
echo "$(wc -l <"$out/old.txt") lines each"
if cmp -s "$out/old.txt" "$out/new.txt"; then
    echo "the same"
else
    diff "$out/old.txt" "$out/new.txt" | head -40
    exit 1
fi
