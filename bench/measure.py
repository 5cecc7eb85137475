#!/usr/bin/env python3
"""measure.py FOLDER RESULT [--quick]: runs the Bench.exe in that build folder in the Wine prefix of the environment,
makes what it asks for, and writes the report to standard output and to the file RESULT."""

import os
import statistics
import subprocess
import sys

from fixtures import Fixtures
from report import report
from table import Figure

# Subjects of Bench.exe and their sizes. Each is a process of its own, so that none finds another's memory.
SIZES = [100, 1000, 10000, 100000]
SUBJECTS = {
    'loading': [0],
    'loading-log-files': SIZES,
    'loading-private-fonts': SIZES,
    'loading-applications': SIZES,
    'everything': [0],
    'settings': [0],
    'private-fonts': SIZES,
    'log-files': SIZES,
    'hot-folders': SIZES,
    'applications': SIZES,
    'templates': SIZES,
    'resource-folders': SIZES,
    'resource-files': SIZES,
    'access-list': SIZES,
    'users': SIZES,
    'users-of-applications': [10, 100, 1000],
    'certificates': [100, 1000, 10000],
}
MILLISECONDS = 300  # for each comparison
QUICK_LARGEST = 10000
QUICK_MILLISECONDS = 200


def run(bench, subject, size, milliseconds, fixtures):
    """The figures that Bench.exe gives for one subject and size."""
    figures = []
    command = ['wine', bench, subject, str(size), str(milliseconds)]
    with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as process:
        for line in process.stdout:
            kind, *fields = line.rstrip('\r\n').split('\t')
            if kind == 'fixture':
                fixtures.make(fields[0], int(fields[1]))
                process.stdin.write('\n')
                process.stdin.flush()
            elif kind == 'figure':
                what, rows, unit, measured, floor = fields
                figures.append(Figure(what, int(rows), unit, [int(each) for each in measured.split(',')],
                                      [int(each) for each in floor.split(',')]))
            elif kind:
                print(line.rstrip(), file=sys.stderr)
    if process.returncode != 0:
        raise SystemExit(f'Bench.exe {subject} {size} ended with {process.returncode}')
    return figures


def main(folder, result, quick):
    library = os.path.getsize(os.path.join(folder, 'TMgmt.dll'))
    figures = [Figure('Start: size of TMgmt.dll', 0, 'bytes', [library], [])]
    fixtures = Fixtures(os.environ['WINEPREFIX'])
    loads = []
    try:
        for subject, sizes in SUBJECTS.items():
            for size in sizes:
                if not quick or size <= QUICK_LARGEST:
                    print(f'  {subject} {size or ""}', file=sys.stderr)
                    figures += run(os.path.join(folder, 'Bench.exe'), subject, size,
                                   QUICK_MILLISECONDS if quick else MILLISECONDS, fixtures)
                    loads.append(os.getloadavg()[0])  # of the last minute
    finally:
        fixtures.remove()
    text = report(figures, statistics.mean(loads), quick)
    print(text, end='')
    with open(result, 'w', encoding='utf-8') as file:
        file.write(text)


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2], '--quick' in sys.argv[3:])
