// The File menu's CSV items: export writes the plan, import is one undo step, a bad file is
// refused with every bad cell named.
#include <QAction>
#include <QMenu>
#include <QPushButton>

#include "persistence/csv_export.h"
#include "persistence/file_access.h"
#include "window_fixture.h"

namespace {

using Col = ChannelGridModel::Column;

TEST(CsvMenu, ExportWritesThePlanAndImportIsOneUndoStep) {
    WindowFixture f;
    const QStringList items = [&] {
        QStringList texts;
        for (QAction* action : f.find<QMenu>("MenuFile")->actions()) texts << action->text();
        return texts;
    }();
    EXPECT_TRUE(items.contains("Import CSV…")) << items.join('|').toStdString();
    EXPECT_TRUE(items.contains("Export CSV…"));

    f.click(0, Col::Power);                                       // high -> low
    f.prompts.savePath = f.dir.filePath(QStringLiteral("plan"));  // the extension is added
    f.find<QAction>("MenuExportCsv")->trigger();
    const QString csv = f.dir.filePath(QStringLiteral("plan.csv"));
    const Result<QByteArray> written = readWholeFile(csv);
    ASSERT_TRUE(written.ok());
    EXPECT_EQ(written.value(), codeplugCsvBytes(f.window->document()));

    // A second window, in Chinese, takes the file in its own words.
    WindowFixture g(startupDocument(UiLanguage::Chinese));
    EXPECT_EQ(g.find<QAction>("MenuImportCsv")->text(), "导入 CSV…");
    const QString before = g.text(0, Col::Power);
    g.prompts.openPath = csv;
    g.find<QAction>("MenuImportCsv")->trigger();
    EXPECT_TRUE(g.prompts.boxes.empty());
    EXPECT_EQ(g.text(0, Col::Power), "小");
    g.find<QAction>("undo")->trigger();
    EXPECT_EQ(g.text(0, Col::Power), before);
    g.find<QAction>("redo")->trigger();
    EXPECT_EQ(g.text(0, Col::Power), "小");
}

TEST(CsvMenu, ABadFileChangesNothingAndEveryBadCellIsShown) {
    WindowFixture f;
    QString text = codeplugCsvText(f.window->document());
    text.replace(QStringLiteral("\r\n1,yes,"), QStringLiteral("\r\n1,perhaps,"));
    text.replace(QStringLiteral(",narrow,"), QStringLiteral(",slim,"));
    const QString path = f.dir.filePath(QStringLiteral("bad.csv"));
    ASSERT_TRUE(saveWholeFile(path, text.toUtf8()).ok());
    const Codeplug before = f.window->document();

    f.prompts.openPath = path;
    f.find<QAction>("MenuImportCsv")->trigger();
    ASSERT_EQ(f.prompts.boxes.size(), 1u);
    const QStringList lines = f.prompts.boxes[0].text.split('\n');
    EXPECT_EQ(lines[0], "The CSV file was not imported and nothing was changed. The bad cells:");
    EXPECT_TRUE(lines[1].startsWith("row 2, column 2 (active): \"perhaps\""));
    // Every narrow row is named, up to twenty, and the rest counted.
    EXPECT_EQ(lines.size(), 1 + 20 + 1);
    EXPECT_TRUE(lines.last().startsWith("… and ")) << lines.last().toStdString();
    EXPECT_EQ(f.prompts.boxes[0].title, "NOTE");
    EXPECT_TRUE(f.window->document().plan == before.plan);

    f.prompts.openPath.clear();  // cancelled: nothing at all
    f.find<QAction>("MenuImportCsv")->trigger();
    EXPECT_EQ(f.prompts.boxes.size(), 1u);

    // A read would overwrite an import at once: none while it runs.
    QTest::mouseClick(f.find<QPushButton>("Command2"), Qt::LeftButton);
    EXPECT_FALSE(f.find<QAction>("MenuImportCsv")->isEnabled());
    ASSERT_TRUE(f.waitFor([&] { return !f.window->sessionRunning(); }));
    EXPECT_TRUE(f.find<QAction>("MenuImportCsv")->isEnabled());
}

}  // namespace
