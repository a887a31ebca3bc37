#include "persistence/codeplug_file.h"

#include <QFileInfo>

#include "persistence/legacy_layouts.h"
#include "persistence/text_encoding.h"

namespace {

// The old layouts are told apart by their number of lines alone.
constexpr int kLinesV05 = 132;
constexpr int kLinesUnread = 212;
constexpr int kLinesV13 = 213;
constexpr int kLinesV16 = 214;
constexpr int kLinesV18 = 215;

CodeplugLoadResult refused(const QString& path, FileProblem problem) {
    CodeplugLoadResult result;
    result.error = FileError{path, problem, QString()};
    return result;
}

CodeplugLoadResult loaded(CodeplugLayout layout, std::optional<UiLanguage> savedLanguage) {
    CodeplugLoadResult result;
    result.layout = layout;
    result.savedLanguage = savedLanguage;
    return result;
}

}  // namespace

QString layoutName(CodeplugLayout layout) {
    switch (layout) {
        case CodeplugLayout::Current:
            return QStringLiteral("current");
        case CodeplugLayout::V05:
            return QStringLiteral("V05 (132 lines)");
        case CodeplugLayout::V13:
            return QStringLiteral("V13 (213 lines)");
        case CodeplugLayout::V16:
            return QStringLiteral("V16 (214 lines)");
        case CodeplugLayout::V18:
            return QStringLiteral("V18 (215 lines)");
    }
    return QString();
}

int CalFileLineCnt(const QByteArray& bytes) {
    return static_cast<int>(splitLines(decodeFileText(bytes)).size());
}

CodeplugLoadResult loadCodeplugData(Codeplug& doc, const QByteArray& bytes, const QString& path) {
    const QStringList lines = splitLines(decodeFileText(bytes));
    switch (lines.size()) {
        case kLinesV05:
            ReadSaveFile_V05(doc, lines);
            return loaded(CodeplugLayout::V05, std::nullopt);
        case kLinesUnread:
            return refused(path, FileProblem::UnreadLayout);
        case kLinesV13:
            return loaded(CodeplugLayout::V13, ReadSaveFile_V13(doc, lines));
        case kLinesV16:
            return loaded(CodeplugLayout::V16, ReadSaveFile_V16(doc, lines));
        case kLinesV18:
            return loaded(CodeplugLayout::V18, ReadSaveFile_V18(doc, lines));
        default:
            break;
    }
    const PrivateProfile profile(lines);
    // Reading a file with none of the sections would blank every cell of the plan.
    if (!holdsCodeplugSection(profile)) return refused(path, FileProblem::NotACodeplug);
    ReadSaveFile(doc, profile);
    return loaded(CodeplugLayout::Current, std::nullopt);
}

CodeplugLoadResult openCodeplugFile(Codeplug& doc, const QString& path) {
    auto content = readWholeFile(path);
    if (auto* error = std::get_if<FileError>(&content)) {
        CodeplugLoadResult result;
        result.error = *error;
        return result;
    }
    return loadCodeplugData(doc, std::get<QByteArray>(content), path);
}

QByteArray codeplugFileBytes(const Codeplug& doc) {
    PrivateProfile profile;
    writeCodeplugKeys(doc, profile);
    return encodeFileText(joinLines(profile.lines()));
}

std::optional<FileError> WriteSaveFile(const Codeplug& doc, const QString& path, SaveMode mode) {
    PrivateProfile profile;
    if (mode == SaveMode::KeepOtherLines && QFileInfo::exists(path)) {
        // What cannot be read cannot be kept: refuse rather than lose the other lines.
        auto content = readWholeFile(path);
        if (auto* error = std::get_if<FileError>(&content)) return *error;
        profile = PrivateProfile(splitLines(decodeFileText(std::get<QByteArray>(content))));
    }
    writeCodeplugKeys(doc, profile);
    return saveWholeFile(path, encodeFileText(joinLines(profile.lines())));
}
