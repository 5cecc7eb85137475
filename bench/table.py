"""The figures of all measurements as tables in Markdown, one for each list."""

import itertools
import math
from dataclasses import dataclass, field

LARGEST_RATIO = 1.5
LARGEST_GROWTH = 1.1
LARGEST_ROW = 1024
LARGEST_LIBRARY = 6 << 20

HEAD = ('what', 'size', 'measured', 'floor', 'ratio', 'per row', 'growth', "floor's growth")


@dataclass
class Figure:
    title: str  # "list: what"
    size: int  # rows; 0 where there are none
    unit: str  # 'ns' or 'bytes'
    measured: list
    floor: list  # empty where there is none
    former: 'Figure' = field(default=None, repr=False)  # the same at the next smaller size

    @property
    def group(self):
        return self.title.partition(': ')[0]

    @property
    def what(self):
        return self.title.partition(': ')[2]

    @property
    def value(self):
        """The best of the runs: whatever else the machine does only makes them longer."""
        return min(self.measured)

    @property
    def lowest(self):
        return min(self.floor)

    @property
    def ratio(self):
        return self.value / self.lowest if self.floor else None

    def exponent(self, value):
        """How value grows with the size: 0 not at all, 1 as the size does."""
        if not self.former or not self.floor:
            return None
        return math.log(value(self) / value(self.former)) / math.log(self.size / self.former.size)

    @property
    def growth(self):
        return self.exponent(lambda figure: figure.value)

    @property
    def lowest_growth(self):
        return self.exponent(lambda figure: figure.lowest)

    @property
    def faults(self):
        """The columns in which it is beyond its aim."""
        if self.unit == 'bytes':
            largest = LARGEST_ROW * self.size if self.size else LARGEST_LIBRARY
            return ['measured'] if self.value > largest else []
        return [column for column, value, limit in
                (('ratio', self.ratio, LARGEST_RATIO), ('growth', self.growth, LARGEST_GROWTH))
                if value is not None and value > limit]


@dataclass
class Gap:
    """What is not measured at a size."""
    group: str
    size: int
    reason: str


def text(value, unit):
    steps = {'ns': [('s', 1e9), ('ms', 1e6), ('µs', 1e3), ('ns', 1)],
             'bytes': [('MiB', 1 << 20), ('KiB', 1 << 10), ('B', 1)]}[unit]
    name, step = next((each for each in steps if value >= each[1]), steps[-1])
    return f'{value / step:.3g} {name}' if value < 1000 * step else f'{value / step:.0f} {name}'


def row(figure):
    cells = {
        'what': figure.what,
        'size': f'{figure.size:,}' if figure.size else '',
        'measured': text(figure.value, figure.unit),
        'floor': text(figure.lowest, figure.unit) if figure.floor else '',
        'ratio': '' if figure.ratio is None else f'{figure.ratio:.2f}',
        'per row': text(figure.value / figure.size, figure.unit) if figure.size else '',
        'growth': '' if figure.growth is None else f'{figure.growth:.2f}',
        "floor's growth": '' if figure.lowest_growth is None else f'{figure.lowest_growth:.2f}',
    }
    for column in figure.faults:
        cells[column] += ' !'
    return tuple(cells[column] for column in HEAD)


def aligned(rows):
    """The lines of one table, in columns that can be read without a browser, too."""
    widths = [max(len(cells[column]) for cells in rows) for column in range(len(HEAD))]
    lines = ['| ' + ' | '.join(cell.ljust(width) if column == 0 else cell.rjust(width)
                               for column, (cell, width) in enumerate(zip(cells, widths))) + ' |' for cells in rows]
    rule = '|' + '|'.join('-' * (width + 2) if column == 0 else '-' * (width + 1) + ':'
                          for column, width in enumerate(widths)) + '|'
    return [lines[0], rule, *lines[1:]]


def tables(figures, gaps=()):
    """The lines of all tables, in the order of the figures' first appearance, sizes of one thing together."""
    order = list(dict.fromkeys(figure.title for figure in figures))
    figures = sorted(figures, key=lambda figure: (order.index(figure.title), figure.size))
    for former, figure in itertools.pairwise(figures):
        if former.title == figure.title and former.size:
            figure.former = former
    lines = []
    for group in dict.fromkeys(figure.group for figure in figures):
        lines += [f'## {group}', '', *aligned([HEAD] + [row(figure) for figure in figures if figure.group == group]), '']
        for gap in gaps:
            if gap.group == group:
                lines += [f'{gap.size:,}: {gap.reason}', '']
    return lines
