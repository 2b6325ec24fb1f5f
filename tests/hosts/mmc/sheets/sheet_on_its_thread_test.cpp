#include "console/pages.h"
#include "console/plain_sheet.h"
#include "console/wizard_sheet.h"
#include "controls/controls.h"
#include "hosts/mmc/sheets/every_control_page.h"
#include "hosts/mmc/sheets/sheet_on_show.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace mmc {

namespace {

/// A sheet whose windows live on a thread of their own, as a console has it. This thread is the
/// tool's, and handles messages while it waits.
struct SheetOnItsThreadTest : testing::Test {
    ~SheetOnItsThreadTest() override
    {
        ending = true;
        if (windows.joinable()) {
            waitFor([&] { return over.load(); });
            windows.join();
        }
    }

    void show(std::shared_ptr<OpenSheet> model)
    {
        model->show();
        native = NativeSheet::make(tool.thread, tool.around(), model);
        const bool wizard = model->wizard() != nullptr;
        windows = std::thread([this, wizard, pages = native->makePages()] {
            {
                Frame made(*native, pages, wizard);
                frame = &made;
                ready = true;
                waitFor([&] { return ending || made.over(); });
                frame = nullptr;
            }
            over = true;
        });
        ASSERT_TRUE(waitFor([&] { return ready.load(); }));
    }

    /// Runs something on the windows' thread by its page, and handles messages meanwhile.
    void post(UINT message, WPARAM first, LPARAM second = 0)
    {
        PostMessageW(frame.load()->window(), message, first, second);
    }

    HWND child(const wchar_t* kind, int number = 0)
    {
        return childrenOf(page(), kind).at(static_cast<std::size_t>(number));
    }

    HWND page()
    {
        // The page on show is its thread's to tell; it is the only one that can be seen.
        for (const HWND dialog : childrenOf(frame.load()->window(), L"#32770"))
            if (IsWindowVisible(dialog)) return dialog;
        return nullptr;
    }

    ToolSide tool;
    std::shared_ptr<NativeSheet> native;
    std::thread windows;
    std::atomic<Frame*> frame{nullptr};
    std::atomic<bool> ready{false};
    std::atomic<bool> ending{false};
    std::atomic<bool> over{false};
};

std::shared_ptr<WizardSheet> wizardOf(std::unique_ptr<SheetPage> page)
{
    auto made = std::make_shared<WizardSheet>("Title");
    made->addPage(std::move(page), "Page title", false);
    return made;
}

TEST_F(SheetOnItsThreadTest, WhatThePersonDoesRunsOnTheToolsThread)
{
    auto made = std::make_unique<EveryControlPage>();
    EveryControlPage& model = *made;
    DWORD ran = 0;
    model.button.onClick = [&] {
        ran = GetCurrentThreadId();
        model.body.setCaption("clicked");
    };
    show(wizardOf(std::move(made)));
    ASSERT_TRUE(waitFor([&] { return page() != nullptr; }));
    for (const HWND button : childrenOf(page(), WC_BUTTONW))
        if ((GetWindowLongPtrW(button, GWL_STYLE) & BS_TYPEMASK) == BS_PUSHBUTTON)
            PostMessageW(button, BM_CLICK, 0, 0);
    ASSERT_TRUE(waitFor([&] { return ran != 0; }));
    EXPECT_EQ(GetCurrentThreadId(), ran);
    EXPECT_TRUE(waitFor([&] { return shownText(child(WC_STATICW, 2)) == L"clicked"; }));
}

TEST_F(SheetOnItsThreadTest, WorkRefreshesWhatIsShownAndIsCancelledMeanwhile)
{
    struct Gather final : SheetPage, IWizardPage, IMMCPropertyPage {
        Gather() : SheetPage("gather")
        {
            declare("bar", ControlRole::progress, bar);
            declare("timer", ControlRole::timer, timer);
        }
        IWizardPage* wizardPage() override { return this; }
        IMMCPropertyPage* propertyPage() override { return this; }
        void IMMCPropertyPage_QueryCancel(bool&) override { cancelled = true; }
        ProgressBar bar;
        Timer timer{10};
        bool cancelled = false;
    };
    auto made = std::make_unique<Gather>();
    Gather& model = *made;
    std::vector<LRESULT> drawn;
    bool ended = false;
    model.timer.onTick = [&] {
        model.timer.setEnabled(false);
        const HWND bar = child(PROGRESS_CLASSW);
        for (int step = 1; step <= 3; ++step) {
            model.bar.setValue(static_cast<float>(10 * step));
            model.bar.refresh(); // drawn, though no message of this thread is handled
            drawn.push_back(SendMessageW(bar, PBM_GETPOS, 0, 0));
        }
        post(WM_COMMAND, Frame::cancel);
        ended = waitFor([&] { return model.cancelled; });
    };
    const auto sheet = wizardOf(std::move(made));
    show(sheet);
    EXPECT_TRUE(waitFor([&] { return ended; }));
    EXPECT_THAT(drawn, testing::ElementsAre(100, 200, 300));
    EXPECT_TRUE(sheet->closed());
    EXPECT_TRUE(waitFor([&] { return over.load(); }));
}

TEST_F(SheetOnItsThreadTest, TheLastToLetGoIsTheToolsThread)
{
    const auto sheet = wizardOf(std::make_unique<EveryControlPage>());
    show(sheet);
    const std::weak_ptr<NativeSheet> kept = native;
    post(WM_COMMAND, Frame::cancel);
    EXPECT_TRUE(waitFor([&] { return over.load(); }));
    native.reset();
    EXPECT_TRUE(waitFor([&] { return kept.expired(); }));
}

TEST_F(SheetOnItsThreadTest, AnAbandonedSheetClosesItsWindows)
{
    const auto sheet = wizardOf(std::make_unique<EveryControlPage>());
    show(sheet);
    native->abandon();
    EXPECT_TRUE(sheet->closed());
    EXPECT_TRUE(waitFor([&] { return over.load(); }));
}

} // namespace

} // namespace mmc
