#!/usr/bin/env bash
# The README's checked examples: each indented block whose first line starts with "$ " runs in
# one bash, in a scratch directory, with `dumpbrel` this build's binary (under its emulator; in a
# user namespace when not root). A "$ " line is a command, the lines under it what it prints
# (standard error joined to standard output); any difference is shown and fails the test.
#   readme.sh README.md <dumpbrel> [emulator words...]
readme=$1 bin=$(realpath "$2")
shift 2
emu=("$@") ns=()
[ "$(id -u)" = 0 ] || ns=(unshare --user --map-root-user)
dumpbrel() { "${ns[@]}" "${emu[@]}" "$bin" "$@"; }
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
# Each block into $dir/<its line in the README>, its indentation taken off.
awk -v d="$dir" 'b && index($0, ind) != 1 { b = 0 }
  !b && last == "" && match($0, /^    +\$ /) { b = NR; ind = substr($0, 1, RLENGTH - 2) }
  b { print substr($0, length(ind) + 1) > (d "/" b) }
  { last = $0 }' "$readme"
failed=0 blocks=0
for block in $(ls "$dir" | sort -n); do
    mkdir "$dir/run" && cd "$dir/run" || exit 1
    grep '^\$ ' "../$block" | while IFS= read -r line; do
        echo "$line"
        eval "${line:2}" </dev/null 2>&1
    done >../got
    cd / && rm -rf "$dir/run"
    diff -u --label "README.md:$block, as written" --label "as run" "$dir/$block" "$dir/got" ||
        failed=1
    blocks=$((blocks + 1))
done
echo "readme: $blocks checked examples"
[ "$blocks" -gt 0 ] && [ "$failed" = 0 ]
