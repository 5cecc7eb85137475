#pragma once

#include "NodeListing.h"

namespace Console
{

// The tree as text for people:
//
//     + Node
//       | Column   | Column
//       | cell     | cell
//       + Child
//
// One line a row; line breaks and tabs inside a cell become blanks.
class TextLister final : public ListingWriter
{
  public:
    explicit TextLister(Sink sink) : m_sink(std::move(sink)) {}

    void beginNode(const NodeListing& node) override;
    void endNode() override;

  private:
    void writeLine(const std::vector<std::wstring>& cells, const std::vector<std::size_t>& widths);

    Sink m_sink;
    std::size_t m_depth = 0;
};

} // namespace Console
