#pragma once

#include "support/temporary_folder.h"
#include "timeline/sources/log_source.h"
#include "timeline/timeline.h"

#include <gtest/gtest.h>

#include <string>

/// A test with logs of processes, whose rows are counted in the order of time.
class CountedLogs : public testing::Test {
protected:
    /// Adds a log of the day 2025-02-20.
    void add(const std::string& process, const std::string& bytes,
             timeline::LineForm form = timeline::LineForm::basic)
    {
        timeline::LogFacts facts;
        facts.source.process = process;
        facts.source.name = process + ".txt";
        facts.source.form = form;
        facts.opened = timeline::dayOf(2025, 2, 20);
        const std::string path = folder.write(facts.source.name, bytes);
        timeline.add(std::make_unique<timeline::LogSource>(
            facts,
            std::make_shared<timeline::KeptFile>(std::make_shared<timeline::OpenFiles>(4), path)));
    }

    template <typename Counter>
    void count(Counter& counter)
    {
        timeline::Progress progress;
        timeline.read(timeline::Filter(), progress);
        for (auto cursor = timeline.begin(); const auto* row = cursor.next();) counter.add(*row);
    }

    TemporaryFolder folder;
    timeline::Timeline timeline;
};
