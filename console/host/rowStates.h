#pragma once

#include <windows.h>

namespace Console
{

struct Row;
class ViewState;

// A row's LVIS_… bits, with those of selection and focus.
UINT rowState(const ViewState& view, int place);

// Takes bits away, then puts bits there. Selection and focus change without a word to the snap-in, which did it.
void setRowState(ViewState& view, Row& row, UINT add, UINT remove);
HRESULT setVirtualState(ViewState& view, int place, UINT add, UINT remove);

// The first row from that place on that has all of these bits; -1 for none. Quick for selected and focused rows.
int nextRowWithState(const ViewState& view, int from, UINT state);

} // namespace Console
