#!/bin/sh
# Compiles every installed header by itself, in a host that has stricter settings than the library.
#
# usage: headers.sh COMPILER INCLUDE_FOLDER QT_MODULE
set -eu

compiler=$1
include=$2
# What is wrong in the headers of others is not for us to repair.
others=$(pkg-config --cflags "$3" dxflib | sed 's/-I/-isystem /g')

if grep -rL DXFVIEWER_EXPORT "$include/dxfviewer" | grep .; then
    echo "These export nothing, so they are private: they must not be installed" >&2
    exit 1
fi

cd "$include"
# shellcheck disable=SC2016,SC2086 # the inner shell expands; the flags are many words
find dxfviewer -name '*.h' | sort | xargs -P 2 -I '{}' sh -c '
    header=$1
    shift
    echo "#include <$header>" | "$@" || { echo "$header does not compile by itself" >&2; exit 1; }
' sh '{}' "$compiler" -std=c++17 -fPIC -fsyntax-only -x c++ -Wall -Wextra -Werror -DQT_NO_KEYWORDS \
    $others -I . -
