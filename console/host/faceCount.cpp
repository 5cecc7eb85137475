#include "faceCount.h"

#include "Face.h"
#include "Instance.h"

namespace Console
{

void countFaces(HostState& host, const Instance& instance, unsigned view)
{
    for (FaceBase* face : host.faces)
    {
        if (face->owner().instance != &instance || face->owner().view != view)
        {
            continue;
        }
        face->disconnect();
        // A snap-in that crashed could not let go.
        if (instance.state() != SnapIn::State::dead)
        {
            host.complain(instance.number(), std::wstring(L"The snap-in still holds ") + face->name() + L" (" +
                                                 describe(face->references()) +
                                                 L" references) after it was destroyed.");
        }
    }
}

} // namespace Console
