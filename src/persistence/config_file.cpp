#include "persistence/config_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <optional>

#include "model/frequency.h"
#include "persistence/file_access.h"
#include "persistence/text_encoding.h"

namespace {

const QString kConfigSection = QStringLiteral("config");
const QString kLang = QStringLiteral("Lang");
const QString kFileName = QStringLiteral("config.ini");

// Preset keys carry the plain slot number. Some groups get thirty default keys, of which only the
// first 25 are ever read.
struct PresetGroup {
    const char* section;
    const char* stem;
    const char* fallback;
    int defaultKeyCount;
    std::array<QString, kSlotCount> ChannelPresets::*values;
};

const PresetGroup kPresetGroups[] = {
    {"freq", "freq", "0", 30, &ChannelPresets::frequency},
    {"ctcss", "ctc", "67.0", 30, &ChannelPresets::code},
    {"power", "pwr", "high", 30, &ChannelPresets::power},
    {"band", "band", "窄带", 25, &ChannelPresets::bandwidth},
};

// The per-user folder may not exist yet on a first start.
Result<void> saveConfig(const QString& configPath, const PrivateProfile& profile) {
    QDir().mkpath(QFileInfo(configPath).absolutePath());
    return saveWholeFile(configPath, encodeFileText(profile.text()));
}

QString presetKey(const char* stem, int slot) {
    return QLatin1String(stem) + QString::number(slot);
}

// A config key that is missing (or empty) is written with its default and then read again.
QString completedValue(PrivateProfile& profile, const QString& key, const QString& fallback) {
    if (auto value = profile.read(kConfigSection, key)) return *value;
    profile.write(kConfigSection, key, fallback);
    return profile.readString(kConfigSection, key, QString());
}

// The channel count is held to 1..25, as a codeplug file's is.
QString heldMaxch(const QString& text) {
    const double value = numericValue(text);
    const int count = value < 1 ? 1 : value > kSlotCount ? kSlotCount : static_cast<int>(value);
    return QString::number(count);
}

// A band that is not a number is band 0; the rest of the file is read all the same.
int bandNumber(const QString& text) {
    const std::optional<double> value = strictNumber(text);
    if (!value) return 0;
    return qRound(qBound(-32768.0, *value, 32767.0));
}

void readPresets(PrivateProfile& profile, const PresetGroup& group, ChannelPresets& presets) {
    const QString section = QLatin1String(group.section);
    // Only the first key decides whether the group is missing; then all its keys are written.
    if (!profile.read(section, presetKey(group.stem, 0))) {
        for (int i = 0; i < group.defaultKeyCount; ++i) {
            profile.write(section, presetKey(group.stem, i), QString::fromUtf8(group.fallback));
        }
    }
    for (int slot = 0; slot < kSlotCount; ++slot) {
        (presets.*group.values)[slot] =
            profile.readString(section, presetKey(group.stem, slot), {});
    }
}

}  // namespace

StartupConfig readConfigProfile(PrivateProfile& profile) {
    StartupConfig config;
    config.language =
        languageFromConfigText(completedValue(profile, kLang, configTextOf(UiLanguage::Chinese)));
    config.channelsFixed = completedValue(profile, QStringLiteral("fixch"), QStringLiteral("no")) !=
                           QLatin1String("no");
    config.maxch =
        heldMaxch(completedValue(profile, QStringLiteral("maxch"), QStringLiteral("22")));
    config.defband =
        bandNumber(completedValue(profile, QStringLiteral("defband"), QStringLiteral("0")));
    for (const PresetGroup& group : kPresetGroups) readPresets(profile, group, config.presets);
    return config;
}

namespace {

// The file's profile; the error when it exists but cannot be read (then it must not be
// rewritten either).
Result<PrivateProfile> readProfile(const QString& configPath) {
    const QFileInfo info(configPath);
    if (!info.exists()) return PrivateProfile();
    // A FIFO or device of that name would hold the program at start-up, waiting for bytes.
    if (!info.isFile() && !info.isDir()) {
        return Error::inFile(ErrorKind::NotARegularFile, configPath);
    }
    const Result<QByteArray> content = readWholeFile(configPath);
    if (!content) return content.error();
    return PrivateProfile::fromText(decodeFileText(*content));
}

}  // namespace

StartupConfig ReadConfigFile(const QString& configPath, ConfigCompletion completion) {
    Result<PrivateProfile> read = readProfile(configPath);
    PrivateProfile profile = read ? std::move(read.value()) : PrivateProfile();
    StartupConfig config = readConfigProfile(profile);
    if (!read) config.unreadable = read.error();
    if (completion == ConfigCompletion::SaveMissingKeys && read && profile.changed()) {
        saveConfig(configPath, profile);
    }
    return config;
}

Codeplug loadStartupCodeplug(const QString& configPath, ConfigCompletion completion,
                             std::optional<UiLanguage> language, std::optional<Error>* unreadable) {
    StartupConfig config = ReadConfigFile(configPath, completion);
    if (language) config.language = *language;
    if (unreadable) *unreadable = config.unreadable;
    return buildStartupCodeplug(config);
}

QMap<int, QString> readPortPins(const QString& configPath) {
    constexpr int kLastPortNumber = 64;
    QMap<int, QString> pins;
    const Result<PrivateProfile> profile = readProfile(configPath);
    if (!profile) return pins;
    for (int number = 0; number <= kLastPortNumber; ++number) {
        const std::optional<QString> device =
            profile->read(QStringLiteral("ports"), QStringLiteral("com%1").arg(number));
        if (device) pins.insert(number, *device);
    }
    return pins;
}

Result<void> WriteConfigFile(const QString& configPath, const QString& key, UiLanguage language) {
    if (key.compare(kLang, Qt::CaseInsensitive) != 0) {
        return Error::inFile(ErrorKind::CannotWrite, configPath);
    }
    // A file that cannot be read is not replaced by one holding the language alone.
    Result<PrivateProfile> profile = readProfile(configPath);
    if (!profile) return profile.error();
    profile.value().write(kConfigSection, kLang, configTextOf(language));
    return saveConfig(configPath, *profile);
}

namespace {

const QString kSafeWriteSection = QStringLiteral("safewrite");
const QString kBackupKey = QStringLiteral("backup");
const QString kVerifyKey = QStringLiteral("verify");

QString yesNo(bool on) {
    return on ? QStringLiteral("yes") : QStringLiteral("no");
}

}  // namespace

SafeWritePreferences readSafeWritePreferences(const QString& configPath) {
    SafeWritePreferences preferences;
    const Result<PrivateProfile> profile = readProfile(configPath);
    if (!profile) return preferences;
    auto on = [&](const QString& key) {
        return profile->readString(kSafeWriteSection, key, yesNo(true))
                   .trimmed()
                   .compare(yesNo(false), Qt::CaseInsensitive) != 0;
    };
    preferences.backup = on(kBackupKey);
    preferences.verify = on(kVerifyKey);
    return preferences;
}

Result<void> writeSafeWritePreferences(const QString& configPath,
                                       const SafeWritePreferences& preferences) {
    Result<PrivateProfile> profile = readProfile(configPath);
    if (!profile) return profile.error();
    profile.value().write(kSafeWriteSection, kBackupKey, yesNo(preferences.backup));
    profile.value().write(kSafeWriteSection, kVerifyKey, yesNo(preferences.verify));
    return saveConfig(configPath, *profile);
}

QString configFilePathIn(const QString& overrideDir, const QString& programDir,
                         const QString& userConfigDir) {
    if (!overrideDir.isEmpty()) return QDir(overrideDir).filePath(kFileName);
    const QFileInfo program(programDir);
    // An installed program (/usr/bin) keeps no settings beside itself, even when run by root.
    const bool installed =
        programDir.startsWith(QLatin1String("/usr/")) || programDir == QLatin1String("/bin");
    if (!programDir.isEmpty() && !installed && program.isDir() && program.isWritable()) {
        return QDir(programDir).filePath(kFileName);
    }
    return QDir(userConfigDir).filePath(kFileName);
}

QString configFilePath(const QString& overrideDir) {
    const QString programDir =
        QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString();
    return configFilePathIn(overrideDir, programDir,
                            QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
}
