#pragma once

#include "ScaledImages.h"
#include "Window.h"

#include "console/host/View.h"

#include <commctrl.h>

#include <string>
#include <vector>

namespace Console
{

// The list of the result pane. It is virtual: it holds no rows and asks the view for those that it draws.
class ResultList final : public Window
{
  public:
    // What the user did. None of these is told about changes that the program made itself.
    class Owner
    {
      public:
        virtual ~Owner() = default;
        // Rows were selected or deselected; told for each row, so only note it.
        virtual void rowsChosen() = 0;
        virtual void rowActivated(int row) = 0;
        virtual bool rowRenamable(int row) = 0;
        virtual void rowRenamed(int row, const std::wstring& name) = 0;
        virtual void columnClicked(int column) = 0;
        virtual void columnResized(int column, int width) = 0;
        // Over the selected rows, or over the empty part of the list.
        virtual void rowMenuWanted(POINT screen) = 0;
        virtual void paneMenuWanted(POINT screen) = 0;
        virtual void listFocused() = 0;
    };

    ResultList(HWND parent, View& view, Owner& owner);
    ~ResultList() override;

    HWND control() const { return m_control; }
    void setAppearance(HFONT font, int dpi);

    // Take over from the view what their names say.
    void takeMode();
    void takeColumns();
    void takeRows();
    void takeSelection();
    void refreshRow(int row);

    std::vector<int> selectedRows() const;
    int focusedRow() const;
    void selectAll();
    void editName(int row);
    // Where a menu opens when it is asked for by keyboard, on the screen.
    POINT menuPlace() const;

  private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT handleNotification(NMHDR& header);
    LRESULT handleHeaderNotification(NMHDR& header);
    void provide(LVITEMW& item);
    void activate(int row);
    void wantMenu(POINT screen, bool keyboard);
    void takeSortMark();

    View& m_view;
    Owner& m_owner;
    HWND m_control = nullptr;
    int m_dpi = 96;
    ScaledImages m_smallImages;
    ScaledImages m_largeImages;
    std::wstring m_text; // of the cell that the control asked for last
    bool m_silent = false;
};

} // namespace Console
