#!/bin/sh
# Fails if the installed tree has files that the build with another Qt has as well. Files for Qt 5
# have plain names. Files for another Qt have its name in their path.
#
# usage: side_by_side.sh PREFIX QT_MAJOR
set -eu

prefix=$1
qt_major=$2

files=$(cd "$prefix" && find . ! -type d)
if [ "$qt_major" = 5 ]; then
    wrong=$(echo "$files" | grep -- -qt || true)
else
    wrong=$(echo "$files" | grep -v -- "-qt$qt_major" || true)
fi
if [ -z "$files" ] || [ -n "$wrong" ]; then
    echo "In the way of a build with another Qt:" >&2
    echo "$wrong" >&2
    exit 1
fi
