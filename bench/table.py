"""The figures of all measurements as one table."""

import statistics
from dataclasses import dataclass

LARGEST_RATIO = 1.5
LARGEST_GROWTH = 1.2
BYTES_PER_ROW = 1024
LARGEST_LIBRARY = 6 << 20

HEAD = ('what', 'size', 'measured', 'spread', 'floor', 'ratio', 'per row', 'growth')


@dataclass
class Figure:
    what: str
    size: int  # rows; 0 where there are none
    unit: str  # 'ns' or 'bytes'
    measured: list
    floor: list  # empty where there is none

    @property
    def value(self):
        """The best of the runs: whatever else the machine does only makes them longer."""
        return min(self.measured)

    @property
    def ratio(self):
        return self.value / min(self.floor) if self.floor else None

    @property
    def per_row(self):
        return self.value / self.size if self.size else None

    @property
    def spread(self):
        """How far the middle one of the runs lies above the best."""
        return statistics.median(self.measured) / self.value - 1 if len(self.measured) > 1 else None


def text(value, unit):
    if value is None:
        return ''
    steps = {'ns': [('s', 1e9), ('ms', 1e6), ('µs', 1e3), ('ns', 1)],
             'bytes': [('MiB', 1 << 20), ('KiB', 1 << 10), ('B', 1)]}[unit]
    name, step = next((each for each in steps if value >= each[1]), steps[-1])
    return f'{value / step:.3g} {name}' if value < 1000 * step else f'{value / step:.0f} {name}'


def number(value, limit=None):
    if value is None:
        return ''
    return f'{value:.2f}' + ('!' if limit and value > limit else '')


def row(figure, smallest):
    listed = figure.size > 0
    per_row = text(figure.per_row, figure.unit)
    measured = text(figure.value, figure.unit)
    if figure.unit == 'bytes':
        if listed and figure.per_row > BYTES_PER_ROW:
            per_row += '!'
        if not listed and figure.value > LARGEST_LIBRARY:
            measured += '!'
    growth = figure.per_row / smallest.per_row if listed and smallest is not figure else None
    # The aim is for lists. A change is to cost the same among many rows as among few: growth tells.
    is_list = listed and figure.unit == 'ns' and not figure.what.endswith((' one', ' all'))
    ratio_limit = LARGEST_RATIO if is_list else None
    return (figure.what, f'{figure.size:,}' if listed else '', measured,
            '' if figure.spread is None else f'{figure.spread:.0%}',
            text(min(figure.floor), figure.unit) if figure.floor else '',
            number(figure.ratio, ratio_limit), per_row,
            number(growth, LARGEST_GROWTH if figure.unit == 'ns' else None))


def table(figures):
    """The lines of the table, in the order of the figures' first appearance, sizes of one thing together."""
    smallest = {}
    for figure in figures:
        if figure.size and (figure.what not in smallest or figure.size < smallest[figure.what].size):
            smallest[figure.what] = figure
    order = list(dict.fromkeys(figure.what for figure in figures))
    figures = sorted(figures, key=lambda figure: (order.index(figure.what), figure.size))
    rows = [HEAD] + [row(figure, smallest.get(figure.what)) for figure in figures]
    widths = [max(len(cells[column]) for cells in rows) for column in range(len(HEAD))]
    lines = ['  '.join(cell.ljust(width) if column == 0 else cell.rjust(width)
                       for column, (cell, width) in enumerate(zip(cells, widths))).rstrip() for cells in rows]
    lines.insert(1, '  '.join('-' * width for width in widths))
    return lines + [
        '',
        'The best of the runs; measured and floor were run in turn. spread: by how much the middle one of the runs was',
        'slower. growth: time per row, by that of the smallest size.',
        f'Aims: ratio {LARGEST_RATIO} for lists, growth {LARGEST_GROWTH}, {BYTES_PER_ROW} bytes a row, '
        f'library {LARGEST_LIBRARY >> 20} MiB; ! is beyond its aim.']
