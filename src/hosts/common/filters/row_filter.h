#pragma once

#include "timeline/filter/filter.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A text that rows have to have, or not to have.
struct TextCondition {
    QString text;
    bool expression = false; ///< of RE2, instead of a plain text
    bool matchesCase = false;
    bool excluded = false;

    bool operator==(const TextCondition&) const = default;

    /// The pattern, ready to be looked for. Raises 5, with a sentence, for an expression that is
    /// none.
    std::shared_ptr<const timeline::TextPattern> pattern() const;
};

/// Which rows a person wants to see, as the person said it: it can be changed part by part, and
/// kept in a file.
struct RowFilter {
    std::vector<timeline::ColumnChoice> columns; ///< one at most for each column
    std::vector<TextCondition> texts;            ///< none of them empty
    std::optional<timeline::Moment> since;
    std::optional<timeline::Moment> until;
    QString macroTrace; ///< "GROUP - TRACE"; empty for none
    std::vector<timeline::ComponentLevels> macroLevels;

    /// Whether every row passes.
    bool passesAll() const;

    /// Whether rows of a value of a column pass, as far as the column goes.
    bool shows(timeline::Column column, const std::string& value) const;

    /// Shows the rows of a value again, or hides them; other values stay as they are.
    void show(timeline::Column column, const std::string& value, bool shown);

    /// Shows the rows of one value of a column alone.
    void showOnly(timeline::Column column, const std::string& value);

    /// Asks nothing of a column any more.
    void clear(timeline::Column column);

    /// What the timeline is asked. Raises 5, with a sentence, for what makes no sense.
    timeline::Choice choice() const;

    /// As one object of JSON, and back. Raises 5, with a sentence, for an object that is none.
    QJsonObject toJson() const;
    static RowFilter ofJson(const QJsonObject& json);

private:
    timeline::ColumnChoice* of(timeline::Column column);
    const timeline::ColumnChoice* of(timeline::Column column) const;
};
