#include "tmgmt/frame/ImageStrip.h"

#include <gtest/gtest.h>

namespace
{

// Takes nothing: it must not come to that.
class UntouchedImages : public IImageList
{
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE ImageListSetIcon(LONG_PTR*, LONG) override { return unexpected(); }
    HRESULT STDMETHODCALLTYPE ImageListSetStrip(LONG_PTR*, LONG_PTR*, LONG, COLORREF) override { return unexpected(); }

  private:
    static HRESULT unexpected()
    {
        ADD_FAILURE() << "the list was touched";
        return S_OK;
    }
};

// This program has none of the plug-in's resources.
TEST(LoadImageStrip, failsInAModuleWithoutTheBitmaps)
{
    UntouchedImages images;
    EXPECT_EQ(TMgmt::loadImageStrip(images), E_FAIL);
}

} // namespace
