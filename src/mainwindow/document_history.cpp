#include "mainwindow/document_history.h"

#include <QUndoCommand>

#include "model/editing.h"

namespace {

// What a step restores: the plan and settings, not the language of the moment nor the
// configuration the document was built from.
bool sameContent(const Codeplug& a, const Codeplug& b) {
    return a.plan == b.plan && a.chtot == b.chtot && a.freqstep == b.freqstep &&
           a.settings == b.settings;
}

class SnapshotCommand : public QUndoCommand {
public:
    SnapshotCommand(Codeplug& doc, Codeplug before, const std::function<void()>& refresh)
        : doc_(doc), before_(std::move(before)), after_(doc), refresh_(refresh) {}

    void undo() override { restore(before_); }
    void redo() override {
        // Pushing redoes; the edit itself has done that already.
        if (pushed_) restore(after_);
        pushed_ = true;
    }

private:
    void restore(const Codeplug& state) {
        Codeplug restored = state;
        // A step taken in the other language comes back in the words of this one.
        if (restored.language != doc_.language) applyLanguage(restored, doc_.language);
        doc_ = std::move(restored);
        refresh_();
    }

    Codeplug& doc_;
    Codeplug before_;
    Codeplug after_;
    std::function<void()> refresh_;
    bool pushed_ = false;
};

}  // namespace

DocumentHistory::DocumentHistory(Codeplug& doc, std::function<void()> refresh, QObject* parent)
    : QObject(parent), doc_(doc), refresh_(std::move(refresh)) {}

void DocumentHistory::record(const std::function<void()>& edit) {
    Codeplug before = doc_;
    edit();
    push(std::move(before));
}

void DocumentHistory::begin() { pending_ = doc_; }

void DocumentHistory::end() { push(std::move(pending_)); }

void DocumentHistory::push(Codeplug before) {
    if (sameContent(before, doc_)) return;
    stack_.push(new SnapshotCommand(doc_, std::move(before), refresh_));
}
