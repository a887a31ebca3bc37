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

Result<LoadedCodeplug> refused(const QString& path, ErrorKind kind) {
    return Error::inFile(kind, path);
}

Result<LoadedCodeplug> loaded(CodeplugLayout layout, std::optional<UiLanguage> savedLanguage) {
    return LoadedCodeplug{layout, savedLanguage};
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
    return static_cast<int>(countLines(decodeFileText(bytes)));
}

Result<LoadedCodeplug> loadCodeplugData(Codeplug& doc, const QByteArray& bytes,
                                        const QString& path) {
    const QString text = decodeFileText(bytes);
    // Only the old layouts, a few hundred lines at most, are split into a list of lines.
    const qsizetype lineCount = countLines(text);
    const auto lines = [&text] { return splitLines(text); };
    switch (lineCount) {
        case kLinesV05:
            ReadSaveFile_V05(doc, lines());
            return loaded(CodeplugLayout::V05, std::nullopt);
        case kLinesUnread:
            return refused(path, ErrorKind::UnreadLayout);
        case kLinesV13:
            return loaded(CodeplugLayout::V13, ReadSaveFile_V13(doc, lines()));
        case kLinesV16:
            return loaded(CodeplugLayout::V16, ReadSaveFile_V16(doc, lines()));
        case kLinesV18:
            return loaded(CodeplugLayout::V18, ReadSaveFile_V18(doc, lines()));
        default:
            break;
    }
    const PrivateProfile profile = PrivateProfile::fromText(text);
    // Reading a file with none of the sections would blank every cell of the plan.
    if (!holdsCodeplugSection(profile)) return refused(path, ErrorKind::NotACodeplug);
    ReadSaveFile(doc, profile);
    return loaded(CodeplugLayout::Current, std::nullopt);
}

Result<LoadedCodeplug> openCodeplugFile(Codeplug& doc, const QString& path) {
    const Result<QByteArray> content = readWholeFile(path);
    if (!content) return content.error();
    return loadCodeplugData(doc, *content, path);
}

QByteArray codeplugFileBytes(const Codeplug& doc) {
    PrivateProfile profile;
    writeCodeplugKeys(doc, profile);
    return encodeFileText(profile.text());
}

Result<void> WriteSaveFile(const Codeplug& doc, const QString& path, SaveMode mode) {
    PrivateProfile profile;
    // Only a regular file has lines to keep; saveWholeFile refuses anything else of that name.
    if (mode == SaveMode::KeepOtherLines && QFileInfo(path).isFile()) {
        // What cannot be read cannot be kept: refuse rather than lose the other lines.
        const Result<QByteArray> content = readWholeFile(path);
        if (!content && content.error().kind == ErrorKind::TooLarge) {
            return Error::inFile(ErrorKind::TooLargeToKeep, path);
        }
        if (!content) return content.error();
        profile = PrivateProfile::fromText(decodeFileText(*content));
    }
    writeCodeplugKeys(doc, profile);
    const QByteArray bytes = encodeFileText(profile.text());
    // A file this program would refuse to open again is not written.
    if (bytes.size() > kMaxFileSize) return Error::inFile(ErrorKind::TooLargeToKeep, path);
    return saveWholeFile(path, bytes);
}
