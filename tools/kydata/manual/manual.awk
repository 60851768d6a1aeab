# Turns the help texts of kydata, one behind the other, into its manual page. In front of
# each stands a line "@ COMMAND", the first of them without a command. The variable
# `version` comes from the command line.
#
# A help text is a line of what the command does, its usage, tables under a heading
# ("Options:"), and then free text, in which what is indented is kept as it is. Tables of
# options become tagged paragraphs. Examples are gathered in one section. The exit status,
# which every help text has, gets a section, and once more where a command's is another.

function escaped(text) {
  gsub(/\\/, "\\e", text)
  gsub(/-/, "\\-", text)
  sub(/^[.']/, "\\\\\\&&", text)
  return text
}

function bold(text) { return "\\fB" escaped(text) "\\fR" }

# Names bold, what stands for a value in italics: "-h,--help", "--svg OUT".
function tag(text,    words, count, i, line) {
  sub(/ REQUIRED$/, "", text)
  without = ""
  if (match(text, / Excludes: /)) {
    without = substr(text, RSTART + RLENGTH)
    text = substr(text, 1, RSTART - 1)
  }
  count = split(text, words, " ")
  for (i = 1; i <= count; i++) {
    line = line (i > 1 ? " " : "")
    if (words[i] ~ /^-/) {
      gsub(/,/, ", ", words[i])
      line = line bold(words[i])
    } else {
      line = line "\\fI" escaped(words[i]) "\\fR"
    }
  }
  return line
}

function add(line) { body[place] = body[place] line "\n" }

# Ends what an empty line ends: a block of lines that are kept as they are, or a table.
function endBlock() {
  if (kept) add(".EE\n.RE")
  kept = 0
  place = command == "" ? "DESCRIPTION" : "COMMANDS"
  if (table == "Exit") {
    if (command == "") body["EXIT STATUS"] = usual = status
    if (status != usual) add(".PP\nExit status:\n" status)
  }
  table = ""
}

/^@/ {
  endBlock()
  command = $2
  place = command == "" ? "DESCRIPTION" : "COMMANDS"
  isFirst = 1
  next
}

isFirst {
  summary = $0
  isFirst = 0
  next
}

/^Usage: / {
  sub(/^Usage: kydata ?/, "")
  if (command == "") {
    synopsis = synopsis ".B kydata\n" escaped($0) "\n"
  } else {
    sub(/^[^ ]+ /, "")
    add(".SS " bold("kydata " command) " " escaped($0))
  }
  sub(/[.]$/, "", summary)
  add(escaped(summary) ".")
  next
}

/^(Positionals|Options|Subcommands):$/ {
  table = $1
  if (command == "") place = "OPTIONS"
  next
}

/^Examples?:$/ { place = "EXAMPLES"; next }
/^Exit status:$/ { table = "Exit"; status = ""; next }
table == "Exit" && /^  [0-9]/ {
  number = $1
  sub(/^  [0-9]+ +/, "")
  status = status ".TP\n" bold(number) "\n" escaped($0) "\n"
  next
}

/^$/ {
  endBlock()
  paragraph = 1
  next
}

table == "Subcommands:" { next }

# A row: its name in the first column, its text in the second or on the next line.
table != "" {
  if (match($0, /^  [^ ]/)) {
    row = substr($0, 3)
    column = match(row, /  +[^ ]/)
    name = column ? substr(row, 1, column - 1) : row
    add(".TP\n" tag(name))
    if (!column) next
    text = substr(row, column)
  } else {
    text = $0
  }
  sub(/^ +/, "", text)
  add(escaped(text) (without == "" ? "" : "; not with " bold(without)))
  without = ""
  next
}

# Free text.
/^ / {
  if (!kept) add(".RS 4\n.EX")
  kept = 1
  sub(/^  /, "")
  add(escaped($0))
  next
}
{
  if (kept) endBlock()
  if (paragraph) add(".PP")
  paragraph = 0
  add(escaped($0))
}

function section(name) { if (body[name] != "") printf ".SH %s\n%s", name, body[name] }

END {
  endBlock()
  printf ".TH KYDATA 1 \"%s\" \"kydata %s\" \"User Commands\"\n", date, version
  print ".SH NAME\nkydata \\- show what the texts of a video editor's data model hold"
  printf ".SH SYNOPSIS\n%s", synopsis
  section("DESCRIPTION")
  section("OPTIONS")
  section("COMMANDS")
  section("EXAMPLES")
  section("EXIT STATUS")
}
