#pragma once

// What a boot loader read promises whatever the line brings back: it always ends, it never
// keeps more than its range, and it succeeds only with the whole range. The fuzz target checks
// it for every input; the boot loader tests check it for the inputs kept in
// tests/bootloader/fuzz_regressions.

#include <QByteArray>

#include "bootloader/boot_frames.h"
#include "bootloader/boot_session.h"
#include "link/link_transport.h"
#include "support/fake_port.h"
#include "support/manual_clock.h"

namespace boot_properties {

// Reads two blocks (0x1000..0x10FF). The input is cut in chunks, each a length byte and that
// many bytes, which arrive on the line one after the other, 40 ms apart.
inline const char* checkBootRead(const QByteArray& bytes) {
    constexpr int kRange = 2 * boot::kBlockSize;
    ManualClock clock;
    FakePort port(clock);
    port.open(QStringLiteral("COM1"));
    LinkTransport transport(port, clock);
    BootSession session(transport, UiLanguage::English);
    BootSession::Job job;
    job.operation = BootSession::Operation::Read;
    job.start = 0x1000;
    job.end = 0x1000 + kRange - 1;
    if (!session.start(job)) return "a read of a good range on an open port starts";
    for (qsizetype at = 0; at < bytes.size() && session.isRunning();) {
        const int length = static_cast<quint8>(bytes[at]) % 160;
        port.inject(bytes.mid(at + 1, length));
        at += 1 + length;
        clock.advance(40);
    }
    session.cancel();
    if (session.isRunning()) return "a boot loader operation always ends";
    if (session.data().size() > kRange) return "a read keeps no more than its range";
    if (session.outcome() == BootSession::Outcome::Succeeded && session.data().size() != kRange) {
        return "a read that succeeds brings its whole range";
    }
    return nullptr;
}

}  // namespace boot_properties
