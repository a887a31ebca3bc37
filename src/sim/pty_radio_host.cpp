#include "sim/pty_radio_host.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <cstring>

PtyRadioHost::PtyRadioHost(Clock& clock, SimRadio& radio, QObject* parent)
    : QObject(parent),
      radio_(radio),
      toRadio_(clock, [this](const QByteArray& bytes) { radio_.receive(bytes); }),
      fromRadio_(clock, [this](const QByteArray& bytes) { transmit(bytes); }) {
    radio_.setTransmitter([this](const QByteArray& bytes) { fromRadio_.push(bytes); });
    radio_.setHangUpHandler([this] {
        closeLine();
        Q_EMIT hungUp();
    });
}

PtyRadioHost::~PtyRadioHost() {
    closeLine();
}

bool PtyRadioHost::open(QString* error) {
    auto fail = [&](const char* what) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(strerror(errno)));
        closeLine();
        return false;
    };
    master_ = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (master_ < 0) return fail("posix_openpt");
    if (::grantpt(master_) != 0 || ::unlockpt(master_) != 0) return fail("grantpt/unlockpt");
    const char* name = ::ptsname(master_);
    if (!name) return fail("ptsname");
    devicePath_ = QString::fromLocal8Bit(name);

    terminal_ = ::open(name, O_RDWR | O_NOCTTY);
    if (terminal_ < 0) return fail("open terminal side");
    termios raw{};
    if (::tcgetattr(terminal_, &raw) == 0) {
        ::cfmakeraw(&raw);
        ::cfsetspeed(&raw, B9600);
        ::tcsetattr(terminal_, TCSANOW, &raw);
    }

    notifier_ = std::make_unique<QSocketNotifier>(master_, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &PtyRadioHost::onReadable);
    return true;
}

void PtyRadioHost::setPacing(bool on) {
    toRadio_.setPacing(on);
    fromRadio_.setPacing(on);
}

void PtyRadioHost::onReadable() {
    char buffer[512];
    for (;;) {
        const ssize_t count = ::read(master_, buffer, sizeof buffer);
        if (count > 0) {
            toRadio_.push(QByteArray(buffer, static_cast<int>(count)));
            continue;
        }
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
        // The line is gone; nothing more will come.
        notifier_->setEnabled(false);
        return;
    }
}

void PtyRadioHost::transmit(const QByteArray& bytes) {
    if (master_ < 0) return;
    // A handful of bytes never fills the terminal's queue; if it ever did, they would be lost
    // as on a real line with nobody listening.
    const ssize_t written = ::write(master_, bytes.constData(), static_cast<size_t>(bytes.size()));
    Q_UNUSED(written);
}

void PtyRadioHost::closeLine() {
    notifier_.reset();
    toRadio_.clear();
    fromRadio_.clear();
    if (terminal_ >= 0) ::close(terminal_);
    if (master_ >= 0) ::close(master_);
    terminal_ = master_ = -1;
}
