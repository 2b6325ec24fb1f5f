#include "hosts/desktop/window/about_dialog.h"

#include "hosts/desktop/support/cut_texts.h"
#include "hosts/desktop/support/test_window.h"
#include "settings/about_box.h"

#include <QLayout>

#include <gmock/gmock.h>

namespace desktop {

namespace {

TEST(AboutDialog, GrowsWithItsLanguageSoThatNoTextIsCut)
{
    TestWindow shown;
    frmAbout& form = shown.tool->snapIn().showAbout();
    AboutDialog about(form);
    about.show();
    settle();
    ASSERT_THAT(cutTexts(about), testing::IsEmpty());
    ASSERT_GE(form.mnuLanguageList().size(), 5U);
    for (std::size_t index = 0; index < form.mnuLanguageList().size(); ++index) {
        SCOPED_TRACE(form.mnuLanguageList()[index].caption);
        // With no more room than the language before it takes.
        const int width = about.minimumWidth();
        about.resize(width, about.layout()->totalHeightForWidth(width));
        settle();
        form.mnuLanguageList_Click(static_cast<int>(index));
        settle();
        EXPECT_THAT(cutTexts(about), testing::IsEmpty());
    }
    form.cmdOK_Click();
}

} // namespace

} // namespace desktop
