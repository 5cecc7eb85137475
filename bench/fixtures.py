"""What lies on the disk while Bench.exe measures, made outside Wine, where thousands of files take no time."""

import os
import shutil
import tempfile

ENTRY = '    <add key="{}" value="{}"/>\r\n'


class Fixtures:
    def __init__(self, prefix):
        drive = os.path.join(prefix, 'drive_c')
        self.maker = os.path.join(drive, 'ProgramData', 'Brimlow')
        # The folder C:\\bench lies in memory: a disk's own moods are not what is measured.
        self.folder = tempfile.mkdtemp(prefix='tessaro-bench-', dir='/dev/shm')
        link = os.path.join(drive, 'bench')
        if os.path.islink(link):
            os.remove(link)
        os.symlink(self.folder, link)

    def make(self, name, number):
        {'nothing': self.nothing, 'logs': self.logs, 'fonts': self.fonts}[name](number)

    def nothing(self, _):
        """No file of the server's at all."""
        shutil.rmtree(self.maker, ignore_errors=True)

    def logs(self, number):
        """A log folder that holds so many logs."""
        folder = os.path.join(self.folder, f'logs-{number}')
        os.makedirs(folder, exist_ok=True)
        missing = {f'tessaro-{index:06}.log' for index in range(number)}.difference(os.listdir(folder))
        for file in missing:
            os.close(os.open(os.path.join(folder, file), os.O_CREAT | os.O_WRONLY))
        self.configuration('TSvc.config', [('LogFolder', f'C:\\bench\\logs-{number}')])

    def fonts(self, number):
        """So many font mappings."""
        styles = ['', '-BOLD', '-ITALIC', '-BOLD-ITALIC']
        self.configuration(os.path.join('Common', 'Config', 'Fonts.config'),
                           [(f'MapFont:FAMILY{index:06}' + styles[index % 4] * (index != number // 2),
                             f'C:\\Windows\\Fonts\\family{index:06}.ttf') for index in range(number)])

    def configuration(self, name, entries):
        path = os.path.join(self.maker, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'w', encoding='utf-8', newline='') as file:
            file.write('<?xml version="1.0" encoding="utf-8"?>\r\n<configuration>\r\n  <appSettings>\r\n')
            file.writelines(ENTRY.format(key, value) for key, value in entries)
            file.write('  </appSettings>\r\n</configuration>\r\n')

    def remove(self):
        """Leaves the prefix small."""
        shutil.rmtree(self.folder, ignore_errors=True)
        shutil.rmtree(self.maker, ignore_errors=True)
