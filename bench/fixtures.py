"""What lies on the disk while Bench.exe measures, made outside Wine, where thousands of files take no time."""

import os
import shutil
import sqlite3
import tempfile

ENTRY = '    <add key="{}" value="{}"/>\r\n'


class Fixtures:
    def __init__(self, prefix):
        drive = os.path.join(prefix, 'drive_c')
        # Both folders lie in memory: a disk's own moods are not what is measured.
        self.memory = tempfile.mkdtemp(prefix='tessaro-bench-', dir='/dev/shm')
        self.folder = self.in_memory(os.path.join(drive, 'bench'))
        self.maker = self.in_memory(os.path.join(drive, 'ProgramData', 'Brimlow'))

    def in_memory(self, path):
        """A folder in memory to which path leads."""
        folder = os.path.join(self.memory, os.path.basename(path))
        os.mkdir(folder)
        if os.path.islink(path):
            os.remove(path)
        shutil.rmtree(path, ignore_errors=True)
        os.symlink(folder, path)
        return folder

    def make(self, name, number):
        makers = {'nothing': self.nothing, 'logs': self.logs, 'fonts': self.fonts, 'hot-folders': self.hot_folders}
        makers[name](number)

    def nothing(self, _):
        """No file of the server's at all."""
        for name in os.listdir(self.maker):
            path = os.path.join(self.maker, name)
            shutil.rmtree(path) if os.path.isdir(path) else os.remove(path)

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

    def hot_folders(self, number):
        """So many hot folders, copies of the first one that the library put into the database."""
        for index in range(number):
            os.makedirs(os.path.join(self.folder, 'hot', str(index)), exist_ok=True)
        os.makedirs(os.path.join(self.folder, 'out'), exist_ok=True)
        database = sqlite3.connect(os.path.join(self.maker, 'Data', 'HotFolders.db'))
        with database:
            database.execute('DELETE FROM hot_folder WHERE id > (SELECT min(id) FROM hot_folder)')
            columns = [row[1] for row in database.execute('PRAGMA table_info(hot_folder)')]
            made = {'id': '?1', 'identity': 'randomblob(16)', 'folder': '?2', 'folder_key': 'upper(?2)'}
            database.executemany(
                f'INSERT OR REPLACE INTO hot_folder ({", ".join(columns)}) '
                f'SELECT {", ".join(made.get(column, column) for column in columns)} FROM hot_folder LIMIT 1',
                ((index + 1, f'C:\\bench\\hot\\{index}') for index in range(number)))
        database.close()

    def configuration(self, name, entries):
        path = os.path.join(self.maker, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'w', encoding='utf-8', newline='') as file:
            file.write('<?xml version="1.0" encoding="utf-8"?>\r\n<configuration>\r\n  <appSettings>\r\n')
            file.writelines(ENTRY.format(key, value) for key, value in entries)
            file.write('  </appSettings>\r\n</configuration>\r\n')

    def remove(self):
        shutil.rmtree(self.memory, ignore_errors=True)
