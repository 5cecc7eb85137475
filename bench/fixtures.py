"""What lies on the disk while Bench.exe measures, made outside Wine, where thousands of files take no time."""

import contextlib
import os
import shutil
import sqlite3
import tempfile

ENTRY = '    <add key="{}" value="{}"/>\r\n'

NAMED = {'name': '?2', 'name_key': 'upper(?2)'}


def numbered(name, number):
    return [f'{name}{index}' for index in range(number)]


def copy_first(database, table, changed, values):
    """Makes the table hold copies of its first row, one for each of the values. ?1 is the number of the copy, from 1 on,
    and becomes its id where it has one; ?2 is the value. changed says what else differs from the first row."""
    columns = [row[1] for row in database.execute(f'PRAGMA table_info({table})')]
    made = {'id': '?1'} | changed
    database.execute(f'CREATE TEMPORARY TABLE first AS SELECT * FROM {table} LIMIT 1')
    database.execute(f'DELETE FROM {table}')
    database.executemany(f'INSERT INTO {table} ({", ".join(columns)}) '
                         f'SELECT {", ".join(made.get(column, column) for column in columns)} FROM first '
                         'WHERE ?2 NOTNULL',
                         enumerate(values, 1))
    database.execute('DROP TABLE first')


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
        makers = {'nothing': self.nothing, 'settings': self.settings, 'logs': self.logs, 'fonts': self.fonts,
                  'hot-folders': self.hot_folders, 'touched': self.touched, 'applications': self.applications,
                  'templates': self.templates, 'folders': self.folders, 'files': self.files, 'access': self.access,
                  'users': self.users, 'keep': self.keep, 'kept': self.kept}
        makers[name](number)

    def nothing(self, _=0):
        """No file of the server's at all."""
        for name in os.listdir(self.maker):
            path = os.path.join(self.maker, name)
            shutil.rmtree(path) if os.path.isdir(path) else os.remove(path)

    def keep(self, _):
        """Keeps a copy of all files of the server's, which 'kept' puts back."""
        self.kept_files = os.path.join(self.memory, 'kept')
        shutil.rmtree(self.kept_files, ignore_errors=True)
        shutil.copytree(self.maker, self.kept_files)

    def kept(self, _):
        self.nothing()
        shutil.copytree(self.kept_files, self.maker, dirs_exist_ok=True)

    def settings(self, _):
        """The settings and the product's own entries."""
        self.configuration('TSvc.config', [('ServerAddress', '127.0.0.1'), ('ServerPort', '1099'),
                                           ('ServerBacklog', '100'), ('LogLevel', 'Normal')])
        self.configuration(os.path.join('Common', 'Config', 'System.config'),
                           [('ProductName', 'KV Tessaro 2010'), ('ProductVersion', '1.0'), ('BuildNumber', '1')])

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
        """So many hot folders. Only the folder of the one that is edited has to exist."""
        for path in (f'hot/{number // 2}', 'out'):
            os.makedirs(os.path.join(self.folder, path), exist_ok=True)
        with self.database('HotFolders.db') as database:
            copy_first(database, 'hot_folder', {'identity': 'randomblob(16)', 'folder': '?2', 'folder_key': 'upper(?2)'},
                       [f'C:\\bench\\hot\\{index}' for index in range(number)])

    def touched(self, _):
        """The hot folders as another program leaves them that has changed one."""
        with self.database('HotFolders.db') as database:
            database.execute('UPDATE hot_folder SET monitoring = monitoring WHERE id = 1')

    def users(self, number):
        """So many users."""
        with self.database('Tessaro.db') as database:
            copy_first(database, 'user', {'username': '?2'}, numbered('user', number))

    def applications(self, number):
        """So many applications, each with what the first one has."""
        with self.database('Tessaro.db') as database:
            copy_first(database, 'application', NAMED | {'identity': 'randomblob(16)'}, numbered('Application ', number))
            for table in ('template', 'resource_folder', 'access'):
                copy_first(database, table, {'application': '?1'}, range(number))
            copy_first(database, 'resource_file', {'folder': '?1'}, range(number))

    def templates(self, number):
        """So many templates in the one application."""
        self.entries('template', 'template', number, 'Application 0')

    def folders(self, number):
        """So many resource folders in the one application."""
        with self.database('Tessaro.db') as database:
            copy_first(database, 'resource_folder', NAMED | {'identity': 'randomblob(16)'}, numbered('folder', number))

    def files(self, number):
        """So many files in the one resource folder of the one application."""
        self.entries('resource_file', 'file', number, os.path.join('Application 0', 'folder0'))

    def entries(self, table, name, number, folder):
        """So many files of one folder in the database. Those that are changed lie there, too: one in the middle."""
        with self.database('Tessaro.db') as database:
            copy_first(database, table, NAMED, numbered(name, number))
        folder = os.path.join(self.maker, 'ServerTemplates', folder)
        for index in range(number // 2 - 2, number // 2 + 2):
            shutil.copy(os.path.join(folder, name + '0'), os.path.join(folder, f'{name}{index}'))

    def access(self, number):
        """So many users, all of whom may use the one application."""
        self.users(number)
        with self.database('Tessaro.db') as database:
            copy_first(database, 'access', {'position': '?1', 'user': '?2'}, numbered('user', number))

    @contextlib.contextmanager
    def database(self, name):
        """A database of the libraries; what is done to it takes effect together."""
        database = sqlite3.connect(os.path.join(self.maker, 'Data', name))
        with database:
            yield database
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
