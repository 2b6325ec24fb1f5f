#include "hosts/desktop/desktop_services.h"

#include "hosts/desktop/support/person.h"
#include "hosts/desktop/support/test_window.h"
#include "support/temporary_folder.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

#include <gmock/gmock.h>

namespace desktop {

namespace {

namespace fs = std::filesystem;

/// A person who picks a folder by a dialog that opens on the folder "present".
struct FolderPicker : testing::Test {
    FolderPicker()
    {
        for (const char* name : {"present/alpha", "present/beta", "other/alpha", "other/.hidden",
                                 "other/with \"quotes\"", "other/with blank "})
            machine.makeFolder(name);
        before = fs::current_path();
        fs::current_path(machine / "present");
        window.show();
    }

    ~FolderPicker() override { fs::current_path(before); }

    /// What the tool gets when the person has done something with the dialog and its field.
    std::string picked(const std::function<void(QFileDialog&, QLineEdit&)>& act)
    {
        DesktopServices desktop;
        desktop.setWindow(&window);
        person::answerNextDialog([&](QWidget& dialog) {
            auto& picker = dynamic_cast<QFileDialog&>(dialog);
            picker.setDirectory(QDir::current()); // not where a dialog before it was left
            act(picker, *picker.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")));
            if (dialog.isVisible()) picker.reject();
        });
        return desktop.pickFolder("Where");
    }

    static QAbstractItemView& list(QFileDialog& picker)
    {
        return *picker.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
    }

    /// The folder "alpha", once the dialog has read and sorted what is there.
    static QModelIndex firstRow(QFileDialog& picker)
    {
        auto& rows = list(picker);
        const auto first = [&] { return rows.model()->index(0, 0, rows.rootIndex()); };
        EXPECT_TRUE(waitUntil([&] {
            return rows.model()->rowCount(rows.rootIndex()) == 2 &&
                   first().data().toString() == QLatin1String("alpha");
        }));
        return first();
    }

    QApplication& application = testApplication();
    TemporaryFolder machine;
    QWidget window;
    fs::path before;
};

TEST_F(FolderPicker, TakesTheFolderThatIsTypedWholeWhateverIsSelected)
{
    const auto typing = [](const std::string& typed, QLineEdit& field) {
        person::typeInto(field, QString::fromStdString(typed));
    };
    for (const char* name :
         {"other/alpha", "other", "other/", "other/.hidden", "other/with \"quotes\"",
          "other/with blank ", "present/../other/alpha"}) {
        const std::string typed = machine / name;
        SCOPED_TRACE(typed);
        std::string wanted = fs::path(typed).lexically_normal().string();
        if (wanted.back() == '/') wanted.pop_back();
        EXPECT_EQ(wanted, picked([&](QFileDialog&, QLineEdit& field) {
                      typing(typed, field);
                      person::press(Qt::Key_Return);
                  }));
        EXPECT_EQ(wanted, picked([&](QFileDialog& picker, QLineEdit& field) {
                      person::clickRow(list(picker), firstRow(picker));
                      typing(typed, field);
                      person::press(Qt::Key_Return);
                  }));
        EXPECT_EQ(wanted, picked([&](QFileDialog& picker, QLineEdit& field) {
                      typing(typed, field);
                      // As a row that comes into the list while the field has the focus.
                      list(picker).setCurrentIndex(firstRow(picker));
                      person::press(Qt::Key_Return);
                  }));
    }
}

TEST_F(FolderPicker, TakesNoOtherFolderForOneThatIsNotThere)
{
    bool asked = false;
    EXPECT_EQ("", picked([&](QFileDialog& picker, QLineEdit& field) {
                  person::typeInto(field, QString::fromStdString(machine / "none"));
                  list(picker).setCurrentIndex(firstRow(picker));
                  person::answerNextDialog([&](QWidget& box) {
                      asked = qobject_cast<QMessageBox*>(&box) != nullptr;
                      person::press(Qt::Key_Escape);
                  });
                  person::press(Qt::Key_Return);
              }));
    EXPECT_TRUE(asked) << "it is said";
}

TEST_F(FolderPicker, TakesTheFolderOfARowThatIsClicked)
{
    EXPECT_EQ(machine / "present/alpha", picked([&](QFileDialog& picker, QLineEdit&) {
                  person::clickRow(list(picker), firstRow(picker));
                  person::clickButton(picker, "Choose");
              }));
}

} // namespace

} // namespace desktop
