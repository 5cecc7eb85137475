#pragma once

#include "frame/doubles/ToolbarDouble.h"

namespace Acceptance
{

// A control bar with room for one toolbar.
class ControlbarDouble final : public ComDouble<IControlbar>
{
  public:
    HRESULT STDMETHODCALLTYPE Create(MMC_CONTROL_TYPE type, IExtendControlbar* owner, IUnknown** made) override
    {
        EXPECT_EQ(TOOLBAR, type);
        EXPECT_NE(nullptr, owner);
        return FAILED(createAnswer) ? createAnswer
                                    : toolbar.QueryInterface(__uuidof(IToolbar), reinterpret_cast<void**>(made));
    }
    HRESULT STDMETHODCALLTYPE Attach(MMC_CONTROL_TYPE type, IUnknown* attached) override
    {
        EXPECT_EQ(TOOLBAR, type);
        EXPECT_EQ(static_cast<IUnknown*>(&toolbar), attached);
        ++attachments;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Detach(IUnknown*) override
    {
        ++detachments;
        return S_OK;
    }

    ToolbarDouble toolbar;
    int attachments = 0;
    int detachments = 0;
    HRESULT createAnswer = S_OK;
};

} // namespace Acceptance
