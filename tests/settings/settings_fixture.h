#pragma once

#include "console/plain_sheet.h"
#include "core/registry_store.h"
#include "support/test_tool.h"
#include "support/traced_pairs.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

constexpr const char* eventSourcesKey =
    "System\\CurrentControlSet\\Services\\EventLog\\Application";

/// A tool with an event source of the server, and a sheet that carries one page as a host has it.
struct SettingsTest : testing::Test {
    TestTool tool;
    std::shared_ptr<PlainSheet> sheet = std::make_shared<PlainSheet>("Sheet");

    /// Whatever a test does, each traced routine that was entered was left.
    void TearDown() override { EXPECT_EQ(std::vector<std::string>{}, tracesOutOfPairs(tool)); }

    /// Opens a sheet with a fresh page.
    template <typename Page>
    Page& open()
    {
        auto page = std::make_unique<Page>(tool.context);
        Page& opened = *page;
        sheet = std::make_shared<PlainSheet>("Sheet");
        sheet->addPage(std::move(page), "Title", false);
        sheet->show();
        return opened;
    }

    static std::string sourceKey(const std::string& source)
    {
        return std::string(eventSourcesKey) + "\\" + source;
    }

    void withSource(const std::string& source, const std::string& eventFile,
                    const std::string& categoryFile)
    {
        tool.registry.withText(sourceKey(source), "EventMessageFile", eventFile)
            .withText(sourceKey(source), "CategoryMessageFile", categoryFile);
    }

    std::string eventFile(const std::string& source) const
    {
        return tool.registry.text(sourceKey(source), "EventMessageFile");
    }
    std::string categoryFile(const std::string& source) const
    {
        return tool.registry.text(sourceKey(source), "CategoryMessageFile");
    }

    std::string remembered() const
    {
        return tool.registry.text(toolKey, "OriginalEventLogLanguage");
    }
};
