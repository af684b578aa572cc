#include <base/geodesy/GeodesyKeys.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace vex {
namespace {

template <std::size_t N>
std::vector<std::u16string> Entries(const char16_t* const (&table)[N]) {
    return std::vector<std::u16string>(table, table + N);
}

// The expected lists are typed out from the suite's settings files, entry
// by entry; the sizes come from the declarations, so a missing or extra
// entry shows as a size mismatch.
TEST(GeodesyKeys, TablesHoldTheSuitesKeysInOrder) {
    using List = std::vector<std::u16string>;
    EXPECT_EQ(Entries(spheroidKeys), (List{u"DataBase", u"Name", u"SemiMajor", u"EccSqrd"}));
    EXPECT_EQ(Entries(transParamKeys), (List{u"Name",
                                             u"Description",
                                             u"Source",
                                             u"Target",
                                             u"ShiftX",
                                             u"ShiftY",
                                             u"ShiftZ",
                                             u"RotX",
                                             u"RotY",
                                             u"RotZ",
                                             u"ScaleFactor",
                                             u"File",
                                             u"TimeShiftX",
                                             u"TimeShiftY",
                                             u"TimeShiftZ",
                                             u"TimeRotX",
                                             u"TimeRotY",
                                             u"TimeRotZ",
                                             u"TimeScaleFactor",
                                             u"TimeT0",
                                             u"UseFixedHeight",
                                             u"FixedHeightForward",
                                             u"FixedHeightReverse"}));
    EXPECT_EQ(Entries(projectionParamKeys), (List{u"File",          u"Type",
                                                  u"Name",          u"LatOrigin",
                                                  u"LonOrigin",     u"FalseEast",
                                                  u"FalseNorth",    u"ScaleConst",
                                                  u"1stParallel",   u"2ndParallel",
                                                  u"FalseLat",      u"UTM-Zone",
                                                  u"Hemisphere",    u"FalseNorthOrigin",
                                                  u"BasicLat",      u"BasicLon",
                                                  u"SkewAngle",     u"InitialAzimuth",
                                                  u"LatTrueScale",  u"CentralParallel",
                                                  u"EastPrjCentre", u"NorthPrjCentre",
                                                  u"HomSkewAngle"}));
    EXPECT_EQ(Entries(GeoidmodelTypeKeys), (List{u"Receiver",
                                                 u"Manual",
                                                 u"DeMin",
                                                 u"Grid Model(Satellite coordinates)",
                                                 u"RDNAPTRANS2004",
                                                 u"Belgium hBG03/xyGridLb72",
                                                 u"Sweden",
                                                 u"US State Plane",
                                                 u"HARN",
                                                 u"OSTN02",
                                                 u"OSGM02 - GB",
                                                 u"OSGM02 - RoI",
                                                 u"OSGM02 - NI",
                                                 u"RDNAPTRANS2008",
                                                 u"Denmark DVR90",
                                                 u"Grid Model(Grid coordinates)",
                                                 u"Quasigeoid EGG97",
                                                 u"Null Model",
                                                 u"EGM2008",
                                                 u"Norway",
                                                 u"Quasigeoid GCG",
                                                 u"Noordzee 1997(GEONZ97)",
                                                 u"Noordzee1997+LAT2006",
                                                 u".byn format",
                                                 u"OSGM",
                                                 u"OSTN",
                                                 u"Trimble Geoid Grid File (GGF)",
                                                 u"VORF",
                                                 u"RDNAPTRANS2018",
                                                 u"RDNAPTRANS2018HOR"}));
    EXPECT_EQ(
        Entries(coordsystemKeys),
        (List{
            u"BM Database",    u"BM Group key",       u"BM CoordSystem key",  u"BM Ellipsoid key",
            u"BM Datum key",   u"BM Linear unit key", u"BM projection name",  u"System group name",
            u"System name",    u"Dtf name",           u"Unit name",           u"Ellipsoid name",
            u"CoordSys type",  u"GeoidModel name",    u"GeoidModelFile name", u"GeoidChartDatum",
            u"PostModel name", u"PostFile name",      u"BM Ellipsoid",        u"BM Datum",
            u"BM Linear unit", u"BM Angle unit",      u"BM System group",     u"BM System"}));
    EXPECT_EQ(Entries(geoFileKeys),
              (List{u"BMUserGeoDatabase", u"vexusergeobase", u"BMGeocalc", u"vexgeodatabase"}));
}

}  // namespace
}  // namespace vex
