#pragma once

#include "ResultList.h"
#include "Window.h"

#include "platform/handles.h"

namespace Console
{

// The right-hand side: the description bar, and below it the list or a message that stands in for it.
class DetailsPane final : public Window
{
  public:
    DetailsPane(HWND parent, View& view, ResultList::Owner& owner);
    ~DetailsPane() override;

    ResultList& list() { return m_list; }
    const ResultList& list() const { return m_list; }
    void setAppearance(HFONT font, int dpi);

    // Take over from the view what their names say.
    void takePane();
    void takeDescription();

  private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void arrange();

    View& m_view;
    HFONT m_font = nullptr; // lent
    int m_dpi = 96;
    HWND m_description = nullptr;
    HWND m_messageIcon = nullptr;
    HWND m_message = nullptr;
    ResultList m_list;
};

} // namespace Console
