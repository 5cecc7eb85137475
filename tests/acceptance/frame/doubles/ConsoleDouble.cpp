#include "frame/doubles/ConsoleDouble.h"

#include "frame/nodeData.h"

namespace Acceptance
{

HRESULT ConsoleDouble::QueryInterface(REFIID iid, void** object)
{
    *object = nullptr;
    if (iid == __uuidof(IConsole) && FAILED(consoleAnswer))
    {
        return consoleAnswer;
    }
    for (IUnknown* const part : std::initializer_list<IUnknown*>{&nameSpace, &results, &header})
    {
        if (iid != __uuidof(IUnknown) && SUCCEEDED(part->QueryInterface(iid, object)))
        {
            return S_OK;
        }
    }
    return ComDouble::QueryInterface(iid, object);
}

HRESULT ConsoleDouble::QueryScopeImageList(IImageList** list)
{
    *list = nullptr;
    return FAILED(imageListAnswer) ? imageListAnswer : images.QueryInterface(IID_PPV_ARGS(list));
}

HRESULT ConsoleDouble::UpdateAllViews(IDataObject* object, LPARAM data, LONG_PTR hint)
{
    updates.push_back({nodeTypeOf(object), data, hint});
    if (onUpdate)
    {
        onUpdate(object);
    }
    return S_OK;
}

HRESULT ConsoleDouble::QueryConsoleVerb(IConsoleVerb** found)
{
    *found = nullptr;
    return FAILED(verbAnswer) ? verbAnswer : verbs.QueryInterface(IID_PPV_ARGS(found));
}

HRESULT ConsoleDouble::SelectScopeItem(HSCOPEITEM item)
{
    selections.push_back(item);
    if (onSelect)
    {
        onSelect(item);
    }
    return selectAnswer;
}

HRESULT ConsoleDouble::GetMainWindow(HWND* window)
{
    *window = nullptr;
    return S_OK;
}

} // namespace Acceptance
