#pragma once

#include "ApplicationFiles.h"

#include "brimlow/database/Connection.h"

#include <optional>

namespace Tessaro
{

// A file or folder that gets another name or place. The paths are relative to the folder of the applications.
struct Move
{
    Core::String from;
    Core::String to;
    // What the administrator is told when the system refuses, up to its reason: "The template … cannot be …".
    Core::String failure;
};

// Moves a file or folder together with a change of the records: either both happen or neither does, also when the
// program dies or the power fails at any moment.
//
// The transaction that changes the records writes a new id into the database, too. The same id, and the move, go into
// a small file beside the database; then the move is made, and then the transaction commits. Whoever finds that file
// later can tell what became of it: when the database has the id, the change was made; else the move is undone. All
// that happens under the right to write, so that nobody takes a change that is going on for one that was interrupted.
//
// Where a move begins or ends under a temporary name, what is left there is removed in the end.
class MoveJournal
{
  public:
    // files must outlive the object.
    MoveJournal(Database::DatabaseFile database, const ApplicationFiles& files);

    static void create(Database::Connection& connection);

    // Makes the move for good when the transaction of the connection commits. To be called last in it, and settle
    // after it. Throws Core::Exception when the system refuses, or a name is taken.
    void move(Database::Connection& connection, const Move& move) const;

    // Undoes or completes what an earlier change left. The connection is in a transaction with the right to write.
    // Throws Core::Exception when something cannot be undone.
    void settle(const Database::Connection& connection) const;
    // The same in a transaction of its own. Where that is not possible now, the next change does it, and reports it.
    void settleIfPossible() const noexcept;

  private:
    struct Pending;

    bool isPending() const;
    std::optional<Pending> read() const;

    Database::DatabaseFile m_database;
    Core::String m_path;
    const ApplicationFiles& m_files;
};

} // namespace Tessaro
