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

# Beside wine64 lies the server as such: the command of that name lets it end with the last
# program, whatever it is told.
wine=/usr/lib/wine/wine64
server=/usr/lib/wine/wineserver64
[[ -x $wine ]] || wine=wine
[[ -x $server ]] || server=wineserver

libraries=$build/src
for library in libstdc++-6.dll libwinpthread-1.dll; do
  libraries+=";$(dirname "$("$compiler" -print-file-name="$library")")"
done

unset DISPLAY WAYLAND_DISPLAY
export WINEPREFIX=$build/wine WINEPATH=$libraries WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='  # which would ask for a display
export LC_ALL=C.UTF-8  # how file names are written

# All programs share a server, which stays for a minute after the last of them. Else each
# would have to start it with its services, and a program that comes while the server ends
# with the one before is cut off. They are started by a program of their own, whose output
# the services keep open as long as they live.
(
  flock 9
  if ! "$server" -k0; then
    mkdir -p "$WINEPREFIX"
    { "$server" -p60 && "$wine" wineboot --init; } </dev/null >"$build/wine.log" 2>&1 9>&- || {
      cat "$build/wine.log" >&2
      "$server" -k || true  # so that whoever comes next begins anew
      exit 1
    }
  fi
) 9>"$build/wine.lock"

exec "$wine" "$@"
