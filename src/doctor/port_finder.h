#pragma once

#include <QString>
#include <QStringList>

// "Find my cable": the ports before and after the user unplugs or plugs in the cable. A port
// that appears is the cable. One that goes away is the cable too, but it may come back under
// another name, so the finder then waits for it to be plugged in again.
class PortFinder {
public:
    enum class Step {
        Waiting,    // for the cable to be unplugged or plugged in
        Unplugged,  // a port went away; waiting for the cable to come back
        Found,      // exactly one port appeared
        Ambiguous,  // several appeared at once
    };

    void start(const QStringList& ports);
    // The ports of a fresh scan; returns the step reached.
    Step update(const QStringList& ports);

    Step step() const { return step_; }
    // Found: the cable's port. Unplugged: the port it was on.
    QString port() const { return port_; }
    // Ambiguous: the ports that appeared.
    const QStringList& candidates() const { return candidates_; }

private:
    QStringList baseline_;
    Step step_ = Step::Waiting;
    QString port_;
    QStringList candidates_;
};
