#include "brimlow/system/Exception.h"

#include "ErrorLog.h"
#include "brimlow/system/StringFormatStream.h"

#include <utility>

namespace Core
{

Exception::Exception(String message) : m_message(std::move(message)), m_what(m_message.toUtf8()) {}

void Exception::initCodeLocation(const String& file, int line)
{
    m_file = file;
    m_line = line;
}

void Exception::logError() const noexcept
{
    try
    {
        if (m_file.empty())
        {
            writeErrorLog(m_message);
            return;
        }
        writeErrorLog(format(L"{0} ({1}, line {2})", m_message, m_file, m_line));
    }
    catch (...)
    {
        // No memory for the text: the error itself still reaches the caller.
    }
}

NullPointerException::NullPointerException() : Exception(L"An object that must be there is missing.") {}

UnreacheableCodeException::UnreacheableCodeException()
    : Exception(L"The program came to a place that it should never come to.")
{
}

IOException::IOException(const String& what, SystemError error)
    : Exception(what + L": " + describeSystemError(error) + L" (" + String(std::to_wstring(error)) + L")."),
      m_error(error)
{
}

IOException::IOException(String message) : Exception(std::move(message)) {}

FileNotFoundException::FileNotFoundException(const String& path)
    : IOException(L"The file \"" + path + L"\" does not exist.")
{
}

FormatException::FormatException(String message) : Exception(std::move(message)) {}

FileFormatException::FileFormatException(const String& path, std::size_t line, std::size_t column, const String& reason)
    : FormatException(L"\"" + path + L"\", line " + String(std::to_wstring(line)) + L", column " +
                      String(std::to_wstring(column)) + L": " + reason),
      m_textLine(line),
      m_textColumn(column)
{
}

} // namespace Core
