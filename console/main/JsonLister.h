#pragma once

#include "NodeListing.h"

#include <string>
#include <string_view>

namespace Console
{

// The tree as one JSON object:
//
//     {"name": "…", "image": 1, "columns": [{"title": "…", "width": 150}], "rows": [{"image": 2, "cells": ["…"]}],
//      "children": [{…}]}
//
// A node that shows no list has a "message" and empty columns and rows. Widths are in pixels, at 96 to the inch.
class JsonLister final : public ListingWriter
{
  public:
    explicit JsonLister(Sink sink) : m_sink(std::move(sink)) {}

    void beginNode(const NodeListing& node) override;
    void endNode() override;

  private:
    std::wstring lineBreak() const;

    Sink m_sink;
    std::vector<bool> m_hasChildren; // for every node that is open
};

} // namespace Console
