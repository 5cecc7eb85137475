#pragma once

#include "ForeignSnapIn.h"
#include "platform/mmc.h"

#include <wrl/client.h>

namespace Foreign
{

Settings& settings();
void crash();

// One COM object with some interfaces, the first of which is its identity.
template <class First, class... More>
class Object : public First, public More...
{
  public:
    Object() { ++settings().liveObjects; }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        *object = id == __uuidof(IUnknown) ? static_cast<First*>(this) : find<First, More...>(id);
        if (*object == nullptr)
        {
            *object = findMore(id);
        }
        if (*object == nullptr)
        {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++m_references); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const long left = --m_references;
        if (left == 0)
        {
            delete this;
        }
        return static_cast<ULONG>(left);
    }

  protected:
    virtual ~Object() { --settings().liveObjects; }
    virtual void* findMore(REFIID) { return nullptr; }

  private:
    template <class Next, class... Rest>
    void* find(REFIID id)
    {
        if (id == __uuidof(Next))
        {
            return static_cast<Next*>(this);
        }
        if constexpr (sizeof...(Rest) > 0)
        {
            return find<Rest...>(id);
        }
        return nullptr;
    }

    long m_references = 1;
};

// What the snap-in's data objects name.
enum class Kind
{
    node,
    row,
    rows,
};

IDataObject* makeDataObject(Kind kind, MMC_COOKIE cookie, int count);
// The private facts of one of this snap-in's own objects, also from inside the console's composite; false for others.
bool readDataObject(IDataObject* object, Kind& kind, MMC_COOKIE& cookie, int& count);
bool isComposite(IDataObject* object);

HRESULT addImages(IImageList* images);
HRESULT addNodeMenu(IContextMenuCallback* callback, long allowed);
HRESULT addViewMenu(IContextMenuCallback* callback, long allowed);
HRESULT addPages(IPropertySheetCallback* callback, LONG_PTR handle);
IComponent* makeComponent(class ComponentData& data);
IUnknown* makeComponentData();
IUnknown* makeAbout();

} // namespace Foreign
