#!/bin/sh
# Checks the Debian packages in a folder with lintian, installs them into an empty root and runs the
# program from there.
#
# usage: debian.sh SOURCE_FOLDER FOLDER QT_MAJOR
set -eu

source=$1
build=$2
qt_major=$3

suffix=
[ "$qt_major" = 5 ] || suffix=-qt$qt_major
root=$build/root
export QT_QPA_PLATFORM=offscreen

fail() {
    echo "$1" >&2
    exit 1
}

# field PACKAGE NAME: a field of a package's description.
field() {
    dpkg-deb --field "$build/$1"_*.deb "$2"
}

umask 022
rm -rf "$root"

library=libdxfviewer${suffix:+$suffix-}0
for package in "$library" "libdxfviewer$suffix-dev" "dxfviewer$suffix"; do
    echo "$package: $(field "$package" Depends)"
done
field "$library" Depends | grep -q "libdxflib" || fail "$library does not depend on dxflib"
field "$library" Depends | grep -Eq "libqt${qt_major}widgets" || fail "$library does not depend on Qt"
field "libdxfviewer$suffix-dev" Depends | grep -q "$library (= " ||
    fail "the development package does not depend on this very library"
field "dxfviewer$suffix" Depends | grep -q "$library (= " ||
    fail "the program does not depend on this very library"

# In a list the three packages differ by their first lines.
for package in "$build"/*.deb; do
    dpkg-deb --field "$package" Description | head -n 1
done | sort | uniq -d | grep . && fail "two packages have the same short description"
for package in "$build"/*.deb; do
    for script in preinst postinst prerm postrm; do
        ! dpkg-deb --info "$package" $script >/dev/null 2>&1 || fail "$package has the script $script"
    done
done
dpkg-deb --info "$build/${library}_"*.deb symbols |
    grep -q '^ _ZN9DXFViewerC1E.*@Base 0\.1\.0$' || fail "$library does not list its symbols"

# Two major versions of the library can be installed side by side: the path of every file holds the
# version.
dpkg-deb --fsys-tarfile "$build/packages/${library}_"*.deb | tar -t | grep -v '/$' |
    grep -vE "/$library(/|\$)|\.so\.0|/dxfviewer$suffix/0/" &&
    fail "$library has files that another version would have as well"

# The remaining tags are explained in packaging/debian.
lintian --allow-root --pedantic --display-info \
    --fail-on error --fail-on warning --fail-on info --fail-on pedantic "$build"/*.deb

# The root does not hold what the packages depend on. That comes from the running system.
mkdir -p "$root/var/lib/dpkg/updates" "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/triggers"
: >"$root/var/lib/dpkg/status"
as_root=
[ "$(id -u)" = 0 ] || as_root=fakeroot
# dpkg needs programs that are not in every user's PATH.
PATH=$PATH:/usr/sbin:/sbin $as_root dpkg --root="$root" --log=/dev/null \
    --force-depends --force-not-root --force-script-chrootless \
    --install "$build"/*.deb

desktop-file-validate "$root"/usr/share/applications/*.desktop
appstreamcli validate --no-net "$root"/usr/share/metainfo/*.xml

libraries=$(dirname "$(find "$root/usr/lib" -name "libdxfviewer$suffix.so.0")")
program=$root/usr/bin/dxfviewer$suffix
for binary in "$program" "$libraries/libdxfviewer$suffix.so.0"; do
    ! readelf --dynamic "$binary" | grep -E 'RPATH|RUNPATH' || fail "$binary has a run path"
    readelf --dynamic "$binary" | grep -q BIND_NOW || fail "$binary is not bound at its start"
done
LD_LIBRARY_PATH=$libraries "$program" --picture "$build/picture.svg" "$source/samples/floor-plan.dxf"
LD_LIBRARY_PATH=$libraries LC_ALL=C.UTF-8 LANGUAGE=de "$program" --help | grep -q DXF-Zeichnungen ||
    fail "the installed program does not find its translations"

# The man page lists every option.
manual=$root/usr/share/man/man1/dxfviewer$suffix.1.gz
for option in $(LD_LIBRARY_PATH=$libraries LC_ALL=C "$program" --help | grep -o -- '  --[a-z-]*'); do
    gunzip -c "$manual" | tr -d '\134' | grep -q -- "$option" || fail "the manual does not name $option"
done
for page in overview.md embedding.md examples/window/main.cpp; do
    [ -f "$root/usr/share/doc/libdxfviewer$suffix-dev/$page" ] || fail "$page is not packed"
done
