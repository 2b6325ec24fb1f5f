#pragma once

#include "console/open_sheet.h"
#include "console/pages.h"
#include "controls/timer.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

using Heard = std::vector<std::string>;

/// A page that writes down what it is told, and does what the test asks of it.
struct RecordingPage : SheetPage, IWizardPage {
    RecordingPage(std::string name, Heard& heard) : SheetPage(std::move(name)), heard_(heard)
    {
        declare("timer", ControlRole::timer, timer);
    }

    IWizardPage* wizardPage() override { return this; }

    void IWizardPage_Activate(bool& EnableBack, int& NextOrFinish, std::string& FinishText) override
    {
        note("activate");
        onActivate(EnableBack, NextOrFinish, FinishText);
    }
    void IWizardPage_Back(int& NextPage) override
    {
        note("back");
        onBack(NextPage);
    }
    void IWizardPage_Next(int& NextPage) override
    {
        note("next");
        onNext(NextPage);
    }
    void IWizardPage_Finish() override
    {
        note("finish");
        onFinish();
    }
    void PropertyPage_ApplyChanges() override
    {
        note("apply");
        onApply();
    }

    std::function<void(bool&, int&, std::string&)> onActivate = [](bool&, int&, std::string&) {};
    std::function<void(int&)> onBack = [](int&) {};
    std::function<void(int&)> onNext = [](int&) {};
    std::function<void()> onFinish = [] {};
    std::function<void()> onApply = [] {};
    Timer timer{500, false};

protected:
    void note(const std::string& event) { heard_.push_back(name() + " " + event); }

private:
    Heard& heard_;
};

/// The same for a page that asks for its sheet.
struct RecordingSheetPage final : RecordingPage, IMMCPropertyPage {
    using RecordingPage::RecordingPage;

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem*, PageSheet& given) override
    {
        note("initialize");
        sheet = &given;
        onInitialize();
    }
    void IMMCPropertyPage_Help() override { note("help"); }
    void IMMCPropertyPage_QueryCancel(bool& Allow) override
    {
        note("query cancel");
        onQueryCancel(Allow);
    }
    void IMMCPropertyPage_Cancel() override
    {
        note("cancel");
        onCancel();
    }
    void IMMCPropertyPage_Close() override { note("close"); }

    PageSheet* sheet = nullptr;
    std::function<void()> onInitialize = [] {};
    std::function<void(bool&)> onQueryCancel = [](bool&) {};
    std::function<void()> onCancel = [] {};
};

/// A host that writes down what it is to show.
struct RecordingSheetObserver final : SheetObserver {
    explicit RecordingSheetObserver(Heard& heard) : heard_(heard) {}

    void pageShown(OpenSheet& sheet) override
    {
        heard_.push_back("shows " + sheet.currentPage().name());
    }
    void buttonsChanged(OpenSheet&) override { heard_.push_back("shows buttons"); }
    void closed(OpenSheet&) override
    {
        heard_.push_back("closed");
        onClosed();
    }

    std::function<void()> onClosed = [] {};

private:
    Heard& heard_;
};

/// Adds a page of a kind to a sheet.
template <typename Page>
Page& addPage(OpenSheet& sheet, const std::string& name, Heard& heard)
{
    auto page = std::make_unique<Page>(name, heard);
    Page& added = *page;
    sheet.addPage(std::move(page), "Title of " + name, false);
    return added;
}
