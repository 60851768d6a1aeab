"""Makes the site of the documentation and looks at it: Doxygen finds no fault, no public
name is left out, and every link within it leads somewhere.

  check_site.py DOXYFILE
"""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

from pages import ROOT, all_pages


def make(doxyfile, directory):
  """The faults that Doxygen finds."""
  text = Path(doxyfile).read_text() + f'\nOUTPUT_DIRECTORY = "{directory}"\n'
  done = subprocess.run(['doxygen', '-'], input=text, text=True, check=False,
                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
  faults = done.stdout.splitlines()
  if done.returncode != 0 and not faults:
    faults.append(f'doxygen ends with status {done.returncode}')
  return faults


def public_names():
  """The exported names that a caller may use, and the classes of the headers."""
  names = set()
  for line in (ROOT / 'abi' / 'exported_names.txt').read_text().splitlines():
    if line and not line.startswith('#'):
      names.add(re.sub(r'\(.*', '', line).split('::')[-1])
  names -= {'InitByType', 'createAndCopyBuffer', 'releaseBuffer'}  # private in the header
  for header in ROOT.glob('include/KyDataStructure/*.h'):
    names |= set(re.findall(r'^(?:class|struct|union) (\w+)(?: :| \{|$)', header.read_text(), re.M))
  return names


def main():
  with tempfile.TemporaryDirectory() as directory:
    faults = make(sys.argv[1], directory)
    site = {page.name: page.read_text(errors='replace') for page in Path(directory).glob('*.html')}
    words = set()
    for name, text in site.items():
      if name.startswith(('class', 'struct', 'union', 'namespace')) or name.endswith('_8h.html'):
        words |= set(re.findall(r'operator=+|~?\w+', re.sub('<[^>]*>', '', text)))
    faults += [f'{name} is not in the site' for name in sorted(public_names() - words)]
    for name, text in site.items():
      if name.startswith('md_') and '**' in re.sub('<(div class="line"|code)>.*', '', text):
        faults.append(f'{name} of the site shows stars: bold words are to begin with a letter')
      for link in re.findall(r'href="([^"]+)"', text):
        target = link.partition('#')[0]
        if not re.match(r'[a-z]+:', link) and target and not (Path(directory) / target).exists():
          faults.append(f'{name} of the site links to {link}, which is not there')
    pages = [name for name in site if name.startswith('md_')]
    inside = [page for page in all_pages() if page not in ('README.md', 'docs/index.md')]
    if len(pages) != len(inside):
      faults.append(f'{len(pages)} pages of {len(inside)} are in the site')
  sys.exit('\n'.join(faults) or None)


main()
