#!/bin/sh
# Compiles every installed header, in a host that has stricter settings than the library. The build
# already checks that each compiles by itself. This finds headers that are not installed.
#
# usage: headers.sh COMPILER INCLUDE_FOLDER QT_MODULE
set -eu

compiler=$1
include=$2
# Warnings in the headers of others do not count.
others=$(pkg-config --cflags "$3" dxflib | sed 's/-I/-isystem /g')

if grep -rL DXFVIEWER_EXPORT "$include/dxfviewer" | grep .; then
    echo "These export nothing, so they are private: they must not be installed" >&2
    exit 1
fi

cd "$include"
# shellcheck disable=SC2086 # the flags are many words
find dxfviewer -name '*.h' | sort | sed 's/.*/#include <&>/' |
    "$compiler" -std=c++17 -fPIC -fsyntax-only -x c++ -Wall -Wextra -Werror -DQT_NO_KEYWORDS \
        $others -I . -
