#include <base/config/FileSection.h>
#include <base/errors/FileObjectError.h>

#include "ConfigTestSupport.h"

#include <gtest/gtest.h>

namespace vex {
namespace {

using test::Describe;

TEST(FileSection, CopiesOneSectionInAndOut) {
    FileObject settings;
    ASSERT_TRUE(test::Parse(settings, "[GPS]\nPort = 4001\nName = NMEA\n[Tide]\nStation = Hoek\n"));

    FileSection gps(u"Unused");
    EXPECT_EQ(Describe(gps), "[Unused]");
    EXPECT_TRUE(gps.GetFromFileObject(u"GPS", settings));
    EXPECT_EQ(gps.Name(), CString(u"GPS"));
    EXPECT_EQ(Describe(gps), "[GPS]Port=4001;Name=NMEA;");

    // A missing section: status 5, the section object named and emptied.
    FileSection missing(u"Old");
    EXPECT_TRUE(missing.SetItem(u"Key", u"value"));
    EXPECT_FALSE(missing.GetFromFileObject(u"Missing", settings));
    EXPECT_EQ(missing.GetErrorStatus(), 5);
    EXPECT_EQ(settings.GetErrorStatus(), 5);
    EXPECT_EQ(missing.Name(), CString(u"Missing"));
    EXPECT_EQ(Describe(missing), "[Missing]");
    settings.ThrowExceptions(true);
    EXPECT_THROW(missing.GetFromFileObject(u"Missing", settings), FileObjectError);
    settings.ThrowExceptions(false);

    int port = 0;
    EXPECT_TRUE(gps.GetItem(u"Port", port));
    EXPECT_EQ(port, 4001);
    EXPECT_TRUE(gps.SetItem(u"Port", 4002));
    EXPECT_TRUE(gps.SetItem(u"Baud", u"9600"));
    EXPECT_TRUE(gps.DeleteItem(u"Name"));
    EXPECT_FALSE(gps.DeleteItem(u"Name"));
    EXPECT_EQ(gps.GetErrorStatus(), 7);
    EXPECT_FALSE(gps.HasKey(u"Name"));
    EXPECT_TRUE(gps.HasKey(u"Baud"));
    EXPECT_FALSE(gps.GetItem(u"Name", port));
    EXPECT_EQ(gps.GetErrorStatus(), 5);

    CString key;
    CString value;
    FobjSection cursor;
    std::string walked;
    for (bool more = gps.GetFirstMapEntry(cursor, key, value); more;
         more = gps.GetNextMapEntry(cursor, key, value))
        walked += key.ToUtf8() + "=" + value.ToUtf8() + ";";
    EXPECT_EQ(walked, "Port=4002;Baud=9600;");

    // Back under its own name (replacing the section) and under another.
    EXPECT_TRUE(gps.SetToFileObject(settings));
    EXPECT_TRUE(gps.SetToFileObject(settings, u"GPS 2"));
    EXPECT_EQ(Describe(settings),
              "[GPS]Port=4002;Baud=9600;[Tide]Station=Hoek;[GPS 2]Port=4002;Baud=9600;");

    // An empty section object still leaves its section behind.
    FileSection empty(u"Empty");
    EXPECT_TRUE(empty.SetToFileObject(settings));
    EXPECT_TRUE(settings.HasSection(u"Empty"));
    EXPECT_EQ(settings.GetNumItems(u"Empty"), 0);
}

}  // namespace
}  // namespace vex
