#include "RowOrder.h"

namespace Console
{

namespace
{

std::uint32_t countOf(const RowLink* link)
{
    return link == nullptr ? 0 : link->count;
}

std::uint32_t selectedOf(const RowLink* link)
{
    return link == nullptr ? 0 : link->selectedCount;
}

} // namespace

void RowOrder::update(RowLink& link)
{
    link.count = countOf(link.left) + 1 + countOf(link.right);
    link.selectedCount = selectedOf(link.left) + (link.selected ? 1U : 0U) + selectedOf(link.right);
}

std::uint32_t RowOrder::random()
{
    m_random ^= m_random << 13; // xorshift: only has to spread
    m_random ^= m_random >> 17;
    m_random ^= m_random << 5;
    return m_random;
}

void RowOrder::rotateUp(RowLink& link)
{
    RowLink& above = *link.above;
    RowLink* const top = above.above;
    if (above.left == &link)
    {
        above.left = link.right;
        if (link.right != nullptr)
        {
            link.right->above = &above;
        }
        link.right = &above;
    }
    else
    {
        above.right = link.left;
        if (link.left != nullptr)
        {
            link.left->above = &above;
        }
        link.left = &above;
    }
    above.above = &link;
    link.above = top;
    (top == nullptr ? m_root : top->left == &above ? top->left : top->right) = &link;
    update(above);
    update(link);
}

void RowOrder::insert(int at, RowLink& link)
{
    link.priority = random();
    RowLink** place = &m_root;
    auto before = static_cast<std::uint32_t>(at);
    while (*place != nullptr)
    {
        RowLink& passed = **place;
        ++passed.count;
        passed.selectedCount += link.selected ? 1U : 0U;
        link.above = &passed;
        const std::uint32_t left = countOf(passed.left);
        place = before <= left ? &passed.left : &passed.right;
        before -= before <= left ? 0 : left + 1;
    }
    *place = &link;
    update(link);
    while (link.above != nullptr && link.above->priority < link.priority)
    {
        rotateUp(link);
    }
}

void RowOrder::erase(RowLink& link)
{
    while (link.left != nullptr || link.right != nullptr)
    {
        const bool left = link.right == nullptr || (link.left != nullptr && link.left->priority > link.right->priority);
        rotateUp(left ? *link.left : *link.right);
    }
    RowLink* const above = link.above;
    (above == nullptr ? m_root : above->left == &link ? above->left : above->right) = nullptr;
    for (RowLink* at = above; at != nullptr; at = at->above)
    {
        update(*at);
    }
    link.above = nullptr;
}

void RowOrder::reorder(const std::vector<RowLink*>& links)
{
    m_root = nullptr;
    for (RowLink* link : links)
    {
        link->above = link->left = link->right = nullptr;
        insert(size(), *link);
    }
}

RowLink* RowOrder::at(int place) const
{
    if (place < 0 || place >= size())
    {
        return nullptr;
    }
    auto before = static_cast<std::uint32_t>(place);
    RowLink* link = m_root;
    for (;;)
    {
        const std::uint32_t left = countOf(link->left);
        if (before == left)
        {
            return link;
        }
        link = before < left ? link->left : link->right;
        before -= before < left ? 0 : left + 1;
    }
}

int RowOrder::placeOf(const RowLink& link)
{
    std::uint32_t before = countOf(link.left);
    for (const RowLink* at = &link; at->above != nullptr; at = at->above)
    {
        before += at->above->right == at ? countOf(at->above->left) + 1 : 0;
    }
    return static_cast<int>(before);
}

RowLink* RowOrder::next(const RowLink& link)
{
    if (link.right != nullptr)
    {
        RowLink* at = link.right;
        while (at->left != nullptr)
        {
            at = at->left;
        }
        return at;
    }
    const RowLink* at = &link;
    while (at->above != nullptr && at->above->right == at)
    {
        at = at->above;
    }
    return at->above;
}

RowLink* RowOrder::first() const
{
    return at(0);
}

void RowOrder::select(RowLink& link, bool selected)
{
    if (link.selected != selected)
    {
        link.selected = selected;
        for (RowLink* at = &link; at != nullptr; at = at->above)
        {
            at->selectedCount += selected ? 1U : ~0U;
        }
    }
}

int RowOrder::nextSelected(int from) const
{
    RowLink* link = at(from);
    if (link == nullptr)
    {
        return -1;
    }
    // Climb until the row itself or something to the right holds a selected row, then descend to the first of them.
    bool fromRight = false; // the right part of this link was looked at already
    for (; link != nullptr; link = link->above)
    {
        if (!fromRight && link->selected)
        {
            return placeOf(*link);
        }
        if (!fromRight && selectedOf(link->right) > 0)
        {
            link = link->right;
            for (;;)
            {
                if (selectedOf(link->left) > 0)
                {
                    link = link->left;
                }
                else if (link->selected)
                {
                    return placeOf(*link);
                }
                else
                {
                    link = link->right;
                }
            }
        }
        fromRight = link->above != nullptr && link->above->right == link;
    }
    return -1;
}

} // namespace Console
