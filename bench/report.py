"""The report of a run: on which machine, how to read it, the tables, and why something is beyond its aim."""

import datetime
import os
import platform
import re
import subprocess

from table import LARGEST_GROWTH, LARGEST_LIBRARY, LARGEST_RATIO, LARGEST_ROW, Gap, tables

# What is beyond its aim for a known reason: a pattern of titles, the smallest size that the reason is good for, and the
# reason.
REASONS = [
    ('size of TMgmt.dll', 0, 'SQLite and OpenSSL are in it, so that it needs nothing but what Windows has.'),
    ('TMgmt.dll into memory', 0, 'the runtimes in it start and end, and the system libraries that only it uses come '
     'along; the floor only maps it. Once a console.'),
    ('^Start: load', 0, 'a constant: the nodes, and the files and databases that are looked for; the floor looks for '
     'nothing. Once a console.'),
    ('^Start: with', 0, 'the same constant; and each entry becomes a node (an application two), which the console '
     'may name at any time.'),
    (': read every text$', 0, 'the console names a row by a number, which is looked up among the nodes that are alive '
     'before it is followed: about 0.1 µs a text.'),
    (': leave$', 10000, 'a node is let go for each row, where the floor has texts only: below a microsecond a row.'),
    (': (show|refresh)', 10000, 'a node is made for each row, where the floor has texts only: a microsecond a row.'),
    ('^((Users|Users of an application|Templates of an application|Files of a resource folder): (edit|delete|revoke)|'
     '(Private Fonts|Hot Folders): add) one', 0, 'the node is selected and refreshed, so that the console has it list everything twice.'),
    (': (add|edit|rename|grant) one', 0, "the editor fills its controls and checks what is entered; the floor's does "
     'not. And the list is made anew, as by show.'),
    (': delete all$', 10000, 'the system deletes a file the slower the more there are in its folder, on both sides.'),
    (': delete one', 10000, 'the list is made anew, as by show.'),
]

GAPS = [
    Gap('Server Certificates', 10000, 'changes among 10,000 are not measured: each writes the whole key store, in '
        'proportion to its size.'),
    Gap('Server Certificates', 100000, 'a key store of so many is not measured: reading it takes the library and '
        'OpenSSL half a minute, by its growth.'),
]

TEXT = '''# How long it takes

Made by `./bench.sh` ({mode}) on {date}, of commit {commit}. Do not edit: run it again.

{machine}

The plug-in runs in the real console (without a window), and each figure stands beside its floor, measured in turn with
it: the least that the same work takes in the same console. That is a snap-in that reads the same data by the same
libraries, hands the rows over and shows the same dialogs, with nothing behind them. What is between the two is the
plug-in's own.

- **measured**, **floor**: the best of the runs, because whatever else the machine does only makes them longer.
- **growth**: from the size before to this one, as an exponent. 0: it takes as long as before; 1: it takes as much
  longer as there are more rows; 2: that squared.
- **!** is beyond its aim. Aims: {ratio} times the floor, growth {growth}, {row:,} bytes a row, a library of
  {library} MiB.

{tables}
'''


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.strip()


def commit():
    changed = output('git', 'status', '--porcelain', '--untracked-files=no')
    return output('git', 'rev-parse', '--short', 'HEAD') + (' with changes that were not committed' if changed else '')


def machine(load):
    with open('/proc/cpuinfo', encoding='utf-8') as file:
        model = re.search(r'^model name\s*: (.*)$', file.read(), re.MULTILINE)
    return (f'Machine: {os.cpu_count()} cores ({model[1] if model else platform.machine()}), Linux {platform.release()}, '
            f'{output("wine", "--version")}. Its files lie in memory. The load was {load:.1f} meanwhile, of which '
            '1 is the bench; beyond that the figures are too high, and ratios of short ones not to be relied on.')


def reason(figure):
    return next((reason for pattern, smallest, reason in REASONS
                 if re.search(pattern, figure.title) and figure.size >= smallest), 'no reason is known.')


def faults(figures):
    """What is beyond its aim, with the reason where it is known."""
    sizes = {}
    for figure in figures:
        if figure.faults:
            sizes.setdefault((figure.title, reason(figure)), []).append(f'{figure.size:,}' if figure.size else '')
    lines = [f'- {title}' + (f' ({", ".join(found)})' if all(found) else '') + f': {why}'
             for (title, why), found in sizes.items()]
    return ['## Beyond its aim', '', *(lines or ['Nothing.'])]


def report(figures, load, quick):
    lines = tables(figures, GAPS)
    return TEXT.format(mode='--quick, without the largest lists' if quick else 'everything',
                       date=datetime.date.today().isoformat(), commit=commit(), machine=machine(load),
                       ratio=LARGEST_RATIO, growth=LARGEST_GROWTH, row=LARGEST_ROW, library=LARGEST_LIBRARY >> 20,
                       tables='\n'.join(lines + faults(figures)))
