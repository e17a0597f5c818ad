#!/bin/sh
# Compares the functions that a header declares with those that a .def file exports: check_exports.sh HEADER DEF.
# Each declared function also has to have a docstring right above it.
set -eu
header=$1
def=$2
failed=0

# A line a function: its name, and "documented" if a comment ends on the line above or stands on a line of its own there.
declared=$(tr -d '\r' <"$header" | awk '
    /^[A-Za-z].*(WINAPI|CALLBACK|__cdecl) [A-Za-z_][A-Za-z0-9_]*\(/ && !/^typedef/ {
        name = $0
        sub(/\(.*/, "", name)
        sub(/.* /, "", name)
        print name, (above ~ /\*\/$/ ? "documented" : "")
    }
    { above = $0 }')
listed=$(tr -d '\r' <"$def" | sed -e 's/;.*//' -e '1,/^[[:space:]]*EXPORTS/d' | awk 'NF { print $1 }')

[ -n "$declared" ] || { echo "$header declares no function"; failed=1; }
for name in $(printf '%s\n' "$declared" | awk 'NF == 1 { print $1 }'); do
    echo "$name has no docstring in $header"
    failed=1
done

tmp=$(mktemp -d)
printf '%s\n' "$declared" | awk '{ print $1 }' | sort >"$tmp/declared"
printf '%s\n' "$listed" | sort >"$tmp/listed"
if ! diff "$tmp/declared" "$tmp/listed"; then
    echo "declared in $header (<) and listed in $def (>) differ"
    failed=1
fi
[ -z "$(uniq -d "$tmp/listed")" ] || { echo "listed twice: $(uniq -d "$tmp/listed")"; failed=1; }
[ $failed -ne 0 ] || echo "$(wc -l <"$tmp/listed") exports, all declared and described"
rm -r "$tmp"
exit $failed
