#pragma once

#include "Stage.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Bench
{

// A node of the plug-in's or of the floor's, used through the stage's view. Everything but show happens to the list
// that is shown. Functions throw std::runtime_error when the console does not offer what is asked for.
class List
{
  public:
    // names: the nodes on the way, below the snap-in's own.
    List(Stage& stage, const Console::SnapIn& snapIn, const std::vector<std::wstring>& names);

    void show();
    void refresh();
    // Asks for the text of every cell; returns how many characters they are.
    std::size_t readTexts();
    void select(int row);
    void deleteSelected();
    void open(int row);
    // A command of the node's menu.
    void runCommand(const std::wstring& text);

    // The row in the middle.
    int middle() const { return m_stage.view().rowCount() / 2; }
    std::wstring text(int row, int column) const { return m_stage.view().rowText(row, column); }
    void expectRows(std::size_t count) const;

  private:
    void runVerb(MMC_CONSOLE_VERB verb);

    Stage& m_stage;
    Console::NodeId m_node;
};

} // namespace Bench
