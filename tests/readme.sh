#!/usr/bin/env bash
# Each block starting with "$ " of README.md and of the pages in docs/ (the reference of every
# option, written and checked by its own test, aside) runs in one bash in a scratch directory,
# dumpbrel and build/'s probe being this build's: its commands must print (stderr joined) the
# lines under them.
source=$1 bin=$(realpath "$2")
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
n=0 f=0
for page in "$source/README.md" "$source"/docs/*.md; do
    [ "$page" = "$source/docs/options.md" ] && continue
    name=${page#"$source/"}
    rm -rf "$d/blocks" && mkdir "$d/blocks"
    awk -v d="$d/blocks" 'b && index($0, ind) != 1 { b = 0 }
      !b && l == "" && match($0, /^    +\$ /) { b = NR; ind = substr($0, 1, RLENGTH - 2) }
      b { print substr($0, length(ind) + 1) > (d "/" b) }
      { l = $0 }' "$page"
    for b in $(ls "$d/blocks" | sort -n); do
        mkdir -p "$d/run/build/tests" && cd "$d/run" &&
            printf '#!/bin/sh\nexec %s "$@"\n' "${emu[*]} $(realpath "$LOG_PROBE")" >build/tests/log_probe &&
            chmod +x build/tests/log_probe && grep '^\$ ' "$d/blocks/$b" | while IFS= read -r line; do
            echo "$line"
            eval "${line:2}" </dev/null 2>&1
        done >"$d/got"
        cd / && rm -rf "$d/run" && n=$((n + 1))
        diff -u --label "$name:$b" --label "as run" "$d/blocks/$b" "$d/got" || f=1
    done
done
echo "readme: $n checked examples"
[ $n -gt 0 ] && [ $f = 0 ]
