#!/usr/bin/env bash
# Each README block starting with "$ " runs in one bash in a scratch directory, dumpbrel and
# build/'s probe being this build's: its commands must print (stderr joined) the lines under them.
readme=$1 bin=$(realpath "$2")
# None of the user's own BREL_* settings reaches the examples: they run as in a fresh shell.
unset "${!BREL_@}"
shift 2
emu=("$@") ns=()
[ "$(id -u)" = 0 ] || ns=(unshare --user --map-root-user)
dumpbrel() {
    "${ns[@]}" "${emu[@]}" "$bin" "$@"
}
d=$(mktemp -d)
trap 'rm -rf "$d"' EXIT
awk -v d="$d" 'b && index($0, ind) != 1 { b = 0 }
  !b && l == "" && match($0, /^    +\$ /) { b = NR; ind = substr($0, 1, RLENGTH - 2) }
  b { print substr($0, length(ind) + 1) > (d "/" b) }
  { l = $0 }' "$readme"
n=0 f=0
for b in $(ls "$d" | sort -n); do
    mkdir -p "$d/run/build/tests" && cd "$d/run" &&
        printf '#!/bin/sh\nexec %s "$@"\n' "${emu[*]} $(realpath "$LOG_PROBE")" >build/tests/log_probe &&
        chmod +x build/tests/log_probe && grep '^\$ ' "../$b" | while IFS= read -r line; do
        echo "$line"
        eval "${line:2}" </dev/null 2>&1
    done >../got
    cd / && rm -rf "$d/run" && n=$((n + 1))
    diff -u --label "README.md:$b" --label "as run" "$d/$b" "$d/got" || f=1
done
echo "readme: $n checked examples"
[ $n -gt 0 ] && [ $f = 0 ]
