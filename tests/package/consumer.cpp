// Uses the library the way an application does: one include, one target.
#include <base/VexBase.h>

#include <cstdio>

int main() {
    const vex::CString name(u"vexbase");
    std::printf("%s %s\n", name.ToUtf8().c_str(), vex::VersionString());
    return name.GetLength() == 7 ? 0 : 1;
}
