#pragma once

#include "brimlow/system/String.h"

#include <string>
#include <string_view>

namespace Core::IO
{

// A file that is written from its beginning. What is written is collected and takes the file's place in one step when
// it is flushed, as AtomicFile::write does it: whatever happens before, a former file stays whole.
class FileStream
{
  public:
    // Does not touch the file yet. Throws IOException when the path is empty.
    explicit FileStream(String path);

    // Appends these bytes to what the next flush puts into the file.
    void write(std::string_view bytes) { m_content.append(bytes); }

    // Replaces or makes the file, with all that was written so far; the stream can go on. Throws IOException, which
    // names the file, when it cannot be written.
    void flush();

  private:
    String m_path;
    std::string m_content;
};

} // namespace Core::IO
