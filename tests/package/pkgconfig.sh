#!/bin/sh
# Builds and runs a program with nothing but a compiler and what pkg-config says.
#
# usage: pkgconfig.sh COMPILER PREFIX LIBRARY_FOLDER PACKAGE SOURCE PROGRAM
set -eu

compiler=$1
prefix=$2
libdir=$3
package=$4
source=$5
program=$6

export PKG_CONFIG_PATH="$prefix/$libdir/pkgconfig"
folder=$(pkg-config --variable=libdir "$package")
# An installed tree may be moved: the file must give the place where it is, not where it was
# configured to be.
if [ "$(realpath "$folder")" != "$(realpath "$prefix/$libdir")" ]; then
    echo "$package.pc says that the library is in $folder" >&2
    exit 1
fi

translations=$(pkg-config --variable=translationsdir "$package")
if [ ! -f "$translations/dxfviewer_de.qm" ]; then
    echo "$package.pc says that translations are in $translations" >&2
    exit 1
fi

# shellcheck disable=SC2046 # the flags are many words
"$compiler" -std=c++17 -fPIC "$source" -o "$program" $(pkg-config --cflags --libs "$package") \
    -Wl,-rpath,"$folder"
"$program"
