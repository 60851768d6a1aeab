"""Misuse of ref.h does not compile.

Each case is a statement that is right and one that is wrong. Both are compiled, the
right ones of all cases at once; the wrong one has to be refused for the reason that the
case gives, in the words of either compiler. Called with the compiler and the folder of
the public headers.
"""

import concurrent.futures
import os
import re
import subprocess
import sys
import tempfile
from typing import NamedTuple


class Case(NamedTuple):
    what: str
    right: str
    wrong: str
    because: str


CASES = [
    Case("a Ref from a raw pointer",
         "ZOL::Ref<ZOL::IZolString> ref = ZOL::adopt(createZolString());",
         "ZOL::Ref<ZOL::IZolString> ref = createZolString();",
         r"conversion from 'ZOL::IZolString\*' to non-scalar|no viable conversion"),
    Case("a Ref constructed from a raw pointer",
         "ZOL::Ref<ZOL::IZolString> ref(ZOL::share(raw));",
         "ZOL::Ref<ZOL::IZolString> ref(raw);",
         r"is private|private constructor"),
    Case("a raw pointer assigned to a Ref",
         "text = ZOL::share(raw);",
         "text = raw;",
         r"no match for 'operator='|no viable overloaded '='"),
    Case("a raw pointer from a Ref",
         "ZOL::IZolString* lent = text.get();",
         "ZOL::IZolString* lent = text;",
         r"cannot convert 'ZOL::Ref<ZOL::IZolString>'|no viable conversion"),
    Case("a Ref handed to an operation",
         "objects->add(text.get());",
         "objects->add(text);",
         r"cannot convert 'ZOL::Ref<|no viable conversion"),
    Case("delete of a Ref",
         "text.reset();",
         "delete text;",
         r"expected pointer|cannot delete expression of type"),
    Case("delete of what a Ref holds",
         "text.give()->release();",
         "delete text.give();",
         r"is protected|protected destructor"),
    Case("a reference given away to nobody",
         "text.give()->release();",
         "text.give();",
         r"nodiscard"),
    Case("a maker's result thrown away",
         "text = ZOL::make<ZOL::IZolString>();",
         "ZOL::make<ZOL::IZolString>();",
         r"nodiscard"),
    Case("adopting a const object",
         "auto ref = ZOL::adopt(raw);",
         "auto ref = ZOL::adopt(static_cast<const ZOL::IZolString*>(raw));",
         r"a Ref holds no const object"),
    Case("adopting what does not count",
         "auto ref = ZOL::make<ZOL::IZolTextInfo>().as<ZOL::IZolTextInfoInternal>();",
         "auto ref = ZOL::adopt(static_cast<ZOL::IZolTextInfoInternal*>(nullptr));",
         r"a Ref holds counted objects"),
    Case("a Ref used as a number",
         "bool some = static_cast<bool>(text);",
         "bool some = text;",
         r"cannot convert 'ZOL::Ref<|no viable conversion"),
    Case("comparing a Ref with a raw pointer",
         "bool same = text.get() == raw;",
         "bool same = text == raw;",
         r"no match for 'operator=='|invalid operands to binary expression"),
    Case("comparing unrelated interfaces",
         "bool same = text == ZOL::Ref<ZOL::IDmBaseObj>();",
         "bool same = text == numbers;",
         r"no match for 'operator=='|invalid operands to binary expression"),
    Case("a base turned into what derives from it",
         "auto ref = root.as<ZOL::IZolString>();",
         "ZOL::Ref<ZOL::IZolString> ref = root;",
         r"conversion from '(ZOL::)?Ref<.*' to non-scalar|no viable conversion"),
    Case("as<> of what is no interface",
         "auto ref = text.as<ZOL::IDmBaseObj>();",
         "auto ref = text.as<ZOL::ZolValue>();",
         r"as<> takes an interface"),
    Case("as<> of the class that a name is inherited by",
         "auto ref = text.as<ZOL::IZolPChar>();",
         "struct Own final : ZOL::IZolPChar {\n"
         "  int addRef() override; int release() override; int refCount() override;\n"
         "  ZOL::IReleaseHook* releaseHook() override;\n"
         "  void setReleaseHook(ZOL::IReleaseHook*) override;\n"
         "  void* queryInterface(const char*) override;\n"
         "  int setData(const char*, int) override; const char* data() override;\n"
         "  int size() override;\n"
         "};\n"
         "auto ref = text.as<Own>();",
         r"as<> takes an interface"),
    Case("a walk over a raw temporary",
         "for (int n : ZOL::each(ZOL::adopt(createZOLIntList()))) (void)n;",
         "for (int n : ZOL::each(createZOLIntList())) (void)n;",
         r"deleted function"),
    Case("a walk over what is no list",
         "for (int n : ZOL::each(numbers)) (void)n;",
         "for (int n : ZOL::each(text)) (void)n;",
         r"each\(\) walks a list"),
    Case("values of a raw temporary",
         "auto view = ZOL::values(ZOL::adopt(createZOLIntList()));",
         "auto view = ZOL::values(createZOLIntList());",
         r"deleted function"),
    Case("values of a list of objects",
         "auto walk = ZOL::each(objects);",
         "auto view = ZOL::values(objects);",
         r"values\(\) reads lists of plain values"),
    Case("values of a list of texts",
         "auto walk = ZOL::each(ZOL::make<ZOL::ZOLPCharList>());",
         "auto view = ZOL::values(ZOL::make<ZOL::ZOLPCharList>());",
         r"values\(\) reads lists of plain values"),
    Case("values of a list of owned memory",
         "auto view = ZOL::values(ZOL::make<ZOL::ZOLVoidPtrList>());",
         "auto view = ZOL::values(ZOL::make<ZOL::ZOLAutoVoidPtrList>());",
         r"values\(\) reads lists of plain values"),
    Case("values of what is no list",
         "auto view = ZOL::values(numbers);",
         "auto view = ZOL::values(text);",
         r"values\(\) reads a list"),
    Case("values written to",
         "int first = ZOL::values(numbers)[0];",
         "ZOL::values(numbers)[0] = 1;",
         r"assignment of read-only|cannot assign to return value"),
    Case("making what no factory makes",
         "auto list = ZOL::make<ZOL::IGpuInfoList>();",
         "auto gpu = ZOL::make<ZOL::IGpuInfo>();",
         r"no factory makes this interface"),
    Case("making what several factories make",
         "auto media = ZOL::makeEmptyMediaData();",
         "auto media = ZOL::make<ZOL::IZolMediaData>();",
         r"several factories make this interface"),
    Case("making without the factory's arguments",
         'auto scripts = ZOL::make<ZOL::IZolCutScripts>("[]");',
         "auto scripts = ZOL::make<ZOL::IZolCutScripts>();",
         r"no match for call|no matching function for call"),
]

PRELUDE = "#include <KyDataStructure/ref.h>\n"

FRAME = """
void useNUMBER(ZOL::IZolString* raw, ZOL::Ref<ZOL::IZolString> text, ZOL::Ref<ZOL::IDmBaseObj> root,
         ZOL::Ref<ZOL::ZOLIntList> numbers,
         ZOL::Ref<ZOL::ZOLBaseObjectList> objects) {
  STATEMENT
}
"""


class Compiler:
    """Compiles statements behind a header that is compiled once."""

    def __init__(self, compiler, include, work):
        self.command = [compiler, "-std=c++17", "-I" + include, "-Wall", "-Werror", "-Wno-unused",
                        "-Wunused-result"]
        self.prelude = os.path.join(work, "prelude.h")
        with open(self.prelude, "w", encoding="ascii") as file:
            file.write(PRELUDE)
        suffix = ".pch" if "clang" in os.path.basename(compiler) else ".gch"
        subprocess.run(self.command + ["-x", "c++-header", self.prelude, "-o",
                                       self.prelude + suffix], check=True)

    def errors(self, statements):
        """What the compiler says against the statements; None when it takes them."""
        source = "".join(FRAME.replace("NUMBER", str(number)).replace("STATEMENT", statement)
                         for number, statement in enumerate(statements))
        done = subprocess.run(
            self.command + ["-include", self.prelude, "-fsyntax-only", "-x", "c++", "-"],
            input=source, capture_output=True, text=True, env={**os.environ, "LC_ALL": "C"},
            check=False)
        return done.stderr if done.returncode else None

    def fault(self, case):
        """What is wrong with the wrong statement of a case, or None."""
        said = self.errors([case.wrong])
        if said is None:
            return f"compiles: {case.wrong}"
        if not re.search(case.because, said):
            return f"refused for another reason than '{case.because}':\n{said}"
        return None


def main():
    with tempfile.TemporaryDirectory() as work:
        compiler = Compiler(sys.argv[1], sys.argv[2], work)
        with concurrent.futures.ThreadPoolExecutor(max_workers=2) as pool:
            right = pool.submit(compiler.errors, [case.right for case in CASES])
            faults = list(pool.map(compiler.fault, CASES))
    for case, fault in zip(CASES, faults):
        print(f"{'WRONG' if fault else 'refused'}: {case.what}")
        if fault:
            print(fault)
    if right.result() is not None:
        print(f"WRONG: a statement that is right does not compile\n{right.result()}")
    return 1 if any(faults) or right.result() is not None else 0


if __name__ == "__main__":
    sys.exit(main())
