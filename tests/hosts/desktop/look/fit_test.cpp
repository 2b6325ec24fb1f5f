#include "hosts/desktop/support/cut_texts.h"

#include "core/language_table.h"
#include "hosts/desktop/support/window_tour.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace desktop {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr QSize smallScreen(800, 600);

/// Around a dialog on that screen: its title bar and edges.
constexpr QSize windowFrame(16, 36);

/// Every place of the window on a small screen, in a language. Characters that no font of the
/// machine has are measured by the box that stands for them.
class SmallScreen : public testing::TestWithParam<std::string> {
protected:
    /// Gives what is shown the room that the screen has, and looks for what is cut then.
    static void expectToFit(const std::string& place, QWidget& shown)
    {
        SCOPED_TRACE(place);
        if (!shown.isWindow()) return;
        const bool mainWindow = shown.inherits("desktop::MainWindow");
        const QSize most = mainWindow ? smallScreen : smallScreen - windowFrame;
        shown.resize(shown.size().boundedTo(most));
        settle();
        EXPECT_LE(shown.width(), most.width());
        EXPECT_LE(shown.height(), most.height());
        EXPECT_THAT(cutTexts(shown), IsEmpty());
    }
};

TEST_P(SmallScreen, CutsNoText)
{
    TestWindow shown;
    shown.reopenIn(languageIdFromCode(GetParam()));
    shown.window->resize(smallScreen);
    settle();
    int places = 0;
    tourWindow(shown, [&](const std::string& place, QWidget& widget) {
        ++places;
        expectToFit(place, widget);
    });
    EXPECT_GT(places, 25);
    EXPECT_EQ(smallScreen, shown.window->size());
}

TEST_P(SmallScreen, NorDoesAWindowOfTheUsualSize)
{
    TestWindow shown;
    shown.reopenIn(languageIdFromCode(GetParam()));
    shown.window->resize(1180, 760);
    settle();
    tourViews(shown, [](const std::string& place, QWidget& widget) {
        SCOPED_TRACE(place);
        EXPECT_THAT(cutTexts(widget), IsEmpty());
    });
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, SmallScreen, testing::ValuesIn(toolLanguages()),
                         [](const auto& language) { return language.param; });

/// A box with a text and a button, as wide as it is told to be.
struct Box {
    explicit Box(int width)
    {
        auto* column = new QVBoxLayout(&dialog);
        column->setSizeConstraint(QLayout::SetNoConstraint);
        column->addWidget(label);
        column->addWidget(button);
        dialog.resize(width, 200);
        dialog.show();
        settle();
    }

    QApplication& application = testApplication();
    QDialog dialog;
    QLabel* label = new QLabel(QStringLiteral("A text that takes some room on its line"));
    QPushButton* button = new QPushButton(QStringLiteral("A button with a long caption"));
};

TEST(CutTexts, AreNoneWhereThereIsRoom)
{
    Box box(600);
    EXPECT_THAT(cutTexts(box.dialog), IsEmpty());
}

TEST(CutTexts, NameALabelAndAButtonThatAreTooNarrow)
{
    Box box(90);
    EXPECT_THAT(cutTexts(box.dialog), Contains(HasSubstr("A text that takes")));
    EXPECT_THAT(cutTexts(box.dialog), Contains(HasSubstr("A button with")));
}

TEST(CutTexts, NameAWrappedLabelThatIsTooLow)
{
    Box box(160);
    box.label->setWordWrap(true);
    box.label->setMaximumHeight(12);
    settle();
    EXPECT_THAT(cutTexts(box.dialog), Contains(HasSubstr("A text that takes")));
}

TEST(CutTexts, NameAWidgetThatReachesOutOfItsWindow)
{
    Box box(600);
    box.button->move(550, box.button->y());
    EXPECT_THAT(cutTexts(box.dialog), Contains(HasSubstr("reaches out")));
}

} // namespace

} // namespace desktop
