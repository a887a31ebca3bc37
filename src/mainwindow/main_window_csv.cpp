#include "l10n/csv_texts.h"
#include "l10n/error_texts.h"
#include "l10n/window_texts.h"
#include "mainwindow/document_history.h"
#include "mainwindow/main_window.h"
#include "persistence/csv_export.h"
#include "persistence/csv_import.h"

// CSV export and import from the File menu: the core reads, checks and writes; the window asks
// for the file and shows the outcome.

namespace {
// A box is no place for a list a whole screen long; the rest is counted.
constexpr int kFaultsShown = 20;
}  // namespace

void MainWindow::exportCsv() {
    const QString path = chooseSavePath(l10n::fixed::kCsvFilter, QStringLiteral(".csv"));
    if (path.isEmpty()) return;
    if (const Result<void> saved = exportCsvFile(doc_, path); !saved) {
        statusRelay_.showMessage(
            warningBox(l10n::describeError(saved.error(), doc_.language), doc_.language));
    }
    refreshDocumentViews();
}

void MainWindow::importCsv() {
    const QString path = prompts_.chooseOpenFile(QString::fromUtf8(l10n::fixed::kCsvFilter));
    if (path.isEmpty()) return;
    closeGridEditor();
    const Result<CsvImport> read = importCsvFile(doc_, path);
    QString refusal;
    if (!read) {
        refusal = l10n::describeError(read.error(), doc_.language);
    } else if (!read->document) {
        const QStringList lines =
            l10n::describeCellFaults(read->faults, doc_.language, kFaultsShown);
        refusal = l10n::csvRefusedHeading(doc_.language) + QLatin1Char('\n') +
                  lines.join(QLatin1Char('\n'));
    }
    if (!refusal.isEmpty()) {
        statusRelay_.showMessage(warningBox(refusal, doc_.language));
        return;
    }
    history_->record([&] { doc_ = *read->document; });  // one undo step
    refreshDocumentViews();
}
