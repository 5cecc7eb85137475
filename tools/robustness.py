#!/usr/bin/env python3
"""What fuzz.sh leaves to this script:

robustness.py record TARGET COVERAGE LOG...   keeps what the runs did, in tests/fuzz/TARGET/last-run
robustness.py keep CORPUS FOUND               takes what was found into a corpus, the smallest files first
robustness.py page                            writes docs/robustness.md from what is kept
"""
import datetime
import json
import pathlib
import re
import shutil
import sys

FUZZ = pathlib.Path('tests/fuzz')
PAGE = pathlib.Path('docs/robustness.md')
# Of a corpus, seeds and what was found together: it is replayed with every test.
MAX_FILES = 60
MAX_BYTES = 300_000

INTRODUCTION = '''# Robustness

Made by `./fuzz.sh`; do not edit. What happens when the disk is full, a file is locked or the program is killed is in
[faults.md](faults.md).

Every parser of outside data and every store has a function that must hold for any bytes (`tests/fuzz/TARGET`): what is
refused is refused with a sentence, what is read can be saved and comes back, limits are kept. libFuzzer looks for bytes
for which that does not hold, under the address and undefined-behaviour sanitizers; `./test.sh` replays the corpora,
natively and under Wine.

    ./fuzz.sh                        # all targets, a million executions each
    ./fuzz.sh --runs 10000 pkcs12    # some
    ./fuzz.sh --keep                 # takes what was found into the corpora

## Runs

Edges and features are libFuzzer's count of what it reached in all of the program; lines are those of the files that the
target is about. SQLite and OpenSSL are Debian's, and not counted. Databases and files of the applications are in memory,
and keys are derived in few rounds.
'''

REST = '''
## Without a target of their own

| what | why |
|---|---|
| password hashes | only written, never read; what is written is checked by `users` |
| names of log files, their pattern | come from the system, and are only shown and compared (`FileSystem::getFiles`) |
| file of the key store's password | decrypted by Windows as a whole; any bytes of it are passwords to `key_store` |
| command line of `TConsole.exe` | belongs to who types it; `CommandLineTest` |
| paths as Windows takes them (`extendedPath`) | one call of Windows; `FileTreeTest` and `AtomicFileWindowsTest` under Wine |
'''


def record(target, coverage, logs):
    texts = [pathlib.Path(log).read_text(errors='replace') for log in logs]

    def numbers(pattern):
        return [[int(number) for number in re.findall(pattern, text)] for text in texts]

    counted = pathlib.Path(coverage)
    lines = json.loads(counted.read_text())['data'][0]['totals']['lines'] if counted.exists() else None
    values = {
        'date': datetime.datetime.now(datetime.timezone.utc).date().isoformat(),
        'executions': sum(each[-1] for each in numbers(r'stat::number_of_executed_units: *(\d+)')),
        'rate': sum(each[-1] for each in numbers(r'stat::average_exec_per_sec: *(\d+)')),
        'edges': max(each[-1] for each in numbers(r' cov: (\d+)')),
        'features': max(each[-1] for each in numbers(r' ft: (\d+)')),
        'lines': f"{lines['covered']} of {lines['count']}" if lines else 'not counted',
    }
    (FUZZ / target / 'last-run').write_text(''.join(f'{name} {value}\n' for name, value in values.items()))


def files(folder):
    return [file for file in pathlib.Path(folder).rglob('*') if file.is_file()]


def keep(corpus, found):
    kept = pathlib.Path(corpus) / 'found'
    shutil.rmtree(kept, ignore_errors=True)
    kept.mkdir()
    count, size = len(files(corpus)), sum(file.stat().st_size for file in files(corpus))
    for file in sorted(files(found), key=lambda file: file.stat().st_size):
        count, size = count + 1, size + file.stat().st_size
        if count > MAX_FILES or size > MAX_BYTES:
            break
        shutil.copy(file, kept)


def row(cells):
    return '| ' + ' | '.join(str(cell) for cell in cells) + ' |\n'


def page():
    text = INTRODUCTION + '\n'
    text += row(['target', 'what it reads', 'date', 'executions', 'a second', 'edges', 'features', 'lines', 'corpus'])
    text += row(['---', '---', '---'] + 6 * ['---:'])
    for about in sorted(FUZZ.glob('*/about.txt')):
        target = about.parent
        last = target / 'last-run'
        if not last.exists():
            continue
        run = dict(line.split(' ', 1) for line in last.read_text().splitlines())
        text += row([f'`{target.name}`', about.read_text().splitlines()[0], run['date']] +
                    [f'{int(run[name]):,}' for name in ('executions', 'rate', 'edges', 'features')] +
                    [run['lines'], f"{len(files(target / 'corpus'))} files"])
    text += '\n## Findings\n\n' + row(['target', 'what was found', 'repaired; shown by']) + row(3 * ['---'])
    for line in (FUZZ / 'findings.txt').read_text().splitlines():
        target, finding, repaired = line.split(' | ')
        text += row([f'`{target}`', finding, repaired])
    PAGE.write_text(text + REST)


if __name__ == '__main__':
    command, *arguments = sys.argv[1:]
    if command == 'record':
        record(arguments[0], arguments[1], arguments[2:])
    elif command == 'keep':
        keep(*arguments)
    else:
        page()
