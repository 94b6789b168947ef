#!/usr/bin/env python3
"""Merges the sources of each folder into one, for the static analysis.

    scripts/merge_sources.py BUILD OUTPUT SOURCE...

Most of the analysis' time goes into Qt's headers, once for each source. BUILD holds the compile
commands of the sources. OUTPUT gets a source for each folder, and compile commands for these.

The sources are copied, not included: what an included file defines is a header to the analyser,
which passes over it. Names in unnamed namespaces must differ within a folder.
"""

import json
import pathlib
import re
import shlex
import sys

# What may differ between the commands of one folder.
MERGED_OPTIONS = ("-D", "-I")


def sources_of(compiled):
    """A unity build compiles files that include the sources."""
    included = re.findall(r'^#include "(/.+\.cpp)"$', compiled.read_text(), re.MULTILINE)
    return [compiled, *map(pathlib.Path, included)]


def commands_by_source(build):
    entries = json.loads((build / "compile_commands.json").read_text())
    commands = {}
    for entry in entries:
        for source in sources_of(pathlib.Path(entry["file"])):
            commands.setdefault(source, shlex.split(entry["command"]))
    return commands


def merged_command(commands, folder, merged):
    first = commands[0]
    options = first[: first.index("-o")]
    for command in commands[1:]:
        options += [word for word in command if word.startswith(MERGED_OPTIONS) and word not in options]
    # The compilers have warned already, of the sources one by one.
    return options + ["-w", "-iquote", str(folder), "-c", str(merged)]


def merge(folder, sources, commands, output):
    merged = output / ("_".join(folder.relative_to(pathlib.Path.cwd()).parts) + ".cpp")
    merged.write_text("".join(f'#line 1 "{source}"\n{source.read_text()}' for source in sources))
    arguments = merged_command([commands[source] for source in sources], folder, merged)
    return {"directory": str(output), "file": str(merged), "arguments": arguments}


def main(build, output, *names):
    output.mkdir(parents=True, exist_ok=True)
    folders = {}
    for name in names:
        source = pathlib.Path(name).resolve()
        folders.setdefault(source.parent, []).append(source)
    commands = commands_by_source(build)
    entries = [merge(folder, sources, commands, output) for folder, sources in folders.items()]
    (output / "compile_commands.json").write_text(json.dumps(entries, indent=1))


if __name__ == "__main__":
    main(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:3]), *sys.argv[3:])
