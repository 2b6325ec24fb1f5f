#include "hosts/viewer/files/row_export.h"

#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace viewer {
namespace {

class RowExportTest : public testing::Test {
protected:
    RowExportTest() : model((testApplication(), document)) {}

    /// What an export to a file of a name writes; nothing where it fails.
    std::optional<QByteArray> written(const QString& name)
    {
        const QString path = logs.folder() + QLatin1Char('/') + name;
        RowExport writing(model, {RowColumn::component, RowColumn::trace}, path);
        std::optional<bool> done;
        QObject::connect(&writing, &RowExport::ended, [&](bool well) { done = well; });
        if (!writing.start()) return std::nullopt;
        EXPECT_TRUE(waitUntil([&] { return done.has_value(); }));
        QFile file(path);
        if (!*done || !file.open(QIODevice::ReadOnly)) return std::nullopt;
        return file.readAll();
    }

    TestLogs logs;
    Document document;
    RowModel model;
};

TEST_F(RowExportTest, WritesWhatIsOnShowInTheFormOfTheEnding)
{
    document.open({logs.write("KoCSMgr",
                              rawLine(1000, "A", 3, "one, two") + rawLine(2500, "B", 0, "three"))});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ("Component,Trace\nA,\"one, two\"\nB,three\n", written("rows.csv"));
    EXPECT_EQ("A\tone, two\nB\tthree\n", written("rows.txt"));
    const QList<QByteArray> lines = written("rows.json").value().trimmed().split('\n');
    ASSERT_EQ(2, lines.size());
    const QJsonObject row = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ("2025-02-20T00:00:02.500", row["time"].toString());
    EXPECT_EQ("KoCSMgr", row["process"].toString());
    EXPECT_EQ(0, row["level"].toInt(-1));
    EXPECT_EQ(2, row["line"].toInt());
    EXPECT_FALSE(row.contains("port"));
}

TEST_F(RowExportTest, WritesLongTextsAsLongAsTheyAre)
{
    const QByteArray longText(500'000, 'x');
    document.open({logs.write("KoCSMgr", rawLine(1000, "A", 3, longText.toStdString()))});
    ASSERT_TRUE(waitForRows(document));
    EXPECT_EQ("Component,Trace\nA," + longText + '\n', written("rows.csv"));
    EXPECT_EQ("A\t" + longText + '\n', written("rows.txt"));
    EXPECT_EQ(QString(longText),
              QJsonDocument::fromJson(written("rows.json").value()).object()["trace"].toString());
}

TEST_F(RowExportTest, SaysWhenTheFileCanNotBeWritten)
{
    RowExport writing(model, {RowColumn::trace}, logs.folder() + "/none/rows.csv");
    EXPECT_FALSE(writing.start());
    EXPECT_TRUE(writing.problem().contains("rows.csv"));
}

TEST_F(RowExportTest, LeavesNothingWhenItIsGivenUp)
{
    document.open({logs.writeRows("KoCSMgr", 40'000, 0, 10)});
    ASSERT_TRUE(waitForRows(document));
    const QString path = logs.folder() + "/rows.csv";
    RowExport writing(model, {RowColumn::time, RowColumn::trace}, path);
    std::optional<bool> done;
    QObject::connect(&writing, &RowExport::ended, [&](bool well) { done = well; });
    ASSERT_TRUE(writing.start());
    writing.cancel();
    EXPECT_EQ(false, done);
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace
} // namespace viewer
