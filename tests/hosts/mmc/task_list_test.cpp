#include "hosts/mmc/task_list.h"

#include <gmock/gmock.h>

#include <string>

namespace mmc {
namespace {

TaskPad padOfTwo()
{
    TaskPadDefinition definition;
    definition.symbolFontFile = "res://a/b.eot";
    definition.tasks = {{"a", "First", "Symbols", 'M', "Does the first"},
                        {"b", "Second \xC3\xA9", "Symbols", '1', ""}};
    return TaskPad(definition);
}

std::wstring taken(LPOLESTR text)
{
    std::wstring copy = text;
    CoTaskMemFree(text);
    return copy;
}

TEST(TaskList, GivesTasksWithTheirTextsSymbolsAndPositions)
{
    TaskPad pad = padOfTwo();
    const auto list = makeObject<TaskList>(pad);
    MMC_TASK tasks[3] = {};
    ULONG fetched = 0;

    EXPECT_EQ(S_FALSE, list->Next(3, tasks, &fetched));

    ASSERT_EQ(2U, fetched);
    EXPECT_EQ(MMC_TASK_DISPLAY_TYPE_SYMBOL, tasks[0].sDisplayObject.eDisplayType);
    EXPECT_EQ(L"Symbols", taken(tasks[0].sDisplayObject.uSymbol.szFontFamilyName));
    EXPECT_EQ(L"res://a/b.eot", taken(tasks[0].sDisplayObject.uSymbol.szURLtoEOT));
    EXPECT_EQ(L"M", taken(tasks[0].sDisplayObject.uSymbol.szSymbolString));
    EXPECT_EQ(L"First", taken(tasks[0].szText));
    EXPECT_EQ(L"Does the first", taken(tasks[0].szHelpString));
    EXPECT_EQ(1, tasks[0].nCommandID);
    EXPECT_EQ(L"Second \x00E9", taken(tasks[1].szText));
    EXPECT_EQ(2, tasks[1].nCommandID);
}

TEST(TaskList, SkipsAndBeginsAnew)
{
    TaskPad pad = padOfTwo();
    const auto list = makeObject<TaskList>(pad);
    MMC_TASK task{};

    EXPECT_EQ(S_OK, list->Skip(1));
    EXPECT_EQ(S_FALSE, list->Skip(2));
    EXPECT_EQ(S_FALSE, list->Next(1, &task, nullptr));
    EXPECT_EQ(S_OK, list->Reset());
    EXPECT_EQ(S_OK, list->Next(1, &task, nullptr));
    EXPECT_EQ(1, task.nCommandID);
}

} // namespace
} // namespace mmc
