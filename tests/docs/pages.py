"""The pages of the documentation, taken apart.

How a page's fenced blocks are tested is said in docs/writing.md.
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

from markdown_it import MarkdownIt

ROOT = Path(__file__).resolve().parent.parent.parent


def all_pages():
  """Every page of the tree, by its path from the top."""
  pages = [*ROOT.glob('*.md'), *ROOT.glob('docs/**/*.md')]
  return sorted(str(page.relative_to(ROOT)) for page in pages)


@dataclass
class Fence:
  """A fenced block and the comment that stands right before it."""
  language: str
  text: str
  mark: str
  first: int  # the index of its first line within the page
  last: int   # the index behind its last line

  def place(self, page):
    return f'{page}:{self.first}'

  @property
  def is_program(self):
    return self.language == 'cpp' and 'int main()' in self.text

  @property
  def is_fragment(self):
    return self.language == 'cpp' and not self.is_program and not self.is_step

  @property
  def is_step(self):
    return self.mark.startswith('step: ')


@dataclass
class Page:
  path: str
  lines: list
  fences: list = field(default_factory=list)
  links: list = field(default_factory=list)
  anchors: set = field(default_factory=set)


def slug_of(heading):
  """The anchor that a heading gets."""
  return re.sub(r'[^\w\- ]', '', heading.lower()).replace(' ', '-')


def read_page(path):
  text = (ROOT / path).read_text(encoding='ascii')
  page = Page(path, text.split('\n'))
  tokens = MarkdownIt('commonmark').enable('table').parse(text)
  mark = ''
  for i, token in enumerate(tokens):
    if token.type == 'html_block':
      found = re.fullmatch(r'<!-- (.*) -->\s*', token.content)
      mark = found[1] if found else ''
      continue
    if token.type == 'fence':
      first, last = token.map
      page.fences.append(Fence(token.info.strip(), token.content, mark, first + 1, last - 1))
    elif token.type == 'heading_open':
      page.anchors.add(slug_of(plain_text(tokens[i + 1])))
    for inline in token.children or []:
      target = inline.attrGet('href') or inline.attrGet('src')
      if target:
        page.links.append(target)
    mark = ''
  return page


def plain_text(inline):
  return ''.join(child.content for child in inline.children)
