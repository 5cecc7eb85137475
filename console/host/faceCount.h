#pragma once

namespace Console
{

class HostState;
class Instance;

// To be called when the console itself has let go of all faces of an instance (view 0) or of its component in a view:
// complains about each that the snap-in still holds, and disconnects it.
void countFaces(HostState& host, const Instance& instance, unsigned view);

} // namespace Console
