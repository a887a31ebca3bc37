#pragma once

// What the receive side promises for any bytes from the line, and the reply decoders for any
// payload. The fuzz targets check it for every input they make; the regression test of the link
// checks it for the inputs kept in tests/link/fuzz_regressions.

#include <QByteArray>

#include "link/frame_parser.h"
#include "link/memory_image.h"
#include "reader_properties.h"

namespace link_properties {

constexpr int kMaxReplyPayload = 130;

// The first byte's low bit switches line mode on for the rest of the input.
inline const char* checkFrameParser(const QByteArray& bytes) {
    FrameParser parser;
    if (!bytes.isEmpty() && (bytes[0] & 1)) parser.setLineMode(true);
    for (qsizetype i = 1; i < bytes.size(); ++i) {
        const FrameParser::Outcome outcome = parser.feed(static_cast<quint8>(bytes[i]));
        if (outcome == FrameParser::Outcome::FrameComplete &&
            parser.reply().size() > kMaxReplyPayload) {
            return "a reply carries at most 130 payload bytes";
        }
        if (parser.lineIndex() < 0 || parser.lineIndex() >= FrameParser::kLineBufferSize) {
            return "the line index stays inside its buffer";
        }
    }
    return nullptr;
}

// The first byte chooses: bit 0 the document (normal or professional codes), bit 1 settings or
// channel record, the rest the slot. The payload is what follows.
inline const char* checkReplyDecoders(const QByteArray& bytes) {
    if (bytes.isEmpty()) return nullptr;
    const int choice = static_cast<quint8>(bytes[0]);
    const Codeplug& start = reader_properties::startDocument(choice & 1);
    Codeplug doc = start;
    const QByteArray payload = bytes.mid(1);
    if (choice & 2) {
        if (!decode_settings(doc, payload)) {
            return reader_properties::sameDocument(doc, start)
                       ? nullptr
                       : "a refused settings reply leaves the document as it was";
        }
        const double count = numericValue(doc.chtot);
        return count >= 0 && count <= kSlotCount ? nullptr
                                                 : "a radio's channel count is held to 25";
    }
    const int slot = (choice >> 2) % kSlotCount;
    if (decode_channel(doc, slot, payload)) return nullptr;
    return doc.plan[slot] == start.plan[slot] ? nullptr
                                              : "a refused channel reply leaves the slot as it was";
}

}  // namespace link_properties
