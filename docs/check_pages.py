#!/usr/bin/env python3
"""Checks that the code on the pages is the code of compiled files, and that links lead somewhere.

usage: docs/check_pages.py [--update]

A block of code on a page follows a comment that names its source:

    <!-- from docs/snippets/Save.cpp: save -->

In the source, the region stands between two lines that end in [save]. Without a region the
whole file is meant. --update copies the code to the pages.
"""

import pathlib
import re
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Languages whose code must come from a file that is compiled or run.
COMPILED = ("cpp", "cmake")
# A block of code, with the comment before it if it has one.
BLOCK = re.compile(
    r"(?:<!-- from (?P<file>[^:\s]+)(?:: (?P<region>[^>]+?))? -->\n)?"
    r"^```(?P<language>\w*)\n(?P<code>.*?)^```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\((?!\w+:)([^)#\s]+)")
HEADERS = re.compile(r"set\(public_headers\n(.*?)\)", re.DOTALL)


def source_of(name, region):
    """The text of a file or of one of its regions, without the indentation that all lines have."""
    lines = (ROOT / name).read_text(encoding="utf-8").splitlines(keepends=True)
    if region:
        marks = [i for i, line in enumerate(lines) if line.rstrip().endswith(f"[{region}]")]
        if len(marks) != 2:
            raise ValueError(f"{name} does not have one region [{region}]")
        lines = lines[marks[0] + 1:marks[1]]
    return textwrap.dedent("".join(lines))


def problems_of(page, text):
    for block in BLOCK.finditer(text):
        where = f"{page}:{text.count(chr(10), 0, block.start()) + 1}"
        if block["file"]:
            if block["code"] != source_of(block["file"], block["region"]):
                yield f"{where}: not the code of {block['file']}"
        elif block["language"] in COMPILED:
            yield f"{where}: code from no compiled file"
    for link in LINK.finditer(BLOCK.sub("", text)):
        if not (ROOT / page).parent.joinpath(link[1]).exists():
            yield f"{page}: {link[1]} does not exist"


def missing_headers():
    """The public headers that the interface's table lacks, and other headers that it lists."""
    source = (ROOT / "dxfviewer/CMakeLists.txt").read_text(encoding="utf-8")
    public = set(HEADERS.search(source)[1].split())
    page = (ROOT / "docs/interface.md").read_text(encoding="utf-8")
    listed = set(re.findall(r"^\| `(\S+\.h)` \|", page, re.MULTILINE))
    for header in sorted(public ^ listed):
        where = "does not list" if header in public else "lists a header that is not public:"
        yield f"docs/interface.md {where} {header}"


def updated(text):
    def renew(block):
        if not block["file"]:
            return block[0]
        start = block.start("code") - block.start()
        end = block.end("code") - block.start()
        return block[0][:start] + source_of(block["file"], block["region"]) + block[0][end:]

    return BLOCK.sub(renew, text)


def main():
    pages = sorted({*ROOT.glob("*.md"), *ROOT.glob("docs/**/*.md")})
    status = 0
    for path in pages:
        if "--update" in sys.argv[1:]:
            path.write_text(updated(path.read_text(encoding="utf-8")), encoding="utf-8")
        for problem in problems_of(path.relative_to(ROOT), path.read_text(encoding="utf-8")):
            print(problem, file=sys.stderr)
            status = 1
    for problem in missing_headers():
        print(problem, file=sys.stderr)
        status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
