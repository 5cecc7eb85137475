#pragma once

namespace Tessaro
{

// What applies the stylesheets of an application. The numbers are stored and shared with the server.
enum class XsltEngine
{
    Msxml = 1,
    DotNet = 2
};

} // namespace Tessaro
