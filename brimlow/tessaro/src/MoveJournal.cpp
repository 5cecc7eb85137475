#include "MoveJournal.h"

#include "names.h"

#include "brimlow/database/DatabaseException.h"
#include "brimlow/database/RandomId.h"
#include "brimlow/database/Statement.h"
#include "brimlow/database/Transaction.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/StringFormatStream.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace Tessaro
{

using Core::String;
using Core::IO::FileTree;
using Database::Connection;
using Database::RandomId;
using Database::Statement;

namespace
{

// Beside the database, whose folder only administrators and the system may write to.
String journalBeside(const String& database)
{
    const std::size_t name = Core::IO::FileSystem::getFileName(database).length();
    return Core::IO::FileSystem::combinePath(database.view().substr(0, database.length() - name), L"Tessaro.moving");
}

String toHex(const RandomId& id)
{
    constexpr wchar_t digits[] = L"0123456789abcdef";
    std::wstring text;
    for (const unsigned char byte : id)
    {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

// In UTF-16 as it is in memory: names may hold what other forms cannot.
std::string toBytes(const String& text)
{
    return {reinterpret_cast<const char*>(text.c_str()), text.length() * sizeof(Core::Char)};
}

String fromBytes(const std::string& bytes)
{
    std::basic_string<Core::Char> units(bytes.size() / sizeof(Core::Char), 0);
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(Core::Char));
    return String(String::View(units));
}

bool isPlace(const String& relative)
{
    // Of an application, of what is in it, or of what is in one of its folders.
    constexpr std::size_t deepest = 3;
    const std::vector<String> names = relative.split(L"\\");
    return !names.empty() && names.size() <= deepest &&
           std::all_of(names.begin(), names.end(),
                       [](const String& name) { return isTemporaryName(name) || !nameRefusal(name); });
}

// Whether one is a folder that the other is in. Nothing can be moved there, and undoing it would fail for ever.
bool isOneInTheOther(const String& one, const String& other)
{
    const String first = nameKey(one) + L"\\";
    const String second = nameKey(other) + L"\\";
    return first != second && (first.startsWith(second) || second.startsWith(first));
}

String nameIn(const String& relative)
{
    return Core::IO::FileSystem::getFileName(relative);
}

String parentOf(const String& relative)
{
    const std::vector<String> names = relative.split(L"\\");
    String parent;
    for (std::size_t index = 0; index + 1 < names.size(); ++index)
    {
        parent = join(parent, names[index]);
    }
    return parent;
}

} // namespace

struct MoveJournal::Pending
{
    // As toHex gives it.
    String id;
    String from;
    String to;
};

MoveJournal::MoveJournal(Database::DatabaseFile database, const ApplicationFiles& files)
    : m_database(std::move(database)), m_path(journalBeside(m_database.path)), m_files(files)
{
}

void MoveJournal::create(Connection& connection)
{
    connection.execute("CREATE TABLE last_move (id BLOB NOT NULL);"
                       "INSERT INTO last_move VALUES (randomblob(16))");
}

void MoveJournal::move(Connection& connection, const Move& move) const
{
    Statement id(connection, "UPDATE last_move SET id = randomblob(16) RETURNING id");
    if (!id.step())
    {
        throw Database::DatabaseException(
            Core::format(L"The database \"{0}\" is damaged (last_move is empty). Please restore it from a backup.",
                         m_database.path));
    }
    const String text = toHex(id.getRandomId(0)) + L"\n" + move.from + L"\n" + move.to + L"\n";
    Core::IO::AtomicFile::write(m_path, toBytes(text));

    const Core::SystemError error = m_files.move(move.from, move.to);
    if (FileTree::isTaken(error))
    {
        throw Core::Exception(
            Core::format(L"There is already a file or folder \"{0}\", although it is not in the list. "
                         L"Please move it elsewhere first.",
                         m_files.pathOf(move.to)));
    }
    if (error)
    {
        throw Core::IOException(move.failure, error);
    }
}

void MoveJournal::settle(const Connection& connection) const
{
    if (!isPending())
    {
        return;
    }
    if (const std::optional<Pending> pending = read())
    {
        Statement id(connection, "SELECT id FROM last_move");
        const bool isMade = id.step() && toHex(id.getRandomId(0)) == pending->id;
        const Core::SystemError error = isMade ? 0 : m_files.move(pending->to, pending->from);
        // Not found: the move had not been made yet. Taken: neither had it, and something else is under the new name.
        if (error && !FileTree::isNotFound(error) && !FileTree::isTaken(error))
        {
            throw Core::IOException(
                Core::format(L"An interrupted change of \"{0}\" cannot be undone", m_files.pathOf(pending->to)), error);
        }
        const String& left = isMade ? pending->to : pending->from;
        if (isTemporaryName(nameIn(left)))
        {
            m_files.remove(left);
        }
    }
    m_files.system().remove(m_path);
}

void MoveJournal::settleIfPossible() const noexcept
{
    try
    {
        if (!isPending())
        {
            return;
        }
        Database::DatabaseFile database = m_database;
        // Whoever has the right to write now settles it, or has just left it for a moment.
        database.busyTimeout = std::chrono::milliseconds(0);
        if (std::optional<Connection> connection = Connection::openExisting(database))
        {
            const Database::Transaction transaction(*connection, Database::Transaction::Kind::write);
            settle(*connection);
        }
    }
    catch (...)
    {
        // The file stays, and with it the task.
    }
}

bool MoveJournal::isPending() const
{
    const FileTree::Kind kind = m_files.system().kind(m_path);
    return kind == FileTree::Kind::file || kind == FileTree::Kind::unknown;
}

// Nothing when it was not this program that wrote it: it must never move or remove anything elsewhere.
std::optional<MoveJournal::Pending> MoveJournal::read() const
{
    const std::vector<String> lines = fromBytes(Core::IO::AtomicFile::read(m_path)).split(L"\n");
    if (lines.size() != 4 || !lines[3].empty() || !isPlace(lines[1]) || !isPlace(lines[2]) ||
        isOneInTheOther(lines[1], lines[2]) || m_files.leadsElsewhere(parentOf(lines[1])) ||
        m_files.leadsElsewhere(parentOf(lines[2])))
    {
        return std::nullopt;
    }
    return Pending{lines[0], lines[1], lines[2]};
}

} // namespace Tessaro
