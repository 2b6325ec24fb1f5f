#pragma once

#include "console/wizard_sheet.h"
#include "support/traced_pairs.h"
#include "traces/traces_fixture.h"
#include "wizards/trace_object.h"
#include "wizards/wizard_page.h"

#include <memory>
#include <string>

/// The caption of a page's control, by the name of the control.
inline std::string captionOf(const SheetPage& page, const std::string& name)
{
    const auto* control = dynamic_cast<const CaptionedControl*>(page.control(name));
    return control ? control->caption() : "no such control";
}

/// A control and the caption that it is to show.
struct Caption {
    const char* control;
    const char* text;
};

/// A sheet with the pages of one wizard, as a host would hold it.
struct WizardTest : TracesTest {
    std::shared_ptr<classTraceObject> shared = std::make_shared<classTraceObject>();
    std::shared_ptr<WizardSheet> sheet = std::make_shared<WizardSheet>("Wizard");

    /// Whatever a test does, each traced routine that was entered was left.
    void TearDown() override { EXPECT_EQ(Texts{}, tracesOutOfPairs(tool)); }

    template <typename Page>
    Page& add()
    {
        auto page = std::make_unique<Page>(tool.context, shared);
        Page& added = *page;
        sheet->addPage(std::move(page), "Title", false);
        return added;
    }

    int forward() const { return sheet->buttons().nextOrFinish; }

    /// Each caption of the page on show.
    void expectCaptions(const std::vector<Caption>& captions) const
    {
        for (const auto& caption : captions)
            EXPECT_EQ(caption.text, captionOf(sheet->currentPage(), caption.control))
                << caption.control;
    }
};

/// Texts of the nodes of a tree in the order of their coming, children behind two blanks, "[x]"
/// before those that are ticked.
inline std::vector<std::string> rowsOf(const TreeView& tree)
{
    std::vector<std::string> rows;
    for (int number = 1; number <= tree.count(); ++number) {
        const TreeNode& node = tree.item(number);
        rows.push_back((node.parent() ? "  " : "") + std::string(node.checked() ? "[x] " : "") +
                       node.text());
    }
    return rows;
}

/// The person ticks or clears the node of a text.
inline void tick(TreeView& tree, const std::string& text, bool ticked = true)
{
    for (int number = 1; number <= tree.count(); ++number)
        if (tree.item(number).text() == text) return tree.checkByPerson(tree.item(number), ticked);
    ADD_FAILURE() << "no node " << text;
}
