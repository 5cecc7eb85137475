#pragma once

#include <utility>

#include "brimlow/system/SharedIdentity.h"
#include "tmgmt/frame/Collection.h"

namespace TMgmt
{

// A collection of what a store keeps that tells its states apart. While nobody has changed what is stored, the rows
// stay the same: a list that is shown again needs none made.
template <class T, class Row>
class StoredCollection : public Collection<T, Row>
{
  public:
    void discardRows() noexcept override { m_listing.state = Core::SharedIdentity(); }

  protected:
    using typename Collection<T, Row>::Rows;
    using Collection<T, Row>::Collection;

    struct Listing
    {
        Rows rows;
        // Of what is stored, when the rows were made of it; none where they are not all that belong into the list.
        Core::SharedIdentity state;
    };

    // What is stored now, in the order in which it is listed: former where that is still so.
    virtual Listing read(Listing former) = 0;

  private:
    Rows readRows() final
    {
        m_listing = read(std::exchange(m_listing, Listing()));
        return m_listing.rows;
    }

    Listing m_listing;
};

} // namespace TMgmt
