#pragma once

#include "brimlow/system/String.h"

#include <cstddef>
#include <exception>
#include <string>

namespace Core
{

// An error code of the system: GetLastError on Windows, errno elsewhere. 0 is success.
using SystemError = unsigned long;

// Base of everything that the libraries throw. The message is one plain sentence for the administrator that names the
// thing (file, key, folder, user) and the reason.
class Exception : public std::exception
{
  public:
    explicit Exception(String message);

    const String& getMessage() const noexcept { return m_message; }
    // The message in UTF-8.
    const char* what() const noexcept override { return m_what.c_str(); }

    // Records where in the program the exception arises; it is part of what logError writes.
    void initCodeLocation(const String& file, int line);
    const String& getFile() const noexcept { return m_file; }
    int getLine() const noexcept { return m_line; }

    // Writes the message and the code location to the Windows event log as an error of source "KV Tessaro" (to
    // standard error elsewhere). A log that cannot be written is passed over.
    void logError() const noexcept;

  private:
    String m_message;
    std::string m_what;
    String m_file;
    int m_line = 0;
};

// A reference that must be there is not.
class NullPointerException : public Exception
{
  public:
    NullPointerException();
};

// The program came to a place that it rules out.
class UnreacheableCodeException : public Exception
{
  public:
    UnreacheableCodeException();
};

// The system refused an operation on a file or folder.
class IOException : public Exception
{
  public:
    // The message becomes "<what failed>: <the system's text> (<code>)." 'what' names the file.
    IOException(const String& what, SystemError error);
    // For a refusal of our own, with the whole sentence; the error code is 0.
    explicit IOException(String message);

    SystemError getSystemError() const noexcept { return m_error; }

  private:
    SystemError m_error = 0;
};

class FileNotFoundException : public IOException
{
  public:
    explicit FileNotFoundException(const String& path);
};

// A text is not in the form that it must have.
class FormatException : public Exception
{
  public:
    explicit FormatException(String message);
};

// A file is not in the form that it must have. The message becomes
// "<path>, line <line>, column <column>: <reason>".
class FileFormatException : public FormatException
{
  public:
    // Line and column count from 1, the column in characters.
    FileFormatException(const String& path, std::size_t line, std::size_t column, const String& reason);

    std::size_t getTextLine() const noexcept { return m_textLine; }
    std::size_t getTextColumn() const noexcept { return m_textColumn; }

  private:
    std::size_t m_textLine;
    std::size_t m_textColumn;
};

// The system's own text for an error code, in one line and without the full stop; "error 1234" when it has none.
String describeSystemError(SystemError error);

} // namespace Core
