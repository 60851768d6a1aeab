"""Compares the names in a .natvis file with the sources: natvis.py FILE SOURCE...

Every type must be there as a class, every member and enumerator that an expression uses must
stand somewhere in the sources. No debugger of this system reads such a file, so this is what
keeps it from naming what is gone.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as xml

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"


def sources(folders):
    files = [file for folder in folders for file in pathlib.Path(folder).rglob("*")]
    return "\n".join(file.read_text() for file in files if file.suffix in (".h", ".cpp"))


def main(natvis, *folders):
    text = sources(folders)
    root = xml.parse(natvis).getroot()
    types = [
        element.get("Name")
        for kind in ("Type", "AlternativeType")
        for element in root.iter(NAMESPACE + kind)
    ]
    # Members of ours end with an underscore, those of the standard library begin with one.
    expressions = " ".join(
        part
        for element in root.iter()
        for part in [element.text or "", element.get("Condition", ""), element.get("Name", "")]
    )
    members = set(re.findall(r"\b(?!_)[a-zA-Z]\w*_\b", expressions))
    enumerators = set(re.findall(r"\bZOL::(k[A-Z]\w*)", expressions))
    assert len(types) > 20 and len(members) > 20 and len(enumerators) > 8, "the file is cut short"

    faults = []
    for name in types:
        plain = re.sub(r"<.*>$", "", name).replace("`anonymous-namespace'::", "")
        plain = plain.replace("ZOL::", "", 1)
        if not re.search(r"\b(?:class|struct)\s+%s\b" % re.escape(plain), text):
            faults.append("no such class: " + name)
        if "anonymous" in name and not re.search(
            r"^namespace \{$(?:(?!^namespace ZOL).)*?\bclass %s\b" % plain, text, re.M | re.S
        ):
            faults.append("not in an unnamed namespace: " + name)
    for member in sorted(members):
        if not re.search(r"\b%s(?:;|\{| =)" % member, text):
            faults.append("no such member: " + member)
    for enumerator in sorted(enumerators):
        if not re.search(r"\b%s\b" % enumerator, text):
            faults.append("no such constant: " + enumerator)
    print("%d types, %d members, %d constants" % (len(types), len(members), len(enumerators)))
    return "\n".join(faults)


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) or 0)
