#!/usr/bin/env bash
# Builds the program of this folder against the library, in one of the ways in which it
# can be had, runs it and compares what it prints.
#
#   consume.sh package PREFIX        installed, through find_package
#   consume.sh refused PREFIX        the same, for versions that are not to be found
#   consume.sh pkg-config PREFIX     installed, through pkg-config
#   consume.sh subdirectory SOURCE   the sources, through add_subdirectory
#
# What is built goes into the folder WORK, or into one that is removed at the end. CXX and
# CXXFLAGS are taken from the environment.
set -euo pipefail

way=$1
library=$(realpath --canonicalize-existing "$2")
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [[ -z ${WORK:-} ]]; then
  WORK=$(mktemp -d)
  trap 'rm -rf "$WORK"' EXIT
fi
mkdir -p "$WORK"

fail() {
  echo "consume.sh: $*" >&2
  exit 1
}

# Runs a command and shows what it said if it failed.
quietly() {
  "$@" >"$WORK/log" 2>&1 || {
    cat "$WORK/log" >&2
    fail "failed: $*"
  }
}

configure() {
  local project=$1
  shift
  quietly cmake --fresh -G Ninja -S "$here/$project" -B "$WORK/build" "$@"
}

# The program finds the library in the folder given and prints what it should.
run() {
  local program=$1 expected_place=$2 loaded
  diff --unified "$here/output.txt" <("$program") || fail "$way: the output is another"
  loaded=$(ldd "$program" | sed -n 's/.*libKyDataStructure[^ ]* => \([^ ]*\) .*/\1/p')
  [[ $(realpath "$loaded") == "$expected_place"/* ]] || fail "$way: it loads $loaded"
}

through_package() {
  configure package "-DCMAKE_PREFIX_PATH=$library"
  quietly cmake --build "$WORK/build"
  run "$WORK/build/consumer" "$library"
}

# The version file takes what is of the same major version and not newer.
refused() {
  local version
  for version in 0.9 1.999 2.0; do
    if cmake --fresh -G Ninja -S "$here/package" -B "$WORK/build" "-DCMAKE_PREFIX_PATH=$library" \
      "-DWANTED_VERSION=$version" >"$WORK/log" 2>&1; then
      fail "version $version was found"
    fi
    tr -s '[:space:]' ' ' <"$WORK/log" |
      grep --quiet "compatible with requested version \"$version\"" || {
      cat "$WORK/log" >&2
      fail "version $version was refused for another reason"
    }
  done
}

through_pkg_config() {
  local folder flags
  folder=$(find "$library" -name KyDataStructure.pc -printf '%h')
  flags=$(PKG_CONFIG_PATH=$folder pkg-config --cflags --libs 'KyDataStructure >= 1.0')
  # shellcheck disable=SC2086  # flags are words
  quietly "${CXX:-g++}" -std=c++14 -Wall -Wextra -Wpedantic -Werror ${CXXFLAGS:-} \
    "$here/main.cpp" $flags -o "$WORK/consumer"
  LD_LIBRARY_PATH=$(PKG_CONFIG_PATH=$folder pkg-config --variable=libdir KyDataStructure)
  export LD_LIBRARY_PATH
  run "$WORK/consumer" "$library"
}

through_subdirectory() {
  local unwanted commands
  configure subdirectory "-DLIBRARY_SOURCE=$library"

  # The consumer's flags reach the library, and the library's warnings nobody.
  commands=$(grep '"command".*/src/' "$WORK/build/compile_commands.json")
  grep --quiet --invert-match FLAG_OF_THE_CONSUMER <<<"$commands" &&
    fail "a source of the library lacks the flags of the consumer"
  for unwanted in -Werror -Wall -Wconversion; do
    grep --quiet -e "$unwanted" "$WORK/build/compile_commands.json" &&
      fail "$unwanted comes with the library"
  done

  quietly cmake --build "$WORK/build" --parallel "$(nproc)"
  run "$WORK/build/consumer" "$WORK/build"

  # Nothing but the library was built, and none of it is installed with the consumer.
  [[ -z $(find "$WORK/build" -name '*_test' -o -name kydata) ]] || fail "tests or tools were built"
  quietly cmake --install "$WORK/build" --prefix "$WORK/installed"
  [[ -z $(find "$WORK/installed" -type f 2>/dev/null) ]] || fail "the library was installed, too"
}

case "$way" in
  package) through_package ;;
  refused) refused ;;
  pkg-config) through_pkg_config ;;
  subdirectory) through_subdirectory ;;
  *) fail "no such way: $way" ;;
esac
echo "as it should be: $way"
