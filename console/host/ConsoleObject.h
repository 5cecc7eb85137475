#pragma once

#include "Face.h"

#include <memory>
#include <vector>

namespace Console
{

class Component;
class ConsoleObject;

// One interface of a console object. All parts share the whole's identity and reference count.
class Part
{
  public:
    explicit Part(ConsoleObject& whole) : m_whole(whole) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    virtual ~Part() = default;

  protected:
    HRESULT query(REFIID id, void** object) noexcept;
    ULONG addReference() noexcept;
    ULONG dropReference() noexcept;

    ConsoleObject& m_whole;
};

template <class Interface>
class PartOf : public Part, public Interface
{
  public:
    using Part::Part;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override { return query(id, object); }
    ULONG STDMETHODCALLTYPE AddRef() override { return addReference(); }
    ULONG STDMETHODCALLTYPE Release() override { return dropReference(); }
};

// The private object that every component data, and every component, gets as "the console". Both kinds answer for all
// of the console's interfaces, as the real console does; asking on the side where an interface does not belong is
// complained about, and refused by a strict host.
class ConsoleObject final : public FaceBase, public IUnknown
{
  public:
    // For a component data (component null) or a component.
    ConsoleObject(const FaceOwner& owner, Component* component);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return addReference(); }
    ULONG STDMETHODCALLTYPE Release() override { return dropReference(); }

    IConsole* console() const { return m_console; }
    Instance& instance() const { return *owner().instance; }

    // The component that calls about rows, columns and verbs go to: its own; for a component data, that of the view
    // in which the snap-in is shown (or null).
    Component* component() const;
    bool isForComponent() const { return m_component != nullptr; }

  private:
    ~ConsoleObject() override = default;

    enum class Side
    {
        both,
        data,
        component,
    };
    struct Entry
    {
        IID id;
        IUnknown* part;
        Side side;
        const wchar_t* name;
    };
    template <class PartType>
    PartType& addPart();

    Component* m_component;
    IConsole* m_console = nullptr;
    std::vector<std::unique_ptr<Part>> m_parts;
    std::vector<Entry> m_entries;
};

} // namespace Console
