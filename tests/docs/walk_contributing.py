"""Carries out one of the examples of CONTRIBUTING.md on a copy of the tree, and runs it.

  walk_contributing.py EXAMPLE COMPILER OBJECTS

Only what the edits touch is compiled; everything else comes from OBJECTS, the directory
of the library's objects, whose paths are those of the sources below src.
"""

import difflib
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from extract_snippets import HEAD
from pages import ROOT, read_page


def run(command, **more):
  done = subprocess.run([str(word) for word in command], text=True, check=False,
                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **more)
  if done.returncode != 0:
    sys.exit(f'{" ".join(map(str, command))}\nends with status {done.returncode}\n{done.stdout}')
  return done.stdout


class Walk:

  def __init__(self, example, compiler, objects, tree):
    self.example = example
    self.compiler = compiler
    self.objects = Path(objects)
    self.tree = Path(tree)
    self.touched = set()  # paths below src
    self.fragment = None
    self.test = None
    self.printed = ''
    for part in ('include', 'src', 'abi', 'tests'):
      shutil.copytree(ROOT / part, self.tree / part)

  def walk(self):
    names_before = self.exported_names()
    for fence in read_page('CONTRIBUTING.md').fences:
      mark = re.fullmatch(r'step: (\w+), (\w+) ?(.*)', fence.mark)
      if mark and mark[1] == self.example:
        getattr(self, mark[2])(fence.text, mark[3])
    if not self.fragment:
      sys.exit(f'CONTRIBUTING.md has no example "{self.example}" that is run')
    built = self.build()
    self.look_for_new_names(self.exported_names() - names_before, built)

  # The kinds of steps.

  def edits(self, text, _):
    for part in re.split(r'^--- ', text, flags=re.M)[1:]:
      path, _, hunks = part.partition('\n')
      for hunk in re.split(r'^@@\n', hunks, flags=re.M):
        self.edit(path, hunk.splitlines())

  def edit(self, path, hunk):
    old = ''.join(line[1:] + '\n' for line in hunk if line[0] in ' -')
    new = ''.join(line[1:] + '\n' for line in hunk if line[0] in ' +')
    text = (self.tree / path).read_text()
    if text.count('\n' + old) != 1:
      sys.exit(f'{path} has {text.count(old)} places instead of one with\n{old}')
    self.put(path, text.replace('\n' + old, '\n' + new))

  def writes(self, text, path):
    self.put(path, text)

  def tests(self, text, path):
    self.put(path, text)
    self.test = path

  def runs(self, text, _):
    self.fragment = text

  def prints(self, text, _):
    self.printed = text

  def put(self, path, text):
    (self.tree / path).write_text(text)
    if path.startswith('src/') and not path.endswith('.txt'):
      self.touched.add(path[len('src/'):])

  # What comes of them.

  def exported_names(self):
    lines = (self.tree / 'abi' / 'exported_names.txt').read_text().splitlines()
    return {line for line in lines if line and not line.startswith('#')}

  def sources(self):
    """Those that the build would compile."""
    return re.findall(r'^  (\w+/\w+\.cpp)\b', (self.tree / 'src/CMakeLists.txt').read_text(), re.M)

  def includes_touched(self, path, seen):
    """Whether a file below src is touched, or one that it includes."""
    if path in self.touched:
      return True
    seen.add(path)
    included = re.findall(r'^#include "(.*)"', (self.tree / 'src' / path).read_text(), re.M)
    return any(self.includes_touched(other, seen) for other in included if other not in seen)

  def compile(self, source, *flags):
    target = self.tree / (source.replace('/', '_') + '.o')
    run([self.compiler, '-std=c++17', '-O0', '-Werror', '-Wall', '-Wextra',
         '-I', self.tree / 'include', '-I', self.tree / 'src', *flags, '-c', self.tree / source,
         '-o', target])
    return target

  def build(self):
    """Builds and runs; the objects that were compiled."""
    kept, stale = [], []
    for source in self.sources():
      if self.includes_touched(source, set()):
        stale.append('src/' + source)
      else:
        kept.append(self.objects / (source + '.o'))
    with ThreadPoolExecutor(2) as pool:
      compiled = list(pool.map(self.compile, stale))
    (self.tree / 'shown.cpp').write_text(f'{HEAD}\nint main() {{\n{self.fragment}}}\n')
    came = run([self.link('shown', [self.compile('shown.cpp'), *compiled, *kept])])
    if came != self.printed:
      sys.exit('\n'.join(difflib.unified_diff(self.printed.splitlines(), came.splitlines(),
                                              'the page', 'what came out', lineterm='')))
    if self.test:
      test = self.compile(self.test, '-I', self.tree / 'tests')
      run([self.link('test', [test, *compiled, *kept], '-lgtest_main', '-lgtest')])
    return compiled

  def link(self, name, objects, *libraries):
    target = self.tree / name
    run([self.compiler, *objects, *libraries, '-o', target])
    return target

  def look_for_new_names(self, names, built):
    defined = set(run(['nm', '--demangle', '--defined-only', '--format=just-symbols', *built])
                  .splitlines())
    if not names or not names <= defined:
      sys.exit(f'of the new names {sorted(names)} none or not all are in the new objects')


def main():
  with tempfile.TemporaryDirectory() as tree:
    Walk(*sys.argv[1:], tree).walk()


if __name__ == '__main__':
  main()
