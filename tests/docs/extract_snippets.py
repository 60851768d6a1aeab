"""Writes one program with a function for each C++ fragment of the documentation.

  extract_snippets.py OUTPUT
"""

import sys
from pathlib import Path

from pages import ROOT, all_pages, read_page

HEAD = '''// Made from the pages of the documentation.

#include <KyDataStructure/KyDataStructure.h>
#include <KyDataStructure/ref.h>

#include <cstdio>
#include <cstring>
#include <exception>
#include <thread>

using namespace ZOL;
'''

TAIL = '''
int main(int count, char** arguments) {
  for (const auto& snippet : snippets) {
    if (count == 2 && std::strcmp(arguments[1], snippet.place) == 0) {
      snippet.run();
      return 0;
    }
  }
  std::printf("not in this program: build doc_snippets anew\\n");
  return 2;
}
'''


def program():
  parts = [HEAD]
  table = []
  for path in all_pages():
    for fence in read_page(path).fences:
      if fence.is_fragment:
        name = f'snippet{len(table) + 1}'
        parts.append(f'\nstatic void {name}() {{\n'
                     f'#line {fence.first + 1} "{ROOT / path}"\n{fence.text}}}\n')
        table.append(f'    {{"{fence.place(path)}", {name}}},\n')
  parts.append('\nstatic const struct {\n  const char* place;\n  void (*run)();\n'
               '} snippets[] = {\n' + ''.join(table) + '};\n')
  return ''.join(parts) + TAIL


def main():
  output = Path(sys.argv[1])
  output.write_text(program(), encoding='ascii')


if __name__ == '__main__':
  main()
