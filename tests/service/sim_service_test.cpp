// The simulated radio's service side answers well-formed requests only.

#include "sim/sim_service.h"

#include <gtest/gtest.h>

#include "service/service_protocol.h"

namespace {

TEST(SimService, MalformedRequestsGoUnanswered) {
    const struct {
        quint8 command;
        const char* payload;
        bool answered;
    } cases[] = {
        {service::kCalibrationRead, "000007", true},
        {service::kCalibrationRead, "0000", false},
        {service::kCalibrationWrite,
         "0000"
         "0102030405060708",
         true},
        {service::kCalibrationWrite,
         "0000"
         "01020304050607",
         false},
        {service::kEepromRowRead, "090a05", true},
        {service::kEepromRowRead, "0a0a05", false},  // there is no eleventh row
        {service::kEepromRowWrite,
         "0001"
         "3a1f00",
         true},
        {service::kEepromRowWrite,
         "000b"
         "3a1f00",
         false},
        {service::kBandRead, "030005", true},
        {service::kBandRead, "040005", false},
        {service::kBandWrite, "000005", true},  // the same code reads the player's steps
        {service::kBandDefaults, "0000000102030405060708", true},  // and writes them
        {service::kBandDefaults, "00000001020304050607", false},
        {service::kHardwareWrite, "0000ff04026d", true},
        {service::kHardwareWrite, "0000ff0402", false},
        {service::kVolumeRead, "0000", false},
        {service::kVolumeWrite,
         "0000"
         "0a02080a0c0e1012160a",
         true},
        {service::kVolumeWrite,
         "0000"
         "0a02080a0c0e101216",
         false},
        {service::kCrystalWrite, "000000fd", true},
        {service::kCrystalWrite, "0000fd", false},
        {0x55, "01", false},
    };
    for (const auto& c : cases) {
        SimService sim;
        EXPECT_EQ(sim.answer(c.command, QByteArray::fromHex(c.payload)).has_value(), c.answered)
            << std::hex << int(c.command) << " " << c.payload;
    }
}

TEST(SimService, WritesAreReadBack) {
    SimService sim;
    sim.answer(service::kRficWrite, QByteArray::fromHex("0001"
                                                        "ff1234"));
    EXPECT_EQ(sim.answer(service::kRficRead, QByteArray::fromHex("00ff05"))->bytes.toHex(),
              "ff1234");
    sim.answer(service::kCrystalWrite, QByteArray::fromHex("00000081"));
    EXPECT_EQ(sim.crystalTrim(), -127);
    EXPECT_EQ(sim.answer(service::kCrystalRead, QByteArray::fromHex("000005"))->bytes.toHex(),
              "0000000081");
    // Saving a shorter table leaves the rows beyond it empty.
    sim.answer(service::kEepromRowWrite, QByteArray::fromHex("0001"
                                                             "101234"));
    EXPECT_EQ(sim.answer(service::kEepromRowRead, QByteArray::fromHex("000a05"))->bytes.toHex(),
              "101234");
    EXPECT_EQ(sim.answer(service::kEepromRowRead, QByteArray::fromHex("010a05"))->bytes.toHex(),
              "000000");
    const auto version = sim.answer(service::kVersionRead, QByteArray::fromHex("000005"));
    EXPECT_EQ(version->kind, SimService::Answer::Text);
    EXPECT_TRUE(version->bytes.endsWith('\r'));
}

}  // namespace
