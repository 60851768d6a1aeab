#!/usr/bin/env bash
# Runs the commands of a transcript in gdb, where the program calls lookAround(), and
# compares what gdb says with the rest of the transcript. Addresses are not compared.
#
#   transcript.sh check|renew PRINTERS PROGRAM TRANSCRIPT
#
# DEBUG_SYMBOLS may name the folder of separate debug symbols. The exit status is 77 where
# the system permits no debugging.
set -euo pipefail

action=$1
printers=$2
program=$3
transcript=$4

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

arguments=(--nx --batch -ex 'set width 0' -ex 'set confirm off' -ex "source $printers"
  -ex 'break lookAround' -ex run -ex up)
if [[ -n ${DEBUG_SYMBOLS:-} ]]; then
  arguments+=(-iex "set debug-file-directory $DEBUG_SYMBOLS")
fi
while read -r command; do
  arguments+=(-ex "echo (gdb) $command\n" -ex "$command")
done < <(sed -n 's/^(gdb) //p' "$transcript")
LC_ALL=C gdb "${arguments[@]}" -ex 'echo (gdb) kill\n' -ex kill "$program" >"$work/said" 2>&1 \
  </dev/null || true
if grep --quiet 'ptrace: Operation not permitted' "$work/said"; then
  echo "transcript.sh: no debugging is permitted here" >&2
  exit 77
fi
# From the first command on, without the numbers that gdb gives its answers.
sed --quiet --expression='/^(gdb) kill/q' --expression='/^(gdb) /,$ {
    s/^\$[0-9]* = //
    s/0x[0-9a-f]\{4,\}/0x*/g
    p
  }' "$work/said" >"$work/now"

case "$action" in
  renew) cp "$work/now" "$transcript" ;;
  check)
    diff --unified --label "$(basename "$transcript")" --label "what gdb says" \
      "$transcript" "$work/now" || {
      sed '/^(gdb) /q' "$work/said"
      exit 1
    }
    ;;
  *)
    echo "transcript.sh: neither check nor renew: $action" >&2
    exit 2
    ;;
esac
