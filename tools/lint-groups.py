#!/usr/bin/env python3
"""lint-groups.py PRESET: prints a file for each folder that clang-tidy is to look at, largest folder first. The file,
below out/lint, includes the folder's sources; beside it lies the compile_commands.json that tells how it is compiled.
A folder that is built natively is not looked at again as Windows sees it, and of the tests only the native ones are.
"""
import collections
import json
import os
import sys


def commands(preset):
    """The command that compiles each of our sources, by its path."""
    found = {}
    for entry in json.load(open(f"out/{preset}/compile_commands.json")):
        command = entry["command"].split(" -o ")[0]
        if entry["file"].startswith(os.path.abspath("out") + os.sep):
            # Tests that the build compiles together.
            sources = [line.split('"')[1] for line in open(entry["file"]) if line.startswith("#include")]
        else:
            sources = [entry["file"]]
        for source in map(os.path.relpath, sources):
            if source.endswith(".cpp") and not source.startswith(("..", "out" + os.sep)):
                found[source] = command
    return found


def write_if_new(path, content):
    if not os.path.exists(path) or open(path).read() != content:
        open(path, "w").write(content)


preset = sys.argv[1]
found = commands(preset)
if preset != "native":
    native = commands("native")
    found = {source: found[source] for source in found if source not in native and not source.startswith("tests/")}

folders = collections.defaultdict(list)
for source in sorted(found):
    folders[os.path.dirname(source)].append(source)

place = os.path.abspath(f"out/lint/{preset}")
os.makedirs(place, exist_ok=True)
entries = []
groups = []
for folder, sources in sorted(folders.items(), key=lambda item: -len(item[1])):
    group = os.path.join(place, folder.replace("/", "-") + ".cpp")
    write_if_new(group, "".join(
        f'#include "{os.path.abspath(source)}" // NOLINT(bugprone-suspicious-include)\n' for source in sources))
    # What single sources get beyond the others (a corpus' place) makes the longest command.
    command = max((found[source] for source in sources), key=len)
    entries.append({"directory": os.path.abspath(f"out/{preset}"), "file": group, "command": f"{command} -Wno-unknown-warning-option -c {group}"})
    groups.append(group)
write_if_new(os.path.join(place, "compile_commands.json"), json.dumps(entries, indent=1))
print("\n".join(groups))
