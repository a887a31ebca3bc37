#include "link/memory_image.h"

#include <gtest/gtest.h>

#include "model/code_tables.h"
#include "model/editing.h"

namespace {

QByteArray bytes(std::initializer_list<int> values) {
    QByteArray out;
    for (int v : values) out.append(static_cast<char>(v));
    return out;
}

Codeplug startup(int normalmode = 0, UiLanguage lang = UiLanguage::Chinese) {
    StartupConfig config;
    config.language = lang;
    config.channelsFixed = normalmode == 1;
    for (int slot = 0; slot < kSlotCount; ++slot) config.presets.frequency[slot] = "446.00625";
    Codeplug doc = buildStartupCodeplug(config);
    RESET_TEXT(doc);  // step flags, as the write session does first
    return doc;
}

QByteArray record(const Result<QByteArray>& frame) {
    EXPECT_TRUE(frame.ok());
    const QByteArray f = frame.ok() ? *frame : QByteArray();
    return f.mid(4, f.size() - 5);  // without command, length, block, sub and checksum
}

TEST(SettingsImage, DefaultSettingsEncodeAsTheKnownFrame) {
    const Codeplug doc = startup();
    EXPECT_EQ(encode_settings(doc), bytes({0x58, 0x06, 0x00, 0x00, 0x13, 0x00, 0x16, 0x00, 0x87}));
}

TEST(SettingsImage, AChannelCountIsHeldToOneByte) {
    for (const auto& [chtot, s2] :
         {std::pair{"-1e300", 0}, {"-5", 0}, {"1e300", 255}, {"300", 255}}) {
        Codeplug doc = startup();
        doc.chtot = chtot;
        EXPECT_EQ(static_cast<quint8>(encode_settings(doc)[6]), s2) << chtot;
    }
}

TEST(SettingsImage, EachSettingHasItsBit) {
    const struct {
        SettingKey key;
        int byte;  // 0: S0, 1: S1
        int mask;
    } bits[] = {
        {SettingKey::normalmode, 0, 0x40}, {SettingKey::txen, 0, 0x80},
        {SettingKey::busytxdis, 0, 0x04},  {SettingKey::dtmfen, 0, 0x20},
        {SettingKey::bluetooth, 0, 0x08},  {SettingKey::voicebrc, 1, 0x80},
        {SettingKey::sos, 1, 0x10},        {SettingKey::fm, 1, 0x04},
        {SettingKey::autolock, 1, 0x08},   {SettingKey::tot, 1, 0x40},
        {SettingKey::agingtest, 1, 0x20},
    };
    for (const auto& bit : bits) {
        SCOPED_TRACE(settingKeyName(bit.key).toStdString());
        Codeplug doc = startup();
        doc.settings[bit.key] = 1;
        const QByteArray frame = encode_settings(doc);
        EXPECT_EQ(static_cast<quint8>(frame[4 + bit.byte]), (bit.byte == 0 ? 0x13 : 0) | bit.mask);
        doc.settings[bit.key] = 2;  // an out-of-range index writes 0
        EXPECT_EQ(encode_settings(doc), encode_settings(startup()));

        Codeplug decoded = startup();
        QByteArray reply = bytes({0x13, 0x00, 22});
        reply[bit.byte] = static_cast<char>(reply[bit.byte] | bit.mask);
        ASSERT_TRUE(decode_settings(decoded, reply));
        for (SettingKey key : kAllSettings) {
            if (key == SettingKey::freqsel || key == SettingKey::freqband) continue;
            EXPECT_EQ(decoded.settings[key], key == bit.key ? 1 : 0)
                << settingKeyName(key).toStdString();
        }
    }
}

TEST(SettingsImage, DecodeTakesModeCountButNotBand) {
    Codeplug doc = startup();
    doc.defaultBand = 1;
    doc.plan[24].rxctc = "D023";
    ASSERT_TRUE(decode_settings(doc, bytes({0xD3, 0x03, 40})));
    EXPECT_EQ(doc.settings[SettingKey::normalmode], 1);
    EXPECT_EQ(doc.settings[SettingKey::txen], 1);
    EXPECT_EQ(doc.settings[SettingKey::freqband], 1);  // the configured band, not the radio's 3
    EXPECT_EQ(doc.chtot, "25");
    EXPECT_EQ(doc.codeTable.size(), kProfessionalCodeCount);
    EXPECT_EQ(doc.plan[24].rxctc, "OFF");  // the mode change reset every code

    doc.plan[24].rxctc = "I023";
    ASSERT_TRUE(decode_settings(doc, bytes({0x53, 0x00, 0})));  // same mode: no rebuild
    EXPECT_EQ(doc.plan[24].rxctc, "I023");
    EXPECT_EQ(doc.chtot, "0");
    EXPECT_FALSE(RESET_Ch_Sel(doc)[0]);
    EXPECT_FALSE(decode_settings(doc, bytes({0x13, 0x00})));
}

TEST(ChannelImage, FirstChannelFrame) {
    Codeplug doc = startup();
    const auto frame = std::get<QByteArray>(encode_channel(doc, 0));
    // 446.00625 on the 6.25 kHz raster: 7361 steps; code "67.0" is position 1; narrow, high;
    // the custom tones default to 67.0 Hz = 670 tenths.
    EXPECT_EQ(frame, bytes({0x57, 0x0D, 0x00, 0x00, 0x1C, 0xC1, 0x1C, 0xC1, 0x01, 0x01, 0x23, 0x02,
                            0x9E, 0x02, 0x9E, 0x83}));
}

TEST(ChannelImage, FrequencyStepsAndRounding) {
    Codeplug doc = startup();
    doc.plan[1].rxfreq = "446.00500";
    doc.plan[1].txfreq = "446.00500";
    RESET_FER(doc);
    EXPECT_EQ(record(encode_channel(doc, 1)).left(4), bytes({0x23, 0xF1, 0x23, 0xF1}));  // 9201

    doc.plan[2].rxfreq = "399.00000";  // below the band: no step count
    const auto result = encode_channel(doc, 2);
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().channel, 3);
    EXPECT_EQ(result.error().field, "rxfreq");
}

TEST(ChannelImage, ProfessionalCodesAndFlags) {
    const struct {
        const char* rx;
        const char* tx;
        int rxByte, txByte, codeFlags, length;
    } cases[] = {
        {"I023", "OFF", 56, 0, 0x08, 11},
        {"OFF", "I754", 0, 160, 0x10, 11},
        {"Custom", "D754", 161, 160, 0x08, 11},
        {"CDCSS", "I023", 162, 56, 0x00, 13},  // a custom DCS drops both inversion flags
        {"D023", "CDCSS", 56, 162, 0x00, 13},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.rx) + "/" + c.tx);
        Codeplug doc = startup(1, UiLanguage::English);
        doc.plan[0].rxctc = c.rx;
        doc.plan[0].txctc = c.tx;
        doc.plan[0].rxcdc = "74565";  // 0x012345
        doc.plan[0].txcdc = "74565";
        const auto frame = std::get<QByteArray>(encode_channel(doc, 0));
        EXPECT_EQ(frame[1], c.length + 2);
        const QByteArray r = frame.mid(4, c.length);
        EXPECT_EQ(static_cast<quint8>(r[4]), c.rxByte);
        EXPECT_EQ(static_cast<quint8>(r[5]), c.txByte);
        EXPECT_EQ(static_cast<quint8>(r[6]) & 0x18, c.codeFlags);
        if (c.length == 13) {
            const bool rxDcs = c.rxByte == 162;
            EXPECT_EQ(r.mid(rxDcs ? 7 : 9, 2), bytes({0x23, 0x45}));
            EXPECT_EQ(r[rxDcs ? 11 : 12], 0x01);
            EXPECT_EQ(r[rxDcs ? 12 : 11], 0x00);  // the other code's high byte
        }
    }
}

TEST(ChannelImage, DecodeRecords) {
    Codeplug doc = startup(1, UiLanguage::English);
    // 7361 steps of 6.25 kHz receive, 9201 of 5 kHz transmit, codes 56 with both inversion flags,
    // wide, high power, receive tone 885 tenths, transmit 670.
    ASSERT_TRUE(decode_channel(doc, 3,
                               bytes({0x1C, 0xC1, 0x23, 0xF1, 56, 56,
                                      0x01 | 0x04 | 0x08 | 0x10 | 0x20, 0x03, 0x75, 0x02, 0x9E})));
    const ChannelRecord& ch = doc.plan[3];
    EXPECT_EQ(ch.rxfreq, "446.00625");
    EXPECT_EQ(ch.txfreq, "446.00500");  // 9201 steps of 5 kHz: no transmit 6.25 flag
    EXPECT_EQ(ch.rxctc, "I023");
    EXPECT_EQ(ch.txctc, "I023");
    EXPECT_EQ(ch.band, "wide");
    EXPECT_EQ(ch.power, "high");
    EXPECT_EQ(ch.rxctcfreq, "88.5");
    EXPECT_EQ(ch.txctcfreq, "67");

    // Code byte 162 with the receive flag is the custom DCS, and may come as 13 bytes.
    ASSERT_TRUE(
        decode_channel(doc, 4, bytes({0, 0, 0, 0, 162, 0, 0x08, 0x23, 0x45, 0, 0, 0x01, 0})));
    EXPECT_EQ(doc.plan[4].rxctc, "CDCSS");
    EXPECT_EQ(doc.plan[4].rxcdc, "74565");
    EXPECT_EQ(doc.plan[4].rxfreq, "400.00000");
    ASSERT_TRUE(decode_channel(doc, 5, bytes({0, 0, 0, 0, 162, 0, 0x00, 0, 0, 0, 0})));
    EXPECT_EQ(doc.plan[5].rxctc, "I025");
}

TEST(ChannelImage, RepliesThatLeaveTheSlotUnchanged) {
    const QByteArray replies[] = {
        QByteArray(), bytes({0x1C, 0xC1, 0x1C, 0xC1, 1, 1, 0}),            // too short
        bytes({0x1C, 0xC1, 0x1C, 0xC1, 1, 1, 0, 2, 0x9E, 2, 0x9E, 0, 0}),  // 13 bytes, no CDCSS
        bytes({0x80, 0x00, 0x1C, 0xC1, 1, 1, 0, 2, 0x9E, 2, 0x9E}),  // step count over 15 bits
    };
    for (const QByteArray& reply : replies) {
        Codeplug doc = startup();
        const ChannelRecord before = doc.plan[7];
        EXPECT_FALSE(decode_channel(doc, 7, reply)) << reply.toHex().toStdString();
        EXPECT_EQ(doc.plan[7], before);
    }
}

TEST(ChannelImage, OutOfBandReplyGoesThroughTheEntryRule) {
    Codeplug doc = startup();
    Notices notices;
    // 17000 steps of 6.25 kHz = 506.25 MHz: outside band 0.
    ASSERT_TRUE(decode_channel(doc, 0, bytes({0x42, 0x68, 0x1C, 0xC1, 1, 1, 3, 2, 0x9E, 2, 0x9E}),
                               &notices));
    EXPECT_EQ(doc.plan[0].rxfreq, "400");
    EXPECT_EQ(doc.plan[0].txfreq, "446.00625");
    EXPECT_EQ(notices.size(), 2u);
}

TEST(ChannelImage, CustomTonesRoundToTenthsAndValuesThatDoNotFitNameTheirField) {
    const struct {
        QString ChannelRecord::*field;
        const char* value;
        const char* rxctc;  // "CDCSS" sends the DCS value instead of the tone
        int word;           // receive custom word sent; -1: refused
        const char* refusedField;
    } cases[] = {
        {&ChannelRecord::rxctcfreq, "88.56", "OFF", 886, nullptr},  // rounded, not cut to 885
        {&ChannelRecord::rxctcfreq, "88.54", "OFF", 885, nullptr},
        {&ChannelRecord::rxctcfreq, "6553.5", "OFF", 0xFFFF, nullptr},
        {&ChannelRecord::rxctcfreq, "6553.6", "OFF", -1, "rxctcfreq"},
        {&ChannelRecord::txctcfreq, "-1", "OFF", -1, "txctcfreq"},
        {&ChannelRecord::rxcdc, "16777216", "CDCSS", -1, "rxcdc"},
        {&ChannelRecord::rxfreq, "1e300", "OFF", -1, "rxfreq"},
        {&ChannelRecord::txfreq, "399.99", "OFF", -1, "txfreq"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        Codeplug doc = startup(1);
        doc.plan[4].*c.field = c.value;
        doc.plan[4].rxctc = c.rxctc;
        const Result<QByteArray> frame = encode_channel(doc, 4);
        if (c.word < 0) {
            ASSERT_FALSE(frame.ok());
            EXPECT_EQ(frame.error().channel, 5);
            EXPECT_EQ(frame.error().field, c.refusedField);
            EXPECT_EQ(frame.error().detail, c.value);
            continue;
        }
        const QByteArray r = record(frame);
        EXPECT_EQ(static_cast<quint8>(r[7]) * 256 + static_cast<quint8>(r[8]), c.word);
    }
}

TEST(ChannelImage, EncodeThenDecodeGivesTheSameChannel) {
    Codeplug doc = startup(1);
    ChannelRecord& ch = doc.plan[9];
    ch.rxfreq = "462.56250";
    ch.txfreq = "467.71000";
    ch.rxctc = "D754";
    ch.txctc = QString::fromUtf8("自定义");
    ch.txctcfreq = "88.5";
    ch.band = QString::fromUtf8("宽带");
    ch.power = QString::fromUtf8("小");
    RESET_TEXT(doc);
    const ChannelRecord written = ch;
    const QByteArray r = record(encode_channel(doc, 9));

    Codeplug other = startup(1);
    ASSERT_TRUE(decode_channel(other, 9, r));
    RESET_TEXT(other);
    EXPECT_EQ(other.plan[9].rxfreq, written.rxfreq);
    EXPECT_EQ(other.plan[9].txfreq, written.txfreq);
    EXPECT_EQ(other.plan[9].rxctc, written.rxctc);
    EXPECT_EQ(other.plan[9].txctc, written.txctc);
    EXPECT_EQ(other.plan[9].txCodeToolTip, "88.5");
    EXPECT_EQ(other.plan[9].band, written.band);
    EXPECT_EQ(other.plan[9].power, written.power);
}

}  // namespace
