#pragma once

#include "platform/handles.h"
#include "platform/mmc.h"

#include "tmgmt/snapin/ComObject.h"

namespace TMgmt
{

// What the console shows of this plug-in in its list of snap-ins that can be added. The pictures belong to this
// object, which lives until the console has copied them.
class MMCSnapInAbout : public ComObject<ISnapinAbout>
{
  public:
    HRESULT STDMETHODCALLTYPE GetSnapinDescription(LPOLESTR* description) override;
    HRESULT STDMETHODCALLTYPE GetProvider(LPOLESTR* name) override;
    HRESULT STDMETHODCALLTYPE GetSnapinVersion(LPOLESTR* version) override;
    HRESULT STDMETHODCALLTYPE GetSnapinImage(HICON* icon) override;
    HRESULT STDMETHODCALLTYPE GetStaticFolderImage(HBITMAP* smallImage, HBITMAP* smallOpenImage, HBITMAP* largeImage,
                                                   COLORREF* mask) override;

  private:
    platform::Icon m_icon;
    platform::Bitmap m_smallImage;
    platform::Bitmap m_smallOpenImage;
    platform::Bitmap m_largeImage;
};

} // namespace TMgmt
