#pragma once

#include <QObject>
#include <QString>

#include "l10n/service_texts.h"
#include "service/service_channel.h"

enum class ServiceOutcome {
    Succeeded,
    Refused,    // nothing sent: a value did not fit, the port was closed, the link was busy
    Failed,     // the radio did not answer (or the port failed) part way
    Cancelled,  // the owner gave up waiting
};

// What every engineering panel shares: its operations run on the service channel one at a
// time, each from one button press to one result box (an OK box with the panel's title), and
// the panel's buttons are disabled meanwhile. An operation is a chain of requests, each
// continued from the reply callback of the one before.
class ServicePanel : public QObject {
    Q_OBJECT

public:
    bool isRunning() const { return running_; }
    ServiceOutcome outcome() const { return outcome_; }
    // The owner gives up waiting (the command line's Ctrl-C): the request under way is
    // dropped and the operation ends without its result box.
    void cancel();

Q_SIGNALS:
    // The buttons follow this: disabled while an operation runs.
    void runningChanged(bool running);
    void finished(ServiceOutcome outcome);

protected:
    explicit ServicePanel(ServiceChannel& channel, QObject* parent = nullptr);

    UiLanguage language() const { return channel_.language(); }
    QString text(l10n::ServiceText id) const { return l10n::serviceText(id, language()); }
    // An OK box.
    void box(const QString& text, const QString& title);
    void box(l10n::ServiceText text, l10n::ServiceText title);

    // Starts an operation on the channel; false (after the message) when the link is busy.
    bool begin();
    // Ends it with `outcome`.
    void finish(ServiceOutcome outcome);
    // An operation refused before anything was sent: the reason in an OK box.
    bool refuse(const QString& text, const QString& title);

    // One request of the operation, through Pc_Send_dt.
    void send(const QByteArray& frame, AttemptCount preset, ReplyLengths accepted,
              ServiceChannel::Done done);

    ServiceChannel& channel_;

private:
    bool running_ = false;
    ServiceOutcome outcome_ = ServiceOutcome::Refused;
};
