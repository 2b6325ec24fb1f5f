#pragma once

#include "hosts/common/filters/row_filter.h"

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QString>

#include <memory>
#include <vector>

/// Whether a text stands where its line begins, and where it ends, as an expression may ask.
struct LineEdges {
    bool begins = true;
    bool ends = true;
};

/// The texts that are marked in the rows, each by a colour of its own: the one that is looked for,
/// and those that a person keeps beside it.
class Highlights final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// How many can be kept, which is how many colours there are.
    static constexpr std::size_t most = 6;

    /// The text that is looked for; an empty one for none. What is no expression is not marked.
    void setFound(const TextCondition& text);

    /// Keeps a text in the first colour that is free; false when none is, or it is kept already.
    bool keep(const TextCondition& text);

    /// Lets one go, by its colour.
    void letGo(std::size_t colour);

    struct Kept {
        TextCondition text;
        std::size_t colour = 0; ///< less than `most`
    };
    const std::vector<Kept>& kept() const { return kept_; }

    /// Keeps these texts in the place of those of before; one without a colour of its own, or
    /// without letters, is left out.
    void setKept(const std::vector<Kept>& kept);

    /// A part of a text that is marked, and its colour; `most` for the text that is looked for.
    struct Mark {
        qsizetype begin = 0;
        qsizetype length = 0;
        std::size_t colour = 0;
    };

    /// The marks in a text, those that are drawn above others behind them. They are found as rows
    /// are, in a time in proportion to the text.
    std::vector<Mark> marksIn(const QString& text, LineEdges ends = {}) const;

    /// The ground of a colour of marks.
    static QColor ground(std::size_t colour, const QPalette& palette);

signals:
    void changed();

private:
    struct Search {
        std::unique_ptr<timeline::PatternSearch> search;
        std::size_t colour = 0;
    };
    void renew();

    TextCondition found_;
    std::vector<Kept> kept_;
    std::vector<Search> searches_;
};
