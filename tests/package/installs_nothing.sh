#!/bin/sh
# Fails if a project that holds the library in a folder of its own installs any of it.
#
# usage: installs_nothing.sh CMAKE BUILD_FOLDER...
set -eu

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT

cmake=$1
shift
for build in "$@"; do
    "$cmake" --install "$build" --prefix "$prefix"
done
installed=$(find "$prefix" ! -type d)
if [ -n "$installed" ]; then
    echo "Installed with somebody else's project:" >&2
    echo "$installed" >&2
    exit 1
fi
