"""Runs what a page shows and compares it with what the page says comes out.

  check_page.py [--renew] PAGE SNIPPETS KYDATA

SNIPPETS is the program that extract_snippets.py wrote. With --renew the outputs in
the page are replaced by those that came out.
"""

import argparse
import difflib
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from pages import ROOT, read_page

SKIPPED = '...'  # a line that stands for any lines

# What a command may name, and the files one of which then has it; a path is there itself.
NAMED = (
    ('file', r'(?:^|[ $])((?:scripts|docs|tests)/[\w./-]+)', []),
    ('preset', r'--preset (\w+)', ['CMakePresets.json']),
    ('target', r'--target (\w+)', ['tests/*/CMakeLists.txt', 'tools/*/CMakeLists.txt']),
    ('target', r'build/dev/\S+/(\w+)', ['tests/*/CMakeLists.txt', 'tools/*/CMakeLists.txt']),
    ('test', r'-R (\w+)', ['tests/*/CMakeLists.txt', 'tests/**/*.h', 'tests/**/*_test.cpp']),
    ('test', r"--gtest_filter='\*(\w+)\*'", ['tests/**/*_test.cpp']),
)


def matches(shown, came):
  """Whether the lines that came are those shown."""
  pattern = ''.join('(?:.*\n)*?' if line == SKIPPED else re.escape(line + '\n') for line in shown)
  return re.fullmatch(pattern, ''.join(line + '\n' for line in came)) is not None


class Check:

  def __init__(self, page, snippets, kydata, scratch):
    self.page = page
    self.snippets = snippets
    self.kydata = kydata
    self.scratch = Path(scratch)
    self.faults = []
    self.written = {}  # files of the page that no command has named yet
    self.renewed = []  # (first line, last line, new lines)
    (self.scratch / 'bin').mkdir()
    (self.scratch / 'bin' / 'kydata').symlink_to(Path(kydata).resolve())
    self.work = self.scratch / 'work'
    self.work.mkdir()
    for name in ('examples', 'docs', 'scripts', 'tests'):
      (self.work / name).symlink_to(ROOT / name)
    self.status = 0

  def fault(self, fence, what):
    self.faults.append(f'{fence.place(self.page.path)}: {what}')

  def run(self):
    fences = iter(self.page.fences)
    for fence in fences:
      if fence.is_step:
        pass  # walk_contributing.py carries it out
      elif fence.is_program or fence.is_fragment:
        following = self.output_behind(fence)
        if following:
          next(fences)
        self.check_cpp(fence, following)
      elif fence.mark.startswith('not run: '):
        self.check_names(fence)
      elif fence.mark == 'picture':
        if fence.language:
          self.fault(fence, 'a picture has no language')
      elif fence.mark.startswith('file: '):
        self.write(fence, fence.mark[len('file: '):])
      elif fence.mark.startswith('quotes: '):
        self.check_quote(fence, fence.mark[len('quotes: '):])
      elif fence.language == 'console':
        self.check_console(fence)
      else:
        self.fault(fence, 'nothing tests this block')
    for name, fence in self.written.items():
      self.fault(fence, f'no command reads {name}')

  def output_behind(self, fence):
    at = self.page.fences.index(fence) + 1
    if at < len(self.page.fences) and self.page.fences[at].language in ('', 'output'):
      following = self.page.fences[at]
      between = self.page.lines[fence.last + 1:following.first - 1]
      if not following.mark and not any(line.strip() for line in between):
        return following
    return None

  def check_cpp(self, fence, following):
    if fence.is_program:
      came = self.output_of_example(fence)
    else:
      came = self.call([self.snippets, fence.place(self.page.path)])
      if self.status != 0:
        self.fault(fence, f'ends with status {self.status}\n' + '\n'.join(came))
    shown = following.text.splitlines() if following else []
    self.compare(following or fence, shown, came, bool(following))

  def output_of_example(self, fence):
    """A whole program is one of the examples, whose output has a test of its own."""
    for example in ROOT.glob('examples/*.cpp'):
      text = example.read_text()
      if text[text.find('#include'):] == fence.text:
        return example.with_suffix('.output').read_text().splitlines()
    self.fault(fence, 'a whole program is to be one of examples/*.cpp')
    return []

  def write(self, fence, name):
    (self.work / name).write_text(fence.text)
    self.written[name] = fence

  def check_quote(self, fence, name):
    came = (ROOT / name).read_text().splitlines()
    shown = [line for line in fence.text.splitlines() if not line.startswith('$ ')]
    if not matches([SKIPPED, *shown, SKIPPED], came):
      self.fault(fence, f'is not in {name}')

  def check_names(self, fence):
    """What is not run at least names what is there."""
    for kind, pattern, files in NAMED:
      for name in re.findall(pattern, fence.text):
        found = any(re.search(rf'\b{name}', place.read_text())
                    for several in files for place in ROOT.glob(several))
        if not found and (files or not (ROOT / name).exists()):
          self.fault(fence, f'there is no {kind} {name}')

  def check_console(self, fence):
    shown = fence.text.splitlines()
    if not shown or not shown[0].startswith('$ '):
      self.fault(fence, 'does not begin with a command')
      return
    self.status = 0
    new = []
    parts = re.split(r'^\$ ', fence.text, flags=re.M)[1:]
    for part in parts:
      command, *output = part.splitlines()
      for name in list(self.written):
        if name in command:
          del self.written[name]
      came = self.call(['bash', '-c', f'(exit {self.status}); {command}'])
      new += ['$ ' + command, *(output if matches(output, came) else came)]
    self.compare(fence, shown, new, True)

  def call(self, command):
    environment = {k: v for k, v in os.environ.items() if k != 'NO_COLOR'}
    environment['PATH'] = f'{self.scratch / "bin"}:{environment["PATH"]}'
    environment['LC_ALL'] = 'C'
    done = subprocess.run(command, cwd=self.work, env=environment, text=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    self.status = done.returncode
    return [line.rstrip() for line in done.stdout.splitlines()]

  def compare(self, fence, shown, came, renewable):
    if matches(shown, came):
      return
    if renewable:
      self.renewed.append((fence.first, fence.last, came))
    diff = difflib.unified_diff(shown, came, 'the page', 'what came out', lineterm='')
    self.fault(fence, '\n'.join(['not what came out', *diff]))

  def renew(self):
    lines = self.page.lines
    for first, last, came in reversed(self.renewed):
      lines[first:last] = came
    (ROOT / self.page.path).write_text('\n'.join(lines), encoding='ascii')


def main():
  parser = argparse.ArgumentParser()
  parser.add_argument('--renew', action='store_true')
  parser.add_argument('page')
  parser.add_argument('snippets')
  parser.add_argument('kydata')
  arguments = parser.parse_args()
  with tempfile.TemporaryDirectory() as scratch:
    check = Check(read_page(arguments.page), str(Path(arguments.snippets).resolve()),
                  arguments.kydata, scratch)
    check.run()
  if arguments.renew:
    check.renew()
  sys.exit('\n'.join(check.faults) or None)


main()
