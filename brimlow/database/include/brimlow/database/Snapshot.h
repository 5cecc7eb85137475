#pragma once

#include "brimlow/database/Connection.h"
#include "brimlow/database/Transaction.h"
#include "brimlow/database/contentMark.h"

#include <memory>
#include <mutex>
#include <utility>

namespace Database
{

// The content of a database as this process last saw it, read again only when the database has changed. Content is a
// value, copied where somebody still holds the former state. One object serves the whole process, from any thread.
template <class Content>
class Snapshot
{
  public:
    using Pointer = std::shared_ptr<const Content>;
    using Load = Content (*)(const Connection& connection);

    explicit Snapshot(Load load) : m_load(load) {}

    // The content of the file now; a default-constructed one when there is no file.
    Pointer get(const DatabaseFile& file)
    {
        const std::lock_guard lock(m_mutex);
        std::optional<Connection> connection = Connection::openExisting(file);
        if (!connection)
        {
            return std::make_shared<Content>();
        }
        const Transaction transaction(*connection, Transaction::Kind::read);
        update(*connection);
        return m_content;
    }

    // Changes the database and what is in memory: write(connection) does the one, in a transaction of its own, and
    // apply(content) then the same to the content in memory, at a cost that depends only on the change.
    // held is the caller's own content, and becomes the new one: always another object than before, so that an object
    // stands for one state. When write throws, or the database cannot be used, everything is what it was.
    template <class Write, class Apply>
    void change(const DatabaseFile& file, Pointer& held, Write write, Apply apply)
    {
        const std::lock_guard lock(m_mutex);
        Connection connection = Connection::openOrCreate(file);
        Transaction transaction(connection, Transaction::Kind::write);
        update(connection);
        write(connection);
        const std::optional<RandomId> mark = readContentMark(connection);
        const long ownReferences = held == m_content ? 2 : 1;
        const bool isShared = m_content.use_count() > ownReferences;
        const auto content = isShared ? std::make_shared<Content>(*m_content) : std::make_shared<Content>();
        transaction.commit();

        if (!isShared)
        {
            *content = std::move(*m_content);
        }
        held = content;
        m_content = content;
        // Should this fail, the former mark, which is that of no content any more, makes the next look read anew.
        apply(*content);
        m_mark = mark;
    }

  private:
    // Reads the content anew unless it is that of the database.
    void update(const Connection& connection)
    {
        const std::optional<RandomId> mark = readContentMark(connection);
        if (!mark || mark != m_mark)
        {
            m_content = std::make_shared<Content>(m_load(connection));
            m_mark = mark;
        }
    }

    std::mutex m_mutex;
    Load m_load;
    // What m_content was read from; none when it must be read anew.
    std::optional<RandomId> m_mark;
    std::shared_ptr<Content> m_content;
};

} // namespace Database
