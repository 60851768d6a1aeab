#!/usr/bin/env bash
# Compares the files in schemas with what kydata makes of its rules, or writes them anew.
#
#   schemas.sh check|renew KYDATA
set -euo pipefail

action=$1
program=$(realpath --canonicalize-existing "$2")
schemas=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../schemas" && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for form in cut datamap highlight report resource storyboard; do
  "$program" check --schema --form "$form" >"$work/$form.schema.json"
done
# One info type stands for all that are read alike.
"$program" check --schema --complete 7 >"$work/record.schema.json"
"$program" check --schema --complete 101 >"$work/record-stock.schema.json"
"$program" check --schema --complete 106 >"$work/record-giphy.schema.json"
"$program" check --schema --complete 1007 >"$work/record-vcg.schema.json"

case "$action" in
  renew) cp "$work"/*.schema.json "$schemas" ;;
  check) diff --unified --recursive --exclude CMakeLists.txt "$schemas" "$work" ;;
  *)
    echo "schemas.sh: neither check nor renew: $action" >&2
    exit 2
    ;;
esac
