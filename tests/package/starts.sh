#!/bin/sh
# Fails unless an installed program starts in its place, and in a copy of its tree with the library
# of the copy.
#
# usage: starts.sh PROGRAM
set -eu

program=$1
"$program" --version

scratch=$(realpath "$(mktemp -d)")
trap 'rm -rf "$scratch"' EXIT
cp -R "$(dirname "$(dirname "$program")")" "$scratch/copy"
copy=$scratch/copy/bin/$(basename "$program")
"$copy" --version
ldd "$copy" | grep -F "$scratch" || {
    echo "the copy does not use the library beside it" >&2
    exit 1
}
