"""The tables of the format pages have the rows of the tables that the library works by."""

import re
import sys

from pages import ROOT

KINDS = {'asInteger': 'integer', 'asText': 'text', 'inGroup': 'group'}


def rows_of(path, pattern, begin='', end='\f'):
  """What a pattern finds in a file, in the part from one text to another."""
  text = (ROOT / path).read_text()
  part = text[text.index(begin):].split(end)[0]
  return [found.groups() for found in re.finditer(pattern, part, re.M)]


def properties():
  shown = rows_of('docs/formats/resource-description.md',
                  r'^\| "(\w+)" \| (\w+) \| `(\w+)` \| (\S+) \|$')
  known = rows_of('tests/resource/property_rows.h',
                  r'^    \{"(\w+)", "(\w+)", Travels::(\w+), (-?\d+)\},$')
  return ({(key, member, kind, unset.replace('""', '0')) for member, kind, key, unset in shown},
          {(key, member, KINDS[kind], unset) for key, member, kind, unset in known})


def user_strings():
  return (set(rows_of('docs/formats/resource-description.md', r'^\| "(\w+)" \| `(rsius\w+)` \|$')),
          {(member, key) for key, member in rows_of('tests/resource/property_rows.h',
                                                    r'^    \{"(rsius\w+)", "(\w+)"\},$')})


def other_names(section, table):
  """Of a full record: the rows of a section of its page, and of a table."""
  shown = rows_of('docs/formats/complete-resource-description.md',
                  r'^\| "(\w+)" \| (integer|text) \| `rs(\w+)`', section, '\n## ')
  known = rows_of('src/resource/property_tables.h',
                  r'^    \{k(\w+), +"(\w+)", +ValueKind::(\w+)\},$', table, '}};')
  return set(shown), {(member, kind, prop) for prop, member, kind in known}


def complete_names():
  return other_names('## Packs and single resources', 'completeResPropTable = {{')


def vcg_names():
  return other_names('## VCG library', 'vcgResPropTable = {{')


def providers():
  shown = rows_of('docs/formats/complete-resource-description.md',
                  r'^\| (\d+)(?:,| to) (\d+) \| \w+ \| (\d) \| "(\w+/)" and the (id|record\'s "slug") \|$')
  known = rows_of('src/resource/complete_form.cpp',
                  r'^      \{(\d+), (\d+), (\d), "(\w+/)", (\w+)\},$')
  return ({(*row[:4], row[4] != 'id') for row in shown},
          {(*row[:4], row[4] == 'true') for row in known})


def dimensions():
  slices = {('false', 'false'): 'flat', ('true', 'false'): 'by label',
            ('false', 'true'): 'flat, the label is the score'}
  known = rows_of('src/cutscript/analysis_reader.cpp',
                  r'\{(\d+), "(\w+)", (\w+), (\w+)\}', 'kLabelledDimensions[] = {', '};')
  return (set(rows_of('docs/formats/analysis-report.md',
                      r'^\| "(\w+)" \| labelled \| (\d+) \| (.+) \|$')),
          {(member, number, slices[by_label, is_score])
           for number, member, by_label, is_score in known})


def main():
  faults = []
  for table in (properties, user_strings, complete_names, vcg_names, providers, dimensions):
    shown, known = table()
    if not known:
      faults.append(f'{table.__name__}: the library\'s own table was not found')
    faults += [f'{table.__name__}: the page has {row} alone' for row in sorted(shown - known)]
    faults += [f'{table.__name__}: the page lacks {row}' for row in sorted(known - shown)]
  sys.exit('\n'.join(faults) or None)


main()
