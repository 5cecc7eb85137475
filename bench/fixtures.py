"""What lies on the disk while Bench.exe measures, made outside Wine, where thousands of files take no time."""

import contextlib
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
        makers = {'nothing': self.nothing, 'logs': self.logs, 'fonts': self.fonts, 'hot-folders': self.hot_folders,
                  'applications': self.applications, 'users': self.users, 'keep': self.keep, 'kept': self.kept}
        makers[name](number)

    def nothing(self, _):
        """No file of the server's at all."""
        # Who may use each of the applications: what the first one had in the beginning.
        self.access = None
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
        with self.database('HotFolders.db') as database:
            self.copy_first(database, 'hot_folder',
                            {'identity': 'randomblob(16)', 'folder': '?2', 'folder_key': 'upper(?2)'},
                            ((index + 1, f'C:\\bench\\hot\\{index}') for index in range(number)))

    def users(self, number):
        """So many users, copies of the first one."""
        with self.database('Tessaro.db') as database:
            self.copy_first(database, 'user', {'username': '?2'},
                            ((index + 1, f'user{index}') for index in range(number)))

    def applications(self, number):
        """So many applications, copies of the first one. The one in the middle has files, too."""
        with self.database('Tessaro.db') as database:
            self.copy_first(database, 'application',
                            {'identity': 'randomblob(16)', 'name': '?2', 'name_key': 'upper(?2)'},
                            ((index + 1, f'Application {index}') for index in range(number)))
            if self.access is None:
                self.access = database.execute('SELECT position, user FROM access WHERE application = 1').fetchall()
            database.execute('DELETE FROM access')
            database.executemany('INSERT INTO access (application, position, user) VALUES (?, ?, ?)',
                                 ((index + 1, *entry) for index in range(number) for entry in self.access))
            for table in ('template', 'resource_folder'):
                database.execute(f'DELETE FROM {table} WHERE application > 1')
                columns = [row[1] for row in database.execute(f'PRAGMA table_info({table})')]
                copied = ', '.join(column for column in columns if column not in ('id', 'identity', 'application'))
                database.executemany(f'INSERT INTO {table} (application, {copied}) '
                                     f'SELECT ?1, {copied} FROM {table} WHERE application = 1',
                                     ((index + 1,) for index in range(1, number)))
        root = os.path.join(self.maker, 'ServerTemplates')
        middle = os.path.join(root, f'Application {number // 2}')
        if number > 1:
            shutil.rmtree(middle, ignore_errors=True)
            shutil.copytree(os.path.join(root, 'Application 0'), middle)

    def keep(self, _):
        """Keeps a copy of the key store, which 'kept' puts back."""
        shutil.copytree(os.path.join(self.maker, 'KeyStore'), os.path.join(self.memory, 'kept'), dirs_exist_ok=True)

    def kept(self, _):
        shutil.copytree(os.path.join(self.memory, 'kept'), os.path.join(self.maker, 'KeyStore'), dirs_exist_ok=True)

    @contextlib.contextmanager
    def database(self, name):
        """A database of the libraries; what is done to it takes effect together."""
        database = sqlite3.connect(os.path.join(self.maker, 'Data', name))
        with database:
            yield database
        database.close()

    @staticmethod
    def copy_first(database, table, changed, values):
        """Makes the table hold copies of its first row, one for each of the values. The first of the values (?1) is
        the id, changed says what else differs."""
        database.execute(f'DELETE FROM {table} WHERE id > (SELECT min(id) FROM {table})')
        columns = [row[1] for row in database.execute(f'PRAGMA table_info({table})')]
        made = {'id': '?1'} | changed
        database.executemany(
            f'INSERT OR REPLACE INTO {table} ({", ".join(columns)}) '
            f'SELECT {", ".join(made.get(column, column) for column in columns)} FROM {table} LIMIT 1', values)

    def configuration(self, name, entries):
        path = os.path.join(self.maker, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'w', encoding='utf-8', newline='') as file:
            file.write('<?xml version="1.0" encoding="utf-8"?>\r\n<configuration>\r\n  <appSettings>\r\n')
            file.writelines(ENTRY.format(key, value) for key, value in entries)
            file.write('  </appSettings>\r\n</configuration>\r\n')

    def remove(self):
        shutil.rmtree(self.memory, ignore_errors=True)
