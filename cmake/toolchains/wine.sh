#!/usr/bin/env bash
# Runs a Windows program of a build without a display.
#
#   wine.sh COMPILER BUILD PROGRAM [ARGUMENT]...
#
# The build's own DLL and those of its COMPILER are found; what wine keeps, the registry and
# a drive, lies in the folder BUILD.
set -euo pipefail

compiler=$1
build=$2
shift 2

wine=/usr/lib/wine/wine64
[[ -x $wine ]] || wine=wine

libraries=$build/src
for library in libstdc++-6.dll libwinpthread-1.dll; do
  libraries+=";$(dirname "$("$compiler" -print-file-name="$library")")"
done

unset DISPLAY WAYLAND_DISPLAY
export WINEPREFIX=$build/wine WINEPATH=$libraries WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='  # which would ask for a display
export LC_ALL=C.UTF-8  # how file names are written

# Made once, by whoever comes first: wine tells what it does then.
if [[ ! -e $WINEPREFIX/is_made ]]; then
  (
    flock 9
    [[ -e $WINEPREFIX/is_made ]] || "$wine" wineboot --init >"$build/wine.log" 2>&1 9>&-
    touch "$WINEPREFIX/is_made"
  ) 9>"$build/wine.lock"
fi

exec "$wine" "$@"
