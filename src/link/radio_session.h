#pragma once

#include <QObject>
#include <optional>

#include "l10n/texts.h"
#include "link/link_client.h"
#include "model/codeplug.h"

class LinkTransport;
class Prompts;
class SessionView;

enum class SessionOutcome {
    Succeeded,
    Refused,     // not started: the port was closed, a check failed, or the link was busy
    TimedOut,    // the radio stopped answering (or the port failed); the reply timer reported it
    Cancelled,   // the user closed the progress window
    Failed,      // an error ended the session
    Incomplete,  // the session ran to its end, but some channels could not be taken
};

// What the read and the write session share: the link, the document they work on, the
// progress window, and the clean-up both end with (end_session). A session is a state machine
// driven by the link's events and by cancel(); it never waits in a loop.
class RadioSession : public QObject, public LinkClient {
    Q_OBJECT

public:
    ~RadioSession() override;

    bool isRunning() const { return running_; }
    SessionOutcome outcome() const { return outcome_; }
    // The read or write command; false when it could not start (port closed, a check failed,
    // link busy), after telling the user why.
    virtual bool start() = 0;
    // The user closed the progress window.
    virtual void cancel() = 0;

Q_SIGNALS:
    void finished(SessionOutcome outcome);

protected:
    RadioSession(LinkTransport& transport, Codeplug& doc, Prompts& prompts, SessionView& view,
                 QObject* parent);

    // Takes the link for this session; a busy link is refused with a message.
    bool claimLink();
    void end_session();
    // Gives the link back and reports the outcome.
    void finish(SessionOutcome outcome);
    void advanceProgress(int step);
    // What closing the progress window does before the session sees it.
    void progressWindowClosed();
    // What the window shows when the radio stops answering or the port fails under the
    // session: the progress window goes, the failure is reported, the buttons come back.
    void presentLinkFailure();
    // A request found the port closed: the user is told each time, the attempts run out.
    void portClosedOnSend() override;

    void status(l10n::MessageId id);
    // An OK-only box; `title` empty: the application's default title.
    void box(l10n::MessageId text, std::optional<l10n::MessageId> title);

    LinkTransport& transport_;
    Codeplug& doc_;
    Prompts& prompts_;
    SessionView& view_;
    UiLanguage language_ = UiLanguage::Chinese;
    int progress_ = 0;

private:
    bool running_ = false;
    SessionOutcome outcome_ = SessionOutcome::Refused;
};
