# Completion of kydata's command line in bash. Commands and options are asked of the
# program's own help, so that a new one is offered without a word here. Where nothing is
# offered, bash offers files.

# The table under the heading $2 of the help text $1.
_kydata_table() { sed -n "/^$2:\$/,/^\$/ s/^  \\([^ ].*\\)/\\1/p" <<<"$1"; }

# The numbers in the list of info types, which is free text of a help.
_kydata_info_types() { sed -n '/^Info types/,/^$/ s/^  .*: //p' <<<"$1" | tr --delete ,; }

_kydata() {
  local program=$1 current=$2 previous=$3
  local main help commands command='' options name words=''
  COMPREPLY=()

  main=$("$program" --help 2>/dev/null) || return 0
  commands=$(_kydata_table "$main" Subcommands | sed 's/ .*//')
  command=$(printf '%s\n' "${COMP_WORDS[@]:1:COMP_CWORD-1}" |
    grep --line-regexp --fixed-strings --max-count 1 -e "$commands") || command=''
  help=$main
  [[ -z $command ]] || help=$("$program" "$command" --help 2>/dev/null) || return 0
  options=$(_kydata_table "$help" Options)

  name=$(sed -n "s/^${previous//[!a-z-]/} \\([A-Z]\\{1,\\}\\).*/\\1/p" <<<"$options")
  if [[ $previous == --* && -n $name ]]; then
    case $name in
      INFOTYPE) words=$(_kydata_info_types "$help") ;;
      NAME) words=$(sed --quiet 's/^Forms: \([^.]*\).*/\1/p' <<<"$help" | tr --delete ,) ;;
      WHEN) words='auto always never' ;;
      N) compopt +o default 2>/dev/null || true ;; # a number, and no file either
    esac
  elif [[ $current == -* ]]; then
    words=$(sed 's/ .*//; s/,/ /g' <<<"$options")
  elif [[ -z $command ]]; then
    words=$commands
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
}

complete -o default -F _kydata kydata
