#!/bin/sh
# Writes the manual page of kydata, made of what the program says with --help.
#
#   manual.sh KYDATA
set -eu

program=$1
here=$(dirname "$0")

# The rows of the main help's table of commands.
commands=$("$program" --help | sed -n '/^Subcommands:/,/^$/ s/^  \([a-z]*\) .*/\1/p')

{
  echo "@"
  "$program" --help
  for command in $commands; do
    echo "@ $command"
    "$program" "$command" --help
  done
} | awk -v version="$("$program" --version | sed 's/^kydata //')" -f "$here/manual.awk"
