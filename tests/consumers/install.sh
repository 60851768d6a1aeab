#!/usr/bin/env bash
# Installs a build into the prefix PREFIXES/installed and checks what is there, then moves
# a copy of it to PREFIXES/moved, where it must not know of its first place.
#
#   install.sh SOURCE BUILD PREFIXES
set -euo pipefail

source=$1
build=$2
prefixes=$3
installed=$prefixes/installed
moved=$prefixes/moved

fail() {
  echo "install.sh: $*" >&2
  exit 1
}

rm -rf "$prefixes"
for component in Runtime Development Tools; do
  cmake --install "$build" --prefix "$installed" --component "$component"
done

diff --recursive "$source/include" "$installed/include" ||
  fail "the headers are not those of the include folder"
[[ -z $(find "$installed" -type f -perm /022) ]] || fail "others may write in it"

# A run path may stand in the program alone, and only lead from it to the library.
run_path() { readelf --dynamic "$1" | sed -n 's/.*(R[UN]*PATH).*\[\(.*\)\]/\1/p'; }
for file in "$installed"/lib*/libKyDataStructure.so "$installed"/bin/kydata; do
  path=$(run_path "$file")
  [[ -z $path || ($file == */kydata && $path == "\$ORIGIN/../lib"*) ]] ||
    fail "$file has the run path $path"
done

cp --archive "$installed" "$moved"
for text in "$installed" "$build"; do
  # Not in the binaries: their debug information tells where the sources were.
  if grep --recursive --binary-files=without-match --fixed-strings "$text" "$moved"; then
    fail "a file names $text"
  fi
done

"$moved/bin/kydata" --version
loaded=$(ldd "$moved/bin/kydata" | sed -n 's/.*libKyDataStructure[^ ]* => \([^ ]*\) .*/\1/p')
[[ $(realpath "$loaded") == "$(realpath "$moved")"/* ]] || fail "the moved kydata loads $loaded"
