#include "Attempt.h"
#include "Machine.h"
#include "Report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ostream>

// How a failing expectation shows a save.
void PrintTo(const Save& save, std::ostream* out)
{
    *out << save.name;
}

namespace
{

// Of so many points one is cut: of one, unless FAULT_STRIDE says more.
int stride()
{
    const char* const text = std::getenv("FAULT_STRIDE");
    return text ? std::max(1, std::atoi(text)) : 1;
}

// Cuts one save at every point, or with a stride: each save at others, because their beginnings and ends are the same.
class FaultTest : public testing::TestWithParam<Save>
{
  protected:
    FaultTest()
    {
        save().prepare();
        m_machine.keep();
        m_old = save().look();
        save().change();
        m_new = save().look();
        m_filesOfNew = m_machine.list();
        save().next();
        m_next = save().look();
        m_filesOfNext = m_machine.list();
        m_row.save = save().name;
    }
    ~FaultTest() override { Report::instance().add(m_row); }

    static const Save& save() { return GetParam(); }

    static int firstPoint(Fault fault)
    {
        const auto number = std::ranges::find(allSaves(), save().name, &Save::name) - allSaves().begin();
        return 1 + (static_cast<int>(number) + static_cast<int>(fault)) % stride();
    }

    // False when the save has no such point.
    bool cut(Fault fault, int point)
    {
        m_machine.restore();
        const Attempt cut = attempt(save(), fault, point);
        m_machine.wait();
        const std::string found = save().look();
        expectWhole(cut, found);
        expectNextSaveWorks(found);
        count(fault, cut, found);
        return cut.isReached;
    }

    void expectWhole(const Attempt& cut, const std::string& found) const
    {
        switch (cut.ending)
        {
        case Attempt::Ending::done:
            EXPECT_EQ(m_new, found);
            break;
        // Also of a save that is refused the change may have been made: what failed came behind it.
        case Attempt::Ending::refused:
        case Attempt::Ending::killed:
            EXPECT_TRUE(found == m_old || found == m_new) << found << '\n' << cut.reason;
            break;
        case Attempt::Ending::broken:
            ADD_FAILURE() << cut.reason;
            break;
        }
    }

    // The next program makes the change where it was not made, or another one.
    void expectNextSaveWorks(const std::string& found) const
    {
        const bool wasMade = found == m_new;
        wasMade ? save().next() : save().change();
        EXPECT_EQ(wasMade ? m_next : m_new, save().look());
        EXPECT_EQ(wasMade ? m_filesOfNext : m_filesOfNew, m_machine.list()) << "something is left, or missing";
    }

    void count(Fault fault, const Attempt& cut, const std::string& found)
    {
        if (!cut.isReached)
        {
            return;
        }
        ++m_row.cuts[static_cast<std::size_t>(fault)];
        if (cut.ending == Attempt::Ending::refused)
        {
            ++(found == m_old ? m_row.refused : m_row.refusedThoughMade);
        }
        else if (cut.ending == Attempt::Ending::done)
        {
            ++m_row.done;
        }
    }

    Machine m_machine;
    std::string m_old;
    std::string m_new;
    std::string m_next;
    std::string m_filesOfNew;
    std::string m_filesOfNext;
    Report::Row m_row;
};

TEST_P(FaultTest, LeavesTheOldStateOrTheNewOneAndTheNextSaveWorks)
{
    ASSERT_NE(m_old, m_new);
    ASSERT_NE(m_new, m_next);
    for (const Fault fault : allFaults)
    {
        int point = firstPoint(fault);
        while (!HasFailure() && cut(fault, point))
        {
            point += stride();
        }
        ASSERT_FALSE(HasFailure()) << nameOf(fault) << " at point " << point;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, FaultTest, testing::ValuesIn(allSaves()),
                         [](const testing::TestParamInfo<Save>& info)
                         {
                             std::string name;
                             for (const char letter : info.param.name)
                             {
                                 name += isalpha(letter) ? letter : '_';
                             }
                             return name;
                         });

} // namespace
