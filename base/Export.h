// Export.h - symbol visibility of the vexbase library.
//
// VEXBASE_API marks every class and function that belongs to the library's
// interface; everything else is hidden. Static builds define VEXBASE_STATIC
// (the CMake target does so for its users), which turns the marks off.
#pragma once

#if defined(VEXBASE_STATIC)
#define VEXBASE_API
#elif defined(_WIN32) || defined(__CYGWIN__)
#if defined(VEXBASE_BUILDING)
#define VEXBASE_API __declspec(dllexport)
#else
#define VEXBASE_API __declspec(dllimport)
#endif
#else
#define VEXBASE_API __attribute__((visibility("default")))
#endif
