// A first use of the library: format a depth and print it as UTF-8.
#include <base/VexBase.h>

#include <cstdio>

int main() {
    vex::CString text;
    text.Format(u"VexBase %s: depth %.2f m below %s", vex::VersionString(), 12.345, u"chart datum");
    std::puts(text.ToUtf8().c_str());
    return 0;
}
