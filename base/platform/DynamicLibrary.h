// DynamicLibrary.h - loading a shared library (a DLL on Windows, a shared
// object elsewhere) at run time and finding a function it exports.
//
// Libraries loaded here are meant to stay for the life of the process; a
// module is released only when the caller asks, e.g. because it turned out
// not to be the library it was looking for.
//
//   void* module = vex::platform::LoadDynamicLibrary(u"./libPlugin.so");
//   if (auto* entry = vex::platform::FindLibraryFunction(module, "Entry")) entry();
#pragma once

#include <string_view>

namespace vex::platform {

using LibraryFunction = void (*)();

// Loads the library at path (UTF-16; relative paths are taken from the
// working directory). Null when it cannot be loaded.
void* LoadDynamicLibrary(std::u16string_view path);

// The address of the function exported under name, or null when module is
// null or exports no such name.
LibraryFunction FindLibraryFunction(void* module, const char* name);

// Releases a module from LoadDynamicLibrary; a null module is ignored.
void FreeDynamicLibrary(void* module);

}  // namespace vex::platform
