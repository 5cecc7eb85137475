#!/usr/bin/env bash
# Makes the seeds of the corpus with SampleData (the first argument) and the sqlite3 command. Small pages make small
# files, in which a changed byte matters more often.
set -euo pipefail
sample=$(realpath "$1")
cd "$(dirname "$0")/corpus"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

PROGRAMDATA=$work "$sample" --hot-folders 3
rm -f ./*.db

# derive NAME SQL: the usual database, changed.
usual=$work/Brimlow/Data/HotFolders.db
derive() {
  cp "$usual" "$1.db"
  sqlite3 "$1.db" "PRAGMA page_size = 512; VACUUM; $2"
}

derive usual ''
derive overflow "UPDATE hot_folder SET base_url = hex(zeroblob(2000)); UPDATE action SET http_url = hex(zeroblob(500))"
derive free-pages "UPDATE hot_folder SET base_url = hex(zeroblob(2000)); DELETE FROM hot_folder WHERE id = 2"
derive other-types "UPDATE hot_folder SET page_index = 'text', output_format = 1e300, folder = x'00D8', base_url = 7"
derive orphans "INSERT INTO action VALUES (0, 0, 0, 1, '', ''), (99, 5, -1, 99, '', '')"
derive no-mark "DELETE FROM content"
derive no-keys "UPDATE hot_folder SET folder_key = id, identity = x''"
derive newer "PRAGMA user_version = 2"
derive older "PRAGMA user_version = 0"
derive wal "PRAGMA journal_mode = WAL"
derive no-table "DROP TABLE action"
derive trigger "CREATE TRIGGER spoil AFTER UPDATE ON hot_folder BEGIN DELETE FROM hot_folder; END"
{ echo 'PRAGMA page_size = 512;'; sqlite3 "$usual" .dump; echo 'PRAGMA user_version = 1;'; } | sqlite3 utf8.db

# The database of the applications and users.
rm -r "$work/Brimlow"
PROGRAMDATA=$work "$sample" ../../../../tools/sample-data/files
usual=$work/Brimlow/Data/Tessaro.db
derive tessaro ''
derive tessaro-names "UPDATE application SET name = '..' WHERE id = 2; UPDATE template SET name = '..\\x' WHERE id = 1;
  UPDATE resource_folder SET name = '' WHERE id = 1; UPDATE resource_file SET name = 'nul'"
derive tessaro-keys "UPDATE application SET name_key = id, identity = x''; UPDATE template SET name = 'same'"
derive tessaro-types "UPDATE application SET engine = 'text', name = 7; UPDATE access SET user = x'00D8', position = -1e300 WHERE position = 0;
  UPDATE user SET username = 7, enabled = 'x' WHERE id = 1; UPDATE guest SET enabled = 'x'"
derive tessaro-orphans "UPDATE template SET application = 99; UPDATE resource_file SET folder = -id;
  INSERT INTO access VALUES (99, 0, 'x')"
derive tessaro-no-move "DELETE FROM last_move; DELETE FROM content"
derive tessaro-trigger "CREATE TRIGGER spoil AFTER UPDATE ON application BEGIN DELETE FROM application; END"
derive tessaro-no-table "DROP TABLE resource_folder"

head -c 2000 usual.db >cut.db
head -c 100 usual.db >header.db
: >empty.db
echo 'no database' >text.db
chmod 644 ./*.db
