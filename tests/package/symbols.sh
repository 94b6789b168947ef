#!/bin/sh
# Fails unless a library exports the interface that its installed headers declare, and nothing else.
#
# usage: symbols.sh LIBRARY INCLUDE_FOLDER
set -eu

library=$1
headers=$(find "$2/dxfviewer" -name '*.h')
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# shellcheck disable=SC2086 # one word per header
classes=$(sed -n 's/^class DXFVIEWER_EXPORT \([A-Za-z]*\).*/\1/p' $headers | paste -sd '|')
# shellcheck disable=SC2086
functions=$(sed -n 's/^DXFVIEWER_EXPORT .* \([A-Za-z]*\)(.*/\1/p' $headers | paste -sd '|')
if [ -z "$classes" ] || [ -z "$functions" ]; then
    echo "No exported class or function found in the headers below $2" >&2
    exit 1
fi

nm -D --defined-only "$library" | cut -d ' ' -f 3- | c++filt | sort -u > "$scratch/exported"

status=0
interface="^(vtable for |typeinfo for |typeinfo name for )?($classes)\$"
interface="$interface|^(non-virtual thunk to |virtual thunk to )?($classes)::"
interface="$interface|^($functions)\\("
if grep -Ev "$interface" "$scratch/exported" > "$scratch/foreign"; then
    echo "$library exports what no public header declares:" >&2
    sed 's/^/    /' "$scratch/foreign" >&2
    status=1
fi

for function in $(echo "$functions" | tr '|' ' '); do
    if ! grep -q "^$function(" "$scratch/exported"; then
        echo "$library does not export the function $function()" >&2
        status=1
    fi
done
# The class of vertices is inline, so it needs no symbol of the library.
for class in $(echo "$classes" | tr '|' ' '); do
    if [ "$class" != DXFVertex ] && ! grep -Eq "(^| )$class(::|\$)" "$scratch/exported"; then
        echo "$library exports nothing of the class $class" >&2
        status=1
    fi
done

if ! objdump -p "$library" | grep -Eq "SONAME +libdxfviewer(-qt6)?\\.so\\.[0-9]+\$"; then
    echo "$library has no soname that ends in the major version" >&2
    status=1
fi
exit $status
