#!/usr/bin/env bash
# Runs the command in the first line of a golden file, from the top of the project,
# and compares what came out with the rest of the file.
#
#   golden.sh check|renew KYDATA FILE...
#
# A golden file is the command behind "$ ", its standard output, and, where they are
# not empty and 0, its standard error and its exit status.
set -euo pipefail

action=$1
program=$(realpath --canonicalize-existing "$2")
shift 2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ln -s "$program" "$work/kydata"

# The locale decides about messages of the system, NO_COLOR and TERM about colours.
run() {
  local command=$1 status=0
  (
    cd "$here/../.."
    unset NO_COLOR
    LC_ALL=C TERM=xterm PATH="$work:$PATH" bash -o pipefail -c "$command"
  ) >"$work/out" 2>"$work/err" </dev/null || status=$?
  printf '$ %s\n' "$command"
  cat "$work/out"
  if [[ -s $work/err ]]; then
    printf -- '-- standard error\n'
    cat "$work/err"
  fi
  [[ $status -eq 0 ]] || printf -- '-- exit status %d\n' "$status"
}

failed=0
for file in "$@"; do
  command=$(head -n 1 "$file")
  [[ $command == '$ '* ]] || {
    echo "golden.sh: $file does not begin with a command" >&2
    exit 1
  }
  run "${command#'$ '}" >"$work/now"
  case "$action" in
    renew) cmp --silent "$file" "$work/now" || cp "$work/now" "$file" ;;
    check)
      diff --unified --label "$(basename "$file")" --label "what came out" \
        "$file" "$work/now" || failed=1
      ;;
    *)
      echo "golden.sh: neither check nor renew: $action" >&2
      exit 2
      ;;
  esac
done
exit "$failed"
