#!/usr/bin/env bash
# Draws the manual page of kydata, which must go without a warning, and compares the
# commands and options in it with those that the help names.
#
#   manual.sh KYDATA PAGE
set -euo pipefail

program=$1
page=$2

fail() {
  echo "manual.sh: $*" >&2
  exit 1
}

# Plain text: no colours, no overstriking, wide enough for every line.
text=$(groff -man -ww -Tascii -P-cbou -rLL=120n "$page" 2> >(sed 's/^/said: /'))
[[ $text != *said:* ]] || fail "$(grep said: <<<"$text")"

for section in NAME SYNOPSIS DESCRIPTION OPTIONS COMMANDS EXAMPLES 'EXIT STATUS'; do
  grep --quiet --line-regexp "$section" <<<"$text" || fail "there is no section $section"
done
head -n 1 "$page" | grep --quiet --fixed-strings "\"$("$program" --version)\"" ||
  fail "the page is of another version"

commands=$("$program" --help | sed -n '/^Subcommands:/,/^$/ s/^  \([a-z]*\) .*/\1/p')

# Each exit status that a help text explains.
for command in '' $commands; do
  # shellcheck disable=SC2086  # none is no word
  "$program" $command --help | sed -n '/^Exit status:$/,/^$/ s/^  [0-9] *//p'
done | while read -r meaning; do
  grep --quiet --fixed-strings --regexp="$meaning" < <(tr --squeeze-repeats ' ' <<<"$text") ||
    fail "the page does not say: $meaning"
done

# "command option" for each option of each command, "- option" for those of none.
of_the_page() {
  awk '/^OPTIONS$/ { command = "-" }
       /^COMMANDS$/ { command = "" }
       /^EXAMPLES$/ { exit }
       command != "-" && /^   kydata / { command = $2 }
       command != "" && /^       -/ { sub(/, /, ","); print command, $1 }' <<<"$text"
}
of_a_help() { sed -n "/^Options:\$/,/^\$/ s/^  \([-a-z,]\{2,\}\).*/$1 \1/p"; }
of_the_program() {
  local command
  "$program" --help | of_a_help -
  for command in $commands; do "$program" "$command" --help | of_a_help "$command"; done
}
[[ $(of_the_program | wc -l) -ge 15 ]] || fail "the help names too few options"
diff --unified <(of_the_program) <(of_the_page) || fail "the page and the help differ"
echo "as the help: $(of_the_page | wc -l) options of $(wc -w <<<"$commands") commands and of none"
