#pragma once

#include "DataObject.h"

namespace Console
{

class Instance;

// What was copied or cut last, inside this console only.
class Clipboard
{
  public:
    void put(Instance& source, unsigned view, DataObject object, bool cut)
    {
        m_source = &source;
        m_view = view;
        m_object = std::move(object);
        m_cut = cut;
    }
    // Of an instance that goes, or altogether (null).
    void clear(const Instance* source)
    {
        if (source == nullptr || source == m_source)
        {
            m_object = {};
            m_source = nullptr;
        }
    }

    // Null when empty.
    IDataObject* object() const { return m_object.get(); }
    Instance* source() const { return m_source; }
    unsigned view() const { return m_view; }
    bool cut() const { return m_cut; }

  private:
    Instance* m_source = nullptr;
    unsigned m_view = 0; // in which it was selected
    DataObject m_object;
    bool m_cut = false;
};

} // namespace Console
