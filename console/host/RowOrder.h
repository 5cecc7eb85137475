#pragma once

#include <cstdint>
#include <vector>

namespace Console
{

// The part of a row that keeps its place among the others.
struct RowLink
{
    RowLink* above = nullptr;
    RowLink* left = nullptr;
    RowLink* right = nullptr;
    std::uint32_t priority = 0;
    std::uint32_t count = 1;         // of the rows at and below this link
    std::uint32_t selectedCount = 0; // of the selected ones among them
    bool selected = false;
};

// Rows in display order: a treap by position. Finding a row's place, the row at a place, the next selected row,
// inserting and taking out anywhere all cost O(log n), so no order of calls makes a long list slow. Owns nothing.
class RowOrder
{
  public:
    int size() const { return m_root == nullptr ? 0 : static_cast<int>(m_root->count); }
    int selectedCount() const { return m_root == nullptr ? 0 : static_cast<int>(m_root->selectedCount); }

    // at: 0 to size(). The link must be fresh.
    void insert(int at, RowLink& link);
    void erase(RowLink& link);
    void clear() { m_root = nullptr; }
    // The same rows, in another order.
    void reorder(const std::vector<RowLink*>& links);

    // Null when there is none at that place.
    RowLink* at(int place) const;
    static int placeOf(const RowLink& link);
    static RowLink* next(const RowLink& link);
    RowLink* first() const;

    static void select(RowLink& link, bool selected);
    // The place of the first selected row at or after that place; -1 for none.
    int nextSelected(int from) const;

  private:
    static void update(RowLink& link);
    void rotateUp(RowLink& link);
    std::uint32_t random();

    RowLink* m_root = nullptr;
    std::uint32_t m_random = 2463534242U;
};

} // namespace Console
