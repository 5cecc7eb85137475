#pragma once

#include "platform/mmc.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Console
{

class Instance;

// One reference to a snap-in's data object. It is given back through the instance's guard, and not at all once the
// instance is dead.
class DataObject
{
  public:
    DataObject() = default;
    // Takes over the reference.
    DataObject(Instance& instance, IDataObject* object) : m_instance(&instance), m_object(object) {}
    DataObject(DataObject&& other) noexcept
        : m_instance(other.m_instance), m_object(std::exchange(other.m_object, nullptr))
    {
    }
    DataObject& operator=(DataObject&& other) noexcept
    {
        std::swap(m_instance, other.m_instance);
        std::swap(m_object, other.m_object);
        return *this;
    }
    DataObject(const DataObject&) = delete;
    DataObject& operator=(const DataObject&) = delete;
    ~DataObject();

    IDataObject* get() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    // CCF_DISPLAY_NAME; empty when not given.
    std::wstring displayName() const;
    std::optional<GUID> nodeType() const;
    // CCF_COLUMN_SET_ID, else the node type's bytes.
    std::vector<BYTE> columnSet() const;
    // The types of a multi-selection (CCF_OBJECT_TYPES_IN_MULTI_SELECT); empty when not given.
    std::vector<GUID> objectTypes() const;
    // CCF_WINDOW_TITLE; empty when not given.
    std::wstring windowTitle() const;

  private:
    std::vector<BYTE> dataHere(const wchar_t* format) const;
    std::vector<BYTE> data(const wchar_t* format) const;
    std::wstring text(const wchar_t* format) const;

    Instance* m_instance = nullptr;
    IDataObject* m_object = nullptr;
};

} // namespace Console
