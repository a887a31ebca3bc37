#pragma once

#include <QSet>

// Faults the simulated radio can be told to make. Requests are counted from 1 in the order
// the radio receives them (frames with a good checksum only), over the radio's whole life.
struct SimFaults {
    bool silentAlways = false;
    QSet<int> silent;       // no reply to these requests
    QSet<int> badChecksum;  // the reply's checksum is off by one
    QSet<int> garbage;      // bytes no parser can take come before the reply
    QSet<int> cutFrame;     // the reply stops after its command byte
    QSet<int> wrongLength;  // the reply carries one byte too many
    int hangUpAt = 0;       // the line drops when this request arrives (0: never)
    bool noise = false;     // answers nothing and keeps the line full of random bytes
    // The boot loader: not listening at all (the radio was not started in boot mode), and a
    // bit flipped in the k-th block of a read (counted from 1 after each start of read).
    bool notInBootMode = false;
    int corruptReadBlock = 0;
    // When a write ends ("E"), the lowest bit of byte `corruptOffset` (from 0) of the record
    // stored for channel `corruptChannel` (from 1; 0: never) flips, as a failing flash cell would.
    int corruptChannel = 0;
    int corruptOffset = 0;

    bool silentFor(int request) const { return silentAlways || noise || silent.contains(request); }
};
