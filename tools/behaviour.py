#!/usr/bin/env python3
"""Makes docs/behaviour.md: every node, command, dialog, setting, text and deliberate oddity of the product with the
tests that prove it.

Usage: behaviour.py          writes the table
       behaviour.py --check  fails when a behaviour has no test, or when the table is not the one that would be written

The behaviours come from the product: node classes and their columns, menus, dialogs and string tables of the resource
scripts, settings, exports, every wide text of two words or more, and comments that end in "Kept as is: <what>.".

The proof comes from the tests: from what a test and the functions, constants and set-ups that it uses have in them. A
text is proven to the letter, a control of a dialog by its number, its kind and its text together. What has no text of
its own (an oddity, what a node does on Delete) is proven by a test with "// Proves: <the behaviour>." above it.
"""
import difflib
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent))
from product_behaviour import KINDS, BRANCHES, behaviours_of  # noqa: E402
from test_proofs import Proofs  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLE = ROOT / "docs" / "behaviour.md"
HEAD = """# What it does, and what proves it

Made by `tools/behaviour.py` from the sources and the tests; `./test.sh` fails when it is stale or when a behaviour has no
test. At most three tests are named for each, those that are most about it first. In a text, `…` stands for what is known
only at run time.
"""


def shown(text):
    return text.replace("\0", "…").replace("\n", "↵").replace("|", "\\|").replace("<", "&lt;")


def table(proven):
    lines = [HEAD]
    for branch in BRANCHES:
        lines.append(f"## {branch}\n")
        for kind in KINDS:
            rows = [(behaviour, tests) for behaviour, tests in proven
                    if behaviour.branch == branch and behaviour.kind == kind]
            if rows:
                lines += [f"### {kind}\n", "| behaviour | proof |", "|---|---|"]
                lines += [f"| {shown(behaviour.name)} | {', '.join(f'`{test.name}`' for test in tests)} |"
                          for behaviour, tests in rows]
                lines.append("")
    return "\n".join(lines)


def main():
    behaviours, faults = behaviours_of(ROOT)
    proofs = Proofs(ROOT / "tests")
    faults += proofs.faults + proofs.unknown_markers(behaviours)
    proven = [(behaviour, proofs.of(behaviour)) for behaviour in behaviours]
    proven = [(behaviour, proofs.best(tests, behaviour)) for behaviour, tests in proven]
    faults += [f"{behaviour.where}: no test proves: {behaviour.kind}, {shown(behaviour.name)}. {behaviour.advice}"
               for behaviour, tests in proven if not tests]
    made = table(proven)
    if "--check" in sys.argv[1:]:
        current = TABLE.read_text(encoding="utf-8") if TABLE.exists() else ""
        if current != made:
            faults.append("docs/behaviour.md is stale. Run tools/behaviour.py and commit it.")
            faults += list(difflib.unified_diff(current.splitlines(), made.splitlines(), "committed", "now", "", "", 0,
                                                ""))[:20]
    else:
        TABLE.write_text(made, encoding="utf-8")
    print("\n".join(faults) or f"{len(behaviours)} behaviours, each with a test")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
