#!/usr/bin/env bash
# Makes the seeds of the corpus with SampleData (the first argument) and the sqlite3 command. Small pages make small
# files, in which a changed byte matters more often.
set -euo pipefail
sample=$(realpath "$1")
cd "$(dirname "$0")/corpus"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

PROGRAMDATA=$work "$sample" --hot-folders 3
usual=$work/Brimlow/Data/HotFolders.db
rm -f ./*.db

# derive NAME SQL: the usual database, changed.
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
head -c 2000 usual.db >cut.db
head -c 100 usual.db >header.db
: >empty.db
echo 'no database' >text.db
chmod 644 ./*.db
