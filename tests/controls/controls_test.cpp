#include "controls/controls.h"

#include "console/sheet.h"
#include "controls/recording_observer.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Control, TellsItsObserverOfAChangeAndNotOfAValueItHasAlready)
{
    Label label;
    RecordingObserver observer;
    label.observe(&observer);

    label.setCaption("Processing");
    EXPECT_EQ(1, observer.changes);
    EXPECT_EQ(&label, observer.last);

    label.setCaption("Processing");
    label.setVisible(true);
    label.setEnabled(true);
    EXPECT_EQ(1, observer.changes);

    label.setVisible(false);
    label.setEnabled(false);
    label.setToolTip("tip");
    EXPECT_EQ(4, observer.changes);
    EXPECT_EQ("tip", label.toolTip());
}

TEST(Control, WorksWithoutAnObserver)
{
    Label label;
    label.setCaption("a");
    label.refresh();
    EXPECT_EQ("a", label.caption());

    RecordingObserver observer;
    label.observe(&observer);
    label.observe(nullptr);
    label.setCaption("b");
    EXPECT_EQ(0, observer.changes);
}

TEST(Control, ARefreshReachesTheObserverAsItself)
{
    Label label;
    RecordingObserver observer;
    label.observe(&observer);
    label.refresh();
    EXPECT_EQ(1, observer.refreshes);
    EXPECT_EQ(0, observer.changes);
}

TEST(ControlObserver, TakesARefreshForAChangeUnlessItWantsToKnow)
{
    struct Simple final : ControlObserver {
        int changes = 0;
        void changed(Control&) override { ++changes; }
    } observer;
    Label label;
    label.observe(&observer);
    label.refresh();
    EXPECT_EQ(1, observer.changes);
}

TEST(Control, TakesALanguagesFontAndTheHostsOwnBackByOneWithoutAName)
{
    Button button;
    button.setFont({128, "MS UI Gothic"});
    EXPECT_EQ(128, button.font().charset);
    EXPECT_EQ("MS UI Gothic", button.font().name);

    RecordingObserver observer;
    button.observe(&observer);
    button.setFont({1, ""});
    EXPECT_EQ(1, button.font().charset);
    EXPECT_EQ("", button.font().name);
    EXPECT_EQ(1, observer.changes);

    button.setFont({1, ""});
    EXPECT_EQ(1, observer.changes) << "it has that font already";
}

TEST(Button, ReportsAClickUnlessDisabledOrHidden)
{
    Button button;
    button.click(); // nobody listens
    int clicks = 0;
    button.onClick = [&] { ++clicks; };

    button.click();
    EXPECT_EQ(1, clicks);
    button.setEnabled(false);
    button.click();
    button.setEnabled(true);
    button.setVisible(false);
    button.click();
    EXPECT_EQ(1, clicks);
}

TEST(CheckBox, AClickTurnsItOverAndEachChangeIsReportedOnce)
{
    CheckBox box;
    int clicks = 0;
    box.onClick = [&] { ++clicks; };

    box.click();
    EXPECT_TRUE(box.checked());
    box.click();
    EXPECT_FALSE(box.checked());
    EXPECT_EQ(2, clicks);

    box.setChecked(true);
    EXPECT_EQ(3, clicks) << "the tool's own change is an event too";
    box.setChecked(true);
    EXPECT_EQ(3, clicks);

    box.setEnabled(false);
    box.click();
    EXPECT_TRUE(box.checked());
}

TEST(OptionButtonGroup, HasAtMostOneOptionSelected)
{
    OptionButtonGroup group(3);
    EXPECT_EQ(3, group.count());
    EXPECT_EQ(-1, group.selected());
    int last = -1;
    group.onClick = [&](int index) { last = index; };

    group.select(0);
    EXPECT_TRUE(group.isSelected(0));
    group.click(2);
    EXPECT_FALSE(group.isSelected(0));
    EXPECT_TRUE(group.isSelected(2));
    EXPECT_EQ(2, last);

    group.setEnabled(false);
    group.click(1);
    EXPECT_EQ(2, group.selected());
}

TEST(OptionButtonGroup, KeepsACaptionAndAToolTipForEachOption)
{
    OptionButtonGroup group(2);
    RecordingObserver observer;
    group.observe(&observer);
    group.setCaption(1, "Select logs");
    group.setOptionToolTip(1, "By hand");
    EXPECT_EQ("", group.caption(0));
    EXPECT_EQ("Select logs", group.caption(1));
    EXPECT_EQ("By hand", group.optionToolTip(1));
    EXPECT_EQ(2, observer.changes);
}

TEST(OptionButtonGroup, AnIndexWithoutAButtonRaises9)
{
    OptionButtonGroup group(2);
    EXPECT_EQ(9, errorNumberOf([&] { group.select(2); }));
    EXPECT_EQ(9, errorNumberOf([&] { group.select(-1); }));
    EXPECT_EQ(9, errorNumberOf([&] { group.setCaption(5, ""); }));
    EXPECT_EQ(9, errorNumberOf([&] { static_cast<void>(group.isSelected(2)); }));
}

TEST(TextBox, ReportsAChangeByThePersonAndByTheToolButNotTheSameText)
{
    TextBox box;
    int changes = 0;
    box.onChange = [&] { ++changes; };
    box.setText("C:\\Logs");
    box.setText("C:\\Logs");
    EXPECT_EQ(1, changes);
    box.setByPerson("D:\\Logs");
    EXPECT_EQ(2, changes);
    EXPECT_EQ("D:\\Logs", box.text());
}

TEST(TextBox, AChangeMayPutTheTextBack)
{
    TextBox box;
    box.setText("1");
    box.onChange = [&] {
        if (box.text().size() > 3) box.setText("1");
    };
    box.setByPerson("1000");
    EXPECT_EQ("1", box.text());
}

TEST(TextBox, ThePersonsKeysPassTheFilter)
{
    TextBox box;
    box.setText("1");
    box.onKeyPress = [](int code) { return code < '0' || code > '9' ? 0 : code; };
    box.typeByPerson("2x3\b");
    EXPECT_EQ("123", box.text()) << "a filter of digits drops the backspace as well";
    EXPECT_EQ(0, box.filterKey('x'));
    EXPECT_EQ('7', box.filterKey('7'));
}

TEST(TextBox, WithoutAFilterTheBackspaceTakesACharacter)
{
    TextBox box;
    box.typeByPerson("ab\bc");
    EXPECT_EQ("ac", box.text());
    box.typeByPerson("\b\b\b");
    EXPECT_EQ("", box.text());
}

TEST(TextBox, ThePersonCantEditAReadOnlyOne)
{
    TextBox box;
    box.setText("ENU");
    box.setReadOnly(true);
    box.typeByPerson("x");
    box.setByPerson("JPN");
    EXPECT_EQ("ENU", box.text());
    EXPECT_EQ(0, box.filterKey('x'));
    box.setText("JPN");
    EXPECT_EQ("JPN", box.text());
}

TEST(ListBox, ASelectionIsAnEventWhoeverMadeIt)
{
    ListBox list;
    int clicks = 0;
    list.onClick = [&] { ++clicks; };
    list.addItem("ENU");
    list.addItem("JPN");
    EXPECT_EQ(2, list.count());
    EXPECT_EQ(-1, list.selectedIndex());
    EXPECT_EQ("", list.text());

    list.chooseByPerson(1);
    EXPECT_EQ("JPN", list.text());
    list.setSelectedIndex(0);
    list.setSelectedIndex(0);
    EXPECT_EQ(2, clicks);
    EXPECT_EQ("ENU", list.text());

    list.clear();
    EXPECT_EQ(0, list.count());
    EXPECT_EQ("", list.text());
    EXPECT_EQ(2, clicks);
}

TEST(ListBox, AnIndexWithoutATextRaises380)
{
    ListBox list;
    list.addItem("ENU");
    EXPECT_EQ(380, errorNumberOf([&] { list.setSelectedIndex(1); }));
    EXPECT_EQ(380, errorNumberOf([&] { list.setSelectedIndex(-2); }));
    EXPECT_EQ(380, errorNumberOf([&] { static_cast<void>(list.item(1)); }));
    EXPECT_EQ(-1, list.selectedIndex());
}

TEST(ComboBox, ItsTextFollowsTheSelection)
{
    ComboBox combo;
    combo.addItem(" 100");
    combo.addItem(" 200");
    std::string seenByHandler;
    combo.onClick = [&] { seenByHandler = combo.text(); };
    combo.setSelectedIndex(1);
    EXPECT_EQ(" 200", combo.text());
    EXPECT_EQ(" 200", seenByHandler);
    combo.setSelectedIndex(-1);
    EXPECT_EQ("", combo.text());
}

TEST(ComboBox, ThePersonMayTypeWhatTheListDoesNotHold)
{
    ComboBox combo;
    combo.addItem(" 100");
    combo.setSelectedIndex(0);
    int changes = 0;
    combo.onChange = [&] { ++changes; };
    combo.setByPerson("many");
    EXPECT_EQ("many", combo.text());
    EXPECT_EQ(-1, combo.selectedIndex());
    EXPECT_EQ(1, changes);
}

TEST(DateTimePicker, OnlyThePersonsPickIsAnEvent)
{
    DateTimePicker picker(PickerKind::date);
    int changes = 0;
    picker.onChange = [&] { ++changes; };
    picker.setValue(Date{38633.5});
    EXPECT_EQ(0, changes);
    picker.setByPerson(Date{38634.5});
    EXPECT_EQ(1, changes);
    EXPECT_EQ(38634.5, picker.value().days);
    EXPECT_EQ(PickerKind::date, picker.kind());
}

TEST(SpinControl, StaysInItsRangeAndReportsEachChange)
{
    SpinControl spin(1, 999);
    EXPECT_EQ(1, spin.value());
    int changes = 0;
    spin.onChange = [&] { ++changes; };

    spin.stepUp();
    EXPECT_EQ(2, spin.value());
    spin.stepDown();
    spin.stepDown();
    EXPECT_EQ(1, spin.value());
    EXPECT_EQ(2, changes) << "a step past the bound is no change";

    spin.setValue(5000);
    EXPECT_EQ(999, spin.value());
    spin.stepUp();
    EXPECT_EQ(999, spin.value());
    spin.setValue(0);
    EXPECT_EQ(1, spin.value());
    EXPECT_EQ(4, changes);
}

TEST(ProgressBar, RunsFrom0ToItsMaximumInSinglePrecision)
{
    ProgressBar bar;
    EXPECT_EQ(0.0F, bar.value());
    bar.setMaximum(130'000'001);
    EXPECT_EQ(130'000'000.0F, bar.maximum()) << "eight digits of nine";
    bar.setValue(bar.maximum());
    EXPECT_EQ(bar.maximum(), bar.value());
}

TEST(ProgressBar, AMaximumOf0IsTakenAndRaises380)
{
    ProgressBar bar;
    bar.setValue(40);
    EXPECT_EQ(380, errorNumberOf([&] { bar.setMaximum(0); }));
    EXPECT_EQ(0.0F, bar.maximum());
    EXPECT_EQ(0.0F, bar.value());
    bar.setValue(bar.maximum());
}

TEST(ProgressBar, RefusesANegativeMaximumAndOneThatIsNoNumber)
{
    ProgressBar bar;
    EXPECT_EQ(380, errorNumberOf([&] { bar.setMaximum(-2); }));
    EXPECT_EQ(380, errorNumberOf([&] { bar.setMaximum(std::numeric_limits<float>::quiet_NaN()); }));
    EXPECT_EQ(100.0F, bar.maximum());
}

TEST(ProgressBar, AValueOutsideRaises380AndChangesNothing)
{
    ProgressBar bar;
    bar.setMaximum(10);
    bar.setValue(10);
    EXPECT_EQ(380, errorNumberOf([&] { bar.setValue(11); }));
    EXPECT_EQ(380, errorNumberOf([&] { bar.setValue(-1); }));
    EXPECT_EQ(10.0F, bar.value());
    bar.setMaximum(5);
    EXPECT_EQ(5.0F, bar.value());
}

TEST(Timer, TicksWhileEnabledWithAnInterval)
{
    struct Case {
        const char* because;
        int interval;
        bool enabled;
        int ticks;
    };
    const Case cases[] = {
        {"enabled and with an interval", 500, true, 1},
        {"disabled", 500, false, 0},
        {"an interval of 0 is a timer at rest", 0, true, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        Timer timer(c.interval, c.enabled);
        int ticks = 0;
        timer.onTick = [&] { ++ticks; };
        timer.tick();
        EXPECT_EQ(c.ticks, ticks);
        EXPECT_EQ(c.ticks == 1, timer.running());
    }
}

TEST(Timer, ATickMaySwitchItOff)
{
    Timer timer(500);
    int ticks = 0;
    timer.onTick = [&] {
        ++ticks;
        timer.setEnabled(false);
    };
    timer.tick();
    timer.tick();
    EXPECT_EQ(1, ticks);

    timer.setEnabled(true);
    timer.setInterval(0);
    timer.tick();
    EXPECT_EQ(1, ticks);
}

TEST(WizardButton, HasTheCodesOfTheSheet)
{
    EXPECT_EQ(0, wizardButton::nextEnabled);
    EXPECT_EQ(1, wizardButton::nextDisabled);
    EXPECT_EQ(2, wizardButton::finishEnabled);
    EXPECT_EQ(3, wizardButton::finishDisabled);
}
