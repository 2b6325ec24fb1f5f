#include "timeline/sources/source_reading.h"

using namespace timeline;

SourceRows rowsOf(Source& source, const Filter& filter)
{
    SourceRows rows;
    Progress progress;
    source.read(filter, rows, progress);
    return rows;
}

std::vector<std::string> textsOf(Source& source, const Filter& filter)
{
    std::vector<std::string> texts;
    Record record;
    for (const IndexRow& row : rowsOf(source, filter)) {
        source.record(row, record);
        if (!record.hasForm) {
            texts.push_back("+" + std::string(record.trace));
            continue;
        }
        std::string& text = texts.emplace_back(momentText(record.moment));
        text.append(" ").append(record.process).append(",").append(record.source).append(",");
        text.append(std::to_string(record.traceNumber)).append(",").append(record.component);
        text.append(",").append(std::to_string(record.level)).append(",").append(record.trace);
    }
    return texts;
}

Filter withText(const std::string& text)
{
    Choice choice;
    choice.patterns.push_back(std::make_shared<TextPattern>(TextPattern::Kind::text, text));
    return Filter(std::move(choice));
}

Filter withValue(Column column, const std::string& value)
{
    Choice choice;
    choice.columns.push_back({column, {value}, false});
    return Filter(std::move(choice));
}
