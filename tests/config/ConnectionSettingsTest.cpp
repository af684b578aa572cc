#include <base/config/CFileSettings.h>
#include <base/config/CNetSettings.h>
#include <base/config/OPCSettings.h>
#include <base/config/OpcUaSettings.h>

#include <gtest/gtest.h>

namespace vex {
namespace {

CNetSettings ChangedNet() {
    CNetSettings net;
    net.SetPortNo(2);
    net.SetLocalPort(801);
    net.SetHostAdress(u"10.0.0.1");
    net.SetHostPort(101);
    net.SetHostPort2(102);
    net.SetName(u"Gyro");
    net.SetFilterHostAdress(true);
    net.SetProtocol(1);
    net.SetProtocol2(2);
    net.SetMulticastAdress(u"239.0.0.1");
    net.SetUseMulticast(true);
    return net;
}

TEST(CNetSettings, DefaultsResetAndEqualityCoverEveryField) {
    const CNetSettings defaults;
    EXPECT_EQ(defaults.GetPortNo(), 1u);
    EXPECT_EQ(defaults.GetLocalPort(), 800u);
    EXPECT_EQ(defaults.GetHostPort(), 100u);
    EXPECT_EQ(defaults.GetHostPort2(), 0u);
    EXPECT_TRUE(defaults.GetHostAdress().IsEmpty());
    EXPECT_FALSE(defaults.GetUseMulticast());

    CNetSettings changed = ChangedNet();
    const CNetSettings copy(changed);
    EXPECT_TRUE(copy == changed);
    changed.ResetToDefaults();
    EXPECT_TRUE(changed == defaults);

    // Each field on its own makes a difference; texts are case-sensitive.
    using Change = void (*)(CNetSettings&);
    const Change changes[] = {
        [](CNetSettings& n) { n.SetPortNo(3); },
        [](CNetSettings& n) { n.SetLocalPort(3); },
        [](CNetSettings& n) { n.SetHostAdress(u"10.0.0.2"); },
        [](CNetSettings& n) { n.SetHostPort(3); },
        [](CNetSettings& n) { n.SetHostPort2(3); },
        [](CNetSettings& n) { n.SetName(u"GYRO"); },
        [](CNetSettings& n) { n.SetFilterHostAdress(false); },
        [](CNetSettings& n) { n.SetProtocol(3); },
        [](CNetSettings& n) { n.SetProtocol2(3); },
        [](CNetSettings& n) { n.SetMulticastAdress(u"239.0.0.2"); },
        [](CNetSettings& n) { n.SetUseMulticast(false); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        CNetSettings other = copy;
        changes[i](other);
        EXPECT_FALSE(other == copy) << "change " << i;
    }
}

TEST(OPCSettings, ForceSetterWritesTheGatewayFlag) {
    OPCSettings opc;
    EXPECT_EQ(opc.GetHostName(), CString(u"localhost"));
    EXPECT_TRUE(opc.GetServerName().IsEmpty());
    opc.SetForce1(true);
    EXPECT_FALSE(opc.GetForce1());
    EXPECT_TRUE(opc.GetFSGateway());
    opc.ResetToDefaults();
    EXPECT_FALSE(opc.GetFSGateway());
    EXPECT_EQ(opc.GetHostName(), CString(u"localhost"));
}

TEST(OpcUaSettings, ResetRestoresEveryDefault) {
    OpcUaSettings ua;
    ua.SetHostName(u"plc");
    ua.SetPortName(u"4840");
    ua.SetGetCertificate(u"client.der");
    ua.SetSecurityPolicy(2);
    ua.SetMessageSecurityMode(3);
    ua.ResetToDefaults();
    EXPECT_EQ(ua.GetHostName(), CString(u"localhost"));
    EXPECT_EQ(ua.GetPortName(), CString(u"4841"));
    EXPECT_TRUE(ua.GetCertificate().IsEmpty());
    EXPECT_EQ(ua.GetSecurityPolicy(), 0);
    EXPECT_EQ(ua.GetMessageSecurityMode(), 1);
}

TEST(CFileSettings, ResetRestoresOnlyTheFileName) {
    CFileSettings log;
    EXPECT_EQ(log.GetFileName(), CString(u"OutputLogFile"));
    EXPECT_EQ(log.GetFileLogPerioMode(), 0);
    EXPECT_EQ(log.GetUserLogPeriod(), 1.0);
    EXPECT_FALSE(log.GetOverwriteOutputRate());
    EXPECT_EQ(log.GetOutputRate(), 0.1);

    log.SetFileName(u"gyro.log");
    log.SetFileLogPerioMode(2);
    log.SetUserLogPeriod(5.0);
    log.SetOverwriteOutputRate(true);
    log.SetOutputRate(2.0);
    log.ResetToDefaults();
    EXPECT_EQ(log.GetFileName(), CString(u"OutputLogFile"));
    EXPECT_EQ(log.GetFileLogPerioMode(), 2);
    EXPECT_EQ(log.GetUserLogPeriod(), 5.0);
    EXPECT_TRUE(log.GetOverwriteOutputRate());
    EXPECT_EQ(log.GetOutputRate(), 2.0);
}

}  // namespace
}  // namespace vex
