#pragma once

#include "console/wizard_sheet.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

enum class Press { back, next, finish };

/// A wizard to walk through at random, and what has to hold of it at every step.
struct WalkedWizard {
    /// Makes a sheet of all pages, not yet shown.
    std::function<std::shared_ptr<WizardSheet>()> make;

    /// Pages whose forward button waits for a choice at each arrival.
    std::set<std::string> waitForChoice;

    /// How much work the wizard has done so far, and whether pressing a button of a page, which is
    /// enabled, does work. Work is done nowhere else.
    std::function<int()> workDone;
    std::function<bool(const SheetPage& page, Press press)> works;

    /// Called after every action, with the page on show.
    std::function<void(SheetPage& page)> check = [](SheetPage&) {};
};

/// Does what a person and a host could do, at random: presses what is enabled, ticks boxes and
/// nodes, selects options, fills fields, lets timers tick, cancels and opens the wizard anew.
/// Fails the running test where something does not hold.
class WizardWalker {
public:
    WizardWalker(WalkedWizard& wizard, std::uint32_t seed) : wizard_(wizard), random_(seed) {}

    void walk(int actions);

    /// How often each page was reached.
    const std::multiset<std::string>& arrivals() const { return arrivals_; }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<std::uint32_t>(bound)); }

    void open();
    void act();
    void press(Press press);
    void use(Control& control);
    void enter(Control& control);
    void tickTimer();
    void cancel();
    void expectArrival();
    void expectWork(int expected);

    WalkedWizard& wizard_;
    std::mt19937 random_;
    std::shared_ptr<WizardSheet> sheet_;
    std::multiset<std::string> arrivals_;
    std::vector<std::string> trail_;
    int work_ = 0;
};
