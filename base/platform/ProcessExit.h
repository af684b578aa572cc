// ProcessExit.h - what a library may still do in its static destructors
// when the process ends.
//
// On Windows a DLL's static destructors run in its detach notification,
// under the loader lock and after ExitProcess has ended every other thread
// (possibly inside a lock): waiting there for a thread can hang for ever.
#pragma once

namespace vex::platform {

#ifdef _WIN32
inline constexpr bool kStaticDestructorsMayJoinThreads = false;
#else
inline constexpr bool kStaticDestructorsMayJoinThreads = true;
#endif

}  // namespace vex::platform
