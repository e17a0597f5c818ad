#!/bin/sh
# Compares the tables of widgets.dll with what is promised: check_dll.sh OBJDUMP DLL DEF.
# Exported are the names of the .def file and no others; imported are the documented libraries and no others.
set -eu
objdump=$1
dll=$2
def=$3
allowed='kernel32.dll user32.dll gdi32.dll comctl32.dll msvcrt.dll'
failed=0

tables=$("$objdump" -p "$dll")

imports=$(printf '%s\n' "$tables" | sed -n 's/^[[:space:]]*DLL Name: *//p' | tr '[:upper:]' '[:lower:]')
[ -n "$imports" ] || { echo "$dll has no import table"; failed=1; }
for name in $imports; do
    case " $allowed " in
    *" $name "*) ;;
    *) echo "imports $name, which a host's machine needn't have"; failed=1 ;;
    esac
done

exports=$(printf '%s\n' "$tables" |
    sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^[[:space:]]*\[ *[0-9]*\] //p' | sort)
listed=$(tr -d '\r' <"$def" | sed -e 's/;.*//' -e '1,/^[[:space:]]*EXPORTS/d' | awk 'NF { print $1 }' | sort)
[ -n "$exports" ] || { echo "$dll exports nothing"; failed=1; }
if [ "$exports" != "$listed" ]; then
    echo "exports (<) and $def (>) differ:"
    tmp=$(mktemp -d)
    printf '%s\n' "$exports" >"$tmp/exports"
    printf '%s\n' "$listed" >"$tmp/listed"
    diff "$tmp/exports" "$tmp/listed" || true
    rm -r "$tmp"
    failed=1
fi
[ $failed -ne 0 ] || echo "$(printf '%s\n' "$exports" | wc -l) exports, imports $(echo "$imports" | tr '\n' ' ')"
exit $failed
