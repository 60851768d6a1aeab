#!/usr/bin/env bash
# Asks bash's completion of kydata what it offers, and compares.
#
#   completion.sh KYDATA COMPLETION
set -euo pipefail

program=$1
# shellcheck source=/dev/null
source "$2"

failed=0
# offers LINE WORDS: at the end of that command line, those words and no others.
offers() {
  local line=$1 expected=$2 offered
  read -ra COMP_WORDS <<<"$line"
  [[ $line != *' ' ]] || COMP_WORDS+=('')
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  _kydata "$program" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
  offered=${COMPREPLY[*]}
  [[ $offered == "$expected" ]] || {
    echo "completion.sh: after \"$line\" it offers \"$offered\" and not \"$expected\"" >&2
    failed=1
  }
}

# The help says what there is: the rows of a table, as far as the names go.
names() { sed -n "/^$1:\$/,/^\$/ s/^  \\([-a-z,]*\\).*/\\1/p" | tr ',' '\n' | sed '/^$/d' | xargs; }

commands=$("$program" --help | names Subcommands)
[[ $(wc -w <<<"$commands") -ge 5 ]] || {
  echo "completion.sh: the help names too few commands: $commands" >&2
  exit 1
}
offers 'kydata ' "$commands"
offers 'kydata -' "$("$program" --help | names Options)"
for command in $commands; do
  offers "kydata $command -" "$("$program" "$command" --help | names Options)"
  offers "kydata $command " ''
done

offers 'kydata res' resource
offers 'kydata resource --un' --unique
offers 'kydata resource --normal a.json --li' --lines
offers 'kydata resource --complete 1' '101 102 103 104 106 107 108 109 112 113 1007'
offers 'kydata resource --lines ' ''
offers 'kydata cut --script ' ''
offers 'kydata cut --svg ' ''
offers 'kydata cut --svg -' ''
offers 'kydata --version ' "$commands"

[[ $(complete -p kydata) == 'complete -o default -F _kydata kydata' ]] || {
  echo "completion.sh: kydata is not completed" >&2
  failed=1
}
exit "$failed"
