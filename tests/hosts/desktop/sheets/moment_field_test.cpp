#include "hosts/desktop/sheets/moment_field.h"

#include "hosts/common/look/notice_bar.h"
#include "hosts/desktop/support/every_kind_page.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QLineEdit>

#include <gmock/gmock.h>

namespace desktop {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

/// A sheet with a date and a time of 2025-02-20 17:42:05, and a person before it.
struct Pickers : testing::Test {
    Pickers()
    {
        shown.dialog->activateWindow();
        EXPECT_TRUE(waitUntil([&] { return shown.dialog->isActiveWindow(); }));
        shown.page().date.onChange = [this] { ++changes; };
        shown.page().time.onChange = [this] { ++changes; };
    }
    ~Pickers() override { person::leave(); }

    MomentField& field(MomentField::Part part) { return OpenProgram::picker(*shown.dialog, part); }
    MomentField& date() { return field(MomentField::Part::date); }
    MomentField& time() { return field(MomentField::Part::time); }

    std::string dateValue() { return sortableDateTime(shown.page().date.value()); }
    std::string timeValue() { return sortableDateTime(shown.page().time.value()); }
    std::string said()
    {
        settle();
        return shown.dialog->findChild<NoticeBar*>()->sentence().toStdString();
    }
    /// The button goes down, and comes up after a moment.
    void pressNextByLetter()
    {
        QAbstractButton& next = person::button(*shown.dialog, "Next >");
        person::press(QKeySequence("Alt+N"));
        EXPECT_TRUE(waitUntil([&] { return !next.isDown(); }));
        settle();
    }
    int place() { return shown.sheet->currentPosition(); }

    ShownSheet<WizardSheet> shown{2};
    int changes = 0;
};

TEST_F(Pickers, TakeTheFormOfEachLanguageTypedWithItsSeparators)
{
    struct Case {
        int language;
        const char* date;
        const char* time;
        const char* shownDate;
        const char* shownTime;
    };
    const Case cases[] = {
        {1033, "2/19/2025", "3:30:00 PM", "2/19/2025", "3:30:00 PM"},
        {1033, "02/19/2025", "15:30", "2/19/2025", "3:30:00 PM"},
        {1031, "19.2.2025", "15:30", "19.02.2025", "15:30:00"},
        {1036, "19/02/2025", "15h30", "19/02/2025", "15:30:00"},
        {1034, "19/2/2025", "15:30:00", "19/2/2025", "15:30:00"},
        {1041, "2025/2/19", "15:30", "2025/02/19", "15:30:00"},
        {1041, "2025-02-19", "3:30 PM", "2025/02/19", "15:30:00"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.language) + " " + c.date);
        InterfaceLanguage language;
        language.choose(c.language);
        settle();
        shown.page().date.setValue(dateOf(2025, 2, 20, 17, 42, 5));
        shown.page().time.setValue(dateOf(2025, 2, 20, 17, 42, 5));
        settle();
        person::typeInto(date(), c.date);
        person::press(Qt::Key_Tab);
        person::typeInto(time(), c.time);
        person::press(Qt::Key_Tab);
        EXPECT_EQ("2025-02-19 17:42:05", dateValue());
        EXPECT_EQ("2025-02-20 15:30:00", timeValue());
        EXPECT_EQ(c.shownDate, date().text().toStdString());
        EXPECT_EQ(c.shownTime, time().text().toStdString());
        EXPECT_THAT(said(), IsEmpty());
    }
}

TEST_F(Pickers, TakeWhatIsPasted)
{
    person::pasteInto(date(), QStringLiteral(" 2025-02-18\n"));
    person::pasteInto(time(), QStringLiteral("15時30分"));
    person::press(Qt::Key_Tab);
    EXPECT_EQ("2025-02-18 17:42:05", dateValue());
    EXPECT_EQ("2025-02-20 15:30:00", timeValue());
    person::pasteInto(date(), QStringLiteral("17.02.2025"));
    person::press(Qt::Key_Tab);
    EXPECT_EQ("2025-02-18 17:42:05", dateValue()) << "no date of this language";
    EXPECT_THAT(said(), AllOf(HasSubstr("\"17.02.2025\""), HasSubstr("2/18/2025")));
}

TEST_F(Pickers, ChangeNothingWhileAPersonTypes)
{
    person::typeInto(date(), "1/2/2025");
    EXPECT_EQ(0, changes) << "half a date is another date";
    EXPECT_EQ(QStringLiteral("1/2/2025"), date().text());
    person::press(Qt::Key_Tab);
    EXPECT_EQ(1, changes);
    EXPECT_EQ("2025-01-02 17:42:05", dateValue());

    person::click(date(), {12, date().height() / 2});
    person::press(Qt::Key_End);
    for (int back = 0; back < 3; ++back) person::press(Qt::Key_Backspace);
    EXPECT_EQ(QStringLiteral("1/2/2"), date().text());
    EXPECT_EQ(1, changes);
    person::type("026");
    person::press(Qt::Key_Return);
    EXPECT_EQ(2, changes);
    EXPECT_EQ("2026-01-02 17:42:05", dateValue());
    EXPECT_EQ(2, place()) << "Enter goes on with a value that is understood";
}

TEST_F(Pickers, SayWhatIsNotUnderstoodAndKeepTheLastGoodValueInSight)
{
    for (const char* typed : {"2/30/2025", "2/", "2/19/20", "x", "20/2/2025"}) {
        SCOPED_TRACE(typed);
        person::typeInto(date(), typed);
        person::press(Qt::Key_Tab);
        EXPECT_EQ(QStringLiteral("2/20/2025"), date().text());
        EXPECT_THAT(said(), AllOf(HasSubstr('"' + std::string(typed) + '"'),
                                  HasSubstr("not a date"), HasSubstr("2/20/2025 stays")));
    }
    person::typeInto(time(), "25:00");
    person::press(Qt::Key_Backtab);
    EXPECT_EQ(QStringLiteral("5:42:05 PM"), time().text());
    EXPECT_THAT(said(), AllOf(HasSubstr("\"25:00\" is not a time"), HasSubstr("5:42:05 PM stays")));
    EXPECT_EQ(0, changes);
    EXPECT_EQ("2025-02-20 17:42:05", dateValue());

    person::typeInto(time(), "15:00");
    person::press(Qt::Key_Tab);
    EXPECT_THAT(said(), IsEmpty()) << "mended";
}

TEST_F(Pickers, ThePageGoesOnOnlyWithWhatWasUnderstood)
{
    struct Way {
        const char* name;
        std::function<void()> goOn;
    };
    const Way ways[] = {
        {"the mouse", [this] { person::clickButton(*shown.dialog, "Next >"); }},
        {"the letter", [this] { pressNextByLetter(); }},
        {"Enter", [] { person::press(Qt::Key_Return); }},
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(way.name);
        person::typeInto(date(), "2/30/2025");
        way.goOn();
        EXPECT_EQ(1, place());
        EXPECT_TRUE(date().hasFocus());
        EXPECT_EQ(QStringLiteral("2/20/2025"), date().text());
        EXPECT_THAT(said(), HasSubstr("\"2/30/2025\""));
        way.goOn();
        EXPECT_EQ(2, place()) << "with the value that stands there";
        EXPECT_THAT(said(), IsEmpty()) << "on another page";
        shown.sheet->back();
        settle();
    }
    person::typeInto(date(), "2/18/2025");
    pressNextByLetter();
    EXPECT_EQ(2, place());
    EXPECT_EQ("2025-02-18 17:42:05", dateValue()) << "taken without leaving the field";
}

TEST_F(Pickers, ACancelAsksForNoDate)
{
    person::typeInto(date(), "2/30");
    person::clickButton(*shown.dialog, "Cancel");
    EXPECT_TRUE(shown.sheet->closed());
    EXPECT_EQ(0, changes);
}

TEST_F(Pickers, TheArrowsChangeThePartThatTheCursorIsIn)
{
    person::click(date(), {12, date().height() / 2});
    person::press(Qt::Key_Home);
    person::press(Qt::Key_Up);
    EXPECT_EQ(QStringLiteral("3/20/2025"), date().text());
    person::press(Qt::Key_End);
    person::press(Qt::Key_Down);
    EXPECT_EQ(QStringLiteral("3/20/2024"), date().text());
    EXPECT_EQ("2024-03-20 17:42:05", dateValue());

    person::click(time(), {12, time().height() / 2});
    for (const auto& [key, expected] :
         {std::pair{Qt::Key_Home, "6:42:05 PM"}, std::pair{Qt::Key_End, "6:42:05 AM"}}) {
        person::press(key);
        person::press(Qt::Key_Up);
        EXPECT_EQ(expected, time().text().toStdString());
    }
    EXPECT_EQ("2025-02-20 06:42:05", timeValue()) << "round at midnight, on the same day";
}

TEST_F(Pickers, ADayIsPickedFromTheCalendar)
{
    date().setFocus();
    person::press(Qt::Key_F4);
    auto* calendar = date().findChild<QCalendarWidget*>();
    ASSERT_NE(nullptr, calendar);
    EXPECT_TRUE(calendar->isVisible());
    EXPECT_EQ(QDate(2025, 2, 20), calendar->selectedDate());
    person::press(Qt::Key_Left);
    person::press(Qt::Key_Return);
    EXPECT_EQ("2025-02-19 17:42:05", dateValue());
    EXPECT_EQ(QStringLiteral("2/19/2025"), date().text());
    EXPECT_EQ(1, changes);
}

TEST(Picker, SaysWhatThePageMakesOfAStartInTheFuture)
{
    OpenProgram shown(100);
    person::press(QKeySequence("Ctrl+5"));
    person::clickButton(shown.sheet(), "Process logs over specified time frame");
    person::clickButton(shown.sheet(), "Next >");
    MomentField& date = OpenProgram::picker(shown.sheet(), MomentField::Part::date);
    const QDate first = QLocale::c().toDate(date.text(), "M/d/yyyy");
    person::typeInto(date, "1/1/2199");
    person::press(Qt::Key_Tab);
    // The page begins some hours back, which may be yesterday, and goes to today.
    const QDate instead = QLocale::c().toDate(date.text(), "M/d/yyyy");
    EXPECT_LE(first, instead);
    EXPECT_GE(first.addDays(2), instead);
    EXPECT_THAT(shown.sheet().findChild<NoticeBar*>()->sentence().toStdString(),
                AllOf(HasSubstr("1/1/2199 can't be chosen"), HasSubstr(date.text().toStdString())));
    person::press(Qt::Key_Escape);
}

} // namespace

} // namespace desktop
