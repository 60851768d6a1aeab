"""Every relative link of every page leads to a path of the tree and, within a page, to
one of its headings; and every page can be reached from README.md."""

import os
import re
import sys

from pages import ROOT, all_pages, read_page


def main():
  pages = {path: read_page(path) for path in all_pages()}
  faults = []
  reached = {'README.md'}
  waiting = ['README.md']
  count = 0
  for path, page in pages.items():
    for link in page.links:
      if re.match(r'[a-z]+:', link):
        continue
      count += 1
      target, _, anchor = link.partition('#')
      target = os.path.normpath(os.path.join(os.path.dirname(path), target)) if target else path
      if target.startswith('..') or not (ROOT / target).exists():
        faults.append(f'{path} links to {link}, which is not there')
      elif anchor and (target not in pages or anchor not in pages[target].anchors):
        faults.append(f'{path} links to {link}, and there is no such heading')
  while waiting:
    path = waiting.pop()
    for link in pages[path].links:
      target = os.path.normpath(os.path.join(os.path.dirname(path), link.partition('#')[0]))
      if target in pages and target not in reached:
        reached.add(target)
        waiting.append(target)
  faults += [f'no link leads to {path}' for path in pages if path not in reached]
  if count < 10:
    faults.append(f'only {count} links were found')
  sys.exit('\n'.join(faults) or None)


main()
